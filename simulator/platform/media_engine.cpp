#include "media_engine.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <condition_variable>
#include <cstdlib>
#include <map>
#include <memory>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include "ORVEX_Core_Error.h"
#include "media_picture.h"
#include "media_records.h"
#include "site_view.h"

namespace orvexsim::platform {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int kNormalSpeed = ORVEX_CORE_PB_NORMAL;
constexpr uint64_t kVideoTickMs = 1000 / kVideoFramesPerSecond;
constexpr std::size_t kTalkBlockSamples = kTalkSampleRate / kTalkBlocksPerSecond;
// Sound along a live stream: one block per video frame.
constexpr std::size_t kLiveAudioSamples = kTalkSampleRate / kVideoFramesPerSecond;

struct Stream {
    StreamKind kind = StreamKind::Live;
    int32_t handle = 0;
    int32_t seq = 0;
    std::string cameraId;
    MediaSink sink;
    bool video = true;
    bool audio = false;
    bool preview = false;
    std::function<void()> announce;  // talk: run once before the first block

    std::mutex mu;
    std::condition_variable wake;
    bool stop = false;  // guarded by mu
    // Playback position, guarded by mu; times in milliseconds.
    bool paused = false;
    int32_t speed = kNormalSpeed;
    uint64_t posMs = 0;
    uint64_t endMs = 0;
    std::vector<RecordingSpan> spans;  // in time order

    std::thread thread;
};

struct Registry {
    std::mutex mu;
    std::map<int32_t, std::shared_ptr<Stream>> streams;
    std::map<int32_t, int32_t> broadcasts;  // seq -> handle
    int32_t lastSeq = 0;
    TalkReception talk;
};

Registry& TheRegistry() {
    // Never destroyed: stream threads may still run while the process exits.
    static Registry* registry = [] {
        OnInstanceEnded(EndInstanceMedia);
        return new Registry;
    }();
    return *registry;
}

int32_t NextSeq(Registry& r) {
    r.lastSeq = r.lastSeq == INT32_MAX ? 1 : r.lastSeq + 1;
    return r.lastSeq;
}

uint64_t WallClockMs() {
    return static_cast<uint64_t>(std::chrono::duration_cast<std::chrono::milliseconds>(
                                     std::chrono::system_clock::now().time_since_epoch())
                                     .count());
}

// Where playback stands now: the position, moved to the start of the next recording when it
// lies in a gap. False once past the last recording or the end of the requested span.
bool PlayablePosition(Stream& s, uint64_t* at) {
    for (const RecordingSpan& span : s.spans) {
        if (s.posMs <= span.end * kMsPerRecordTime) {
            *at = std::max(s.posMs, span.begin * kMsPerRecordTime);
            return *at <= s.endMs;
        }
    }
    return false;
}

std::string SpeedLabel(int32_t speed) {
    return speed >= kNormalSpeed ? std::to_string(speed / kNormalSpeed) + "X"
                                 : "1/" + std::to_string(kNormalSpeed / speed) + "X";
}

// One stream's thread: waits for each tick, makes the tick's frames once and hands them to the
// stream's callback.
class Producer {
  public:
    explicit Producer(std::shared_ptr<Stream> s) : s_(std::move(s)) {}

    void run() {
        const auto interval = std::chrono::milliseconds(
            s_->kind == StreamKind::Talk ? 1000 / kTalkBlocksPerSecond : kVideoTickMs);
        auto next = Clock::now() + interval;
        for (;;) {
            {
                std::unique_lock<std::mutex> lock(s_->mu);
                if (s_->wake.wait_until(lock, next, [&] { return s_->stop; })) {
                    return;
                }
            }
            tick();
            next += interval;
            const auto now = Clock::now();
            if (next < now) {  // fell behind (a slow listener): skip, never burst
                next = now + interval;
            }
        }
    }

  private:
    void tick() {
        if (s_->kind == StreamKind::Talk) {
            if (s_->announce) {
                std::exchange(s_->announce, nullptr)();
            }
            deliverSound(kTalkBlockSamples);
            return;
        }
        FrameFacts facts;
        if (!frameFacts(&facts)) {
            return;
        }
        if (s_->video) {
            const std::vector<uint8_t>& jpeg = pictures_.encode(facts);
            if (!jpeg.empty()) {
                deliver(ORVEX_CORE_MEDIATYPE_VIDEO, ORVEX_CORE_VIDEOCODEC_JPEG, jpeg);
            }
        }
        if (s_->audio) {
            deliverSound(kLiveAudioSamples);
        }
        ++frameNo_;
    }

