// The built-in site: a small city security network, served when no scenario file is named.
#include <string>

#include "ORVEX_Core_Define.h"
#include "site_scenario.h"

namespace orvexsim::platform {
namespace {

// Recordings of the default site fall on one fixed day, 2026-01-01 UTC, so that tests and
// examples can name times that are certain to hold video.
constexpr uint64_t kRecordingDay = 1767225600;

std::string Numbered(const std::string& prefix, int n) {
    return prefix + (n < 10 ? "0" : "") + std::to_string(n);
}

Device MakeDevice(const std::string& id, const std::string& name, const std::string& department,
                  int32_t type, int n) {
    Device d;
    d.id = id;
    d.name = name;
    d.department = department;
    d.type = type;
    d.factory = 1;
    d.model = 100 + type;
    d.user = "admin";
    d.password = "dev-" + std::to_string(n);
    d.ip = "10.20.0." + std::to_string(10 + n);
    d.port = 8000;
    d.loginType = 1;
    d.regId = "REG-" + id;
    d.proxyPort = 9500 + n;
    d.cn = "CN-" + std::to_string(4400 + n);
    d.sn = "SN" + std::to_string(2026000 + n);
    d.devIp = "192.168.1." + std::to_string(100 + n);
    d.devPort = 37777;
    d.maintainer = "Facilities team";
    d.maintainerPhone = "555-01" + std::to_string(10 + n);
    d.location = name + ", level " + std::to_string(n % 3);
    d.desc = "Demo " + name;
    d.sort = n;
    d.callNum = std::to_string(8100 + n);
    return d;
}

// `count` cameras named after the device; every third one a PTZ dome with presets; hourly
// recordings on the recording day, every fourth hour an alarm recording.
void AddCameras(Device& d, int count, bool recordings) {
    for (int k = 1; k <= count; ++k) {
        Channel c;
        c.id = d.id + "-cam" + Numbered("", k);
        c.name = d.name + " camera " + std::to_string(k);
        c.cameraType = k % 3 == 1 ? CAMERA_TYPE_SD : CAMERA_TYPE_NORMAL_HD;
        c.sort = k;
        c.chnlType = 1;
        c.sn = "CH" + d.sn + Numbered("", k);
        c.latitude = std::to_string(30.25 + 0.001 * k);
        c.longitude = std::to_string(120.16 + 0.001 * d.sort);
        c.multicastIp = "239.1." + std::to_string(d.sort) + "." + std::to_string(k);
        c.multicastPort = 6000 + k;
        c.ptz = {(k * 45) % 360, 0, 1};
        if (c.cameraType == CAMERA_TYPE_SD) {
            c.presets = {{1, "Home", c.ptz.pan, 0, 1},
                         {2, "Entrance", (c.ptz.pan + 90) % 360, -20, 3}};
        }
        for (uint64_t h = 0; recordings && h < 24; ++h) {
            c.recordings.push_back(
                {kRecordingDay + h * 3600, kRecordingDay + h * 3600 + 3599,
                 h % 4 == 3 ? ORVEX_CORE_PB_RECORD_ALARM : ORVEX_CORE_PB_RECORD_TIMER,
                 c.id + "_" + Numbered("", static_cast<int>(h)) + ".mp4"});
        }
        d.channels.push_back(c);
    }
}

void AddAlarmInputs(Device& d, int count) {
    for (int k = 1; k <= count; ++k) {
        d.alarmInputs.push_back({d.id + "-in" + Numbered("", k),
                                 d.name + " input " + std::to_string(k), 3, true, ~0ULL});
    }
}

void AddDisks(Device& d, int count) {
    for (int k = 1; k <= count; ++k) {
        d.disks.push_back(
            {k, 4000000, static_cast<uint32_t>(1000000 * k), 0, static_cast<uint8_t>(k), 1, 0});
    }
}

void AddDevices(Site& s) {
    Device nvrNorth = MakeDevice("nvr-north-01", "North recorder", "330100", DEV_TYPE_NVR, 1);
    AddCameras(nvrNorth, 12, true);
    AddAlarmInputs(nvrNorth, 2);
    AddDisks(nvrNorth, 2);
    Device nvrSouth = MakeDevice("nvr-south-01", "South recorder", "330200", DEV_TYPE_NVR, 2);
    AddCameras(nvrSouth, 12, true);
    AddDisks(nvrSouth, 4);
    Device dvr = MakeDevice("dvr-station-01", "Station recorder", "330101", DEV_TYPE_DVR, 3);
    AddCameras(dvr, 4, true);
    AddAlarmInputs(dvr, 4);
    AddDisks(dvr, 1);
    Device gate1 = MakeDevice("ipc-gate-01", "Gate dome", "330101", DEV_TYPE_IPC, 4);
    AddCameras(gate1, 1, true);
    Device gate2 = MakeDevice("ipc-gate-02", "Gate side", "330101", DEV_TYPE_IPC, 5);
    AddCameras(gate2, 1, false);
    gate2.online = false;
    gate2.channels[0].online = false;
    Device nvs = MakeDevice("nvs-traffic-01", "Crossing encoder", "330300", DEV_TYPE_NVS, 6);
    AddCameras(nvs, 4, true);
    Device bay = MakeDevice("ipc-traffic-02", "Bay camera", "330300", DEV_TYPE_IPC, 7);
    AddCameras(bay, 1, true);
    Device car = MakeDevice("mdvr-car-07", "Patrol car 7", "330300", DEV_TYPE_DVR, 8);
    AddCameras(car, 2, false);
    Device host =
        MakeDevice("alarmhost-01", "Perimeter alarm host", "330000", DEV_TYPE_ALARMHOST, 9);
    AddAlarmInputs(host, 4);
    Device doors =
        MakeDevice("doorctrl-01", "Door controller", "330100", DEV_TYPE_DOORCTRL_DOOR, 10);
    Device decoder = MakeDevice("decoder-01", "Wall decoder", "330000", 201, 11);
    s.devices = {nvrNorth, nvrSouth, dvr, gate1, gate2, nvs, bay, car, host, doors, decoder};
}

void AddEquipment(Site& s) {
    Wall control{1, 1, "Control room", {}};
    for (uint32_t k = 0; k < 4; ++k) {
        control.screens.push_back({k + 1, "Screen " + std::to_string(k + 1), "decoder-01",
                                   0.5f * static_cast<float>(k % 2),
                                   0.5f * static_cast<float>(k / 2), 0.5f, 0.5f, true, false});
    }
    Wall desk{2, 1, "Duty desk", {{1, "Desk screen", "decoder-01", 0, 0, 1, 1, true, false}}};
    s.walls = {control, desk};
    s.doors = {{"door-01", "Main entrance", "doorctrl-01", Door_Close},
               {"door-02", "Archive", "doorctrl-01", Door_Close}};
    AlarmHost host{"alarmhost-01", {}};
    for (int k = 1; k <= 4; ++k) {
        host.zones.push_back(
            {"alarmhost-01-in" + Numbered("", k), "Zone " + std::to_string(k), k <= 2, false, 0});
    }
    s.alarmHosts = {host};
    s.burners = {{"dvr-station-01", "Interview room burner", 2, 0}};
    s.gps = {{"mdvr-car-07", 30.2741, 120.1551, 42.5, 90, kRecordingDay + 43200}};
    s.bays = {{"ipc-traffic-02-cam01", "Bay A", {"ZJ-A1234", "ZJ-B5678", "ZJ-C9012"}}};
    PeopleCount count{"ipc-gate-01-cam01", "Gate flow", {}};
    for (uint32_t h = 8; h < 12; ++h) {
        const uint32_t begin = static_cast<uint32_t>(kRecordingDay) + h * 3600;
        count.samples.push_back({begin, begin + 3600, 40 + 5 * h, 35 + 4 * h, 12, 20 + h});
    }
    s.peopleCounts = {count};
    s.alarmSchemes = {{1, ALARM_SCHEME_STATUS_OPEN, "Working hours", 10, "Weekdays 8-18"},
                      {2, ALARM_SCHEME_STATUS_CLOSE, "Night watch", 11, "Every night 22-6"},
                      {3, ALARM_SCHEME_STATUS_OPEN, "Perimeter", 12, "Always armed"}};
    s.alarmSources = {
        {"ipc-gate-01-cam01", ORVEX_CORE_ALARM_TYPE_MOTION_DETECT, "Gate motion"},
        {"nvr-north-01-cam03", ORVEX_CORE_ALARM_TYPE_VIDEO_LOST, "North 3 video lost"},
        {"alarmhost-01-in01", ORVEX_CORE_ALARM_TYPE_EXTERNAL_ALARM, "Perimeter zone 1"}};
    s.alarms = {{"ipc-gate-01-cam01", ALARM_EVENT_OCCUR, 5000, 20000, "Motion at the gate"},
                {"alarmhost-01-in01", ALARM_EVENT_OCCUR, 15000, 45000, "Fence contact open"}};
}

}  // namespace

Site DefaultSite() {
    Site s;
    s.name = "Riverside city security (built-in)";
    s.users = {{1, "admin", "admin123", 1, true, "330000"},
               {2, "operator", "operator123", 2, true, "330100"},
               {3, "viewer", "viewer123", 5, false, "330200"}};
    s.departments = {{"330000", "City security", "", 1, "org-1"},
                     {"330100", "North district", "330000", 1, "org-1"},
                     {"330200", "South district", "330000", 2, "org-1"},
                     {"330101", "North station", "330100", 1, "org-1"},
                     {"330300", "Traffic", "330000", 3, "org-1"}};
    AddDevices(s);
    LogicDepartment root;
    root.coding = "L000";
    root.name = "Patrol view";
    root.modifyTime = "2026-01-01 08:00:00";
    root.sn = "LOG-ROOT";
    root.memo = "Cameras grouped for the patrol desk";
    root.type = 1;
    root.sort = 1;
    LogicDepartment gates = root;
    gates.coding = "L100";
    gates.name = "Entrances";
    gates.parent = "L000";
    gates.sn = "LOG-100";
    gates.memo = "Gate cameras";
    gates.channels = {"ipc-gate-01-cam01", "ipc-gate-02-cam01", "dvr-station-01-cam01"};
    LogicDepartment traffic = root;
    traffic.coding = "L200";
    traffic.name = "Traffic";
    traffic.parent = "L000";
    traffic.sn = "LOG-200";
    traffic.memo = "Crossings and bays";
    traffic.sort = 2;
    traffic.devices = {"nvs-traffic-01", "ipc-traffic-02", "mdvr-car-07"};
    traffic.channels = {"ipc-traffic-02-cam01"};
    s.logicOrg = {root, gates, traffic};
    AddEquipment(s);
    return s;
}

}  // namespace orvexsim::platform
