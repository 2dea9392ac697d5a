// Alarm value classes that more than one native converts: the history filter (count and page
// queries) and the alarm scheme (listed and saved).
#pragma once

#include <jni.h>

#include "ORVEX_Core_Define.h"

inline constexpr const char* kAlarmQueryClass = "com/zq/OrvexCore/Alarm_Query_Info_t";
inline constexpr const char* kAlarmSchemeClass = "com/zq/OrvexCore/AlarmSchemeInfo_t";

// Reads szCameraId, uStartTime, uEndTime and nAlarmType, in that order.
void ReadAlarmQuery(JNIEnv* env, jclass clsQuery, jobject joQuery, Alarm_Query_Info_t& query);

// Reads status, id, schemeName, templateId and desc, in that order.
void ReadAlarmScheme(JNIEnv* env, jclass clsScheme, jobject joScheme, AlarmSchemeInfo_t& scheme);
// Writes the same members back; texts go up to their terminator into the arrays the object
// already holds, whose bytes past the text stay as they were.
void WriteAlarmScheme(JNIEnv* env, jclass clsScheme, jobject joScheme,
                      const AlarmSchemeInfo_t& scheme);
