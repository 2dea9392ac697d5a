package bridgetest;

import static bridgetest.CallbackCases.HANDLE;
import static bridgetest.CallbackCases.SEQ;
import static bridgetest.CallbackCases.b;
import static bridgetest.CallbackCases.describe;
import static bridgetest.CallbackCases.row;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertSame;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import bridgetest.CallbackCases.Case;
import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.Return_Value_Info_t;
import com.zq.OrvexCore.ShareVideoInfo;
import com.zq.OrvexCore.UserDataChange_t;
import java.lang.reflect.InvocationTargetException;
import java.util.ArrayList;
import java.util.List;
import java.util.concurrent.atomic.AtomicReference;
import java.util.stream.Stream;
import org.junit.jupiter.api.BeforeEach;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;
import simctl.BridgeInternals;
import simctl.SimControl;

/**
 * Listeners that cannot take their kind's events and a library that breaks its side of the
 * interface: the virtual machine keeps running, bad listeners are refused where they are handed
 * over, and bad library answers arrive as empty values.
 */
class HostileInputTest {
    @BeforeEach
    void resetStandIn() {
        SimControl.reset();
    }

    /** Has an invoke, but never with a listener kind's parameters. */
    public static final class WrongInvoke {
        public void invoke(long unused) {}
    }

    /** The status kind's parameters, but static: not an instance method. */
    public static final class StaticInvoke {
        public static void invoke(int handle, int status) {}
    }

    static Stream<Object> badListeners() {
        return Stream.of(new Object(), "a string", new byte[4], new WrongInvoke(),
                new StaticInvoke());
    }

    static Stream<Arguments> settersAndBadListeners() {
        return CallbackCases.setterKinds().stream().flatMap(
                c -> badListeners().map(l -> Arguments.of(c, l.getClass().getSimpleName(), l)));
    }

    @ParameterizedTest(name = "{0} with {1}")
    @MethodSource("settersAndBadListeners")
    void listenerWithoutTheKindsInvokeIsRefusedBeforeTheLibrarySeesIt(
            Case c, String shape, Object listener) {
        InvocationTargetException thrown = assertThrows(
                InvocationTargetException.class, () -> CallbackCases.set(c, HANDLE, listener));

        Throwable cause = thrown.getCause();
        assertTrue(cause instanceof IllegalArgumentException, String.valueOf(cause));
        assertTrue(cause.getMessage().contains(c.kind()), cause.getMessage());
        assertTrue(cause.getMessage().contains("invoke("), cause.getMessage());
        assertEquals(0, SimControl.count(c.setter()));
        // The refusal is stored as the last result, as the native's return value would be.
        assertEquals(1009, LastResult.read());
    }

    static Stream<Arguments> namedBadListeners() {
        return badListeners().map(l -> Arguments.of(l.getClass().getSimpleName(), l));
    }

