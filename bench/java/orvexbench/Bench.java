package orvexbench;

import com.sun.jna.Native;
import com.sun.jna.Pointer;
import com.zq.OrvexCore.Device_Info_Ex_t;
import com.zq.OrvexCore.Get_Dep_Info_t;
import com.zq.OrvexCore.Get_RealStream_Info_t;
import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.MediaDataCallback;
import com.zq.OrvexCore.Ptz_Direct_Info_t;
import com.zq.OrvexCore.Return_Value_Info_t;
import java.lang.management.ManagementFactory;
import java.lang.management.ThreadMXBean;
import java.util.Arrays;
import java.util.function.IntConsumer;

/**
 * Measures the bridge against its baselines and JNA on the stand-in library with recording off
 * ({@code ORVEX_SIM_RECORD=off}). Prints one line {@code RESULT <name> <nanoseconds per
 * operation>} per measurement: the median of several repetitions after a warm-up.
 *
 * <p>Usage: {@code Bench default|attached full|smoke}. The first word must match how the JVM
 * was started: {@code attached} runs only the measurements that need
 * {@code -Dorvex.events.threads=attached}. {@code smoke} runs every measurement once with a tiny
 * count.
 */
public final class Bench {
    private static final int HANDLE = 1;
    private static final int KIB = 1024;
    private static final int DEVICES = 1000;

    /**
     * One timed batch of {@code n} operations; returns the elapsed nanoseconds and the
     * processor nanoseconds the work used.
     */
    private interface Batch {
        long[] run(int n);
    }

    private static final ThreadMXBean THREADS = ManagementFactory.getThreadMXBean();

    /** A batch timed on the calling thread. */
    private static Batch onThisThread(IntConsumer work) {
        return n -> {
            long cpu = THREADS.getCurrentThreadCpuTime();
            long wall = System.nanoTime();
            work.accept(n);
            return new long[] {System.nanoTime() - wall, THREADS.getCurrentThreadCpuTime() - cpu};
        };
    }

    /**
     * The listener every media measurement delivers to: it reads what it receives, and writes
     * nothing shared (threads delivering at once must not contend on it).
     */
    static final class Sink implements MediaDataCallback {
        long seen;

        @Override
        public void invoke(int handle, int seq, int mediaType, byte[] nodeId, int paramVal,
                byte[] data, int dataLen) {
            if (nodeId.length + data.length + (dataLen > 0 ? data[dataLen - 1] : 0) == -1) {
                seen++;
            }
        }
    }

    private final boolean smoke;
    private final int repetitions;
    private final double targetNanos;
    private long blackhole;

    private Bench(boolean smoke) {
        this.smoke = smoke;
        this.repetitions = smoke ? 1 : 12;
        this.targetNanos = 60e6;
    }

    public static void main(String[] args) {
        if (args.length != 2) {
            System.err.println("usage: Bench default|attached full|smoke");
            System.exit(2);
        }
        boolean attached = args[0].equals("attached");
        if (attached != "attached".equals(System.getProperty("orvex.events.threads"))) {
            System.err.println("Bench " + args[0] + " needs the JVM started accordingly");
            System.exit(2);
        }
        Bench bench = new Bench(args[1].equals("smoke"));
        if (attached) {
            bench.attachedMedia();
        } else {
            bench.natives();
            bench.defaultMedia();
        }
    }

    /** One measurement: its name, its batch, operations per batch item, time per batch. */
    private record Case(String name, Batch batch, int opsPerRun, double target) {}

    private Case timed(String name, Batch batch) {
        return new Case(name, batch, 1, targetNanos);
    }

