package bridgetest;

import static bridgetest.CallbackCases.HANDLE;
import static bridgetest.CallbackCases.SEQ;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNull;

import bridgetest.CallbackCases.Case;
import com.zq.OrvexCore.Get_RealStream_Info_t;
import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.Return_Value_Info_t;
import java.lang.management.ManagementFactory;
import java.lang.management.ThreadMXBean;
import java.lang.ref.WeakReference;
import java.lang.reflect.Proxy;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.LinkedHashMap;
import java.util.List;
import java.util.Map;
import java.util.concurrent.ConcurrentLinkedQueue;
import java.util.concurrent.atomic.AtomicBoolean;
import java.util.concurrent.atomic.AtomicIntegerArray;
import java.util.concurrent.atomic.AtomicLong;
import org.junit.jupiter.api.Tag;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.api.TestReporter;
import simctl.BridgeInternals;
import simctl.SimControl;

/**
 * Events of every kind from many stand-in threads at once, round after round, while one Java
 * thread replaces listeners and registers and removes them on a second instance, and another
 * calls natives. Every event must arrive exactly once with its byte arrays whole, every library
 * thread must be detached afterwards, and native memory (VmRSS) and the Java heap must stay flat.
 *
 * <p>The run lasts {@value #SECONDS_PROPERTY} seconds (default 3, as CI runs it; README says how
 * to run it for hours) in a JVM of its own. Memory is measured after a second of warm-up, in a
 * process with a fixed, pre-touched heap and two allocator arenas, so that VmRSS follows native
 * memory: over a minute it stays within a few megabytes, while a short run still sees up to
 * some 20 MiB of JIT code and other warm-up. It may grow by a fixed slack for that (and for the
 * listeners' global references the bridge keeps on purpose) plus 8 bytes per event: a leak of
 * about a kilobyte per event fails the short CI run, one of a few tens of bytes per event a run
 * of ten minutes or more.
 */
class SoakTest {
    static final String SECONDS_PROPERTY = "orvex.soak.seconds";
    /** A second instance, where listeners are registered and removed while events flow. */
    private static final int OTHER_HANDLE = HANDLE + 1;
    private static final int THREADS_PER_KIND = 2;
    private static final int EVENTS_PER_THREAD = 500;
    private static final int PER_KIND = THREADS_PER_KIND * EVENTS_PER_THREAD;
    private static final long MB = 1 << 20;
    private static final int MAX_PAYLOAD = 8192;
    private static final long WARM_UP_NANOS = 1_000_000_000L;
    private static final long RSS_SLACK = 48 * MB;
    private static final long RSS_PER_MILLION_EVENTS = 8 * MB;
    private static final long HEAP_SLACK = 16 * MB;
    private static final long HEAP_PER_MILLION_EVENTS = 4 * MB;

    /**
     * One kind under load: the event it fires, the C argument that numbers each event and the
     * Java argument where the number arrives, and a count per number.
     */
    private record Stream(Case c, int stampC, int stampJava, AtomicIntegerArray seen,
            Object[] listeners) {}

    private final ConcurrentLinkedQueue<String> faults = new ConcurrentLinkedQueue<>();
    /** Churn passes: replacing a listener and registering and removing one, or native calls. */
    private final AtomicLong churned = new AtomicLong();

    /** A fixed heap touched at start: VmRSS then moves with native memory only. */
    private static final List<String> HEAP = List.of("-Xms96m", "-Xmx96m", "-XX:+AlwaysPreTouch");

    @Test
    void everyKindButBayRecordsUnderLoadWithListenerChurn(TestReporter reporter) throws Exception {
        List<String> options = new ArrayList<>(HEAP);
        options.add("-Xcheck:jni");
        runChild(reporter, options, false);
    }

    /** Bay records: without -Xcheck:jni, for the double deletion the bay trampoline keeps. */
    @Test
    @Tag(CallbackCases.UNCHECKED_JNI)
    void everyKindWithBayRecordsUnderLoadWithListenerChurn(TestReporter reporter)
            throws Exception {
        runChild(reporter, HEAP, true);
    }

