package bridgetest;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertSame;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.zq.OrvexCore.AlarmIn_Channel_Info_t;
import com.zq.OrvexCore.Get_AlarmInChannel_Info_t;
import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.Return_Value_Info_t;
import com.zq.OrvexCore.orvex_AHostDefenceStatus_t;
import java.util.Arrays;
import java.util.stream.Stream;
import org.junit.jupiter.api.BeforeEach;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;
import simctl.BridgeInternals;
import simctl.RecordedCall;
import simctl.SimControl;
import simctl.Write;

/** Device lists, status queries and alarm hosts, as the library sees them and as Java sees them. */
class StatusHostsNativesTest {
    private static final int H = 0x51;
    private static final byte[] DEV = CRecord.ascii("dev-01");

    @BeforeEach
    void resetStandIn() {
        SimControl.reset();
    }

    /** The previous result, read through a method that returns it unchanged for an empty id. */
    private static int lastResult() {
        return IOrvexCore.ORVEX_ControlVideoAlarmHost(H, new byte[0], 0, 0, 0);
    }

    private static void setLastResult(int code) {
        SimControl.script("ORVEX_ControlVideoAlarmHost", code);
        assertEquals(code, IOrvexCore.ORVEX_ControlVideoAlarmHost(H, DEV, 0, 0, 0));
        SimControl.reset();
    }

    private static Return_Value_Info_t holder(int v) {
        Return_Value_Info_t h = new Return_Value_Info_t();
        h.nReturnValue = v;
        return h;
    }

    // ---- device list and devices' information ----------------------------------------------

    interface TextFetch {
        int call(int handle, byte[] text, int len, int timeout);
    }

