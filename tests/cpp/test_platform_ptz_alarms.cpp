// The simulated platform's PTZ, preset, alarm and alarm-host logic, driven directly on the
// built-in site (the platform sources are compiled into this test; events arrive through the
// stand-in's callback registry like a client's).
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <cstring>
#include <ctime>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "ORVEX_Core_Error.h"
#include "platform/alarms.h"
#include "platform/ptz.h"
#include "platform/site_model.h"
#include "platform/site_scenario.h"
#include "platform/status_hosts.h"
#include "platform_login.h"

namespace orvexsim::platform {
namespace {

using namespace std::chrono_literals;

constexpr const char* kDome = "ipc-gate-01-cam01";  // a PTZ dome with presets
constexpr const char* kFixed = "nvr-north-01-cam02";
constexpr const char* kOffline = "ipc-gate-02-cam01";

// One alarm or host status event as a client receives it. Alarms: a type, b event, c time;
// video hosts: a input, c state; network hosts: a zone, b operation, c state.
struct Event {
    CbKind kind;
    std::string id, camera, message;
    int64_t a = 0, b = 0, c = 0;
};

// Collects the events of one instance.
class Inbox {
  public:
    void Add(Event e) {
        std::lock_guard<std::mutex> lock(mu_);
        events_.push_back(std::move(e));
        cv_.notify_all();
    }
    // Waits until an event satisfies `done` (at most 10 s), then returns and forgets
    // everything received so far.
    std::vector<Event> Take(const std::function<bool(const Event&)>& done) {
        std::unique_lock<std::mutex> lock(mu_);
        cv_.wait_for(lock, 10s, [&] { return std::any_of(events_.begin(), events_.end(), done); });
        return std::exchange(events_, {});
    }

  private:
    std::mutex mu_;
    std::condition_variable cv_;
    std::vector<Event> events_;
};

int32_t OnAlarm(int32_t, const char* id, uint32_t, const char* camera, const char*, const char*,
                const char*, const char* message, uint32_t type, uint32_t event, uint32_t,
                int64_t time, char*, uint32_t, char*, uint32_t, void* user) {
    static_cast<Inbox*>(user)->Add({CbKind::Alarm, id, camera, message, type, event, time});
    return 0;
}

int32_t OnVideoHost(int32_t, char* device, int32_t channel, int32_t status, void* user) {
    static_cast<Inbox*>(user)->Add(
        {CbKind::VideoAlarmHostStatus, device, "", "", channel, 0, status});
    return 0;
}

int32_t OnNetHost(int32_t, char* device, int32_t zone, int32_t op, int32_t status, void* user) {
    static_cast<Inbox*>(user)->Add({CbKind::NetAlarmHostStatus, device, "", "", zone, op, status});
    return 0;
}

// A client instance logged in as one of the built-in site's users, receiving every event kind.
class Session {
  public:
    explicit Session(const std::string& user) : h(LoggedInInstance(user)) {
        setCallback(CbKind::Alarm, h, reinterpret_cast<void*>(OnAlarm), &inbox);
        setCallback(CbKind::VideoAlarmHostStatus, h, reinterpret_cast<void*>(OnVideoHost), &inbox);
        setCallback(CbKind::NetAlarmHostStatus, h, reinterpret_cast<void*>(OnNetHost), &inbox);
    }
    ~Session() {
        DestroyInstance(h);  // delivers what was posted first
        for (CbKind k : {CbKind::Alarm, CbKind::VideoAlarmHostStatus, CbKind::NetAlarmHostStatus}) {
            setCallback(k, h, nullptr, nullptr);
        }
    }
    int32_t h = 0;
    Inbox inbox;
};

CameraLook Look(const std::string& camera) {
    CameraLook look;
    EXPECT_TRUE(CurrentSiteView().camera(0, camera, &look));
    return look;
}

template <typename T>
T Request(const std::string& camera) {
    T info;
    std::memset(&info, 0, sizeof(info));
    CopyText(info.szCameraId, camera);
    return info;
}

int32_t Sit(int32_t h, const std::string& camera, int32_t pan, int32_t tilt, int32_t zoom) {
    auto info = Request<Ptz_Sit_Info_t>(camera);
    info.pointX = pan;
    info.pointY = tilt;
    info.pointZ = zoom;
    return PtzSit(h, &info);
}

int32_t Direction(int32_t h, const std::string& camera, int32_t direct, uint32_t step, bool stop) {
    auto info = Request<Ptz_Direct_Info_t>(camera);
    info.nDirect = static_cast<orvex_ptz_direct_e>(direct);
    info.nStep = step;
    info.bStop = stop;
    return PtzDirection(h, &info);
}

int32_t Operation(int32_t h, const std::string& camera, int32_t op, bool stop) {
    auto info = Request<Ptz_Operation_Info_t>(camera);
    info.nOperation = static_cast<orvex_camera_operation_e>(op);
    info.nStep = 1;
    info.bStop = stop;
    return PtzCameraOperation(h, &info);
}

int32_t Lock(int32_t h, const std::string& camera, int32_t how) {
    auto info = Request<Ptz_Lock_Info_t>(camera);
    info.nLock = static_cast<orvex_ptz_locktype_e>(how);
    return PtzLockCamera(h, &info);
}

int32_t Extend(int32_t h, const std::string& camera, int32_t cmd, int32_t param) {
    auto info = Request<Ptz_Extend_Command_Info_t>(camera);
    info.nCmd = static_cast<orvex_ptz_extend_cmd_e>(cmd);
    info.nParam = param;
    return PtzExtendCommand(h, &info);
}

int32_t PresetOp(int32_t h, const std::string& camera, int32_t cmd, uint32_t code,
                 const std::string& name = "") {
    auto info = Request<Ptz_Prepoint_Operation_Info_t>(camera);
    info.nCmd = static_cast<orvex_ptz_prepoint_cmd_e>(cmd);
    info.pPoints.nCode = code;
    CopyText(info.pPoints.szName, name);
    return PtzPrePointOperation(h, &info);
}

std::vector<std::pair<uint32_t, std::string>> Presets(int32_t h, const std::string& camera) {
    auto info = std::make_unique<Ptz_Prepoint_Info_t>();
    std::memset(info.get(), 0, sizeof(*info));
    CopyText(info->szCameraId, camera);
    EXPECT_EQ(ORVEX_RET_SUCCESS, QueryPrePoint(h, info.get()));
    std::vector<std::pair<uint32_t, std::string>> out;
    for (uint32_t k = 0; k < info->nCount; ++k) {
        out.emplace_back(info->pPoints[k].nCode, info->pPoints[k].szName);
    }
    return out;
}

void ExpectAt(const std::string& camera, int32_t pan, int32_t tilt, int32_t zoom) {
    const CameraLook look = Look(camera);
    EXPECT_EQ(pan, look.pan);
    EXPECT_EQ(tilt, look.tilt);
    EXPECT_EQ(zoom, look.zoom);
}

TEST(PlatformPtz, EachDirectionMovesTheWayItSaysByWholeStepsUntilStopped) {
    Session s("operator");
    struct Case {
        int32_t direct, pan, tilt;  // signs of the change
    };
    const Case cases[] = {{ORVEX_CORE_PTZ_GO_UP, 0, 1},      {ORVEX_CORE_PTZ_GO_DOWN, 0, -1},
                          {ORVEX_CORE_PTZ_GO_LEFT, -1, 0},   {ORVEX_CORE_PTZ_GO_RIGHT, 1, 0},
                          {ORVEX_CORE_PTZ_GO_LEFTUP, -1, 1}, {ORVEX_CORE_PTZ_GO_LEFTDOWN, -1, -1},
                          {ORVEX_CORE_PTZ_GO_RIGHTUP, 1, 1}, {ORVEX_CORE_PTZ_GO_RIGHTDOWN, 1, -1}};
    CameraLook last;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.direct);
        ASSERT_EQ(ORVEX_RET_SUCCESS, Sit(s.h, kDome, 180, 0, 2));
        ASSERT_EQ(ORVEX_RET_SUCCESS, Direction(s.h, kDome, c.direct, 3, false));
        EXPECT_TRUE(CameraSwitches(kDome).moving);
        ASSERT_EQ(ORVEX_RET_SUCCESS, Direction(s.h, kDome, c.direct, 3, true));
        const CameraLook stopped = Look(kDome);
        const int32_t dPan = stopped.pan - 180, dTilt = stopped.tilt;
        // At least the step taken at once; whole steps; only along the axes of the direction.
        EXPECT_EQ(c.pan, (dPan > 0) - (dPan < 0));
        EXPECT_EQ(c.tilt, (dTilt > 0) - (dTilt < 0));
        EXPECT_EQ(0, dPan % 3);
        EXPECT_EQ(0, dTilt % 3);
        EXPECT_EQ(2, stopped.zoom);
        EXPECT_FALSE(CameraSwitches(kDome).moving);
        last = stopped;
    }
    std::this_thread::sleep_for(2 * kMotionTick);  // stopped means still
    ExpectAt(kDome, last.pan, last.tilt, last.zoom);
}

