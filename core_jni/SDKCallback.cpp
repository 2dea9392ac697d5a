// Trampolines from the client library's threads into Java listeners.
#include "SDKCallback.h"

#include <jni.h>

#include <array>
#include <atomic>
#include <cassert>
#include <cstring>
#include <string>

#include "BridgeFrame.h"
#include "EventThreads.h"
#include "JniKits.h"

namespace {

// Bytes that become one Java byte[]: a C string without its terminator, or a buffer of a
// length the library gives.
struct Bytes {
    const char* p;
    jsize n;
};

// A null text or buffer, or a negative length, from the library becomes an empty array: the
// library broke its side, and the event still reaches Java rather than ending the process.
Bytes Text(const char* sz) {
    return {sz, sz != nullptr ? static_cast<jsize>(std::strlen(sz)) : 0};
}

Bytes Buffer(const char* p, jsize n) {
    return {p, p != nullptr && n > 0 ? n : 0};
}

// Fills a fresh Java array with one region write straight from the library's buffer. The bytes
// Java receives are exactly those of a copy through the array's elements buffer, which this
// replaces on purpose: that road pins or copies the whole array, copies the bytes in, writes
// them again and copies them back on release, four passes and a second allocation per frame.
void FillArray(JNIEnv* env, jbyteArray array, const Bytes& from) {
    if (from.n > 0) {
        env->SetByteArrayRegion(array, 0, from.n, reinterpret_cast<const jbyte*>(from.p));
    }
}

// One event's stay in Java. Construction attaches this library thread (no name, no group), or
// in attached mode finds it attached, and resolves the listener's class and "invoke";
// destruction deletes the tracked local references in the order they were made, then the
// class, and detaches unconditionally in the default mode. The listener's class and method are
// looked up on every event (a listener may come from any class loader; a thread kept attached
// reuses the method while the class is provably the same); the trampoline returns 0 whatever
// happens.
class Event {
  public:
    Event(void* pUserParam, const ListenerKind& kind)
        : vm_(g_jvm.load(std::memory_order_relaxed)),
          listener_(static_cast<jobject>(pUserParam)),
          keptAttached_(KeepThreadsAttached()) {
        if (keptAttached_) {
            env_ = KeptAttachedEnv(vm_);
            if (env_ == nullptr) {
                return;  // the virtual machine refused the thread: the event is dropped
            }
        } else {
            vm_->AttachCurrentThread(reinterpret_cast<void**>(&env_), nullptr);
        }
        cls_ = env_->GetObjectClass(listener_);
        invoke_ = keptAttached_ ? KeptAttachedInvoke(env_, cls_, kind)
                                : env_->GetMethodID(cls_, "invoke", kind.signature);
        if (invoke_ == nullptr) {
            // A listener without the kind's invoke (installed behind the setters' check) has
            // nothing to receive the event: it ends here, cleanly.
            env_->ExceptionClear();
        }
    }

    // False when the listener cannot take this kind of event; the trampoline returns at once.
    bool ready() const { return env_ != nullptr && invoke_ != nullptr; }

    ~Event() {
        if (env_ == nullptr) {
            return;
        }
        for (std::size_t k = 0; k < nLocals_; ++k) {
            env_->DeleteLocalRef(locals_[k]);
        }
        if (deleteClass_ || keptAttached_) {
            // A thread that stays attached keeps no frame to release what is left behind.
            env_->DeleteLocalRef(cls_);
        }
        if (keptAttached_) {
            HandOverToUncaughtHandler(env_);
        } else {
            vm_->DetachCurrentThread();
        }
    }

    Event(const Event&) = delete;
    Event& operator=(const Event&) = delete;

    JNIEnv* env() const { return env_; }

    // A local reference to delete when the event ends, after those tracked before it.
    template <typename Ref>
    Ref Track(Ref local) {
        assert(nLocals_ < kMaxLocals);
        locals_[nLocals_++] = local;
        return local;
    }

