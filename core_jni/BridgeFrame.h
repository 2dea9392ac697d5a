// Process-wide state of the bridge and the result convention shared by every native method.
#pragma once

#include <jni.h>

#include <atomic>

// The virtual machine, for callback threads to attach through. Written at load and possibly once
// more by a listener setter (always the same value), read by the trampolines.
extern std::atomic<JavaVM*> g_jvm;
// The last result of any native method. Shared by all threads without ordering: concurrent
// callers overwrite each other, and each method returns what the global holds when it reads it
// back, because the interface defines the return value and this global as one and the same.
extern std::atomic<int> g_nLastError;
// Classes that callbacks instantiate, resolved at load because a library thread cannot find
// application classes by name.
extern jclass g_clsShareVideoInfo;
extern jclass g_clsDataChangeInfo;

// Stores a method's result code as the last result and returns the global as it now stands.
inline jint StoreResult(int nResult) {
    g_nLastError.store(nResult, std::memory_order_relaxed);
    return g_nLastError.load(std::memory_order_relaxed);
}

// The last result as it stands (paths that deliberately leave it unchanged return this).
inline jint LastResult() {
    return g_nLastError.load(std::memory_order_relaxed);
}

// Fills g_jvm from the calling thread's environment when no listener setter or load did yet, so
// that callbacks of what the caller starts can attach.
inline void FillJvmIfUnset(JNIEnv* env) {
    if (g_jvm.load(std::memory_order_relaxed) == nullptr) {
        JavaVM* vm = nullptr;
        env->GetJavaVM(&vm);
        g_jvm.store(vm, std::memory_order_relaxed);
    }
}

// Writes one integer into the "nReturnValue" of a Java Return_Value_Info_t holder.
void SetReturnValue(JNIEnv* env, jobject holder, int nValue);
