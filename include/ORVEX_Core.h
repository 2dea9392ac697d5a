// Functions and callback types of the ORVEX core client library.
//
// Every function returns an orvex_retval_e code as int32_t (0 on success) unless stated
// otherwise. nHandle is the client instance handle issued by ORVEX_Create; nTimeout is a
// time-out in milliseconds. Text arguments are NUL-terminated strings; buffers marked as
// output are written by the library.
#pragma once

#include "ORVEX_Core_Define.h"
#include "ORVEX_Core_Error.h"

#define ORVEX_API __attribute__((visibility("default")))

extern "C" {

// ==========================================================================================
// Callback types
//
// Callbacks are invoked on the library's own threads. pUserParam is the user data given at
// registration (or with the stream request), handed back unchanged. The return value is
// ignored by the library; callbacks return 0.
// ==========================================================================================

// Connection state of the client instance changed.
typedef int32_t (*pfnORVEXStatusCallback)(int32_t nPDLLHandle, int32_t nStatus, void* pUserParam);

// One media frame of a live, playback or talk stream.
typedef int32_t (*pfnMediaDataCallback)(int32_t nPDLLHandle, int32_t nSeq, int32_t nMediaType,
                                        const char* szNodeId, int32_t nParamVal, char* szData,
                                        int32_t nDataLen, void* pUserParam);

// The device catalogue changed.
typedef int32_t (*pfnORVEXDeviceChangeCallback)(int32_t nPDLLHandle, uint32_t nChangeType,
                                                const char* szDeviceId, const char* szDepCode,
                                                const char* szNewOrgCode, void* pUserParam);

// A device went online or offline (nStatus is an orvex_dev_status_e value).
typedef int32_t (*pfnORVEXDevStatusCallback)(int32_t nPDLLHandle, const char* szDeviceId,
                                             int32_t nStatus, void* pUserParam);

// An alarm occurred or disappeared. pAlarmData and pPicData are binary buffers of the
// given lengths.
typedef int32_t (*pfnORVEXAlarmCallback)(int32_t nPDLLHandle, const char* szAlarmId,
                                         uint32_t nDeviceType, const char* szCameraId,
                                         const char* szDeviceName, const char* szChannelName,
                                         const char* szCoding, const char* szMessage,
                                         uint32_t nAlarmType, uint32_t nEventType, uint32_t nLevel,
                                         int64_t nTime, char* pAlarmData, uint32_t nAlarmDataLen,
                                         char* pPicData, uint32_t nPicDataLen, void* pUserParam);

// Audio parameters negotiated for a talk session.
typedef int32_t (*pfnORVEXTalkParamCallback)(int32_t nPDLLHandle, int nTalkType, int nAudioType,
                                             int nAudioBit, int nSampleRate, int nTransMode,
                                             void* pUserParam);

// A remote snapshot of a camera was stored.
typedef int32_t (*pfnORVEXRemoteDeviceSnapCallback)(int32_t nPDLLHandle, const char* szCameraId,
                                                    const char* szFullPath, void* pUserParam);

// State of a video alarm host channel.
typedef int32_t (*pfnORVEXVideoAlarmHostStatusCallback)(int32_t nPDLLHandle, char* szDeviceId,
                                                        int32_t nChannelNO, int32_t nStatus,
                                                        void* pUserParam);

// State of a network alarm host.
typedef int32_t (*pfnORVEXNetAlarmHostStatusCallback)(int32_t nPDLLHandle, char* szDeviceId,
                                                      int32_t nRType, int32_t nOperType,
                                                      int32_t nStatus, void* pUserParam);

// Status report of an audio broadcast.
typedef int32_t (*pfnORVEXBroadcastReportStatusCallback)(int32_t nPDLLHandle, char* szCameraId,
                                                         int32_t nRType, int64_t nTime,
                                                         int32_t nStatus, void* pUserParam);

// General JSON message from a platform module.
typedef int32_t (*pfnORVEXGeneralJsonTransportCallback)(int32_t nPDLLHandle, const char* szJson,
                                                        void* pUserParam);

// State of an NVR channel.
typedef int32_t (*pfnORVEXNVRChnlStatusCallback)(int32_t nPDLLHandle, const char* szChnlId,
                                                 int32_t nStatus, void* pUserParam);

// State of a door.
typedef int32_t (*pfnORVEXPecDoorStarusCallBack)(int32_t nPDLLHandle, const char* szCamearId,
                                                 orvex_door_status_e nStatus, int64_t nTime,
                                                 void* pUserParam);

// Another user shared nVideoCount videos with this user.
typedef int32_t (*pfnORVEXShareVideoCallback)(int32_t nPDLLHandle, ShareVideoInfo* pVideoInfo,
                                              int32_t nVideoCount, const char* szMsg,
                                              int32_t nSrcUserId, const char* szSrcUserName,
                                              void* pUserParam);

// One vehicle record captured at a checkpoint bay. Every string comes with its length in
// bytes in the parameter that follows it.
typedef int32_t (*pfnORVEXGetBayCarInfoCallbackEx)(
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
    void* pUserParam);

// Organisation data changed.
typedef int32_t (*pfnORVEXDataChangeCallback)(int32_t nPDLLHandle, DataChange_t* pDataChangeInfo,
                                              void* pUserParam);

// Audio entry point of an open talk session (see ORVEX_GetSdkAudioCallbackInfo). pFrame holds
// one framed audio block of nFrameLen bytes; nUserParam is the entry point's user data
// (an AudioUserParam_t*).
typedef void (*pAudioCallFunction)(unsigned char* pFrame, unsigned int nFrameLen, long nUserParam);

// ==========================================================================================
// Client instance and diagnostics
// ==========================================================================================

// Create a client instance and return its handle in *pnSdkHandle; destroy it again.
ORVEX_API int32_t ORVEX_Create(orvex_sdk_type_e nType, int32_t* pnSdkHandle);
ORVEX_API int32_t ORVEX_Destroy(int32_t nHandle);

// Open or switch the library's log file; start the library's monitor output; write one line
// into the library's log.
ORVEX_API int32_t ORVEX_SetLog(int32_t nHandle, orvex_log_level_e nLevel, const char* szFileName,
                               int32_t nReserved1, int32_t nReserved2);
ORVEX_API int32_t ORVEX_StartMonitor(int32_t nHandle, const char* szFileName);
ORVEX_API int32_t ORVEX_WriteORVEXLog(int32_t nHandle, const char* szLog, orvex_log_level_e nLevel);

// Choose whether device information is fetched compressed.
ORVEX_API int32_t ORVEX_SetCompressType(int32_t nHandle,
                                        orvex_get_devinfo_compress_type_e nCompressType);

// ==========================================================================================
// Login and user account
// ==========================================================================================

// Log in to the platform server and out again.
ORVEX_API int32_t ORVEX_Login(int32_t nHandle, Login_Info_t* pInfo, int32_t nTimeout);
ORVEX_API int32_t ORVEX_Logout(int32_t nHandle, int32_t nTimeout);

// Identity, level and account data of the logged-in user.
ORVEX_API int32_t ORVEX_GetUserID(int32_t nHandle, uint32_t* pnUserId);
ORVEX_API int32_t ORVEX_GetUserLevel(int32_t nHandle, uint32_t* pnUserLevel);
ORVEX_API int32_t ORVEX_GetUserInfo(int32_t nHandle, ORVEX_UserInfo_t* pInfo, int32_t nTimeout);

// Change the user's password.
ORVEX_API int32_t ORVEX_ChangeUserPassword(int32_t nHandle, const char* szOldPsw,
                                           const char* szNewPsw, int32_t nTimeout);

// Address of the electronic map server.
ORVEX_API int32_t ORVEX_GetMapAddrInfo(int32_t nHandle, Config_Emap_Addr_Info_t* pInfo,
                                       int32_t nTimeout);

// The user's organisation as text: first the size of the buffer it needs, then the
// NUL-terminated text into a buffer of that size.
ORVEX_API int32_t ORVEX_GetUserOrgInfoLen(int32_t nHandle, int32_t* pnLen, int32_t nTimeout);
ORVEX_API int32_t ORVEX_GetUserOrgInfo(int32_t nHandle, char* szBuffer, int32_t nLen,
                                       int32_t nTimeout);

// ==========================================================================================
// Organisation tree, devices and channels
// ==========================================================================================

// Load the group tree from the server: whole (reporting the size of its text export), by
// organisation type (reporting the number of nodes), or layer by layer.
ORVEX_API int32_t ORVEX_LoadDGroupInfo(int32_t nHandle, int32_t* pnGroupLen, int32_t nTimeout);
ORVEX_API int32_t ORVEX_LoadOrgInfoByType(int32_t nHandle, int32_t nType, int32_t* pnOrgCount,
                                          int32_t nTimeout);
ORVEX_API int32_t ORVEX_LoadDGroupInfoLayered(int32_t nHandle, Load_Dep_Info_t* pInfo,
                                              int32_t* pnGroupLen, int32_t nTimeout);

// Export the loaded tree as text (at most nGroupLen bytes).
ORVEX_API int32_t ORVEX_GetDGroupStr(int32_t nHandle, char* szGroupBuf, int32_t nGroupLen,
                                     int32_t nTimeout);

// Root group, counts under a group, and the child groups and devices of a group.
ORVEX_API int32_t ORVEX_GetDGroupRootInfo(int32_t nHandle, Dep_Info_t* pInfo);
ORVEX_API int32_t ORVEX_GetDGroupCount(int32_t nHandle, Get_Dep_Count_Info_t* pInfo);
ORVEX_API int32_t ORVEX_GetDGroupInfo(int32_t nHandle, Get_Dep_Info_t* pInfo);

// One device by its identifier.
ORVEX_API int32_t ORVEX_GetDeviceInfoExById(int32_t nHandle, const char* szDeviceId,
                                            Device_Info_Ex_t* pInfo);

// Encoder channels of a device, their number, one channel by identifier, a channel's type
// and the stream type of a device unit.
ORVEX_API int32_t ORVEX_GetChannelInfo(int32_t nHandle, Get_Channel_Info_t* pInfo);
ORVEX_API int32_t ORVEX_GetChannelInfoEx(int32_t nHandle, Get_Channel_Info_Ex_t* pInfo);
ORVEX_API int32_t ORVEX_GetEncChannelCount(int32_t nHandle, const char* szDeviceId,
                                           int32_t* pnCount);
ORVEX_API int32_t ORVEX_GetChannelInfoById(int32_t nHandle, const char* szCameraId,
                                           Enc_Channel_Info_Ex_t* pInfo);
ORVEX_API int32_t ORVEX_GetChnlType(int32_t nHandle, const char* szCameraId, int32_t* pnType);
ORVEX_API int32_t ORVEX_GetDevStreamType(int32_t nHandle, Get_Dev_StreamType_Info_t* pInfo);

// Logical organisation: whether it exists (returns the answer itself, not a code), its root,
// node counts, sub-departments by index and the identifier of the n-th device or channel
// node (szCodeID: output buffer of 128 bytes).
ORVEX_API bool ORVEX_HasLogicOrg(int32_t nHandle);
ORVEX_API int32_t ORVEX_GetLogicRootDepInfo(int32_t nHandle, Dep_Info_Ex_t* pInfo);
ORVEX_API int32_t ORVEX_GetLogicDepNodeNum(int32_t nHandle, const char* szDepCoding,
                                           orvex_node_type_e eNodeType, int32_t* pnNum);
ORVEX_API int32_t ORVEX_GetLogicSubDepInfoByIndex(int32_t nHandle, const char* szDepCoding,
                                                  int32_t nIndex, Dep_Info_Ex_t* pInfo);
ORVEX_API int32_t ORVEX_GetLogicID(int32_t nHandle, const char* szDepCoding, int32_t nIndex,
                                   bool bChannel, char* szCodeID);

// ==========================================================================================
// Callback registration
//
// Register a callback with its user data; a null callback and null user data switch the
// kind off. The library keeps the pair until the next registration of the same kind.
// ==========================================================================================

ORVEX_API int32_t ORVEX_SetORVEXStatusCallback(int32_t nHandle, pfnORVEXStatusCallback pfnCallback,
                                               void* pUserParam);
ORVEX_API int32_t ORVEX_SetORVEXDeviceChangeCallback(int32_t nHandle,
                                                     pfnORVEXDeviceChangeCallback pfnCallback,
                                                     void* pUserParam);
ORVEX_API int32_t ORVEX_SetORVEXDeviceStatusCallback(int32_t nHandle,
                                                     pfnORVEXDevStatusCallback pfnCallback,
                                                     void* pUserParam);
ORVEX_API int32_t ORVEX_SetORVEXAlarmCallback(int32_t nHandle, pfnORVEXAlarmCallback pfnCallback,
                                              void* pUserParam);
ORVEX_API int32_t ORVEX_SetORVEXTalkParamCallback(int32_t nHandle,
                                                  pfnORVEXTalkParamCallback pfnCallback,
                                                  void* pUserParam);
ORVEX_API int32_t ORVEX_SetORVEXRemoteDeviceSnapCallback(
    int32_t nHandle, pfnORVEXRemoteDeviceSnapCallback pfnCallback, void* pUserParam);
ORVEX_API int32_t ORVEX_SetVideoAlarmHostStatusCallback(
    int32_t nHandle, pfnORVEXVideoAlarmHostStatusCallback pfnCallback, void* pUserParam);
ORVEX_API int32_t ORVEX_SetNetAlarmHostStatusCallback(
    int32_t nHandle, pfnORVEXNetAlarmHostStatusCallback pfnCallback, void* pUserParam);
ORVEX_API int32_t ORVEX_SetBroadcastReportStatusCallback(
    int32_t nHandle, pfnORVEXBroadcastReportStatusCallback pfnCallback, void* pUserParam);
ORVEX_API int32_t ORVEX_SetGeneralJsonTransportCallback(
    int32_t nHandle, pfnORVEXGeneralJsonTransportCallback pfnCallback, void* pUserParam);
ORVEX_API int32_t ORVEX_SetORVEXNVRChnlStatusCallback(int32_t nHandle,
                                                      pfnORVEXNVRChnlStatusCallback pfnCallback,
                                                      void* pUserParam);
ORVEX_API int32_t ORVEX_SetPecDoorStatusCallback(int32_t nHandle,
                                                 pfnORVEXPecDoorStarusCallBack pfnCallback,
                                                 void* pUserParam);
ORVEX_API int32_t ORVEX_SetShareVideoCallback(int32_t nHandle,
                                              pfnORVEXShareVideoCallback pfnCallback,
                                              void* pUserParam);
ORVEX_API int32_t ORVEX_SetORVEXGetBayCarInfoCallbackEx(int32_t nHandle,
                                                        pfnORVEXGetBayCarInfoCallbackEx pfnCallback,
                                                        void* pUserParam);

// ==========================================================================================
// Live streams
// ==========================================================================================

// Open a live stream (or a preview stream starting at a channel index); its sequence number
// is returned in *pnRealSeq and each frame is delivered to pfnCallback with pUserParam.
ORVEX_API int32_t ORVEX_GetRealStream(int32_t nHandle, int32_t* pnRealSeq,
                                      Get_RealStream_Info_t* pInfo,
                                      pfnMediaDataCallback pfnCallback, void* pUserParam,
                                      int32_t nTimeout);
ORVEX_API int32_t ORVEX_GetRealStreamPreview(int32_t nHandle, int32_t* pnRealSeq,
                                             Get_RealStream_Info_t* pInfo,
                                             int32_t nStartChannelIndex,
                                             pfnMediaDataCallback pfnCallback, void* pUserParam,
                                             int32_t nTimeout);

// External playable URL of a camera's live stream (written into pInfo->szUrl).
ORVEX_API int32_t ORVEX_GetExternalRealStreamUrl(int32_t nHandle,
                                                 Get_ExternalRealStreamUrl_Info_t* pInfo,
                                                 int32_t nTimeout);

// Close a live stream by its sequence number.
ORVEX_API int32_t ORVEX_CloseRealStreamBySeq(int32_t nHandle, int32_t nRealSeq, int32_t nTimeout);

// ==========================================================================================
// Record search
// ==========================================================================================

// Search the recordings of a camera (optionally of one stream type); the number found is
// returned in *pnRecordCount and the result is kept for ORVEX_GetRecordInfo.
ORVEX_API int32_t ORVEX_QueryRecord(int32_t nHandle, Query_Record_Info_t* pInfo,
                                    int32_t* pnRecordCount, int32_t nTimeout);
ORVEX_API int32_t ORVEX_QueryRecordByStreamType(int32_t nHandle, Query_Record_Info_t* pInfo,
                                                orvex_stream_type_e nStreamType,
                                                int32_t* pnRecordCount, int32_t nTimeout);

// Copy a window of the last search result.
ORVEX_API int32_t ORVEX_GetRecordInfo(int32_t nHandle, Record_Info_t* pInfo);

// ==========================================================================================
// Playback streams
// ==========================================================================================

// Open playback of a record file, of a time span, or of a time span of one stream type; the
// sequence number is returned in *pnPlaybackSeq and data is delivered to pfnCallback.
// nParam1 and nParam2 of the stream-type variant are extra playback options.
ORVEX_API int32_t ORVEX_GetRecordStreamByFile(int32_t nHandle, int32_t* pnPlaybackSeq,
                                              Get_RecordStream_File_Info_t* pInfo,
                                              pfnMediaDataCallback pfnCallback, void* pUserParam,
                                              int32_t nTimeout);
ORVEX_API int32_t ORVEX_GetRecordStreamByTime(int32_t nHandle, int32_t* pnPlaybackSeq,
                                              Get_RecordStream_Time_Info_t* pInfo,
                                              pfnMediaDataCallback pfnCallback, void* pUserParam,
                                              int32_t nTimeout);
ORVEX_API int32_t ORVEX_GetRecordStreamByStreamType(int32_t nHandle, int32_t* pnPlaybackSeq,
                                                    Get_RecordStream_Time_Info_t* pInfo,
                                                    orvex_stream_type_e nStreamType,
                                                    pfnMediaDataCallback pfnCallback,
                                                    void* pUserParam, int32_t nTimeout,
                                                    int32_t nParam1, int32_t nParam2);

// Pause, resume, change speed, seek and close a playback stream.
ORVEX_API int32_t ORVEX_PauseRecordStreamBySeq(int32_t nHandle, int32_t nPlaybackSeq,
                                               int32_t nTimeout);
ORVEX_API int32_t ORVEX_ResumeRecordStreamBySeq(int32_t nHandle, int32_t nPlaybackSeq,
                                                int32_t nTimeout);
ORVEX_API int32_t ORVEX_SetRecordStreamSpeed(int32_t nHandle, int32_t nPlaybackSeq,
                                             orvex_playback_speed_e nSpeed, int32_t nTimeout);
ORVEX_API int32_t ORVEX_SeekRecordStreamBySeq(int32_t nHandle, int32_t nPlaybackSeq,
                                              uint64_t uSeekBegin, uint64_t uSeekEnd,
                                              int32_t nTimeout);
ORVEX_API int32_t ORVEX_CloseRecordStreamBySeq(int32_t nHandle, int32_t nPlaybackSeq,
                                               int32_t nTimeout);

// Close all playback streams of a camera.
ORVEX_API int32_t ORVEX_CloseRecordStreamByCameraId(int32_t nHandle, const char* szCameraId,
                                                    int32_t nTimeout);

// ==========================================================================================
// Talk and broadcast
// ==========================================================================================

// Open a talk session; its sequence number is returned in *pnTalkSeq and the device's audio
// is delivered to pfnCallback.
ORVEX_API int32_t ORVEX_GetTalkStream(int32_t nHandle, int32_t* pnTalkSeq,
                                      Get_TalkStream_Info_t* pInfo,
                                      pfnMediaDataCallback pfnCallback, void* pUserParam,
                                      int32_t nTimeout);

// Close a talk session by sequence number or by camera.
ORVEX_API int32_t ORVEX_CloseTalkStreamBySeq(int32_t nHandle, int32_t nTalkSeq, int32_t nTimeout);
ORVEX_API int32_t ORVEX_CloseTalkStreamByCameralId(int32_t nHandle, const char* szCameraId,
                                                   int32_t nTimeout);

// Audio entry point of the open talk session: *pFun receives a pAudioCallFunction and
// *pUserParam its user data.
ORVEX_API int32_t ORVEX_GetSdkAudioCallbackInfo(int32_t nHandle, void** pFun, void** pUserParam);

// Start a broadcast to the cameras described by szJson (sequence number in *pnTalkSeq;
// pfnCallback may be null) and close it again.
ORVEX_API int32_t ORVEX_StartBroadcast(int32_t nHandle, int32_t* pnTalkSeq, const char* szJson,
                                       pfnMediaDataCallback pfnCallback, void* pUserParam,
                                       int32_t nTimeout);
ORVEX_API int32_t ORVEX_CloseBroadcastStream(int32_t nHandle, const char* szJson, int32_t nTalkSeq,
                                             int32_t nTimeout);

// ==========================================================================================
// PTZ control
// ==========================================================================================

// Move, operate the lens, point at a position, lock, and send extended commands.
ORVEX_API int32_t ORVEX_PtzDirection(int32_t nHandle, Ptz_Direct_Info_t* pInfo, int32_t nTimeout);
ORVEX_API int32_t ORVEX_PtzCameraOperation(int32_t nHandle, Ptz_Operation_Info_t* pInfo,
                                           int32_t nTimeout);
ORVEX_API int32_t ORVEX_PtzSit(int32_t nHandle, Ptz_Sit_Info_t* pInfo, int32_t nTimeout);
ORVEX_API int32_t ORVEX_PtzLockCamera(int32_t nHandle, Ptz_Lock_Info_t* pInfo, int32_t nTimeout);
ORVEX_API int32_t ORVEX_PtzExtendCommand(int32_t nHandle, Ptz_Extend_Command_Info_t* pInfo,
                                         int32_t nTimeout);

// Switch the light or the rain brush on or off.
ORVEX_API int32_t ORVEX_PtzLightControl(int32_t nHandle, Ptz_Open_Command_Info_t* pInfo,
                                        int32_t nTimeout);
ORVEX_API int32_t ORVEX_PtzRainBrushControl(int32_t nHandle, Ptz_Open_Command_Info_t* pInfo,
                                            int32_t nTimeout);

// List the preset points of a camera; go to, add or delete one.
ORVEX_API int32_t ORVEX_QueryPrePoint(int32_t nHandle, Ptz_Prepoint_Info_t* pInfo,
                                      int32_t nTimeout);
ORVEX_API int32_t ORVEX_PtzPrePointOperation(int32_t nHandle, Ptz_Prepoint_Operation_Info_t* pInfo,
                                             int32_t nTimeout);

// ==========================================================================================
// Alarm subscription and enabling
// ==========================================================================================

// Register or unregister a phone for pushed alarm notifications.
ORVEX_API int32_t ORVEX_PhoneSubscribeAlarm(int32_t nHandle, orvex_phone_subscribe_alarm_t* pInfo,
                                            int32_t nTimeout);

// Enable alarm reception for the given sources (by device or by department) or switch it
// off. The source arrays are only read during the call.
ORVEX_API int32_t ORVEX_EnableAlarm(int32_t nHandle, Alarm_Enable_Info_t* pInfo, int32_t nTimeout);
ORVEX_API int32_t ORVEX_EnableAlarmByDepartment(int32_t nHandle, Alarm_Enable_By_Dep_Info_t* pInfo,
                                                int32_t nTimeout);
ORVEX_API int32_t ORVEX_DisableAlarm(int32_t nHandle, int32_t nTimeout);

// ==========================================================================================
// Alarm history
// ==========================================================================================

// Count the alarms matching a query, then fetch nQueryCount of them from position
// nFirstNum into pAlarmInfo.
ORVEX_API int32_t ORVEX_QueryAlarmCount(int32_t nHandle, Alarm_Query_Info_t* pInfo,
                                        int32_t* pnCount, int32_t nTimeout);
ORVEX_API int32_t ORVEX_QueryAlarmInfo(int32_t nHandle, Alarm_Query_Info_t* pQueryInfo,
                                       Alarm_Info_t* pAlarmInfo, int32_t nFirstNum,
                                       int32_t nQueryCount, int32_t nTimeout);

// ==========================================================================================
// Alarm schemes and alarm reporting
// ==========================================================================================

// Count the alarm schemes, list up to nCount of them into pInfo, save one.
ORVEX_API int32_t ORVEX_GetAlarmSchemeCount(int32_t nHandle, uint32_t* pnCount, int32_t nTimeout);
ORVEX_API int32_t ORVEX_GetAlarmSchemeList(int32_t nHandle, AlarmSchemeInfo_t* pInfo,
                                           int32_t nCount, int32_t nTimeout);
ORVEX_API int32_t ORVEX_SaveAlarmScheme(int32_t nHandle, AlarmSchemeInfo_t* pInfo,
                                        int32_t nTimeout);

// Raise an alarm of the client's own on the platform.
ORVEX_API int32_t ORVEX_SendAlarmToServer(int32_t nHandle, Client_Alarm_Info_t* pInfo,
                                          int32_t nTimeout);

// ==========================================================================================
// Device lists and status
// ==========================================================================================

// Device list and devices' information as text: first the size in bytes, then the text
// (at most nLen bytes).
ORVEX_API int32_t ORVEX_GetDeviceListLen(int32_t nHandle, int32_t* pnLen, int32_t nTimeout);
ORVEX_API int32_t ORVEX_GetDeviceListStr(int32_t nHandle, char* szDevList, int32_t nLen,
                                         int32_t nTimeout);
ORVEX_API int32_t ORVEX_GetDevicesInfoLen(int32_t nHandle, int32_t* pnLen);
ORVEX_API int32_t ORVEX_GetDevicesInfoStr(int32_t nHandle, char* szDevicesInfo, int32_t nLen);

// Online state of a channel and type of a device, answered from the loaded data.
ORVEX_API int32_t ORVEX_GetChannelStatus(int32_t nHandle, const char* szCameraId,
                                         orvex_dev_status_e* pStatus);
ORVEX_API int32_t ORVEX_GetDeviceTypeByDevId(int32_t nHandle, const char* szDeviceId,
                                             orvex_dev_type_e* pDevType);

// ==========================================================================================
// Alarm hosts
// ==========================================================================================

// Send a command to a video alarm host channel or to a network alarm host.
ORVEX_API int32_t ORVEX_ControlVideoAlarmHost(int32_t nHandle, const char* szDeviceId,
                                              int32_t nChannelId, int32_t nControlType,
                                              int32_t nTimeout);
ORVEX_API int32_t ORVEX_ControlNetAlarmHostCmd(int32_t nHandle, const char* szId, int32_t nOptType,
                                               int32_t nControlType, int64_t nStartTime,
                                               int64_t nEndTime, int32_t nTimeout);

// Alarm-input channels of a device.
ORVEX_API int32_t ORVEX_GetAlarmInChannelInfo(int32_t nHandle, Get_AlarmInChannel_Info_t* pInfo);

// Zones of a network alarm host: their number, their state queried from the platform, and
// the state the library already holds (nChannelCount records each).
ORVEX_API int32_t ORVEX_QueryNetAlarmHostChannelCount(int32_t nHandle, const char* szDeviceId,
                                                      int32_t* pnCount, int32_t nTimeout);
ORVEX_API int32_t ORVEX_QueryNetAlarmHostStatus(int32_t nHandle, const char* szDeviceId,
                                                int32_t nChannelCount,
                                                orvex_AHostDefenceStatus_t* pInfo,
                                                int32_t nTimeout);
ORVEX_API int32_t ORVEX_GetNetAlarmHostStatus(int32_t nHandle, int32_t nChannelCount,
                                              orvex_AHostDefenceStatus_t* pInfo);

// ==========================================================================================
// Video wall
// ==========================================================================================

// Number of video walls, then the walls; number of screens of a wall, then the screens.
ORVEX_API int32_t ORVEX_GetTvWallListCount(int32_t nHandle, uint32_t* pnCount, int32_t nTimeout);
ORVEX_API int32_t ORVEX_GetTvWallList(int32_t nHandle, TvWall_List_Info_t* pInfo);
ORVEX_API int32_t ORVEX_GetTvWallLayoutCount(int32_t nHandle, uint32_t nTvWallId, uint32_t* pnCount,
                                             int32_t nTimeout);
ORVEX_API int32_t ORVEX_GetTvWallLayout(int32_t nHandle, TvWall_Layout_Info_t* pInfo);

// Put a camera into a window, close a window's source, split a screen, open a window.
ORVEX_API int32_t ORVEX_SetTvWallScreenWindowSource(int32_t nHandle,
                                                    Set_TvWall_Screen_Window_Source_t* pInfo,
                                                    int32_t nTimeout);
ORVEX_API int32_t ORVEX_CloseTvWallScreenWindowSource(int32_t nHandle,
                                                      TvWall_Screen_Close_Source_t* pInfo,
                                                      int32_t nTimeout);
ORVEX_API int32_t ORVEX_SetTvWallScreenSplit(int32_t nHandle, TvWall_Screen_Split_t* pInfo,
                                             int32_t nTimeout);
ORVEX_API int32_t ORVEX_TvWallScreenOpenWindow(int32_t nHandle, TvWall_Screen_Open_Window_t* pInfo,
                                               int32_t nTimeout);

// Clear a whole wall, or the outputs of one decoder on it.
ORVEX_API int32_t ORVEX_ClearTvWallScreen(int32_t nHandle, uint32_t nTvWallId, int32_t nTimeout);
ORVEX_API int32_t ORVEX_ClearTvWallScreenByDecodeId(int32_t nHandle, uint32_t nTvWallId,
                                                    const char* szDecodeId, int32_t nTimeout);

// ==========================================================================================
// Evidence burner and disks
// ==========================================================================================

// Control a device's burner; set the case header and the display names of its form fields.
ORVEX_API int32_t ORVEX_ControlDevBurner(int32_t nHandle, Control_Dev_Burner_Request_t* pInfo,
                                         int32_t nTimeout);
ORVEX_API int32_t ORVEX_SetDevBurnerHeader(int32_t nHandle, DevBurnerInfoHeader_t* pHeader,
                                           TrialFormAttrName_t* pAttrName, int32_t nTimeout);

// Disks of a recorder: ask the device (number of records and the sequence number under
// which the answer is kept), then fetch the answer into pInfo->pDiskInfoList.
ORVEX_API int32_t ORVEX_GetDeviceDiskInfoCount(int32_t nHandle, const char* szDeviceId,
                                               int32_t* pnCount, int32_t* pnSequence,
                                               int32_t nTimeout);
ORVEX_API int32_t ORVEX_GetDeviceDiskInfo(int32_t nHandle, int32_t nSequence,
                                          Device_Disk_Info_t* pInfo);

// ==========================================================================================
// JSON and message transport
// ==========================================================================================

// JSON command to the central management module, or for one camera to the device
// management module; the answer is written NUL-terminated into szJsonResult.
ORVEX_API int32_t ORVEX_SendCammandToCMSByJson(int32_t nHandle, const char* szJson,
                                               char* szJsonResult, int32_t nTimeout);
ORVEX_API int32_t ORVEX_SendCammandToDMSByJson(int32_t nHandle, const char* szJson,
                                               const char* szCameraId, char* szJsonResult,
                                               int32_t nTimeout);

// General JSON message of a kind to a module; answers arrive through the general JSON
// callback.
ORVEX_API int32_t ORVEX_GeneralJsonTransport(int32_t nHandle, const char* szJson,
                                             orvex_mdl_type_e nMdlType,
                                             generaljson_trantype_e nTranType, int32_t nTimeout);

// Text message to a group of the short-message service.
ORVEX_API int32_t ORVEX_SendScsMsg(int32_t nHandle, const char* szGroupId, const char* szText,
                                   int32_t nTimeout);

// ==========================================================================================
// Video sharing and on-screen text
// ==========================================================================================

// Share nVideoCount videos with nUserCount users, with a message.
ORVEX_API int32_t ORVEX_ShareVideo(int32_t nHandle, ShareVideoInfo* pInfo, int32_t nVideoCount,
                                   int32_t* pUserIds, int32_t nUserCount, const char* szMsg,
                                   int32_t nTimeout);

// Send on-screen text to a device.
ORVEX_API int32_t ORVEX_SendOSDInfo(int32_t nHandle, Send_OSDInfo_t* pInfo, int32_t nTimeout);

// ==========================================================================================
// Doors, linked resources and NVR channel states
// ==========================================================================================

// Send a command to a door.
ORVEX_API int32_t ORVEX_SetDoorCmd(int32_t nHandle, SetDoorCmd_Request_t* pInfo, int32_t nTimeout);

// Link-resource XML: first its size in bytes, then the text into pInfo->pXmlData.
ORVEX_API int32_t ORVEX_QueryLinkResource(int32_t nHandle, uint32_t* pnLen, int32_t nTimeout);
ORVEX_API int32_t ORVEX_GetLinkResource(int32_t nHandle, GetLinkResource_Responce_t* pInfo);

// Ask the platform to report the channel states of an NVR through the NVR channel status
// callback.
ORVEX_API int32_t ORVEX_QueryNVRChnlStatus(int32_t nHandle, const char* szDeviceId,
                                           int32_t nTimeout);

// ==========================================================================================
// GPS, vehicle bays and people counting
// ==========================================================================================

// Last known GPS states as XML: first the size in bytes, then the text (at most nLen bytes).
ORVEX_API int32_t ORVEX_AskForLastGpsStatusXMLStrCount(int32_t nHandle, int32_t* pnLen,
                                                       int32_t nTimeout);
ORVEX_API int32_t ORVEX_AskForLastGpsStatusXMLStr(int32_t nHandle, char* szBuffer, int32_t nLen);

// Subscribe to (or cancel) vehicle records of bay cameras; records arrive through the bay
// vehicle callback.
ORVEX_API int32_t ORVEX_SubscribeBayCarInfo(int32_t nHandle, Subscribe_Bay_Car_Info_t* pInfo,
                                            int32_t nTimeout);

// People counting of a camera: start a query (its sequence number and the number of rows are
// returned), fetch nCount rows from nIndex into pInfo, stop the query.
ORVEX_API int32_t ORVEX_QueryPersonCount(int32_t nHandle, const char* szCameraId,
                                         uint32_t* pnQuerySeq, uint32_t* pnTotalCount,
                                         uint32_t nStartTime, uint32_t nEndTime,
                                         int32_t nGranularity, int32_t nTimeout);
ORVEX_API int32_t ORVEX_QueryPersonCountBypage(int32_t nHandle, const char* szCameraId,
                                               uint32_t nQuerySeq, uint32_t nIndex, uint32_t nCount,
                                               Person_Count_Info_t* pInfo, int32_t nTimeout);
ORVEX_API int32_t ORVEX_StopQueryPersonCount(int32_t nHandle, const char* szCameraId,
                                             uint32_t nQuerySeq, int32_t nTimeout);

}  // extern "C"
