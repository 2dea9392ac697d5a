// Auxiliary services of the simulated platform: JSON commands to the central (CMS) and device
// (DMS) management modules, general JSON messages, short messages, video sharing between users
// and on-screen texts.
//
// JSON commands are objects with a "cmd" text; every answer is an object carrying "cmd",
// "result" (0 or a result code) and, on failure, "error":
//   CMS: {"cmd":"ping"}, {"cmd":"listDevices"}, {"cmd":"getDevice","id":"<device>"},
//        {"cmd":"getWall","id":<wall>}, {"cmd":"getDoor","id":"<door>"},
//        {"cmd":"getBurner","device":"<device>"}, {"cmd":"getOsd","id":"<device or channel>"},
//        {"cmd":"listScsMessages","group":"<department coding>"}
//   DMS (for the camera the call names): {"cmd":"ping"}, {"cmd":"getChannel"}, {"cmd":"getOsd"}
// A text that is not such an object is answered with result 1009, an unknown command with 1016.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "ORVEX_Core_Define.h"

namespace orvexsim::platform {

// The library is not told the size of a command's answer buffer: the platform's answers, with
// their terminator, never exceed this many bytes, and callers must offer at least as much.
constexpr std::size_t kJsonAnswerCapacity = 4096;
// Short messages kept on the platform, and the longest accepted.
constexpr std::size_t kKeptScsMessages = 100;
constexpr std::size_t kMaxScsText = 1024;

// The answer goes into `answer`, at most `capacity` bytes with its terminator; an answer that
// would not fit is replaced by an error answer (result 1015), or by an empty text.
int32_t SendCammandToCMSByJson(int32_t handle, const char* json, char* answer,
                               std::size_t capacity);
int32_t SendCammandToDMSByJson(int32_t handle, const char* json, const char* cameraId, char* answer,
                               std::size_t capacity);
// Requests to the CMS or DMS module (DMS commands name their camera in "camera") are answered
// through the instance's general JSON callback, with "module" and "tranType" 1 added; other
// modules answer "ping" only. Notifications and responses are taken without an answer.
int32_t GeneralJsonTransport(int32_t handle, const char* json, int32_t module, int32_t tranType);
// Groups of the short-message service are the departments.
int32_t SendScsMsg(int32_t handle, const char* groupId, const char* text);
// Every other logged-in instance of a listed user receives the records through its share-video
// callback, with the sender's user identifier and name.
int32_t ShareVideo(int32_t handle, const ShareVideoInfo* videos, int32_t videoCount,
                   const int32_t* userIds, int32_t userCount, const char* message);
// Remembers the text for the device or channel; an empty text removes it.
int32_t SendOSDInfo(int32_t handle, const Send_OSDInfo_t* info);

}  // namespace orvexsim::platform
