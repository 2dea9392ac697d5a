// Login and user account, organisation tree, devices, channels and logical organisation.
#include "ORVEX_Core.h"
#include "platform/catalogue.h"
#include "platform/session.h"
#include "sim_core.h"
#include "sim_exports.h"

using orvexsim::ArrayBytes;
using orvexsim::CallRecord;
using orvexsim::CommandCall;
using orvexsim::FillCall;
using orvexsim::OutRecords;
namespace site = orvexsim::platform;

namespace {

// Callers of ORVEX_GetLogicID hand over a buffer of this many bytes; the size is not passed.
constexpr std::size_t kCodeIdSize = site::kLogicIdSize;

}  // namespace

extern "C" {

int32_t ORVEX_Login(int32_t nHandle, Login_Info_t* pInfo, int32_t nTimeout) {
    return CommandCall("ORVEX_Login", nHandle, pInfo, nTimeout,
                       [&] { return site::Login(nHandle, pInfo); });
}

int32_t ORVEX_Logout(int32_t nHandle, int32_t nTimeout) {
    return CallRecord("ORVEX_Logout")
        .scalar("nHandle", nHandle)
        .scalar("nTimeout", nTimeout)
        .finish([&] { return site::Logout(nHandle); });
}

int32_t ORVEX_GetUserID(int32_t nHandle, uint32_t* pnUserId) {
    return CallRecord("ORVEX_GetUserID")
        .scalar("nHandle", nHandle)
        .out("pnUserId", pnUserId)
        .finish([&] { return site::GetUserId(nHandle, pnUserId); });
}

int32_t ORVEX_GetUserLevel(int32_t nHandle, uint32_t* pnUserLevel) {
    return CallRecord("ORVEX_GetUserLevel")
        .scalar("nHandle", nHandle)
        .out("pnUserLevel", pnUserLevel)
        .finish([&] { return site::GetUserLevel(nHandle, pnUserLevel); });
}

int32_t ORVEX_GetUserInfo(int32_t nHandle, ORVEX_UserInfo_t* pInfo, int32_t nTimeout) {
    return FillCall("ORVEX_GetUserInfo", nHandle, pInfo, nTimeout,
                    [&] { return site::GetUserInfo(nHandle, pInfo); });
}

int32_t ORVEX_ChangeUserPassword(int32_t nHandle, const char* szOldPsw, const char* szNewPsw,
                                 int32_t nTimeout) {
    return CallRecord("ORVEX_ChangeUserPassword")
        .scalar("nHandle", nHandle)
        .text("szOldPsw", szOldPsw)
        .text("szNewPsw", szNewPsw)
        .scalar("nTimeout", nTimeout)
        .finish([&] { return site::ChangeUserPassword(nHandle, szOldPsw, szNewPsw); });
}

int32_t ORVEX_GetMapAddrInfo(int32_t nHandle, Config_Emap_Addr_Info_t* pInfo, int32_t nTimeout) {
    return FillCall("ORVEX_GetMapAddrInfo", nHandle, pInfo, nTimeout,
                    [&] { return site::GetMapAddrInfo(nHandle, pInfo); });
}

int32_t ORVEX_GetUserOrgInfoLen(int32_t nHandle, int32_t* pnLen, int32_t nTimeout) {
    return CallRecord("ORVEX_GetUserOrgInfoLen")
        .scalar("nHandle", nHandle)
        .out("pnLen", pnLen)
        .scalar("nTimeout", nTimeout)
        .finish([&] { return site::GetUserOrgInfoLen(nHandle, pnLen); });
}

int32_t ORVEX_GetUserOrgInfo(int32_t nHandle, char* szBuffer, int32_t nLen, int32_t nTimeout) {
    return CallRecord("ORVEX_GetUserOrgInfo")
        .scalar("nHandle", nHandle)
        .out("szBuffer", szBuffer, ArrayBytes<char>(nLen))
        .scalar("nLen", nLen)
        .scalar("nTimeout", nTimeout)
        .finish([&] { return site::GetUserOrgInfo(nHandle, szBuffer, nLen); });
}

int32_t ORVEX_LoadDGroupInfo(int32_t nHandle, int32_t* pnGroupLen, int32_t nTimeout) {
    return CallRecord("ORVEX_LoadDGroupInfo")
        .scalar("nHandle", nHandle)
        .out("pnGroupLen", pnGroupLen)
        .scalar("nTimeout", nTimeout)
        .finish([&] { return site::LoadTree(nHandle, pnGroupLen); });
}

int32_t ORVEX_LoadOrgInfoByType(int32_t nHandle, int32_t nType, int32_t* pnOrgCount,
                                int32_t nTimeout) {
    return CallRecord("ORVEX_LoadOrgInfoByType")
        .scalar("nHandle", nHandle)
        .scalar("nType", nType)
        .out("pnOrgCount", pnOrgCount)
        .scalar("nTimeout", nTimeout)
        .finish([&] { return site::LoadOrgByType(nHandle, nType, pnOrgCount); });
}

int32_t ORVEX_LoadDGroupInfoLayered(int32_t nHandle, Load_Dep_Info_t* pInfo, int32_t* pnGroupLen,
                                    int32_t nTimeout) {
    return CallRecord("ORVEX_LoadDGroupInfoLayered")
        .scalar("nHandle", nHandle)
        .record("pInfo", pInfo)
        .out("pnGroupLen", pnGroupLen)
        .scalar("nTimeout", nTimeout)
        .finish([&] { return site::LoadTreeLayered(nHandle, pInfo, pnGroupLen); });
}

int32_t ORVEX_GetDGroupStr(int32_t nHandle, char* szGroupBuf, int32_t nGroupLen, int32_t nTimeout) {
    return CallRecord("ORVEX_GetDGroupStr")
        .scalar("nHandle", nHandle)
        .out("szGroupBuf", szGroupBuf, ArrayBytes<char>(nGroupLen))
        .scalar("nGroupLen", nGroupLen)
        .scalar("nTimeout", nTimeout)
        .finish([&] { return site::GetTreeText(nHandle, szGroupBuf, nGroupLen); });
}

int32_t ORVEX_GetDGroupRootInfo(int32_t nHandle, Dep_Info_t* pInfo) {
    return CallRecord("ORVEX_GetDGroupRootInfo")
        .scalar("nHandle", nHandle)
        .out("pInfo", pInfo)
        .finish([&] { return site::GetRootGroup(nHandle, pInfo); });
}

int32_t ORVEX_GetDGroupCount(int32_t nHandle, Get_Dep_Count_Info_t* pInfo) {
    return CallRecord("ORVEX_GetDGroupCount")
        .scalar("nHandle", nHandle)
        .out("pInfo", pInfo)
        .finish([&] { return site::GetGroupCount(nHandle, pInfo); });
}

int32_t ORVEX_GetDGroupInfo(int32_t nHandle, Get_Dep_Info_t* pInfo) {
    CallRecord call("ORVEX_GetDGroupInfo");
    call.scalar("nHandle", nHandle).out("pInfo", pInfo);
    OutRecords(call, "pInfo.pDepInfo", pInfo, &Get_Dep_Info_t::pDepInfo,
               &Get_Dep_Info_t::nDepCount);
    OutRecords(call, "pInfo.pDeviceInfo", pInfo, &Get_Dep_Info_t::pDeviceInfo,
               &Get_Dep_Info_t::nDeviceCount);
    return call.finish([&] { return site::GetGroup(nHandle, pInfo); });
}

int32_t ORVEX_GetDeviceInfoExById(int32_t nHandle, const char* szDeviceId,
                                  Device_Info_Ex_t* pInfo) {
    return CallRecord("ORVEX_GetDeviceInfoExById")
        .scalar("nHandle", nHandle)
        .text("szDeviceId", szDeviceId)
        .out("pInfo", pInfo)
        .finish([&] { return site::GetDevice(nHandle, szDeviceId, pInfo); });
}

int32_t ORVEX_GetChannelInfo(int32_t nHandle, Get_Channel_Info_t* pInfo) {
    CallRecord call("ORVEX_GetChannelInfo");
    call.scalar("nHandle", nHandle).out("pInfo", pInfo);
    OutRecords(call, "pInfo.pEncChannelnfo", pInfo, &Get_Channel_Info_t::pEncChannelnfo,
               &Get_Channel_Info_t::nEncChannelChildCount);
    return call.finish([&] { return site::GetChannels(nHandle, pInfo); });
}

int32_t ORVEX_GetChannelInfoEx(int32_t nHandle, Get_Channel_Info_Ex_t* pInfo) {
    CallRecord call("ORVEX_GetChannelInfoEx");
    call.scalar("nHandle", nHandle).out("pInfo", pInfo);
    OutRecords(call, "pInfo.pEncChannelnfo", pInfo, &Get_Channel_Info_Ex_t::pEncChannelnfo,
               &Get_Channel_Info_Ex_t::nEncChannelChildCount);
    return call.finish([&] { return site::GetChannelsEx(nHandle, pInfo); });
}

int32_t ORVEX_GetEncChannelCount(int32_t nHandle, const char* szDeviceId, int32_t* pnCount) {
    return CallRecord("ORVEX_GetEncChannelCount")
        .scalar("nHandle", nHandle)
        .text("szDeviceId", szDeviceId)
        .out("pnCount", pnCount)
        .finish([&] { return site::GetEncChannelCount(nHandle, szDeviceId, pnCount); });
}

int32_t ORVEX_GetChannelInfoById(int32_t nHandle, const char* szCameraId,
                                 Enc_Channel_Info_Ex_t* pInfo) {
    return CallRecord("ORVEX_GetChannelInfoById")
        .scalar("nHandle", nHandle)
        .text("szCameraId", szCameraId)
        .out("pInfo", pInfo)
        .finish([&] { return site::GetChannelById(nHandle, szCameraId, pInfo); });
}

int32_t ORVEX_GetChnlType(int32_t nHandle, const char* szCameraId, int32_t* pnType) {
    return CallRecord("ORVEX_GetChnlType")
        .scalar("nHandle", nHandle)
        .text("szCameraId", szCameraId)
        .out("pnType", pnType)
        .finish([&] { return site::GetChannelType(nHandle, szCameraId, pnType); });
}

int32_t ORVEX_GetDevStreamType(int32_t nHandle, Get_Dev_StreamType_Info_t* pInfo) {
    return CallRecord("ORVEX_GetDevStreamType")
        .scalar("nHandle", nHandle)
        .out("pInfo", pInfo)
        .finish([&] { return site::GetDevStreamType(nHandle, pInfo); });
}

bool ORVEX_HasLogicOrg(int32_t nHandle) {
    return CallRecord("ORVEX_HasLogicOrg").scalar("nHandle", nHandle).finish([&] {
        return site::HasLogicOrg(nHandle) ? 1 : 0;
    }) != 0;
}

int32_t ORVEX_GetLogicRootDepInfo(int32_t nHandle, Dep_Info_Ex_t* pInfo) {
    return CallRecord("ORVEX_GetLogicRootDepInfo")
        .scalar("nHandle", nHandle)
        .out("pInfo", pInfo)
        .finish([&] { return site::GetLogicRoot(nHandle, pInfo); });
}

int32_t ORVEX_GetLogicDepNodeNum(int32_t nHandle, const char* szDepCoding,
                                 orvex_node_type_e eNodeType, int32_t* pnNum) {
    return CallRecord("ORVEX_GetLogicDepNodeNum")
        .scalar("nHandle", nHandle)
        .text("szDepCoding", szDepCoding)
        .scalar("eNodeType", eNodeType)
        .out("pnNum", pnNum)
        .finish([&] { return site::GetLogicNodeCount(nHandle, szDepCoding, eNodeType, pnNum); });
}

int32_t ORVEX_GetLogicSubDepInfoByIndex(int32_t nHandle, const char* szDepCoding, int32_t nIndex,
                                        Dep_Info_Ex_t* pInfo) {
    return CallRecord("ORVEX_GetLogicSubDepInfoByIndex")
        .scalar("nHandle", nHandle)
        .text("szDepCoding", szDepCoding)
        .scalar("nIndex", nIndex)
        .out("pInfo", pInfo)
        .finish([&] { return site::GetLogicSubDep(nHandle, szDepCoding, nIndex, pInfo); });
}

int32_t ORVEX_GetLogicID(int32_t nHandle, const char* szDepCoding, int32_t nIndex, bool bChannel,
                         char* szCodeID) {
    return CallRecord("ORVEX_GetLogicID")
        .scalar("nHandle", nHandle)
        .text("szDepCoding", szDepCoding)
        .scalar("nIndex", nIndex)
        .scalar("bChannel", bChannel)
        .out("szCodeID", szCodeID, kCodeIdSize)
        .finish([&] { return site::GetLogicId(nHandle, szDepCoding, nIndex, bChannel, szCodeID); });
}

}  // extern "C"
