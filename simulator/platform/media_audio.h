// Talk audio of the simulated platform: G.711 A-law, the framing of talk audio blocks (8-byte
// header, then one A-law code per sample), and the tone the simulated devices send.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace orvexsim::platform {

constexpr int kTalkSampleRate = 8000;
constexpr int kToneHz = 1000;
constexpr int kToneAmplitude = 8000;

// Header of every talk audio block: six fixed bytes, then the payload length (16-bit
// little-endian); the payload is one A-law code per sample.
constexpr std::size_t kTalkHeaderBytes = 8;
constexpr uint8_t kTalkMagic[6] = {0x00, 0x00, 0x01, 0xF0, 0x0E, 0x02};
constexpr std::size_t kTalkMaxPayload = 0xFFFF;

uint8_t AlawEncode(int16_t sample);
int16_t AlawDecode(uint8_t code);

// A framed block of the samples (at most kTalkMaxPayload of them).
std::vector<uint8_t> BuildTalkFrame(const std::vector<int16_t>& samples);

// Checks a framed block and decodes its payload into `samples`. False, with the reason in
// `why`, for a block shorter than the header, a wrong fixed byte, or a length field that
// disagrees with the block's length.
bool ParseTalkFrame(const uint8_t* frame, std::size_t length, std::vector<int16_t>* samples,
                    std::string* why);

// A continuous sine at kToneHz: each call carries on where the last ended.
class Tone {
  public:
    std::vector<int16_t> next(std::size_t samples);

  private:
    uint64_t position_ = 0;
};

// What the talk entry point has received in this process.
struct TalkReception {
    uint64_t accepted = 0;  // blocks that were well-formed and went to an open talk session
    uint64_t rejected = 0;  // blocks refused (bad header, or no talk session open)
    uint64_t samples = 0;   // samples decoded from accepted blocks
    int32_t peak = 0;       // largest magnitude among them
    double lastRms = 0;     // root mean square of the last accepted block
    std::string lastRejection;
};

}  // namespace orvexsim::platform
