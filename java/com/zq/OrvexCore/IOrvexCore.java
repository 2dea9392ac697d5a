package com.zq.OrvexCore;

import com.zq.OrvexCore.TvWall.Set_TvWall_Screen_Window_Source_t;
import com.zq.OrvexCore.TvWall.TvWall_Layout_Info_t;
import com.zq.OrvexCore.TvWall.TvWall_List_Info_t;
import com.zq.OrvexCore.TvWall.TvWall_Screen_Close_Source_t;
import com.zq.OrvexCore.TvWall.TvWall_Screen_Open_Window_t;
import com.zq.OrvexCore.TvWall.TvWall_Screen_Split_t;

/**
 * Java entry points of the surveillance client library: one static native method per library
 * function, of the same name.
 *
 * <p>Every method but {@link #ORVEX_HasLogicOrg} returns the result code of the call: 0 on success,
 * otherwise the client library's error code, or one of the bridge's own codes 1009 (invalid
 * parameter), 1999 (a JNI reference could not be made) and 1002 (out of memory). The first argument
 * of every method but {@link #ORVEX_Create} is the client instance handle that {@code ORVEX_Create}
 * returned. Text crosses as {@code byte[]} holding the bytes of a C string (see {@link OrvexText});
 * results are written into the value objects and holders that the caller passes in, normally only
 * when the call succeeds.
 *
 * <p>Listener parameters are typed {@link Object}: any object whose class has a public method
 * {@code invoke} with the parameter list of the kind's listener interface (such as {@link
 * ORVEXStatusCallback} or {@link MediaDataCallback}) is accepted. Registering a listener for a
 * kind replaces the previous one; registering null switches the kind off. Events are delivered on
 * the client library's own threads, each attached to the virtual machine for one event only. A
 * registered listener stays reachable for the rest of the process, even after it was replaced or
 * switched off.
 *
 * <p>Loading this class loads the native bridge. If the system property {@value
 * #LIBRARY_PROPERTY} is set to a non-empty value, it is taken as the absolute path of the bridge's
 * shared library and loaded with {@link System#load(String)}; otherwise the library {@value
 * #LIBRARY_NAME} (file {@code libOrvexCoreJni.so}) is looked up on {@code java.library.path} with
 * {@link System#loadLibrary(String)}.
 */
public final class IOrvexCore {
    /** System property naming the absolute path of the native bridge library. */
    public static final String LIBRARY_PROPERTY = "orvex.jni.library";

    /** Name of the native bridge library for {@link System#loadLibrary(String)}. */
    public static final String LIBRARY_NAME = "OrvexCoreJni";

    static {
        String path = System.getProperty(LIBRARY_PROPERTY);
        if (path != null && !path.isEmpty()) {
            System.load(path);
        } else {
            System.loadLibrary(LIBRARY_NAME);
        }
    }

    private IOrvexCore() {
    }

    // ---------------------------------------------------------------------------------------
    // Client instance and diagnostics
    //   natives: core_jni/IOrvexCore_session.cpp
    // ---------------------------------------------------------------------------------------

    /**
     * Creates a client instance of the given type (1 = server) and returns its handle in {@code
     * jbReturnValue}.
     */
    public static native int ORVEX_Create(int nType, Return_Value_Info_t jbReturnValue);

    /** Destroys a client instance. */
    public static native int ORVEX_Destroy(int nPDLLHandle);

    /** Switches the client library's debug log to the named file. */
    public static native int ORVEX_SetLog(int nPDLLHandle, byte[] jbFileName);

    /** Starts the client library's monitor output to the named file or target. */
    public static native int ORVEX_StartMonitor(int nPDLLHandle, byte[] jbFileName);

    /** Chooses whether device information is fetched uncompressed (0) or compressed (1). */
    public static native int ORVEX_SetCompressType(int jiHandle, int jiCompressType);

    // ---------------------------------------------------------------------------------------
    // Login and user account
    //   natives: core_jni/IOrvexCore_session.cpp
    // ---------------------------------------------------------------------------------------

    /** Logs in to the platform server. */
    public static native int ORVEX_Login(int jiHandle, Login_Info_t jbloginInfo, int jiTimeout);

    /** Logs out of the platform server. */
    public static native int ORVEX_Logout(int jiHandle, int jiTimeout);

    /** Returns the logged-in user's identifier in {@code jbReturnValue}. */
    public static native int ORVEX_GetUserID(int jiHandle, Return_Value_Info_t jbReturnValue);

    /** Returns the logged-in user's level in {@code jbReturnValue}. */
    public static native int ORVEX_GetUserLevel(int jiHandle, Return_Value_Info_t jbReturnValue);

    /** Changes the logged-in user's password. */
    public static native int ORVEX_ChangeUserPassword(
            int jiHandle, byte[] jbOldPsw, byte[] jbNewPsw, int jiTimeOut);

