#include "aux.h"

#include <algorithm>
#include <set>
#include <vector>

#include <nlohmann/json.hpp>

#include "site_model.h"

namespace orvexsim::platform {
namespace {

using nlohmann::json;

// A command as it arrived: its members and, for the DMS, the camera it is for.
struct Request {
    const json& body;
    const std::string& camera;
};

// Fills the answer's members and returns the command's result.
using Handler = int32_t (*)(const Request&, const Site&, json&);

// Texts clients left on the platform (messages, camera identifiers) need not be UTF-8: they are
// answered with replacement characters rather than refused.
std::string Dump(const json& j) {
    return j.dump(-1, ' ', false, json::error_handler_t::replace);
}

std::string TextMember(const json& body, const char* key) {
    auto it = body.find(key);
    return it != body.end() && it->is_string() ? it->get<std::string>() : std::string();
}

int32_t Ping(const Request&, const Site& site, json& answer) {
    answer["server"] = site.name;
    answer["time"] = NowSeconds();
    return ORVEX_RET_SUCCESS;
}

int32_t ListDevices(const Request&, const Site& site, json& answer) {
    json devices = json::array();
    for (const Device& d : site.devices) {
        devices.push_back({{"id", d.id}, {"name", d.name}, {"type", d.type}, {"online", d.online}});
    }
    answer["devices"] = std::move(devices);
    return ORVEX_RET_SUCCESS;
}

int32_t GetDevice(const Request& r, const Site& site, json& answer) {
    const Device* d = site.device(TextMember(r.body, "id"));
    if (d == nullptr) {
        return ORVEX_CORE_ERROR_DEVICE_NOT_FOUND;
    }
    answer["device"] = {{"id", d->id},
                        {"name", d->name},
                        {"type", d->type},
                        {"online", d->online},
                        {"department", d->department},
                        {"ip", d->ip},
                        {"port", d->port},
                        {"channels", d->channels.size()},
                        {"alarmInputs", d->alarmInputs.size()},
                        {"disks", d->disks.size()}};
    return ORVEX_RET_SUCCESS;
}

json WindowJson(const WallScreen::Window& w) {
    json out = {{"id", w.id}, {"camera", w.camera}, {"stream", w.streamType}};
    if (!w.pane) {
        out["zorder"] = w.zorder;
        out["rect"] = {w.left, w.top, w.width, w.height};
    }
    return out;
}

int32_t GetWall(const Request& r, const Site& site, json& answer) {
    auto id = r.body.find("id");
    if (id == r.body.end() || !id->is_number_integer()) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    const Wall* w = FindBy(site.walls, &Wall::id, id->get<int64_t>());
    if (w == nullptr) {
        return ORVEX_CORE_ERROR_NOT_FOUND;
    }
    json screens = json::array();
    for (const WallScreen& s : w->screens) {
        json windows = json::array();
        for (const WallScreen::Window& win : s.windows) {
            windows.push_back(WindowJson(win));
        }
        screens.push_back({{"id", s.id},
                           {"decoder", s.decoder},
                           {"split", s.split},
                           {"windows", std::move(windows)}});
    }
    answer["wall"] = {
        {"id", w->id}, {"name", w->name}, {"state", w->state}, {"screens", std::move(screens)}};
    return ORVEX_RET_SUCCESS;
}

int32_t GetDoor(const Request& r, const Site& site, json& answer) {
    const std::string id = TextMember(r.body, "id");
    const Door* d = FindBy(site.doors, &Door::id, id);
    if (d == nullptr) {
        return ORVEX_CORE_ERROR_NOT_FOUND;
    }
    answer["door"] = {
        {"id", d->id}, {"name", d->name}, {"device", d->device}, {"status", d->status}};
    return ORVEX_RET_SUCCESS;
}

int32_t GetBurner(const Request& r, const Site& site, json& answer) {
    const std::string device = TextMember(r.body, "device");
    const Burner* b = FindBy(site.burners, &Burner::device, device);
    if (b == nullptr) {
        return site.device(device) != nullptr ? ORVEX_CORE_ERROR_NOT_SUPPORTED
                                              : ORVEX_CORE_ERROR_DEVICE_NOT_FOUND;
    }
    answer["burner"] = {{"device", b->device},
                        {"name", b->name},
                        {"drives", b->drives},
                        {"state", b->state},
                        {"channelMask", b->channelMask},
                        {"burnerMask", b->burnerMask},
                        {"discChanges", b->discChanges},
                        {"caseId", b->caseId},
                        {"caseIdLabel", b->caseIdLabel},
                        {"recordName", b->recordName},
                        {"recordPerson", b->recordPerson}};
    return ORVEX_RET_SUCCESS;
}

// The CMS names the device or channel in "id"; the DMS asks for the camera of the call.
int32_t GetOsd(const Request& r, const Site& site, json& answer) {
    const std::string id = r.body.contains("id") ? TextMember(r.body, "id") : r.camera;
    if (site.device(id) == nullptr && site.channel(id) == nullptr) {
        return ORVEX_CORE_ERROR_DEVICE_NOT_FOUND;
    }
    auto it = site.osdTexts.find(id);
    answer["id"] = id;
    answer["text"] = it == site.osdTexts.end() ? std::string() : it->second;
    return ORVEX_RET_SUCCESS;
}

// The latest messages of one group (of every group without "group"), oldest first.
int32_t ListScsMessages(const Request& r, const Site& site, json& answer) {
    constexpr std::size_t kListed = 10;
    const std::string group = TextMember(r.body, "group");
    json messages = json::array();
    for (auto it = site.scsMessages.rbegin();
         it != site.scsMessages.rend() && messages.size() < kListed; ++it) {
        if (group.empty() || it->group == group) {
            json message = {{"group", it->group}, {"text", it->text}, {"from", it->fromUser}};
            messages.insert(messages.begin(), std::move(message));
        }
    }
    answer["messages"] = std::move(messages);
    return ORVEX_RET_SUCCESS;
}

int32_t GetChannel(const Request& r, const Site& site, json& answer) {
    const Device* owner = nullptr;
    const Channel* c = site.channel(r.camera, &owner);
    if (c == nullptr) {
        return ORVEX_CORE_ERROR_CHANNEL_NOT_FOUND;
    }
    answer["channel"] = {
        {"id", c->id},
        {"name", c->name},
        {"device", owner->id},
        {"online", owner->online && c->online},
        {"ptz", {{"pan", c->ptz.pan}, {"tilt", c->ptz.tilt}, {"zoom", c->ptz.zoom}}},
        {"presets", c->presets.size()},
        {"recordings", c->recordings.size()}};
    return ORVEX_RET_SUCCESS;
}

enum Modules : unsigned { kCms = 1, kDms = 2, kAny = 4 };

struct Command {
    const char* name;
    unsigned modules;
    Handler run;
};

const Command kCommands[] = {
    {"ping", kCms | kDms | kAny, Ping}, {"listDevices", kCms, ListDevices},
    {"getDevice", kCms, GetDevice},     {"getWall", kCms, GetWall},
    {"getDoor", kCms, GetDoor},         {"getBurner", kCms, GetBurner},
    {"getOsd", kCms | kDms, GetOsd},    {"listScsMessages", kCms, ListScsMessages},
    {"getChannel", kDms, GetChannel},
};

unsigned ModuleBit(int32_t module) {
    return module == ORVEX_MDL_CMS ? kCms : module == ORVEX_MDL_DMS ? kDms : kAny;
}

int32_t SessionOf(int32_t handle) {
    return WithInstance(handle, true, [](Instance&, Site&) { return ORVEX_RET_SUCCESS; });
}

// Runs one command under the platform lock and returns its result and answer object. An unknown
// or logged-out instance is answered too: no module heard the command.
int32_t Answer(int32_t handle, const char* text, int32_t module, const std::string& camera,
               json* answer) {
    json body = json::parse(text, nullptr, false);
    const std::string cmd = body.is_object() ? TextMember(body, "cmd") : std::string();
    *answer = json::object();
    if (!cmd.empty()) {
        (*answer)["cmd"] = cmd;
    }
    const Command* found = nullptr;
    for (const Command& c : kCommands) {
        if (cmd == c.name && (c.modules & ModuleBit(module)) != 0) {
            found = &c;
        }
    }
    int32_t rc = SessionOf(handle);
    if (rc == ORVEX_RET_SUCCESS) {
        rc = cmd.empty()        ? ORVEX_CORE_ERROR_INVALID_PARAM
             : found == nullptr ? ORVEX_CORE_ERROR_NOT_SUPPORTED
                                : WithInstance(handle, true, [&](Instance&, Site& site) {
                                      return found->run({body, camera}, site, *answer);
                                  });
    }
    (*answer)["result"] = rc;
    if (rc == ORVEX_CORE_ERROR_INVALID_PARAM && cmd.empty()) {
        (*answer)["error"] = "not a JSON object with a \"cmd\" text";
    } else if (rc == ORVEX_CORE_ERROR_NOT_SUPPORTED && found == nullptr) {
        (*answer)["error"] = "unknown command";
    } else if (rc != ORVEX_RET_SUCCESS) {
        (*answer)["error"] = ORVEX_ErrorMessage(rc);
    }
    return rc;
}

int32_t CommandToBuffer(int32_t handle, const char* text, int32_t module, const char* camera,
                        char* buffer, std::size_t capacity) {
    if (text == nullptr || buffer == nullptr || camera == nullptr || capacity == 0) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    json answer;
    int32_t rc = Answer(handle, text, module, camera, &answer);
    // The capacity is only the platform's bound: the caller's buffer may be smaller, so nothing
    // is written past the answer's terminator.
    if (WriteText(buffer, static_cast<int64_t>(capacity), Dump(answer), TextFit::WholeOnly) !=
        ORVEX_RET_SUCCESS) {
        rc = ORVEX_CORE_ERROR_BUFFER_TOO_SMALL;
        const json tooLong = {
            {"cmd", answer.value("cmd", "")}, {"result", rc}, {"error", ORVEX_ErrorMessage(rc)}};
        if (WriteText(buffer, static_cast<int64_t>(capacity), Dump(tooLong), TextFit::WholeOnly) !=
            ORVEX_RET_SUCCESS) {
            buffer[0] = '\0';
        }
    }
    return rc;
}

}  // namespace

int32_t SendCammandToCMSByJson(int32_t handle, const char* json, char* answer,
                               std::size_t capacity) {
    return CommandToBuffer(handle, json, ORVEX_MDL_CMS, "", answer, capacity);
}

int32_t SendCammandToDMSByJson(int32_t handle, const char* json, const char* cameraId, char* answer,
                               std::size_t capacity) {
    return CommandToBuffer(handle, json, ORVEX_MDL_DMS, cameraId, answer, capacity);
}

int32_t GeneralJsonTransport(int32_t handle, const char* text, int32_t module, int32_t tranType) {
    if (text == nullptr || module < ORVEX_MDL_APP || module >= ORVEX_MDL_COUNT ||
        tranType < GENERALJSON_TRAN_REQUEST || tranType >= GENERALJSON_TRAN_COUNT) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    if (int32_t rc = SessionOf(handle)) {
        return rc;
    }
    if (tranType == GENERALJSON_TRAN_REQUEST) {
        const json body = json::parse(text, nullptr, false);
        const std::string camera = body.is_object() ? TextMember(body, "camera") : std::string();
        json answer;
        Answer(handle, text, module, camera, &answer);
        answer["module"] = module;
        answer["tranType"] = GENERALJSON_TRAN_RESPONSE;
        PostEvent(CbKind::GeneralJsonTransport, handle, {IntArg(handle), TextArg(Dump(answer))});
    }
    return ORVEX_RET_SUCCESS;
}

int32_t SendScsMsg(int32_t handle, const char* groupId, const char* text) {
    if (groupId == nullptr || text == nullptr || *text == '\0' || std::strlen(text) > kMaxScsText) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    return WithInstance(handle, true, [&](Instance& in, Site& site) {
        if (site.department(groupId) == nullptr) {
            return ORVEX_CORE_ERROR_GROUP_NOT_FOUND;
        }
        site.scsMessages.push_back({groupId, text, in.userName});
        if (site.scsMessages.size() > kKeptScsMessages) {
            site.scsMessages.erase(site.scsMessages.begin());
        }
        return ORVEX_RET_SUCCESS;
    });
}

int32_t ShareVideo(int32_t handle, const ShareVideoInfo* videos, int32_t videoCount,
                   const int32_t* userIds, int32_t userCount, const char* message) {
    if (videoCount < 0 || userCount < 0 || (videoCount > 0 && videos == nullptr) ||
        (userCount > 0 && userIds == nullptr) || message == nullptr) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    const std::vector<ShareVideoInfo> shared(videos, videos + videoCount);
    const std::set<int32_t> users(userIds, userIds + userCount);
    for (const ShareVideoInfo& v : shared) {
        if (!Terminated(v.szCameraId)) {
            return ORVEX_CORE_ERROR_INVALID_PARAM;
        }
    }
    uint32_t senderId = 0;
    std::string senderName;
    const int32_t rc = WithInstance(handle, true, [&](Instance& in, Site& site) {
        for (const ShareVideoInfo& v : shared) {
            if (site.channel(v.szCameraId) == nullptr) {
                return ORVEX_CORE_ERROR_CHANNEL_NOT_FOUND;
            }
        }
        for (int32_t id : users) {
            if (std::none_of(site.users.begin(), site.users.end(),
                             [id](const User& u) { return u.id == static_cast<uint32_t>(id); })) {
                return ORVEX_CORE_ERROR_NOT_FOUND;
            }
        }
        senderId = in.userId;
        senderName = in.userName;
        return ORVEX_RET_SUCCESS;
    });
    if (rc != ORVEX_RET_SUCCESS) {
        return rc;
    }
    // The records travel as the sender gave them, bytes after each identifier included.
    Value records;
    records.isBytes = true;
    records.b.assign(reinterpret_cast<const uint8_t*>(shared.data()),
                     reinterpret_cast<const uint8_t*>(shared.data() + shared.size()));
    for (const Session& s : LoggedInSessions()) {
        if (s.handle != handle && users.count(static_cast<int32_t>(s.userId)) != 0) {
            PostEvent(CbKind::ShareVideo, s.handle,
                      {IntArg(s.handle), records, IntArg(videoCount), TextArg(message),
                       IntArg(senderId), TextArg(senderName)});
        }
    }
    return ORVEX_RET_SUCCESS;
}

int32_t SendOSDInfo(int32_t handle, const Send_OSDInfo_t* info) {
    if (info == nullptr || !Terminated(info->szDevId) || !Terminated(info->szMessage)) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    return WithInstance(handle, true, [&](Instance& in, Site& site) {
        if (int32_t rc = MayOperate(in, site)) {
            return rc;
        }
        const Device* owner = site.device(info->szDevId);
        if (owner == nullptr && site.channel(info->szDevId, &owner) == nullptr) {
            return int32_t{ORVEX_CORE_ERROR_DEVICE_NOT_FOUND};
        }
        if (!owner->online) {
            return int32_t{ORVEX_CORE_ERROR_DEVICE_OFFLINE};
        }
        if (info->szMessage[0] == '\0') {
            site.osdTexts.erase(info->szDevId);
        } else {
            site.osdTexts[info->szDevId] = info->szMessage;
        }
        return int32_t{ORVEX_RET_SUCCESS};
    });
}

}  // namespace orvexsim::platform
