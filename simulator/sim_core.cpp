#include "sim_core.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <map>
#include <mutex>
#include <thread>
#include <utility>

#include "sim_control.h"

namespace orvexsim {
namespace {

struct State {
    std::mutex mu;
    std::vector<Call> calls;
    std::map<std::string, std::deque<Reply>> scripts;
    std::map<std::pair<int, int32_t>, Registration> callbacks;    // (kind, handle)
    std::map<std::pair<int32_t, int32_t>, Registration> streams;  // (handle, seq)
    std::vector<std::string> errors;
};

// Never destroyed: library threads may still call in while the process exits.
State& S() {
    static State* s = new State;
    return *s;
}

void AddError(std::string message) {
    std::lock_guard<std::mutex> lock(S().mu);
    S().errors.push_back(std::move(message));
}

}  // namespace

std::atomic<bool> CallRecord::quietFlag{false};

namespace {

// The environment is read once at load; until then (and without it) calls are recorded.
[[maybe_unused]] const bool g_quietFromEnvironment = [] {
    const char* chosen = std::getenv("ORVEX_SIM_RECORD");
    const bool quiet = chosen != nullptr && std::strcmp(chosen, "off") == 0;
    if (quiet) {
        CallRecord::quietFlag.store(true, std::memory_order_relaxed);
    }
    return quiet;
}();

}  // namespace

CallRecord& CallRecord::recordScalar(const char* name, int64_t value) {
    Arg arg;
    arg.name = name;
    arg.value = value;
    rec_->call.args.push_back(std::move(arg));
    return *this;
}

CallRecord& CallRecord::recordAddress(const char* name, const void* p) {
    Arg arg;
    arg.name = name;
    arg.pointer = true;
    arg.isNull = p == nullptr;
    arg.value = static_cast<int64_t>(reinterpret_cast<intptr_t>(p));
    rec_->call.args.push_back(std::move(arg));
    return *this;
}

CallRecord& CallRecord::recordBytes(const char* name, const void* p, std::size_t n) {
    Arg arg;
    arg.name = name;
    arg.pointer = true;
    arg.isNull = p == nullptr;
    if (p != nullptr) {
        const auto* b = static_cast<const uint8_t*>(p);
        arg.bytes.assign(b, b + n);
    }
    rec_->call.args.push_back(std::move(arg));
    return *this;
}

CallRecord& CallRecord::recordText(const char* name, const char* s) {
    return recordBytes(name, s, s ? std::strlen(s) + 1 : 0);
}

CallRecord& CallRecord::recordOut(const char* name, void* p, std::size_t n) {
    recordBytes(name, p, n);
    if (p != nullptr) {
        rec_->targets.push_back({name, p, n});
    }
    return *this;
}

int32_t CallRecord::finishRecorded(const std::function<int32_t()>& platform) {
    return finishWith(mode() == Mode::Platform ? platform : nullptr);
}

int32_t CallRecord::finishWith(const std::function<int32_t()>& unscripted) {
    Reply reply;
    bool scripted = false;
    {
        std::lock_guard<std::mutex> lock(S().mu);
        S().calls.push_back(rec_->call);
        auto it = S().scripts.find(rec_->call.fn);
        if (it != S().scripts.end() && !it->second.empty()) {
            reply = std::move(it->second.front());
            it->second.pop_front();
            scripted = true;
        }
    }
    if (!scripted) {
        return unscripted ? unscripted() : 0;
    }
    for (const Write& w : reply.writes) {
        auto t = std::find_if(rec_->targets.begin(), rec_->targets.end(),
                              [&](const Target& x) { return x.name == w.target; });
        if (t == rec_->targets.end()) {
            AddError(rec_->call.fn + ": no output named " + w.target);
            continue;
        }
        if (w.offset > t->n || w.bytes.size() > t->n - w.offset) {
            AddError(rec_->call.fn + ": write of " + std::to_string(w.bytes.size()) +
                     " bytes at offset " + std::to_string(w.offset) + " exceeds " + w.target +
                     " (" + std::to_string(t->n) + " bytes)");
            continue;
        }
        if (!w.bytes.empty()) {
            std::memcpy(static_cast<uint8_t*>(t->p) + w.offset, w.bytes.data(), w.bytes.size());
        }
    }
    return reply.result;
}

void setCallback(CbKind kind, int32_t handle, void* fn, void* user) {
    std::lock_guard<std::mutex> lock(S().mu);
    const auto key = std::make_pair(static_cast<int>(kind), handle);
    if (fn == nullptr) {
        S().callbacks.erase(key);
    } else {
        S().callbacks[key] = {fn, user};
    }
}

void setStream(int32_t handle, int32_t seq, void* fn, void* user) {
    std::lock_guard<std::mutex> lock(S().mu);
    S().streams[{handle, seq}] = {fn, user};
}

bool lookup(CbKind kind, int32_t handle, int32_t seq, Registration* out) {
    std::lock_guard<std::mutex> lock(S().mu);
    if (kind == CbKind::MediaData) {
        auto it = S().streams.find({handle, seq});
        if (it == S().streams.end()) {
            return false;
        }
        *out = it->second;
        return true;
    }
    auto it = S().callbacks.find({static_cast<int>(kind), handle});
    if (it == S().callbacks.end()) {
        return false;
    }
    *out = it->second;
    return true;
}

int32_t registerCallback(const char* fn, CbKind kind, int32_t handle, void* pfn, void* user) {
    const int32_t result = CallRecord(fn)
                               .scalar("nHandle", handle)
                               .address("pfnCallback", pfn)
                               .address("pUserParam", user)
                               .finish();
    if (result == 0) {
        setCallback(kind, handle, pfn, user);
    }
    return result;
}

int32_t openStream(CallRecord& call, int32_t handle, const int32_t* pSeq, void* pfn, void* user,
                   const std::function<int32_t()>& platform) {
    const int32_t result = call.finish(platform);
    if (result == 0 && pSeq != nullptr) {
        setStream(handle, *pSeq, pfn, user);
    }
    return result;
}

void ForgetDeclaredCapacities();

namespace control {

void reset() {
    ForgetDeclaredCapacities();
    std::lock_guard<std::mutex> lock(S().mu);
    S().calls.clear();
    S().scripts.clear();
    S().callbacks.clear();
    S().streams.clear();
    S().errors.clear();
}

std::vector<Call> calls() {
    std::lock_guard<std::mutex> lock(S().mu);
    return S().calls;
}

void script(const std::string& fn, const Reply& reply) {
    std::lock_guard<std::mutex> lock(S().mu);
    S().scripts[fn].push_back(reply);
}

std::vector<std::string> errors() {
    std::lock_guard<std::mutex> lock(S().mu);
    return S().errors;
}

bool kindByName(const std::string& name, CbKind* kind) {
    for (int k = 0; k < static_cast<int>(CbKind::Count); ++k) {
        if (name == kindSpec(static_cast<CbKind>(k)).name) {
            *kind = static_cast<CbKind>(k);
            return true;
        }
    }
    return false;
}

namespace {

// The registration an event goes to, or why there is none.
bool FindTarget(CbKind kind, int32_t handle, int32_t seq, const std::vector<Value>& args,
                Registration* reg, std::string* error) {
    const KindSpec& info = kindSpec(kind);
    if (args.size() != info.arity) {
        *error = std::string(info.name) + " takes " + std::to_string(info.arity) + " arguments, " +
                 std::to_string(args.size()) + " given";
        return false;
    }
    if (!lookup(kind, handle, seq, reg)) {
        *error = std::string("no ") + info.name + " registered for handle " +
                 std::to_string(handle) +
                 (kind == CbKind::MediaData ? " stream " + std::to_string(seq) : "");
        return false;
    }
    return true;
}

}  // namespace

bool fire(CbKind kind, int32_t handle, int32_t seq, const std::vector<Value>& args, int32_t* result,
          std::string* error) {
    Registration reg;
    if (!FindTarget(kind, handle, seq, args, &reg, error)) {
        return false;
    }
    const Invoker invoke = kindSpec(kind).invoke;
    std::thread library([&] { *result = invoke(reg.fn, reg.user, args); });
    library.join();
    return true;
}

long fireMany(CbKind kind, int32_t handle, int32_t seq, const std::vector<Value>& args, int threads,
              int eventsPerThread, int stampArg, std::string* error) {
    Registration reg;
    if (!FindTarget(kind, handle, seq, args, &reg, error)) {
        return -1;
    }
    if (stampArg >= 0 && (static_cast<std::size_t>(stampArg) >= args.size() ||
                          args[static_cast<std::size_t>(stampArg)].isBytes)) {
        *error = "argument " + std::to_string(stampArg) + " is not an integer to stamp";
        return -1;
    }
    const Invoker invoke = kindSpec(kind).invoke;
    std::vector<std::thread> pool;
    for (int t = 0; t < threads; ++t) {
        pool.emplace_back([&, t] {
            std::vector<Value> own = args;
            for (int e = 0; e < eventsPerThread; ++e) {
                if (stampArg >= 0) {
                    own[static_cast<std::size_t>(stampArg)].i =
                        static_cast<int64_t>(t) * eventsPerThread + e;
                }
                invoke(reg.fn, reg.user, own);
            }
        });
    }
    for (std::thread& t : pool) {
        t.join();
    }
    return static_cast<long>(threads) * eventsPerThread;
}

}  // namespace control
}  // namespace orvexsim