    /**
     * Reads the address of the electronic map server; the object is written even when the call
     * fails.
     */
    public static native int ORVEX_GetMapAddrInfo(
            int jiHandle, Config_Emap_Addr_Info_t jbMapAddrInfo, int jiTimeOut);

    /** Reads the logged-in user's account data. */
    public static native int ORVEX_GetUserInfo(
            int jiHandle, ORVEX_UserInfo_t joUserInfo, int jiTimeout);

    /** Reads the logged-in user's organisation description as a string. */
    public static native int ORVEX_GetUserOrgInfo(
            int jiHandle, GetUserOrgInfo joUserOrgInfo, int jiTimeout);

    // ---------------------------------------------------------------------------------------
    // Organisation tree loading and export
    //   natives: core_jni/IOrvexCore_catalogue.cpp
    // ---------------------------------------------------------------------------------------

    /**
     * Loads the whole organisation tree and returns the length of its text export in {@code
     * jbReturnValue}.
     */
    public static native int ORVEX_LoadDGroupInfo(
            int jiHandle, Return_Value_Info_t jbReturnValue, int jiTimeout);

    /**
     * Loads the organisation of one type and returns the number of nodes loaded in {@code
     * jbReturnValue}.
     */
    public static native int ORVEX_LoadOrgInfoByType(
            int jiHandle, int jiType, Return_Value_Info_t jbReturnValue, int jiTimeout);

    /**
     * Loads one layer of the organisation tree and returns the length of its text export in {@code
     * jbReturnValue}.
     */
    public static native int ORVEX_LoadDGroupInfoLayered(
            int jiHandle,
            Load_Dep_Info_t jbDepInfo,
            Return_Value_Info_t jbReturnValue,
            int jiTimeout);

    /** Copies {@code jiGroupLen} bytes of the loaded tree's text export into {@code jbGroupBuf}. */
    public static native int ORVEX_GetDGroupStr(
            int jiHandle, byte[] jbGroupBuf, int jiGroupLen, int jiTimeout);

    /** Reads the root group of the loaded tree; the object is written even when the call fails. */
    public static native int ORVEX_GetDGroupRootInfo(int jiHandle, Dep_Info_t jbRootInfo);

    /**
     * Reads the numbers of child groups, devices and channels under a group; written even when the
     * call fails.
     */
    public static native int ORVEX_GetDGroupCount(
            int jiHandle, Get_Dep_Count_Info_t jbDepCountInfo);

    // ---------------------------------------------------------------------------------------
    // Group nodes and devices
    //   natives: core_jni/IOrvexCore_catalogue.cpp
    // ---------------------------------------------------------------------------------------

    /** Reads the child groups and devices of a group into the caller's pre-filled arrays. */
    public static native int ORVEX_GetDGroupInfo(int jiHandle, Get_Dep_Info_t jbGetDepInfo);

    /** Reads one device by its identifier. */
    public static native int ORVEX_GetDeviceInfoExById(
            int jiHandle, byte[] jbDevId, Device_Info_Ex_t joDevInfoEx);

    // ---------------------------------------------------------------------------------------
    // Channels
    //   natives: core_jni/IOrvexCore_catalogue.cpp
    // ---------------------------------------------------------------------------------------

    /** Reads the encoder channels of a device, short form, into the caller's pre-filled array. */
    public static native int ORVEX_GetChannelInfo(
            int jiHandle, Get_Channel_Info_t jbGetChannelInfo);

    /**
     * Reads the encoder channels of a device, extended form, into the caller's pre-filled array.
     */
    public static native int ORVEX_GetChannelInfoEx(
            int jiHandle, Get_Channel_Info_Ex_t jbGetChannelInfo);

    /** Returns the number of encoder channels of a device in {@code jbEncChannelCount}. */
    public static native int ORVEX_GetEncChannelCount(
            int jiHandle, byte[] jbDeviceID, Return_Value_Info_t jbEncChannelCount);

    /** Returns the type of a channel in {@code jbUnitType}. */
    public static native int ORVEX_GetChnlType(
            int jiHandle, byte[] jbCameraId, Return_Value_Info_t jbUnitType);

    /** Reads the stream type of one unit of a device. */
    public static native int ORVEX_GetDevStreamType(
            int jiHandle, Get_Dev_StreamType_Info_t jbGetDevStreamType);

    /** Reads one channel, extended form, by its identifier. */
    public static native int ORVEX_GetChannelInfoById(
            int jiHandle, byte[] jbCameraId, Enc_Channel_Info_Ex_t jbGetChannelInfo);

    // ---------------------------------------------------------------------------------------
    // Logical organisation
    //   natives: core_jni/IOrvexCore_catalogue.cpp
    // ---------------------------------------------------------------------------------------

    /** Tells whether the platform keeps a logical organisation tree. */
    public static native boolean ORVEX_HasLogicOrg(int jiHandle);

