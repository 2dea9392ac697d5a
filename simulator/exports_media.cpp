// Live streams, record search, playback, talk and broadcast.
#include <algorithm>
#include <cstring>
#include <functional>
#include <string>

#include "ORVEX_Core.h"
#include "ORVEX_Core_Error.h"
#include "platform/media_engine.h"
#include "platform/media_records.h"
#include "platform/records.h"
#include "sim_control.h"
#include "sim_core.h"
#include "sim_exports.h"

using orvexsim::Address;
using orvexsim::CallRecord;
using orvexsim::OutRecords;
namespace platform = orvexsim::platform;
using platform::FixedText;
using platform::StreamKind;

namespace {

std::string Text(const char* s) {
    return s != nullptr ? s : "";
}

// The simulated platform's answer to a request whose structure may be missing.
template <typename Info, typename Answer>
std::function<int32_t()> WithInfo(Info* pInfo, Answer answer) {
    return [pInfo, answer] {
        return pInfo != nullptr ? answer(*pInfo)
                                : static_cast<int32_t>(ORVEX_CORE_ERROR_INVALID_PARAM);
    };
}

platform::PlaybackRequest ByTime(const Get_RecordStream_Time_Info_t& info) {
    platform::PlaybackRequest request;
    request.cameraId = FixedText(info.szCameraId);
    request.begin = info.uBeginTime;
    request.end = info.uEndTime;
    return request;
}

// The control calls on one stream: handle, sequence number, time-out.
int32_t SeqCall(const char* fn, const char* seqName, int32_t nHandle, int32_t nSeq,
                int32_t nTimeout, const std::function<int32_t()>& platform) {
    return CallRecord(fn)
        .scalar("nHandle", nHandle)
        .scalar(seqName, nSeq)
        .scalar("nTimeout", nTimeout)
        .finish(platform);
}

// Tells the instance's talk parameter listener, if any, what the session carries: A-law of
// 16-bit samples at 8 kHz, whatever coding the request asked for.
std::function<void()> AnnounceTalk(int32_t nHandle, int32_t talkType, int32_t transType) {
    return [=] {
        orvexsim::Registration reg;
        if (orvexsim::lookup(orvexsim::CbKind::TalkParam, nHandle, 0, &reg)) {
            reinterpret_cast<pfnORVEXTalkParamCallback>(reg.fn)(
                nHandle, talkType, Talk_Coding_G711a, Talk_Audio_Bits_16, Talk_Audio_Sam_8K,
                transType, reg.user);
        }
    };
}

// The close-by-camera calls: handle, camera identifier, time-out.
int32_t CameraCall(const char* fn, StreamKind kind, int32_t nHandle, const char* szCameraId,
                   int32_t nTimeout) {
    return CallRecord(fn)
        .scalar("nHandle", nHandle)
        .text("szCameraId", szCameraId)
        .scalar("nTimeout", nTimeout)
        .finish([=] { return platform::CloseStreamsOfCamera(kind, nHandle, Text(szCameraId)); });
}

// The common shape of a stream request: handle, sequence output, request structure, media
// callback with its user data, time-out. The callback is kept per stream once it succeeds.
template <typename Info>
int32_t OpenStream(const char* fn, int32_t nHandle, const char* seqName, int32_t* pnSeq,
                   Info* pInfo, pfnMediaDataCallback pfnCallback, void* pUserParam,
                   int32_t nTimeout, const std::function<int32_t()>& platform) {
    CallRecord call(fn);
    call.scalar("nHandle", nHandle)
        .out(seqName, pnSeq)
        .record("pInfo", pInfo)
        .address("pfnCallback", Address(pfnCallback))
        .address("pUserParam", pUserParam)
        .scalar("nTimeout", nTimeout);
    return orvexsim::openStream(call, nHandle, pnSeq, Address(pfnCallback), pUserParam, platform);
}

// The audio entry point of a talk session, as ORVEX_GetSdkAudioCallbackInfo hands it out: it
// records each frame it is given (as the call "AudioEntryPoint") and calls nothing back. The
// simulated platform also checks the frame's header and decodes it for the talk session.
void AudioEntryPoint(unsigned char* pFrame, unsigned int nFrameLen, long nUserParam) {
    CallRecord("AudioEntryPoint")
        .bytes("pFrame", pFrame, nFrameLen)
        .scalar("nFrameLen", nFrameLen)
        .scalar("nUserParam", nUserParam)
        .finish([=] {
            platform::ReceiveTalkFrame(pFrame, nFrameLen);
            return 0;
        });
}

// The entry point's user data, which the library points into its own session state.
AudioUserParam_t g_audioUserParam = {nullptr};

}  // namespace

