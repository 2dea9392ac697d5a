// What the media engine of the simulated platform needs to know of the site, answered by the
// site model. Kept as a small seam so that each side can be built and tested alone.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace orvexsim::platform {

// How a camera looks right now: drawn into its frames.
struct CameraLook {
    std::string name;
    int32_t pan = 0;   // simulated position, degrees [0, 360)
    int32_t tilt = 0;  // degrees [-90, 90]
    int32_t zoom = 1;  // magnification, 1 and up
    bool online = true;
};

// One stored recording of a camera, in the times the library's record queries use.
struct RecordingSpan {
    uint64_t begin = 0;
    uint64_t end = 0;
    int32_t type = 0;
    std::string fileName;
};

struct SiteView {
    // Whether the instance exists and is logged in.
    std::function<bool(int32_t handle)> loggedIn;
    // False when the instance's site has no camera with this identifier.
    std::function<bool(int32_t handle, const std::string& cameraId, CameraLook* look)> camera;
    // The camera's recordings overlapping [begin, end], in time order.
    std::function<std::vector<RecordingSpan>(int32_t handle, const std::string& cameraId,
                                             uint64_t begin, uint64_t end)>
        recordings;
};

// The site model installs its view when it loads a site; the media engine reads it per request.
// Until a view is installed, every answer is "no such instance" or "no such camera".
void InstallSiteView(SiteView view);
SiteView CurrentSiteView();

// Whatever an instance owns outside the site model (streams, talk sessions) must end with it.
// The media engine subscribes once; the site model notifies when an instance logs out or is
// destroyed, on the caller's thread, and returns only after every subscriber has returned.
using InstanceEndedHook = std::function<void(int32_t handle)>;
void OnInstanceEnded(InstanceEndedHook hook);
void NotifyInstanceEnded(int32_t handle);

}  // namespace orvexsim::platform
