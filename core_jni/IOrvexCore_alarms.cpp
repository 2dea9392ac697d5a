// Alarm subscription and enabling, alarm history, alarm schemes and alarms raised by the client.
#include <com_zq_OrvexCore_IOrvexCore.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <new>

#include "BridgeFrame.h"
#include "JniKits.h"
#include "NativeShapes.h"
#include "ORVEX_Core.h"
#include "Records_alarms.h"

namespace {

// Whether the alarm source records are cleared before the Java values go in. Enabling by
// department never cleared them: past a code the Java side did not terminate, the bytes are
// whatever the allocation held, so callers terminate their codes themselves.
enum class SourceRecords { Zeroed, AsAllocated };

// The source list of one enabling method: its Java classes, the text member that names the
// source, and how its records are prepared.
template <typename Source>
struct AlarmSourceList {
    const char* listClass;
    const char* arraySignature;
    const char* sourceClass;
    const char* textField;
    char (Source::*text)[64];
    SourceRecords records;
};

template <typename Source>
std::unique_ptr<Source[]> NewSourceRecords(JNIEnv* env, jint count, SourceRecords records) {
    // NewRecords also refuses a negative count, which no allocation of either kind could satisfy.
    if (records == SourceRecords::Zeroed || count < 0) {
        return NewRecords<Source>(env, count);
    }
    std::unique_ptr<Source[]> sources(new (std::nothrow) Source[static_cast<std::size_t>(count)]);
    if (!sources) {
        CJniKits::ThrowOutOfMemory(env, "record array");
    }
    return sources;
}

// Reads one source: its naming text, then nVideoNo, nAlarmInput, nAlarmType.
template <typename Source>
void ReadAlarmSource(JNIEnv* env, jclass cls, jobject joSource, const AlarmSourceList<Source>& list,
                     Source& source) {
    CJniKits::GetStuByteArrayField(env, joSource, cls, list.textField, source.*list.text);
    source.nVideoNo = CJniKits::GetStuIntField(env, joSource, cls, "nVideoNo");
    source.nAlarmInput = CJniKits::GetStuIntField(env, joSource, cls, "nAlarmInput");
    source.nAlarmType =
        static_cast<orvex_alarm_type_e>(CJniKits::GetStuIntField(env, joSource, cls, "nAlarmType"));
}

// Enabling by channel and by department: nCount records read from the Java `sources` array,
// handed to the library, and freed as soon as it returns (the library must not keep them).
template <typename Info, typename Source>
jint EnableAlarmSources(JNIEnv* env, jint jiHandle, jobject joSourceInfo,
                        const AlarmSourceList<Source>& list,
                        int32_t (*enable)(int32_t, Info*, int32_t), jint jiTimeout) {
    if (joSourceInfo == nullptr) {
        return RefuseInput();
    }
    Info info;
    if (list.records == SourceRecords::Zeroed) {
        info = Zeroed<Info>();
    }
    std::unique_ptr<Source[]> sources;
    {
        LocalClass cls = FindValueClass(env, list.listClass);
        const jint count = CJniKits::GetStuIntField(env, joSourceInfo, cls.get(), "nCount");
        info.nCount = static_cast<uint32_t>(count);
        sources = NewSourceRecords<Source>(env, count, list.records);
        auto array =
            ObjectField<jobjectArray>(env, joSourceInfo, cls.get(), "sources", list.arraySignature);
        if (sources && count > 0 && !IsNullArg(env, array.get(), "sources")) {
            CJniKits::ExceptionStash stash(env);
            LocalClass clsSource = FindValueClass(env, list.sourceClass);
            ForEachElement(env, array.get(), count, [&](jsize i, jobject joSource) {
                ReadAlarmSource(env, clsSource.get(), joSource, list, sources[i]);
            });
        }
    }
    if (InputFailed(env)) {
        return RefuseInput();
    }
    info.pSources = sources.get();
    return StoreResult(enable(jiHandle, &info, jiTimeout));
}

const AlarmSourceList<Alarm_Single_Enable_Info_t> kSourcesByChannel = {
    "com/zq/OrvexCore/Alarm_Enable_Info_t",        "[Lcom/zq/OrvexCore/Alarm_Single_Enable_Info_t;",
    "com/zq/OrvexCore/Alarm_Single_Enable_Info_t", "szAlarmDevId",
    &Alarm_Single_Enable_Info_t::szAlarmDevId,     SourceRecords::Zeroed,
};

const AlarmSourceList<Alarm_Single_Enable_By_Dep_Info_t> kSourcesByDepartment = {
    "com/zq/OrvexCore/Alarm_Enable_By_Dep_Info_t",
    "[Lcom/zq/OrvexCore/Alarm_Single_Enable_By_Dep_Info_t;",
    "com/zq/OrvexCore/Alarm_Single_Enable_By_Dep_Info_t",
    "szAlarmDepartmentCode",
    &Alarm_Single_Enable_By_Dep_Info_t::szAlarmDepartmentCode,
    SourceRecords::AsAllocated,
};

// Seven of the record's ten members reach Java; the picture address and the two labels never
// have.
void WriteSingleAlarm(JNIEnv* env, jclass cls, jobject joAlarm, const Single_Alarm_Info_t& alarm) {
    CJniKits::SetStuIntField(env, joAlarm, cls, "nAlarmType", alarm.nAlarmType);
    CJniKits::SetStuIntField(env, joAlarm, cls, "nEventType", alarm.nEventType);
    SetTextField(env, joAlarm, cls, "szDevId", alarm.szDevId);
    CJniKits::SetStuIntField(env, joAlarm, cls, "uChannel", static_cast<int>(alarm.uChannel));
    CJniKits::SetStuLongField(env, joAlarm, cls, "uAlarmTime", static_cast<long>(alarm.uAlarmTime));
    CJniKits::SetStuIntField(env, joAlarm, cls, "nDealWith", alarm.nDealWith);
    SetTextField(env, joAlarm, cls, "szMessage", alarm.szMessage);
}

// Copies the delivered records into the caller's Java alarm objects, trusting the library's
// count only as far as the records allocated and the Java array reach.
void WriteAlarmPage(JNIEnv* env, jobjectArray alarms, const Single_Alarm_Info_t* records,
                    jint capacity, uint32_t delivered) {
    CJniKits::ExceptionStash stash(env);
    LocalClass cls = FindValueClass(env, "com/zq/OrvexCore/Single_Alarm_Info_t");
    const auto count = static_cast<jint>(std::min<uint32_t>(delivered, capacity));
    ForEachElement(env, alarms, count, [&](jsize i, jobject joAlarm) {
        WriteSingleAlarm(env, cls.get(), joAlarm, records[i]);
    });
}

// Fills every slot of the Java scheme array from the records, creating an object where a slot
// is null; slots past what the library filled get the zeroed records.
void WriteAlarmSchemeList(JNIEnv* env, jobjectArray jaSchemes, const AlarmSchemeInfo_t* records) {
    LocalClass cls = FindValueClass(env, kAlarmSchemeClass);
    if (cls.get() == nullptr) {
        return;
    }
    jmethodID ctor = env->GetMethodID(cls.get(), "<init>", "()V");
    if (ctor == nullptr) {
        return;
    }
    ForEachElement(env, jaSchemes, env->GetArrayLength(jaSchemes), [&](jsize i, jobject element) {
        CJniKits::ScopedLocalRef<jobject> created(
            env, element == nullptr ? env->NewObject(cls.get(), ctor) : nullptr);
        jobject scheme = element != nullptr ? element : created.get();
        if (scheme != nullptr) {
            env->SetObjectArrayElement(jaSchemes, i, scheme);
            WriteAlarmScheme(env, cls.get(), scheme, records[i]);
        }
    });
}

}  // namespace

