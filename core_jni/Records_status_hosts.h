// Conversion of alarm-host zone states, written by both zone-status natives.
#pragma once

#include <jni.h>

#include "ORVEX_Core_Define.h"

// The Java class of one zone state.
constexpr const char* kDefenceStatusClass = "com/zq/OrvexCore/orvex_AHostDefenceStatus_t";

// Writes one zone state into an orvex_AHostDefenceStatus_t object: szNodeID (its string length,
// no terminator), nAlarm, nUndefendAlarm, bByPass, bDefend.
void WriteDefenceStatus(JNIEnv* env, jobject joStatus, jclass clsStatus,
                        const orvex_AHostDefenceStatus_t& status);
