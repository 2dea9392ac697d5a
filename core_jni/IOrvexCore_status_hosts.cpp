// Device lists and status, alarm hosts. ORVEX_GetDevicesInfoLen lives apart, in
// IOrvexCore_status_hosts_decorated.cpp, because it must not be bound by its JNI name.
#include <com_zq_OrvexCore_IOrvexCore.h>

#include <cstdint>
#include <cstring>
#include <memory>

#include "BridgeFrame.h"
#include "JniKits.h"
#include "NativeShapes.h"
#include "ORVEX_Core.h"
#include "Records_status_hosts.h"

namespace {

// Fetches a text of `jiLen` bytes into the caller's array: the library fills a zeroed buffer one
// byte longer, and on success exactly `jiLen` bytes (not the extra zero) are copied into the
// array. A null array, a negative length (no buffer could hold it) or an array shorter than the
// length is refused before the library is called.
template <typename Call>
jint FetchText(JNIEnv* env, jbyteArray jbText, jint jiLen, const char* name, Call call) {
    if (IsNullArg(env, jbText, name)) {
        return RefuseInput();
    }
    if (jiLen < 0) {
        CJniKits::ThrowOutOfMemory(env, "negative text length");
        return RefuseInput();
    }
    if (env->GetArrayLength(jbText) < jiLen) {
        CJniKits::ThrowIndexOutOfBounds(env, "text array shorter than the length asked for");
        return RefuseInput();
    }
    // The array's length bounds jiLen, so jiLen + 1 cannot overflow.
    auto buffer = NewRecords<char>(env, jiLen + 1);
    if (!buffer) {
        return RefuseInput();
    }
    const int nResult = call(buffer.get(), jiLen);
    StoreResult(nResult);
    if (nResult == ORVEX_RET_SUCCESS) {
        jbyte* bytes = env->GetByteArrayElements(jbText, nullptr);
        if (bytes != nullptr) {
            std::memcpy(bytes, buffer.get(), static_cast<std::size_t>(jiLen));
            env->ReleaseByteArrayElements(jbText, bytes, 0);
        }
    }
    return LastResult();
}

// A point query by identifier: null identifier 1009, empty one the previous result, otherwise
// the answer goes into the holder's nReturnValue on success.
template <typename Value, typename Call>
jint PointQuery(JNIEnv* env, jbyteArray jbId, jobject holder, Call call) {
    return WithCheckedText(env, jbId, EmptyText::KeepLastResult, [&](const char* szId) {
        return ValueIntoHolder<Value>(env, holder, "jbReturnStatus",
                                      [&](Value* pValue) { return call(szId, pValue); });
    });
}

void WriteAlarmInChannel(JNIEnv* env, jobject joChannel, jclass cls,
                         const AlarmIn_Channel_Info_t& channel) {
    SetTextField(env, joChannel, cls, "szId", channel.szId);
    SetTextField(env, joChannel, cls, "szName", channel.szName);
    CJniKits::SetStuLongField(env, joChannel, cls, "nRight", static_cast<long>(channel.nRight));
    CJniKits::SetStuIntField(env, joChannel, cls, "nChnlType", channel.nChnlType);
    CJniKits::SetStuIntField(env, joChannel, cls, "nStatus", channel.nStatus);
}

// Get_AlarmInChannel_Info_t: the device identifier and the capacity in, the channels out.
struct AlarmInChannelFetch {
    using Info = Get_AlarmInChannel_Info_t;
    using Record = AlarmIn_Channel_Info_t;
    static constexpr const char* kClass = "com/zq/OrvexCore/Get_AlarmInChannel_Info_t";
    static constexpr const char* kElementClass = "com/zq/OrvexCore/AlarmIn_Channel_Info_t";
    static constexpr const char* kArrayField = "pAlarmInChannelnfo";
    static constexpr const char* kArraySignature = "[Lcom/zq/OrvexCore/AlarmIn_Channel_Info_t;";
    static uint32_t& Count(Info& info) { return info.nAlarmInChannelCount; }
    static Record*& Records(Info& info) { return info.pAlarmInChannelnfo; }
    static void Read(JNIEnv* env, jobject jo, jclass cls, Info& info) {
        CJniKits::GetStuByteArrayField(env, jo, cls, "szDeviceId", info.szDeviceId);
        info.nAlarmInChannelCount = IntFieldAs<uint32_t>(env, jo, cls, "nAlarmInChannelCount");
    }
    static void Write(JNIEnv* env, jobject element, jclass cls, const Record& record) {
        WriteAlarmInChannel(env, element, cls, record);
    }
};

// Puts a new orvex_AHostDefenceStatus_t for each of the first `count` zone states into the
// array, replacing whatever the elements held.
void StoreNewDefenceStatus(JNIEnv* env, jobjectArray array, jint count,
                           const orvex_AHostDefenceStatus_t* records) {
    LocalClass cls = FindValueClass(env, kDefenceStatusClass);
    if (cls.get() == nullptr) {
        return;
    }
    jmethodID ctor = env->GetMethodID(cls.get(), "<init>", "()V");
    if (ctor == nullptr) {
        return;
    }
    const jsize n = BoundedByArray(env, array, count);
    for (jsize i = 0; i < n; ++i) {
        CJniKits::ExceptionStash stash(env);
        CJniKits::ScopedLocalRef<jobject> status(env, env->NewObject(cls.get(), ctor));
        if (status.get() == nullptr) {
            continue;
        }
        env->SetObjectArrayElement(array, i, status.get());
        WriteDefenceStatus(env, status.get(), cls.get(), records[i]);
    }
}

}  // namespace

