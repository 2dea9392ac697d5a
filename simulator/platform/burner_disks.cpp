#include "burner_disks.h"

#include <algorithm>
#include <iterator>

#include "site_model.h"

namespace orvexsim::platform {
namespace {

// The burner of a device that can be reached: 1011 for an unknown device, 1016 for a device
// without a burner, 1014 for one that is offline.
int32_t ReachBurner(Site& site, const char* deviceId, Burner** out) {
    const Device* device = site.device(deviceId);
    if (device == nullptr) {
        return ORVEX_CORE_ERROR_DEVICE_NOT_FOUND;
    }
    Burner* b = FindBy(site.burners, &Burner::device, deviceId);
    if (b == nullptr) {
        return ORVEX_CORE_ERROR_NOT_SUPPORTED;
    }
    *out = b;
    return device->online ? ORVEX_RET_SUCCESS : ORVEX_CORE_ERROR_DEVICE_OFFLINE;
}

// A mask that is not empty and names only bits below `count`.
bool MaskWithin(uint32_t mask, std::size_t count) {
    return mask != 0 && (count >= 32 || (mask >> count) == 0);
}

int32_t Start(const Device& device, Burner& b, const Control_Dev_Burner_Request_t& r) {
    if (b.state != kBurnerIdle) {
        return ORVEX_CORE_ERROR_BUSY;
    }
    if (!MaskWithin(static_cast<uint32_t>(r.channelMask), device.channels.size()) ||
        !MaskWithin(static_cast<uint32_t>(r.burnerMask), static_cast<std::size_t>(b.drives))) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    b.channelMask = static_cast<uint32_t>(r.channelMask);
    b.burnerMask = static_cast<uint32_t>(r.burnerMask);
    b.state = kBurnerBurning;
    return ORVEX_RET_SUCCESS;
}

// Pause, continue and stop act only on a burn that is there to act on.
int32_t Move(Burner& b, int32_t from, int32_t alsoFrom, int32_t to) {
    if (b.state != from && b.state != alsoFrom) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    b.state = to;
    if (to == kBurnerIdle) {
        b.channelMask = 0;
        b.burnerMask = 0;
    }
    return ORVEX_RET_SUCCESS;
}

}  // namespace

int32_t ControlDevBurner(int32_t handle, const Control_Dev_Burner_Request_t* request) {
    if (request == nullptr || !Terminated(request->deviceId)) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    return WithInstance(handle, true, [&](Instance& in, Site& site) {
        Burner* b = nullptr;
        int32_t rc = MayOperate(in, site);
        if (rc == ORVEX_RET_SUCCESS) {
            rc = ReachBurner(site, request->deviceId, &b);
        }
        if (rc != ORVEX_RET_SUCCESS) {
            return rc;
        }
        switch (request->cmd) {
            case Cmd_StartBurn:
                return Start(*site.device(b->device), *b, *request);
            case Cmd_PauseBurn:
                return Move(*b, kBurnerBurning, kBurnerBurning, kBurnerPaused);
            case Cmd_ContinueBurn:
                return Move(*b, kBurnerPaused, kBurnerPaused, kBurnerBurning);
            case Cmd_StopBurn:
                return Move(*b, kBurnerBurning, kBurnerPaused, kBurnerIdle);
            case Cmd_ChangeCD:
                if (b->state == kBurnerBurning) {
                    return int32_t{ORVEX_CORE_ERROR_BUSY};  // pause first
                }
                ++b->discChanges;
                return int32_t{ORVEX_RET_SUCCESS};
            default:
                return int32_t{ORVEX_CORE_ERROR_INVALID_PARAM};
        }
    });
}

int32_t SetDevBurnerHeader(int32_t handle, const DevBurnerInfoHeader_t* header,
                           const TrialFormAttrName_t* labels) {
    if (header == nullptr || labels == nullptr) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    const DevBurnerInfoHeader_t& h = *header;
    // Every text must end inside its member: the device writes them onto the disc as they are.
    if (!Terminated(h.m_deviceId) || !Terminated(h.m_password) || !Terminated(h.m_caseId) ||
        !Terminated(h.m_trialSeq) || !Terminated(h.m_caseUnderTaker) || !Terminated(h.m_caseDep) ||
        !Terminated(h.m_caseReason) || !Terminated(h.m_caseReferPerson) ||
        !Terminated(h.m_caseRemark) || !Terminated(h.m_caseRecordName) ||
        !Terminated(h.m_RecordNum) || !Terminated(h.m_recordPerson) ||
        !Terminated(labels->m_caseIdAttr)) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    return WithInstance(handle, true, [&](Instance& in, Site& site) {
        Burner* b = nullptr;
        int32_t rc = MayOperate(in, site);
        if (rc == ORVEX_RET_SUCCESS) {
            rc = ReachBurner(site, h.m_deviceId, &b);
        }
        if (rc != ORVEX_RET_SUCCESS) {
            return rc;
        }
        if (b->state != kBurnerIdle) {
            return int32_t{ORVEX_CORE_ERROR_BUSY};  // a disc in progress keeps its header
        }
        b->caseId = h.m_caseId;
        b->recordName = h.m_caseRecordName;
        b->recordPerson = h.m_recordPerson;
        b->caseIdLabel = labels->m_caseIdAttr;
        return int32_t{ORVEX_RET_SUCCESS};
    });
}

int32_t GetDeviceDiskInfoCount(int32_t handle, const char* deviceId, int32_t* count,
                               int32_t* sequence) {
    if (deviceId == nullptr || count == nullptr || sequence == nullptr) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    return WithInstance(handle, true, [&](Instance& in, Site& site) {
        const Device* device = site.device(deviceId);
        if (device == nullptr) {
            return ORVEX_CORE_ERROR_DEVICE_NOT_FOUND;
        }
        if (!device->online) {
            return ORVEX_CORE_ERROR_DEVICE_OFFLINE;
        }
        const int32_t seq = kFirstDiskSequence + ++in.lastDiskSequence;
        in.diskAnswers[seq] = {device->id, device->disks};
        while (in.diskAnswers.size() > kKeptDiskAnswers) {
            in.diskAnswers.erase(in.diskAnswers.begin());
        }
        *count = static_cast<int32_t>(device->disks.size());
        *sequence = seq;
        return ORVEX_RET_SUCCESS;
    });
}

int32_t GetDeviceDiskInfo(int32_t handle, int32_t sequence, Device_Disk_Info_t* info) {
    if (info == nullptr) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    return WithInstance(handle, true, [&](Instance& in, Site&) {
        // Callers through the Java bridge receive the disk count where the sequence belongs and
        // size their list by it: a number this instance never handed out is served its latest
        // answer with that many disks. Sequences never fall among disk counts.
        auto it = in.diskAnswers.find(sequence);
        if (it == in.diskAnswers.end()) {
            auto byCount =
                std::find_if(in.diskAnswers.rbegin(), in.diskAnswers.rend(), [&](const auto& kept) {
                    return kept.second.disks.size() == static_cast<std::size_t>(sequence);
                });
            it =
                byCount == in.diskAnswers.rend() ? in.diskAnswers.end() : std::prev(byCount.base());
        }
        if (it == in.diskAnswers.end()) {
            return ORVEX_CORE_ERROR_SEQ_NOT_FOUND;
        }
        const std::vector<Disk>& disks = it->second.disks;
        if (!disks.empty() && info->pDiskInfoList == nullptr) {
            return ORVEX_CORE_ERROR_INVALID_PARAM;
        }
        CopyText(info->szDevId, it->second.device);
        for (std::size_t k = 0; k < disks.size(); ++k) {
            const Disk& d = disks[k];
            info->pDiskInfoList[k] = {d.id,     d.volume,     d.freeSpace, d.state,
                                      d.number, d.partitions, d.signal};
        }
        info->nDiskInfoSize = static_cast<int32_t>(disks.size());
        return ORVEX_RET_SUCCESS;
    });
}

}  // namespace orvexsim::platform
