// Tests of the G.711 codec. Expected codes and samples come from a direct evaluation of the
// G.711 segment rules below, never from the codec's own tables.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include "Alaw_encoder.h"

namespace {

// ---- Reference G.711, sign-magnitude, evaluated from the segment definitions ----

// u-law works on the 14-bit magnitude. With the bias of 33 added, segment s spans
// [32 << s, 64 << s) and has 16 steps of 2 << s; the code is the complement of sign|seg|step.
int RefUlaw(int x) {
    const int magnitude = std::min(std::abs(x) >> 2, 8158);  // 8158 + 33 = top of segment 7
    const int biased = magnitude + 33;
    int seg = 0;
    while (biased >= (64 << seg)) {
        ++seg;
    }
    const int step = (biased - (32 << seg)) >> (seg + 1);
    const int sign = x < 0 ? 0x80 : 0x00;
    return 0xFF ^ (sign | seg << 4 | step);
}

// A-law works on the 13-bit magnitude. Segment 0 spans [0, 32) in steps of 2, segment s >= 1
// spans [16 << s, 32 << s) in steps of 1 << s; positive codes have bit 7 set, then the even
// bits are inverted.
int RefAlaw(int x) {
    const int magnitude = std::min(std::abs(x) >> 3, 4095);
    int seg = 0;
    int step = magnitude >> 1;
    if (magnitude >= 32) {
        seg = 1;
        while (magnitude >= (32 << seg)) {
            ++seg;
        }
        step = (magnitude - (16 << seg)) >> seg;
    }
    const int sign = x < 0 ? 0x00 : 0x80;
    return (sign | seg << 4 | step) ^ 0x55;
}

// Decoding yields the middle of the code's interval, scaled to 16 bits.
int RefUlawDecode(int code) {
    const int v = code ^ 0xFF;
    const int seg = (v >> 4) & 7;
    const int step = v & 0xF;
    const int magnitude14 = ((2 * step + 33) << seg) - 33;
    return (v & 0x80) ? -4 * magnitude14 : 4 * magnitude14;
}

int RefAlawDecode(int code) {
    const int v = code ^ 0x55;
    const int seg = (v >> 4) & 7;
    const int step = v & 0xF;
    const int magnitude13 = seg == 0 ? 2 * step + 1 : (2 * step + 33) << (seg - 1);
    return (v & 0x80) ? 8 * magnitude13 : -8 * magnitude13;
}

struct Law {
    const char* name;
    std::function<int(int)> encode;  // codec under test, sample -> code
    std::function<int(int)> decode;  // codec under test, code -> sample
    int (*ref_encode)(int);
    int (*ref_decode)(int);
    int code_of_min_sample;   // code the codec keeps for -32768
    bool zero_codes_are_two;  // u-law 0x7F / 0xFF decode to -2 / +2 instead of 0
    int (*buffer_encode)(char*, char*, int, int*);
};

const std::vector<Law>& Laws() {
    static const std::vector<Law> laws = {
        {"u-law", [](int x) { return linear2ulaw(static_cast<short>(x)); },
         [](int c) { return ulaw2linear(static_cast<unsigned char>(c)); }, RefUlaw, RefUlawDecode,
         0x7F, true, g711u_Encode},
        {"A-law", [](int x) { return linear2alaw(static_cast<short>(x)); },
         [](int c) { return alaw2linear(static_cast<unsigned char>(c)); }, RefAlaw, RefAlawDecode,
         0x0F, false, g711a_Encode},
    };
    return laws;
}

// Collects at most a few mismatches so that a broken table does not flood the log.
class Mismatches {
  public:
    void Check(int input, int got, int want) {
        if (got != want && ++count_ <= 5) {
            text_ << " [in " << input << ": got " << got << ", want " << want << "]";
        }
    }
    std::string Report() const {
        return count_ == 0 ? "" : std::to_string(count_) + " mismatches:" + text_.str();
    }

