// Video walls of the simulated platform: the walls and screens of the site, and the commands that
// put cameras on a screen's windows, split screens, open free windows and clear walls. The state
// they leave (WallScreen::windows) is what later queries and the CMS "getWall" command report.
#pragma once

#include <cstddef>
#include <cstdint>

#include "ORVEX_Core_Define.h"

namespace orvexsim::platform {

// Free windows are numbered from here, above the panes of any split (at most 16).
constexpr uint32_t kFirstFreeWindow = 101;
// Free windows one screen can hold.
constexpr std::size_t kMaxFreeWindows = 16;

int32_t GetTvWallListCount(int32_t handle, uint32_t* count);
int32_t GetTvWallList(int32_t handle, TvWall_List_Info_t* info);
int32_t GetTvWallLayoutCount(int32_t handle, uint32_t wallId, uint32_t* count);
int32_t GetTvWallLayout(int32_t handle, TvWall_Layout_Info_t* info);

int32_t SetTvWallScreenWindowSource(int32_t handle, const Set_TvWall_Screen_Window_Source_t* info);
int32_t CloseTvWallScreenWindowSource(int32_t handle, const TvWall_Screen_Close_Source_t* info);
int32_t SetTvWallScreenSplit(int32_t handle, const TvWall_Screen_Split_t* info);
int32_t TvWallScreenOpenWindow(int32_t handle, TvWall_Screen_Open_Window_t* info);
int32_t ClearTvWallScreen(int32_t handle, uint32_t wallId);
int32_t ClearTvWallScreenByDecodeId(int32_t handle, uint32_t wallId, const char* decoderId);

}  // namespace orvexsim::platform
