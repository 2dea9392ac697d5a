// Request structures of the media natives that more than one native reads: the live request
// (live and preview streams), the time-span playback request (by time and by stream type) and
// the record search query (plain and by stream type).
#pragma once

#include <jni.h>

#include <cstdint>

#include "JniKits.h"
#include "ORVEX_Core_Define.h"

// Each reads the fields of the Java object into the zero-filled structure, in the structure's
// order, through the class the caller found by name.
void ReadRealStreamInfo(JNIEnv* env, jobject jbRealStreamInfo, jclass cls,
                        Get_RealStream_Info_t& info);
void ReadRecordStreamTimeInfo(JNIEnv* env, jobject jbRecordInfo, jclass cls,
                              Get_RecordStream_Time_Info_t& info);
void ReadQueryRecordInfo(JNIEnv* env, jobject jbQueryRecordInfo, jclass cls,
                         Query_Record_Info_t& info);

// A Java long stored with its bit pattern in an unsigned 64-bit time member.
inline uint64_t GetTimeField(JNIEnv* env, jobject valueObject, jclass cls, const char* fieldName) {
    return static_cast<uint64_t>(CJniKits::GetStuLongField(env, valueObject, cls, fieldName));
}
