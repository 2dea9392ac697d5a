// PTZ control of the simulated site's cameras: motion, lens operations, absolute positions,
// locks, light and wiper switches, extended commands and preset points.
//
// Positions live in the site (Channel::ptz), so the media engine draws every change into the
// camera's frames. A direction or lens command with bStop false moves one step at once and then
// keeps moving one step every kMotionTick until the same camera gets a stop command, another
// motion, an absolute position or a preset recall, or the session that started it ends: a held
// button in a client keeps the picture turning, as on a real dome.
//
// Steps: nStep degrees of pan or tilt per tick (1 to 10; 0 counts as 1), one zoom level per tick.
// Pan wraps around [0, 360), tilt stops at -90 and 90, zoom stays within [1, kMaxZoom].
//
// Only users allowed to operate devices may move a camera or change its presets (else
// ORVEX_CORE_ERROR_NO_PERMISSION); listing presets needs a login only. A camera locked by
// another instance refuses every command but the listing with ORVEX_CORE_ERROR_BUSY.
// Fixed cameras refuse motion with ORVEX_CORE_ERROR_NOT_SUPPORTED.
#pragma once

#include <chrono>
#include <cstdint>
#include <string>

#include "ORVEX_Core_Define.h"

namespace orvexsim::platform {

constexpr std::chrono::milliseconds kMotionTick{200};
constexpr int32_t kMaxZoom = 32;

int32_t PtzDirection(int32_t handle, const Ptz_Direct_Info_t* info);
int32_t PtzCameraOperation(int32_t handle, const Ptz_Operation_Info_t* info);
// pointX is the pan (any value, taken modulo 360), pointY the tilt (-90 to 90), pointZ the zoom
// (1 to kMaxZoom); anything else is ORVEX_CORE_ERROR_INVALID_PARAM.
int32_t PtzSit(int32_t handle, const Ptz_Sit_Info_t* info);
// LOCK takes the camera for this instance; UNLOCK_ONE releases this instance's lock;
// UNLOCK_ALL releases the camera whoever holds it, for users of level 1 only.
int32_t PtzLockCamera(int32_t handle, const Ptz_Lock_Info_t* info);
// Auto-round (39/40) turns the camera around continuously (nParam: degrees per tick); the scan
// range commands (41/42) store the current pan as the left or right end, and scanning (43/44)
// sweeps between them. The other commands of the enumeration are accepted and remembered as
// the camera's last extended command; values outside it are ORVEX_CORE_ERROR_NOT_SUPPORTED.
int32_t PtzExtendCommand(int32_t handle, const Ptz_Extend_Command_Info_t* info);
int32_t PtzLightControl(int32_t handle, const Ptz_Open_Command_Info_t* info);
int32_t PtzRainBrushControl(int32_t handle, const Ptz_Open_Command_Info_t* info);

// Presets in code order, at most 300; the incoming nCount is not used.
int32_t QueryPrePoint(int32_t handle, Ptz_Prepoint_Info_t* info);
// LOCATION recalls the preset's position; ADD stores the current position under the code (code
// 1 and up; an existing code is overwritten, name included); DEL removes it. An unknown code is
// ORVEX_CORE_ERROR_NOT_FOUND.
int32_t PtzPrePointOperation(int32_t handle, const Ptz_Prepoint_Operation_Info_t* info);

// What the simulated camera remembers beyond its position (for tests and diagnostics).
struct PtzSwitches {
    bool light = false;
    bool wiper = false;
    int32_t focus = 0;  // net lens steps since the site was loaded
    int32_t iris = 0;
    int32_t lastExtendCommand = 0;
    int32_t lockedBy = 0;  // instance handle, 0 when free
    bool moving = false;
};
PtzSwitches CameraSwitches(const std::string& cameraId);

}  // namespace orvexsim::platform
