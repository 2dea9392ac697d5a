package bridgetest;

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
import java.util.function.Supplier;
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
    /** One PTZ native taking (handle, request, time-out). */
    interface PtzNative {
        int call(int handle, Object request, int timeout);
    }

    @BeforeEach
    void resetStandIn() {
        SimControl.reset();
    }

    private static byte[] cameraId(String id) {
        return Arrays.copyOf(CRecord.ascii(id), 64);
    }

    private static Object direct() {
        Ptz_Direct_Info_t r = new Ptz_Direct_Info_t();
        r.szCameraId = cameraId("cam-dir");
        r.nDirect = 7;
        r.nStep = 0x01020304;
        r.bStop = true;
        return r;
    }

    private static Object operation() {
        Ptz_Operation_Info_t r = new Ptz_Operation_Info_t();
        r.szCameraId = cameraId("cam-op");
        r.nOperation = 5;
        r.nStep = -2;
        r.bStop = false;
        return r;
    }

    private static Object sit() {
        Ptz_Sit_Info_t r = new Ptz_Sit_Info_t();
        r.szCameraId = cameraId("cam-sit");
        r.pointX = -100;
        r.pointY = 0x7FFFFFFF;
        r.pointZ = 33;
        return r;
    }

    private static Object lock() {
        Ptz_Lock_Info_t r = new Ptz_Lock_Info_t();
        r.szCameraId = cameraId("cam-lock");
        r.nLock = 3;
        return r;
    }

    private static Supplier<Object> onOff(String id, boolean open) {
        return () -> {
            Ptz_Open_Command_Info_t r = new Ptz_Open_Command_Info_t();
            r.szCameraId = cameraId(id);
            r.bOpen = open;
            return r;
        };
    }

    private static Object extend() {
        Ptz_Extend_Command_Info_t r = new Ptz_Extend_Command_Info_t();
        r.szCameraId = cameraId("cam-ext");
        r.nCmd = 51;  // between the named commands, passed through
        r.nParam = -5;
        return r;
    }

    /** Java native, request, library function reached, and the request's expected C bytes. */
    static Stream<Arguments> ptzCommands() {
        return Stream.of(
                Arguments.of("ORVEX_PtzDirection",
                        (PtzNative) (h, r, t) -> IOrvexCore.ORVEX_PtzDirection(
                                h, (Ptz_Direct_Info_t) r, t),
                        (Supplier<Object>) PtzNativesTest::direct, "ORVEX_PtzDirection",
                        new CRecord(76).text(0, "cam-dir").i32(64, 7).i32(68, 0x01020304)
                                .raw(72, new byte[] {1}).bytes()),
                Arguments.of("ORVEX_PtzCameraOperation",
                        (PtzNative) (h, r, t) -> IOrvexCore.ORVEX_PtzCameraOperation(
                                h, (Ptz_Operation_Info_t) r, t),
                        (Supplier<Object>) PtzNativesTest::operation, "ORVEX_PtzCameraOperation",
                        new CRecord(76).text(0, "cam-op").i32(64, 5).i32(68, -2).bytes()),
                Arguments.of("ORVEX_PtzSit",
                        (PtzNative) (h, r, t) -> IOrvexCore.ORVEX_PtzSit(h, (Ptz_Sit_Info_t) r, t),
                        (Supplier<Object>) PtzNativesTest::sit, "ORVEX_PtzSit",
                        new CRecord(80).text(0, "cam-sit").i32(64, -100).i32(68, 0x7FFFFFFF)
                                .i32(72, 33).bytes()),
                Arguments.of("ORVEX_PtzLockCamera",
                        (PtzNative) (h, r, t) -> IOrvexCore.ORVEX_PtzLockCamera(
                                h, (Ptz_Lock_Info_t) r, t),
                        (Supplier<Object>) PtzNativesTest::lock, "ORVEX_PtzLockCamera",
                        new CRecord(68).text(0, "cam-lock").i32(64, 3).bytes()),
                Arguments.of("ORVEX_PtzLightControl",
                        (PtzNative) (h, r, t) -> IOrvexCore.ORVEX_PtzLightControl(
                                h, (Ptz_Open_Command_Info_t) r, t),
                        onOff("cam-light", true), "ORVEX_PtzLightControl",
                        new CRecord(65).text(0, "cam-light").raw(64, new byte[] {1}).bytes()),
                Arguments.of("ORVEX_PtzRainBrushControl",
                        (PtzNative) (h, r, t) -> IOrvexCore.ORVEX_PtzRainBrushControl(
                                h, (Ptz_Open_Command_Info_t) r, t),
                        onOff("cam-rain", false), "ORVEX_PtzRainBrushControl",
                        new CRecord(65).text(0, "cam-rain").bytes()),
                Arguments.of("ORVEX_PtzInfraredControl",
                        (PtzNative) (h, r, t) -> IOrvexCore.ORVEX_PtzInfraredControl(
                                h, (Ptz_Open_Command_Info_t) r, t),
                        onOff("cam-ir", true), "ORVEX_PtzRainBrushControl",
                        new CRecord(65).text(0, "cam-ir").raw(64, new byte[] {1}).bytes()),
                Arguments.of("ORVEX_PtzExtendCommand",
                        (PtzNative) (h, r, t) -> IOrvexCore.ORVEX_PtzExtendCommand(
                                h, (Ptz_Extend_Command_Info_t) r, t),
                        (Supplier<Object>) PtzNativesTest::extend, "ORVEX_PtzExtendCommand",
                        new CRecord(72).text(0, "cam-ext").i32(64, 51).i32(68, -5).bytes()));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("ptzCommands")
    void requestReachesTheLibraryAsItsCStructure(String method, PtzNative ptz,
            Supplier<Object> request, String libraryFn, byte[] expected) {
        SimControl.script(libraryFn, 0x4D2);

        assertEquals(0x4D2, ptz.call(0x51, request.get(), 2500));

        assertEquals(1, SimControl.calls().length);
        RecordedCall call = SimControl.last(libraryFn);
        assertEquals(0x51, call.arg("nHandle").value);
        assertEquals(2500, call.arg("nTimeout").value);
        assertArrayEquals(expected, call.arg("pInfo").bytes);
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("ptzCommands")
    void nullRequestIsRefusedWithoutCallingTheLibrary(String method, PtzNative ptz,
            Supplier<Object> request, String libraryFn, byte[] expected) {
        assertThrows(NullPointerException.class, () -> ptz.call(1, null, 0));
        assertEquals(0, SimControl.calls().length);
    }

    @Test
    void infraredSwitchesTheRainBrushWithTheSameRequest() {
        Ptz_Open_Command_Info_t request = (Ptz_Open_Command_Info_t) onOff("cam-9", true).get();
        IOrvexCore.ORVEX_PtzRainBrushControl(3, request, 10);
        IOrvexCore.ORVEX_PtzInfraredControl(3, request, 10);

        RecordedCall[] calls = SimControl.calls();
        assertEquals(2, calls.length);
        assertEquals(calls[0].toString(), calls[1].toString());
        assertArrayEquals(calls[0].arg("pInfo").bytes, calls[1].arg("pInfo").bytes);
    }

    @Test
    void aCameraIdLongerThanItsMemberIsRefused() {
        Ptz_Lock_Info_t request = (Ptz_Lock_Info_t) lock();
        request.szCameraId = CRecord.filled(65, 'c');
        assertThrows(IllegalArgumentException.class,
                () -> IOrvexCore.ORVEX_PtzLockCamera(1, request, 0));
        assertEquals(0, SimControl.calls().length);
    }

    // --- Preset listing

    private static final int LIST_SIZE = 10868;

    private static int presetOffset(int i) {
        return 68 + 36 * i;
    }

    /** A scripted listing reply: nCount, then (code, name bytes) per preset. */
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
        Ptz_Prepoint_Info_t info = new Ptz_Prepoint_Info_t();
        info.szCameraId = cameraId("dome-1");
        info.nCount = slots;
        info.pPoints = new Ptz_Single_Prepoint_Info_t[slots];
        Arrays.setAll(info.pPoints, i -> new Ptz_Single_Prepoint_Info_t());
        return info;
    }

    @Test
    void listingReplacesTheReportedPresetsWithNewObjects() {
        byte[] name31 = CRecord.filled(31, 'n');
        SimControl.script("ORVEX_QueryPrePoint", 0, presets(3,
                1, CRecord.ascii("gate\0zz"), 0x80000002, name31, 300, new byte[0]));
        Ptz_Prepoint_Info_t info = listRequest(5);
        Ptz_Single_Prepoint_Info_t[] before = info.pPoints.clone();

        assertEquals(0, IOrvexCore.ORVEX_QueryPrePoint(8, info, 700));

        byte[] sent = SimControl.last("ORVEX_QueryPrePoint").arg("pInfo").bytes;
        assertArrayEquals(new CRecord(LIST_SIZE).text(0, "dome-1").i32(64, 5).bytes(), sent);
        assertEquals(3, info.nCount);
        for (int i = 0; i < 3; i++) {
            assertNotSame(before[i], info.pPoints[i], "element " + i);
        }
        assertSame(before[3], info.pPoints[3]);
        assertSame(before[4], info.pPoints[4]);
        assertEquals(1, info.pPoints[0].nCode);
        assertArrayEquals(Arrays.copyOf(CRecord.ascii("gate"), 32), info.pPoints[0].szName);
        assertEquals(0x80000002, info.pPoints[1].nCode);
        assertArrayEquals(Arrays.copyOf(name31, 32), info.pPoints[1].szName);
        assertEquals(300, info.pPoints[2].nCode);
        assertArrayEquals(new byte[32], info.pPoints[2].szName);
    }

    @Test
    void listingOfNoPresetsWritesTheCountAndLeavesTheArray() {
        SimControl.script("ORVEX_QueryPrePoint", 0, Write.le32("pInfo", 64, 0));
        Ptz_Prepoint_Info_t info = listRequest(4);
        Ptz_Single_Prepoint_Info_t[] before = info.pPoints.clone();

        assertEquals(0, IOrvexCore.ORVEX_QueryPrePoint(8, info, 700));

        assertEquals(0, info.nCount);
        assertArrayEquals(before, info.pPoints);
    }

    @Test
    void failedListingWritesNothing() {
        SimControl.script("ORVEX_QueryPrePoint", 17, presets(2, 4, CRecord.ascii("a"), 5,
                CRecord.ascii("b")));
        Ptz_Prepoint_Info_t info = listRequest(4);
        Ptz_Single_Prepoint_Info_t[] before = info.pPoints.clone();

        assertEquals(17, IOrvexCore.ORVEX_QueryPrePoint(8, info, 700));

        assertEquals(4, info.nCount);
        assertArrayEquals(before, info.pPoints);
    }

    @Test
    void aCountBeyondTheHeldPresetsReadsNoFurther() {
        SimControl.script("ORVEX_QueryPrePoint", 0, Write.le32("pInfo", 64, 301),
                Write.le32("pInfo", presetOffset(299), 299));
        Ptz_Prepoint_Info_t info = listRequest(305);
        Ptz_Single_Prepoint_Info_t[] before = info.pPoints.clone();

        assertEquals(0, IOrvexCore.ORVEX_QueryPrePoint(8, info, 700));

        assertEquals(301, info.nCount);
        assertEquals(299, info.pPoints[299].nCode);
        assertNotSame(before[299], info.pPoints[299]);
        assertSame(before[300], info.pPoints[300]);
    }

    @Test
    void aJavaArrayShorterThanTheCountIsFilledToItsEndAndReported() {
        SimControl.script("ORVEX_QueryPrePoint", 0,
                presets(3, 1, CRecord.ascii("a"), 2, CRecord.ascii("b"), 3, CRecord.ascii("c")));
        Ptz_Prepoint_Info_t info = listRequest(2);

        assertThrows(ArrayIndexOutOfBoundsException.class,
                () -> IOrvexCore.ORVEX_QueryPrePoint(8, info, 700));

        assertEquals(3, info.nCount);
        assertEquals(1, info.pPoints[0].nCode);
        assertEquals(2, info.pPoints[1].nCode);
    }

    @Test
    void listingWithoutAPresetArrayIsRefused() {
        Ptz_Prepoint_Info_t info = listRequest(1);
        info.pPoints = null;
        assertThrows(NullPointerException.class,
                () -> IOrvexCore.ORVEX_QueryPrePoint(8, info, 700));
        assertEquals(0, SimControl.calls().length);
    }

    // --- Preset operation

    @ParameterizedTest(name = "command {0}")
    @ValueSource(ints = {1, 2, 3})
    void operationSendsCodeAndNameForEveryCommand(int command) {
        Ptz_Prepoint_Operation_Info_t op = new Ptz_Prepoint_Operation_Info_t();
        op.szCameraId = cameraId("dome-2");
        op.nCmd = command;
        op.pPoints.nCode = 0x0A0B0C0D;
        op.pPoints.szName = Arrays.copyOf(CRecord.ascii("porch"), 32);
        SimControl.script("ORVEX_PtzPrePointOperation", 40 + command);

        assertEquals(40 + command, IOrvexCore.ORVEX_PtzPrePointOperation(6, op, 90));

        RecordedCall call = SimControl.last("ORVEX_PtzPrePointOperation");
        assertArrayEquals(new CRecord(104).text(0, "dome-2").i32(64, command).i32(68, 0x0A0B0C0D)
                .text(72, "porch").bytes(), call.arg("pInfo").bytes);
        assertEquals(6, call.arg("nHandle").value);
        assertEquals(90, call.arg("nTimeout").value);
        assertEquals(0x0A0B0C0D, op.pPoints.nCode);
    }

    @Test
    void operationWithoutItsPresetIsRefused() {
        Ptz_Prepoint_Operation_Info_t op = new Ptz_Prepoint_Operation_Info_t();
        op.pPoints = null;
        assertThrows(NullPointerException.class,
                () -> IOrvexCore.ORVEX_PtzPrePointOperation(6, op, 90));
        assertEquals(0, SimControl.calls().length);
    }
}