    /** Reads the root department of the logical organisation. */
    public static native int ORVEX_GetLogicRootDepInfo(int jiHandle, Dep_Info_Ex_t jbDepInfoEx);

    /**
     * Returns the number of nodes of one kind (0 department, 1 device, 2 channel) under a
     * department.
     */
    public static native int ORVEX_GetLogicDepNodeNum(
            int jiHandle, byte[] jbDepCoding, int jiNodeType, Return_Value_Info_t jbDepNodeNum);

    /** Reads the sub-department with the given index of a department. */
    public static native int ORVEX_GetLogicSubDepInfoByIndex(
            int jiHandle, byte[] jbDepCoding, int jiIndex, Dep_Info_Ex_t jbDepInfoEx);

    /**
     * Returns the identifier of the n-th device or channel node of a department in {@code
     * jbCodeID}.
     */
    public static native int ORVEX_GetLogicID(
            int jiHandle,
            byte[] jbDepCoding,
            int jiIndex,
            boolean jboolChannel,
            Return_Value_ByteArray_t jbCodeID);

    // ---------------------------------------------------------------------------------------
    // Listener registration (a null listener switches the kind off)
    //   natives: core_jni/IOrvexCore_listeners.cpp
    // ---------------------------------------------------------------------------------------

    /** Registers the connection-status listener ({@link ORVEXStatusCallback}). */
    public static native int ORVEX_SetORVEXStatusCallback(int jiHandle, Object jbStatusCallback);

    /** Registers the device-change listener ({@link ORVEXDeviceChangeCallback}). */
    public static native int ORVEX_SetORVEXDeviceChangeCallback(
            int jiHandle, Object jbDeviceChangeCallback);

    /** Registers the device-status listener ({@link ORVEXDevStatusCallback}). */
    public static native int ORVEX_SetORVEXDeviceStatusCallback(
            int jiHandle, Object jbDevStatusCallback);

    /** Registers the alarm listener ({@link ORVEXAlarmCallback}). */
    public static native int ORVEX_SetORVEXAlarmCallback(int jiHandle, Object jbAlarmCallback);

    /** Registers the talk-parameter listener ({@link ORVEXTalkParamCallback}). */
    public static native int ORVEX_SetORVEXTalkParamCallback(
            int jiHandle, Object jbTalkParamCallback);

    /** Registers the remote-snapshot listener ({@link ORVEXRemoteDeviceSnapCallback}). */
    public static native int ORVEX_SetORVEXRemoteDeviceSnapCallback(
            int jiHandle, Object jbRemoteDeviceSnapCallback);

    /**
     * Registers the video-alarm-host status listener ({@link ORVEXVideoAlarmHostStatusCallback}).
     */
    public static native int ORVEX_SetVideoAlarmHostStatusCallback(
            int jiHandle, Object joVideoAlarmHostStatusCallback);

    /**
     * Registers the network-alarm-host status listener ({@link ORVEXNetAlarmHostStatusCallback}).
     */
    public static native int ORVEX_SetNetAlarmHostStatusCallback(
            int jiHandle, Object joNetAlarmHostStatusCallback);

    /** Registers the broadcast status listener ({@link ORVEXBroadcastReportStatusCallback}). */
    public static native int ORVEX_SetBroadcastReportStatusCallback(
            int jiHandle, Object joBroadcastReportStatusCallback);

    /** Registers the general JSON listener ({@link ORVEXGeneralJsonTransportCallback}). */
    public static native int ORVEX_SetGeneralJsonTransportCallback(
            int jiHandle, Object jbGeneralJsonTransportCallback);

    /** Registers the NVR channel-status listener ({@link ORVEXNVRChnlStatusCallback}). */
    public static native int ORVEX_SetORVEXNVRChnlStatusCallback(
            int jiHandle, Object joORVEXNVRChnlStatusCallback);

    /** Registers the door-status listener ({@link ORVEXPecDoorStarusCallBack}). */
    public static native int ORVEX_SetPecDoorStatusCallback(
            int jiHandle, Object joORVEXPecDoorStarusCallBack);

    /** Registers the shared-video listener ({@link ORVEXShareVideoCallback}). */
    public static native int ORVEX_SetShareVideoCallback(int jiHandle, Object jbShareVideoCallback);

    /** Registers the vehicle-bay record listener ({@link ORVEXGetBayCarInfoCallbackEx}). */
    public static native int ORVEX_SetORVEXGetBayCarInfoCallbackEx(
            int jiHandle, Object jbBayCarInfoEx);

    // ---------------------------------------------------------------------------------------
    // Live streams (frames go to a MediaDataCallback)
    //   natives: core_jni/IOrvexCore_media.cpp
    // ---------------------------------------------------------------------------------------

    /** Opens a live stream and returns its sequence number in {@code jbReturnValue}. */
    public static native int ORVEX_GetRealStream(
            int jiHandle,
            Return_Value_Info_t jbReturnValue,
            Get_RealStream_Info_t jbRealStreamInfo,
            Object cbMediaDataCallback,
            int jiTimeout);

