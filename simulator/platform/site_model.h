// The simulated site: what a scenario describes (users, organisation tree, devices with their
// channels, recordings, walls, doors, alarm hosts, burners, disks, GPS, bays, people counts,
// alarm schemes and scheduled alarms), and the thread-safe access every platform subsystem uses.
//
// One site serves every instance of the process, so that users of different instances see the
// same devices and can share video with each other. Identifiers are texts no longer than the C
// members that carry them (device and channel identifiers 63 bytes, codings 127, names 255);
// the scenario loader enforces that, so answers can be copied into records without truncation.
//
// Times (recordings, alarms, GPS fixes) are seconds since the Unix epoch.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstring>
#include <functional>
#include <iterator>
#include <map>
#include <mutex>
#include <string>
#include <vector>

#include "records.h"
#include "sim_core.h"
#include "site_view.h"

namespace orvexsim::platform {

// The first of `items` whose `key` member equals `value`; nullptr when there is none. Constant
// items give a pointer to constant.
template <typename Items, typename Member, typename Value>
auto FindBy(Items& items, Member key, const Value& value) -> decltype(&*std::begin(items)) {
    for (auto& item : items) {
        if (item.*key == value) {
            return &item;
        }
    }
    return nullptr;
}

// ----- What a site holds

struct User {
    uint32_t id = 0;
    std::string name;
    std::string password;
    uint32_t level = 1;      // 1 is the most privileged
    bool operFlag = true;    // may operate devices (PTZ, doors, walls)
    std::string department;  // coding of the user's department
};

struct Department {
    std::string coding;  // unique; 127 bytes at most
    std::string name;
    std::string parent;  // empty for the root (exactly one root)
    int32_t sort = 0;
    std::string orgId;
};

struct Preset {
    uint32_t code = 0;
    std::string name;  // 31 bytes at most
    // Added with PTZ: the position the preset recalls (as PtzPosition).
    int32_t pan = 0;
    int32_t tilt = 0;
    int32_t zoom = 1;
};

struct PtzPosition {
    int32_t pan = 0;   // degrees [0, 360)
    int32_t tilt = 0;  // degrees [-90, 90]
    int32_t zoom = 1;  // 1 and up
};

// An encoder channel (camera).
struct Channel {
    std::string id;  // unique among channels, alarm inputs and doors
    std::string name;
    int32_t cameraType = 1;  // orvex_camera_type_e
    int32_t sort = 0;
    int32_t chnlType = 1;  // the library's channel type (ORVEX_GetChnlType)
    bool online = true;
    uint64_t right = ~0ULL;  // the logged-in user's rights on the channel
    std::string sn;
    std::string latitude;
    std::string longitude;
    std::string multicastIp;
    int32_t multicastPort = 0;
    PtzPosition ptz;
    std::vector<Preset> presets;
    std::vector<RecordingSpan> recordings;  // in time order
};

struct AlarmInput {
    std::string id;
    std::string name;
    int32_t chnlType = 3;
    bool online = true;
    uint64_t right = ~0ULL;
};

struct Disk {
    int32_t id = 0;
    uint32_t volume = 0;     // MB
    uint32_t freeSpace = 0;  // MB
    uint8_t state = 0;
    uint8_t number = 0;
    uint8_t partitions = 1;
    uint8_t signal = 0;
};

// A device with every member of the library's device record.
struct Device {
    std::string id;  // unique; 63 bytes at most
    std::string name;
    std::string department;  // coding of the department holding it
    int32_t type = 2;        // orvex_dev_type_e
    int32_t factory = 0;
    int32_t model = 0;
    std::string user;
    std::string password;
    std::string ip;
    int32_t port = 0;
    int32_t loginType = 0;
    std::string regId;
    int32_t proxyPort = 0;
    int32_t unitNum = 1;
    bool online = true;
    std::string cn;
    std::string sn;
    uint64_t right = ~0ULL;
    std::string devIp;
    int32_t devPort = 0;
    std::string maintainer;
    std::string maintainerPhone;
    std::string location;
    std::string desc;
    int32_t sort = 0;
    std::string callNum;
    int32_t streamType = 1;  // orvex_stream_type_e of its units
    std::vector<Channel> channels;
    std::vector<AlarmInput> alarmInputs;
    std::vector<Disk> disks;
};

// A department of the logical organisation, holding devices and channels by identifier.
struct LogicDepartment {
    std::string coding;  // unique among logical departments
    std::string name;
    std::string parent;  // empty for the root
    std::string modifyTime;
    std::string sn;
    std::string memo;  // 1023 bytes at most
    int32_t type = 0;
    int32_t sort = 0;
    int32_t chargebooth = 0;
    int32_t extType = 0;
    std::string orgId;
    std::vector<std::string> devices;
    std::vector<std::string> channels;
};

struct WallScreen {
    uint32_t id = 0;
    std::string name;
    std::string decoder;  // decoder device identifier (may be empty)
    float left = 0, top = 0, width = 0, height = 0;
    bool bind = true;
    bool combine = false;