    // Deletes `local` a second time right after its first deletion. Nothing is created between
    // the two, so the second one hits the already emptied slot and no other reference.
    void DeleteTwice(jobject local) {
        assert(nLocals_ < kMaxLocals);
        std::size_t k = 0;
        while (k < nLocals_ && locals_[k] != local) {
            ++k;
        }
        for (std::size_t j = nLocals_; j > k + 1; --j) {
            locals_[j] = locals_[j - 1];
        }
        locals_[k + 1] = local;
        ++nLocals_;
    }

    // The data-change kind leaves its class reference for the detach to release.
    void LeaveClassToDetach() { deleteClass_ = false; }

    // One byte[] per source: all are created first, in order, then filled in the same order.
    template <typename... Sources>
    auto ByteArrays(const Sources&... sources) {
        const Bytes from[] = {sources...};
        std::array<jbyteArray, sizeof...(Sources)> arrays{};
        for (std::size_t k = 0; k < arrays.size(); ++k) {
            arrays[k] = Track(env_->NewByteArray(from[k].n));
        }
        for (std::size_t k = 0; k < arrays.size(); ++k) {
            FillArray(env_, arrays[k], from[k]);
        }
        return arrays;
    }

    // A byte[] created and filled at once, before the next one is created.
    jbyteArray ByteArray(const Bytes& from) {
        jbyteArray array = Track(env_->NewByteArray(from.n));
        FillArray(env_, array, from);
        return array;
    }

    // An exception the listener throws stays pending until the detach, where the virtual
    // machine hands it to the thread's uncaught-exception handler (in attached mode the event's
    // end hands it over itself). Checking it here marks it as seen, so the deletions that follow
    // are legal JNI.
    template <typename... Args>
    void Call(Args... args) {
        env_->CallVoidMethod(listener_, invoke_, args...);
        env_->ExceptionCheck();
    }

  private:
    static constexpr std::size_t kMaxLocals = 17;  // the bay record's 16 arrays, one twice

    JavaVM* vm_;
    jobject listener_;
    bool keptAttached_;
    JNIEnv* env_ = nullptr;
    jclass cls_ = nullptr;
    jmethodID invoke_ = nullptr;
    jobject locals_[kMaxLocals] = {};
    std::size_t nLocals_ = 0;
    bool deleteClass_ = true;
};

// Java int with the bits of an unsigned C value.
jint Bits(uint32_t v) {
    return static_cast<jint>(v);
}

// Java long with the bits of an unsigned 64-bit C value.
jlong Bits64(uint64_t v) {
    return static_cast<jlong>(v);
}

// A message of the data-change record becomes a byte[] set directly from the C string (no
// elements buffer) and stored in the field of the same name.
void SetMessageField(JNIEnv* env, jobject joDataChangeInfo, const char* fieldName,
                     const char* szMsg) {
    const Bytes msg = Text(szMsg);
    jbyteArray jbMsg = env->NewByteArray(msg.n);
    if (msg.n > 0) {
        env->SetByteArrayRegion(jbMsg, 0, msg.n, reinterpret_cast<const jbyte*>(msg.p));
    }
    jfieldID field = env->GetFieldID(g_clsDataChangeInfo, fieldName, "[B");
    env->SetObjectField(joDataChangeInfo, field, jbMsg);
    env->DeleteLocalRef(jbMsg);
}

}  // namespace

int32_t CSDKCB::fORVEXStatusCallback(int32_t nPDLLHandle, int32_t nStatus, void* pUserParam) {
    if (pUserParam == nullptr) {
        return 0;
    }
    Event event(pUserParam, listener_kinds::kStatus);
    if (!event.ready()) {
        return 0;
    }
    event.Call(nPDLLHandle, nStatus);
    return 0;
}

int32_t CSDKCB::fMediaDataCallback(int32_t nPDLLHandle, int32_t nSeq, int32_t nMediaType,
                                   const char* szNodeId, int32_t nParamVal, char* szData,
                                   int32_t nDataLen, void* pUserParam) {
    if (pUserParam == nullptr) {
        return 0;
    }
    Event event(pUserParam, listener_kinds::kMediaData);
    if (!event.ready()) {
        return 0;
    }
    const auto a = event.ByteArrays(Text(szNodeId), Buffer(szData, nDataLen));
    event.Call(nPDLLHandle, nSeq, nMediaType, a[0], nParamVal, a[1], nDataLen);
    return 0;
}

