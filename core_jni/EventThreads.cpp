// Event threads kept attached to the virtual machine, the opt-in alternative to attaching and
// detaching a library thread for every event.
#include "EventThreads.h"

#include <atomic>
#include <cstring>
#include <initializer_list>

namespace {

// How event threads meet the virtual machine, chosen once at load (orvex.events.threads).
//   per event (default): attach on entry, detach on exit, every event;
//   attached: a library thread is attached as a daemon at its first event and stays attached
//   until it ends, when a thread-exit destructor detaches it. A thread the virtual machine knew
//   before its first event (a Java thread calling in) is used as it is and never detached.
std::atomic<bool> g_attachedThreads{false};

// The attachment of one library thread in attached mode; its destructor runs when the library
// ends the thread. It also remembers the last listener class and "invoke" the thread resolved:
// looking the method up again costs more than the rest of a small event. The class is held by a
// weak reference, and the method is reused only while that reference is still the listener's
// class: a class that was unloaded clears the reference and can never match.
struct ThreadAttachment {
    JavaVM* vm = nullptr;  // set only when this bridge attached the thread
    JNIEnv* env = nullptr;
    jweak cls = nullptr;
    const ListenerKind* kind = nullptr;
    jmethodID invoke = nullptr;

    ~ThreadAttachment() {
        if (vm != nullptr) {
            if (cls != nullptr) {
                env->DeleteWeakGlobalRef(cls);
            }
            vm->DetachCurrentThread();
        }
    }
};

thread_local ThreadAttachment t_attachment;

}  // namespace

bool KeepThreadsAttached() {
    return g_attachedThreads.load(std::memory_order_relaxed);
}

JNIEnv* KeptAttachedEnv(JavaVM* vm) {
    ThreadAttachment& attachment = t_attachment;
    if (attachment.env == nullptr) {
        JNIEnv* env = nullptr;
        if (vm->GetEnv(reinterpret_cast<void**>(&env), JNI_VERSION_1_6) != JNI_OK) {
            if (vm->AttachCurrentThreadAsDaemon(reinterpret_cast<void**>(&env), nullptr) !=
                JNI_OK) {
                return nullptr;
            }
            attachment.vm = vm;
        }
        attachment.env = env;
    }
    return attachment.env;
}

// "invoke" of the listener's class `cls` on a thread kept attached. Only threads this bridge
// attached keep the cache: another thread's end may come after the virtual machine let it go.
jmethodID KeptAttachedInvoke(JNIEnv* env, jclass cls, const ListenerKind& kind) {
    ThreadAttachment& cache = t_attachment;
    if (cache.vm == nullptr) {
        return env->GetMethodID(cls, "invoke", kind.signature);
    }
    if (cache.kind == &kind && cache.cls != nullptr && env->IsSameObject(cls, cache.cls)) {
        return cache.invoke;
    }
    const jmethodID invoke = env->GetMethodID(cls, "invoke", kind.signature);
    if (invoke != nullptr) {
        if (cache.cls != nullptr) {
            env->DeleteWeakGlobalRef(cache.cls);
        }
        cache.cls = env->NewWeakGlobalRef(cls);
        cache.kind = &kind;
        cache.invoke = invoke;
    }
    return invoke;
}

// An exception the listener threw, on a thread that stays attached: nothing may stay pending
// into the next event, so it goes where it would go when a thread ends, to the thread's
// uncaught-exception handler (its group's when it has none of its own).
void HandOverToUncaughtHandler(JNIEnv* env) {
    jthrowable thrown = env->ExceptionOccurred();
    if (thrown == nullptr) {
        return;
    }
    env->ExceptionClear();
    // Every step's own failure is cleared: whatever happens, nothing stays pending.
    const auto failed = [env](const void* result) {
        const bool pending = env->ExceptionCheck();
        env->ExceptionClear();
        return pending || result == nullptr;
    };
    jclass clsThread = env->FindClass("java/lang/Thread");
    jmethodID current = nullptr;
    jmethodID getHandler = nullptr;
    jobject thread = nullptr;
    jobject handler = nullptr;
    jclass clsHandler = nullptr;
    jmethodID uncaught = nullptr;
    if (!failed(clsThread) &&
        !failed(current =
                    env->GetStaticMethodID(clsThread, "currentThread", "()Ljava/lang/Thread;")) &&
        !failed(getHandler = env->GetMethodID(clsThread, "getUncaughtExceptionHandler",
                                              "()Ljava/lang/Thread$UncaughtExceptionHandler;")) &&
        !failed(thread = env->CallStaticObjectMethod(clsThread, current)) &&
        !failed(handler = env->CallObjectMethod(thread, getHandler)) &&
        !failed(clsHandler = env->GetObjectClass(handler)) &&
        !failed(uncaught = env->GetMethodID(clsHandler, "uncaughtException",
                                            "(Ljava/lang/Thread;Ljava/lang/Throwable;)V"))) {
        env->CallVoidMethod(handler, uncaught, thread, thrown);
        failed(nullptr);  // a handler that throws itself is ignored, as at a thread's end
    }
    for (jobject local : {static_cast<jobject>(clsHandler), handler, thread,
                          static_cast<jobject>(clsThread), static_cast<jobject>(thrown)}) {
        if (local != nullptr) {
            env->DeleteLocalRef(local);
        }
    }
}

void ReadEventThreadMode(JNIEnv* env) {
    jclass clsSystem = env->FindClass("java/lang/System");
    if (clsSystem == nullptr) {
        env->ExceptionClear();
        return;
    }
    jmethodID getProperty =
        env->GetStaticMethodID(clsSystem, "getProperty", "(Ljava/lang/String;)Ljava/lang/String;");
    jstring name = env->NewStringUTF("orvex.events.threads");
    auto value = static_cast<jstring>(env->CallStaticObjectMethod(clsSystem, getProperty, name));
    bool attached = false;
    if (env->ExceptionCheck()) {
        env->ExceptionClear();  // a security manager's refusal: the default mode
    } else if (value != nullptr) {
        const char* chars = env->GetStringUTFChars(value, nullptr);
        attached = chars != nullptr && std::strcmp(chars, "attached") == 0;
        if (chars != nullptr) {
            env->ReleaseStringUTFChars(value, chars);
        }
        env->DeleteLocalRef(value);
    }
    env->DeleteLocalRef(name);
    env->DeleteLocalRef(clsSystem);
    g_attachedThreads.store(attached, std::memory_order_relaxed);
}
