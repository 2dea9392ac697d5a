// Client instance and diagnostics.
#include "ORVEX_Core.h"
#include "platform/session.h"
#include "sim_core.h"

using orvexsim::CallRecord;
namespace site = orvexsim::platform;

extern "C" {

int32_t ORVEX_Create(orvex_sdk_type_e nType, int32_t* pnSdkHandle) {
    return CallRecord("ORVEX_Create")
        .scalar("nType", nType)
        .out("pnSdkHandle", pnSdkHandle)
        .finish([&] { return site::Create(nType, pnSdkHandle); });
}

int32_t ORVEX_Destroy(int32_t nHandle) {
    return CallRecord("ORVEX_Destroy").scalar("nHandle", nHandle).finish([&] {
        return site::Destroy(nHandle);
    });
}

int32_t ORVEX_SetLog(int32_t nHandle, orvex_log_level_e nLevel, const char* szFileName,
                     int32_t nReserved1, int32_t nReserved2) {
    return CallRecord("ORVEX_SetLog")
        .scalar("nHandle", nHandle)
        .scalar("nLevel", nLevel)
        .text("szFileName", szFileName)
        .scalar("nReserved1", nReserved1)
        .scalar("nReserved2", nReserved2)
        .finish([&] { return site::SetLog(nHandle, nLevel, szFileName); });
}

int32_t ORVEX_StartMonitor(int32_t nHandle, const char* szFileName) {
    return CallRecord("ORVEX_StartMonitor")
        .scalar("nHandle", nHandle)
        .text("szFileName", szFileName)
        .finish([&] { return site::StartMonitor(nHandle, szFileName); });
}

int32_t ORVEX_WriteORVEXLog(int32_t nHandle, const char* szLog, orvex_log_level_e nLevel) {
    return CallRecord("ORVEX_WriteORVEXLog")
        .scalar("nHandle", nHandle)
        .text("szLog", szLog)
        .scalar("nLevel", nLevel)
        .finish([&] { return site::WriteLog(nHandle, szLog, nLevel); });
}

int32_t ORVEX_SetCompressType(int32_t nHandle, orvex_get_devinfo_compress_type_e nCompressType) {
    return CallRecord("ORVEX_SetCompressType")
        .scalar("nHandle", nHandle)
        .scalar("nCompressType", nCompressType)
        .finish([&] { return site::SetCompressType(nHandle, nCompressType); });
}

}  // extern "C"