int32_t CSDKCB::fORVEXDeviceChangeCallback(int32_t nPDLLHandle, uint32_t nChangeType,
                                           const char* szDeviceId, const char* szDepCode,
                                           const char* szNewOrgCode, void* pUserParam) {
    if (pUserParam == nullptr) {
        return 0;
    }
    Event event(pUserParam, listener_kinds::kDeviceChange);
    if (!event.ready()) {
        return 0;
    }
    const auto a = event.ByteArrays(Text(szDeviceId), Text(szDepCode), Text(szNewOrgCode));
    event.Call(nPDLLHandle, Bits(nChangeType), a[0], a[1], a[2]);
    return 0;
}

int32_t CSDKCB::fORVEXDevStatusCallback(int32_t nPDLLHandle, const char* szDeviceId,
                                        int32_t nStatus, void* pUserParam) {
    if (pUserParam == nullptr) {
        return 0;
    }
    Event event(pUserParam, listener_kinds::kDevStatus);
    if (!event.ready()) {
        return 0;
    }
    const auto a = event.ByteArrays(Text(szDeviceId));
    event.Call(nPDLLHandle, a[0], nStatus);
    return 0;
}

int32_t CSDKCB::fORVEXAlarmCallback(int32_t nPDLLHandle, const char* szAlarmId,
                                    uint32_t nDeviceType, const char* szCameraId,
                                    const char* szDeviceName, const char* szChannelName,
                                    const char* szCoding, const char* szMessage,
                                    uint32_t nAlarmType, uint32_t nEventType, uint32_t nLevel,
                                    int64_t nTime, char* pAlarmData, uint32_t nAlarmDataLen,
                                    char* pPicData, uint32_t nPicDataLen, void* pUserParam) {
    if (pUserParam == nullptr) {
        return 0;
    }
    Event event(pUserParam, listener_kinds::kAlarm);
    if (!event.ready()) {
        return 0;
    }
    const auto a =
        event.ByteArrays(Text(szAlarmId), Text(szCameraId), Text(szDeviceName), Text(szChannelName),
                         Text(szCoding), Text(szMessage), Buffer(pAlarmData, Bits(nAlarmDataLen)),
                         Buffer(pPicData, Bits(nPicDataLen)));
    event.Call(nPDLLHandle, a[0], Bits(nDeviceType), a[1], a[2], a[3], a[4], a[5], Bits(nAlarmType),
               Bits(nEventType), Bits(nLevel), static_cast<jlong>(nTime), a[6], Bits(nAlarmDataLen),
               a[7], Bits(nPicDataLen));
    return 0;
}

int32_t CSDKCB::fORVEXTalkParamCallback(int32_t nPDLLHandle, int nTalkType, int nAudioType,
                                        int nAudioBit, int nSampleRate, int nTransMode,
                                        void* pUserParam) {
    if (pUserParam == nullptr) {
        return 0;
    }
    Event event(pUserParam, listener_kinds::kTalkParam);
    if (!event.ready()) {
        return 0;
    }
    event.Call(nPDLLHandle, nTalkType, nAudioType, nAudioBit, nSampleRate, nTransMode);
    return 0;
}

int32_t CSDKCB::fORVEXRemoteDeviceSnapCallback(int32_t nPDLLHandle, const char* szCameraId,
                                               const char* szFullPath, void* pUserParam) {
    if (pUserParam == nullptr) {
        return 0;
    }
    Event event(pUserParam, listener_kinds::kRemoteDeviceSnap);
    if (!event.ready()) {
        return 0;
    }
    const auto a = event.ByteArrays(Text(szCameraId), Text(szFullPath));
    event.Call(nPDLLHandle, a[0], a[1]);
    return 0;
}

