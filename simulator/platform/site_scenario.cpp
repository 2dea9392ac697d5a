// The scenario reader: JSON into a Site, every problem reported with its JSON pointer.
#include "site_scenario.h"

#include <algorithm>
#include <fstream>
#include <limits>
#include <set>
#include <sstream>
#include <stdexcept>
#include <utility>

#include <nlohmann/json.hpp>

namespace orvexsim::platform {
namespace {

using nlohmann::json;

struct ScenarioError {
    std::string where;
    std::string problem;
};

// Record members are C arrays of these sizes; a text must leave room for its terminator.
constexpr std::size_t kId = 63, kCoding = 127, kName = 255, kShort = 31, kIp = 47, kMemo = 1023;

std::string Escape(const std::string& key) {
    std::string out;
    for (char c : key) {
        out += c == '~' ? "~0" : c == '/' ? "~1" : std::string(1, c);
    }
    return out;
}

const char* TypeName(const json& j) {
    return j.type_name();
}

// One JSON object of the scenario: typed member reads that know their place, and a final check
// that no member was left unread (a misspelt key is an error, not a silent default).
class Obj {
  public:
    Obj(const json& j, std::string where) : j_(j), where_(std::move(where)) {
        if (!j_.is_object()) {
            throw ScenarioError{Where(), std::string("expected an object, found ") + TypeName(j)};
        }
    }

    std::string Where() const { return where_.empty() ? "/" : where_; }
    std::string At(const char* key) const { return where_ + "/" + Escape(key); }

    std::string text(const char* key, std::size_t maxLen, const char* def = nullptr) {
        const json* v = get(key, def == nullptr);
        if (v == nullptr) {
            return def;
        }
        if (!v->is_string()) {
            throw ScenarioError{At(key), std::string("expected a string, found ") + TypeName(*v)};
        }
        std::string s = v->get<std::string>();
        if (s.size() > maxLen) {
            throw ScenarioError{At(key), "too long: " + std::to_string(s.size()) +
                                             " bytes, at most " + std::to_string(maxLen)};
        }
        return s;
    }

    template <typename T>
    T integer(const char* key, T def, bool required = false) {
        const json* v = get(key, required);
        if (v == nullptr) {
            return def;
        }
        if (!v->is_number_integer()) {
            throw ScenarioError{At(key), std::string("expected an integer, found ") + TypeName(*v)};
        }
        const bool fits =
            v->is_number_unsigned()
                ? v->get<uint64_t>() <= static_cast<uint64_t>(std::numeric_limits<T>::max())
                : v->get<int64_t>() >= static_cast<int64_t>(std::numeric_limits<T>::min()) &&
                      (v->get<int64_t>() < 0 ||
                       static_cast<uint64_t>(v->get<int64_t>()) <=
                           static_cast<uint64_t>(std::numeric_limits<T>::max()));
        if (!fits) {
            throw ScenarioError{At(key), "out of range: " + v->dump()};
        }
        return v->is_number_unsigned() ? static_cast<T>(v->get<uint64_t>())
                                       : static_cast<T>(v->get<int64_t>());
    }

    bool flag(const char* key, bool def) {
        const json* v = get(key, false);
        if (v == nullptr) {
            return def;
        }
        if (!v->is_boolean()) {
            throw ScenarioError{At(key),
                                std::string("expected true or false, found ") + TypeName(*v)};
        }
        return v->get<bool>();
    }

    double number(const char* key, double def) {
        const json* v = get(key, false);
        if (v == nullptr) {
            return def;
        }
        if (!v->is_number()) {
            throw ScenarioError{At(key), std::string("expected a number, found ") + TypeName(*v)};
        }
        return v->get<double>();
    }

    // An optional array, each element read by `each(element, itsPlace)`.
    template <typename T, typename F>
    std::vector<T> list(const char* key, F each) {
        std::vector<T> out;
        const json* v = get(key, false);
        if (v == nullptr) {
            return out;
        }
        if (!v->is_array()) {
            throw ScenarioError{At(key), std::string("expected an array, found ") + TypeName(*v)};
        }
        for (std::size_t k = 0; k < v->size(); ++k) {
            out.push_back(each((*v)[k], At(key) + "/" + std::to_string(k)));
        }
        return out;
    }

