// The stand-in library's own machinery: call recording, scripted replies, registrations and
// callbacks fired from threads of its own.
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cstring>
#include <mutex>
#include <numeric>
#include <string>
#include <thread>
#include <vector>

#include "ORVEX_Core.h"
#include "sim_control.h"

namespace {

using orvexsim::CbKind;
using orvexsim::Value;
namespace control = orvexsim::control;

class StandIn : public ::testing::Test {
  protected:
    // These tests see exactly what they script, as tests of the recording machinery must.
    void SetUp() override {
        orvexsim::setMode(orvexsim::Mode::ScriptedOnly);
        control::reset();
    }
    void TearDown() override { control::reset(); }
};

Value Int(int64_t i) {
    Value v;
    v.i = i;
    return v;
}

Value Bytes(const std::string& s) {
    Value v;
    v.isBytes = true;
    v.b.assign(s.begin(), s.end());
    return v;
}

std::vector<uint8_t> Le32(int32_t x) {
    std::vector<uint8_t> b(4);
    std::memcpy(b.data(), &x, 4);
    return b;
}

TEST_F(StandIn, RecordsScalarsAndTextWithItsTerminatorInOrder) {
    ORVEX_SetLog(7, ORVEX_LOG_LEVEL_ERROR, "a.log", -1, 3);

    const auto calls = control::calls();
    ASSERT_EQ(1u, calls.size());
    const auto& args = calls[0].args;
    ASSERT_EQ(5u, args.size());
    EXPECT_EQ("ORVEX_SetLog", calls[0].fn);
    EXPECT_EQ("nHandle", args[0].name);
    EXPECT_EQ(7, args[0].value);
    EXPECT_EQ(6, args[1].value);
    EXPECT_EQ((std::vector<uint8_t>{'a', '.', 'l', 'o', 'g', 0}), args[2].bytes);
    EXPECT_EQ(-1, args[3].value);
    EXPECT_EQ(3, args[4].value);
}

TEST_F(StandIn, RecordsTheRecordsBehindPointerMembersAtTheirCapacity) {
    Dep_Info_t groups[2];
    std::memset(groups, 0x11, sizeof(groups));
    Get_Dep_Info_t info;
    std::memset(&info, 0, sizeof(info));
    info.nDepCount = 2;
    info.pDepInfo = groups;

    ORVEX_GetDGroupInfo(1, &info);

    const auto call = control::calls().at(0);
    bool sawRecords = false;
    for (const auto& a : call.args) {
        if (a.name == "pInfo") {
            EXPECT_EQ(sizeof(Get_Dep_Info_t), a.bytes.size());
        }
        if (a.name == "pInfo.pDepInfo") {
            sawRecords = true;
            EXPECT_EQ(2 * sizeof(Dep_Info_t), a.bytes.size());
            EXPECT_EQ(0x11, a.bytes.back());
        }
    }
    EXPECT_TRUE(sawRecords);
}

TEST_F(StandIn, ScriptedRepliesAreUsedInOrderThenCallsAreUnscripted) {
    control::script("ORVEX_Create", {5, {{"pnSdkHandle", 0, Le32(41)}}});
    control::script("ORVEX_Create", {0, {{"pnSdkHandle", 0, Le32(42)}}});
    int32_t handle = -1;

    EXPECT_EQ(5, ORVEX_Create(ORVEX_CORE_SDK_SERVER, &handle));
    EXPECT_EQ(41, handle);
    EXPECT_EQ(0, ORVEX_Create(ORVEX_CORE_SDK_SERVER, &handle));
    EXPECT_EQ(42, handle);
    handle = -1;
    EXPECT_EQ(0, ORVEX_Create(ORVEX_CORE_SDK_SERVER, &handle));
    EXPECT_EQ(-1, handle);
    EXPECT_TRUE(control::errors().empty());
}

TEST_F(StandIn, WritesOutsideAnOutputAreRefusedAndReported) {
    control::script("ORVEX_Create", {0, {{"pnSdkHandle", 2, Le32(1)}, {"nosuch", 0, Le32(1)}}});
    int32_t handle = 0x01020304;

    ORVEX_Create(ORVEX_CORE_SDK_SERVER, &handle);

    EXPECT_EQ(0x01020304, handle);
    EXPECT_EQ(2u, control::errors().size());
}

std::atomic<int> g_seen{0};
std::thread::id g_thread;

int32_t StatusProbe(int32_t nPDLLHandle, int32_t nStatus, void* pUserParam) {
    g_thread = std::this_thread::get_id();
    g_seen = nPDLLHandle * 100 + nStatus + (pUserParam == &g_seen ? 10000 : 0);
    return 7;
}

TEST_F(StandIn, FiresARegisteredCallbackFromAThreadOfItsOwn) {
    ASSERT_EQ(0, ORVEX_SetORVEXStatusCallback(3, StatusProbe, &g_seen));
    int32_t result = 0;
    std::string error;

    ASSERT_TRUE(control::fire(CbKind::Status, 3, 0, {Int(3), Int(1)}, &result, &error)) << error;

    EXPECT_EQ(7, result);
    EXPECT_EQ(10301, g_seen.load());
    EXPECT_NE(std::this_thread::get_id(), g_thread);
    EXPECT_EQ(8, control::fireMany(CbKind::Status, 3, 0, {Int(3), Int(2)}, 4, 2, -1, &error));
    EXPECT_EQ(-1, control::fireMany(CbKind::Status, 3, 0, {Int(3), Int(2)}, 4, 2, 2, &error));
}

std::mutex g_stampsMu;
std::vector<int32_t> g_stamps;

int32_t StampProbe(int32_t, int32_t nStatus, void*) {
    std::lock_guard<std::mutex> lock(g_stampsMu);
    g_stamps.push_back(nStatus);
    return 0;
}

TEST_F(StandIn, StampsEveryEventOfAStormWithItsOwnNumber) {
    ASSERT_EQ(0, ORVEX_SetORVEXStatusCallback(3, StampProbe, nullptr));
    g_stamps.clear();
    std::string error;

    ASSERT_EQ(300, control::fireMany(CbKind::Status, 3, 0, {Int(3), Int(-1)}, 3, 100, 1, &error))
        << error;

    std::sort(g_stamps.begin(), g_stamps.end());
    std::vector<int32_t> expected(300);
    std::iota(expected.begin(), expected.end(), 0);
    EXPECT_EQ(expected, g_stamps);
}

TEST_F(StandIn, KeepsRegistrationsPerInstanceAndForgetsRefusedOrSwitchedOffOnes) {
    int32_t result = 0;
    std::string error;
    ORVEX_SetORVEXStatusCallback(3, StatusProbe, nullptr);

    EXPECT_FALSE(control::fire(CbKind::Status, 4, 0, {Int(4), Int(1)}, &result, &error));
    EXPECT_FALSE(control::fire(CbKind::Status, 3, 0, {Int(3)}, &result, &error));
    EXPECT_NE(std::string::npos, error.find("takes 2 arguments"));

    ORVEX_SetORVEXStatusCallback(3, nullptr, nullptr);
    EXPECT_FALSE(control::fire(CbKind::Status, 3, 0, {Int(3), Int(1)}, &result, &error));

    control::script("ORVEX_SetORVEXStatusCallback", {9, {}});
    EXPECT_EQ(9, ORVEX_SetORVEXStatusCallback(3, StatusProbe, nullptr));
    EXPECT_FALSE(control::fire(CbKind::Status, 3, 0, {Int(3), Int(1)}, &result, &error));
}

std::string g_node;
int32_t g_dataLen = -1;

int32_t MediaProbe(int32_t, int32_t, int32_t, const char* szNodeId, int32_t, char* szData,
                   int32_t nDataLen, void*) {
    g_node = szNodeId;
    g_dataLen = nDataLen;
    return static_cast<int32_t>(szData[1]);
}

TEST_F(StandIn, KeepsMediaCallbacksPerStream) {
    control::script("ORVEX_GetRealStream", {0, {{"pnRealSeq", 0, Le32(12)}}});
    Get_RealStream_Info_t info;
    std::memset(&info, 0, sizeof(info));
    int32_t seq = -1;
    ASSERT_EQ(0, ORVEX_GetRealStream(2, &seq, &info, MediaProbe, nullptr, 1000));
    ASSERT_EQ(12, seq);
    int32_t result = 0;
    std::string error;

    EXPECT_FALSE(control::fire(CbKind::MediaData, 2, 13,
                               {Int(2), Int(13), Int(1), Bytes("cam"), Int(0), Bytes("xy"), Int(2)},
                               &result, &error));
    ASSERT_TRUE(control::fire(CbKind::MediaData, 2, 12,
                              {Int(2), Int(12), Int(1), Bytes("cam"), Int(0), Bytes("xy"), Int(2)},
                              &result, &error))
        << error;
    EXPECT_EQ('y', result);
    EXPECT_EQ("cam", g_node);
    EXPECT_EQ(2, g_dataLen);
}

// With recording off a call is neither logged nor answered by a script (which stays queued for
// later), returns 0 and leaves its outputs alone; stream registrations are still kept.
TEST_F(StandIn, WithRecordingOffCallsAnswerZeroUnrecordedAndRegistrationsStay) {
    control::script("ORVEX_Create", {5, {{"pnSdkHandle", 0, Le32(41)}}});
    orvexsim::setRecording(false);
    int32_t handle = -1;
    const int32_t quiet = ORVEX_Create(ORVEX_CORE_SDK_SERVER, &handle);
    Get_RealStream_Info_t info;
    std::memset(&info, 0, sizeof(info));
    int32_t seq = 0;
    const int32_t opened = ORVEX_GetRealStream(2, &seq, &info, MediaProbe, nullptr, 1000);
    const auto quietCalls = control::calls();
    orvexsim::setRecording(true);

    EXPECT_EQ(0, quiet);
    EXPECT_EQ(-1, handle);
    EXPECT_EQ(0, opened);
    EXPECT_TRUE(quietCalls.empty());
    orvexsim::Registration reg;
    EXPECT_TRUE(orvexsim::lookup(CbKind::MediaData, 2, 0, &reg));
    EXPECT_EQ(reinterpret_cast<void*>(MediaProbe), reg.fn);
    EXPECT_EQ(5, ORVEX_Create(ORVEX_CORE_SDK_SERVER, &handle));
    EXPECT_EQ(41, handle);
    EXPECT_EQ(1u, control::calls().size());
}

}  // namespace
