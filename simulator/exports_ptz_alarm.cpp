// PTZ control, preset points, alarm subscription, alarm history and alarm schemes; the
// simulated platform answers them in platform/ptz and platform/alarms.
#include "ORVEX_Core.h"
#include "platform/alarms.h"
#include "platform/ptz.h"
#include "sim_core.h"
#include "sim_exports.h"

using orvexsim::ArrayBytes;
using orvexsim::CallRecord;
using orvexsim::CommandCall;
using orvexsim::FillCall;
using orvexsim::InRecords;
using orvexsim::OutRecords;
namespace platform = orvexsim::platform;

extern "C" {

int32_t ORVEX_PtzDirection(int32_t nHandle, Ptz_Direct_Info_t* pInfo, int32_t nTimeout) {
    return CommandCall("ORVEX_PtzDirection", nHandle, pInfo, nTimeout,
                       [&] { return platform::PtzDirection(nHandle, pInfo); });
}

int32_t ORVEX_PtzCameraOperation(int32_t nHandle, Ptz_Operation_Info_t* pInfo, int32_t nTimeout) {
    return CommandCall("ORVEX_PtzCameraOperation", nHandle, pInfo, nTimeout,
                       [&] { return platform::PtzCameraOperation(nHandle, pInfo); });
}

int32_t ORVEX_PtzSit(int32_t nHandle, Ptz_Sit_Info_t* pInfo, int32_t nTimeout) {
    return CommandCall("ORVEX_PtzSit", nHandle, pInfo, nTimeout,
                       [&] { return platform::PtzSit(nHandle, pInfo); });
}

int32_t ORVEX_PtzLockCamera(int32_t nHandle, Ptz_Lock_Info_t* pInfo, int32_t nTimeout) {
    return CommandCall("ORVEX_PtzLockCamera", nHandle, pInfo, nTimeout,
                       [&] { return platform::PtzLockCamera(nHandle, pInfo); });
}

int32_t ORVEX_PtzExtendCommand(int32_t nHandle, Ptz_Extend_Command_Info_t* pInfo,
                               int32_t nTimeout) {
    return CommandCall("ORVEX_PtzExtendCommand", nHandle, pInfo, nTimeout,
                       [&] { return platform::PtzExtendCommand(nHandle, pInfo); });
}

int32_t ORVEX_PtzLightControl(int32_t nHandle, Ptz_Open_Command_Info_t* pInfo, int32_t nTimeout) {
    return CommandCall("ORVEX_PtzLightControl", nHandle, pInfo, nTimeout,
                       [&] { return platform::PtzLightControl(nHandle, pInfo); });
}

int32_t ORVEX_PtzRainBrushControl(int32_t nHandle, Ptz_Open_Command_Info_t* pInfo,
                                  int32_t nTimeout) {
    return CommandCall("ORVEX_PtzRainBrushControl", nHandle, pInfo, nTimeout,
                       [&] { return platform::PtzRainBrushControl(nHandle, pInfo); });
}

int32_t ORVEX_QueryPrePoint(int32_t nHandle, Ptz_Prepoint_Info_t* pInfo, int32_t nTimeout) {
    // The presets are held inline, so the structure itself is the output.
    return FillCall("ORVEX_QueryPrePoint", nHandle, pInfo, nTimeout,
                    [&] { return platform::QueryPrePoint(nHandle, pInfo); });
}

int32_t ORVEX_PtzPrePointOperation(int32_t nHandle, Ptz_Prepoint_Operation_Info_t* pInfo,
                                   int32_t nTimeout) {
    return CommandCall("ORVEX_PtzPrePointOperation", nHandle, pInfo, nTimeout,
                       [&] { return platform::PtzPrePointOperation(nHandle, pInfo); });
}

int32_t ORVEX_PhoneSubscribeAlarm(int32_t nHandle, orvex_phone_subscribe_alarm_t* pInfo,
                                  int32_t nTimeout) {
    // In-out: the library may rewrite the subscription flag it reports back.
    return FillCall("ORVEX_PhoneSubscribeAlarm", nHandle, pInfo, nTimeout,
                    [&] { return platform::PhoneSubscribeAlarm(nHandle, pInfo); });
}

int32_t ORVEX_EnableAlarm(int32_t nHandle, Alarm_Enable_Info_t* pInfo, int32_t nTimeout) {
    CallRecord call("ORVEX_EnableAlarm");
    call.scalar("nHandle", nHandle).record("pInfo", pInfo);
    InRecords(call, "pInfo.pSources", pInfo, &Alarm_Enable_Info_t::pSources,
              &Alarm_Enable_Info_t::nCount);
    return call.scalar("nTimeout", nTimeout).finish([&] {
        return platform::EnableAlarm(nHandle, pInfo);
    });
}

int32_t ORVEX_EnableAlarmByDepartment(int32_t nHandle, Alarm_Enable_By_Dep_Info_t* pInfo,
                                      int32_t nTimeout) {
    CallRecord call("ORVEX_EnableAlarmByDepartment");
    call.scalar("nHandle", nHandle).record("pInfo", pInfo);
    InRecords(call, "pInfo.pSources", pInfo, &Alarm_Enable_By_Dep_Info_t::pSources,
              &Alarm_Enable_By_Dep_Info_t::nCount);
    return call.scalar("nTimeout", nTimeout).finish([&] {
        return platform::EnableAlarmByDepartment(nHandle, pInfo);
    });
}

int32_t ORVEX_DisableAlarm(int32_t nHandle, int32_t nTimeout) {
    return CallRecord("ORVEX_DisableAlarm")
        .scalar("nHandle", nHandle)
        .scalar("nTimeout", nTimeout)
        .finish([&] { return platform::DisableAlarm(nHandle); });
}

int32_t ORVEX_QueryAlarmCount(int32_t nHandle, Alarm_Query_Info_t* pInfo, int32_t* pnCount,
                              int32_t nTimeout) {
    return CallRecord("ORVEX_QueryAlarmCount")
        .scalar("nHandle", nHandle)
        .record("pInfo", pInfo)
        .out("pnCount", pnCount)
        .scalar("nTimeout", nTimeout)
        .finish([&] { return platform::QueryAlarmCount(nHandle, pInfo, pnCount); });
}

int32_t ORVEX_QueryAlarmInfo(int32_t nHandle, Alarm_Query_Info_t* pQueryInfo,
                             Alarm_Info_t* pAlarmInfo, int32_t nFirstNum, int32_t nQueryCount,
                             int32_t nTimeout) {
    CallRecord call("ORVEX_QueryAlarmInfo");
    call.scalar("nHandle", nHandle).record("pQueryInfo", pQueryInfo).out("pAlarmInfo", pAlarmInfo);
    OutRecords(call, "pAlarmInfo.pAlarmInfo", pAlarmInfo, &Alarm_Info_t::pAlarmInfo,
               &Alarm_Info_t::nCount);
    return call.scalar("nFirstNum", nFirstNum)
        .scalar("nQueryCount", nQueryCount)
        .scalar("nTimeout", nTimeout)
        .finish([&] {
            return platform::QueryAlarmInfo(nHandle, pQueryInfo, pAlarmInfo, nFirstNum,
                                            nQueryCount);
        });
}

int32_t ORVEX_GetAlarmSchemeCount(int32_t nHandle, uint32_t* pnCount, int32_t nTimeout) {
    return CallRecord("ORVEX_GetAlarmSchemeCount")
        .scalar("nHandle", nHandle)
        .out("pnCount", pnCount)
        .scalar("nTimeout", nTimeout)
        .finish([&] { return platform::GetAlarmSchemeCount(nHandle, pnCount); });
}

int32_t ORVEX_GetAlarmSchemeList(int32_t nHandle, AlarmSchemeInfo_t* pInfo, int32_t nCount,
                                 int32_t nTimeout) {
    return CallRecord("ORVEX_GetAlarmSchemeList")
        .scalar("nHandle", nHandle)
        .out("pInfo", pInfo, ArrayBytes<AlarmSchemeInfo_t>(nCount))
        .scalar("nCount", nCount)
        .scalar("nTimeout", nTimeout)
        .finish([&] { return platform::GetAlarmSchemeList(nHandle, pInfo, nCount); });
}

int32_t ORVEX_SaveAlarmScheme(int32_t nHandle, AlarmSchemeInfo_t* pInfo, int32_t nTimeout) {
    return CommandCall("ORVEX_SaveAlarmScheme", nHandle, pInfo, nTimeout,
                       [&] { return platform::SaveAlarmScheme(nHandle, pInfo); });
}

int32_t ORVEX_SendAlarmToServer(int32_t nHandle, Client_Alarm_Info_t* pInfo, int32_t nTimeout) {
    return CommandCall("ORVEX_SendAlarmToServer", nHandle, pInfo, nTimeout,
                       [&] { return platform::SendAlarmToServer(nHandle, pInfo); });
}

}  // extern "C"