int32_t CSDKCB::fORVEXVideoAlarmHostStatusCallback(int32_t nPDLLHandle, char* szDeviceId,
                                                   int32_t nChannelNO, int32_t nStatus,
                                                   void* pUserParam) {
    if (pUserParam == nullptr) {
        return 0;
    }
    Event event(pUserParam, listener_kinds::kVideoAlarmHostStatus);
    if (!event.ready()) {
        return 0;
    }
    const auto a = event.ByteArrays(Text(szDeviceId));
    event.Call(nPDLLHandle, a[0], nChannelNO, nStatus);
    return 0;
}

int32_t CSDKCB::fORVEXNetAlarmHostStatusCallback(int32_t nPDLLHandle, char* szDeviceId,
                                                 int32_t nRType, int32_t nOperType, int32_t nStatus,
                                                 void* pUserParam) {
    if (pUserParam == nullptr) {
        return 0;
    }
    Event event(pUserParam, listener_kinds::kNetAlarmHostStatus);
    if (!event.ready()) {
        return 0;
    }
    const auto a = event.ByteArrays(Text(szDeviceId));
    event.Call(nPDLLHandle, a[0], nRType, nOperType, nStatus);
    return 0;
}

int32_t CSDKCB::fORVEXBroadcastReportStatusCallback(int32_t nPDLLHandle, char* szCameraId,
                                                    int32_t nRType, int64_t nTime, int32_t nStatus,
                                                    void* pUserParam) {
    if (pUserParam == nullptr) {
        return 0;
    }
    Event event(pUserParam, listener_kinds::kBroadcastReportStatus);
    if (!event.ready()) {
        return 0;
    }
    const auto a = event.ByteArrays(Text(szCameraId));
    event.Call(nPDLLHandle, a[0], nRType, static_cast<jlong>(nTime), nStatus);
    return 0;
}

int32_t CSDKCB::fORVEXGeneralJsonTransportCallback(int32_t nPDLLHandle, const char* szJson,
                                                   void* pUserParam) {
    if (pUserParam == nullptr) {
        return 0;
    }
    Event event(pUserParam, listener_kinds::kGeneralJsonTransport);
    if (!event.ready()) {
        return 0;
    }
    const auto a = event.ByteArrays(Text(szJson));
    event.Call(nPDLLHandle, a[0]);
    return 0;
}

int32_t CSDKCB::fORVEXNVRChnlStatusCallback(int32_t nPDLLHandle, const char* szChnlId,
                                            int32_t nStatus, void* pUserParam) {
    if (pUserParam == nullptr) {
        return 0;
    }
    Event event(pUserParam, listener_kinds::kNVRChnlStatus);
    if (!event.ready()) {
        return 0;
    }
    const auto a = event.ByteArrays(Text(szChnlId));
    event.Call(nPDLLHandle, a[0], nStatus);
    return 0;
}

int32_t CSDKCB::fORVEXPecDoorStarusCallBack(int32_t nPDLLHandle, const char* szCamearId,
                                            orvex_door_status_e nStatus, int64_t nTime,
                                            void* pUserParam) {
    if (pUserParam == nullptr) {
        return 0;
    }
    Event event(pUserParam, listener_kinds::kPecDoorStatus);
    if (!event.ready()) {
        return 0;
    }
    const auto a = event.ByteArrays(Text(szCamearId));
    // The listener's signature has an int here: only the low 32 bits of the time arrive.
    const jint nTimeLow = Bits(static_cast<uint32_t>(static_cast<uint64_t>(nTime)));
    event.Call(nPDLLHandle, a[0], static_cast<jint>(nStatus), nTimeLow);
    return 0;
}

