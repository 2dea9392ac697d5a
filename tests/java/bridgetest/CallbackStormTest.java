package bridgetest;

import static bridgetest.CallbackCases.HANDLE;
import static bridgetest.CallbackCases.SEQ;
import static bridgetest.CallbackCases.b;
import static bridgetest.CallbackCases.binary;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.MediaDataCallback;
import com.zq.OrvexCore.ORVEXAlarmCallback;
import com.zq.OrvexCore.ORVEXDataChangeCallback;
import com.zq.OrvexCore.ORVEXGetBayCarInfoCallbackEx;
import com.zq.OrvexCore.ORVEXShareVideoCallback;
import com.zq.OrvexCore.ORVEXStatusCallback;
import java.lang.management.ManagementFactory;
import java.lang.management.ThreadMXBean;
import java.util.ArrayList;
import java.util.List;
import java.util.concurrent.ConcurrentLinkedQueue;
import java.util.concurrent.atomic.AtomicIntegerArray;
import org.junit.jupiter.api.BeforeEach;
import org.junit.jupiter.api.Tag;
import org.junit.jupiter.api.Test;
import simctl.BridgeInternals;
import simctl.SimControl;

/**
 * Many stand-in threads fire events of several kinds at once. Every event must arrive exactly
 * once with its payload intact, and every thread must be detached afterwards, in either way of
 * attaching event threads. JNI misuse under
 * this load shows up as -Xcheck:jni output, which fails the test run as a whole.
 */
class CallbackStormTest {
    private static final int THREADS_PER_KIND = 4;
    private static final int EVENTS_PER_THREAD = 2500;
    private static final int PER_KIND = THREADS_PER_KIND * EVENTS_PER_THREAD;

    /** One kind under load: each event's number arrives in argument {@code stampArg}. */
    private record Storm(String kind, Object[] args, int stampArg, AtomicIntegerArray seen) {}

    private final ConcurrentLinkedQueue<String> faults = new ConcurrentLinkedQueue<>();
    private final byte[] frame = binary(2000, 5);
    private final byte[] picture = binary(1000, 9);

    @BeforeEach
    void resetStandIn() {
        SimControl.reset();
    }

    private void check(boolean ok, String what) {
        if (!ok) {
            faults.add(what);
        }
    }

    private Storm status() {
        AtomicIntegerArray seen = new AtomicIntegerArray(PER_KIND);
        IOrvexCore.ORVEX_SetORVEXStatusCallback(
                HANDLE, (ORVEXStatusCallback) (h, s) -> seen.incrementAndGet(s));
        return new Storm("ORVEXStatusCallback", new Object[] {HANDLE, 0}, 1, seen);
    }

    private Storm alarms() {
        AtomicIntegerArray seen = new AtomicIntegerArray(PER_KIND);
        IOrvexCore.ORVEX_SetORVEXAlarmCallback(HANDLE, (ORVEXAlarmCallback)
                (h, id, dt, cam, dev, chn, code, msg, type, ev, level, time, data, dataLen, pic,
                        picLen) -> {
                    check(picLen == 1000 && pic.length == 1000 && pic[999] == picture[999],
                            "alarm picture");
                    check(cam.length == 5 && time == 1L << 40, "alarm camera and time");
                    seen.incrementAndGet(level);
                });
        return new Storm("ORVEXAlarmCallback",
                new Object[] {HANDLE, b("AL"), 1, b("cam-1"), b("d"), b("c"), b("k"), b("m"), 1,
                    1, 0, 1L << 40, b("\0\1"), 2, picture, 1000},
                10, seen);
    }

    private Storm media() {
        AtomicIntegerArray seen = new AtomicIntegerArray(PER_KIND);
        SimControl.install("MediaDataCallback", HANDLE, SEQ,
                BridgeInternals.trampoline("MediaDataCallback"),
                (MediaDataCallback) (h, seq, type, node, param, data, len) -> {
                    check(seq == SEQ && len == 2000 && data.length == 2000
                                    && data[1999] == frame[1999],
                            "media frame");
                    seen.incrementAndGet(param);
                });
        return new Storm("MediaDataCallback",
                new Object[] {HANDLE, SEQ, 1, b("node-1"), 0, frame, 2000}, 4, seen);
    }

