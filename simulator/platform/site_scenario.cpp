// The scenario reader: JSON into a Site, every problem reported with its JSON pointer.
#include "site_scenario.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <utility>

#include "scenario_json.h"

namespace orvexsim::platform {
namespace {

using nlohmann::json;
using namespace scenario;

// Each entity's reader: one place per entity, members named as in README.
template <typename T>
using Reader = T (*)(Obj&);

template <typename T, Reader<T> Read>
T Parse(const json& j, const std::string& where, Problem& problem) {
    Obj o(j, where, problem);
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
        o.fail(o.Where(), "pan must be in [0, 360), tilt in [-90, 90], zoom >= 1");
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
        o.fail(o.At("end"), "ends before it begins");
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

// Checks the syntax only, and keeps the first error instead of throwing it.
struct SyntaxCheck : nlohmann::json_sax<json> {
    std::size_t byte = 0;
    std::string message;

    bool null() override { return true; }
    bool boolean(bool) override { return true; }
    bool number_integer(number_integer_t) override { return true; }
    bool number_unsigned(number_unsigned_t) override { return true; }
    bool number_float(number_float_t, const string_t&) override { return true; }
    bool string(string_t&) override { return true; }
    bool binary(binary_t&) override { return true; }
    bool start_object(std::size_t) override { return true; }
    bool key(string_t&) override { return true; }
    bool end_object() override { return true; }
    bool start_array(std::size_t) override { return true; }
    bool end_array() override { return true; }
    bool parse_error(std::size_t position, const std::string&,
                     const nlohmann::detail::exception& e) override {
        byte = position;
        message = e.what();
        return false;
    }
};

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
    SyntaxCheck syntax;
    if (!json::sax_parse(text, &syntax)) {
        // nlohmann's text starts "[json.exception.parse_error.101] parse error at line ...";
        // keep only what follows its last ": " (the problem itself), and say where ourselves.
        const std::size_t colon = syntax.message.rfind(": ");
        *error = Message(
            file, LineColumn(text, syntax.byte == 0 ? 0 : syntax.byte - 1),
            "malformed JSON: " +
                (colon == std::string::npos ? syntax.message : syntax.message.substr(colon + 2)));
        return false;
    }
    const json root = json::parse(text, nullptr, false);
    Problem problem;
    Obj o(root, "", problem);
    Site parsed = ReadSite(o);
    o.done();
    if (!problem.found) {
        problem.found = !ValidateSite(parsed, &problem.where, &problem.what);
    }
    if (problem.found) {
        *error = Message(file, problem.where, problem.what);
        return false;
    }
    *site = std::move(parsed);
    return true;
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
