// The C trampolines the client library calls on its own threads, one per callback kind. Each
// forwards its event to the Java listener whose global reference arrives as pUserParam by
// calling the listener's "invoke", and returns 0 whatever happened.
//
// Every event attaches the calling thread to the virtual machine (no name), looks the listener's
// class and "invoke" method up afresh, converts the arguments, calls, deletes its local
// references and detaches again. The library must therefore call these only from threads of its
// own: a thread that is already attached would be detached at the end of the event. Null user
// data drops the event; a null string or buffer arrives as an empty array.
//
// With the system property orvex.events.threads=attached (read at load), a library thread is
// instead attached once, as a daemon, at its first event and detached when the library ends the
// thread; a listener's exception then goes to the thread's uncaught-exception handler at the end
// of the event, leaving nothing pending.
#pragma once

#include <jni.h>

#include <cstdint>

#include "ORVEX_Core.h"

// A callback kind as Java sees it: the listener interface and the JNI signature of its "invoke".
struct ListenerKind {
    const char* name;
    const char* signature;
};

namespace listener_kinds {
inline constexpr ListenerKind kStatus{"ORVEXStatusCallback", "(II)V"};
inline constexpr ListenerKind kMediaData{"MediaDataCallback", "(III[BI[BI)V"};
inline constexpr ListenerKind kDeviceChange{"ORVEXDeviceChangeCallback", "(II[B[B[B)V"};
inline constexpr ListenerKind kDevStatus{"ORVEXDevStatusCallback", "(I[BI)V"};
inline constexpr ListenerKind kAlarm{"ORVEXAlarmCallback", "(I[BI[B[B[B[B[BIIIJ[BI[BI)V"};
inline constexpr ListenerKind kTalkParam{"ORVEXTalkParamCallback", "(IIIIII)V"};
inline constexpr ListenerKind kRemoteDeviceSnap{"ORVEXRemoteDeviceSnapCallback", "(I[B[B)V"};
inline constexpr ListenerKind kVideoAlarmHostStatus{"ORVEXVideoAlarmHostStatusCallback",
                                                    "(I[BII)V"};
inline constexpr ListenerKind kNetAlarmHostStatus{"ORVEXNetAlarmHostStatusCallback", "(I[BIII)V"};
inline constexpr ListenerKind kBroadcastReportStatus{"ORVEXBroadcastReportStatusCallback",
                                                     "(I[BIJI)V"};
inline constexpr ListenerKind kGeneralJsonTransport{"ORVEXGeneralJsonTransportCallback", "(I[B)V"};
inline constexpr ListenerKind kNVRChnlStatus{"ORVEXNVRChnlStatusCallback", "(I[BI)V"};
inline constexpr ListenerKind kPecDoorStatus{"ORVEXPecDoorStarusCallBack", "(I[BII)V"};
inline constexpr ListenerKind kShareVideo{"ORVEXShareVideoCallback",
                                          "(I[Lcom/zq/OrvexCore/ShareVideoInfo;[BI[B)V"};
inline constexpr ListenerKind kBayCarInfoEx{
    "ORVEXGetBayCarInfoCallbackEx",
    "(I[BII[BI[BI[BI[BIIIIIIIIIJJII[BI[BI[BI[BI[BI[BI[BI[BI[BI[BI[BIIIIII)V"};
inline constexpr ListenerKind kDataChange{"ORVEXDataChangeCallback",
                                          "(ILcom/zq/OrvexCore/UserDataChange_t;)V"};
}  // namespace listener_kinds

// True when the listener's class has the kind's instance method "invoke" with exactly its
// signature. Otherwise false, with IllegalArgumentException naming the kind and the signature
// pending: a listener that cannot take the kind's events is refused where it is handed over,
// instead of failing on a library thread at its first event.
bool ListenerFits(JNIEnv* env, jobject listener, const ListenerKind& kind);

class CSDKCB {
  public:
    CSDKCB() = delete;

