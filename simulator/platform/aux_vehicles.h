// Doors, link resources, NVR channel states, GPS positions, vehicle bays and people counting of
// the simulated platform.
//
// Door commands change the door's state and every logged-in instance hears it through its
// door-status callback. The link-resource and GPS texts are XML, counted (terminator included)
// by one call and fetched by the next. Bay subscriptions report a vehicle record per subscribed
// camera every kBayPeriod while the session lasts. People-count queries are kept under a
// sequence number until stopped.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>

#include "ORVEX_Core_Define.h"

namespace orvexsim::platform {

constexpr std::chrono::milliseconds kBayFirst{300};
constexpr std::chrono::milliseconds kBayPeriod{3000};
// Subscription flags of SubscribeBayCarInfo.
constexpr int32_t kBayCancel = 0;
constexpr int32_t kBaySubscribe = 1;
// Granularity codes of QueryPersonCount: the samples as counted, per hour, per day.
enum PersonCountGranularity : int32_t { kPerSample = 0, kPerHour = 1, kPerDay = 2 };
// People-count queries one instance may keep open.
constexpr std::size_t kMaxPersonQueries = 16;

int32_t SetDoorCmd(int32_t handle, const SetDoorCmd_Request_t* request);
int32_t QueryLinkResource(int32_t handle, uint32_t* length);
int32_t GetLinkResource(int32_t handle, GetLinkResource_Responce_t* response);
int32_t QueryNVRChnlStatus(int32_t handle, const char* deviceId);

int32_t AskForLastGpsStatusXMLStrCount(int32_t handle, int32_t* length);
int32_t AskForLastGpsStatusXMLStr(int32_t handle, char* buffer, int32_t length);

int32_t SubscribeBayCarInfo(int32_t handle, const Subscribe_Bay_Car_Info_t* info);

int32_t QueryPersonCount(int32_t handle, const char* cameraId, uint32_t* querySeq,
                         uint32_t* totalCount, uint32_t startTime, uint32_t endTime,
                         int32_t granularity);
int32_t QueryPersonCountBypage(int32_t handle, const char* cameraId, uint32_t querySeq,
                               uint32_t index, uint32_t count, Person_Count_Info_t* rows);
int32_t StopQueryPersonCount(int32_t handle, const char* cameraId, uint32_t querySeq);

}  // namespace orvexsim::platform
