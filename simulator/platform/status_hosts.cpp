// Device lists as text and the states of devices and channels.
#include "status_hosts.h"

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
    return WithInstance(handle, true,
                        [=](Instance&, Site& site) { return WriteText(buffer, len, text(site)); });
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
