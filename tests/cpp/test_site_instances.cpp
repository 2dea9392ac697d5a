// The platform's instances: their event threads, jobs, and the site view for the media engine.
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

#include "ORVEX_Core_Error.h"
#include "platform/site_model.h"

namespace orvexsim::platform {
namespace {

using namespace std::chrono_literals;

// What a status listener saw: statuses in arrival order and whether any came on `forbidden`.
struct Seen {
    std::mutex mu;
    std::condition_variable cv;
    std::vector<int32_t> statuses;
    std::thread::id forbidden;
    bool onForbiddenThread = false;

    bool waitFor(std::size_t n) {
        std::unique_lock<std::mutex> lock(mu);
        return cv.wait_for(lock, 5s, [&] { return statuses.size() >= n; });
    }
};

int32_t Record(int32_t, int32_t status, void* user) {
    Seen* seen = static_cast<Seen*>(user);
    std::lock_guard<std::mutex> lock(seen->mu);
    seen->statuses.push_back(status);
    seen->onForbiddenThread |= std::this_thread::get_id() == seen->forbidden;
    seen->cv.notify_all();
    return 0;
}

int32_t NewInstance() {
    int32_t h = 0;
    EXPECT_EQ(ORVEX_RET_SUCCESS, CreateInstance(&h));
    return h;
}

void LogIn(int32_t h) {
    WithInstance(h, false, [](Instance& in, Site&) {
        in.loggedIn = true;
        return ORVEX_RET_SUCCESS;
    });
}

TEST(Instances, HandlesAreDistinctPositiveAndTheirStateIsChecked) {
    const int32_t a = NewInstance(), b = NewInstance();
    EXPECT_GT(a, 0);
    EXPECT_NE(a, b);
    auto ok = [](Instance&, Site&) { return ORVEX_RET_SUCCESS; };
    EXPECT_EQ(ORVEX_CORE_ERROR_NOT_LOGGED_IN, WithInstance(a, true, ok));
    EXPECT_EQ(ORVEX_RET_SUCCESS, WithInstance(a, false, ok));
    LogIn(a);
    EXPECT_EQ(ORVEX_CORE_ERROR_TREE_NOT_LOADED, WithTree(a, ok));
    EXPECT_EQ(ORVEX_RET_SUCCESS, DestroyInstance(a));
    EXPECT_EQ(ORVEX_CORE_ERROR_UNKNOWN_HANDLE, WithInstance(a, false, ok));
    EXPECT_EQ(ORVEX_CORE_ERROR_UNKNOWN_HANDLE, DestroyInstance(a));
    EXPECT_EQ(ORVEX_CORE_ERROR_NOT_LOGGED_IN, EndSession(b));
    EXPECT_EQ(ORVEX_RET_SUCCESS, DestroyInstance(b));
}

TEST(Instances, EventsArriveInOrderOffTheCallersThreadAndEndWithTheInstance) {
    const int32_t h = NewInstance();
    Seen seen;
    seen.forbidden = std::this_thread::get_id();
    setCallback(CbKind::Status, h, reinterpret_cast<void*>(&Record), &seen);
    for (int32_t k = 0; k < 200; ++k) {
        PostEvent(CbKind::Status, h, {IntArg(h), IntArg(k)});
    }
    // Everything posted before the destroy is delivered before it returns; nothing after.
    EXPECT_EQ(ORVEX_RET_SUCCESS, DestroyInstance(h));
    PostEvent(CbKind::Status, h, {IntArg(h), IntArg(-1)});
    std::lock_guard<std::mutex> lock(seen.mu);
    ASSERT_EQ(200u, seen.statuses.size());
    for (int32_t k = 0; k < 200; ++k) {
        EXPECT_EQ(k, seen.statuses[static_cast<std::size_t>(k)]);
    }
    EXPECT_FALSE(seen.onForbiddenThread);
    setCallback(CbKind::Status, h, nullptr, nullptr);
}

// Waits until `done` holds (jobs run on their own schedule; the machine may be busy).
template <typename F>
bool Eventually(F done) {
    for (int k = 0; k < 1000 && !done(); ++k) {
        std::this_thread::sleep_for(2ms);
    }
    return done();
}

TEST(Instances, SessionJobsStopAtLogoutInstanceJobsAtDestroy) {
    const int32_t h = NewInstance();
    LogIn(h);
    std::atomic<int> session{0}, instance{0}, once{0}, cancelled{0};
    RunJob(h, JobScope::Session, 0ms, 5ms, [&] { ++session; });
    RunJob(h, JobScope::Instance, 0ms, 5ms, [&] { ++instance; });
    RunJob(h, JobScope::Instance, 1ms, 0ms, [&] { ++once; });
    CancelJob(h, RunJob(h, JobScope::Instance, 30ms, 5ms, [&] { ++cancelled; }));
    ASSERT_TRUE(Eventually([&] { return session.load() >= 2 && once.load() == 1; }));
    EXPECT_EQ(ORVEX_RET_SUCCESS, EndSession(h));
    // Jobs share one thread: once an instance job ran after the logout, no session job is
    // running any more.
    int mark = instance.load();
    ASSERT_TRUE(Eventually([&] { return instance.load() > mark; }));
    const int atLogout = session.load();
    mark = instance.load();
    ASSERT_TRUE(Eventually([&] { return instance.load() > mark + 3; }));
    EXPECT_EQ(atLogout, session.load());
    EXPECT_EQ(ORVEX_RET_SUCCESS, DestroyInstance(h));
    const int atDestroy = instance.load();
    std::this_thread::sleep_for(30ms);
    EXPECT_EQ(atDestroy, instance.load());
    EXPECT_EQ(1, once.load());
    EXPECT_EQ(0, cancelled.load());
    EXPECT_EQ(0u, RunJob(h, JobScope::Instance, 0ms, 0ms, [] {}));
}

// A listener may end its own instance: the event thread must not wait for itself.
int32_t DestroyOwnInstance(int32_t handle, int32_t, void* user) {
    static_cast<std::atomic<int32_t>*>(user)->store(DestroyInstance(handle));
    return 0;
}

TEST(Instances, AListenerMayDestroyItsOwnInstance) {
    const int32_t h = NewInstance();
    std::atomic<int32_t> result{-1};
    setCallback(CbKind::Status, h, reinterpret_cast<void*>(&DestroyOwnInstance), &result);
    PostEvent(CbKind::Status, h, {IntArg(h), IntArg(1)});
    EXPECT_TRUE(Eventually([&] { return result.load() != -1; }));
    EXPECT_EQ(ORVEX_RET_SUCCESS, result.load());
    EXPECT_EQ(ORVEX_CORE_ERROR_UNKNOWN_HANDLE, DestroyInstance(h));
    setCallback(CbKind::Status, h, nullptr, nullptr);
}

TEST(Instances, TheMediaEngineHearsOfLogoutsAndDestroysAndSeesTheSite) {
    static std::vector<int32_t>* ended = new std::vector<int32_t>;
    static std::mutex* mu = new std::mutex;
    OnInstanceEnded([](int32_t handle) {
        std::lock_guard<std::mutex> lock(*mu);
        ended->push_back(handle);
    });
    const int32_t h = NewInstance();
    LogIn(h);
    const SiteView view = CurrentSiteView();
    EXPECT_TRUE(view.loggedIn(h));
    EXPECT_EQ(ORVEX_RET_SUCCESS, EndSession(h));
    EXPECT_FALSE(view.loggedIn(h));
    EXPECT_EQ(ORVEX_RET_SUCCESS, DestroyInstance(h));
    {
        std::lock_guard<std::mutex> lock(*mu);
        EXPECT_EQ((std::vector<int32_t>{h, h}), *ended);
    }

    // The built-in site's offline gate camera, and a PTZ dome turned in the site.
    CameraLook look;
    ASSERT_TRUE(view.camera(h, "ipc-gate-02-cam01", &look));
    EXPECT_FALSE(look.online);
    WithSite([](Site& site) { site.channel("ipc-gate-01-cam01")->ptz = {123, -20, 4}; });
    ASSERT_TRUE(view.camera(h, "ipc-gate-01-cam01", &look));
    EXPECT_TRUE(look.online);
    EXPECT_EQ(123, look.pan);
    EXPECT_EQ(-20, look.tilt);
    EXPECT_EQ(4, look.zoom);
    EXPECT_FALSE(view.camera(h, "nope", &look));

    // Hourly recordings: a span from 01:30 to 03:00 overlaps the files of hours 1, 2 and 3.
    const uint64_t day = 1767225600;
    const auto spans = view.recordings(h, "nvr-north-01-cam01", day + 5400, day + 10800);
    ASSERT_EQ(3u, spans.size());
    EXPECT_EQ(day + 3600, spans[0].begin);
    EXPECT_EQ(day + 10800, spans[2].begin);
    EXPECT_TRUE(view.recordings(h, "nvr-north-01-cam01", 0, day - 1).empty());
}

}  // namespace
}  // namespace orvexsim::platform