orvexsim::control::TalkCounts orvexsim::control::talkReceived() {
    const platform::TalkReception r = platform::TalkReceived();
    return {r.accepted, r.rejected, r.samples, r.peak};
}

extern "C" {

int32_t ORVEX_GetRealStream(int32_t nHandle, int32_t* pnRealSeq, Get_RealStream_Info_t* pInfo,
                            pfnMediaDataCallback pfnCallback, void* pUserParam, int32_t nTimeout) {
    return OpenStream("ORVEX_GetRealStream", nHandle, "pnRealSeq", pnRealSeq, pInfo, pfnCallback,
                      pUserParam, nTimeout, WithInfo(pInfo, [=](const Get_RealStream_Info_t& info) {
                          return platform::OpenLiveStream(
                              nHandle, {FixedText(info.szCameraId), info.nMediaType, false},
                              {pfnCallback, pUserParam}, pnRealSeq);
                      }));
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
    // The preview shows the camera the request names; the start index only orders a client's
    // multi-channel view.
    return orvexsim::openStream(call, nHandle, pnRealSeq, Address(pfnCallback), pUserParam,
                                WithInfo(pInfo, [=](const Get_RealStream_Info_t& info) {
                                    return platform::OpenLiveStream(
                                        nHandle,
                                        {FixedText(info.szCameraId), info.nMediaType, true},
                                        {pfnCallback, pUserParam}, pnRealSeq);
                                }));
}

int32_t ORVEX_GetExternalRealStreamUrl(int32_t nHandle, Get_ExternalRealStreamUrl_Info_t* pInfo,
                                       int32_t nTimeout) {
    return CallRecord("ORVEX_GetExternalRealStreamUrl")
        .scalar("nHandle", nHandle)
        .out("pInfo", pInfo)
        .scalar("nTimeout", nTimeout)
        .finish(WithInfo(pInfo, [=](Get_ExternalRealStreamUrl_Info_t& info) {
            std::string url;
            const int32_t rc = platform::ExternalStreamUrl(nHandle, FixedText(info.szCameraId),
                                                           info.nStreamType, &url);
            if (rc == 0) {
                const std::size_t n = std::min(url.size(), sizeof(info.szUrl) - 1);
                std::memcpy(info.szUrl, url.data(), n);
                info.szUrl[n] = '\0';
            }
            return rc;
        }));
}

int32_t ORVEX_CloseRealStreamBySeq(int32_t nHandle, int32_t nRealSeq, int32_t nTimeout) {
    return SeqCall("ORVEX_CloseRealStreamBySeq", "nRealSeq", nHandle, nRealSeq, nTimeout,
                   [=] { return platform::CloseStream(StreamKind::Live, nHandle, nRealSeq); });
}

int32_t ORVEX_QueryRecord(int32_t nHandle, Query_Record_Info_t* pInfo, int32_t* pnRecordCount,
                          int32_t nTimeout) {
    return CallRecord("ORVEX_QueryRecord")
        .scalar("nHandle", nHandle)
        .record("pInfo", pInfo)
        .out("pnRecordCount", pnRecordCount)
        .scalar("nTimeout", nTimeout)
        .finish(WithInfo(pInfo, [=](const Query_Record_Info_t& info) {
            // Recordings are kept whole: every stream type finds the same ones.
            return platform::QueryRecords(nHandle, FixedText(info.szCameraId), info.uBeginTime,
                                          info.uEndTime, info.nRecordType, info.nSource,
                                          pnRecordCount);
        }));
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
        .finish(WithInfo(pInfo, [=](const Query_Record_Info_t& info) {
            // Recordings are kept whole: every stream type finds the same ones.
            return platform::QueryRecords(nHandle, FixedText(info.szCameraId), info.uBeginTime,
                                          info.uEndTime, info.nRecordType, info.nSource,
                                          pnRecordCount);
        }));
}

int32_t ORVEX_GetRecordInfo(int32_t nHandle, Record_Info_t* pInfo) {
    CallRecord call("ORVEX_GetRecordInfo");
    call.scalar("nHandle", nHandle).out("pInfo", pInfo);
    OutRecords(call, "pInfo.pSingleRecord", pInfo, &Record_Info_t::pSingleRecord,
               &Record_Info_t::nCount);
    return call.finish(WithInfo(pInfo, [=](Record_Info_t& info) {
        return platform::FetchRecords(nHandle, FixedText(info.szCameraId), info.nBegin, info.nCount,
                                      info.pSingleRecord, &info.nRetCount);
    }));
}

int32_t ORVEX_GetRecordStreamByFile(int32_t nHandle, int32_t* pnPlaybackSeq,
                                    Get_RecordStream_File_Info_t* pInfo,
                                    pfnMediaDataCallback pfnCallback, void* pUserParam,
                                    int32_t nTimeout) {
    return OpenStream("ORVEX_GetRecordStreamByFile", nHandle, "pnPlaybackSeq", pnPlaybackSeq, pInfo,
                      pfnCallback, pUserParam, nTimeout,
                      WithInfo(pInfo, [=](const Get_RecordStream_File_Info_t& info) {
                          platform::PlaybackRequest request;
                          request.cameraId = FixedText(info.szCameraId);
                          request.begin = info.uBeginTime;
                          request.end = info.uEndTime;
                          request.byFile = true;
                          request.fileIndex = info.nFileIndex;
                          return platform::OpenPlaybackStream(
                              nHandle, request, {pfnCallback, pUserParam}, pnPlaybackSeq);
                      }));
}

int32_t ORVEX_GetRecordStreamByTime(int32_t nHandle, int32_t* pnPlaybackSeq,
                                    Get_RecordStream_Time_Info_t* pInfo,
                                    pfnMediaDataCallback pfnCallback, void* pUserParam,
                                    int32_t nTimeout) {
    return OpenStream("ORVEX_GetRecordStreamByTime", nHandle, "pnPlaybackSeq", pnPlaybackSeq, pInfo,
                      pfnCallback, pUserParam, nTimeout,
                      WithInfo(pInfo, [=](const Get_RecordStream_Time_Info_t& info) {
                          return platform::OpenPlaybackStream(
                              nHandle, ByTime(info), {pfnCallback, pUserParam}, pnPlaybackSeq);
                      }));
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
    // Recordings are kept whole: every stream type plays the same pictures.
    return orvexsim::openStream(call, nHandle, pnPlaybackSeq, Address(pfnCallback), pUserParam,
                                WithInfo(pInfo, [=](const Get_RecordStream_Time_Info_t& info) {
                                    return platform::OpenPlaybackStream(nHandle, ByTime(info),
                                                                        {pfnCallback, pUserParam},
                                                                        pnPlaybackSeq);
                                }));
}

int32_t ORVEX_PauseRecordStreamBySeq(int32_t nHandle, int32_t nPlaybackSeq, int32_t nTimeout) {
    return SeqCall("ORVEX_PauseRecordStreamBySeq", "nPlaybackSeq", nHandle, nPlaybackSeq, nTimeout,
                   [=] { return platform::PausePlayback(nHandle, nPlaybackSeq); });
}

int32_t ORVEX_ResumeRecordStreamBySeq(int32_t nHandle, int32_t nPlaybackSeq, int32_t nTimeout) {
    return SeqCall("ORVEX_ResumeRecordStreamBySeq", "nPlaybackSeq", nHandle, nPlaybackSeq, nTimeout,
                   [=] { return platform::ResumePlayback(nHandle, nPlaybackSeq); });
}

int32_t ORVEX_SetRecordStreamSpeed(int32_t nHandle, int32_t nPlaybackSeq,
                                   orvex_playback_speed_e nSpeed, int32_t nTimeout) {
    return CallRecord("ORVEX_SetRecordStreamSpeed")
        .scalar("nHandle", nHandle)
        .scalar("nPlaybackSeq", nPlaybackSeq)
        .scalar("nSpeed", nSpeed)
        .scalar("nTimeout", nTimeout)
        .finish([=] { return platform::SetPlaybackSpeed(nHandle, nPlaybackSeq, nSpeed); });
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
        .finish(
            [=] { return platform::SeekPlayback(nHandle, nPlaybackSeq, uSeekBegin, uSeekEnd); });
}

int32_t ORVEX_CloseRecordStreamBySeq(int32_t nHandle, int32_t nPlaybackSeq, int32_t nTimeout) {
    return SeqCall(
        "ORVEX_CloseRecordStreamBySeq", "nPlaybackSeq", nHandle, nPlaybackSeq, nTimeout,
        [=] { return platform::CloseStream(StreamKind::Playback, nHandle, nPlaybackSeq); });
}

int32_t ORVEX_CloseRecordStreamByCameraId(int32_t nHandle, const char* szCameraId,
                                          int32_t nTimeout) {
    return CameraCall("ORVEX_CloseRecordStreamByCameraId", StreamKind::Playback, nHandle,
                      szCameraId, nTimeout);
}

int32_t ORVEX_GetTalkStream(int32_t nHandle, int32_t* pnTalkSeq, Get_TalkStream_Info_t* pInfo,
                            pfnMediaDataCallback pfnCallback, void* pUserParam, int32_t nTimeout) {
    return OpenStream("ORVEX_GetTalkStream", nHandle, "pnTalkSeq", pnTalkSeq, pInfo, pfnCallback,
                      pUserParam, nTimeout, WithInfo(pInfo, [=](const Get_TalkStream_Info_t& info) {
                          return platform::OpenTalkStream(
                              nHandle, FixedText(info.szCameraId), {pfnCallback, pUserParam},
                              pnTalkSeq, AnnounceTalk(nHandle, info.nTalkType, info.nTransType));
                      }));
}

int32_t ORVEX_CloseTalkStreamBySeq(int32_t nHandle, int32_t nTalkSeq, int32_t nTimeout) {
    return SeqCall("ORVEX_CloseTalkStreamBySeq", "nTalkSeq", nHandle, nTalkSeq, nTimeout,
                   [=] { return platform::CloseStream(StreamKind::Talk, nHandle, nTalkSeq); });
}

int32_t ORVEX_CloseTalkStreamByCameralId(int32_t nHandle, const char* szCameraId,
                                         int32_t nTimeout) {
    return CameraCall("ORVEX_CloseTalkStreamByCameralId", StreamKind::Talk, nHandle, szCameraId,
                      nTimeout);
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
        // The text names the cameras to speak on; the simulated site has no loudspeakers, so
        // a broadcast is only opened and closed.
        .finish([=] { return platform::StartBroadcast(nHandle, pnTalkSeq); });
}

int32_t ORVEX_CloseBroadcastStream(int32_t nHandle, const char* szJson, int32_t nTalkSeq,
                                   int32_t nTimeout) {
    return CallRecord("ORVEX_CloseBroadcastStream")
        .scalar("nHandle", nHandle)
        .text("szJson", szJson)
        .scalar("nTalkSeq", nTalkSeq)
        .scalar("nTimeout", nTimeout)
        .finish([=] { return platform::CloseBroadcast(nHandle, nTalkSeq); });
}

}  // extern "C"
