// PTZ control of the simulated site's cameras. Positions and presets live in the site; what a
// real dome keeps to itself (switches, lens, lock, the motion in progress) lives here, guarded
// by the platform mutex like the site.
#include "ptz.h"

#include <map>

#include "ORVEX_Core_Error.h"
#include "site_model.h"

namespace orvexsim::platform {
namespace {

constexpr std::size_t kPresetCapacity = 300;  // what the library's listing holds
constexpr int32_t kMaxStep = 10;
constexpr int32_t kUnnamedExtendCommand = 51;  // a gap in the library's enumeration

struct Motion {
    int32_t handle = 0;  // the instance whose session runs it
    uint64_t job = 0;
    uint64_t generation = 0;  // tells a tick of a replaced motion from the current one
    int32_t dPan = 0, dTilt = 0, dZoom = 0, dFocus = 0, dIris = 0;
    bool scan = false;
};

struct CameraState {
    PtzSwitches sw;
    Motion motion;
    int32_t scanLeft = 0, scanRight = 0;
    int32_t scanOffset = 0;  // from scanLeft towards scanRight, degrees
    int32_t scanSpeed = 0;   // signed: the sweep's current direction
};

std::map<std::string, CameraState>& Cameras() {
    static auto* cameras = new std::map<std::string, CameraState>;
    return *cameras;
}

uint64_t NextGeneration() {
    static uint64_t generation = 0;
    return ++generation;
}

bool IsPtz(int32_t cameraType) {
    switch (cameraType) {
        case CAMERA_TYPE_SD:
        case CAMERA_TYPE_HALFSD:
        case CAMERA_TYPE_SD_HD:
        case CAMERA_TYPE_SD_SIMULATION_SD:
        case CAMERA_TYPE_HALFSD_SIMULATION_SD:
        case CAMERA_TYPE_SD_SIMULATION_HD:
        case CAMERA_TYPE_HALFSD_SIMULATION_HD:
        case CAMERA_TYPE_HALFSD_HD:
            return true;
        default:
            return false;
    }
}

// A pan angle in [0, 360), and the angle from `from` to `to` turning right.
int32_t Wrap(int64_t pan) {
    return static_cast<int32_t>((pan % 360 + 360) % 360);
}
int32_t Arc(int32_t from, int32_t to) {
    return Wrap(int64_t{to} - from);
}

int32_t Speed(int64_t step) {
    return static_cast<int32_t>(std::clamp<int64_t>(step, 1, kMaxStep));
}

// The checks every command shares, in the order a platform would make them.
int32_t Admit(const Instance& in, Site& site, const std::string& id, bool needPtz, Channel** out) {
    Device* owner = nullptr;
    Channel* c = site.channel(id, &owner);
    if (c == nullptr) {
        return ORVEX_CORE_ERROR_CHANNEL_NOT_FOUND;
    }
    if (int32_t rc = MayOperate(in, site)) {
        return rc;
    }
    if (!owner->online || !c->online) {
        return ORVEX_CORE_ERROR_DEVICE_OFFLINE;
    }
    if (needPtz && !IsPtz(c->cameraType)) {
        return ORVEX_CORE_ERROR_NOT_SUPPORTED;
    }
    const int32_t holder = Cameras()[id].sw.lockedBy;
    if (holder != 0 && holder != in.handle) {
        return ORVEX_CORE_ERROR_BUSY;
    }
    *out = c;
    return ORVEX_RET_SUCCESS;
}

// Runs f(instance, site, channel, state, info) for an admitted command on info's camera.
template <typename Info, typename F>
int32_t OnCamera(int32_t handle, const Info* info, bool needPtz, F f) {
    return WithInstance(handle, true, [&](Instance& in, Site& site) {
        if (info == nullptr) {
            return static_cast<int32_t>(ORVEX_CORE_ERROR_INVALID_PARAM);
        }
        const std::string id = FixedText(info->szCameraId);
        Channel* c = nullptr;
        const int32_t rc = Admit(in, site, id, needPtz, &c);
        return rc != ORVEX_RET_SUCCESS ? rc : f(in, site, *c, Cameras()[id], *info);
    });
}

void Step(PtzPosition& p, CameraState& st) {
    const Motion& m = st.motion;
    if (m.scan) {
        const int32_t range = Arc(st.scanLeft, st.scanRight);
        st.scanOffset += st.scanSpeed;
        if (st.scanOffset >= range || st.scanOffset <= 0) {
            st.scanOffset = std::clamp(st.scanOffset, 0, range);
            st.scanSpeed = -st.scanSpeed;
        }
        p.pan = Wrap(st.scanLeft + st.scanOffset);
        return;
    }
    p.pan = Wrap(p.pan + m.dPan);
    p.tilt = std::clamp(p.tilt + m.dTilt, -90, 90);
    p.zoom = std::clamp(p.zoom + m.dZoom, 1, kMaxZoom);
    st.sw.focus += m.dFocus;
    st.sw.iris += m.dIris;
}

void StopMotion(CameraState& st) {
    if (st.motion.job != 0) {
        CancelJob(st.motion.handle, st.motion.job);
    }
    st.motion = {};
    st.sw.moving = false;
}

void Tick(const std::string& id, uint64_t generation) {
    WithSite([&](Site& site) {
        auto it = Cameras().find(id);
        Channel* c = site.channel(id);
        if (c != nullptr && it != Cameras().end() && it->second.motion.generation == generation) {
            Step(c->ptz, it->second);
        }
        return 0;
    });
}

// Replaces whatever the camera was doing with `m`: one step now, then one per tick.
int32_t StartMotion(int32_t handle, const std::string& id, Channel& c, CameraState& st, Motion m) {
    StopMotion(st);
    m.handle = handle;
    m.generation = NextGeneration();
    st.motion = m;
    Step(c.ptz, st);
    const uint64_t generation = m.generation;
    st.motion.job = RunJob(handle, JobScope::Session, kMotionTick, kMotionTick,
                           [id, generation] { Tick(id, generation); });
    st.sw.moving = true;
    return ORVEX_RET_SUCCESS;
}

struct Delta {
    int32_t pan, tilt;
};

bool DirectionDelta(int32_t direct, Delta* d) {
    static const std::map<int32_t, Delta> kDeltas = {
        {ORVEX_CORE_PTZ_GO_UP, {0, 1}},      {ORVEX_CORE_PTZ_GO_DOWN, {0, -1}},
        {ORVEX_CORE_PTZ_GO_LEFT, {-1, 0}},   {ORVEX_CORE_PTZ_GO_RIGHT, {1, 0}},
        {ORVEX_CORE_PTZ_GO_LEFTUP, {-1, 1}}, {ORVEX_CORE_PTZ_GO_LEFTDOWN, {-1, -1}},
        {ORVEX_CORE_PTZ_GO_RIGHTUP, {1, 1}}, {ORVEX_CORE_PTZ_GO_RIGHTDOWN, {1, -1}},
    };
    auto it = kDeltas.find(direct);
    if (it == kDeltas.end()) {
        return false;
    }
    *d = it->second;
    return true;
}

Preset* FindPreset(Channel& c, uint32_t code) {
    return FindBy(c.presets, &Preset::code, code);
}

int32_t Switch(int32_t handle, const Ptz_Open_Command_Info_t* info, bool PtzSwitches::*which) {
    return OnCamera(handle, info, false,
                    [which](Instance&, Site&, Channel&, CameraState& st, const auto& cmd) {
                        st.sw.*which = cmd.bOpen;
                        return static_cast<int32_t>(ORVEX_RET_SUCCESS);
                    });
}

// A session that ends releases its locks and stops the motions it runs.
const bool kReleasesOnInstanceEnd = [] {
    OnInstanceEnded([](int32_t handle) {
        WithSite([handle](Site&) {
            for (auto& [id, st] : Cameras()) {
                if (st.motion.handle == handle) {
                    st.motion = {};
                    st.sw.moving = false;
                }
                if (st.sw.lockedBy == handle) {
                    st.sw.lockedBy = 0;
                }
            }
            return 0;
        });
    });
    return true;
}();

}  // namespace

int32_t PtzDirection(int32_t handle, const Ptz_Direct_Info_t* info) {
    return OnCamera(handle, info, true,
                    [](Instance& in, Site&, Channel& c, CameraState& st, const auto& cmd) {
                        if (cmd.bStop) {
                            StopMotion(st);
                            return static_cast<int32_t>(ORVEX_RET_SUCCESS);
                        }
                        Delta d{};
                        if (!DirectionDelta(cmd.nDirect, &d)) {
                            return static_cast<int32_t>(ORVEX_CORE_ERROR_INVALID_PARAM);
                        }
                        Motion m;
                        m.dPan = d.pan * Speed(cmd.nStep);
                        m.dTilt = d.tilt * Speed(cmd.nStep);
                        return StartMotion(in.handle, FixedText(cmd.szCameraId), c, st, m);
                    });
}

int32_t PtzCameraOperation(int32_t handle, const Ptz_Operation_Info_t* info) {
    return OnCamera(handle, info, true,
                    [](Instance& in, Site&, Channel& c, CameraState& st, const auto& cmd) {
                        if (cmd.bStop) {
                            StopMotion(st);
                            return static_cast<int32_t>(ORVEX_RET_SUCCESS);
                        }
                        Motion m;
                        switch (cmd.nOperation) {
                            case ORVEX_CORE_PTZ_ADD_ZOOM:
                                m.dZoom = 1;
                                break;
                            case ORVEX_CORE_PTZ_REDUCE_ZOOM:
                                m.dZoom = -1;
                                break;
                            case ORVEX_CORE_PTZ_ADD_FOCUS:
                                m.dFocus = 1;
                                break;
                            case ORVEX_CORE_PTZ_REDUCE_FOCUS:
                                m.dFocus = -1;
                                break;
                            case ORVEX_CORE_PTZ_ADD_APERTURE:
                                m.dIris = 1;
                                break;
                            case ORVEX_CORE_PTZ_REDUCE_APERTURE:
                                m.dIris = -1;
                                break;
                            default:
                                return static_cast<int32_t>(ORVEX_CORE_ERROR_INVALID_PARAM);
                        }
                        return StartMotion(in.handle, FixedText(cmd.szCameraId), c, st, m);
                    });
}

int32_t PtzSit(int32_t handle, const Ptz_Sit_Info_t* info) {
    return OnCamera(
        handle, info, true, [](Instance&, Site&, Channel& c, CameraState& st, const auto& cmd) {
            if (cmd.pointY < -90 || cmd.pointY > 90 || cmd.pointZ < 1 || cmd.pointZ > kMaxZoom) {
                return static_cast<int32_t>(ORVEX_CORE_ERROR_INVALID_PARAM);
            }
            StopMotion(st);
            c.ptz = {Wrap(cmd.pointX), cmd.pointY, cmd.pointZ};
            return static_cast<int32_t>(ORVEX_RET_SUCCESS);
        });
}

int32_t PtzLockCamera(int32_t handle, const Ptz_Lock_Info_t* info) {
    return WithInstance(handle, true, [&](Instance& in, Site& site) {
        if (info == nullptr) {
            return static_cast<int32_t>(ORVEX_CORE_ERROR_INVALID_PARAM);
        }
        const std::string id = FixedText(info->szCameraId);
        if (site.channel(id) == nullptr) {
            return static_cast<int32_t>(ORVEX_CORE_ERROR_CHANNEL_NOT_FOUND);
        }
        CameraState& st = Cameras()[id];
        const bool heldByOther = st.sw.lockedBy != 0 && st.sw.lockedBy != in.handle;
        if (info->nLock == ORVEX_CORE_PTZ_CMD_UNLOCK_ALL && heldByOther) {
            // Only an administrator may take a camera away from another session.
            const User* u = site.user(in.userName);
            if (u == nullptr || !u->operFlag || u->level != 1) {
                return static_cast<int32_t>(ORVEX_CORE_ERROR_NO_PERMISSION);
            }
            st.sw.lockedBy = 0;
            return static_cast<int32_t>(ORVEX_RET_SUCCESS);
        }
        Channel* c = nullptr;
        const int32_t rc = Admit(in, site, id, true, &c);
        if (rc != ORVEX_RET_SUCCESS) {
            return rc;
        }
        switch (info->nLock) {
            case ORVEX_CORE_PTZ_CMD_LOCK:
                st.sw.lockedBy = in.handle;
                break;
            case ORVEX_CORE_PTZ_CMD_UNLOCK_ONE:
            case ORVEX_CORE_PTZ_CMD_UNLOCK_ALL:
                st.sw.lockedBy = 0;
                break;
            default:
                return static_cast<int32_t>(ORVEX_CORE_ERROR_INVALID_PARAM);
        }
        return static_cast<int32_t>(ORVEX_RET_SUCCESS);
    });
}

int32_t PtzExtendCommand(int32_t handle, const Ptz_Extend_Command_Info_t* info) {
    return OnCamera(handle, info, true,
                    [](Instance& in, Site&, Channel& c, CameraState& st, const auto& cmd) {
                        const int32_t n = cmd.nCmd;
                        if (n < ORVEX_CORE_PTZ_START_AUTO_ROUND || n > ORVEX_CORE_PTZ_MENU_RIGHT ||
                            n == kUnnamedExtendCommand) {
                            return static_cast<int32_t>(ORVEX_CORE_ERROR_NOT_SUPPORTED);
                        }
                        st.sw.lastExtendCommand = n;
                        const std::string id = FixedText(cmd.szCameraId);
                        Motion m;
                        switch (n) {
                            case ORVEX_CORE_PTZ_START_AUTO_ROUND:
                                m.dPan = Speed(cmd.nParam);
                                return StartMotion(in.handle, id, c, st, m);
                            case ORVEX_CORE_PTZ_START_SCAN:
                                m.scan = true;
                                // From where it points if that is within the range, else
                                // from the left end.
                                st.scanOffset = Arc(st.scanLeft, c.ptz.pan);
                                if (st.scanOffset > Arc(st.scanLeft, st.scanRight)) {
                                    st.scanOffset = 0;
                                }
                                st.scanSpeed = Speed(cmd.nParam);
                                return StartMotion(in.handle, id, c, st, m);
                            case ORVEX_CORE_PTZ_STOP_AUTO_ROUND:
                            case ORVEX_CORE_PTZ_STOP_SCAN:
                                StopMotion(st);
                                break;
                            case ORVEX_CORE_PTZ_SET_LEFT_SCAN_RANGE:
                                st.scanLeft = c.ptz.pan;
                                break;
                            case ORVEX_CORE_PTZ_SET_RIGHT_SCAN_RANGE:
                                st.scanRight = c.ptz.pan;
                                break;
                            default:
                                break;
                        }
                        return static_cast<int32_t>(ORVEX_RET_SUCCESS);
                    });
}

int32_t PtzLightControl(int32_t handle, const Ptz_Open_Command_Info_t* info) {
    return Switch(handle, info, &PtzSwitches::light);
}

int32_t PtzRainBrushControl(int32_t handle, const Ptz_Open_Command_Info_t* info) {
    return Switch(handle, info, &PtzSwitches::wiper);
}

int32_t QueryPrePoint(int32_t handle, Ptz_Prepoint_Info_t* info) {
    return WithInstance(handle, true, [&](Instance&, Site& site) {
        if (info == nullptr) {
            return static_cast<int32_t>(ORVEX_CORE_ERROR_INVALID_PARAM);
        }
        const Channel* c = site.channel(FixedText(info->szCameraId));
        if (c == nullptr) {
            return static_cast<int32_t>(ORVEX_CORE_ERROR_CHANNEL_NOT_FOUND);
        }
        std::vector<Preset> presets = c->presets;
        std::sort(presets.begin(), presets.end(),
                  [](const Preset& a, const Preset& b) { return a.code < b.code; });
        presets.resize(std::min(presets.size(), kPresetCapacity));
        info->nCount = static_cast<uint32_t>(presets.size());
        for (std::size_t k = 0; k < presets.size(); ++k) {
            info->pPoints[k].nCode = presets[k].code;
            CopyText(info->pPoints[k].szName, presets[k].name);
        }
        return static_cast<int32_t>(ORVEX_RET_SUCCESS);
    });
}

int32_t PtzPrePointOperation(int32_t handle, const Ptz_Prepoint_Operation_Info_t* info) {
    return OnCamera(handle, info, true,
                    [](Instance&, Site&, Channel& c, CameraState& st, const auto& op) {
                        const uint32_t code = op.pPoints.nCode;
                        Preset* p = FindPreset(c, code);
                        switch (op.nCmd) {
                            case ORVEX_CORE_PTZ_PRESET_LOCATION:
                                if (p == nullptr) {
                                    return static_cast<int32_t>(ORVEX_CORE_ERROR_NOT_FOUND);
                                }
                                StopMotion(st);
                                c.ptz = {p->pan, p->tilt, p->zoom};
                                break;
                            case ORVEX_CORE_PTZ_PRESET_ADD: {
                                if (code == 0) {
                                    return static_cast<int32_t>(ORVEX_CORE_ERROR_INVALID_PARAM);
                                }
                                if (p == nullptr && c.presets.size() >= kPresetCapacity) {
                                    return static_cast<int32_t>(ORVEX_CORE_ERROR_BUFFER_TOO_SMALL);
                                }
                                Preset stored{code, FixedText(op.pPoints.szName).substr(0, 31),
                                              c.ptz.pan, c.ptz.tilt, c.ptz.zoom};
                                if (p != nullptr) {
                                    *p = stored;
                                } else {
                                    c.presets.push_back(stored);
                                }
                                break;
                            }
                            case ORVEX_CORE_PTZ_PRESET_DEL:
                                if (p == nullptr) {
                                    return static_cast<int32_t>(ORVEX_CORE_ERROR_NOT_FOUND);
                                }
                                c.presets.erase(c.presets.begin() + (p - c.presets.data()));
                                break;
                            default:
                                return static_cast<int32_t>(ORVEX_CORE_ERROR_INVALID_PARAM);
                        }
                        return static_cast<int32_t>(ORVEX_RET_SUCCESS);
                    });
}

PtzSwitches CameraSwitches(const std::string& cameraId) {
    return WithSite([&](Site&) {
        auto it = Cameras().find(cameraId);
        return it == Cameras().end() ? PtzSwitches{} : it->second.sw;
    });
}

}  // namespace orvexsim::platform