    // What this tick's picture shows; false when playback has nothing to show now.
    bool frameFacts(FrameFacts* f) {
        f->cameraId = s_->cameraId;
        f->seq = s_->seq;
        f->frameNo = frameNo_;
        if (s_->kind == StreamKind::Live) {
            f->timeMs = WallClockMs();
            f->mode = s_->preview ? "PREVIEW" : "LIVE";
        } else {
            std::lock_guard<std::mutex> lock(s_->mu);
            uint64_t at = 0;
            if (s_->paused || !PlayablePosition(*s_, &at)) {
                return false;
            }
            f->timeMs = at;
            f->mode = "PLAYBACK " + SpeedLabel(s_->speed);
            s_->posMs = at + kVideoTickMs * static_cast<uint64_t>(s_->speed) / kNormalSpeed;
        }
        f->found = CurrentSiteView().camera(s_->handle, s_->cameraId, &f->look);
        return true;
    }

    void deliverSound(std::size_t samples) {
        deliver(ORVEX_CORE_MEDIATYPE_AUDIO, Talk_Coding_G711a, BuildTalkFrame(tone_.next(samples)));
    }

    void deliver(int32_t mediaType, int32_t param, const std::vector<uint8_t>& data) {
        // The buffer is only lent for the call, as the callback's contract says.
        s_->sink.fn(s_->handle, s_->seq, mediaType, s_->cameraId.c_str(), param,
                    reinterpret_cast<char*>(const_cast<uint8_t*>(data.data())),
                    static_cast<int32_t>(data.size()), s_->sink.user);
    }

    std::shared_ptr<Stream> s_;
    PictureEncoder pictures_;
    Tone tone_;
    uint64_t frameNo_ = 0;
};

// Registers the stream under a new sequence number and starts its thread.
int32_t Start(std::shared_ptr<Stream> s, int32_t* seq) {
    Registry& r = TheRegistry();
    std::lock_guard<std::mutex> lock(r.mu);
    s->seq = NextSeq(r);
    try {
        s->thread = std::thread([s] { Producer(s).run(); });
    } catch (const std::system_error&) {
        // Out of threads: refuse the stream rather than let the error cross the C interface.
        return ORVEX_CORE_ERROR_GET_MEMORY_FAIL;
    }
    r.streams[s->seq] = s;
    *seq = s->seq;
    return ORVEX_RET_SUCCESS;
}

// Stops a stream that is no longer registered. Its thread is joined, so that no frame follows;
// from the stream's own callback it cannot be, and the thread ends after that callback.
void Stop(const std::shared_ptr<Stream>& s) {
    {
        std::lock_guard<std::mutex> lock(s->mu);
        s->stop = true;
    }
    s->wake.notify_all();
    if (s->thread.get_id() == std::this_thread::get_id()) {
        s->thread.detach();
    } else if (s->thread.joinable()) {
        s->thread.join();
    }
}

std::shared_ptr<Stream> Find(StreamKind kind, int32_t handle, int32_t seq) {
    Registry& r = TheRegistry();
    std::lock_guard<std::mutex> lock(r.mu);
    auto it = r.streams.find(seq);
    if (it == r.streams.end() || it->second->kind != kind || it->second->handle != handle) {
        return nullptr;
    }
    return it->second;
}

// Removes the matching streams from the registry, then stops them outside its lock.
template <typename Match>
std::size_t StopWhere(Match match) {
    std::vector<std::shared_ptr<Stream>> ending;
    {
        Registry& r = TheRegistry();
        std::lock_guard<std::mutex> lock(r.mu);
        for (auto it = r.streams.begin(); it != r.streams.end();) {
            if (match(*it->second)) {
                ending.push_back(it->second);
                it = r.streams.erase(it);
            } else {
                ++it;
            }
        }
    }
    for (const auto& s : ending) {
        Stop(s);
    }
    return ending.size();
}

std::shared_ptr<Stream> NewStream(StreamKind kind, int32_t handle, const std::string& cameraId,
                                  MediaSink sink) {
    auto s = std::make_shared<Stream>();
    s->kind = kind;
    s->handle = handle;
    s->cameraId = cameraId;
    s->sink = sink;
    return s;
}

// Runs `change` on the playback stream's position under its lock.
template <typename Change>
int32_t WithPlayback(int32_t handle, int32_t seq, Change change) {
    const std::shared_ptr<Stream> s = Find(StreamKind::Playback, handle, seq);
    if (!s) {
        return ORVEX_CORE_ERROR_SEQ_NOT_FOUND;
    }
    std::lock_guard<std::mutex> lock(s->mu);
    return change(*s);
}

}  // namespace

