// Structures and enumerations of the ORVEX core client library.
//
// The structures are the library's binary interface: member order, widths and array
// lengths are fixed, padding is the natural alignment of x86-64. Every enumeration has
// a fixed 32-bit underlying type so that any value received from the platform or the
// caller is representable.
#pragma once

#include <cstddef>
#include <cstdint>

// ==========================================================================================
// Enumerations
// ==========================================================================================

// --- Instance and logging

// Kind of client instance created by ORVEX_Create.
enum orvex_sdk_type_e : int32_t {
    ORVEX_CORE_SDK_SERVER = 1,
};

// Level of the library's log output.
enum orvex_log_level_e : int32_t {
    ORVEX_LOG_LEVEL_DEBUG = 2,
    ORVEX_LOG_LEVEL_INFO = 4,
    ORVEX_LOG_LEVEL_ERROR = 6,
};

// Whether device information is fetched compressed.
enum orvex_get_devinfo_compress_type_e : int32_t {
    ORVEX_CORE_GET_DEVINFO_BY_UNCOMPRESS = 0,
    ORVEX_CORE_GET_DEVINFO_BY_COMPRESSED = 1,
};

// Login protocol version.
enum orvex_protocol_version_e : int32_t {
    ORVEX_PROTOCOL_VERSION_I = 1,
    ORVEX_PROTOCOL_VERSION_II = 2,
};

// --- Organisation tree and devices

// Extent of a layered group load.
enum orvex_getgroup_operation_e : int32_t {
    ORVEX_CORE_GEN_GETGROUP_OPERATION_ALL = -1,   // the group and everything below it
    ORVEX_CORE_GEN_GETGROUP_OPERATION_SELF = 0,   // the group itself
    ORVEX_CORE_GEN_GETGROUP_OPERATION_CHILD = 1,  // its direct children
};

// Node kinds of the logical organisation.
enum orvex_node_type_e : int32_t {
    ORVEX_CORE_NODE_DEP = 0,      // department
    ORVEX_CORE_NODE_DEV = 1,      // device
    ORVEX_CORE_NODE_CHANNEL = 2,  // channel
};

// Manufacturer code of a device. The values are the platform's own and are
// passed through as they come.
enum orvex_device_factory_type_e : int32_t {};

// Device type. Types are grouped in ranges of 100 (encoders 0-99, alarm devices
// 600-699, door control 700-799, ...); only the commonly used values are named here,
// any other platform value is carried unchanged.
enum orvex_dev_type_e : int32_t {
    DEV_TYPE_DVR = 1,
    DEV_TYPE_IPC = 2,
    DEV_TYPE_NVS = 3,
    DEV_TYPE_NVR = 6,
    DEV_TYPE_ALARMHOST = 601,
    DEV_TYPE_DOORCTRL_DOOR = 701,
};

// Online state of a device or channel.
enum orvex_dev_status_e : int32_t {
    ORVEX_DEV_STATUS_UNKNOW = 0,
    ORVEX_DEV_STATUS_ONLINE = 1,
    ORVEX_DEV_STATUS_OFFLINE = 2,
    ORVEX_CORE_DEVICE_STATUS_ONLINE = 1,   // alias of ORVEX_DEV_STATUS_ONLINE
    ORVEX_CORE_DEVICE_STATUS_OFFLINE = 2,  // alias of ORVEX_DEV_STATUS_OFFLINE
};

// Camera (encoder channel) type.
enum orvex_camera_type_e : int32_t {
    CAMERA_TYPE_NORMAL = 1,
    CAMERA_TYPE_SD = 2,
    CAMERA_TYPE_HALFSD = 3,
    CAMERA_TYPE_EVIDENCE = 4,
    CAMERA_TYPE_NORMAL_HD = 5,
    CAMERA_TYPE_SD_HD = 6,
    CAMERA_TYPE_NORMAL_SIMULATION_SD = 8,
    CAMERA_TYPE_SD_SIMULATION_SD = 9,
    CAMERA_TYPE_HALFSD_SIMULATION_SD = 10,
    CAMERA_TYPE_NORMAL_SIMULATION_HD = 11,
    CAMERA_TYPE_SD_SIMULATION_HD = 12,
    CAMERA_TYPE_HALFSD_SIMULATION_HD = 13,
    CAMERA_TYPE_HALFSD_HD = 14,
};

// --- Media streams

// Whether the platform checks the user's right on the camera.
enum orvex_check_right_e : int32_t {
    ORVEX_CORE_CHECK_RIGHT = 0,
    ORVEX_CORE_NOT_CHECK_RIGHT = 1,
};

// Main or sub stream.
enum orvex_stream_type_e : int32_t {
    ORVEX_CORE_STREAMTYPE_MAIN = 1,
    ORVEX_CORE_STREAMTYPE_SUB = 2,
};

// Media carried by a stream.
enum orvex_media_type_e : int32_t {
    ORVEX_CORE_MEDIATYPE_VIDEO = 1,
    ORVEX_CORE_MEDIATYPE_AUDIO = 2,
    ORVEX_CORE_MEDIATYPE_ALL = 3,
};

// Stream transport.
enum orvex_trans_type_e : int32_t {
    ORVEX_CORE_TRANSTYPE_UDP = 0,
    ORVEX_CORE_TRANSTYPE_TCP = 1,
};

// Packaging of the stream behind an external URL.
enum orvex_trackid_type_e : int32_t {
    ORVEX_CORE_TRACKIDTYPE_RTP = 101,
    ORVEX_CORE_TRACKIDTYPE_PS = 501,
    ORVEX_CORE_TRACKIDTYPE_ORIG = 601,
    ORVEX_CORE_TRACKIDTYPE_ZQ = 701,
    ORVEX_CORE_TRACKIDTYPE_ZQSTD = 801,
    ORVEX_CORE_TRACKIDTYPE_TS = 901,
};

// Codec of a transcoded stream.
enum orvex_videocodec_type_e : int32_t {
    ORVEX_CORE_VIDEOCODEC_H264 = 1,
    ORVEX_CORE_VIDEOCODEC_MPEG4 = 2,
    ORVEX_CORE_VIDEOCODEC_JPEG = 3,
};

// Resolution of a transcoded stream.
enum orvex_resolution_type_e : int32_t {
    ORVEX_CORE_RESOLUTION_1080P = 1,
    ORVEX_CORE_RESOLUTION_130M = 2,
    ORVEX_CORE_RESOLUTION_720P = 3,
    ORVEX_CORE_RESOLUTION_D1 = 4,
    ORVEX_CORE_RESOLUTION_CIF = 5,
    ORVEX_CORE_RESOLUTION_QCIF = 6,
    ORVEX_CORE_RESOLUTION_VGA = 7,
    ORVEX_CORE_RESOLUTION_QVGA = 8,
};

// Where recordings are searched or stored.
enum orvex_recsource_type_e : int32_t {
    ORVEX_CORE_PB_RECSOURCE_ALL = 1,
    ORVEX_CORE_PB_RECSOURCE_DEVICE = 2,
    ORVEX_CORE_PB_RECSOURCE_PLATFORM = 3,
};

// Kind of recording.
enum orvex_record_type_e : int32_t {
    ORVEX_CORE_PB_RECORD_UNKONWN = 0,
    ORVEX_CORE_PB_RECORD_MANUAL = 1,
    ORVEX_CORE_PB_RECORD_ALARM = 2,
    ORVEX_CORE_PB_RECORD_MOTION_DETECT = 3,
    ORVEX_CORE_PB_RECORD_VIDEO_LOST = 4,
    ORVEX_CORE_PB_RECORD_VIDEO_SHELTER = 5,
    ORVEX_CORE_PB_RECORD_TIMER = 6,
    ORVEX_CORE_PB_RECORD_ALL_DAY = 7,
    CENTER_DISK_FULL = 36,
    CENTER_DISK_FAULT = 37,
};

// Playback or download.
enum orvex_pb_mode_e : int32_t {
    ORVEX_CORE_PB_MODE_NORMAL = 1,
    ORVEX_CORE_PB_MODE_DOWNLOAD = 2,
};

// Playback rate; normal speed is 8, each step doubles or halves it.
enum orvex_playback_speed_e : int32_t {
    ORVEX_CORE_PB_SLOW8 = 1,
    ORVEX_CORE_PB_SLOW4 = 2,
    ORVEX_CORE_PB_SLOW2 = 4,
    ORVEX_CORE_PB_NORMAL = 8,
    ORVEX_CORE_PB_FAST2 = 16,
    ORVEX_CORE_PB_FAST4 = 32,
    ORVEX_CORE_PB_FAST8 = 64,
    ORVEX_CORE_PB_FAST16 = 128,
};

// --- Talk

// Audio coding of a talk session.
enum orvex_audio_type_e : int32_t {
    Talk_Coding_Default = 0,
    Talk_Coding_PCM = 1,
    Talk_Coding_G711a = 2,
    Talk_Coding_AMR = 3,
    Talk_Coding_G711u = 4,
    Talk_Coding_G726 = 5,
    Talk_Coding_AAC = 8,
    Talk_Coding_G722 = 101,
    Talk_Coding_G711_MU = 102,
};

// Talk with a whole device or with one channel.
enum orvex_talk_type_e : int32_t {
    Talk_Type_Device = 1,
    Talk_Type_Channel = 2,
};

// Bits per audio sample.
enum orvex_talk_bits_e : int32_t {
    Talk_Audio_Bits_8 = 8,
    Talk_Audio_Bits_16 = 16,
};

// Audio sample rate in Hz.
enum Talk_Sample_Rate_e : int32_t {
    Talk_Audio_Sam_8K = 8000,
    Talk_Audio_Sam_16K = 16000,
    Talk_Audio_Sam_8192 = 8192,
    Talk_Audio_Sam_48k = 48000,
};

// --- PTZ

// PTZ movement direction.
enum orvex_ptz_direct_e : int32_t {
    ORVEX_CORE_PTZ_GO_UP = 1,
    ORVEX_CORE_PTZ_GO_DOWN = 2,
    ORVEX_CORE_PTZ_GO_LEFT = 3,
    ORVEX_CORE_PTZ_GO_RIGHT = 4,
    ORVEX_CORE_PTZ_GO_LEFTUP = 5,
    ORVEX_CORE_PTZ_GO_LEFTDOWN = 6,
    ORVEX_CORE_PTZ_GO_RIGHTUP = 7,
    ORVEX_CORE_PTZ_GO_RIGHTDOWN = 8,
};

// Lens operation: zoom, focus, aperture.
enum orvex_camera_operation_e : int32_t {
    ORVEX_CORE_PTZ_ADD_ZOOM = 0,
    ORVEX_CORE_PTZ_ADD_FOCUS = 1,
    ORVEX_CORE_PTZ_ADD_APERTURE = 2,
    ORVEX_CORE_PTZ_REDUCE_ZOOM = 3,
    ORVEX_CORE_PTZ_REDUCE_FOCUS = 4,
    ORVEX_CORE_PTZ_REDUCE_APERTURE = 5,
};

// PTZ lock command.
enum orvex_ptz_locktype_e : int32_t {
    ORVEX_CORE_PTZ_CMD_LOCK = 1,
    ORVEX_CORE_PTZ_CMD_UNLOCK_ONE = 2,
    ORVEX_CORE_PTZ_CMD_UNLOCK_ALL = 3,
};

// Extended PTZ commands (value 51 has no name).
enum orvex_ptz_extend_cmd_e : int32_t {
    ORVEX_CORE_PTZ_START_AUTO_ROUND = 39,
    ORVEX_CORE_PTZ_STOP_AUTO_ROUND = 40,
    ORVEX_CORE_PTZ_SET_LEFT_SCAN_RANGE = 41,
    ORVEX_CORE_PTZ_SET_RIGHT_SCAN_RANGE = 42,
    ORVEX_CORE_PTZ_START_SCAN = 43,
    ORVEX_CORE_PTZ_STOP_SCAN = 44,
    ORVEX_CORE_PTZ_SET_MODLE_START = 45,
    ORVEX_CORE_PTZ_SET_MODLE_CANCEL = 46,
    ORVEX_CORE_PTZ_RUN_MODLE = 47,
    ORVEX_CORE_PTZ_STOP_MODLE = 48,
    ORVEX_CORE_PTZ_CLEAR_MODLE = 49,
    ORVEX_CORE_PTZ_UPDOWN = 50,
    ORVEX_CORE_PTZ_OPEN_ASSISTANT_POINT = 52,
    ORVEX_CORE_PTZ_CLOSE_ASSISTANT_POINT = 53,
    ORVEX_CORE_PTZ_OPEN_IPC_MENU = 54,
    ORVEX_CORE_PTZ_CLOSE_IPC_MENU = 55,
    ORVEX_CORE_PTZ_MENU_ASSURE = 56,
    ORVEX_CORE_PTZ_MENU_CALCEL = 57,
    ORVEX_CORE_PTZ_MENU_UP = 58,
    ORVEX_CORE_PTZ_MENU_DOWN = 59,
    ORVEX_CORE_PTZ_MENU_LEFT = 60,
    ORVEX_CORE_PTZ_MENU_RIGHT = 61,
};

