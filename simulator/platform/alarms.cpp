// Alarm reception, history, schemes and phone subscriptions of the simulated site. The state
// here is guarded by the platform mutex like the site.
#include "alarms.h"

#include <ctime>
#include <deque>
#include <map>
#include <set>

#include "ORVEX_Core_Error.h"

namespace orvexsim::platform {
namespace {

struct EnabledSource {
    std::string device;                 // by device: device, channel or alarm input
    std::set<std::string> departments;  // by department: the department and those below it
    bool byDepartment = false;
    int32_t videoNo = 0, inputNo = 0, type = 0;
};

struct HistoryEntry {
    std::string alarmId;
    AlarmOrigin origin;
    RaisedAlarm alarm;  // time resolved
};

struct PhoneSubscription {
    uint32_t userId = 0;
    int32_t appId = 0;
    std::string pushType, language, timeFormat;
};

struct AlarmState {
    std::map<int32_t, std::vector<EnabledSource>> enabled;  // by instance handle
    std::deque<HistoryEntry> history;
    uint64_t lastAlarm = 0;
    std::map<std::string, PhoneSubscription> phones;  // by phone identifier
};

AlarmState& State() {
    static auto* state = new AlarmState;
    return *state;
}

constexpr int32_t Ok = ORVEX_RET_SUCCESS;
constexpr int32_t Invalid = ORVEX_CORE_ERROR_INVALID_PARAM;

bool Matches(const EnabledSource& e, const AlarmOrigin& o, int32_t type) {
    const bool where = e.byDepartment ? e.departments.count(o.department) != 0
                                      : e.device == o.device || e.device == o.source;
    const int32_t number = o.isChannel ? e.videoNo : e.inputNo;
    return where && (e.type == 0 || e.type == type) &&
           (number <= 0 || static_cast<uint32_t>(number) == o.number);
}

void Subtree(const Site& site, const std::string& coding, std::set<std::string>* out) {
    if (out->insert(coding).second) {
        for (const Department* d : site.childDepartments(coding)) {
            Subtree(site, d->coding, out);
        }
    }
}

// Reads one source of either kind; false when its device or department is unknown.
bool ReadSource(const Site& site, const Alarm_Single_Enable_Info_t& s, EnabledSource* e) {
    e->device = FixedText(s.szAlarmDevId);
    return site.device(e->device) != nullptr || site.channel(e->device) != nullptr ||
           site.alarmInput(e->device) != nullptr;
}

bool ReadSource(const Site& site, const Alarm_Single_Enable_By_Dep_Info_t& s, EnabledSource* e) {
    const std::string coding = FixedText(s.szAlarmDepartmentCode);
    e->byDepartment = true;
    if (site.department(coding) == nullptr) {
        return false;
    }
    Subtree(site, coding, &e->departments);
    return true;
}

// Adds every source of `info` or, when one is unknown, none.
template <typename Info>
int32_t Enable(int32_t handle, const Info* info, int32_t unknown) {
    return WithInstance(handle, true, [&](Instance& in, Site& site) {
        if (info == nullptr || (info->nCount > 0 && info->pSources == nullptr)) {
            return Invalid;
        }
        std::vector<EnabledSource> added(info->nCount);
        for (uint32_t k = 0; k < info->nCount; ++k) {
            const auto& s = info->pSources[k];
            if (!ReadSource(site, s, &added[k])) {
                return unknown;
            }
            added[k].videoNo = s.nVideoNo;
            added[k].inputNo = s.nAlarmInput;
            added[k].type = s.nAlarmType;
        }
        std::vector<EnabledSource>& mine = State().enabled[in.handle];
        mine.insert(mine.end(), added.begin(), added.end());
        return Ok;
    });
}

uint64_t Now() {
    return static_cast<uint64_t>(std::time(nullptr));
}

// Runs f(matching history entries) for a valid query.
template <typename F>
int32_t OnHistory(int32_t handle, const Alarm_Query_Info_t* query, F f) {
    return WithInstance(handle, true, [&](Instance&, Site& site) {
        if (query == nullptr) {
            return Invalid;
        }
        const std::string id = FixedText(query->szCameraId);
        if (!id.empty() && site.channel(id) == nullptr && site.alarmInput(id) == nullptr &&
            site.device(id) == nullptr) {
            return static_cast<int32_t>(ORVEX_CORE_ERROR_CHANNEL_NOT_FOUND);
        }
        std::vector<const HistoryEntry*> found;
        for (const HistoryEntry& h : State().history) {
            const bool where = id.empty() || id == h.origin.source || id == h.origin.device;
            const bool type = query->nAlarmType == 0 || query->nAlarmType == h.alarm.type;
            const bool when = h.alarm.time >= query->uStartTime &&
                              (query->uEndTime == 0 || h.alarm.time <= query->uEndTime);
            if (where && type && when) {
                found.push_back(&h);
            }
        }
        return f(found);
    });
}

void FillRecord(const HistoryEntry& h, Single_Alarm_Info_t* r) {
    std::memset(r, 0, sizeof(*r));
    r->nAlarmType = static_cast<orvex_alarm_type_e>(h.alarm.type);
    r->nEventType = static_cast<orvex_event_type_e>(h.alarm.event);
    CopyText(r->szDevId, h.origin.device);
    r->uChannel = h.origin.number;
    r->uAlarmTime = h.alarm.time;
    r->nDealWith = ALARM_DEALWITH_UNPROCESSED;
    CopyText(r->szSwLabel, h.alarmId);  // ties the record to the event's szAlarmId
    CopyText(r->szMessage, h.alarm.message);
}

void StartSchedule(int32_t handle) {
    const std::size_t count = WithSite([](Site& site) { return site.alarms.size(); });
    for (std::size_t k = 0; k < count; ++k) {
        const auto timing = WithSite([k](Site& site) {
            return std::make_pair(site.alarms[k].firstAfterMs, site.alarms[k].everyMs);
        });
        RunJob(handle, JobScope::Session, std::chrono::milliseconds(timing.first),
               std::chrono::milliseconds(timing.second), [handle, k] {
                   WithSite([&](Site& site) {
                       const ScheduledAlarm& s = site.alarms[k];
                       AlarmOrigin origin;
                       if (!DescribeSource(site, s.source, &origin)) {
                           return 0;
                       }
                       RaisedAlarm alarm{0, s.eventType, 0, s.message};
                       for (const AlarmSource& src : site.alarmSources) {
                           if (src.id == s.source) {
                               alarm.type = src.type;
                           }
                       }
                       RaiseAlarmLocked(origin, alarm, handle);
                       return 0;
                   });
               });
    }
}

const bool kHooked = [] {
    OnSessionStarted(StartSchedule);
    OnInstanceEnded([](int32_t handle) {
        WithSite([handle](Site&) { return State().enabled.erase(handle); });
    });
    return true;
}();

}  // namespace

bool DescribeSource(const Site& site, const std::string& id, AlarmOrigin* o) {
    const Device* d = nullptr;
    if (const Channel* c = site.channel(id, &d)) {
        o->sourceName = c->name;
        o->isChannel = true;
        o->number = static_cast<uint32_t>(c - d->channels.data()) + 1;
    } else if (const AlarmInput* a = site.alarmInput(id, &d)) {
        o->sourceName = a->name;
        o->isChannel = false;
        o->number = static_cast<uint32_t>(a - d->alarmInputs.data()) + 1;
    } else {
        return false;
    }
    o->source = id;
    o->device = d->id;
    o->deviceName = d->name;
    o->deviceType = d->type;
    o->department = d->department;
    return true;
}

void RaiseAlarmLocked(const AlarmOrigin& origin, const RaisedAlarm& alarm, int32_t onlyTo) {
    AlarmState& st = State();
    HistoryEntry h{"ALM" + std::to_string(++st.lastAlarm), origin, alarm};
    if (h.alarm.time == 0) {
        h.alarm.time = Now();
    }
    for (const auto& [handle, sources] : st.enabled) {
        if (onlyTo != 0 && handle != onlyTo) {
            continue;
        }
        for (const EnabledSource& e : sources) {
            if (Matches(e, origin, alarm.type)) {
                PostEvent(CbKind::Alarm, handle,
                          {IntArg(handle), TextArg(h.alarmId), IntArg(origin.deviceType),
                           TextArg(origin.source), TextArg(origin.deviceName),
                           TextArg(origin.sourceName), TextArg(origin.department),
                           TextArg(h.alarm.message), IntArg(h.alarm.type), IntArg(h.alarm.event),
                           IntArg(kAlarmLevel), IntArg(static_cast<int64_t>(h.alarm.time)),
                           TextArg(""), IntArg(0), TextArg(""), IntArg(0)});
                break;
            }
        }
    }
    st.history.push_back(std::move(h));
    if (st.history.size() > kHistoryLimit) {
        st.history.pop_front();
    }
}

void ResetAlarms() {
    WithSite([](Site&) {
        State() = AlarmState{};
        return 0;
    });
}

int32_t PhoneSubscribeAlarm(int32_t handle, orvex_phone_subscribe_alarm_t* info) {
    return WithInstance(handle, true, [&](Instance& in, Site&) {
        if (info == nullptr) {
            return Invalid;
        }
        const std::string phone = FixedText(info->szPhoneId);
        if (phone.empty()) {
            return Invalid;
        }
        if (info->iIs_subscribe == 0) {
            if (State().phones.erase(phone) == 0) {
                return static_cast<int32_t>(ORVEX_CORE_ERROR_NOT_FOUND);
            }
        } else {
            const uint32_t user =
                info->iUserId != 0 ? static_cast<uint32_t>(info->iUserId) : in.userId;
            State().phones[phone] = {user, info->iAppId, FixedText(info->szPush_type),
                                     FixedText(info->szLanguage), FixedText(info->szTimefmt)};
            info->iIs_subscribe = 1;  // reported back as a plain flag
        }
        return Ok;
    });
}

int32_t EnableAlarm(int32_t handle, const Alarm_Enable_Info_t* info) {
    return Enable(handle, info, ORVEX_CORE_ERROR_DEVICE_NOT_FOUND);
}

int32_t EnableAlarmByDepartment(int32_t handle, const Alarm_Enable_By_Dep_Info_t* info) {
    return Enable(handle, info, ORVEX_CORE_ERROR_GROUP_NOT_FOUND);
}

int32_t DisableAlarm(int32_t handle) {
    return WithInstance(handle, true, [](Instance& in, Site&) {
        State().enabled.erase(in.handle);
        return Ok;
    });
}

int32_t QueryAlarmCount(int32_t handle, const Alarm_Query_Info_t* query, int32_t* count) {
    if (count == nullptr) {
        return WithInstance(handle, true, [](Instance&, Site&) { return Invalid; });
    }
    return OnHistory(handle, query, [count](const std::vector<const HistoryEntry*>& found) {
        *count = static_cast<int32_t>(found.size());
        return Ok;
    });
}

int32_t QueryAlarmInfo(int32_t handle, const Alarm_Query_Info_t* query, Alarm_Info_t* page,
                       int32_t firstNum, int32_t queryCount) {
    if (page == nullptr || firstNum < 0 || queryCount <= 0 ||
        (page->nCount > 0 && page->pAlarmInfo == nullptr)) {
        return WithInstance(handle, true, [](Instance&, Site&) { return Invalid; });
    }
    return OnHistory(handle, query, [&](const std::vector<const HistoryEntry*>& found) {
        const std::size_t first = static_cast<std::size_t>(firstNum);
        const std::size_t left = found.size() > first ? found.size() - first : 0;
        const std::size_t n =
            std::min({left, static_cast<std::size_t>(queryCount), std::size_t{page->nCount}});
        for (std::size_t k = 0; k < n; ++k) {
            FillRecord(*found[first + k], &page->pAlarmInfo[k]);
        }
        page->nRetCount = static_cast<uint32_t>(n);
        return Ok;
    });
}

int32_t GetAlarmSchemeCount(int32_t handle, uint32_t* count) {
    return WithInstance(handle, true, [count](Instance&, Site& site) {
        if (count == nullptr) {
            return Invalid;
        }
        *count = static_cast<uint32_t>(site.alarmSchemes.size());
        return Ok;
    });
}

int32_t GetAlarmSchemeList(int32_t handle, AlarmSchemeInfo_t* list, int32_t capacity) {
    return WithInstance(handle, true, [&](Instance&, Site& site) {
        if (capacity < 0 || (capacity > 0 && list == nullptr)) {
            return Invalid;
        }
        const std::size_t n =
            std::min(site.alarmSchemes.size(), static_cast<std::size_t>(capacity));
        for (std::size_t k = 0; k < n; ++k) {
            const AlarmScheme& s = site.alarmSchemes[k];
            AlarmSchemeInfo_t& r = list[k];
            std::memset(&r, 0, sizeof(r));
            r.status = static_cast<orvex_alarmScheme_status_e>(s.status);
            r.id = s.id;
            CopyText(r.schemeName, s.name);
            r.templateId = s.templateId;
            CopyText(r.desc, s.desc);
        }
        return Ok;
    });
}

int32_t SaveAlarmScheme(int32_t handle, const AlarmSchemeInfo_t* scheme) {
    return WithInstance(handle, true, [&](Instance& in, Site& site) {
        if (int32_t rc = MayOperate(in, site)) {
            return rc;
        }
        if (scheme == nullptr || FixedText(scheme->schemeName).empty() ||
            (scheme->status != ALARM_SCHEME_STATUS_CLOSE &&
             scheme->status != ALARM_SCHEME_STATUS_OPEN)) {
            return Invalid;
        }
        AlarmScheme saved{scheme->id, scheme->status, FixedText(scheme->schemeName),
                          scheme->templateId, FixedText(scheme->desc)};
        if (saved.id == 0) {
            for (const AlarmScheme& s : site.alarmSchemes) {
                saved.id = std::max(saved.id, s.id);
            }
            ++saved.id;
            site.alarmSchemes.push_back(saved);
            return Ok;
        }
        for (AlarmScheme& s : site.alarmSchemes) {
            if (s.id == saved.id) {
                s = saved;
                return Ok;
            }
        }
        return static_cast<int32_t>(ORVEX_CORE_ERROR_NOT_FOUND);
    });
}

int32_t SendAlarmToServer(int32_t handle, const Client_Alarm_Info_t* alarm) {
    return WithInstance(handle, true, [&](Instance&, Site& site) {
        if (alarm == nullptr ||
            (alarm->enStatus != ALARM_EVENT_OCCUR && alarm->enStatus != ALARM_EVENT_DISAPPEAR)) {
            return Invalid;
        }
        AlarmOrigin origin;
        if (!DescribeSource(site, FixedText(alarm->szCameraId), &origin)) {
            return static_cast<int32_t>(ORVEX_CORE_ERROR_CHANNEL_NOT_FOUND);
        }
        RaiseAlarmLocked(origin, {alarm->enAlarmType, alarm->enStatus, alarm->uAlarmTime,
                                  FixedText(alarm->szMsg)});
        return Ok;
    });
}

}  // namespace orvexsim::platform
