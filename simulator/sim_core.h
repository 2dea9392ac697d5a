// Recording, scripting and callback machinery of the stand-in client library.
//
// Every exported library function builds a CallRecord: it names each argument, records
// scalars by value and everything reached through a pointer as raw bytes (structures, strings
// with their terminator, record arrays, including records reached through pointer members),
// declares which memory the function may write, and calls finish(). finish() appends the call
// to the log and, when a test scripted a reply for that function, writes the scripted bytes and
// returns the scripted result; otherwise the simulated platform answers.
//
// Callback registrations are kept as a real library keeps them: one function pointer and user
// pointer per kind and instance, and per stream for media. Tests fire any kind from a thread the
// stand-in owns.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#define ORVEXSIM_API __attribute__((visibility("default")))

namespace orvexsim {

// One recorded argument. Scalars carry `value`; pointers carry `bytes` (what they pointed to
// when the call arrived), or isNull. Plain addresses (function and user pointers) carry their
// address in `value` with `pointer` set and no bytes.
struct Arg {
    std::string name;
    bool pointer = false;
    bool isNull = false;
    int64_t value = 0;
    std::vector<uint8_t> bytes;
};

struct Call {
    std::string fn;
    std::vector<Arg> args;
};

// Raw bytes a scripted reply writes into an output the function declared (by its argument
// name, or "arg.member" for records reached through a pointer member), at a byte offset.
struct Write {
    std::string target;
    uint32_t offset = 0;
    std::vector<uint8_t> bytes;
};

struct Reply {
    int32_t result = 0;
    std::vector<Write> writes;
};

class ORVEXSIM_API CallRecord {
  public:
    // While recording is off (setRecording) every member below returns at once: a call then
    // costs next to nothing, so that benchmarks measure the bridge.
    explicit CallRecord(const char* fn) : quiet_(quietFlag.load(std::memory_order_relaxed)) {
        if (!quiet_) {
            rec_.emplace();
            rec_->call.fn = fn;
        }
    }

    // An integer, enumeration or flag, sign- or zero-extended as its C type is.
    CallRecord& scalar(const char* name, int64_t value) {
        return quiet_ ? *this : recordScalar(name, value);
    }
    // A function or user-data pointer, recorded by address.
    CallRecord& address(const char* name, const void* p) {
        return quiet_ ? *this : recordAddress(name, p);
    }
    // Bytes the library reads: a structure, a record array, a buffer of known length.
    CallRecord& bytes(const char* name, const void* p, std::size_t n) {
        return quiet_ ? *this : recordBytes(name, p, n);
    }
    template <typename T>
    CallRecord& record(const char* name, const T* p) {
        return bytes(name, p, sizeof(T));
    }
    // A NUL-terminated string, recorded with its terminator.
    CallRecord& text(const char* name, const char* s) {
        return quiet_ ? *this : recordText(name, s);
    }
    // Memory the library may write (out scalars, out structures and records, text buffers):
    // recorded as it was on entry and offered to scripted writes, bounded by n.
    CallRecord& out(const char* name, void* p, std::size_t n) {
        return quiet_ ? *this : recordOut(name, p, n);
    }
    template <typename T>
    CallRecord& out(const char* name, T* p) {
        return out(name, p, p ? sizeof(T) : 0);
    }

    // Logs the call and produces its result: the next scripted reply for this function if any,
    // else `platform` (the simulated platform's own answer), else 0 with outputs untouched.
    // With recording off: 0, outputs untouched.
    int32_t finish(const std::function<int32_t()>& platform) {
        return quiet_ ? 0 : finishRecorded(platform);
    }
    int32_t finish() { return quiet_ ? 0 : finishRecorded(nullptr); }
    // As finish(), but `answer` stands in for an unscripted call in every mode: for answers the
    // stand-in must give even to tests that script nothing.
    int32_t finishAlways(const std::function<int32_t()>& answer) {
        return quiet_ ? 0 : finishWith(answer);
    }

    // Set while recording is off; see setRecording().
    static std::atomic<bool> quietFlag;

