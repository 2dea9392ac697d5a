// Device lists and states, and alarm hosts.
//
// The platform's answers for device lists and states. The lists are XML texts, fetched length
// first (without a terminator) and then into a buffer of that length; they need a login only.
//
// Alarm hosts of the simulated site: the alarm inputs of recorders (video alarm hosts) and the
// zones of network alarm hosts (Site::alarmHosts), with their arming, bypass and alarm states.
//
// Video alarm host commands name a device with alarm inputs and an input by its 1-based
// number; nControlType is one of VideoHostControl. Network alarm host commands name a host
// (every zone) or one zone; nOptType is one of NetHostOperation, nControlType one of
// NetHostTiming: NetHostNow applies the operation at once, NetHostSpan applies it at once and
// undoes it when the end time (seconds since the epoch) passes, while the commanding instance
// exists. An alarm on an armed input or an armed zone that is not bypassed raises an external
// alarm (see alarms.h); its clearing raises the disappearance. Every change is reported to every
// logged-in instance through the host status callbacks: the video kind with the input's number
// and its HostState bits; the network kind with the host's identifier, the zone's 1-based number
// as nRType, the operation as nOperType and the zone's HostState bits as nStatus.
//
// Commands need a user allowed to operate devices (else ORVEX_CORE_ERROR_NO_PERMISSION).
#pragma once

#include <cstdint>

#include "ORVEX_Core_Define.h"

namespace orvexsim::platform {

// ----- Device lists and states

int32_t GetDeviceListLen(int32_t handle, int32_t* len);
int32_t GetDeviceListStr(int32_t handle, char* buffer, int32_t len);
int32_t GetDevicesInfoLen(int32_t handle, int32_t* len);
int32_t GetDevicesInfoStr(int32_t handle, char* buffer, int32_t len);
// Channels and alarm inputs: online only while their device is online too.
int32_t GetChannelStatus(int32_t handle, const char* cameraId, orvex_dev_status_e* status);
int32_t GetDeviceType(int32_t handle, const char* deviceId, orvex_dev_type_e* type);

// ----- Alarm hosts

enum VideoHostControl : int32_t {
    VideoHostDisarm = 0,
    VideoHostArm = 1,
    VideoHostAlarm = 2,
    VideoHostClear = 3
};
enum NetHostOperation : int32_t {
    NetHostArm = 1,
    NetHostDisarm = 2,
    NetHostBypass = 3,
    NetHostUnbypass = 4,
    NetHostAlarm = 5,
    NetHostClear = 6
};
enum NetHostTiming : int32_t { NetHostNow = 0, NetHostSpan = 1 };
enum HostState : int32_t { HostArmed = 1, HostBypassed = 2, HostAlarm = 4 };

int32_t ControlVideoAlarmHost(int32_t handle, const char* deviceId, int32_t channel,
                              int32_t control);
int32_t ControlNetAlarmHostCmd(int32_t handle, const char* id, int32_t operation, int32_t timing,
                               int64_t start, int64_t end);
// The device's alarm inputs, at most nAlarmInChannelCount; the count is lowered to what was
// filled. nStatus is an orvex_dev_status_e value.
int32_t GetAlarmInChannelInfo(int32_t handle, Get_AlarmInChannel_Info_t* info);
int32_t QueryNetAlarmHostChannelCount(int32_t handle, const char* deviceId, int32_t* count);
// The host's zones, at most `count` records, in zone order.
int32_t QueryNetAlarmHostStatus(int32_t handle, const char* deviceId, int32_t count,
                                orvex_AHostDefenceStatus_t* out);
// The zones of every alarm host of the site, in site order, at most `count` records.
int32_t GetNetAlarmHostStatus(int32_t handle, int32_t count, orvex_AHostDefenceStatus_t* out);

}  // namespace orvexsim::platform