// Preset point operation.
enum orvex_ptz_prepoint_cmd_e : int32_t {
    ORVEX_CORE_PTZ_PRESET_LOCATION = 1,  // go to the preset
    ORVEX_CORE_PTZ_PRESET_ADD = 2,
    ORVEX_CORE_PTZ_PRESET_DEL = 3,
};

// --- Alarms

// Alarm type. The platform defines many more values in ranges delimited by
// ..._BEGIN/..._END markers; only the basic ones are named here and every other
// value is carried unchanged.
enum orvex_alarm_type_e : int32_t {
    ORVEX_CORE_ALARM_TYPE_Unknown = 0,
    ORVEX_CORE_ALARM_TYPE_VIDEO_LOST = 1,
    ORVEX_CORE_ALARM_TYPE_EXTERNAL_ALARM = 2,
    ORVEX_CORE_ALARM_TYPE_MOTION_DETECT = 3,
    ORVEX_CORE_ALARM_TYPE_VIDEO_SHELTER = 4,
    ORVEX_CORE_ALARM_TYPE_DISK_FULL = 5,
    ORVEX_CORE_ALARM_TYPE_DISK_FAULT = 6,
};

// Alarm occurrence or disappearance.
enum orvex_event_type_e : int32_t {
    ALARM_EVENT_OCCUR = 1,
    ALARM_EVENT_DISAPPEAR = 2,
};

// Handling state of an alarm (single bits).
enum orvex_alarm_dealwith_e : int32_t {
    ALARM_DEALWITH_PENDING = 1,
    ALARM_DEALWITH_RESOLVE = 2,
    ALARM_DEALWITH_SUGGESTTED = 4,
    ALARM_DEALWITH_IGNORED = 8,
    ALARM_DEALWITH_UNPROCESSED = 16,
};

// State of an alarm scheme.
enum orvex_alarmScheme_status_e : int32_t {
    ALARM_SCHEME_STATUS_CLOSE = 0,
    ALARM_SCHEME_STATUS_OPEN = 1,
};

// --- Video wall

// Number of panes a wall screen is split into.
enum tvwall_screen_split_caps : int32_t {
    Screen_Split_1 = 1,
    Screen_Split_4 = 4,
    Screen_Split_9 = 9,
    Screen_Split_16 = 16,
};

// --- Burner

// Burner control command.
enum Core_EnumControlBurnerCmd : int32_t {
    Cmd_StartBurn = 1,
    Cmd_PauseBurn = 2,
    Cmd_ContinueBurn = 3,
    Cmd_StopBurn = 4,
    Cmd_ChangeCD = 5,
};

// --- Transport, doors

// Target module of a general JSON message.
enum orvex_mdl_type_e : int32_t {
    ORVEX_MDL_UNKNOW = -1,
    ORVEX_MDL_APP = 0,
    ORVEX_MDL_CMS = 1,
    ORVEX_MDL_PCS = 2,
    ORVEX_MDL_DMS = 3,
    ORVEX_MDL_ADS = 4,
    ORVEX_MDL_TRAN = 5,
    ORVEX_MDL_RTSP = 6,
    ORVEX_MDL_FTP = 7,
    ORVEX_MDL_PEC = 8,
    ORVEX_MDL_MGR = 9,
    ORVEX_MDL_AREA = 10,
    ORVEX_MDL_CMS_FORSNVD = 11,
    ORVEX_MDL_SCS = 12,
    ORVEX_MDL_COUNT = 13,
};

// Kind of a general JSON message.
enum generaljson_trantype_e : int32_t {
    GENERALJSON_TRAN_UNKNOW = -1,
    GENERALJSON_TRAN_REQUEST = 0,
    GENERALJSON_TRAN_RESPONSE = 1,
    GENERALJSON_TRAN_NOTIFY = 2,
    GENERALJSON_TRAN_COUNT = 3,
};

// Door state reported by access-control devices.
enum orvex_door_status_e : int32_t {
    Door_Close = 0,
    Door_Open = 1,
    Door_DisConn = 2,
};

// Door command.
enum Core_EnumSetDoorCmd : int32_t {
    CORE_DOOR_CMD_PROGARM = 0,
    CORE_DOOR_CMD_OPEN = 5,
    CORE_DOOR_CMD_CLOSE = 6,
    CORE_DOOR_CMD_ALWAYS_OPEN = 7,
    CORE_DOOR_CMD_ALWAYS_CLOSE = 8,
    CORE_DOOR_CMD_HOLIDAY_MAG_OPEN = 9,
    CORE_DOOR_CMD_HOLIDAY_MAG_CLOSE = 10,
    CORE_DOOR_CMD_RESET = 11,
    CORE_DOOR_CMD_HOST_ALWAYS_OPEN = 12,
    CORE_DOOR_CMD_HOST_ALWAYS_CLOSE = 13,
};

// ==========================================================================================
// Structures
// ==========================================================================================

// --- Common

// One integer result.
typedef struct tagReturnValueInfo {
    int nReturnValue;
} Return_Value_Info_t;
static_assert(sizeof(Return_Value_Info_t) == 4, "Return_Value_Info_t size");
static_assert(offsetof(Return_Value_Info_t, nReturnValue) == 0,
              "Return_Value_Info_t::nReturnValue offset");

// --- Devices

// One device of the organisation tree.
typedef struct tagDeviceInfoEx {
    char szId[64];                         // device identifier
    char szName[256];                      // device name
    orvex_device_factory_type_e nFactory;  // manufacturer code
    int szModel;                           // device model code (an integer)
    char szUser[64];                       // user name for the device
    char szPassword[64];                   // password for the device
    char szIP[48];                         // address by which the platform reaches the device
    orvex_dev_type_e nDevType;             // device type
    int nPort;                             // port
    int szLoginType;                       // login type code (an integer)
    char szRegID[64];                      // registration identifier
    int nProxyPort;                        // proxy port
    int nUnitNum;                          // number of units of the device
    orvex_dev_status_e nStatus;            // online state
    char szCN[64];
    char szSN[64];              // serial number
    uint64_t nRight;            // rights bit mask of the logged-in user
    char szDevIP[48];           // the device's own address
    int nDevPort;               // the device's own port
    char dev_Maintainer[64];    // maintainer's name
    char dev_MaintainerPh[64];  // maintainer's telephone
    char dev_Location[256];     // location
    char desc[256];             // description
    int nEncChannelChildCount;  // number of encoder channels
    int iAlarmInChannelcount;   // number of alarm-input channels
    int nSort;                  // sort order
    char szCallNum[48];         // call number
} Device_Info_Ex_t;
static_assert(sizeof(Device_Info_Ex_t) == 1480, "Device_Info_Ex_t size");
static_assert(offsetof(Device_Info_Ex_t, szId) == 0, "Device_Info_Ex_t::szId offset");
static_assert(offsetof(Device_Info_Ex_t, szName) == 64, "Device_Info_Ex_t::szName offset");
static_assert(offsetof(Device_Info_Ex_t, nFactory) == 320, "Device_Info_Ex_t::nFactory offset");
static_assert(offsetof(Device_Info_Ex_t, szModel) == 324, "Device_Info_Ex_t::szModel offset");
static_assert(offsetof(Device_Info_Ex_t, szUser) == 328, "Device_Info_Ex_t::szUser offset");
static_assert(offsetof(Device_Info_Ex_t, szPassword) == 392, "Device_Info_Ex_t::szPassword offset");
static_assert(offsetof(Device_Info_Ex_t, szIP) == 456, "Device_Info_Ex_t::szIP offset");
static_assert(offsetof(Device_Info_Ex_t, nDevType) == 504, "Device_Info_Ex_t::nDevType offset");
static_assert(offsetof(Device_Info_Ex_t, nPort) == 508, "Device_Info_Ex_t::nPort offset");
static_assert(offsetof(Device_Info_Ex_t, szLoginType) == 512,
              "Device_Info_Ex_t::szLoginType offset");
static_assert(offsetof(Device_Info_Ex_t, szRegID) == 516, "Device_Info_Ex_t::szRegID offset");
static_assert(offsetof(Device_Info_Ex_t, nProxyPort) == 580, "Device_Info_Ex_t::nProxyPort offset");
static_assert(offsetof(Device_Info_Ex_t, nUnitNum) == 584, "Device_Info_Ex_t::nUnitNum offset");
static_assert(offsetof(Device_Info_Ex_t, nStatus) == 588, "Device_Info_Ex_t::nStatus offset");
static_assert(offsetof(Device_Info_Ex_t, szCN) == 592, "Device_Info_Ex_t::szCN offset");
static_assert(offsetof(Device_Info_Ex_t, szSN) == 656, "Device_Info_Ex_t::szSN offset");
static_assert(offsetof(Device_Info_Ex_t, nRight) == 720, "Device_Info_Ex_t::nRight offset");
static_assert(offsetof(Device_Info_Ex_t, szDevIP) == 728, "Device_Info_Ex_t::szDevIP offset");
static_assert(offsetof(Device_Info_Ex_t, nDevPort) == 776, "Device_Info_Ex_t::nDevPort offset");
static_assert(offsetof(Device_Info_Ex_t, dev_Maintainer) == 780,
              "Device_Info_Ex_t::dev_Maintainer offset");
static_assert(offsetof(Device_Info_Ex_t, dev_MaintainerPh) == 844,
              "Device_Info_Ex_t::dev_MaintainerPh offset");
static_assert(offsetof(Device_Info_Ex_t, dev_Location) == 908,
              "Device_Info_Ex_t::dev_Location offset");
static_assert(offsetof(Device_Info_Ex_t, desc) == 1164, "Device_Info_Ex_t::desc offset");
static_assert(offsetof(Device_Info_Ex_t, nEncChannelChildCount) == 1420,
              "Device_Info_Ex_t::nEncChannelChildCount offset");
static_assert(offsetof(Device_Info_Ex_t, iAlarmInChannelcount) == 1424,
              "Device_Info_Ex_t::iAlarmInChannelcount offset");
static_assert(offsetof(Device_Info_Ex_t, nSort) == 1428, "Device_Info_Ex_t::nSort offset");
static_assert(offsetof(Device_Info_Ex_t, szCallNum) == 1432, "Device_Info_Ex_t::szCallNum offset");

// --- Login and user

// Login request.
typedef struct tagLoginInfo {
    char szIp[48];   // server address
    uint32_t nPort;  // server port
    char szUsername[64];
    char szPassword[64];
    orvex_protocol_version_e nProtocol;
    uint32_t iType;        // login type
    char szCheckBit[48];   // check code (phone number)
    char szIMEINo[48];     // IMEI of a mobile client
    char szPhonetype[48];  // phone model of a mobile client
} Login_Info_t;
static_assert(sizeof(Login_Info_t) == 332, "Login_Info_t size");
static_assert(offsetof(Login_Info_t, szIp) == 0, "Login_Info_t::szIp offset");
static_assert(offsetof(Login_Info_t, nPort) == 48, "Login_Info_t::nPort offset");
static_assert(offsetof(Login_Info_t, szUsername) == 52, "Login_Info_t::szUsername offset");
static_assert(offsetof(Login_Info_t, szPassword) == 116, "Login_Info_t::szPassword offset");
static_assert(offsetof(Login_Info_t, nProtocol) == 180, "Login_Info_t::nProtocol offset");
static_assert(offsetof(Login_Info_t, iType) == 184, "Login_Info_t::iType offset");
static_assert(offsetof(Login_Info_t, szCheckBit) == 188, "Login_Info_t::szCheckBit offset");
static_assert(offsetof(Login_Info_t, szIMEINo) == 236, "Login_Info_t::szIMEINo offset");
static_assert(offsetof(Login_Info_t, szPhonetype) == 284, "Login_Info_t::szPhonetype offset");