    /** Asks for an external playable address of a camera's live stream. */
    public static native int ORVEX_GetExternalRealStreamUrl(
            int jiHandle,
            Get_ExternalRealStreamUrl_Info_t jbExternalRealStreamUrlInfo,
            int jiTimeout);

    /**
     * Opens a preview stream from the given channel index and returns its sequence number in
     * {@code jbReturnValue}.
     */
    public static native int ORVEX_GetRealStreamPreview(
            int jiHandle,
            Return_Value_Info_t jbReturnValue,
            Get_RealStream_Info_t jbRealStreamInfo,
            int jiStartChannelIndex,
            Object cbMediaDataCallback,
            int jiTimeout);

    /** Closes a live stream by its sequence number. */
    public static native int ORVEX_CloseRealStreamBySeq(int jiHandle, int jiRealSeq, int jiTimeout);

    /** Not supported: always returns -1 without acting; close live streams by sequence number. */
    public static native int ORVEX_CloseRealStreamByCameraId(
            int jiHandle, byte[] jbCameraId, int jiTimeout);

    // ---------------------------------------------------------------------------------------
    // Record search
    //   natives: core_jni/IOrvexCore_media.cpp
    // ---------------------------------------------------------------------------------------

    /** Searches recordings and returns the number found in {@code jbReturnValue}. */
    public static native int ORVEX_QueryRecord(
            int jiHandle,
            Query_Record_Info_t jbQueryRecordInfo,
            Return_Value_Info_t jbReturnValue,
            int jiTimeout);

    /**
     * Searches recordings of one stream type and returns the number found in {@code
     * jbReturnValue}.
     */
    public static native int ORVEX_QueryRecordByStreamType(
            int jiHandle,
            Query_Record_Info_t jbQueryRecordInfo,
            int jiStreamType,
            Return_Value_Info_t jbReturnValue,
            int jiTimeout);

    /** Reads a window of the last search result into the caller's pre-filled record array. */
    public static native int ORVEX_GetRecordInfo(int jiHandle, Record_Info_t jbRecordInfo);

    // ---------------------------------------------------------------------------------------
    // Playback streams (frames go to a MediaDataCallback)
    //   natives: core_jni/IOrvexCore_media.cpp
    // ---------------------------------------------------------------------------------------

    /**
     * Opens playback of one record file and returns its sequence number in {@code jbReturnValue}.
     */
    public static native int ORVEX_GetRecordStreamByFile(
            int jiHandle,
            Return_Value_Info_t jbReturnValue,
            Get_RecordStream_File_Info_t jbRecordInfo,
            Object jbMediaDataCallback,
            int jiTimeout);

    /** Opens playback of a time span and returns its sequence number in {@code jbReturnValue}. */
    public static native int ORVEX_GetRecordStreamByTime(
            int jiHandle,
            Return_Value_Info_t jbReturnValue,
            Get_RecordStream_Time_Info_t jbRecordInfo,
            Object jbMediaDataCallback,
            int jiTimeout);

    /**
     * Opens playback of a time span for one stream type and returns its sequence number in {@code
     * jbReturnValue}.
     */
    public static native int ORVEX_GetRecordStreamByStreamType(
            int jiHandle,
            Return_Value_Info_t jbReturnValue,
            Get_RecordStream_Time_Info_t jbRecordInfo,
            int jiStreamType,
            Object jbMediaDataCallback,
            int jiTimeout);

    /** Pauses a playback stream. */
    public static native int ORVEX_PauseRecordStreamBySeq(
            int jiHandle, int jiPlaybackSeq, int jiTimeout);

    /** Resumes a paused playback stream. */
    public static native int ORVEX_ResumeRecordStreamBySeq(
            int jiHandle, int jiPlaybackSeq, int jiTimeout);

    /** Sets the playback speed (8 is normal; each step up or down doubles or halves it). */
    public static native int ORVEX_SetRecordStreamSpeed(
            int jiHandle, int jiPlaybackSeq, int jiSpeed, int jiTimeout);

    /** Moves a playback stream to a new position. */
    public static native int ORVEX_SeekRecordStreamBySeq(
            int jiHandle, int jiPlaybackSeq, long jiSeekBegin, long jiSeekEnd, int jiTimeout);

    /** Closes a playback stream by its sequence number. */
    public static native int ORVEX_CloseRecordStreamBySeq(
            int jiHandle, int jiPlaybackSeq, int jiTimeout);

    /** Closes the playback streams of a camera. */
    public static native int ORVEX_CloseRecordStreamByCameraId(
            int jiHandle, byte[] jbCameraId, int jiTimeout);

    // ---------------------------------------------------------------------------------------
    // Talk and broadcast
    //   natives: core_jni/IOrvexCore_talk.cpp
    // ---------------------------------------------------------------------------------------

