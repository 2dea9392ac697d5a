// Live streams, record search and playback streams. Frames of every stream go to the media
// listener given with its request, through CSDKCB::fMediaDataCallback.
#include <com_zq_OrvexCore_IOrvexCore.h>

#include <cstring>

#include "BridgeFrame.h"
#include "JniKits.h"
#include "MediaStreams.h"
#include "NativeShapes.h"
#include "ORVEX_Core.h"
#include "Records_media.h"

namespace {

constexpr const char* kRealStreamInfo = "com/zq/OrvexCore/Get_RealStream_Info_t";
constexpr const char* kRecordStreamTimeInfo = "com/zq/OrvexCore/Get_RecordStream_Time_Info_t";
constexpr const char* kQueryRecordInfo = "com/zq/OrvexCore/Query_Record_Info_t";

void ReadExternalUrlInfo(JNIEnv* env, jobject jo, jclass cls,
                         Get_ExternalRealStreamUrl_Info_t& info) {
    CJniKits::GetStuByteArrayField(env, jo, cls, "szCameraId", info.szCameraId);
    // Declared int in Java; only exactly 1 asks for transcoding.
    info.bUsedVCS = CJniKits::GetStuIntField(env, jo, cls, "bUsedVCS") == 1;
    info.nTrackId = IntFieldAs<orvex_trackid_type_e>(env, jo, cls, "nTrackId");
    info.nVcsbps = IntFieldAs<uint32_t>(env, jo, cls, "nVcsbps");
    info.nVcsfps = IntFieldAs<uint32_t>(env, jo, cls, "nVcsfps");
    info.nVcsResolution = IntFieldAs<orvex_resolution_type_e>(env, jo, cls, "nVcsResolution");
    info.nVcsVideocodec = IntFieldAs<orvex_videocodec_type_e>(env, jo, cls, "nVcsVideocodec");
    info.nStreamType = IntFieldAs<orvex_stream_type_e>(env, jo, cls, "nStreamType");
    info.nMediaType = IntFieldAs<orvex_media_type_e>(env, jo, cls, "nMediaType");
    info.nTransType = IntFieldAs<orvex_trans_type_e>(env, jo, cls, "nTransType");
}

void ReadRecordStreamFileInfo(JNIEnv* env, jobject jo, jclass cls,
                              Get_RecordStream_File_Info_t& info) {
    CJniKits::GetStuByteArrayField(env, jo, cls, "szCameraId", info.szCameraId);
    info.nRight = IntFieldAs<orvex_check_right_e>(env, jo, cls, "nRight");
    info.nMode = IntFieldAs<orvex_pb_mode_e>(env, jo, cls, "nMode");
    info.nFileIndex = IntFieldAs<uint32_t>(env, jo, cls, "nFileIndex");
    info.uBeginTime = GetTimeField(env, jo, cls, "uBeginTime");
    info.uEndTime = GetTimeField(env, jo, cls, "uEndTime");
}

void WriteSingleRecord(JNIEnv* env, jobject jo, jclass cls, const Single_Record_Info_t& record) {
    CJniKits::SetStuIntField(env, jo, cls, "nFileIndex", static_cast<int>(record.nFileIndex));
    CJniKits::SetStuIntField(env, jo, cls, "nSource", record.nSource);
    CJniKits::SetStuIntField(env, jo, cls, "nRecordType", record.nRecordType);
    CJniKits::SetStuLongField(env, jo, cls, "uBeginTime", static_cast<long>(record.uBeginTime));
    CJniKits::SetStuLongField(env, jo, cls, "uEndTime", static_cast<long>(record.uEndTime));
    CJniKits::SetStuLongField(env, jo, cls, "uLength", static_cast<long>(record.uLength));
}

// The two record searches: send the query, and on 0 hand the number of records found to the
// holder. The count starts at 0, so a search that finds nothing reports 0.
template <typename Query>
jint SearchRecords(JNIEnv* env, jobject jbQueryRecordInfo, jobject jbReturnValue, Query query) {
    if (IsNullArg(env, jbReturnValue, "jbReturnValue")) {
        return RefuseInput();
    }
    int32_t nRecordCount = 0;
    int nResult = ORVEX_CORE_ERROR_INVALID_PARAM;
    SendRequest<Query_Record_Info_t>(
        env, jbQueryRecordInfo, kQueryRecordInfo,
        [&](jclass cls, Query_Record_Info_t& info) {
            ReadQueryRecordInfo(env, jbQueryRecordInfo, cls, info);
        },
        [&](Query_Record_Info_t* info) {
            nResult = query(info, &nRecordCount);
            return nResult;
        });
    ReturnValueOnSuccess(env, jbReturnValue, nResult, nRecordCount);
    return LastResult();
}

// Writes the records of a successful read into the caller's objects. The loop runs over the
// requested count as it stands after the call, so records the library did not deliver reach
// Java as zeros; it never goes past the records allocated nor past the Java array.
void WriteRecordWindow(JNIEnv* env, jobjectArray jaRecords, const Record_Info_t& info,
                       jint nAllocated) {
    const bool beyondAllocation = info.nCount > static_cast<uint32_t>(nAllocated);
    const jint nCount = beyondAllocation ? nAllocated : static_cast<jint>(info.nCount);
    LocalClass cls = FindValueClass(env, "com/zq/OrvexCore/Single_Record_Info_t");
    ForEachElement(env, jaRecords, nCount, [&](jsize i, jobject element) {
        WriteSingleRecord(env, element, cls.get(), info.pSingleRecord[i]);
    });
    if (beyondAllocation) {
        CJniKits::ThrowIndexOutOfBounds(env, "the library raised the record count it was given");
    }
}

}  // namespace