// Address of the electronic map server.
typedef struct tagConfigEmapAddrInfo {
    char szIP[48];
    int nPort;
} Config_Emap_Addr_Info_t;
static_assert(sizeof(Config_Emap_Addr_Info_t) == 52, "Config_Emap_Addr_Info_t size");
static_assert(offsetof(Config_Emap_Addr_Info_t, szIP) == 0, "Config_Emap_Addr_Info_t::szIP offset");
static_assert(offsetof(Config_Emap_Addr_Info_t, nPort) == 48,
              "Config_Emap_Addr_Info_t::nPort offset");

// Account data of the logged-in user.
typedef struct tagUserInfo {
    int iUserId;
    int iUserLevel;
    bool iUserOperFlag;
    char szCoding[128];    // coding of the user's group
    char szCodeName[256];  // name of the user's group
} ORVEX_UserInfo_t;
static_assert(sizeof(ORVEX_UserInfo_t) == 396, "ORVEX_UserInfo_t size");
static_assert(offsetof(ORVEX_UserInfo_t, iUserId) == 0, "ORVEX_UserInfo_t::iUserId offset");
static_assert(offsetof(ORVEX_UserInfo_t, iUserLevel) == 4, "ORVEX_UserInfo_t::iUserLevel offset");
static_assert(offsetof(ORVEX_UserInfo_t, iUserOperFlag) == 8,
              "ORVEX_UserInfo_t::iUserOperFlag offset");
static_assert(offsetof(ORVEX_UserInfo_t, szCoding) == 9, "ORVEX_UserInfo_t::szCoding offset");
static_assert(offsetof(ORVEX_UserInfo_t, szCodeName) == 137, "ORVEX_UserInfo_t::szCodeName offset");

// --- Organisation tree

// Layered load request.
typedef struct tagLoadDepInfo {
    char szCoding[128];                     // group to load
    orvex_getgroup_operation_e nOperation;  // how much of it
} Load_Dep_Info_t;
static_assert(sizeof(Load_Dep_Info_t) == 132, "Load_Dep_Info_t size");
static_assert(offsetof(Load_Dep_Info_t, szCoding) == 0, "Load_Dep_Info_t::szCoding offset");
static_assert(offsetof(Load_Dep_Info_t, nOperation) == 128, "Load_Dep_Info_t::nOperation offset");

// One group (department).
typedef struct tagDepInfo {
    char szCoding[128];
    char szDepName[256];
    int nDepSort;
    char szOrgID[128];
} Dep_Info_t;
static_assert(sizeof(Dep_Info_t) == 516, "Dep_Info_t size");
static_assert(offsetof(Dep_Info_t, szCoding) == 0, "Dep_Info_t::szCoding offset");
static_assert(offsetof(Dep_Info_t, szDepName) == 128, "Dep_Info_t::szDepName offset");
static_assert(offsetof(Dep_Info_t, nDepSort) == 384, "Dep_Info_t::nDepSort offset");
static_assert(offsetof(Dep_Info_t, szOrgID) == 388, "Dep_Info_t::szOrgID offset");

// Counts under one group.
typedef struct tagGetDepCountInfo {
    char szCoding[128];      // in: the group
    uint32_t nDepCount;      // out: child groups
    uint32_t nDeviceCount;   // out: devices
    uint32_t nChannelCount;  // out: channels
} Get_Dep_Count_Info_t;
static_assert(sizeof(Get_Dep_Count_Info_t) == 140, "Get_Dep_Count_Info_t size");
static_assert(offsetof(Get_Dep_Count_Info_t, szCoding) == 0,
              "Get_Dep_Count_Info_t::szCoding offset");
static_assert(offsetof(Get_Dep_Count_Info_t, nDepCount) == 128,
              "Get_Dep_Count_Info_t::nDepCount offset");
static_assert(offsetof(Get_Dep_Count_Info_t, nDeviceCount) == 132,
              "Get_Dep_Count_Info_t::nDeviceCount offset");
static_assert(offsetof(Get_Dep_Count_Info_t, nChannelCount) == 136,
              "Get_Dep_Count_Info_t::nChannelCount offset");

// Contents of one group; the caller owns both arrays.
typedef struct tagGetDepInfo {
    char szCoding[128];  // in: the group
    uint32_t nDepCount;  // in: capacity of pDepInfo; out: groups filled
    Dep_Info_t* pDepInfo;
    uint32_t nDeviceCount;  // in: capacity of pDeviceInfo; out: devices filled
    Device_Info_Ex_t* pDeviceInfo;
} Get_Dep_Info_t;
static_assert(sizeof(Get_Dep_Info_t) == 160, "Get_Dep_Info_t size");
static_assert(offsetof(Get_Dep_Info_t, szCoding) == 0, "Get_Dep_Info_t::szCoding offset");
static_assert(offsetof(Get_Dep_Info_t, nDepCount) == 128, "Get_Dep_Info_t::nDepCount offset");
static_assert(offsetof(Get_Dep_Info_t, pDepInfo) == 136, "Get_Dep_Info_t::pDepInfo offset");
static_assert(offsetof(Get_Dep_Info_t, nDeviceCount) == 144, "Get_Dep_Info_t::nDeviceCount offset");
static_assert(offsetof(Get_Dep_Info_t, pDeviceInfo) == 152, "Get_Dep_Info_t::pDeviceInfo offset");

// One encoder channel (camera).
typedef struct tagEncChannelInfo {
    orvex_camera_type_e nCameraType;
    char szId[64];     // channel identifier
    char szName[256];  // channel name
    int nSort;         // sort order
} Enc_Channel_Info_t;
static_assert(sizeof(Enc_Channel_Info_t) == 328, "Enc_Channel_Info_t size");
static_assert(offsetof(Enc_Channel_Info_t, nCameraType) == 0,
              "Enc_Channel_Info_t::nCameraType offset");
static_assert(offsetof(Enc_Channel_Info_t, szId) == 4, "Enc_Channel_Info_t::szId offset");
static_assert(offsetof(Enc_Channel_Info_t, szName) == 68, "Enc_Channel_Info_t::szName offset");
static_assert(offsetof(Enc_Channel_Info_t, nSort) == 324, "Enc_Channel_Info_t::nSort offset");

// One encoder channel, extended.
typedef struct tagEncChannelInfoEx {
    orvex_camera_type_e nCameraType;
    char szId[64];     // channel identifier
    char szName[256];  // channel name
    uint64_t nRight;   // rights bit mask of the user
    int nChnlType;
    int nStatus;
    char szChnlSN[64];  // channel serial number
    char szLatitude[64];
    char szLongitude[64];
    char szMulticastIp[48];
    int nMulticastPort;
} Enc_Channel_Info_Ex_t;
static_assert(sizeof(Enc_Channel_Info_Ex_t) == 592, "Enc_Channel_Info_Ex_t size");
static_assert(offsetof(Enc_Channel_Info_Ex_t, nCameraType) == 0,
              "Enc_Channel_Info_Ex_t::nCameraType offset");
static_assert(offsetof(Enc_Channel_Info_Ex_t, szId) == 4, "Enc_Channel_Info_Ex_t::szId offset");
static_assert(offsetof(Enc_Channel_Info_Ex_t, szName) == 68,
              "Enc_Channel_Info_Ex_t::szName offset");
static_assert(offsetof(Enc_Channel_Info_Ex_t, nRight) == 328,
              "Enc_Channel_Info_Ex_t::nRight offset");
static_assert(offsetof(Enc_Channel_Info_Ex_t, nChnlType) == 336,
              "Enc_Channel_Info_Ex_t::nChnlType offset");
static_assert(offsetof(Enc_Channel_Info_Ex_t, nStatus) == 340,
              "Enc_Channel_Info_Ex_t::nStatus offset");
static_assert(offsetof(Enc_Channel_Info_Ex_t, szChnlSN) == 344,
              "Enc_Channel_Info_Ex_t::szChnlSN offset");
static_assert(offsetof(Enc_Channel_Info_Ex_t, szLatitude) == 408,
              "Enc_Channel_Info_Ex_t::szLatitude offset");
static_assert(offsetof(Enc_Channel_Info_Ex_t, szLongitude) == 472,
              "Enc_Channel_Info_Ex_t::szLongitude offset");
static_assert(offsetof(Enc_Channel_Info_Ex_t, szMulticastIp) == 536,
              "Enc_Channel_Info_Ex_t::szMulticastIp offset");
static_assert(offsetof(Enc_Channel_Info_Ex_t, nMulticastPort) == 584,
              "Enc_Channel_Info_Ex_t::nMulticastPort offset");

// Channels of one device; the caller owns the array.
typedef struct tagGetChannelInfo {
    char szDeviceId[64];             // in: the device
    uint32_t nEncChannelChildCount;  // in: capacity; out: channels filled
    Enc_Channel_Info_t* pEncChannelnfo;
} Get_Channel_Info_t;
static_assert(sizeof(Get_Channel_Info_t) == 80, "Get_Channel_Info_t size");
static_assert(offsetof(Get_Channel_Info_t, szDeviceId) == 0,
              "Get_Channel_Info_t::szDeviceId offset");
static_assert(offsetof(Get_Channel_Info_t, nEncChannelChildCount) == 64,
              "Get_Channel_Info_t::nEncChannelChildCount offset");
static_assert(offsetof(Get_Channel_Info_t, pEncChannelnfo) == 72,
              "Get_Channel_Info_t::pEncChannelnfo offset");

// Channels of one device, extended records.
typedef struct tagGetChannelInfoEx {
    char szDeviceId[64];             // in: the device
    uint32_t nEncChannelChildCount;  // in: capacity; out: channels filled
    Enc_Channel_Info_Ex_t* pEncChannelnfo;
} Get_Channel_Info_Ex_t;
static_assert(sizeof(Get_Channel_Info_Ex_t) == 80, "Get_Channel_Info_Ex_t size");
static_assert(offsetof(Get_Channel_Info_Ex_t, szDeviceId) == 0,
              "Get_Channel_Info_Ex_t::szDeviceId offset");
static_assert(offsetof(Get_Channel_Info_Ex_t, nEncChannelChildCount) == 64,
              "Get_Channel_Info_Ex_t::nEncChannelChildCount offset");
static_assert(offsetof(Get_Channel_Info_Ex_t, pEncChannelnfo) == 72,
              "Get_Channel_Info_Ex_t::pEncChannelnfo offset");

// Stream type of one device unit.
typedef struct tagGetDevStreamTypeInfo {
    char szDeviceId[64];
    int nUnitNo;
    orvex_stream_type_e nStreamType;  // out
} Get_Dev_StreamType_Info_t;
static_assert(sizeof(Get_Dev_StreamType_Info_t) == 72, "Get_Dev_StreamType_Info_t size");
static_assert(offsetof(Get_Dev_StreamType_Info_t, szDeviceId) == 0,
              "Get_Dev_StreamType_Info_t::szDeviceId offset");
static_assert(offsetof(Get_Dev_StreamType_Info_t, nUnitNo) == 64,
              "Get_Dev_StreamType_Info_t::nUnitNo offset");
static_assert(offsetof(Get_Dev_StreamType_Info_t, nStreamType) == 68,
              "Get_Dev_StreamType_Info_t::nStreamType offset");

// One department of the logical organisation.
typedef struct tagDepInfoEx {
    char szCoding[128];
    char szDepName[256];
    char szModifyTime[128];
    char szSN[256];
    char szMemo[1024];
    int nDepType;
    int nDepSort;
    int nChargebooth;
    int nDepExtType;
    char szOrgID[128];
} Dep_Info_Ex_t;
static_assert(sizeof(Dep_Info_Ex_t) == 1936, "Dep_Info_Ex_t size");
static_assert(offsetof(Dep_Info_Ex_t, szCoding) == 0, "Dep_Info_Ex_t::szCoding offset");
static_assert(offsetof(Dep_Info_Ex_t, szDepName) == 128, "Dep_Info_Ex_t::szDepName offset");
static_assert(offsetof(Dep_Info_Ex_t, szModifyTime) == 384, "Dep_Info_Ex_t::szModifyTime offset");
static_assert(offsetof(Dep_Info_Ex_t, szSN) == 512, "Dep_Info_Ex_t::szSN offset");
static_assert(offsetof(Dep_Info_Ex_t, szMemo) == 768, "Dep_Info_Ex_t::szMemo offset");
static_assert(offsetof(Dep_Info_Ex_t, nDepType) == 1792, "Dep_Info_Ex_t::nDepType offset");
static_assert(offsetof(Dep_Info_Ex_t, nDepSort) == 1796, "Dep_Info_Ex_t::nDepSort offset");
static_assert(offsetof(Dep_Info_Ex_t, nChargebooth) == 1800, "Dep_Info_Ex_t::nChargebooth offset");
static_assert(offsetof(Dep_Info_Ex_t, nDepExtType) == 1804, "Dep_Info_Ex_t::nDepExtType offset");
static_assert(offsetof(Dep_Info_Ex_t, szOrgID) == 1808, "Dep_Info_Ex_t::szOrgID offset");

