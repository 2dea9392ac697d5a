// Shapes that recur across native methods: refusing bad input, finding value classes, zeroed
// C structures and record arrays, bare byte[] text arguments, and the one-request-one-call body.
// Each documented oddity of a method is a named option here rather than a copy of the body.
//
// Bad input never reaches the library: a native that finds a null argument the library would
// need, an impossible count, or an exception left pending while reading its Java input stores
// 1009, returns it, and leaves the exception pending to tell Java why.
#pragma once

#include <jni.h>

#include <cstring>
#include <memory>
#include <new>

#include "BridgeFrame.h"
#include "JniKits.h"
#include "ORVEX_Core_Error.h"

using LocalClass = CJniKits::ScopedLocalRef<jclass>;

// Stores and returns 1009 for input refused before the library was called.
inline jint RefuseInput() {
    return StoreResult(ORVEX_CORE_ERROR_INVALID_PARAM);
}

// True, with NullPointerException pending, when a Java argument is null.
inline bool IsNullArg(JNIEnv* env, const void* ref, const char* name) {
    if (ref != nullptr) {
        return false;
    }
    CJniKits::ThrowNull(env, name);
    return true;
}

// True when reading Java input left an exception pending (a field missing, an array too long
// for its C member): the half-read input is refused rather than handed to the library.
inline bool InputFailed(JNIEnv* env) {
    return env->ExceptionCheck() == JNI_TRUE;
}

// A value class by its full path ("com/zq/OrvexCore/Login_Info_t"); never cached, so that a
// class from any loader the calling thread sees is found.
inline LocalClass FindValueClass(JNIEnv* env, const char* path) {
    return LocalClass(env, env->FindClass(path));
}

// A C structure filled with zero bytes over its full size.
template <typename T>
T Zeroed() {
    T value;
    std::memset(&value, 0, sizeof(value));
    return value;
}

// A zeroed C array of `count` records, for a count taken from Java or from the library. A
// negative count (which, taken as unsigned, no allocation could satisfy) or a failed
// allocation yields null with OutOfMemoryError pending; 0 yields a valid empty array.
template <typename T>
std::unique_ptr<T[]> NewRecords(JNIEnv* env, jint count) {
    if (count < 0) {
        CJniKits::ThrowOutOfMemory(env, "negative record count");
        return nullptr;
    }
    std::unique_ptr<T[]> records(new (std::nothrow) T[static_cast<std::size_t>(count)]);
    if (!records) {
        CJniKits::ThrowOutOfMemory(env, "record array");
        return nullptr;
    }
    std::memset(static_cast<void*>(records.get()), 0, sizeof(T) * static_cast<std::size_t>(count));
    return records;
}

// How many elements of a Java object array may be visited for `count` records: a count beyond
// the array leaves ArrayIndexOutOfBoundsException pending and is cut to the array's length, so
// nothing is written past it. Callers bound `count` by their C records first.
inline jsize BoundedByArray(JNIEnv* env, jobjectArray array, jint count) {
    if (array == nullptr || count <= 0) {
        return 0;
    }
    const jsize length = env->GetArrayLength(array);
    if (count > length) {
        CJniKits::ThrowIndexOutOfBounds(env,
                                        "the library returned more records than the array holds");
        return length;
    }
    return count;
}

// Visits elements [0, count) of a Java object array, each as a local reference deleted after
// its visit (a null element arrives as null). The count is bounded as BoundedByArray says; a
// pending exception from an earlier element does not stop the later ones, as the kit's
// helpers carry on past faults.
template <typename Visit>
void ForEachElement(JNIEnv* env, jobjectArray array, jint count, Visit visit) {
    const jsize n = BoundedByArray(env, array, count);
    for (jsize i = 0; i < n; ++i) {
        CJniKits::ExceptionStash stash(env);
        CJniKits::ScopedLocalRef<jobject> element(env, env->GetObjectArrayElement(array, i));
        visit(i, element.get());
    }
}

// What an empty bare text argument means to a method.
enum class EmptyText {
    KeepLastResult,  // return the previous result untouched, library not called (the usual)
    Invalid,         // store and return 1009, library not called
    Allowed,         // send the empty string
};