  private:
    int count_ = 0;
    std::ostringstream text_;
};

// ---- Single-sample functions ----

TEST(G711Codec, EncodersFollowDefinitionForEverySample) {
    for (const Law& law : Laws()) {
        SCOPED_TRACE(law.name);
        Mismatches m;
        for (int x = -32768; x <= 32767; ++x) {
            const int want = x == -32768 ? law.code_of_min_sample : law.ref_encode(x);
            m.Check(x, law.encode(x), want);
        }
        EXPECT_EQ(m.Report(), "");
    }
}

TEST(G711Codec, DecodersFollowDefinitionForEveryCode) {
    for (const Law& law : Laws()) {
        SCOPED_TRACE(law.name);
        Mismatches m;
        for (int c = 0; c < 256; ++c) {
            int want = law.ref_decode(c);
            if (law.zero_codes_are_two && (c == 0x7F || c == 0xFF)) {
                want = c == 0x7F ? -2 : 2;
            }
            m.Check(c, law.decode(c), want);
        }
        EXPECT_EQ(m.Report(), "");
    }
}

TEST(G711Codec, EncodingADecodedCodeGivesItBack) {
    for (const Law& law : Laws()) {
        SCOPED_TRACE(law.name);
        Mismatches m;
        for (int c = 0; c < 256; ++c) {
            m.Check(c, law.encode(law.decode(c)), c);
        }
        EXPECT_EQ(m.Report(), "");
    }
}

struct ScalarCase {
    const char* what;
    std::function<int(int)> fn;
    int input;
    int expected;
};

int U2A(int c) {
    return ulaw2alaw(static_cast<unsigned char>(c));
}
int A2U(int c) {
    return alaw2ulaw(static_cast<unsigned char>(c));
}
int L2U(int x) {
    return linear2ulaw(static_cast<short>(x));
}
int L2A(int x) {
    return linear2alaw(static_cast<short>(x));
}

TEST(G711Codec, EdgeCases) {
    const ScalarCase cases[] = {
        {"linear2ulaw", L2U, 0, 0xFF},      {"linear2ulaw", L2U, 3, 0xFF},
        {"linear2ulaw", L2U, -1, 0x7F},     {"linear2ulaw", L2U, -3, 0x7F},
        {"linear2ulaw", L2U, 4, 0xFE},      {"linear2ulaw", L2U, 32767, 0x80},
        {"linear2ulaw", L2U, -32767, 0x00}, {"linear2ulaw", L2U, -32768, 0x7F},
        {"linear2alaw", L2A, 0, 0xD5},      {"linear2alaw", L2A, -1, 0x55},
        {"linear2alaw", L2A, 32767, 0xAA},  {"linear2alaw", L2A, -32767, 0x2A},
        {"linear2alaw", L2A, -32768, 0x0F}, {"ulaw2alaw", U2A, 0x7F, 0x55},
        {"alaw2ulaw", A2U, 26, 48},         {"alaw2ulaw", A2U, 27, 48},
    };
    for (const ScalarCase& c : cases) {
        EXPECT_EQ(c.fn(c.input), c.expected) << c.what << "(" << c.input << ")";
    }
}

// ---- Law-to-law conversion ----

TEST(G711Codec, ConversionMatchesKnownRows) {
    struct Row {
        const char* what;
        int (*fn)(int);
        int first;
        std::vector<int> expected;
    };
    const Row rows[] = {
        {"ulaw2alaw", U2A, 0, {42, 43, 40, 41, 46, 47, 44, 45}},
        {"ulaw2alaw", U2A, 112, {82, 82, 83, 83, 80, 80, 81, 81, 86, 86, 87, 87, 84, 84, 85, 85}},
        {"ulaw2alaw", U2A, 255, {213}},
        {"alaw2ulaw", A2U, 0, {42, 43, 40, 41, 46, 47, 44, 45}},
        {"alaw2ulaw", A2U, 128, {170}},
    };
    for (const Row& row : rows) {
        for (size_t i = 0; i < row.expected.size(); ++i) {
            const int code = row.first + static_cast<int>(i);
            EXPECT_EQ(row.fn(code), row.expected[i]) << row.what << "(" << code << ")";
        }
    }
}

// Walking the source codes in order of their linear value, the converted code must keep the
// sign bit and never step back in linear value.
TEST(G711Codec, ConversionKeepsSignAndOrder) {
    struct Direction {
        const char* what;
        int (*fn)(int);
        int (*ref_from)(int);
        int (*ref_to)(int);
    };
    const Direction directions[] = {
        {"ulaw2alaw", U2A, RefUlawDecode, RefAlawDecode},
        {"alaw2ulaw", A2U, RefAlawDecode, RefUlawDecode},
    };
    for (const Direction& d : directions) {
        SCOPED_TRACE(d.what);
        std::vector<int> codes(256);
        for (int c = 0; c < 256; ++c) {
            codes[c] = c;
            EXPECT_EQ(d.fn(c) & 0x80, c & 0x80) << "code " << c;
        }
        std::stable_sort(codes.begin(), codes.end(),
                         [&](int a, int b) { return d.ref_from(a) < d.ref_from(b); });
        for (size_t i = 1; i < codes.size(); ++i) {
            EXPECT_LE(d.ref_to(d.fn(codes[i - 1])), d.ref_to(d.fn(codes[i])))
                << "codes " << codes[i - 1] << " then " << codes[i];
        }
    }
}

// ---- Buffer functions ----

constexpr char kGuard = static_cast<char>(0xA5);
constexpr int kUntouched = 0x5A5A5A5A;

void StoreSample(char* p, int16_t s) {
    std::memcpy(p, &s, sizeof s);
}

int16_t LoadSample(const char* p) {
    int16_t s;
    std::memcpy(&s, p, sizeof s);
    return s;
}

// Every sample value, with -32768 in the middle, read from an odd address.
TEST(G711Buffers, EncodersAgreeWithSingleSampleFunctions) {
    constexpr int kSamples = 65536;
    std::vector<char> storage(2 * kSamples + 1);
    char* src = storage.data() + 1;
    for (int i = 0; i < kSamples; ++i) {
        StoreSample(src + 2 * i, static_cast<int16_t>(i < 32768 ? i : i - 65536));
    }
    ASSERT_EQ(LoadSample(src + 2 * 32768), -32768);
    for (const Law& law : Laws()) {
        SCOPED_TRACE(law.name);
        std::vector<char> dest(kSamples + 1, kGuard);
        int dstlen = kUntouched;
        EXPECT_EQ(law.buffer_encode(src, dest.data(), 2 * kSamples, &dstlen), 1);
        EXPECT_EQ(dstlen, kSamples);
        Mismatches m;
        for (int i = 0; i < kSamples; ++i) {
            const int16_t x = LoadSample(src + 2 * i);
            m.Check(x, static_cast<unsigned char>(dest[i]), law.encode(x));
        }
        EXPECT_EQ(m.Report(), "");
        EXPECT_EQ(dest[kSamples], kGuard);
    }
}

// Odd, empty and negative lengths: srclen / 2 truncates toward zero and is stored as is; only
// that many codes are written.
TEST(G711Buffers, EncoderLengths) {
    struct Case {
        int srclen;
        int expected_dstlen;
    };
    const Case cases[] = {{5, 2}, {1, 0}, {0, 0}, {-3, -1}, {-4, -2}};
    const int16_t samples[] = {1000, -32768, 77};
    for (const Law& law : Laws()) {
        for (const Case& c : cases) {
            SCOPED_TRACE(std::string(law.name) + " srclen " + std::to_string(c.srclen));
            char src[sizeof samples];
            std::memcpy(src, samples, sizeof samples);
            char dest[4] = {kGuard, kGuard, kGuard, kGuard};
            int dstlen = kUntouched;
            EXPECT_EQ(law.buffer_encode(src, dest, c.srclen, &dstlen), 1);
            EXPECT_EQ(dstlen, c.expected_dstlen);
            const int written = std::max(c.expected_dstlen, 0);
            for (int i = 0; i < written; ++i) {
                EXPECT_EQ(static_cast<unsigned char>(dest[i]), law.encode(samples[i]));
            }
            EXPECT_EQ(dest[written], kGuard);
        }
    }
}

TEST(G711Buffers, DecoderOutputAndLengths) {
    struct Case {
        std::vector<unsigned char> codes;
        int srclen;
        std::vector<int16_t> expected;
        int expected_dstlen;
    };
    const Case cases[] = {
        {{0x7F, 0xFF}, 2, {-2, 2}, 4},
        {{0x00, 0x80, 0x7F}, 3, {-32124, 32124, -2}, 6},
        {{0x00}, 0, {}, 0},
        {{0x00}, -3, {}, -6},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE("srclen " + std::to_string(c.srclen));
        std::vector<unsigned char> src = c.codes;
        char storage[2 * 3 + 2];
        std::fill(std::begin(storage), std::end(storage), kGuard);
        char* dest = storage + 1;  // odd address
        int dstlen = kUntouched;
        EXPECT_EQ(g711u_Decode(src.data(), dest, c.srclen, &dstlen), 1);
        EXPECT_EQ(dstlen, c.expected_dstlen);
        for (size_t i = 0; i < c.expected.size(); ++i) {
            EXPECT_EQ(LoadSample(dest + 2 * i), c.expected[i]) << "sample " << i;
        }
        EXPECT_EQ(storage[0], kGuard);
        EXPECT_EQ(dest[2 * c.expected.size()], kGuard);
    }
}

TEST(G711Buffers, DecoderAgreesWithSingleCodeFunction) {
    unsigned char codes[256];
    for (int c = 0; c < 256; ++c) {
        codes[c] = static_cast<unsigned char>(c);
    }
    std::vector<char> dest(2 * 256);
    int dstlen = 0;
    g711u_Decode(codes, dest.data(), 256, &dstlen);
    EXPECT_EQ(dstlen, 512);
    Mismatches m;
    for (int c = 0; c < 256; ++c) {
        m.Check(c, LoadSample(dest.data() + 2 * c), ulaw2linear(codes[c]));
    }
    EXPECT_EQ(m.Report(), "");
}

// When dstlen overlaps the input, the encoders read the zero they stored there first; the
// decoder leaves it alone until the end.
TEST(G711Buffers, ClearingOfDstlenBeforeReading) {
    struct Case {
        const char* what;
        std::function<int(char*, int*)> call;  // input bytes and dstlen share memory
        std::function<int(const char*)> first_output;
        int expected_first_output;
        int expected_dstlen;
    };
    char dest[8];
    const auto code0 = [](const char* d) { return static_cast<unsigned char>(d[0]); };
    const auto sample0 = [](const char* d) { return static_cast<int>(LoadSample(d)); };
    const Case cases[] = {
        {"g711a_Encode", [&](char* src, int* len) { return g711a_Encode(src, dest, 4, len); },
         code0, RefAlaw(0), 2},
        {"g711u_Encode", [&](char* src, int* len) { return g711u_Encode(src, dest, 4, len); },
         code0, RefUlaw(0), 2},
        {"g711u_Decode",
         [&](char* src, int* len) {
             return g711u_Decode(reinterpret_cast<unsigned char*>(src), dest, 2, len);
         },
         sample0, -2, 4},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        int shared = 0x7F7F7F7F;  // bytes 0x7F: u-law code 0x7F, or samples of 32639
        std::memset(dest, 0, sizeof dest);
        EXPECT_EQ(c.call(reinterpret_cast<char*>(&shared), &shared), 1);
        EXPECT_EQ(c.first_output(dest), c.expected_first_output);
        EXPECT_EQ(shared, c.expected_dstlen);
    }
}

}  // namespace
