// Small JNI conveniences shared by the source files of the simctl test library.
#pragma once

#include <jni.h>

#include <string>

namespace simctl {

inline std::string ToString(JNIEnv* env, jstring s) {
    const char* chars = env->GetStringUTFChars(s, nullptr);
    std::string out(chars);
    env->ReleaseStringUTFChars(s, chars);
    return out;
}

inline void ThrowState(JNIEnv* env, const std::string& message) {
    env->ThrowNew(env->FindClass("java/lang/IllegalStateException"), message.c_str());
}

}  // namespace simctl
