// Turns the generic argument lists that tests fire into the C calls of each callback kind.
#include <cstring>
#include <utility>

#include "ORVEX_Core.h"
#include "sim_core.h"

namespace orvexsim {
namespace {

// Arguments of one event. Byte values are copied with a terminator appended, so the same value
// serves as a C string and as a buffer whose length the test passes separately.
class Args {
  public:
    explicit Args(const std::vector<Value>& v) : v_(v), storage_(v.size()) {
        for (std::size_t k = 0; k < v.size(); ++k) {
            if (v[k].isBytes) {
                storage_[k].assign(v[k].b.begin(), v[k].b.end());
                storage_[k].push_back('\0');
            }
        }
    }
    int32_t i32(std::size_t k) const { return static_cast<int32_t>(v_[k].i); }
    uint32_t u32(std::size_t k) const { return static_cast<uint32_t>(v_[k].i); }
    int64_t i64(std::size_t k) const { return v_[k].i; }
    char* str(std::size_t k) { return v_[k].isBytes ? storage_[k].data() : nullptr; }
    // A buffer that must hold at least one T (records whose size the test may not match).
    template <typename T>
    T* records(std::size_t k) {
        if (!v_[k].isBytes) {
            return nullptr;
        }
        if (storage_[k].size() < sizeof(T)) {
            storage_[k].resize(sizeof(T), '\0');
        }
        return reinterpret_cast<T*>(storage_[k].data());
    }