TEST(PlatformPtz, AStartedMotionKeepsGoingAndStopsAtTheLimits) {
    Session s("operator");
    ASSERT_EQ(ORVEX_RET_SUCCESS, Sit(s.h, kDome, 350, 80, 1));
    ASSERT_EQ(ORVEX_RET_SUCCESS, Direction(s.h, kDome, ORVEX_CORE_PTZ_GO_RIGHTUP, 50, false));
    std::this_thread::sleep_for(8 * kMotionTick);
    ASSERT_EQ(ORVEX_RET_SUCCESS, Direction(s.h, kDome, ORVEX_CORE_PTZ_GO_RIGHTUP, 50, true));
    const CameraLook look = Look(kDome);
    EXPECT_EQ(90, look.tilt);  // held at the top
    // Steps are capped at 10 degrees and pan wraps: from 350 at least three steps to the right.
    EXPECT_EQ(0, (look.pan - 350 + 360) % 10);
    EXPECT_GE((look.pan - 350 + 360) % 360, 30);
}

TEST(PlatformPtz, LensOperationsChangeZoomFocusAndIrisOneWayEach) {
    Session s("operator");
    struct Case {
        int32_t op, zoom, focus, iris;
    };
    const Case cases[] = {
        {ORVEX_CORE_PTZ_ADD_ZOOM, 1, 0, 0},     {ORVEX_CORE_PTZ_REDUCE_ZOOM, -1, 0, 0},
        {ORVEX_CORE_PTZ_ADD_FOCUS, 0, 1, 0},    {ORVEX_CORE_PTZ_REDUCE_FOCUS, 0, -1, 0},
        {ORVEX_CORE_PTZ_ADD_APERTURE, 0, 0, 1}, {ORVEX_CORE_PTZ_REDUCE_APERTURE, 0, 0, -1}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.op);
        ASSERT_EQ(ORVEX_RET_SUCCESS, Sit(s.h, kDome, 10, 0, 10));
        const PtzSwitches before = CameraSwitches(kDome);
        ASSERT_EQ(ORVEX_RET_SUCCESS, Operation(s.h, kDome, c.op, false));
        ASSERT_EQ(ORVEX_RET_SUCCESS, Operation(s.h, kDome, c.op, true));
        const PtzSwitches after = CameraSwitches(kDome);
        const CameraLook look = Look(kDome);
        EXPECT_EQ(c.zoom, (look.zoom > 10) - (look.zoom < 10));
        EXPECT_EQ(c.focus, (after.focus > before.focus) - (after.focus < before.focus));
        EXPECT_EQ(c.iris, (after.iris > before.iris) - (after.iris < before.iris));
        EXPECT_EQ(10, look.pan);
    }
    EXPECT_EQ(ORVEX_CORE_ERROR_INVALID_PARAM, Operation(s.h, kDome, 6, false));
}

TEST(PlatformPtz, SitPointsTheCameraOrRefusesPositionsOutOfRange) {
    Session s("operator");
    struct Case {
        int32_t x, y, z, rc, pan;
    };
    const Case cases[] = {{400, 10, 2, ORVEX_RET_SUCCESS, 40},
                          {-30, -90, kMaxZoom, ORVEX_RET_SUCCESS, 330},
                          {0, 91, 1, ORVEX_CORE_ERROR_INVALID_PARAM, 330},
                          {0, 0, 0, ORVEX_CORE_ERROR_INVALID_PARAM, 330},
                          {0, 0, kMaxZoom + 1, ORVEX_CORE_ERROR_INVALID_PARAM, 330}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.x);
        EXPECT_EQ(c.rc, Sit(s.h, kDome, c.x, c.y, c.z));
        EXPECT_EQ(c.pan, Look(kDome).pan);
    }
}

