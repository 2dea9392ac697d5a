#include "media_audio.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace orvexsim::platform {
namespace {

// Upper ends of the eight A-law segments, for 13-bit magnitudes.
constexpr int kSegmentEnd[8] = {0x1F, 0x3F, 0x7F, 0xFF, 0x1FF, 0x3FF, 0x7FF, 0xFFF};

}  // namespace

uint8_t AlawEncode(int16_t sample) {
    // Sign and magnitude, as the bridge's encoder codes them.
    const uint8_t mask = sample < 0 ? 0x55 : 0xD5;
    const int value = std::abs(static_cast<int>(sample)) >> 3;
    int segment = 0;
    while (segment < 8 && value > kSegmentEnd[segment]) {
        ++segment;
    }
    if (segment >= 8) {
        return static_cast<uint8_t>(0x7F ^ mask);
    }
    int code = segment << 4;
    code |= segment < 2 ? (value >> 1) & 0x0F : (value >> segment) & 0x0F;
    return static_cast<uint8_t>(code ^ mask);
}

int16_t AlawDecode(uint8_t code) {
    const int a = code ^ 0x55;
    int t = (a & 0x0F) << 4;
    const int segment = (a & 0x70) >> 4;
    if (segment == 0) {
        t += 8;
    } else {
        t = (t + 0x108) << (segment - 1);
    }
    return static_cast<int16_t>((a & 0x80) ? t : -t);
}

std::vector<uint8_t> BuildTalkFrame(const std::vector<int16_t>& samples) {
    const std::size_t n = std::min(samples.size(), kTalkMaxPayload);
    std::vector<uint8_t> frame(kTalkMagic, kTalkMagic + 6);
    frame.push_back(static_cast<uint8_t>(n & 0xFF));
    frame.push_back(static_cast<uint8_t>(n >> 8));
    for (std::size_t i = 0; i < n; ++i) {
        frame.push_back(AlawEncode(samples[i]));
    }
    return frame;
}

bool ParseTalkFrame(const uint8_t* frame, std::size_t length, std::vector<int16_t>* samples,
                    std::string* why) {
    if (frame == nullptr || length < kTalkHeaderBytes) {
        *why = "block shorter than its header";
        return false;
    }
    for (std::size_t i = 0; i < 6; ++i) {
        if (frame[i] != kTalkMagic[i]) {
            *why = "fixed header byte " + std::to_string(i) + " is wrong";
            return false;
        }
    }
    const std::size_t payload = frame[6] | (static_cast<std::size_t>(frame[7]) << 8);
    if (payload != length - kTalkHeaderBytes) {
        *why = "length field " + std::to_string(payload) + " disagrees with a block of " +
               std::to_string(length) + " bytes";
        return false;
    }
    samples->resize(payload);
    for (std::size_t i = 0; i < payload; ++i) {
        (*samples)[i] = AlawDecode(frame[kTalkHeaderBytes + i]);
    }
    return true;
}

std::vector<int16_t> Tone::next(std::size_t samples) {
    static const double kStep = 2 * std::acos(-1.0) * kToneHz / kTalkSampleRate;
    std::vector<int16_t> out(samples);
    for (std::size_t i = 0; i < samples; ++i) {
        out[i] = static_cast<int16_t>(
            std::lround(kToneAmplitude * std::sin(kStep * static_cast<double>(position_))));
        // A whole second holds a whole number of periods: wrapping keeps the phase exact.
        position_ = (position_ + 1) % kTalkSampleRate;
    }
    return out;
}

}  // namespace orvexsim::platform