    private static void runChild(TestReporter reporter, List<String> options, boolean withBays)
            throws Exception {
        long seconds = Long.getLong(SECONDS_PROPERTY, 3);
        // Two allocator arenas: with one per busy thread, their high-water marks wander by tens
        // of megabytes between runs and would hide a leak or fake one.
        ChildJvm.Result r = ChildJvm.start(Child.class, options, Map.of("MALLOC_ARENA_MAX", "2"),
                String.valueOf(seconds), String.valueOf(withBays));
        for (String line : r.stdout().split("\n")) {
            int at = line.indexOf("SOAK ");
            if (at >= 0) {
                reporter.publishEntry("soak", line.substring(at + 5));
            }
        }
        assertEquals(0, r.exitCode(), r.stdout());
        assertNull(r.jniCheckReport(), r.stdout());
    }

    /** Runs in the child JVM: arguments are the seconds to run and whether bays fire. */
    public static final class Child {
        public static void main(String[] args) throws Exception {
            try {
                System.out.println("SOAK " + new SoakTest().soak(Long.parseLong(args[0]),
                        Boolean.parseBoolean(args[1])));
            } catch (AssertionError e) {
                System.out.println("SOAK failed: " + e.getMessage());
                System.exit(1);
            }
        }
    }

    /** Runs the soak and returns its summary; throws AssertionError when a check fails. */
    private String soak(long seconds, boolean withBays) throws Exception {
        List<Stream> streams = streams(withBays);
        ThreadMXBean threads = ManagementFactory.getThreadMXBean();
        int threadsBefore = threads.getThreadCount();

        // Warm-up: JIT, class loading, the allocator's arenas and the collector's sizing.
        long warm = System.nanoTime() + WARM_UP_NANOS;
        for (int i = 0; i < 2 || System.nanoTime() < warm; i++) {
            round(streams);
        }
        Memory before = Memory.now();
        long events = 0;
        int rounds = 0;
        long end = System.nanoTime() + seconds * 1_000_000_000L;
        do {
            events += round(streams);
            rounds++;
        } while (System.nanoTime() < end && faults.isEmpty());
        Memory after = Memory.now();
        long rssGrowth = after.rss() - before.rss();
        long heapGrowth = after.heapUsed() - before.heapUsed();
        String summary = String.format(
                "%d events of %d kinds in %d rounds over %d s, %d churn passes; VmRSS %+d KiB, "
                        + "heap in use %+d KiB",
                events, streams.size(), rounds, seconds, churned.get(), rssGrowth / 1024,
                heapGrowth / 1024);
        require(faults.isEmpty(), "faults: " + faults);
        for (int i = 0; i < 500 && threads.getThreadCount() != threadsBefore; i++) {
            Thread.sleep(10);
        }
        require(threads.getThreadCount() == threadsBefore,
                "every attached thread detached: " + threads.getThreadCount() + " threads, "
                        + threadsBefore + " before");
        double millions = events / 1e6;
        // The sanitizer runtime keeps freed memory in quarantine, so VmRSS grows by design
        // there; its leak checker watches native memory at exit instead.
        boolean sanitized = String.valueOf(System.getenv("LD_PRELOAD")).contains("libasan");
        require(sanitized || rssGrowth <= RSS_SLACK + RSS_PER_MILLION_EVENTS * millions,
                "native memory grew: " + summary);
        require(heapGrowth <= HEAP_SLACK + HEAP_PER_MILLION_EVENTS * millions,
                "Java heap grew: " + summary);
        return summary;
    }

    /**
     * The event of each kind (bay records only when asked) that carries the most bytes up to
     * {@value #MAX_PAYLOAD}, so that a payload copy left behind shows, numbered through an int
     * argument that the listener receives unchanged.
     */
    private List<Stream> streams(boolean withBays) {
        Map<String, Case> chosen = new LinkedHashMap<>();
        for (Case c : CallbackCases.all()) {
            if ((!withBays && CallbackCases.firesBayRecords(c)) || stampPositions(c) == null
                    || payload(c) > MAX_PAYLOAD) {
                continue;
            }
            Case seen = chosen.get(c.kind());
            if (seen == null || payload(c) > payload(seen)) {
                chosen.put(c.kind(), c);
            }
        }
        List<Stream> out = new ArrayList<>();
        require(chosen.size() == (withBays ? 16 : 15), "kinds under load: " + chosen.keySet());
        for (Case c : chosen.values()) {
            int[] stamp = stampPositions(c);
            AtomicIntegerArray seen = new AtomicIntegerArray(PER_KIND);
            // Two listeners that count into the same array, so that replacing one by the other
            // while events flow loses nothing.
            Object[] listeners = {listener(c, stamp[1], seen), listener(c, stamp[1], seen)};
            out.add(new Stream(c, stamp[0], stamp[1], seen, listeners));
        }
        return out;
    }