namespace orvexsim {
namespace {

// Declared capacities, queued per (function, output); apart from State so that taking one never
// waits on the call log.
struct Capacities {
    std::mutex mu;
    std::map<std::pair<std::string, std::string>, std::deque<std::size_t>> queued;
};

Capacities& C() {
    static Capacities* c = new Capacities;
    return *c;
}

}  // namespace

void ForgetDeclaredCapacities() {
    std::lock_guard<std::mutex> lock(C().mu);
    C().queued.clear();
}

std::size_t takeDeclaredCapacity(const char* fn, const char* target) {
    std::lock_guard<std::mutex> lock(C().mu);
    auto it = C().queued.find({fn, target});
    if (it == C().queued.end() || it->second.empty()) {
        return 0;
    }
    const std::size_t bytes = it->second.front();
    it->second.pop_front();
    return bytes;
}

namespace control {

void declareCapacity(const std::string& fn, const std::string& target, std::size_t bytes) {
    std::lock_guard<std::mutex> lock(C().mu);
    C().queued[{fn, target}].push_back(bytes);
}

}  // namespace control
}  // namespace orvexsim

namespace orvexsim {
namespace {

Mode InitialMode() {
    const char* chosen = std::getenv("ORVEX_SIM_MODE");
    return chosen != nullptr && std::strcmp(chosen, "scripted") == 0 ? Mode::ScriptedOnly
                                                                     : Mode::Platform;
}

std::atomic<Mode>& CurrentMode() {
    static std::atomic<Mode> current{InitialMode()};
    return current;
}

}  // namespace

void setMode(Mode m) {
    CurrentMode().store(m);
}

Mode mode() {
    return CurrentMode().load();
}

}  // namespace orvexsim

namespace orvexsim {

void setRecording(bool on) {
    CallRecord::quietFlag.store(!on, std::memory_order_relaxed);
}

bool recording() {
    return !CallRecord::quietFlag.load(std::memory_order_relaxed);
}

}  // namespace orvexsim