// Organisation data change notice.
typedef struct tagDataChangeInfo {
    int64_t nParam1;
    int64_t nParam2;
    char szMsg1[3072];  // NUL-terminated
    char szMsg2[3072];  // NUL-terminated
} DataChange_t;
static_assert(sizeof(DataChange_t) == 6160, "DataChange_t size");
static_assert(offsetof(DataChange_t, nParam1) == 0, "DataChange_t::nParam1 offset");
static_assert(offsetof(DataChange_t, nParam2) == 8, "DataChange_t::nParam2 offset");
static_assert(offsetof(DataChange_t, szMsg1) == 16, "DataChange_t::szMsg1 offset");
static_assert(offsetof(DataChange_t, szMsg2) == 3088, "DataChange_t::szMsg2 offset");

// --- Video sharing and OSD

// One shared video.
typedef struct tagShareVideoInfo {
    char szCameraId[64];
    int nType;       // live or playback, as the platform numbers it
    int nSubStream;  // main or sub stream
    int nIsMobile;   // the source is a mobile device
    uint64_t nPlanId;
    uint64_t nPlaybacktime;  // playback time of recorded video
} ShareVideoInfo;
static_assert(sizeof(ShareVideoInfo) == 96, "ShareVideoInfo size");
static_assert(offsetof(ShareVideoInfo, szCameraId) == 0, "ShareVideoInfo::szCameraId offset");
static_assert(offsetof(ShareVideoInfo, nType) == 64, "ShareVideoInfo::nType offset");
static_assert(offsetof(ShareVideoInfo, nSubStream) == 68, "ShareVideoInfo::nSubStream offset");
static_assert(offsetof(ShareVideoInfo, nIsMobile) == 72, "ShareVideoInfo::nIsMobile offset");
static_assert(offsetof(ShareVideoInfo, nPlanId) == 80, "ShareVideoInfo::nPlanId offset");
static_assert(offsetof(ShareVideoInfo, nPlaybacktime) == 88,
              "ShareVideoInfo::nPlaybacktime offset");

// On-screen text for a device.
typedef struct SendOSDInfo {
    char szDevId[64];     // target device or channel
    char szMessage[256];  // text to show
} Send_OSDInfo_t;
static_assert(sizeof(Send_OSDInfo_t) == 320, "Send_OSDInfo_t size");
static_assert(offsetof(Send_OSDInfo_t, szDevId) == 0, "Send_OSDInfo_t::szDevId offset");
static_assert(offsetof(Send_OSDInfo_t, szMessage) == 64, "Send_OSDInfo_t::szMessage offset");

// --- Live streams

// Live stream request.
typedef struct tagGetRealStreamInfo {
    char szCameraId[64];
    orvex_check_right_e nRight;
    orvex_stream_type_e nStreamType;
    orvex_media_type_e nMediaType;
    orvex_trans_type_e nTransType;
} Get_RealStream_Info_t;
static_assert(sizeof(Get_RealStream_Info_t) == 80, "Get_RealStream_Info_t size");
static_assert(offsetof(Get_RealStream_Info_t, szCameraId) == 0,
              "Get_RealStream_Info_t::szCameraId offset");
static_assert(offsetof(Get_RealStream_Info_t, nRight) == 64,
              "Get_RealStream_Info_t::nRight offset");
static_assert(offsetof(Get_RealStream_Info_t, nStreamType) == 68,
              "Get_RealStream_Info_t::nStreamType offset");
static_assert(offsetof(Get_RealStream_Info_t, nMediaType) == 72,
              "Get_RealStream_Info_t::nMediaType offset");
static_assert(offsetof(Get_RealStream_Info_t, nTransType) == 76,
              "Get_RealStream_Info_t::nTransType offset");

// External URL of a camera's live stream.
typedef struct tagGetExternalRealStreamUrlInfo {
    char szCameraId[64];
    orvex_stream_type_e nStreamType;
    orvex_media_type_e nMediaType;
    orvex_trans_type_e nTransType;
    orvex_trackid_type_e nTrackId;
    bool bUsedVCS;  // transcode through the video conversion service
    orvex_videocodec_type_e nVcsVideocodec;
    orvex_resolution_type_e nVcsResolution;
    uint32_t nVcsfps;
    uint32_t nVcsbps;
    char szUrl[1024];  // out: the URL
} Get_ExternalRealStreamUrl_Info_t;
static_assert(sizeof(Get_ExternalRealStreamUrl_Info_t) == 1124,
              "Get_ExternalRealStreamUrl_Info_t size");
static_assert(offsetof(Get_ExternalRealStreamUrl_Info_t, szCameraId) == 0,
              "Get_ExternalRealStreamUrl_Info_t::szCameraId offset");
static_assert(offsetof(Get_ExternalRealStreamUrl_Info_t, nStreamType) == 64,
              "Get_ExternalRealStreamUrl_Info_t::nStreamType offset");
static_assert(offsetof(Get_ExternalRealStreamUrl_Info_t, nMediaType) == 68,
              "Get_ExternalRealStreamUrl_Info_t::nMediaType offset");
static_assert(offsetof(Get_ExternalRealStreamUrl_Info_t, nTransType) == 72,
              "Get_ExternalRealStreamUrl_Info_t::nTransType offset");
static_assert(offsetof(Get_ExternalRealStreamUrl_Info_t, nTrackId) == 76,
              "Get_ExternalRealStreamUrl_Info_t::nTrackId offset");
static_assert(offsetof(Get_ExternalRealStreamUrl_Info_t, bUsedVCS) == 80,
              "Get_ExternalRealStreamUrl_Info_t::bUsedVCS offset");
static_assert(offsetof(Get_ExternalRealStreamUrl_Info_t, nVcsVideocodec) == 84,
              "Get_ExternalRealStreamUrl_Info_t::nVcsVideocodec offset");
static_assert(offsetof(Get_ExternalRealStreamUrl_Info_t, nVcsResolution) == 88,
              "Get_ExternalRealStreamUrl_Info_t::nVcsResolution offset");
static_assert(offsetof(Get_ExternalRealStreamUrl_Info_t, nVcsfps) == 92,
              "Get_ExternalRealStreamUrl_Info_t::nVcsfps offset");
static_assert(offsetof(Get_ExternalRealStreamUrl_Info_t, nVcsbps) == 96,
              "Get_ExternalRealStreamUrl_Info_t::nVcsbps offset");
static_assert(offsetof(Get_ExternalRealStreamUrl_Info_t, szUrl) == 100,
              "Get_ExternalRealStreamUrl_Info_t::szUrl offset");

// --- Record search and playback

// Record search request.
typedef struct tagQueryRecordInfo {
    char szCameraId[64];
    orvex_check_right_e nRight;
    orvex_recsource_type_e nSource;
    orvex_record_type_e nRecordType;
    uint64_t uBeginTime;
    uint64_t uEndTime;
} Query_Record_Info_t;
static_assert(sizeof(Query_Record_Info_t) == 96, "Query_Record_Info_t size");
static_assert(offsetof(Query_Record_Info_t, szCameraId) == 0,
              "Query_Record_Info_t::szCameraId offset");
static_assert(offsetof(Query_Record_Info_t, nRight) == 64, "Query_Record_Info_t::nRight offset");
static_assert(offsetof(Query_Record_Info_t, nSource) == 68, "Query_Record_Info_t::nSource offset");
static_assert(offsetof(Query_Record_Info_t, nRecordType) == 72,
              "Query_Record_Info_t::nRecordType offset");
static_assert(offsetof(Query_Record_Info_t, uBeginTime) == 80,
              "Query_Record_Info_t::uBeginTime offset");
static_assert(offsetof(Query_Record_Info_t, uEndTime) == 88,
              "Query_Record_Info_t::uEndTime offset");

// One recording found.
typedef struct tagSingleRecordInfo {
    uint32_t nFileIndex;  // index for playback by file
    orvex_recsource_type_e nSource;
    orvex_record_type_e nRecordType;
    uint64_t uBeginTime;
    uint64_t uEndTime;
    uint64_t uLength;  // size of the recording
} Single_Record_Info_t;
static_assert(sizeof(Single_Record_Info_t) == 40, "Single_Record_Info_t size");
static_assert(offsetof(Single_Record_Info_t, nFileIndex) == 0,
              "Single_Record_Info_t::nFileIndex offset");
static_assert(offsetof(Single_Record_Info_t, nSource) == 4, "Single_Record_Info_t::nSource offset");
static_assert(offsetof(Single_Record_Info_t, nRecordType) == 8,
              "Single_Record_Info_t::nRecordType offset");
static_assert(offsetof(Single_Record_Info_t, uBeginTime) == 16,
              "Single_Record_Info_t::uBeginTime offset");
static_assert(offsetof(Single_Record_Info_t, uEndTime) == 24,
              "Single_Record_Info_t::uEndTime offset");
static_assert(offsetof(Single_Record_Info_t, uLength) == 32,
              "Single_Record_Info_t::uLength offset");

// Window of a search result; the caller owns the array.
typedef struct tagRecordInfo {
    char szCameraId[64];
    uint32_t nBegin;     // index of the first record wanted
    uint32_t nCount;     // records wanted, capacity of pSingleRecord
    uint32_t nRetCount;  // out: records delivered
    Single_Record_Info_t* pSingleRecord;
} Record_Info_t;
static_assert(sizeof(Record_Info_t) == 88, "Record_Info_t size");
static_assert(offsetof(Record_Info_t, szCameraId) == 0, "Record_Info_t::szCameraId offset");
static_assert(offsetof(Record_Info_t, nBegin) == 64, "Record_Info_t::nBegin offset");
static_assert(offsetof(Record_Info_t, nCount) == 68, "Record_Info_t::nCount offset");
static_assert(offsetof(Record_Info_t, nRetCount) == 72, "Record_Info_t::nRetCount offset");
static_assert(offsetof(Record_Info_t, pSingleRecord) == 80, "Record_Info_t::pSingleRecord offset");

// Playback of one record file.
typedef struct tagGetRecordStreamFileInfo {
    char szCameraId[64];
    orvex_check_right_e nRight;
    orvex_pb_mode_e nMode;
    uint32_t nFileIndex;
    uint64_t uBeginTime;
    uint64_t uEndTime;
} Get_RecordStream_File_Info_t;
static_assert(sizeof(Get_RecordStream_File_Info_t) == 96, "Get_RecordStream_File_Info_t size");
static_assert(offsetof(Get_RecordStream_File_Info_t, szCameraId) == 0,
              "Get_RecordStream_File_Info_t::szCameraId offset");
static_assert(offsetof(Get_RecordStream_File_Info_t, nRight) == 64,
              "Get_RecordStream_File_Info_t::nRight offset");
static_assert(offsetof(Get_RecordStream_File_Info_t, nMode) == 68,
              "Get_RecordStream_File_Info_t::nMode offset");
static_assert(offsetof(Get_RecordStream_File_Info_t, nFileIndex) == 72,
              "Get_RecordStream_File_Info_t::nFileIndex offset");
static_assert(offsetof(Get_RecordStream_File_Info_t, uBeginTime) == 80,
              "Get_RecordStream_File_Info_t::uBeginTime offset");
static_assert(offsetof(Get_RecordStream_File_Info_t, uEndTime) == 88,
              "Get_RecordStream_File_Info_t::uEndTime offset");

// Playback of a time span.
typedef struct tagGetRecordStreamTimeInfo {
    char szCameraId[64];
    orvex_check_right_e nRight;
    orvex_pb_mode_e nMode;
    orvex_recsource_type_e nSource;
    uint64_t uBeginTime;
    uint64_t uEndTime;
} Get_RecordStream_Time_Info_t;
static_assert(sizeof(Get_RecordStream_Time_Info_t) == 96, "Get_RecordStream_Time_Info_t size");
static_assert(offsetof(Get_RecordStream_Time_Info_t, szCameraId) == 0,
              "Get_RecordStream_Time_Info_t::szCameraId offset");
