// Two-way talk and broadcast. The device's audio arrives through the media listener of the talk
// request; Java's audio goes out through the library's own entry point, which the bridge calls
// with G.711 A-law frames.
#include <com_zq_OrvexCore_IOrvexCore.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <memory>
#include <mutex>
#include <new>
#include <set>

#include "Alaw_encoder.h"
#include "BridgeFrame.h"
#include "JniKits.h"
#include "MediaStreams.h"
#include "NativeShapes.h"
#include "ORVEX_Core.h"
#include "Records_media.h"

namespace {

// The audio frame: a fixed header, the payload length (16 bits, little-endian), then one A-law
// code per 16-bit sample, built in a buffer of fixed size.
constexpr std::size_t kFrameBufferSize = 65536;
constexpr std::size_t kFrameHeaderSize = 8;
constexpr jint kMaxPayload = static_cast<jint>(kFrameBufferSize - kFrameHeaderSize);
constexpr unsigned char kFrameMagic[] = {0x00, 0x00, 0x01, 0xF0, 0x0E, 0x02};

// Entry points the library handed out in this process. Java passes the entry point back as a
// plain number; calling any other number would jump to an arbitrary address.
class EntryPoints {
  public:
    void Remember(void* fn) {
        std::lock_guard<std::mutex> lock(mu_);
        known_.insert(reinterpret_cast<std::uintptr_t>(fn));
    }
    bool Known(jlong fn) {
        std::lock_guard<std::mutex> lock(mu_);
        return known_.count(static_cast<std::uintptr_t>(fn)) != 0;
    }

  private:
    std::mutex mu_;
    std::set<std::uintptr_t> known_;
};

// Never destroyed: Java threads may still send audio while the process exits.
EntryPoints& HandedOutEntryPoints() {
    static EntryPoints* entryPoints = new EntryPoints;
    return *entryPoints;
}

void ReadTalkStreamInfo(JNIEnv* env, jobject jo, jclass cls, Get_TalkStream_Info_t& info) {
    CJniKits::GetStuByteArrayField(env, jo, cls, "szCameraId", info.szCameraId);
    info.nAudioType = IntFieldAs<orvex_audio_type_e>(env, jo, cls, "nAudioType");
    info.nTalkType = IntFieldAs<orvex_talk_type_e>(env, jo, cls, "nTalkType");
    info.nBitsType = IntFieldAs<orvex_talk_bits_e>(env, jo, cls, "nBitsType");
    info.nSampleType = IntFieldAs<Talk_Sample_Rate_e>(env, jo, cls, "nSampleType");
    info.nTransType = IntFieldAs<orvex_trans_type_e>(env, jo, cls, "nTransType");
}

// The pData array of a Send_Audio_Data_Info_t, or null (with an exception pending when the
// field itself is missing).
jbyteArray PcmArray(JNIEnv* env, jobject jo, jclass cls) {
    const jfieldID field = env->GetFieldID(cls, "pData", "[B");
    return field != nullptr ? static_cast<jbyteArray>(env->GetObjectField(jo, field)) : nullptr;
}

// The first nLen bytes of the PCM array, or null, with an exception pending, when nLen is
// negative, longer than the array, or more than one frame holds. An array longer than nLen is
// cut to nLen with IllegalArgumentException pending, and the cut block is still sent.
std::unique_ptr<char[]> CopyPcm(JNIEnv* env, jbyteArray pData, jint nLen) {
    if (nLen < 0 || nLen / 2 > kMaxPayload) {
        CJniKits::ThrowIllegalArgument(env, "nLen does not fit one audio frame");
        return nullptr;
    }
    const jsize nArrayLen = env->GetArrayLength(pData);
    if (nLen > nArrayLen) {
        CJniKits::ThrowIndexOutOfBounds(env, "nLen is longer than pData");
        return nullptr;
    }
    std::unique_ptr<char[]> pcm(new (std::nothrow) char[static_cast<std::size_t>(nLen)]);
    if (!pcm) {
        CJniKits::ThrowOutOfMemory(env, "audio block");
        return nullptr;
    }
    env->GetByteArrayRegion(pData, 0, nLen, reinterpret_cast<jbyte*>(pcm.get()));
    if (nArrayLen > nLen) {
        CJniKits::ThrowIllegalArgument(env, "pData is longer than nLen; only nLen bytes were sent");
    }
    return pcm;
}

// The body of both broadcast methods. A null array is refused; an empty one returns the last
// result untouched. Otherwise the library gets nSize + 1 bytes that are not the JSON text: the
// copy has always been taken from the address of the array reference rather than from its
// elements, and callers depend on the library being handed exactly that. Reading nSize bytes
// there would run off mapped memory for a long text, so only the one handle slot the reference
// points to (always readable) is copied and the rest is zero.
// Whether the method returns the library's sequence number (start) or has none (close).
enum class BroadcastSeq { ToHolder, None };

template <typename Call>
jint WithBroadcastJson(JNIEnv* env, jbyteArray jbJson, BroadcastSeq seq, jobject jbReturnValue,
                       Call call) {
    if (IsNullArg(env, jbJson, "jbJson")) {
        return RefuseInput();
    }
    const jsize nSize = env->GetArrayLength(jbJson);
    if (nSize <= 0) {
        return LastResult();
    }
    if (seq == BroadcastSeq::ToHolder && IsNullArg(env, jbReturnValue, "jbReturnValue")) {
        return RefuseInput();
    }
    std::unique_ptr<char[]> szJson(new (std::nothrow) char[static_cast<std::size_t>(nSize) + 1]());
    if (!szJson) {
        CJniKits::ThrowOutOfMemory(env, "broadcast text");
        return RefuseInput();
    }
    jbyte* json = env->GetByteArrayElements(jbJson, nullptr);
    const std::size_t nFromReference = std::min(static_cast<std::size_t>(nSize), sizeof(jobject));
    std::memcpy(szJson.get(), reinterpret_cast<const void*>(jbJson), nFromReference);
    int32_t nTalkSeq = 0;
    const int nResult = call(szJson.get(), &nTalkSeq);
    StoreResult(nResult);
    if (seq == BroadcastSeq::ToHolder) {
        ReturnValueOnSuccess(env, jbReturnValue, nResult, nTalkSeq);
    }
    szJson.reset();
    if (json != nullptr) {
        env->ReleaseByteArrayElements(jbJson, json, 0);
    }
    return LastResult();
}

}  // namespace

