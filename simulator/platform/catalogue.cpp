// The organisation tree and its text export, devices, channels, the logical organisation.
#include "catalogue.h"

#include <cstring>

#include "records.h"

namespace orvexsim::platform {
namespace {

int32_t Online(bool online) {
    return online ? ORVEX_DEV_STATUS_ONLINE : ORVEX_DEV_STATUS_OFFLINE;
}

// Reads that need the tree; `f` answers from the site.
template <typename F>
int32_t Read(int32_t handle, F f) {
    return WithTree(handle, [&f](Instance&, Site& site) -> int32_t { return f(site); });
}

// ----- The text export

void DeviceXml(const Device& d, std::string& out) {
    out += "<Device" + Attr("id", d.id) + Attr("name", d.name) + Attr("type", d.type) +
           Attr("status", Online(d.online)) + Attr("ip", d.ip) + Attr("port", d.port) +
           Attr("sort", d.sort) + ">";
    for (const Channel& c : d.channels) {
        out += "<Channel" + Attr("id", c.id) + Attr("name", c.name) +
               Attr("cameraType", c.cameraType) + Attr("status", Online(d.online && c.online)) +
               Attr("sort", c.sort) + "/>";
    }
    for (const AlarmInput& a : d.alarmInputs) {
        out += "<AlarmInput" + Attr("id", a.id) + Attr("name", a.name) +
               Attr("status", Online(d.online && a.online)) + "/>";
    }
    out += "</Device>";
}

// A department with `depth` levels below it (negative: all; 0: the department alone).
void DepartmentXml(const Site& site, const Department& d, int depth, std::string& out) {
    out += "<Department" + Attr("coding", d.coding) + Attr("name", d.name) + Attr("sort", d.sort) +
           Attr("orgId", d.orgId) + ">";
    if (depth != 0) {
        for (const Device* dev : site.devicesOf(d.coding)) {
            DeviceXml(*dev, out);
        }
        for (const Department* child : site.childDepartments(d.coding)) {
            DepartmentXml(site, *child, depth < 0 ? depth : depth - 1, out);
        }
    }
    out += "</Department>";
}

std::string TreeText(const Site& site, const Department& from, int depth) {
    std::string out = "<?xml version=\"1.0\" encoding=\"UTF-8\"?><Organization>";
    DepartmentXml(site, from, depth, out);
    return out + "</Organization>";
}

// Keeps the export and makes the tree readable.
int32_t Loaded(Instance& in, std::string text, int32_t* textLen) {
    in.treeLoaded = true;
    in.treeText = std::move(text);
    *textLen = LengthOf(in.treeText);
    return ORVEX_RET_SUCCESS;
}

// ----- Records

void FillGroup(const Department& d, Dep_Info_t* out) {
    std::memset(out, 0, sizeof *out);
    CopyText(out->szCoding, d.coding);
    CopyText(out->szDepName, d.name);
    out->nDepSort = d.sort;
    CopyText(out->szOrgID, d.orgId);
}

void FillChannel(const Channel& c, Enc_Channel_Info_t* out) {
    std::memset(out, 0, sizeof *out);
    out->nCameraType = static_cast<orvex_camera_type_e>(c.cameraType);
    CopyText(out->szId, c.id);
    CopyText(out->szName, c.name);
    out->nSort = c.sort;
}

void FillLogic(const LogicDepartment& d, Dep_Info_Ex_t* out) {
    std::memset(out, 0, sizeof *out);
    CopyText(out->szCoding, d.coding);
    CopyText(out->szDepName, d.name);
    CopyText(out->szModifyTime, d.modifyTime);
    CopyText(out->szSN, d.sn);
    CopyText(out->szMemo, d.memo);
    out->nDepType = d.type;
    out->nDepSort = d.sort;
    out->nChargebooth = d.chargebooth;
    out->nDepExtType = d.extType;
    CopyText(out->szOrgID, d.orgId);
}

// Fills at most `capacity` records of `items` into `out` and reports how many it wrote; a
// capacity without an array is a caller's error.
template <typename Item, typename Record, typename Fill>
int32_t FillList(const std::vector<Item>& items, uint32_t* capacity, Record* out, Fill fill) {
    if (*capacity > 0 && out == nullptr) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    const std::size_t n = items.size() < *capacity ? items.size() : *capacity;
    for (std::size_t k = 0; k < n; ++k) {
        fill(items[k], &out[k]);
    }
    *capacity = static_cast<uint32_t>(n);
    return ORVEX_RET_SUCCESS;
}

template <typename GetInfo, typename Record, typename Fill>
int32_t ChannelList(int32_t handle, GetInfo* info, Record* GetInfo::*array, Fill fill) {
    return Read(handle, [&](Site& site) -> int32_t {
        if (info == nullptr) {
            return ORVEX_CORE_ERROR_INVALID_PARAM;
        }
        const Device* d = site.device(FixedText(info->szDeviceId));
        if (d == nullptr) {
            return ORVEX_CORE_ERROR_DEVICE_NOT_FOUND;
        }
        return FillList(d->channels, &info->nEncChannelChildCount, info->*array,
                        [d, &fill](const Channel& c, Record* r) { fill(*d, c, r); });
    });
}

// The department a group request names: 1009 without a request, 1010 for an unknown coding.
template <typename Info, typename F>
int32_t WithGroup(int32_t handle, Info* info, F f) {
    return Read(handle, [&](Site& site) -> int32_t {
        if (info == nullptr) {
            return ORVEX_CORE_ERROR_INVALID_PARAM;
        }
        const std::string coding = FixedText(info->szCoding);
        return site.department(coding) == nullptr ? ORVEX_CORE_ERROR_GROUP_NOT_FOUND
                                                  : f(site, coding);
    });
}

// A logical department by coding, or the error for a missing coding argument or department.
template <typename F>
int32_t WithLogic(int32_t handle, const char* coding, F f) {
    return Read(handle, [&](Site& site) -> int32_t {
        if (coding == nullptr) {
            return ORVEX_CORE_ERROR_INVALID_PARAM;
        }
        const LogicDepartment* d = site.logicDepartment(coding);
        return d == nullptr ? ORVEX_CORE_ERROR_GROUP_NOT_FOUND : f(site, *d);
    });
}

}  // namespace

void FillDevice(const Device& d, Device_Info_Ex_t* out) {
    std::memset(out, 0, sizeof *out);
    CopyText(out->szId, d.id);
    CopyText(out->szName, d.name);
    out->nFactory = static_cast<orvex_device_factory_type_e>(d.factory);
    out->szModel = d.model;
    CopyText(out->szUser, d.user);
    CopyText(out->szPassword, d.password);
    CopyText(out->szIP, d.ip);
    out->nDevType = static_cast<orvex_dev_type_e>(d.type);
    out->nPort = d.port;
    out->szLoginType = d.loginType;
    CopyText(out->szRegID, d.regId);
    out->nProxyPort = d.proxyPort;
    out->nUnitNum = d.unitNum;
    out->nStatus = static_cast<orvex_dev_status_e>(Online(d.online));
    CopyText(out->szCN, d.cn);
    CopyText(out->szSN, d.sn);
    out->nRight = d.right;
    CopyText(out->szDevIP, d.devIp);
    out->nDevPort = d.devPort;
    CopyText(out->dev_Maintainer, d.maintainer);
    CopyText(out->dev_MaintainerPh, d.maintainerPhone);
    CopyText(out->dev_Location, d.location);
    CopyText(out->desc, d.desc);
    out->nEncChannelChildCount = static_cast<int>(d.channels.size());
    out->iAlarmInChannelcount = static_cast<int>(d.alarmInputs.size());
    out->nSort = d.sort;
    CopyText(out->szCallNum, d.callNum);
}

void FillChannelEx(const Device& owner, const Channel& c, Enc_Channel_Info_Ex_t* out) {
    std::memset(out, 0, sizeof *out);
    out->nCameraType = static_cast<orvex_camera_type_e>(c.cameraType);
    CopyText(out->szId, c.id);
    CopyText(out->szName, c.name);
    out->nRight = c.right;
    out->nChnlType = c.chnlType;
    out->nStatus = Online(owner.online && c.online);
    CopyText(out->szChnlSN, c.sn);
    CopyText(out->szLatitude, c.latitude);
    CopyText(out->szLongitude, c.longitude);
    CopyText(out->szMulticastIp, c.multicastIp);
    out->nMulticastPort = c.multicastPort;
}

int32_t LoadTree(int32_t handle, int32_t* textLen) {
    return WithInstance(handle, true, [textLen](Instance& in, Site& site) -> int32_t {
        return textLen == nullptr ? ORVEX_CORE_ERROR_INVALID_PARAM
                                  : Loaded(in, TreeText(site, site.departments[0], -1), textLen);
    });
}

int32_t LoadOrgByType(int32_t handle, int32_t type, int32_t* nodeCount) {
    return WithInstance(handle, true, [type, nodeCount](Instance& in, Site& site) -> int32_t {
        if (nodeCount == nullptr || (type != kOrgDeviceTree && type != kOrgLogical)) {
            return ORVEX_CORE_ERROR_INVALID_PARAM;
        }
        std::size_t nodes = 0;
        if (type == kOrgDeviceTree) {
            nodes = site.departments.size() + site.devices.size();
            for (const Device& d : site.devices) {
                nodes += d.channels.size() + d.alarmInputs.size();
            }
        } else {
            for (const LogicDepartment& l : site.logicOrg) {
                nodes += 1 + l.devices.size() + l.channels.size();
            }
        }
        int32_t unused = 0;
        Loaded(in, TreeText(site, site.departments[0], -1), &unused);
        *nodeCount = static_cast<int32_t>(nodes);
        return ORVEX_RET_SUCCESS;
    });
}

int32_t LoadTreeLayered(int32_t handle, const Load_Dep_Info_t* info, int32_t* textLen) {
    return WithInstance(handle, true, [info, textLen](Instance& in, Site& site) -> int32_t {
        if (info == nullptr || textLen == nullptr) {
            return ORVEX_CORE_ERROR_INVALID_PARAM;
        }
        const Department* d = site.department(FixedText(info->szCoding));
        if (d == nullptr) {
            return ORVEX_CORE_ERROR_GROUP_NOT_FOUND;
        }
        switch (info->nOperation) {
            case ORVEX_CORE_GEN_GETGROUP_OPERATION_ALL:
                return Loaded(in, TreeText(site, *d, -1), textLen);
            case ORVEX_CORE_GEN_GETGROUP_OPERATION_SELF:
                return Loaded(in, TreeText(site, *d, 0), textLen);
            case ORVEX_CORE_GEN_GETGROUP_OPERATION_CHILD:
                return Loaded(in, TreeText(site, *d, 1), textLen);
            default:
                return ORVEX_CORE_ERROR_INVALID_PARAM;
        }
    });
}

int32_t GetTreeText(int32_t handle, char* buffer, int32_t len) {
    return WithTree(handle, [=](Instance& in, Site&) -> int32_t {
        return WriteText(buffer, len, in.treeText, TextFit::Cut);
    });
}

int32_t GetRootGroup(int32_t handle, Dep_Info_t* info) {
    return Read(handle, [info](Site& site) -> int32_t {
        return info == nullptr ? ORVEX_CORE_ERROR_INVALID_PARAM
                               : (FillGroup(site.departments[0], info), ORVEX_RET_SUCCESS);
    });
}

int32_t GetGroupCount(int32_t handle, Get_Dep_Count_Info_t* info) {
    return WithGroup(handle, info, [info](Site& site, const std::string& coding) {
        const std::vector<const Device*> devices = site.devicesOf(coding);
        uint32_t channels = 0;
        for (const Device* d : devices) {
            channels += static_cast<uint32_t>(d->channels.size());
        }
        info->nDepCount = static_cast<uint32_t>(site.childDepartments(coding).size());
        info->nDeviceCount = static_cast<uint32_t>(devices.size());
        info->nChannelCount = channels;
        return ORVEX_RET_SUCCESS;
    });
}

int32_t GetGroup(int32_t handle, Get_Dep_Info_t* info) {
    return WithGroup(handle, info, [info](Site& site, const std::string& coding) -> int32_t {
        if ((info->nDepCount > 0 && info->pDepInfo == nullptr) ||
            (info->nDeviceCount > 0 && info->pDeviceInfo == nullptr)) {
            return ORVEX_CORE_ERROR_INVALID_PARAM;
        }
        FillList(site.childDepartments(coding), &info->nDepCount, info->pDepInfo,
                 [](const Department* d, Dep_Info_t* r) { FillGroup(*d, r); });
        FillList(site.devicesOf(coding), &info->nDeviceCount, info->pDeviceInfo,
                 [](const Device* d, Device_Info_Ex_t* r) { FillDevice(*d, r); });
        return ORVEX_RET_SUCCESS;
    });
}

int32_t GetDevice(int32_t handle, const char* deviceId, Device_Info_Ex_t* info) {
    return Read(handle, [=](Site& site) -> int32_t {
        if (deviceId == nullptr || info == nullptr) {
            return ORVEX_CORE_ERROR_INVALID_PARAM;
        }
        const Device* d = site.device(deviceId);
        return d == nullptr ? ORVEX_CORE_ERROR_DEVICE_NOT_FOUND
                            : (FillDevice(*d, info), ORVEX_RET_SUCCESS);
    });
}

int32_t GetChannels(int32_t handle, Get_Channel_Info_t* info) {
    return ChannelList(
        handle, info, &Get_Channel_Info_t::pEncChannelnfo,
        [](const Device&, const Channel& c, Enc_Channel_Info_t* r) { FillChannel(c, r); });
}

int32_t GetChannelsEx(int32_t handle, Get_Channel_Info_Ex_t* info) {
    return ChannelList(handle, info, &Get_Channel_Info_Ex_t::pEncChannelnfo, FillChannelEx);
}

int32_t GetEncChannelCount(int32_t handle, const char* deviceId, int32_t* count) {
    return Read(handle, [=](Site& site) -> int32_t {
        if (deviceId == nullptr || count == nullptr) {
            return ORVEX_CORE_ERROR_INVALID_PARAM;
        }
        const Device* d = site.device(deviceId);
        return d == nullptr
                   ? ORVEX_CORE_ERROR_DEVICE_NOT_FOUND
                   : (*count = static_cast<int32_t>(d->channels.size()), ORVEX_RET_SUCCESS);
    });
}

int32_t GetChannelById(int32_t handle, const char* cameraId, Enc_Channel_Info_Ex_t* info) {
    return Read(handle, [=](Site& site) -> int32_t {
        if (cameraId == nullptr || info == nullptr) {
            return ORVEX_CORE_ERROR_INVALID_PARAM;
        }
        const Device* owner = nullptr;
        const Channel* c = static_cast<const Site&>(site).channel(cameraId, &owner);
        return c == nullptr ? ORVEX_CORE_ERROR_CHANNEL_NOT_FOUND
                            : (FillChannelEx(*owner, *c, info), ORVEX_RET_SUCCESS);
    });
}

int32_t GetChannelType(int32_t handle, const char* cameraId, int32_t* type) {
    return Read(handle, [=](Site& site) -> int32_t {
        if (cameraId == nullptr || type == nullptr) {
            return ORVEX_CORE_ERROR_INVALID_PARAM;
        }
        const Site& s = site;
        if (const Channel* c = s.channel(cameraId)) {
            *type = c->chnlType;
        } else if (const AlarmInput* a = s.alarmInput(cameraId)) {
            *type = a->chnlType;
        } else {
            return ORVEX_CORE_ERROR_CHANNEL_NOT_FOUND;
        }
        return ORVEX_RET_SUCCESS;
    });
}

int32_t GetDevStreamType(int32_t handle, Get_Dev_StreamType_Info_t* info) {
    return Read(handle, [info](Site& site) -> int32_t {
        if (info == nullptr) {
            return ORVEX_CORE_ERROR_INVALID_PARAM;
        }
        const Device* d = site.device(FixedText(info->szDeviceId));
        if (d == nullptr) {
            return ORVEX_CORE_ERROR_DEVICE_NOT_FOUND;
        }
        // Units are accepted numbered from 0 or from 1: callers use both.
        if (info->nUnitNo < 0 || info->nUnitNo > d->unitNum) {
            return ORVEX_CORE_ERROR_INVALID_PARAM;
        }
        info->nStreamType = static_cast<orvex_stream_type_e>(d->streamType);
        return ORVEX_RET_SUCCESS;
    });
}

bool HasLogicOrg(int32_t handle) {
    return Read(handle, [](Site& site) -> int32_t { return site.logicOrg.empty() ? 0 : 1; }) == 1;
}

int32_t GetLogicRoot(int32_t handle, Dep_Info_Ex_t* info) {
    return Read(handle, [info](Site& site) -> int32_t {
        if (info == nullptr) {
            return ORVEX_CORE_ERROR_INVALID_PARAM;
        }
        return site.logicOrg.empty() ? ORVEX_CORE_ERROR_GROUP_NOT_FOUND
                                     : (FillLogic(site.logicOrg[0], info), ORVEX_RET_SUCCESS);
    });
}

int32_t GetLogicNodeCount(int32_t handle, const char* coding, int32_t nodeType, int32_t* count) {
    return WithLogic(handle, coding, [=](Site& site, const LogicDepartment& d) -> int32_t {
        if (count == nullptr) {
            return ORVEX_CORE_ERROR_INVALID_PARAM;
        }
        switch (nodeType) {
            case ORVEX_CORE_NODE_DEP:
                *count = static_cast<int32_t>(site.logicChildren(d.coding).size());
                return ORVEX_RET_SUCCESS;
            case ORVEX_CORE_NODE_DEV:
                *count = static_cast<int32_t>(d.devices.size());
                return ORVEX_RET_SUCCESS;
            case ORVEX_CORE_NODE_CHANNEL:
                *count = static_cast<int32_t>(d.channels.size());
                return ORVEX_RET_SUCCESS;
            default:
                return ORVEX_CORE_ERROR_INVALID_PARAM;
        }
    });
}

int32_t GetLogicSubDep(int32_t handle, const char* coding, int32_t index, Dep_Info_Ex_t* info) {
    return WithLogic(handle, coding, [=](Site& site, const LogicDepartment& d) -> int32_t {
        if (info == nullptr) {
            return ORVEX_CORE_ERROR_INVALID_PARAM;
        }
        const std::vector<const LogicDepartment*> children = site.logicChildren(d.coding);
        if (index < 0 || static_cast<std::size_t>(index) >= children.size()) {
            return ORVEX_CORE_ERROR_GROUP_NOT_FOUND;
        }
        FillLogic(*children[static_cast<std::size_t>(index)], info);
        return ORVEX_RET_SUCCESS;
    });
}

int32_t GetLogicId(int32_t handle, const char* coding, int32_t index, bool channel, char* id) {
    return WithLogic(handle, coding, [=](Site&, const LogicDepartment& d) -> int32_t {
        if (id == nullptr) {
            return ORVEX_CORE_ERROR_INVALID_PARAM;
        }
        const std::vector<std::string>& ids = channel ? d.channels : d.devices;
        if (index < 0 || static_cast<std::size_t>(index) >= ids.size()) {
            return channel ? ORVEX_CORE_ERROR_CHANNEL_NOT_FOUND : ORVEX_CORE_ERROR_DEVICE_NOT_FOUND;
        }
        const std::string& found = ids[static_cast<std::size_t>(index)];
        std::memset(id, 0, kLogicIdSize);
        std::memcpy(id, found.data(),
                    found.size() < kLogicIdSize ? found.size() : kLogicIdSize - 1);
        return ORVEX_RET_SUCCESS;
    });
}

}  // namespace orvexsim::platform
