// Look-ups in a site, and the consistency check every site passes before it is served.
#include <map>
#include <set>
#include <type_traits>

#include "site_scenario.h"

namespace orvexsim::platform {

namespace {

// The item of some device's `list` whose `key` equals `id`, with that device in `*owner`.
template <typename Devices, typename List, typename Key, typename Owner>
auto FindOnDevice(Devices& devices, List list, Key key, const std::string& id, Owner** owner)
    -> decltype(FindBy(devices.front().*list, key, id)) {
    for (auto& d : devices) {
        if (auto* item = FindBy(d.*list, key, id)) {
            if (owner != nullptr) {
                *owner = &d;
            }
            return item;
        }
    }
    return nullptr;
}

// The departments (or logical ones) whose parent is `coding`; a root has none.
template <typename Node>
std::vector<const Node*> ChildrenOf(const std::vector<Node>& all, const std::string& coding) {
    std::vector<const Node*> out;
    for (const Node& d : all) {
        if (!d.parent.empty() && d.parent == coding) {
            out.push_back(&d);
        }
    }
    return out;
}

}  // namespace

const User* Site::user(const std::string& name) const {
    return FindBy(users, &User::name, name);
}

const Department* Site::department(const std::string& coding) const {
    return FindBy(departments, &Department::coding, coding);
}

Device* Site::device(const std::string& id) {
    return FindBy(devices, &Device::id, id);
}

const Device* Site::device(const std::string& id) const {
    return const_cast<Site*>(this)->device(id);
}

Channel* Site::channel(const std::string& id, Device** owner) {
    return FindOnDevice(devices, &Device::channels, &Channel::id, id, owner);
}

const Channel* Site::channel(const std::string& id, const Device** owner) const {
    Device* d = nullptr;
    const Channel* c = const_cast<Site*>(this)->channel(id, &d);
    if (owner != nullptr) {
        *owner = d;
    }
    return c;
}

const AlarmInput* Site::alarmInput(const std::string& id, const Device** owner) const {
    return FindOnDevice(devices, &Device::alarmInputs, &AlarmInput::id, id, owner);
}

const LogicDepartment* Site::logicDepartment(const std::string& coding) const {
    return FindBy(logicOrg, &LogicDepartment::coding, coding);
}

std::vector<const Department*> Site::childDepartments(const std::string& coding) const {
    return ChildrenOf(departments, coding);
}

std::vector<const Device*> Site::devicesOf(const std::string& coding) const {
    std::vector<const Device*> out;
    for (const Device& d : devices) {
        if (d.department == coding) {
            out.push_back(&d);
        }
    }
    return out;
}

std::vector<const LogicDepartment*> Site::logicChildren(const std::string& coding) const {
    return ChildrenOf(logicOrg, coding);
}

namespace {

// The first inconsistency found; checking goes on harmlessly after it (no exceptions: the
// stand-in may run where throwing does not work).
struct Invalid {
    bool found = false;
    std::string where;
    std::string problem;
};

std::string At(const char* list, std::size_t k, const char* member = nullptr) {
    std::string s = std::string("/") + list + "/" + std::to_string(k);
    return member == nullptr ? s : s + "/" + member;
}

bool Require(Invalid& c, bool ok, const std::string& where, const std::string& problem) {
    if (!ok && !c.found) {
        c = {true, where, problem};
    }
    return ok;
}

// Registers an identifier in a namespace; a second use is an error at its place.
template <typename Key>
void Unique(Invalid& c, std::set<Key>& seen, const Key& key, const std::string& where,
            const char* what) {
    std::string shown;
    if constexpr (std::is_same_v<Key, std::string>) {
        Require(c, !key.empty(), where, std::string("empty ") + what);
        shown = "\"" + key + "\"";
    } else {
        shown = std::to_string(key);
    }
    Require(c, seen.insert(key).second, where, std::string("duplicate ") + what + " " + shown);
}

void Resolves(Invalid& c, bool found, const std::string& where, const std::string& id,
              const char* what) {
    Require(c, found, where, std::string("no ") + what + " \"" + id + "\"");
}

// One root first, parents that exist, no cycles; `Node` has coding and parent.
template <typename Node>
void CheckTree(Invalid& c, const std::vector<Node>& nodes, const char* list) {
    std::map<std::string, std::string> parentOf;
    std::set<std::string> seen;
    for (std::size_t k = 0; k < nodes.size(); ++k) {
        Unique(c, seen, nodes[k].coding, At(list, k, "coding"), "coding");
        parentOf[nodes[k].coding] = nodes[k].parent;
        Require(c, (k == 0) == nodes[k].parent.empty(), At(list, k, "parent"),
                k == 0 ? "the first entry is the root and has no parent"
                       : "only the first entry is a root: parent missing");
    }
    for (std::size_t k = 1; k < nodes.size(); ++k) {
        Resolves(c, seen.count(nodes[k].parent) != 0, At(list, k, "parent"), nodes[k].parent,
                 "department with coding");
        std::string at = nodes[k].parent;
        for (std::size_t steps = 0; !at.empty(); ++steps) {
            if (!Require(c, steps <= nodes.size() && at != nodes[k].coding, At(list, k, "parent"),
                         "the parents form a cycle")) {
                break;
            }
            at = parentOf[at];
        }
    }
}

void CheckCatalogue(Invalid& c, const Site& site, std::set<std::string>& nodes) {
    Require(c, !site.departments.empty(), "/departments", "at least the root department is needed");
    CheckTree(c, site.departments, "departments");
    std::set<std::string> devices;
    for (std::size_t k = 0; k < site.devices.size(); ++k) {
        const Device& d = site.devices[k];
        Unique(c, devices, d.id, At("devices", k, "id"), "device identifier");
        Unique(c, nodes, d.id, At("devices", k, "id"), "identifier");
        Resolves(c, site.department(d.department) != nullptr, At("devices", k, "department"),
                 d.department, "department with coding");
        const std::string at = At("devices", k);
        for (std::size_t n = 0; n < d.channels.size(); ++n) {
            const std::string ch = at + "/channels/" + std::to_string(n);
            Unique(c, nodes, d.channels[n].id, ch + "/id", "identifier");
            std::set<uint32_t> codes;
            for (std::size_t p = 0; p < d.channels[n].presets.size(); ++p) {
                Unique(c, codes, d.channels[n].presets[p].code,
                       ch + "/presets/" + std::to_string(p) + "/code", "preset code");
            }
        }
        for (std::size_t a = 0; a < d.alarmInputs.size(); ++a) {
            Unique(c, nodes, d.alarmInputs[a].id, at + "/alarmInputs/" + std::to_string(a) + "/id",
                   "identifier");
        }
        std::set<int32_t> disks;
        for (std::size_t n = 0; n < d.disks.size(); ++n) {
            Unique(c, disks, d.disks[n].id, at + "/disks/" + std::to_string(n) + "/id", "disk id");
        }
    }
    std::set<uint32_t> userIds;
    std::set<std::string> userNames;
    for (std::size_t k = 0; k < site.users.size(); ++k) {
        const User& u = site.users[k];
        Unique(c, userIds, u.id, At("users", k, "id"), "user id");
        Unique(c, userNames, u.name, At("users", k, "name"), "user name");
        Resolves(c, site.department(u.department) != nullptr, At("users", k, "department"),
                 u.department, "department with coding");
    }
    if (!site.logicOrg.empty()) {
        CheckTree(c, site.logicOrg, "logicOrg");
    }
    for (std::size_t k = 0; k < site.logicOrg.size(); ++k) {
        const LogicDepartment& l = site.logicOrg[k];
        for (std::size_t n = 0; n < l.devices.size(); ++n) {
            Resolves(c, site.device(l.devices[n]) != nullptr,
                     At("logicOrg", k, "devices") + "/" + std::to_string(n), l.devices[n],
                     "device");
        }
        for (std::size_t n = 0; n < l.channels.size(); ++n) {
            Resolves(c, site.channel(l.channels[n]) != nullptr,
                     At("logicOrg", k, "channels") + "/" + std::to_string(n), l.channels[n],
                     "channel");
        }
    }
}

// Entries that name a device (`device` member) or a channel (`camera` member).
template <typename T>
void DevicesResolve(Invalid& c, const Site& site, const std::vector<T>& list, const char* name) {
    for (std::size_t k = 0; k < list.size(); ++k) {
        Resolves(c, site.device(list[k].device) != nullptr, At(name, k, "device"), list[k].device,
                 "device");
    }
}

template <typename T>
void CamerasResolve(Invalid& c, const Site& site, const std::vector<T>& list, const char* name) {
    for (std::size_t k = 0; k < list.size(); ++k) {
        Resolves(c, site.channel(list[k].camera) != nullptr, At(name, k, "camera"), list[k].camera,
                 "channel");
    }
}

void CheckEquipment(Invalid& c, const Site& site, std::set<std::string>& nodes) {
    std::set<uint32_t> walls;
    for (std::size_t k = 0; k < site.walls.size(); ++k) {
        Unique(c, walls, site.walls[k].id, At("walls", k, "id"), "wall id");
        std::set<uint32_t> screens;
        for (std::size_t s = 0; s < site.walls[k].screens.size(); ++s) {
            const WallScreen& screen = site.walls[k].screens[s];
            const std::string at = At("walls", k, "screens") + "/" + std::to_string(s);
            Unique(c, screens, screen.id, at + "/id", "screen id");
            Resolves(c, screen.decoder.empty() || site.device(screen.decoder) != nullptr,
                     at + "/decoder", screen.decoder, "device");
        }
    }
    for (std::size_t k = 0; k < site.doors.size(); ++k) {
        Unique(c, nodes, site.doors[k].id, At("doors", k, "id"), "identifier");
    }
    DevicesResolve(c, site, site.doors, "doors");
    DevicesResolve(c, site, site.alarmHosts, "alarmHosts");
    std::set<std::string> hosts;
    for (std::size_t k = 0; k < site.alarmHosts.size(); ++k) {
        Unique(c, hosts, site.alarmHosts[k].device, At("alarmHosts", k, "device"), "alarm host");
        std::set<std::string> zones;
        for (std::size_t z = 0; z < site.alarmHosts[k].zones.size(); ++z) {
            Unique(c, zones, site.alarmHosts[k].zones[z].id,
                   At("alarmHosts", k, "zones") + "/" + std::to_string(z) + "/id", "zone id");
        }
    }
    DevicesResolve(c, site, site.burners, "burners");
    DevicesResolve(c, site, site.gps, "gps");
    CamerasResolve(c, site, site.bays, "bays");
    CamerasResolve(c, site, site.peopleCounts, "peopleCounts");
    std::set<uint32_t> schemes;
    for (std::size_t k = 0; k < site.alarmSchemes.size(); ++k) {
        Unique(c, schemes, site.alarmSchemes[k].id, At("alarmSchemes", k, "id"), "scheme id");
    }
    std::set<std::string> sources;
    for (std::size_t k = 0; k < site.alarmSources.size(); ++k) {
        const std::string& id = site.alarmSources[k].id;
        Unique(c, sources, id, At("alarmSources", k, "id"), "alarm source");
        Resolves(c, site.channel(id) != nullptr || site.alarmInput(id) != nullptr,
                 At("alarmSources", k, "id"), id, "channel or alarm input");
    }
    for (std::size_t k = 0; k < site.alarms.size(); ++k) {
        Resolves(c, sources.count(site.alarms[k].source) != 0, At("alarms", k, "source"),
                 site.alarms[k].source, "alarm source");
    }
}

}  // namespace

bool ValidateSite(const Site& site, std::string* where, std::string* problem) {
    Invalid c;
    std::set<std::string> nodes;  // devices, channels, alarm inputs and doors share one space
    CheckCatalogue(c, site, nodes);
    CheckEquipment(c, site, nodes);
    if (c.found) {
        *where = c.where;
        *problem = c.problem;
    }
    return !c.found;
}

}  // namespace orvexsim::platform
