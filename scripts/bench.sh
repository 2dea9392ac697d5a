#!/usr/bin/env bash
# Runs every benchmark (the G.711 codec with Google Benchmark; the natives and the media
# callback from Java against their floors and JNA, in both ways of attaching event threads) and
# prints one table of ratios. Medians of twelve repetitions (seven for the codec); about a
# minute on 2 cores.
# The stand-in runs with recording off, so that the bridge is measured and not the stand-in.
#   scripts/bench.sh            build, then measure
#   BENCH_NO_BUILD=1 scripts/bench.sh   measure what build/ holds
#   BENCH_RUNS=3 scripts/bench.sh       repeat the Java measurements in 3 fresh JVMs each and
#                                       report the median of their medians (for a busy machine)
#   BENCH_CLOCK=cpu scripts/bench.sh    compare processor time instead of elapsed time (on a
#                                       machine shared with other work)
set -euo pipefail
cd "$(dirname "$0")/.."
if [ -z "${BENCH_NO_BUILD:-}" ]; then
    bash scripts/build.sh >/dev/null
fi
out=build/bench-results
mkdir -p "$out"
export LD_LIBRARY_PATH=$PWD/build/sim ORVEX_SIM_RECORD=off
classpath=build/orvex-bench.jar:build/orvexcore.jar:/usr/share/java/jna.jar
build/bench/codec_bench --benchmark_repetitions=7 --benchmark_report_aggregates_only=true \
    --benchmark_out_format=csv --benchmark_out="$out/codec.csv" >/dev/null 2>"$out/codec.err"
rm -f "$out"/run-*.txt
for run in $(seq "${BENCH_RUNS:-1}"); do
    for mode in default attached; do
        property=()
        if [ "$mode" = attached ]; then
            property=(-Dorvex.events.threads=attached)
        fi
        java "${property[@]}" -Dorvex.jni.library="$PWD/build/lib/libOrvexCoreJni.so" \
            -Dorvex.bench.library="$PWD/build/bench/libOrvexBench.so" -cp "$classpath" \
            orvexbench.Bench "$mode" full >"$out/run-$run-$mode.txt"
    done
done
clock=()
if [ "${BENCH_CLOCK:-}" = cpu ]; then
    clock=(--cpu)
fi
java -cp "$classpath" orvexbench.Report "${clock[@]}" "$out/codec.csv" "$out"/run-*.txt
