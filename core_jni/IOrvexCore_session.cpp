// Client instance and diagnostics, login and user account.
#include <com_zq_OrvexCore_IOrvexCore.h>

#include <cstdio>
#include <cstring>

#include "BridgeFrame.h"
#include "JniKits.h"
#include "NativeShapes.h"
#include "ORVEX_Core.h"

namespace {

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

}  // namespace

extern "C" {

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1Create(JNIEnv* env, jclass /*thiz*/,
                                                                      jint nType,
                                                                      jobject jbReturnValue) {
    // Without a holder the new handle could not reach Java and the instance would be lost.
    if (IsNullArg(env, jbReturnValue, "jbReturnValue")) {
        return RefuseInput();
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

}  // extern "C"
