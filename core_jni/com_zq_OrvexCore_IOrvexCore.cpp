// Load entry points, the bridge's process-wide globals and the result holder shared by every
// native method. The natives themselves live in IOrvexCore_<subsystem>.cpp, one file per
// section of IOrvexCore.java.
#include <cstdio>
#include <cstring>

#include "BridgeFrame.h"
#include "EventThreads.h"
#include "JniKits.h"
#include "ORVEX_Core.h"
#include "SDKCallback.h"

std::atomic<JavaVM*> g_jvm{nullptr};
std::atomic<int> g_nLastError{0};
jclass g_clsShareVideoInfo = nullptr;
jclass g_clsDataChangeInfo = nullptr;

void SetReturnValue(JNIEnv* env, jobject holder, int nValue) {
    Return_Value_Info_t value;
    std::memset(&value, 0, sizeof(value));
    value.nReturnValue = nValue;
    jclass cls = env->FindClass("com/zq/OrvexCore/Return_Value_Info_t");
    CJniKits::SetStuIntField(env, holder, cls, "nReturnValue", value.nReturnValue);
    if (cls != nullptr) {
        env->DeleteLocalRef(cls);
    }
}

namespace {

// A global reference to an application class, or null (with NoClassDefFoundError pending) when
// the class is not on the class path; loading goes on either way.
jclass GlobalClass(JNIEnv* env, const char* name) {
    CJniKits::ExceptionStash stash(env);
    jclass local = env->FindClass(name);
    if (local == nullptr) {
        return nullptr;
    }
    auto global = static_cast<jclass>(env->NewGlobalRef(local));
    env->DeleteLocalRef(local);
    return global;
}

}  // namespace

extern "C" {

JNIEXPORT jint JNICALL JNI_OnLoad(JavaVM* vm, void* /*reserved*/) {
    g_jvm.store(vm, std::memory_order_relaxed);
    std::printf("g_jvm = vm\n");
    std::fflush(stdout);
    JNIEnv* env = nullptr;
    vm->GetEnv(reinterpret_cast<void**>(&env), JNI_VERSION_1_6);
    if (env == nullptr) {
        return JNI_VERSION_1_6;
    }
    g_clsShareVideoInfo = GlobalClass(env, "com/zq/OrvexCore/ShareVideoInfo");
    g_clsDataChangeInfo = GlobalClass(env, "com/zq/OrvexCore/UserDataChange_t");
    ReadEventThreadMode(env);
    return JNI_VERSION_1_6;
}

// The class references live as long as the process; there is nothing to tear down.
JNIEXPORT void JNICALL JNI_OnUnload(JavaVM* /*vm*/, void* /*reserved*/) {}

}  // extern "C"