    /**
     * Sizes each case's batch to its target time while warming it up, then runs the cases'
     * repetitions interleaved (so that a compared pair meets the same machine load) and reports
     * each one's median nanoseconds per operation.
     */
    private void measure(Case... cases) {
        int[] n = new int[cases.length];
        double[][] wallPerOp = new double[cases.length][repetitions];
        double[][] cpuPerOp = new double[cases.length][repetitions];
        for (int c = 0; c < cases.length; c++) {
            n[c] = 1;
            if (smoke) {
                continue;
            }
            long warm = 0;
            long elapsed;
            while ((elapsed = cases[c].batch().run(n[c])[0]) < cases[c].target() / 2
                    || warm < 3 * cases[c].target()) {
                warm += elapsed;
                if (elapsed < cases[c].target() / 2) {
                    n[c] *= 2;
                }
            }
        }
        // Each repetition starts with the next case: a batch pays for what the one before it
        // left behind (threads to reap, memory to collect), so no case may always come first.
        for (int r = 0; r < repetitions; r++) {
            for (int j = 0; j < cases.length; j++) {
                int c = (r + j) % cases.length;
                long[] t = cases[c].batch().run(n[c]);
                double ops = (double) n[c] * cases[c].opsPerRun();
                wallPerOp[c][r] = t[0] / ops;
                cpuPerOp[c][r] = t[1] / ops;
            }
        }
        for (int c = 0; c < cases.length; c++) {
            Arrays.sort(wallPerOp[c]);
            Arrays.sort(cpuPerOp[c]);
            System.out.printf("RESULT %s %.3f%n", cases[c].name(), wallPerOp[c][repetitions / 2]);
            System.out.printf("RESULT %s.cpu %.3f%n", cases[c].name(),
                    cpuPerOp[c][repetitions / 2]);
        }
    }

    // ---- Java -> native

    private void natives() {
        measure(timed("native.empty", onThisThread(n -> {
            for (int i = 0; i < n; i++) {
                blackhole += Natives.empty(HANDLE, i, 0);
            }
        })), timed("native.scalar.bridge", onThisThread(n -> {
            for (int i = 0; i < n; i++) {
                blackhole += IOrvexCore.ORVEX_CloseRealStreamBySeq(HANDLE, i, 0);
            }
        })), timed("native.standin-from-c", onThisThread(n -> blackhole += Natives.standIn(n))),
                timed("native.scalar.jna-direct", onThisThread(n -> {
            for (int i = 0; i < n; i++) {
                blackhole += Jna.Direct.ORVEX_CloseRealStreamBySeq(HANDLE, i, 0);
            }
        })), timed("native.scalar.jna-interface", onThisThread(n -> {
            for (int i = 0; i < n; i++) {
                blackhole += Jna.Core.INSTANCE.ORVEX_CloseRealStreamBySeq(HANDLE, i, 0);
            }
        })));

        Ptz_Direct_Info_t ptz = new Ptz_Direct_Info_t();
        System.arraycopy("camera-0001".getBytes(), 0, ptz.szCameraId, 0, 11);
        ptz.nDirect = 3;
        ptz.nStep = 5;
        Jna.PtzDirect jnaPtz = new Jna.PtzDirect();
        check(jnaPtz.size() == 76, "Ptz_Direct_Info_t is 76 bytes through JNA");
        System.arraycopy("camera-0001".getBytes(), 0, jnaPtz.szCameraId, 0, 11);
        jnaPtz.nDirect = 3;
        jnaPtz.nStep = 5;
        measure(timed("ptz.bridge", onThisThread(n -> {
            for (int i = 0; i < n; i++) {
                blackhole += IOrvexCore.ORVEX_PtzDirection(HANDLE, ptz, 1000);
            }
        })), timed("ptz.jna-structure", onThisThread(n -> {
            for (int i = 0; i < n; i++) {
                blackhole += Jna.Core.INSTANCE.ORVEX_PtzDirection(HANDLE, jnaPtz, 1000);
            }
        })));

        // The bridge keeps the C records of a successful read (1.5 MB per call here): the run
        // is kept short so that this stays a few hundred megabytes.
        Get_Dep_Info_t group = new Get_Dep_Info_t(0, DEVICES);
        Jna.DeviceInfoEx[] devices = (Jna.DeviceInfoEx[]) new Jna.DeviceInfoEx().toArray(DEVICES);
        check(devices[0].size() == 1480, "Device_Info_Ex_t is 1480 bytes through JNA");
        Jna.GetDepInfo jnaGroup = new Jna.GetDepInfo();
        check(jnaGroup.size() == 160, "Get_Dep_Info_t is 160 bytes through JNA");
        measure(new Case("devices.bridge", onThisThread(n -> {
            for (int i = 0; i < n; i++) {
                blackhole += IOrvexCore.ORVEX_GetDGroupInfo(HANDLE, group);
            }
            Device_Info_Ex_t last = group.pDeviceInfo[DEVICES - 1];
            blackhole += last.nPort + last.szId[0];
        }), 1, 10e6), new Case("devices.jna-structure-array", onThisThread(n -> {
            for (int i = 0; i < n; i++) {
                jnaGroup.nDeviceCount = DEVICES;
                jnaGroup.pDeviceInfo = devices[0].getPointer();
                blackhole += Jna.Core.INSTANCE.ORVEX_GetDGroupInfo(HANDLE, jnaGroup);
                for (Jna.DeviceInfoEx d : devices) {
                    d.read();
                }
            }
            blackhole += devices[DEVICES - 1].nPort + devices[DEVICES - 1].szId[0];
        }), 1, 10e6));
    }

