// Organisation catalogue: loading and exporting the group tree, group nodes and devices,
// channels, and the logical organisation.
#include <com_zq_OrvexCore_IOrvexCore.h>

#include <cstdint>
#include <memory>
#include <new>

#include "BridgeFrame.h"
#include "JniKits.h"
#include "NativeShapes.h"
#include "ORVEX_Core.h"
#include "Records_catalogue.h"

namespace {

using LocalArray = CJniKits::ScopedLocalRef<jobjectArray>;

// The array of value objects a request holds in `field`, taken before the library is called so
// that an unusable one is refused up front; null with NoSuchFieldError pending when the field
// is missing. Callers make sure no exception is pending and `cls` was found.
LocalArray ArrayField(JNIEnv* env, jobject jo, jclass cls, const char* field,
                      const char* signature) {
    jfieldID fid = env->GetFieldID(cls, field, signature);
    if (fid == nullptr) {
        return LocalArray(env, nullptr);
    }
    return LocalArray(env, static_cast<jobjectArray>(env->GetObjectField(jo, fid)));
}

// True, with an exception pending, when a record array cannot receive `capacity` records: the
// field is missing, or it is null while records are asked for.
bool ArrayUnusable(JNIEnv* env, const LocalArray& array, jint capacity, const char* field) {
    return InputFailed(env) || (capacity != 0 && IsNullArg(env, array.get(), field));
}

// Copies the records the library reported into the elements of a Java array, each with
// `write(env, element, elementClass, record)`. The reported count is trusted only as far as
// the C records (`capacity`) and the Java array hold; beyond either,
// ArrayIndexOutOfBoundsException is left pending and nothing is written past.
template <typename Record, typename Write>
void WriteRecords(JNIEnv* env, jobjectArray array, const char* elementClass, const Record* records,
                  uint32_t reported, jint capacity, Write write) {
    CJniKits::ExceptionStash stash(env);
    const bool beyondRecords = reported > static_cast<uint32_t>(capacity);
    const jint count = beyondRecords ? capacity : static_cast<jint>(reported);
    {
        LocalClass cls = FindValueClass(env, elementClass);
        // Every record has the same fields: look each one up once, not once per record.
        const CJniKits::FieldIdMemo memo(cls.get());
        ForEachElement(env, array, count, [&](jsize i, jobject element) {
            write(env, element, cls.get(), records[i]);
        });
    }
    if (beyondRecords) {
        CJniKits::ThrowIndexOutOfBounds(env, "the library reported more records than it was given");
    }
}

// Lets the library fill one zeroed record and, only on success, writes it into the Java
// object with `write`. Returns the library's result, not yet stored.
template <typename Record, typename Call, typename Write>
int FillOnSuccess(JNIEnv* env, jobject jo, const char* classPath, Call call, Write write) {
    Record record = Zeroed<Record>();
    const int nResult = call(&record);
    if (nResult == ORVEX_RET_SUCCESS) {
        LocalClass cls = FindValueClass(env, classPath);
        write(env, jo, cls.get(), record);
    }
    return nResult;
}

// A channel list asked for no channels (ZeroCount, shared with the other record fetches): the
// short list has always returned the previous result untouched, the extended one 1009.

// How much of each extended C record is cleared before the library fills it. The extended list
// has always cleared only the short record's size per record (count x 328 bytes of the
// count x 592 allocated), relying on the library to fill every record it reports.
enum class Clearing { WholeRecords, ShortRecordSize };

template <typename Record>
std::unique_ptr<Record[]> NewChannelRecords(JNIEnv* env, jint count, Clearing clearing) {
    if (clearing == Clearing::WholeRecords || count < 0) {
        return NewRecords<Record>(env, count);
    }
    std::unique_ptr<Record[]> records(new (std::nothrow) Record[static_cast<std::size_t>(count)]);
    if (!records) {
        CJniKits::ThrowOutOfMemory(env, "channel records");
        return nullptr;
    }
    std::memset(static_cast<void*>(records.get()), 0,
                sizeof(Enc_Channel_Info_t) * static_cast<std::size_t>(count));
    return records;
}

struct ChannelListClasses {
    const char* request;
    const char* element;
    const char* arraySignature;
};

// The body of both channel lists: read the device and the capacity, let the library fill a C
// array of that many records, and on success copy the reported ones into the caller's
// pre-filled Java array with `write`. The C array is freed on every path.
template <typename Request, typename Record, typename Call, typename Write>
jint ReadChannelList(JNIEnv* env, jobject jo, const ChannelListClasses& classes,
                     ZeroCount zeroCount, Clearing clearing, Call call, Write write) {
    if (jo == nullptr) {
        return RefuseInput();
    }
    Request request = Zeroed<Request>();
    LocalClass cls = FindValueClass(env, classes.request);
    CJniKits::GetStuByteArrayField(env, jo, cls.get(), "szDeviceId", request.szDeviceId);
    const jint capacity = CJniKits::GetStuIntField(env, jo, cls.get(), "nEncChannelChildCount");
    if (InputFailed(env)) {
        return RefuseInput();
    }
    if (capacity == 0) {
        return zeroCount == ZeroCount::KeepLastResult ? LastResult() : RefuseInput();
    }
    const LocalArray array =
        ArrayField(env, jo, cls.get(), "pEncChannelnfo", classes.arraySignature);
    if (ArrayUnusable(env, array, capacity, "pEncChannelnfo")) {
        return RefuseInput();
    }
    std::unique_ptr<Record[]> records = NewChannelRecords<Record>(env, capacity, clearing);
    if (!records) {
        return RefuseInput();
    }
    request.nEncChannelChildCount = static_cast<uint32_t>(capacity);
    request.pEncChannelnfo = records.get();
    const int nResult = call(&request);
    StoreResult(nResult);
    if (nResult == ORVEX_RET_SUCCESS) {
        WriteRecords(env, array.get(), classes.element, records.get(),
                     request.nEncChannelChildCount, capacity, write);
    }
    return LastResult();
}

}  // namespace