    // An optional nested object, read by `each(member, itsPlace)`.
    template <typename T, typename F>
    T object(const char* key, T def, F each) {
        const json* v = get(key, false);
        return v == nullptr ? def : each(*v, At(key));
    }

    std::vector<std::string> texts(const char* key, std::size_t maxLen) {
        return list<std::string>(key, [maxLen](const json& e, const std::string& where) {
            if (!e.is_string()) {
                throw ScenarioError{where, std::string("expected a string, found ") + TypeName(e)};
            }
            std::string s = e.get<std::string>();
            if (s.size() > maxLen) {
                throw ScenarioError{where, "too long: at most " + std::to_string(maxLen)};
            }
            return s;
        });
    }

    void done() const {
        for (auto it = j_.begin(); it != j_.end(); ++it) {
            if (read_.count(it.key()) == 0) {
                throw ScenarioError{At(it.key().c_str()), "unknown member \"" + it.key() + "\""};
            }
        }
    }

  private:
    const json* get(const char* key, bool required) {
        read_.insert(key);
        auto it = j_.find(key);
        if (it == j_.end() || (it->is_null() && !required)) {
            if (required) {
                throw ScenarioError{Where(), std::string("missing member \"") + key + "\""};
            }
            return nullptr;
        }
        return &*it;
    }

