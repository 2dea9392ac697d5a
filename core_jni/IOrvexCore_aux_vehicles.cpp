// Doors, link resources and NVR channel states; GPS positions, vehicle-bay subscriptions and
// people counting.
#include <com_zq_OrvexCore_IOrvexCore.h>

#include <cstdint>
#include <cstring>
#include <memory>
#include <new>

#include "BridgeFrame.h"
#include "JniKits.h"
#include "NativeShapes.h"
#include "ORVEX_Core.h"

namespace {

// Door commands always wait this long, whatever time-out Java passes: callers rely on it.
constexpr int32_t kDoorCommandTimeoutMs = 10000;

// A buffer of n bytes plus a terminator, zeroed so that nothing the library leaves unwritten
// reaches Java as leftover heap bytes. Null, with OutOfMemoryError pending, for a negative n or
// a failed allocation.
std::unique_ptr<char[]> TextBuffer(JNIEnv* env, jint n) {
    if (n < 0) {
        CJniKits::ThrowOutOfMemory(env, "negative buffer length");
        return nullptr;
    }
    std::unique_ptr<char[]> buffer(new (std::nothrow) char[static_cast<std::size_t>(n) + 1]());
    if (!buffer) {
        CJniKits::ThrowOutOfMemory(env, "text buffer");
    }
    return buffer;
}

// One of the trace lines the GPS text fetch writes into the library's own log.
void TraceGps(jint jiHandle, const char* step) {
    ORVEX_WriteORVEXLog(jiHandle, step, ORVEX_LOG_LEVEL_INFO);
}

// Copies `count` bytes one by one into the Java array through its pinned elements, no further
// than the array reaches (ArrayIndexOutOfBoundsException pending for the rest), tracing each
// step.
void CopyGpsText(JNIEnv* env, jint jiHandle, jbyteArray jbGroupBuf, const char* text, jint count) {
    jbyte* elements = env->GetByteArrayElements(jbGroupBuf, nullptr);
    if (elements == nullptr) {
        return;  // OutOfMemoryError is pending
    }
    TraceGps(jiHandle, "[ORVEX_JNI] ORVEX_AskForLastGpsStatusXMLStr()::GetByteArrayElements END");
    const jsize length = env->GetArrayLength(jbGroupBuf);
    const jsize n = count < length ? count : length;
    for (jsize i = 0; i < n; ++i) {
        elements[i] = static_cast<jbyte>(text[i]);
    }
    TraceGps(jiHandle, "[ORVEX_JNI] ORVEX_AskForLastGpsStatusXMLStr()::COPY END");
    env->ReleaseByteArrayElements(jbGroupBuf, elements, 0);
    TraceGps(jiHandle,
             "[ORVEX_JNI] ORVEX_AskForLastGpsStatusXMLStr()::ReleaseByteArrayElements END");
    if (count > length) {
        CJniKits::ThrowIndexOutOfBounds(env, "jbGroupBuf is shorter than jiGroupLen");
    }
}

// The channels of a bay subscription, read from the Java array into zeroed C records. Null,
// with an exception pending, where the array is missing or shorter than the count.
std::unique_ptr<Enc_Channel_Info_t[]> ReadBayChannels(JNIEnv* env, jobject joSourceInfo, jclass cls,
                                                      jint count) {
    auto array = ObjectField<jobjectArray>(env, joSourceInfo, cls, "pEncChannelnfo",
                                           "[Lcom/zq/OrvexCore/Enc_Channel_Info_t;");
    if (array.get() == nullptr) {
        CJniKits::ThrowNull(env, "pEncChannelnfo");
        return nullptr;
    }
    if (BoundedByArray(env, array.get(), count) < count) {
        return nullptr;
    }
    std::unique_ptr<Enc_Channel_Info_t[]> channels = NewRecords<Enc_Channel_Info_t>(env, count);
    if (!channels) {
        return nullptr;
    }
    LocalClass channelCls = FindValueClass(env, "com/zq/OrvexCore/Enc_Channel_Info_t");
    jclass cc = channelCls.get();
    ForEachElement(env, array.get(), count, [&](jsize i, jobject channel) {
        Enc_Channel_Info_t& c = channels[static_cast<std::size_t>(i)];
        CJniKits::GetStuByteArrayField(env, channel, cc, "szId", c.szId);
        CJniKits::GetStuByteArrayField(env, channel, cc, "szName", c.szName);
        c.nCameraType = static_cast<orvex_camera_type_e>(
            CJniKits::GetStuIntField(env, channel, cc, "nCameraType"));
    });
    return channels;
}

// Writes people-counting rows into the Java array, creating an object for each null slot.
void WritePersonRows(JNIEnv* env, jobjectArray jaPersonInfo, const Person_Count_Info_t* rows,
                     jint count) {
    LocalClass cls = FindValueClass(env, "com/zq/OrvexCore/Person_Count_Info_t");
    jclass pc = cls.get();
    jmethodID ctor = pc != nullptr ? env->GetMethodID(pc, "<init>", "()V") : nullptr;
    CJniKits::ExceptionStash stash(env);
    ForEachElement(env, jaPersonInfo, count, [&](jsize i, jobject element) {
        const bool isNullSlot = element == nullptr;
        CJniKits::ScopedLocalRef<jobject> created(
            env, isNullSlot && ctor != nullptr ? env->NewObject(pc, ctor) : nullptr);
        jobject row = isNullSlot ? created.get() : element;
        if (created.get() != nullptr) {
            env->SetObjectArrayElement(jaPersonInfo, i, row);
        }
        const Person_Count_Info_t& r = rows[i];
        CJniKits::SetStuIntField(env, row, pc, "nChannelID", r.nChannelID);
        CJniKits::SetStuByteArrayField(
            env, row, pc, "szRuleName", r.szRuleName,
            static_cast<int>(strnlen(r.szRuleName, sizeof(r.szRuleName))));
        CJniKits::SetStuIntField(env, row, pc, "nStartTime", static_cast<int>(r.nStartTime));
        CJniKits::SetStuIntField(env, row, pc, "nEndTime", static_cast<int>(r.nEndTime));
        CJniKits::SetStuIntField(env, row, pc, "nEnteredSubTotal",
                                 static_cast<int>(r.nEnteredSubTotal));
        CJniKits::SetStuIntField(env, row, pc, "nExitedSubtotal",
                                 static_cast<int>(r.nExitedSubtotal));
        CJniKits::SetStuIntField(env, row, pc, "nAvgInside", static_cast<int>(r.nAvgInside));
        CJniKits::SetStuIntField(env, row, pc, "nMaxInside", static_cast<int>(r.nMaxInside));
    });
}

// When a count query writes its holder: on success only, or whatever the result.
enum class CountWrite { OnSuccess, Always };

// The body of a two-step fetch's count query: a null holder is refused; the library fills a
// zeroed local count, and the holder receives it as `when` says.
template <typename Count, typename Call>
jint CountIntoHolder(JNIEnv* env, jobject holder, CountWrite when, Call call) {
    if (IsNullArg(env, holder, "count holder")) {
        return RefuseInput();
    }
    Count count = 0;
    const int nResult = call(&count);
    StoreResult(nResult);
    if (when == CountWrite::Always || nResult == ORVEX_RET_SUCCESS) {
        SetReturnValue(env, holder, static_cast<int>(count));
    }
    return LastResult();
}

// The body of the three people-counting methods: a null or empty camera identifier is refused
// with 1009 alone. The pinned identifier bytes are never released, as these methods have always
// left them.
template <typename Call>
jint WithCameraId(JNIEnv* env, jbyteArray jbCameraId, Call call) {
    if (jbCameraId == nullptr) {
        return RefuseInput();
    }
    return WithText(env, jbCameraId, "jbCameraId", EmptyText::Invalid, call, TextCopy::Freed,
                    PinnedBytes::Kept);
}

}  // namespace

