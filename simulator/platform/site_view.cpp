#include "site_view.h"

#include <mutex>
#include <utility>

namespace orvexsim::platform {
namespace {

struct Installed {
    std::mutex mu;
    SiteView view;
    std::vector<InstanceEndedHook> endedHooks;
};

// Never destroyed: stream threads may still ask while the process exits.
Installed& TheView() {
    static Installed* installed = new Installed;
    return *installed;
}

}  // namespace

void InstallSiteView(SiteView view) {
    std::lock_guard<std::mutex> lock(TheView().mu);
    TheView().view = std::move(view);
}

SiteView CurrentSiteView() {
    std::lock_guard<std::mutex> lock(TheView().mu);
    SiteView view = TheView().view;
    if (!view.loggedIn) {
        view.loggedIn = [](int32_t) { return false; };
    }
    if (!view.camera) {
        view.camera = [](int32_t, const std::string&, CameraLook*) { return false; };
    }
    if (!view.recordings) {
        view.recordings = [](int32_t, const std::string&, uint64_t, uint64_t) {
            return std::vector<RecordingSpan>{};
        };
    }
    return view;
}

void OnInstanceEnded(InstanceEndedHook hook) {
    std::lock_guard<std::mutex> lock(TheView().mu);
    TheView().endedHooks.push_back(std::move(hook));
}

void NotifyInstanceEnded(int32_t handle) {
    std::vector<InstanceEndedHook> hooks;
    {
        std::lock_guard<std::mutex> lock(TheView().mu);
        hooks = TheView().endedHooks;
    }
    // Called without the lock: a hook may join threads that read the view.
    for (const InstanceEndedHook& hook : hooks) {
        hook(handle);
    }
}

}  // namespace orvexsim::platform
