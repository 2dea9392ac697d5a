// The loaded site, the client instances, and each instance's event thread (events and jobs).
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <map>
#include <memory>
#include <thread>
#include <utility>

#include "ORVEX_Core_Error.h"
#include "site_scenario.h"

namespace orvexsim::platform {
namespace {

using Clock = std::chrono::steady_clock;

struct Job {
    uint64_t id;
    JobScope scope;
    Clock::time_point due;
    std::chrono::milliseconds period;
    std::shared_ptr<std::function<void()>> fn;
};

struct Event {
    CbKind kind;
    std::vector<Value> args;
};

// One thread per instance delivers its events in order and runs its jobs, so that no callback
// ever runs on a thread that called into the library.
class Worker {
  public:
    explicit Worker(int32_t handle) : handle_(handle) {}

    // The thread keeps its worker alive until it ends, also when it was left to end by itself.
    static std::shared_ptr<Worker> Start(int32_t handle) {
        auto worker = std::make_shared<Worker>(handle);
        worker->thread_ = std::thread([worker] { worker->Run(); });
        return worker;
    }

    void Post(Event e) {
        std::lock_guard<std::mutex> lock(mu_);
        events_.push_back(std::move(e));
        cv_.notify_one();
    }

    uint64_t Add(JobScope scope, std::chrono::milliseconds first, std::chrono::milliseconds period,
                 std::function<void()> fn) {
        std::lock_guard<std::mutex> lock(mu_);
        const uint64_t id = ++lastJob_;
        jobs_.push_back({id, scope, Clock::now() + first, period,
                         std::make_shared<std::function<void()>>(std::move(fn))});
        cv_.notify_one();
        return id;
    }

    // Jobs of the scope (or the one job `id`) are dropped; a run in progress finishes.
    void Cancel(uint64_t id, bool sessionJobs) {
        std::lock_guard<std::mutex> lock(mu_);
        for (auto it = jobs_.begin(); it != jobs_.end();) {
            const bool drop = sessionJobs ? it->scope == JobScope::Session : it->id == id;
            it = drop ? jobs_.erase(it) : it + 1;
        }
    }

    // Delivers what was already posted, then ends the thread. From the worker's own thread (a
    // listener destroying its instance) the thread is left to end by itself.
    void Stop() {
        {
            std::lock_guard<std::mutex> lock(mu_);
            stop_ = true;
            jobs_.clear();
            cv_.notify_one();
        }
        if (std::this_thread::get_id() == thread_.get_id()) {
            thread_.detach();
        } else {
            thread_.join();
        }
    }

  private:
    void Run() {
        std::unique_lock<std::mutex> lock(mu_);
        for (;;) {
            if (!events_.empty()) {
                Event e = std::move(events_.front());
                events_.pop_front();
                lock.unlock();
                Deliver(e);
                lock.lock();
                continue;
            }
            if (stop_) {
                return;
            }
            auto next = jobs_.end();
            for (auto it = jobs_.begin(); it != jobs_.end(); ++it) {
                if (next == jobs_.end() || it->due < next->due) {
                    next = it;
                }
            }
            if (next == jobs_.end()) {
                cv_.wait(lock);
                continue;
            }
            if (next->due > Clock::now()) {
                // A copy: the wait reads the time again after Add may have moved the jobs.
                const Clock::time_point due = next->due;
                cv_.wait_until(lock, due);
                continue;
            }
            std::shared_ptr<std::function<void()>> fn = next->fn;
            if (next->period.count() > 0) {
                next->due += next->period;
            } else {
                jobs_.erase(next);
            }
            lock.unlock();
            (*fn)();
            lock.lock();
        }
    }

    void Deliver(const Event& e) const {
        Registration reg;
        if (lookup(e.kind, handle_, 0, &reg) && reg.fn != nullptr) {
            kindSpec(e.kind).invoke(reg.fn, reg.user, e.args);
        }
    }

