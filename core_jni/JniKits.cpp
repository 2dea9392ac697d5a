#include "JniKits.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <string>

namespace {

// The innermost FieldIdMemo of this thread, if any.
thread_local CJniKits::FieldIdMemo* t_fieldIdMemo = nullptr;

// Looks a field up on clsStu for an access to valueObject. Returns null, with an exception
// pending, where the access could not be made safely.
jfieldID FieldFor(JNIEnv* env, jobject valueObject, jclass clsStu, const char* fieldName,
                  const char* signature) {
    if (clsStu == nullptr) {
        CJniKits::ThrowNull(env, (std::string("class of field ") + fieldName).c_str());
        return nullptr;
    }
    CJniKits::FieldIdMemo* memo = t_fieldIdMemo;
    jfieldID fid = memo != nullptr ? memo->Find(clsStu, fieldName, signature) : nullptr;
    if (fid == nullptr) {
        fid = env->GetFieldID(clsStu, fieldName, signature);
        if (fid == nullptr) {
            return nullptr;  // NoSuchFieldError is pending
        }
        if (memo != nullptr) {
            memo->Remember(clsStu, fieldName, signature, fid);
        }
    }
    if (valueObject == nullptr) {
        CJniKits::ThrowNull(env, (std::string("object holding field ") + fieldName).c_str());
        return nullptr;
    }
    return fid;
}

// A C int narrowed to the 8-bit jboolean keeps its low byte (256 is false), and the virtual
// machine only defines 0 and 1 for a boolean field.
jboolean LowByteAsBoolean(int bValue) {
    return (bValue & 0xFF) != 0 ? JNI_TRUE : JNI_FALSE;
}

// Formats a message without std::to_string, whose digit table libstdc++ would otherwise export
// from the bridge as a unique global symbol.
std::string Format(const char* format, ...) __attribute__((format(printf, 1, 2)));
std::string Format(const char* format, ...) {
    char buf[256];
    va_list args;
    va_start(args, format);
    std::vsnprintf(buf, sizeof(buf), format, args);
    va_end(args);
    return buf;
}

void Throw(JNIEnv* env, const char* className, const std::string& message) {
    if (env->ExceptionCheck()) {
        return;
    }
    jclass cls = env->FindClass(className);
    if (cls != nullptr) {
        env->ThrowNew(cls, message.c_str());
        env->DeleteLocalRef(cls);
    }
}

// Where the original code would have read or written past a pinned array, at most the Java
// array's length is copied and the shortfall is reported once the array is released.
class ArrayBound {
  public:
    ArrayBound(JNIEnv* env, jarray array, int nWanted, const char* what)
        : env_(env), what_(what), nWanted_(nWanted), nLength_(env->GetArrayLength(array)) {}
    ~ArrayBound() {
        if (nWanted_ > nLength_) {
            CJniKits::ThrowIndexOutOfBounds(
                env_, Format("%s: %d elements requested, array has %d", what_, nWanted_, nLength_)
                          .c_str());
        }
    }
    jsize count() const { return nWanted_ < nLength_ ? nWanted_ : nLength_; }

  private:
    JNIEnv* env_;
    const char* what_;
    int nWanted_;
    jsize nLength_;
};

// The box helpers look the box class up on every call and keep the local reference until the
// native method returns.
jfieldID BoxValueField(JNIEnv* env, jobject obj, const char* boxClass, const char* signature) {
    jclass cls = env->FindClass(boxClass);
    return FieldFor(env, obj, cls, "value", signature);
}

}  // namespace

CJniKits::FieldIdMemo::FieldIdMemo(jclass cls) : cls_(cls), outer_(t_fieldIdMemo) {
    t_fieldIdMemo = this;
}

CJniKits::FieldIdMemo::~FieldIdMemo() {
    t_fieldIdMemo = outer_;
}