    static Stream<Arguments> textFetches() {
        TextFetch list = IOrvexCore::ORVEX_GetDeviceListStr;
        TextFetch info = IOrvexCore::ORVEX_GetDevicesInfoStr;
        return Stream.of(Arguments.of("ORVEX_GetDeviceListStr", "szDevList", true, list),
                Arguments.of("ORVEX_GetDevicesInfoStr", "szDevicesInfo", false, info));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("textFetches")
    void fullLengthTextIsCopiedWithoutTerminator(String fn, String out, boolean timed, TextFetch m) {
        byte[] text = new byte[500];
        for (int i = 0; i < text.length; i++) {
            text[i] = (byte) ('a' + i % 26);
        }
        SimControl.script(fn, 0, Write.bytes(out, 0, text));
        byte[] dest = CRecord.filled(510, 0x55);

        assertEquals(0, m.call(H, dest, 500, 3000));

        assertArrayEquals(text, Arrays.copyOf(dest, 500));
        assertArrayEquals(CRecord.filled(10, 0x55), Arrays.copyOfRange(dest, 500, 510));
        RecordedCall call = SimControl.last(fn);
        assertEquals(H, call.arg("nHandle").value);
        assertEquals(500, call.arg("nLen").value);
        assertArrayEquals(new byte[500], call.arg(out).bytes, "the buffer arrives zeroed");
        assertEquals(timed, Arrays.stream(call.args).anyMatch(a -> a.name.equals("nTimeout")));
        if (timed) {
            assertEquals(3000, call.arg("nTimeout").value);
        }

        SimControl.script(fn, 12, Write.bytes(out, 0, CRecord.ascii("xyz")));
        assertEquals(12, m.call(H, dest, 500, 0));
        assertArrayEquals(text, Arrays.copyOf(dest, 500), "a failed call copies nothing");
    }

    static Stream<Arguments> refusedTexts() {
        return textFetches().flatMap(a -> Stream.of(
                Arguments.of(a.get()[0], a.get()[3], null, 4, NullPointerException.class),
                Arguments.of(a.get()[0], a.get()[3], new byte[4], -1, OutOfMemoryError.class),
                Arguments.of(a.get()[0], a.get()[3], new byte[3], 4,
                        ArrayIndexOutOfBoundsException.class)));
    }

    @ParameterizedTest(name = "{0} len {3}: {4}")
    @MethodSource("refusedTexts")
    void badTextArgumentsAreRefusedBeforeTheLibrary(
            String fn, TextFetch m, byte[] dest, int len, Class<? extends Throwable> thrown) {
        assertThrows(thrown, () -> m.call(H, dest, len, 0));
        assertEquals(0, SimControl.count(fn));
        assertEquals(1009, lastResult());
    }

    @Test
    void devicesInfoLengthIsNotBoundByItsJniName() {
        Return_Value_Info_t h = holder(-1);
        assertThrows(UnsatisfiedLinkError.class, () -> IOrvexCore.ORVEX_GetDevicesInfoLen(H, h));
        assertEquals(0, SimControl.count("ORVEX_GetDevicesInfoLen"));
        assertEquals(-1, h.nReturnValue);

        String jni = "Java_com_zq_OrvexCore_IOrvexCore_ORVEX_1GetDevicesInfoLen";
        assertTrue(BridgeInternals.global("_Z" + jni.length() + jni + "P7JNIEnv_P7_jclassiP8_jobject") != 0);
        assertThrows(IllegalStateException.class, () -> BridgeInternals.global(jni));
    }

    // ---- point queries and identifier commands ------------------------------------------------

    interface PointQuery {
        int call(int handle, byte[] id, Return_Value_Info_t holder);
    }

    static Stream<Arguments> pointQueries() {
        PointQuery status = IOrvexCore::ORVEX_GetChannelStatus;
        PointQuery type = IOrvexCore::ORVEX_GetDeviceTypeByDevId;
        return Stream.of(Arguments.of("ORVEX_GetChannelStatus", "szCameraId", "pStatus", 2, status),
                Arguments.of("ORVEX_GetDeviceTypeByDevId", "szDeviceId", "pDevType", 601, type));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("pointQueries")
    void pointQueryWritesTheAnswerOnlyOnSuccess(
            String fn, String idArg, String out, int answer, PointQuery m) {
        Return_Value_Info_t h = holder(-1);
        SimControl.script(fn, 0, Write.le32(out, 0, answer));
        assertEquals(0, m.call(H, CRecord.ascii("cam-7"), h));
        assertEquals(answer, h.nReturnValue);
        RecordedCall call = SimControl.last(fn);
        assertArrayEquals(CRecord.ascii("cam-7\0"), call.arg(idArg).bytes);
        assertArrayEquals(new byte[4], call.arg(out).bytes, "the answer starts at 0");

        SimControl.script(fn, 31, Write.le32(out, 0, answer + 1));
        assertEquals(31, m.call(H, CRecord.ascii("unknown"), h));
        assertEquals(answer, h.nReturnValue);

        assertThrows(NullPointerException.class, () -> m.call(H, CRecord.ascii("c"), null));
        assertEquals(2, SimControl.count(fn));
    }

    /** Every method whose Part tests its identifier: null is 1009, empty is the stale result. */
    interface IdMethod {
        int call(byte[] id);
    }

    static Stream<Arguments> checkedIdentifiers() {
        return Stream.of(
                Arguments.of("ORVEX_GetChannelStatus",
                        (IdMethod) id -> IOrvexCore.ORVEX_GetChannelStatus(H, id, holder(0))),
                Arguments.of("ORVEX_GetDeviceTypeByDevId",
                        (IdMethod) id -> IOrvexCore.ORVEX_GetDeviceTypeByDevId(H, id, holder(0))),
                Arguments.of("ORVEX_ControlVideoAlarmHost",
                        (IdMethod) id -> IOrvexCore.ORVEX_ControlVideoAlarmHost(H, id, 1, 2, 3)),
                Arguments.of("ORVEX_ControlNetAlarmHostCmd",
                        (IdMethod) id -> IOrvexCore.ORVEX_ControlNetAlarmHostCmd(H, id, 1, 2, 3L, 4L, 5)),
                Arguments.of("ORVEX_QueryNetAlarmHostChannelCount",
                        (IdMethod) id -> IOrvexCore.ORVEX_QueryNetAlarmHostChannelCount(H, id, holder(0), 5)),
                Arguments.of("ORVEX_QueryNetAlarmHostStatus",
                        (IdMethod) id -> IOrvexCore.ORVEX_QueryNetAlarmHostStatus(
                                H, id, 1, new orvex_AHostDefenceStatus_t[1], 5)));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("checkedIdentifiers")
    void emptyIdentifierKeepsThePreviousResultAndNullIsRefused(String fn, IdMethod m) {
        setLastResult(4242);
        assertEquals(4242, m.call(new byte[0]));
        if (fn.equals("ORVEX_QueryNetAlarmHostStatus")) {
            // Its identifier was never tested: the null reaches JNI and is reported as such.
            assertThrows(NullPointerException.class, () -> m.call(null));
        } else {
            assertEquals(1009, m.call(null));
        }
        assertEquals(0, SimControl.calls().length);
        assertEquals(1009, lastResult());
    }

    @Test
    void netAlarmHostCommandPassesEveryArgumentThrough() {
        assertEquals(0, IOrvexCore.ORVEX_ControlNetAlarmHostCmd(
                H, DEV, 6, 7, 0x1122334455667788L, -2L, 900));
        RecordedCall n = SimControl.last("ORVEX_ControlNetAlarmHostCmd");
        assertArrayEquals(CRecord.ascii("dev-01\0"), n.arg("szId").bytes);
        assertEquals(6, n.arg("nOptType").value);
        assertEquals(7, n.arg("nControlType").value);
        assertEquals(0x1122334455667788L, n.arg("nStartTime").value);
        assertEquals(-2L, n.arg("nEndTime").value);
        assertEquals(900, n.arg("nTimeout").value);
    }

    // ---- alarm-input channels ----------------------------------------------------------------

    private static byte[] alarmInRecord(String id, String name, long right, int type, int status) {
        return new CRecord(336).text(0, id).text(64, name).i64(320, right).i32(328, type)
                .i32(332, status).bytes();
    }

    @Test
    void alarmInChannelsAreWrittenUpToTheCountTheLibraryLeaves() {
        Get_AlarmInChannel_Info_t req = new Get_AlarmInChannel_Info_t(5);
        req.szDeviceId = CRecord.ascii("nvr-9");
        for (AlarmIn_Channel_Info_t c : req.pAlarmInChannelnfo) {
            c.szName = CRecord.filled(256, 0x55);
            c.nStatus = -1;
        }
        AlarmIn_Channel_Info_t[] before = req.pAlarmInChannelnfo.clone();
        SimControl.script("ORVEX_GetAlarmInChannelInfo", 0,
                Write.le32("pInfo", 64, 2),
                Write.bytes("pInfo.pAlarmInChannelnfo", 0, alarmInRecord("in-1", "Door", -1L, 3, 1)),
                Write.bytes("pInfo.pAlarmInChannelnfo", 336,
                        alarmInRecord("in-2", "Window", 1L << 40, 4, 0)),
                Write.bytes("pInfo.pAlarmInChannelnfo", 672, alarmInRecord("in-3", "X", 5, 5, 5)));

        assertEquals(0, IOrvexCore.ORVEX_GetAlarmInChannelInfo(H, req));

        RecordedCall call = SimControl.last("ORVEX_GetAlarmInChannelInfo");
        assertArrayEquals(CRecord.ascii("nvr-9\0"), call.arg("pInfo").slice(0, 6));
        assertEquals(5, call.arg("pInfo").le32(64));
        assertArrayEquals(new byte[5 * 336], call.arg("pInfo.pAlarmInChannelnfo").bytes);
        AlarmIn_Channel_Info_t[] out = req.pAlarmInChannelnfo;
        assertSame(before[0], out[0]);
        assertArrayEquals(CRecord.ascii("in-1"), Arrays.copyOf(out[0].szId, 4));
        assertArrayEquals(CRecord.ascii("Door"), Arrays.copyOf(out[0].szName, 4));
        assertEquals(0x55, out[0].szName[4], "no terminator is copied");
        assertEquals(-1L, out[0].nRight);
        assertEquals(3, out[0].nChnlType);
        assertEquals(1, out[0].nStatus);
        assertEquals(1L << 40, out[1].nRight);
        assertEquals(0, out[1].nStatus);
        for (int i = 2; i < 5; i++) {
            assertEquals(-1, out[i].nStatus, "element " + i);
            assertEquals(0, out[i].szId[0], "element " + i);
        }

        SimControl.script("ORVEX_GetAlarmInChannelInfo", 40,
                Write.bytes("pInfo.pAlarmInChannelnfo", 0, alarmInRecord("a", "b", 1, 2, 3)));
        assertEquals(40, IOrvexCore.ORVEX_GetAlarmInChannelInfo(H, req));
        assertEquals(1, out[0].nStatus, "nothing is written after a failure");
    }

    @Test
    void alarmInRequestsThatCannotBeSentAreNot() {
        setLastResult(66);
        assertEquals(66, IOrvexCore.ORVEX_GetAlarmInChannelInfo(H, new Get_AlarmInChannel_Info_t(0)));
        assertEquals(1009, IOrvexCore.ORVEX_GetAlarmInChannelInfo(H, null));

        Get_AlarmInChannel_Info_t negative = new Get_AlarmInChannel_Info_t(0);
        negative.nAlarmInChannelCount = -1;
        assertThrows(OutOfMemoryError.class, () -> IOrvexCore.ORVEX_GetAlarmInChannelInfo(H, negative));

        assertEquals(0, SimControl.count("ORVEX_GetAlarmInChannelInfo"));
        assertEquals(1009, lastResult());
    }

    // ---- zone states ---------------------------------------------------------------------------

    private static byte[] zone(String id, int alarm, int undefend, int byPass, int defend) {
        return new CRecord(76).text(0, id).i32(64, alarm).i32(68, undefend)
                .raw(72, new byte[] {(byte) byPass, (byte) defend}).bytes();
    }

    private static orvex_AHostDefenceStatus_t[] zones(int n) {
        orvex_AHostDefenceStatus_t[] a = new orvex_AHostDefenceStatus_t[n];
        for (int i = 0; i < n; i++) {
            a[i] = new orvex_AHostDefenceStatus_t();
            a[i].szNodeID = CRecord.filled(64, 0x55);
            a[i].nAlarm = -1;
        }
        return a;
    }

    private static void assertZone(orvex_AHostDefenceStatus_t z, String id, int alarm,
            int undefend, boolean byPass, boolean defend) {
        assertArrayEquals(CRecord.ascii(id), Arrays.copyOf(z.szNodeID, id.length()));
        assertEquals(alarm, z.nAlarm);
        assertEquals(undefend, z.nUndefendAlarm);
        assertEquals(byPass, z.bByPass);
        assertEquals(defend, z.bDefend);
    }

    interface ZoneMethod {
        int call(int count, orvex_AHostDefenceStatus_t[] a);
    }

    static Stream<Arguments> zoneMethods() {
        return Stream.of(
                Arguments.of("ORVEX_QueryNetAlarmHostStatus",
                        (ZoneMethod) (n, a) -> IOrvexCore.ORVEX_QueryNetAlarmHostStatus(H, DEV, n, a, 1)),
                Arguments.of("ORVEX_GetNetAlarmHostStatus",
                        (ZoneMethod) (n, a) -> IOrvexCore.ORVEX_GetNetAlarmHostStatus(H, n, a)));
    }

    /** The query replaces the elements with new objects; the read fills the ones in place. */
    @ParameterizedTest(name = "{0}")
    @MethodSource("zoneMethods")
    void zoneStatesArriveWithEveryField(String fn, ZoneMethod m) {
        orvex_AHostDefenceStatus_t[] a = zones(2);
        orvex_AHostDefenceStatus_t[] before = a.clone();
        SimControl.script(fn, 0, Write.bytes("pInfo", 0, zone("z1", 1, 2, 1, 0)),
                Write.bytes("pInfo", 76, zone("z2", 3, 4, 0, 1)));

        assertEquals(0, m.call(2, a));

        boolean replaces = fn.equals("ORVEX_QueryNetAlarmHostStatus");
        for (int i = 0; i < 2; i++) {
            assertEquals(replaces, before[i] != a[i], "element " + i + " replaced");
        }
        assertZone(a[0], "z1", 1, 2, true, false);
        assertZone(a[1], "z2", 3, 4, false, true);
        assertEquals(replaces ? 0 : 0x55, a[0].szNodeID[2], "only the name's own bytes are written");
        RecordedCall call = SimControl.last(fn);
        assertEquals(2, call.arg("nChannelCount").value);
        assertArrayEquals(new byte[152], call.arg("pInfo").bytes);
        if (replaces) {
            assertArrayEquals(CRecord.ascii("dev-01\0"), call.arg("szDeviceId").bytes);
            assertEquals(1, call.arg("nTimeout").value);
        }
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("zoneMethods")
    void zoneFailureWritesNothingAndZeroZonesCallWithZero(String fn, ZoneMethod m) {
        orvex_AHostDefenceStatus_t[] a = zones(1);
        orvex_AHostDefenceStatus_t old = a[0];
        SimControl.script(fn, 21, Write.bytes("pInfo", 0, zone("z", 9, 9, 1, 1)));
        assertEquals(21, m.call(1, a));
        assertSame(old, a[0]);
        assertEquals(-1, a[0].nAlarm);

        assertEquals(0, m.call(0, a));
        assertEquals(0, SimControl.last(fn).arg("nChannelCount").value);
        assertSame(old, a[0]);

        assertEquals(1009, m.call(1, null));
        assertEquals(2, SimControl.count(fn));
    }

    @Test
    void negativeZoneCountsNeverReachTheLibrary() {
        setLastResult(55);
        assertThrows(OutOfMemoryError.class,
                () -> IOrvexCore.ORVEX_QueryNetAlarmHostStatus(H, DEV, -1, zones(1), 1));
        assertEquals(1009, lastResult());

        setLastResult(55);
        // The read answers with its own code, returned and not stored, and raises nothing.
        assertEquals(1002, IOrvexCore.ORVEX_GetNetAlarmHostStatus(H, -1, zones(1)));
        assertEquals(55, lastResult());
        assertEquals(0, SimControl.count("ORVEX_QueryNetAlarmHostStatus"));
        assertEquals(0, SimControl.count("ORVEX_GetNetAlarmHostStatus"));
    }
}