    // "(II)V"
    static int32_t fORVEXStatusCallback(int32_t nPDLLHandle, int32_t nStatus, void* pUserParam);
    // "(III[BI[BI)V"
    static int32_t fMediaDataCallback(int32_t nPDLLHandle, int32_t nSeq, int32_t nMediaType,
                                      const char* szNodeId, int32_t nParamVal, char* szData,
                                      int32_t nDataLen, void* pUserParam);
    // "(II[B[B[B)V"
    static int32_t fORVEXDeviceChangeCallback(int32_t nPDLLHandle, uint32_t nChangeType,
                                              const char* szDeviceId, const char* szDepCode,
                                              const char* szNewOrgCode, void* pUserParam);
    // "(I[BI)V"
    static int32_t fORVEXDevStatusCallback(int32_t nPDLLHandle, const char* szDeviceId,
                                           int32_t nStatus, void* pUserParam);
    // "(I[BI[B[B[B[B[BIIIJ[BI[BI)V"
    static int32_t fORVEXAlarmCallback(int32_t nPDLLHandle, const char* szAlarmId,
                                       uint32_t nDeviceType, const char* szCameraId,
                                       const char* szDeviceName, const char* szChannelName,
                                       const char* szCoding, const char* szMessage,
                                       uint32_t nAlarmType, uint32_t nEventType, uint32_t nLevel,
                                       int64_t nTime, char* pAlarmData, uint32_t nAlarmDataLen,
                                       char* pPicData, uint32_t nPicDataLen, void* pUserParam);
    // "(IIIIII)V"
    static int32_t fORVEXTalkParamCallback(int32_t nPDLLHandle, int nTalkType, int nAudioType,
                                           int nAudioBit, int nSampleRate, int nTransMode,
                                           void* pUserParam);
    // "(I[B[B)V"
    static int32_t fORVEXRemoteDeviceSnapCallback(int32_t nPDLLHandle, const char* szCameraId,
                                                  const char* szFullPath, void* pUserParam);
    // "(I[BII)V"
    static int32_t fORVEXVideoAlarmHostStatusCallback(int32_t nPDLLHandle, char* szDeviceId,
                                                      int32_t nChannelNO, int32_t nStatus,
                                                      void* pUserParam);
    // "(I[BIII)V"
    static int32_t fORVEXNetAlarmHostStatusCallback(int32_t nPDLLHandle, char* szDeviceId,
                                                    int32_t nRType, int32_t nOperType,
                                                    int32_t nStatus, void* pUserParam);
    // "(I[BIJI)V"
    static int32_t fORVEXBroadcastReportStatusCallback(int32_t nPDLLHandle, char* szCameraId,
                                                       int32_t nRType, int64_t nTime,
                                                       int32_t nStatus, void* pUserParam);
    // "(I[B)V"
    static int32_t fORVEXGeneralJsonTransportCallback(int32_t nPDLLHandle, const char* szJson,
                                                      void* pUserParam);
    // "(I[BI)V"
    static int32_t fORVEXNVRChnlStatusCallback(int32_t nPDLLHandle, const char* szChnlId,
                                               int32_t nStatus, void* pUserParam);
    // "(I[BII)V": the time reaches Java as its low 32 bits.
    static int32_t fORVEXPecDoorStarusCallBack(int32_t nPDLLHandle, const char* szCamearId,
                                               orvex_door_status_e nStatus, int64_t nTime,
                                               void* pUserParam);
    // "(I[Lcom/zq/OrvexCore/ShareVideoInfo;[BI[B)V"
    static int32_t fORVEXShareVideoCallback(int32_t nPDLLHandle, ShareVideoInfo* pVideoInfo,
                                            int32_t nVideoCount, const char* szMsg,
                                            int32_t nSrcUserId, const char* szSrcUserName,
                                            void* pUserParam);
    // "(I[BII[BI[BI[BI[BIIIIIIIIIJJII[BI[BI[BI[BI[BI[BI[BI[BI[BI[BI[BIIIIII)V": every string
    // is copied with the length in the parameter that follows it.
    static int32_t fORVEXGetBayCarInfoCallbackEx(
        int32_t nPDLLHandle, const char* szDeviceId, int32_t nDeviceIdLen, int32_t nDevChnId,
        const char* szChannelId, int32_t nChannelIdLen, const char* szDeviceName,
        int32_t nDeviceNameLen, const char* szDeviceChnName, int32_t nChanNameLen,
        const char* szCarNum, int32_t nCarNumLen, int32_t nCarNumType, int32_t nCarNumColor,
        int32_t nCarSpeed, int32_t nCarType, int32_t nCarColor, int32_t nCarLen, int32_t nCarDirect,
        int32_t nWayId, uint64_t lCaptureTime, unsigned long lPicGroupStoreID, int32_t nIsNeedStore,
        int32_t nIsStoraged, const char* szCaptureOrg, int32_t nCaptureOrgLen, const char* szOptOrg,
        int32_t nOptOrgLen, const char* szOptUser, int32_t nOptUserLen, const char* szOptNote,
        int32_t nOptNoteLen, const char* szImg0Path, int32_t nImg0PathLen, const char* szImg1Path,
        int32_t nImg1PathLen, const char* szImg2Path, int32_t nImg2PathLen, const char* szImg3Path,
        int32_t nImg3PathLen, const char* szImg4Path, int32_t nImg4PathLen, const char* szImg5Path,
        int32_t nImg5PathLen, const char* szImgPlatePath, int32_t nImgPlatePathLen, int32_t icarLog,
        int32_t iPlateLeft, int32_t iPlateRight, int32_t iPlateTop, int32_t iPlateBottom,
        void* pUserParam);
    // "(ILcom/zq/OrvexCore/UserDataChange_t;)V". No native registers this kind yet; it is kept
    // ready for when the library's registration is wired up.
    static int32_t fORVEXDataChangeCallback(int32_t nPDLLHandle, DataChange_t* pDataChangeInfo,
                                            void* pUserParam);
};
