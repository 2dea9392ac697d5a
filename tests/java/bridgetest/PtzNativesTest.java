package bridgetest;

import static bridgetest.Fields.set;
import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotSame;
import static org.junit.jupiter.api.Assertions.assertSame;
import static org.junit.jupiter.api.Assertions.assertThrows;

import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.Ptz_Direct_Info_t;
import com.zq.OrvexCore.Ptz_Extend_Command_Info_t;
import com.zq.OrvexCore.Ptz_Lock_Info_t;
import com.zq.OrvexCore.Ptz_Open_Command_Info_t;
import com.zq.OrvexCore.Ptz_Operation_Info_t;
import com.zq.OrvexCore.Ptz_Prepoint_Info_t;
import com.zq.OrvexCore.Ptz_Prepoint_Operation_Info_t;
import com.zq.OrvexCore.Ptz_Single_Prepoint_Info_t;
import com.zq.OrvexCore.Ptz_Sit_Info_t;
import java.util.Arrays;
import java.util.function.IntSupplier;
import java.util.stream.Stream;
import org.junit.jupiter.api.BeforeEach;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;
import org.junit.jupiter.params.provider.ValueSource;
import simctl.RecordedCall;
import simctl.SimControl;
import simctl.Write;

/** PTZ commands and preset points, as raw request bytes at the library and as Java sees them. */
class PtzNativesTest {
    /** A PTZ native: handle, request object, time-out. */
    interface Ptz<T> {
        int call(int handle, T request, int timeout);
    }

    @BeforeEach
    void resetStandIn() {
        SimControl.reset();
    }

    private static byte[] id(String id) {
        return Arrays.copyOf(CRecord.ascii(id), 64);
    }

    private static <T> IntSupplier call(Ptz<T> ptz, T request) {
        return () -> ptz.call(0x51, request, 2500);
    }

