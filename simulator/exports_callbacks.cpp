// Callback registration: each call is recorded and, when it succeeds, the pair is kept per
// kind and instance until the next registration of the same kind.
#include "ORVEX_Core.h"
#include "sim_core.h"

using orvexsim::CbKind;
using orvexsim::registerCallback;

namespace {

template <typename Fn>
void* Address(Fn fn) {
    return reinterpret_cast<void*>(fn);
}

}  // namespace

extern "C" {

int32_t ORVEX_SetORVEXStatusCallback(int32_t nHandle, pfnORVEXStatusCallback pfnCallback,
                                     void* pUserParam) {
    return registerCallback("ORVEX_SetORVEXStatusCallback", CbKind::Status, nHandle,
                            Address(pfnCallback), pUserParam);
}

int32_t ORVEX_SetORVEXDeviceChangeCallback(int32_t nHandle,
                                           pfnORVEXDeviceChangeCallback pfnCallback,
                                           void* pUserParam) {
    return registerCallback("ORVEX_SetORVEXDeviceChangeCallback", CbKind::DeviceChange, nHandle,
                            Address(pfnCallback), pUserParam);
}

int32_t ORVEX_SetORVEXDeviceStatusCallback(int32_t nHandle, pfnORVEXDevStatusCallback pfnCallback,
                                           void* pUserParam) {
    return registerCallback("ORVEX_SetORVEXDeviceStatusCallback", CbKind::DevStatus, nHandle,
                            Address(pfnCallback), pUserParam);
}

int32_t ORVEX_SetORVEXAlarmCallback(int32_t nHandle, pfnORVEXAlarmCallback pfnCallback,
                                    void* pUserParam) {
    return registerCallback("ORVEX_SetORVEXAlarmCallback", CbKind::Alarm, nHandle,
                            Address(pfnCallback), pUserParam);
}

int32_t ORVEX_SetORVEXTalkParamCallback(int32_t nHandle, pfnORVEXTalkParamCallback pfnCallback,
                                        void* pUserParam) {
    return registerCallback("ORVEX_SetORVEXTalkParamCallback", CbKind::TalkParam, nHandle,
                            Address(pfnCallback), pUserParam);
}

int32_t ORVEX_SetORVEXRemoteDeviceSnapCallback(int32_t nHandle,
                                               pfnORVEXRemoteDeviceSnapCallback pfnCallback,
                                               void* pUserParam) {
    return registerCallback("ORVEX_SetORVEXRemoteDeviceSnapCallback", CbKind::RemoteDeviceSnap,
                            nHandle, Address(pfnCallback), pUserParam);
}

int32_t ORVEX_SetVideoAlarmHostStatusCallback(int32_t nHandle,
                                              pfnORVEXVideoAlarmHostStatusCallback pfnCallback,
                                              void* pUserParam) {
    return registerCallback("ORVEX_SetVideoAlarmHostStatusCallback", CbKind::VideoAlarmHostStatus,
                            nHandle, Address(pfnCallback), pUserParam);
}

int32_t ORVEX_SetNetAlarmHostStatusCallback(int32_t nHandle,
                                            pfnORVEXNetAlarmHostStatusCallback pfnCallback,
                                            void* pUserParam) {
    return registerCallback("ORVEX_SetNetAlarmHostStatusCallback", CbKind::NetAlarmHostStatus,
                            nHandle, Address(pfnCallback), pUserParam);
}

int32_t ORVEX_SetBroadcastReportStatusCallback(int32_t nHandle,
                                               pfnORVEXBroadcastReportStatusCallback pfnCallback,
                                               void* pUserParam) {
    return registerCallback("ORVEX_SetBroadcastReportStatusCallback", CbKind::BroadcastReportStatus,
                            nHandle, Address(pfnCallback), pUserParam);
}

int32_t ORVEX_SetGeneralJsonTransportCallback(int32_t nHandle,
                                              pfnORVEXGeneralJsonTransportCallback pfnCallback,
                                              void* pUserParam) {
    return registerCallback("ORVEX_SetGeneralJsonTransportCallback", CbKind::GeneralJsonTransport,
                            nHandle, Address(pfnCallback), pUserParam);
}

int32_t ORVEX_SetORVEXNVRChnlStatusCallback(int32_t nHandle,
                                            pfnORVEXNVRChnlStatusCallback pfnCallback,
                                            void* pUserParam) {
    return registerCallback("ORVEX_SetORVEXNVRChnlStatusCallback", CbKind::NVRChnlStatus, nHandle,
                            Address(pfnCallback), pUserParam);
}

int32_t ORVEX_SetPecDoorStatusCallback(int32_t nHandle, pfnORVEXPecDoorStarusCallBack pfnCallback,
                                       void* pUserParam) {
    return registerCallback("ORVEX_SetPecDoorStatusCallback", CbKind::PecDoorStatus, nHandle,
                            Address(pfnCallback), pUserParam);
}

int32_t ORVEX_SetShareVideoCallback(int32_t nHandle, pfnORVEXShareVideoCallback pfnCallback,
                                    void* pUserParam) {
    return registerCallback("ORVEX_SetShareVideoCallback", CbKind::ShareVideo, nHandle,
                            Address(pfnCallback), pUserParam);
}

int32_t ORVEX_SetORVEXGetBayCarInfoCallbackEx(int32_t nHandle,
                                              pfnORVEXGetBayCarInfoCallbackEx pfnCallback,
                                              void* pUserParam) {
    return registerCallback("ORVEX_SetORVEXGetBayCarInfoCallbackEx", CbKind::BayCarInfoEx, nHandle,
                            Address(pfnCallback), pUserParam);
}

}  // extern "C"
