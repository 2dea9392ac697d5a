// Record search of the simulated platform: a query keeps its result per instance and camera,
// and reads page through it, as the client library does.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "ORVEX_Core_Define.h"
#include "site_view.h"

namespace orvexsim::platform {

// Record times (queries, records, playback requests, seeks) are seconds since 1970-01-01 UTC;
// frames carry milliseconds.
constexpr uint64_t kMsPerRecordTime = 1000;

// Size the simulated recorder reports for a recording: 64 KiB per second.
constexpr uint64_t kRecordBytesPerSecond = 64 * 1024;

// Runs a search and keeps its result for (handle, cameraId), replacing the previous one.
// recordType 0 (unknown) finds every type; any other value only recordings of that type.
// Records report `source`, or the platform when ALL was asked for.
int32_t QueryRecords(int32_t handle, const std::string& cameraId, uint64_t begin, uint64_t end,
                     int32_t recordType, int32_t source, int32_t* count);

// Copies up to `capacity` records of the kept result, starting at index `first`, into `out`
// and sets `delivered`. ORVEX_CORE_ERROR_NOT_FOUND when no search was made for the camera.
int32_t FetchRecords(int32_t handle, const std::string& cameraId, uint32_t first, uint32_t capacity,
                     Single_Record_Info_t* out, uint32_t* delivered);

// A record's nFileIndex is its position among all of the camera's recordings.
std::vector<RecordingSpan> AllRecordings(int32_t handle, const std::string& cameraId);

void ForgetRecordSearches(int32_t handle);

// The instance and camera checks every media request starts with: NOT_LOGGED_IN,
// CHANNEL_NOT_FOUND, or 0 with the camera's look.
int32_t CheckCamera(int32_t handle, const std::string& cameraId, CameraLook* look);

}  // namespace orvexsim::platform