    const json& j_;
    std::string where_;
    std::set<std::string> read_;
};

// Each entity's reader: one place per entity, members named as in README.
template <typename T>
using Reader = T (*)(Obj&);

template <typename T, Reader<T> Read>
T Parse(const json& j, const std::string& where) {
    Obj o(j, where);
    T t = Read(o);
    o.done();
    return t;
}

PtzPosition ReadPtz(Obj& o) {
    PtzPosition p;
    p.pan = o.integer<int32_t>("pan", 0);
    p.tilt = o.integer<int32_t>("tilt", 0);
    p.zoom = o.integer<int32_t>("zoom", 1);
    if (p.pan < 0 || p.pan >= 360 || p.tilt < -90 || p.tilt > 90 || p.zoom < 1) {
        throw ScenarioError{o.Where(), "pan must be in [0, 360), tilt in [-90, 90], zoom >= 1"};
    }
    return p;
}

Preset ReadPreset(Obj& o) {
    const PtzPosition at = ReadPtz(o);  // the position the preset recalls
    return {o.integer<uint32_t>("code", 0, true), o.text("name", kShort, ""), at.pan, at.tilt,
            at.zoom};
}

RecordingSpan ReadRecording(Obj& o) {
    RecordingSpan r;
    r.begin = o.integer<uint64_t>("begin", 0, true);
    r.end = o.integer<uint64_t>("end", 0, true);
    r.type = o.integer<int32_t>("type", 1);
    r.fileName = o.text("file", kName, "");
    if (r.end < r.begin) {
        throw ScenarioError{o.At("end"), "ends before it begins"};
    }
    return r;
}

Channel ReadChannel(Obj& o) {
    Channel c;
    c.id = o.text("id", kId);
    c.name = o.text("name", kName, "");
    c.cameraType = o.integer<int32_t>("cameraType", 1);
    c.sort = o.integer<int32_t>("sort", 0);
    c.chnlType = o.integer<int32_t>("chnlType", 1);
    c.online = o.flag("online", true);
    c.right = o.integer<uint64_t>("right", ~0ULL);
    c.sn = o.text("sn", kId, "");
    c.latitude = o.text("latitude", kId, "");
    c.longitude = o.text("longitude", kId, "");
    c.multicastIp = o.text("multicastIp", kIp, "");
    c.multicastPort = o.integer<int32_t>("multicastPort", 0);
    c.presets = o.list<Preset>("presets", Parse<Preset, ReadPreset>);
    c.recordings = o.list<RecordingSpan>("recordings", Parse<RecordingSpan, ReadRecording>);
    std::sort(c.recordings.begin(), c.recordings.end(),
              [](const RecordingSpan& a, const RecordingSpan& b) { return a.begin < b.begin; });
    c.ptz = o.object<PtzPosition>("ptz", PtzPosition{}, Parse<PtzPosition, ReadPtz>);
    return c;
}

AlarmInput ReadAlarmInput(Obj& o) {
    AlarmInput a;
    a.id = o.text("id", kId);
    a.name = o.text("name", kName, "");
    a.chnlType = o.integer<int32_t>("chnlType", 3);
    a.online = o.flag("online", true);
    a.right = o.integer<uint64_t>("right", ~0ULL);
    return a;
}

Disk ReadDisk(Obj& o) {
    Disk d;
    d.id = o.integer<int32_t>("id", 0, true);
    d.volume = o.integer<uint32_t>("volume", 0);
    d.freeSpace = o.integer<uint32_t>("free", 0);
    d.state = o.integer<uint8_t>("state", 0);
    d.number = o.integer<uint8_t>("number", 0);
    d.partitions = o.integer<uint8_t>("partitions", 1);
    d.signal = o.integer<uint8_t>("signal", 0);
    return d;
}

Device ReadDevice(Obj& o) {
    Device d;
    d.id = o.text("id", kId);
    d.name = o.text("name", kName, "");
    d.department = o.text("department", kCoding);
    d.type = o.integer<int32_t>("type", 2);
    d.factory = o.integer<int32_t>("factory", 0);
    d.model = o.integer<int32_t>("model", 0);
    d.user = o.text("user", kId, "");
    d.password = o.text("password", kId, "");
    d.ip = o.text("ip", kIp, "");
    d.port = o.integer<int32_t>("port", 0);
    d.loginType = o.integer<int32_t>("loginType", 0);
    d.regId = o.text("regId", kId, "");
    d.proxyPort = o.integer<int32_t>("proxyPort", 0);
    d.unitNum = o.integer<int32_t>("unitNum", 1);
    d.online = o.flag("online", true);
    d.cn = o.text("cn", kId, "");
    d.sn = o.text("sn", kId, "");
    d.right = o.integer<uint64_t>("right", ~0ULL);
    d.devIp = o.text("devIp", kIp, "");
    d.devPort = o.integer<int32_t>("devPort", 0);
    d.maintainer = o.text("maintainer", kId, "");
    d.maintainerPhone = o.text("maintainerPhone", kId, "");
    d.location = o.text("location", kName, "");
    d.desc = o.text("desc", kName, "");
    d.sort = o.integer<int32_t>("sort", 0);
    d.callNum = o.text("callNum", kIp, "");
    d.streamType = o.integer<int32_t>("streamType", 1);
    d.channels = o.list<Channel>("channels", Parse<Channel, ReadChannel>);
    d.alarmInputs = o.list<AlarmInput>("alarmInputs", Parse<AlarmInput, ReadAlarmInput>);
    d.disks = o.list<Disk>("disks", Parse<Disk, ReadDisk>);
    return d;
}

User ReadUser(Obj& o) {
    User u;
    u.id = o.integer<uint32_t>("id", 0, true);
    u.name = o.text("name", kId);
    u.password = o.text("password", kId);
    u.level = o.integer<uint32_t>("level", 1);
    u.operFlag = o.flag("operate", true);
    u.department = o.text("department", kCoding);
    return u;
}

Department ReadDepartment(Obj& o) {
    Department d;
    d.coding = o.text("coding", kCoding);
    d.name = o.text("name", kName, "");
    d.parent = o.text("parent", kCoding, "");
    d.sort = o.integer<int32_t>("sort", 0);
    d.orgId = o.text("orgId", kCoding, "");
    return d;
}

LogicDepartment ReadLogic(Obj& o) {
    LogicDepartment d;
    d.coding = o.text("coding", kCoding);
    d.name = o.text("name", kName, "");
    d.parent = o.text("parent", kCoding, "");
    d.modifyTime = o.text("modifyTime", kCoding, "");
    d.sn = o.text("sn", kName, "");
    d.memo = o.text("memo", kMemo, "");
    d.type = o.integer<int32_t>("type", 0);
    d.sort = o.integer<int32_t>("sort", 0);
    d.chargebooth = o.integer<int32_t>("chargebooth", 0);
    d.extType = o.integer<int32_t>("extType", 0);
    d.orgId = o.text("orgId", kCoding, "");
    d.devices = o.texts("devices", kId);
    d.channels = o.texts("channels", kId);
    return d;
}

WallScreen ReadScreen(Obj& o) {
    WallScreen s;
    s.id = o.integer<uint32_t>("id", 0, true);
    s.name = o.text("name", kName, "");
    s.decoder = o.text("decoder", kId, "");
    s.left = static_cast<float>(o.number("left", 0));
    s.top = static_cast<float>(o.number("top", 0));
    s.width = static_cast<float>(o.number("width", 0));
    s.height = static_cast<float>(o.number("height", 0));
    s.bind = o.flag("bind", true);
    s.combine = o.flag("combine", false);
    return s;
}

Wall ReadWall(Obj& o) {
    Wall w;
    w.id = o.integer<uint32_t>("id", 0, true);
    w.state = o.integer<uint32_t>("state", 0);
    w.name = o.text("name", kName, "");
    w.screens = o.list<WallScreen>("screens", Parse<WallScreen, ReadScreen>);
    return w;
}

Door ReadDoor(Obj& o) {
    return {o.text("id", kId), o.text("name", kName, ""), o.text("device", kId),
            o.integer<int32_t>("status", 0)};
}

Zone ReadZone(Obj& o) {
    Zone z;
    z.id = o.text("id", kId);
    z.name = o.text("name", kName, "");
    z.armed = o.flag("armed", false);
    z.bypass = o.flag("bypass", false);
    z.alarm = o.integer<int32_t>("alarm", 0);
    return z;
}

AlarmHost ReadAlarmHost(Obj& o) {
    AlarmHost h;
    h.device = o.text("device", kId);
    h.zones = o.list<Zone>("zones", Parse<Zone, ReadZone>);
    return h;
}

Burner ReadBurner(Obj& o) {
    Burner b;
    b.device = o.text("device", kId);
    b.name = o.text("name", kName, "");
    b.drives = o.integer<int32_t>("drives", 1);
    b.state = o.integer<int32_t>("state", 0);
    return b;
}

GpsPosition ReadGps(Obj& o) {
    GpsPosition g;
    g.device = o.text("device", kId);
    g.latitude = o.number("latitude", 0);
    g.longitude = o.number("longitude", 0);
    g.speed = o.number("speed", 0);
    g.direction = o.integer<int32_t>("direction", 0);
    g.time = o.integer<uint64_t>("time", 0);
    return g;
}

BayCamera ReadBay(Obj& o) {
    BayCamera b;
    b.camera = o.text("camera", kId);
    b.bay = o.text("bay", kName, "");
    b.plates = o.texts("plates", kShort);
    return b;
}

PeopleCountSample ReadSample(Obj& o) {
    PeopleCountSample s;
    s.start = o.integer<uint32_t>("start", 0, true);
    s.end = o.integer<uint32_t>("end", 0, true);
    s.entered = o.integer<uint32_t>("entered", 0);
    s.exited = o.integer<uint32_t>("exited", 0);
    s.avgInside = o.integer<uint32_t>("avgInside", 0);
    s.maxInside = o.integer<uint32_t>("maxInside", 0);
    return s;
}

PeopleCount ReadPeopleCount(Obj& o) {
    PeopleCount p;
    p.camera = o.text("camera", kId);
    p.rule = o.text("rule", kShort, "");
    p.samples = o.list<PeopleCountSample>("samples", Parse<PeopleCountSample, ReadSample>);
    return p;
}

AlarmScheme ReadScheme(Obj& o) {
    AlarmScheme s;
    s.id = o.integer<uint32_t>("id", 0, true);
    s.status = o.integer<int32_t>("status", 0);
    s.name = o.text("name", kName, "");
    s.templateId = o.integer<uint32_t>("templateId", 0);
    s.desc = o.text("desc", 511, "");
    return s;
}

AlarmSource ReadSource(Obj& o) {
    return {o.text("id", kId), o.integer<int32_t>("type", 0, true), o.text("name", kName, "")};
}

ScheduledAlarm ReadScheduled(Obj& o) {
    ScheduledAlarm a;
    a.source = o.text("source", kId);
    a.eventType = o.integer<int32_t>("eventType", 1);
    a.firstAfterMs = o.integer<uint32_t>("firstAfterMs", 1000);
    a.everyMs = o.integer<uint32_t>("everyMs", 0);
    a.message = o.text("message", 4095, "");
    return a;
}

ServerInfo ReadServer(Obj& o) {
    ServerInfo s;
    s.ip = o.text("ip", kIp, s.ip.c_str());
    s.port = o.integer<uint32_t>("port", s.port);
    s.mapIp = o.text("mapIp", kIp, s.mapIp.c_str());
    s.mapPort = o.integer<int32_t>("mapPort", s.mapPort);
    return s;
}

Site ReadSite(Obj& o) {
    Site s;
    s.name = o.text("name", kName, "");
    s.server = o.object<ServerInfo>("server", ServerInfo{}, Parse<ServerInfo, ReadServer>);
    s.users = o.list<User>("users", Parse<User, ReadUser>);
    s.departments = o.list<Department>("departments", Parse<Department, ReadDepartment>);
    s.devices = o.list<Device>("devices", Parse<Device, ReadDevice>);
    s.logicOrg = o.list<LogicDepartment>("logicOrg", Parse<LogicDepartment, ReadLogic>);
    s.walls = o.list<Wall>("walls", Parse<Wall, ReadWall>);
    s.doors = o.list<Door>("doors", Parse<Door, ReadDoor>);
    s.alarmHosts = o.list<AlarmHost>("alarmHosts", Parse<AlarmHost, ReadAlarmHost>);
    s.burners = o.list<Burner>("burners", Parse<Burner, ReadBurner>);
    s.gps = o.list<GpsPosition>("gps", Parse<GpsPosition, ReadGps>);
    s.bays = o.list<BayCamera>("bays", Parse<BayCamera, ReadBay>);
    s.peopleCounts = o.list<PeopleCount>("peopleCounts", Parse<PeopleCount, ReadPeopleCount>);
    s.alarmSchemes = o.list<AlarmScheme>("alarmSchemes", Parse<AlarmScheme, ReadScheme>);
    s.alarmSources = o.list<AlarmSource>("alarmSources", Parse<AlarmSource, ReadSource>);
    s.alarms = o.list<ScheduledAlarm>("alarms", Parse<ScheduledAlarm, ReadScheduled>);
    return s;
}

// Line and column (from 1) of a byte offset, for syntax errors.
std::string LineColumn(const std::string& text, std::size_t byte) {
    std::size_t line = 1, column = 1;
    for (std::size_t k = 0; k < byte && k < text.size(); ++k) {
        if (text[k] == '\n') {
            ++line;
            column = 1;
        } else {
            ++column;
        }
    }
    return "line " + std::to_string(line) + ", column " + std::to_string(column);
}

std::string Message(const std::string& file, const std::string& where, const std::string& problem) {
    return "scenario \"" + file + "\": at " + where + ": " + problem;
}

}  // namespace

bool ParseScenario(const std::string& text, const std::string& file, Site* site,
                   std::string* error) {
    json root;
    try {
        root = json::parse(text);
    } catch (const json::parse_error& e) {
        // nlohmann's own text starts with "[json.exception.parse_error.101] parse error at ...";
        // keep only what follows the last ": " (the problem itself).
        std::string what = e.what();
        const std::size_t colon = what.rfind(": ");
        *error = Message(
            file, LineColumn(text, e.byte == 0 ? 0 : e.byte - 1),
            "malformed JSON: " + (colon == std::string::npos ? what : what.substr(colon + 2)));
        return false;
    }
    try {
        Obj o(root, "");
        Site parsed = ReadSite(o);
        o.done();
        std::string where, problem;
        if (!ValidateSite(parsed, &where, &problem)) {
            *error = Message(file, where, problem);
            return false;
        }
        *site = std::move(parsed);
        return true;
    } catch (const ScenarioError& e) {
        *error = Message(file, e.where, e.problem);
        return false;
    } catch (const std::exception& e) {
        *error = Message(file, "/", e.what());
        return false;
    }
}

bool LoadScenarioFile(const std::string& path, Site* site, std::string* error) {
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        *error = Message(path, "/", "cannot be read");
        return false;
    }
    std::ostringstream text;
    text << in.rdbuf();
    return ParseScenario(text.str(), path, site, error);
}

}  // namespace orvexsim::platform
