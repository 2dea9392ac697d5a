// Listener registration: one setter per callback kind, each handing the library the kind's
// trampoline and a global reference to the Java listener.
#include <com_zq_OrvexCore_IOrvexCore.h>

#include "BridgeFrame.h"
#include "JniKits.h"
#include "NativeShapes.h"
#include "ORVEX_Core.h"
#include "SDKCallback.h"

namespace {

// Whether a listener setter fills g_jvm from its caller when it is still null. The talk-parameter
// setter never has, and Java code may depend on registering it first without that side effect.
enum class FillJvm { Yes, No };

// Registers a Java listener with the library: a null listener switches the kind off with
// (handle, null, null); otherwise the trampoline goes with a new global reference as user data.
// The reference is never deleted, not when replaced, switched off or refused by the library:
// the library may still hold it and call with it from its threads.
template <typename Pfn>
jint RegisterListener(JNIEnv* env, jint jiHandle, jobject listener, const ListenerKind& kind,
                      int32_t (*registerFn)(int32_t, Pfn, void*), Pfn trampoline,
                      FillJvm fillJvm = FillJvm::Yes) {
    if (fillJvm == FillJvm::Yes) {
        FillJvmIfUnset(env);
    }
    if (listener == nullptr) {
        return StoreResult(registerFn(jiHandle, nullptr, nullptr));
    }
    if (!ListenerFits(env, listener, kind)) {
        return RefuseInput();
    }
    jobject globalListener = env->NewGlobalRef(listener);
    if (globalListener == nullptr) {
        return StoreResult(ORVEX_CORE_ERROR_INVALID_PARAM);
    }
    return StoreResult(registerFn(jiHandle, trampoline, globalListener));
}

}  // namespace

extern "C" {

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SetORVEXStatusCallback(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbStatusCallback) {
    return RegisterListener(env, jiHandle, jbStatusCallback, listener_kinds::kStatus,
                            ORVEX_SetORVEXStatusCallback, CSDKCB::fORVEXStatusCallback);
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SetORVEXDeviceChangeCallback(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbDeviceChangeCallback) {
    return RegisterListener(env, jiHandle, jbDeviceChangeCallback, listener_kinds::kDeviceChange,
                            ORVEX_SetORVEXDeviceChangeCallback, CSDKCB::fORVEXDeviceChangeCallback);
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SetORVEXDeviceStatusCallback(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbDevStatusCallback) {
    return RegisterListener(env, jiHandle, jbDevStatusCallback, listener_kinds::kDevStatus,
                            ORVEX_SetORVEXDeviceStatusCallback, CSDKCB::fORVEXDevStatusCallback);
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SetORVEXAlarmCallback(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbAlarmCallback) {
    return RegisterListener(env, jiHandle, jbAlarmCallback, listener_kinds::kAlarm,
                            ORVEX_SetORVEXAlarmCallback, CSDKCB::fORVEXAlarmCallback);
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SetORVEXTalkParamCallback(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbTalkParamCallback) {
    return RegisterListener(env, jiHandle, jbTalkParamCallback, listener_kinds::kTalkParam,
                            ORVEX_SetORVEXTalkParamCallback, CSDKCB::fORVEXTalkParamCallback,
                            FillJvm::No);
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SetORVEXRemoteDeviceSnapCallback(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbRemoteDeviceSnapCallback) {
    return RegisterListener(
        env, jiHandle, jbRemoteDeviceSnapCallback, listener_kinds::kRemoteDeviceSnap,
        ORVEX_SetORVEXRemoteDeviceSnapCallback, CSDKCB::fORVEXRemoteDeviceSnapCallback);
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SetVideoAlarmHostStatusCallback(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject joVideoAlarmHostStatusCallback) {
    return RegisterListener(
        env, jiHandle, joVideoAlarmHostStatusCallback, listener_kinds::kVideoAlarmHostStatus,
        ORVEX_SetVideoAlarmHostStatusCallback, CSDKCB::fORVEXVideoAlarmHostStatusCallback);
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SetNetAlarmHostStatusCallback(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject joNetAlarmHostStatusCallback) {
    return RegisterListener(
        env, jiHandle, joNetAlarmHostStatusCallback, listener_kinds::kNetAlarmHostStatus,
        ORVEX_SetNetAlarmHostStatusCallback, CSDKCB::fORVEXNetAlarmHostStatusCallback);
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SetBroadcastReportStatusCallback(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject joBroadcastReportStatusCallback) {
    return RegisterListener(
        env, jiHandle, joBroadcastReportStatusCallback, listener_kinds::kBroadcastReportStatus,
        ORVEX_SetBroadcastReportStatusCallback, CSDKCB::fORVEXBroadcastReportStatusCallback);
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SetGeneralJsonTransportCallback(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbGeneralJsonTransportCallback) {
    return RegisterListener(
        env, jiHandle, jbGeneralJsonTransportCallback, listener_kinds::kGeneralJsonTransport,
        ORVEX_SetGeneralJsonTransportCallback, CSDKCB::fORVEXGeneralJsonTransportCallback);
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SetORVEXNVRChnlStatusCallback(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject joORVEXNVRChnlStatusCallback) {
    return RegisterListener(env, jiHandle, joORVEXNVRChnlStatusCallback,
                            listener_kinds::kNVRChnlStatus, ORVEX_SetORVEXNVRChnlStatusCallback,
                            CSDKCB::fORVEXNVRChnlStatusCallback);
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SetPecDoorStatusCallback(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject joORVEXPecDoorStarusCallBack) {
    return RegisterListener(env, jiHandle, joORVEXPecDoorStarusCallBack,
                            listener_kinds::kPecDoorStatus, ORVEX_SetPecDoorStatusCallback,
                            CSDKCB::fORVEXPecDoorStarusCallBack);
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SetShareVideoCallback(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbShareVideoCallback) {
    return RegisterListener(env, jiHandle, jbShareVideoCallback, listener_kinds::kShareVideo,
                            ORVEX_SetShareVideoCallback, CSDKCB::fORVEXShareVideoCallback);
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SetORVEXGetBayCarInfoCallbackEx(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbBayCarInfoEx) {
    return RegisterListener(env, jiHandle, jbBayCarInfoEx, listener_kinds::kBayCarInfoEx,
                            ORVEX_SetORVEXGetBayCarInfoCallbackEx,
                            CSDKCB::fORVEXGetBayCarInfoCallbackEx);
}

}  // extern "C"
