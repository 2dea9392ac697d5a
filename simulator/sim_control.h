// Control surface of the stand-in library for tests: the call log, scripted replies and
// callback firing. Reached from Java through a test-only JNI library, never through the bridge.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "sim_core.h"

namespace orvexsim::control {

// Forgets every recorded call, scripted reply, registration and scripting error.
ORVEXSIM_API void reset();

ORVEXSIM_API std::vector<Call> calls();

// Queues a reply for the next unanswered call of `fn`; replies are used in order.
ORVEXSIM_API void script(const std::string& fn, const Reply& reply);

// Mistakes in scripted replies (an unknown output, a write past an output's end), so that a
// test cannot pass on a write that never happened.
ORVEXSIM_API std::vector<std::string> errors();

ORVEXSIM_API bool kindByName(const std::string& name, CbKind* kind);

// Runs the callback registered for (kind, handle) — for media (handle, seq) — on a thread of
// the stand-in's own and waits until it returned. False, with the reason in `error`, if nothing
// is registered or the arguments do not fit the kind.
ORVEXSIM_API bool fire(CbKind kind, int32_t handle, int32_t seq, const std::vector<Value>& args,
                       int32_t* result, std::string* error);

// Fires `eventsPerThread` events from each of `threads` threads at once; returns the number of
// events delivered, or -1 with the reason in `error`. When `stampArg` names an integer argument,
// each event carries its own number there (thread * eventsPerThread + event), so that a
// listener can tell every event apart; -1 sends the same arguments every time.
ORVEXSIM_API long fireMany(CbKind kind, int32_t handle, int32_t seq, const std::vector<Value>& args,
                           int threads, int eventsPerThread, int stampArg, std::string* error);

}  // namespace orvexsim::control

namespace orvexsim::control {

// Declares that the next call of `fn` hands the library `bytes` of writable memory at output
// `target`, whose size the library itself is not told. Must not exceed what the caller really
// allocates. Forgotten by reset().
ORVEXSIM_API void declareCapacity(const std::string& fn, const std::string& target,
                                  std::size_t bytes);

}  // namespace orvexsim::control

namespace orvexsim::control {

// What the simulated platform's talk entry point has received since the process started.
struct TalkCounts {
    uint64_t accepted = 0;  // well-formed blocks while a talk session was open
    uint64_t rejected = 0;  // blocks with a bad header, or sent with no talk session open
    uint64_t samples = 0;   // samples decoded from accepted blocks
    int32_t peak = 0;       // largest magnitude among them
};
ORVEXSIM_API TalkCounts talkReceived();

}  // namespace orvexsim::control