    // ----- Video wall control: the panes of the screen's split and the free windows opened on
    // it, in stacking order, with the camera each shows. A screen starts as one empty pane.
    struct Window {
        uint32_t id = 1;
        uint32_t zorder = 0;  // 0 for the panes of the split; free windows stack above them
        bool pane = true;     // a pane of the split, else a free window
        float left = 0, top = 0, width = 1, height = 1;  // within the screen, from 0 to 1
        std::string camera;                              // empty: shows nothing
        int32_t streamType = 0;
        uint64_t stayTime = 0;
    };
    uint32_t split = 1;
    std::vector<Window> windows{Window{}};
};

struct Wall {
    uint32_t id = 0;
    uint32_t state = 0;
    std::string name;
    std::vector<WallScreen> screens;
};

struct Door {
    std::string id;  // the door channel
    std::string name;
    std::string device;
    int32_t status = 0;  // orvex_door_status_e
};

struct Zone {
    std::string id;
    std::string name;
    bool armed = false;
    bool bypass = false;
    int32_t alarm = 0;
};

struct AlarmHost {
    std::string device;  // a device of the tree
    std::vector<Zone> zones;
};

struct Burner {
    std::string device;  // a device of the tree
    std::string name;
    int32_t drives = 1;
    int32_t state = 0;

    // ----- Burner control: the burn in progress and the case header it writes.
    uint32_t channelMask = 0;
    uint32_t burnerMask = 0;
    int32_t discChanges = 0;
    std::string caseId{};
    std::string recordName{};
    std::string recordPerson{};
    std::string caseIdLabel{};
};

struct GpsPosition {
    std::string device;
    double latitude = 0;
    double longitude = 0;
    double speed = 0;  // km/h
    int32_t direction = 0;
    uint64_t time = 0;
};

struct BayCamera {
    std::string camera;  // a channel
    std::string bay;
    std::vector<std::string> plates;  // plates it reports, in turn
};

struct PeopleCountSample {
    uint32_t start = 0, end = 0;
    uint32_t entered = 0, exited = 0;
    uint32_t avgInside = 0, maxInside = 0;
};

struct PeopleCount {
    std::string camera;  // a channel
    std::string rule;    // 31 bytes at most
    std::vector<PeopleCountSample> samples;
};

struct AlarmScheme {
    uint32_t id = 0;
    int32_t status = 0;  // orvex_alarmScheme_status_e
    std::string name;
    uint32_t templateId = 0;
    std::string desc;
};

// Something that raises alarms: a channel or an alarm input.
struct AlarmSource {
    std::string id;    // channel or alarm-input identifier
    int32_t type = 0;  // orvex_alarm_type_e it raises
    std::string name;
};

// An alarm the platform raises by itself while a user is logged in.
struct ScheduledAlarm {
    std::string source;  // an AlarmSource
    int32_t eventType = 0;
    uint32_t firstAfterMs = 1000;
    uint32_t everyMs = 0;  // 0: once
    std::string message;
};

struct ServerInfo {
    std::string ip = "127.0.0.1";
    uint32_t port = 9000;
    std::string mapIp = "127.0.0.1";
    int32_t mapPort = 9080;
};

struct Site {
    std::string name;
    ServerInfo server;
    std::vector<User> users;
    std::vector<Department> departments;  // the first is the root
    std::vector<Device> devices;
    std::vector<LogicDepartment> logicOrg;  // empty: no logical organisation; else first is root
    std::vector<Wall> walls;
    std::vector<Door> doors;
    std::vector<AlarmHost> alarmHosts;
    std::vector<Burner> burners;
    std::vector<GpsPosition> gps;
    std::vector<BayCamera> bays;
    std::vector<PeopleCount> peopleCounts;
    std::vector<AlarmScheme> alarmSchemes;
    std::vector<AlarmSource> alarmSources;
    std::vector<ScheduledAlarm> alarms;

