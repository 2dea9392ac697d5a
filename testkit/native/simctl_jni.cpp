// JNI side of simctl.SimControl: lets Java tests read the stand-in library's call log, script
// its replies and fire callbacks, without going through the bridge under test.
#include <jni.h>

#include <cstdint>
#include <string>
#include <thread>
#include <vector>

#include "ORVEX_Core.h"
#include "jni_util.h"
#include "sim_control.h"

namespace {

using orvexsim::CbKind;
using orvexsim::Value;
using simctl::ThrowState;
using simctl::ToString;

std::vector<uint8_t> ToBytes(JNIEnv* env, jbyteArray a) {
    std::vector<uint8_t> out(static_cast<size_t>(env->GetArrayLength(a)));
    env->GetByteArrayRegion(a, 0, static_cast<jsize>(out.size()),
                            reinterpret_cast<jbyte*>(out.data()));
    return out;
}

jbyteArray ToJava(JNIEnv* env, const std::vector<uint8_t>& b) {
    jbyteArray a = env->NewByteArray(static_cast<jsize>(b.size()));
    env->SetByteArrayRegion(a, 0, static_cast<jsize>(b.size()),
                            reinterpret_cast<const jbyte*>(b.data()));
    return a;
}

bool Kind(JNIEnv* env, jstring name, CbKind* kind) {
    const std::string n = ToString(env, name);
    if (!orvexsim::control::kindByName(n, kind)) {
        ThrowState(env, "unknown callback kind " + n);
        return false;
    }
    return true;
}

// Integer, Long and Boolean become integers, byte[] becomes bytes, null a null pointer.
std::vector<Value> ToValues(JNIEnv* env, jobjectArray args) {
    jclass number = env->FindClass("java/lang/Number");
    jclass boolean = env->FindClass("java/lang/Boolean");
    jmethodID longValue = env->GetMethodID(number, "longValue", "()J");
    jmethodID booleanValue = env->GetMethodID(boolean, "booleanValue", "()Z");
    std::vector<Value> values;
    const jsize n = args ? env->GetArrayLength(args) : 0;
    for (jsize i = 0; i < n; ++i) {
        jobject o = env->GetObjectArrayElement(args, i);
        Value v;
        if (o == nullptr) {
            v.isNull = true;
        } else if (env->IsInstanceOf(o, number)) {
            v.i = env->CallLongMethod(o, longValue);
        } else if (env->IsInstanceOf(o, boolean)) {
            v.i = env->CallBooleanMethod(o, booleanValue) ? 1 : 0;
        } else {
            v.isBytes = true;
            v.b = ToBytes(env, static_cast<jbyteArray>(o));
        }
        env->DeleteLocalRef(o);
        if (env->ExceptionCheck()) {
            break;
        }
        values.push_back(std::move(v));
    }
    return values;
}

// The callback kind and arguments of a fire request; false, with a Java exception pending, when
// either is bad.
bool FireRequest(JNIEnv* env, jstring kindName, jobjectArray args, CbKind* kind,
                 std::vector<Value>* values) {
    if (!Kind(env, kindName, kind)) {
        return false;
    }
    *values = ToValues(env, args);
    return !env->ExceptionCheck();
}

}  // namespace

