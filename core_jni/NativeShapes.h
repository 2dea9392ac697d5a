// Shapes that recur across native methods: refusing bad input, finding value classes, zeroed
// C structures and record arrays, bare byte[] text arguments, and the one-request-one-call body.
// Each documented oddity of a method is a named option here rather than a copy of the body.
//
// Bad input never reaches the library: a native that finds a null argument the library would
// need, an impossible count, or an exception left pending while reading its Java input stores
// 1009, returns it, and leaves the exception pending to tell Java why.
#pragma once

#include <jni.h>

#include <cstdint>
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

// A Java int field taken as a C member of another 32-bit integer type (unsigned, or the
// library's enumeration), bits unchanged and unchecked: the library defines the values.
template <typename T>
T IntFieldAs(JNIEnv* env, jobject valueObject, jclass cls, const char* fieldName) {
    static_assert(sizeof(T) == sizeof(jint), "a 32-bit member");
    return static_cast<T>(CJniKits::GetStuIntField(env, valueObject, cls, fieldName));
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

// The body of a method whose Part has always checked its text argument itself: a null array is
// refused with 1009 alone, no exception, as its callers expect; otherwise as WithText.
template <typename Call>
jint WithCheckedText(JNIEnv* env, jbyteArray array, EmptyText empty, Call call,
                     TextCopy copy = TextCopy::Freed, PinnedBytes pinned = PinnedBytes::Released) {
    if (array == nullptr) {
        return RefuseInput();
    }
    return WithText(env, array, "text", empty, call, copy, pinned);
}

// The length of the text in a C char member, for methods that write texts back at their
// strlen: never past the member, even when the library left it unterminated.
template <std::size_t N>
int TextLength(const char (&member)[N]) {
    const void* terminator = std::memchr(member, '\0', N);
    return static_cast<int>(terminator ? static_cast<const char*>(terminator) - member : N);
}

// Room for `length` bytes and a terminator, as a count for NewRecords<char>: -1 (refused there
// with OutOfMemoryError) when the length is negative or the room could not be counted.
inline jint WithTerminator(jint length) {
    return length >= 0 && length < INT32_MAX ? length + 1 : -1;
}

// Writes a C text member into the byte[] a Java field already holds: its string length, no
// terminator, so the rest of the Java array keeps its bytes. A member the library left without
// a terminator counts up to its end, never past it.
template <std::size_t N>
void SetTextField(JNIEnv* env, jobject obj, jclass cls, const char* fieldName,
                  const char (&text)[N]) {
    CJniKits::SetStuByteArrayField(env, obj, cls, fieldName, text, TextLength(text));
}

// When a method writes the integer it returns into its Return_Value_Info_t holder.
enum class HolderWrite {
    OnSuccess,  // only when the library's result is 0 (the usual)
    Always,     // whatever the result, as the library left the value
};

// Calls `call(&value)` with the value starting at `initial` (zero unless a method starts
// elsewhere) and writes it into the holder as `when` says. Returns the library's result, or
// 1009 (NullPointerException pending, library not called) for a null holder; the caller stores
// it.
template <typename Value, typename Call>
int ValueIntoHolder(JNIEnv* env, jobject holder, const char* name, Call call,
                    HolderWrite when = HolderWrite::OnSuccess, Value initial = Value{}) {
    if (IsNullArg(env, holder, name)) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    Value value = initial;
    const int nResult = call(&value);
    if (when == HolderWrite::Always || nResult == ORVEX_RET_SUCCESS) {
        SetReturnValue(env, holder, static_cast<int>(value));
    }
    return nResult;
}

// The body of a method that returns one integer through its holder, written only on success,
// with the value starting at `initial`; the result is stored and returned.
template <typename T, typename Call>
jint ReturnThroughHolder(JNIEnv* env, jobject holder, T initial, Call call) {
    return StoreResult(
        ValueIntoHolder<T>(env, holder, "result holder", call, HolderWrite::OnSuccess, initial));
}

// The object a field of `valueObject` holds (an array or a nested value object), by field name
// and JNI signature. Null, with an exception pending, when the class or the object is missing
// or the field does not exist; a field that holds null yields null with nothing pending.
template <typename T = jobject>
CJniKits::ScopedLocalRef<T> ObjectField(JNIEnv* env, jobject valueObject, jclass cls,
                                        const char* fieldName, const char* signature) {
    CJniKits::ExceptionStash stash(env);
    if (IsNullArg(env, cls, "class") || IsNullArg(env, valueObject, fieldName)) {
        return CJniKits::ScopedLocalRef<T>(env, nullptr);
    }
    jfieldID fid = env->GetFieldID(cls, fieldName, signature);
    return CJniKits::ScopedLocalRef<T>(
        env, fid == nullptr ? nullptr : static_cast<T>(env->GetObjectField(valueObject, fid)));
}

// What a record fetch does when the request asks for no records.
enum class ZeroCount {
    Invalid,         // store and return 1009, library not called
    KeepLastResult,  // return the previous result untouched, library not called
};
// Whether a record fetch fills the Java elements only after success or whatever the result
// (then from the zeroed records wherever the library wrote nothing).
enum class WriteBack { OnSuccess, Always };

// The body of a method that fills the caller's pre-built array of value objects through a
// request structure pointing at a C record array. `Fetch` describes the request:
//   Info, Record                  the request structure and one C record;
//   kClass, kElementClass         value class paths of the request and of an element;
//   kArrayField, kArraySignature  the request's field holding the element array;
//   Count(info), Records(info)    the structure's count and record-pointer members;
//   Read(env, obj, cls, info)     reads the request's fields, count included, in order;
//   Write(env, element, cls, r)   writes one record into an existing element.
// A null request or a failed read is refused; the zeroed records (as many as the count
// asks) go to `call(&info)`, and the elements are written up to the count as the library left
// it, bounded by the records and by the Java array.
template <typename Fetch, typename Call>
jint FetchRecords(JNIEnv* env, jobject joRequest, ZeroCount zero, WriteBack write, Call call) {
    if (IsNullArg(env, joRequest, "request object")) {
        return RefuseInput();
    }
    auto info = Zeroed<typename Fetch::Info>();
    LocalClass cls = FindValueClass(env, Fetch::kClass);
    Fetch::Read(env, joRequest, cls.get(), info);
    if (InputFailed(env)) {
        return RefuseInput();
    }
    const long long requested = static_cast<long long>(Fetch::Count(info));
    if (requested == 0) {
        return zero == ZeroCount::Invalid ? RefuseInput() : LastResult();
    }
    // A count beyond jint (a negative Java int taken as unsigned) is no allocation at all.
    const jint capacity = requested > 0x7FFFFFFF ? -1 : static_cast<jint>(requested);
    auto records = NewRecords<typename Fetch::Record>(env, capacity);
    if (!records) {
        return RefuseInput();
    }
    Fetch::Records(info) = records.get();
    const int nResult = call(&info);
    StoreResult(nResult);
    if (write == WriteBack::Always || nResult == ORVEX_RET_SUCCESS) {
        const long long returned = static_cast<long long>(Fetch::Count(info));
        const jint filled =
            returned < 0 ? 0 : (returned > capacity ? capacity : static_cast<jint>(returned));
        LocalClass elementClass = FindValueClass(env, Fetch::kElementClass);
        if (elementClass.get() != nullptr) {
            auto array = ObjectField<jobjectArray>(env, joRequest, cls.get(), Fetch::kArrayField,
                                                   Fetch::kArraySignature);
            ForEachElement(env, array.get(), filled, [&](jsize i, jobject element) {
                Fetch::Write(env, element, elementClass.get(), records[i]);
            });
        }
    }
    return LastResult();
}
