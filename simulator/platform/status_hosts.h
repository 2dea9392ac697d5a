// The platform's answers for device lists and states. The lists are XML texts, fetched length
// first (without a terminator) and then into a buffer of that length; they need a login only.
#pragma once

#include <cstdint>

#include "ORVEX_Core_Define.h"

namespace orvexsim::platform {

int32_t GetDeviceListLen(int32_t handle, int32_t* len);
int32_t GetDeviceListStr(int32_t handle, char* buffer, int32_t len);
int32_t GetDevicesInfoLen(int32_t handle, int32_t* len);
int32_t GetDevicesInfoStr(int32_t handle, char* buffer, int32_t len);
// Channels and alarm inputs: online only while their device is online too.
int32_t GetChannelStatus(int32_t handle, const char* cameraId, orvex_dev_status_e* status);
int32_t GetDeviceType(int32_t handle, const char* deviceId, orvex_dev_type_e* type);

}  // namespace orvexsim::platform
