// The simulated site's scenario reader and the built-in site.
#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <string>

#include <nlohmann/json.hpp>

#include "platform/site_scenario.h"

namespace orvexsim::platform {
namespace {

using nlohmann::json;

std::size_t Cameras(const Site& s) {
    std::size_t n = 0;
    for (const Device& d : s.devices) {
        n += d.channels.size();
    }
    return n;
}

TEST(DefaultSite, IsConsistentAndHasSomethingOfEveryKind) {
    const Site s = DefaultSite();
    std::string where, problem;
    ASSERT_TRUE(ValidateSite(s, &where, &problem)) << where << ": " << problem;

    EXPECT_GE(s.departments.size(), 3u);
    EXPECT_GE(s.devices.size(), 8u);
    EXPECT_GE(Cameras(s), 24u);
    std::set<int32_t> types;
    bool offline = false, withDisks = false, withInputs = false, withRecordings = false;
    for (const Device& d : s.devices) {
        types.insert(d.type);
        offline |= !d.online;
        withDisks |= !d.disks.empty();
        withInputs |= !d.alarmInputs.empty();
        for (const Channel& c : d.channels) {
            withRecordings |= !c.recordings.empty();
        }
    }
    EXPECT_GE(types.size(), 5u);
    EXPECT_TRUE(offline && withDisks && withInputs && withRecordings);
    EXPECT_GE(s.users.size(), 2u);
    EXPECT_GE(s.logicOrg.size(), 2u);
    EXPECT_FALSE(s.walls.empty() || s.doors.empty() || s.alarmHosts.empty() || s.burners.empty() ||
                 s.gps.empty() || s.bays.empty() || s.peopleCounts.empty() ||
                 s.alarmSchemes.empty() || s.alarmSources.empty() || s.alarms.empty());
}

TEST(DefaultSite, TreeLookupsAgreeWithTheLists) {
    const Site s = DefaultSite();
    std::size_t devices = 0, children = 0;
    for (const Department& d : s.departments) {
        devices += s.devicesOf(d.coding).size();
        children += s.childDepartments(d.coding).size();
        EXPECT_EQ(s.department(d.coding), &d);
    }
    EXPECT_EQ(devices, s.devices.size());
    EXPECT_EQ(children, s.departments.size() - 1);  // every department but the root, once
    const Device* owner = nullptr;
    const Channel* c = s.channel(s.devices[1].channels[2].id, &owner);
    ASSERT_NE(c, nullptr);
    EXPECT_EQ(owner, &s.devices[1]);
    EXPECT_EQ(s.channel("no-such-camera"), nullptr);
    EXPECT_EQ(s.user("admin")->department, s.departments[0].coding);
}

TEST(Scenario, TheDocumentedExampleLoads) {
    Site s;
    std::string error;
    ASSERT_TRUE(LoadScenarioFile(ORVEX_EXAMPLE_SCENARIO, &s, &error)) << error;
    EXPECT_EQ(s.name, "Harbour warehouse");
    EXPECT_EQ(s.server.mapPort, 9080);
    ASSERT_EQ(s.devices.size(), 5u);
    const Channel& bay = s.devices[0].channels[0];
    EXPECT_EQ(bay.ptz.pan, 90);
    EXPECT_EQ(bay.ptz.tilt, -10);
    EXPECT_EQ(bay.presets.size(), 2u);
    EXPECT_EQ(bay.recordings[1].fileName, "bay_01.mp4");
    EXPECT_FALSE(s.devices[1].online);
    EXPECT_FALSE(s.users[1].operFlag);
    EXPECT_EQ(s.logicOrg[1].channels[0], "nvr-a-cam1");
    EXPECT_FLOAT_EQ(s.walls[0].screens[1].left, 0.5f);
}

// A small valid scenario that each malformed case spoils in one place.
json Base() {
    return json::parse(R"({
      "users": [{"id": 1, "name": "u", "password": "p", "department": "1"}],
      "departments": [{"coding": "1", "name": "Root"}, {"coding": "2", "parent": "1"}],
      "devices": [
        {"id": "d1", "department": "1", "channels": [{"id": "c1"}, {"id": "c2"}]},
        {"id": "d2", "department": "2", "channels": [{"id": "c3"}]}
      ],
      "logicOrg": [{"coding": "L"}],
      "alarmSources": [{"id": "c1", "type": 3}],
      "alarms": [{"source": "c1"}]
    })");
}

struct Malformed {
    const char* name;
    std::function<void(json&)> spoil;  // null: `text` is used as it is
    const char* text;
    const char* place;
    const char* problem;
};

TEST(Scenario, MalformedScenariosNameFilePlaceAndProblem) {
    const Malformed cases[] = {
        {"bad JSON", nullptr, "{\n  \"users\": [\n    }\n", "line 3, column 5", "malformed JSON: "},
        {"not an object", nullptr, "[1, 2]", "/", "expected an object, found array"},
        {"missing field", [](json& j) { j["devices"][1].erase("id"); }, nullptr, "/devices/1",
         "missing member \"id\""},
        {"wrong type", [](json& j) { j["devices"][0]["port"] = "80"; }, nullptr, "/devices/0/port",
         "expected an integer, found string"},
        {"wrong type of a list", [](json& j) { j["users"] = json::object(); }, nullptr, "/users",
         "expected an array, found object"},
        {"out of range", [](json& j) { j["users"][0]["level"] = -1; }, nullptr, "/users/0/level",
         "out of range: -1"},
        {"too long", [](json& j) { j["devices"][0]["id"] = std::string(64, 'x'); }, nullptr,
         "/devices/0/id", "too long: 64 bytes, at most 63"},
        {"misspelt member", [](json& j) { j["devices"][0]["channels"][1]["nmae"] = "x"; }, nullptr,
         "/devices/0/channels/1/nmae", "unknown member \"nmae\""},
        {"duplicate identifier", [](json& j) { j["devices"][1]["channels"][0]["id"] = "c2"; },
         nullptr, "/devices/1/channels/0/id", "duplicate identifier \"c2\""},
        {"duplicate device", [](json& j) { j["devices"][1]["id"] = "d1"; }, nullptr,
         "/devices/1/id", "duplicate device identifier \"d1\""},
        {"dangling department", [](json& j) { j["devices"][1]["department"] = "9"; }, nullptr,
         "/devices/1/department", "no department with coding \"9\""},
        {"dangling logical channel",
         [](json& j) {
             j["logicOrg"][0]["channels"] = {"c1", "gone"};
         },
         nullptr, "/logicOrg/0/channels/1", "no channel \"gone\""},
        {"dangling alarm source", [](json& j) { j["alarms"][0]["source"] = "c3"; }, nullptr,
         "/alarms/0/source", "no alarm source \"c3\""},
        {"second root", [](json& j) { j["departments"][1].erase("parent"); }, nullptr,
         "/departments/1/parent", "only the first entry is a root"},
        {"cycle",
         [](json& j) {
             j["departments"].push_back({{"coding", "3"}, {"parent", "4"}});
             j["departments"].push_back({{"coding", "4"}, {"parent", "3"}});
         },
         nullptr, "/departments/2/parent", "the parents form a cycle"},
        {"recording backwards",
         [](json& j) {
             j["devices"][0]["channels"][0]["recordings"] = {{{"begin", 10}, {"end", 5}}};
         },
         nullptr, "/devices/0/channels/0/recordings/0/end", "ends before it begins"},
        {"ptz out of range", [](json& j) { j["devices"][0]["channels"][0]["ptz"]["pan"] = 360; },
         nullptr, "/devices/0/channels/0/ptz", "pan must be in [0, 360)"},
    };
    for (const Malformed& c : cases) {
        std::string text = c.text != nullptr ? c.text : "";
        if (c.spoil) {
            json j = Base();
            c.spoil(j);
            text = j.dump(2);
        }
        Site site;
        site.name = "untouched";
        std::string error;
        EXPECT_FALSE(ParseScenario(text, "site.json", &site, &error)) << c.name;
        const std::string prefix = std::string("scenario \"site.json\": at ") + c.place + ": ";
        EXPECT_EQ(error.rfind(prefix, 0), 0u) << c.name << ": " << error;
        EXPECT_NE(error.find(c.problem, prefix.size()), std::string::npos)
            << c.name << ": " << error;
        EXPECT_EQ(site.name, "untouched") << c.name;
    }
}

TEST(Scenario, TheBaseOfTheMalformedCasesIsValid) {
    Site site;
    std::string error;
    ASSERT_TRUE(ParseScenario(Base().dump(), "base.json", &site, &error)) << error;
    EXPECT_EQ(site.devices[0].channels.size(), 2u);
}

TEST(Scenario, AnUnreadableFileIsNamed) {
    Site site;
    std::string error;
    EXPECT_FALSE(LoadScenarioFile("/nonexistent/site.json", &site, &error));
    EXPECT_EQ(error, "scenario \"/nonexistent/site.json\": at /: cannot be read");
}

}  // namespace
}  // namespace orvexsim::platform
