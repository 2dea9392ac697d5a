// The pictures of the simulated cameras: a test pattern that moves with the camera's pan and
// tilt and scales with its zoom, with the camera's name, the frame's time and the position
// written in, encoded as one baseline JPEG per frame.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "media_canvas.h"
#include "site_view.h"

namespace orvexsim::platform {

// Every frame has this size (CIF): small enough that a few streams fit on one core.
constexpr int kFrameWidth = 352;
constexpr int kFrameHeight = 288;

// What one frame shows. The same facts go into a JPEG comment segment ("ORVEXSIM1 ..." text,
// right after the start-of-image marker) so that a program can read them without decoding.
struct FrameFacts {
    std::string cameraId;
    CameraLook look;
    bool found = true;     // false: the camera left the site; the frame says so
    uint64_t timeMs = 0;   // milliseconds since 1970-01-01 UTC: wall clock, or the recording's
    std::string mode;      // "LIVE", "PLAYBACK 2X", ...
    int32_t seq = 0;       // the stream's sequence number
    uint64_t frameNo = 0;  // counts from 0 per stream
};

// The comment text: space-separated key=value pairs after the tag ORVEXSIM1; the camera
// identifier is last and runs to the end of the text.
std::string FrameComment(const FrameFacts& facts);

// Paints and encodes frames. One per stream thread: it keeps its canvas, its encoder and its
// output buffer between frames so that a frame costs one paint and one encode.
class PictureEncoder {
  public:
    PictureEncoder();
    ~PictureEncoder();
    PictureEncoder(const PictureEncoder&) = delete;
    PictureEncoder& operator=(const PictureEncoder&) = delete;

    // The JPEG of the frame; valid until the next call. Empty if the encoder failed.
    const std::vector<uint8_t>& encode(const FrameFacts& facts);

  private:
    void paint(const FrameFacts& facts);
    Canvas canvas_;
    void* tj_;
    std::vector<uint8_t> jpeg_;
};

}  // namespace orvexsim::platform
