// The media engine of the simulated platform: live, playback and talk streams that deliver
// real frames from threads of their own, talk audio received through the library's entry
// point, and broadcasts. It learns about the site only through CurrentSiteView().
//
// Threads: every stream has one thread, which alone calls the stream's media callback; no
// callback runs on a thread that called into the engine. Closing a stream, and the end of its
// instance, stop its frames before they return (a stream closed from its own callback stops
// after that callback returns).
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

#include "ORVEX_Core.h"
#include "media_audio.h"

namespace orvexsim::platform {

// Video frames: one JPEG every 100 ms (see media_picture.h for size and contents).
constexpr int kVideoFramesPerSecond = 10;
// Talk audio: one block of 40 ms (320 samples) at a time.
constexpr int kTalkBlocksPerSecond = 25;

// Media callback arguments: nMediaType is ORVEX_CORE_MEDIATYPE_VIDEO with nParamVal
// ORVEX_CORE_VIDEOCODEC_JPEG for a picture, ORVEX_CORE_MEDIATYPE_AUDIO with nParamVal
// Talk_Coding_G711a for a framed audio block (media_audio.h); szNodeId is the camera.
struct MediaSink {
    pfnMediaDataCallback fn = nullptr;
    void* user = nullptr;
};

enum class StreamKind { Live, Playback, Talk };

struct LiveRequest {
    std::string cameraId;
    int32_t mediaType = ORVEX_CORE_MEDIATYPE_VIDEO;  // AUDIO: sound only; ALL: both
    bool preview = false;
};

struct PlaybackRequest {
    std::string cameraId;
    uint64_t begin = 0;  // record times (seconds, see media_records.h)
    uint64_t end = 0;
    bool byFile = false;
    uint32_t fileIndex = 0;
};

// Each opener writes the new stream's sequence number (unique in the process) and returns 0,
// or returns the library's code: NOT_LOGGED_IN, CHANNEL_NOT_FOUND, DEVICE_OFFLINE (live and
// talk), NOT_FOUND (no recording to play), INVALID_PARAM (no sequence output or callback).
int32_t OpenLiveStream(int32_t handle, const LiveRequest& request, MediaSink sink, int32_t* seq);
int32_t OpenPlaybackStream(int32_t handle, const PlaybackRequest& request, MediaSink sink,
                           int32_t* seq);
// A talk session's thread runs `announce` (if any) once, before its first block: where the
// platform tells the client the audio parameters of the session.
int32_t OpenTalkStream(int32_t handle, const std::string& cameraId, MediaSink sink, int32_t* seq,
                       std::function<void()> announce = nullptr);

// Playback control; SEQ_NOT_FOUND unless `seq` is an open playback stream of `handle`.
// Speeds are orvex_playback_speed_e values (8 is normal); seek positions are record times,
// an `end` of 0 keeps the current end.
int32_t PausePlayback(int32_t handle, int32_t seq);
int32_t ResumePlayback(int32_t handle, int32_t seq);
int32_t SetPlaybackSpeed(int32_t handle, int32_t seq, int32_t speed);
int32_t SeekPlayback(int32_t handle, int32_t seq, uint64_t begin, uint64_t end);

// SEQ_NOT_FOUND unless a stream of that kind and instance is open (by camera: at least one).
int32_t CloseStream(StreamKind kind, int32_t handle, int32_t seq);
int32_t CloseStreamsOfCamera(StreamKind kind, int32_t handle, const std::string& cameraId);

int32_t StartBroadcast(int32_t handle, int32_t* seq);
int32_t CloseBroadcast(int32_t handle, int32_t seq);

// The address under which the platform would publish the camera's live stream.
int32_t ExternalStreamUrl(int32_t handle, const std::string& cameraId, int32_t streamType,
                          std::string* url);

// A block handed to the talk entry point: validated and decoded, then counted.
void ReceiveTalkFrame(const uint8_t* frame, std::size_t length);
TalkReception TalkReceived();

// Stops every stream and broadcast of the instance and forgets its record searches.
// Subscribed to OnInstanceEnded.
void EndInstanceMedia(int32_t handle);

std::size_t OpenStreamCount();

}  // namespace orvexsim::platform