int32_t OpenLiveStream(int32_t handle, const LiveRequest& request, MediaSink sink, int32_t* seq) {
    CameraLook look;
    if (const int32_t rc = CheckCamera(handle, request.cameraId, &look); rc != 0) {
        return rc;
    }
    if (!look.online) {
        return ORVEX_CORE_ERROR_DEVICE_OFFLINE;
    }
    if (seq == nullptr || sink.fn == nullptr) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    auto s = NewStream(StreamKind::Live, handle, request.cameraId, sink);
    s->video = request.mediaType != ORVEX_CORE_MEDIATYPE_AUDIO;
    s->audio = request.mediaType == ORVEX_CORE_MEDIATYPE_AUDIO ||
               request.mediaType == ORVEX_CORE_MEDIATYPE_ALL;
    s->preview = request.preview;
    return Start(std::move(s), seq);
}

int32_t OpenPlaybackStream(int32_t handle, const PlaybackRequest& request, MediaSink sink,
                           int32_t* seq) {
    CameraLook look;
    if (const int32_t rc = CheckCamera(handle, request.cameraId, &look); rc != 0) {
        return rc;
    }
    if (seq == nullptr || sink.fn == nullptr || (!request.byFile && request.end < request.begin)) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    std::vector<RecordingSpan> all = AllRecordings(handle, request.cameraId);
    auto s = NewStream(StreamKind::Playback, handle, request.cameraId, sink);
    uint64_t begin = request.begin;
    uint64_t end = request.end;
    if (request.byFile) {
        if (request.fileIndex >= all.size()) {
            return ORVEX_CORE_ERROR_NOT_FOUND;
        }
        const RecordingSpan file = all[request.fileIndex];
        // A span inside the file narrows it; anything else plays the whole file.
        const bool inside = file.begin <= begin && begin <= file.end;
        begin = inside ? begin : file.begin;
        end = inside && begin < end && end <= file.end ? end : file.end;
        s->spans = {file};
    } else {
        std::sort(all.begin(), all.end(),
                  [](const RecordingSpan& a, const RecordingSpan& b) { return a.begin < b.begin; });
        s->spans = std::move(all);
    }
    s->posMs = begin * kMsPerRecordTime;
    s->endMs = end * kMsPerRecordTime;
    uint64_t at = 0;
    if (!PlayablePosition(*s, &at)) {
        return ORVEX_CORE_ERROR_NOT_FOUND;
    }
    return Start(std::move(s), seq);
}

int32_t OpenTalkStream(int32_t handle, const std::string& cameraId, MediaSink sink, int32_t* seq,
                       std::function<void()> announce) {
    CameraLook look;
    if (const int32_t rc = CheckCamera(handle, cameraId, &look); rc != 0) {
        return rc;
    }
    if (!look.online) {
        return ORVEX_CORE_ERROR_DEVICE_OFFLINE;
    }
    if (seq == nullptr || sink.fn == nullptr) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    auto s = NewStream(StreamKind::Talk, handle, cameraId, sink);
    s->announce = std::move(announce);
    return Start(std::move(s), seq);
}

int32_t PausePlayback(int32_t handle, int32_t seq) {
    return WithPlayback(handle, seq, [](Stream& s) {
        s.paused = true;
        return ORVEX_RET_SUCCESS;
    });
}

int32_t ResumePlayback(int32_t handle, int32_t seq) {
    return WithPlayback(handle, seq, [](Stream& s) {
        s.paused = false;
        return ORVEX_RET_SUCCESS;
    });
}

int32_t SetPlaybackSpeed(int32_t handle, int32_t seq, int32_t speed) {
    return WithPlayback(handle, seq, [speed](Stream& s) {
        // A power of two from 1/8 to 16 times normal.
        if (speed < ORVEX_CORE_PB_SLOW8 || speed > ORVEX_CORE_PB_FAST16 ||
            (speed & (speed - 1)) != 0) {
            return static_cast<int32_t>(ORVEX_CORE_ERROR_INVALID_PARAM);
        }
        s.speed = speed;
        return static_cast<int32_t>(ORVEX_RET_SUCCESS);
    });
}