    /** The same shapes handed to a native that takes a listener with its request. */
    @ParameterizedTest(name = "{0}")
    @MethodSource("namedBadListeners")
    void listenerWithoutTheMediaInvokeIsRefusedByAStreamOpener(String shape, Object listener) {
        Return_Value_Info_t holder = new Return_Value_Info_t();
        holder.nReturnValue = -5;

        IllegalArgumentException thrown = assertThrows(IllegalArgumentException.class,
                () -> IOrvexCore.ORVEX_GetRealStream(HANDLE, holder,
                        MediaNativesTest.realRequest(), listener, 1000));

        assertTrue(thrown.getMessage().contains("MediaDataCallback"), thrown.getMessage());
        assertTrue(thrown.getMessage().contains("invoke("), thrown.getMessage());
        assertEquals(0, SimControl.calls().length);
        assertEquals(-5, holder.nReturnValue);
        assertEquals(1009, LastResult.read());
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("bridgetest.CallbackCases#onePerKind")
    void eventForAListenerWithoutInvokeEndsCleanly(Case c) {
        if (CallbackCases.firesBayRecords(c)) {
            return; // covered by the unchecked JVM's dispatch test; the bay kind is not special here
        }
        SimControl.install(c.kind(), HANDLE, SEQ, BridgeInternals.trampoline(c.kind()),
                new WrongInvoke());

        assertEquals(0, SimControl.fire(c.kind(), HANDLE, SEQ, c.fire()));
        // The thread was detached: a second event attaches afresh and ends as cleanly.
        assertEquals(0, SimControl.fire(c.kind(), HANDLE, SEQ, c.fire()));
    }

    /** Null texts, null buffers and negative lengths from the library, one per argument shape. */
    static List<Case> brokenLibraryAnswers() {
        byte[] none = new byte[0];
        UserDataChange_t emptyChange = new UserDataChange_t();
        emptyChange.szMsg1 = none;
        emptyChange.szMsg2 = none;
        List<Case> cases = new ArrayList<>(List.of(
                new Case("null text", "ORVEXDevStatusCallback",
                        "ORVEX_SetORVEXDeviceStatusCallback", row(HANDLE, null, 2),
                        row(HANDLE, none, 2)),
                new Case("null buffer with a length", "MediaDataCallback", null,
                        row(HANDLE, SEQ, 2, null, 5, null, 4000),
                        row(HANDLE, SEQ, 2, none, 5, none, 4000)),
                new Case("negative length", "MediaDataCallback", null,
                        row(HANDLE, SEQ, 2, b("cam"), 5, b("frame"), -1),
                        row(HANDLE, SEQ, 2, b("cam"), 5, none, -1)),
                new Case("unsigned length past 2^31", "ORVEXAlarmCallback",
                        "ORVEX_SetORVEXAlarmCallback",
                        row(HANDLE, null, 1, null, null, null, null, null, 9, 1, 0, -1L,
                                b("data"), 0x8000_0000L, null, 7),
                        row(HANDLE, none, 1, none, none, none, none, none, 9, 1, 0, -1L, none,
                                0x8000_0000, none, 7)),
                new Case("null records with a count", "ORVEXShareVideoCallback",
                        "ORVEX_SetShareVideoCallback", row(HANDLE, null, 3, null, 1, null),
                        row(HANDLE, new ShareVideoInfo[0], none, 1, none)),
                new Case("negative record count", "ORVEXShareVideoCallback",
                        "ORVEX_SetShareVideoCallback", row(HANDLE, none, -2, b("m"), 1, b("u")),
                        row(HANDLE, new ShareVideoInfo[0], b("m"), 1, b("u"))),
                new Case("null record", "ORVEXDataChangeCallback", null, row(HANDLE, null),
                        row(HANDLE, emptyChange))));
        return cases;
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("brokenLibraryAnswers")
    void brokenLibraryAnswerArrivesAsAnEmptyValue(Case c) throws Exception {
        Recorder recorder = new Recorder();
        CallbackDispatchTest.register(c, recorder.listener(c.kind()));

        assertEquals(0, SimControl.fire(c.kind(), HANDLE, SEQ, c.fire()));

        assertEquals(1, recorder.events().size());
        assertEquals(describe(c.expected()), describe(recorder.events().get(0).args()));
    }

    @Test
    void aListenersExceptionGoesToTheEventThreadsUncaughtExceptionHandler() throws Exception {
        Case status = CallbackCases.setterKinds().get(0);
        RuntimeException boom = new RuntimeException("listener failed");
        Object listener = java.lang.reflect.Proxy.newProxyInstance(getClass().getClassLoader(),
                new Class<?>[] {Class.forName("com.zq.OrvexCore." + status.kind())},
                (proxy, method, args) -> {
                    if (method.getName().equals("invoke")) {
                        throw boom;
                    }
                    return method.getName().equals("hashCode") ? 0 : null;
                });
        assertEquals(0, CallbackCases.set(status, HANDLE, listener));
        AtomicReference<Throwable> caught = new AtomicReference<>();
        AtomicReference<Thread> where = new AtomicReference<>();
        Thread.UncaughtExceptionHandler previous = Thread.getDefaultUncaughtExceptionHandler();
        Thread.setDefaultUncaughtExceptionHandler((t, e) -> {
            where.set(t);
            caught.set(e);
        });
        try {
            assertEquals(0, SimControl.fire(status.kind(), HANDLE, SEQ, status.fire()));
        } finally {
            Thread.setDefaultUncaughtExceptionHandler(previous);
        }

        assertSame(boom, caught.get());
        assertFalse(where.get() == Thread.currentThread());
    }
}