    // ---- native -> Java

    /** The bridge's media trampoline as the stand-in keeps it for a stream opened to {@code sink}. */
    private static long[] bridgeMedia(Sink sink) {
        Return_Value_Info_t seq = new Return_Value_Info_t();
        Get_RealStream_Info_t info = new Get_RealStream_Info_t();
        check(IOrvexCore.ORVEX_GetRealStream(HANDLE, seq, info, sink, 1000) == 0, "stream opened");
        long[] callback = Natives.streamCallback(HANDLE, seq.nReturnValue);
        check(callback[0] != 0, "the stand-in keeps the stream's callback");
        return callback;
    }

    private Batch driven(long[] callback, int bytes, int threads) {
        return n -> {
            long[] wallAndCpu = new long[2];
            Natives.drive(callback[0], callback[1], n, bytes, threads, wallAndCpu);
            return wallAndCpu;
        };
    }

    private static Batch drivenByJna(Jna.Driver driver, Jna.MediaCallbackC callback) {
        return n -> {
            long[] cpu = new long[1];
            long wall = driver.orvexbench_drive(callback, Pointer.NULL, n, KIB, 1, cpu);
            return new long[] {wall, cpu[0]};
        };
    }

    private void defaultMedia() {
        Sink sink = new Sink();
        long[] bridge = bridgeMedia(sink);
        long[] floor = Natives.baseline(false, sink);
        Jna.Driver driver = Native.load(System.getProperty("orvex.bench.library"), Jna.Driver.class);
        Jna.MediaCallbackC jna = Jna.media(sink, false);
        measure(timed("media.default.1k.bridge", driven(bridge, KIB, 1)),
                timed("media.default.1k.floor", driven(floor, KIB, 1)),
                timed("media.default.1k.jna", drivenByJna(driver, jna)));
        for (int kib : new int[] {64, 1024}) {
            measure(timed("media.default." + kib + "k.bridge", driven(bridge, kib * KIB, 1)),
                    timed("media.default." + kib + "k.floor", driven(floor, kib * KIB, 1)));
        }
        blackhole += sink.seen;
    }

    private void attachedMedia() {
        Sink sink = new Sink();
        long[] bridge = bridgeMedia(sink);
        long[] limit = Natives.baseline(true, sink);
        Jna.Driver driver = Native.load(System.getProperty("orvex.bench.library"), Jna.Driver.class);
        Jna.MediaCallbackC jna = Jna.media(sink, true);
        measure(timed("media.attached.1k.bridge", driven(bridge, KIB, 1)),
                new Case("media.attached.1k.bridge-2threads", driven(bridge, KIB, 2), 2,
                        targetNanos),
                timed("media.attached.1k.limit", driven(limit, KIB, 1)),
                timed("media.attached.1k.jna-kept", drivenByJna(driver, jna)));
        blackhole += sink.seen;
    }

    private static void check(boolean ok, String what) {
        if (!ok) {
            throw new IllegalStateException("benchmark set-up failed: " + what);
        }
    }
}