extern "C" {

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetRealStream(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbReturnValue, jobject jbRealStreamInfo,
    jobject cbMediaDataCallback, jint jiTimeout) {
    return OpenMediaStream<Get_RealStream_Info_t>(
        env, jbReturnValue, jbRealStreamInfo, kRealStreamInfo, cbMediaDataCallback,
        ReadRealStreamInfo,
        [&](int32_t* pnSeq, Get_RealStream_Info_t* info, pfnMediaDataCallback fn, void* user) {
            return ORVEX_GetRealStream(jiHandle, pnSeq, info, fn, user, jiTimeout);
        });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetExternalRealStreamUrl(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbExternalRealStreamUrlInfo,
    jint jiTimeout) {
    return SendRequest<Get_ExternalRealStreamUrl_Info_t>(
        env, jbExternalRealStreamUrlInfo, "com/zq/OrvexCore/Get_ExternalRealStreamUrl_Info_t",
        [&](jclass cls, Get_ExternalRealStreamUrl_Info_t& info) {
            ReadExternalUrlInfo(env, jbExternalRealStreamUrlInfo, cls, info);
        },
        [&](Get_ExternalRealStreamUrl_Info_t* info) {
            const int nResult = ORVEX_GetExternalRealStreamUrl(jiHandle, info, jiTimeout);
            if (nResult == ORVEX_RET_SUCCESS) {
                // Only the URL's own bytes: the rest of the Java array keeps what it held. A URL
                // the library left unterminated stops at the member's end.
                LocalClass cls =
                    FindValueClass(env, "com/zq/OrvexCore/Get_ExternalRealStreamUrl_Info_t");
                CJniKits::SetStuByteArrayField(
                    env, jbExternalRealStreamUrlInfo, cls.get(), "szUrl", info->szUrl,
                    static_cast<int>(strnlen(info->szUrl, sizeof(info->szUrl))));
            }
            return nResult;
        });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetRealStreamPreview(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbReturnValue, jobject jbRealStreamInfo,
    jint jiStartChannelIndex, jobject cbMediaDataCallback, jint jiTimeout) {
    return OpenMediaStream<Get_RealStream_Info_t>(
        env, jbReturnValue, jbRealStreamInfo, kRealStreamInfo, cbMediaDataCallback,
        ReadRealStreamInfo,
        [&](int32_t* pnSeq, Get_RealStream_Info_t* info, pfnMediaDataCallback fn, void* user) {
            return ORVEX_GetRealStreamPreview(jiHandle, pnSeq, info, jiStartChannelIndex, fn, user,
                                              jiTimeout);
        });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1CloseRealStreamBySeq(
    JNIEnv* /*env*/, jclass /*thiz*/, jint jiHandle, jint jiRealSeq, jint jiTimeout) {
    return StoreResult(ORVEX_CloseRealStreamBySeq(jiHandle, jiRealSeq, jiTimeout));
}

// Not supported: live streams close by sequence number only. Touches nothing, not even the
// last result.
JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1CloseRealStreamByCameraId(
    JNIEnv* /*env*/, jclass /*thiz*/, jint /*jiHandle*/, jbyteArray /*jbCameraId*/,
    jint /*jiTimeout*/) {
    return -1;
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1QueryRecord(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbQueryRecordInfo, jobject jbReturnValue,
    jint jiTimeout) {
    return SearchRecords(env, jbQueryRecordInfo, jbReturnValue,
                         [&](Query_Record_Info_t* info, int32_t* pnCount) {
                             return ORVEX_QueryRecord(jiHandle, info, pnCount, jiTimeout);
                         });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1QueryRecordByStreamType(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbQueryRecordInfo, jint jiStreamType,
    jobject jbReturnValue, jint jiTimeout) {
    return SearchRecords(
        env, jbQueryRecordInfo, jbReturnValue, [&](Query_Record_Info_t* info, int32_t* pnCount) {
            return ORVEX_QueryRecordByStreamType(
                jiHandle, info, static_cast<orvex_stream_type_e>(jiStreamType), pnCount, jiTimeout);
        });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetRecordInfo(JNIEnv* env,
                                                                             jclass /*thiz*/,
                                                                             jint jiHandle,
                                                                             jobject jbRecordInfo) {
    if (jbRecordInfo == nullptr) {
        return RefuseInput();
    }
    Record_Info_t info = Zeroed<Record_Info_t>();
    LocalClass cls = FindValueClass(env, "com/zq/OrvexCore/Record_Info_t");
    CJniKits::GetStuByteArrayField(env, jbRecordInfo, cls.get(), "szCameraId", info.szCameraId);
    info.nBegin =
        static_cast<uint32_t>(CJniKits::GetStuIntField(env, jbRecordInfo, cls.get(), "nBegin"));
    const jint nCount = CJniKits::GetStuIntField(env, jbRecordInfo, cls.get(), "nCount");
    if (InputFailed(env)) {
        return RefuseInput();
    }
    // Taken before the call rather than after it, so that a missing array refuses the request
    // instead of losing the records the library delivered.
    const jfieldID recordsField =
        env->GetFieldID(cls.get(), "pSingleRecord", "[Lcom/zq/OrvexCore/Single_Record_Info_t;");
    if (recordsField == nullptr) {
        return RefuseInput();
    }
    CJniKits::ScopedLocalRef<jobjectArray> jaRecords(
        env, static_cast<jobjectArray>(env->GetObjectField(jbRecordInfo, recordsField)));
    if (IsNullArg(env, jaRecords.get(), "pSingleRecord")) {
        return RefuseInput();
    }
    std::unique_ptr<Single_Record_Info_t[]> records;
    if (nCount != 0) {
        records = NewRecords<Single_Record_Info_t>(env, nCount);
        if (!records) {
            return RefuseInput();
        }
    }
    info.nCount = static_cast<uint32_t>(nCount);
    info.pSingleRecord = records.get();
    const int nResult = ORVEX_GetRecordInfo(jiHandle, &info);
    StoreResult(nResult);
    if (nResult == ORVEX_RET_SUCCESS && records) {
        WriteRecordWindow(env, jaRecords.get(), info, nCount);
    }
    return LastResult();
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetRecordStreamByFile(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbReturnValue, jobject jbRecordInfo,
    jobject jbMediaDataCallback, jint jiTimeout) {
    return OpenMediaStream<Get_RecordStream_File_Info_t>(
        env, jbReturnValue, jbRecordInfo, "com/zq/OrvexCore/Get_RecordStream_File_Info_t",
        jbMediaDataCallback, ReadRecordStreamFileInfo,
        [&](int32_t* pnSeq, Get_RecordStream_File_Info_t* info, pfnMediaDataCallback fn,
            void* user) {
            return ORVEX_GetRecordStreamByFile(jiHandle, pnSeq, info, fn, user, jiTimeout);
        });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetRecordStreamByTime(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbReturnValue, jobject jbRecordInfo,
    jobject jbMediaDataCallback, jint jiTimeout) {
    return OpenMediaStream<Get_RecordStream_Time_Info_t>(
        env, jbReturnValue, jbRecordInfo, kRecordStreamTimeInfo, jbMediaDataCallback,
        ReadRecordStreamTimeInfo,
        [&](int32_t* pnSeq, Get_RecordStream_Time_Info_t* info, pfnMediaDataCallback fn,
            void* user) {
            return ORVEX_GetRecordStreamByTime(jiHandle, pnSeq, info, fn, user, jiTimeout);
        });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetRecordStreamByStreamType(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbReturnValue, jobject jbRecordInfo,
    jint jiStreamType, jobject jbMediaDataCallback, jint jiTimeout) {
    // The library's two trailing integers are fixed by the bridge, never taken from Java.
    constexpr int32_t kTrailingParam1 = 1;
    constexpr int32_t kTrailingParam2 = 0;
    return OpenMediaStream<Get_RecordStream_Time_Info_t>(
        env, jbReturnValue, jbRecordInfo, kRecordStreamTimeInfo, jbMediaDataCallback,
        ReadRecordStreamTimeInfo,
        [&](int32_t* pnSeq, Get_RecordStream_Time_Info_t* info, pfnMediaDataCallback fn,
            void* user) {
            return ORVEX_GetRecordStreamByStreamType(
                jiHandle, pnSeq, info, static_cast<orvex_stream_type_e>(jiStreamType), fn, user,
                jiTimeout, kTrailingParam1, kTrailingParam2);
        });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1PauseRecordStreamBySeq(
    JNIEnv* /*env*/, jclass /*thiz*/, jint jiHandle, jint jiPlaybackSeq, jint jiTimeout) {
    return StoreResult(ORVEX_PauseRecordStreamBySeq(jiHandle, jiPlaybackSeq, jiTimeout));
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1ResumeRecordStreamBySeq(
    JNIEnv* /*env*/, jclass /*thiz*/, jint jiHandle, jint jiPlaybackSeq, jint jiTimeout) {
    return StoreResult(ORVEX_ResumeRecordStreamBySeq(jiHandle, jiPlaybackSeq, jiTimeout));
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SetRecordStreamSpeed(
    JNIEnv* /*env*/, jclass /*thiz*/, jint jiHandle, jint jiPlaybackSeq, jint jiSpeed,
    jint jiTimeout) {
    return StoreResult(ORVEX_SetRecordStreamSpeed(
        jiHandle, jiPlaybackSeq, static_cast<orvex_playback_speed_e>(jiSpeed), jiTimeout));
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SeekRecordStreamBySeq(
    JNIEnv* /*env*/, jclass /*thiz*/, jint jiHandle, jint jiPlaybackSeq, jlong jiSeekBegin,
    jlong jiSeekEnd, jint jiTimeout) {
    return StoreResult(ORVEX_SeekRecordStreamBySeq(jiHandle, jiPlaybackSeq,
                                                   static_cast<uint64_t>(jiSeekBegin),
                                                   static_cast<uint64_t>(jiSeekEnd), jiTimeout));
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1CloseRecordStreamBySeq(
    JNIEnv* /*env*/, jclass /*thiz*/, jint jiHandle, jint jiPlaybackSeq, jint jiTimeout) {
    return StoreResult(ORVEX_CloseRecordStreamBySeq(jiHandle, jiPlaybackSeq, jiTimeout));
}

// The camera identifier's copy is never freed: the library may keep the pointer it was handed.
JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1CloseRecordStreamByCameraId(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jbyteArray jbCameraId, jint jiTimeout) {
    return WithText(
        env, jbCameraId, "jbCameraId", EmptyText::Invalid,
        [&](const char* szCameraId) {
            return ORVEX_CloseRecordStreamByCameraId(jiHandle, szCameraId, jiTimeout);
        },
        TextCopy::Leaked);
}

}  // extern "C"
