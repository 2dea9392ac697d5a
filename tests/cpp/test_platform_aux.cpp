// The simulated platform's video walls, burners and disks, and auxiliary services, driven
// through their platform functions on the built-in site with instances logged in directly.
#include <gtest/gtest.h>

#include <chrono>
#include <condition_variable>
#include <cstring>
#include <functional>
#include <mutex>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "ORVEX_Core_Error.h"
#include "platform/aux.h"
#include "platform/aux_vehicles.h"
#include "platform/burner_disks.h"
#include "platform/records.h"
#include "platform/site_scenario.h"
#include "platform/wall.h"
#include "platform_login.h"
#include "sim_control.h"

namespace orvexsim::platform {
namespace {

using nlohmann::json;

// ----- Events the platform posts, as the callbacks received them

struct Heard {
    CbKind kind;
    int32_t handle;
    std::vector<std::string> texts;
    std::vector<int64_t> ints;
    std::vector<ShareVideoInfo> videos;
};

std::mutex heardMu;
std::condition_variable heardCv;
std::vector<Heard> heard;

int32_t Hear(Heard h) {
    std::lock_guard<std::mutex> lock(heardMu);
    heard.push_back(std::move(h));
    heardCv.notify_all();
    return 0;
}

int32_t OnDoor(int32_t h, const char* id, orvex_door_status_e status, int64_t time, void*) {
    return Hear({CbKind::PecDoorStatus, h, {id}, {status, time}, {}});
}

int32_t OnNvr(int32_t h, const char* id, int32_t status, void*) {
    return Hear({CbKind::NVRChnlStatus, h, {id}, {status}, {}});
}

int32_t OnJson(int32_t h, const char* text, void*) {
    return Hear({CbKind::GeneralJsonTransport, h, {text}, {}, {}});
}

int32_t OnShare(int32_t h, ShareVideoInfo* videos, int32_t count, const char* msg, int32_t src,
                const char* srcName, void*) {
    return Hear({CbKind::ShareVideo, h, {msg, srcName}, {count, src}, {videos, videos + count}});
}

// Texts: device, channel, device name, channel name, plate, capture organisation, operating
// user, note, first picture, plate picture. Ints: each of those texts' length as given, then
// the channel number and the speed.
int32_t OnBay(int32_t h, const char* dev, int32_t devLen, int32_t chnNo, const char* chn,
              int32_t chnLen, const char* devName, int32_t devNameLen, const char* chnName,
              int32_t chnNameLen, const char* plate, int32_t plateLen, int32_t, int32_t,
              int32_t speed, int32_t, int32_t, int32_t, int32_t, int32_t, uint64_t, unsigned long,
              int32_t, int32_t, const char* org, int32_t orgLen, const char*, int32_t,
              const char* user, int32_t userLen, const char* note, int32_t noteLen,
              const char* img0, int32_t img0Len, const char*, int32_t, const char*, int32_t,
              const char*, int32_t, const char*, int32_t, const char*, int32_t,
              const char* imgPlate, int32_t imgPlateLen, int32_t, int32_t, int32_t, int32_t,
              int32_t, void*) {
    return Hear({CbKind::BayCarInfoEx,
                 h,
                 {dev, chn, devName, chnName, plate, org, user, note, img0, imgPlate},
                 {devLen, chnLen, devNameLen, chnNameLen, plateLen, orgLen, userLen, noteLen,
                  img0Len, imgPlateLen, chnNo, speed},
                 {}});
}

// Waits until `n` events of the kind reached `handle` and returns them in arrival order.
std::vector<Heard> WaitFor(CbKind kind, int32_t handle, std::size_t n) {
    std::unique_lock<std::mutex> lock(heardMu);
    std::vector<Heard> out;
    heardCv.wait_for(lock, std::chrono::seconds(5), [&] {
        out.clear();
        for (const Heard& h : heard) {
            if (h.kind == kind && h.handle == handle) {
                out.push_back(h);
            }
        }
        return out.size() >= n;
    });
    return out;
}

template <typename Fn>
void* Address(Fn fn) {
    return reinterpret_cast<void*>(fn);
}

// ----- Instances logged in as users of the built-in site

class Platform : public ::testing::Test {
  protected:
    void SetUp() override {
        control::reset();
        ASSERT_TRUE(SiteReady());
        std::lock_guard<std::mutex> lock(PlatformMutex());
        LoadedSite() = DefaultSite();
    }

    void TearDown() override {
        for (int32_t h : handles_) {
            DestroyInstance(h);
        }
        control::reset();
        std::lock_guard<std::mutex> lock(heardMu);
        heard.clear();
    }

    // A new instance logged in as `user` (empty: not logged in), with every event kind of this
    // file registered.
    int32_t Instance(const std::string& user) {
        const int32_t h = LoggedInInstance(user);
        handles_.push_back(h);
        setCallback(CbKind::PecDoorStatus, h, Address(OnDoor), nullptr);
        setCallback(CbKind::NVRChnlStatus, h, Address(OnNvr), nullptr);
        setCallback(CbKind::GeneralJsonTransport, h, Address(OnJson), nullptr);
        setCallback(CbKind::ShareVideo, h, Address(OnShare), nullptr);
        setCallback(CbKind::BayCarInfoEx, h, Address(OnBay), nullptr);
        return h;
    }

    template <typename F>
    auto Site(F f) {
        return WithSite(f);
    }

    // The windows of a screen as "split|id=camera id=camera ...".
    std::string Windows(uint32_t wall, uint32_t screen) {
        return Site([&](platform::Site& s) {
            for (const Wall& w : s.walls) {
                for (const WallScreen& sc : w.screens) {
                    if (w.id == wall && sc.id == screen) {
                        std::string out = std::to_string(sc.split) + "|";
                        for (const WallScreen::Window& win : sc.windows) {
                            out += std::to_string(win.id) + "=" + win.camera + " ";
                        }
                        return out;
                    }
                }
            }
            return std::string("no screen");
        });
    }

    json Cms(int32_t h, const json& command, int32_t* rc = nullptr) {
        std::vector<char> answer(kJsonAnswerCapacity, 'x');
        const int32_t r =
            SendCammandToCMSByJson(h, command.dump().c_str(), answer.data(), answer.size());
        if (rc != nullptr) {
            *rc = r;
        }
        return json::parse(answer.data());
    }