extern "C" {

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetDeviceListLen(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbReturnValue, jint jiTimeout) {
    return StoreResult(ValueIntoHolder<int32_t>(
        env, jbReturnValue, "jbReturnValue",
        [&](int32_t* pnLen) { return ORVEX_GetDeviceListLen(jiHandle, pnLen, jiTimeout); }));
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetDeviceListStr(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jbyteArray jbDevList, jint jiDevListLen,
    jint jiTimeout) {
    return FetchText(env, jbDevList, jiDevListLen, "jbDevList", [&](char* szText, int32_t nLen) {
        return ORVEX_GetDeviceListStr(jiHandle, szText, nLen, jiTimeout);
    });
}

// The library takes no time-out for the devices' information; jiTimeout is accepted and unused.
JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetDevicesInfoStr(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jbyteArray jbDevicesInfo, jint jiDevInfoLen,
    jint /*jiTimeout*/) {
    return FetchText(env, jbDevicesInfo, jiDevInfoLen, "jbDevicesInfo",
                     [&](char* szText, int32_t nLen) {
                         return ORVEX_GetDevicesInfoStr(jiHandle, szText, nLen);
                     });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetChannelStatus(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jbyteArray jbCameraId, jobject jbReturnStatus) {
    return PointQuery<orvex_dev_status_e>(
        env, jbCameraId, jbReturnStatus, [&](const char* szCameraId, orvex_dev_status_e* p) {
            return ORVEX_GetChannelStatus(jiHandle, szCameraId, p);
        });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetDeviceTypeByDevId(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jbyteArray jbDeviceId, jobject jbReturnStatus) {
    return PointQuery<orvex_dev_type_e>(
        env, jbDeviceId, jbReturnStatus, [&](const char* szDeviceId, orvex_dev_type_e* p) {
            return ORVEX_GetDeviceTypeByDevId(jiHandle, szDeviceId, p);
        });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1ControlVideoAlarmHost(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jbyteArray jbDeviceId, jint jiChannelId,
    jint jiControlType, jint jiTimeout) {
    return WithCheckedText(env, jbDeviceId, EmptyText::KeepLastResult, [&](const char* szId) {
        return ORVEX_ControlVideoAlarmHost(jiHandle, szId, jiChannelId, jiControlType, jiTimeout);
    });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1ControlNetAlarmHostCmd(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jbyteArray jbId, jint jiOpttype,
    jint jiControlType, jlong jlStart, jlong jlEnd, jint jiTimeout) {
    return WithCheckedText(env, jbId, EmptyText::KeepLastResult, [&](const char* szId) {
        return ORVEX_ControlNetAlarmHostCmd(jiHandle, szId, jiOpttype, jiControlType,
                                            static_cast<int64_t>(jlStart),
                                            static_cast<int64_t>(jlEnd), jiTimeout);
    });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetAlarmInChannelInfo(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject joAlarmInChnlInfo) {
    if (joAlarmInChnlInfo == nullptr) {
        return RefuseInput();
    }
    return FetchRecords<AlarmInChannelFetch>(
        env, joAlarmInChnlInfo, ZeroCount::KeepLastResult, WriteBack::OnSuccess,
        [&](Get_AlarmInChannel_Info_t* pInfo) {
            return ORVEX_GetAlarmInChannelInfo(jiHandle, pInfo);
        });
}

// The platform query answers with new element objects. The identifier's copy is never freed,
// as this method has always left it.
JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1QueryNetAlarmHostStatus(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jbyteArray jbDeviceId, jint jiChannelcount,
    jobjectArray joDefenceStatus, jint jiTimeout) {
    if (joDefenceStatus == nullptr) {
        return RefuseInput();
    }
    return WithText(
        env, jbDeviceId, "jbDeviceId", EmptyText::KeepLastResult,
        [&](const char* szDeviceId) -> int {
            auto records = NewRecords<orvex_AHostDefenceStatus_t>(env, jiChannelcount);
            if (!records) {
                return ORVEX_CORE_ERROR_INVALID_PARAM;
            }
            const int nResult = ORVEX_QueryNetAlarmHostStatus(jiHandle, szDeviceId, jiChannelcount,
                                                              records.get(), jiTimeout);
            if (nResult == ORVEX_RET_SUCCESS) {
                StoreNewDefenceStatus(env, joDefenceStatus, jiChannelcount, records.get());
            }
            return nResult;
        },
        TextCopy::Leaked);
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1QueryNetAlarmHostChannelCount(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jbyteArray jbDeviceID, jobject jbChannelCount,
    jint jiTimeout) {
    return WithCheckedText(env, jbDeviceID, EmptyText::KeepLastResult, [&](const char* szId) {
        return ValueIntoHolder<int32_t>(env, jbChannelCount, "jbChannelCount", [&](int32_t* pn) {
            return ORVEX_QueryNetAlarmHostChannelCount(jiHandle, szId, pn, jiTimeout);
        });
    });
}

// Reads the zone states the library holds into the elements the array already has.
JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetNetAlarmHostStatus(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jint jiChannelCount,
    jobjectArray jaDefenceStatus) {
    if (jaDefenceStatus == nullptr) {
        return RefuseInput();
    }
    auto records = NewRecords<orvex_AHostDefenceStatus_t>(env, jiChannelCount);
    if (!records) {
        // This method answers a failed allocation with its own code, returned but not stored,
        // in place of the OutOfMemoryError.
        env->ExceptionClear();
        return ORVEX_CORE_ERROR_GET_MEMORY_FAIL;
    }
    const int nResult = ORVEX_GetNetAlarmHostStatus(jiHandle, jiChannelCount, records.get());
    StoreResult(nResult);
    if (nResult == ORVEX_RET_SUCCESS) {
        // The class reference stays to the end of the call and the constructor is looked up
        // unused, as this method has always done.
        jclass clsStatus = FindValueClass(env, kDefenceStatusClass).release();
        if (clsStatus != nullptr && env->GetMethodID(clsStatus, "<init>", "()V") != nullptr) {
            ForEachElement(env, jaDefenceStatus, jiChannelCount, [&](jsize i, jobject status) {
                env->SetObjectArrayElement(jaDefenceStatus, i, status);
                WriteDefenceStatus(env, status, clsStatus, records[i]);
            });
        }
    }
    return LastResult();
}

}  // extern "C"