    /**
     * Opens a talk session, whose incoming audio goes to {@code jbFun}, and returns its sequence
     * number.
     */
    public static native int ORVEX_GetTalkStream(
            int jiHandle,
            Return_Value_Info_t jbReturnValue,
            Get_TalkStream_Info_t jbGetInfo,
            Object jbFun,
            int jiTimeout);

    /** Closes a talk session by its sequence number. */
    public static native int ORVEX_CloseTalkStreamBySeq(int jiHandle, int jiTalkSeq, int jiTimeout);

    /** Closes the talk session of a camera. */
    public static native int ORVEX_CloseTalkStreamByCameralId(
            int jiHandle, byte[] jbCameraId, int jiTimeout);

    /** Reads the client library's audio entry point for sending talk audio. */
    public static native int ORVEX_GetSdkAudioCallbackInfo(
            int jiHandle, Audio_Fun_Info_t jbAudioFunInfo);

    /** Encodes one block of 16-bit PCM as G.711 A-law and sends it into the open talk session. */
    public static native int ORVEX_SendAudioData(
            int jiHandle, Send_Audio_Data_Info_t jbSendAudioDataInfo);

    /**
     * Starts an audio broadcast described in JSON and returns its sequence number; {@code jbFun}
     * is not used.
     */
    public static native int ORVEX_StartBroadcast(
            int jiHandle,
            Return_Value_Info_t jbReturnValue,
            byte[] jbJson,
            Object jbFun,
            int jiTimeout);

    /** Stops an audio broadcast. */
    public static native int ORVEX_CloseBroadcastStream(
            int jiHandle, int jiTalkSeq, byte[] jbJson, int jiTimeout);

    // ---------------------------------------------------------------------------------------
    // PTZ motion and device switches
    //   natives: core_jni/IOrvexCore_ptz.cpp
    // ---------------------------------------------------------------------------------------

    /** Starts or stops a pan-tilt movement. */
    public static native int ORVEX_PtzDirection(
            int jiHandle, Ptz_Direct_Info_t jbDirectInfo, int jiTimeout);

    /** Starts or stops a zoom, focus or aperture change. */
    public static native int ORVEX_PtzCameraOperation(
            int jiHandle, Ptz_Operation_Info_t jbOperationInfo, int jiTimeout);

    /** Points a camera at a position. */
    public static native int ORVEX_PtzSit(int jiHandle, Ptz_Sit_Info_t jbSitInfo, int jiTimeout);

    /** Locks or unlocks a camera's pan-tilt control. */
    public static native int ORVEX_PtzLockCamera(
            int jiHandle, Ptz_Lock_Info_t jbLockInfo, int jiTimeout);

    /** Switches a camera's light on or off. */
    public static native int ORVEX_PtzLightControl(
            int jiHandle, Ptz_Open_Command_Info_t jbCmdInfo, int jiTimeout);

    /** Switches a camera's rain brush on or off. */
    public static native int ORVEX_PtzRainBrushControl(
            int jiHandle, Ptz_Open_Command_Info_t jbCmdInfo, int jiTimeout);

    /** Meant to switch the infrared; the bridge sends it as a rain-brush command. */
    public static native int ORVEX_PtzInfraredControl(
            int jiHandle, Ptz_Open_Command_Info_t jbCmdInfo, int jiTimeout);

    /** Sends an extended pan-tilt command. */
    public static native int ORVEX_PtzExtendCommand(
            int jiHandle, Ptz_Extend_Command_Info_t jbExtCmd, int jiTimeout);

    // ---------------------------------------------------------------------------------------
    // Preset points
    //   natives: core_jni/IOrvexCore_ptz.cpp
    // ---------------------------------------------------------------------------------------

    /** Lists the preset points of a camera. */
    public static native int ORVEX_QueryPrePoint(
            int jiHandle, Ptz_Prepoint_Info_t jbPrepointInfo, int jiTimeout);

    /** Goes to, adds or deletes a preset point. */
    public static native int ORVEX_PtzPrePointOperation(
            int jiHandle, Ptz_Prepoint_Operation_Info_t jbPrepointOperationInfo, int jiTimeout);

    // ---------------------------------------------------------------------------------------
    // Alarm subscription and enabling
    //   natives: core_jni/IOrvexCore_alarms.cpp
    // ---------------------------------------------------------------------------------------

    /**
     * Registers or removes a phone for pushed alarms; returns the subscription flag in {@code
     * jbReturnValue}.
     */
    public static native int ORVEX_PhoneSubscribeAlarm(
            int jiHandle,
            orvex_phone_subscribe_alarm_t joUserParam,
            Return_Value_Info_t jbReturnValue,
            int jiTimeout);

    /** Enables alarm reception for the given sources. */
    public static native int ORVEX_EnableAlarm(
            int jiHandle, Alarm_Enable_Info_t joSourceInfo, int jiTimeout);

