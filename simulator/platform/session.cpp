// Client instances, their log and monitor files, login and the user's account.
#include "session.h"

#include <chrono>
#include <cstdio>
#include <ctime>
#include <fstream>

#include "records.h"
#include "site_model.h"

namespace orvexsim::platform {
namespace {

const char* LevelName(int32_t level) {
    return level >= ORVEX_LOG_LEVEL_ERROR  ? "ERROR"
           : level >= ORVEX_LOG_LEVEL_INFO ? "INFO"
                                           : "DEBUG";
}

bool KnownLevel(int32_t level) {
    return level == ORVEX_LOG_LEVEL_DEBUG || level == ORVEX_LOG_LEVEL_INFO ||
           level == ORVEX_LOG_LEVEL_ERROR;
}

// Appends one time-stamped line; the files belong to the user, so a failure to write is not the
// caller's error once the file was accepted.
void Append(const std::string& file, const char* level, const std::string& text) {
    static std::mutex* mu = new std::mutex;
    const auto now = std::chrono::system_clock::now();
    const std::time_t t = std::chrono::system_clock::to_time_t(now);
    std::tm tm{};
    gmtime_r(&t, &tm);
    char stamp[32];
    std::strftime(stamp, sizeof stamp, "%Y-%m-%d %H:%M:%S", &tm);
    std::lock_guard<std::mutex> lock(*mu);
    std::ofstream out(file, std::ios::app);
    out << stamp << " [" << level << "] " << text << '\n';
}

bool Writable(const std::string& file) {
    std::ofstream out(file, std::ios::app);
    return static_cast<bool>(out);
}

// 1009 for a bad argument of a known instance (an unknown handle still gives 1001).
int32_t Invalid(int32_t handle) {
    return WithInstance(handle, false,
                        [](Instance&, Site&) -> int32_t { return ORVEX_CORE_ERROR_INVALID_PARAM; });
}

// Notes a session event in the instance's log (at INFO) and monitor output.
void Note(int32_t handle, const std::string& text) {
    std::string log, monitor;
    WithInstance(handle, false, [&](Instance& in, Site&) -> int32_t {
        log = KnownLevel(in.logLevel) && in.logLevel <= ORVEX_LOG_LEVEL_INFO ? in.logFile : "";
        monitor = in.monitorFile;
        return ORVEX_RET_SUCCESS;
    });
    if (!log.empty()) {
        Append(log, "INFO", text);
    }
    if (!monitor.empty()) {
        Append(monitor, "MONITOR", "instance " + std::to_string(handle) + ": " + text);
    }
}

// Opens the named file for the instance's log or monitor: 1009 for no name or an unwritable
// file, so that a typo in a path is seen at once rather than as a silent empty log.
int32_t ChooseFile(int32_t handle, const char* file, std::string Instance::*member) {
    if (!Given(file) || !Writable(file)) {
        return Invalid(handle);
    }
    return WithInstance(handle, false, [&](Instance& in, Site&) -> int32_t {
        in.*member = file;
        return ORVEX_RET_SUCCESS;
    });
}

// The logged-in user of the instance, under the lock.
template <typename F>
int32_t WithUser(int32_t handle, F f) {
    return WithInstance(handle, true, [&](Instance& in, Site& site) -> int32_t {
        for (User& u : site.users) {
            if (u.id == in.userId) {
                return f(in, site, u);
            }
        }
        return static_cast<int32_t>(ORVEX_CORE_ERROR_NOT_LOGGED_IN);  // user removed meanwhile
    });
}

void OrgXml(const Site& site, const Department& d, std::string& out) {
    out += "<Department" + Attr("coding", d.coding) + Attr("name", d.name) +
           Attr("devices", site.devicesOf(d.coding).size()) + ">";
    for (const Department* child : site.childDepartments(d.coding)) {
        OrgXml(site, *child, out);
    }
    out += "</Department>";
}

std::string UserOrgText(const Site& site, const User& u) {
    std::string out = "<?xml version=\"1.0\" encoding=\"UTF-8\"?><UserOrg" + Attr("user", u.name) +
                      Attr("userId", u.id) + Attr("level", u.level) + ">";
    if (const Department* d = site.department(u.department)) {
        OrgXml(site, *d, out);
    }
    return out + "</UserOrg>";
}

}  // namespace

int32_t Create(int32_t type, int32_t* handle) {
    if (type != ORVEX_CORE_SDK_SERVER) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    return CreateInstance(handle);
}

int32_t Destroy(int32_t handle) {
    return DestroyInstance(handle);
}

int32_t SetLog(int32_t handle, int32_t level, const char* file) {
    if (!KnownLevel(level)) {
        return Invalid(handle);
    }
    const int32_t rc = ChooseFile(handle, file, &Instance::logFile);
    if (rc == ORVEX_RET_SUCCESS) {
        WithInstance(handle, false, [level](Instance& in, Site&) -> int32_t {
            in.logLevel = level;
            return ORVEX_RET_SUCCESS;
        });
        Note(handle, "log opened");
    }
    return rc;
}

int32_t StartMonitor(int32_t handle, const char* file) {
    const int32_t rc = ChooseFile(handle, file, &Instance::monitorFile);
    if (rc == ORVEX_RET_SUCCESS) {
        Note(handle, "monitor started");
    }
    return rc;
}

int32_t WriteLog(int32_t handle, const char* text, int32_t level) {
    if (text == nullptr || !KnownLevel(level)) {
        return Invalid(handle);
    }
    std::string file;
    const int32_t rc = WithInstance(handle, false, [&](Instance& in, Site&) -> int32_t {
        file = level >= in.logLevel ? in.logFile : "";
        return ORVEX_RET_SUCCESS;
    });
    if (rc == ORVEX_RET_SUCCESS && !file.empty()) {
        Append(file, LevelName(level), text);
    }
    return rc;
}

int32_t SetCompressType(int32_t handle, int32_t type) {
    return WithInstance(handle, false, [type](Instance& in, Site&) -> int32_t {
        if (type != ORVEX_CORE_GET_DEVINFO_BY_UNCOMPRESS &&
            type != ORVEX_CORE_GET_DEVINFO_BY_COMPRESSED) {
            return ORVEX_CORE_ERROR_INVALID_PARAM;
        }
        in.compressType = type;  // kept; the simulated platform's texts are never compressed
        return ORVEX_RET_SUCCESS;
    });
}

int32_t Login(int32_t handle, const Login_Info_t* info) {
    const int32_t rc = WithInstance(handle, false, [info](Instance& in, Site& site) -> int32_t {
        if (info == nullptr) {
            return ORVEX_CORE_ERROR_INVALID_PARAM;
        }
        if (in.loggedIn) {
            return ORVEX_CORE_ERROR_ALREADY_LOGGED_IN;
        }
        // The server address is not checked: one simulated platform answers on any address.
        const User* u = site.user(FixedText(info->szUsername));
        if (u == nullptr || u->password != FixedText(info->szPassword)) {
            return ORVEX_CORE_ERROR_LOGIN_FAIL;
        }
        in.loggedIn = true;
        in.userId = u->id;
        in.userName = u->name;
        return ORVEX_RET_SUCCESS;
    });
    if (rc == ORVEX_RET_SUCCESS) {
        Note(handle, "logged in as " + FixedText(info->szUsername));
        PostEvent(CbKind::Status, handle, {IntArg(handle), IntArg(kStatusConnected)});
        NotifySessionStarted(handle);
    } else if (rc == ORVEX_CORE_ERROR_LOGIN_FAIL) {
        Note(handle, "login refused for " + FixedText(info->szUsername));
        PostEvent(CbKind::Status, handle, {IntArg(handle), IntArg(kStatusLoginFailed)});
    }
    return rc;
}

int32_t Logout(int32_t handle) {
    const int32_t rc = EndSession(handle);
    if (rc == ORVEX_RET_SUCCESS) {
        Note(handle, "logged out");
        PostEvent(CbKind::Status, handle, {IntArg(handle), IntArg(kStatusDisconnected)});
    }
    return rc;
}

int32_t GetUserId(int32_t handle, uint32_t* id) {
    return WithUser(handle, [id](Instance&, Site&, User& u) -> int32_t {
        return id == nullptr ? ORVEX_CORE_ERROR_INVALID_PARAM : (*id = u.id, ORVEX_RET_SUCCESS);
    });
}

int32_t GetUserLevel(int32_t handle, uint32_t* level) {
    return WithUser(handle, [level](Instance&, Site&, User& u) -> int32_t {
        return level == nullptr ? ORVEX_CORE_ERROR_INVALID_PARAM
                                : (*level = u.level, ORVEX_RET_SUCCESS);
    });
}

int32_t GetUserInfo(int32_t handle, ORVEX_UserInfo_t* info) {
    return WithUser(handle, [info](Instance&, Site& site, User& u) -> int32_t {
        if (info == nullptr) {
            return ORVEX_CORE_ERROR_INVALID_PARAM;
        }
        info->iUserId = static_cast<int>(u.id);
        info->iUserLevel = static_cast<int>(u.level);
        info->iUserOperFlag = u.operFlag;
        const Department* d = site.department(u.department);
        CopyText(info->szCoding, u.department);
        CopyText(info->szCodeName, d != nullptr ? d->name : "");
        return ORVEX_RET_SUCCESS;
    });
}

int32_t ChangeUserPassword(int32_t handle, const char* oldPassword, const char* newPassword) {
    return WithUser(handle, [&](Instance&, Site&, User& u) -> int32_t {
        if (oldPassword == nullptr || newPassword == nullptr) {
            return ORVEX_CORE_ERROR_INVALID_PARAM;
        }
        if (u.password != oldPassword) {
            return ORVEX_CORE_ERROR_LOGIN_FAIL;
        }
        // A password must fit the login record's member and may not be empty.
        const std::size_t n = std::strlen(newPassword);
        if (n == 0 || n >= sizeof(Login_Info_t::szPassword)) {
            return ORVEX_CORE_ERROR_INVALID_PARAM;
        }
        u.password = newPassword;  // the site is shared: later logins of any instance need it
        return ORVEX_RET_SUCCESS;
    });
}

int32_t GetMapAddrInfo(int32_t handle, Config_Emap_Addr_Info_t* info) {
    return WithInstance(handle, true, [info](Instance&, Site& site) -> int32_t {
        if (info == nullptr) {
            return ORVEX_CORE_ERROR_INVALID_PARAM;
        }
        CopyText(info->szIP, site.server.mapIp);
        info->nPort = site.server.mapPort;
        return ORVEX_RET_SUCCESS;
    });
}

int32_t GetUserOrgInfoLen(int32_t handle, int32_t* len) {
    return WithUser(handle, [len](Instance&, Site& site, User& u) -> int32_t {
        if (len == nullptr) {
            return ORVEX_CORE_ERROR_INVALID_PARAM;
        }
        *len = LengthOf(UserOrgText(site, u)) + 1;
        return ORVEX_RET_SUCCESS;
    });
}

int32_t GetUserOrgInfo(int32_t handle, char* buffer, int32_t len) {
    return WithUser(handle, [buffer, len](Instance&, Site& site, User& u) -> int32_t {
        const std::string text = UserOrgText(site, u);
        if (buffer != nullptr && len >= 0 && static_cast<std::size_t>(len) <= text.size()) {
            return ORVEX_CORE_ERROR_BUFFER_TOO_SMALL;  // the terminator must fit
        }
        return WriteText(buffer, len, text, TextFit::Cut);
    });
}

}  // namespace orvexsim::platform