// Names and signatures are compared by address: the same text at the same address is the same
// field, and the callers pass literals.
// Records are written field by field in the same order each time, so the entry after the last
// one found is tried first.
jfieldID CJniKits::FieldIdMemo::Find(jclass cls, const char* name, const char* signature) {
    if (cls != cls_) {
        return nullptr;
    }
    for (int tried = 0; tried < count_; ++tried) {
        const Entry& e = entries_[next_];
        next_ = next_ + 1 < count_ ? next_ + 1 : 0;
        if (e.name == name && e.signature == signature) {
            return e.fid;
        }
    }
    return nullptr;
}

void CJniKits::FieldIdMemo::Remember(jclass cls, const char* name, const char* signature,
                                     jfieldID fid) {
    if (cls == cls_ && count_ < kEntries) {
        entries_[count_++] = {name, signature, fid};
    }
}

void CJniKits::ThrowNull(JNIEnv* env, const char* what) {
    Throw(env, "java/lang/NullPointerException", std::string(what) + " is null");
}

void CJniKits::ThrowOutOfMemory(JNIEnv* env, const char* message) {
    Throw(env, "java/lang/OutOfMemoryError", message);
}

void CJniKits::ThrowIllegalArgument(JNIEnv* env, const char* message) {
    Throw(env, "java/lang/IllegalArgumentException", message);
}

void CJniKits::ThrowIndexOutOfBounds(JNIEnv* env, const char* message) {
    Throw(env, "java/lang/ArrayIndexOutOfBoundsException", message);
}

CJniKits::ExceptionStash::ExceptionStash(JNIEnv* env)
    : env_(env), first_(env->ExceptionOccurred()) {
    if (first_ != nullptr) {
        env_->ExceptionClear();
    }
}

CJniKits::ExceptionStash::~ExceptionStash() {
    if (first_ == nullptr) {
        return;
    }
    if (env_->ExceptionCheck()) {
        env_->ExceptionClear();
    }
    env_->Throw(first_);
    env_->DeleteLocalRef(first_);
}

