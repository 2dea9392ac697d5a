#include "wall.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "site_model.h"

namespace orvexsim::platform {
namespace {

using Window = WallScreen::Window;

Wall* FindWall(Site& site, uint32_t id) {
    return FindBy(site.walls, &Wall::id, id);
}

Window* FindWindow(WallScreen& screen, uint32_t id) {
    return FindBy(screen.windows, &Window::id, id);
}

// A decoder that is offline cannot change what its screens show.
int32_t DecoderReachable(const Site& site, const WallScreen& screen) {
    const Device* decoder = site.device(screen.decoder);
    return decoder != nullptr && !decoder->online ? ORVEX_CORE_ERROR_DEVICE_OFFLINE
                                                  : ORVEX_RET_SUCCESS;
}

// Runs `f(site, wall)` for a command on a wall: the user must be allowed to operate devices,
// and the wall must be there.
template <typename F>
int32_t OnWall(int32_t handle, uint32_t wallId, F f) {
    return WithInstance(handle, true, [&](Instance& in, Site& site) -> int32_t {
        if (int32_t rc = MayOperate(in, site)) {
            return rc;
        }
        Wall* wall = FindWall(site, wallId);
        return wall == nullptr ? ORVEX_CORE_ERROR_NOT_FOUND : f(site, *wall);
    });
}

// As OnWall, with `f(site, screen)` for one screen of the wall, whose decoder must be reachable.
template <typename F>
int32_t OnScreen(int32_t handle, uint32_t wallId, uint32_t screenId, F f) {
    return OnWall(handle, wallId, [&](Site& site, Wall& wall) -> int32_t {
        WallScreen* screen = FindBy(wall.screens, &WallScreen::id, screenId);
        if (screen == nullptr) {
            return ORVEX_CORE_ERROR_NOT_FOUND;
        }
        const int32_t rc = DecoderReachable(site, *screen);
        return rc != ORVEX_RET_SUCCESS ? rc : f(site, *screen);
    });
}

void Empty(Window& w) {
    w.camera.clear();
    w.streamType = 0;
    w.stayTime = 0;
}

// Nothing shown any more: the panes stay, empty; free windows close.
void Clear(WallScreen& screen) {
    screen.windows.erase(std::remove_if(screen.windows.begin(), screen.windows.end(),
                                        [](const Window& w) { return !w.pane; }),
                         screen.windows.end());
    for (Window& w : screen.windows) {
        Empty(w);
    }
}

bool SplitAllowed(int32_t n) {
    return n == Screen_Split_1 || n == Screen_Split_4 || n == Screen_Split_9 ||
           n == Screen_Split_16;
}

// A free window lies within its screen and has an area.
bool WithinScreen(float left, float top, float width, float height) {
    constexpr float kSlack = 1e-4f;
    return std::isfinite(left) && std::isfinite(top) && std::isfinite(width) &&
           std::isfinite(height) && left >= 0 && top >= 0 && width > 0 && height > 0 &&
           left + width <= 1 + kSlack && top + height <= 1 + kSlack;
}

}  // namespace

int32_t GetTvWallListCount(int32_t handle, uint32_t* count) {
    if (count == nullptr) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    return WithInstance(handle, true, [&](Instance&, Site& site) {
        *count = static_cast<uint32_t>(site.walls.size());
        return ORVEX_RET_SUCCESS;
    });
}

int32_t GetTvWallList(int32_t handle, TvWall_List_Info_t* info) {
    if (info == nullptr || (info->nCount > 0 && info->pTvWallInfo == nullptr)) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    return WithInstance(handle, true, [&](Instance&, Site& site) {
        const uint32_t n = std::min<uint32_t>(info->nCount, site.walls.size());
        for (uint32_t k = 0; k < n; ++k) {
            TvWall_Info_t& r = info->pTvWallInfo[k];
            r.nTvWallId = site.walls[k].id;
            r.nState = site.walls[k].state;
            CopyText(r.szName, site.walls[k].name);
        }
        info->nCount = n;
        return ORVEX_RET_SUCCESS;
    });
}

int32_t GetTvWallLayoutCount(int32_t handle, uint32_t wallId, uint32_t* count) {
    if (count == nullptr) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    return WithInstance(handle, true, [&](Instance&, Site& site) {
        const Wall* wall = FindWall(site, wallId);
        if (wall == nullptr) {
            return ORVEX_CORE_ERROR_NOT_FOUND;
        }
        *count = static_cast<uint32_t>(wall->screens.size());
        return ORVEX_RET_SUCCESS;
    });
}

int32_t GetTvWallLayout(int32_t handle, TvWall_Layout_Info_t* info) {
    if (info == nullptr || (info->nCount > 0 && info->pScreenInfo == nullptr)) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    return WithInstance(handle, true, [&](Instance&, Site& site) {
        const Wall* wall = FindWall(site, info->nTvWallId);
        if (wall == nullptr) {
            return ORVEX_CORE_ERROR_NOT_FOUND;
        }
        const uint32_t n = std::min<uint32_t>(info->nCount, wall->screens.size());
        for (uint32_t k = 0; k < n; ++k) {
            const WallScreen& s = wall->screens[k];
            TvWall_Screen_Info_t& r = info->pScreenInfo[k];
            r.nScreenId = s.id;
            CopyText(r.szName, s.name);
            CopyText(r.szDecoderId, s.decoder);
            r.fLeft = s.left;
            r.fTop = s.top;
            r.fWidth = s.width;
            r.fHeight = s.height;
            r.bBind = s.bind;
            r.bCombine = s.combine;
        }
        info->nCount = n;
        return ORVEX_RET_SUCCESS;
    });
}

int32_t SetTvWallScreenWindowSource(int32_t handle, const Set_TvWall_Screen_Window_Source_t* info) {
    if (info == nullptr) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    return OnScreen(handle, info->nTvWallId, info->nScreenId, [&](Site& site, WallScreen& screen) {
        if (!Terminated(info->szCameraId) || (info->enStreamType != ORVEX_CORE_STREAMTYPE_MAIN &&
                                              info->enStreamType != ORVEX_CORE_STREAMTYPE_SUB)) {
            return ORVEX_CORE_ERROR_INVALID_PARAM;
        }
        Window* window = FindWindow(screen, info->nWindowId);
        if (window == nullptr) {
            return ORVEX_CORE_ERROR_NOT_FOUND;
        }
        if (site.channel(info->szCameraId) == nullptr) {
            return ORVEX_CORE_ERROR_CHANNEL_NOT_FOUND;
        }
        window->camera = info->szCameraId;
        window->streamType = info->enStreamType;
        window->stayTime = info->nStayTime;
        return ORVEX_RET_SUCCESS;
    });
}

int32_t CloseTvWallScreenWindowSource(int32_t handle, const TvWall_Screen_Close_Source_t* info) {
    if (info == nullptr) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    return OnScreen(handle, info->nTvWallId, info->nScreenId, [&](Site&, WallScreen& screen) {
        Window* window = FindWindow(screen, info->nWindowId);
        if (window == nullptr) {
            return ORVEX_CORE_ERROR_NOT_FOUND;
        }
        if (window->pane) {  // the pane stays, empty
            Empty(*window);
        } else {  // a free window exists only to show its source
            screen.windows.erase(screen.windows.begin() + (window - screen.windows.data()));
        }
        return ORVEX_RET_SUCCESS;
    });
}

int32_t SetTvWallScreenSplit(int32_t handle, const TvWall_Screen_Split_t* info) {
    if (info == nullptr) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    return OnScreen(handle, info->nTvWallId, info->nScreenId, [&](Site&, WallScreen& screen) {
        const int32_t n = info->enSplitNum;
        if (!SplitAllowed(n)) {
            return ORVEX_CORE_ERROR_INVALID_PARAM;
        }
        // A new split starts empty: its panes show nothing and free windows close.
        const int32_t side = static_cast<int32_t>(std::lround(std::sqrt(n)));
        const float size = 1.0f / static_cast<float>(side);
        screen.windows.clear();
        for (int32_t k = 0; k < n; ++k) {
            Window w;
            w.id = static_cast<uint32_t>(k + 1);
            w.left = static_cast<float>(k % side) * size;
            w.top = static_cast<float>(k / side) * size;
            w.width = size;
            w.height = size;
            screen.windows.push_back(w);
        }
        screen.split = static_cast<uint32_t>(n);
        return ORVEX_RET_SUCCESS;
    });
}

int32_t TvWallScreenOpenWindow(int32_t handle, TvWall_Screen_Open_Window_t* info) {
    if (info == nullptr) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    return OnScreen(handle, info->nTvWallId, info->nScreenId, [&](Site&, WallScreen& screen) {
        if (!WithinScreen(info->fLeft, info->fTop, info->fWidth, info->fHeight)) {
            return ORVEX_CORE_ERROR_INVALID_PARAM;
        }
        uint32_t id = kFirstFreeWindow - 1;
        uint32_t zorder = 0;
        std::size_t free = 0;
        for (const Window& w : screen.windows) {
            id = std::max(id, w.id);
            zorder = std::max(zorder, w.zorder);
            free += w.pane ? 0 : 1;
        }
        if (free >= kMaxFreeWindows) {
            return ORVEX_CORE_ERROR_BUSY;
        }
        Window w;
        w.id = id + 1;
        w.zorder = zorder + 1;
        w.pane = false;
        w.left = info->fLeft;
        w.top = info->fTop;
        w.width = info->fWidth;
        w.height = info->fHeight;
        screen.windows.push_back(w);
        info->nWindowId = w.id;
        info->nZorder = w.zorder;
        return ORVEX_RET_SUCCESS;
    });
}

int32_t ClearTvWallScreen(int32_t handle, uint32_t wallId) {
    return ClearTvWallScreenByDecodeId(handle, wallId, nullptr);
}

// Without a decoder, every screen of the wall is cleared.
int32_t ClearTvWallScreenByDecodeId(int32_t handle, uint32_t wallId, const char* decoderId) {
    return OnWall(handle, wallId, [&](Site& site, Wall& wall) -> int32_t {
        if (decoderId != nullptr && site.device(decoderId) == nullptr) {
            return ORVEX_CORE_ERROR_DEVICE_NOT_FOUND;
        }
        bool any = false;
        for (WallScreen& screen : wall.screens) {
            if (decoderId == nullptr || screen.decoder == decoderId) {
                if (int32_t rc = DecoderReachable(site, screen)) {
                    return rc;
                }
                any = true;
            }
        }
        if (decoderId != nullptr && !any) {
            return ORVEX_CORE_ERROR_NOT_FOUND;  // the decoder drives no screen here
        }
        for (WallScreen& screen : wall.screens) {
            if (decoderId == nullptr || screen.decoder == decoderId) {
                Clear(screen);
            }
        }
        return ORVEX_RET_SUCCESS;
    });
}

}  // namespace orvexsim::platform