static_assert(offsetof(Get_RecordStream_Time_Info_t, nRight) == 64,
              "Get_RecordStream_Time_Info_t::nRight offset");
static_assert(offsetof(Get_RecordStream_Time_Info_t, nMode) == 68,
              "Get_RecordStream_Time_Info_t::nMode offset");
static_assert(offsetof(Get_RecordStream_Time_Info_t, nSource) == 72,
              "Get_RecordStream_Time_Info_t::nSource offset");
static_assert(offsetof(Get_RecordStream_Time_Info_t, uBeginTime) == 80,
              "Get_RecordStream_Time_Info_t::uBeginTime offset");
static_assert(offsetof(Get_RecordStream_Time_Info_t, uEndTime) == 88,
              "Get_RecordStream_Time_Info_t::uEndTime offset");

// --- Talk

// Talk session request.
typedef struct tagGetTalkStreamInfo {
    char szCameraId[64];  // channel or device
    orvex_audio_type_e nAudioType;
    orvex_talk_type_e nTalkType;
    orvex_talk_bits_e nBitsType;
    Talk_Sample_Rate_e nSampleType;
    orvex_trans_type_e nTransType;
} Get_TalkStream_Info_t;
static_assert(sizeof(Get_TalkStream_Info_t) == 84, "Get_TalkStream_Info_t size");
static_assert(offsetof(Get_TalkStream_Info_t, szCameraId) == 0,
              "Get_TalkStream_Info_t::szCameraId offset");
static_assert(offsetof(Get_TalkStream_Info_t, nAudioType) == 64,
              "Get_TalkStream_Info_t::nAudioType offset");
static_assert(offsetof(Get_TalkStream_Info_t, nTalkType) == 68,
              "Get_TalkStream_Info_t::nTalkType offset");
static_assert(offsetof(Get_TalkStream_Info_t, nBitsType) == 72,
              "Get_TalkStream_Info_t::nBitsType offset");
static_assert(offsetof(Get_TalkStream_Info_t, nSampleType) == 76,
              "Get_TalkStream_Info_t::nSampleType offset");
static_assert(offsetof(Get_TalkStream_Info_t, nTransType) == 80,
              "Get_TalkStream_Info_t::nTransType offset");

// User data of the audio entry point.
typedef struct tagAudioUserParam {
    void* objectPoint;
} AudioUserParam_t;
static_assert(sizeof(AudioUserParam_t) == 8, "AudioUserParam_t size");
static_assert(offsetof(AudioUserParam_t, objectPoint) == 0, "AudioUserParam_t::objectPoint offset");

// --- PTZ

// PTZ movement.
typedef struct tagPtzDirectInfo {
    char szCameraId[64];
    orvex_ptz_direct_e nDirect;
    uint32_t nStep;  // speed step
    bool bStop;      // true: stop, false: start
} Ptz_Direct_Info_t;
static_assert(sizeof(Ptz_Direct_Info_t) == 76, "Ptz_Direct_Info_t size");
static_assert(offsetof(Ptz_Direct_Info_t, szCameraId) == 0, "Ptz_Direct_Info_t::szCameraId offset");
static_assert(offsetof(Ptz_Direct_Info_t, nDirect) == 64, "Ptz_Direct_Info_t::nDirect offset");
static_assert(offsetof(Ptz_Direct_Info_t, nStep) == 68, "Ptz_Direct_Info_t::nStep offset");
static_assert(offsetof(Ptz_Direct_Info_t, bStop) == 72, "Ptz_Direct_Info_t::bStop offset");

// Zoom, focus or aperture operation.
typedef struct tagPtzOperationInfo {
    char szCameraId[64];
    orvex_camera_operation_e nOperation;
    uint32_t nStep;  // speed step
    bool bStop;      // true: stop, false: start
} Ptz_Operation_Info_t;
static_assert(sizeof(Ptz_Operation_Info_t) == 76, "Ptz_Operation_Info_t size");
static_assert(offsetof(Ptz_Operation_Info_t, szCameraId) == 0,
              "Ptz_Operation_Info_t::szCameraId offset");
static_assert(offsetof(Ptz_Operation_Info_t, nOperation) == 64,
              "Ptz_Operation_Info_t::nOperation offset");
static_assert(offsetof(Ptz_Operation_Info_t, nStep) == 68, "Ptz_Operation_Info_t::nStep offset");
static_assert(offsetof(Ptz_Operation_Info_t, bStop) == 72, "Ptz_Operation_Info_t::bStop offset");

// Point the camera at a position.
typedef struct tagPtzSitInfo {
    char szCameraId[64];
    int32_t pointX;
    int32_t pointY;
    int32_t pointZ;  // zoom
    int32_t type;
} Ptz_Sit_Info_t;
static_assert(sizeof(Ptz_Sit_Info_t) == 80, "Ptz_Sit_Info_t size");
static_assert(offsetof(Ptz_Sit_Info_t, szCameraId) == 0, "Ptz_Sit_Info_t::szCameraId offset");
static_assert(offsetof(Ptz_Sit_Info_t, pointX) == 64, "Ptz_Sit_Info_t::pointX offset");
static_assert(offsetof(Ptz_Sit_Info_t, pointY) == 68, "Ptz_Sit_Info_t::pointY offset");
static_assert(offsetof(Ptz_Sit_Info_t, pointZ) == 72, "Ptz_Sit_Info_t::pointZ offset");
static_assert(offsetof(Ptz_Sit_Info_t, type) == 76, "Ptz_Sit_Info_t::type offset");

// PTZ lock or unlock.
typedef struct tagPtzLockInfo {
    char szCameraId[64];
    orvex_ptz_locktype_e nLock;
} Ptz_Lock_Info_t;
static_assert(sizeof(Ptz_Lock_Info_t) == 68, "Ptz_Lock_Info_t size");
static_assert(offsetof(Ptz_Lock_Info_t, szCameraId) == 0, "Ptz_Lock_Info_t::szCameraId offset");
static_assert(offsetof(Ptz_Lock_Info_t, nLock) == 64, "Ptz_Lock_Info_t::nLock offset");

// On/off switch (light, rain brush).
typedef struct tagPtzOpenCommandInfo {
    char szCameraId[64];
    bool bOpen;  // true: on
} Ptz_Open_Command_Info_t;
static_assert(sizeof(Ptz_Open_Command_Info_t) == 65, "Ptz_Open_Command_Info_t size");
static_assert(offsetof(Ptz_Open_Command_Info_t, szCameraId) == 0,
              "Ptz_Open_Command_Info_t::szCameraId offset");
static_assert(offsetof(Ptz_Open_Command_Info_t, bOpen) == 64,
              "Ptz_Open_Command_Info_t::bOpen offset");

// Extended PTZ command.
typedef struct tagPtzExtendCommandInfo {
    char szCameraId[64];
    orvex_ptz_extend_cmd_e nCmd;
    int32_t nParam;  // the command's parameter
} Ptz_Extend_Command_Info_t;
static_assert(sizeof(Ptz_Extend_Command_Info_t) == 72, "Ptz_Extend_Command_Info_t size");
static_assert(offsetof(Ptz_Extend_Command_Info_t, szCameraId) == 0,
              "Ptz_Extend_Command_Info_t::szCameraId offset");
static_assert(offsetof(Ptz_Extend_Command_Info_t, nCmd) == 64,
              "Ptz_Extend_Command_Info_t::nCmd offset");
static_assert(offsetof(Ptz_Extend_Command_Info_t, nParam) == 68,
              "Ptz_Extend_Command_Info_t::nParam offset");

// One preset point.
typedef struct tagPtzSinglePrepointInfo {
    uint32_t nCode;   // preset number
    char szName[32];  // preset name
} Ptz_Single_Prepoint_Info_t;
static_assert(sizeof(Ptz_Single_Prepoint_Info_t) == 36, "Ptz_Single_Prepoint_Info_t size");
static_assert(offsetof(Ptz_Single_Prepoint_Info_t, nCode) == 0,
              "Ptz_Single_Prepoint_Info_t::nCode offset");
static_assert(offsetof(Ptz_Single_Prepoint_Info_t, szName) == 4,
              "Ptz_Single_Prepoint_Info_t::szName offset");

// Preset points of a camera.
typedef struct tagPtzPrepointInfo {
    char szCameraId[64];
    uint32_t nCount;                          // out: presets filled
    Ptz_Single_Prepoint_Info_t pPoints[300];  // fixed capacity, held inline
} Ptz_Prepoint_Info_t;
static_assert(sizeof(Ptz_Prepoint_Info_t) == 10868, "Ptz_Prepoint_Info_t size");
static_assert(offsetof(Ptz_Prepoint_Info_t, szCameraId) == 0,
              "Ptz_Prepoint_Info_t::szCameraId offset");
static_assert(offsetof(Ptz_Prepoint_Info_t, nCount) == 64, "Ptz_Prepoint_Info_t::nCount offset");
static_assert(offsetof(Ptz_Prepoint_Info_t, pPoints) == 68, "Ptz_Prepoint_Info_t::pPoints offset");

// Preset point operation.
typedef struct tagPtzPrepointOperationInfo {
    char szCameraId[64];
    orvex_ptz_prepoint_cmd_e nCmd;
    Ptz_Single_Prepoint_Info_t pPoints;  // the preset concerned (one, inline)
} Ptz_Prepoint_Operation_Info_t;
static_assert(sizeof(Ptz_Prepoint_Operation_Info_t) == 104, "Ptz_Prepoint_Operation_Info_t size");
static_assert(offsetof(Ptz_Prepoint_Operation_Info_t, szCameraId) == 0,
              "Ptz_Prepoint_Operation_Info_t::szCameraId offset");
static_assert(offsetof(Ptz_Prepoint_Operation_Info_t, nCmd) == 64,
              "Ptz_Prepoint_Operation_Info_t::nCmd offset");
static_assert(offsetof(Ptz_Prepoint_Operation_Info_t, pPoints) == 68,
              "Ptz_Prepoint_Operation_Info_t::pPoints offset");

// --- Alarm subscription and enabling

// Push subscription of a phone.
typedef struct tagPhoneSubscribeAlarm {
    int iUserId;
    char szPhoneId[256];
    int iAppId;
    char szPush_type[64];  // push service type
    int iIs_subscribe;     // non-zero: subscribe
    char szLanguage[32];
    char szTimefmt[32];
    int iDbOper;
} orvex_phone_subscribe_alarm_t;
static_assert(sizeof(orvex_phone_subscribe_alarm_t) == 400, "orvex_phone_subscribe_alarm_t size");
static_assert(offsetof(orvex_phone_subscribe_alarm_t, iUserId) == 0,
              "orvex_phone_subscribe_alarm_t::iUserId offset");
static_assert(offsetof(orvex_phone_subscribe_alarm_t, szPhoneId) == 4,
              "orvex_phone_subscribe_alarm_t::szPhoneId offset");
static_assert(offsetof(orvex_phone_subscribe_alarm_t, iAppId) == 260,
              "orvex_phone_subscribe_alarm_t::iAppId offset");
static_assert(offsetof(orvex_phone_subscribe_alarm_t, szPush_type) == 264,
              "orvex_phone_subscribe_alarm_t::szPush_type offset");
static_assert(offsetof(orvex_phone_subscribe_alarm_t, iIs_subscribe) == 328,
              "orvex_phone_subscribe_alarm_t::iIs_subscribe offset");
static_assert(offsetof(orvex_phone_subscribe_alarm_t, szLanguage) == 332,
              "orvex_phone_subscribe_alarm_t::szLanguage offset");
static_assert(offsetof(orvex_phone_subscribe_alarm_t, szTimefmt) == 364,
              "orvex_phone_subscribe_alarm_t::szTimefmt offset");
static_assert(offsetof(orvex_phone_subscribe_alarm_t, iDbOper) == 396,
              "orvex_phone_subscribe_alarm_t::iDbOper offset");

// One alarm source by device.
typedef struct tagAlarmSingleEnableInfo {
    char szAlarmDevId[64];
    int32_t nVideoNo;
    int32_t nAlarmInput;
    orvex_alarm_type_e nAlarmType;
} Alarm_Single_Enable_Info_t;
static_assert(sizeof(Alarm_Single_Enable_Info_t) == 76, "Alarm_Single_Enable_Info_t size");
static_assert(offsetof(Alarm_Single_Enable_Info_t, szAlarmDevId) == 0,
              "Alarm_Single_Enable_Info_t::szAlarmDevId offset");
