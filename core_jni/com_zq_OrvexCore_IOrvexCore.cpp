// Load entry points, the bridge's globals, and the native methods of
// com.zq.OrvexCore.IOrvexCore that manage the client instance itself.
#include "com_zq_OrvexCore_IOrvexCore.h"

#include <cstdio>
#include <cstring>

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

// Shared by ORVEX_SetLog and ORVEX_StartMonitor: both hand the library a file name copied out of
// a Java byte array.
template <typename Call>
jint WithFileName(JNIEnv* env, jbyteArray jbFileName, const char* method, Call call) {
    if (jbFileName == nullptr) {
        return StoreResult(ORVEX_CORE_ERROR_INVALID_PARAM);
    }
    const jsize nSize = env->GetArrayLength(jbFileName);
    if (nSize < 1) {
        std::printf("###### ddd: %s env->GetArrayLength(jbFileName) <= 0", method);
        std::fflush(stdout);
        return StoreResult(ORVEX_CORE_ERROR_INVALID_PARAM);
    }
    // Neither the pinned bytes nor the copy are ever released: the library is handed the copy
    // and may keep the pointer for as long as it logs.
    jbyte* pBytes = env->GetByteArrayElements(jbFileName, nullptr);
    char* szFileName = new char[nSize + 1];
    std::memcpy(szFileName, pBytes, nSize);
    szFileName[nSize] = '\0';
    std::printf("###### ddd: %s(%s)", method, szFileName);
    std::fflush(stdout);
    StoreResult(call(szFileName));
    return LastResult();
}

// Whether a listener setter fills g_jvm from its caller when it is still null. The talk-parameter
// setter never has, and Java code may depend on registering it first without that side effect.
enum class FillJvm { Yes, No };

// Registers a Java listener with the library: a null listener switches the kind off with
// (handle, null, null); otherwise the trampoline goes with a new global reference as user data.
// The reference is never deleted, not when replaced, switched off or refused by the library:
// the library may still hold it and call with it from its threads.
template <typename Pfn>
jint RegisterListener(JNIEnv* env, jint jiHandle, jobject listener,
                      int32_t (*registerFn)(int32_t, Pfn, void*), Pfn trampoline,
                      FillJvm fillJvm = FillJvm::Yes) {
    if (fillJvm == FillJvm::Yes && g_jvm.load(std::memory_order_relaxed) == nullptr) {
        JavaVM* vm = nullptr;
        env->GetJavaVM(&vm);
        g_jvm.store(vm, std::memory_order_relaxed);
    }
    if (listener == nullptr) {
        return StoreResult(registerFn(jiHandle, nullptr, nullptr));
    }
    jobject globalListener = env->NewGlobalRef(listener);
    if (globalListener == nullptr) {
        return StoreResult(ORVEX_CORE_ERROR_INVALID_PARAM);
    }
    return StoreResult(registerFn(jiHandle, trampoline, globalListener));
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
    return JNI_VERSION_1_6;
}

