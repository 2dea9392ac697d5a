// The one body of every stream request that takes a media listener: live, preview, the three
// playback opens and talk. Each differs from the live model only in the named options below.
#pragma once

#include <jni.h>

#include <cstdint>

#include "BridgeFrame.h"
#include "JniKits.h"
#include "NativeShapes.h"
#include "ORVEX_Core.h"
#include "SDKCallback.h"

// Whether the request's fields are read before the null-listener check (talk) or only once a
// listener is known (live and playback, which read nothing for a null listener).
enum class ListenerCheck { BeforeReading, AfterReading };

// The code stored when the listener's global reference cannot be made: live and playback report
// a JNI failure, talk reports an invalid parameter.
enum class RefFailure { CreateJniError, InvalidParam };

// Whether the opener fills g_jvm from its caller when it is still null (talk does, so that its
// frames can be delivered before any listener setter ran).
enum class FillJvmFromCaller { No, Yes };

struct StreamOptions {
    ListenerCheck listenerCheck = ListenerCheck::BeforeReading;
    RefFailure refFailure = RefFailure::CreateJniError;
    FillJvmFromCaller fillJvm = FillJvmFromCaller::No;
};

// Reads the fields of a request object into its zero-filled C structure.
template <typename Info>
using ReadRequest = void (*)(JNIEnv* env, jobject joRequest, jclass cls, Info& info);

// Opens a stream: reads the request (class `classPath`) with `read`, makes a global
// reference to the listener and calls `open(&seq, &info, trampoline, reference)` once; on 0 the
// sequence number goes to the holder. A refused open leaves the holder as the caller set it.
// The reference is never deleted, not on failure and not when the stream closes: the library
// may call with it until the end of the process.
template <typename Info, typename Open>
jint OpenMediaStream(JNIEnv* env, jobject jbReturnValue, jobject joRequest, const char* classPath,
                     jobject listener, ReadRequest<Info> read, Open open,
                     StreamOptions options = {}) {
    if (options.fillJvm == FillJvmFromCaller::Yes) {
        FillJvmIfUnset(env);
    }
    if (options.listenerCheck == ListenerCheck::BeforeReading && listener == nullptr) {
        return RefuseInput();
    }
    if (IsNullArg(env, joRequest, "request object")) {
        return RefuseInput();
    }
    Info info = Zeroed<Info>();
    {
        LocalClass cls = FindValueClass(env, classPath);
        read(env, joRequest, cls.get(), info);
    }
    if (listener == nullptr || InputFailed(env) ||
        !ListenerFits(env, listener, listener_kinds::kMediaData)) {
        return RefuseInput();
    }
    // Without a holder the sequence number would be lost with the stream still open.
    if (IsNullArg(env, jbReturnValue, "jbReturnValue")) {
        return RefuseInput();
    }
    jobject globalListener = env->NewGlobalRef(listener);
    if (globalListener == nullptr) {
        return StoreResult(options.refFailure == RefFailure::CreateJniError
                               ? ORVEX_CORE_ERROR_CREATE_JNI_ERROR
                               : ORVEX_CORE_ERROR_INVALID_PARAM);
    }
    int32_t nSeq = -1;
    const int nResult = open(&nSeq, &info, CSDKCB::fMediaDataCallback, globalListener);
    StoreResult(nResult);
    ReturnValueOnSuccess(env, jbReturnValue, nResult, nSeq);
    return LastResult();
}