TEST(PlatformPtz, RefusesUnknownHandlesLoginsCamerasUsersAndCamerasThatCannotMove) {
    Session op("operator"), viewer("viewer");
    int32_t loggedOut = 0;
    ASSERT_EQ(ORVEX_RET_SUCCESS, CreateInstance(&loggedOut));
    struct Case {
        int32_t h;
        const char* camera;
        int32_t rc;
    };
    const Case cases[] = {{987654, kDome, ORVEX_CORE_ERROR_UNKNOWN_HANDLE},
                          {loggedOut, kDome, ORVEX_CORE_ERROR_NOT_LOGGED_IN},
                          {op.h, "no-such-camera", ORVEX_CORE_ERROR_CHANNEL_NOT_FOUND},
                          {viewer.h, kDome, ORVEX_CORE_ERROR_NO_PERMISSION},
                          {op.h, kFixed, ORVEX_CORE_ERROR_NOT_SUPPORTED},
                          {op.h, kOffline, ORVEX_CORE_ERROR_DEVICE_OFFLINE}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.camera);
        EXPECT_EQ(c.rc, Direction(c.h, c.camera, ORVEX_CORE_PTZ_GO_UP, 1, false));
        EXPECT_EQ(c.rc, Sit(c.h, c.camera, 1, 1, 1));
        EXPECT_EQ(c.rc, PresetOp(c.h, c.camera, ORVEX_CORE_PTZ_PRESET_ADD, 5, "x"));
    }
    EXPECT_EQ(ORVEX_CORE_ERROR_INVALID_PARAM, PtzDirection(op.h, nullptr));
    EXPECT_EQ(ORVEX_CORE_ERROR_INVALID_PARAM, Direction(op.h, kDome, 9, 1, false));
    DestroyInstance(loggedOut);
}

TEST(PlatformPtz, ALockKeepsOtherSessionsOutUntilReleasedOrItsSessionEnds) {
    auto holder = std::make_unique<Session>("operator");
    Session other("operator"), admin("admin");
    const char* cam = "nvr-north-01-cam04";
    ASSERT_EQ(ORVEX_RET_SUCCESS, Lock(holder->h, cam, ORVEX_CORE_PTZ_CMD_LOCK));
    EXPECT_EQ(ORVEX_RET_SUCCESS, Sit(holder->h, cam, 5, 5, 5));
    EXPECT_EQ(ORVEX_CORE_ERROR_BUSY, Sit(other.h, cam, 6, 6, 6));
    EXPECT_EQ(ORVEX_CORE_ERROR_BUSY, Lock(other.h, cam, ORVEX_CORE_PTZ_CMD_LOCK));
    EXPECT_EQ(ORVEX_CORE_ERROR_BUSY, Lock(other.h, cam, ORVEX_CORE_PTZ_CMD_UNLOCK_ONE));
    EXPECT_EQ(ORVEX_CORE_ERROR_NO_PERMISSION, Lock(other.h, cam, ORVEX_CORE_PTZ_CMD_UNLOCK_ALL));
    EXPECT_EQ(holder->h, CameraSwitches(cam).lockedBy);
    ExpectAt(cam, 5, 5, 5);

    EXPECT_EQ(ORVEX_RET_SUCCESS, Lock(admin.h, cam, ORVEX_CORE_PTZ_CMD_UNLOCK_ALL));
    EXPECT_EQ(ORVEX_RET_SUCCESS, Sit(other.h, cam, 6, 6, 6));

    ASSERT_EQ(ORVEX_RET_SUCCESS, Lock(holder->h, cam, ORVEX_CORE_PTZ_CMD_LOCK));
    holder.reset();
    EXPECT_EQ(0, CameraSwitches(cam).lockedBy);
    EXPECT_EQ(ORVEX_RET_SUCCESS, Sit(other.h, cam, 7, 7, 7));
}

TEST(PlatformPtz, LightAndWiperRememberTheirLastSwitch) {
    Session s("operator");
    struct Case {
        int32_t (*fn)(int32_t, const Ptz_Open_Command_Info_t*);
        bool PtzSwitches::*which;
    };
    for (const Case& c : {Case{PtzLightControl, &PtzSwitches::light},
                          Case{PtzRainBrushControl, &PtzSwitches::wiper}}) {
        for (bool on : {true, false, true}) {
            auto info = Request<Ptz_Open_Command_Info_t>(kFixed);  // any camera has them
            info.bOpen = on;
            ASSERT_EQ(ORVEX_RET_SUCCESS, c.fn(s.h, &info));
            EXPECT_EQ(on, CameraSwitches(kFixed).*c.which);
        }
    }
    EXPECT_TRUE(CameraSwitches(kFixed).light);
    EXPECT_TRUE(CameraSwitches(kFixed).wiper);
}

TEST(PlatformPtz, PresetsAreStoredListedRecalledAndDeleted) {
    Session s("operator");
    const char* cam = "nvr-north-01-cam07";  // built-in presets: 1 Home, 2 Entrance
    const CameraLook start = Look(cam);
    EXPECT_EQ((std::vector<std::pair<uint32_t, std::string>>{{1, "Home"}, {2, "Entrance"}}),
              Presets(s.h, cam));
    ASSERT_EQ(ORVEX_RET_SUCCESS, PresetOp(s.h, cam, ORVEX_CORE_PTZ_PRESET_LOCATION, 2));
    ExpectAt(cam, (start.pan + 90) % 360, -20, 3);

    ASSERT_EQ(ORVEX_RET_SUCCESS, Sit(s.h, cam, 123, -45, 7));
    ASSERT_EQ(ORVEX_RET_SUCCESS, PresetOp(s.h, cam, ORVEX_CORE_PTZ_PRESET_ADD, 9, "Dock"));
    ASSERT_EQ(ORVEX_RET_SUCCESS, Sit(s.h, cam, 0, 0, 1));
    ASSERT_EQ(ORVEX_RET_SUCCESS,
              PresetOp(s.h, cam, ORVEX_CORE_PTZ_PRESET_ADD, 5, std::string(31, 'n')));
    EXPECT_EQ((std::vector<std::pair<uint32_t, std::string>>{
                  {1, "Home"}, {2, "Entrance"}, {5, std::string(31, 'n')}, {9, "Dock"}}),
              Presets(s.h, cam));
    ASSERT_EQ(ORVEX_RET_SUCCESS, PresetOp(s.h, cam, ORVEX_CORE_PTZ_PRESET_LOCATION, 9));
    ExpectAt(cam, 123, -45, 7);

    // Storing under an existing code replaces name and position.
    ASSERT_EQ(ORVEX_RET_SUCCESS, PresetOp(s.h, cam, ORVEX_CORE_PTZ_PRESET_ADD, 5, "Gate"));
    ASSERT_EQ(ORVEX_RET_SUCCESS, PresetOp(s.h, cam, ORVEX_CORE_PTZ_PRESET_LOCATION, 5));
    ExpectAt(cam, 123, -45, 7);
    for (uint32_t code : {5u, 9u}) {
        EXPECT_EQ(ORVEX_RET_SUCCESS, PresetOp(s.h, cam, ORVEX_CORE_PTZ_PRESET_DEL, code));
        EXPECT_EQ(ORVEX_CORE_ERROR_NOT_FOUND, PresetOp(s.h, cam, ORVEX_CORE_PTZ_PRESET_DEL, code));
        EXPECT_EQ(ORVEX_CORE_ERROR_NOT_FOUND,
                  PresetOp(s.h, cam, ORVEX_CORE_PTZ_PRESET_LOCATION, code));
    }
    EXPECT_EQ(2u, Presets(s.h, cam).size());
    EXPECT_EQ(ORVEX_CORE_ERROR_INVALID_PARAM,
              PresetOp(s.h, cam, ORVEX_CORE_PTZ_PRESET_ADD, 0, "z"));
    EXPECT_EQ(ORVEX_CORE_ERROR_INVALID_PARAM, PresetOp(s.h, cam, 4, 1));

    Session viewer("viewer");  // may list, not change
    EXPECT_EQ(2u, Presets(viewer.h, cam).size());
    EXPECT_EQ(ORVEX_CORE_ERROR_NO_PERMISSION,
              PresetOp(viewer.h, cam, ORVEX_CORE_PTZ_PRESET_DEL, 1));
}

