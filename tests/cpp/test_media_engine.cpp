// The media engine of the simulated platform, against a fake site: real JPEG frames at the
// documented size, pictures that follow time and PTZ, playback control in the frames' times,
// talk audio both ways, and streams that stop when closed or when their instance ends.
#include <gtest/gtest.h>
#include <turbojpeg.h>

#include <atomic>
#include <chrono>
#include <cmath>
#include <condition_variable>
#include <cstring>
#include <map>
#include <mutex>
#include <set>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "Alaw_encoder.h"
#include "ORVEX_Core.h"
#include "ORVEX_Core_Error.h"
#include "platform/media_engine.h"
#include "platform/media_picture.h"
#include "platform/media_records.h"
#include "platform/site_model.h"
#include "platform/site_view.h"
#include "sim_control.h"

namespace {

using namespace orvexsim::platform;
using namespace std::chrono_literals;

constexpr int32_t kHandle = 7;
constexpr int32_t kOtherHandle = 8;
constexpr uint64_t kT0 = 1764000000;  // a record time (seconds)

// A site the tests change at will; the engine reads it through the seam as it would the model.
struct FakeSite {
    std::mutex mu;
    std::set<int32_t> loggedIn{kHandle, kOtherHandle};
    std::map<std::string, CameraLook> cameras;
    std::map<std::string, std::vector<RecordingSpan>> recordings;

    void install() {
        SiteView view;
        view.loggedIn = [this](int32_t h) {
            std::lock_guard<std::mutex> lock(mu);
            return loggedIn.count(h) > 0;
        };
        view.camera = [this](int32_t, const std::string& id, CameraLook* look) {
            std::lock_guard<std::mutex> lock(mu);
            auto it = cameras.find(id);
            if (it == cameras.end()) {
                return false;
            }
            *look = it->second;
            return true;
        };
        view.recordings = [this](int32_t, const std::string& id, uint64_t begin, uint64_t end) {
            std::lock_guard<std::mutex> lock(mu);
            std::vector<RecordingSpan> out;
            for (const RecordingSpan& r : recordings[id]) {
                if (r.end >= begin && r.begin <= end) {
                    out.push_back(r);
                }
            }
            return out;
        };
        InstallSiteView(view);
    }
    void setPan(const std::string& id, int32_t pan) {
        std::lock_guard<std::mutex> lock(mu);
        cameras[id].pan = pan;
    }
};

struct Frame {
    int32_t handle = 0;
    int32_t seq = 0;
    int32_t type = 0;
    int32_t param = 0;
    std::string node;
    std::vector<uint8_t> data;
    std::thread::id thread;
};

// Collects what a stream delivers; tells the test when enough has arrived.
struct Collector {
    std::mutex mu;
    std::condition_variable arrived;
    std::vector<Frame> frames;
    std::function<void(const Frame&)> onFrame;

