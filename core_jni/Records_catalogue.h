// Record writers shared by the catalogue natives: groups, logical departments and channels.
// Each takes the Java class its caller found, so a list is written with one class look-up.
#pragma once

#include <jni.h>

#include "ORVEX_Core_Define.h"

// A group: "szCoding" and "szDepName" at their full sizes; nDepSort and szOrgID stay in C.
void WriteDepInfo(JNIEnv* env, jobject joDep, jclass clsDep, const Dep_Info_t& dep);

// A logical department: its five texts at full size and four integers; szOrgID stays in C.
void WriteDepInfoEx(JNIEnv* env, jobject joDep, jclass clsDep, const Dep_Info_Ex_t& dep);

// Channels, short and extended. Their texts go across at their strlen, without terminator:
// the Java arrays keep their old bytes after a shorter text.
void WriteChannelInfo(JNIEnv* env, jobject joChannel, jclass clsChannel,
                      const Enc_Channel_Info_t& channel);
void WriteChannelInfoEx(JNIEnv* env, jobject joChannel, jclass clsChannel,
                        const Enc_Channel_Info_Ex_t& channel);