    std::vector<int32_t> handles_;
};

// ----- Video walls

Set_TvWall_Screen_Window_Source_t Source(uint32_t wall, uint32_t screen, uint32_t window,
                                         const char* camera, int32_t stream = 1) {
    Set_TvWall_Screen_Window_Source_t s{};
    s.nTvWallId = wall;
    s.nScreenId = screen;
    s.nWindowId = window;
    std::strcpy(s.szCameraId, camera);
    s.enStreamType = static_cast<orvex_stream_type_e>(stream);
    s.nStayTime = 30;
    return s;
}

TvWall_Screen_Open_Window_t OpenAt(float left, float top, float width, float height) {
    TvWall_Screen_Open_Window_t o{};
    o.nTvWallId = 1;
    o.nScreenId = 1;
    o.fLeft = left;
    o.fTop = top;
    o.fWidth = width;
    o.fHeight = height;
    return o;
}

TEST_F(Platform, WallListAndLayoutReportTheSiteWithinTheCallersCapacity) {
    const int32_t h = Instance("operator");
    uint32_t count = 0;
    ASSERT_EQ(ORVEX_RET_SUCCESS, GetTvWallListCount(h, &count));
    EXPECT_EQ(2u, count);

    TvWall_Info_t walls[3];
    std::memset(walls, 0x5a, sizeof walls);
    TvWall_List_Info_t list{3, walls};
    ASSERT_EQ(ORVEX_RET_SUCCESS, GetTvWallList(h, &list));
    EXPECT_EQ(2u, list.nCount);
    EXPECT_EQ(1u, walls[0].nTvWallId);
    EXPECT_STREQ("Control room", walls[0].szName);
    EXPECT_EQ(2u, walls[1].nTvWallId);
    EXPECT_STREQ("Duty desk", walls[1].szName);
    EXPECT_EQ(0x5a5a5a5au, walls[2].nTvWallId);  // past the walls: untouched

    list = {1, walls};
    std::memset(walls, 0x5a, sizeof walls);
    ASSERT_EQ(ORVEX_RET_SUCCESS, GetTvWallList(h, &list));
    EXPECT_EQ(1u, list.nCount);
    EXPECT_EQ(0x5a5a5a5au, walls[1].nTvWallId);  // past the capacity: untouched

    ASSERT_EQ(ORVEX_RET_SUCCESS, GetTvWallLayoutCount(h, 1, &count));
    EXPECT_EQ(4u, count);
    TvWall_Screen_Info_t screens[4]{};
    TvWall_Layout_Info_t layout{1, 4, screens};
    ASSERT_EQ(ORVEX_RET_SUCCESS, GetTvWallLayout(h, &layout));
    EXPECT_EQ(4u, layout.nCount);
    EXPECT_EQ(4u, screens[3].nScreenId);
    EXPECT_STREQ("Screen 4", screens[3].szName);
    EXPECT_STREQ("decoder-01", screens[3].szDecoderId);
    EXPECT_FLOAT_EQ(0.5f, screens[3].fLeft);
    EXPECT_FLOAT_EQ(0.5f, screens[3].fTop);
    EXPECT_FLOAT_EQ(0.5f, screens[3].fWidth);
    EXPECT_TRUE(screens[3].bBind);

    EXPECT_EQ(ORVEX_CORE_ERROR_NOT_FOUND, GetTvWallLayoutCount(h, 9, &count));
    layout.nTvWallId = 9;
    EXPECT_EQ(ORVEX_CORE_ERROR_NOT_FOUND, GetTvWallLayout(h, &layout));
}

// Each command, in order, on screen 1 of wall 1, and the windows it leaves.
TEST_F(Platform, WallCommandsChangeTheScreensWindowsStepByStep) {
    const int32_t h = Instance("operator");
    uint32_t windowId = 0, zorder = 0;
    auto open = [&](float l, float t, float w, float ht) {
        TvWall_Screen_Open_Window_t o = OpenAt(l, t, w, ht);
        o.nWindowId = 77;
        const int32_t rc = TvWallScreenOpenWindow(h, &o);
        windowId = o.nWindowId;
        zorder = o.nZorder;
        return rc;
    };
    auto set = [&](uint32_t window, const char* camera, int32_t stream = 1) {
        const auto s = Source(1, 1, window, camera, stream);
        return SetTvWallScreenWindowSource(h, &s);
    };
    auto close = [&](uint32_t window) {
        TvWall_Screen_Close_Source_t c{1, 1, window};
        return CloseTvWallScreenWindowSource(h, &c);
    };
    auto split = [&](int32_t n) {
        TvWall_Screen_Split_t s{1, 1, static_cast<tvwall_screen_split_caps>(n)};
        return SetTvWallScreenSplit(h, &s);
    };
    struct Step {
        const char* what;
        std::function<int32_t()> run;
        int32_t rc;
        const char* windows;
    };
    const Step steps[] = {
        {"camera on the one pane", [&] { return set(1, "nvr-north-01-cam01"); }, 0,
         "1|1=nvr-north-01-cam01 "},
        {"split into four", [&] { return split(4); }, 0, "4|1= 2= 3= 4= "},
        {"sub stream on pane 3", [&] { return set(3, "nvr-north-01-cam02", 2); }, 0,
         "4|1= 2= 3=nvr-north-01-cam02 4= "},
        {"no pane 5", [&] { return set(5, "nvr-north-01-cam02"); }, ORVEX_CORE_ERROR_NOT_FOUND,
         "4|1= 2= 3=nvr-north-01-cam02 4= "},
        {"unknown camera", [&] { return set(1, "cam-x"); }, ORVEX_CORE_ERROR_CHANNEL_NOT_FOUND,
         "4|1= 2= 3=nvr-north-01-cam02 4= "},
        {"stream type 3", [&] { return set(1, "nvr-north-01-cam02", 3); },
         ORVEX_CORE_ERROR_INVALID_PARAM, "4|1= 2= 3=nvr-north-01-cam02 4= "},
        {"free window", [&] { return open(0.25f, 0.25f, 0.5f, 0.5f); }, 0,
         "4|1= 2= 3=nvr-north-01-cam02 4= 101= "},
        {"second free window", [&] { return open(0, 0, 1, 1); }, 0,
         "4|1= 2= 3=nvr-north-01-cam02 4= 101= 102= "},
        {"window off the screen", [&] { return open(0.8f, 0, 0.5f, 0.5f); },
         ORVEX_CORE_ERROR_INVALID_PARAM, "4|1= 2= 3=nvr-north-01-cam02 4= 101= 102= "},
        {"camera in a free window", [&] { return set(101, "dvr-station-01-cam01"); }, 0,
         "4|1= 2= 3=nvr-north-01-cam02 4= 101=dvr-station-01-cam01 102= "},
        {"closing a free window removes it", [&] { return close(101); }, 0,
         "4|1= 2= 3=nvr-north-01-cam02 4= 102= "},
        {"closing a pane empties it", [&] { return close(3); }, 0, "4|1= 2= 3= 4= 102= "},
        {"closing what is not there", [&] { return close(101); }, ORVEX_CORE_ERROR_NOT_FOUND,
         "4|1= 2= 3= 4= 102= "},
        {"split into five", [&] { return split(5); }, ORVEX_CORE_ERROR_INVALID_PARAM,
         "4|1= 2= 3= 4= 102= "},
        {"camera on pane 4", [&] { return set(4, "ipc-gate-01-cam01"); }, 0,
         "4|1= 2= 3= 4=ipc-gate-01-cam01 102= "},
        {"clearing the wall", [&] { return ClearTvWallScreen(h, 1); }, 0, "4|1= 2= 3= 4= "},
        {"camera again", [&] { return set(2, "ipc-gate-01-cam01"); }, 0,
         "4|1= 2=ipc-gate-01-cam01 3= 4= "},
        {"clearing by a device that drives no screen",
         [&] { return ClearTvWallScreenByDecodeId(h, 1, "nvr-north-01"); },
         ORVEX_CORE_ERROR_NOT_FOUND, "4|1= 2=ipc-gate-01-cam01 3= 4= "},
        {"clearing by an unknown decoder",
         [&] { return ClearTvWallScreenByDecodeId(h, 1, "decoder-99"); },
         ORVEX_CORE_ERROR_DEVICE_NOT_FOUND, "4|1= 2=ipc-gate-01-cam01 3= 4= "},
        {"clearing by the decoder", [&] { return ClearTvWallScreenByDecodeId(h, 1, "decoder-01"); },
         0, "4|1= 2= 3= 4= "},
        {"splitting into sixteen", [&] { return split(16); }, 0,
         "16|1= 2= 3= 4= 5= 6= 7= 8= 9= 10= 11= 12= 13= 14= 15= 16= "},
    };
    for (const Step& s : steps) {
        EXPECT_EQ(s.rc, s.run()) << s.what;
        EXPECT_EQ(s.windows, Windows(1, 1)) << s.what;
    }
    EXPECT_EQ("1|1= ", Windows(1, 2));  // the other screens were left alone
}

TEST_F(Platform, OpenWindowReportsIdentifierAndStackingOnlyOnSuccess) {
    const int32_t h = Instance("admin");
    TvWall_Screen_Open_Window_t o = OpenAt(0, 0, 0.5f, 0.5f);
    ASSERT_EQ(ORVEX_RET_SUCCESS, TvWallScreenOpenWindow(h, &o));
    EXPECT_EQ(kFirstFreeWindow, o.nWindowId);
    EXPECT_EQ(1u, o.nZorder);
    o = OpenAt(0.5f, 0.5f, 0.5f, 0.5f);
    ASSERT_EQ(ORVEX_RET_SUCCESS, TvWallScreenOpenWindow(h, &o));
    EXPECT_EQ(kFirstFreeWindow + 1, o.nWindowId);
    EXPECT_EQ(2u, o.nZorder);

    o = OpenAt(0, 0, 0, 0.5f);
    o.nWindowId = 7;
    o.nZorder = 8;
    EXPECT_EQ(ORVEX_CORE_ERROR_INVALID_PARAM, TvWallScreenOpenWindow(h, &o));
    EXPECT_EQ(7u, o.nWindowId);
    EXPECT_EQ(8u, o.nZorder);

    for (std::size_t k = 2; k < kMaxFreeWindows; ++k) {
        o = OpenAt(0, 0, 1, 1);
        ASSERT_EQ(ORVEX_RET_SUCCESS, TvWallScreenOpenWindow(h, &o));
    }
    o = OpenAt(0, 0, 1, 1);
    EXPECT_EQ(ORVEX_CORE_ERROR_BUSY, TvWallScreenOpenWindow(h, &o));
}

TEST_F(Platform, AnOfflineDecoderRefusesWallCommands) {
    const int32_t h = Instance("admin");
    Site([](platform::Site& s) { return s.device("decoder-01")->online = false; });
    const auto s = Source(2, 1, 1, "nvr-north-01-cam01");
    EXPECT_EQ(ORVEX_CORE_ERROR_DEVICE_OFFLINE, SetTvWallScreenWindowSource(h, &s));
    EXPECT_EQ(ORVEX_CORE_ERROR_DEVICE_OFFLINE, ClearTvWallScreen(h, 2));
    EXPECT_EQ("1|1= ", Windows(2, 1));
}

// Commands that change what others see, each refused for an unknown handle, an instance that is
// not logged in and a user who may not operate devices, and accepted for an operator.
TEST_F(Platform, CommandsRefuseUnknownHandlesSessionsWithoutLoginAndUsersWhoMayNotOperate) {
    struct Command {
        const char* name;
        std::function<int32_t(int32_t)> run;
    };
    const Command commands[] = {
        {"window source",
         [](int32_t h) {
             const auto s = Source(1, 1, 1, "nvr-north-01-cam01");
             return SetTvWallScreenWindowSource(h, &s);
         }},
        {"close source",
         [](int32_t h) {
             TvWall_Screen_Close_Source_t c{1, 1, 1};
             return CloseTvWallScreenWindowSource(h, &c);
         }},
        {"split",
         [](int32_t h) {
             TvWall_Screen_Split_t s{1, 1, Screen_Split_4};
             return SetTvWallScreenSplit(h, &s);
         }},
        {"open window",
         [](int32_t h) {
             auto o = OpenAt(0, 0, 1, 1);
             return TvWallScreenOpenWindow(h, &o);
         }},
        {"clear", [](int32_t h) { return ClearTvWallScreen(h, 1); }},
        {"clear decoder",
         [](int32_t h) { return ClearTvWallScreenByDecodeId(h, 1, "decoder-01"); }},
        {"door",
         [](int32_t h) {
             SetDoorCmd_Request_t r{};
             std::strcpy(r.szCameraId, "door-01");
             r.cmd = CORE_DOOR_CMD_OPEN;
             return SetDoorCmd(h, &r);
         }},
        {"burner",
         [](int32_t h) {
             Control_Dev_Burner_Request_t r{};
             std::strcpy(r.deviceId, "dvr-station-01");
             r.cmd = Cmd_ChangeCD;
             return ControlDevBurner(h, &r);
         }},
        {"on-screen text",
         [](int32_t h) {
             Send_OSDInfo_t o{};
             std::strcpy(o.szDevId, "nvr-north-01-cam01");
             std::strcpy(o.szMessage, "Exit closed");
             return SendOSDInfo(h, &o);
         }},
    };
    const int32_t notLoggedIn = Instance("");
    const int32_t viewer = Instance("viewer");
    const int32_t op = Instance("operator");
    for (const Command& c : commands) {
        EXPECT_EQ(ORVEX_CORE_ERROR_UNKNOWN_HANDLE, c.run(987654)) << c.name;
        EXPECT_EQ(ORVEX_CORE_ERROR_NOT_LOGGED_IN, c.run(notLoggedIn)) << c.name;
        EXPECT_EQ(ORVEX_CORE_ERROR_NO_PERMISSION, c.run(viewer)) << c.name;
        EXPECT_EQ(ORVEX_RET_SUCCESS, c.run(op)) << c.name;
    }
}

// ----- Burner and disks

TEST_F(Platform, BurnerFollowsItsCommandsAndKeepsTheCaseHeader) {
    const int32_t h = Instance("operator");
    auto burner = [&](int32_t cmd, int32_t channels = 0b11, int32_t burners = 0b1,
                      const char* device = "dvr-station-01") {
        Control_Dev_Burner_Request_t r{};
        std::strcpy(r.deviceId, device);
        r.cmd = static_cast<Core_EnumControlBurnerCmd>(cmd);
        r.channelMask = channels;
        r.burnerMask = burners;
        return ControlDevBurner(h, &r);
    };
    DevBurnerInfoHeader_t header{};
    TrialFormAttrName_t labels{};
    std::strcpy(header.m_deviceId, "dvr-station-01");
    std::strcpy(header.m_caseId, "CASE-2026-17");
    std::strcpy(header.m_caseRecordName, "Interview 1");
    std::strcpy(labels.m_caseIdAttr, "Case number");
    struct Step {
        const char* what;
        std::function<int32_t()> run;
        int32_t rc;
        int32_t state;
    };
    const Step steps[] = {
        {"header while idle", [&] { return SetDevBurnerHeader(h, &header, &labels); }, 0,
         kBurnerIdle},
        {"start without channels", [&] { return burner(Cmd_StartBurn, 0); },
         ORVEX_CORE_ERROR_INVALID_PARAM, kBurnerIdle},
        {"start on a fifth channel", [&] { return burner(Cmd_StartBurn, 1 << 4); },
         ORVEX_CORE_ERROR_INVALID_PARAM, kBurnerIdle},
        {"start on a third drive", [&] { return burner(Cmd_StartBurn, 1, 0b100); },
         ORVEX_CORE_ERROR_INVALID_PARAM, kBurnerIdle},
        {"pause while idle", [&] { return burner(Cmd_PauseBurn); }, ORVEX_CORE_ERROR_INVALID_PARAM,
         kBurnerIdle},
        {"start", [&] { return burner(Cmd_StartBurn); }, 0, kBurnerBurning},
        {"start again", [&] { return burner(Cmd_StartBurn); }, ORVEX_CORE_ERROR_BUSY,
         kBurnerBurning},
        {"change disc while burning", [&] { return burner(Cmd_ChangeCD); }, ORVEX_CORE_ERROR_BUSY,
         kBurnerBurning},
        {"pause", [&] { return burner(Cmd_PauseBurn); }, 0, kBurnerPaused},
        {"change disc while paused", [&] { return burner(Cmd_ChangeCD); }, 0, kBurnerPaused},
        {"header while paused", [&] { return SetDevBurnerHeader(h, &header, &labels); },
         ORVEX_CORE_ERROR_BUSY, kBurnerPaused},
        {"continue", [&] { return burner(Cmd_ContinueBurn); }, 0, kBurnerBurning},
        {"stop", [&] { return burner(Cmd_StopBurn); }, 0, kBurnerIdle},
        {"stop again", [&] { return burner(Cmd_StopBurn); }, ORVEX_CORE_ERROR_INVALID_PARAM,
         kBurnerIdle},
        {"command 6", [&] { return burner(6); }, ORVEX_CORE_ERROR_INVALID_PARAM, kBurnerIdle},
        {"device without a burner", [&] { return burner(Cmd_StartBurn, 1, 1, "nvr-north-01"); },
         ORVEX_CORE_ERROR_NOT_SUPPORTED, kBurnerIdle},
        {"unknown device", [&] { return burner(Cmd_StartBurn, 1, 1, "dvr-x"); },
         ORVEX_CORE_ERROR_DEVICE_NOT_FOUND, kBurnerIdle},
    };
    for (const Step& s : steps) {
        EXPECT_EQ(s.rc, s.run()) << s.what;
        EXPECT_EQ(s.state, Site([](platform::Site& site) { return site.burners[0].state; }))
            << s.what;
    }
    const json b = Cms(h, {{"cmd", "getBurner"}, {"device", "dvr-station-01"}})["burner"];
    EXPECT_EQ("CASE-2026-17", b["caseId"]);
    EXPECT_EQ("Case number", b["caseIdLabel"]);
    EXPECT_EQ("Interview 1", b["recordName"]);
    EXPECT_EQ(1, b["discChanges"]);
    EXPECT_EQ(0, b["channelMask"]);  // the stop ended the burn

    std::memset(header.m_caseId, 'A', sizeof header.m_caseId);
    EXPECT_EQ(ORVEX_CORE_ERROR_INVALID_PARAM, SetDevBurnerHeader(h, &header, &labels));
}

TEST_F(Platform, DiskAnswersAreKeptUnderTheirSequenceAndServeBridgeCallersTheLatest) {
    const int32_t h = Instance("viewer");
    int32_t count = -1, seqSouth = -1, seqDvr = -1;
    ASSERT_EQ(ORVEX_RET_SUCCESS, GetDeviceDiskInfoCount(h, "nvr-south-01", &count, &seqSouth));
    EXPECT_EQ(4, count);
    EXPECT_GT(seqSouth, 4);

    Device_Disk_Info_t info;  // owns its list, as the library's record does
    info.pDiskInfoList = new Single_Disk_Info_t[4];
    const Single_Disk_Info_t* disks = info.pDiskInfoList;
    ASSERT_EQ(ORVEX_RET_SUCCESS, GetDeviceDiskInfo(h, seqSouth, &info));
    EXPECT_STREQ("nvr-south-01", info.szDevId);
    EXPECT_EQ(4, info.nDiskInfoSize);
    EXPECT_EQ(3, disks[2].nDiskId);
    EXPECT_EQ(4000000u, disks[2].uVolume);
    EXPECT_EQ(3000000u, disks[2].uFreeSpace);
    EXPECT_EQ(3, disks[2].diskNum);

    ASSERT_EQ(ORVEX_RET_SUCCESS, GetDeviceDiskInfoCount(h, "dvr-station-01", &count, &seqDvr));
    EXPECT_EQ(1, count);
    EXPECT_NE(seqSouth, seqDvr);
    ASSERT_EQ(ORVEX_RET_SUCCESS, GetDeviceDiskInfoCount(h, "nvr-north-01", &count, &seqDvr));
    EXPECT_EQ(2, count);
    // Java callers pass the count as the sequence and size the list by it: each count finds the
    // latest answer with that many disks, never a longer one.
    struct ByCount {
        int32_t count;
        const char* device;
    };
    for (const ByCount& c :
         {ByCount{1, "dvr-station-01"}, ByCount{2, "nvr-north-01"}, ByCount{4, "nvr-south-01"}}) {
        ASSERT_EQ(ORVEX_RET_SUCCESS, GetDeviceDiskInfo(h, c.count, &info)) << c.count;
        EXPECT_STREQ(c.device, info.szDevId);
        EXPECT_EQ(c.count, info.nDiskInfoSize);
    }
    EXPECT_EQ(ORVEX_CORE_ERROR_SEQ_NOT_FOUND, GetDeviceDiskInfo(h, 3, &info));
    ASSERT_EQ(ORVEX_RET_SUCCESS, GetDeviceDiskInfo(h, seqSouth, &info));
    EXPECT_EQ(4, info.nDiskInfoSize);

    EXPECT_EQ(ORVEX_CORE_ERROR_DEVICE_NOT_FOUND, GetDeviceDiskInfoCount(h, "x", &count, &seqDvr));
    EXPECT_EQ(ORVEX_CORE_ERROR_DEVICE_OFFLINE,
              GetDeviceDiskInfoCount(h, "ipc-gate-02", &count, &seqDvr));
    Device_Disk_Info_t fresh;
    EXPECT_EQ(ORVEX_CORE_ERROR_SEQ_NOT_FOUND, GetDeviceDiskInfo(Instance("admin"), 1, &fresh));
}

// ----- JSON commands

TEST_F(Platform, JsonCommandsAreAnsweredByTheirModuleAndErrorsNameTheResult) {
    const int32_t h = Instance("viewer");
    struct Case {
        bool dms;
        const char* camera;
        const char* command;
        int32_t rc;
        const char* member;  // a JSON pointer into the answer, when the command succeeds
        json value;
    };
    const Case cases[] = {
        {false, "", R"({"cmd":"ping"})", 0, "/server", "Riverside city security (built-in)"},
        {false, "", R"({"cmd":"listDevices"})", 0, "/devices/10/id", "decoder-01"},
        {false, "", R"({"cmd":"getDevice","id":"nvr-north-01"})", 0, "/device/channels", 12},
        {false, "", R"({"cmd":"getDevice","id":"nope"})", ORVEX_CORE_ERROR_DEVICE_NOT_FOUND, "",
         nullptr},
        {false, "", R"({"cmd":"getWall","id":1})", 0, "/wall/screens/3/decoder", "decoder-01"},
        {false, "", R"({"cmd":"getWall","id":"1"})", ORVEX_CORE_ERROR_INVALID_PARAM, "", nullptr},
        {false, "", R"({"cmd":"getDoor","id":"door-02"})", 0, "/door/name", "Archive"},
        {false, "", R"({"cmd":"getOsd","id":"nvr-north-01"})", 0, "/text", ""},
        {false, "", R"({"cmd":"getChannel"})", ORVEX_CORE_ERROR_NOT_SUPPORTED, "", nullptr},
        {false, "", R"({"cmd":"reboot"})", ORVEX_CORE_ERROR_NOT_SUPPORTED, "", nullptr},
        {false, "", R"({"id":"nvr-north-01"})", ORVEX_CORE_ERROR_INVALID_PARAM, "", nullptr},
        {false, "", R"(["cmd","ping"])", ORVEX_CORE_ERROR_INVALID_PARAM, "", nullptr},
        {false, "", "not json", ORVEX_CORE_ERROR_INVALID_PARAM, "", nullptr},
        {true, "nvr-north-01-cam01", R"({"cmd":"getChannel"})", 0, "/channel/presets", 2},
        {true, "nvr-north-01-cam01", R"({"cmd":"getChannel"})", 0, "/channel/device",
         "nvr-north-01"},
        {true, "", R"({"cmd":"ping"})", 0, "/result", 0},
        {true, "cam-x", R"({"cmd":"getChannel"})", ORVEX_CORE_ERROR_CHANNEL_NOT_FOUND, "", nullptr},
        {true, "nvr-north-01-cam01", R"({"cmd":"listDevices"})", ORVEX_CORE_ERROR_NOT_SUPPORTED, "",
         nullptr},
    };
    for (const Case& c : cases) {
        std::vector<char> answer(kJsonAnswerCapacity, 'x');
        const int32_t rc =
            c.dms ? SendCammandToDMSByJson(h, c.command, c.camera, answer.data(), answer.size())
                  : SendCammandToCMSByJson(h, c.command, answer.data(), answer.size());
        EXPECT_EQ(c.rc, rc) << c.command;
        const json a = json::parse(answer.data(), nullptr, false);
        ASSERT_TRUE(a.is_object()) << c.command << ": " << answer.data();
        EXPECT_EQ(c.rc, a["result"]) << c.command;
        EXPECT_EQ(c.rc != 0, a.contains("error")) << c.command;
        if (*c.member != '\0') {
            EXPECT_EQ(c.value, a[json::json_pointer(c.member)]) << c.command;
        }
    }
}

TEST_F(Platform, AJsonAnswerNeverPassesTheCapacityItWasGiven) {
    const int32_t h = Instance("admin");
    struct Case {
        std::size_t capacity;
        const char* answer;  // null: the full answer
    };
    const Case cases[] = {
        {kJsonAnswerCapacity, nullptr},
        {100,
         R"({"cmd":"listDevices","result":1015,"error":"the answer does not fit the given buffer"})"},
        {20, ""},  // not even the error fits
    };
    for (const Case& c : cases) {
        std::vector<char> buffer(c.capacity + 16, 'x');
        const int32_t rc =
            SendCammandToCMSByJson(h, R"({"cmd":"listDevices"})", buffer.data(), c.capacity);
        for (std::size_t k = c.capacity; k < buffer.size(); ++k) {
            ASSERT_EQ('x', buffer[k]) << c.capacity << " at " << k;
        }
        if (c.answer == nullptr) {
            EXPECT_EQ(ORVEX_RET_SUCCESS, rc);
            EXPECT_EQ(11u, json::parse(buffer.data())["devices"].size());
        } else {
            EXPECT_EQ(ORVEX_CORE_ERROR_BUFFER_TOO_SMALL, rc);
            if (*c.answer != '\0') {
                EXPECT_EQ(json::parse(c.answer), json::parse(buffer.data()));
            } else {
                EXPECT_EQ('\0', buffer[0]);
            }
        }
    }
}

TEST_F(Platform, TextsThatAreNotUtf8AreAnsweredAndNothingIsWrittenPastTheAnswer) {
    const int32_t h = Instance("operator");
    ASSERT_EQ(ORVEX_RET_SUCCESS, SendScsMsg(h, "330000", "caf\xe9"));
    std::vector<char> answer(kJsonAnswerCapacity, 'x');
    ASSERT_EQ(ORVEX_RET_SUCCESS,
              SendCammandToCMSByJson(h, R"({"cmd":"listScsMessages","group":"330000"})",
                                     answer.data(), answer.size()));
    const std::size_t end = std::strlen(answer.data());
    EXPECT_EQ("caf\xef\xbf\xbd", json::parse(answer.data())["messages"][0]["text"]);
    EXPECT_EQ('x', answer[end + 1]);  // the buffer may be shorter than the platform's bound
    EXPECT_EQ(ORVEX_CORE_ERROR_CHANNEL_NOT_FOUND,
              SendCammandToDMSByJson(h, R"({"cmd":"getChannel"})", "\xff\xfe", answer.data(),
                                     answer.size()));
    EXPECT_EQ(ORVEX_CORE_ERROR_CHANNEL_NOT_FOUND, json::parse(answer.data())["result"]);
}

TEST_F(Platform, GeneralJsonRequestsAreAnsweredThroughTheCallbackNotificationsAreNot) {
    const int32_t h = Instance("operator");
    EXPECT_EQ(ORVEX_RET_SUCCESS,
              GeneralJsonTransport(h, R"({"cmd":"ping"})", ORVEX_MDL_CMS, GENERALJSON_TRAN_NOTIFY));
    EXPECT_EQ(ORVEX_RET_SUCCESS,
              GeneralJsonTransport(h, R"({"cmd":"getChannel","camera":"ipc-gate-01-cam01"})",
                                   ORVEX_MDL_DMS, GENERALJSON_TRAN_REQUEST));
    EXPECT_EQ(ORVEX_RET_SUCCESS, GeneralJsonTransport(h, R"({"cmd":"listDevices"})", ORVEX_MDL_PEC,
                                                      GENERALJSON_TRAN_REQUEST));
    EXPECT_EQ(ORVEX_CORE_ERROR_INVALID_PARAM,
              GeneralJsonTransport(h, "{}", ORVEX_MDL_COUNT, GENERALJSON_TRAN_REQUEST));
    EXPECT_EQ(ORVEX_CORE_ERROR_INVALID_PARAM,
              GeneralJsonTransport(h, "{}", ORVEX_MDL_CMS, GENERALJSON_TRAN_COUNT));

    const auto answers = WaitFor(CbKind::GeneralJsonTransport, h, 2);
    ASSERT_EQ(2u, answers.size());  // the notification had none, and came first
    const json first = json::parse(answers[0].texts[0]);
    EXPECT_EQ(0, first["result"]);
    EXPECT_EQ("Gate dome camera 1", first["channel"]["name"]);
    EXPECT_EQ(ORVEX_MDL_DMS, first["module"]);
    EXPECT_EQ(GENERALJSON_TRAN_RESPONSE, first["tranType"]);
    const json second = json::parse(answers[1].texts[0]);
    EXPECT_EQ(ORVEX_CORE_ERROR_NOT_SUPPORTED, second["result"]);
    EXPECT_EQ(ORVEX_MDL_PEC, second["module"]);
}

TEST_F(Platform, ShortMessagesAndOnScreenTextsAreKeptAndShown) {
    const int32_t h = Instance("operator");
    EXPECT_EQ(ORVEX_RET_SUCCESS, SendScsMsg(h, "330100", "Patrol at 22:00"));
    EXPECT_EQ(ORVEX_RET_SUCCESS, SendScsMsg(h, "330200", "South gate closed"));
    EXPECT_EQ(ORVEX_CORE_ERROR_GROUP_NOT_FOUND, SendScsMsg(h, "999", "x"));
    EXPECT_EQ(ORVEX_CORE_ERROR_INVALID_PARAM, SendScsMsg(h, "330100", ""));
    const json listed = Cms(h, {{"cmd", "listScsMessages"}, {"group", "330100"}});
    EXPECT_EQ(json::parse(R"([{"group":"330100","text":"Patrol at 22:00","from":"operator"}])"),
              listed["messages"]);

    Send_OSDInfo_t osd{};
    std::strcpy(osd.szDevId, "nvr-north-01-cam02");
    std::strcpy(osd.szMessage, "Platform 2");
    ASSERT_EQ(ORVEX_RET_SUCCESS, SendOSDInfo(h, &osd));
    std::vector<char> answer(kJsonAnswerCapacity);
    ASSERT_EQ(ORVEX_RET_SUCCESS,
              SendCammandToDMSByJson(h, R"({"cmd":"getOsd"})", "nvr-north-01-cam02", answer.data(),
                                     answer.size()));
    EXPECT_EQ("Platform 2", json::parse(answer.data())["text"]);
    osd.szMessage[0] = '\0';
    ASSERT_EQ(ORVEX_RET_SUCCESS, SendOSDInfo(h, &osd));
    EXPECT_EQ("", Cms(h, {{"cmd", "getOsd"}, {"id", "nvr-north-01-cam02"}})["text"]);

    std::strcpy(osd.szDevId, "ipc-gate-02");
    EXPECT_EQ(ORVEX_CORE_ERROR_DEVICE_OFFLINE, SendOSDInfo(h, &osd));
    std::strcpy(osd.szDevId, "nowhere");
    EXPECT_EQ(ORVEX_CORE_ERROR_DEVICE_NOT_FOUND, SendOSDInfo(h, &osd));
    std::memset(osd.szMessage, 'a', sizeof osd.szMessage);
    EXPECT_EQ(ORVEX_CORE_ERROR_INVALID_PARAM, SendOSDInfo(h, &osd));
}

// ----- Sharing

TEST_F(Platform, SharedVideoReachesTheListedUsersOtherSessionsButNeverTheSender) {
    const int32_t admin = Instance("admin");
    const int32_t op1 = Instance("operator");
    const int32_t op2 = Instance("operator");
    const int32_t viewer = Instance("viewer");
    ShareVideoInfo videos[2];
    std::memset(videos, 0, sizeof videos);
    std::strcpy(videos[0].szCameraId, "nvr-north-01-cam01");
    videos[0].szCameraId[40] = 'Z';  // past the terminator: travels as given
    videos[0].nType = 1;
    videos[0].nSubStream = 2;
    videos[1] = videos[0];
    std::strcpy(videos[1].szCameraId, "ipc-gate-01-cam01");
    videos[1].nIsMobile = 1;
    videos[1].nPlanId = 1ULL << 40;
    videos[1].nPlaybacktime = 1767229200;
    const int32_t operatorId = 2;

    ASSERT_EQ(ORVEX_RET_SUCCESS, ShareVideo(admin, videos, 2, &operatorId, 1, "Look at this"));
    ASSERT_EQ(ORVEX_RET_SUCCESS, ShareVideo(op1, videos, 1, &operatorId, 1, "To my other desk"));
    // Events of one instance arrive in posting order: a door report posted after the shares
    // shows that nothing was posted to the sender or the viewer before it.
    SetDoorCmd_Request_t door{};
    std::strcpy(door.szCameraId, "door-01");
    door.cmd = CORE_DOOR_CMD_OPEN;
    ASSERT_EQ(ORVEX_RET_SUCCESS, SetDoorCmd(admin, &door));
    for (int32_t h : {admin, op1, op2, viewer}) {
        WaitFor(CbKind::PecDoorStatus, h, 1);
    }

    const auto atOp2 = WaitFor(CbKind::ShareVideo, op2, 2);
    ASSERT_EQ(2u, atOp2.size());
    EXPECT_EQ((std::vector<int64_t>{2, 1}), atOp2[0].ints);  // two videos from user 1
    EXPECT_EQ((std::vector<std::string>{"Look at this", "admin"}), atOp2[0].texts);
    ASSERT_EQ(2u, atOp2[0].videos.size());
    EXPECT_EQ(0, std::memcmp(videos, atOp2[0].videos.data(), sizeof videos));
    EXPECT_EQ((std::vector<int64_t>{1, operatorId}), atOp2[1].ints);
    EXPECT_EQ((std::vector<std::string>{"To my other desk", "operator"}), atOp2[1].texts);

    EXPECT_EQ(1u, WaitFor(CbKind::ShareVideo, op1, 1).size());  // only the admin's
    EXPECT_TRUE(WaitFor(CbKind::ShareVideo, admin, 0).empty());
    EXPECT_TRUE(WaitFor(CbKind::ShareVideo, viewer, 0).empty());

    const int32_t nobody = 99;
    EXPECT_EQ(ORVEX_CORE_ERROR_NOT_FOUND, ShareVideo(admin, videos, 2, &nobody, 1, ""));
    std::strcpy(videos[1].szCameraId, "cam-x");
    EXPECT_EQ(ORVEX_CORE_ERROR_CHANNEL_NOT_FOUND, ShareVideo(admin, videos, 2, &operatorId, 1, ""));
    std::memset(videos[1].szCameraId, 'c', sizeof videos[1].szCameraId);
    EXPECT_EQ(ORVEX_CORE_ERROR_INVALID_PARAM, ShareVideo(admin, videos, 2, &operatorId, 1, ""));
    EXPECT_EQ(ORVEX_RET_SUCCESS, ShareVideo(admin, nullptr, 0, nullptr, 0, ""));
}

// ----- Doors, link resources, NVR channels

TEST_F(Platform, DoorCommandsMoveTheDoorAndEverySessionHearsItsState) {
    const int32_t op = Instance("operator");
    const int32_t viewer = Instance("viewer");
    struct Step {
        int32_t cmd;
        int32_t rc;
        int32_t status;
    };
    const Step steps[] = {
        {CORE_DOOR_CMD_OPEN, 0, Door_Open},
        {CORE_DOOR_CMD_PROGARM, 0, Door_Open},
        {CORE_DOOR_CMD_CLOSE, 0, Door_Close},
        {CORE_DOOR_CMD_ALWAYS_OPEN, 0, Door_Open},
        {CORE_DOOR_CMD_RESET, 0, Door_Close},
        {CORE_DOOR_CMD_HOLIDAY_MAG_OPEN, 0, Door_Open},
        {CORE_DOOR_CMD_HOST_ALWAYS_CLOSE, 0, Door_Close},
        {4, ORVEX_CORE_ERROR_INVALID_PARAM, Door_Close},
    };
    std::size_t reports = 0;
    for (const Step& s : steps) {
        SetDoorCmd_Request_t r{};
        std::strcpy(r.szCameraId, "door-02");
        r.cmd = static_cast<Core_EnumSetDoorCmd>(s.cmd);
        EXPECT_EQ(s.rc, SetDoorCmd(op, &r)) << s.cmd;
        reports += s.rc == 0 ? 1 : 0;
        const json door = Cms(op, {{"cmd", "getDoor"}, {"id", "door-02"}})["door"];
        EXPECT_EQ(s.status, door["status"]) << s.cmd;
        for (int32_t h : {op, viewer}) {
            const auto heardHere = WaitFor(CbKind::PecDoorStatus, h, reports);
            ASSERT_EQ(reports, heardHere.size()) << s.cmd;
            EXPECT_EQ("door-02", heardHere.back().texts[0]);
            EXPECT_EQ(s.status, heardHere.back().ints[0]) << s.cmd;
            EXPECT_NEAR(NowSeconds(), heardHere.back().ints[1], 5);
        }
    }
    SetDoorCmd_Request_t r{};
    std::strcpy(r.szCameraId, "door-09");
    r.cmd = CORE_DOOR_CMD_OPEN;
    EXPECT_EQ(ORVEX_CORE_ERROR_CHANNEL_NOT_FOUND, SetDoorCmd(op, &r));
    std::strcpy(r.szCameraId, "door-01");
    r.start = 200;
    r.end = 100;
    EXPECT_EQ(ORVEX_CORE_ERROR_INVALID_PARAM, SetDoorCmd(op, &r));
    Site([](platform::Site& s) { return s.doors[0].status = Door_DisConn; });
    r.end = 0;
    EXPECT_EQ(ORVEX_CORE_ERROR_DEVICE_OFFLINE, SetDoorCmd(op, &r));
}

TEST_F(Platform, LinkResourceTextIsCountedWithItsTerminatorAndFetchedWhole) {
    const int32_t h = Instance("viewer");
    uint32_t length = 0;
    ASSERT_EQ(ORVEX_RET_SUCCESS, QueryLinkResource(h, &length));
    std::vector<char> xml(length + 8, 'x');
    GetLinkResource_Responce_t shortOne{xml.data(), length - 1};
    EXPECT_EQ(ORVEX_CORE_ERROR_BUFFER_TOO_SMALL, GetLinkResource(h, &shortOne));
    EXPECT_EQ('x', xml[0]);
    GetLinkResource_Responce_t exact{xml.data(), length};
    ASSERT_EQ(ORVEX_RET_SUCCESS, GetLinkResource(h, &exact));
    const std::string text(xml.data());
    EXPECT_EQ(length, text.size() + 1);
    EXPECT_EQ('x', xml[length]);
    EXPECT_EQ(0u, text.find("<?xml"));
    for (const char* part :
         {"<Camera id=\"nvr-north-01-cam01\" name=\"North recorder camera 1\">\n"
          "    <AlarmInput id=\"nvr-north-01-in01\" name=\"North recorder input 1\"/>\n"
          "    <AlarmInput id=\"nvr-north-01-in02\" name=\"North recorder input 2\"/>\n"
          "  </Camera>",
          "<Camera id=\"ipc-traffic-02-cam01\" name=\"Bay camera camera 1\">\n"
          "    <Bay name=\"Bay A\"/>\n",
          "<AlarmSource type=\"", "<PeopleCount rule=\"Gate flow\"/>"}) {
        EXPECT_NE(std::string::npos, text.find(part)) << part;
    }
    EXPECT_EQ(std::string::npos, text.find("nvr-south-01-cam01"));  // no links there
}

TEST_F(Platform, NvrChannelStatesArriveThroughTheCallbackOfTheAskingInstance) {
    const int32_t h = Instance("viewer");
    const int32_t other = Instance("admin");
    ASSERT_EQ(ORVEX_RET_SUCCESS, QueryNVRChnlStatus(h, "nvr-north-01"));
    ASSERT_EQ(ORVEX_RET_SUCCESS, QueryNVRChnlStatus(h, "ipc-gate-02"));
    const auto states = WaitFor(CbKind::NVRChnlStatus, h, 13);
    ASSERT_EQ(13u, states.size());
    EXPECT_EQ("nvr-north-01-cam12", states[11].texts[0]);
    EXPECT_EQ(ORVEX_DEV_STATUS_ONLINE, states[11].ints[0]);
    EXPECT_EQ("ipc-gate-02-cam01", states[12].texts[0]);
    EXPECT_EQ(ORVEX_DEV_STATUS_OFFLINE, states[12].ints[0]);
    EXPECT_TRUE(WaitFor(CbKind::NVRChnlStatus, other, 0).empty());
    EXPECT_EQ(ORVEX_CORE_ERROR_DEVICE_NOT_FOUND, QueryNVRChnlStatus(h, "nvr-x"));
    EXPECT_EQ(ORVEX_CORE_ERROR_NOT_SUPPORTED, QueryNVRChnlStatus(h, "alarmhost-01"));
}

// ----- GPS, bays, people counting

TEST_F(Platform, GpsTextDescribesTheLastPositionsAndFillsTheGivenLength) {
    const int32_t h = Instance("viewer");
    int32_t length = 0;
    ASSERT_EQ(ORVEX_RET_SUCCESS, AskForLastGpsStatusXMLStrCount(h, &length));
    std::vector<char> buffer(length + 10, 'x');
    EXPECT_EQ(ORVEX_CORE_ERROR_BUFFER_TOO_SMALL,
              AskForLastGpsStatusXMLStr(h, buffer.data(), length - 1));
    ASSERT_EQ(ORVEX_RET_SUCCESS, AskForLastGpsStatusXMLStr(h, buffer.data(), length + 5));
    const std::string text(buffer.data());
    EXPECT_EQ(static_cast<std::size_t>(length), text.size() + 1);
    EXPECT_EQ(std::string(5, '\0'), std::string(&buffer[length], 5));  // the rest is cleared
    EXPECT_EQ('x', buffer[length + 5]);
    EXPECT_NE(std::string::npos,
              text.find("<GpsStatus deviceId=\"mdvr-car-07\" deviceName=\"Patrol car 7\" "
                        "online=\"1\" latitude=\"30.274100\" longitude=\"120.155100\" "
                        "speed=\"42.5\" direction=\"90\" time=\"1767268800\"/>"))
        << text;
    EXPECT_NE(std::string::npos, text.find("<GpsStatusList count=\"1\">"));
}

TEST_F(Platform, BaySubscriptionReportsVehiclesOfTheSubscribedCameraUntilCancelled) {
    const int32_t h = Instance("operator");
    Enc_Channel_Info_t channel{};
    std::strcpy(channel.szId, "ipc-traffic-02-cam01");
    Subscribe_Bay_Car_Info_t subscribe{1, &channel, kBaySubscribe};
    ASSERT_EQ(ORVEX_RET_SUCCESS, SubscribeBayCarInfo(h, &subscribe));

    const auto records = WaitFor(CbKind::BayCarInfoEx, h, 1);
    ASSERT_FALSE(records.empty());
    const Heard& r = records[0];
    EXPECT_EQ((std::vector<std::string>{"ipc-traffic-02", "ipc-traffic-02-cam01", "Bay camera",
                                        "Bay camera camera 1", "ZJ-A1234", "330300", "operator",
                                        "Bay A", "/bay/ipc-traffic-02-cam01/0_0.jpg",
                                        "/bay/ipc-traffic-02-cam01/0_plate.jpg"}),
              r.texts);
    for (std::size_t k = 0; k < r.texts.size(); ++k) {
        EXPECT_EQ(static_cast<int64_t>(r.texts[k].size()), r.ints[k]) << r.texts[k];
    }
    EXPECT_EQ(1, r.ints[10]);   // channel number
    EXPECT_EQ(30, r.ints[11]);  // speed of the first record

    subscribe.nSubscribeFlag = kBayCancel;
    ASSERT_EQ(ORVEX_RET_SUCCESS, SubscribeBayCarInfo(h, &subscribe));
    EXPECT_TRUE(WithInstance(h, true, [](platform::Instance& in, platform::Site&) {
        return in.bayJobs.empty() ? 1 : 0;
    }));

    std::strcpy(channel.szId, "nvr-north-01-cam01");
    subscribe.nSubscribeFlag = kBaySubscribe;
    EXPECT_EQ(ORVEX_CORE_ERROR_NOT_SUPPORTED, SubscribeBayCarInfo(h, &subscribe));
    std::strcpy(channel.szId, "cam-x");
    EXPECT_EQ(ORVEX_CORE_ERROR_CHANNEL_NOT_FOUND, SubscribeBayCarInfo(h, &subscribe));
    subscribe.nSubscribeFlag = 2;
    EXPECT_EQ(ORVEX_CORE_ERROR_INVALID_PARAM, SubscribeBayCarInfo(h, &subscribe));
    // No channels: every bay camera of the site.
    Subscribe_Bay_Car_Info_t all{0, nullptr, kBaySubscribe};
    ASSERT_EQ(ORVEX_RET_SUCCESS, SubscribeBayCarInfo(h, &all));
    EXPECT_EQ(1, WithInstance(h, true, [](platform::Instance& in, platform::Site&) {
                  return static_cast<int32_t>(in.bayJobs.count("ipc-traffic-02-cam01"));
              }));
}

constexpr uint32_t kDay = 1767225600;  // the built-in site's counting day, 00:00 UTC

TEST_F(Platform, PeopleCountRowsFollowTheIntervalAndGranularity) {
    const int32_t h = Instance("viewer");
    struct Case {
        uint32_t start, end;
        int32_t granularity;
        uint32_t rows;
        uint32_t firstEntered;
        uint32_t firstMax;
    };
    const Case cases[] = {
        {kDay, kDay + 86400, kPerSample, 4, 80, 28},
        {kDay, kDay + 86400, kPerHour, 4, 80, 28},
        {kDay, kDay + 86400, kPerDay, 1, 80 + 85 + 90 + 95, 31},
        {kDay + 9 * 3600, kDay + 11 * 3600, kPerSample, 2, 85, 29},
        {kDay + 12 * 3600, kDay + 86400, kPerSample, 0, 0, 0},
    };
    for (const Case& c : cases) {
        uint32_t seq = 0, total = 99;
        ASSERT_EQ(ORVEX_RET_SUCCESS, QueryPersonCount(h, "ipc-gate-01-cam01", &seq, &total, c.start,
                                                      c.end, c.granularity));
        EXPECT_EQ(c.rows, total) << c.start << " " << c.granularity;
        Person_Count_Info_t row{};
        ASSERT_EQ(ORVEX_RET_SUCCESS,
                  QueryPersonCountBypage(h, "ipc-gate-01-cam01", seq, 0, 1, &row));
        EXPECT_EQ(c.firstEntered, row.nEnteredSubTotal) << c.start << " " << c.granularity;
        EXPECT_EQ(c.firstMax, row.nMaxInside) << c.start << " " << c.granularity;
        ASSERT_EQ(ORVEX_RET_SUCCESS, StopQueryPersonCount(h, "ipc-gate-01-cam01", seq));
    }
}

TEST_F(Platform, PeopleCountPagesComeFromTheOpenQueryUntilItIsStopped) {
    const int32_t h = Instance("viewer");
    const char* cam = "ipc-gate-01-cam01";
    uint32_t seq = 0, total = 0;
    ASSERT_EQ(ORVEX_RET_SUCCESS, QueryPersonCount(h, cam, &seq, &total, kDay, kDay + 86400, 0));
    ASSERT_EQ(4u, total);

    Person_Count_Info_t rows[5];
    std::memset(rows, 0x5a, sizeof rows);
    ASSERT_EQ(ORVEX_RET_SUCCESS, QueryPersonCountBypage(h, cam, seq, 1, 2, rows));
    EXPECT_EQ(1, rows[0].nChannelID);
    EXPECT_STREQ("Gate flow", rows[0].szRuleName);
    EXPECT_EQ(kDay + 9 * 3600, rows[0].nStartTime);
    EXPECT_EQ(kDay + 10 * 3600, rows[0].nEndTime);
    EXPECT_EQ(85u, rows[0].nEnteredSubTotal);
    EXPECT_EQ(71u, rows[0].nExitedSubtotal);
    EXPECT_EQ(12u, rows[0].nAvgInside);
    EXPECT_EQ(kDay + 10 * 3600, rows[1].nStartTime);
    EXPECT_EQ(0x5a5a5a5a, rows[2].nChannelID);  // beyond the page: untouched

    std::memset(rows, 0x5a, sizeof rows);
    ASSERT_EQ(ORVEX_RET_SUCCESS, QueryPersonCountBypage(h, cam, seq, 3, 5, rows));
    EXPECT_EQ(kDay + 11 * 3600, rows[0].nStartTime);
    EXPECT_EQ(0x5a5a5a5a, rows[1].nChannelID);  // past the last row: untouched

    EXPECT_EQ(ORVEX_CORE_ERROR_INVALID_PARAM, QueryPersonCountBypage(h, cam, seq, 5, 1, rows));
    EXPECT_EQ(ORVEX_CORE_ERROR_INVALID_PARAM,
              QueryPersonCountBypage(h, "nvr-north-01-cam01", seq, 0, 1, rows));
    EXPECT_EQ(ORVEX_CORE_ERROR_SEQ_NOT_FOUND, QueryPersonCountBypage(h, cam, seq + 1, 0, 1, rows));
    ASSERT_EQ(ORVEX_RET_SUCCESS, StopQueryPersonCount(h, cam, seq));
    EXPECT_EQ(ORVEX_CORE_ERROR_SEQ_NOT_FOUND, QueryPersonCountBypage(h, cam, seq, 0, 1, rows));
    EXPECT_EQ(ORVEX_CORE_ERROR_SEQ_NOT_FOUND, StopQueryPersonCount(h, cam, seq));

    EXPECT_EQ(ORVEX_CORE_ERROR_NOT_SUPPORTED,
              QueryPersonCount(h, "nvr-north-01-cam01", &seq, &total, kDay, kDay + 1, 0));
    EXPECT_EQ(ORVEX_CORE_ERROR_CHANNEL_NOT_FOUND,
              QueryPersonCount(h, "cam-x", &seq, &total, kDay, kDay + 1, 0));
    EXPECT_EQ(ORVEX_CORE_ERROR_INVALID_PARAM,
              QueryPersonCount(h, cam, &seq, &total, kDay + 1, kDay, 0));
    EXPECT_EQ(ORVEX_CORE_ERROR_INVALID_PARAM,
              QueryPersonCount(h, cam, &seq, &total, kDay, kDay + 1, 3));
    for (std::size_t k = 0; k < kMaxPersonQueries; ++k) {
        ASSERT_EQ(ORVEX_RET_SUCCESS, QueryPersonCount(h, cam, &seq, &total, kDay, kDay + 1, 0));
    }
    EXPECT_EQ(ORVEX_CORE_ERROR_BUSY, QueryPersonCount(h, cam, &seq, &total, kDay, kDay + 1, 0));
}

}  // namespace
}  // namespace orvexsim::platform