extern "C" {

// A test that loads the control library scripts what it needs; the simulated platform answers
// only when the test asks for it (SimControl.usePlatform).
JNIEXPORT jint JNICALL JNI_OnLoad(JavaVM*, void*) {
    orvexsim::setMode(orvexsim::Mode::ScriptedOnly);
    return JNI_VERSION_1_8;
}

JNIEXPORT void JNICALL Java_simctl_SimControl_usePlatform(JNIEnv*, jclass, jboolean on) {
    orvexsim::setMode(on ? orvexsim::Mode::Platform : orvexsim::Mode::ScriptedOnly);
}

JNIEXPORT jlongArray JNICALL Java_simctl_SimControl_talkReceived(JNIEnv* env, jclass) {
    const orvexsim::control::TalkCounts t = orvexsim::control::talkReceived();
    const jlong values[4] = {static_cast<jlong>(t.accepted), static_cast<jlong>(t.rejected),
                             static_cast<jlong>(t.samples), t.peak};
    jlongArray out = env->NewLongArray(4);
    env->SetLongArrayRegion(out, 0, 4, values);
    return out;
}

JNIEXPORT void JNICALL Java_simctl_SimControl_reset(JNIEnv*, jclass) {
    orvexsim::control::reset();
}

JNIEXPORT jobjectArray JNICALL Java_simctl_SimControl_calls(JNIEnv* env, jclass) {
    jclass callCls = env->FindClass("simctl/RecordedCall");
    jclass argCls = env->FindClass("simctl/RecordedArg");
    jmethodID callInit =
        env->GetMethodID(callCls, "<init>", "(Ljava/lang/String;[Lsimctl/RecordedArg;)V");
    jmethodID argInit = env->GetMethodID(argCls, "<init>", "(Ljava/lang/String;ZZJ[B)V");
    const std::vector<orvexsim::Call> calls = orvexsim::control::calls();
    jobjectArray out = env->NewObjectArray(static_cast<jsize>(calls.size()), callCls, nullptr);
    for (size_t c = 0; c < calls.size(); ++c) {
        const auto& call = calls[c];
        jobjectArray args =
            env->NewObjectArray(static_cast<jsize>(call.args.size()), argCls, nullptr);
        for (size_t a = 0; a < call.args.size(); ++a) {
            const auto& arg = call.args[a];
            jstring name = env->NewStringUTF(arg.name.c_str());
            jbyteArray bytes = arg.pointer && !arg.isNull ? ToJava(env, arg.bytes) : nullptr;
            jobject o = env->NewObject(argCls, argInit, name, arg.pointer, arg.isNull,
                                       static_cast<jlong>(arg.value), bytes);
            env->SetObjectArrayElement(args, static_cast<jsize>(a), o);
            env->DeleteLocalRef(o);
            env->DeleteLocalRef(name);
            if (bytes != nullptr) {
                env->DeleteLocalRef(bytes);
            }
        }
        jstring fn = env->NewStringUTF(call.fn.c_str());
        jobject o = env->NewObject(callCls, callInit, fn, args);
        env->SetObjectArrayElement(out, static_cast<jsize>(c), o);
        env->DeleteLocalRef(o);
        env->DeleteLocalRef(fn);
        env->DeleteLocalRef(args);
    }
    return out;
}

JNIEXPORT void JNICALL Java_simctl_SimControl_queueReply(JNIEnv* env, jclass, jstring fn,
                                                         jint result, jobjectArray writes) {
    jclass writeCls = env->FindClass("simctl/Write");
    jfieldID target = env->GetFieldID(writeCls, "target", "Ljava/lang/String;");
    jfieldID offset = env->GetFieldID(writeCls, "offset", "I");
    jfieldID bytes = env->GetFieldID(writeCls, "bytes", "[B");
    orvexsim::Reply reply;
    reply.result = result;
    const jsize n = writes ? env->GetArrayLength(writes) : 0;
    for (jsize i = 0; i < n; ++i) {
        jobject w = env->GetObjectArrayElement(writes, i);
        auto t = static_cast<jstring>(env->GetObjectField(w, target));
        auto b = static_cast<jbyteArray>(env->GetObjectField(w, bytes));
        reply.writes.push_back({ToString(env, t),
                                static_cast<uint32_t>(env->GetIntField(w, offset)),
                                ToBytes(env, b)});
        env->DeleteLocalRef(b);
        env->DeleteLocalRef(t);
        env->DeleteLocalRef(w);
    }
    orvexsim::control::script(ToString(env, fn), reply);
}

JNIEXPORT jobjectArray JNICALL Java_simctl_SimControl_errors(JNIEnv* env, jclass) {
    const std::vector<std::string> errors = orvexsim::control::errors();
    jclass stringCls = env->FindClass("java/lang/String");
    jobjectArray out = env->NewObjectArray(static_cast<jsize>(errors.size()), stringCls, nullptr);
    for (size_t i = 0; i < errors.size(); ++i) {
        jstring s = env->NewStringUTF(errors[i].c_str());
        env->SetObjectArrayElement(out, static_cast<jsize>(i), s);
        env->DeleteLocalRef(s);
    }
    return out;
}

JNIEXPORT jint JNICALL Java_simctl_SimControl_fire(JNIEnv* env, jclass, jstring kindName,
                                                   jint handle, jint seq, jobjectArray args) {
    CbKind kind;
    std::vector<Value> values;
    if (!FireRequest(env, kindName, args, &kind, &values)) {
        return 0;
    }
    int32_t result = 0;
    std::string error;
    if (!orvexsim::control::fire(kind, handle, seq, values, &result, &error)) {
        ThrowState(env, error);
    }
    return result;
}

JNIEXPORT jlong JNICALL Java_simctl_SimControl_fireMany(JNIEnv* env, jclass, jstring kindName,
                                                        jint handle, jint seq, jobjectArray args,
                                                        jint threads, jint eventsPerThread,
                                                        jint stampArg) {
    CbKind kind;
    std::vector<Value> values;
    if (!FireRequest(env, kindName, args, &kind, &values)) {
        return 0;
    }
    std::string error;
    const long delivered = orvexsim::control::fireMany(kind, handle, seq, values, threads,
                                                       eventsPerThread, stampArg, &error);
    if (delivered < 0) {
        ThrowState(env, error);
    }
    return delivered;
}

// One media event per entry of `seqs`, in order, to that stream's registration, all from the
// same thread of the stand-in's own: one library thread serving several streams.
JNIEXPORT jint JNICALL Java_simctl_SimControl_fireStreams(JNIEnv* env, jclass, jint handle,
                                                          jintArray seqs, jint param) {
    std::vector<jint> order(static_cast<size_t>(env->GetArrayLength(seqs)));
    env->GetIntArrayRegion(seqs, 0, static_cast<jsize>(order.size()), order.data());
    std::vector<orvexsim::Registration> targets;
    for (const jint seq : order) {
        orvexsim::Registration reg;
        if (!orvexsim::lookup(CbKind::MediaData, handle, seq, &reg)) {
            ThrowState(env, "no media stream " + std::to_string(seq));
            return 0;
        }
        targets.push_back(reg);
    }
    char frame[] = {1, 2, 3};
    std::thread library([&] {
        for (std::size_t k = 0; k < targets.size(); ++k) {
            reinterpret_cast<pfnMediaDataCallback>(targets[k].fn)(
                handle, order[k], 1, "node", param, frame, sizeof frame, targets[k].user);
        }
    });
    library.join();
    return static_cast<jint>(targets.size());
}

// Puts a registration in place as the library keeps it, bypassing the registration functions:
// for callbacks no native registers, and for events with null user data. The listener's global
// reference is never deleted, since the stand-in may call with it until the next reset.
JNIEXPORT void JNICALL Java_simctl_SimControl_install(JNIEnv* env, jclass, jstring kindName,
                                                      jint handle, jint seq, jlong fn,
                                                      jobject listener) {
    CbKind kind;
    if (!Kind(env, kindName, &kind)) {
        return;
    }
    void* pfn = reinterpret_cast<void*>(static_cast<intptr_t>(fn));
    void* user = listener != nullptr ? env->NewGlobalRef(listener) : nullptr;
    if (kind == CbKind::MediaData) {
        orvexsim::setStream(handle, seq, pfn, user);
    } else {
        orvexsim::setCallback(kind, handle, pfn, user);
    }
}

}  // extern "C"

extern "C" JNIEXPORT void JNICALL Java_simctl_SimControl_declareCapacity(JNIEnv* env, jclass,
                                                                         jstring fn, jstring target,
                                                                         jint bytes) {
    if (bytes < 0) {
        ThrowState(env, "a capacity cannot be negative");
        return;
    }
    orvexsim::control::declareCapacity(ToString(env, fn), ToString(env, target),
                                       static_cast<std::size_t>(bytes));
}
