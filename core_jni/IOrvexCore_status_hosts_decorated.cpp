// ORVEX_GetDevicesInfoLen, exported under its C++ (type-decorated) symbol and not under its JNI
// name: the virtual machine never binds it, so Java callers get UnsatisfiedLinkError, as the
// delivered interface always has. This file must not include the generated
// com_zq_OrvexCore_IOrvexCore.h: its extern "C" declaration of this name would give the
// definition below C linkage and with it the JNI name.
#include <jni.h>

#include <cstdint>

#include "BridgeFrame.h"
#include "NativeShapes.h"
#include "ORVEX_Core.h"

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetDevicesInfoLen(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbReturnValue) {
    return StoreResult(ValueIntoHolder<int32_t>(
        env, jbReturnValue, "jbReturnValue",
        [&](int32_t* pnLen) { return ORVEX_GetDevicesInfoLen(jiHandle, pnLen); }));
}