    private static int payload(Case c) {
        int n = 0;
        for (Object a : c.fire()) {
            n += a instanceof byte[] b ? b.length : 0;
        }
        return n;
    }

    /**
     * The C argument to number events in, and the Java argument where it arrives: an int that
     * the listener receives as the same Integer, in one position only (the handle if nothing
     * else qualifies); null when no argument does.
     */
    private static int[] stampPositions(Case c) {
        int[] fallback = null;
        for (int i = 0; i < c.fire().length; i++) {
            if (!(c.fire()[i] instanceof Integer v)) {
                continue;
            }
            int at = -1;
            int matches = 0;
            for (int j = 0; j < c.expected().length; j++) {
                if (v.equals(c.expected()[j])) {
                    at = j;
                    matches++;
                }
            }
            if (matches != 1) {
                continue;
            }
            if (v != HANDLE) {
                return new int[] {i, at};
            }
            fallback = new int[] {i, at};
        }
        return fallback;
    }

    private Object listener(Case c, int stampJava, AtomicIntegerArray seen) {
        try {
            Class<?> iface = Class.forName("com.zq.OrvexCore." + c.kind());
            int arity = c.expected().length;
            return Proxy.newProxyInstance(iface.getClassLoader(), new Class<?>[] {iface},
                    (proxy, method, args) -> {
                        switch (method.getName()) {
                            case "invoke" -> {
                                int stamp = (Integer) args[stampJava];
                                if (args.length != arity || stamp < 0 || stamp >= PER_KIND
                                        || !textsIntact(c.expected(), args)) {
                                    faults.add(c.kind() + " event " + stamp);
                                } else {
                                    seen.incrementAndGet(stamp);
                                }
                                return null;
                            }
                            case "hashCode" -> {
                                return System.identityHashCode(proxy);
                            }
                            case "equals" -> {
                                return proxy == args[0];
                            }
                            default -> {
                                return c.kind() + " soak listener";
                            }
                        }
                    });
        } catch (ClassNotFoundException e) {
            throw new AssertionError(e);
        }
    }

    /** Whether each byte[] argument arrived whole: its length and its last byte as fired. */
    private static boolean textsIntact(Object[] expected, Object[] args) {
        for (int i = 0; i < expected.length; i++) {
            if (expected[i] instanceof byte[] want) {
                if (!(args[i] instanceof byte[] got) || got.length != want.length
                        || (want.length > 0 && got[got.length - 1] != want[want.length - 1])) {
                    return false;
                }
            }
        }
        return true;
    }

    /** Registers {@code listener} for the stream's kind, by its setter or directly. */
    private static void register(Stream s, int handle, Object listener) throws Exception {
        if (s.c().setter() == null) {
            SimControl.install(s.c().kind(), handle, SEQ,
                    BridgeInternals.trampoline(s.c().kind()), listener);
        } else {
            CallbackCases.set(s.c(), handle, listener);
        }
    }