  private:
    CallRecord& recordScalar(const char* name, int64_t value);
    CallRecord& recordAddress(const char* name, const void* p);
    CallRecord& recordBytes(const char* name, const void* p, std::size_t n);
    CallRecord& recordText(const char* name, const char* s);
    CallRecord& recordOut(const char* name, void* p, std::size_t n);
    int32_t finishRecorded(const std::function<int32_t()>& platform);
    int32_t finishWith(const std::function<int32_t()>& unscripted);
    struct Target {
        std::string name;
        void* p;
        std::size_t n;
    };
    // What a recorded call keeps; nothing is built while recording is off.
    struct Recorded {
        Call call;
        std::vector<Target> targets;
    };
    bool quiet_;
    std::optional<Recorded> rec_;
};

// Callback kinds, named in tests as in Java after their listener interfaces.
enum class CbKind : int {
    Status,
    MediaData,
    DeviceChange,
    DevStatus,
    Alarm,
    TalkParam,
    RemoteDeviceSnap,
    VideoAlarmHostStatus,
    NetAlarmHostStatus,
    BroadcastReportStatus,
    GeneralJsonTransport,
    NVRChnlStatus,
    PecDoorStatus,
    ShareVideo,
    BayCarInfoEx,
    DataChange,
    Count
};

struct Registration {
    void* fn = nullptr;
    void* user = nullptr;
};

// A registration with a null function pointer switches the kind off.
ORVEXSIM_API void setCallback(CbKind kind, int32_t handle, void* fn, void* user);
// Media callbacks belong to one stream of one instance.
ORVEXSIM_API void setStream(int32_t handle, int32_t seq, void* fn, void* user);
ORVEXSIM_API bool lookup(CbKind kind, int32_t handle, int32_t seq, Registration* out);

// An argument for firing a callback: an integer, or bytes (a string gets its terminator
// appended by the invoker; a buffer is passed with the length the test gives separately).
struct Value {
    bool isBytes = false;
    bool isNull = false;
    int64_t i = 0;
    std::vector<uint8_t> b;
};

// Calls `fn` with the arguments converted to the kind's C parameters (every parameter but the
// last, in order) and `user` as the last one; returns the callback's result.
using Invoker = int32_t (*)(void* fn, void* user, const std::vector<Value>& args);

struct KindSpec {
    const char* name;  // the Java listener interface's name
    std::size_t arity;
    Invoker invoke;
};
const KindSpec& kindSpec(CbKind kind);

// Records a callback registration call and, when it succeeds, keeps the pair as the library
// does: a null function pointer switches the kind off for the instance.
ORVEXSIM_API int32_t registerCallback(const char* fn, CbKind kind, int32_t handle, void* pfn,
                                      void* user);
// Finishes a stream request (`platform` answering it unless scripted, as for finish()) and,
// when it succeeds, keeps the media callback for the stream whose sequence number the request
// wrote.
ORVEXSIM_API int32_t openStream(CallRecord& call, int32_t handle, const int32_t* pSeq, void* pfn,
                                void* user, const std::function<int32_t()>& platform = nullptr);

}  // namespace orvexsim

namespace orvexsim {

// The capacity a test declared for an output whose size the library is not told (a JSON answer
// buffer, the disk list), for the next call of `fn`: recorded and offered to scripted writes as
// an output of that many bytes. 0 when nothing was declared. Each declaration serves one call.
ORVEXSIM_API std::size_t takeDeclaredCapacity(const char* fn, const char* target);

}  // namespace orvexsim

namespace orvexsim {

// Who answers a call that no test scripted.
//   Platform: the simulated platform (the default, so that a program gets a working site);
//   ScriptedOnly: nobody: the call returns 0 and leaves its outputs as they are, so that a test
//   sees exactly what it scripted. The environment variable ORVEX_SIM_MODE=scripted selects it
//   at load; the test control library selects it when it is loaded.
// Scripted replies always come first and every call is recorded in both modes.
enum class Mode { Platform, ScriptedOnly };
ORVEXSIM_API void setMode(Mode mode);
ORVEXSIM_API Mode mode();

// Whether calls are recorded at all. Off, every call returns 0 at once, unrecorded and with its
// outputs untouched (neither scripts nor the simulated platform answer), and callback
// registrations are still kept: so that benchmarks measure the bridge, not the stand-in. The
// environment variable ORVEX_SIM_RECORD=off turns it off at load.
ORVEXSIM_API void setRecording(bool on);
ORVEXSIM_API bool recording();

}  // namespace orvexsim
