// The platform's answers for the client instance, its log and monitor, login and the user.
#pragma once

#include <cstdint>

#include "ORVEX_Core_Define.h"

namespace orvexsim::platform {

int32_t Create(int32_t type, int32_t* handle);
int32_t Destroy(int32_t handle);
int32_t SetLog(int32_t handle, int32_t level, const char* file);
int32_t StartMonitor(int32_t handle, const char* file);
int32_t WriteLog(int32_t handle, const char* text, int32_t level);
int32_t SetCompressType(int32_t handle, int32_t type);

int32_t Login(int32_t handle, const Login_Info_t* info);
int32_t Logout(int32_t handle);
int32_t GetUserId(int32_t handle, uint32_t* id);
int32_t GetUserLevel(int32_t handle, uint32_t* level);
int32_t GetUserInfo(int32_t handle, ORVEX_UserInfo_t* info);
int32_t ChangeUserPassword(int32_t handle, const char* oldPassword, const char* newPassword);
int32_t GetMapAddrInfo(int32_t handle, Config_Emap_Addr_Info_t* info);
// The user's organisation as XML; its length counts the terminating zero, which the text call
// writes too (callers read it as a C string).
int32_t GetUserOrgInfoLen(int32_t handle, int32_t* len);
int32_t GetUserOrgInfo(int32_t handle, char* buffer, int32_t len);

}  // namespace orvexsim::platform
