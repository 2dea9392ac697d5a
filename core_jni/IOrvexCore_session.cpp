// Client instance and diagnostics, login and user account.
#include <com_zq_OrvexCore_IOrvexCore.h>

#include <cstdio>
#include <cstring>
#include <memory>

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

// Sets a java.lang.String field of a value object; the string's local reference goes with it.
void SetStringField(JNIEnv* env, jobject valueObject, const char* classPath, const char* fieldName,
                    const char* szText) {
    CJniKits::ExceptionStash stash(env);
    CJniKits::ScopedLocalRef<jstring> text(env, env->NewStringUTF(szText));
    if (text.get() == nullptr) {
        return;  // OutOfMemoryError is pending
    }
    LocalClass cls = FindValueClass(env, classPath);
    if (cls.get() == nullptr) {
        return;  // NoClassDefFoundError is pending
    }
    jfieldID fid = env->GetFieldID(cls.get(), fieldName, "Ljava/lang/String;");
    if (fid != nullptr) {
        env->SetObjectField(valueObject, fid, text.get());
    }
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

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1Login(JNIEnv* env, jclass /*thiz*/,
                                                                     jint jiHandle,
                                                                     jobject jbloginInfo,
                                                                     jint jiTimeout) {
    // szIMEINo and szPhonetype are never filled; "szPhoneNum" has always gone into szCheckBit.
    return SendRequest<Login_Info_t>(
        env, jbloginInfo, "com/zq/OrvexCore/Login_Info_t",
        [&](jclass cls, Login_Info_t& info) {
            CJniKits::GetStuByteArrayField(env, jbloginInfo, cls, "szIp", info.szIp);
            info.nPort = IntFieldAs<uint32_t>(env, jbloginInfo, cls, "nPort");
            CJniKits::GetStuByteArrayField(env, jbloginInfo, cls, "szUsername", info.szUsername);
            CJniKits::GetStuByteArrayField(env, jbloginInfo, cls, "szPassword", info.szPassword);
            info.nProtocol = static_cast<orvex_protocol_version_e>(
                CJniKits::GetStuIntField(env, jbloginInfo, cls, "nProtocol"));
            info.iType = IntFieldAs<uint32_t>(env, jbloginInfo, cls, "iType");
            CJniKits::GetStuByteArrayField(env, jbloginInfo, cls, "szPhoneNum", info.szCheckBit);
        },
        [&](Login_Info_t* pInfo) { return ORVEX_Login(jiHandle, pInfo, jiTimeout); });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1Logout(JNIEnv* /*env*/,
                                                                      jclass /*thiz*/,
                                                                      jint jiHandle,
                                                                      jint jiTimeout) {
    return StoreResult(ORVEX_Logout(jiHandle, jiTimeout));
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetUserID(JNIEnv* env,
                                                                         jclass /*thiz*/,
                                                                         jint jiHandle,
                                                                         jobject jbReturnValue) {
    return ReturnThroughHolder<uint32_t>(env, jbReturnValue, 0, [&](uint32_t* pnUserId) {
        return ORVEX_GetUserID(jiHandle, pnUserId);
    });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetUserLevel(JNIEnv* env,
                                                                            jclass /*thiz*/,
                                                                            jint jiHandle,
                                                                            jobject jbReturnValue) {
    return ReturnThroughHolder<uint32_t>(env, jbReturnValue, 0, [&](uint32_t* pnUserLevel) {
        return ORVEX_GetUserLevel(jiHandle, pnUserLevel);
    });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1ChangeUserPassword(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jbyteArray jbOldPsw, jbyteArray jbNewPsw,
    jint jiTimeOut) {
    if (jbOldPsw == nullptr || jbNewPsw == nullptr) {
        return RefuseInput();
    }
    // Empty passwords go through as empty strings. The pinned Java bytes have never been
    // released here; the copies are freed.
    const TextArgument oldPsw(env, jbOldPsw, TextCopy::Freed, PinnedBytes::Kept);
    const TextArgument newPsw(env, jbNewPsw, TextCopy::Freed, PinnedBytes::Kept);
    return StoreResult(
        ORVEX_ChangeUserPassword(jiHandle, oldPsw.c_str(), newPsw.c_str(), jiTimeOut));
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetMapAddrInfo(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbMapAddrInfo, jint jiTimeOut) {
    if (IsNullArg(env, jbMapAddrInfo, "jbMapAddrInfo")) {
        return RefuseInput();
    }
    Config_Emap_Addr_Info_t info = Zeroed<Config_Emap_Addr_Info_t>();
    StoreResult(ORVEX_GetMapAddrInfo(jiHandle, &info, jiTimeOut));
    // Written whatever the result: a failed call hands Java the zeros of the cleared record.
    LocalClass cls = FindValueClass(env, "com/zq/OrvexCore/Config_Emap_Addr_Info_t");
    CJniKits::SetStuByteArrayField(env, jbMapAddrInfo, cls.get(), "szIP", info.szIP,
                                   sizeof(info.szIP));
    CJniKits::SetStuIntField(env, jbMapAddrInfo, cls.get(), "nPort", info.nPort);
    return LastResult();
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetUserInfo(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject joUserInfo, jint jiTimeout) {
    if (joUserInfo == nullptr) {
        return RefuseInput();
    }
    ORVEX_UserInfo_t info = Zeroed<ORVEX_UserInfo_t>();
    const int nResult = ORVEX_GetUserInfo(jiHandle, &info, jiTimeout);
    StoreResult(nResult);
    if (nResult == ORVEX_RET_SUCCESS) {
        LocalClass cls = FindValueClass(env, "com/zq/OrvexCore/ORVEX_UserInfo_t");
        CJniKits::SetStuIntField(env, joUserInfo, cls.get(), "iUserId", info.iUserId);
        CJniKits::SetStuIntField(env, joUserInfo, cls.get(), "iUserLevel", info.iUserLevel);
        CJniKits::SetStuBoolField(env, joUserInfo, cls.get(), "iUserOperFlag", info.iUserOperFlag);
        // Unlike every other record, these texts have always gone across at their strlen: the
        // Java arrays keep their old bytes after the text.
        CJniKits::SetStuByteArrayField(env, joUserInfo, cls.get(), "szCoding", info.szCoding,
                                       TextLength(info.szCoding));
        CJniKits::SetStuByteArrayField(env, joUserInfo, cls.get(), "szCodeName", info.szCodeName,
                                       TextLength(info.szCodeName));
    }
    return LastResult();
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetUserOrgInfo(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject joUserOrgInfo, jint jiTimeout) {
    if (joUserOrgInfo == nullptr) {
        return RefuseInput();
    }
    int32_t nLen = 0;
    if (StoreResult(ORVEX_GetUserOrgInfoLen(jiHandle, &nLen, jiTimeout)) != ORVEX_RET_SUCCESS) {
        return LastResult();
    }
    // One byte more than the library is told of, always 0: the text is terminated for
    // NewStringUTF even when the library fills all nLen bytes or nLen is 0.
    std::unique_ptr<char[]> buffer = NewRecords<char>(env, WithTerminator(nLen));
    if (!buffer) {
        return RefuseInput();
    }
    // The second call has always waited a fixed 10 s, whatever time-out the caller gave.
    constexpr int32_t kOrgInfoTimeoutMs = 10000;
    if (StoreResult(ORVEX_GetUserOrgInfo(jiHandle, buffer.get(), nLen, kOrgInfoTimeoutMs)) !=
        ORVEX_RET_SUCCESS) {
        static_cast<void>(
            buffer.release());  // never freed on this path; the library may still hold it
        return LastResult();
    }
    SetStringField(env, joUserOrgInfo, "com/zq/OrvexCore/GetUserOrgInfo", "strUserOrgInfo",
                   buffer.get());
    return LastResult();
}

}  // extern "C"