static_assert(offsetof(Alarm_Single_Enable_Info_t, nVideoNo) == 64,
              "Alarm_Single_Enable_Info_t::nVideoNo offset");
static_assert(offsetof(Alarm_Single_Enable_Info_t, nAlarmInput) == 68,
              "Alarm_Single_Enable_Info_t::nAlarmInput offset");
static_assert(offsetof(Alarm_Single_Enable_Info_t, nAlarmType) == 72,
              "Alarm_Single_Enable_Info_t::nAlarmType offset");

// Alarm sources to enable.
typedef struct tagAlarmEnableInfo {
    uint32_t nCount;
    Alarm_Single_Enable_Info_t* pSources;
} Alarm_Enable_Info_t;
static_assert(sizeof(Alarm_Enable_Info_t) == 16, "Alarm_Enable_Info_t size");
static_assert(offsetof(Alarm_Enable_Info_t, nCount) == 0, "Alarm_Enable_Info_t::nCount offset");
static_assert(offsetof(Alarm_Enable_Info_t, pSources) == 8, "Alarm_Enable_Info_t::pSources offset");

// One alarm source by department.
typedef struct tagAlarmSingleEnableByDepInfo {
    char szAlarmDepartmentCode[64];
    int32_t nVideoNo;
    int32_t nAlarmInput;
    orvex_alarm_type_e nAlarmType;
} Alarm_Single_Enable_By_Dep_Info_t;
static_assert(sizeof(Alarm_Single_Enable_By_Dep_Info_t) == 76,
              "Alarm_Single_Enable_By_Dep_Info_t size");
static_assert(offsetof(Alarm_Single_Enable_By_Dep_Info_t, szAlarmDepartmentCode) == 0,
              "Alarm_Single_Enable_By_Dep_Info_t::szAlarmDepartmentCode offset");
static_assert(offsetof(Alarm_Single_Enable_By_Dep_Info_t, nVideoNo) == 64,
              "Alarm_Single_Enable_By_Dep_Info_t::nVideoNo offset");
static_assert(offsetof(Alarm_Single_Enable_By_Dep_Info_t, nAlarmInput) == 68,
              "Alarm_Single_Enable_By_Dep_Info_t::nAlarmInput offset");
static_assert(offsetof(Alarm_Single_Enable_By_Dep_Info_t, nAlarmType) == 72,
              "Alarm_Single_Enable_By_Dep_Info_t::nAlarmType offset");

// Alarm sources to enable, by department.
typedef struct tagAlarmEnableByDepInfo {
    uint32_t nCount;
    Alarm_Single_Enable_By_Dep_Info_t* pSources;
} Alarm_Enable_By_Dep_Info_t;
static_assert(sizeof(Alarm_Enable_By_Dep_Info_t) == 16, "Alarm_Enable_By_Dep_Info_t size");
static_assert(offsetof(Alarm_Enable_By_Dep_Info_t, nCount) == 0,
              "Alarm_Enable_By_Dep_Info_t::nCount offset");
static_assert(offsetof(Alarm_Enable_By_Dep_Info_t, pSources) == 8,
              "Alarm_Enable_By_Dep_Info_t::pSources offset");

// --- Alarm history

// Alarm history query.
typedef struct tagAlarmQueryInfo {
    char szCameraId[64];
    uint64_t uStartTime;
    uint64_t uEndTime;
    orvex_alarm_type_e nAlarmType;
} Alarm_Query_Info_t;
static_assert(sizeof(Alarm_Query_Info_t) == 88, "Alarm_Query_Info_t size");
static_assert(offsetof(Alarm_Query_Info_t, szCameraId) == 0,
              "Alarm_Query_Info_t::szCameraId offset");
static_assert(offsetof(Alarm_Query_Info_t, uStartTime) == 64,
              "Alarm_Query_Info_t::uStartTime offset");
static_assert(offsetof(Alarm_Query_Info_t, uEndTime) == 72, "Alarm_Query_Info_t::uEndTime offset");
static_assert(offsetof(Alarm_Query_Info_t, nAlarmType) == 80,
              "Alarm_Query_Info_t::nAlarmType offset");

// One past alarm.
typedef struct tagSingleAlarmInfo {
    orvex_alarm_type_e nAlarmType;
    orvex_event_type_e nEventType;
    char szDevId[64];
    uint32_t uChannel;
    uint64_t uAlarmTime;
    orvex_alarm_dealwith_e nDealWith;
    char szPicUrl[256];
    char szSwLabel[32];
    char szElecLabel[32];
    char szMessage[4096];
} Single_Alarm_Info_t;
static_assert(sizeof(Single_Alarm_Info_t) == 4512, "Single_Alarm_Info_t size");
static_assert(offsetof(Single_Alarm_Info_t, nAlarmType) == 0,
              "Single_Alarm_Info_t::nAlarmType offset");
static_assert(offsetof(Single_Alarm_Info_t, nEventType) == 4,
              "Single_Alarm_Info_t::nEventType offset");
static_assert(offsetof(Single_Alarm_Info_t, szDevId) == 8, "Single_Alarm_Info_t::szDevId offset");
static_assert(offsetof(Single_Alarm_Info_t, uChannel) == 72,
              "Single_Alarm_Info_t::uChannel offset");
static_assert(offsetof(Single_Alarm_Info_t, uAlarmTime) == 80,
              "Single_Alarm_Info_t::uAlarmTime offset");
static_assert(offsetof(Single_Alarm_Info_t, nDealWith) == 88,
              "Single_Alarm_Info_t::nDealWith offset");
static_assert(offsetof(Single_Alarm_Info_t, szPicUrl) == 92,
              "Single_Alarm_Info_t::szPicUrl offset");
static_assert(offsetof(Single_Alarm_Info_t, szSwLabel) == 348,
              "Single_Alarm_Info_t::szSwLabel offset");
static_assert(offsetof(Single_Alarm_Info_t, szElecLabel) == 380,
              "Single_Alarm_Info_t::szElecLabel offset");
static_assert(offsetof(Single_Alarm_Info_t, szMessage) == 412,
              "Single_Alarm_Info_t::szMessage offset");

// Page of alarm records; the caller owns the array.
typedef struct tagAlarmInfo {
    uint32_t nCount;     // capacity of pAlarmInfo
    uint32_t nRetCount;  // out: records delivered
    Single_Alarm_Info_t* pAlarmInfo;
} Alarm_Info_t;
static_assert(sizeof(Alarm_Info_t) == 16, "Alarm_Info_t size");
static_assert(offsetof(Alarm_Info_t, nCount) == 0, "Alarm_Info_t::nCount offset");
static_assert(offsetof(Alarm_Info_t, nRetCount) == 4, "Alarm_Info_t::nRetCount offset");
static_assert(offsetof(Alarm_Info_t, pAlarmInfo) == 8, "Alarm_Info_t::pAlarmInfo offset");

// --- Alarm schemes and reports

// Alarm scheme.
typedef struct tagAlarmSchemeInfo {
    orvex_alarmScheme_status_e status;
    uint32_t id;
    char schemeName[256];
    uint32_t templateId;
    char desc[512];
} AlarmSchemeInfo_t;
static_assert(sizeof(AlarmSchemeInfo_t) == 780, "AlarmSchemeInfo_t size");
static_assert(offsetof(AlarmSchemeInfo_t, status) == 0, "AlarmSchemeInfo_t::status offset");
static_assert(offsetof(AlarmSchemeInfo_t, id) == 4, "AlarmSchemeInfo_t::id offset");
static_assert(offsetof(AlarmSchemeInfo_t, schemeName) == 8, "AlarmSchemeInfo_t::schemeName offset");
static_assert(offsetof(AlarmSchemeInfo_t, templateId) == 264,
              "AlarmSchemeInfo_t::templateId offset");
static_assert(offsetof(AlarmSchemeInfo_t, desc) == 268, "AlarmSchemeInfo_t::desc offset");

// Alarm raised by the client.
typedef struct tagClientAlarmInfo {
    char szCameraId[64];
    orvex_alarm_type_e enAlarmType;
    orvex_event_type_e enStatus;
    uint64_t uAlarmTime;
    char szMsg[4096];
} Client_Alarm_Info_t;
static_assert(sizeof(Client_Alarm_Info_t) == 4176, "Client_Alarm_Info_t size");
static_assert(offsetof(Client_Alarm_Info_t, szCameraId) == 0,
              "Client_Alarm_Info_t::szCameraId offset");
static_assert(offsetof(Client_Alarm_Info_t, enAlarmType) == 64,
              "Client_Alarm_Info_t::enAlarmType offset");
static_assert(offsetof(Client_Alarm_Info_t, enStatus) == 68,
              "Client_Alarm_Info_t::enStatus offset");
static_assert(offsetof(Client_Alarm_Info_t, uAlarmTime) == 72,
              "Client_Alarm_Info_t::uAlarmTime offset");
static_assert(offsetof(Client_Alarm_Info_t, szMsg) == 80, "Client_Alarm_Info_t::szMsg offset");

// --- Alarm hosts

// State of one alarm host zone.
typedef struct tagorvexAHostDefenceStatus {
    char szNodeID[64];  // zone (channel) identifier
    int nAlarm;
    int nUndefendAlarm;  // alarm state while disarmed
    bool bByPass;
    bool bDefend;  // armed
} orvex_AHostDefenceStatus_t;
static_assert(sizeof(orvex_AHostDefenceStatus_t) == 76, "orvex_AHostDefenceStatus_t size");
static_assert(offsetof(orvex_AHostDefenceStatus_t, szNodeID) == 0,
              "orvex_AHostDefenceStatus_t::szNodeID offset");
static_assert(offsetof(orvex_AHostDefenceStatus_t, nAlarm) == 64,
              "orvex_AHostDefenceStatus_t::nAlarm offset");
static_assert(offsetof(orvex_AHostDefenceStatus_t, nUndefendAlarm) == 68,
              "orvex_AHostDefenceStatus_t::nUndefendAlarm offset");
static_assert(offsetof(orvex_AHostDefenceStatus_t, bByPass) == 72,
              "orvex_AHostDefenceStatus_t::bByPass offset");
static_assert(offsetof(orvex_AHostDefenceStatus_t, bDefend) == 73,
              "orvex_AHostDefenceStatus_t::bDefend offset");

// One alarm-input channel.
typedef struct tagAlarmInChannelInfo {
    char szId[64];
    char szName[256];
    uint64_t nRight;  // rights bit mask of the user
    int nChnlType;
    int nStatus;
} AlarmIn_Channel_Info_t;
static_assert(sizeof(AlarmIn_Channel_Info_t) == 336, "AlarmIn_Channel_Info_t size");
static_assert(offsetof(AlarmIn_Channel_Info_t, szId) == 0, "AlarmIn_Channel_Info_t::szId offset");
static_assert(offsetof(AlarmIn_Channel_Info_t, szName) == 64,
              "AlarmIn_Channel_Info_t::szName offset");
static_assert(offsetof(AlarmIn_Channel_Info_t, nRight) == 320,
              "AlarmIn_Channel_Info_t::nRight offset");
static_assert(offsetof(AlarmIn_Channel_Info_t, nChnlType) == 328,
              "AlarmIn_Channel_Info_t::nChnlType offset");
static_assert(offsetof(AlarmIn_Channel_Info_t, nStatus) == 332,
              "AlarmIn_Channel_Info_t::nStatus offset");

// Alarm-input channels of a device; the caller owns the array.
typedef struct tagGetAlarmInChannelInfo {
    char szDeviceId[64];
    uint32_t nAlarmInChannelCount;  // in: capacity; out: channels filled
    AlarmIn_Channel_Info_t* pAlarmInChannelnfo;
} Get_AlarmInChannel_Info_t;
static_assert(sizeof(Get_AlarmInChannel_Info_t) == 80, "Get_AlarmInChannel_Info_t size");
static_assert(offsetof(Get_AlarmInChannel_Info_t, szDeviceId) == 0,
              "Get_AlarmInChannel_Info_t::szDeviceId offset");
static_assert(offsetof(Get_AlarmInChannel_Info_t, nAlarmInChannelCount) == 64,
              "Get_AlarmInChannel_Info_t::nAlarmInChannelCount offset");
static_assert(offsetof(Get_AlarmInChannel_Info_t, pAlarmInChannelnfo) == 72,
              "Get_AlarmInChannel_Info_t::pAlarmInChannelnfo offset");

