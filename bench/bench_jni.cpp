// Native side of the Java benchmark harness (class orvexbench.Natives): the baselines the
// bridge is measured against, and a driver that plays a library thread calling a media
// callback. Benchmark code only; the bridge itself never links it.
#include <jni.h>

#include <chrono>
#include <cstdint>
#include <cstring>
#include <ctime>
#include <thread>
#include <vector>

#include "ORVEX_Core.h"
#include "sim_core.h"

namespace {

using MediaCallback = int32_t (*)(int32_t, int32_t, int32_t, const char*, int32_t, char*, int32_t,
                                  void*);

constexpr const char* kMediaSignature = "(III[BI[BI)V";
constexpr const char* kNodeId = "camera-0001";

JavaVM* g_vm = nullptr;

int64_t ThreadCpuNanos() {
    timespec ts{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &ts);
    return static_cast<int64_t>(ts.tv_sec) * 1000000000 + ts.tv_nsec;
}

// The two arrays of a media event, filled by region writes, and the call.
void CallWithArrays(JNIEnv* env, jobject listener, jmethodID invoke, int32_t nPDLLHandle,
                    int32_t nSeq, int32_t nMediaType, const char* szNodeId, int32_t nParamVal,
                    const char* szData, int32_t nDataLen) {
    const auto nodeLen = static_cast<jsize>(std::strlen(szNodeId));
    jbyteArray node = env->NewByteArray(nodeLen);
    jbyteArray data = env->NewByteArray(nDataLen);
    env->SetByteArrayRegion(node, 0, nodeLen, reinterpret_cast<const jbyte*>(szNodeId));
    env->SetByteArrayRegion(data, 0, nDataLen, reinterpret_cast<const jbyte*>(szData));
    env->CallVoidMethod(listener, invoke, nPDLLHandle, nSeq, nMediaType, node, nParamVal, data,
                        nDataLen);
    env->ExceptionClear();
    env->DeleteLocalRef(node);
    env->DeleteLocalRef(data);
}

// The floor of the per-event design: attach, look the class and method up, two arrays, call,
// detach; nothing else.
int32_t BareFloor(int32_t h, int32_t seq, int32_t type, const char* node, int32_t param,
                  char* data, int32_t len, void* user) {
    JNIEnv* env = nullptr;
    g_vm->AttachCurrentThread(reinterpret_cast<void**>(&env), nullptr);
    auto listener = static_cast<jobject>(user);
    jclass cls = env->GetObjectClass(listener);
    jmethodID invoke = env->GetMethodID(cls, "invoke", kMediaSignature);
    CallWithArrays(env, listener, invoke, h, seq, type, node, param, data, len);
    env->DeleteLocalRef(cls);
    g_vm->DetachCurrentThread();
    return 0;
}

// The limit of any design: the thread attached once, the method known; per event only the two
// arrays and the call.
struct KeptThread {
    JNIEnv* env = nullptr;
    ~KeptThread() {
        if (env != nullptr) {
            g_vm->DetachCurrentThread();
        }
    }
};

jmethodID g_knownInvoke = nullptr;

int32_t AttachedOnceLimit(int32_t h, int32_t seq, int32_t type, const char* node, int32_t param,
                          char* data, int32_t len, void* user) {
    thread_local KeptThread kept;
    if (kept.env == nullptr) {
        g_vm->AttachCurrentThreadAsDaemon(reinterpret_cast<void**>(&kept.env), nullptr);
    }
    CallWithArrays(kept.env, static_cast<jobject>(user), g_knownInvoke, h, seq, type, node, param,
                   data, len);
    return 0;
}

}  // namespace

