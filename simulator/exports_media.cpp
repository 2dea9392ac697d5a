// Live streams, record search, playback, talk and broadcast.
#include "ORVEX_Core.h"
#include "sim_core.h"
#include "sim_exports.h"

using orvexsim::Address;
using orvexsim::CallRecord;
using orvexsim::FillCall;
using orvexsim::OutRecords;

namespace {

// The common shape of a stream request: handle, sequence output, request structure, media
// callback with its user data, time-out. The callback is kept per stream once it succeeds.
template <typename Info>
int32_t OpenStream(const char* fn, int32_t nHandle, const char* seqName, int32_t* pnSeq,
                   Info* pInfo, pfnMediaDataCallback pfnCallback, void* pUserParam,
                   int32_t nTimeout) {
    CallRecord call(fn);
    call.scalar("nHandle", nHandle)
        .out(seqName, pnSeq)
        .record("pInfo", pInfo)
        .address("pfnCallback", Address(pfnCallback))
        .address("pUserParam", pUserParam)
        .scalar("nTimeout", nTimeout);
    return orvexsim::openStream(call, nHandle, pnSeq, Address(pfnCallback), pUserParam);
}

// The audio entry point of a talk session, as ORVEX_GetSdkAudioCallbackInfo hands it out: it
// records each frame it is given (as the call "AudioEntryPoint") and calls nothing back.
void AudioEntryPoint(unsigned char* pFrame, unsigned int nFrameLen, long nUserParam) {
    CallRecord("AudioEntryPoint")
        .bytes("pFrame", pFrame, nFrameLen)
        .scalar("nFrameLen", nFrameLen)
        .scalar("nUserParam", nUserParam)
        .finish();
}

// The entry point's user data, which the library points into its own session state.
AudioUserParam_t g_audioUserParam = {nullptr};

}  // namespace

