#include "Records_media.h"

void ReadRealStreamInfo(JNIEnv* env, jobject jo, jclass cls, Get_RealStream_Info_t& info) {
    CJniKits::GetStuByteArrayField(env, jo, cls, "szCameraId", info.szCameraId);
    info.nRight = GetEnumField<orvex_check_right_e>(env, jo, cls, "nRight");
    info.nStreamType = GetEnumField<orvex_stream_type_e>(env, jo, cls, "nStreamType");
    info.nMediaType = GetEnumField<orvex_media_type_e>(env, jo, cls, "nMediaType");
    info.nTransType = GetEnumField<orvex_trans_type_e>(env, jo, cls, "nTransType");
}

void ReadRecordStreamTimeInfo(JNIEnv* env, jobject jo, jclass cls,
                              Get_RecordStream_Time_Info_t& info) {
    CJniKits::GetStuByteArrayField(env, jo, cls, "szCameraId", info.szCameraId);
    info.nRight = GetEnumField<orvex_check_right_e>(env, jo, cls, "nRight");
    info.nMode = GetEnumField<orvex_pb_mode_e>(env, jo, cls, "nMode");
    info.nSource = GetEnumField<orvex_recsource_type_e>(env, jo, cls, "nSource");
    info.uBeginTime = GetTimeField(env, jo, cls, "uBeginTime");
    info.uEndTime = GetTimeField(env, jo, cls, "uEndTime");
}

void ReadQueryRecordInfo(JNIEnv* env, jobject jo, jclass cls, Query_Record_Info_t& info) {
    CJniKits::GetStuByteArrayField(env, jo, cls, "szCameraId", info.szCameraId);
    info.nRight = GetEnumField<orvex_check_right_e>(env, jo, cls, "nRight");
    info.nSource = GetEnumField<orvex_recsource_type_e>(env, jo, cls, "nSource");
    info.nRecordType = GetEnumField<orvex_record_type_e>(env, jo, cls, "nRecordType");
    info.uBeginTime = GetTimeField(env, jo, cls, "uBeginTime");
    info.uEndTime = GetTimeField(env, jo, cls, "uEndTime");
}
