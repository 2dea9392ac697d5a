// JSON and message transport to the platform's modules; video sharing and on-screen text.
#include <com_zq_OrvexCore_IOrvexCore.h>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <new>

#include "BridgeFrame.h"
#include "JniKits.h"
#include "NativeShapes.h"
#include "ORVEX_Core.h"

namespace {

// The body of the two JSON commands: the JSON text goes out NUL-terminated, and the answer
// comes back through a buffer one byte longer than the Java answer array, which the library is
// not told. A null array is refused with 1009; an empty JSON text or answer array returns the
// previous result without a call, as callers have always seen.
template <typename Call>
jint JsonCommand(JNIEnv* env, jbyteArray jbJson, jbyteArray jbJsonResult, Call call) {
    if (jbJson == nullptr || jbJsonResult == nullptr) {
        return RefuseInput();
    }
    const jsize nAnswerLength = env->GetArrayLength(jbJsonResult);
    if (env->GetArrayLength(jbJson) < 1 || nAnswerLength < 1) {
        return LastResult();
    }
    const std::size_t nAnswerSize = static_cast<std::size_t>(nAnswerLength) + 1;
    std::unique_ptr<char[]> answer(new (std::nothrow) char[nAnswerSize]);
    if (!answer) {
        CJniKits::ThrowOutOfMemory(env, "JSON answer buffer");
        return RefuseInput();
    }
    // Only the first four bytes are cleared (never past the buffer's end, which for a one- or
    // two-byte answer array is nearer): what the library leaves beyond its answer reaches Java
    // as the buffer held it.
    std::memset(answer.get(), 0, std::min<std::size_t>(4, nAnswerSize));
    TextArgument json(env, jbJson);
    StoreResult(call(json.c_str(), answer.get()));
    // Whatever the result, the whole answer array is overwritten.
    env->SetByteArrayRegion(jbJsonResult, 0, nAnswerLength,
                            reinterpret_cast<const jbyte*>(answer.get()));
    return LastResult();
}

void ReadShareVideo(JNIEnv* env, jobject jo, jclass cls, ShareVideoInfo& video) {
    CJniKits::GetStuByteArrayField(env, jo, cls, "szCameraId", video.szCameraId);
    video.nType = CJniKits::GetStuIntField(env, jo, cls, "nType");
    video.nSubStream = CJniKits::GetStuIntField(env, jo, cls, "nSubStream");
    video.nIsMobile = CJniKits::GetStuIntField(env, jo, cls, "nIsMobile");
    video.nPlanId = static_cast<uint64_t>(CJniKits::GetStuLongField(env, jo, cls, "nPlanId"));
    video.nPlaybacktime =
        static_cast<uint64_t>(CJniKits::GetStuLongField(env, jo, cls, "nPlaybacktime"));
}

}  // namespace

extern "C" {

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SendCammandToCMSByJson(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jbyteArray jbJson, jbyteArray jbJsonResult,
    jint jiTimeout) {
    return JsonCommand(env, jbJson, jbJsonResult, [&](const char* szJson, char* szJsonResult) {
        return ORVEX_SendCammandToCMSByJson(jiHandle, szJson, szJsonResult, jiTimeout);
    });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SendCammandToDMSByJson(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jbyteArray jbJson, jbyteArray jbCameraId,
    jbyteArray jbJsonResult, jint jiTimeout) {
    if (jbCameraId == nullptr) {
        return RefuseInput();
    }
    // An empty camera identifier is sent as the empty string.
    return JsonCommand(env, jbJson, jbJsonResult, [&](const char* szJson, char* szJsonResult) {
        TextArgument cameraId(env, jbCameraId);
        return ORVEX_SendCammandToDMSByJson(jiHandle, szJson, cameraId.c_str(), szJsonResult,
                                            jiTimeout);
    });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GeneralJsonTransport(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jbyteArray jbJson, jint mdltype, jint trantype,
    jint jiTimeout) {
    if (jbJson == nullptr) {  // answered with 1009 alone, as callers have always seen
        return RefuseInput();
    }
    return WithText(env, jbJson, "jbJson", EmptyText::KeepLastResult, [&](const char* szJson) {
        return ORVEX_GeneralJsonTransport(jiHandle, szJson, static_cast<orvex_mdl_type_e>(mdltype),
                                          static_cast<generaljson_trantype_e>(trantype), jiTimeout);
    });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SendScsMsg(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jbyteArray jbGroupId, jbyteArray jbStrText,
    jint jiTimeout) {
    if (jbGroupId == nullptr || jbStrText == nullptr) {
        return RefuseInput();
    }
    // Empty texts are sent as empty strings.
    TextArgument groupId(env, jbGroupId);
    TextArgument text(env, jbStrText);
    return StoreResult(ORVEX_SendScsMsg(jiHandle, groupId.c_str(), text.c_str(), jiTimeout));
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1ShareVideo(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobjectArray joVideoInfoArray,
    jintArray jiUserIdArray, jbyteArray jbMsg, jint jiTimeout) {
    if (joVideoInfoArray == nullptr || jiUserIdArray == nullptr || jbMsg == nullptr) {
        return RefuseInput();
    }
    const jsize nVideoCount = env->GetArrayLength(joVideoInfoArray);
    // The records are not cleared: each camera identifier is its Java array's bytes alone, so
    // callers pass 64-byte arrays (or ones ending in a zero byte), as they always have.
    std::unique_ptr<ShareVideoInfo[]> videos(
        new (std::nothrow) ShareVideoInfo[static_cast<std::size_t>(nVideoCount)]);
    if (!videos) {
        CJniKits::ThrowOutOfMemory(env, "shared video records");
        return RefuseInput();
    }
    {
        // A fresh look-up: the global class reference is for the library's threads.
        LocalClass cls = FindValueClass(env, "com/zq/OrvexCore/ShareVideoInfo");
        ForEachElement(env, joVideoInfoArray, nVideoCount, [&](jsize i, jobject video) {
            ReadShareVideo(env, video, cls.get(), videos[static_cast<std::size_t>(i)]);
        });
    }
    if (InputFailed(env)) {
        return RefuseInput();
    }
    const jsize nUserCount = env->GetArrayLength(jiUserIdArray);
    jint* userIds = env->GetIntArrayElements(jiUserIdArray, nullptr);
    if (userIds == nullptr) {
        return RefuseInput();  // OutOfMemoryError is pending
    }
    TextArgument msg(env, jbMsg);
    StoreResult(ORVEX_ShareVideo(jiHandle, videos.get(), nVideoCount, userIds, nUserCount,
                                 msg.c_str(), jiTimeout));
    env->ReleaseIntArrayElements(jiUserIdArray, userIds, 0);
    return LastResult();
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SendOSDInfo(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject joOpeInfo, jint jiTimeout) {
    if (joOpeInfo == nullptr) {
        return RefuseInput();
    }
    return SendRequest<Send_OSDInfo_t>(
        env, joOpeInfo, "com/zq/OrvexCore/Send_OSDInfo_t",
        [&](jclass cls, Send_OSDInfo_t& osd) {
            CJniKits::GetStuByteArrayField(env, joOpeInfo, cls, "szDevId", osd.szDevId);
            CJniKits::GetStuByteArrayField(env, joOpeInfo, cls, "szMessage", osd.szMessage);
        },
        [&](Send_OSDInfo_t* osd) { return ORVEX_SendOSDInfo(jiHandle, osd, jiTimeout); });
}

}  // extern "C"