extern "C" {

int32_t ORVEX_GetRealStream(int32_t nHandle, int32_t* pnRealSeq, Get_RealStream_Info_t* pInfo,
                            pfnMediaDataCallback pfnCallback, void* pUserParam, int32_t nTimeout) {
    return OpenStream("ORVEX_GetRealStream", nHandle, "pnRealSeq", pnRealSeq, pInfo, pfnCallback,
                      pUserParam, nTimeout);
}

int32_t ORVEX_GetRealStreamPreview(int32_t nHandle, int32_t* pnRealSeq,
                                   Get_RealStream_Info_t* pInfo, int32_t nStartChannelIndex,
                                   pfnMediaDataCallback pfnCallback, void* pUserParam,
                                   int32_t nTimeout) {
    CallRecord call("ORVEX_GetRealStreamPreview");
    call.scalar("nHandle", nHandle)
        .out("pnRealSeq", pnRealSeq)
        .record("pInfo", pInfo)
        .scalar("nStartChannelIndex", nStartChannelIndex)
        .address("pfnCallback", Address(pfnCallback))
        .address("pUserParam", pUserParam)
        .scalar("nTimeout", nTimeout);
    return orvexsim::openStream(call, nHandle, pnRealSeq, Address(pfnCallback), pUserParam);
}

int32_t ORVEX_GetExternalRealStreamUrl(int32_t nHandle, Get_ExternalRealStreamUrl_Info_t* pInfo,
                                       int32_t nTimeout) {
    return FillCall("ORVEX_GetExternalRealStreamUrl", nHandle, pInfo, nTimeout);
}

int32_t ORVEX_CloseRealStreamBySeq(int32_t nHandle, int32_t nRealSeq, int32_t nTimeout) {
    return CallRecord("ORVEX_CloseRealStreamBySeq")
        .scalar("nHandle", nHandle)
        .scalar("nRealSeq", nRealSeq)
        .scalar("nTimeout", nTimeout)
        .finish();
}

int32_t ORVEX_QueryRecord(int32_t nHandle, Query_Record_Info_t* pInfo, int32_t* pnRecordCount,
                          int32_t nTimeout) {
    return CallRecord("ORVEX_QueryRecord")
        .scalar("nHandle", nHandle)
        .record("pInfo", pInfo)
        .out("pnRecordCount", pnRecordCount)
        .scalar("nTimeout", nTimeout)
        .finish();
}

int32_t ORVEX_QueryRecordByStreamType(int32_t nHandle, Query_Record_Info_t* pInfo,
                                      orvex_stream_type_e nStreamType, int32_t* pnRecordCount,
                                      int32_t nTimeout) {
    return CallRecord("ORVEX_QueryRecordByStreamType")
        .scalar("nHandle", nHandle)
        .record("pInfo", pInfo)
        .scalar("nStreamType", nStreamType)
        .out("pnRecordCount", pnRecordCount)
        .scalar("nTimeout", nTimeout)
        .finish();
}

int32_t ORVEX_GetRecordInfo(int32_t nHandle, Record_Info_t* pInfo) {
    CallRecord call("ORVEX_GetRecordInfo");
    call.scalar("nHandle", nHandle).out("pInfo", pInfo);
    OutRecords(call, "pInfo.pSingleRecord", pInfo, &Record_Info_t::pSingleRecord,
               &Record_Info_t::nCount);
    return call.finish();
}

int32_t ORVEX_GetRecordStreamByFile(int32_t nHandle, int32_t* pnPlaybackSeq,
                                    Get_RecordStream_File_Info_t* pInfo,
                                    pfnMediaDataCallback pfnCallback, void* pUserParam,
                                    int32_t nTimeout) {
    return OpenStream("ORVEX_GetRecordStreamByFile", nHandle, "pnPlaybackSeq", pnPlaybackSeq, pInfo,
                      pfnCallback, pUserParam, nTimeout);
}

int32_t ORVEX_GetRecordStreamByTime(int32_t nHandle, int32_t* pnPlaybackSeq,
                                    Get_RecordStream_Time_Info_t* pInfo,
                                    pfnMediaDataCallback pfnCallback, void* pUserParam,
                                    int32_t nTimeout) {
    return OpenStream("ORVEX_GetRecordStreamByTime", nHandle, "pnPlaybackSeq", pnPlaybackSeq, pInfo,
                      pfnCallback, pUserParam, nTimeout);
}

int32_t ORVEX_GetRecordStreamByStreamType(int32_t nHandle, int32_t* pnPlaybackSeq,
                                          Get_RecordStream_Time_Info_t* pInfo,
                                          orvex_stream_type_e nStreamType,
                                          pfnMediaDataCallback pfnCallback, void* pUserParam,
                                          int32_t nTimeout, int32_t nParam1, int32_t nParam2) {
    CallRecord call("ORVEX_GetRecordStreamByStreamType");
    call.scalar("nHandle", nHandle)
        .out("pnPlaybackSeq", pnPlaybackSeq)
        .record("pInfo", pInfo)
        .scalar("nStreamType", nStreamType)
        .address("pfnCallback", Address(pfnCallback))
        .address("pUserParam", pUserParam)
        .scalar("nTimeout", nTimeout)
        .scalar("nParam1", nParam1)
        .scalar("nParam2", nParam2);
    return orvexsim::openStream(call, nHandle, pnPlaybackSeq, Address(pfnCallback), pUserParam);
}

int32_t ORVEX_PauseRecordStreamBySeq(int32_t nHandle, int32_t nPlaybackSeq, int32_t nTimeout) {
    return CallRecord("ORVEX_PauseRecordStreamBySeq")
        .scalar("nHandle", nHandle)
        .scalar("nPlaybackSeq", nPlaybackSeq)
        .scalar("nTimeout", nTimeout)
        .finish();
}

int32_t ORVEX_ResumeRecordStreamBySeq(int32_t nHandle, int32_t nPlaybackSeq, int32_t nTimeout) {
    return CallRecord("ORVEX_ResumeRecordStreamBySeq")
        .scalar("nHandle", nHandle)
        .scalar("nPlaybackSeq", nPlaybackSeq)
        .scalar("nTimeout", nTimeout)
        .finish();
}

int32_t ORVEX_SetRecordStreamSpeed(int32_t nHandle, int32_t nPlaybackSeq,
                                   orvex_playback_speed_e nSpeed, int32_t nTimeout) {
    return CallRecord("ORVEX_SetRecordStreamSpeed")
        .scalar("nHandle", nHandle)
        .scalar("nPlaybackSeq", nPlaybackSeq)
        .scalar("nSpeed", nSpeed)
        .scalar("nTimeout", nTimeout)
        .finish();
}

int32_t ORVEX_SeekRecordStreamBySeq(int32_t nHandle, int32_t nPlaybackSeq, uint64_t uSeekBegin,
                                    uint64_t uSeekEnd, int32_t nTimeout) {
    // The 64-bit positions keep their bit pattern in the signed record.
    return CallRecord("ORVEX_SeekRecordStreamBySeq")
        .scalar("nHandle", nHandle)
        .scalar("nPlaybackSeq", nPlaybackSeq)
        .scalar("uSeekBegin", static_cast<int64_t>(uSeekBegin))
        .scalar("uSeekEnd", static_cast<int64_t>(uSeekEnd))
        .scalar("nTimeout", nTimeout)
        .finish();
}

int32_t ORVEX_CloseRecordStreamBySeq(int32_t nHandle, int32_t nPlaybackSeq, int32_t nTimeout) {
    return CallRecord("ORVEX_CloseRecordStreamBySeq")
        .scalar("nHandle", nHandle)
        .scalar("nPlaybackSeq", nPlaybackSeq)
        .scalar("nTimeout", nTimeout)
        .finish();
}

int32_t ORVEX_CloseRecordStreamByCameraId(int32_t nHandle, const char* szCameraId,
                                          int32_t nTimeout) {
    return CallRecord("ORVEX_CloseRecordStreamByCameraId")
        .scalar("nHandle", nHandle)
        .text("szCameraId", szCameraId)
        .scalar("nTimeout", nTimeout)
        .finish();
}

int32_t ORVEX_GetTalkStream(int32_t nHandle, int32_t* pnTalkSeq, Get_TalkStream_Info_t* pInfo,
                            pfnMediaDataCallback pfnCallback, void* pUserParam, int32_t nTimeout) {
    return OpenStream("ORVEX_GetTalkStream", nHandle, "pnTalkSeq", pnTalkSeq, pInfo, pfnCallback,
                      pUserParam, nTimeout);
}

int32_t ORVEX_CloseTalkStreamBySeq(int32_t nHandle, int32_t nTalkSeq, int32_t nTimeout) {
    return CallRecord("ORVEX_CloseTalkStreamBySeq")
        .scalar("nHandle", nHandle)
        .scalar("nTalkSeq", nTalkSeq)
        .scalar("nTimeout", nTimeout)
        .finish();
}

int32_t ORVEX_CloseTalkStreamByCameralId(int32_t nHandle, const char* szCameraId,
                                         int32_t nTimeout) {
    return CallRecord("ORVEX_CloseTalkStreamByCameralId")
        .scalar("nHandle", nHandle)
        .text("szCameraId", szCameraId)
        .scalar("nTimeout", nTimeout)
        .finish();
}

int32_t ORVEX_GetSdkAudioCallbackInfo(int32_t nHandle, void** pFun, void** pUserParam) {
    // Unless a test scripts another answer, the session's entry point is AudioEntryPoint.
    return CallRecord("ORVEX_GetSdkAudioCallbackInfo")
        .scalar("nHandle", nHandle)
        .out("pFun", pFun)
        .out("pUserParam", pUserParam)
        .finishAlways([&] {
            if (pFun != nullptr) {
                *pFun = Address(AudioEntryPoint);
            }
            if (pUserParam != nullptr) {
                *pUserParam = &g_audioUserParam;
            }
            return 0;
        });
}

int32_t ORVEX_StartBroadcast(int32_t nHandle, int32_t* pnTalkSeq, const char* szJson,
                             pfnMediaDataCallback pfnCallback, void* pUserParam, int32_t nTimeout) {
    return CallRecord("ORVEX_StartBroadcast")
        .scalar("nHandle", nHandle)
        .out("pnTalkSeq", pnTalkSeq)
        .text("szJson", szJson)
        .address("pfnCallback", Address(pfnCallback))
        .address("pUserParam", pUserParam)
        .scalar("nTimeout", nTimeout)
        .finish();
}

int32_t ORVEX_CloseBroadcastStream(int32_t nHandle, const char* szJson, int32_t nTalkSeq,
                                   int32_t nTimeout) {
    return CallRecord("ORVEX_CloseBroadcastStream")
        .scalar("nHandle", nHandle)
        .text("szJson", szJson)
        .scalar("nTalkSeq", nTalkSeq)
        .scalar("nTimeout", nTimeout)
        .finish();
}

}  // extern "C"