// Scalar fields: one look-up, one access.
#define ORVEX_KIT_SCALAR(Name, CType, JType, Sig, JniName)                                     \
    void CJniKits::SetStu##Name##Field(JNIEnv* env, jobject valueObject, jclass clsStu,        \
                                       const char* fieldName, CType value) {                   \
        ExceptionStash stash(env);                                                             \
        if (jfieldID fid = FieldFor(env, valueObject, clsStu, fieldName, Sig)) {               \
            env->Set##JniName##Field(valueObject, fid, static_cast<JType>(value));             \
        }                                                                                      \
    }                                                                                          \
    CType CJniKits::GetStu##Name##Field(JNIEnv* env, jobject valueObject, jclass clsStu,       \
                                        const char* fieldName) {                               \
        ExceptionStash stash(env);                                                             \
        jfieldID fid = FieldFor(env, valueObject, clsStu, fieldName, Sig);                     \
        return fid ? static_cast<CType>(env->Get##JniName##Field(valueObject, fid)) : CType(); \
    }

ORVEX_KIT_SCALAR(Int, int, jint, "I", Int)
ORVEX_KIT_SCALAR(Long, long, jlong, "J", Long)
ORVEX_KIT_SCALAR(Short, jshort, jshort, "S", Short)
ORVEX_KIT_SCALAR(Double, double, jdouble, "D", Double)
ORVEX_KIT_SCALAR(Float, float, jfloat, "F", Float)
#undef ORVEX_KIT_SCALAR

void CJniKits::SetStuByteField(JNIEnv* env, jobject valueObject, jclass clsStu,
                               const char* fieldName, unsigned char nValue) {
    ExceptionStash stash(env);
    if (jfieldID fid = FieldFor(env, valueObject, clsStu, fieldName, "B")) {
        env->SetByteField(valueObject, fid, static_cast<jbyte>(nValue));
    }
}

int CJniKits::GetStuByteField(JNIEnv* env, jobject valueObject, jclass clsStu,
                              const char* fieldName) {
    ExceptionStash stash(env);
    jfieldID fid = FieldFor(env, valueObject, clsStu, fieldName, "B");
    return fid ? env->GetByteField(valueObject, fid) : 0;
}

void CJniKits::SetStuCharField(JNIEnv* env, jobject valueObject, jclass clsStu,
                               const char* fieldName, jchar nValue) {
    ExceptionStash stash(env);
    if (jfieldID fid = FieldFor(env, valueObject, clsStu, fieldName, "C")) {
        env->SetCharField(valueObject, fid, nValue);
    }
}

void CJniKits::SetStuBoolField(JNIEnv* env, jobject valueObject, jclass clsStu,
                               const char* fieldName, int bValue) {
    ExceptionStash stash(env);
    if (jfieldID fid = FieldFor(env, valueObject, clsStu, fieldName, "Z")) {
        env->SetBooleanField(valueObject, fid, LowByteAsBoolean(bValue));
    }
}

int CJniKits::GetStuBoolField(JNIEnv* env, jobject valueObject, jclass clsStu,
                              const char* fieldName) {
    ExceptionStash stash(env);
    jfieldID fid = FieldFor(env, valueObject, clsStu, fieldName, "Z");
    return fid && env->GetBooleanField(valueObject, fid) ? 1 : 0;
}

namespace {

// The array a field holds, handed to `access`; a null field is skipped silently or, where the
// original code handed it to the virtual machine unchecked, reported.
enum class NullArray { Skip, Reject };

template <typename JArray, typename Access>
void WithArrayField(JNIEnv* env, jobject valueObject, jclass clsStu, const char* fieldName,
                    const char* signature, NullArray onNull, Access access) {
    CJniKits::ExceptionStash stash(env);
    jfieldID fid = FieldFor(env, valueObject, clsStu, fieldName, signature);
    if (fid == nullptr) {
        return;
    }
    auto array = static_cast<JArray>(env->GetObjectField(valueObject, fid));
    if (array == nullptr) {
        if (onNull == NullArray::Reject) {
            CJniKits::ThrowNull(env, (std::string("array field ") + fieldName).c_str());
        }
        return;
    }
    access(array);
    env->DeleteLocalRef(array);
}

// Pins a Java array and converts element by element; nothing happens unless the C buffer and
// the array are there and at least one element is asked for.
template <typename JArray, typename JElem, typename Convert>
void WithPinned(JNIEnv* env, JArray array, const void* pC, int nLen, const char* what,
                JElem* (JNIEnv::*get)(JArray, jboolean*),
                void (JNIEnv::*release)(JArray, JElem*, jint), Convert convert) {
    if (pC == nullptr || array == nullptr || nLen < 1) {
        return;
    }
    CJniKits::ExceptionStash stash(env);
    const ArrayBound bound(env, array, nLen, what);
    JElem* pElems = (env->*get)(array, nullptr);
    if (pElems != nullptr) {
        for (jsize i = 0; i < bound.count(); ++i) {
            convert(pElems, i);
        }
        (env->*release)(array, pElems, 0);
    }
}

// Each C char widens as a signed char does; each Java char narrows to its low byte.
jchar WidenChar(char c) {
    return static_cast<jchar>(static_cast<signed char>(c));
}
char NarrowChar(jchar c) {
    return static_cast<char>(c & 0xFF);
}

}  // namespace

void CJniKits::ReadByteArrayField(JNIEnv* env, jobject valueObject, jclass clsStu,
                                  const char* fieldName, unsigned char* pArray,
                                  std::size_t nMemberSize) {
    WithArrayField<jbyteArray>(
        env, valueObject, clsStu, fieldName, "[B", NullArray::Reject, [&](jbyteArray array) {
            const jsize nLength = env->GetArrayLength(array);
            const auto nCopy = static_cast<jsize>(std::min<std::size_t>(nLength, nMemberSize));
            env->GetByteArrayRegion(array, 0, nCopy, reinterpret_cast<jbyte*>(pArray));
            if (static_cast<std::size_t>(nLength) > nMemberSize) {
                ThrowIllegalArgument(
                    env, Format("%s: %d bytes do not fit the C member of %zu bytes; copied %zu",
                                fieldName, nLength, nMemberSize, nMemberSize)
                             .c_str());
            }
        });
}

void CJniKits::GetStuByteArrayField(JNIEnv* env, jobject valueObject, jclass clsStu,
                                    const char* fieldName, unsigned char* pArray, int nArrayLen) {
    WithArrayField<jbyteArray>(
        env, valueObject, clsStu, fieldName, "[B", NullArray::Skip, [&](jbyteArray array) {
            env->GetByteArrayRegion(array, 0, nArrayLen, reinterpret_cast<jbyte*>(pArray));
        });
}

void CJniKits::SetStuByteArrayField(JNIEnv* env, jobject valueObject, jclass clsStu,
                                    const char* fieldName, const void* pArray, int nArrayLen) {
    WithArrayField<jbyteArray>(
        env, valueObject, clsStu, fieldName, "[B", NullArray::Skip, [&](jbyteArray array) {
            env->SetByteArrayRegion(array, 0, nArrayLen, static_cast<const jbyte*>(pArray));
        });
}

void CJniKits::SetStuIntArrayField(JNIEnv* env, jobject valueObject, jclass clsStu,
                                   const char* fieldName, const int* pArray, int nArrayLen) {
    WithArrayField<jintArray>(
        env, valueObject, clsStu, fieldName, "[I", NullArray::Skip,
        [&](jintArray array) { env->SetIntArrayRegion(array, 0, nArrayLen, pArray); });
}

void CJniKits::GetStuIntArrayField(JNIEnv* env, jobject valueObject, jclass clsStu,
                                   const char* fieldName, int* pArray, int nArrayLen) {
    WithArrayField<jintArray>(
        env, valueObject, clsStu, fieldName, "[I", NullArray::Skip,
        [&](jintArray array) { env->GetIntArrayRegion(array, 0, nArrayLen, pArray); });
}

void CJniKits::SetStuCharArrayField(JNIEnv* env, jobject valueObject, jclass clsStu,
                                    const char* fieldName, const char* szBuffer, int nBuffLen) {
    WithArrayField<jcharArray>(
        env, valueObject, clsStu, fieldName, "[C", NullArray::Reject, [&](jcharArray array) {
            WithPinned(env, array, szBuffer, nBuffLen, fieldName, &JNIEnv::GetCharArrayElements,
                       &JNIEnv::ReleaseCharArrayElements,
                       [&](jchar* p, jsize i) { p[i] = WidenChar(szBuffer[i]); });
        });
}

void CJniKits::GetStuCharArrayField(JNIEnv* env, jobject valueObject, jclass clsStu,
                                    const char* fieldName, char* szBuffer, int nBuffLen) {
    WithArrayField<jcharArray>(
        env, valueObject, clsStu, fieldName, "[C", NullArray::Reject, [&](jcharArray array) {
            WithPinned(env, array, szBuffer, nBuffLen, fieldName, &JNIEnv::GetCharArrayElements,
                       &JNIEnv::ReleaseCharArrayElements,
                       [&](jchar* p, jsize i) { szBuffer[i] = NarrowChar(p[i]); });
        });
}

void CJniKits::SetJByteArray(JNIEnv* env, jbyteArray jbArray, const unsigned char* pbArray,
                             int nArrayLen) {
    WithPinned(env, jbArray, pbArray, nArrayLen, "byte array", &JNIEnv::GetByteArrayElements,
               &JNIEnv::ReleaseByteArrayElements,
               [&](jbyte* p, jsize i) { p[i] = static_cast<jbyte>(pbArray[i]); });
}

void CJniKits::GetJByteArray(JNIEnv* env, jbyteArray jbArray, unsigned char* pbArray,
                             int nArrayLen) {
    WithPinned(env, jbArray, pbArray, nArrayLen, "byte array", &JNIEnv::GetByteArrayElements,
               &JNIEnv::ReleaseByteArrayElements,
               [&](jbyte* p, jsize i) { pbArray[i] = static_cast<unsigned char>(p[i]); });
}

void CJniKits::SetJCharArray(JNIEnv* env, jcharArray jcArray, const char* szArray, int nArrayLen) {
    WithPinned(env, jcArray, szArray, nArrayLen, "char array", &JNIEnv::GetCharArrayElements,
               &JNIEnv::ReleaseCharArrayElements,
               [&](jchar* p, jsize i) { p[i] = WidenChar(szArray[i]); });
}

void CJniKits::GetJCharArray(JNIEnv* env, jcharArray jcArray, char* szArray, int nArrayLen) {
    WithPinned(env, jcArray, szArray, nArrayLen, "char array", &JNIEnv::GetCharArrayElements,
               &JNIEnv::ReleaseCharArrayElements,
               [&](jchar* p, jsize i) { szArray[i] = NarrowChar(p[i]); });
}

void CJniKits::SetIntObjectValue(JNIEnv* env, jobject obj, int nValue) {
    ExceptionStash stash(env);
    if (jfieldID fid = BoxValueField(env, obj, "java/lang/Integer", "I")) {
        env->SetIntField(obj, fid, nValue);
    }
}

int CJniKits::GetIntObjectValue(JNIEnv* env, jobject obj) {
    ExceptionStash stash(env);
    jfieldID fid = BoxValueField(env, obj, "java/lang/Integer", "I");
    return fid ? env->GetIntField(obj, fid) : 0;
}

void CJniKits::SetDoubleObjectValue(JNIEnv* env, jobject obj, double dbValue) {
    ExceptionStash stash(env);
    if (jfieldID fid = BoxValueField(env, obj, "java/lang/Double", "D")) {
        env->SetDoubleField(obj, fid, dbValue);
    }
}

void CJniKits::SetBoolObjectValue(JNIEnv* env, jobject obj, int bValue) {
    ExceptionStash stash(env);
    if (jfieldID fid = BoxValueField(env, obj, "java/lang/Boolean", "Z")) {
        env->SetBooleanField(obj, fid, LowByteAsBoolean(bValue));
    }
}

void CJniKits::CreateDeviceInfoObject(JNIEnv* env, jobject objDeviceInfo,
                                      const Device_Info_Ex_t& devInfo) {
    jclass cls = env->FindClass("com/zq/OrvexCore/Device_Info_Ex_t");
    WriteDeviceInfo(env, objDeviceInfo, cls, devInfo, CallNum::Written);
    if (cls != nullptr) {
        env->DeleteLocalRef(cls);
    }
}

void CJniKits::WriteDeviceInfo(JNIEnv* env, jobject objDeviceInfo, jclass cls,
                               const Device_Info_Ex_t& devInfo, CallNum callNum) {
    // Text members go across at their full size, terminator and trailing bytes included.
    auto text = [&](const char* field, const auto& member) {
        SetStuByteArrayField(env, objDeviceInfo, cls, field, member, sizeof(member));
    };
    auto integer = [&](const char* field, int value) {
        SetStuIntField(env, objDeviceInfo, cls, field, value);
    };
    text("szId", devInfo.szId);
    text("szName", devInfo.szName);
    integer("nFactory", devInfo.nFactory);
    integer("szModel", devInfo.szModel);
    text("szUser", devInfo.szUser);
    text("szPassword", devInfo.szPassword);
    text("szIP", devInfo.szIP);
    integer("nDevType", devInfo.nDevType);
    integer("nPort", devInfo.nPort);
    integer("szLoginType", devInfo.szLoginType);
    text("szRegID", devInfo.szRegID);
    integer("nProxyPort", devInfo.nProxyPort);
    integer("nUnitNum", devInfo.nUnitNum);
    integer("nStatus", devInfo.nStatus);
    text("szCN", devInfo.szCN);
    text("szSN", devInfo.szSN);
    SetStuLongField(env, objDeviceInfo, cls, "nRight", static_cast<long>(devInfo.nRight));
    text("szDevIP", devInfo.szDevIP);
    integer("nDevPort", devInfo.nDevPort);
    text("dev_Maintainer", devInfo.dev_Maintainer);
    text("dev_MaintainerPh", devInfo.dev_MaintainerPh);
    text("dev_Location", devInfo.dev_Location);
    text("desc", devInfo.desc);
    integer("nEncChannelChildCount", devInfo.nEncChannelChildCount);
    integer("iAlarmInChannelcount", devInfo.iAlarmInChannelcount);
    if (callNum == CallNum::Written) {
        text("szCallNum", devInfo.szCallNum);
    }
    // nSort stays as the Java object holds it.
}