    /** Enables alarm reception for the given departments. */
    public static native int ORVEX_EnableAlarmByDepartment(
            int jiHandle, Alarm_Enable_By_Dep_Info_t joSourceInfo, int jiTimeout);

    /** Disables alarm reception. */
    public static native int ORVEX_DisableAlarm(int jiHandle, int jiTimeout);

    // ---------------------------------------------------------------------------------------
    // Alarm history
    //   natives: core_jni/IOrvexCore_alarms.cpp
    // ---------------------------------------------------------------------------------------

    /** Counts the alarms that match a filter; the count is written even when the call fails. */
    public static native int ORVEX_QueryAlarmCount(
            int jiHandle,
            Alarm_Query_Info_t joQueryInfo,
            Return_Value_Info_t joCount,
            int jiTimeout);

    /** Reads a page of matching alarms into the caller's pre-filled record array. */
    public static native int ORVEX_QueryAlarmInfo(
            int jiHandle,
            Alarm_Query_Info_t joQueryInfo,
            Alarm_Info_t joAlarmInfo,
            int jiFirstNum,
            int jiQueryCount,
            int jiTimeout);

    // ---------------------------------------------------------------------------------------
    // Alarm schemes and alarm reporting
    //   natives: core_jni/IOrvexCore_alarms.cpp
    // ---------------------------------------------------------------------------------------

    /** Returns the number of alarm schemes in {@code joCount}; written even when the call fails. */
    public static native int ORVEX_GetAlarmSchemeCount(
            int jiHandle, Return_Value_Info_t joCount, int jiTimeout);

    /** Lists the alarm schemes into the array, creating objects for null slots. */
    public static native int ORVEX_GetAlarmSchemeList(
            int jiHandle, AlarmSchemeInfo_t[] jaAlarmSchemeList, int jiTimeout);

    /** Saves a new or changed alarm scheme. */
    public static native int ORVEX_SaveAlarmScheme(
            int jiHandle, AlarmSchemeInfo_t joAlarmScheme, int jiTimeout);

    /** Raises an alarm of this client on the platform. */
    public static native int ORVEX_SendAlarmToServer(
            int jiHandle, Client_Alarm_Info_t jbSendAlarmInfo, int jiTimeout);

    // ---------------------------------------------------------------------------------------
    // Device lists and status
    //   natives: core_jni/IOrvexCore_status_hosts.cpp
    // ---------------------------------------------------------------------------------------

    /** Returns the length of the device list text in {@code jbReturnValue}. */
    public static native int ORVEX_GetDeviceListLen(
            int jiHandle, Return_Value_Info_t jbReturnValue, int jiTimeout);

    /** Copies {@code jiDevListLen} bytes of the device list text into {@code jbDevList}. */
    public static native int ORVEX_GetDeviceListStr(
            int jiHandle, byte[] jbDevList, int jiDevListLen, int jiTimeout);

    /**
     * Returns the length of the devices' information text; the bridge does not bind it by its JNI
     * name, so a call may raise {@link UnsatisfiedLinkError}.
     */
    public static native int ORVEX_GetDevicesInfoLen(
            int jiHandle, Return_Value_Info_t jbReturnValue);

    /**
     * Copies {@code jiDevInfoLen} bytes of the devices' information text into {@code
     * jbDevicesInfo}.
     */
    public static native int ORVEX_GetDevicesInfoStr(
            int jiHandle, byte[] jbDevicesInfo, int jiDevInfoLen, int jiTimeout);

    /**
     * Returns the status of a channel (0 unknown, 1 online, 2 offline) in {@code jbReturnStatus}.
     */
    public static native int ORVEX_GetChannelStatus(
            int jiHandle, byte[] jbCameraId, Return_Value_Info_t jbReturnStatus);

    /** Returns the type of a device in {@code jbReturnStatus}. */
    public static native int ORVEX_GetDeviceTypeByDevId(
            int jiHandle, byte[] jbDeviceId, Return_Value_Info_t jbReturnStatus);

    // ---------------------------------------------------------------------------------------
    // Alarm hosts
    //   natives: core_jni/IOrvexCore_status_hosts.cpp
    // ---------------------------------------------------------------------------------------

    /** Sends a control command to a channel of a video alarm host. */
    public static native int ORVEX_ControlVideoAlarmHost(
            int jiHandle, byte[] jbDeviceId, int jiChannelId, int jiControlType, int jiTimeout);

    /** Sends a command (arm, disarm, bypass over a time span) to a network alarm host. */
    public static native int ORVEX_ControlNetAlarmHostCmd(
            int jiHandle,
            byte[] jbId,
            int jiOpttype,
            int jiControlType,
            long jlStart,
            long jlEnd,
            int jiTimeout);

