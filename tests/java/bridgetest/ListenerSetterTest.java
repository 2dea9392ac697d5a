package bridgetest;

import static bridgetest.CallbackCases.HANDLE;
import static bridgetest.CallbackCases.SEQ;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertNotNull;
import static org.junit.jupiter.api.Assertions.assertNull;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import bridgetest.CallbackCases.Case;
import java.lang.ref.WeakReference;
import java.util.List;
import org.junit.jupiter.api.BeforeEach;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.MethodSource;
import simctl.BridgeInternals;
import simctl.RecordedCall;
import simctl.SimControl;

/** The listener setters, as the library sees their registrations and as Java sees the events. */
class ListenerSetterTest {
    @BeforeEach
    void resetStandIn() {
        SimControl.reset();
    }

    static List<Case> setterKinds() {
        return CallbackCases.setterKinds();
    }

    private static int set(Case c, Object listener) throws Exception {
        return CallbackCases.set(c, HANDLE, listener);
    }

    @Test
    void fourteenSettersCoverEveryKindButMediaAndDataChange() {
        assertEquals(14, setterKinds().size());
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("setterKinds")
    void setterHandsTheLibraryItsKindsTrampolineAndReturnsTheLibrarysCode(Case c) throws Exception {
        SimControl.script(c.setter(), 0x7001);

        assertEquals(0x7001, set(c, new Recorder().listener(c.kind())));

        RecordedCall call = SimControl.last(c.setter());
        assertEquals(HANDLE, call.arg("nHandle").value);
        assertEquals(BridgeInternals.trampoline(c.kind()), call.arg("pfnCallback").value);
        assertFalse(call.arg("pUserParam").isNull);
        assertEquals(1, SimControl.calls().length);
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("setterKinds")
    void nullListenerSwitchesTheKindOffWithNullPointers(Case c) throws Exception {
        Recorder recorder = new Recorder();
        set(c, recorder.listener(c.kind()));
        SimControl.script(c.setter(), 77);

        assertEquals(77, set(c, null));

        RecordedCall call = SimControl.last(c.setter());
        assertEquals(HANDLE, call.arg("nHandle").value);
        assertTrue(call.arg("pfnCallback").isNull);
        assertTrue(call.arg("pUserParam").isNull);
        // The stand-in kept the old registration because it refused the switch-off; a real
        // switch-off leaves nothing to fire.
        set(c, null);
        assertThrows(IllegalStateException.class,
                () -> SimControl.fire(c.kind(), HANDLE, SEQ, c.fire()));
        assertEquals(0, recorder.events().size());
    }

    @Test
    void laterRegistrationRedirectsEventsAndNoListenerIsEverReleased() throws Exception {
        Case c = setterKinds().get(0);
        Recorder first = new Recorder();
        Recorder second = new Recorder();
        Object firstListener = first.listener(c.kind());
        WeakReference<Object> firstRef = new WeakReference<>(firstListener);
        set(c, firstListener);
        SimControl.fire(c.kind(), HANDLE, SEQ, c.fire());
        Object secondListener = second.listener(c.kind());
        WeakReference<Object> secondRef = new WeakReference<>(secondListener);
        set(c, secondListener);
        SimControl.fire(c.kind(), HANDLE, SEQ, c.fire());
        // Refused by the library: the earlier registration stays in force.
        SimControl.script(c.setter(), 9);
        Object refusedListener = new Recorder().listener(c.kind());
        WeakReference<Object> refusedRef = new WeakReference<>(refusedListener);
        assertEquals(9, set(c, refusedListener));
        SimControl.fire(c.kind(), HANDLE, SEQ, c.fire());
        set(c, null);

        assertEquals(1, first.events().size());
        assertEquals(2, second.events().size());
        firstListener = null;
        secondListener = null;
        refusedListener = null;
        collectGarbage();
        assertNotNull(firstRef.get(), "replaced listener is still referenced");
        assertNotNull(secondRef.get(), "switched-off listener is still referenced");
        assertNotNull(refusedRef.get(), "refused listener is still referenced");
    }

    /** Collects until an unreferenced object is gone, so that a live weak reference means it. */
    private static void collectGarbage() throws InterruptedException {
        WeakReference<Object> probe = new WeakReference<>(new Object());
        for (int i = 0; i < 100 && probe.get() != null; i++) {
            System.gc();
            Thread.sleep(10);
        }
        assertNull(probe.get(), "the garbage collector did not run");
    }
}
