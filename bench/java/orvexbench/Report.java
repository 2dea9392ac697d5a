package orvexbench;

import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.HashMap;
import java.util.List;
import java.util.Map;

/**
 * Prints the table of ratios from one benchmark run: the codec's CSV from Google Benchmark and
 * the RESULT lines of {@link Bench} in both ways of attaching event threads. A measurement that
 * appears in several result files (repeated runs) counts with the median of its values.
 *
 * <p>Usage: {@code Report [--cpu] codec.csv results...}. With {@code --cpu} the rows compare the
 * processor time the work used instead of elapsed time (except the scaling row, which is about
 * elapsed time): on a machine shared with other work, elapsed time mostly measures the others.
 */
public final class Report {
    private final Map<String, List<Double>> ns = new HashMap<>();
    private final StringBuilder table = new StringBuilder();
    private int missed;
    private final String clock;

    private Report(boolean cpu) {
        this.clock = cpu ? ".cpu" : "";
    }

    public static void main(String[] args) throws IOException {
        boolean cpu = args.length > 0 && args[0].equals("--cpu");
        int first = cpu ? 1 : 0;
        Report report = new Report(cpu);
        report.readCodec(Path.of(args[first]));
        for (int i = first + 1; i < args.length; i++) {
            report.readResults(Path.of(args[i]));
        }
        report.print();
    }

    private void readResults(Path file) throws IOException {
        for (String line : Files.readAllLines(file)) {
            String[] f = line.trim().split("\\s+");
            if (f.length == 3 && f[0].equals("RESULT")) {
                ns.computeIfAbsent(f[1], k -> new ArrayList<>()).add(Double.parseDouble(f[2]));
            }
        }
    }

    /** Median rows of the codec benchmark: nanoseconds per sample from items per second. */
    private void readCodec(Path file) throws IOException {
        String[] header = null;
        for (String line : Files.readAllLines(file)) {
            String[] f = line.split(",", -1);
            if (f.length > 0 && f[0].equals("name")) {
                header = f;
                continue;
            }
            if (header == null || f.length != header.length || !f[0].endsWith("_median\"")) {
                continue;
            }
            for (int k = 0; k < header.length; k++) {
                if (header[k].equals("items_per_second") && !f[k].isEmpty()) {
                    String name = f[0].replace("\"", "").replace("_median", "");
                    ns.computeIfAbsent("codec." + name, x -> new ArrayList<>())
                            .add(1e9 / Double.parseDouble(f[k]));
                }
            }
        }
    }

    /** The median of a measurement, on the clock this report compares. */
    private double get(String key) {
        return median(key.startsWith("codec.") ? key : key + clock);
    }

    private double median(String key) {
        List<Double> values = ns.get(key);
        if (values == null) {
            throw new IllegalStateException("no result for " + key);
        }
        List<Double> sorted = new ArrayList<>(values);
        sorted.sort(null);
        return sorted.get(sorted.size() / 2);
    }

    /** A row whose ratio must stay at or below {@code limit} (faster: the baseline below). */
    private void atMost(String what, String measured, String baseline, double limit) {
        double ratio = get(measured) / get(baseline);
        row(what, get(measured), get(baseline), String.format("%.2fx", ratio),
                String.format("<= %.2fx", limit), ratio <= limit,
                String.format("%.0f %% over", 100 * (ratio / limit - 1)));
    }

    /** A row where the baseline must take at least {@code factor} times as long. */
    private void fasterBy(String what, String measured, String baseline, double factor) {
        double speedup = get(baseline) / get(measured);
        row(what, get(measured), get(baseline), String.format("%.1fx faster", speedup),
                String.format(">= %.1fx faster", factor), speedup >= factor,
                String.format("%.1fx short", factor / speedup));
    }

    /** A row for comparison only: no target. */
    private void compared(String what, String measured, String baseline) {
        double speedup = get(baseline) / get(measured);
        table.append(String.format("| %-50s | %12s | %12s | %-13s | %-15s | %-16s |%n", what,
                time(get(measured)), time(get(baseline)), String.format("%.1fx faster", speedup),
                "-", "-"));
    }

    private void row(String what, double measured, double baseline, String ratio, String target,
            boolean met, String shortfall) {
        if (!met) {
            missed++;
        }
        table.append(String.format("| %-50s | %12s | %12s | %-13s | %-15s | %-16s |%n", what,
                time(measured), time(baseline), ratio, target, met ? "met" : "MISSED, " + shortfall));
    }

