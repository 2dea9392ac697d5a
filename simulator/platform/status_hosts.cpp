// Device lists as text and the states of devices and channels; alarm hosts of the simulated
// site: zones live in the site, the states of recorders' alarm inputs live here, guarded by the
// platform mutex like the site.
#include "status_hosts.h"

#include <ctime>
#include <map>

#include "ORVEX_Core_Error.h"
#include "alarms.h"
#include "records.h"
#include "site_model.h"

namespace orvexsim::platform {
namespace {

using Text = std::string (*)(const Site&);

orvex_dev_status_e Status(bool online) {
    return online ? ORVEX_DEV_STATUS_ONLINE : ORVEX_DEV_STATUS_OFFLINE;
}

// One line per device: what a client needs to list and pick devices.
std::string DeviceList(const Site& site) {
    std::string out = "<?xml version=\"1.0\" encoding=\"UTF-8\"?><DeviceList>";
    for (const Device& d : site.devices) {
        out += "<Device" + Attr("id", d.id) + Attr("name", d.name) + Attr("type", d.type) +
               Attr("status", Status(d.online)) + Attr("department", d.department) +
               Attr("channels", d.channels.size()) + Attr("alarmInputs", d.alarmInputs.size()) +
               "/>";
    }
    return out + "</DeviceList>";
}

// Every device with its record's members (but its password) and its channels.
std::string DevicesInfo(const Site& site) {
    std::string out = "<?xml version=\"1.0\" encoding=\"UTF-8\"?><DevicesInfo>";
    for (const Device& d : site.devices) {
        out += "<Device" + Attr("id", d.id) + Attr("name", d.name) + Attr("type", d.type) +
               Attr("status", Status(d.online)) + Attr("department", d.department) +
               Attr("factory", d.factory) + Attr("model", d.model) + Attr("ip", d.ip) +
               Attr("port", d.port) + Attr("regId", d.regId) + Attr("unitNum", d.unitNum) +
               Attr("sn", d.sn) + Attr("devIp", d.devIp) + Attr("devPort", d.devPort) +
               Attr("maintainer", d.maintainer) + Attr("maintainerPhone", d.maintainerPhone) +
               Attr("location", d.location) + Attr("desc", d.desc) + Attr("callNum", d.callNum) +
               ">";
        for (const Channel& c : d.channels) {
            out += "<Channel" + Attr("id", c.id) + Attr("name", c.name) +
                   Attr("cameraType", c.cameraType) + Attr("status", Status(d.online && c.online)) +
                   Attr("sn", c.sn) + Attr("latitude", c.latitude) +
                   Attr("longitude", c.longitude) + "/>";
        }
        for (const AlarmInput& a : d.alarmInputs) {
            out += "<AlarmInput" + Attr("id", a.id) + Attr("name", a.name) +
                   Attr("status", Status(d.online && a.online)) + "/>";
        }
        out += "</Device>";
    }
    return out + "</DevicesInfo>";
}

int32_t Length(int32_t handle, int32_t* len, Text text) {
    return WithInstance(handle, true, [=](Instance&, Site& site) -> int32_t {
        if (len == nullptr) {
            return ORVEX_CORE_ERROR_INVALID_PARAM;
        }
        *len = LengthOf(text(site));
        return ORVEX_RET_SUCCESS;
    });
}

int32_t Fetch(int32_t handle, char* buffer, int32_t len, Text text) {
    return WithInstance(handle, true, [=](Instance&, Site& site) {
        return WriteText(buffer, len, text(site), TextFit::Cut);
    });
}

}  // namespace

int32_t GetDeviceListLen(int32_t handle, int32_t* len) {
    return Length(handle, len, DeviceList);
}

int32_t GetDeviceListStr(int32_t handle, char* buffer, int32_t len) {
    return Fetch(handle, buffer, len, DeviceList);
}

int32_t GetDevicesInfoLen(int32_t handle, int32_t* len) {
    return Length(handle, len, DevicesInfo);
}

int32_t GetDevicesInfoStr(int32_t handle, char* buffer, int32_t len) {
    return Fetch(handle, buffer, len, DevicesInfo);
}

int32_t GetChannelStatus(int32_t handle, const char* cameraId, orvex_dev_status_e* status) {
    return WithInstance(handle, true, [=](Instance&, Site& s) -> int32_t {
        if (cameraId == nullptr || status == nullptr) {
            return ORVEX_CORE_ERROR_INVALID_PARAM;
        }
        const Site& site = s;
        const Device* owner = nullptr;
        if (const Channel* c = site.channel(cameraId, &owner)) {
            *status = Status(owner->online && c->online);
        } else if (const AlarmInput* a = site.alarmInput(cameraId, &owner)) {
            *status = Status(owner->online && a->online);
        } else {
            return ORVEX_CORE_ERROR_CHANNEL_NOT_FOUND;
        }
        return ORVEX_RET_SUCCESS;
    });
}

int32_t GetDeviceType(int32_t handle, const char* deviceId, orvex_dev_type_e* type) {
    return WithInstance(handle, true, [=](Instance&, Site& site) -> int32_t {
        if (deviceId == nullptr || type == nullptr) {
            return ORVEX_CORE_ERROR_INVALID_PARAM;
        }
        const Device* d = site.device(deviceId);
        if (d == nullptr) {
            return ORVEX_CORE_ERROR_DEVICE_NOT_FOUND;
        }
        *type = static_cast<orvex_dev_type_e>(d->type);
        return ORVEX_RET_SUCCESS;
    });
}

}  // namespace orvexsim::platform