TEST(PlatformPtz, ScenarioPresetsCarryTheirPositions) {
    const std::string head =
        R"({"departments": [{"coding": "1"}], "devices": [{"id": "d", "department": "1",
            "channels": [{"id": "c", "cameraType": 2, "presets": [)";
    Site site;
    std::string error;
    ASSERT_TRUE(ParseScenario(head + R"({"code": 3, "name": "P", "pan": 45, "tilt": -10,
                                         "zoom": 4}, {"code": 4}]}]}]})",
                              "p.json", &site, &error))
        << error;
    const std::vector<Preset>& p = site.devices[0].channels[0].presets;
    ASSERT_EQ(2u, p.size());
    EXPECT_EQ(45, p[0].pan);
    EXPECT_EQ(-10, p[0].tilt);
    EXPECT_EQ(4, p[0].zoom);
    EXPECT_EQ(1, p[1].zoom);
    EXPECT_FALSE(ParseScenario(head + R"({"code": 3, "tilt": 91}]}]}]})", "p.json", &site, &error));
    EXPECT_NE(std::string::npos, error.find("/presets/0")) << error;
}

TEST(PlatformPtz, AutoRoundTurnsAndScanStaysWithinItsRange) {
    Session s("operator");
    const char* cam = "nvr-north-01-cam10";
    ASSERT_EQ(ORVEX_RET_SUCCESS, Sit(s.h, cam, 100, 0, 1));
    ASSERT_EQ(ORVEX_RET_SUCCESS, Extend(s.h, cam, ORVEX_CORE_PTZ_START_AUTO_ROUND, 4));
    std::this_thread::sleep_for(3 * kMotionTick);
    ASSERT_EQ(ORVEX_RET_SUCCESS, Extend(s.h, cam, ORVEX_CORE_PTZ_STOP_AUTO_ROUND, 0));
    EXPECT_GE(Look(cam).pan, 108);

    ASSERT_EQ(ORVEX_RET_SUCCESS, Sit(s.h, cam, 350, 0, 1));
    ASSERT_EQ(ORVEX_RET_SUCCESS, Extend(s.h, cam, ORVEX_CORE_PTZ_SET_LEFT_SCAN_RANGE, 0));
    ASSERT_EQ(ORVEX_RET_SUCCESS, Sit(s.h, cam, 20, 0, 1));
    ASSERT_EQ(ORVEX_RET_SUCCESS, Extend(s.h, cam, ORVEX_CORE_PTZ_SET_RIGHT_SCAN_RANGE, 0));
    ASSERT_EQ(ORVEX_RET_SUCCESS, Extend(s.h, cam, ORVEX_CORE_PTZ_START_SCAN, 10));
    for (int k = 0; k < 8; ++k) {  // the sweep crosses north, and bounces at both ends
        const int32_t pan = Look(cam).pan;
        EXPECT_TRUE(pan >= 350 || pan <= 20) << pan;
        std::this_thread::sleep_for(kMotionTick);
    }
    ASSERT_EQ(ORVEX_RET_SUCCESS, Extend(s.h, cam, ORVEX_CORE_PTZ_STOP_SCAN, 0));
    EXPECT_FALSE(CameraSwitches(cam).moving);
    EXPECT_EQ(ORVEX_CORE_PTZ_STOP_SCAN, CameraSwitches(cam).lastExtendCommand);
    for (int32_t unknown : {38, 51, 62}) {
        EXPECT_EQ(ORVEX_CORE_ERROR_NOT_SUPPORTED, Extend(s.h, cam, unknown, 0));
    }
}

// ----- Alarms

int32_t Send(int32_t h, const std::string& camera, int32_t type, const std::string& msg,
             uint64_t time = 0, int32_t status = ALARM_EVENT_OCCUR) {
    auto info = std::make_unique<Client_Alarm_Info_t>();
    std::memset(info.get(), 0, sizeof(*info));
    CopyText(info->szCameraId, camera);
    info->enAlarmType = static_cast<orvex_alarm_type_e>(type);
    info->enStatus = static_cast<orvex_event_type_e>(status);
    info->uAlarmTime = time;
    CopyText(info->szMsg, msg);
    return SendAlarmToServer(h, info.get());
}

int32_t EnableDevice(int32_t h, const std::string& device, int32_t videoNo, int32_t type) {
    Alarm_Single_Enable_Info_t one;
    std::memset(&one, 0, sizeof(one));
    CopyText(one.szAlarmDevId, device);
    one.nVideoNo = videoNo;
    one.nAlarmType = static_cast<orvex_alarm_type_e>(type);
    Alarm_Enable_Info_t info{1, &one};
    return EnableAlarm(h, &info);
}

int32_t EnableDepartment(int32_t h, const std::string& coding) {
    Alarm_Single_Enable_By_Dep_Info_t one;
    std::memset(&one, 0, sizeof(one));
    CopyText(one.szAlarmDepartmentCode, coding);
    Alarm_Enable_By_Dep_Info_t info{1, &one};
    return EnableAlarmByDepartment(h, &info);
}

// Cameras of the alarms received before the alarm `marker` (which must be received); forgets
// them and the marker.
std::vector<std::string> ReceivedUntil(Session& s, const std::string& marker) {
    std::vector<std::string> out;
    for (const Event& e : s.inbox.Take([&](const Event& e) { return e.message == marker; })) {
        if (e.kind == CbKind::Alarm && e.message != marker) {
            out.push_back(e.camera);
        }
    }
    return out;
}

class PlatformAlarms : public ::testing::Test {
  protected:
    void SetUp() override { ResetAlarms(); }
};

