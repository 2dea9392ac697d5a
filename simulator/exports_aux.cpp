// JSON and message transport, sharing and OSD, doors and link resources, GPS, vehicle bays and
// people counting.
#include "ORVEX_Core.h"
#include "platform/aux.h"
#include "platform/aux_vehicles.h"
#include "sim_core.h"
#include "sim_exports.h"

using orvexsim::ArrayBytes;
using orvexsim::CallRecord;
using orvexsim::CommandCall;
using orvexsim::InRecords;
using orvexsim::OutRecords;
using orvexsim::takeDeclaredCapacity;
namespace platform = orvexsim::platform;

namespace {

// The platform writes at most the capacity a test declared for the answer buffer, else as much
// as its answers can take.
std::size_t AnswerCapacity(std::size_t declared) {
    return declared != 0 ? declared : platform::kJsonAnswerCapacity;
}

}  // namespace

extern "C" {

// The answer buffers of the two command calls have no size the library is told: they are
// recorded and writable only as far as a test declared their capacity.
int32_t ORVEX_SendCammandToCMSByJson(int32_t nHandle, const char* szJson, char* szJsonResult,
                                     int32_t nTimeout) {
    const std::size_t declared =
        takeDeclaredCapacity("ORVEX_SendCammandToCMSByJson", "szJsonResult");
    return CallRecord("ORVEX_SendCammandToCMSByJson")
        .scalar("nHandle", nHandle)
        .text("szJson", szJson)
        .out("szJsonResult", szJsonResult, declared)
        .scalar("nTimeout", nTimeout)
        .finish([=] {
            return platform::SendCammandToCMSByJson(nHandle, szJson, szJsonResult,
                                                    AnswerCapacity(declared));
        });
}

int32_t ORVEX_SendCammandToDMSByJson(int32_t nHandle, const char* szJson, const char* szCameraId,
                                     char* szJsonResult, int32_t nTimeout) {
    const std::size_t declared =
        takeDeclaredCapacity("ORVEX_SendCammandToDMSByJson", "szJsonResult");
    return CallRecord("ORVEX_SendCammandToDMSByJson")
        .scalar("nHandle", nHandle)
        .text("szJson", szJson)
        .text("szCameraId", szCameraId)
        .out("szJsonResult", szJsonResult, declared)
        .scalar("nTimeout", nTimeout)
        .finish([=] {
            return platform::SendCammandToDMSByJson(nHandle, szJson, szCameraId, szJsonResult,
                                                    AnswerCapacity(declared));
        });
}

int32_t ORVEX_GeneralJsonTransport(int32_t nHandle, const char* szJson, orvex_mdl_type_e nMdlType,
                                   generaljson_trantype_e nTranType, int32_t nTimeout) {
    return CallRecord("ORVEX_GeneralJsonTransport")
        .scalar("nHandle", nHandle)
        .text("szJson", szJson)
        .scalar("nMdlType", nMdlType)
        .scalar("nTranType", nTranType)
        .scalar("nTimeout", nTimeout)
        .finish(
            [=] { return platform::GeneralJsonTransport(nHandle, szJson, nMdlType, nTranType); });
}

int32_t ORVEX_SendScsMsg(int32_t nHandle, const char* szGroupId, const char* szText,
                         int32_t nTimeout) {
    return CallRecord("ORVEX_SendScsMsg")
        .scalar("nHandle", nHandle)
        .text("szGroupId", szGroupId)
        .text("szText", szText)
        .scalar("nTimeout", nTimeout)
        .finish([=] { return platform::SendScsMsg(nHandle, szGroupId, szText); });
}

int32_t ORVEX_ShareVideo(int32_t nHandle, ShareVideoInfo* pInfo, int32_t nVideoCount,
                         int32_t* pUserIds, int32_t nUserCount, const char* szMsg,
                         int32_t nTimeout) {
    return CallRecord("ORVEX_ShareVideo")
        .scalar("nHandle", nHandle)
        .bytes("pInfo", pInfo, ArrayBytes<ShareVideoInfo>(nVideoCount))
        .scalar("nVideoCount", nVideoCount)
        .bytes("pUserIds", pUserIds, ArrayBytes<int32_t>(nUserCount))
        .scalar("nUserCount", nUserCount)
        .text("szMsg", szMsg)
        .scalar("nTimeout", nTimeout)
        .finish([=] {
            return platform::ShareVideo(nHandle, pInfo, nVideoCount, pUserIds, nUserCount, szMsg);
        });
}

int32_t ORVEX_SendOSDInfo(int32_t nHandle, Send_OSDInfo_t* pInfo, int32_t nTimeout) {
    return CommandCall("ORVEX_SendOSDInfo", nHandle, pInfo, nTimeout,
                       [=] { return platform::SendOSDInfo(nHandle, pInfo); });
}

int32_t ORVEX_SetDoorCmd(int32_t nHandle, SetDoorCmd_Request_t* pInfo, int32_t nTimeout) {
    return CommandCall("ORVEX_SetDoorCmd", nHandle, pInfo, nTimeout,
                       [=] { return platform::SetDoorCmd(nHandle, pInfo); });
}

int32_t ORVEX_QueryLinkResource(int32_t nHandle, uint32_t* pnLen, int32_t nTimeout) {
    return CallRecord("ORVEX_QueryLinkResource")
        .scalar("nHandle", nHandle)
        .out("pnLen", pnLen)
        .scalar("nTimeout", nTimeout)
        .finish([=] { return platform::QueryLinkResource(nHandle, pnLen); });
}

int32_t ORVEX_GetLinkResource(int32_t nHandle, GetLinkResource_Responce_t* pInfo) {
    CallRecord call("ORVEX_GetLinkResource");
    call.scalar("nHandle", nHandle).out("pInfo", pInfo);
    OutRecords(call, "pInfo.pXmlData", pInfo, &GetLinkResource_Responce_t::pXmlData,
               &GetLinkResource_Responce_t::nLen);
    return call.finish([=] { return platform::GetLinkResource(nHandle, pInfo); });
}

int32_t ORVEX_QueryNVRChnlStatus(int32_t nHandle, const char* szDeviceId, int32_t nTimeout) {
    return CallRecord("ORVEX_QueryNVRChnlStatus")
        .scalar("nHandle", nHandle)
        .text("szDeviceId", szDeviceId)
        .scalar("nTimeout", nTimeout)
        .finish([=] { return platform::QueryNVRChnlStatus(nHandle, szDeviceId); });
}

int32_t ORVEX_AskForLastGpsStatusXMLStrCount(int32_t nHandle, int32_t* pnLen, int32_t nTimeout) {
    return CallRecord("ORVEX_AskForLastGpsStatusXMLStrCount")
        .scalar("nHandle", nHandle)
        .out("pnLen", pnLen)
        .scalar("nTimeout", nTimeout)
        .finish([=] { return platform::AskForLastGpsStatusXMLStrCount(nHandle, pnLen); });
}

int32_t ORVEX_AskForLastGpsStatusXMLStr(int32_t nHandle, char* szBuffer, int32_t nLen) {
    return CallRecord("ORVEX_AskForLastGpsStatusXMLStr")
        .scalar("nHandle", nHandle)
        .out("szBuffer", szBuffer, ArrayBytes<char>(nLen))
        .scalar("nLen", nLen)
        .finish([=] { return platform::AskForLastGpsStatusXMLStr(nHandle, szBuffer, nLen); });
}

int32_t ORVEX_SubscribeBayCarInfo(int32_t nHandle, Subscribe_Bay_Car_Info_t* pInfo,
                                  int32_t nTimeout) {
    CallRecord call("ORVEX_SubscribeBayCarInfo");
    call.scalar("nHandle", nHandle).record("pInfo", pInfo);
    InRecords(call, "pInfo.pEncChannelnfo", pInfo, &Subscribe_Bay_Car_Info_t::pEncChannelnfo,
              &Subscribe_Bay_Car_Info_t::nChnlCount);
    return call.scalar("nTimeout", nTimeout).finish([=] {
        return platform::SubscribeBayCarInfo(nHandle, pInfo);
    });
}

int32_t ORVEX_QueryPersonCount(int32_t nHandle, const char* szCameraId, uint32_t* pnQuerySeq,
                               uint32_t* pnTotalCount, uint32_t nStartTime, uint32_t nEndTime,
                               int32_t nGranularity, int32_t nTimeout) {
    return CallRecord("ORVEX_QueryPersonCount")
        .scalar("nHandle", nHandle)
        .text("szCameraId", szCameraId)
        .out("pnQuerySeq", pnQuerySeq)
        .out("pnTotalCount", pnTotalCount)
        .scalar("nStartTime", nStartTime)
        .scalar("nEndTime", nEndTime)
        .scalar("nGranularity", nGranularity)
        .scalar("nTimeout", nTimeout)
        .finish([=] {
            return platform::QueryPersonCount(nHandle, szCameraId, pnQuerySeq, pnTotalCount,
                                              nStartTime, nEndTime, nGranularity);
        });
}

int32_t ORVEX_QueryPersonCountBypage(int32_t nHandle, const char* szCameraId, uint32_t nQuerySeq,
                                     uint32_t nIndex, uint32_t nCount, Person_Count_Info_t* pInfo,
                                     int32_t nTimeout) {
    return CallRecord("ORVEX_QueryPersonCountBypage")
        .scalar("nHandle", nHandle)
        .text("szCameraId", szCameraId)
        .scalar("nQuerySeq", nQuerySeq)
        .scalar("nIndex", nIndex)
        .scalar("nCount", nCount)
        .out("pInfo", pInfo, ArrayBytes<Person_Count_Info_t>(nCount))
        .scalar("nTimeout", nTimeout)
        .finish([=] {
            return platform::QueryPersonCountBypage(nHandle, szCameraId, nQuerySeq, nIndex, nCount,
                                                    pInfo);
        });
}

int32_t ORVEX_StopQueryPersonCount(int32_t nHandle, const char* szCameraId, uint32_t nQuerySeq,
                                   int32_t nTimeout) {
    return CallRecord("ORVEX_StopQueryPersonCount")
        .scalar("nHandle", nHandle)
        .text("szCameraId", szCameraId)
        .scalar("nQuerySeq", nQuerySeq)
        .scalar("nTimeout", nTimeout)
        .finish([=] { return platform::StopQueryPersonCount(nHandle, szCameraId, nQuerySeq); });
}

}  // extern "C"
