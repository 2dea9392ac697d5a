#include "media_picture.h"

#include <turbojpeg.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>

namespace orvexsim::platform {
namespace {

constexpr int kCell = 40;           // pattern cell, in scene pixels at zoom 1
constexpr int kScenePerDegree = 8;  // scene pixels the view moves per degree of pan or tilt
constexpr int kJpegQuality = 75;

constexpr Rgb kPalette[8] = {{200, 60, 60},  {60, 170, 60},  {60, 90, 200},  {210, 180, 40},
                             {170, 60, 170}, {40, 170, 170}, {230, 130, 40}, {120, 120, 120}};
constexpr Rgb kInk = {255, 255, 255};
constexpr Rgb kPaper = {0, 0, 0};

int FloorDiv(int a, int b) {
    return a >= 0 ? a / b : -((-a + b - 1) / b);
}

std::string UtcText(uint64_t ms) {
    const std::time_t secs = static_cast<std::time_t>(ms / 1000);
    std::tm tm{};
    gmtime_r(&secs, &tm);
    char buf[48];
    std::snprintf(buf, sizeof buf, "%04d-%02d-%02d %02d:%02d:%02d.%03u", tm.tm_year + 1900,
                  tm.tm_mon + 1, tm.tm_mday, tm.tm_hour, tm.tm_min, tm.tm_sec,
                  static_cast<unsigned>(ms % 1000));
    return buf;
}

}  // namespace

std::string FrameComment(const FrameFacts& f) {
    char buf[256];
    std::snprintf(buf, sizeof buf,
                  "ORVEXSIM1 w=%d h=%d seq=%d frame=%llu time_ms=%llu pan=%d tilt=%d zoom=%d "
                  "online=%d camera=",
                  kFrameWidth, kFrameHeight, f.seq, static_cast<unsigned long long>(f.frameNo),
                  static_cast<unsigned long long>(f.timeMs), f.look.pan, f.look.tilt, f.look.zoom,
                  f.found && f.look.online ? 1 : 0);
    return buf + f.cameraId;
}

PictureEncoder::PictureEncoder() : canvas_(kFrameWidth, kFrameHeight), tj_(tjInitCompress()) {}

PictureEncoder::~PictureEncoder() {
    if (tj_ != nullptr) {
        tjDestroy(tj_);
    }
}

void PictureEncoder::paint(const FrameFacts& f) {
    const int w = canvas_.width();
    const int h = canvas_.height();
    if (!f.found || !f.look.online) {
        canvas_.fill(0, 0, w, h, {70, 70, 70});
    } else {
        // The scene is an endless grid of coloured cells; the view's centre looks at
        // (pan, -tilt) scaled, and zoom magnifies around the centre. Cell indices per column
        // and per row are computed once, so a pixel costs a table read.
        const int zoom = std::max(1, f.look.zoom);
        std::vector<int> colCell(static_cast<std::size_t>(w));
        for (int x = 0; x < w; ++x) {
            colCell[x] = FloorDiv((x - w / 2) / zoom + f.look.pan * kScenePerDegree, kCell);
        }
        for (int y = 0; y < h; ++y) {
            const int rowCell = FloorDiv((y - h / 2) / zoom - f.look.tilt * kScenePerDegree, kCell);
            uint8_t* p = canvas_.row(y);
            for (int x = 0; x < w; ++x, p += 3) {
                const int c = colCell[x];
                const Rgb& base = kPalette[static_cast<unsigned>(c * 3 + rowCell * 5) & 7];
                const bool dark = ((c + rowCell) & 1) != 0;
                p[0] = dark ? base.r / 2 : base.r;
                p[1] = dark ? base.g / 2 : base.g;
                p[2] = dark ? base.b / 2 : base.b;
            }
        }
        // Cross-hair at the centre of view.
        canvas_.fill(w / 2 - 12, h / 2 - 1, 24, 2, kInk);
        canvas_.fill(w / 2 - 1, h / 2 - 12, 2, 24, kInk);
    }
    // Second hand: a bar along the bottom edge that fills once a second.
    canvas_.fill(0, h - 4, w, 4, kPaper);
    canvas_.fill(0, h - 4, static_cast<int>((f.timeMs % 1000) * w / 1000), 4, {255, 220, 0});

    const int line = Canvas::cellHeight(2);
    const int maxChars = (w - 4) / Canvas::cellWidth(2);
    canvas_.text(2, 2, f.look.name.empty() ? f.cameraId : f.look.name.substr(0, maxChars), 2, kInk,
                 kPaper);
    canvas_.text(2, 2 + line, UtcText(f.timeMs), 2, kInk, kPaper);
    char pos[64];
    std::snprintf(pos, sizeof pos, "P%d T%d Z%d", f.look.pan, f.look.tilt, f.look.zoom);
    canvas_.text(2, h - 6 - line, pos, 2, kInk, kPaper);
    const std::string mode = !f.found ? "NO CAMERA" : !f.look.online ? "OFFLINE" : f.mode;
    canvas_.text(w - 2 - Canvas::cellWidth(2) * static_cast<int>(mode.size()) - 2, h - 6 - line,
                 mode, 2, {255, 220, 0}, kPaper);
}

const std::vector<uint8_t>& PictureEncoder::encode(const FrameFacts& facts) {
    jpeg_.clear();
    if (tj_ == nullptr) {
        return jpeg_;
    }
    paint(facts);
    unsigned char* out = nullptr;
    unsigned long size = 0;
    if (tjCompress2(tj_, canvas_.pixels(), kFrameWidth, 0, kFrameHeight, TJPF_RGB, &out, &size,
                    TJSAMP_420, kJpegQuality, TJFLAG_FASTDCT) != 0 ||
        size < 2) {
        tjFree(out);
        return jpeg_;
    }
    // Start-of-image, then the comment segment (marker, big-endian length including itself,
    // text), then the rest of the encoder's output.
    const std::string comment = FrameComment(facts).substr(0, 65000);
    const std::size_t segment = comment.size() + 2;
    jpeg_.reserve(size + segment + 2);
    jpeg_.insert(jpeg_.end(), out, out + 2);
    jpeg_.push_back(0xFF);
    jpeg_.push_back(0xFE);
    jpeg_.push_back(static_cast<uint8_t>(segment >> 8));
    jpeg_.push_back(static_cast<uint8_t>(segment & 0xFF));
    jpeg_.insert(jpeg_.end(), comment.begin(), comment.end());
    jpeg_.insert(jpeg_.end(), out + 2, out + size);
    tjFree(out);
    return jpeg_;
}

}  // namespace orvexsim::platform