TEST_F(PlatformAlarms, OnlyEnabledSourcesReachTheInstance) {
    Session s("admin"), sender("operator");
    const int32_t motion = ORVEX_CORE_ALARM_TYPE_MOTION_DETECT;
    const int32_t lost = ORVEX_CORE_ALARM_TYPE_VIDEO_LOST;
    struct Raise {
        const char* camera;
        int32_t type;
    };
    const Raise raised[] = {{"ipc-gate-01-cam01", motion},    {"nvr-north-01-cam03", lost},
                            {"dvr-station-01-cam02", motion}, {"nvs-traffic-01-cam01", lost},
                            {"nvs-traffic-01-cam02", motion}, {"nvr-south-01-cam02", lost},
                            {"nvr-south-01-cam03", lost},     {"nvr-north-01-in02", lost}};
    struct Step {
        std::function<int32_t()> enable;
        std::vector<std::string> expected;
    };
    const Step steps[] = {
        {[] { return ORVEX_RET_SUCCESS; }, {}},
        {[&] { return EnableDevice(s.h, "ipc-gate-01", 0, 0); }, {"ipc-gate-01-cam01"}},
        // North district and the station below it.
        {[&] { return EnableDepartment(s.h, "330100"); },
         {"ipc-gate-01-cam01", "nvr-north-01-cam03", "dvr-station-01-cam02", "nvr-north-01-in02"}},
        {[&] { return DisableAlarm(s.h); }, {}},
        {[&] { return EnableDevice(s.h, "nvs-traffic-01", 0, motion); }, {"nvs-traffic-01-cam02"}},
        {[&] { return EnableDevice(s.h, "nvr-south-01", 2, 0); },
         {"nvs-traffic-01-cam02", "nvr-south-01-cam02"}},
        {[&] { return EnableDevice(s.h, "nvr-south-01-cam03", 0, 0); },
         {"nvs-traffic-01-cam02", "nvr-south-01-cam02", "nvr-south-01-cam03"}},
    };
    int round = 0;
    for (const Step& step : steps) {
        SCOPED_TRACE(round);
        ASSERT_EQ(ORVEX_RET_SUCCESS, step.enable());
        ASSERT_EQ(ORVEX_RET_SUCCESS, EnableDevice(s.h, "ipc-traffic-02", 0, 0));  // the marker's
        for (const Raise& r : raised) {
            ASSERT_EQ(ORVEX_RET_SUCCESS, Send(sender.h, r.camera, r.type, "alarm"));
        }
        const std::string marker = "marker " + std::to_string(round++);
        ASSERT_EQ(ORVEX_RET_SUCCESS, Send(sender.h, "ipc-traffic-02-cam01", motion, marker));
        EXPECT_EQ(step.expected, ReceivedUntil(s, marker));
    }
}

Alarm_Query_Info_t Query(const std::string& camera, uint64_t start, uint64_t end, int32_t type) {
    auto q = Request<Alarm_Query_Info_t>(camera);
    q.uStartTime = start;
    q.uEndTime = end;
    q.nAlarmType = static_cast<orvex_alarm_type_e>(type);
    return q;
}

// Every matching record, read in pages of `pageSize`, as "message@time".
std::vector<std::string> Pages(int32_t h, const Alarm_Query_Info_t& q, int32_t pageSize) {
    std::vector<std::string> out;
    std::vector<Single_Alarm_Info_t> records(static_cast<std::size_t>(pageSize));
    for (int32_t first = 0;; first += pageSize) {
        Alarm_Info_t page{static_cast<uint32_t>(pageSize), 0, records.data()};
        EXPECT_EQ(ORVEX_RET_SUCCESS, QueryAlarmInfo(h, &q, &page, first, pageSize));
        for (uint32_t k = 0; k < page.nRetCount; ++k) {
            out.push_back(std::string(records[k].szMessage) + "@" +
                          std::to_string(records[k].uAlarmTime));
        }
        if (page.nRetCount < static_cast<uint32_t>(pageSize)) {
            return out;
        }
    }
}

TEST_F(PlatformAlarms, HistoryCountsAndPagesAgreeWithWhatWasRaised) {
    Session s("operator");
    ASSERT_EQ(ORVEX_RET_SUCCESS, EnableDevice(s.h, "nvr-north-01", 0, 0));
    const int32_t motion = ORVEX_CORE_ALARM_TYPE_MOTION_DETECT;
    const int32_t lost = ORVEX_CORE_ALARM_TYPE_VIDEO_LOST;
    for (int k = 0; k < 7; ++k) {
        ASSERT_EQ(ORVEX_RET_SUCCESS, Send(s.h, "nvr-north-01-cam05", k % 2 ? lost : motion,
                                          "m" + std::to_string(k), 1000 + k));
    }
    ASSERT_EQ(ORVEX_RET_SUCCESS, Send(s.h, "nvr-north-01-in01", lost, "input", 1003));
    ASSERT_EQ(ORVEX_RET_SUCCESS, Send(s.h, "ipc-gate-01-cam01", motion, "gate", 1004));
    struct Case {
        Alarm_Query_Info_t q;
        std::vector<std::string> expected;
    };
    const Case cases[] = {
        {Query("nvr-north-01-cam05", 0, 0, 0),
         {"m0@1000", "m1@1001", "m2@1002", "m3@1003", "m4@1004", "m5@1005", "m6@1006"}},
        {Query("nvr-north-01-cam05", 1002, 1005, 0), {"m2@1002", "m3@1003", "m4@1004", "m5@1005"}},
        {Query("nvr-north-01-cam05", 0, 0, lost), {"m1@1001", "m3@1003", "m5@1005"}},
        {Query("nvr-north-01", 1003, 1003, 0), {"m3@1003", "input@1003"}},
        {Query("", 1004, 1004, motion), {"m4@1004", "gate@1004"}},
        {Query("nvr-north-01-cam05", 2000, 0, 0), {}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.expected.size());
        int32_t count = -1;
        ASSERT_EQ(ORVEX_RET_SUCCESS, QueryAlarmCount(s.h, &c.q, &count));
        EXPECT_EQ(static_cast<int32_t>(c.expected.size()), count);
        for (int32_t pageSize : {1, 3, 10}) {
            EXPECT_EQ(c.expected, Pages(s.h, c.q, pageSize));
        }
    }

    // A record carries the event's alarm identifier, its device and the channel's number.
    const std::vector<Event> events =
        s.inbox.Take([](const Event& e) { return e.message == "input"; });
    ASSERT_EQ(8u, events.size());
    const Alarm_Query_Info_t q = Query("nvr-north-01-in01", 0, 0, 0);
    Single_Alarm_Info_t r;
    Alarm_Info_t page{1, 0, &r};
    ASSERT_EQ(ORVEX_RET_SUCCESS, QueryAlarmInfo(s.h, &q, &page, 0, 1));
    EXPECT_EQ(events[7].id, std::string(r.szSwLabel));
    EXPECT_EQ("nvr-north-01", std::string(r.szDevId));
    EXPECT_EQ(1u, r.uChannel);
    EXPECT_EQ(ALARM_EVENT_OCCUR, r.nEventType);
    EXPECT_EQ(1003u, events[7].c);
}

