// The platform's answers for the organisation tree, devices, channels and the logical
// organisation. Every read needs a logged-in instance with the tree loaded (1003, 1008);
// unknown codings give 1010, devices 1011, channels 1012; a missing output 1009.
#pragma once

#include <cstdint>

#include "ORVEX_Core_Define.h"
#include "site_model.h"

namespace orvexsim::platform {

// Values of ORVEX_LoadOrgInfoByType's nType.
enum OrgType : int32_t {
    kOrgDeviceTree = 1,  // departments, devices, channels and alarm inputs
    kOrgLogical = 2,     // logical departments and the devices and channels they list
};

// Loads: every load makes the whole tree readable and keeps its text export for GetTreeText.
int32_t LoadTree(int32_t handle, int32_t* textLen);
int32_t LoadOrgByType(int32_t handle, int32_t type, int32_t* nodeCount);
int32_t LoadTreeLayered(int32_t handle, const Load_Dep_Info_t* info, int32_t* textLen);
int32_t GetTreeText(int32_t handle, char* buffer, int32_t len);

int32_t GetRootGroup(int32_t handle, Dep_Info_t* info);
int32_t GetGroupCount(int32_t handle, Get_Dep_Count_Info_t* info);
int32_t GetGroup(int32_t handle, Get_Dep_Info_t* info);
int32_t GetDevice(int32_t handle, const char* deviceId, Device_Info_Ex_t* info);

int32_t GetChannels(int32_t handle, Get_Channel_Info_t* info);
int32_t GetChannelsEx(int32_t handle, Get_Channel_Info_Ex_t* info);
int32_t GetEncChannelCount(int32_t handle, const char* deviceId, int32_t* count);
int32_t GetChannelById(int32_t handle, const char* cameraId, Enc_Channel_Info_Ex_t* info);
int32_t GetChannelType(int32_t handle, const char* cameraId, int32_t* type);
int32_t GetDevStreamType(int32_t handle, Get_Dev_StreamType_Info_t* info);

bool HasLogicOrg(int32_t handle);
int32_t GetLogicRoot(int32_t handle, Dep_Info_Ex_t* info);
int32_t GetLogicNodeCount(int32_t handle, const char* coding, int32_t nodeType, int32_t* count);
int32_t GetLogicSubDep(int32_t handle, const char* coding, int32_t index, Dep_Info_Ex_t* info);
// `id` is the caller's buffer of kLogicIdSize bytes, all of which are written.
constexpr std::size_t kLogicIdSize = 128;
int32_t GetLogicId(int32_t handle, const char* coding, int32_t index, bool channel, char* id);

// Record fillers, shared with other subsystems that report devices and channels.
void FillDevice(const Device& d, Device_Info_Ex_t* out);
void FillChannelEx(const Device& owner, const Channel& c, Enc_Channel_Info_Ex_t* out);

}  // namespace orvexsim::platform
