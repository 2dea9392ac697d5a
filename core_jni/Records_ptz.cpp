#include "Records_ptz.h"

#include "JniKits.h"
#include "NativeShapes.h"

void ReadPrepoint(JNIEnv* env, jobject joPoint, Ptz_Single_Prepoint_Info_t& point) {
    CJniKits::ExceptionStash stash(env);
    LocalClass cls = FindValueClass(env, kPrepointClass);
    point.nCode = static_cast<uint32_t>(CJniKits::GetStuIntField(env, joPoint, cls.get(), "nCode"));
    CJniKits::GetStuByteArrayField(env, joPoint, cls.get(), "szName", point.szName);
}

void WritePrepoint(JNIEnv* env, jclass clsPoint, jobject joPoint,
                   const Ptz_Single_Prepoint_Info_t& point) {
    CJniKits::SetStuIntField(env, joPoint, clsPoint, "nCode", static_cast<int>(point.nCode));
    SetTextField(env, joPoint, clsPoint, "szName", point.szName);
}