    // ----- Auxiliary services: what clients left on the platform.
    struct ScsMessage {
        std::string group;
        std::string text;
        std::string fromUser;
    };
    std::map<std::string, std::string> osdTexts;  // device or channel -> its on-screen text
    std::vector<ScsMessage> scsMessages;          // the latest ones, oldest first

    // Look-ups by identifier; null when absent. Pointers are valid while the site lock is held.
    const User* user(const std::string& name) const;
    const Department* department(const std::string& coding) const;
    Device* device(const std::string& id);
    const Device* device(const std::string& id) const;
    // The channel and, through `owner`, its device.
    Channel* channel(const std::string& id, Device** owner = nullptr);
    const Channel* channel(const std::string& id, const Device** owner = nullptr) const;
    const AlarmInput* alarmInput(const std::string& id, const Device** owner = nullptr) const;
    const LogicDepartment* logicDepartment(const std::string& coding) const;
    // Direct children, in scenario order.
    std::vector<const Department*> childDepartments(const std::string& coding) const;
    std::vector<const Device*> devicesOf(const std::string& coding) const;
    std::vector<const LogicDepartment*> logicChildren(const std::string& coding) const;
};

// ----- Access from the exported functions and the platform's subsystems
//
// One mutex guards the site and every instance's state. Functions below that take a callable run
// it with the mutex held: keep it short, and call nothing of this header from inside it (the
// mutex is not recursive), except PostEvent, IntArg/TextArg, RunJob and CancelJob, which use locks
// of their own. Never call a library callback with it held: post an event instead. Events and
// jobs run without any lock held and may call everything here.

// The site's state after its first use: the scenario named by ORVEX_SIM_SCENARIO, or the
// built-in site. False, with the loader's message in `error`, when the scenario is malformed.
bool SiteReady(std::string* error = nullptr);

// Runs `f(site)` under the lock and returns what it returns.
template <typename F>
auto WithSite(F&& f) -> decltype(f(std::declval<Site&>()));

// What the platform keeps per client instance.
struct Instance {
    int32_t handle = 0;
    bool loggedIn = false;
    uint32_t userId = 0;
    std::string userName;
    bool treeLoaded = false;
    std::string treeText;  // the text export of the last tree load
    int32_t compressType = 0;
    std::string logFile;  // empty: no log
    int32_t logLevel = 2;
    std::string monitorFile;  // empty: no monitor output

