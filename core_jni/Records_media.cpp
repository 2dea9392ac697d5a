#include "Records_media.h"
#include "NativeShapes.h"

void ReadRealStreamInfo(JNIEnv* env, jobject jo, jclass cls, Get_RealStream_Info_t& info) {
    CJniKits::GetStuByteArrayField(env, jo, cls, "szCameraId", info.szCameraId);
    info.nRight = IntFieldAs<orvex_check_right_e>(env, jo, cls, "nRight");
    info.nStreamType = IntFieldAs<orvex_stream_type_e>(env, jo, cls, "nStreamType");
    info.nMediaType = IntFieldAs<orvex_media_type_e>(env, jo, cls, "nMediaType");
    info.nTransType = IntFieldAs<orvex_trans_type_e>(env, jo, cls, "nTransType");
}

void ReadRecordStreamTimeInfo(JNIEnv* env, jobject jo, jclass cls,
                              Get_RecordStream_Time_Info_t& info) {
    CJniKits::GetStuByteArrayField(env, jo, cls, "szCameraId", info.szCameraId);
    info.nRight = IntFieldAs<orvex_check_right_e>(env, jo, cls, "nRight");
    info.nMode = IntFieldAs<orvex_pb_mode_e>(env, jo, cls, "nMode");
    info.nSource = IntFieldAs<orvex_recsource_type_e>(env, jo, cls, "nSource");
    info.uBeginTime = GetTimeField(env, jo, cls, "uBeginTime");
    info.uEndTime = GetTimeField(env, jo, cls, "uEndTime");
}

void ReadQueryRecordInfo(JNIEnv* env, jobject jo, jclass cls, Query_Record_Info_t& info) {
    CJniKits::GetStuByteArrayField(env, jo, cls, "szCameraId", info.szCameraId);
    info.nRight = IntFieldAs<orvex_check_right_e>(env, jo, cls, "nRight");
    info.nSource = IntFieldAs<orvex_recsource_type_e>(env, jo, cls, "nSource");
    info.nRecordType = IntFieldAs<orvex_record_type_e>(env, jo, cls, "nRecordType");
    info.uBeginTime = GetTimeField(env, jo, cls, "uBeginTime");
    info.uEndTime = GetTimeField(env, jo, cls, "uEndTime");
}
