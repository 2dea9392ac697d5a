#include "media_records.h"

#include <limits>
#include <map>
#include <mutex>
#include <utility>

#include "ORVEX_Core_Error.h"

namespace orvexsim::platform {
namespace {

struct Searches {
    std::mutex mu;
    std::map<std::pair<int32_t, std::string>, std::vector<Single_Record_Info_t>> kept;
};

// Never destroyed, as the rest of the stand-in's state.
Searches& TheSearches() {
    static Searches* s = new Searches;
    return *s;
}

}  // namespace

int32_t CheckCamera(int32_t handle, const std::string& cameraId, CameraLook* look) {
    const SiteView site = CurrentSiteView();
    if (!site.loggedIn(handle)) {
        return ORVEX_CORE_ERROR_NOT_LOGGED_IN;
    }
    if (cameraId.empty() || !site.camera(handle, cameraId, look)) {
        return ORVEX_CORE_ERROR_CHANNEL_NOT_FOUND;
    }
    return ORVEX_RET_SUCCESS;
}

std::vector<RecordingSpan> AllRecordings(int32_t handle, const std::string& cameraId) {
    return CurrentSiteView().recordings(handle, cameraId, 0, std::numeric_limits<uint64_t>::max());
}

int32_t QueryRecords(int32_t handle, const std::string& cameraId, uint64_t begin, uint64_t end,
                     int32_t recordType, int32_t source, int32_t* count) {
    CameraLook look;
    if (const int32_t rc = CheckCamera(handle, cameraId, &look); rc != 0) {
        return rc;
    }
    if (count == nullptr || end < begin) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    const orvex_recsource_type_e reported =
        source == ORVEX_CORE_PB_RECSOURCE_DEVICE || source == ORVEX_CORE_PB_RECSOURCE_PLATFORM
            ? static_cast<orvex_recsource_type_e>(source)
            : ORVEX_CORE_PB_RECSOURCE_PLATFORM;
    // File indexes come from the full list, so that they stay valid across searches.
    const std::vector<RecordingSpan> all = AllRecordings(handle, cameraId);
    std::vector<Single_Record_Info_t> found;
    for (std::size_t i = 0; i < all.size(); ++i) {
        const RecordingSpan& r = all[i];
        if (r.end < begin || r.begin > end || (recordType != 0 && r.type != recordType)) {
            continue;
        }
        Single_Record_Info_t rec{};
        rec.nFileIndex = static_cast<uint32_t>(i);
        rec.nSource = reported;
        rec.nRecordType = static_cast<orvex_record_type_e>(r.type);
        rec.uBeginTime = r.begin;
        rec.uEndTime = r.end;
        rec.uLength = (r.end - r.begin) * kRecordBytesPerSecond;
        found.push_back(rec);
    }
    *count = static_cast<int32_t>(found.size());
    std::lock_guard<std::mutex> lock(TheSearches().mu);
    TheSearches().kept[{handle, cameraId}] = std::move(found);
    return ORVEX_RET_SUCCESS;
}

int32_t FetchRecords(int32_t handle, const std::string& cameraId, uint32_t first, uint32_t capacity,
                     Single_Record_Info_t* out, uint32_t* delivered) {
    if (!CurrentSiteView().loggedIn(handle)) {
        return ORVEX_CORE_ERROR_NOT_LOGGED_IN;
    }
    if (capacity > 0 && out == nullptr) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    std::lock_guard<std::mutex> lock(TheSearches().mu);
    auto it = TheSearches().kept.find({handle, cameraId});
    if (it == TheSearches().kept.end()) {
        return ORVEX_CORE_ERROR_NOT_FOUND;
    }
    const std::vector<Single_Record_Info_t>& found = it->second;
    uint32_t n = 0;
    for (std::size_t i = first; i < found.size() && n < capacity; ++i, ++n) {
        out[n] = found[i];
    }
    *delivered = n;
    return ORVEX_RET_SUCCESS;
}

void ForgetRecordSearches(int32_t handle) {
    std::lock_guard<std::mutex> lock(TheSearches().mu);
    auto& kept = TheSearches().kept;
    for (auto it = kept.begin(); it != kept.end();) {
        it = it->first.first == handle ? kept.erase(it) : std::next(it);
    }
}

}  // namespace orvexsim::platform
