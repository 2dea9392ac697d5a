#include "aux_vehicles.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include "site_model.h"

namespace orvexsim::platform {
namespace {

// The state each door command leaves the door in; kKeep for commands that do not move it.
constexpr int32_t kKeep = -1;
const std::pair<int32_t, int32_t> kDoorCommands[] = {
    {CORE_DOOR_CMD_PROGARM, kKeep},
    {CORE_DOOR_CMD_OPEN, Door_Open},
    {CORE_DOOR_CMD_CLOSE, Door_Close},
    {CORE_DOOR_CMD_ALWAYS_OPEN, Door_Open},
    {CORE_DOOR_CMD_ALWAYS_CLOSE, Door_Close},
    {CORE_DOOR_CMD_HOLIDAY_MAG_OPEN, Door_Open},
    {CORE_DOOR_CMD_HOLIDAY_MAG_CLOSE, Door_Close},
    {CORE_DOOR_CMD_RESET, Door_Close},
    {CORE_DOOR_CMD_HOST_ALWAYS_OPEN, Door_Open},
    {CORE_DOOR_CMD_HOST_ALWAYS_CLOSE, Door_Close},
};

const std::pair<int32_t, int32_t>* DoorCommand(int32_t cmd) {
    for (const auto& c : kDoorCommands) {
        if (c.first == cmd) {
            return &c;
        }
    }
    return nullptr;
}

std::string Number(const char* format, double value) {
    char text[64];
    std::snprintf(text, sizeof text, format, value);
    return text;
}

const char* kXmlDeclaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";

// Per camera: the alarm inputs of its device, the alarms it raises itself, its bay and its
// people counting. Cameras without any link are left out.
std::string LinkResourceXml(const Site& site) {
    std::string xml = std::string(kXmlDeclaration) + "<LinkResource>\n";
    for (const Device& d : site.devices) {
        for (const Channel& c : d.channels) {
            std::string links;
            for (const AlarmInput& in : d.alarmInputs) {
                links += "    <AlarmInput" + Attr("id", in.id, XmlQuotes::All) +
                         Attr("name", in.name, XmlQuotes::All) + "/>\n";
            }
            for (const AlarmSource& s : site.alarmSources) {
                if (s.id == c.id) {
                    links += "    <AlarmSource" +
                             Attr("type", std::to_string(s.type), XmlQuotes::All) +
                             Attr("name", s.name, XmlQuotes::All) + "/>\n";
                }
            }
            for (const BayCamera& b : site.bays) {
                if (b.camera == c.id) {
                    links += "    <Bay" + Attr("name", b.bay, XmlQuotes::All) + "/>\n";
                }
            }
            for (const PeopleCount& p : site.peopleCounts) {
                if (p.camera == c.id) {
                    links += "    <PeopleCount" + Attr("rule", p.rule, XmlQuotes::All) + "/>\n";
                }
            }
            if (!links.empty()) {
                xml += "  <Camera" + Attr("id", c.id, XmlQuotes::All) +
                       Attr("name", c.name, XmlQuotes::All) + ">\n" + links + "  </Camera>\n";
            }
        }
    }
    return xml + "</LinkResource>\n";
}

std::string GpsXml(const Site& site) {
    std::string xml = std::string(kXmlDeclaration) + "<GpsStatusList" +
                      Attr("count", std::to_string(site.gps.size()), XmlQuotes::All) + ">\n";
    for (const GpsPosition& g : site.gps) {
        const Device* d = site.device(g.device);
        xml += "  <GpsStatus" + Attr("deviceId", g.device, XmlQuotes::All) +
               Attr("deviceName", d != nullptr ? d->name : "", XmlQuotes::All) +
               Attr("online", d != nullptr && d->online ? "1" : "0", XmlQuotes::All) +
               Attr("latitude", Number("%.6f", g.latitude), XmlQuotes::All) +
               Attr("longitude", Number("%.6f", g.longitude), XmlQuotes::All) +
               Attr("speed", Number("%.1f", g.speed), XmlQuotes::All) +
               Attr("direction", std::to_string(g.direction), XmlQuotes::All) +
               Attr("time", std::to_string(g.time), XmlQuotes::All) + "/>\n";
    }
    return xml + "</GpsStatusList>\n";
}

// Counts (terminator included) a text the next call fetches, keeping it in the instance.
int32_t CountText(int32_t handle, std::string Instance::*kept, std::string (*make)(const Site&),
                  uint32_t* length) {
    return WithInstance(handle, true, [&](Instance& in, Site& site) {
        in.*kept = make(site);
        *length = static_cast<uint32_t>((in.*kept).size() + 1);
        return ORVEX_RET_SUCCESS;
    });
}

// The text the last count announced (a fresh one without a count) into the caller's buffer.
int32_t FetchText(int32_t handle, std::string Instance::*kept, std::string (*make)(const Site&),
                  char* buffer, std::size_t capacity) {
    if (buffer == nullptr || capacity == 0) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    return WithInstance(handle, true, [&](Instance& in, Site& site) {
        return WriteText(buffer, static_cast<int64_t>(capacity),
                         (in.*kept).empty() ? make(site) : in.*kept, TextFit::WholeClearRest);
    });
}

// One vehicle record of a bay camera: the n-th, with the bay's plates in turn.
std::vector<Value> BayRecord(const Site& site, int32_t handle, const BayCamera& bay,
                             const std::string& user, uint32_t n) {
    const Device* device = nullptr;
    const Channel* channel = site.channel(bay.camera, &device);
    if (channel == nullptr || bay.plates.empty()) {
        return {};
    }
    const int64_t index = std::find_if(device->channels.begin(), device->channels.end(),
                                       [&](const Channel& c) { return &c == channel; }) -
                          device->channels.begin();
    const std::string picture = "/bay/" + bay.camera + "/" + std::to_string(n);
    std::vector<Value> v{IntArg(handle)};
    auto text = [&v](const std::string& s) {
        v.push_back(TextArg(s));
        v.push_back(IntArg(static_cast<int64_t>(s.size())));
    };
    text(device->id);
    v.push_back(IntArg(index + 1));
    text(channel->id);
    text(device->name);
    text(channel->name);
    text(bay.plates[n % bay.plates.size()]);
    const int64_t plateType = 1, plateColour = n % 4, speed = 30 + n * 7 % 50, carType = 1,
                  carColour = n % 8, carLength = 450, direction = n % 2, lane = 1 + n % 3;
    for (int64_t value :
         {plateType, plateColour, speed, carType, carColour, carLength, direction, lane}) {
        v.push_back(IntArg(value));
    }
    v.push_back(IntArg(NowSeconds() * 1000));  // capture time, ms
    v.push_back(IntArg(n + 1));                // picture group
    v.push_back(IntArg(0));                    // needs storing
    v.push_back(IntArg(0));                    // stored
    text(device->department);
    text("");
    text(user);
    text(bay.bay);
    text(picture + "_0.jpg");
    for (int k = 1; k <= 5; ++k) {
        text("");
    }
    text(picture + "_plate.jpg");
    const int64_t logo = 0, left = 100, right = 260, top = 300, bottom = 340;
    for (int64_t value : {logo, left, right, top, bottom}) {
        v.push_back(IntArg(value));
    }
    return v;
}

void ReportBay(int32_t handle, const std::string& camera, const std::string& user, uint32_t n) {
    std::vector<Value> record = WithSite([&](Site& site) {
        const BayCamera* bay = FindBy(site.bays, &BayCamera::camera, camera);
        return bay != nullptr ? BayRecord(site, handle, *bay, user, n) : std::vector<Value>{};
    });
    if (!record.empty()) {
        PostEvent(CbKind::BayCarInfoEx, handle, std::move(record));
    }
}

std::vector<PeopleCountSample> CountRows(const PeopleCount& count, uint32_t start, uint32_t end,
                                         int32_t granularity) {
    const uint32_t bucket = granularity == kPerHour ? 3600 : granularity == kPerDay ? 86400 : 0;
    std::vector<PeopleCountSample> rows;
    uint32_t merged = 0;  // samples in the last row
    for (const PeopleCountSample& s : count.samples) {
        if (s.start < start || s.end > end) {
            continue;
        }
        const uint32_t from = bucket == 0 ? s.start : s.start / bucket * bucket;
        if (bucket == 0 || rows.empty() || rows.back().start != from) {
            rows.push_back(s);
            rows.back().start = from;
            rows.back().end = bucket == 0 ? s.end : from + bucket;
            merged = 1;
            continue;
        }
        // A row of several samples sums the flows, averages the averages, keeps the maximum.
        PeopleCountSample& row = rows.back();
        row.entered += s.entered;
        row.exited += s.exited;
        row.avgInside = (row.avgInside * merged + s.avgInside) / (merged + 1);
        row.maxInside = std::max(row.maxInside, s.maxInside);
        ++merged;
    }
    return rows;
}

const PeopleCount* CountOf(const Site& site, const std::string& camera) {
    return FindBy(site.peopleCounts, &PeopleCount::camera, camera);
}

// The open query `seq` of the instance, for the same camera; null with the result otherwise.
Instance::PersonQuery* OpenQuery(Instance& in, const char* camera, uint32_t seq, int32_t* rc) {
    auto it = in.personQueries.find(seq);
    *rc = it == in.personQueries.end()  ? ORVEX_CORE_ERROR_SEQ_NOT_FOUND
          : it->second.camera != camera ? ORVEX_CORE_ERROR_INVALID_PARAM
                                        : ORVEX_RET_SUCCESS;
    return *rc == ORVEX_RET_SUCCESS ? &it->second : nullptr;
}

}  // namespace

int32_t SetDoorCmd(int32_t handle, const SetDoorCmd_Request_t* request) {
    if (request == nullptr || !Terminated(request->szCameraId) ||
        DoorCommand(request->cmd) == nullptr ||
        (request->end != 0 && request->start > request->end)) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    const int32_t next = DoorCommand(request->cmd)->second;
    int32_t status = 0;
    const int32_t rc = WithInstance(handle, true, [&](Instance& in, Site& site) {
        if (int32_t denied = MayOperate(in, site)) {
            return denied;
        }
        Door* door = FindBy(site.doors, &Door::id, std::string(request->szCameraId));
        if (door == nullptr) {
            return int32_t{ORVEX_CORE_ERROR_CHANNEL_NOT_FOUND};
        }
        const Device* controller = site.device(door->device);
        if (door->status == Door_DisConn || controller == nullptr || !controller->online) {
            return int32_t{ORVEX_CORE_ERROR_DEVICE_OFFLINE};
        }
        door->status = next == kKeep ? door->status : next;
        status = door->status;
        return int32_t{ORVEX_RET_SUCCESS};
    });
    if (rc == ORVEX_RET_SUCCESS) {
        const int64_t now = NowSeconds();
        for (const Session& s : LoggedInSessions()) {
            PostEvent(
                CbKind::PecDoorStatus, s.handle,
                {IntArg(s.handle), TextArg(request->szCameraId), IntArg(status), IntArg(now)});
        }
    }
    return rc;
}

int32_t QueryLinkResource(int32_t handle, uint32_t* length) {
    if (length == nullptr) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    return CountText(handle, &Instance::linkResourceXml, LinkResourceXml, length);
}

int32_t GetLinkResource(int32_t handle, GetLinkResource_Responce_t* response) {
    if (response == nullptr) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    return FetchText(handle, &Instance::linkResourceXml, LinkResourceXml, response->pXmlData,
                     response->nLen);
}

int32_t QueryNVRChnlStatus(int32_t handle, const char* deviceId) {
    if (deviceId == nullptr) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    return WithInstance(handle, true, [&](Instance&, Site& site) {
        const Device* d = site.device(deviceId);
        if (d == nullptr) {
            return ORVEX_CORE_ERROR_DEVICE_NOT_FOUND;
        }
        if (d->channels.empty()) {
            return ORVEX_CORE_ERROR_NOT_SUPPORTED;
        }
        for (const Channel& c : d->channels) {
            const bool online = d->online && c.online;
            PostEvent(CbKind::NVRChnlStatus, handle,
                      {IntArg(handle), TextArg(c.id),
                       IntArg(online ? ORVEX_DEV_STATUS_ONLINE : ORVEX_DEV_STATUS_OFFLINE)});
        }
        return ORVEX_RET_SUCCESS;
    });
}

int32_t AskForLastGpsStatusXMLStrCount(int32_t handle, int32_t* length) {
    if (length == nullptr) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    uint32_t n = 0;
    const int32_t rc = CountText(handle, &Instance::gpsXml, GpsXml, &n);
    if (rc == ORVEX_RET_SUCCESS) {
        *length = static_cast<int32_t>(n);
    }
    return rc;
}

int32_t AskForLastGpsStatusXMLStr(int32_t handle, char* buffer, int32_t length) {
    if (length <= 0) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    return FetchText(handle, &Instance::gpsXml, GpsXml, buffer, static_cast<std::size_t>(length));
}

int32_t SubscribeBayCarInfo(int32_t handle, const Subscribe_Bay_Car_Info_t* info) {
    if (info == nullptr || info->nChnlCount < 0 ||
        (info->nChnlCount > 0 && info->pEncChannelnfo == nullptr) ||
        (info->nSubscribeFlag != kBaySubscribe && info->nSubscribeFlag != kBayCancel)) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    std::vector<std::string> cameras;
    for (int32_t k = 0; k < info->nChnlCount; ++k) {
        if (!Terminated(info->pEncChannelnfo[k].szId)) {
            return ORVEX_CORE_ERROR_INVALID_PARAM;
        }
        cameras.push_back(info->pEncChannelnfo[k].szId);
    }
    return WithInstance(handle, true, [&](Instance& in, Site& site) {
        for (const std::string& camera : cameras) {
            if (site.channel(camera) == nullptr) {
                return ORVEX_CORE_ERROR_CHANNEL_NOT_FOUND;
            }
            if (std::none_of(site.bays.begin(), site.bays.end(),
                             [&](const BayCamera& b) { return b.camera == camera; })) {
                return ORVEX_CORE_ERROR_NOT_SUPPORTED;
            }
        }
        if (cameras.empty()) {  // no channels: every bay camera of the site
            for (const BayCamera& b : site.bays) {
                cameras.push_back(b.camera);
            }
        }
        for (const std::string& camera : cameras) {
            // Subscribing again restarts the camera's reports (a logout ended them).
            auto it = in.bayJobs.find(camera);
            if (it != in.bayJobs.end()) {
                CancelJob(handle, it->second);
                in.bayJobs.erase(it);
            }
            if (info->nSubscribeFlag == kBaySubscribe) {
                in.bayJobs[camera] =
                    RunJob(handle, JobScope::Session, kBayFirst, kBayPeriod,
                           [handle, camera, user = in.userName, n = uint32_t{0}]() mutable {
                               ReportBay(handle, camera, user, n++);
                           });
            }
        }
        return ORVEX_RET_SUCCESS;
    });
}

int32_t QueryPersonCount(int32_t handle, const char* cameraId, uint32_t* querySeq,
                         uint32_t* totalCount, uint32_t startTime, uint32_t endTime,
                         int32_t granularity) {
    if (cameraId == nullptr || *cameraId == '\0' || querySeq == nullptr || totalCount == nullptr ||
        startTime > endTime || granularity < kPerSample || granularity > kPerDay) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    return WithInstance(handle, true, [&](Instance& in, Site& site) {
        if (site.channel(cameraId) == nullptr) {
            return ORVEX_CORE_ERROR_CHANNEL_NOT_FOUND;
        }
        const PeopleCount* count = CountOf(site, cameraId);
        if (count == nullptr) {
            return ORVEX_CORE_ERROR_NOT_SUPPORTED;
        }
        if (in.personQueries.size() >= kMaxPersonQueries) {
            return ORVEX_CORE_ERROR_BUSY;
        }
        const uint32_t seq = ++in.lastPersonQuery;
        Instance::PersonQuery& q = in.personQueries[seq];
        q.camera = cameraId;
        q.rows = CountRows(*count, startTime, endTime, granularity);
        *querySeq = seq;
        *totalCount = static_cast<uint32_t>(q.rows.size());
        return ORVEX_RET_SUCCESS;
    });
}

int32_t QueryPersonCountBypage(int32_t handle, const char* cameraId, uint32_t querySeq,
                               uint32_t index, uint32_t count, Person_Count_Info_t* rows) {
    if (cameraId == nullptr || (count > 0 && rows == nullptr)) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    return WithInstance(handle, true, [&](Instance& in, Site& site) {
        int32_t rc = ORVEX_RET_SUCCESS;
        const Instance::PersonQuery* q = OpenQuery(in, cameraId, querySeq, &rc);
        if (q == nullptr) {
            return rc;
        }
        if (index > q->rows.size()) {
            return int32_t{ORVEX_CORE_ERROR_INVALID_PARAM};
        }
        const Device* device = nullptr;
        const Channel* channel = site.channel(q->camera, &device);
        const PeopleCount* counted = CountOf(site, q->camera);
        const int32_t number =
            channel == nullptr ? 0 : static_cast<int32_t>(channel - device->channels.data()) + 1;
        const std::size_t n = std::min<std::size_t>(count, q->rows.size() - index);
        for (std::size_t k = 0; k < n; ++k) {
            const PeopleCountSample& s = q->rows[index + k];
            Person_Count_Info_t& r = rows[k];
            r.nChannelID = number;
            CopyText(r.szRuleName, counted != nullptr ? counted->rule : std::string());
            r.nStartTime = s.start;
            r.nEndTime = s.end;
            r.nEnteredSubTotal = s.entered;
            r.nExitedSubtotal = s.exited;
            r.nAvgInside = s.avgInside;
            r.nMaxInside = s.maxInside;
        }
        return int32_t{ORVEX_RET_SUCCESS};
    });
}

int32_t StopQueryPersonCount(int32_t handle, const char* cameraId, uint32_t querySeq) {
    if (cameraId == nullptr) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    return WithInstance(handle, true, [&](Instance& in, Site&) {
        int32_t rc = ORVEX_RET_SUCCESS;
        if (OpenQuery(in, cameraId, querySeq, &rc) != nullptr) {
            in.personQueries.erase(querySeq);
        }
        return rc;
    });
}

}  // namespace orvexsim::platform
