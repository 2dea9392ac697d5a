package bridgetest;

import static bridgetest.CallbackCases.HANDLE;
import static bridgetest.CallbackCases.SEQ;
import static bridgetest.CallbackCases.describe;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertNotSame;

import bridgetest.CallbackCases.Case;
import java.lang.management.ManagementFactory;
import java.lang.management.ThreadMXBean;
import java.util.List;
import java.util.stream.Collectors;
import org.junit.jupiter.api.BeforeEach;
import org.junit.jupiter.api.Tag;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.MethodSource;
import simctl.BridgeInternals;
import simctl.SimControl;

/**
 * Every callback kind, fired by the stand-in from a thread of its own, reaches the Java listener
 * with exactly the expected arguments, on a thread attached for that one event.
 */
class CallbackDispatchTest {
    private static final ThreadMXBean THREADS = ManagementFactory.getThreadMXBean();

    @BeforeEach
    void resetStandIn() {
        SimControl.reset();
    }

    static List<Case> cases() {
        return CallbackCases.all().stream()
                .filter(c -> !CallbackCases.firesBayRecords(c))
                .collect(Collectors.toList());
    }

    static List<Case> onePerKind() {
        return CallbackCases.onePerKind();
    }

    /** Registers through the kind's setter, or installs the trampoline where no native does. */
    static void register(Case c, Object listener) throws Exception {
        if (c.setter() == null) {
            SimControl.install(
                    c.kind(), HANDLE, SEQ, BridgeInternals.trampoline(c.kind()), listener);
        } else {
            assertEquals(0, CallbackCases.set(c, HANDLE, listener));
        }
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("cases")
    void eventArrivesWithExactlyItsArgumentsOnAThreadAttachedForIt(Case c) throws Exception {
        assertDelivered(c);
    }

    @Test
    @Tag(CallbackCases.UNCHECKED_JNI)
    void bayRecordArrivesWithExactlyItsArgumentsOnAThreadAttachedForIt() throws Exception {
        assertDelivered(CallbackCases.bayCase());
    }

    private static void assertDelivered(Case c) throws Exception {
        Recorder recorder = new Recorder();
        register(c, recorder.listener(c.kind()));
        long started = THREADS.getTotalStartedThreadCount();

        assertEquals(0, SimControl.fire(c.kind(), HANDLE, SEQ, c.fire()));

        List<Recorder.Event> events = recorder.events();
        assertEquals(1, events.size());
        assertEquals(describe(c.expected()), describe(events.get(0).args()));
        Thread thread = events.get(0).thread();
        assertNotSame(Thread.currentThread(), thread);
        assertFalse(thread.isAlive(), "the library's thread is detached after the event");
        assertEquals(1, THREADS.getTotalStartedThreadCount() - started, "one attach per event");
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("onePerKind")
    void eventWithoutUserDataIsDroppedWithoutAttaching(Case c) {
        SimControl.install(c.kind(), HANDLE, SEQ, BridgeInternals.trampoline(c.kind()), null);
        long started = THREADS.getTotalStartedThreadCount();

        assertEquals(0, SimControl.fire(c.kind(), HANDLE, SEQ, c.fire()));

        assertEquals(0, THREADS.getTotalStartedThreadCount() - started);
    }
}