    // ----- Disks and auxiliary services: answers kept between a query and its fetches.
    struct DiskAnswer {
        std::string device;
        std::vector<Disk> disks;
    };
    std::map<int32_t, DiskAnswer> diskAnswers;  // by sequence; only the latest few
    int32_t lastDiskSequence = 0;
    std::string linkResourceXml;  // of the last link-resource query
    std::string gpsXml;           // of the last GPS query
    struct PersonQuery {
        std::string camera;
        std::vector<PeopleCountSample> rows;
    };
    std::map<uint32_t, PersonQuery> personQueries;  // open people-count queries by sequence
    uint32_t lastPersonQuery = 0;
    std::map<std::string, uint64_t> bayJobs;  // subscribed bay camera -> its job
};

// Creates an instance (ORVEX_CORE_ERROR_SCENARIO_INVALID when the site could not be loaded),
// writing its handle: distinct positive numbers, never reused in a process.
int32_t CreateInstance(int32_t* handle);
// Stops the instance's jobs and event thread (events already posted are delivered first, unless
// called from that thread), tells the media engine, forgets the instance. 1001 if unknown.
int32_t DestroyInstance(int32_t handle);
// Logs out: ends the session's jobs, tells the media engine. 1001 unknown, 1003 not logged in.
int32_t EndSession(int32_t handle);

// Hooks run after a successful login, on the caller's thread without the lock (for example to
// start the session's scheduled jobs). Register once, at first use of a subsystem.
void OnSessionStarted(std::function<void(int32_t handle)> hook);
void NotifySessionStarted(int32_t handle);

// Runs `f(instance, site)` under the lock if the instance exists (else 1001), and, when
// `needLogin`, is logged in (else 1003); returns f's result.
int32_t WithInstance(int32_t handle, bool needLogin,
                     const std::function<int32_t(Instance&, Site&)>& f);
// As WithInstance(handle, true, f) and also requires the organisation tree loaded (else 1008).
int32_t WithTree(int32_t handle, const std::function<int32_t(Instance&, Site&)>& f);

// Fires the callback registered for (kind, handle) with `args` (as kindSpec(kind).invoke takes
// them: every parameter of the C callback but the user pointer, the handle included) on the
// instance's event thread: never on the caller's thread, in posting order per instance. The
// registration is looked up when the event is delivered; an event for an unknown instance, or a
// kind without a registration, is dropped.
void PostEvent(CbKind kind, int32_t handle, std::vector<Value> args);

// Event arguments: an integer, or a text (the invoker appends its terminator).
inline Value IntArg(int64_t v) {
    Value a;
    a.i = v;
    return a;
}
inline Value TextArg(const std::string& text) {
    Value a;
    a.isBytes = true;
    a.b.assign(text.begin(), text.end());
    return a;
}

// Values of the connection-status callback's nStatus.
enum ConnectionStatus : int32_t {
    kStatusConnected = 1,    // login succeeded
    kStatusLoginFailed = 2,  // login refused (user or password)
    kStatusDisconnected = 3  // logged out
};

// Periodic jobs run on the instance's event thread, `first` after being added and then every
// `period` (zero: once). A Session job also stops when the instance logs out; an Instance job
// only when it is destroyed. Returns an identifier for CancelJob, 0 for an unknown instance.
enum class JobScope { Session, Instance };
uint64_t RunJob(int32_t handle, JobScope scope, std::chrono::milliseconds first,
                std::chrono::milliseconds period, std::function<void()> job);
void CancelJob(int32_t handle, uint64_t id);

// ----- Operating rights (texts of library records: records.h)

// ORVEX_RET_SUCCESS when the instance's user may operate devices (move cameras, command alarm
// hosts and walls, change alarm configuration), else ORVEX_CORE_ERROR_NO_PERMISSION. Call with the
// platform mutex held.
int32_t MayOperate(const Instance& in, const Site& site);

// ----- Auxiliary services: events every logged-in user receives (shared videos, doors)

struct Session {
    int32_t handle = 0;
    uint32_t userId = 0;
    std::string userName;
};
// The logged-in instances, in handle order. Takes the lock: call it without holding it.
std::vector<Session> LoggedInSessions();

// ----- Implementation details of WithSite

std::mutex& PlatformMutex();
Site& LoadedSite();  // call with PlatformMutex held

template <typename F>
auto WithSite(F&& f) -> decltype(f(std::declval<Site&>())) {
    SiteReady();
    std::lock_guard<std::mutex> lock(PlatformMutex());
    return f(LoadedSite());
}

}  // namespace orvexsim::platform
