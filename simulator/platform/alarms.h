// Alarms of the simulated site: what each instance receives, the platform's alarm history,
// alarm schemes, phone subscriptions, and alarms raised by clients and alarm hosts.
//
// Reception: an instance receives nothing until it enables sources. Each EnableAlarm or
// EnableAlarmByDepartment call adds its sources to what the instance already receives;
// DisableAlarm switches everything off again; logging out forgets it. A source by device
// matches alarms of the device (szAlarmDevId may also name the channel or alarm input itself),
// one by department those of the devices of the department and its sub-departments. nVideoNo
// and nAlarmInput pick one channel or alarm input by its 1-based number within the device
// (0 or less: all), nAlarmType one type (0: all). An unknown device or department refuses the
// whole call (ORVEX_CORE_ERROR_DEVICE_NOT_FOUND, ORVEX_CORE_ERROR_GROUP_NOT_FOUND) and changes
// nothing.
//
// Raised alarms: the scenario's scheduled alarms run on each session's own timeline, counted
// from its login, and reach that session only; alarms sent by a client
// (ORVEX_SendAlarmToServer) and those of alarm hosts reach every session that enabled them.
// Every alarm raised is kept in the history, the newest kHistoryLimit of them, whether anyone
// received it or not.
//
// History queries: szCameraId names a channel, an alarm input or a device (empty: all),
// nAlarmType a type (0: all), [uStartTime, uEndTime] the span in seconds (uEndTime 0: open).
// Matches are in the order they were raised; nFirstNum is the 0-based position of the first
// record to return.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "ORVEX_Core_Define.h"
#include "site_model.h"

namespace orvexsim::platform {

constexpr std::size_t kHistoryLimit = 1000;
constexpr uint32_t kAlarmLevel = 2;

int32_t PhoneSubscribeAlarm(int32_t handle, orvex_phone_subscribe_alarm_t* info);
int32_t EnableAlarm(int32_t handle, const Alarm_Enable_Info_t* info);
int32_t EnableAlarmByDepartment(int32_t handle, const Alarm_Enable_By_Dep_Info_t* info);
int32_t DisableAlarm(int32_t handle);

int32_t QueryAlarmCount(int32_t handle, const Alarm_Query_Info_t* query, int32_t* count);
int32_t QueryAlarmInfo(int32_t handle, const Alarm_Query_Info_t* query, Alarm_Info_t* page,
                       int32_t firstNum, int32_t queryCount);

int32_t GetAlarmSchemeCount(int32_t handle, uint32_t* count);
// Fills min(capacity, schemes) records in scheme order.
int32_t GetAlarmSchemeList(int32_t handle, AlarmSchemeInfo_t* list, int32_t capacity);
// id 0 adds a scheme under the next free identifier; an existing id replaces that scheme; an
// unknown id is ORVEX_CORE_ERROR_NOT_FOUND. The name must not be empty, the status 0 or 1.
// Saving needs a user allowed to operate devices.
int32_t SaveAlarmScheme(int32_t handle, const AlarmSchemeInfo_t* scheme);
// szCameraId names a channel or an alarm input; uAlarmTime 0 stands for now.
int32_t SendAlarmToServer(int32_t handle, const Client_Alarm_Info_t* alarm);

// Where an alarm comes from, as the callback and the history report it.
struct AlarmOrigin {
    std::string source;  // channel, alarm input or zone identifier
    std::string sourceName;
    std::string device;
    std::string deviceName;
    int32_t deviceType = 0;
    std::string department;
    bool isChannel = false;  // else an alarm input or a zone
    uint32_t number = 0;     // 1-based among the device's channels or alarm inputs
};
// A channel or alarm input of the site; false when `id` is neither.
bool DescribeSource(const Site& site, const std::string& id, AlarmOrigin* origin);

struct RaisedAlarm {
    int32_t type = 0;
    int32_t event = ALARM_EVENT_OCCUR;
    uint64_t time = 0;  // 0: now
    std::string message;
};
// Records the alarm and delivers it to every instance that enabled it (`onlyTo` non-zero: to
// that instance only, if it enabled it). Call with the platform mutex held.
void RaiseAlarmLocked(const AlarmOrigin& origin, const RaisedAlarm& alarm, int32_t onlyTo = 0);

// Forgets the history and every subscription (tests).
void ResetAlarms();

}  // namespace orvexsim::platform