int32_t CSDKCB::fORVEXShareVideoCallback(int32_t nPDLLHandle, ShareVideoInfo* pVideoInfo,
                                         int32_t nVideoCount, const char* szMsg, int32_t nSrcUserId,
                                         const char* szSrcUserName, void* pUserParam) {
    if (pUserParam == nullptr) {
        return 0;
    }
    Event event(pUserParam, listener_kinds::kShareVideo);
    if (!event.ready()) {
        return 0;
    }
    JNIEnv* env = event.env();
    // Application classes cannot be found by name on a library thread: use the load-time class.
    if (pVideoInfo == nullptr || nVideoCount < 0) {
        nVideoCount = 0;  // the library broke its side: no records rather than a crash
    }
    jobjectArray jaVideoInfos =
        event.Track(env->NewObjectArray(nVideoCount, g_clsShareVideoInfo, nullptr));
    jmethodID jmInit = env->GetMethodID(g_clsShareVideoInfo, "<init>", "()V");
    for (int32_t i = 0; i < nVideoCount; ++i) {
        const ShareVideoInfo& info = pVideoInfo[i];
        jobject joVideoInfo = env->NewObject(g_clsShareVideoInfo, jmInit);
        // All 64 bytes go into the array the constructor made, bytes after the NUL included.
        CJniKits::SetStuByteArrayField(env, joVideoInfo, g_clsShareVideoInfo, "szCameraId",
                                       info.szCameraId, sizeof(info.szCameraId));
        CJniKits::SetStuIntField(env, joVideoInfo, g_clsShareVideoInfo, "nType", info.nType);
        CJniKits::SetStuIntField(env, joVideoInfo, g_clsShareVideoInfo, "nSubStream",
                                 info.nSubStream);
        CJniKits::SetStuIntField(env, joVideoInfo, g_clsShareVideoInfo, "nIsMobile",
                                 info.nIsMobile);
        CJniKits::SetStuLongField(env, joVideoInfo, g_clsShareVideoInfo, "nPlanId",
                                  static_cast<long>(info.nPlanId));
        CJniKits::SetStuLongField(env, joVideoInfo, g_clsShareVideoInfo, "nPlaybacktime",
                                  static_cast<long>(info.nPlaybacktime));
        env->SetObjectArrayElement(jaVideoInfos, i, joVideoInfo);
        env->DeleteLocalRef(joVideoInfo);
    }
    jbyteArray jarrMsg = event.ByteArray(Text(szMsg));
    jbyteArray jarrSrcUserName = event.ByteArray(Text(szSrcUserName));
    event.Call(nPDLLHandle, jaVideoInfos, jarrMsg, nSrcUserId, jarrSrcUserName);
    return 0;
}

int32_t CSDKCB::fORVEXGetBayCarInfoCallbackEx(
    int32_t nPDLLHandle, const char* szDeviceId, int32_t nDeviceIdLen, int32_t nDevChnId,
    const char* szChannelId, int32_t nChannelIdLen, const char* szDeviceName,
    int32_t nDeviceNameLen, const char* szDeviceChnName, int32_t nChanNameLen, const char* szCarNum,
    int32_t nCarNumLen, int32_t nCarNumType, int32_t nCarNumColor, int32_t nCarSpeed,
    int32_t nCarType, int32_t nCarColor, int32_t nCarLen, int32_t nCarDirect, int32_t nWayId,
    uint64_t lCaptureTime, unsigned long lPicGroupStoreID, int32_t nIsNeedStore,
    int32_t nIsStoraged, const char* szCaptureOrg, int32_t nCaptureOrgLen, const char* szOptOrg,
    int32_t nOptOrgLen, const char* szOptUser, int32_t nOptUserLen, const char* szOptNote,
    int32_t nOptNoteLen, const char* szImg0Path, int32_t nImg0PathLen, const char* szImg1Path,
    int32_t nImg1PathLen, const char* szImg2Path, int32_t nImg2PathLen, const char* szImg3Path,
    int32_t nImg3PathLen, const char* szImg4Path, int32_t nImg4PathLen, const char* szImg5Path,
    int32_t nImg5PathLen, const char* szImgPlatePath, int32_t nImgPlatePathLen, int32_t icarLog,
    int32_t iPlateLeft, int32_t iPlateRight, int32_t iPlateTop, int32_t iPlateBottom,
    void* pUserParam) {
    if (pUserParam == nullptr) {
        return 0;
    }
    Event event(pUserParam, listener_kinds::kBayCarInfoEx);
    if (!event.ready()) {
        return 0;
    }
    // The library gives every length; a terminating NUL arrives only if the length counts it.
    const auto a = event.ByteArrays(
        Buffer(szDeviceId, nDeviceIdLen), Buffer(szChannelId, nChannelIdLen),
        Buffer(szDeviceName, nDeviceNameLen), Buffer(szDeviceChnName, nChanNameLen),
        Buffer(szCarNum, nCarNumLen), Buffer(szCaptureOrg, nCaptureOrgLen),
        Buffer(szOptOrg, nOptOrgLen), Buffer(szOptUser, nOptUserLen),
        Buffer(szOptNote, nOptNoteLen), Buffer(szImg0Path, nImg0PathLen),
        Buffer(szImg1Path, nImg1PathLen), Buffer(szImg2Path, nImg2PathLen),
        Buffer(szImg3Path, nImg3PathLen), Buffer(szImg4Path, nImg4PathLen),
        Buffer(szImg5Path, nImg5PathLen), Buffer(szImgPlatePath, nImgPlatePathLen));
    // The device name's array has always been deleted twice; kept as it is, and harmless.
    event.DeleteTwice(a[2]);
    event.Call(nPDLLHandle, a[0], nDeviceIdLen, nDevChnId, a[1], nChannelIdLen, a[2],
               nDeviceNameLen, a[3], nChanNameLen, a[4], nCarNumLen, nCarNumType, nCarNumColor,
               nCarSpeed, nCarType, nCarColor, nCarLen, nCarDirect, nWayId, Bits64(lCaptureTime),
               Bits64(lPicGroupStoreID), nIsNeedStore, nIsStoraged, a[5], nCaptureOrgLen, a[6],
               nOptOrgLen, a[7], nOptUserLen, a[8], nOptNoteLen, a[9], nImg0PathLen, a[10],
               nImg1PathLen, a[11], nImg2PathLen, a[12], nImg3PathLen, a[13], nImg4PathLen, a[14],
               nImg5PathLen, a[15], nImgPlatePathLen, icarLog, iPlateLeft, iPlateRight, iPlateTop,
               iPlateBottom);
    return 0;
}