  private:
    const std::vector<Value>& v_;
    std::vector<std::vector<char>> storage_;
};

template <typename Fn>
Fn As(void* fn) {
    return reinterpret_cast<Fn>(fn);
}

int32_t Status(void* fn, void* user, const std::vector<Value>& v) {
    Args a(v);
    return As<pfnORVEXStatusCallback>(fn)(a.i32(0), a.i32(1), user);
}

int32_t MediaData(void* fn, void* user, const std::vector<Value>& v) {
    Args a(v);
    return As<pfnMediaDataCallback>(fn)(a.i32(0), a.i32(1), a.i32(2), a.str(3), a.i32(4), a.str(5),
                                        a.i32(6), user);
}

int32_t DeviceChange(void* fn, void* user, const std::vector<Value>& v) {
    Args a(v);
    return As<pfnORVEXDeviceChangeCallback>(fn)(a.i32(0), a.u32(1), a.str(2), a.str(3), a.str(4),
                                                user);
}

int32_t DevStatus(void* fn, void* user, const std::vector<Value>& v) {
    Args a(v);
    return As<pfnORVEXDevStatusCallback>(fn)(a.i32(0), a.str(1), a.i32(2), user);
}

int32_t Alarm(void* fn, void* user, const std::vector<Value>& v) {
    Args a(v);
    return As<pfnORVEXAlarmCallback>(fn)(
        a.i32(0), a.str(1), a.u32(2), a.str(3), a.str(4), a.str(5), a.str(6), a.str(7), a.u32(8),
        a.u32(9), a.u32(10), a.i64(11), a.str(12), a.u32(13), a.str(14), a.u32(15), user);
}

int32_t TalkParam(void* fn, void* user, const std::vector<Value>& v) {
    Args a(v);
    return As<pfnORVEXTalkParamCallback>(fn)(a.i32(0), a.i32(1), a.i32(2), a.i32(3), a.i32(4),
                                             a.i32(5), user);
}

int32_t RemoteDeviceSnap(void* fn, void* user, const std::vector<Value>& v) {
    Args a(v);
    return As<pfnORVEXRemoteDeviceSnapCallback>(fn)(a.i32(0), a.str(1), a.str(2), user);
}

int32_t VideoAlarmHostStatus(void* fn, void* user, const std::vector<Value>& v) {
    Args a(v);
    return As<pfnORVEXVideoAlarmHostStatusCallback>(fn)(a.i32(0), a.str(1), a.i32(2), a.i32(3),
                                                        user);
}

int32_t NetAlarmHostStatus(void* fn, void* user, const std::vector<Value>& v) {
    Args a(v);
    return As<pfnORVEXNetAlarmHostStatusCallback>(fn)(a.i32(0), a.str(1), a.i32(2), a.i32(3),
                                                      a.i32(4), user);
}

int32_t BroadcastReportStatus(void* fn, void* user, const std::vector<Value>& v) {
    Args a(v);
    return As<pfnORVEXBroadcastReportStatusCallback>(fn)(a.i32(0), a.str(1), a.i32(2), a.i64(3),
                                                         a.i32(4), user);
}

int32_t GeneralJsonTransport(void* fn, void* user, const std::vector<Value>& v) {
    Args a(v);
    return As<pfnORVEXGeneralJsonTransportCallback>(fn)(a.i32(0), a.str(1), user);
}

int32_t NVRChnlStatus(void* fn, void* user, const std::vector<Value>& v) {
    Args a(v);
    return As<pfnORVEXNVRChnlStatusCallback>(fn)(a.i32(0), a.str(1), a.i32(2), user);
}

int32_t PecDoorStatus(void* fn, void* user, const std::vector<Value>& v) {
    Args a(v);
    return As<pfnORVEXPecDoorStarusCallBack>(fn)(
        a.i32(0), a.str(1), static_cast<orvex_door_status_e>(a.i32(2)), a.i64(3), user);
}

// The records argument is the raw bytes of nVideoCount ShareVideoInfo records.
int32_t ShareVideo(void* fn, void* user, const std::vector<Value>& v) {
    Args a(v);
    return As<pfnORVEXShareVideoCallback>(fn)(a.i32(0), a.records<ShareVideoInfo>(1), a.i32(2),
                                              a.str(3), a.i32(4), a.str(5), user);
}

int32_t BayCarInfoEx(void* fn, void* user, const std::vector<Value>& v) {
    Args a(v);
    return As<pfnORVEXGetBayCarInfoCallbackEx>(fn)(
        a.i32(0), a.str(1), a.i32(2), a.i32(3), a.str(4), a.i32(5), a.str(6), a.i32(7), a.str(8),
        a.i32(9), a.str(10), a.i32(11), a.i32(12), a.i32(13), a.i32(14), a.i32(15), a.i32(16),
        a.i32(17), a.i32(18), a.i32(19), static_cast<uint64_t>(a.i64(20)),
        static_cast<unsigned long>(a.i64(21)), a.i32(22), a.i32(23), a.str(24), a.i32(25),
        a.str(26), a.i32(27), a.str(28), a.i32(29), a.str(30), a.i32(31), a.str(32), a.i32(33),
        a.str(34), a.i32(35), a.str(36), a.i32(37), a.str(38), a.i32(39), a.str(40), a.i32(41),
        a.str(42), a.i32(43), a.str(44), a.i32(45), a.i32(46), a.i32(47), a.i32(48), a.i32(49),
        a.i32(50), user);
}

// The structure argument is the raw bytes of one DataChange_t.
int32_t DataChange(void* fn, void* user, const std::vector<Value>& v) {
    Args a(v);
    return As<pfnORVEXDataChangeCallback>(fn)(a.i32(0), a.records<DataChange_t>(1), user);
}

// Indexed by CbKind.
const KindSpec kKinds[] = {
    {"ORVEXStatusCallback", 2, Status},
    {"MediaDataCallback", 7, MediaData},
    {"ORVEXDeviceChangeCallback", 5, DeviceChange},
    {"ORVEXDevStatusCallback", 3, DevStatus},
    {"ORVEXAlarmCallback", 16, Alarm},
    {"ORVEXTalkParamCallback", 6, TalkParam},
    {"ORVEXRemoteDeviceSnapCallback", 3, RemoteDeviceSnap},
    {"ORVEXVideoAlarmHostStatusCallback", 4, VideoAlarmHostStatus},
    {"ORVEXNetAlarmHostStatusCallback", 5, NetAlarmHostStatus},
    {"ORVEXBroadcastReportStatusCallback", 5, BroadcastReportStatus},
    {"ORVEXGeneralJsonTransportCallback", 2, GeneralJsonTransport},
    {"ORVEXNVRChnlStatusCallback", 3, NVRChnlStatus},
    {"ORVEXPecDoorStarusCallBack", 4, PecDoorStatus},
    {"ORVEXShareVideoCallback", 6, ShareVideo},
    {"ORVEXGetBayCarInfoCallbackEx", 51, BayCarInfoEx},
    {"ORVEXDataChangeCallback", 2, DataChange},
};
static_assert(sizeof(kKinds) / sizeof(kKinds[0]) == static_cast<std::size_t>(CbKind::Count),
              "one entry per callback kind");

}  // namespace

const KindSpec& kindSpec(CbKind kind) {
    return kKinds[static_cast<int>(kind)];
}

}  // namespace orvexsim
