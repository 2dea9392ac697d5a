// PTZ motion, camera operations and switches, and preset points.
#include <com_zq_OrvexCore_IOrvexCore.h>

#include <algorithm>
#include <cstdint>

#include "BridgeFrame.h"
#include "JniKits.h"
#include "NativeShapes.h"
#include "ORVEX_Core.h"
#include "Records_ptz.h"

namespace {

template <typename Info>
using PtzFunction = int32_t (*)(int32_t, Info*, int32_t);

// The library has no infrared switch: the infrared native has always driven the rain brush with
// the infrared request, and Java code depends on it doing so.
constexpr PtzFunction<Ptz_Open_Command_Info_t> kInfraredSwitch = ORVEX_PtzRainBrushControl;

// The library function called once with handle, request structure and time-out.
template <typename Info>
auto CallLibrary(PtzFunction<Info> fn, jint jiHandle, jint jiTimeout) {
    return [=](Info* info) { return fn(jiHandle, info, jiTimeout); };
}

// The body every PTZ request shares: szCameraId first, `readRest` reads the members after it in
// the structure's order, then one call. The structure's other members stay 0 (Ptz_Sit_Info_t's
// type among them).
template <typename Info, typename ReadRest, typename Call>
jint SendPtzRequest(JNIEnv* env, jobject jbRequest, const char* classPath, ReadRest readRest,
                    Call call) {
    return SendRequest<Info>(
        env, jbRequest, classPath,
        [&](jclass cls, Info& info) {
            CJniKits::GetStuByteArrayField(env, jbRequest, cls, "szCameraId", info.szCameraId);
            readRest(cls, info);
        },
        call);
}

// Movement and lens operations: a command member, the speed step and the start/stop flag.
template <typename Info, typename Command>
jint SendSteppedCommand(JNIEnv* env, jint jiHandle, jobject jbRequest, const char* classPath,
                        const char* commandField, Command Info::*command, PtzFunction<Info> fn,
                        jint jiTimeout) {
    return SendPtzRequest<Info>(
        env, jbRequest, classPath,
        [&](jclass cls, Info& info) {
            info.*command =
                static_cast<Command>(CJniKits::GetStuIntField(env, jbRequest, cls, commandField));
            info.nStep = IntFieldAs<uint32_t>(env, jbRequest, cls, "nStep");
            info.bStop = CJniKits::GetStuBoolField(env, jbRequest, cls, "bStop") != 0;
        },
        CallLibrary(fn, jiHandle, jiTimeout));
}

// Light, rain brush and infrared share one request class.
jint SendSwitchCommand(JNIEnv* env, jint jiHandle, jobject jbCmdInfo,
                       PtzFunction<Ptz_Open_Command_Info_t> fn, jint jiTimeout) {
    return SendPtzRequest<Ptz_Open_Command_Info_t>(
        env, jbCmdInfo, "com/zq/OrvexCore/Ptz_Open_Command_Info_t",
        [&](jclass cls, Ptz_Open_Command_Info_t& info) {
            info.bOpen = CJniKits::GetStuBoolField(env, jbCmdInfo, cls, "bOpen") != 0;
        },
        CallLibrary(fn, jiHandle, jiTimeout));
}

constexpr const char* kPrepointListClass = "com/zq/OrvexCore/Ptz_Prepoint_Info_t";
constexpr const char* kPrepointArraySignature = "[Lcom/zq/OrvexCore/Ptz_Single_Prepoint_Info_t;";
constexpr uint32_t kPrepointCapacity =
    sizeof(Ptz_Prepoint_Info_t::pPoints) / sizeof(Ptz_Single_Prepoint_Info_t);

// Writes the library's count back and replaces the first elements of the Java preset array with
// new objects. The count is trusted only as far as the records the structure holds and the Java
// array reach.
void WritePrepointList(JNIEnv* env, jobject jbPrepointInfo, const Ptz_Prepoint_Info_t& info) {
    LocalClass clsList = FindValueClass(env, kPrepointListClass);
    if (clsList.get() == nullptr) {
        return;
    }
    CJniKits::SetStuIntField(env, jbPrepointInfo, clsList.get(), "nCount",
                             static_cast<int>(info.nCount));
    auto points = ObjectField<jobjectArray>(env, jbPrepointInfo, clsList.get(), "pPoints",
                                            kPrepointArraySignature);
    CJniKits::ExceptionStash stash(env);
    LocalClass clsPoint = FindValueClass(env, kPrepointClass);
    if (points.get() == nullptr || clsPoint.get() == nullptr) {
        return;
    }
    jmethodID ctor = env->GetMethodID(clsPoint.get(), "<init>", "()V");
    if (ctor == nullptr) {
        return;
    }
    const auto count = static_cast<jint>(std::min(info.nCount, kPrepointCapacity));
    ForEachElement(env, points.get(), count, [&](jsize i, jobject /*replaced*/) {
        CJniKits::ScopedLocalRef<jobject> point(env, env->NewObject(clsPoint.get(), ctor));
        if (point.get() != nullptr) {
            env->SetObjectArrayElement(points.get(), i, point.get());
            WritePrepoint(env, clsPoint.get(), point.get(), info.pPoints[i]);
        }
    });
}

}  // namespace