int32_t SeekPlayback(int32_t handle, int32_t seq, uint64_t begin, uint64_t end) {
    return WithPlayback(handle, seq, [begin, end](Stream& s) {
        if (end != 0 && end < begin) {
            return static_cast<int32_t>(ORVEX_CORE_ERROR_INVALID_PARAM);
        }
        s.posMs = begin * kMsPerRecordTime;
        if (end != 0) {
            s.endMs = end * kMsPerRecordTime;
        }
        return static_cast<int32_t>(ORVEX_RET_SUCCESS);
    });
}

int32_t CloseStream(StreamKind kind, int32_t handle, int32_t seq) {
    const std::size_t closed = StopWhere(
        [&](const Stream& s) { return s.kind == kind && s.handle == handle && s.seq == seq; });
    return closed > 0 ? ORVEX_RET_SUCCESS : ORVEX_CORE_ERROR_SEQ_NOT_FOUND;
}

int32_t CloseStreamsOfCamera(StreamKind kind, int32_t handle, const std::string& cameraId) {
    const std::size_t closed = StopWhere([&](const Stream& s) {
        return s.kind == kind && s.handle == handle && s.cameraId == cameraId;
    });
    return closed > 0 ? ORVEX_RET_SUCCESS : ORVEX_CORE_ERROR_SEQ_NOT_FOUND;
}

int32_t StartBroadcast(int32_t handle, int32_t* seq) {
    if (!CurrentSiteView().loggedIn(handle)) {
        return ORVEX_CORE_ERROR_NOT_LOGGED_IN;
    }
    if (seq == nullptr) {
        return ORVEX_CORE_ERROR_INVALID_PARAM;
    }
    Registry& r = TheRegistry();
    std::lock_guard<std::mutex> lock(r.mu);
    *seq = NextSeq(r);
    r.broadcasts[*seq] = handle;
    return ORVEX_RET_SUCCESS;
}

int32_t CloseBroadcast(int32_t handle, int32_t seq) {
    Registry& r = TheRegistry();
    std::lock_guard<std::mutex> lock(r.mu);
    auto it = r.broadcasts.find(seq);
    if (it == r.broadcasts.end() || it->second != handle) {
        return ORVEX_CORE_ERROR_SEQ_NOT_FOUND;
    }
    r.broadcasts.erase(it);
    return ORVEX_RET_SUCCESS;
}

int32_t ExternalStreamUrl(int32_t handle, const std::string& cameraId, int32_t streamType,
                          std::string* url) {
    CameraLook look;
    if (const int32_t rc = CheckCamera(handle, cameraId, &look); rc != 0) {
        return rc;
    }
    *url = "rtsp://127.0.0.1:554/orvexsim/live/" + cameraId +
           (streamType == ORVEX_CORE_STREAMTYPE_SUB ? "/sub" : "/main");
    return ORVEX_RET_SUCCESS;
}

void ReceiveTalkFrame(const uint8_t* frame, std::size_t length) {
    std::vector<int16_t> samples;
    std::string why;
    const bool wellFormed = ParseTalkFrame(frame, length, &samples, &why);
    Registry& r = TheRegistry();
    std::lock_guard<std::mutex> lock(r.mu);
    const bool talking = std::any_of(r.streams.begin(), r.streams.end(), [](const auto& e) {
        return e.second->kind == StreamKind::Talk;
    });
    TalkReception& t = r.talk;
    if (!wellFormed || !talking) {
        ++t.rejected;
        t.lastRejection = wellFormed ? "no talk session is open" : why;
        return;
    }
    ++t.accepted;
    t.samples += samples.size();
    double sum = 0;
    for (int16_t v : samples) {
        t.peak = std::max(t.peak, std::abs(static_cast<int32_t>(v)));
        sum += static_cast<double>(v) * v;
    }
    t.lastRms = samples.empty() ? 0 : std::sqrt(sum / static_cast<double>(samples.size()));
}

TalkReception TalkReceived() {
    Registry& r = TheRegistry();
    std::lock_guard<std::mutex> lock(r.mu);
    return r.talk;
}

void EndInstanceMedia(int32_t handle) {
    StopWhere([handle](const Stream& s) { return s.handle == handle; });
    {
        Registry& r = TheRegistry();
        std::lock_guard<std::mutex> lock(r.mu);
        for (auto it = r.broadcasts.begin(); it != r.broadcasts.end();) {
            it = it->second == handle ? r.broadcasts.erase(it) : std::next(it);
        }
    }
    ForgetRecordSearches(handle);
}

std::size_t OpenStreamCount() {
    Registry& r = TheRegistry();
    std::lock_guard<std::mutex> lock(r.mu);
    return r.streams.size();
}

}  // namespace orvexsim::platform
