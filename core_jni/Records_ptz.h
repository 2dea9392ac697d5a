// Preset points between Java Ptz_Single_Prepoint_Info_t objects and C records: the listing
// writes them, the preset operation reads one.
#pragma once

#include <jni.h>

#include "ORVEX_Core_Define.h"

inline constexpr const char* kPrepointClass = "com/zq/OrvexCore/Ptz_Single_Prepoint_Info_t";

// Reads nCode and the whole szName array (at most the 32-byte member) out of a preset object.
void ReadPrepoint(JNIEnv* env, jobject joPoint, Ptz_Single_Prepoint_Info_t& point);
// Writes nCode and the name's bytes up to its terminator into a preset object of class
// `clsPoint`; a null szName array is skipped.
void WritePrepoint(JNIEnv* env, jclass clsPoint, jobject joPoint,
                   const Ptz_Single_Prepoint_Info_t& point);
