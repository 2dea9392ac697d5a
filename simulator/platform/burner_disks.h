// Evidence burners and recorder disks of the simulated platform. A burner moves between idle,
// burning and paused as commands arrive and keeps the case header it writes; a disk query keeps
// its answer under a sequence number until the records are fetched.
#pragma once

#include <cstdint>

#include "ORVEX_Core_Define.h"

namespace orvexsim::platform {

enum BurnerState : int32_t { kBurnerIdle = 0, kBurnerBurning = 1, kBurnerPaused = 2 };

// Disk answers are numbered from here, far above any disk count (see GetDeviceDiskInfo).
constexpr int32_t kFirstDiskSequence = 0x10000;
// Disk answers an instance keeps; older ones are forgotten.
constexpr std::size_t kKeptDiskAnswers = 8;

int32_t ControlDevBurner(int32_t handle, const Control_Dev_Burner_Request_t* request);
int32_t SetDevBurnerHeader(int32_t handle, const DevBurnerInfoHeader_t* header,
                           const TrialFormAttrName_t* labels);

int32_t GetDeviceDiskInfoCount(int32_t handle, const char* deviceId, int32_t* count,
                               int32_t* sequence);
// Fills the disks kept under `sequence` into info->pDiskInfoList, which must hold at least the
// count that the query returned (the library is not told its capacity). A number that is no
// sequence of the instance is taken for a disk count: the latest answer with that many disks.
int32_t GetDeviceDiskInfo(int32_t handle, int32_t sequence, Device_Disk_Info_t* info);

}  // namespace orvexsim::platform