int32_t CSDKCB::fORVEXDataChangeCallback(int32_t nPDLLHandle, DataChange_t* pDataChangeInfo,
                                         void* pUserParam) {
    if (pUserParam == nullptr) {
        return 0;
    }
    Event event(pUserParam, listener_kinds::kDataChange);
    if (!event.ready()) {
        return 0;
    }
    event.LeaveClassToDetach();
    JNIEnv* env = event.env();
    // A null record from the library arrives as an empty one rather than ending the process.
    static const DataChange_t kEmptyRecord{};
    if (pDataChangeInfo == nullptr) {
        pDataChangeInfo = const_cast<DataChange_t*>(&kEmptyRecord);
    }
    jmethodID jmInit = env->GetMethodID(g_clsDataChangeInfo, "<init>", "()V");
    jobject joDataChangeInfo = event.Track(env->NewObject(g_clsDataChangeInfo, jmInit));
    CJniKits::SetStuLongField(env, joDataChangeInfo, g_clsDataChangeInfo, "nParam1",
                              static_cast<long>(pDataChangeInfo->nParam1));
    CJniKits::SetStuLongField(env, joDataChangeInfo, g_clsDataChangeInfo, "nParam2",
                              static_cast<long>(pDataChangeInfo->nParam2));
    SetMessageField(env, joDataChangeInfo, "szMsg1", pDataChangeInfo->szMsg1);
    SetMessageField(env, joDataChangeInfo, "szMsg2", pDataChangeInfo->szMsg2);
    event.Call(nPDLLHandle, joDataChangeInfo);
    return 0;
}

bool ListenerFits(JNIEnv* env, jobject listener, const ListenerKind& kind) {
    jclass cls = env->GetObjectClass(listener);
    const jmethodID invoke = env->GetMethodID(cls, "invoke", kind.signature);
    env->DeleteLocalRef(cls);
    if (invoke != nullptr) {
        return true;
    }
    env->ExceptionClear();  // NoSuchMethodError, replaced by a message that says what to write
    const std::string message = std::string("a ") + kind.name +
                                " listener needs an instance method void invoke" + kind.signature;
    CJniKits::ThrowIllegalArgument(env, message.c_str());
    return false;
}