// --- Video wall

// One video wall.
typedef struct tagTvWallInfo {
    uint32_t nTvWallId;
    uint32_t nState;
    char szName[256];
} TvWall_Info_t;
static_assert(sizeof(TvWall_Info_t) == 264, "TvWall_Info_t size");
static_assert(offsetof(TvWall_Info_t, nTvWallId) == 0, "TvWall_Info_t::nTvWallId offset");
static_assert(offsetof(TvWall_Info_t, nState) == 4, "TvWall_Info_t::nState offset");
static_assert(offsetof(TvWall_Info_t, szName) == 8, "TvWall_Info_t::szName offset");

// List of walls; the caller owns the array.
typedef struct tagTvWallListInfo {
    uint32_t nCount;  // in: capacity; out: walls filled
    TvWall_Info_t* pTvWallInfo;
} TvWall_List_Info_t;
static_assert(sizeof(TvWall_List_Info_t) == 16, "TvWall_List_Info_t size");
static_assert(offsetof(TvWall_List_Info_t, nCount) == 0, "TvWall_List_Info_t::nCount offset");
static_assert(offsetof(TvWall_List_Info_t, pTvWallInfo) == 8,
              "TvWall_List_Info_t::pTvWallInfo offset");

// One screen of a wall.
typedef struct tagTvWallScreenInfo {
    uint32_t nScreenId;
    char szName[256];
    char szDecoderId[64];  // decoder driving the screen
    float fLeft;
    float fTop;
    float fWidth;
    float fHeight;
    bool bBind;     // bound to a decoder output
    bool bCombine;  // combined screen
} TvWall_Screen_Info_t;
static_assert(sizeof(TvWall_Screen_Info_t) == 344, "TvWall_Screen_Info_t size");
static_assert(offsetof(TvWall_Screen_Info_t, nScreenId) == 0,
              "TvWall_Screen_Info_t::nScreenId offset");
static_assert(offsetof(TvWall_Screen_Info_t, szName) == 4, "TvWall_Screen_Info_t::szName offset");
static_assert(offsetof(TvWall_Screen_Info_t, szDecoderId) == 260,
              "TvWall_Screen_Info_t::szDecoderId offset");
static_assert(offsetof(TvWall_Screen_Info_t, fLeft) == 324, "TvWall_Screen_Info_t::fLeft offset");
static_assert(offsetof(TvWall_Screen_Info_t, fTop) == 328, "TvWall_Screen_Info_t::fTop offset");
static_assert(offsetof(TvWall_Screen_Info_t, fWidth) == 332, "TvWall_Screen_Info_t::fWidth offset");
static_assert(offsetof(TvWall_Screen_Info_t, fHeight) == 336,
              "TvWall_Screen_Info_t::fHeight offset");
static_assert(offsetof(TvWall_Screen_Info_t, bBind) == 340, "TvWall_Screen_Info_t::bBind offset");
static_assert(offsetof(TvWall_Screen_Info_t, bCombine) == 341,
              "TvWall_Screen_Info_t::bCombine offset");

// Screens of a wall; the caller owns the array.
typedef struct tagTvWallLayoutInfo {
    uint32_t nTvWallId;
    uint32_t nCount;  // in: capacity; out: screens filled
    TvWall_Screen_Info_t* pScreenInfo;
} TvWall_Layout_Info_t;
static_assert(sizeof(TvWall_Layout_Info_t) == 16, "TvWall_Layout_Info_t size");
static_assert(offsetof(TvWall_Layout_Info_t, nTvWallId) == 0,
              "TvWall_Layout_Info_t::nTvWallId offset");
static_assert(offsetof(TvWall_Layout_Info_t, nCount) == 4, "TvWall_Layout_Info_t::nCount offset");
static_assert(offsetof(TvWall_Layout_Info_t, pScreenInfo) == 8,
              "TvWall_Layout_Info_t::pScreenInfo offset");

// Put a camera into a window of a screen.
typedef struct tagSetTvWallScreenWindowSource {
    uint32_t nTvWallId;
    uint32_t nScreenId;
    uint32_t nWindowId;
    char szCameraId[64];
    orvex_stream_type_e enStreamType;
    uint64_t nStayTime;  // dwell time
} Set_TvWall_Screen_Window_Source_t;
static_assert(sizeof(Set_TvWall_Screen_Window_Source_t) == 88,
              "Set_TvWall_Screen_Window_Source_t size");
static_assert(offsetof(Set_TvWall_Screen_Window_Source_t, nTvWallId) == 0,
              "Set_TvWall_Screen_Window_Source_t::nTvWallId offset");
static_assert(offsetof(Set_TvWall_Screen_Window_Source_t, nScreenId) == 4,
              "Set_TvWall_Screen_Window_Source_t::nScreenId offset");
static_assert(offsetof(Set_TvWall_Screen_Window_Source_t, nWindowId) == 8,
              "Set_TvWall_Screen_Window_Source_t::nWindowId offset");
static_assert(offsetof(Set_TvWall_Screen_Window_Source_t, szCameraId) == 12,
              "Set_TvWall_Screen_Window_Source_t::szCameraId offset");
static_assert(offsetof(Set_TvWall_Screen_Window_Source_t, enStreamType) == 76,
              "Set_TvWall_Screen_Window_Source_t::enStreamType offset");
static_assert(offsetof(Set_TvWall_Screen_Window_Source_t, nStayTime) == 80,
              "Set_TvWall_Screen_Window_Source_t::nStayTime offset");

// Close a window's source.
typedef struct tagTvWallScreenCloseSource {
    uint32_t nTvWallId;
    uint32_t nScreenId;
    uint32_t nWindowId;
} TvWall_Screen_Close_Source_t;
static_assert(sizeof(TvWall_Screen_Close_Source_t) == 12, "TvWall_Screen_Close_Source_t size");
static_assert(offsetof(TvWall_Screen_Close_Source_t, nTvWallId) == 0,
              "TvWall_Screen_Close_Source_t::nTvWallId offset");
static_assert(offsetof(TvWall_Screen_Close_Source_t, nScreenId) == 4,
              "TvWall_Screen_Close_Source_t::nScreenId offset");
static_assert(offsetof(TvWall_Screen_Close_Source_t, nWindowId) == 8,
              "TvWall_Screen_Close_Source_t::nWindowId offset");

// Split a screen into panes.
typedef struct tagTvWallScreenSplit {
    uint32_t nTvWallId;
    uint32_t nScreenId;
    tvwall_screen_split_caps enSplitNum;
} TvWall_Screen_Split_t;
static_assert(sizeof(TvWall_Screen_Split_t) == 12, "TvWall_Screen_Split_t size");
static_assert(offsetof(TvWall_Screen_Split_t, nTvWallId) == 0,
              "TvWall_Screen_Split_t::nTvWallId offset");
static_assert(offsetof(TvWall_Screen_Split_t, nScreenId) == 4,
              "TvWall_Screen_Split_t::nScreenId offset");
static_assert(offsetof(TvWall_Screen_Split_t, enSplitNum) == 8,
              "TvWall_Screen_Split_t::enSplitNum offset");

// Open a free window on a screen.
typedef struct tagTvWallScreenOpenWindow {
    uint32_t nTvWallId;
    uint32_t nScreenId;
    float fLeft;
    float fTop;
    float fWidth;
    float fHeight;
    uint32_t nWindowId;  // out: the new window
    uint32_t nZorder;    // out: its stacking order
} TvWall_Screen_Open_Window_t;
static_assert(sizeof(TvWall_Screen_Open_Window_t) == 32, "TvWall_Screen_Open_Window_t size");
static_assert(offsetof(TvWall_Screen_Open_Window_t, nTvWallId) == 0,
              "TvWall_Screen_Open_Window_t::nTvWallId offset");
static_assert(offsetof(TvWall_Screen_Open_Window_t, nScreenId) == 4,
              "TvWall_Screen_Open_Window_t::nScreenId offset");
static_assert(offsetof(TvWall_Screen_Open_Window_t, fLeft) == 8,
              "TvWall_Screen_Open_Window_t::fLeft offset");
static_assert(offsetof(TvWall_Screen_Open_Window_t, fTop) == 12,
              "TvWall_Screen_Open_Window_t::fTop offset");
static_assert(offsetof(TvWall_Screen_Open_Window_t, fWidth) == 16,
              "TvWall_Screen_Open_Window_t::fWidth offset");
static_assert(offsetof(TvWall_Screen_Open_Window_t, fHeight) == 20,
              "TvWall_Screen_Open_Window_t::fHeight offset");
static_assert(offsetof(TvWall_Screen_Open_Window_t, nWindowId) == 24,
              "TvWall_Screen_Open_Window_t::nWindowId offset");
static_assert(offsetof(TvWall_Screen_Open_Window_t, nZorder) == 28,
              "TvWall_Screen_Open_Window_t::nZorder offset");

// --- Burner

// Burner control request.
typedef struct tagControlDevBurnerRequest {
    char deviceId[64];
    Core_EnumControlBurnerCmd cmd;
    int channelMask;  // channels to burn
    int burnerMask;   // burners to use
    int emMode;
    int emPack;
} Control_Dev_Burner_Request_t;
static_assert(sizeof(Control_Dev_Burner_Request_t) == 84, "Control_Dev_Burner_Request_t size");
static_assert(offsetof(Control_Dev_Burner_Request_t, deviceId) == 0,
              "Control_Dev_Burner_Request_t::deviceId offset");
static_assert(offsetof(Control_Dev_Burner_Request_t, cmd) == 64,
              "Control_Dev_Burner_Request_t::cmd offset");
static_assert(offsetof(Control_Dev_Burner_Request_t, channelMask) == 68,
              "Control_Dev_Burner_Request_t::channelMask offset");
static_assert(offsetof(Control_Dev_Burner_Request_t, burnerMask) == 72,
              "Control_Dev_Burner_Request_t::burnerMask offset");
static_assert(offsetof(Control_Dev_Burner_Request_t, emMode) == 76,
              "Control_Dev_Burner_Request_t::emMode offset");
static_assert(offsetof(Control_Dev_Burner_Request_t, emPack) == 80,
              "Control_Dev_Burner_Request_t::emPack offset");

// Case header written with a recording.
typedef struct tagDevBurnerInfoHeader {
    char m_deviceId[32];
    char m_password[64];
    char m_caseId[64];
    char m_trialSeq[256];
    char m_caseUnderTaker[256];
    char m_caseDep[256];
    char m_caseReason[256];
    char m_caseReferPerson[256];
    char m_caseRemark[256];
    char m_caseRecordName[256];
    char m_RecordNum[64];
    char m_recordPerson[256];
    bool m_dataCheckOsdEn;        // overlay data-check text
    bool m_AttachFileEn;          // burn attached files too
    bool m_multiBurnerDataCheck;  // verify across burners
    uint32_t m_multiBurnerDataCheckSpeed;
} DevBurnerInfoHeader_t;
static_assert(sizeof(DevBurnerInfoHeader_t) == 2280, "DevBurnerInfoHeader_t size");
static_assert(offsetof(DevBurnerInfoHeader_t, m_deviceId) == 0,
              "DevBurnerInfoHeader_t::m_deviceId offset");
static_assert(offsetof(DevBurnerInfoHeader_t, m_password) == 32,
              "DevBurnerInfoHeader_t::m_password offset");
static_assert(offsetof(DevBurnerInfoHeader_t, m_caseId) == 96,
              "DevBurnerInfoHeader_t::m_caseId offset");
static_assert(offsetof(DevBurnerInfoHeader_t, m_trialSeq) == 160,
              "DevBurnerInfoHeader_t::m_trialSeq offset");
static_assert(offsetof(DevBurnerInfoHeader_t, m_caseUnderTaker) == 416,
              "DevBurnerInfoHeader_t::m_caseUnderTaker offset");
static_assert(offsetof(DevBurnerInfoHeader_t, m_caseDep) == 672,
              "DevBurnerInfoHeader_t::m_caseDep offset");
static_assert(offsetof(DevBurnerInfoHeader_t, m_caseReason) == 928,
              "DevBurnerInfoHeader_t::m_caseReason offset");
static_assert(offsetof(DevBurnerInfoHeader_t, m_caseReferPerson) == 1184,
              "DevBurnerInfoHeader_t::m_caseReferPerson offset");
static_assert(offsetof(DevBurnerInfoHeader_t, m_caseRemark) == 1440,
              "DevBurnerInfoHeader_t::m_caseRemark offset");