extern "C" {

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SetDoorCmd(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject joRequest, jint /*jiTimeout*/) {
    if (joRequest == nullptr) {
        return RefuseInput();
    }
    return SendRequest<SetDoorCmd_Request_t>(
        env, joRequest, "com/zq/OrvexCore/SetDoorCmd_Request_t",
        [&](jclass cls, SetDoorCmd_Request_t& rq) {
            CJniKits::GetStuByteArrayField(env, joRequest, cls, "szCameraId", rq.szCameraId);
            rq.cmd = static_cast<Core_EnumSetDoorCmd>(
                CJniKits::GetStuIntField(env, joRequest, cls, "cmd"));
            rq.start = CJniKits::GetStuLongField(env, joRequest, cls, "start");
            rq.end = CJniKits::GetStuLongField(env, joRequest, cls, "end");
        },
        [&](SetDoorCmd_Request_t* rq) {
            return ORVEX_SetDoorCmd(jiHandle, rq, kDoorCommandTimeoutMs);
        });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1QueryLinkResource(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject joCount, jint jiTimeout) {
    // Written whatever the result: callers read 0 after a failure.
    return CountIntoHolder<uint32_t>(env, joCount, CountWrite::Always, [&](uint32_t* pnLen) {
        return ORVEX_QueryLinkResource(jiHandle, pnLen, jiTimeout);
    });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetLinkResource(JNIEnv* env,
                                                                               jclass /*thiz*/,
                                                                               jint jiHandle,
                                                                               jobject joResponce) {
    if (joResponce == nullptr) {
        return RefuseInput();
    }
    GetLinkResource_Responce_t response = Zeroed<GetLinkResource_Responce_t>();
    LocalClass cls = FindValueClass(env, "com/zq/OrvexCore/GetLinkResource_Responce_t");
    const jint nLen = CJniKits::GetStuIntField(env, joResponce, cls.get(), "nLen");
    if (InputFailed(env) || nLen == 0) {
        return RefuseInput();
    }
    std::unique_ptr<char[]> xml = TextBuffer(env, nLen);
    if (!xml) {
        return RefuseInput();
    }
    response.pXmlData = xml.get();
    response.nLen = static_cast<uint32_t>(nLen);
    const int nResult = ORVEX_GetLinkResource(jiHandle, &response);
    StoreResult(nResult);
    if (nResult == ORVEX_RET_SUCCESS) {
        const std::size_t textLength = strnlen(xml.get(), static_cast<std::size_t>(nLen));
        CJniKits::SetStuByteArrayField(env, joResponce, cls.get(), "pXmlData", xml.get(),
                                       static_cast<int>(textLength));
    }
    return LastResult();
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1QueryNVRChnlStatus(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jbyteArray jbDeviceId, jint jiTimeout) {
    if (jbDeviceId == nullptr) {  // answered with 1009 alone, as callers have always seen
        return RefuseInput();
    }
    return WithText(env, jbDeviceId, "jbDeviceId", EmptyText::KeepLastResult,
                    [&](const char* szDeviceId) {
                        return ORVEX_QueryNVRChnlStatus(jiHandle, szDeviceId, jiTimeout);
                    });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1AskForLastGpsStatusXMLStrCount(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbReturnValue, jint jiTimeout) {
    return CountIntoHolder<int32_t>(env, jbReturnValue, CountWrite::OnSuccess, [&](int32_t* pnLen) {
        return ORVEX_AskForLastGpsStatusXMLStrCount(jiHandle, pnLen, jiTimeout);
    });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1AskForLastGpsStatusXMLStr(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jbyteArray jbGroupBuf, jint jiGroupLen) {
    if (IsNullArg(env, jbGroupBuf, "jbGroupBuf")) {
        return RefuseInput();
    }
    std::unique_ptr<char[]> text = TextBuffer(env, jiGroupLen);
    if (!text) {
        return RefuseInput();
    }
    const int nResult = ORVEX_AskForLastGpsStatusXMLStr(jiHandle, text.get(), jiGroupLen);
    StoreResult(nResult);
    TraceGps(jiHandle, "[ORVEX_JNI] ORVEX_AskForLastGpsStatusXMLStr END");
    if (nResult == ORVEX_RET_SUCCESS) {
        CopyGpsText(env, jiHandle, jbGroupBuf, text.get(), jiGroupLen);
    }
    text.reset();
    TraceGps(jiHandle, "[ORVEX_JNI] ORVEX_AskForLastGpsStatusXMLStr()::delete[] szGroupBuf END");
    return LastResult();
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SubscribeBayCarInfo(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject joSourceInfo, jint jiTimeout) {
    if (joSourceInfo == nullptr) {
        return RefuseInput();
    }
    Subscribe_Bay_Car_Info_t info = Zeroed<Subscribe_Bay_Car_Info_t>();
    std::unique_ptr<Enc_Channel_Info_t[]> channels;
    {
        LocalClass cls = FindValueClass(env, "com/zq/OrvexCore/Subscribe_Bay_Car_Info_t");
        info.nChnlCount = CJniKits::GetStuIntField(env, joSourceInfo, cls.get(), "nChnlCount");
        info.nSubscribeFlag =
            CJniKits::GetStuIntField(env, joSourceInfo, cls.get(), "nSubscribeFlag");
        // Without channels the pointer stays null and the subscription is still sent.
        if (info.nChnlCount >= 1 && !InputFailed(env)) {
            channels = ReadBayChannels(env, joSourceInfo, cls.get(), info.nChnlCount);
            info.pEncChannelnfo = channels.get();
        }
    }
    if (InputFailed(env)) {
        return RefuseInput();
    }
    return StoreResult(ORVEX_SubscribeBayCarInfo(jiHandle, &info, jiTimeout));
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1QueryPersonCount(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jbyteArray jbCameraId, jobject joQuerySeq,
    jobject joTotalCount, jint jiStartTime, jint jiEndTime, jint jiGranularity, jint jiTimeout) {
    return WithCameraId(env, jbCameraId, [&](const char* szCameraId) {
        if (IsNullArg(env, joQuerySeq, "joQuerySeq") ||
            IsNullArg(env, joTotalCount, "joTotalCount")) {
            return static_cast<int>(ORVEX_CORE_ERROR_INVALID_PARAM);
        }
        uint32_t nQuerySeq = 0;
        uint32_t nTotalCount = 0;
        const int nResult = ORVEX_QueryPersonCount(
            jiHandle, szCameraId, &nQuerySeq, &nTotalCount, static_cast<uint32_t>(jiStartTime),
            static_cast<uint32_t>(jiEndTime), jiGranularity, jiTimeout);
        ReturnValueOnSuccess(env, joQuerySeq, nResult, static_cast<int>(nQuerySeq));
        ReturnValueOnSuccess(env, joTotalCount, nResult, static_cast<int>(nTotalCount));
        return nResult;
    });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1QueryPersonCountBypage(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jbyteArray jbCameraId, jint jiQuerySeq,
    jint jiIndex, jint jiCount, jobjectArray jaPersonInfo, jint jiTimeout) {
    return WithCameraId(env, jbCameraId, [&](const char* szCameraId) {
        if (IsNullArg(env, jaPersonInfo, "jaPersonInfo")) {
            return static_cast<int>(ORVEX_CORE_ERROR_INVALID_PARAM);
        }
        // A negative count, taken as unsigned, is a size no allocation can satisfy.
        std::unique_ptr<Person_Count_Info_t[]> rows = NewRecords<Person_Count_Info_t>(env, jiCount);
        if (!rows) {
            return static_cast<int>(ORVEX_CORE_ERROR_INVALID_PARAM);
        }
        const int nResult = ORVEX_QueryPersonCountBypage(
            jiHandle, szCameraId, static_cast<uint32_t>(jiQuerySeq), static_cast<uint32_t>(jiIndex),
            static_cast<uint32_t>(jiCount), rows.get(), jiTimeout);
        if (nResult == ORVEX_RET_SUCCESS) {
            WritePersonRows(env, jaPersonInfo, rows.get(), jiCount);
        }
        return nResult;
    });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1StopQueryPersonCount(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jbyteArray jbCameraId, jint jiQuerySeq,
    jint jiTimeout) {
    return WithCameraId(env, jbCameraId, [&](const char* szCameraId) {
        return ORVEX_StopQueryPersonCount(jiHandle, szCameraId, static_cast<uint32_t>(jiQuerySeq),
                                          jiTimeout);
    });
}

}  // extern "C"