    private static String time(double nanos) {
        if (nanos >= 1e6) {
            return String.format("%.2f ms", nanos / 1e6);
        }
        if (nanos >= 1e3) {
            return String.format("%.2f us", nanos / 1e3);
        }
        return String.format("%.2f ns", nanos);
    }

    private void print() {
        for (String kib : new String[] {"1k", "64k", "1024k"}) {
            atMost("Media event " + kib.replace("1024k", "1 MiB").replace("k", " KiB")
                            + ", default mode vs bare floor",
                    "media.default." + kib + ".bridge", "media.default." + kib + ".floor", 1.1);
        }
        compared("Media event 1 KiB, default mode vs JNA default callback",
                "media.default.1k.bridge", "media.default.1k.jna");
        atMost("Media event 1 KiB, attached mode vs attached-once limit",
                "media.attached.1k.bridge", "media.attached.1k.limit", 1.5);
        fasterBy("Media event 1 KiB, attached mode vs JNA kept attached",
                "media.attached.1k.bridge", "media.attached.1k.jna-kept", 3);
        double cpuOne = median("media.attached.1k.bridge.cpu");
        double cpuTwo = median("media.attached.1k.bridge-2threads.cpu");
        table.append(String.format("| %-50s | %12s | %12s | %-13s | %-15s | %-16s |%n",
                "  processor time per event, 2 vs 1 library threads", time(cpuTwo), time(cpuOne),
                String.format("%.2fx", cpuTwo / cpuOne), "-", "-"));
        double one = median("media.attached.1k.bridge");
        double two = median("media.attached.1k.bridge-2threads");
        row("Media events/s, attached mode, 2 vs 1 library threads (elapsed)", two, one,
                String.format("%.2fx events/s", one / two), ">= 1.50x", one / two >= 1.5,
                String.format("%.2fx", one / two));
        atMost("Scalar native vs empty native", "native.scalar.bridge", "native.empty", 1.2);
        double bridgeShare = get("native.scalar.bridge") - get("native.standin-from-c");
        table.append(String.format("| %-50s | %12s | %12s | %-13s | %-15s | %-16s |%n",
                "  the same less the stand-in's own time (from C)", time(bridgeShare),
                time(get("native.empty")),
                String.format("%.2fx", bridgeShare / get("native.empty")), "-", "-"));
        compared("Scalar native vs JNA direct mapping", "native.scalar.bridge",
                "native.scalar.jna-direct");
        compared("Scalar native vs JNA interface mapping", "native.scalar.bridge",
                "native.scalar.jna-interface");
        fasterBy("PTZ command vs JNA Structure by reference", "ptz.bridge", "ptz.jna-structure",
                20);
        fasterBy("1,000 device records vs JNA Structure array", "devices.bridge",
                "devices.jna-structure-array", 10);
        for (String codec : new String[] {"AlawEncode", "UlawEncode", "UlawDecode"}) {
            String key = "codec.BM_" + codec;
            double perSample = get(key);
            row("G.711 " + codec + " per sample (target <= 0.6 ns)", perSample,
                    get("codec.BM_Plain64KiBLookup"),
                    String.format("%.2fx", perSample / get("codec.BM_Plain64KiBLookup")),
                    "< 1x of 64 KiB", perSample <= 0.6 && perSample < get("codec.BM_Plain64KiBLookup"),
                    perSample > 0.6 ? String.format("%.2f ns", perSample) : "slower than lookup");
        }
        System.out.printf("| %-50s | %12s | %12s | %-13s | %-15s | %-16s |%n", "Measure", "Bridge",
                "Baseline", "Ratio", "Target", "Result");
        System.out.printf("|%s|%s|%s|%s|%s|%s|%n", "-".repeat(52), "-".repeat(14), "-".repeat(14),
                "-".repeat(15), "-".repeat(17), "-".repeat(18));
        System.out.print(table);
        System.out.printf("%s; %d target(s) missed; %d cores; %s %s%n",
                clock.isEmpty() ? "elapsed time" : "processor time", missed,
                Runtime.getRuntime().availableProcessors(), System.getProperty("java.vm.name"),
                System.getProperty("java.version"));
    }
}
