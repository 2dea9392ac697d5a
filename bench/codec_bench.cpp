// The G.711 codec per sample, against a plain full-range 64 KiB look-up compiled beside it.
// Input: pseudo-random samples over the whole 16-bit range (the worst case for table sizes).
#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstring>
#include <random>
#include <vector>

#include "Alaw_encoder.h"

namespace {

constexpr int kSamples = 4096;

std::vector<char> Pcm() {
    std::vector<char> pcm(2 * kSamples);
    std::mt19937 random(711);
    for (int i = 0; i < kSamples; ++i) {
        const auto s = static_cast<int16_t>(random());
        std::memcpy(pcm.data() + 2 * i, &s, 2);
    }
    return pcm;
}

template <typename Encode>
void Encoder(benchmark::State& state, Encode encode) {
    std::vector<char> pcm = Pcm();
    std::vector<char> codes(kSamples);
    int dstlen = 0;
    for (auto _ : state) {
        encode(pcm.data(), codes.data(), 2 * kSamples, &dstlen);
        benchmark::DoNotOptimize(codes.data());
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * kSamples);
}

void BM_AlawEncode(benchmark::State& state) {
    Encoder(state, g711a_Encode);
}

void BM_UlawEncode(benchmark::State& state) {
    Encoder(state, g711u_Encode);
}

void BM_UlawDecode(benchmark::State& state) {
    std::vector<char> pcm = Pcm();
    std::vector<unsigned char> codes(pcm.begin(), pcm.begin() + kSamples);
    std::vector<char> out(2 * kSamples);
    int dstlen = 0;
    for (auto _ : state) {
        g711u_Decode(codes.data(), out.data(), kSamples, &dstlen);
        benchmark::DoNotOptimize(out.data());
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * kSamples);
}

// The reference: one byte per possible sample, indexed by the sample's 16 bits.
unsigned char g_full[65536];

__attribute__((noinline)) void PlainLookup(const char* src, char* dest, int n) {
    for (int i = 0; i < n; ++i) {
        uint16_t s;
        std::memcpy(&s, src + 2 * i, 2);
        dest[i] = static_cast<char>(g_full[s]);
    }
}

void BM_Plain64KiBLookup(benchmark::State& state) {
    for (int s = 0; s < 65536; ++s) {
        g_full[s] = linear2alaw(static_cast<short>(static_cast<uint16_t>(s)));
    }
    std::vector<char> pcm = Pcm();
    std::vector<char> codes(kSamples);
    for (auto _ : state) {
        PlainLookup(pcm.data(), codes.data(), kSamples);
        benchmark::DoNotOptimize(codes.data());
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * kSamples);
}

}  // namespace

BENCHMARK(BM_AlawEncode);
BENCHMARK(BM_UlawEncode);
BENCHMARK(BM_UlawDecode);
BENCHMARK(BM_Plain64KiBLookup);

BENCHMARK_MAIN();