// Whether the NUL-terminated copy of a text argument is freed when the native returns, and
// whether the pinned Java bytes it was copied from are released. Some methods leak one or the
// other on every call; the library may keep the pointer it was handed.
enum class TextCopy { Freed, Leaked };
enum class PinnedBytes { Released, Kept };

// A bare byte[] text argument copied into a new[] buffer of length + 1 with a terminating NUL,
// through its pinned elements as the methods have always done.
class TextArgument {
  public:
    TextArgument(JNIEnv* env, jbyteArray array, TextCopy copy = TextCopy::Freed,
                 PinnedBytes pinned = PinnedBytes::Released)
        : copy_(copy) {
        length_ = env->GetArrayLength(array);
        jbyte* bytes = env->GetByteArrayElements(array, nullptr);
        text_ = new char[static_cast<std::size_t>(length_) + 1];
        if (bytes != nullptr) {
            std::memcpy(text_, bytes, static_cast<std::size_t>(length_));
            if (pinned == PinnedBytes::Released) {
                env->ReleaseByteArrayElements(array, bytes, JNI_ABORT);
            }
        }
        text_[length_] = '\0';
    }
    ~TextArgument() {
        if (copy_ == TextCopy::Freed) {
            delete[] text_;
        }
    }
    TextArgument(const TextArgument&) = delete;
    TextArgument& operator=(const TextArgument&) = delete;

    jsize length() const { return length_; }
    char* c_str() const { return text_; }

  private:
    TextCopy copy_;
    jsize length_ = 0;
    char* text_ = nullptr;
};

// The body of a method whose one text argument goes to one library call: a null array is
// refused; an empty one is treated as `empty` says; otherwise `call(text)` decides the result.
template <typename Call>
jint WithText(JNIEnv* env, jbyteArray array, const char* name, EmptyText empty, Call call,
              TextCopy copy = TextCopy::Freed, PinnedBytes pinned = PinnedBytes::Released) {
    if (IsNullArg(env, array, name)) {
        return RefuseInput();
    }
    if (env->GetArrayLength(array) < 1) {
        if (empty == EmptyText::KeepLastResult) {
            return LastResult();
        }
        if (empty == EmptyText::Invalid) {
            return RefuseInput();
        }
    }
    TextArgument text(env, array, copy, pinned);
    return StoreResult(call(text.c_str()));
}

// The body of a method that sends one request structure: zero the structure, find the value
// class, `read(cls, info)` its fields in the structure's order, then `call(&info)` once. A null
// request object or an exception left pending by the reading is refused.
template <typename Info, typename Read, typename Call>
jint SendRequest(JNIEnv* env, jobject joRequest, const char* classPath, Read read, Call call) {
    if (IsNullArg(env, joRequest, "request object")) {
        return RefuseInput();
    }
    Info info = Zeroed<Info>();
    {
        LocalClass cls = FindValueClass(env, classPath);
        read(cls.get(), info);
    }
    if (InputFailed(env)) {
        return RefuseInput();
    }
    return StoreResult(call(&info));
}

// Writes one integer into a Return_Value_Info_t holder when the library's result is 0, and
// leaves the holder untouched otherwise.
inline void ReturnValueOnSuccess(JNIEnv* env, jobject holder, int nResult, int nValue) {
    if (nResult == ORVEX_RET_SUCCESS) {
        SetReturnValue(env, holder, nValue);
    }
}

// The Java array an object-array field of a value object holds (signature "[L...;"), as a local
// reference. Null, with an exception pending, where the class, the field or the object is
// missing; null without one where the field itself is null. Runs even with an exception pending
// from an earlier field, as the kit's helpers do.
inline CJniKits::ScopedLocalRef<jobjectArray> ObjectArrayField(JNIEnv* env, jobject valueObject,
                                                               jclass cls, const char* fieldName,
                                                               const char* signature) {
    CJniKits::ExceptionStash stash(env);
    jobject array = nullptr;
    if (cls == nullptr) {
        CJniKits::ThrowNull(env, "value class");
    } else if (jfieldID fid = env->GetFieldID(cls, fieldName, signature); fid == nullptr) {
        // NoSuchFieldError is pending.
    } else if (valueObject == nullptr) {
        CJniKits::ThrowNull(env, "value object");
    } else {
        array = env->GetObjectField(valueObject, fid);
    }
    return CJniKits::ScopedLocalRef<jobjectArray>(env, static_cast<jobjectArray>(array));
}
