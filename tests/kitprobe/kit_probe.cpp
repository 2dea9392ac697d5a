// Test-only JNI library that exposes the marshalling kit to Java tests one helper at a time, so
// that each helper's transfer rules can be checked against real Java objects.
#include <jni.h>

#include <dlfcn.h>

#include <algorithm>
#include <cstring>
#include <vector>

#include "JniKits.h"

namespace {

std::vector<unsigned char> Bytes(JNIEnv* env, jbyteArray a) {
    std::vector<unsigned char> out(a ? static_cast<size_t>(env->GetArrayLength(a)) : 0);
    if (!out.empty()) {
        env->GetByteArrayRegion(a, 0, static_cast<jsize>(out.size()),
                                reinterpret_cast<jbyte*>(out.data()));
    }
    return out;
}

jbyteArray ToJava(JNIEnv* env, const unsigned char* p, size_t n) {
    CJniKits::ExceptionStash stash(env);  // the result must reach Java even after a fault
    jbyteArray a = env->NewByteArray(static_cast<jsize>(n));
    env->SetByteArrayRegion(a, 0, static_cast<jsize>(n), reinterpret_cast<const jbyte*>(p));
    return a;
}

// A test argument that would end the JVM instead of exercising the kit (a null field name, a
// negative buffer size) is refused with IllegalArgumentException, so one wrong test argument
// fails one test rather than the whole run.
bool Refused(JNIEnv* env, bool bad, const char* what) {
    if (bad) {
        CJniKits::ThrowIllegalArgument(env, what);
    }
    return bad;
}

// The helpers take the class from the caller; the probe passes the object's own class.
struct Target {
    JNIEnv* env;
    jobject obj;
    jclass cls;
    const char* field;
    jstring name;
    Target(JNIEnv* e, jobject o, jstring f)
        : env(e),
          obj(o),
          cls(o ? e->GetObjectClass(o) : e->FindClass("kitprobe/Probe")),
          field(f ? e->GetStringUTFChars(f, nullptr) : nullptr),
          name(f) {
        Refused(e, f == nullptr, "probe: null field name");
    }
    ~Target() {
        if (field != nullptr) {
            env->ReleaseStringUTFChars(name, field);
        }
        env->DeleteLocalRef(cls);
    }
    bool ok() const { return field != nullptr; }
};

}  // namespace

#define PROBE(ret, name) extern "C" JNIEXPORT ret JNICALL Java_kitprobe_KitProbe_##name