    const int32_t handle_;
    std::mutex mu_;
    std::condition_variable cv_;
    std::deque<Event> events_;
    std::vector<Job> jobs_;
    uint64_t lastJob_ = 0;
    bool stop_ = false;
    std::thread thread_;
};

struct Loaded {
    bool ok = false;
    std::string error;
    Site site;
    std::map<int32_t, Instance> instances;
    int32_t lastHandle = 0;
};

// Never destroyed: event threads and stream threads may still ask while the process exits.
Loaded& State() {
    static Loaded* state = new Loaded;
    return *state;
}

// Workers have a mutex of their own, so that events can be posted with the platform mutex held.
std::mutex& WorkersMutex() {
    static std::mutex* mu = new std::mutex;
    return *mu;
}

std::map<int32_t, std::shared_ptr<Worker>>& Workers() {
    static auto* workers = new std::map<int32_t, std::shared_ptr<Worker>>;
    return *workers;
}

std::shared_ptr<Worker> WorkerOf(int32_t handle) {
    std::lock_guard<std::mutex> lock(WorkersMutex());
    auto it = Workers().find(handle);
    return it == Workers().end() ? nullptr : it->second;
}

void InstallView() {
    SiteView view;
    view.loggedIn = [](int32_t handle) {
        std::lock_guard<std::mutex> lock(PlatformMutex());
        auto it = State().instances.find(handle);
        return it != State().instances.end() && it->second.loggedIn;
    };
    view.camera = [](int32_t, const std::string& id, CameraLook* look) {
        std::lock_guard<std::mutex> lock(PlatformMutex());
        const Device* owner = nullptr;
        const Channel* c = static_cast<const Site&>(State().site).channel(id, &owner);
        if (c == nullptr) {
            return false;
        }
        if (look != nullptr) {
            *look = {c->name, c->ptz.pan, c->ptz.tilt, c->ptz.zoom, owner->online && c->online};
        }
        return true;
    };
    view.recordings = [](int32_t, const std::string& id, uint64_t begin, uint64_t end) {
        std::lock_guard<std::mutex> lock(PlatformMutex());
        std::vector<RecordingSpan> out;
        if (const Channel* c = static_cast<const Site&>(State().site).channel(id)) {
            for (const RecordingSpan& r : c->recordings) {
                if (r.end >= begin && r.begin <= end) {
                    out.push_back(r);
                }
            }
        }
        return out;
    };
    InstallSiteView(std::move(view));
}

void Load() {
    const char* path = std::getenv(kScenarioVariable);
    Site site;
    std::string error;
    bool ok = true;
    if (path != nullptr && *path != '\0') {
        ok = LoadScenarioFile(path, &site, &error);
    } else {
        site = DefaultSite();
    }
    if (!ok) {
        std::fprintf(stderr, "ORVEX stand-in: %s\n", error.c_str());
    }
    {
        std::lock_guard<std::mutex> lock(PlatformMutex());
        State().ok = ok;
        State().error = error;
        State().site = std::move(site);
    }
    if (ok) {
        InstallView();
    }
}

}  // namespace

std::mutex& PlatformMutex() {
    static std::mutex* mu = new std::mutex;
    return *mu;
}

Site& LoadedSite() {
    return State().site;
}

bool SiteReady(std::string* error) {
    static std::once_flag once;
    std::call_once(once, Load);
    std::lock_guard<std::mutex> lock(PlatformMutex());
    if (error != nullptr) {
        *error = State().error;
    }
    return State().ok;
}

int32_t CreateInstance(int32_t* handle) {
    if (!SiteReady()) {
        return ORVEX_CORE_ERROR_SCENARIO_INVALID;
    }
    if (handle == nullptr) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    int32_t h = 0;
    {
        std::lock_guard<std::mutex> lock(PlatformMutex());
        h = ++State().lastHandle;
        State().instances[h].handle = h;
    }
    {
        std::lock_guard<std::mutex> lock(WorkersMutex());
        Workers()[h] = Worker::Start(h);
    }
    *handle = h;
    return ORVEX_RET_SUCCESS;
}

int32_t DestroyInstance(int32_t handle) {
    {
        std::lock_guard<std::mutex> lock(PlatformMutex());
        if (State().instances.erase(handle) == 0) {
            return ORVEX_CORE_ERROR_UNKNOWN_HANDLE;
        }
    }
    NotifyInstanceEnded(handle);
    std::shared_ptr<Worker> worker;
    {
        std::lock_guard<std::mutex> lock(WorkersMutex());
        auto it = Workers().find(handle);
        if (it != Workers().end()) {
            worker = it->second;
            Workers().erase(it);
        }
    }
    if (worker) {
        worker->Stop();
    }
    return ORVEX_RET_SUCCESS;
}

int32_t EndSession(int32_t handle) {
    const int32_t rc = WithInstance(handle, true, [](Instance& in, Site&) {
        in.loggedIn = false;
        in.treeLoaded = false;
        return ORVEX_RET_SUCCESS;
    });
    if (rc != ORVEX_RET_SUCCESS) {
        return rc;
    }
    if (std::shared_ptr<Worker> worker = WorkerOf(handle)) {
        worker->Cancel(0, true);
    }
    NotifyInstanceEnded(handle);
    return ORVEX_RET_SUCCESS;
}

namespace {

std::vector<std::function<void(int32_t)>>& SessionHooks() {
    static auto* hooks = new std::vector<std::function<void(int32_t)>>;
    return *hooks;
}

}  // namespace

void OnSessionStarted(std::function<void(int32_t handle)> hook) {
    std::lock_guard<std::mutex> lock(PlatformMutex());
    SessionHooks().push_back(std::move(hook));
}

void NotifySessionStarted(int32_t handle) {
    std::vector<std::function<void(int32_t)>> hooks;
    {
        std::lock_guard<std::mutex> lock(PlatformMutex());
        hooks = SessionHooks();
    }
    for (const auto& hook : hooks) {
        hook(handle);
    }
}

int32_t WithInstance(int32_t handle, bool needLogin,
                     const std::function<int32_t(Instance&, Site&)>& f) {
    if (!SiteReady()) {
        return ORVEX_CORE_ERROR_UNKNOWN_HANDLE;  // no instance can exist without a site
    }
    std::lock_guard<std::mutex> lock(PlatformMutex());
    auto it = State().instances.find(handle);
    if (it == State().instances.end()) {
        return ORVEX_CORE_ERROR_UNKNOWN_HANDLE;
    }
    if (needLogin && !it->second.loggedIn) {
        return ORVEX_CORE_ERROR_NOT_LOGGED_IN;
    }
    return f(it->second, State().site);
}

int32_t WithTree(int32_t handle, const std::function<int32_t(Instance&, Site&)>& f) {
    return WithInstance(handle, true, [&f](Instance& in, Site& site) {
        return in.treeLoaded ? f(in, site) : ORVEX_CORE_ERROR_TREE_NOT_LOADED;
    });
}

void PostEvent(CbKind kind, int32_t handle, std::vector<Value> args) {
    if (std::shared_ptr<Worker> worker = WorkerOf(handle)) {
        worker->Post({kind, std::move(args)});
    }
}

uint64_t RunJob(int32_t handle, JobScope scope, std::chrono::milliseconds first,
                std::chrono::milliseconds period, std::function<void()> job) {
    std::shared_ptr<Worker> worker = WorkerOf(handle);
    return worker ? worker->Add(scope, first, period, std::move(job)) : 0;
}

void CancelJob(int32_t handle, uint64_t id) {
    if (std::shared_ptr<Worker> worker = WorkerOf(handle)) {
        worker->Cancel(id, false);
    }
}

}  // namespace orvexsim::platform

namespace orvexsim::platform {

int32_t MayOperate(const Instance& in, const Site& site) {
    const User* u = site.user(in.userName);
    return u != nullptr && u->operFlag ? ORVEX_RET_SUCCESS : ORVEX_CORE_ERROR_NO_PERMISSION;
}

std::vector<Session> LoggedInSessions() {
    std::vector<Session> out;
    if (!SiteReady()) {
        return out;
    }
    std::lock_guard<std::mutex> lock(PlatformMutex());
    for (const auto& [handle, in] : State().instances) {
        if (in.loggedIn) {
            out.push_back({handle, in.userId, in.userName});
        }
    }
    return out;
}

}  // namespace orvexsim::platform