extern "C" {

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1PhoneSubscribeAlarm(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject joUserParam, jobject jbReturnValue,
    jint jiTimeout) {
    if (joUserParam == nullptr) {
        return RefuseInput();
    }
    if (IsNullArg(env, jbReturnValue, "jbReturnValue")) {
        return RefuseInput();
    }
    return SendRequest<orvex_phone_subscribe_alarm_t>(
        env, joUserParam, "com/zq/OrvexCore/orvex_phone_subscribe_alarm_t",
        [&](jclass cls, orvex_phone_subscribe_alarm_t& info) {
            info.iUserId = CJniKits::GetStuIntField(env, joUserParam, cls, "iUserId");
            CJniKits::GetStuByteArrayField(env, joUserParam, cls, "szPhoneId", info.szPhoneId);
            info.iAppId = CJniKits::GetStuIntField(env, joUserParam, cls, "iAppId");
            CJniKits::GetStuByteArrayField(env, joUserParam, cls, "szPush_type", info.szPush_type);
            info.iIs_subscribe = CJniKits::GetStuIntField(env, joUserParam, cls, "iIs_subscribe");
            CJniKits::GetStuByteArrayField(env, joUserParam, cls, "szLanguage", info.szLanguage);
            CJniKits::GetStuByteArrayField(env, joUserParam, cls, "szTimefmt", info.szTimefmt);
            info.iDbOper = CJniKits::GetStuIntField(env, joUserParam, cls, "iDbOper");
        },
        [&](orvex_phone_subscribe_alarm_t* info) {
            const int nResult = ORVEX_PhoneSubscribeAlarm(jiHandle, info, jiTimeout);
            // The flag as the library left it, which is the caller's own unless it changed it.
            ReturnValueOnSuccess(env, jbReturnValue, nResult, info->iIs_subscribe);
            return nResult;
        });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1EnableAlarm(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject joSourceInfo, jint jiTimeout) {
    return EnableAlarmSources(env, jiHandle, joSourceInfo, kSourcesByChannel, ORVEX_EnableAlarm,
                              jiTimeout);
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1EnableAlarmByDepartment(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject joSourceInfo, jint jiTimeout) {
    return EnableAlarmSources(env, jiHandle, joSourceInfo, kSourcesByDepartment,
                              ORVEX_EnableAlarmByDepartment, jiTimeout);
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1DisableAlarm(JNIEnv* /*env*/,
                                                                            jclass /*thiz*/,
                                                                            jint jiHandle,
                                                                            jint jiTimeout) {
    return StoreResult(ORVEX_DisableAlarm(jiHandle, jiTimeout));
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1QueryAlarmCount(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject joQueryInfo, jobject joCount,
    jint jiTimeout) {
    if (joQueryInfo == nullptr) {
        return RefuseInput();
    }
    if (IsNullArg(env, joCount, "joCount")) {
        return RefuseInput();
    }
    return SendRequest<Alarm_Query_Info_t>(
        env, joQueryInfo, kAlarmQueryClass,
        [&](jclass cls, Alarm_Query_Info_t& query) {
            ReadAlarmQuery(env, cls, joQueryInfo, query);
        },
        [&](Alarm_Query_Info_t* query) {
            int32_t nRetCount = 0;
            const int nResult = ORVEX_QueryAlarmCount(jiHandle, query, &nRetCount, jiTimeout);
            // Written whatever the result: a failed query reports 0 unless the library wrote.
            SetReturnValue(env, joCount, nRetCount);
            return nResult;
        });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1QueryAlarmInfo(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject joQueryInfo, jobject joAlarmInfo,
    jint jiFirstNum, jint jiQueryCount, jint jiTimeout) {
    if (joQueryInfo == nullptr || joAlarmInfo == nullptr || jiQueryCount <= 0) {
        return RefuseInput();
    }
    Alarm_Query_Info_t query = Zeroed<Alarm_Query_Info_t>();
    {
        LocalClass clsQuery = FindValueClass(env, kAlarmQueryClass);
        ReadAlarmQuery(env, clsQuery.get(), joQueryInfo, query);
    }
    if (InputFailed(env)) {
        return RefuseInput();
    }
    LocalClass clsPage = FindValueClass(env, "com/zq/OrvexCore/Alarm_Info_t");
    const jint capacity = CJniKits::GetStuIntField(env, joAlarmInfo, clsPage.get(), "nCount");
    if (capacity == 0) {
        return RefuseInput();
    }
    std::unique_ptr<Single_Alarm_Info_t[]> records = NewRecords<Single_Alarm_Info_t>(env, capacity);
    auto alarms = ObjectField<jobjectArray>(env, joAlarmInfo, clsPage.get(), "pAlarmInfo",
                                            "[Lcom/zq/OrvexCore/Single_Alarm_Info_t;");
    // The records go into this array after the call; without it they could not reach Java.
    IsNullArg(env, alarms.get(), "pAlarmInfo");
    if (InputFailed(env)) {
        return RefuseInput();
    }
    Alarm_Info_t page = Zeroed<Alarm_Info_t>();
    page.nCount = static_cast<uint32_t>(capacity);
    page.pAlarmInfo = records.get();
    StoreResult(ORVEX_QueryAlarmInfo(jiHandle, &query, &page, jiFirstNum, jiQueryCount, jiTimeout));
    // Both the count and the records it covers are written whatever the result.
    CJniKits::SetStuIntField(env, joAlarmInfo, clsPage.get(), "nRetCount",
                             static_cast<int>(page.nRetCount));
    WriteAlarmPage(env, alarms.get(), records.get(), capacity, page.nRetCount);
    return LastResult();
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetAlarmSchemeCount(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject joCount, jint jiTimeout) {
    if (IsNullArg(env, joCount, "joCount")) {
        return RefuseInput();
    }
    uint32_t nSchemeCount = 0;
    StoreResult(ORVEX_GetAlarmSchemeCount(jiHandle, &nSchemeCount, jiTimeout));
    // Written whatever the result: a failure reports 0 unless the library wrote.
    SetReturnValue(env, joCount, static_cast<int>(nSchemeCount));
    return LastResult();
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetAlarmSchemeList(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobjectArray jaAlarmSchemeList, jint jiTimeout) {
    if (jaAlarmSchemeList == nullptr) {
        return RefuseInput();
    }
    const jsize nSchemeCount = env->GetArrayLength(jaAlarmSchemeList);
    std::unique_ptr<AlarmSchemeInfo_t[]> records = NewRecords<AlarmSchemeInfo_t>(env, nSchemeCount);
    if (!records) {
        return RefuseInput();
    }
    const int nResult = ORVEX_GetAlarmSchemeList(jiHandle, records.get(), nSchemeCount, jiTimeout);
    StoreResult(nResult);
    if (nResult == ORVEX_RET_SUCCESS) {
        WriteAlarmSchemeList(env, jaAlarmSchemeList, records.get());
    }
    return LastResult();
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SaveAlarmScheme(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject joAlarmScheme, jint jiTimeout) {
    if (joAlarmScheme == nullptr) {
        return RefuseInput();
    }
    return SendRequest<AlarmSchemeInfo_t>(
        env, joAlarmScheme, kAlarmSchemeClass,
        [&](jclass cls, AlarmSchemeInfo_t& scheme) {
            ReadAlarmScheme(env, cls, joAlarmScheme, scheme);
        },
        [&](AlarmSchemeInfo_t* scheme) {
            return ORVEX_SaveAlarmScheme(jiHandle, scheme, jiTimeout);
        });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SendAlarmToServer(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbSendAlarmInfo, jint jiTimeout) {
    return SendRequest<Client_Alarm_Info_t>(
        env, jbSendAlarmInfo, "com/zq/OrvexCore/Client_Alarm_Info_t",
        [&](jclass cls, Client_Alarm_Info_t& alarm) {
            CJniKits::GetStuByteArrayField(env, jbSendAlarmInfo, cls, "szCameraId",
                                           alarm.szCameraId);
            alarm.enAlarmType = static_cast<orvex_alarm_type_e>(
                CJniKits::GetStuIntField(env, jbSendAlarmInfo, cls, "enAlarmType"));
            alarm.enStatus = static_cast<orvex_event_type_e>(
                CJniKits::GetStuIntField(env, jbSendAlarmInfo, cls, "enStatus"));
            alarm.uAlarmTime = static_cast<uint64_t>(
                CJniKits::GetStuLongField(env, jbSendAlarmInfo, cls, "uAlarmTime"));
            CJniKits::GetStuByteArrayField(env, jbSendAlarmInfo, cls, "szMsg", alarm.szMsg);
        },
        [&](Client_Alarm_Info_t* alarm) {
            return ORVEX_SendAlarmToServer(jiHandle, alarm, jiTimeout);
        });
}

}  // extern "C"