// The class references live as long as the process; there is nothing to tear down.
JNIEXPORT void JNICALL JNI_OnUnload(JavaVM* /*vm*/, void* /*reserved*/) {}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1Create(JNIEnv* env, jclass /*thiz*/,
                                                                      jint nType,
                                                                      jobject jbReturnValue) {
    // Without a holder the new handle could not reach Java and the instance would be lost.
    if (jbReturnValue == nullptr) {
        CJniKits::ThrowNull(env, "jbReturnValue");
        return StoreResult(ORVEX_CORE_ERROR_INVALID_PARAM);
    }
    const auto sdkType = static_cast<orvex_sdk_type_e>(nType);
    int32_t nSdkHandle = 0;
    const int nResult = ORVEX_Create(sdkType, &nSdkHandle);
    StoreResult(nResult);
    if (nResult == ORVEX_RET_SUCCESS) {
        SetReturnValue(env, jbReturnValue, nSdkHandle);
    }
    return LastResult();
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1Destroy(JNIEnv* /*env*/,
                                                                       jclass /*thiz*/,
                                                                       jint nPDLLHandle) {
    return StoreResult(ORVEX_Destroy(nPDLLHandle));
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SetLog(JNIEnv* env, jclass /*thiz*/,
                                                                      jint nPDLLHandle,
                                                                      jbyteArray jbFileName) {
    return WithFileName(env, jbFileName, "ORVEX_SetLog", [&](const char* szFileName) {
        return ORVEX_SetLog(nPDLLHandle, ORVEX_LOG_LEVEL_DEBUG, szFileName, 0, 0);
    });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1StartMonitor(JNIEnv* env,
                                                                            jclass /*thiz*/,
                                                                            jint nPDLLHandle,
                                                                            jbyteArray jbFileName) {
    return WithFileName(env, jbFileName, "ORVEX_StartMonitor", [&](const char* szFileName) {
        return ORVEX_StartMonitor(nPDLLHandle, szFileName);
    });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SetCompressType(
    JNIEnv* /*env*/, jclass /*thiz*/, jint jiHandle, jint jiCompressType) {
    return StoreResult(ORVEX_SetCompressType(
        jiHandle, static_cast<orvex_get_devinfo_compress_type_e>(jiCompressType)));
}

// Listener setters.

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SetORVEXStatusCallback(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbStatusCallback) {
    return RegisterListener(env, jiHandle, jbStatusCallback, ORVEX_SetORVEXStatusCallback,
                            CSDKCB::fORVEXStatusCallback);
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SetORVEXDeviceChangeCallback(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbDeviceChangeCallback) {
    return RegisterListener(env, jiHandle, jbDeviceChangeCallback,
                            ORVEX_SetORVEXDeviceChangeCallback, CSDKCB::fORVEXDeviceChangeCallback);
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SetORVEXDeviceStatusCallback(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbDevStatusCallback) {
    return RegisterListener(env, jiHandle, jbDevStatusCallback, ORVEX_SetORVEXDeviceStatusCallback,
                            CSDKCB::fORVEXDevStatusCallback);
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SetORVEXAlarmCallback(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbAlarmCallback) {
    return RegisterListener(env, jiHandle, jbAlarmCallback, ORVEX_SetORVEXAlarmCallback,
                            CSDKCB::fORVEXAlarmCallback);
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SetORVEXTalkParamCallback(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbTalkParamCallback) {
    return RegisterListener(env, jiHandle, jbTalkParamCallback, ORVEX_SetORVEXTalkParamCallback,
                            CSDKCB::fORVEXTalkParamCallback, FillJvm::No);
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SetORVEXRemoteDeviceSnapCallback(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbRemoteDeviceSnapCallback) {
    return RegisterListener(env, jiHandle, jbRemoteDeviceSnapCallback,
                            ORVEX_SetORVEXRemoteDeviceSnapCallback,
                            CSDKCB::fORVEXRemoteDeviceSnapCallback);
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SetVideoAlarmHostStatusCallback(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject joVideoAlarmHostStatusCallback) {
    return RegisterListener(env, jiHandle, joVideoAlarmHostStatusCallback,
                            ORVEX_SetVideoAlarmHostStatusCallback,
                            CSDKCB::fORVEXVideoAlarmHostStatusCallback);
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SetNetAlarmHostStatusCallback(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject joNetAlarmHostStatusCallback) {
    return RegisterListener(env, jiHandle, joNetAlarmHostStatusCallback,
                            ORVEX_SetNetAlarmHostStatusCallback,
                            CSDKCB::fORVEXNetAlarmHostStatusCallback);
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SetBroadcastReportStatusCallback(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject joBroadcastReportStatusCallback) {
    return RegisterListener(env, jiHandle, joBroadcastReportStatusCallback,
                            ORVEX_SetBroadcastReportStatusCallback,
                            CSDKCB::fORVEXBroadcastReportStatusCallback);
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SetGeneralJsonTransportCallback(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbGeneralJsonTransportCallback) {
    return RegisterListener(env, jiHandle, jbGeneralJsonTransportCallback,
                            ORVEX_SetGeneralJsonTransportCallback,
                            CSDKCB::fORVEXGeneralJsonTransportCallback);
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SetORVEXNVRChnlStatusCallback(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject joORVEXNVRChnlStatusCallback) {
    return RegisterListener(env, jiHandle, joORVEXNVRChnlStatusCallback,
                            ORVEX_SetORVEXNVRChnlStatusCallback,
                            CSDKCB::fORVEXNVRChnlStatusCallback);
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SetPecDoorStatusCallback(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject joORVEXPecDoorStarusCallBack) {
    return RegisterListener(env, jiHandle, joORVEXPecDoorStarusCallBack,
                            ORVEX_SetPecDoorStatusCallback, CSDKCB::fORVEXPecDoorStarusCallBack);
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SetShareVideoCallback(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbShareVideoCallback) {
    return RegisterListener(env, jiHandle, jbShareVideoCallback, ORVEX_SetShareVideoCallback,
                            CSDKCB::fORVEXShareVideoCallback);
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SetORVEXGetBayCarInfoCallbackEx(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbBayCarInfoEx) {
    return RegisterListener(env, jiHandle, jbBayCarInfoEx, ORVEX_SetORVEXGetBayCarInfoCallbackEx,
                            CSDKCB::fORVEXGetBayCarInfoCallbackEx);
}

}  // extern "C"