    /**
     * One round: every kind fires {@value #PER_KIND} numbered events from its own stand-in
     * threads while the churn runs; then each number must have arrived exactly once. The
     * stand-in's call log is cleared first, so that it does not grow over a long run.
     */
    private long round(List<Stream> streams) throws Exception {
        SimControl.reset();
        for (Stream s : streams) {
            for (int i = 0; i < PER_KIND; i++) {
                s.seen().set(i, 0);
            }
            register(s, HANDLE, s.listeners()[0]);
        }
        AtomicBoolean firing = new AtomicBoolean(true);
        List<Thread> churn = List.of(
                new Thread(() -> churnListeners(streams, firing), "soak-listeners"),
                new Thread(() -> churnNatives(streams, firing), "soak-natives"));
        List<Thread> fire = new ArrayList<>();
        for (Stream s : streams) {
            fire.add(new Thread(() -> {
                long delivered = SimControl.fireMany(s.c().kind(), HANDLE, SEQ, s.c().fire(),
                        THREADS_PER_KIND, EVENTS_PER_THREAD, s.stampC());
                if (delivered != PER_KIND) {
                    faults.add(s.c().kind() + " fired " + delivered);
                }
            }, "soak-fire-" + s.c().kind()));
        }
        churn.forEach(Thread::start);
        fire.forEach(Thread::start);
        for (Thread t : fire) {
            t.join();
        }
        firing.set(false);
        for (Thread t : churn) {
            t.join();
        }
        for (Stream s : streams) {
            for (int i = 0; i < PER_KIND; i++) {
                if (s.seen().get(i) != 1) {
                    faults.add(s.c().kind() + " event " + i + " arrived " + s.seen().get(i)
                            + " times");
                    break;
                }
            }
        }
        return (long) streams.size() * PER_KIND;
    }

    /**
     * While events flow: replace each kind's listener on the fired instance (by the other
     * listener of the same count), register and remove it on a second instance. The listeners
     * are made once, so that the heap measures the bridge.
     */
    private void churnListeners(List<Stream> streams, AtomicBoolean firing) {
        whileFiring(firing, n -> {
            Stream s = streams.get((int) (n % streams.size()));
            register(s, HANDLE, s.listeners()[(int) (n / streams.size() % 2)]);
            register(s, OTHER_HANDLE, s.listeners()[1]);
            register(s, OTHER_HANDLE, null);
        });
    }

    /** While events flow: open a stream on the second instance with a listener, query a channel. */
    private void churnNatives(List<Stream> streams, AtomicBoolean firing) {
        Object media = null;
        for (Stream s : streams) {
            if (s.c().kind().equals("MediaDataCallback")) {
                media = s.listeners()[0];
            }
        }
        Object listener = media;
        Return_Value_Info_t holder = new Return_Value_Info_t();
        Get_RealStream_Info_t request = new Get_RealStream_Info_t();
        byte[] cameraId = CallbackCases.b("cam-1");
        whileFiring(firing, n -> {
            IOrvexCore.ORVEX_GetRealStream(OTHER_HANDLE, holder, request, listener, 1);
            IOrvexCore.ORVEX_GetChannelStatus(OTHER_HANDLE, cameraId, holder);
        });
    }

    private interface Pass {
        void run(long n) throws Exception;
    }

    /** Runs passes a millisecond apart until the round's firing ends. */
    private void whileFiring(AtomicBoolean firing, Pass pass) {
        try {
            for (long n = 0; firing.get(); n++) {
                pass.run(n);
                churned.incrementAndGet();
                Thread.sleep(1);
            }
        } catch (Exception e) {
            faults.add("churn: " + e);
        }
    }

    /** The child JVM has no JUnit: a failed check is an AssertionError, which ends it. */
    private static void require(boolean ok, String what) {
        if (!ok) {
            throw new AssertionError(what);
        }
    }

    /** Resident memory of the process, and the Java heap in use once the collector has run. */
    private record Memory(long rss, long heapUsed) {
        static Memory now() throws Exception {
            WeakReference<Object> probe = new WeakReference<>(new Object());
            for (int i = 0; i < 100 && probe.get() != null; i++) {
                System.gc();
                Thread.sleep(10);
            }
            System.gc();
            return new Memory(
                    vmRss(), ManagementFactory.getMemoryMXBean().getHeapMemoryUsage().getUsed());
        }

        private static long vmRss() throws Exception {
            for (String line : Files.readAllLines(Path.of("/proc/self/status"))) {
                if (line.startsWith("VmRSS:")) {
                    return Long.parseLong(line.replaceAll("[^0-9]", "")) * 1024;
                }
            }
            throw new AssertionError("no VmRSS in /proc/self/status");
        }
    }
}