    static int32_t Callback(int32_t h, int32_t seq, int32_t type, const char* node, int32_t param,
                            char* data, int32_t len, void* user) {
        auto* c = static_cast<Collector*>(user);
        Frame f{h,
                seq,
                type,
                param,
                node,
                std::vector<uint8_t>(data, data + len),
                std::this_thread::get_id()};
        if (c->onFrame) {
            c->onFrame(f);
        }
        std::lock_guard<std::mutex> lock(c->mu);
        c->frames.push_back(std::move(f));
        c->arrived.notify_all();
        return 0;
    }
    MediaSink sink() { return {&Callback, this}; }
    std::size_t count() {
        std::lock_guard<std::mutex> lock(mu);
        return frames.size();
    }
    // The first `n` frames of `type`; fails the test if they take too long.
    std::vector<Frame> await(std::size_t n, int32_t type = ORVEX_CORE_MEDIATYPE_VIDEO) {
        std::unique_lock<std::mutex> lock(mu);
        std::vector<Frame> found;
        const bool ok = arrived.wait_for(lock, 5s, [&] {
            found.clear();
            for (const Frame& f : frames) {
                if (f.type == type) {
                    found.push_back(f);
                }
            }
            return found.size() >= n;
        });
        EXPECT_TRUE(ok) << "only " << found.size() << " of " << n << " frames arrived";
        found.resize(std::min(found.size(), n));
        return found;
    }
    void clear() {
        std::lock_guard<std::mutex> lock(mu);
        frames.clear();
    }
};

// The key=value facts of a frame's comment segment.
std::map<std::string, std::string> Facts(const std::vector<uint8_t>& jpeg) {
    std::map<std::string, std::string> facts;
    if (jpeg.size() < 6 || jpeg[2] != 0xFF || jpeg[3] != 0xFE) {
        return facts;
    }
    const std::size_t len = (jpeg[4] << 8) | jpeg[5];
    const std::string text(jpeg.begin() + 6, jpeg.begin() + 4 + static_cast<long>(len));
    const std::size_t camera = text.find(" camera=");
    if (camera == std::string::npos) {
        return facts;
    }
    facts["camera"] = text.substr(camera + 8);
    std::istringstream head(text.substr(0, camera));
    std::string token;
    head >> facts["tag"];
    while (head >> token) {
        const std::size_t eq = token.find('=');
        facts[token.substr(0, eq)] = eq == std::string::npos ? "" : token.substr(eq + 1);
    }
    return facts;
}

uint64_t TimeMs(const Frame& f) {
    return std::stoull(Facts(f.data)["time_ms"]);
}

struct Decoded {
    int width = 0;
    int height = 0;
    std::vector<uint8_t> rgb;
};

Decoded Decode(const std::vector<uint8_t>& jpeg) {
    Decoded d;
    tjhandle tj = tjInitDecompress();
    int subsamp = 0;
    int colorspace = 0;
    if (tjDecompressHeader3(tj, jpeg.data(), jpeg.size(), &d.width, &d.height, &subsamp,
                            &colorspace) == 0) {
        d.rgb.resize(static_cast<std::size_t>(d.width) * d.height * 3);
        if (tjDecompress2(tj, jpeg.data(), jpeg.size(), d.rgb.data(), d.width, 0, d.height,
                          TJPF_RGB, 0) != 0) {
            d.rgb.clear();
        }
    }
    tjDestroy(tj);
    return d;
}

// Mean absolute difference of two pictures over the rows between the text lines.
double MiddleDifference(const Decoded& a, const Decoded& b) {
    const int y0 = 60;
    const int y1 = kFrameHeight - 60;
    double sum = 0;
    for (int y = y0; y < y1; ++y) {
        for (int x = 0; x < kFrameWidth * 3; ++x) {
            const std::size_t i = static_cast<std::size_t>(y) * kFrameWidth * 3 + x;
            sum += std::abs(static_cast<int>(a.rgb[i]) - static_cast<int>(b.rgb[i]));
        }
    }
    return sum / ((y1 - y0) * kFrameWidth * 3.0);
}

class MediaEngine : public ::testing::Test {
  protected:
    void SetUp() override {
        site.cameras["cam-1"] = CameraLook{"Gate North", 30, -5, 1, true};
        site.cameras["cam-2"] = CameraLook{"Yard", 200, 10, 2, true};
        site.cameras["cam-off"] = CameraLook{"Cellar", 0, 0, 1, false};
        site.recordings["cam-1"] = {{kT0, kT0 + 600, ORVEX_CORE_PB_RECORD_TIMER, "a.mp4"},
                                    {kT0 + 1000, kT0 + 1600, ORVEX_CORE_PB_RECORD_ALARM, "b.mp4"},
                                    {kT0 + 2000, kT0 + 2060, ORVEX_CORE_PB_RECORD_TIMER, "c.mp4"}};
        // The site model's view comes back for the tests that follow.
        SiteReady();
        modelView = CurrentSiteView();
        site.install();
    }
    void TearDown() override {
        NotifyInstanceEnded(kHandle);
        NotifyInstanceEnded(kOtherHandle);
        EXPECT_EQ(0u, OpenStreamCount());
        InstallSiteView(modelView);
    }
    int32_t openLive(Collector& c, const std::string& camera = "cam-1", int32_t handle = kHandle) {
        int32_t seq = -1;
        EXPECT_EQ(
            0, OpenLiveStream(handle, {camera, ORVEX_CORE_MEDIATYPE_VIDEO, false}, c.sink(), &seq));
        return seq;
    }
    int32_t openPlayback(Collector& c, uint64_t begin, uint64_t end) {
        PlaybackRequest request;
        request.cameraId = "cam-1";
        request.begin = begin;
        request.end = end;
        int32_t seq = -1;
        EXPECT_EQ(0, OpenPlaybackStream(kHandle, request, c.sink(), &seq));
        return seq;
    }
    FakeSite site;
    SiteView modelView;
};

TEST_F(MediaEngine, LiveFrameIsAJpegOfTheDocumentedSizeFromALibraryThread) {
    Collector c;
    const int32_t seq = openLive(c);
    const Frame f = c.await(1).at(0);

    EXPECT_EQ(kHandle, f.handle);
    EXPECT_EQ(seq, f.seq);
    EXPECT_EQ(ORVEX_CORE_VIDEOCODEC_JPEG, f.param);
    EXPECT_EQ("cam-1", f.node);
    EXPECT_NE(std::this_thread::get_id(), f.thread);
    const Decoded d = Decode(f.data);
    EXPECT_EQ(kFrameWidth, d.width);
    EXPECT_EQ(kFrameHeight, d.height);
    EXPECT_FALSE(d.rgb.empty());
    auto facts = Facts(f.data);
    EXPECT_EQ("ORVEXSIM1", facts["tag"]);
    EXPECT_EQ("cam-1", facts["camera"]);
    EXPECT_EQ("30", facts["pan"]);
    EXPECT_EQ(std::to_string(seq), facts["seq"]);
}

TEST_F(MediaEngine, LiveFramesFollowTheClockAtTheFrameRate) {
    Collector c;
    openLive(c);
    const auto frames = c.await(6);
    ASSERT_EQ(6u, frames.size());
    const uint64_t span = TimeMs(frames[5]) - TimeMs(frames[0]);
    EXPECT_GE(span, 400u);  // 5 intervals of 100 ms, with room for a busy machine
    EXPECT_LE(span, 1500u);
    EXPECT_NE(frames[0].data, frames[5].data);
    EXPECT_EQ("5", Facts(frames[5].data)["frame"]);
}

TEST_F(MediaEngine, PictureFollowsPanTiltAndZoom) {
    PictureEncoder encoder;
    FrameFacts facts;
    facts.cameraId = "cam-1";
    facts.look = CameraLook{"Gate", 30, 0, 1, true};
    facts.timeMs = kT0 * 1000;
    const Decoded base = Decode(encoder.encode(facts));
    EXPECT_EQ(0.0, MiddleDifference(base, Decode(encoder.encode(facts))));

    struct Change {
        const char* what;
        int32_t CameraLook::*field;
        int32_t value;
    };
    for (const Change& change :
         {Change{"pan", &CameraLook::pan, 40}, Change{"tilt", &CameraLook::tilt, 8},
          Change{"zoom", &CameraLook::zoom, 3}}) {
        FrameFacts moved = facts;
        moved.look.*change.field = change.value;
        EXPECT_GT(MiddleDifference(base, Decode(encoder.encode(moved))), 10.0) << change.what;
    }
}

TEST_F(MediaEngine, PtzMoveShowsInTheNextLiveFrames) {
    Collector c;
    openLive(c);
    const Frame before = c.await(1).at(0);
    site.setPan("cam-1", 120);
    c.clear();
    const Frame after = c.await(2).at(1);  // the first may have been painted before the move
    EXPECT_EQ("120", Facts(after.data)["pan"]);
    EXPECT_GT(MiddleDifference(Decode(before.data), Decode(after.data)), 10.0);
}

TEST_F(MediaEngine, NothingArrivesAfterCloseReturned) {
    Collector c;
    const int32_t seq = openLive(c);
    c.await(2);
    EXPECT_EQ(ORVEX_CORE_ERROR_SEQ_NOT_FOUND, CloseStream(StreamKind::Playback, kHandle, seq));
    EXPECT_EQ(ORVEX_CORE_ERROR_SEQ_NOT_FOUND, CloseStream(StreamKind::Live, kOtherHandle, seq));
    EXPECT_EQ(0, CloseStream(StreamKind::Live, kHandle, seq));
    const std::size_t atClose = c.count();
    std::this_thread::sleep_for(350ms);
    EXPECT_EQ(atClose, c.count());
    EXPECT_EQ(ORVEX_CORE_ERROR_SEQ_NOT_FOUND, CloseStream(StreamKind::Live, kHandle, seq));
}

TEST_F(MediaEngine, AStreamClosedFromItsOwnCallbackStops) {
    Collector c;
    std::atomic<int32_t> closeResult{-1};
    c.onFrame = [&](const Frame& f) {
        if (closeResult.load() == -1) {
            closeResult = CloseStream(StreamKind::Live, f.handle, f.seq);
        }
    };
    openLive(c);
    c.await(1);
    std::this_thread::sleep_for(350ms);
    EXPECT_EQ(0, closeResult.load());
    EXPECT_EQ(1u, c.count());
}

TEST_F(MediaEngine, InstanceEndStopsAllItsStreamsAndOnlyThose) {
    Collector mine;
    Collector other;
    openLive(mine, "cam-1");
    openLive(mine, "cam-2");
    int32_t talk = 0;
    ASSERT_EQ(0, OpenTalkStream(kHandle, "cam-2", mine.sink(), &talk));
    openPlayback(mine, kT0, kT0 + 100);
    int32_t broadcast = 0;
    ASSERT_EQ(0, StartBroadcast(kHandle, &broadcast));
    openLive(other, "cam-1", kOtherHandle);
    mine.await(4);
    other.await(1);

    NotifyInstanceEnded(kHandle);
    const std::size_t atEnd = mine.count();
    EXPECT_EQ(1u, OpenStreamCount());
    EXPECT_EQ(ORVEX_CORE_ERROR_SEQ_NOT_FOUND, CloseBroadcast(kHandle, broadcast));
    other.clear();
    std::this_thread::sleep_for(350ms);
    EXPECT_EQ(atEnd, mine.count());
    EXPECT_GE(other.count(), 1u);
}

TEST_F(MediaEngine, PlaybackFramesCarryTheRecordingsTimeAndFollowSpeed) {
    Collector c;
    const int32_t seq = openPlayback(c, kT0 + 10, kT0 + 500);
    auto frames = c.await(3);
    EXPECT_EQ((kT0 + 10) * 1000, TimeMs(frames[0]));
    EXPECT_EQ(100u, TimeMs(frames[1]) - TimeMs(frames[0]));

    struct Case {
        int32_t speed;
        uint64_t stepMs;
    };
    for (const Case& k : {Case{ORVEX_CORE_PB_FAST4, 400}, Case{ORVEX_CORE_PB_SLOW2, 50},
                          Case{ORVEX_CORE_PB_NORMAL, 100}}) {
        ASSERT_EQ(0, SetPlaybackSpeed(kHandle, seq, k.speed));
        c.clear();
        frames = c.await(3);  // the first may have been timed before the change
        EXPECT_EQ(k.stepMs, TimeMs(frames[2]) - TimeMs(frames[1])) << k.speed;
    }
    for (int32_t bad : {0, 3, 256, -8}) {
        EXPECT_EQ(ORVEX_CORE_ERROR_INVALID_PARAM, SetPlaybackSpeed(kHandle, seq, bad)) << bad;
    }
}

TEST_F(MediaEngine, PausedPlaybackSendsNothingAndResumesWhereItStopped) {
    Collector c;
    const int32_t seq = openPlayback(c, kT0, kT0 + 500);
    c.await(2);
    ASSERT_EQ(0, PausePlayback(kHandle, seq));
    std::this_thread::sleep_for(150ms);  // a frame timed before the pause may still arrive
    const std::vector<Frame> beforePause = c.await(c.count());
    const uint64_t last = TimeMs(beforePause.back());
    std::this_thread::sleep_for(350ms);
    EXPECT_EQ(beforePause.size(), c.count());

    ASSERT_EQ(0, ResumePlayback(kHandle, seq));
    const auto resumed = c.await(beforePause.size() + 1);
    EXPECT_EQ(last + 100, TimeMs(resumed.back()));
}

TEST_F(MediaEngine, SeekMovesTheTimeAndSkipsGapsBetweenRecordings) {
    Collector c;
    const int32_t seq = openPlayback(c, kT0, kT0 + 3000);
    c.await(1);
    struct Case {
        uint64_t to;
        uint64_t expectedMs;
    };
    for (const Case& k : {Case{kT0 + 300, (kT0 + 300) * 1000},
                          Case{kT0 + 700, (kT0 + 1000) * 1000},  // gap: next recording
                          Case{kT0 + 50, (kT0 + 50) * 1000}}) {
        ASSERT_EQ(0, SeekPlayback(kHandle, seq, k.to, 0));
        c.clear();
        // The first frame may have been timed just before the seek; then the second is the
        // first after it.
        const auto frames = c.await(2);
        const uint64_t first =
            TimeMs(frames[0]) == k.expectedMs ? TimeMs(frames[0]) : TimeMs(frames[1]);
        EXPECT_EQ(k.expectedMs, first) << k.to;
    }
    // Past the last recording nothing is left to play.
    ASSERT_EQ(0, SeekPlayback(kHandle, seq, kT0 + 2900, 0));
    std::this_thread::sleep_for(150ms);
    c.clear();
    std::this_thread::sleep_for(300ms);
    EXPECT_EQ(0u, c.count());
    EXPECT_EQ(ORVEX_CORE_ERROR_INVALID_PARAM, SeekPlayback(kHandle, seq, kT0 + 10, kT0 + 5));
}

TEST_F(MediaEngine, PlaybackByFilePlaysThatRecording) {
    Collector c;
    PlaybackRequest request;
    request.cameraId = "cam-1";
    request.byFile = true;
    request.fileIndex = 1;
    int32_t seq = 0;
    ASSERT_EQ(0, OpenPlaybackStream(kHandle, request, c.sink(), &seq));
    EXPECT_EQ((kT0 + 1000) * 1000, TimeMs(c.await(1).at(0)));
    request.fileIndex = 3;
    EXPECT_EQ(ORVEX_CORE_ERROR_NOT_FOUND, OpenPlaybackStream(kHandle, request, c.sink(), &seq));
}

TEST_F(MediaEngine, RequestsNameTheirFaultWithTheLibrarysCodes) {
    Collector c;
    int32_t seq = 0;
    const LiveRequest live{"cam-1", ORVEX_CORE_MEDIATYPE_VIDEO, false};
    PlaybackRequest noRecording;
    noRecording.cameraId = "cam-1";
    noRecording.begin = kT0 + 700;
    noRecording.end = kT0 + 800;
    struct Case {
        const char* what;
        int32_t expected;
        std::function<int32_t()> call;
    };
    const Case cases[] = {
        {"not logged in", ORVEX_CORE_ERROR_NOT_LOGGED_IN,
         [&] { return OpenLiveStream(99, live, c.sink(), &seq); }},
        {"unknown camera", ORVEX_CORE_ERROR_CHANNEL_NOT_FOUND,
         [&] {
             return OpenLiveStream(kHandle, {"nope", 1, false}, c.sink(), &seq);
         }},
        {"offline camera", ORVEX_CORE_ERROR_DEVICE_OFFLINE,
         [&] {
             return OpenLiveStream(kHandle, {"cam-off", 1, false}, c.sink(), &seq);
         }},
        {"no callback", ORVEX_CORE_ERROR_INVALID_PARAM,
         [&] { return OpenLiveStream(kHandle, live, MediaSink{}, &seq); }},
        {"no sequence output", ORVEX_CORE_ERROR_INVALID_PARAM,
         [&] { return OpenLiveStream(kHandle, live, c.sink(), nullptr); }},
        {"talk to offline", ORVEX_CORE_ERROR_DEVICE_OFFLINE,
         [&] { return OpenTalkStream(kHandle, "cam-off", c.sink(), &seq); }},
        {"gap only", ORVEX_CORE_ERROR_NOT_FOUND,
         [&] { return OpenPlaybackStream(kHandle, noRecording, c.sink(), &seq); }},
        {"pause unknown", ORVEX_CORE_ERROR_SEQ_NOT_FOUND, [] { return PausePlayback(kHandle, 0); }},
        {"resume unknown", ORVEX_CORE_ERROR_SEQ_NOT_FOUND,
         [] { return ResumePlayback(kHandle, -3); }},
        {"close talk of camera without one", ORVEX_CORE_ERROR_SEQ_NOT_FOUND,
         [] { return CloseStreamsOfCamera(StreamKind::Talk, kHandle, "cam-1"); }},
        {"broadcast not logged in", ORVEX_CORE_ERROR_NOT_LOGGED_IN,
         [&] { return StartBroadcast(99, &seq); }},
        {"close unknown broadcast", ORVEX_CORE_ERROR_SEQ_NOT_FOUND,
         [] { return CloseBroadcast(kHandle, 12345); }},
    };
    for (const Case& k : cases) {
        EXPECT_EQ(k.expected, k.call()) << k.what;
    }
    EXPECT_EQ(0u, OpenStreamCount());
    // A live stream's number is no playback stream.
    const int32_t liveSeq = openLive(c);
    EXPECT_EQ(ORVEX_CORE_ERROR_SEQ_NOT_FOUND, PausePlayback(kHandle, liveSeq));
}

TEST_F(MediaEngine, RecordSearchFiltersKeepsAndPages) {
    int32_t count = -1;
    ASSERT_EQ(0, QueryRecords(kHandle, "cam-1", kT0 + 100, kT0 + 2030, 0,
                              ORVEX_CORE_PB_RECSOURCE_DEVICE, &count));
    EXPECT_EQ(3, count);
    Single_Record_Info_t page[2] = {};
    uint32_t delivered = 0;
    ASSERT_EQ(0, FetchRecords(kHandle, "cam-1", 1, 2, page, &delivered));
    EXPECT_EQ(2u, delivered);
    EXPECT_EQ(1u, page[0].nFileIndex);
    EXPECT_EQ(kT0 + 1000, page[0].uBeginTime);
    EXPECT_EQ(kT0 + 1600, page[0].uEndTime);
    EXPECT_EQ(ORVEX_CORE_PB_RECSOURCE_DEVICE, page[0].nSource);
    EXPECT_EQ(ORVEX_CORE_PB_RECORD_ALARM, page[0].nRecordType);
    EXPECT_EQ(600 * kRecordBytesPerSecond, page[0].uLength);
    EXPECT_EQ(2u, page[1].nFileIndex);
    ASSERT_EQ(0, FetchRecords(kHandle, "cam-1", 3, 2, page, &delivered));
    EXPECT_EQ(0u, delivered);

    // By type: the file index stays the recording's place among all of the camera's.
    ASSERT_EQ(0, QueryRecords(kHandle, "cam-1", 0, kT0 * 2, ORVEX_CORE_PB_RECORD_TIMER,
                              ORVEX_CORE_PB_RECSOURCE_ALL, &count));
    EXPECT_EQ(2, count);
    ASSERT_EQ(0, FetchRecords(kHandle, "cam-1", 0, 2, page, &delivered));
    EXPECT_EQ(0u, page[0].nFileIndex);
    EXPECT_EQ(2u, page[1].nFileIndex);
    EXPECT_EQ(ORVEX_CORE_PB_RECSOURCE_PLATFORM, page[1].nSource);

    EXPECT_EQ(ORVEX_CORE_ERROR_NOT_FOUND, FetchRecords(kHandle, "cam-2", 0, 2, page, &delivered));
    EXPECT_EQ(ORVEX_CORE_ERROR_CHANNEL_NOT_FOUND,
              QueryRecords(kHandle, "nope", 0, 1, 0, 1, &count));
    EXPECT_EQ(ORVEX_CORE_ERROR_NOT_LOGGED_IN, QueryRecords(99, "cam-1", 0, 1, 0, 1, &count));
    NotifyInstanceEnded(kHandle);
    EXPECT_EQ(ORVEX_CORE_ERROR_NOT_FOUND, FetchRecords(kHandle, "cam-1", 0, 2, page, &delivered));
}

TEST_F(MediaEngine, TalkDeliversTheToneAsFramedALaw) {
    Collector c;
    int32_t seq = 0;
    std::atomic<int> announced{0};
    std::atomic<bool> announcedFirst{false};
    std::atomic<bool> announcedHere{false};
    const auto caller = std::this_thread::get_id();
    ASSERT_EQ(0, OpenTalkStream(kHandle, "cam-2", c.sink(), &seq, [&] {
                  announcedFirst = c.count() == 0;
                  announcedHere = std::this_thread::get_id() == caller;
                  ++announced;
              }));
    const auto blocks = c.await(5, ORVEX_CORE_MEDIATYPE_AUDIO);
    EXPECT_EQ(1, announced.load());
    EXPECT_TRUE(announcedFirst.load());
    EXPECT_FALSE(announcedHere.load());
    std::vector<int16_t> pcm;
    for (const Frame& f : blocks) {
        EXPECT_EQ(Talk_Coding_G711a, f.param);
        EXPECT_EQ("cam-2", f.node);
        std::vector<int16_t> samples;
        std::string why;
        ASSERT_TRUE(ParseTalkFrame(f.data.data(), f.data.size(), &samples, &why)) << why;
        EXPECT_EQ(static_cast<std::size_t>(kTalkSampleRate / kTalkBlocksPerSecond), samples.size());
        pcm.insert(pcm.end(), samples.begin(), samples.end());
    }
    // Frequency from rising zero crossings, level from the peak.
    int rising = 0;
    int peak = 0;
    for (std::size_t i = 1; i < pcm.size(); ++i) {
        rising += pcm[i - 1] < 0 && pcm[i] >= 0;
        peak = std::max(peak, std::abs(static_cast<int>(pcm[i])));
    }
    const double hz = rising * static_cast<double>(kTalkSampleRate) / pcm.size();
    EXPECT_NEAR(kToneHz, hz, 30);
    EXPECT_NEAR(kToneAmplitude, peak, kToneAmplitude / 20);
    EXPECT_EQ(0, CloseStreamsOfCamera(StreamKind::Talk, kHandle, "cam-2"));
}

// A block as the bridge frames it: its A-law encoder, then the fixed header.
std::vector<uint8_t> BridgeFrame(const std::vector<int16_t>& pcm) {
    std::vector<uint8_t> frame(8 + pcm.size());
    int n = 0;
    std::vector<int16_t> copy = pcm;
    g711a_Encode(reinterpret_cast<char*>(copy.data()), reinterpret_cast<char*>(frame.data() + 8),
                 static_cast<int>(pcm.size() * 2), &n);
    const uint8_t header[8] = {0x00,
                               0x00,
                               0x01,
                               0xF0,
                               0x0E,
                               0x02,
                               static_cast<uint8_t>(n & 0xFF),
                               static_cast<uint8_t>(n >> 8)};
    std::memcpy(frame.data(), header, 8);
    return frame;
}

TEST_F(MediaEngine, EntryPointDecodesWellFormedBlocksAndRejectsTheRest) {
    const std::vector<int16_t> pcm = Tone().next(320);
    const std::vector<uint8_t> good = BridgeFrame(pcm);

    TalkReception before = TalkReceived();
    ReceiveTalkFrame(good.data(), good.size());  // no talk session open yet
    EXPECT_EQ(before.rejected + 1, TalkReceived().rejected);
    EXPECT_EQ("no talk session is open", TalkReceived().lastRejection);

    Collector c;
    int32_t seq = 0;
    ASSERT_EQ(0, OpenTalkStream(kHandle, "cam-1", c.sink(), &seq));
    before = TalkReceived();
    ReceiveTalkFrame(good.data(), good.size());
    TalkReception after = TalkReceived();
    EXPECT_EQ(before.accepted + 1, after.accepted);
    EXPECT_EQ(before.samples + 320, after.samples);
    EXPECT_NEAR(kToneAmplitude, after.peak, kToneAmplitude / 20);
    EXPECT_NEAR(kToneAmplitude / std::sqrt(2.0), after.lastRms, kToneAmplitude / 20);

    struct Bad {
        const char* what;
        std::size_t index;  // byte changed, or the length cut to `index` when cut
        bool cut;
    };
    for (const Bad& bad :
         {Bad{"short", 7, true}, Bad{"empty", 0, true}, Bad{"magic 0", 0, false},
          Bad{"magic 3", 3, false}, Bad{"magic 5", 5, false}, Bad{"length low", 6, false},
          Bad{"length high", 7, false}, Bad{"payload cut", 100, true}}) {
        std::vector<uint8_t> frame = good;
        if (bad.cut) {
            frame.resize(bad.index);
        } else {
            frame[bad.index] ^= 0x01;
        }
        before = TalkReceived();
        ReceiveTalkFrame(frame.empty() ? nullptr : frame.data(), frame.size());
        after = TalkReceived();
        EXPECT_EQ(before.rejected + 1, after.rejected) << bad.what;
        EXPECT_EQ(before.accepted, after.accepted) << bad.what;
    }
}

TEST(MediaAlaw, DecodesWhatTheBridgeEncodesAndEncodesAlike) {
    for (int x = -32767; x <= 32767; ++x) {
        const auto s = static_cast<int16_t>(x);
        const uint8_t code = linear2alaw(s);
        ASSERT_EQ(code, AlawEncode(s)) << x;
        // A-law steps are 16 at the bottom and 1024 at the top: the error is at most half.
        const int step = std::abs(x) < 512 ? 16 : 1 << (31 - __builtin_clz(std::abs(x)) - 4);
        ASSERT_LE(std::abs(AlawDecode(code) - x), step / 2 + 8) << x;
        ASSERT_EQ(alaw2linear(code), AlawDecode(code)) << x;
    }
}

TEST_F(MediaEngine, ManyThreadsOpenAndCloseWhileFramesFlow) {
    Collector c;
    std::vector<std::thread> callers;
    std::atomic<int> failures{0};
    for (int t = 0; t < 4; ++t) {
        callers.emplace_back([&, t] {
            for (int i = 0; i < 5; ++i) {
                int32_t seq = 0;
                const std::string camera = (t + i) % 2 ? "cam-1" : "cam-2";
                if (OpenLiveStream(kHandle, {camera, ORVEX_CORE_MEDIATYPE_ALL, false}, c.sink(),
                                   &seq) != 0) {
                    ++failures;
                    continue;
                }
                std::this_thread::sleep_for(std::chrono::milliseconds(30 * (i % 3)));
                failures += CloseStream(StreamKind::Live, kHandle, seq) != 0;
            }
        });
    }
    for (std::thread& t : callers) {
        t.join();
    }
    EXPECT_EQ(0, failures.load());
    EXPECT_EQ(0u, OpenStreamCount());
}

// ---- the stand-in's exports answer from its own engine, which has no site here ----------

int32_t Ignore(int32_t, int32_t, int32_t, const char*, int32_t, char*, int32_t, void*) {
    return 0;
}

class MediaExports : public ::testing::Test {
  protected:
    void SetUp() override {
        orvexsim::control::reset();
        orvexsim::setMode(orvexsim::Mode::Platform);
    }
    void TearDown() override { orvexsim::control::reset(); }
};

TEST_F(MediaExports, EveryMediaFunctionIsAnsweredByTheEngine) {
    constexpr int32_t h = 5;
    int32_t seq = -7;
    Get_RealStream_Info_t real{};
    std::strcpy(real.szCameraId, "cam-1");
    Get_ExternalRealStreamUrl_Info_t url{};
    Query_Record_Info_t query{};
    Record_Info_t records{};
    Get_RecordStream_File_Info_t file{};
    Get_RecordStream_Time_Info_t span{};
    Get_TalkStream_Info_t talk{};
    int32_t count = 0;
    struct Case {
        const char* fn;
        int32_t expected;
        std::function<int32_t()> call;
    };
    const int32_t notLoggedIn = ORVEX_CORE_ERROR_NOT_LOGGED_IN;
    const int32_t noSeq = ORVEX_CORE_ERROR_SEQ_NOT_FOUND;
    const Case cases[] = {
        {"GetRealStream", notLoggedIn,
         [&] { return ORVEX_GetRealStream(h, &seq, &real, Ignore, nullptr, 0); }},
        {"GetRealStream without info", ORVEX_CORE_ERROR_INVALID_PARAM,
         [&] { return ORVEX_GetRealStream(h, &seq, nullptr, Ignore, nullptr, 0); }},
        {"GetRealStreamPreview", notLoggedIn,
         [&] { return ORVEX_GetRealStreamPreview(h, &seq, &real, 2, Ignore, nullptr, 0); }},
        {"GetExternalRealStreamUrl", notLoggedIn,
         [&] { return ORVEX_GetExternalRealStreamUrl(h, &url, 0); }},
        {"CloseRealStreamBySeq", noSeq, [&] { return ORVEX_CloseRealStreamBySeq(h, 1, 0); }},
        {"QueryRecord", notLoggedIn, [&] { return ORVEX_QueryRecord(h, &query, &count, 0); }},
        {"QueryRecordByStreamType", notLoggedIn,
         [&] {
             return ORVEX_QueryRecordByStreamType(h, &query, ORVEX_CORE_STREAMTYPE_SUB, &count, 0);
         }},
        {"GetRecordInfo", notLoggedIn, [&] { return ORVEX_GetRecordInfo(h, &records); }},
        {"GetRecordStreamByFile", notLoggedIn,
         [&] { return ORVEX_GetRecordStreamByFile(h, &seq, &file, Ignore, nullptr, 0); }},
        {"GetRecordStreamByTime", notLoggedIn,
         [&] { return ORVEX_GetRecordStreamByTime(h, &seq, &span, Ignore, nullptr, 0); }},
        {"GetRecordStreamByStreamType", notLoggedIn,
         [&] {
             return ORVEX_GetRecordStreamByStreamType(h, &seq, &span, ORVEX_CORE_STREAMTYPE_MAIN,
                                                      Ignore, nullptr, 0, 1, 0);
         }},
        {"PauseRecordStreamBySeq", noSeq, [&] { return ORVEX_PauseRecordStreamBySeq(h, 1, 0); }},
        {"ResumeRecordStreamBySeq", noSeq, [&] { return ORVEX_ResumeRecordStreamBySeq(h, 1, 0); }},
        {"SetRecordStreamSpeed", noSeq,
         [&] { return ORVEX_SetRecordStreamSpeed(h, 1, ORVEX_CORE_PB_FAST2, 0); }},
        {"SeekRecordStreamBySeq", noSeq,
         [&] { return ORVEX_SeekRecordStreamBySeq(h, 1, 10, 20, 0); }},
        {"CloseRecordStreamBySeq", noSeq, [&] { return ORVEX_CloseRecordStreamBySeq(h, 1, 0); }},
        {"CloseRecordStreamByCameraId", noSeq,
         [&] { return ORVEX_CloseRecordStreamByCameraId(h, "cam-1", 0); }},
        {"GetTalkStream", notLoggedIn,
         [&] { return ORVEX_GetTalkStream(h, &seq, &talk, Ignore, nullptr, 0); }},
        {"CloseTalkStreamBySeq", noSeq, [&] { return ORVEX_CloseTalkStreamBySeq(h, 1, 0); }},
        {"CloseTalkStreamByCameralId", noSeq,
         [&] { return ORVEX_CloseTalkStreamByCameralId(h, "cam-1", 0); }},
        {"StartBroadcast", notLoggedIn,
         [&] { return ORVEX_StartBroadcast(h, &seq, "{}", nullptr, nullptr, 0); }},
        {"CloseBroadcastStream", noSeq, [&] { return ORVEX_CloseBroadcastStream(h, "{}", 1, 0); }},
    };
    for (const Case& k : cases) {
        EXPECT_EQ(k.expected, k.call()) << k.fn;
    }
    EXPECT_EQ(-7, seq);
    EXPECT_EQ(0, url.szUrl[0]);
    EXPECT_EQ(std::size(cases), orvexsim::control::calls().size());
}

TEST_F(MediaExports, AScriptedReplyStillComesFirst) {
    orvexsim::Reply reply;
    reply.writes.push_back({"pnRealSeq", 0, {42, 0, 0, 0}});
    orvexsim::control::script("ORVEX_GetRealStream", reply);
    Get_RealStream_Info_t real{};
    int32_t seq = 0;
    EXPECT_EQ(0, ORVEX_GetRealStream(5, &seq, &real, Ignore, nullptr, 0));
    EXPECT_EQ(42, seq);
    EXPECT_TRUE(orvexsim::control::errors().empty());
}

}  // namespace