    /** Reads the alarm-input channels of a device into the caller's pre-filled array. */
    public static native int ORVEX_GetAlarmInChannelInfo(
            int jiHandle, Get_AlarmInChannel_Info_t joAlarmInChnlInfo);

    /**
     * Asks the platform for the zone states of a network alarm host; the array receives new
     * objects.
     */
    public static native int ORVEX_QueryNetAlarmHostStatus(
            int jiHandle,
            byte[] jbDeviceId,
            int jiChannelcount,
            orvex_AHostDefenceStatus_t[] joDefenceStatus,
            int jiTimeout);

    /** Returns the number of zones of a network alarm host in {@code jbChannelCount}. */
    public static native int ORVEX_QueryNetAlarmHostChannelCount(
            int jiHandle, byte[] jbDeviceID, Return_Value_Info_t jbChannelCount, int jiTimeout);

    /**
     * Reads the zone states that the client library holds into the existing elements of the array.
     */
    public static native int ORVEX_GetNetAlarmHostStatus(
            int jiHandle, int jiChannelCount, orvex_AHostDefenceStatus_t[] jaDefenceStatus);

    // ---------------------------------------------------------------------------------------
    // Video wall layout
    //   natives: core_jni/IOrvexCore_wall.cpp
    // ---------------------------------------------------------------------------------------

    /** Returns the number of video walls in {@code joCount}; written even when the call fails. */
    public static native int ORVEX_GetTvWallListCount(
            int jiHandle, Return_Value_Info_t joCount, int jiTimeout);

    /** Reads the video walls into the caller's pre-filled array. */
    public static native int ORVEX_GetTvWallList(int jiHandle, TvWall_List_Info_t joTvWallListInfo);

    /**
     * Returns the number of screens of a wall in {@code joCount}; written even when the call
     * fails.
     */
    public static native int ORVEX_GetTvWallLayoutCount(
            int jiHandle, int jiTvWallId, Return_Value_Info_t joCount, int jiTimeout);

    /** Reads the screens of a wall into the caller's pre-filled array. */
    public static native int ORVEX_GetTvWallLayout(
            int jiHandle, TvWall_Layout_Info_t joTvWallLayoutInfo);

    // ---------------------------------------------------------------------------------------
    // Video wall control
    //   natives: core_jni/IOrvexCore_wall.cpp
    // ---------------------------------------------------------------------------------------

    /** Puts a camera's video into a window of a wall screen. */
    public static native int ORVEX_SetTvWallScreenWindowSource(
            int jiHandle, Set_TvWall_Screen_Window_Source_t joWindowSourceInfo, int jiTimeout);

    /** Closes the source of a window of a wall screen. */
    public static native int ORVEX_CloseTvWallScreenWindowSource(
            int jiHandle, TvWall_Screen_Close_Source_t joCloseSourceInfo, int jiTimeout);

    /** Splits a wall screen into 1, 4, 9 or 16 panes. */
    public static native int ORVEX_SetTvWallScreenSplit(
            int jiHandle, TvWall_Screen_Split_t joSplitInfo, int jiTimeout);

    /**
     * Opens a free window on a wall screen and returns its identifier and stacking order in the
     * object.
     */
    public static native int ORVEX_TvWallScreenOpenWindow(
            int jiHandle, TvWall_Screen_Open_Window_t joOpenWindowInfo, int jiTimeout);

    /** Clears every screen of a wall. */
    public static native int ORVEX_ClearTvWallScreen(int jiHandle, int jiTvWallId, int jiTimeout);

    /** Clears the screens of a wall that one decoder drives. */
    public static native int ORVEX_ClearTvWallScreenByDecodeId(
            int jiHandle, int jiTvWallId, byte[] jbDecodeId, int jiTimeout);

    // ---------------------------------------------------------------------------------------
    // Burner and disks
    //   natives: core_jni/IOrvexCore_burner_disks.cpp
    // ---------------------------------------------------------------------------------------

    /** Sends a command to the disc burner of a recording device. */
    public static native int ORVEX_ControlDevBurner(
            int jiHandle, Control_Dev_Burner_Request_t jbControlDevBurnerRequest, int jiTimeout);

    /** Sets the case header and the form labels that a recording device burns with a recording. */
    public static native int ORVEX_SetDevBurnerHeader(
            int jiHandle,
            DevBurnerInfoHeader_t jbInfoHeader,
            TrialFormAttrName_t jbAttrName,
            int jiTimeout);

    /** Asks a device for its disks; both holders receive the number of disk records. */
    public static native int ORVEX_GetDeviceDiskInfoCount(
            int jiHandle,
            byte[] jbDeviceID,
            Return_Value_Info_t jbInfoCount,
            Return_Value_Info_t jbSequence,
            int jiTimeout);

    /** Reads the disk records kept under a sequence into the caller's pre-filled array. */
    public static native int ORVEX_GetDeviceDiskInfo(
            int jiHandle, int jiSequence, int jiInfoCount, Device_Disk_Info_t jbDiskInfo);