TEST_F(PlatformAlarms, HistoryKeepsTheNewestAlarms) {
    Session s("operator");
    for (std::size_t k = 0; k < kHistoryLimit + 5; ++k) {
        ASSERT_EQ(ORVEX_RET_SUCCESS, Send(s.h, "nvr-north-01-cam06", 0, "", 10 + k));
    }
    const Alarm_Query_Info_t q = Query("", 0, 0, 0);
    int32_t count = 0;
    ASSERT_EQ(ORVEX_RET_SUCCESS, QueryAlarmCount(s.h, &q, &count));
    EXPECT_EQ(static_cast<int32_t>(kHistoryLimit), count);
    Single_Alarm_Info_t r;
    Alarm_Info_t page{1, 0, &r};
    ASSERT_EQ(ORVEX_RET_SUCCESS, QueryAlarmInfo(s.h, &q, &page, 0, 1));
    EXPECT_EQ(15u, r.uAlarmTime);
    ASSERT_EQ(ORVEX_RET_SUCCESS, QueryAlarmInfo(s.h, &q, &page, count, 1));
    EXPECT_EQ(0u, page.nRetCount);
}

TEST_F(PlatformAlarms, RefusesUnknownSourcesAndBadRequestsWithoutChangingAnything) {
    Session s("operator");
    const Alarm_Query_Info_t q = Query("", 0, 0, 0);
    Single_Alarm_Info_t r;
    Alarm_Info_t page{1, 0, &r};
    int32_t count = 0;
    struct Case {
        const char* what;
        std::function<int32_t()> call;
        int32_t rc;
    };
    const Case cases[] = {
        {"unknown device", [&] { return EnableDevice(s.h, "nope", 0, 0); },
         ORVEX_CORE_ERROR_DEVICE_NOT_FOUND},
        {"unknown department", [&] { return EnableDepartment(s.h, "999999"); },
         ORVEX_CORE_ERROR_GROUP_NOT_FOUND},
        {"unknown camera", [&] { return Send(s.h, "nope", 1, "x"); },
         ORVEX_CORE_ERROR_CHANNEL_NOT_FOUND},
        {"bad event", [&] { return Send(s.h, kDome, 1, "x", 0, 3); },
         ORVEX_CORE_ERROR_INVALID_PARAM},
        {"null alarm", [&] { return SendAlarmToServer(s.h, nullptr); },
         ORVEX_CORE_ERROR_INVALID_PARAM},
        {"negative first", [&] { return QueryAlarmInfo(s.h, &q, &page, -1, 1); },
         ORVEX_CORE_ERROR_INVALID_PARAM},
        {"no count", [&] { return QueryAlarmInfo(s.h, &q, &page, 0, 0); },
         ORVEX_CORE_ERROR_INVALID_PARAM},
        {"unknown query camera",
         [&] {
             const Alarm_Query_Info_t bad = Query("nope", 0, 0, 0);
             return QueryAlarmCount(s.h, &bad, &count);
         },
         ORVEX_CORE_ERROR_CHANNEL_NOT_FOUND},
        {"unknown handle", [&] { return DisableAlarm(424242); }, ORVEX_CORE_ERROR_UNKNOWN_HANDLE},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(c.rc, c.call()) << c.what;
    }
    // A refused enabling enabled nothing, refused alarms were not recorded.
    Alarm_Single_Enable_Info_t two[2];
    std::memset(two, 0, sizeof(two));
    CopyText(two[0].szAlarmDevId, "ipc-gate-01");
    CopyText(two[1].szAlarmDevId, "nope");
    Alarm_Enable_Info_t info{2, two};
    EXPECT_EQ(ORVEX_CORE_ERROR_DEVICE_NOT_FOUND, EnableAlarm(s.h, &info));
    ASSERT_EQ(ORVEX_RET_SUCCESS, EnableDevice(s.h, "ipc-traffic-02", 0, 0));
    ASSERT_EQ(ORVEX_RET_SUCCESS, Send(s.h, kDome, 1, "not enabled"));
    ASSERT_EQ(ORVEX_RET_SUCCESS, Send(s.h, "ipc-traffic-02-cam01", 1, "end"));
    EXPECT_TRUE(ReceivedUntil(s, "end").empty());
    ASSERT_EQ(ORVEX_RET_SUCCESS, QueryAlarmCount(s.h, &q, &count));
    EXPECT_EQ(2, count);
}

TEST_F(PlatformAlarms, ScheduledAlarmsStartWithTheSession) {
    Session s("operator");
    ASSERT_EQ(ORVEX_RET_SUCCESS, EnableDevice(s.h, "ipc-gate-01", 0, 0));
    NotifySessionStarted(s.h);  // the built-in site's first gate motion comes after 5 s
    const std::vector<Event> got =
        s.inbox.Take([](const Event& e) { return e.camera == "ipc-gate-01-cam01"; });
    ASSERT_FALSE(got.empty());
    EXPECT_EQ("Motion at the gate", got[0].message);
    EXPECT_EQ(ORVEX_CORE_ALARM_TYPE_MOTION_DETECT, got[0].a);
    int32_t count = 0;
    const Alarm_Query_Info_t q = Query("ipc-gate-01-cam01", 0, 0, 0);
    ASSERT_EQ(ORVEX_RET_SUCCESS, QueryAlarmCount(s.h, &q, &count));
    EXPECT_EQ(1, count);
}

