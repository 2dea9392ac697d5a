// Moves single values between fields of Java value objects and C memory.
//
// Every helper looks its field up afresh (no caching, so value classes may come from any class
// loader the calling thread sees), returns no status and never clears a Java exception: faults
// surface as pending Java exceptions. Where a raw JNI call would crash the virtual machine or
// write past a C buffer (a null object or array, a missing class or field, a Java array longer
// than the C member), the helper leaves a pending exception instead and skips the access.
#pragma once

#include <jni.h>

#include <cstddef>

#include "ORVEX_Core_Define.h"

class CJniKits {
  public:
    CJniKits() = delete;

    // Scalar fields.
    static void SetStuIntField(JNIEnv* env, jobject valueObject, jclass clsStu,
                               const char* fieldName, int nValue);
    static int GetStuIntField(JNIEnv* env, jobject valueObject, jclass clsStu,
                              const char* fieldName);
    static void SetStuLongField(JNIEnv* env, jobject valueObject, jclass clsStu,
                                const char* fieldName, long nValue);
    static long GetStuLongField(JNIEnv* env, jobject valueObject, jclass clsStu,
                                const char* fieldName);
    static void SetStuShortField(JNIEnv* env, jobject valueObject, jclass clsStu,
                                 const char* fieldName, jshort value);
    static jshort GetStuShortField(JNIEnv* env, jobject valueObject, jclass clsStu,
                                   const char* fieldName);
    static void SetStuByteField(JNIEnv* env, jobject valueObject, jclass clsStu,
                                const char* fieldName, unsigned char nValue);
    static int GetStuByteField(JNIEnv* env, jobject valueObject, jclass clsStu,
                               const char* fieldName);
    static void SetStuCharField(JNIEnv* env, jobject valueObject, jclass clsStu,
                                const char* fieldName, jchar nValue);
    // Only the low 8 bits of bValue are stored: 256 becomes false.
    static void SetStuBoolField(JNIEnv* env, jobject valueObject, jclass clsStu,
                                const char* fieldName, int bValue);
    static int GetStuBoolField(JNIEnv* env, jobject valueObject, jclass clsStu,
                               const char* fieldName);
    static void SetStuDoubleField(JNIEnv* env, jobject valueObject, jclass clsStu,
                                  const char* fieldName, double dValue);
    static double GetStuDoubleField(JNIEnv* env, jobject valueObject, jclass clsStu,
                                    const char* fieldName);
    static void SetStuFloatField(JNIEnv* env, jobject valueObject, jclass clsStu,
                                 const char* fieldName, float fValue);
    static float GetStuFloatField(JNIEnv* env, jobject valueObject, jclass clsStu,
                                  const char* fieldName);

    // Copies the whole Java byte[] field into a C char member from index 0, no terminator added
    // (callers zero their structures first). The member's size comes from its type, so a Java
    // array longer than the member is cut at the member's end and an
    // IllegalArgumentException is left pending.
    template <typename Char, std::size_t N>
    static void GetStuByteArrayField(JNIEnv* env, jobject valueObject, jclass clsStu,
                                     const char* fieldName, Char (&pArray)[N]) {
        static_assert(sizeof(Char) == 1, "text members are byte arrays");
        ReadByteArrayField(env, valueObject, clsStu, fieldName,
                           reinterpret_cast<unsigned char*>(pArray), N);
    }
    // Copies exactly nArrayLen bytes; a null array does nothing, a shorter one raises
    // ArrayIndexOutOfBoundsException and copies nothing.
    static void GetStuByteArrayField(JNIEnv* env, jobject valueObject, jclass clsStu,
                                     const char* fieldName, unsigned char* pArray, int nArrayLen);
    // Writes exactly nArrayLen bytes into the array the field already holds; a null field is
    // skipped silently, a shorter array raises ArrayIndexOutOfBoundsException.
    static void SetStuByteArrayField(JNIEnv* env, jobject valueObject, jclass clsStu,
                                     const char* fieldName, const void* pArray, int nArrayLen);
    static void SetStuIntArrayField(JNIEnv* env, jobject valueObject, jclass clsStu,
                                    const char* fieldName, const int* pArray, int nArrayLen);
    static void GetStuIntArrayField(JNIEnv* env, jobject valueObject, jclass clsStu,
                                    const char* fieldName, int* pArray, int nArrayLen);
    // Each C char widens sign-extended (0xE4 becomes the Java char 0xFFE4), as a signed char does.
    static void SetStuCharArrayField(JNIEnv* env, jobject valueObject, jclass clsStu,
                                     const char* fieldName, const char* szBuffer, int nBuffLen);
    // Each Java char narrows to its low 8 bits.
    static void GetStuCharArrayField(JNIEnv* env, jobject valueObject, jclass clsStu,
                                     const char* fieldName, char* szBuffer, int nBuffLen);