    // ---------------------------------------------------------------------------------------
    // JSON and message transport
    //   natives: core_jni/IOrvexCore_aux.cpp
    // ---------------------------------------------------------------------------------------

    /**
     * Sends a JSON command to the central management module and overwrites {@code jbJsonResult}
     * with the answer.
     */
    public static native int ORVEX_SendCammandToCMSByJson(
            int jiHandle, byte[] jbJson, byte[] jbJsonResult, int jiTimeout);

    /**
     * Sends a JSON command for one camera to the device management module and overwrites {@code
     * jbJsonResult}.
     */
    public static native int ORVEX_SendCammandToDMSByJson(
            int jiHandle, byte[] jbJson, byte[] jbCameraId, byte[] jbJsonResult, int jiTimeout);

    /** Sends a general JSON message of a given kind to a given platform module. */
    public static native int ORVEX_GeneralJsonTransport(
            int jiHandle, byte[] jbJson, int mdltype, int trantype, int jiTimeout);

    /** Sends a text message to a group of the short-message service. */
    public static native int ORVEX_SendScsMsg(
            int jiHandle, byte[] jbGroupId, byte[] jbStrText, int jiTimeout);

    // ---------------------------------------------------------------------------------------
    // Video sharing and on-screen text
    //   natives: core_jni/IOrvexCore_aux.cpp
    // ---------------------------------------------------------------------------------------

    /** Shares videos with platform users together with a message. */
    public static native int ORVEX_ShareVideo(
            int jiHandle,
            ShareVideoInfo[] joVideoInfoArray,
            int[] jiUserIdArray,
            byte[] jbMsg,
            int jiTimeout);

    /** Sends an on-screen text to a device. */
    public static native int ORVEX_SendOSDInfo(
            int jiHandle, Send_OSDInfo_t joOpeInfo, int jiTimeout);

    // ---------------------------------------------------------------------------------------
    // Doors, link resources and NVR channel status
    //   natives: core_jni/IOrvexCore_aux_vehicles.cpp
    // ---------------------------------------------------------------------------------------

    /**
     * Sends a command to a door; the call always waits up to 10 seconds, whatever {@code
     * jiTimeout} says.
     */
    public static native int ORVEX_SetDoorCmd(
            int jiHandle, SetDoorCmd_Request_t joRequest, int jiTimeout);

    /**
     * Returns the size of the link-resource text in {@code joCount}; written even when the call
     * fails.
     */
    public static native int ORVEX_QueryLinkResource(
            int jiHandle, Return_Value_Info_t joCount, int jiTimeout);

    /** Reads the link-resource text into the caller's buffer. */
    public static native int ORVEX_GetLinkResource(
            int jiHandle, GetLinkResource_Responce_t joResponce);

    /**
     * Asks for the channel states of an NVR; they arrive through the NVR channel-status listener.
     */
    public static native int ORVEX_QueryNVRChnlStatus(
            int jiHandle, byte[] jbDeviceId, int jiTimeout);

    // ---------------------------------------------------------------------------------------
    // GPS, vehicle bays and people counting
    //   natives: core_jni/IOrvexCore_aux_vehicles.cpp
    // ---------------------------------------------------------------------------------------

    /** Returns the length of the last-GPS-status text in {@code jbReturnValue}. */
    public static native int ORVEX_AskForLastGpsStatusXMLStrCount(
            int jiHandle, Return_Value_Info_t jbReturnValue, int jiTimeout);

    /** Copies {@code jiGroupLen} bytes of the last-GPS-status text into {@code jbGroupBuf}. */
    public static native int ORVEX_AskForLastGpsStatusXMLStr(
            int jiHandle, byte[] jbGroupBuf, int jiGroupLen);

    /** Subscribes to or cancels the vehicle records of bay cameras. */
    public static native int ORVEX_SubscribeBayCarInfo(
            int jiHandle, Subscribe_Bay_Car_Info_t joSourceInfo, int jiTimeout);

    /** Starts a people-counting query and returns its sequence number and row count. */
    public static native int ORVEX_QueryPersonCount(
            int jiHandle,
            byte[] jbCameraId,
            Return_Value_Info_t joQuerySeq,
            Return_Value_Info_t joTotalCount,
            int jiStartTime,
            int jiEndTime,
            int jiGranularity,
            int jiTimeout);

    /** Reads a page of people-counting rows into the array, creating objects for null slots. */
    public static native int ORVEX_QueryPersonCountBypage(
            int jiHandle,
            byte[] jbCameraId,
            int jiQuerySeq,
            int jiIndex,
            int jiCount,
            Person_Count_Info_t[] jaPersonInfo,
            int jiTimeout);

    /** Ends a people-counting query. */
    public static native int ORVEX_StopQueryPersonCount(
            int jiHandle, byte[] jbCameraId, int jiQuerySeq, int jiTimeout);
}