extern "C" {

// Plays `threads` library threads at once, each delivering `events` media events of `dataLen`
// bytes to `fn` with `user`; returns the nanoseconds from the first thread's start to the last
// one's end, and stores in *cpuNanos (unless null) the processor time the threads used, which a
// busy machine inflates far less. Called from Java directly and through JNA (which hands its
// own callbacks in).
__attribute__((visibility("default"))) int64_t orvexbench_drive(void* fn, void* user,
                                                                int32_t events, int32_t dataLen,
                                                                int32_t threads,
                                                                int64_t* cpuNanos) {
    const auto callback = reinterpret_cast<MediaCallback>(fn);
    std::vector<char> frame(static_cast<std::size_t>(dataLen > 0 ? dataLen : 1), 'x');
    std::vector<int64_t> cpu(static_cast<std::size_t>(threads > 0 ? threads : 0));
    const auto start = std::chrono::steady_clock::now();
    std::vector<std::thread> pool;
    for (int32_t t = 0; t < threads; ++t) {
        pool.emplace_back([&, t] {
            const int64_t before = ThreadCpuNanos();
            for (int32_t e = 0; e < events; ++e) {
                callback(1, t, 2, kNodeId, e, frame.data(), dataLen, user);
            }
            cpu[static_cast<std::size_t>(t)] = ThreadCpuNanos() - before;
        });
    }
    for (std::thread& t : pool) {
        t.join();
    }
    const int64_t wall = std::chrono::duration_cast<std::chrono::nanoseconds>(
                             std::chrono::steady_clock::now() - start)
                             .count();
    if (cpuNanos != nullptr) {
        *cpuNanos = 0;
        for (const int64_t c : cpu) {
            *cpuNanos += c;
        }
    }
    return wall;
}

JNIEXPORT jint JNICALL JNI_OnLoad(JavaVM* vm, void* /*reserved*/) {
    g_vm = vm;
    return JNI_VERSION_1_6;
}

JNIEXPORT jint JNICALL Java_orvexbench_Natives_empty(JNIEnv* /*env*/, jclass /*cls*/, jint /*a*/,
                                                     jint /*b*/, jint /*c*/) {
    return 0;
}

JNIEXPORT void JNICALL Java_orvexbench_Natives_drive(JNIEnv* env, jclass /*cls*/, jlong fn,
                                                     jlong user, jint events, jint dataLen,
                                                     jint threads, jlongArray wallAndCpu) {
    int64_t cpu = 0;
    const int64_t wall = orvexbench_drive(reinterpret_cast<void*>(fn),
                                          reinterpret_cast<void*>(user), events, dataLen, threads,
                                          &cpu);
    const jlong out[2] = {wall, cpu};
    env->SetLongArrayRegion(wallAndCpu, 0, 2, out);
}

// The stand-in's own share of a scalar native: its function called n times from C.
JNIEXPORT jint JNICALL Java_orvexbench_Natives_standIn(JNIEnv* /*env*/, jclass /*cls*/, jint n) {
    jint sum = 0;
    for (jint i = 0; i < n; ++i) {
        sum += ORVEX_CloseRealStreamBySeq(1, i, 0);
    }
    return sum;
}

// The callback the stand-in keeps for media stream (handle, seq): [function, user data], or
// zeros when none is registered.
JNIEXPORT jlongArray JNICALL Java_orvexbench_Natives_streamCallback(JNIEnv* env, jclass /*cls*/,
                                                                    jint handle, jint seq) {
    orvexsim::Registration reg;
    if (!orvexsim::lookup(orvexsim::CbKind::MediaData, handle, seq, &reg)) {
        reg = {};
    }
    const jlong pair[2] = {static_cast<jlong>(reinterpret_cast<intptr_t>(reg.fn)),
                           static_cast<jlong>(reinterpret_cast<intptr_t>(reg.user))};
    jlongArray out = env->NewLongArray(2);
    env->SetLongArrayRegion(out, 0, 2, pair);
    return out;
}

// The baselines' function and a global reference for their user data (kept for the process,
// as the bridge keeps its listeners).
JNIEXPORT jlongArray JNICALL Java_orvexbench_Natives_baseline(JNIEnv* env, jclass /*cls*/,
                                                              jboolean attachedOnce,
                                                              jobject listener) {
    jobject global = env->NewGlobalRef(listener);
    jclass cls = env->GetObjectClass(listener);
    g_knownInvoke = env->GetMethodID(cls, "invoke", kMediaSignature);
    env->DeleteLocalRef(cls);
    const MediaCallback fn = attachedOnce ? AttachedOnceLimit : BareFloor;
    const jlong pair[2] = {static_cast<jlong>(reinterpret_cast<intptr_t>(fn)),
                           static_cast<jlong>(reinterpret_cast<intptr_t>(global))};
    jlongArray out = env->NewLongArray(2);
    env->SetLongArrayRegion(out, 0, 2, pair);
    return out;
}

}  // extern "C"