    /** Native, its call with a request (handle 0x51, time-out 2500), function reached, bytes. */
    static Stream<Arguments> ptzCommands() {
        return Stream.of(
                Arguments.of("Direction", call(IOrvexCore::ORVEX_PtzDirection,
                        set(new Ptz_Direct_Info_t(), "szCameraId", id("dir"), "nDirect", 7,
                                "nStep", 0x01020304, "bStop", true)), "ORVEX_PtzDirection",
                        new CRecord(76).text(0, "dir").i32(64, 7).i32(68, 0x01020304)
                                .i32(72, 1).bytes()),
                Arguments.of("CameraOperation", call(IOrvexCore::ORVEX_PtzCameraOperation,
                        set(new Ptz_Operation_Info_t(), "szCameraId", id("op"), "nOperation", 5,
                                "nStep", -2, "bStop", false)), "ORVEX_PtzCameraOperation",
                        new CRecord(76).text(0, "op").i32(64, 5).i32(68, -2).bytes()),
                Arguments.of("Sit", call(IOrvexCore::ORVEX_PtzSit,
                        set(new Ptz_Sit_Info_t(), "szCameraId", id("sit"), "pointX", -100,
                                "pointY", 0x7FFFFFFF, "pointZ", 33)), "ORVEX_PtzSit",
                        new CRecord(80).text(0, "sit").i32(64, -100).i32(68, 0x7FFFFFFF)
                                .i32(72, 33).bytes()),
                Arguments.of("LockCamera", call(IOrvexCore::ORVEX_PtzLockCamera,
                        set(new Ptz_Lock_Info_t(), "szCameraId", id("lock"), "nLock", 3)),
                        "ORVEX_PtzLockCamera", new CRecord(68).text(0, "lock").i32(64, 3).bytes()),
                Arguments.of("LightControl", call(IOrvexCore::ORVEX_PtzLightControl,
                        set(new Ptz_Open_Command_Info_t(), "szCameraId", id("sw"), "bOpen", true)),
                        "ORVEX_PtzLightControl",
                        new CRecord(65).text(0, "sw").raw(64, new byte[] {1}).bytes()),
                Arguments.of("RainBrushControl", call(IOrvexCore::ORVEX_PtzRainBrushControl,
                        set(new Ptz_Open_Command_Info_t(), "szCameraId", id("sw"), "bOpen", false)),
                        "ORVEX_PtzRainBrushControl", new CRecord(65).text(0, "sw").bytes()),
                // The infrared switch reaches the rain brush exactly as the rain brush's does.
                Arguments.of("InfraredControl", call(IOrvexCore::ORVEX_PtzInfraredControl,
                        set(new Ptz_Open_Command_Info_t(), "szCameraId", id("sw"), "bOpen", true)),
                        "ORVEX_PtzRainBrushControl",
                        new CRecord(65).text(0, "sw").raw(64, new byte[] {1}).bytes()),
                Arguments.of("ExtendCommand", call(IOrvexCore::ORVEX_PtzExtendCommand,
                        set(new Ptz_Extend_Command_Info_t(), "szCameraId", id("ext"), "nCmd", 51,
                                "nParam", -5)), "ORVEX_PtzExtendCommand",
                        new CRecord(72).text(0, "ext").i32(64, 51).i32(68, -5).bytes()));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("ptzCommands")
    void requestReachesTheLibraryAsItsCStructure(
            String method, IntSupplier ptz, String libraryFn, byte[] expected) {
        SimControl.script(libraryFn, 0x4D2);

        assertEquals(0x4D2, ptz.getAsInt());

        assertEquals(1, SimControl.calls().length);
        RecordedCall call = SimControl.last(libraryFn);
        assertEquals(0x51, call.arg("nHandle").value);
        assertEquals(2500, call.arg("nTimeout").value);
        assertArrayEquals(expected, call.arg("pInfo").bytes);
    }

    // --- Preset listing: nCount at 64, 36-byte presets (nCode, szName[32]) from 68.

    private static Write[] presets(int count, Object... codeAndName) {
        CRecord points = new CRecord(36 * (codeAndName.length / 2));
        for (int k = 0; k < codeAndName.length / 2; k++) {
            points.i32(36 * k, (Integer) codeAndName[2 * k]);
            points.raw(36 * k + 4, (byte[]) codeAndName[2 * k + 1]);
        }
        return new Write[] {
            Write.le32("pInfo", 64, count), Write.bytes("pInfo", 68, points.bytes())};
    }

    private static Ptz_Prepoint_Info_t listRequest(int slots) {
        Ptz_Single_Prepoint_Info_t[] points = new Ptz_Single_Prepoint_Info_t[slots];
        Arrays.setAll(points, i -> new Ptz_Single_Prepoint_Info_t());
        return set(new Ptz_Prepoint_Info_t(), "szCameraId", id("dome-1"), "nCount", slots,
                "pPoints", points);
    }

    @Test
    void listingReplacesTheReportedPresetsWithNewObjects() {
        byte[] name31 = CRecord.filled(31, 'n');
        SimControl.script("ORVEX_QueryPrePoint", 0, presets(3,
                1, CRecord.ascii("gate\0zz"), 0x80000002, name31, 300, new byte[0]));
        Ptz_Prepoint_Info_t info = listRequest(5);
        Ptz_Single_Prepoint_Info_t[] before = info.pPoints.clone();

        assertEquals(0, IOrvexCore.ORVEX_QueryPrePoint(8, info, 700));

        assertArrayEquals(new CRecord(10868).text(0, "dome-1").i32(64, 5).bytes(),
                SimControl.last("ORVEX_QueryPrePoint").arg("pInfo").bytes);
        assertEquals(3, info.nCount);
        int[] codes = {1, 0x80000002, 300};
        byte[][] names = {text("gate", 32), Arrays.copyOf(name31, 32), new byte[32]};
        for (int i = 0; i < 3; i++) {
            assertNotSame(before[i], info.pPoints[i], "element " + i);
            assertEquals(codes[i], info.pPoints[i].nCode);
            assertArrayEquals(names[i], info.pPoints[i].szName);
        }
        assertSame(before[3], info.pPoints[3]);
    }

    private static byte[] text(String s, int size) {
        return Arrays.copyOf(CRecord.ascii(s), size);
    }

    /** Library result and count: no presets, or a failure that writes nothing at all. */
    @ParameterizedTest(name = "result {0}, count {1}")
    @MethodSource("untouchedListings")
    void listingLeavesTheArrayAlone(int result, int count, int countAfter) {
        SimControl.script("ORVEX_QueryPrePoint", result, presets(count, 4, CRecord.ascii("a")));
        Ptz_Prepoint_Info_t info = listRequest(4);
        Ptz_Single_Prepoint_Info_t[] before = info.pPoints.clone();

        assertEquals(result, IOrvexCore.ORVEX_QueryPrePoint(8, info, 700));

        assertEquals(countAfter, info.nCount);
        assertArrayEquals(before, info.pPoints);
    }

    static Stream<Arguments> untouchedListings() {
        return Stream.of(Arguments.of(0, 0, 0), Arguments.of(17, 1, 4));
    }

    /**
     * A count past the 300 held presets reads no further (slot 300 keeps its object); a Java
     * array shorter than the count is filled to its end and the overrun reported.
     */
    @ParameterizedTest(name = "count {0}, {1} Java slots")
    @MethodSource("overlongCounts")
    void theLibraryCountIsTrustedOnlyAsFarAsPresetsAndArrayReach(int count, int slots,
            int lastFilled, boolean reported) {
        SimControl.script("ORVEX_QueryPrePoint", 0, Write.le32("pInfo", 64, count),
                Write.le32("pInfo", 68 + 36 * lastFilled, 99));
        Ptz_Prepoint_Info_t info = listRequest(slots);
        Ptz_Single_Prepoint_Info_t[] before = info.pPoints.clone();

        if (reported) {
            assertThrows(ArrayIndexOutOfBoundsException.class,
                    () -> IOrvexCore.ORVEX_QueryPrePoint(8, info, 700));
        } else {
            assertEquals(0, IOrvexCore.ORVEX_QueryPrePoint(8, info, 700));
        }

        assertEquals(count, info.nCount);
        assertEquals(99, info.pPoints[lastFilled].nCode);
        if (lastFilled + 1 < slots) {
            assertSame(before[lastFilled + 1], info.pPoints[lastFilled + 1]);
        }
    }

    static Stream<Arguments> overlongCounts() {
        return Stream.of(Arguments.of(301, 301, 299, false), Arguments.of(3, 2, 1, true));
    }

    @ParameterizedTest(name = "command {0}")
    @ValueSource(ints = {1, 2, 3})
    void operationSendsTheEmbeddedPresetForEveryCommand(int command) {
        Ptz_Prepoint_Operation_Info_t op = set(new Ptz_Prepoint_Operation_Info_t(),
                "szCameraId", id("dome-2"), "nCmd", command, "pPoints",
                set(new Ptz_Single_Prepoint_Info_t(), "nCode", 0x0A0B0C0D, "szName",
                        text("porch", 32)));
        SimControl.script("ORVEX_PtzPrePointOperation", 40 + command);

        assertEquals(40 + command, IOrvexCore.ORVEX_PtzPrePointOperation(6, op, 90));

        assertArrayEquals(new CRecord(104).text(0, "dome-2").i32(64, command).i32(68, 0x0A0B0C0D)
                .text(72, "porch").bytes(),
                SimControl.last("ORVEX_PtzPrePointOperation").arg("pInfo").bytes);
    }
}
