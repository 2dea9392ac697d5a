// Device lists and status, alarm hosts, video wall, evidence burner and disks.
#include "ORVEX_Core.h"
#include "platform/burner_disks.h"
#include "platform/status_hosts.h"
#include "platform/wall.h"
#include "sim_core.h"
#include "sim_exports.h"

using orvexsim::ArrayBytes;
using orvexsim::CallRecord;
using orvexsim::CommandCall;
using orvexsim::FillCall;
using orvexsim::OutRecords;
namespace platform = orvexsim::platform;

extern "C" {

int32_t ORVEX_GetDeviceListLen(int32_t nHandle, int32_t* pnLen, int32_t nTimeout) {
    return CallRecord("ORVEX_GetDeviceListLen")
        .scalar("nHandle", nHandle)
        .out("pnLen", pnLen)
        .scalar("nTimeout", nTimeout)
        .finish([&] { return platform::GetDeviceListLen(nHandle, pnLen); });
}

int32_t ORVEX_GetDeviceListStr(int32_t nHandle, char* szDevList, int32_t nLen, int32_t nTimeout) {
    return CallRecord("ORVEX_GetDeviceListStr")
        .scalar("nHandle", nHandle)
        .out("szDevList", szDevList, ArrayBytes<char>(nLen))
        .scalar("nLen", nLen)
        .scalar("nTimeout", nTimeout)
        .finish([&] { return platform::GetDeviceListStr(nHandle, szDevList, nLen); });
}

int32_t ORVEX_GetDevicesInfoLen(int32_t nHandle, int32_t* pnLen) {
    return CallRecord("ORVEX_GetDevicesInfoLen")
        .scalar("nHandle", nHandle)
        .out("pnLen", pnLen)
        .finish([&] { return platform::GetDevicesInfoLen(nHandle, pnLen); });
}

int32_t ORVEX_GetDevicesInfoStr(int32_t nHandle, char* szDevicesInfo, int32_t nLen) {
    return CallRecord("ORVEX_GetDevicesInfoStr")
        .scalar("nHandle", nHandle)
        .out("szDevicesInfo", szDevicesInfo, ArrayBytes<char>(nLen))
        .scalar("nLen", nLen)
        .finish([&] { return platform::GetDevicesInfoStr(nHandle, szDevicesInfo, nLen); });
}

int32_t ORVEX_GetChannelStatus(int32_t nHandle, const char* szCameraId,
                               orvex_dev_status_e* pStatus) {
    return CallRecord("ORVEX_GetChannelStatus")
        .scalar("nHandle", nHandle)
        .text("szCameraId", szCameraId)
        .out("pStatus", pStatus)
        .finish([&] { return platform::GetChannelStatus(nHandle, szCameraId, pStatus); });
}

int32_t ORVEX_GetDeviceTypeByDevId(int32_t nHandle, const char* szDeviceId,
                                   orvex_dev_type_e* pDevType) {
    return CallRecord("ORVEX_GetDeviceTypeByDevId")
        .scalar("nHandle", nHandle)
        .text("szDeviceId", szDeviceId)
        .out("pDevType", pDevType)
        .finish([&] { return platform::GetDeviceType(nHandle, szDeviceId, pDevType); });
}

int32_t ORVEX_ControlVideoAlarmHost(int32_t nHandle, const char* szDeviceId, int32_t nChannelId,
                                    int32_t nControlType, int32_t nTimeout) {
    return CallRecord("ORVEX_ControlVideoAlarmHost")
        .scalar("nHandle", nHandle)
        .text("szDeviceId", szDeviceId)
        .scalar("nChannelId", nChannelId)
        .scalar("nControlType", nControlType)
        .scalar("nTimeout", nTimeout)
        .finish([&] {
            return platform::ControlVideoAlarmHost(nHandle, szDeviceId, nChannelId, nControlType);
        });
}

int32_t ORVEX_ControlNetAlarmHostCmd(int32_t nHandle, const char* szId, int32_t nOptType,
                                     int32_t nControlType, int64_t nStartTime, int64_t nEndTime,
                                     int32_t nTimeout) {
    return CallRecord("ORVEX_ControlNetAlarmHostCmd")
        .scalar("nHandle", nHandle)
        .text("szId", szId)
        .scalar("nOptType", nOptType)
        .scalar("nControlType", nControlType)
        .scalar("nStartTime", nStartTime)
        .scalar("nEndTime", nEndTime)
        .scalar("nTimeout", nTimeout)
        .finish([&] {
            return platform::ControlNetAlarmHostCmd(nHandle, szId, nOptType, nControlType,
                                                    nStartTime, nEndTime);
        });
}

int32_t ORVEX_GetAlarmInChannelInfo(int32_t nHandle, Get_AlarmInChannel_Info_t* pInfo) {
    CallRecord call("ORVEX_GetAlarmInChannelInfo");
    call.scalar("nHandle", nHandle).out("pInfo", pInfo);
    OutRecords(call, "pInfo.pAlarmInChannelnfo", pInfo,
               &Get_AlarmInChannel_Info_t::pAlarmInChannelnfo,
               &Get_AlarmInChannel_Info_t::nAlarmInChannelCount);
    return call.finish([&] { return platform::GetAlarmInChannelInfo(nHandle, pInfo); });
}

int32_t ORVEX_QueryNetAlarmHostChannelCount(int32_t nHandle, const char* szDeviceId,
                                            int32_t* pnCount, int32_t nTimeout) {
    return CallRecord("ORVEX_QueryNetAlarmHostChannelCount")
        .scalar("nHandle", nHandle)
        .text("szDeviceId", szDeviceId)
        .out("pnCount", pnCount)
        .scalar("nTimeout", nTimeout)
        .finish(
            [&] { return platform::QueryNetAlarmHostChannelCount(nHandle, szDeviceId, pnCount); });
}

int32_t ORVEX_QueryNetAlarmHostStatus(int32_t nHandle, const char* szDeviceId,
                                      int32_t nChannelCount, orvex_AHostDefenceStatus_t* pInfo,
                                      int32_t nTimeout) {
    return CallRecord("ORVEX_QueryNetAlarmHostStatus")
        .scalar("nHandle", nHandle)
        .text("szDeviceId", szDeviceId)
        .scalar("nChannelCount", nChannelCount)
        .out("pInfo", pInfo, ArrayBytes<orvex_AHostDefenceStatus_t>(nChannelCount))
        .scalar("nTimeout", nTimeout)
        .finish([&] {
            return platform::QueryNetAlarmHostStatus(nHandle, szDeviceId, nChannelCount, pInfo);
        });
}

int32_t ORVEX_GetNetAlarmHostStatus(int32_t nHandle, int32_t nChannelCount,
                                    orvex_AHostDefenceStatus_t* pInfo) {
    return CallRecord("ORVEX_GetNetAlarmHostStatus")
        .scalar("nHandle", nHandle)
        .scalar("nChannelCount", nChannelCount)
        .out("pInfo", pInfo, ArrayBytes<orvex_AHostDefenceStatus_t>(nChannelCount))
        .finish([&] { return platform::GetNetAlarmHostStatus(nHandle, nChannelCount, pInfo); });
}

int32_t ORVEX_GetTvWallListCount(int32_t nHandle, uint32_t* pnCount, int32_t nTimeout) {
    return CallRecord("ORVEX_GetTvWallListCount")
        .scalar("nHandle", nHandle)
        .out("pnCount", pnCount)
        .scalar("nTimeout", nTimeout)
        .finish([=] { return platform::GetTvWallListCount(nHandle, pnCount); });
}

int32_t ORVEX_GetTvWallList(int32_t nHandle, TvWall_List_Info_t* pInfo) {
    CallRecord call("ORVEX_GetTvWallList");
    call.scalar("nHandle", nHandle).out("pInfo", pInfo);
    OutRecords(call, "pInfo.pTvWallInfo", pInfo, &TvWall_List_Info_t::pTvWallInfo,
               &TvWall_List_Info_t::nCount);
    return call.finish([=] { return platform::GetTvWallList(nHandle, pInfo); });
}

int32_t ORVEX_GetTvWallLayoutCount(int32_t nHandle, uint32_t nTvWallId, uint32_t* pnCount,
                                   int32_t nTimeout) {
    return CallRecord("ORVEX_GetTvWallLayoutCount")
        .scalar("nHandle", nHandle)
        .scalar("nTvWallId", nTvWallId)
        .out("pnCount", pnCount)
        .scalar("nTimeout", nTimeout)
        .finish([=] { return platform::GetTvWallLayoutCount(nHandle, nTvWallId, pnCount); });
}

int32_t ORVEX_GetTvWallLayout(int32_t nHandle, TvWall_Layout_Info_t* pInfo) {
    CallRecord call("ORVEX_GetTvWallLayout");
    call.scalar("nHandle", nHandle).out("pInfo", pInfo);
    OutRecords(call, "pInfo.pScreenInfo", pInfo, &TvWall_Layout_Info_t::pScreenInfo,
               &TvWall_Layout_Info_t::nCount);
    return call.finish([=] { return platform::GetTvWallLayout(nHandle, pInfo); });
}

int32_t ORVEX_SetTvWallScreenWindowSource(int32_t nHandle, Set_TvWall_Screen_Window_Source_t* pInfo,
                                          int32_t nTimeout) {
    return CommandCall("ORVEX_SetTvWallScreenWindowSource", nHandle, pInfo, nTimeout,
                       [=] { return platform::SetTvWallScreenWindowSource(nHandle, pInfo); });
}

int32_t ORVEX_CloseTvWallScreenWindowSource(int32_t nHandle, TvWall_Screen_Close_Source_t* pInfo,
                                            int32_t nTimeout) {
    return CommandCall("ORVEX_CloseTvWallScreenWindowSource", nHandle, pInfo, nTimeout,
                       [=] { return platform::CloseTvWallScreenWindowSource(nHandle, pInfo); });
}

int32_t ORVEX_SetTvWallScreenSplit(int32_t nHandle, TvWall_Screen_Split_t* pInfo,
                                   int32_t nTimeout) {
    return CommandCall("ORVEX_SetTvWallScreenSplit", nHandle, pInfo, nTimeout,
                       [=] { return platform::SetTvWallScreenSplit(nHandle, pInfo); });
}

int32_t ORVEX_TvWallScreenOpenWindow(int32_t nHandle, TvWall_Screen_Open_Window_t* pInfo,
                                     int32_t nTimeout) {
    // The library answers with the new window's identifier and stacking order.
    return FillCall("ORVEX_TvWallScreenOpenWindow", nHandle, pInfo, nTimeout,
                    [=] { return platform::TvWallScreenOpenWindow(nHandle, pInfo); });
}

int32_t ORVEX_ClearTvWallScreen(int32_t nHandle, uint32_t nTvWallId, int32_t nTimeout) {
    return CallRecord("ORVEX_ClearTvWallScreen")
        .scalar("nHandle", nHandle)
        .scalar("nTvWallId", nTvWallId)
        .scalar("nTimeout", nTimeout)
        .finish([=] { return platform::ClearTvWallScreen(nHandle, nTvWallId); });
}

int32_t ORVEX_ClearTvWallScreenByDecodeId(int32_t nHandle, uint32_t nTvWallId,
                                          const char* szDecodeId, int32_t nTimeout) {
    return CallRecord("ORVEX_ClearTvWallScreenByDecodeId")
        .scalar("nHandle", nHandle)
        .scalar("nTvWallId", nTvWallId)
        .text("szDecodeId", szDecodeId)
        .scalar("nTimeout", nTimeout)
        .finish([=] {
            // A missing decoder must not read as "every decoder".
            return szDecodeId == nullptr
                       ? int32_t{ORVEX_CORE_ERROR_INVALID_PARAM}
                       : platform::ClearTvWallScreenByDecodeId(nHandle, nTvWallId, szDecodeId);
        });
}

int32_t ORVEX_ControlDevBurner(int32_t nHandle, Control_Dev_Burner_Request_t* pInfo,
                               int32_t nTimeout) {
    return CommandCall("ORVEX_ControlDevBurner", nHandle, pInfo, nTimeout,
                       [=] { return platform::ControlDevBurner(nHandle, pInfo); });
}

int32_t ORVEX_SetDevBurnerHeader(int32_t nHandle, DevBurnerInfoHeader_t* pHeader,
                                 TrialFormAttrName_t* pAttrName, int32_t nTimeout) {
    return CallRecord("ORVEX_SetDevBurnerHeader")
        .scalar("nHandle", nHandle)
        .record("pHeader", pHeader)
        .record("pAttrName", pAttrName)
        .scalar("nTimeout", nTimeout)
        .finish([=] { return platform::SetDevBurnerHeader(nHandle, pHeader, pAttrName); });
}

int32_t ORVEX_GetDeviceDiskInfoCount(int32_t nHandle, const char* szDeviceId, int32_t* pnCount,
                                     int32_t* pnSequence, int32_t nTimeout) {
    return CallRecord("ORVEX_GetDeviceDiskInfoCount")
        .scalar("nHandle", nHandle)
        .text("szDeviceId", szDeviceId)
        .out("pnCount", pnCount)
        .out("pnSequence", pnSequence)
        .scalar("nTimeout", nTimeout)
        .finish([=] {
            return platform::GetDeviceDiskInfoCount(nHandle, szDeviceId, pnCount, pnSequence);
        });
}

int32_t ORVEX_GetDeviceDiskInfo(int32_t nHandle, int32_t nSequence, Device_Disk_Info_t* pInfo) {
    CallRecord call("ORVEX_GetDeviceDiskInfo");
    call.scalar("nHandle", nHandle).scalar("nSequence", nSequence).out("pInfo", pInfo);
    if (pInfo != nullptr) {
        // The library is not told the capacity of the disk list (nDiskInfoSize is an output):
        // it is recorded and writable only as far as a test declared it.
        call.out("pInfo.pDiskInfoList", pInfo->pDiskInfoList,
                 orvexsim::takeDeclaredCapacity("ORVEX_GetDeviceDiskInfo", "pInfo.pDiskInfoList"));
    }
    return call.finish([=] { return platform::GetDeviceDiskInfo(nHandle, nSequence, pInfo); });
}

}  // extern "C"
