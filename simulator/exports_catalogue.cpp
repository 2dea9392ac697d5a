// Login and user account, organisation tree, devices, channels and logical organisation.
#include "ORVEX_Core.h"
#include "sim_core.h"
#include "sim_exports.h"

using orvexsim::ArrayBytes;
using orvexsim::CallRecord;
using orvexsim::CommandCall;
using orvexsim::FillCall;
using orvexsim::OutRecords;

namespace {

// Callers of ORVEX_GetLogicID hand over a buffer of this many bytes; the size is not passed.
constexpr std::size_t kCodeIdSize = 128;

}  // namespace

extern "C" {

int32_t ORVEX_Login(int32_t nHandle, Login_Info_t* pInfo, int32_t nTimeout) {
    return CommandCall("ORVEX_Login", nHandle, pInfo, nTimeout);
}

int32_t ORVEX_Logout(int32_t nHandle, int32_t nTimeout) {
    return CallRecord("ORVEX_Logout")
        .scalar("nHandle", nHandle)
        .scalar("nTimeout", nTimeout)
        .finish();
}

int32_t ORVEX_GetUserID(int32_t nHandle, uint32_t* pnUserId) {
    return CallRecord("ORVEX_GetUserID")
        .scalar("nHandle", nHandle)
        .out("pnUserId", pnUserId)
        .finish();
}

int32_t ORVEX_GetUserLevel(int32_t nHandle, uint32_t* pnUserLevel) {
    return CallRecord("ORVEX_GetUserLevel")
        .scalar("nHandle", nHandle)
        .out("pnUserLevel", pnUserLevel)
        .finish();
}

int32_t ORVEX_GetUserInfo(int32_t nHandle, ORVEX_UserInfo_t* pInfo, int32_t nTimeout) {
    return FillCall("ORVEX_GetUserInfo", nHandle, pInfo, nTimeout);
}

int32_t ORVEX_ChangeUserPassword(int32_t nHandle, const char* szOldPsw, const char* szNewPsw,
                                 int32_t nTimeout) {
    return CallRecord("ORVEX_ChangeUserPassword")
        .scalar("nHandle", nHandle)
        .text("szOldPsw", szOldPsw)
        .text("szNewPsw", szNewPsw)
        .scalar("nTimeout", nTimeout)
        .finish();
}

int32_t ORVEX_GetMapAddrInfo(int32_t nHandle, Config_Emap_Addr_Info_t* pInfo, int32_t nTimeout) {
    return FillCall("ORVEX_GetMapAddrInfo", nHandle, pInfo, nTimeout);
}

int32_t ORVEX_GetUserOrgInfoLen(int32_t nHandle, int32_t* pnLen, int32_t nTimeout) {
    return CallRecord("ORVEX_GetUserOrgInfoLen")
        .scalar("nHandle", nHandle)
        .out("pnLen", pnLen)
        .scalar("nTimeout", nTimeout)
        .finish();
}

int32_t ORVEX_GetUserOrgInfo(int32_t nHandle, char* szBuffer, int32_t nLen, int32_t nTimeout) {
    return CallRecord("ORVEX_GetUserOrgInfo")
        .scalar("nHandle", nHandle)
        .out("szBuffer", szBuffer, ArrayBytes<char>(nLen))
        .scalar("nLen", nLen)
        .scalar("nTimeout", nTimeout)
        .finish();
}

int32_t ORVEX_LoadDGroupInfo(int32_t nHandle, int32_t* pnGroupLen, int32_t nTimeout) {
    return CallRecord("ORVEX_LoadDGroupInfo")
        .scalar("nHandle", nHandle)
        .out("pnGroupLen", pnGroupLen)
        .scalar("nTimeout", nTimeout)
        .finish();
}

int32_t ORVEX_LoadOrgInfoByType(int32_t nHandle, int32_t nType, int32_t* pnOrgCount,
                                int32_t nTimeout) {
    return CallRecord("ORVEX_LoadOrgInfoByType")
        .scalar("nHandle", nHandle)
        .scalar("nType", nType)
        .out("pnOrgCount", pnOrgCount)
        .scalar("nTimeout", nTimeout)
        .finish();
}

int32_t ORVEX_LoadDGroupInfoLayered(int32_t nHandle, Load_Dep_Info_t* pInfo, int32_t* pnGroupLen,
                                    int32_t nTimeout) {
    return CallRecord("ORVEX_LoadDGroupInfoLayered")
        .scalar("nHandle", nHandle)
        .record("pInfo", pInfo)
        .out("pnGroupLen", pnGroupLen)
        .scalar("nTimeout", nTimeout)
        .finish();
}

int32_t ORVEX_GetDGroupStr(int32_t nHandle, char* szGroupBuf, int32_t nGroupLen, int32_t nTimeout) {
    return CallRecord("ORVEX_GetDGroupStr")
        .scalar("nHandle", nHandle)
        .out("szGroupBuf", szGroupBuf, ArrayBytes<char>(nGroupLen))
        .scalar("nGroupLen", nGroupLen)
        .scalar("nTimeout", nTimeout)
        .finish();
}

int32_t ORVEX_GetDGroupRootInfo(int32_t nHandle, Dep_Info_t* pInfo) {
    return CallRecord("ORVEX_GetDGroupRootInfo")
        .scalar("nHandle", nHandle)
        .out("pInfo", pInfo)
        .finish();
}

int32_t ORVEX_GetDGroupCount(int32_t nHandle, Get_Dep_Count_Info_t* pInfo) {
    return CallRecord("ORVEX_GetDGroupCount")
        .scalar("nHandle", nHandle)
        .out("pInfo", pInfo)
        .finish();
}

int32_t ORVEX_GetDGroupInfo(int32_t nHandle, Get_Dep_Info_t* pInfo) {
    CallRecord call("ORVEX_GetDGroupInfo");
    call.scalar("nHandle", nHandle).out("pInfo", pInfo);
    OutRecords(call, "pInfo.pDepInfo", pInfo, &Get_Dep_Info_t::pDepInfo,
               &Get_Dep_Info_t::nDepCount);
    OutRecords(call, "pInfo.pDeviceInfo", pInfo, &Get_Dep_Info_t::pDeviceInfo,
               &Get_Dep_Info_t::nDeviceCount);
    return call.finish();
}

int32_t ORVEX_GetDeviceInfoExById(int32_t nHandle, const char* szDeviceId,
                                  Device_Info_Ex_t* pInfo) {
    return CallRecord("ORVEX_GetDeviceInfoExById")
        .scalar("nHandle", nHandle)
        .text("szDeviceId", szDeviceId)
        .out("pInfo", pInfo)
        .finish();
}

int32_t ORVEX_GetChannelInfo(int32_t nHandle, Get_Channel_Info_t* pInfo) {
    CallRecord call("ORVEX_GetChannelInfo");
    call.scalar("nHandle", nHandle).out("pInfo", pInfo);
    OutRecords(call, "pInfo.pEncChannelnfo", pInfo, &Get_Channel_Info_t::pEncChannelnfo,
               &Get_Channel_Info_t::nEncChannelChildCount);
    return call.finish();
}

int32_t ORVEX_GetChannelInfoEx(int32_t nHandle, Get_Channel_Info_Ex_t* pInfo) {
    CallRecord call("ORVEX_GetChannelInfoEx");
    call.scalar("nHandle", nHandle).out("pInfo", pInfo);
    OutRecords(call, "pInfo.pEncChannelnfo", pInfo, &Get_Channel_Info_Ex_t::pEncChannelnfo,
               &Get_Channel_Info_Ex_t::nEncChannelChildCount);
    return call.finish();
}

int32_t ORVEX_GetEncChannelCount(int32_t nHandle, const char* szDeviceId, int32_t* pnCount) {
    return CallRecord("ORVEX_GetEncChannelCount")
        .scalar("nHandle", nHandle)
        .text("szDeviceId", szDeviceId)
        .out("pnCount", pnCount)
        .finish();
}

int32_t ORVEX_GetChannelInfoById(int32_t nHandle, const char* szCameraId,
                                 Enc_Channel_Info_Ex_t* pInfo) {
    return CallRecord("ORVEX_GetChannelInfoById")
        .scalar("nHandle", nHandle)
        .text("szCameraId", szCameraId)
        .out("pInfo", pInfo)
        .finish();
}

int32_t ORVEX_GetChnlType(int32_t nHandle, const char* szCameraId, int32_t* pnType) {
    return CallRecord("ORVEX_GetChnlType")
        .scalar("nHandle", nHandle)
        .text("szCameraId", szCameraId)
        .out("pnType", pnType)
        .finish();
}

int32_t ORVEX_GetDevStreamType(int32_t nHandle, Get_Dev_StreamType_Info_t* pInfo) {
    return CallRecord("ORVEX_GetDevStreamType")
        .scalar("nHandle", nHandle)
        .out("pInfo", pInfo)
        .finish();
}

bool ORVEX_HasLogicOrg(int32_t nHandle) {
    return CallRecord("ORVEX_HasLogicOrg").scalar("nHandle", nHandle).finish() != 0;
}

int32_t ORVEX_GetLogicRootDepInfo(int32_t nHandle, Dep_Info_Ex_t* pInfo) {
    return CallRecord("ORVEX_GetLogicRootDepInfo")
        .scalar("nHandle", nHandle)
        .out("pInfo", pInfo)
        .finish();
}

int32_t ORVEX_GetLogicDepNodeNum(int32_t nHandle, const char* szDepCoding,
                                 orvex_node_type_e eNodeType, int32_t* pnNum) {
    return CallRecord("ORVEX_GetLogicDepNodeNum")
        .scalar("nHandle", nHandle)
        .text("szDepCoding", szDepCoding)
        .scalar("eNodeType", eNodeType)
        .out("pnNum", pnNum)
        .finish();
}

int32_t ORVEX_GetLogicSubDepInfoByIndex(int32_t nHandle, const char* szDepCoding, int32_t nIndex,
                                        Dep_Info_Ex_t* pInfo) {
    return CallRecord("ORVEX_GetLogicSubDepInfoByIndex")
        .scalar("nHandle", nHandle)
        .text("szDepCoding", szDepCoding)
        .scalar("nIndex", nIndex)
        .out("pInfo", pInfo)
        .finish();
}

int32_t ORVEX_GetLogicID(int32_t nHandle, const char* szDepCoding, int32_t nIndex, bool bChannel,
                         char* szCodeID) {
    return CallRecord("ORVEX_GetLogicID")
        .scalar("nHandle", nHandle)
        .text("szDepCoding", szDepCoding)
        .scalar("nIndex", nIndex)
        .scalar("bChannel", bChannel)
        .out("szCodeID", szCodeID, kCodeIdSize)
        .finish();
}

}  // extern "C"