extern "C" {

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetTalkStream(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbReturnValue, jobject jbGetInfo,
    jobject jbFun, jint jiTimeout) {
    StreamOptions talk;
    talk.listenerCheck = ListenerCheck::AfterReading;
    talk.refFailure = RefFailure::InvalidParam;
    talk.fillJvm = FillJvmFromCaller::Yes;
    return OpenMediaStream<Get_TalkStream_Info_t>(
        env, jbReturnValue, jbGetInfo, "com/zq/OrvexCore/Get_TalkStream_Info_t", jbFun,
        ReadTalkStreamInfo,
        [&](int32_t* pnSeq, Get_TalkStream_Info_t* info, pfnMediaDataCallback fn, void* user) {
            return ORVEX_GetTalkStream(jiHandle, pnSeq, info, fn, user, jiTimeout);
        },
        talk);
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1CloseTalkStreamBySeq(
    JNIEnv* /*env*/, jclass /*thiz*/, jint jiHandle, jint jiTalkSeq, jint jiTimeout) {
    return StoreResult(ORVEX_CloseTalkStreamBySeq(jiHandle, jiTalkSeq, jiTimeout));
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1CloseTalkStreamByCameralId(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jbyteArray jbCameraId, jint jiTimeout) {
    return WithText(env, jbCameraId, "jbCameraId", EmptyText::Invalid, [&](const char* szCameraId) {
        return ORVEX_CloseTalkStreamByCameralId(jiHandle, szCameraId, jiTimeout);
    });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetSdkAudioCallbackInfo(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbAudioFunInfo) {
    // Without the object the entry point could not reach Java.
    if (IsNullArg(env, jbAudioFunInfo, "jbAudioFunInfo")) {
        return RefuseInput();
    }
    void* pFun = nullptr;
    void* pUserParam = nullptr;
    const int nResult = ORVEX_GetSdkAudioCallbackInfo(jiHandle, &pFun, &pUserParam);
    StoreResult(nResult);
    if (nResult == ORVEX_RET_SUCCESS) {
        if (pFun != nullptr) {
            HandedOutEntryPoints().Remember(pFun);
        }
        LocalClass cls = FindValueClass(env, "com/zq/OrvexCore/Audio_Fun_Info_t");
        CJniKits::SetStuLongField(env, jbAudioFunInfo, cls.get(), "pCallBackFun",
                                  static_cast<long>(reinterpret_cast<std::intptr_t>(pFun)));
        CJniKits::SetStuLongField(env, jbAudioFunInfo, cls.get(), "pUserParam",
                                  static_cast<long>(reinterpret_cast<std::intptr_t>(pUserParam)));
    }
    return LastResult();
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1SendAudioData(
    JNIEnv* env, jclass /*thiz*/, jint /*jiHandle*/, jobject jbSendAudioDataInfo) {
    StoreResult(ORVEX_RET_SUCCESS);
    if (IsNullArg(env, jbSendAudioDataInfo, "jbSendAudioDataInfo")) {
        return RefuseInput();
    }
    LocalClass cls = FindValueClass(env, "com/zq/OrvexCore/Send_Audio_Data_Info_t");
    jobject jo = jbSendAudioDataInfo;
    const jlong pCallBackFun = CJniKits::GetStuLongField(env, jo, cls.get(), "pCallBackFun");
    const jlong pUserParam = CJniKits::GetStuLongField(env, jo, cls.get(), "pUserParam");
    // Read and ignored: the block is always taken as 16-bit PCM and always sent as A-law.
    CJniKits::GetStuIntField(env, jo, cls.get(), "nAudioType");
    CJniKits::GetStuIntField(env, jo, cls.get(), "nTalkBits");
    CJniKits::GetStuIntField(env, jo, cls.get(), "nSampleRate");
    const jint nLen = CJniKits::GetStuIntField(env, jo, cls.get(), "nLen");
    if (InputFailed(env)) {
        return RefuseInput();
    }
    if (pCallBackFun == 0 || !HandedOutEntryPoints().Known(pCallBackFun)) {
        return StoreResult(-1);
    }
    if (nLen == 0) {
        return LastResult();
    }
    CJniKits::ScopedLocalRef<jbyteArray> pData(env, PcmArray(env, jo, cls.get()));
    if (IsNullArg(env, pData.get(), "pData")) {
        return RefuseInput();
    }
    std::unique_ptr<char[]> pcm = CopyPcm(env, pData.get(), nLen);
    if (!pcm) {
        return StoreResult(-1);
    }
    std::array<unsigned char, kFrameBufferSize> frame{};
    int nDataLen = 0;
    if (g711a_Encode(pcm.get(), reinterpret_cast<char*>(frame.data() + kFrameHeaderSize), nLen,
                     &nDataLen) != 1) {
        return StoreResult(-1);
    }
    std::memcpy(frame.data(), kFrameMagic, sizeof(kFrameMagic));
    frame[6] = static_cast<unsigned char>(nDataLen & 0xFF);
    frame[7] = static_cast<unsigned char>((nDataLen >> 8) & 0xFF);
    const auto entryPoint =
        reinterpret_cast<pAudioCallFunction>(static_cast<std::intptr_t>(pCallBackFun));
    entryPoint(frame.data(), static_cast<unsigned int>(nDataLen) + kFrameHeaderSize,
               static_cast<long>(pUserParam));
    return LastResult();
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1StartBroadcast(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jobject jbReturnValue, jbyteArray jbJson,
    jobject /*jbFun*/, jint jiTimeout) {
    FillJvmIfUnset(env);
    // Broadcasts start without a listener: the library gets no callback and no user data.
    return WithBroadcastJson(env, jbJson, BroadcastSeq::ToHolder, jbReturnValue,
                             [&](const char* szJson, int32_t* pnSeq) {
                                 return ORVEX_StartBroadcast(jiHandle, pnSeq, szJson, nullptr,
                                                             nullptr, jiTimeout);
                             });
}

JNIEXPORT jint JNICALL Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1CloseBroadcastStream(
    JNIEnv* env, jclass /*thiz*/, jint jiHandle, jint jiTalkSeq, jbyteArray jbJson,
    jint jiTimeout) {
    return WithBroadcastJson(
        env, jbJson, BroadcastSeq::None, nullptr, [&](const char* szJson, int32_t* /*pnSeq*/) {
            return ORVEX_CloseBroadcastStream(jiHandle, szJson, jiTalkSeq, jiTimeout);
        });
}

}  // extern "C"