#define PROBE_SCALAR(Name, JType, CType)                                                      \
    PROBE(void, set##Name)(JNIEnv * env, jclass, jobject o, jstring f, JType v) {             \
        Target t(env, o, f);                                                                  \
        if (!t.ok()) {                                                                        \
            return;                                                                           \
        }                                                                                     \
        CJniKits::SetStu##Name##Field(env, t.obj, t.cls, t.field, static_cast<CType>(v));     \
    }                                                                                         \
    PROBE(JType, get##Name)(JNIEnv * env, jclass, jobject o, jstring f) {                     \
        Target t(env, o, f);                                                                  \
        if (!t.ok()) {                                                                        \
            return {};                                                                        \
        }                                                                                     \
        return static_cast<JType>(CJniKits::GetStu##Name##Field(env, t.obj, t.cls, t.field)); \
    }

PROBE_SCALAR(Int, jint, int)
PROBE_SCALAR(Long, jlong, long)
PROBE_SCALAR(Short, jshort, jshort)
PROBE_SCALAR(Byte, jint, unsigned char)
PROBE_SCALAR(Bool, jint, int)
PROBE_SCALAR(Double, jdouble, double)
PROBE_SCALAR(Float, jfloat, float)

PROBE(void, setChar)(JNIEnv* env, jclass, jobject o, jstring f, jchar v) {
    Target t(env, o, f);
    if (!t.ok()) {
        return;
    }
    CJniKits::SetStuCharField(env, t.obj, t.cls, t.field, v);
}

// The five-argument reader into a zero-filled char[16] member.
PROBE(jbyteArray, readText16)(JNIEnv* env, jclass, jobject o, jstring f) {
    Target t(env, o, f);
    if (!t.ok()) {
        return {};
    }
    char member[16];
    std::memset(member, 0, sizeof(member));
    CJniKits::GetStuByteArrayField(env, t.obj, t.cls, t.field, member);
    return ToJava(env, reinterpret_cast<unsigned char*>(member), sizeof(member));
}

// The six-argument reader of n bytes into a zero-filled buffer of bufSize bytes.
PROBE(jbyteArray, readBytes)(JNIEnv* env, jclass, jobject o, jstring f, jint n, jint bufSize) {
    Target t(env, o, f);
    if (!t.ok()) {
        return {};
    }
    if (Refused(env, bufSize < 0, "probe: negative buffer size")) {
        return nullptr;
    }
    std::vector<unsigned char> buf(static_cast<size_t>(bufSize), 0);
    CJniKits::GetStuByteArrayField(env, t.obj, t.cls, t.field, buf.data(), n);
    return ToJava(env, buf.data(), buf.size());
}

PROBE(void, writeBytes)(JNIEnv* env, jclass, jobject o, jstring f, jbyteArray c, jint n) {
    Target t(env, o, f);
    if (!t.ok()) {
        return;
    }
    const std::vector<unsigned char> bytes = Bytes(env, c);
    CJniKits::SetStuByteArrayField(env, t.obj, t.cls, t.field, bytes.data(), n);
}

PROBE(void, writeInts)(JNIEnv* env, jclass, jobject o, jstring f, jintArray c, jint n) {
    Target t(env, o, f);
    if (!t.ok()) {
        return;
    }
    if (Refused(env, c == nullptr, "probe: null int array")) {
        return;
    }
    std::vector<int> ints(static_cast<size_t>(env->GetArrayLength(c)));
    env->GetIntArrayRegion(c, 0, static_cast<jsize>(ints.size()), ints.data());
    CJniKits::SetStuIntArrayField(env, t.obj, t.cls, t.field, ints.data(), n);
}

PROBE(jintArray, readInts)(JNIEnv* env, jclass, jobject o, jstring f, jint n, jint bufSize) {
    Target t(env, o, f);
    if (!t.ok()) {
        return {};
    }
    if (Refused(env, bufSize < 0, "probe: negative buffer size")) {
        return nullptr;
    }
    std::vector<int> buf(static_cast<size_t>(bufSize), 0);
    CJniKits::GetStuIntArrayField(env, t.obj, t.cls, t.field, buf.data(), n);
    CJniKits::ExceptionStash stash(env);
    jintArray a = env->NewIntArray(bufSize);
    env->SetIntArrayRegion(a, 0, bufSize, buf.data());
    return a;
}

PROBE(void, writeChars)(JNIEnv* env, jclass, jobject o, jstring f, jbyteArray c, jint n) {
    Target t(env, o, f);
    if (!t.ok()) {
        return;
    }
    const std::vector<unsigned char> bytes = Bytes(env, c);
    CJniKits::SetStuCharArrayField(env, t.obj, t.cls, t.field,
                                   reinterpret_cast<const char*>(bytes.data()), n);
}

PROBE(jbyteArray, readChars)(JNIEnv* env, jclass, jobject o, jstring f, jint n, jint bufSize) {
    Target t(env, o, f);
    if (!t.ok()) {
        return {};
    }
    if (Refused(env, bufSize < 0, "probe: negative buffer size")) {
        return nullptr;
    }
    std::vector<char> buf(static_cast<size_t>(bufSize), 0);
    CJniKits::GetStuCharArrayField(env, t.obj, t.cls, t.field, buf.data(), n);
    return ToJava(env, reinterpret_cast<unsigned char*>(buf.data()), buf.size());
}

PROBE(void, setJByteArray)(JNIEnv* env, jclass, jbyteArray j, jbyteArray c, jint n) {
    const std::vector<unsigned char> bytes = Bytes(env, c);
    CJniKits::SetJByteArray(env, j, c ? bytes.data() : nullptr, n);
}

PROBE(jbyteArray, getJByteArray)(JNIEnv* env, jclass, jbyteArray j, jint n, jint bufSize) {
    if (Refused(env, bufSize < 0, "probe: negative buffer size")) {
        return nullptr;
    }
    std::vector<unsigned char> buf(static_cast<size_t>(bufSize), 0);
    CJniKits::GetJByteArray(env, j, buf.data(), n);
    return ToJava(env, buf.data(), buf.size());
}

PROBE(void, setJCharArray)(JNIEnv* env, jclass, jcharArray j, jbyteArray c, jint n) {
    const std::vector<unsigned char> bytes = Bytes(env, c);
    CJniKits::SetJCharArray(env, j, c ? reinterpret_cast<const char*>(bytes.data()) : nullptr, n);
}

PROBE(jbyteArray, getJCharArray)(JNIEnv* env, jclass, jcharArray j, jint n, jint bufSize) {
    if (Refused(env, bufSize < 0, "probe: negative buffer size")) {
        return nullptr;
    }
    std::vector<char> buf(static_cast<size_t>(bufSize), 0);
    CJniKits::GetJCharArray(env, j, buf.data(), n);
    return ToJava(env, reinterpret_cast<unsigned char*>(buf.data()), buf.size());
}

PROBE(void, setIntBox)(JNIEnv* env, jclass, jobject box, jint v) {
    CJniKits::SetIntObjectValue(env, box, v);
}

PROBE(jint, getIntBox)(JNIEnv* env, jclass, jobject box) {
    return CJniKits::GetIntObjectValue(env, box);
}

PROBE(void, setDoubleBox)(JNIEnv* env, jclass, jobject box, jdouble v) {
    CJniKits::SetDoubleObjectValue(env, box, v);
}

PROBE(void, setBoolBox)(JNIEnv* env, jclass, jobject box, jint v) {
    CJniKits::SetBoolObjectValue(env, box, v);
}

// Copies a raw 1480-byte device record into a Java Device_Info_Ex_t.
PROBE(void, deviceInfo)(JNIEnv* env, jclass, jobject o, jbyteArray record) {
    Device_Info_Ex_t info;
    const std::vector<unsigned char> bytes = Bytes(env, record);
    std::memset(&info, 0, sizeof(info));
    std::memcpy(&info, bytes.data(), std::min(bytes.size(), sizeof(info)));
    CJniKits::CreateDeviceInfoObject(env, o, info);
}

namespace {

// Calls one of the bridge's load entry points directly, as the virtual machine does.
void* BridgeEntry(JNIEnv* env, jstring path, const char* name, void** handle) {
    *handle = nullptr;
    if (Refused(env, path == nullptr, "probe: null bridge path")) {
        return nullptr;
    }
    const char* p = env->GetStringUTFChars(path, nullptr);
    *handle = dlopen(p, RTLD_NOW | RTLD_NOLOAD);
    env->ReleaseStringUTFChars(path, p);
    return *handle ? dlsym(*handle, name) : nullptr;
}

}  // namespace

PROBE(jint, callOnLoad)(JNIEnv* env, jclass, jstring bridgePath) {
    void* handle = nullptr;
    auto onLoad = reinterpret_cast<jint (*)(JavaVM*, void*)>(
        BridgeEntry(env, bridgePath, "JNI_OnLoad", &handle));
    JavaVM* vm = nullptr;
    env->GetJavaVM(&vm);
    const jint version = onLoad ? onLoad(vm, nullptr) : -1;
    if (handle) {
        dlclose(handle);
    }
    return version;
}

PROBE(jboolean, callOnUnload)(JNIEnv* env, jclass, jstring bridgePath) {
    void* handle = nullptr;
    auto onUnload = reinterpret_cast<void (*)(JavaVM*, void*)>(
        BridgeEntry(env, bridgePath, "JNI_OnUnload", &handle));
    JavaVM* vm = nullptr;
    env->GetJavaVM(&vm);
    if (onUnload) {
        onUnload(vm, nullptr);
    }
    if (handle) {
        dlclose(handle);
    }
    return onUnload ? JNI_TRUE : JNI_FALSE;
}