TEST_F(PlatformAlarms, SchemesAreCountedListedAddedAndChanged) {
    Session s("operator"), viewer("viewer");
    uint32_t count = 0;
    ASSERT_EQ(ORVEX_RET_SUCCESS, GetAlarmSchemeCount(s.h, &count));
    auto scheme = [](uint32_t id, int32_t status, const std::string& name) {
        AlarmSchemeInfo_t a;
        std::memset(&a, 0, sizeof(a));
        a.id = id;
        a.status = static_cast<orvex_alarmScheme_status_e>(status);
        CopyText(a.schemeName, name);
        a.templateId = 77;
        CopyText(a.desc, name + " desc");
        return a;
    };
    const AlarmSchemeInfo_t added = scheme(0, ALARM_SCHEME_STATUS_OPEN, "Holidays");
    ASSERT_EQ(ORVEX_RET_SUCCESS, SaveAlarmScheme(s.h, &added));
    const AlarmSchemeInfo_t changed = scheme(2, ALARM_SCHEME_STATUS_OPEN, "Night watch 2");
    ASSERT_EQ(ORVEX_RET_SUCCESS, SaveAlarmScheme(s.h, &changed));
    const AlarmSchemeInfo_t unknown = scheme(999, 0, "x"), unnamed = scheme(0, 0, "");
    const AlarmSchemeInfo_t badStatus = scheme(0, 2, "x");
    EXPECT_EQ(ORVEX_CORE_ERROR_NOT_FOUND, SaveAlarmScheme(s.h, &unknown));
    EXPECT_EQ(ORVEX_CORE_ERROR_INVALID_PARAM, SaveAlarmScheme(s.h, &unnamed));
    EXPECT_EQ(ORVEX_CORE_ERROR_INVALID_PARAM, SaveAlarmScheme(s.h, &badStatus));
    EXPECT_EQ(ORVEX_CORE_ERROR_NO_PERMISSION, SaveAlarmScheme(viewer.h, &added));

    uint32_t now = 0;
    ASSERT_EQ(ORVEX_RET_SUCCESS, GetAlarmSchemeCount(viewer.h, &now));
    ASSERT_EQ(count + 1, now);
    std::vector<AlarmSchemeInfo_t> list(now + 2);
    std::memset(list.data(), 0x5a, list.size() * sizeof(AlarmSchemeInfo_t));
    ASSERT_EQ(ORVEX_RET_SUCCESS, GetAlarmSchemeList(s.h, list.data(), static_cast<int32_t>(now)));
    EXPECT_EQ("Night watch 2", std::string(list[1].schemeName));
    EXPECT_EQ(ALARM_SCHEME_STATUS_OPEN, list[1].status);
    EXPECT_EQ("Holidays", std::string(list[now - 1].schemeName));
    EXPECT_EQ("Holidays desc", std::string(list[now - 1].desc));
    EXPECT_EQ(77u, list[now - 1].templateId);
    EXPECT_GT(list[now - 1].id, list[now - 2].id);
    EXPECT_EQ(0x5a5a5a5au, list[now].id);  // nothing written past the capacity
    EXPECT_EQ(ORVEX_CORE_ERROR_INVALID_PARAM, GetAlarmSchemeList(s.h, list.data(), -1));
}

TEST_F(PlatformAlarms, PhoneSubscriptionsComeAndGo) {
    Session s("operator");
    orvex_phone_subscribe_alarm_t sub;
    std::memset(&sub, 0, sizeof(sub));
    CopyText(sub.szPhoneId, "phone-1");
    sub.iIs_subscribe = 7;
    ASSERT_EQ(ORVEX_RET_SUCCESS, PhoneSubscribeAlarm(s.h, &sub));
    EXPECT_EQ(1, sub.iIs_subscribe);
    sub.iIs_subscribe = 0;
    EXPECT_EQ(ORVEX_RET_SUCCESS, PhoneSubscribeAlarm(s.h, &sub));
    EXPECT_EQ(ORVEX_CORE_ERROR_NOT_FOUND, PhoneSubscribeAlarm(s.h, &sub));
    CopyText(sub.szPhoneId, "");
    EXPECT_EQ(ORVEX_CORE_ERROR_INVALID_PARAM, PhoneSubscribeAlarm(s.h, &sub));
}

// ----- Alarm hosts

std::vector<orvex_AHostDefenceStatus_t> Zones(int32_t h, const char* host) {
    int32_t n = 0;
    EXPECT_EQ(ORVEX_RET_SUCCESS, QueryNetAlarmHostChannelCount(h, host, &n));
    std::vector<orvex_AHostDefenceStatus_t> zones(static_cast<std::size_t>(n));
    EXPECT_EQ(ORVEX_RET_SUCCESS, QueryNetAlarmHostStatus(h, host, n, zones.data()));
    std::vector<orvex_AHostDefenceStatus_t> held(zones.size());
    EXPECT_EQ(ORVEX_RET_SUCCESS, GetNetAlarmHostStatus(h, n, held.data()));
    EXPECT_EQ(0, std::memcmp(zones.data(), held.data(), zones.size() * sizeof(zones[0])));
    return zones;
}

TEST_F(PlatformAlarms, NetworkHostZonesArmBypassAndRaiseAlarmsOnlyWhenArmed) {
    Session s("operator"), watcher("admin");
    const char* host = "alarmhost-01";
    ASSERT_EQ(ORVEX_RET_SUCCESS, EnableDevice(watcher.h, host, 0, 0));
    for (int32_t op : {NetHostClear, NetHostUnbypass, NetHostDisarm}) {
        ASSERT_EQ(ORVEX_RET_SUCCESS, ControlNetAlarmHostCmd(s.h, host, op, NetHostNow, 0, 0));
    }
    watcher.inbox.Take([](const Event& e) { return e.b == NetHostDisarm && e.a == 4; });
    struct Case {
        const char* id;
        int32_t op;
        std::string alarm;  // the alarm event it raises ("" none), as "camera/event"
    };
    const Case cases[] = {{"alarmhost-01-in01", NetHostArm, ""},
                          {"alarmhost-01-in01", NetHostAlarm, "alarmhost-01-in01/1"},
                          {"alarmhost-01-in02", NetHostAlarm, ""},  // disarmed
                          {"alarmhost-01-in03", NetHostArm, ""},
                          {"alarmhost-01-in03", NetHostBypass, ""},
                          {"alarmhost-01-in03", NetHostAlarm, ""},  // bypassed
                          {"alarmhost-01-in01", NetHostClear, "alarmhost-01-in01/2"},
                          {"alarmhost-01-in02", NetHostArm, "alarmhost-01-in02/1"}};
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.id) + " " + std::to_string(c.op));
        ASSERT_EQ(ORVEX_RET_SUCCESS, ControlNetAlarmHostCmd(s.h, c.id, c.op, NetHostNow, 0, 0));
        const auto zone = static_cast<int64_t>(c.id[std::strlen(c.id) - 1] - '0');
        std::string alarm;
        for (const Event& e : watcher.inbox.Take([&](const Event& e) {
                 return e.kind == CbKind::NetAlarmHostStatus && e.a == zone && e.b == c.op;
             })) {
            if (e.kind == CbKind::Alarm) {
                alarm = e.camera + "/" + std::to_string(e.b);
            }
        }
        EXPECT_EQ(c.alarm, alarm);
    }
    const auto zones = Zones(s.h, host);
    ASSERT_EQ(4u, zones.size());
    struct Expected {
        int alarm, undefended;
        bool bypass, armed;
    };
    const Expected expected[] = {
        {0, 0, false, true}, {1, 0, false, true}, {0, 1, true, true}, {0, 0, false, false}};
    for (std::size_t k = 0; k < 4; ++k) {
        SCOPED_TRACE(k);
        EXPECT_EQ("alarmhost-01-in0" + std::to_string(k + 1), std::string(zones[k].szNodeID));
        EXPECT_EQ(expected[k].alarm, zones[k].nAlarm);
        EXPECT_EQ(expected[k].undefended, zones[k].nUndefendAlarm);
        EXPECT_EQ(expected[k].bypass, zones[k].bByPass);
        EXPECT_EQ(expected[k].armed, zones[k].bDefend);
    }
    const Event last =
        s.inbox.Take([](const Event& e) { return e.b == NetHostArm && e.a == 2; }).back();
    EXPECT_EQ(host, last.id);
    EXPECT_EQ(HostArmed | HostAlarm, last.c);
}