static_assert(offsetof(DevBurnerInfoHeader_t, m_caseRecordName) == 1696,
              "DevBurnerInfoHeader_t::m_caseRecordName offset");
static_assert(offsetof(DevBurnerInfoHeader_t, m_RecordNum) == 1952,
              "DevBurnerInfoHeader_t::m_RecordNum offset");
static_assert(offsetof(DevBurnerInfoHeader_t, m_recordPerson) == 2016,
              "DevBurnerInfoHeader_t::m_recordPerson offset");
static_assert(offsetof(DevBurnerInfoHeader_t, m_dataCheckOsdEn) == 2272,
              "DevBurnerInfoHeader_t::m_dataCheckOsdEn offset");
static_assert(offsetof(DevBurnerInfoHeader_t, m_AttachFileEn) == 2273,
              "DevBurnerInfoHeader_t::m_AttachFileEn offset");
static_assert(offsetof(DevBurnerInfoHeader_t, m_multiBurnerDataCheck) == 2274,
              "DevBurnerInfoHeader_t::m_multiBurnerDataCheck offset");
static_assert(offsetof(DevBurnerInfoHeader_t, m_multiBurnerDataCheckSpeed) == 2276,
              "DevBurnerInfoHeader_t::m_multiBurnerDataCheckSpeed offset");

// Display names of the case form's fields.
typedef struct tagTrialFormAttrName {
    char m_caseIdAttr[32];
    char m_trialSeqAttr[32];
    char m_caseUnderTakerAttr[32];
    char m_caseDepAttr[32];
    char m_caseReasonAttr[32];
    char m_caseReferPersonAttr[32];
    char m_caseRemarkAttr[32];
    char m_caseRecordNameAttr[32];
    char m_trialObjNameAttr[32];
    char m_trialObjSexAttr[32];
    char m_trialObjIDAttr[32];
    char m_trialObjNationAttr[32];
    char m_trialObjBirthdayAttr[32];
    char m_trialObjHomeAddrAttr[32];
    char m_trialObjWorkUnitsAttr[32];
    char m_trialObjTelephoneAttr[32];
    char m_CDIDAttr[32];
    char m_recordPersonAttr[32];
    char m_caseAssistantAttr[32];
    char m_trialObjAgeAttr[32];
} TrialFormAttrName_t;
static_assert(sizeof(TrialFormAttrName_t) == 640, "TrialFormAttrName_t size");
static_assert(offsetof(TrialFormAttrName_t, m_caseIdAttr) == 0,
              "TrialFormAttrName_t::m_caseIdAttr offset");
static_assert(offsetof(TrialFormAttrName_t, m_trialSeqAttr) == 32,
              "TrialFormAttrName_t::m_trialSeqAttr offset");
static_assert(offsetof(TrialFormAttrName_t, m_caseUnderTakerAttr) == 64,
              "TrialFormAttrName_t::m_caseUnderTakerAttr offset");
static_assert(offsetof(TrialFormAttrName_t, m_caseDepAttr) == 96,
              "TrialFormAttrName_t::m_caseDepAttr offset");
static_assert(offsetof(TrialFormAttrName_t, m_caseReasonAttr) == 128,
              "TrialFormAttrName_t::m_caseReasonAttr offset");
static_assert(offsetof(TrialFormAttrName_t, m_caseReferPersonAttr) == 160,
              "TrialFormAttrName_t::m_caseReferPersonAttr offset");
static_assert(offsetof(TrialFormAttrName_t, m_caseRemarkAttr) == 192,
              "TrialFormAttrName_t::m_caseRemarkAttr offset");
static_assert(offsetof(TrialFormAttrName_t, m_caseRecordNameAttr) == 224,
              "TrialFormAttrName_t::m_caseRecordNameAttr offset");
static_assert(offsetof(TrialFormAttrName_t, m_trialObjNameAttr) == 256,
              "TrialFormAttrName_t::m_trialObjNameAttr offset");
static_assert(offsetof(TrialFormAttrName_t, m_trialObjSexAttr) == 288,
              "TrialFormAttrName_t::m_trialObjSexAttr offset");
static_assert(offsetof(TrialFormAttrName_t, m_trialObjIDAttr) == 320,
              "TrialFormAttrName_t::m_trialObjIDAttr offset");
static_assert(offsetof(TrialFormAttrName_t, m_trialObjNationAttr) == 352,
              "TrialFormAttrName_t::m_trialObjNationAttr offset");
static_assert(offsetof(TrialFormAttrName_t, m_trialObjBirthdayAttr) == 384,
              "TrialFormAttrName_t::m_trialObjBirthdayAttr offset");
static_assert(offsetof(TrialFormAttrName_t, m_trialObjHomeAddrAttr) == 416,
              "TrialFormAttrName_t::m_trialObjHomeAddrAttr offset");
static_assert(offsetof(TrialFormAttrName_t, m_trialObjWorkUnitsAttr) == 448,
              "TrialFormAttrName_t::m_trialObjWorkUnitsAttr offset");
static_assert(offsetof(TrialFormAttrName_t, m_trialObjTelephoneAttr) == 480,
              "TrialFormAttrName_t::m_trialObjTelephoneAttr offset");
static_assert(offsetof(TrialFormAttrName_t, m_CDIDAttr) == 512,
              "TrialFormAttrName_t::m_CDIDAttr offset");
static_assert(offsetof(TrialFormAttrName_t, m_recordPersonAttr) == 544,
              "TrialFormAttrName_t::m_recordPersonAttr offset");
static_assert(offsetof(TrialFormAttrName_t, m_caseAssistantAttr) == 576,
              "TrialFormAttrName_t::m_caseAssistantAttr offset");
static_assert(offsetof(TrialFormAttrName_t, m_trialObjAgeAttr) == 608,
              "TrialFormAttrName_t::m_trialObjAgeAttr offset");

// --- Disks

// One disk of a recorder.
typedef struct tagSingleDiskInfo {
    int nDiskId;
    uint32_t uVolume;  // capacity
    uint32_t uFreeSpace;
    unsigned char diskState;
    unsigned char diskNum;
    unsigned char subareaNum;  // number of partitions
    unsigned char signal;
} Single_Disk_Info_t;
static_assert(sizeof(Single_Disk_Info_t) == 16, "Single_Disk_Info_t size");
static_assert(offsetof(Single_Disk_Info_t, nDiskId) == 0, "Single_Disk_Info_t::nDiskId offset");
static_assert(offsetof(Single_Disk_Info_t, uVolume) == 4, "Single_Disk_Info_t::uVolume offset");
static_assert(offsetof(Single_Disk_Info_t, uFreeSpace) == 8,
              "Single_Disk_Info_t::uFreeSpace offset");
static_assert(offsetof(Single_Disk_Info_t, diskState) == 12,
              "Single_Disk_Info_t::diskState offset");
static_assert(offsetof(Single_Disk_Info_t, diskNum) == 13, "Single_Disk_Info_t::diskNum offset");
static_assert(offsetof(Single_Disk_Info_t, subareaNum) == 14,
              "Single_Disk_Info_t::subareaNum offset");
static_assert(offsetof(Single_Disk_Info_t, signal) == 15, "Single_Disk_Info_t::signal offset");

// Disks of a recorder. The record owns pDiskInfoList.
typedef struct tagDiskInfo {
    char szDevId[64];
    int nDiskInfoSize;                  // disks filled
    Single_Disk_Info_t* pDiskInfoList;  // array of disks, released by the destructor

    tagDiskInfo() : nDiskInfoSize(0), pDiskInfoList(nullptr) {}
    ~tagDiskInfo() {
        nDiskInfoSize = 0;
        if (pDiskInfoList != nullptr) {
            delete[] pDiskInfoList;
            pDiskInfoList = nullptr;
        }
    }
} Device_Disk_Info_t;
static_assert(sizeof(Device_Disk_Info_t) == 80, "Device_Disk_Info_t size");
static_assert(offsetof(Device_Disk_Info_t, szDevId) == 0, "Device_Disk_Info_t::szDevId offset");
static_assert(offsetof(Device_Disk_Info_t, nDiskInfoSize) == 64,
              "Device_Disk_Info_t::nDiskInfoSize offset");
static_assert(offsetof(Device_Disk_Info_t, pDiskInfoList) == 72,
              "Device_Disk_Info_t::pDiskInfoList offset");

// --- Doors and linked resources

// Door command.
typedef struct tagSetDoorCmdRequest {
    char szCameraId[64];  // door channel
    Core_EnumSetDoorCmd cmd;
    int64_t start;  // start of the validity span
    int64_t end;    // end of the validity span
} SetDoorCmd_Request_t;
static_assert(sizeof(SetDoorCmd_Request_t) == 88, "SetDoorCmd_Request_t size");
static_assert(offsetof(SetDoorCmd_Request_t, szCameraId) == 0,
              "SetDoorCmd_Request_t::szCameraId offset");
static_assert(offsetof(SetDoorCmd_Request_t, cmd) == 64, "SetDoorCmd_Request_t::cmd offset");
static_assert(offsetof(SetDoorCmd_Request_t, start) == 72, "SetDoorCmd_Request_t::start offset");
static_assert(offsetof(SetDoorCmd_Request_t, end) == 80, "SetDoorCmd_Request_t::end offset");

// Link-resource XML; the caller owns the buffer.
typedef struct tagGetLinkResourceResponce {
    char* pXmlData;
    uint32_t nLen;  // size of pXmlData in bytes
} GetLinkResource_Responce_t;
static_assert(sizeof(GetLinkResource_Responce_t) == 16, "GetLinkResource_Responce_t size");
static_assert(offsetof(GetLinkResource_Responce_t, pXmlData) == 0,
              "GetLinkResource_Responce_t::pXmlData offset");
static_assert(offsetof(GetLinkResource_Responce_t, nLen) == 8,
              "GetLinkResource_Responce_t::nLen offset");

// --- Vehicle bays and people counting

// Subscription to vehicle records of bay cameras.
typedef struct tagSubscribeBayCarInfo {
    int32_t nChnlCount;
    Enc_Channel_Info_t* pEncChannelnfo;
    int32_t nSubscribeFlag;  // subscribe or cancel
} Subscribe_Bay_Car_Info_t;
static_assert(sizeof(Subscribe_Bay_Car_Info_t) == 24, "Subscribe_Bay_Car_Info_t size");
static_assert(offsetof(Subscribe_Bay_Car_Info_t, nChnlCount) == 0,
              "Subscribe_Bay_Car_Info_t::nChnlCount offset");
static_assert(offsetof(Subscribe_Bay_Car_Info_t, pEncChannelnfo) == 8,
              "Subscribe_Bay_Car_Info_t::pEncChannelnfo offset");
static_assert(offsetof(Subscribe_Bay_Car_Info_t, nSubscribeFlag) == 16,
              "Subscribe_Bay_Car_Info_t::nSubscribeFlag offset");

// One people-counting row.
typedef struct tagPerson_Count_Info {
    int nChannelID;
    char szRuleName[32];
    uint32_t nStartTime;
    uint32_t nEndTime;
    uint32_t nEnteredSubTotal;
    uint32_t nExitedSubtotal;
    uint32_t nAvgInside;
    uint32_t nMaxInside;
} Person_Count_Info_t;
static_assert(sizeof(Person_Count_Info_t) == 60, "Person_Count_Info_t size");
static_assert(offsetof(Person_Count_Info_t, nChannelID) == 0,
              "Person_Count_Info_t::nChannelID offset");
static_assert(offsetof(Person_Count_Info_t, szRuleName) == 4,
              "Person_Count_Info_t::szRuleName offset");
static_assert(offsetof(Person_Count_Info_t, nStartTime) == 36,
              "Person_Count_Info_t::nStartTime offset");
static_assert(offsetof(Person_Count_Info_t, nEndTime) == 40,
              "Person_Count_Info_t::nEndTime offset");
static_assert(offsetof(Person_Count_Info_t, nEnteredSubTotal) == 44,
              "Person_Count_Info_t::nEnteredSubTotal offset");
static_assert(offsetof(Person_Count_Info_t, nExitedSubtotal) == 48,
              "Person_Count_Info_t::nExitedSubtotal offset");
static_assert(offsetof(Person_Count_Info_t, nAvgInside) == 52,
              "Person_Count_Info_t::nAvgInside offset");
static_assert(offsetof(Person_Count_Info_t, nMaxInside) == 56,
              "Person_Count_Info_t::nMaxInside offset");