extern "C" {

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1PtzDirection(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbDirectInfo, jint jiTimeout) {
    return SendSteppedCommand(env, jiHandle, jbDirectInfo, "com/zq/OrvexCore/Ptz_Direct_Info_t",
                              "nDirect", &Ptz_Direct_Info_t::nDirect, ORVEX_PtzDirection,
                              jiTimeout);
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1PtzCameraOperation(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbOperationInfo, jint jiTimeout) {
    return SendSteppedCommand(
        env, jiHandle, jbOperationInfo, "com/zq/OrvexCore/Ptz_Operation_Info_t", "nOperation",
        &Ptz_Operation_Info_t::nOperation, ORVEX_PtzCameraOperation, jiTimeout);
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1PtzSit(JNIEnv* env, jclass /*thiz*/,
                                                                      jint jiHandle,
                                                                      jobject jbSitInfo,
                                                                      jint jiTimeout) {
    return SendPtzRequest<Ptz_Sit_Info_t>(
        env, jbSitInfo, "com/zq/OrvexCore/Ptz_Sit_Info_t",
        [&](jclass cls, Ptz_Sit_Info_t& info) {
            info.pointX = CJniKits::GetStuIntField(env, jbSitInfo, cls, "pointX");
            info.pointY = CJniKits::GetStuIntField(env, jbSitInfo, cls, "pointY");
            info.pointZ = CJniKits::GetStuIntField(env, jbSitInfo, cls, "pointZ");
        },
        CallLibrary(ORVEX_PtzSit, jiHandle, jiTimeout));
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1PtzLockCamera(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbLockInfo, jint jiTimeout) {
    return SendPtzRequest<Ptz_Lock_Info_t>(
        env, jbLockInfo, "com/zq/OrvexCore/Ptz_Lock_Info_t",
        [&](jclass cls, Ptz_Lock_Info_t& info) {
            info.nLock = static_cast<orvex_ptz_locktype_e>(
                CJniKits::GetStuIntField(env, jbLockInfo, cls, "nLock"));
        },
        CallLibrary(ORVEX_PtzLockCamera, jiHandle, jiTimeout));
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1PtzLightControl(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbCmdInfo, jint jiTimeout) {
    return SendSwitchCommand(env, jiHandle, jbCmdInfo, ORVEX_PtzLightControl, jiTimeout);
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1PtzRainBrushControl(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbCmdInfo, jint jiTimeout) {
    return SendSwitchCommand(env, jiHandle, jbCmdInfo, ORVEX_PtzRainBrushControl, jiTimeout);
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1PtzInfraredControl(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbCmdInfo, jint jiTimeout) {
    return SendSwitchCommand(env, jiHandle, jbCmdInfo, kInfraredSwitch, jiTimeout);
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1PtzExtendCommand(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbExtCmd, jint jiTimeout) {
    return SendPtzRequest<Ptz_Extend_Command_Info_t>(
        env, jbExtCmd, "com/zq/OrvexCore/Ptz_Extend_Command_Info_t",
        [&](jclass cls, Ptz_Extend_Command_Info_t& info) {
            info.nCmd = static_cast<orvex_ptz_extend_cmd_e>(
                CJniKits::GetStuIntField(env, jbExtCmd, cls, "nCmd"));
            info.nParam = CJniKits::GetStuIntField(env, jbExtCmd, cls, "nParam");
        },
        CallLibrary(ORVEX_PtzExtendCommand, jiHandle, jiTimeout));
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1QueryPrePoint(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbPrepointInfo, jint jiTimeout) {
    return SendPtzRequest<Ptz_Prepoint_Info_t>(
        env, jbPrepointInfo, kPrepointListClass,
        [&](jclass cls, Ptz_Prepoint_Info_t& info) {
            info.nCount = IntFieldAs<uint32_t>(env, jbPrepointInfo, cls, "nCount");
            // The presets go into this array after the call; without it they could not reach
            // Java, so a null array is refused before the library is asked.
            auto points = ObjectField<jobjectArray>(env, jbPrepointInfo, cls, "pPoints",
                                                    kPrepointArraySignature);
            IsNullArg(env, points.get(), "pPoints");
        },
        [&](Ptz_Prepoint_Info_t* info) {
            const int nResult = ORVEX_QueryPrePoint(jiHandle, info, jiTimeout);
            if (nResult == ORVEX_RET_SUCCESS) {
                WritePrepointList(env, jbPrepointInfo, *info);
            }
            return nResult;
        });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1PtzPrePointOperation(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbPrepointOperationInfo, jint jiTimeout) {
    return SendPtzRequest<Ptz_Prepoint_Operation_Info_t>(
        env, jbPrepointOperationInfo, "com/zq/OrvexCore/Ptz_Prepoint_Operation_Info_t",
        [&](jclass cls, Ptz_Prepoint_Operation_Info_t& info) {
            info.nCmd = static_cast<orvex_ptz_prepoint_cmd_e>(
                CJniKits::GetStuIntField(env, jbPrepointOperationInfo, cls, "nCmd"));
            // The field name of the listing's array, holding one preset here.
            auto point = ObjectField(env, jbPrepointOperationInfo, cls, "pPoints",
                                     "Lcom/zq/OrvexCore/Ptz_Single_Prepoint_Info_t;");
            ReadPrepoint(env, point.get(), info.pPoints);
        },
        CallLibrary(ORVEX_PtzPrePointOperation, jiHandle, jiTimeout));
}

}  // extern "C"