    // Bare arrays: nothing happens unless both pointers are set and nArrayLen is at least 1.
    static void SetJByteArray(JNIEnv* env, jbyteArray jbArray, const unsigned char* pbArray,
                              int nArrayLen);
    static void GetJByteArray(JNIEnv* env, jbyteArray jbArray, unsigned char* pbArray,
                              int nArrayLen);
    static void SetJCharArray(JNIEnv* env, jcharArray jcArray, const char* szArray, int nArrayLen);
    static void GetJCharArray(JNIEnv* env, jcharArray jcArray, char* szArray, int nArrayLen);

    // Boxed values used by Java callers as mutable out-parameters (their private "value").
    // The box class's local reference is left to the end of the native method, as before.
    static void SetIntObjectValue(JNIEnv* env, jobject obj, int nValue);
    static int GetIntObjectValue(JNIEnv* env, jobject obj);
    static void SetDoubleObjectValue(JNIEnv* env, jobject obj, double dbValue);
    static void SetBoolObjectValue(JNIEnv* env, jobject obj, int bValue);

    // Copies one device record into an existing Java Device_Info_Ex_t (nothing is created).
    static void CreateDeviceInfoObject(JNIEnv* env, jobject objDeviceInfo,
                                       const Device_Info_Ex_t& devInfo);
    // Whether a device record's szCallNum crosses into Java: the group enumeration has never
    // written it, and Java code may rely on its keeping the caller's bytes there.
    enum class CallNum { Written, Skipped };
    // The device record writer behind CreateDeviceInfoObject, for a class the caller found
    // (the group enumeration finds it once for all its elements).
    static void WriteDeviceInfo(JNIEnv* env, jobject objDeviceInfo, jclass clsDevice,
                                const Device_Info_Ex_t& devInfo, CallNum callNum);

    // Each leaves its exception pending unless an exception already is, so the first fault
    // is the one Java sees.
    static void ThrowNull(JNIEnv* env, const char* what);  // NullPointerException: "<what> is null"
    static void ThrowOutOfMemory(JNIEnv* env, const char* message);      // OutOfMemoryError
    static void ThrowIllegalArgument(JNIEnv* env, const char* message);  // IllegalArgumentException
    static void ThrowIndexOutOfBounds(JNIEnv* env,
                                      const char* message);  // ArrayIndexOutOfBoundsException

    // A local reference deleted when the scope ends; release() hands it over undeleted, for the
    // few places that deliberately leave a reference to the end of the native method.
    template <typename T>
    class ScopedLocalRef {
      public:
        ScopedLocalRef(JNIEnv* env, T ref) : env_(env), ref_(ref) {}
        ~ScopedLocalRef() {
            if (ref_ != nullptr) {
                env_->DeleteLocalRef(ref_);
            }
        }
        ScopedLocalRef(const ScopedLocalRef&) = delete;
        ScopedLocalRef& operator=(const ScopedLocalRef&) = delete;
        T get() const { return ref_; }
        T release() {
            T ref = ref_;
            ref_ = nullptr;
            return ref;
        }

      private:
        JNIEnv* env_;
        T ref_;
    };

    // Lets a stretch of JNI calls run as if no exception were pending, then puts the first
    // exception back. JNI forbids most calls while an exception is pending, yet the bridge
    // carries on after a failed access and still writes the remaining fields.
    class ExceptionStash {
      public:
        explicit ExceptionStash(JNIEnv* env);
        ~ExceptionStash();
        ExceptionStash(const ExceptionStash&) = delete;
        ExceptionStash& operator=(const ExceptionStash&) = delete;

      private:
        JNIEnv* env_;
        jthrowable first_;
    };

    // While one exists on a thread, field look-ups there on `cls` (the very class reference it
    // was made with) return the identifier found the first time for the same field name and
    // signature text. For loops that write many records of one class: the reference stays
    // valid, and the class the same, until the scope ends, so an identifier cannot go stale.
    class FieldIdMemo {
      public:
        explicit FieldIdMemo(jclass cls);
        ~FieldIdMemo();
        FieldIdMemo(const FieldIdMemo&) = delete;
        FieldIdMemo& operator=(const FieldIdMemo&) = delete;

        // The remembered identifier of (cls, name, signature), or null.
        jfieldID Find(jclass cls, const char* name, const char* signature);
        void Remember(jclass cls, const char* name, const char* signature, jfieldID fid);

      private:
        struct Entry {
            const char* name;
            const char* signature;
            jfieldID fid;
        };
        static constexpr int kEntries = 48;
        jclass cls_;
        FieldIdMemo* outer_;
        Entry entries_[kEntries];
        int count_ = 0;
        int next_ = 0;
    };

  private:
    static void ReadByteArrayField(JNIEnv* env, jobject valueObject, jclass clsStu,
                                   const char* fieldName, unsigned char* pArray,
                                   std::size_t nMemberSize);
};