TEST_F(PlatformAlarms, TimedHostOperationsUndoThemselvesAtTheEnd) {
    Session s("operator");
    const char* zone = "alarmhost-01-in04";
    const auto disarmed = [](const Event& e) { return e.b == NetHostDisarm && e.a == 4; };
    ASSERT_EQ(ORVEX_RET_SUCCESS,
              ControlNetAlarmHostCmd(s.h, zone, NetHostDisarm, NetHostNow, 0, 0));
    s.inbox.Take(disarmed);
    const int64_t now = static_cast<int64_t>(std::time(nullptr));
    EXPECT_EQ(ORVEX_CORE_ERROR_INVALID_PARAM,
              ControlNetAlarmHostCmd(s.h, zone, NetHostArm, NetHostSpan, now, now - 1));
    ASSERT_EQ(ORVEX_RET_SUCCESS,
              ControlNetAlarmHostCmd(s.h, zone, NetHostArm, NetHostSpan, now - 1, now + 2));
    EXPECT_TRUE(Zones(s.h, "alarmhost-01")[3].bDefend);
    s.inbox.Take(disarmed);  // the undoing, when the span ends
    EXPECT_FALSE(Zones(s.h, "alarmhost-01")[3].bDefend);
}

TEST_F(PlatformAlarms, HostCommandsRefuseWhatDoesNotExistOrMayNotBeDone) {
    Session s("operator"), viewer("viewer");
    struct Case {
        const char* what;
        int32_t rc, expected;
    };
    int32_t n = 0;
    std::vector<orvex_AHostDefenceStatus_t> out(2);
    const Case cases[] = {
        {"no such input", ControlVideoAlarmHost(s.h, "nvr-north-01", 3, VideoHostArm),
         ORVEX_CORE_ERROR_CHANNEL_NOT_FOUND},
        {"no inputs", ControlVideoAlarmHost(s.h, "nvr-south-01", 1, VideoHostArm),
         ORVEX_CORE_ERROR_NOT_SUPPORTED},
        {"no device", ControlVideoAlarmHost(s.h, "nope", 1, VideoHostArm),
         ORVEX_CORE_ERROR_DEVICE_NOT_FOUND},
        {"bad control", ControlVideoAlarmHost(s.h, "nvr-north-01", 1, 9),
         ORVEX_CORE_ERROR_INVALID_PARAM},
        {"viewer", ControlVideoAlarmHost(viewer.h, "nvr-north-01", 1, VideoHostArm),
         ORVEX_CORE_ERROR_NO_PERMISSION},
        {"viewer net", ControlNetAlarmHostCmd(viewer.h, "alarmhost-01", NetHostArm, 0, 0, 0),
         ORVEX_CORE_ERROR_NO_PERMISSION},
        {"bad operation", ControlNetAlarmHostCmd(s.h, "alarmhost-01", 7, 0, 0, 0),
         ORVEX_CORE_ERROR_INVALID_PARAM},
        {"not a host", ControlNetAlarmHostCmd(s.h, "nvr-north-01", NetHostArm, 0, 0, 0),
         ORVEX_CORE_ERROR_NOT_SUPPORTED},
        {"not a host count", QueryNetAlarmHostChannelCount(s.h, "nvr-north-01", &n),
         ORVEX_CORE_ERROR_NOT_SUPPORTED},
        {"unknown host", QueryNetAlarmHostStatus(s.h, "nope", 2, out.data()),
         ORVEX_CORE_ERROR_DEVICE_NOT_FOUND},
        {"negative count", GetNetAlarmHostStatus(s.h, -1, out.data()),
         ORVEX_CORE_ERROR_INVALID_PARAM},
        {"null zones", QueryNetAlarmHostStatus(s.h, "alarmhost-01", 2, nullptr),
         ORVEX_CORE_ERROR_INVALID_PARAM},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(c.expected, c.rc) << c.what;
    }
}

TEST_F(PlatformAlarms, VideoHostInputsRaiseAlarmsWhenArmedAndReportTheirState) {
    Session s("operator");
    ASSERT_EQ(ORVEX_RET_SUCCESS, EnableDevice(s.h, "dvr-station-01", 0, 0));
    const char* dvr = "dvr-station-01";
    for (int32_t control : {VideoHostDisarm, VideoHostAlarm, VideoHostArm, VideoHostClear}) {
        ASSERT_EQ(ORVEX_RET_SUCCESS, ControlVideoAlarmHost(s.h, dvr, 3, control));
    }
    std::vector<std::string> seen;
    for (const Event& e : s.inbox.Take([](const Event& e) {
             return e.kind == CbKind::VideoAlarmHostStatus && e.c == HostArmed;
         })) {
        seen.push_back(e.kind == CbKind::Alarm
                           ? e.camera + "/" + std::to_string(e.b)
                           : e.id + "#" + std::to_string(e.a) + "=" + std::to_string(e.c));
    }
    EXPECT_EQ((std::vector<std::string>{"dvr-station-01#3=0", "dvr-station-01#3=4",
                                        "dvr-station-01-in03/1", "dvr-station-01#3=5",
                                        "dvr-station-01-in03/2", "dvr-station-01#3=1"}),
              seen);

    // Its alarm inputs as records, as many as asked for.
    std::vector<AlarmIn_Channel_Info_t> inputs(6);
    for (uint32_t asked : {2u, 6u}) {
        Get_AlarmInChannel_Info_t info;
        std::memset(&info, 0, sizeof(info));
        CopyText(info.szDeviceId, dvr);
        info.nAlarmInChannelCount = asked;
        info.pAlarmInChannelnfo = inputs.data();
        ASSERT_EQ(ORVEX_RET_SUCCESS, GetAlarmInChannelInfo(s.h, &info));
        EXPECT_EQ(std::min(asked, 4u), info.nAlarmInChannelCount);
        EXPECT_EQ("dvr-station-01-in02", std::string(inputs[1].szId));
        EXPECT_EQ(ORVEX_DEV_STATUS_ONLINE, inputs[1].nStatus);
    }
}

}  // namespace
}  // namespace orvexsim::platform