// ----- Alarm hosts

namespace orvexsim::platform {
namespace {

constexpr int32_t Ok = ORVEX_RET_SUCCESS;
constexpr int32_t Invalid = ORVEX_CORE_ERROR_INVALID_PARAM;

struct InputState {
    bool armed = false;
    bool alarm = false;
};

std::map<std::string, InputState>& Inputs() {
    static auto* inputs = new std::map<std::string, InputState>;
    return *inputs;
}

// A status report for every logged-in instance; the first argument becomes its handle.
struct Report {
    CbKind kind;
    std::vector<Value> args;
};
using Reports = std::vector<Report>;

void Broadcast(const Reports& reports) {
    if (reports.empty()) {
        return;
    }
    for (const Session& session : LoggedInSessions()) {
        for (const Report& r : reports) {
            std::vector<Value> args = r.args;
            args[0] = IntArg(session.handle);
            PostEvent(r.kind, session.handle, std::move(args));
        }
    }
}

// Runs f(site, reports) for a user allowed to operate devices, then sends the reports.
template <typename F>
int32_t Command(int32_t handle, F f) {
    Reports reports;
    const int32_t rc = WithInstance(handle, true, [&](Instance& in, Site& site) {
        const int32_t denied = MayOperate(in, site);
        return denied != ORVEX_RET_SUCCESS ? denied : f(site, reports);
    });
    Broadcast(reports);
    return rc;
}

// Raises the occurrence or the disappearance when whether the alarm counts changes.
void Transition(const AlarmOrigin& origin, bool before, bool after) {
    if (before != after) {
        RaisedAlarm alarm{ORVEX_CORE_ALARM_TYPE_EXTERNAL_ALARM,
                          after ? ALARM_EVENT_OCCUR : ALARM_EVENT_DISAPPEAR, 0,
                          origin.sourceName + (after ? ": alarm" : ": alarm cleared")};
        RaiseAlarmLocked(origin, alarm);
    }
}

AlarmHost* FindHost(Site& site, const std::string& device) {
    return FindBy(site.alarmHosts, &AlarmHost::device, device);
}

// A device of the site that is no alarm host supports none of the host commands.
int32_t NotAHost(const Site& site, const std::string& id) {
    return site.device(id) != nullptr ? ORVEX_CORE_ERROR_NOT_SUPPORTED
                                      : ORVEX_CORE_ERROR_DEVICE_NOT_FOUND;
}

int32_t HostOf(Site& site, const std::string& id, const AlarmHost** host) {
    *host = FindHost(site, id);
    return *host != nullptr ? Ok : NotAHost(site, id);
}

// Zones `id` names: all zones of a host, or the one zone of that identifier.
int32_t ZonesOf(Site& site, const std::string& id, AlarmHost** host, std::vector<Zone*>* zones) {
    for (AlarmHost& h : site.alarmHosts) {
        for (Zone& z : h.zones) {
            if (h.device == id || z.id == id) {
                *host = &h;
                zones->push_back(&z);
            }
        }
    }
    if (!zones->empty()) {
        return Ok;
    }
    if (FindHost(site, id) != nullptr) {
        return Ok;  // a host without zones
    }
    return NotAHost(site, id);
}

bool ZoneRaised(const Zone& z) {
    return z.armed && !z.bypass && z.alarm != 0;
}

int32_t ZoneBits(const Zone& z) {
    return (z.armed ? HostArmed : 0) | (z.bypass ? HostBypassed : 0) | (z.alarm ? HostAlarm : 0);
}

AlarmOrigin ZoneOrigin(const Site& site, const Device& host, const Zone& z, uint32_t number) {
    AlarmOrigin o;
    if (!DescribeSource(site, z.id, &o)) {
        o = {z.id, z.name, host.id, host.name, host.type, host.department, false, number};
    }
    return o;
}

bool ApplyToZone(int32_t operation, Zone& z) {
    switch (operation) {
        case NetHostArm:
            z.armed = true;
            return true;
        case NetHostDisarm:
            z.armed = false;
            return true;
        case NetHostBypass:
            z.bypass = true;
            return true;
        case NetHostUnbypass:
            z.bypass = false;
            return true;
        case NetHostAlarm:
            z.alarm = 1;
            return true;
        case NetHostClear:
            z.alarm = 0;
            return true;
        default:
            return false;
    }
}

// Applies a network host operation to the zones `id` names and reports each zone.
int32_t ApplyNet(Site& site, const std::string& id, int32_t operation, Reports& reports) {
    AlarmHost* host = nullptr;
    std::vector<Zone*> zones;
    const int32_t rc = ZonesOf(site, id, &host, &zones);
    if (rc != Ok || zones.empty()) {
        return rc;
    }
    const Device& device = *site.device(host->device);
    if (!device.online) {
        return ORVEX_CORE_ERROR_DEVICE_OFFLINE;
    }
    for (Zone* z : zones) {
        const bool before = ZoneRaised(*z);
        if (!ApplyToZone(operation, *z)) {
            return Invalid;
        }
        const auto number = static_cast<uint32_t>(z - host->zones.data()) + 1;
        Transition(ZoneOrigin(site, device, *z, number), before, ZoneRaised(*z));
        reports.push_back({CbKind::NetAlarmHostStatus,
                           {IntArg(0), TextArg(device.id), IntArg(number), IntArg(operation),
                            IntArg(ZoneBits(*z))}});
    }
    return Ok;
}

// What undoes an operation at the end of its span (a clearing is not undone).
int32_t Undo(int32_t operation) {
    switch (operation) {
        case NetHostArm:
            return NetHostDisarm;
        case NetHostDisarm:
            return NetHostArm;
        case NetHostBypass:
            return NetHostUnbypass;
        case NetHostUnbypass:
            return NetHostBypass;
        case NetHostAlarm:
            return NetHostClear;
        default:
            return 0;
    }
}

void ApplyLater(int32_t handle, const std::string& id, int32_t operation, int64_t at) {
    const int64_t delay = std::max<int64_t>(0, at - static_cast<int64_t>(std::time(nullptr)));
    RunJob(handle, JobScope::Instance, std::chrono::seconds(delay), std::chrono::milliseconds(0),
           [id, operation] {
               Reports reports;
               WithSite([&](Site& site) { return ApplyNet(site, id, operation, reports); });
               Broadcast(reports);
           });
}

void FillZone(const Zone& z, orvex_AHostDefenceStatus_t* r) {
    std::memset(r, 0, sizeof(*r));
    CopyText(r->szNodeID, z.id);
    const bool counts = z.armed && !z.bypass;
    r->nAlarm = counts ? z.alarm : 0;
    r->nUndefendAlarm = counts ? 0 : z.alarm;
    r->bByPass = z.bypass;
    r->bDefend = z.armed;
}

// Checks of the zone status reads: a usable output for `count` records.
bool BadOutput(int32_t count, const void* out) {
    return count < 0 || (count > 0 && out == nullptr);
}

}  // namespace

int32_t ControlVideoAlarmHost(int32_t handle, const char* deviceId, int32_t channel,
                              int32_t control) {
    return Command(handle, [&](Site& site, Reports& reports) {
        if (deviceId == nullptr) {
            return Invalid;
        }
        const Device* d = site.device(deviceId);
        if (d == nullptr) {
            return static_cast<int32_t>(ORVEX_CORE_ERROR_DEVICE_NOT_FOUND);
        }
        if (d->alarmInputs.empty()) {
            return static_cast<int32_t>(ORVEX_CORE_ERROR_NOT_SUPPORTED);
        }
        if (channel < 1 || static_cast<std::size_t>(channel) > d->alarmInputs.size()) {
            return static_cast<int32_t>(ORVEX_CORE_ERROR_CHANNEL_NOT_FOUND);
        }
        if (!d->online) {
            return static_cast<int32_t>(ORVEX_CORE_ERROR_DEVICE_OFFLINE);
        }
        const std::string& input = d->alarmInputs[static_cast<std::size_t>(channel) - 1].id;
        InputState& s = Inputs()[input];
        const bool before = s.armed && s.alarm;
        switch (control) {
            case VideoHostDisarm:
                s.armed = false;
                break;
            case VideoHostArm:
                s.armed = true;
                break;
            case VideoHostAlarm:
                s.alarm = true;
                break;
            case VideoHostClear:
                s.alarm = false;
                break;
            default:
                return Invalid;
        }
        AlarmOrigin origin;
        DescribeSource(site, input, &origin);
        Transition(origin, before, s.armed && s.alarm);
        reports.push_back({CbKind::VideoAlarmHostStatus,
                           {IntArg(0), TextArg(d->id), IntArg(channel),
                            IntArg((s.armed ? HostArmed : 0) | (s.alarm ? HostAlarm : 0))}});
        return Ok;
    });
}

int32_t ControlNetAlarmHostCmd(int32_t handle, const char* id, int32_t operation, int32_t timing,
                               int64_t start, int64_t end) {
    return Command(handle, [&](Site& site, Reports& reports) {
        if (id == nullptr || operation < NetHostArm || operation > NetHostClear) {
            return Invalid;
        }
        if (timing == NetHostNow) {
            return ApplyNet(site, id, operation, reports);
        }
        const int64_t now = static_cast<int64_t>(std::time(nullptr));
        if (timing != NetHostSpan || end <= start || end <= now) {
            return Invalid;
        }
        AlarmHost* host = nullptr;
        std::vector<Zone*> zones;
        int32_t rc = ZonesOf(site, id, &host, &zones);
        if (rc == Ok && start <= now) {
            rc = ApplyNet(site, id, operation, reports);
        } else if (rc == Ok) {
            ApplyLater(handle, id, operation, start);
        }
        if (rc == Ok && Undo(operation) != 0) {
            ApplyLater(handle, id, Undo(operation), end);
        }
        return rc;
    });
}

int32_t GetAlarmInChannelInfo(int32_t handle, Get_AlarmInChannel_Info_t* info) {
    return WithInstance(handle, true, [&](Instance&, Site& site) {
        if (info == nullptr ||
            (info->nAlarmInChannelCount > 0 && info->pAlarmInChannelnfo == nullptr)) {
            return Invalid;
        }
        const Device* d = site.device(FixedText(info->szDeviceId));
        if (d == nullptr) {
            return static_cast<int32_t>(ORVEX_CORE_ERROR_DEVICE_NOT_FOUND);
        }
        const std::size_t n =
            std::min<std::size_t>(info->nAlarmInChannelCount, d->alarmInputs.size());
        for (std::size_t k = 0; k < n; ++k) {
            const AlarmInput& a = d->alarmInputs[k];
            AlarmIn_Channel_Info_t& r = info->pAlarmInChannelnfo[k];
            std::memset(&r, 0, sizeof(r));
            CopyText(r.szId, a.id);
            CopyText(r.szName, a.name);
            r.nRight = a.right;
            r.nChnlType = a.chnlType;
            r.nStatus = d->online && a.online ? ORVEX_DEV_STATUS_ONLINE : ORVEX_DEV_STATUS_OFFLINE;
        }
        info->nAlarmInChannelCount = static_cast<uint32_t>(n);
        return Ok;
    });
}

int32_t QueryNetAlarmHostChannelCount(int32_t handle, const char* deviceId, int32_t* count) {
    return WithInstance(handle, true, [&](Instance&, Site& site) {
        if (deviceId == nullptr || count == nullptr) {
            return Invalid;
        }
        const AlarmHost* h = nullptr;
        const int32_t rc = HostOf(site, deviceId, &h);
        if (rc != Ok) {
            return rc;
        }
        *count = static_cast<int32_t>(h->zones.size());
        return Ok;
    });
}

int32_t QueryNetAlarmHostStatus(int32_t handle, const char* deviceId, int32_t count,
                                orvex_AHostDefenceStatus_t* out) {
    return WithInstance(handle, true, [&](Instance&, Site& site) {
        if (deviceId == nullptr || BadOutput(count, out)) {
            return Invalid;
        }
        const AlarmHost* h = nullptr;
        const int32_t rc = HostOf(site, deviceId, &h);
        if (rc != Ok) {
            return rc;
        }
        const std::size_t n = std::min(h->zones.size(), static_cast<std::size_t>(count));
        for (std::size_t k = 0; k < n; ++k) {
            FillZone(h->zones[k], &out[k]);
        }
        return Ok;
    });
}

int32_t GetNetAlarmHostStatus(int32_t handle, int32_t count, orvex_AHostDefenceStatus_t* out) {
    return WithInstance(handle, true, [&](Instance&, Site& site) {
        if (BadOutput(count, out)) {
            return Invalid;
        }
        std::size_t k = 0;
        for (const AlarmHost& h : site.alarmHosts) {
            for (const Zone& z : h.zones) {
                if (k < static_cast<std::size_t>(count)) {
                    FillZone(z, &out[k++]);
                }
            }
        }
        return Ok;
    });
}

}  // namespace orvexsim::platform