extern "C" {

// ---- Organisation tree loading and export

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1LoadDGroupInfo(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbReturnValue, jint jiTimeout) {
    return ReturnThroughHolder<int32_t>(env, jbReturnValue, 0, [&](int32_t* pnGroupLen) {
        return ORVEX_LoadDGroupInfo(jiHandle, pnGroupLen, jiTimeout);
    });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1LoadOrgInfoByType(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jint jiType, jobject jbReturnValue,
    jint jiTimeout) {
    return ReturnThroughHolder<int32_t>(env, jbReturnValue, 0, [&](int32_t* pnOrgCount) {
        return ORVEX_LoadOrgInfoByType(jiHandle, jiType, pnOrgCount, jiTimeout);
    });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1LoadDGroupInfoLayered(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbDepInfo, jobject jbReturnValue,
    jint jiTimeout) {
    return ReturnThroughHolder<int32_t>(env, jbReturnValue, 0, [&](int32_t* pnGroupLen) {
        return SendRequest<Load_Dep_Info_t>(
            env, jbDepInfo, "com/zq/OrvexCore/Load_Dep_Info_t",
            [&](jclass cls, Load_Dep_Info_t& info) {
                CJniKits::GetStuByteArrayField(env, jbDepInfo, cls, "szCoding", info.szCoding);
                info.nOperation = static_cast<orvex_getgroup_operation_e>(
                    CJniKits::GetStuIntField(env, jbDepInfo, cls, "nOperation"));
            },
            [&](Load_Dep_Info_t* pInfo) {
                return ORVEX_LoadDGroupInfoLayered(jiHandle, pInfo, pnGroupLen, jiTimeout);
            });
    });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetDGroupStr(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jbyteArray jbGroupBuf, jint jiGroupLen,
    jint jiTimeout) {
    if (IsNullArg(env, jbGroupBuf, "jbGroupBuf")) {
        return RefuseInput();
    }
    // Cleared, so that bytes the library leaves unwritten reach Java as zeros rather than old
    // heap contents; the extra byte is never copied.
    std::unique_ptr<char[]> buffer = NewRecords<char>(env, WithTerminator(jiGroupLen));
    if (!buffer) {
        return RefuseInput();
    }
    const int nResult = ORVEX_GetDGroupStr(jiHandle, buffer.get(), jiGroupLen, jiTimeout);
    StoreResult(nResult);
    if (nResult == ORVEX_RET_SUCCESS) {
        // A length beyond the Java array is cut at its end, with the exception pending.
        CJniKits::SetJByteArray(env, jbGroupBuf,
                                reinterpret_cast<const unsigned char*>(buffer.get()), jiGroupLen);
    }
    return LastResult();
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetDGroupRootInfo(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbRootInfo) {
    if (IsNullArg(env, jbRootInfo, "jbRootInfo")) {
        return RefuseInput();
    }
    Dep_Info_t root = Zeroed<Dep_Info_t>();
    StoreResult(ORVEX_GetDGroupRootInfo(jiHandle, &root));
    // Written whatever the result: a failed call hands Java the zeros of the cleared record.
    LocalClass cls = FindValueClass(env, "com/zq/OrvexCore/Dep_Info_t");
    WriteDepInfo(env, jbRootInfo, cls.get(), root);
    return LastResult();
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetDGroupCount(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbDepCountInfo) {
    constexpr const char* kClass = "com/zq/OrvexCore/Get_Dep_Count_Info_t";
    return SendRequest<Get_Dep_Count_Info_t>(
        env, jbDepCountInfo, kClass,
        [&](jclass cls, Get_Dep_Count_Info_t& info) {
            CJniKits::GetStuByteArrayField(env, jbDepCountInfo, cls, "szCoding", info.szCoding);
        },
        [&](Get_Dep_Count_Info_t* pInfo) {
            const int nResult = ORVEX_GetDGroupCount(jiHandle, pInfo);
            // Written whatever the result: a failed call sets the three counts to 0.
            LocalClass cls = FindValueClass(env, kClass);
            CJniKits::SetStuIntField(env, jbDepCountInfo, cls.get(), "nDepCount",
                                     static_cast<int>(pInfo->nDepCount));
            CJniKits::SetStuIntField(env, jbDepCountInfo, cls.get(), "nDeviceCount",
                                     static_cast<int>(pInfo->nDeviceCount));
            CJniKits::SetStuIntField(env, jbDepCountInfo, cls.get(), "nChannelCount",
                                     static_cast<int>(pInfo->nChannelCount));
            return nResult;
        });
}

// ---- Group nodes and devices

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetDGroupInfo(JNIEnv* env,
                                                                             jclass /*thiz*/,
                                                                             jint jiHandle,
                                                                             jobject jbGetDepInfo) {
    if (jbGetDepInfo == nullptr) {
        return RefuseInput();
    }
    Get_Dep_Info_t request = Zeroed<Get_Dep_Info_t>();
    LocalClass cls = FindValueClass(env, "com/zq/OrvexCore/Get_Dep_Info_t");
    CJniKits::GetStuByteArrayField(env, jbGetDepInfo, cls.get(), "szCoding", request.szCoding);
    const jint depCapacity = CJniKits::GetStuIntField(env, jbGetDepInfo, cls.get(), "nDepCount");
    const jint deviceCapacity =
        CJniKits::GetStuIntField(env, jbGetDepInfo, cls.get(), "nDeviceCount");
    if (InputFailed(env)) {
        return RefuseInput();
    }
    const LocalArray deps =
        ArrayField(env, jbGetDepInfo, cls.get(), "pDepInfo", "[Lcom/zq/OrvexCore/Dep_Info_t;");
    if (ArrayUnusable(env, deps, depCapacity, "pDepInfo")) {
        return RefuseInput();
    }
    const LocalArray devices = ArrayField(env, jbGetDepInfo, cls.get(), "pDeviceInfo",
                                          "[Lcom/zq/OrvexCore/Device_Info_Ex_t;");
    if (ArrayUnusable(env, devices, deviceCapacity, "pDeviceInfo")) {
        return RefuseInput();
    }
    std::unique_ptr<Dep_Info_t[]> depRecords = NewRecords<Dep_Info_t>(env, depCapacity);
    std::unique_ptr<Device_Info_Ex_t[]> deviceRecords =
        NewRecords<Device_Info_Ex_t>(env, deviceCapacity);
    if (!depRecords || !deviceRecords) {
        return RefuseInput();
    }
    // A capacity of 0 reaches the library as a null array.
    request.nDepCount = static_cast<uint32_t>(depCapacity);
    request.pDepInfo = depCapacity != 0 ? depRecords.get() : nullptr;
    request.nDeviceCount = static_cast<uint32_t>(deviceCapacity);
    request.pDeviceInfo = deviceCapacity != 0 ? deviceRecords.get() : nullptr;

    const int nResult = ORVEX_GetDGroupInfo(jiHandle, &request);
    StoreResult(nResult);
    if (nResult != ORVEX_RET_SUCCESS) {
        return LastResult();  // both C arrays are freed on this path
    }
    // The counts the library reports bound the copies but are not written back: Java knows
    // how many elements were filled only from its own counts.
    WriteRecords(env, deps.get(), "com/zq/OrvexCore/Dep_Info_t", depRecords.get(),
                 request.nDepCount, depCapacity, WriteDepInfo);
    // Devices read here have never had their szCallNum written, unlike a device read by its
    // identifier.
    WriteRecords(env, devices.get(), "com/zq/OrvexCore/Device_Info_Ex_t", deviceRecords.get(),
                 request.nDeviceCount, deviceCapacity,
                 [](JNIEnv* e, jobject joDevice, jclass clsDevice, const Device_Info_Ex_t& dev) {
                     CJniKits::WriteDeviceInfo(e, joDevice, clsDevice, dev,
                                               CJniKits::CallNum::Skipped);
                 });
    // On success the C arrays have never been freed; kept so.
    static_cast<void>(depRecords.release());
    static_cast<void>(deviceRecords.release());
    return LastResult();
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetDeviceInfoExById(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jbyteArray jbDevId, jobject joDevInfoEx) {
    if (joDevInfoEx == nullptr) {
        return RefuseInput();
    }
    // An empty identifier goes to the library as an empty string.
    return WithCheckedText(env, jbDevId, EmptyText::Allowed, [&](const char* szDeviceId) {
        Device_Info_Ex_t device = Zeroed<Device_Info_Ex_t>();
        const int nResult = ORVEX_GetDeviceInfoExById(jiHandle, szDeviceId, &device);
        if (nResult == ORVEX_RET_SUCCESS) {
            CJniKits::CreateDeviceInfoObject(env, joDevInfoEx, device);
        }
        return nResult;
    });
}

// ---- Channels

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetChannelInfo(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbGetChannelInfo) {
    static constexpr ChannelListClasses kClasses{"com/zq/OrvexCore/Get_Channel_Info_t",
                                                 "com/zq/OrvexCore/Enc_Channel_Info_t",
                                                 "[Lcom/zq/OrvexCore/Enc_Channel_Info_t;"};
    return ReadChannelList<Get_Channel_Info_t, Enc_Channel_Info_t>(
        env, jbGetChannelInfo, kClasses, ZeroCount::KeepLastResult, Clearing::WholeRecords,
        [&](Get_Channel_Info_t* pInfo) { return ORVEX_GetChannelInfo(jiHandle, pInfo); },
        WriteChannelInfo);
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetChannelInfoEx(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbGetChannelInfo) {
    static constexpr ChannelListClasses kClasses{"com/zq/OrvexCore/Get_Channel_Info_Ex_t",
                                                 "com/zq/OrvexCore/Enc_Channel_Info_Ex_t",
                                                 "[Lcom/zq/OrvexCore/Enc_Channel_Info_Ex_t;"};
    return ReadChannelList<Get_Channel_Info_Ex_t, Enc_Channel_Info_Ex_t>(
        env, jbGetChannelInfo, kClasses, ZeroCount::Invalid, Clearing::ShortRecordSize,
        [&](Get_Channel_Info_Ex_t* pInfo) { return ORVEX_GetChannelInfoEx(jiHandle, pInfo); },
        WriteChannelInfoEx);
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetEncChannelCount(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jbyteArray jbDeviceID, jobject jbEncChannelCount) {
    return WithCheckedText(env, jbDeviceID, EmptyText::KeepLastResult, [&](const char* szId) {
        return ReturnThroughHolder<int32_t>(env, jbEncChannelCount, 0, [&](int32_t* pnCount) {
            return ORVEX_GetEncChannelCount(jiHandle, szId, pnCount);
        });
    });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetChnlType(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jbyteArray jbCameraId, jobject jbUnitType) {
    // The out value starts at 1, which a library that leaves it alone hands back.
    return WithCheckedText(env, jbCameraId, EmptyText::KeepLastResult, [&](const char* szId) {
        return ReturnThroughHolder<int32_t>(env, jbUnitType, 1, [&](int32_t* pnType) {
            return ORVEX_GetChnlType(jiHandle, szId, pnType);
        });
    });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetDevStreamType(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbGetDevStreamType) {
    constexpr const char* kClass = "com/zq/OrvexCore/Get_Dev_StreamType_Info_t";
    if (jbGetDevStreamType == nullptr) {
        return RefuseInput();
    }
    return SendRequest<Get_Dev_StreamType_Info_t>(
        env, jbGetDevStreamType, kClass,
        [&](jclass cls, Get_Dev_StreamType_Info_t& info) {
            CJniKits::GetStuByteArrayField(env, jbGetDevStreamType, cls, "szDeviceId",
                                           info.szDeviceId);
            info.nUnitNo = CJniKits::GetStuIntField(env, jbGetDevStreamType, cls, "nUnitNo");
        },
        [&](Get_Dev_StreamType_Info_t* pInfo) {
            const int nResult = ORVEX_GetDevStreamType(jiHandle, pInfo);
            if (nResult == ORVEX_RET_SUCCESS) {
                LocalClass cls = FindValueClass(env, kClass);
                CJniKits::SetStuIntField(env, jbGetDevStreamType, cls.get(), "nStreamType",
                                         pInfo->nStreamType);
            }
            return nResult;
        });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetChannelInfoById(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jbyteArray jbCameraId, jobject jbGetChannelInfo) {
    if (jbGetChannelInfo == nullptr) {
        return RefuseInput();
    }
    return WithCheckedText(env, jbCameraId, EmptyText::KeepLastResult, [&](const char* szId) {
        return FillOnSuccess<Enc_Channel_Info_Ex_t>(
            env, jbGetChannelInfo, "com/zq/OrvexCore/Enc_Channel_Info_Ex_t",
            [&](Enc_Channel_Info_Ex_t* pInfo) {
                return ORVEX_GetChannelInfoById(jiHandle, szId, pInfo);
            },
            WriteChannelInfoEx);
    });
}

// ---- Logical organisation

// The one catalogue native that neither stores nor returns the last result.
JNIEXPORT jboolean JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1HasLogicOrg(JNIEnv* /*env*/,
                                                                               jclass /*thiz*/,
                                                                               jint jiHandle) {
    return ORVEX_HasLogicOrg(jiHandle) ? JNI_TRUE : JNI_FALSE;
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetLogicRootDepInfo(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbDepInfoEx) {
    if (IsNullArg(env, jbDepInfoEx, "jbDepInfoEx")) {
        return RefuseInput();
    }
    return StoreResult(FillOnSuccess<Dep_Info_Ex_t>(
        env, jbDepInfoEx, "com/zq/OrvexCore/Dep_Info_Ex_t",
        [&](Dep_Info_Ex_t* pInfo) { return ORVEX_GetLogicRootDepInfo(jiHandle, pInfo); },
        WriteDepInfoEx));
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetLogicDepNodeNum(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jbyteArray jbDepCoding, jint jiNodeType,
    jobject jbDepNodeNum) {
    return WithCheckedText(env, jbDepCoding, EmptyText::KeepLastResult, [&](const char* szCoding) {
        return ReturnThroughHolder<int32_t>(env, jbDepNodeNum, 0, [&](int32_t* pnNum) {
            return ORVEX_GetLogicDepNodeNum(jiHandle, szCoding,
                                            static_cast<orvex_node_type_e>(jiNodeType), pnNum);
        });
    });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetLogicSubDepInfoByIndex(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jbyteArray jbDepCoding, jint jiIndex,
    jobject jbDepInfoEx) {
    return WithCheckedText(env, jbDepCoding, EmptyText::KeepLastResult, [&](const char* szCoding) {
        if (IsNullArg(env, jbDepInfoEx, "jbDepInfoEx")) {
            return RefuseInput();
        }
        return FillOnSuccess<Dep_Info_Ex_t>(
            env, jbDepInfoEx, "com/zq/OrvexCore/Dep_Info_Ex_t",
            [&](Dep_Info_Ex_t* pInfo) {
                return ORVEX_GetLogicSubDepInfoByIndex(jiHandle, szCoding, jiIndex, pInfo);
            },
            WriteDepInfoEx);
    });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetLogicID(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jbyteArray jbDepCoding, jint jiIndex,
    jboolean jboolChannel, jobject jbCodeID) {
    return WithCheckedText(env, jbDepCoding, EmptyText::KeepLastResult, [&](const char* szCoding) {
        if (IsNullArg(env, jbCodeID, "jbCodeID")) {
            return RefuseInput();
        }
        // The library writes into a 128-byte buffer, all of which goes to "szCodeID".
        char szCodeID[128] = {};
        const int nResult =
            ORVEX_GetLogicID(jiHandle, szCoding, jiIndex, jboolChannel != JNI_FALSE, szCodeID);
        if (nResult == ORVEX_RET_SUCCESS) {
            LocalClass cls = FindValueClass(env, "com/zq/OrvexCore/Return_Value_ByteArray_t");
            CJniKits::SetStuByteArrayField(env, jbCodeID, cls.get(), "szCodeID", szCodeID,
                                           sizeof(szCodeID));
        }
        return nResult;
    });
}

}  // extern "C"
