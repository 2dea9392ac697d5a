package bridgetest;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.Return_Value_Info_t;
import java.util.function.BiFunction;
import java.util.stream.Stream;
import org.junit.jupiter.api.BeforeEach;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;
import simctl.RecordedCall;
import simctl.SimControl;
import simctl.Write;

/** The instance natives, as the client library sees their calls and as Java sees the results. */
class InstanceNativesTest {
    @BeforeEach
    void resetStandIn() {
        SimControl.reset();
    }

    @Test
    void createWritesTheNewHandleOnSuccess() {
        SimControl.script("ORVEX_Create", 0, Write.le32("pnSdkHandle", 0, 0x7A11));
        Return_Value_Info_t holder = new Return_Value_Info_t();
        holder.nReturnValue = -5;

        assertEquals(0, IOrvexCore.ORVEX_Create(1, holder));

        assertEquals(0x7A11, holder.nReturnValue);
        assertEquals(1, SimControl.last("ORVEX_Create").arg("nType").value);
        assertEquals(0, SimControl.errors().length);
    }

    @Test
    void createPassesAnUnknownTypeAndKeepsTheHolderWhenRefused() {
        SimControl.script("ORVEX_Create", 31, Write.le32("pnSdkHandle", 0, 99));
        Return_Value_Info_t holder = new Return_Value_Info_t();
        holder.nReturnValue = -5;

        assertEquals(31, IOrvexCore.ORVEX_Create(77, holder));

        assertEquals(-5, holder.nReturnValue);
        assertEquals(77, SimControl.last("ORVEX_Create").arg("nType").value);
    }

    @Test
    void createWithoutHolderThrowsAndCreatesNothing() {
        assertThrows(NullPointerException.class, () -> IOrvexCore.ORVEX_Create(1, null));
        assertEquals(0, SimControl.count("ORVEX_Create"));
    }

    @Test
    void destroyAndCompressTypePassIntegersThroughAndReturnTheLibraryCode() {
        SimControl.script("ORVEX_Destroy", -3);
        assertEquals(-3, IOrvexCore.ORVEX_Destroy(0x12345678));
        assertEquals(0x12345678, SimControl.last("ORVEX_Destroy").arg("nHandle").value);

        SimControl.script("ORVEX_SetCompressType", 1002);
        assertEquals(1002, IOrvexCore.ORVEX_SetCompressType(9, -1));
        RecordedCall call = SimControl.last("ORVEX_SetCompressType");
        assertEquals(9, call.arg("nHandle").value);
        assertEquals(-1, call.arg("nCompressType").value);
    }

    @Test
    void anErrorIsReturnedUntilTheNextSuccessReplacesIt() {
        SimControl.script("ORVEX_SetCompressType", 55);
        assertEquals(55, IOrvexCore.ORVEX_SetCompressType(1, 0));
        assertEquals(1009, IOrvexCore.ORVEX_SetLog(1, null));
        assertEquals(0, IOrvexCore.ORVEX_SetCompressType(1, 0));
    }

    /** ORVEX_SetLog and ORVEX_StartMonitor hand the library a file name the same way. */
    static Stream<Arguments> fileNameMethods() {
        BiFunction<Integer, byte[], Integer> setLog = IOrvexCore::ORVEX_SetLog;
        BiFunction<Integer, byte[], Integer> monitor = IOrvexCore::ORVEX_StartMonitor;
        return Stream.of(Arguments.of("ORVEX_SetLog", setLog),
                Arguments.of("ORVEX_StartMonitor", monitor));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("fileNameMethods")
    void fileNameReachesTheLibraryTerminated(String fn, BiFunction<Integer, byte[], Integer> m) {
        assertEquals(0, m.apply(4, CRecord.ascii("orvex.log1")));

        RecordedCall call = SimControl.last(fn);
        assertEquals(4, call.arg("nHandle").value);
        assertArrayEquals(CRecord.ascii("orvex.log1\0"), call.arg("szFileName").bytes);
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("fileNameMethods")
    void aZeroByteInsideTheNameEndsTheString(String fn, BiFunction<Integer, byte[], Integer> m) {
        assertEquals(0, m.apply(4, CRecord.ascii("abcd\0efgh")));
        assertArrayEquals(CRecord.ascii("abcd\0"), SimControl.last(fn).arg("szFileName").bytes);
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("fileNameMethods")
    void emptyOrMissingNameIsRejectedWithoutCallingTheLibrary(
            String fn, BiFunction<Integer, byte[], Integer> m) {
        assertEquals(1009, m.apply(4, new byte[0]));
        assertEquals(1009, m.apply(4, null));
        assertEquals(0, SimControl.count(fn));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("fileNameMethods")
    void libraryErrorsPassThrough(String fn, BiFunction<Integer, byte[], Integer> m) {
        SimControl.script(fn, -77);
        assertEquals(-77, m.apply(4, CRecord.ascii("x")));
    }

    @Test
    void setLogAsksForDebugLevelAndZeroReserved() {
        IOrvexCore.ORVEX_SetLog(4, CRecord.ascii("a"));
        RecordedCall call = SimControl.last("ORVEX_SetLog");
        assertEquals(2, call.arg("nLevel").value);
        assertEquals(0, call.arg("nReserved1").value);
        assertEquals(0, call.arg("nReserved2").value);
        assertTrue(call.args.length == 5, call.toString());
    }
}
