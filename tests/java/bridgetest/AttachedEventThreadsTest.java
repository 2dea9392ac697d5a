package bridgetest;

import static bridgetest.CallbackCases.HANDLE;
import static bridgetest.CallbackCases.SEQ;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotSame;
import static org.junit.jupiter.api.Assertions.assertSame;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.MediaDataCallback;
import com.zq.OrvexCore.ORVEXStatusCallback;
import java.lang.management.ManagementFactory;
import java.lang.management.ThreadMXBean;
import java.util.HashSet;
import java.util.List;
import java.util.Set;
import java.util.concurrent.CopyOnWriteArrayList;
import java.util.concurrent.atomic.AtomicIntegerArray;
import java.util.concurrent.atomic.AtomicReferenceArray;
import org.junit.jupiter.api.BeforeEach;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.api.condition.EnabledIfSystemProperty;
import simctl.BridgeInternals;
import simctl.SimControl;

/**
 * Event threads kept attached ({@code -Dorvex.events.threads=attached}, its own test JVM): each
 * library thread becomes one Java thread for all its events, a listener's exception still
 * reaches the uncaught-exception handler, and the threads leave the virtual machine when the
 * library ends them.
 */
@EnabledIfSystemProperty(named = "orvex.events.threads", matches = "attached")
class AttachedEventThreadsTest {
    private static final ThreadMXBean THREADS = ManagementFactory.getThreadMXBean();
    private static final int LIBRARY_THREADS = 6;
    private static final int EVENTS_PER_THREAD = 3000;
    private static final int EVENTS = LIBRARY_THREADS * EVENTS_PER_THREAD;

    @BeforeEach
    void resetStandIn() {
        SimControl.reset();
    }

    private static void awaitThreadCount(int expected) throws InterruptedException {
        for (int i = 0; i < 200 && THREADS.getThreadCount() != expected; i++) {
            Thread.sleep(10);
        }
        assertEquals(expected, THREADS.getThreadCount(), "every library thread detached");
    }

    @Test
    void eachLibraryThreadIsOneJavaThreadForAllItsEventsAndLeavesWhenItEnds() throws Exception {
        AtomicIntegerArray seen = new AtomicIntegerArray(EVENTS);
        AtomicReferenceArray<Thread> on = new AtomicReferenceArray<>(EVENTS);
        IOrvexCore.ORVEX_SetORVEXStatusCallback(HANDLE, (ORVEXStatusCallback) (h, event) -> {
            seen.incrementAndGet(event);
            on.set(event, Thread.currentThread());
        });
        int liveBefore = THREADS.getThreadCount();
        long startedBefore = THREADS.getTotalStartedThreadCount();

        assertEquals(EVENTS, SimControl.fireMany("ORVEXStatusCallback", HANDLE, SEQ,
                new Object[] {HANDLE, 0}, LIBRARY_THREADS, EVENTS_PER_THREAD, 1));

        Set<Thread> javaThreads = new HashSet<>();
        for (int t = 0; t < LIBRARY_THREADS; t++) {
            Thread first = on.get(t * EVENTS_PER_THREAD);
            assertNotSame(Thread.currentThread(), first);
            assertTrue(first.isDaemon(), "attached as a daemon");
            for (int e = 0; e < EVENTS_PER_THREAD; e++) {
                int event = t * EVENTS_PER_THREAD + e;
                assertEquals(1, seen.get(event), "event " + event);
                assertSame(first, on.get(event), "library thread " + t + " event " + e);
            }
            javaThreads.add(first);
        }
        assertEquals(LIBRARY_THREADS, javaThreads.size(), "one Java thread per library thread");
        long started = THREADS.getTotalStartedThreadCount() - startedBefore;
        assertTrue(started >= LIBRARY_THREADS && started < 2 * LIBRARY_THREADS,
                "attached once per library thread, not per event: " + started);
        for (Thread t : javaThreads) {
            assertTrue(!t.isAlive(), "detached when the library ended it");
        }
        awaitThreadCount(liveBefore);
    }

    @Test
    void aListenersExceptionReachesTheHandlerAndLeavesNothingPending() throws Exception {
        RuntimeException boom = new RuntimeException("listener failed");
        List<Integer> delivered = new CopyOnWriteArrayList<>();
        IOrvexCore.ORVEX_SetORVEXStatusCallback(HANDLE, (ORVEXStatusCallback) (h, event) -> {
            delivered.add(event);
            if (event % 2 == 0) {
                throw boom;
            }
        });
        List<Throwable> caught = new CopyOnWriteArrayList<>();
        List<Thread> where = new CopyOnWriteArrayList<>();
        Thread.UncaughtExceptionHandler previous = Thread.getDefaultUncaughtExceptionHandler();
        Thread.setDefaultUncaughtExceptionHandler((t, e) -> {
            where.add(t);
            caught.add(e);
        });
        try {
            assertEquals(4, SimControl.fireMany("ORVEXStatusCallback", HANDLE, SEQ,
                    new Object[] {HANDLE, 0}, 1, 4, 1));
        } finally {
            Thread.setDefaultUncaughtExceptionHandler(previous);
        }

        // Events after a throw still arrive: the exception did not stay pending on the thread.
        assertEquals(List.of(0, 1, 2, 3), delivered);
        assertEquals(List.of(boom, boom), caught);
        assertEquals(2, where.size());
        assertSame(where.get(0), where.get(1));
        assertNotSame(Thread.currentThread(), where.get(0));
    }

    /** A media listener that records who it is, for each event, and on which thread. */
    private record Delivery(String listener, int param, Thread thread) {}

    /** Two media listener classes, so that the thread's remembered method must change. */
    private static final class First implements MediaDataCallback {
        final List<Delivery> got;

        First(List<Delivery> got) {
            this.got = got;
        }

        @Override
        public void invoke(int h, int seq, int type, byte[] node, int param, byte[] data, int len) {
            got.add(new Delivery("first", param, Thread.currentThread()));
        }
    }

    private static final class Second implements MediaDataCallback {
        final List<Delivery> got;

        Second(List<Delivery> got) {
            this.got = got;
        }

        @Override
        public void invoke(int h, int seq, int type, byte[] node, int param, byte[] data, int len) {
            got.add(new Delivery("second", param, Thread.currentThread()));
        }
    }

    @Test
    void aThreadServingListenersOfSeveralClassesCallsEachOnesOwnInvoke() {
        List<Delivery> got = new CopyOnWriteArrayList<>();
        long trampoline = BridgeInternals.trampoline("MediaDataCallback");
        SimControl.install("MediaDataCallback", HANDLE, 7, trampoline, new First(got));
        SimControl.install("MediaDataCallback", HANDLE, 8, trampoline, new Second(got));
        // A subclass of neither, with the same signature: a third class on the same thread.
        SimControl.install("MediaDataCallback", HANDLE, 9, trampoline,
                (MediaDataCallback) (h, seq, type, node, param, data, len) ->
                        got.add(new Delivery("lambda", param, Thread.currentThread())));

        int[] streams = {7, 8, 8, 7, 9, 7, 9, 8};
        assertEquals(streams.length, SimControl.fireStreams(HANDLE, streams, 5));

        List<String> expected = List.of(
                "first", "second", "second", "first", "lambda", "first", "lambda", "second");
        assertEquals(expected, got.stream().map(Delivery::listener).toList());
        assertTrue(got.stream().allMatch(d -> d.param() == 5 && d.thread() == got.get(0).thread()),
                "every event on the one Java thread of the library thread");
    }
}