    private Storm shares() {
        AtomicIntegerArray seen = new AtomicIntegerArray(PER_KIND);
        IOrvexCore.ORVEX_SetShareVideoCallback(HANDLE,
                (ORVEXShareVideoCallback) (h, videos, msg, user, name) -> {
                    check(videos.length == 1 && videos[0].nPlanId == 77 && msg.length == 3,
                            "shared video");
                    seen.incrementAndGet(user);
                });
        return new Storm("ORVEXShareVideoCallback",
                new Object[] {HANDLE,
                    CallbackCases.shareRecord(CallbackCases.cameraId("c"), 1, 0, 0, 77, 1), 1,
                    b("msg"), 0, b("me")},
                4, seen);
    }

    private Storm dataChanges() {
        AtomicIntegerArray seen = new AtomicIntegerArray(PER_KIND);
        SimControl.install("ORVEXDataChangeCallback", HANDLE, SEQ,
                BridgeInternals.trampoline("ORVEXDataChangeCallback"),
                (ORVEXDataChangeCallback) (h, change) -> {
                    check(change.nParam2 == 5 && change.szMsg1.length == 2, "data change");
                    seen.incrementAndGet(h);
                });
        return new Storm("ORVEXDataChangeCallback",
                new Object[] {HANDLE, new CRecord(6160).i64(8, 5).text(16, "hi").bytes()}, 0,
                seen);
    }

    private Storm bays() {
        AtomicIntegerArray seen = new AtomicIntegerArray(PER_KIND);
        IOrvexCore.ORVEX_SetORVEXGetBayCarInfoCallbackEx(HANDLE,
                (ORVEXGetBayCarInfoCallbackEx) (h, a1, a2, a3, a4, a5, devName, a7, a8, a9,
                        carNum, a11, a12, a13, a14, a15, a16, a17, a18, a19, time, a21, a22, a23,
                        a24, a25, a26, a27, a28, a29, a30, a31, a32, a33, a34, a35, a36, a37,
                        a38, a39, a40, a41, a42, a43, plate, a45, icarLog, a47, a48, a49,
                        a50) -> {
                    check(devName.length == 6 && carNum.length == 0 && plate.length == 6
                                    && time == 1_600_000_000_000L,
                            "bay record");
                    seen.incrementAndGet(icarLog);
                });
        return new Storm("ORVEXGetBayCarInfoCallbackEx", CallbackCases.bayCase().fire(), 46, seen);
    }

    @Test
    void everyEventArrivesExactlyOnceAndNoThreadStaysAttached() throws Exception {
        fireAtOnce(List.of(status(), alarms(), media(), shares(), dataChanges()));
    }

    @Test
    @Tag(CallbackCases.UNCHECKED_JNI)
    void bayRecordsAmongOtherEventsArriveExactlyOnce() throws Exception {
        fireAtOnce(List.of(bays(), status()));
    }

    private void fireAtOnce(List<Storm> storms) throws Exception {
        ThreadMXBean threads = ManagementFactory.getThreadMXBean();
        int liveBefore = threads.getThreadCount();
        long startedBefore = threads.getTotalStartedThreadCount();

        List<Thread> firing = new ArrayList<>();
        for (Storm s : storms) {
            firing.add(new Thread(() -> check(
                    SimControl.fireMany(s.kind(), HANDLE, SEQ, s.args(), THREADS_PER_KIND,
                            EVENTS_PER_THREAD, s.stampArg()) == PER_KIND,
                    s.kind() + " delivered count")));
        }
        firing.forEach(Thread::start);
        for (Thread t : firing) {
            t.join();
        }

        assertEquals(List.of(), new ArrayList<>(faults));
        for (Storm s : storms) {
            for (int i = 0; i < PER_KIND; i++) {
                assertEquals(1, s.seen().get(i), s.kind() + " event " + i);
            }
        }
        long started = threads.getTotalStartedThreadCount() - startedBefore;
        if ("attached".equals(System.getProperty("orvex.events.threads"))) {
            assertTrue(started >= (long) storms.size() * THREADS_PER_KIND && started < PER_KIND,
                    "one attach per library thread: " + started);
        } else {
            assertTrue(started >= (long) storms.size() * PER_KIND, "one attach per event");
        }
        for (int i = 0; i < 200 && threads.getThreadCount() != liveBefore; i++) {
            Thread.sleep(10);
        }
        assertEquals(liveBefore, threads.getThreadCount(), "every attached thread detached");
    }
}
