#include "Records_alarms.h"

#include <cstdint>

#include "JniKits.h"
#include "NativeShapes.h"

void ReadAlarmQuery(JNIEnv* env, jclass clsQuery, jobject joQuery, Alarm_Query_Info_t& query) {
    CJniKits::GetStuByteArrayField(env, joQuery, clsQuery, "szCameraId", query.szCameraId);
    query.uStartTime =
        static_cast<uint64_t>(CJniKits::GetStuLongField(env, joQuery, clsQuery, "uStartTime"));
    query.uEndTime =
        static_cast<uint64_t>(CJniKits::GetStuLongField(env, joQuery, clsQuery, "uEndTime"));
    query.nAlarmType = static_cast<orvex_alarm_type_e>(
        CJniKits::GetStuIntField(env, joQuery, clsQuery, "nAlarmType"));
}

void ReadAlarmScheme(JNIEnv* env, jclass clsScheme, jobject joScheme, AlarmSchemeInfo_t& scheme) {
    scheme.status = static_cast<orvex_alarmScheme_status_e>(
        CJniKits::GetStuIntField(env, joScheme, clsScheme, "status"));
    scheme.id = IntFieldAs<uint32_t>(env, joScheme, clsScheme, "id");
    CJniKits::GetStuByteArrayField(env, joScheme, clsScheme, "schemeName", scheme.schemeName);
    scheme.templateId = IntFieldAs<uint32_t>(env, joScheme, clsScheme, "templateId");
    CJniKits::GetStuByteArrayField(env, joScheme, clsScheme, "desc", scheme.desc);
}

void WriteAlarmScheme(JNIEnv* env, jclass clsScheme, jobject joScheme,
                      const AlarmSchemeInfo_t& scheme) {
    CJniKits::SetStuIntField(env, joScheme, clsScheme, "status", scheme.status);
    CJniKits::SetStuIntField(env, joScheme, clsScheme, "id", static_cast<int>(scheme.id));
    SetTextField(env, joScheme, clsScheme, "schemeName", scheme.schemeName);
    CJniKits::SetStuIntField(env, joScheme, clsScheme, "templateId",
                             static_cast<int>(scheme.templateId));
    SetTextField(env, joScheme, clsScheme, "desc", scheme.desc);
}
