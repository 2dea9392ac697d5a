package bridgetest;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertNotEquals;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.zq.OrvexCore.Dep_Info_Ex_t;
import com.zq.OrvexCore.Dep_Info_t;
import com.zq.OrvexCore.Device_Info_Ex_t;
import com.zq.OrvexCore.Enc_Channel_Info_Ex_t;
import com.zq.OrvexCore.Get_Channel_Info_Ex_t;
import com.zq.OrvexCore.Get_Channel_Info_t;
import com.zq.OrvexCore.Get_Dep_Count_Info_t;
import com.zq.OrvexCore.Get_Dep_Info_t;
import com.zq.OrvexCore.Get_Dev_StreamType_Info_t;
import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.Load_Dep_Info_t;
import com.zq.OrvexCore.Return_Value_ByteArray_t;
import com.zq.OrvexCore.Return_Value_Info_t;
import java.util.Arrays;
import java.util.function.IntSupplier;
import java.util.function.ToIntFunction;
import java.util.stream.Stream;
import org.junit.jupiter.api.BeforeEach;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;
import simctl.RecordedCall;
import simctl.SimControl;
import simctl.Write;

/** The organisation tree, group node, channel and logical organisation natives. */
class CatalogueNativesTest {
    @BeforeEach
    void resetStandIn() {
        SimControl.reset();
    }

    /** A Java text array of {@code size} bytes of 'q' with {@code text} over its start. */
    private static byte[] over(int size, String text) {
        byte[] b = CRecord.filled(size, 'q');
        System.arraycopy(CRecord.ascii(text), 0, b, 0, text.length());
        return b;
    }

    /** Leaves the last result at {@code code} through a call that returns it. */
    private static void primeLastResult(int code) {
        SimControl.script("ORVEX_Logout", code);
        assertEquals(code, IOrvexCore.ORVEX_Logout(1, 1));
    }

    // ---- Tree loading and export

    /** The three loads: native, out argument of the library, call through a holder. */
    static Stream<Arguments> loads() {
        ToIntFunction<Return_Value_Info_t> all = h -> IOrvexCore.ORVEX_LoadDGroupInfo(3, h, 800);
        ToIntFunction<Return_Value_Info_t> byType =
                h -> IOrvexCore.ORVEX_LoadOrgInfoByType(3, 4, h, 800);
        ToIntFunction<Return_Value_Info_t> layered =
                h -> IOrvexCore.ORVEX_LoadDGroupInfoLayered(3, new Load_Dep_Info_t(), h, 800);
        return Stream.of(Arguments.of("ORVEX_LoadDGroupInfo", "pnGroupLen", all),
                Arguments.of("ORVEX_LoadOrgInfoByType", "pnOrgCount", byType),
                Arguments.of("ORVEX_LoadDGroupInfoLayered", "pnGroupLen", layered));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("loads")
    void aLoadReturnsItsCountOnlyOnSuccess(
            String fn, String out, ToIntFunction<Return_Value_Info_t> load) {
        Return_Value_Info_t holder = new Return_Value_Info_t();
        SimControl.script(fn, 0, Write.le32(out, 0, 52_000));
        assertEquals(0, load.applyAsInt(holder));
        assertEquals(52_000, holder.nReturnValue);
        assertEquals(800, SimControl.last(fn).arg("nTimeout").value);

        SimControl.script(fn, 17, Write.le32(out, 0, 9));
        assertEquals(17, load.applyAsInt(holder));
        assertEquals(52_000, holder.nReturnValue);

        assertThrows(NullPointerException.class, () -> load.applyAsInt(null));
        assertEquals(2, SimControl.count(fn));
    }

    @Test
    void layeredLoadSendsCodingAndOperationAndByTypeItsType() {
        Load_Dep_Info_t dep = new Load_Dep_Info_t();
        dep.szCoding = CRecord.ascii("D0107");
        dep.nOperation = -1;
        IOrvexCore.ORVEX_LoadDGroupInfoLayered(3, dep, new Return_Value_Info_t(), 1);
        assertArrayEquals(new CRecord(132).text(0, "D0107").i32(128, -1).bytes(),
                SimControl.last("ORVEX_LoadDGroupInfoLayered").arg("pInfo").bytes);

        IOrvexCore.ORVEX_LoadOrgInfoByType(3, 77, new Return_Value_Info_t(), 1);
        assertEquals(77, SimControl.last("ORVEX_LoadOrgInfoByType").arg("nType").value);
    }

    /** Requested length, Java array length, result, expected array (old bytes are 'q'). */
    static Stream<Arguments> groupTextCases() {
        return Stream.of(Arguments.of(5, 8, 0, over(8, "ABCDE")),
                Arguments.of(0, 4, 0, over(4, "")), Arguments.of(5, 8, 61, over(8, "")));
    }

    @ParameterizedTest(name = "length {0} into {1} bytes, result {2}")
    @MethodSource("groupTextCases")
    void groupTextCopiesExactlyTheLengthOnSuccess(
            int length, int arrayLength, int result, byte[] expected) {
        SimControl.script("ORVEX_GetDGroupStr", result,
                Write.bytes("szGroupBuf", 0, Arrays.copyOf(CRecord.ascii("ABCDEFGH"), length)));
        byte[] buf = CRecord.filled(arrayLength, 'q');

        assertEquals(result, IOrvexCore.ORVEX_GetDGroupStr(2, buf, length, 600));

        assertArrayEquals(expected, buf);
        RecordedCall call = SimControl.last("ORVEX_GetDGroupStr");
        assertEquals(length, call.arg("nGroupLen").value);
        assertEquals(600, call.arg("nTimeout").value);
    }

    @Test
    void groupTextLongerThanTheArrayIsCutAtItsEnd() {
        SimControl.script("ORVEX_GetDGroupStr", 0,
                Write.bytes("szGroupBuf", 0, CRecord.ascii("ABCDEFGH")));
        byte[] buf = new byte[3];
        assertThrows(ArrayIndexOutOfBoundsException.class,
                () -> IOrvexCore.ORVEX_GetDGroupStr(2, buf, 8, 1));
        assertArrayEquals(CRecord.ascii("ABC"), buf);
    }

    @ParameterizedTest(name = "result {0}")
    @MethodSource("writtenWhateverTheResult")
    void rootGroupIsWrittenAtFullSizeWhateverTheResult(int result) {
        byte[] c = new CRecord(516).text(0, "R1").raw(127, new byte[] {7}).text(128, "Root")
                .raw(383, new byte[] {8}).i32(384, 5).text(388, "ORG").bytes();
        SimControl.script("ORVEX_GetDGroupRootInfo", result, result == 0
                ? new Write[] {Write.bytes("pInfo", 0, c)} : new Write[0]);
        Dep_Info_t root = new Dep_Info_t();
        root.szCoding = CRecord.filled(128, 'q');
        root.szDepName = CRecord.filled(256, 'q');

        assertEquals(result, IOrvexCore.ORVEX_GetDGroupRootInfo(2, root));

        byte[] expected = result == 0 ? c : new byte[516];
        assertArrayEquals(Arrays.copyOfRange(expected, 0, 128), root.szCoding);
        assertArrayEquals(Arrays.copyOfRange(expected, 128, 384), root.szDepName);
    }

    static Stream<Integer> writtenWhateverTheResult() {
        return Stream.of(0, 33);
    }

    @ParameterizedTest(name = "result {0}")
    @MethodSource("writtenWhateverTheResult")
    void groupCountsAreWrittenWhateverTheResult(int result) {
        SimControl.script("ORVEX_GetDGroupCount", result, result == 0
                ? new Write[] {Write.le32("pInfo", 128, 3), Write.le32("pInfo", 132, 40),
                    Write.le32("pInfo", 136, 500)}
                : new Write[0]);
        Get_Dep_Count_Info_t counts = new Get_Dep_Count_Info_t();
        counts.szCoding = CRecord.ascii("G7");
        counts.nDepCount = counts.nDeviceCount = counts.nChannelCount = -1;

        assertEquals(result, IOrvexCore.ORVEX_GetDGroupCount(2, counts));

        assertArrayEquals(new CRecord(140).text(0, "G7").bytes(),
                SimControl.last("ORVEX_GetDGroupCount").arg("pInfo").bytes);
        int[] expected = result == 0 ? new int[] {3, 40, 500} : new int[3];
        assertArrayEquals(expected,
                new int[] {counts.nDepCount, counts.nDeviceCount, counts.nChannelCount});
    }

    // ---- Group nodes and devices

    private static byte[] groupRecord(String coding) {
        return new CRecord(516).text(0, coding).raw(127, new byte[] {9}).text(128, "N-" + coding)
                .bytes();
    }

    @Test
    void groupReadFillsOnlyTheReportedElementsAndSkipsCallNum() throws Exception {
        byte[] device = DeviceRecordTest.record();
        SimControl.script("ORVEX_GetDGroupInfo", 0, Write.le32("pInfo", 128, 1),
                Write.bytes("pInfo.pDepInfo", 0, groupRecord("G1")),
                Write.bytes("pInfo.pDeviceInfo", 0, device));
        Get_Dep_Info_t info = new Get_Dep_Info_t(2, 1);
        info.szCoding = CRecord.ascii("TOP");
        info.pDepInfo[1].szDepName = CRecord.filled(256, 'q');
        info.pDeviceInfo[0].szCallNum = CRecord.filled(48, 'q');

        assertEquals(0, IOrvexCore.ORVEX_GetDGroupInfo(4, info));

        RecordedCall call = SimControl.last("ORVEX_GetDGroupInfo");
        assertArrayEquals(new CRecord(128).text(0, "TOP").bytes(), call.arg("pInfo").slice(0, 128));
        assertEquals(2, call.arg("pInfo").le32(128));
        assertEquals(1, call.arg("pInfo").le32(144));
        assertArrayEquals(Arrays.copyOfRange(groupRecord("G1"), 0, 128), info.pDepInfo[0].szCoding);
        assertArrayEquals(Arrays.copyOfRange(groupRecord("G1"), 128, 384),
                info.pDepInfo[0].szDepName);
        assertArrayEquals(CRecord.filled(256, 'q'), info.pDepInfo[1].szDepName);
        DeviceRecordTest.assertDevice(device, info.pDeviceInfo[0], false, CRecord.filled(48, 'q'));
        assertEquals(2, info.nDepCount);
    }

    @Test
    void anEmptyGroupReadPassesNullArraysAndWritesNothing() {
        Get_Dep_Info_t info = new Get_Dep_Info_t(0, 0);
        assertEquals(0, IOrvexCore.ORVEX_GetDGroupInfo(4, info));
        RecordedCall call = SimControl.last("ORVEX_GetDGroupInfo");
        assertEquals(0L, call.arg("pInfo").le64(136));
        assertEquals(0L, call.arg("pInfo").le64(152));

        Get_Dep_Info_t one = new Get_Dep_Info_t(1, 1);
        assertEquals(0, IOrvexCore.ORVEX_GetDGroupInfo(4, one));
        assertNotEquals(0L, SimControl.last("ORVEX_GetDGroupInfo").arg("pInfo").le64(136));
        assertNotEquals(0L, SimControl.last("ORVEX_GetDGroupInfo").arg("pInfo").le64(152));
    }

    @Test
    void aFailedGroupReadLeavesJavaUntouched() {
        SimControl.script("ORVEX_GetDGroupInfo", 14,
                Write.bytes("pInfo.pDepInfo", 0, groupRecord("G1")));
        Get_Dep_Info_t info = new Get_Dep_Info_t(1, 0);
        assertEquals(14, IOrvexCore.ORVEX_GetDGroupInfo(4, info));
        assertArrayEquals(new byte[128], info.pDepInfo[0].szCoding);
    }

    @Test
    void aGroupCountBeyondTheRecordsGivenIsCutAtThem() {
        SimControl.script("ORVEX_GetDGroupInfo", 0, Write.le32("pInfo", 128, 7),
                Write.bytes("pInfo.pDepInfo", 516, groupRecord("G2")));
        Get_Dep_Info_t info = new Get_Dep_Info_t(2, 0);
        assertThrows(ArrayIndexOutOfBoundsException.class,
                () -> IOrvexCore.ORVEX_GetDGroupInfo(4, info));
        assertArrayEquals(Arrays.copyOf(groupRecord("G2"), 128), info.pDepInfo[1].szCoding);
    }

    /** Bad group requests: what is thrown (null for none), the result when nothing is thrown. */
    static Stream<Arguments> badGroupRequests() {
        Get_Dep_Info_t negative = new Get_Dep_Info_t();
        negative.nDeviceCount = -1;
        Get_Dep_Info_t nullArray = new Get_Dep_Info_t();
        nullArray.nDepCount = 2;
        nullArray.pDepInfo = null;
        return Stream.of(Arguments.of("null request", null, null),
                Arguments.of("negative count", negative, OutOfMemoryError.class),
                Arguments.of("null array", nullArray, NullPointerException.class));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("badGroupRequests")
    void badGroupRequestsNeverReachTheLibrary(
            String name, Get_Dep_Info_t info, Class<? extends Throwable> thrown) {
        if (thrown == null) {
            assertEquals(1009, IOrvexCore.ORVEX_GetDGroupInfo(4, info));
        } else {
            assertThrows(thrown, () -> IOrvexCore.ORVEX_GetDGroupInfo(4, info));
        }
        assertEquals(0, SimControl.count("ORVEX_GetDGroupInfo"));
    }

    @Test
    void deviceByIdWritesEveryMemberWithCallNum() throws Exception {
        byte[] device = DeviceRecordTest.record();
        SimControl.script("ORVEX_GetDeviceInfoExById", 0, Write.bytes("pInfo", 0, device));
        Device_Info_Ex_t d = new Device_Info_Ex_t();

        assertEquals(0, IOrvexCore.ORVEX_GetDeviceInfoExById(4, CRecord.ascii("DEV-1"), d));

        DeviceRecordTest.assertDevice(device, d, true, null);
        assertArrayEquals(CRecord.ascii("DEV-1\0"),
                SimControl.last("ORVEX_GetDeviceInfoExById").arg("szDeviceId").bytes);

        SimControl.script("ORVEX_GetDeviceInfoExById", 5, Write.le32("pInfo", 320, 1));
        Device_Info_Ex_t untouched = new Device_Info_Ex_t();
        assertEquals(5, IOrvexCore.ORVEX_GetDeviceInfoExById(4, new byte[0], untouched));
        assertEquals(0, untouched.nFactory);
        assertArrayEquals(new byte[1],
                SimControl.last("ORVEX_GetDeviceInfoExById").arg("szDeviceId").bytes);
    }

    // ---- Channels

    private static byte[] channelEx(String id) {
        return new CRecord(592).i32(0, 6).text(4, id).text(68, "Gate").i64(328, -2L)
                .i32(336, 3).i32(340, 1).text(344, "SN9").text(408, "31.2").text(472, "121.5")
                .text(536, "239.0.0.1").i32(584, 5004).bytes();
    }

    private static void assertChannelEx(Enc_Channel_Info_Ex_t ch, String id) {
        assertEquals(6, ch.nCameraType);
        assertArrayEquals(over(64, id), ch.szId);
        assertArrayEquals(over(256, "Gate"), ch.szName);
        assertEquals(-2L, ch.nRight);
        assertEquals(3, ch.nChnlType);
        assertEquals(1, ch.nStatus);
        assertArrayEquals(over(64, "SN9"), ch.szChnlSN);
        assertArrayEquals(over(64, "31.2"), ch.szLatitude);
        assertArrayEquals(over(64, "121.5"), ch.szLongitude);
        assertArrayEquals(over(48, "239.0.0.1"), ch.szMulticastIp);
        assertEquals(5004, ch.nMulticastPort);
    }

    /** A channel whose texts are all 'q', so that strlen writes show what they left. */
    private static Enc_Channel_Info_Ex_t dirtyChannelEx() {
        Enc_Channel_Info_Ex_t ch = new Enc_Channel_Info_Ex_t();
        for (byte[] b : new byte[][] {ch.szId, ch.szName, ch.szChnlSN, ch.szLatitude,
                     ch.szLongitude, ch.szMulticastIp}) {
            Arrays.fill(b, (byte) 'q');
        }
        return ch;
    }

    @Test
    void shortChannelListWritesTextsAtTheirLengthAndOnlyReportedElements() {
        byte[] c = new CRecord(328).i32(0, 2).text(4, "CAM1").text(68, "Door").i32(324, 9)
                .bytes();
        SimControl.script("ORVEX_GetChannelInfo", 0, Write.le32("pInfo", 64, 1),
                Write.bytes("pInfo.pEncChannelnfo", 0, c));
        Get_Channel_Info_t info = new Get_Channel_Info_t(2);
        info.szDeviceId = CRecord.ascii("DEV-2");
        Arrays.fill(info.pEncChannelnfo[0].szName, (byte) 'q');
        Arrays.fill(info.pEncChannelnfo[1].szId, (byte) 'q');

        assertEquals(0, IOrvexCore.ORVEX_GetChannelInfo(4, info));

        RecordedCall call = SimControl.last("ORVEX_GetChannelInfo");
        assertArrayEquals(new CRecord(64).text(0, "DEV-2").bytes(), call.arg("pInfo").slice(0, 64));
        assertEquals(2, call.arg("pInfo").le32(64));
        assertEquals(2 * 328, call.arg("pInfo.pEncChannelnfo").bytes.length);
        assertEquals(2, info.pEncChannelnfo[0].nCameraType);
        assertArrayEquals(Arrays.copyOf(CRecord.ascii("CAM1"), 64), info.pEncChannelnfo[0].szId);
        assertArrayEquals(over(256, "Door"), info.pEncChannelnfo[0].szName);
        assertArrayEquals(CRecord.filled(64, 'q'), info.pEncChannelnfo[1].szId);
    }

    /** The extended record reaches Java the same way through the list and by identifier. */
    static Stream<Arguments> extendedChannelReads() {
        ToIntFunction<Enc_Channel_Info_Ex_t> list = ch -> {
            SimControl.script("ORVEX_GetChannelInfoEx", 0,
                    Write.bytes("pInfo.pEncChannelnfo", 0, channelEx("CAM7")));
            Get_Channel_Info_Ex_t info = new Get_Channel_Info_Ex_t(1);
            info.pEncChannelnfo[0] = ch;
            return IOrvexCore.ORVEX_GetChannelInfoEx(4, info);
        };
        ToIntFunction<Enc_Channel_Info_Ex_t> byId = ch -> {
            SimControl.script("ORVEX_GetChannelInfoById", 0,
                    Write.bytes("pInfo", 0, channelEx("CAM7")));
            return IOrvexCore.ORVEX_GetChannelInfoById(4, CRecord.ascii("CAM7"), ch);
        };
        return Stream.of(Arguments.of("ORVEX_GetChannelInfoEx", list),
                Arguments.of("ORVEX_GetChannelInfoById", byId));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("extendedChannelReads")
    void extendedChannelWritesElevenFieldsTextsAtTheirLength(
            String fn, ToIntFunction<Enc_Channel_Info_Ex_t> read) {
        Enc_Channel_Info_Ex_t ch = dirtyChannelEx();
        assertEquals(0, read.applyAsInt(ch));
        assertChannelEx(ch, "CAM7");
    }

    @Test
    void failedChannelReadsLeaveJavaUntouched() {
        SimControl.script("ORVEX_GetChannelInfoEx", 40,
                Write.bytes("pInfo.pEncChannelnfo", 0, channelEx("X")));
        Get_Channel_Info_Ex_t info = new Get_Channel_Info_Ex_t(1);
        assertEquals(40, IOrvexCore.ORVEX_GetChannelInfoEx(4, info));
        assertEquals(0, info.pEncChannelnfo[0].nCameraType);

        SimControl.script("ORVEX_GetChannelInfoById", 41, Write.bytes("pInfo", 0, channelEx("X")));
        Enc_Channel_Info_Ex_t ch = new Enc_Channel_Info_Ex_t();
        assertEquals(41, IOrvexCore.ORVEX_GetChannelInfoById(4, CRecord.ascii("X"), ch));
        assertEquals(0, ch.nMulticastPort);
    }

    /** Identifier-to-integer natives: native, text argument, out argument, its initial value. */
    static Stream<Arguments> identifierIntegers() {
        IdentifierQuery count = IOrvexCore::ORVEX_GetEncChannelCount;
        IdentifierQuery type = IOrvexCore::ORVEX_GetChnlType;
        return Stream.of(
                Arguments.of("ORVEX_GetEncChannelCount", "szDeviceId", "pnCount", 0, count),
                Arguments.of("ORVEX_GetChnlType", "szCameraId", "pnType", 1, type));
    }

    interface IdentifierQuery {
        int query(int handle, byte[] id, Return_Value_Info_t holder);
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("identifierIntegers")
    void identifierQueryStartsFromItsInitialValueAndWritesOnSuccess(
            String fn, String idArg, String out, int initial, IdentifierQuery m) {
        Return_Value_Info_t holder = new Return_Value_Info_t();
        SimControl.script(fn, 0, Write.le32(out, 0, 16));
        assertEquals(0, m.query(4, CRecord.ascii("ID-3"), holder));
        assertEquals(16, holder.nReturnValue);
        RecordedCall call = SimControl.last(fn);
        assertArrayEquals(CRecord.ascii("ID-3\0"), call.arg(idArg).bytes);
        assertEquals(initial, call.arg(out).le32(0));

        SimControl.script(fn, 2, Write.le32(out, 0, 99));
        assertEquals(2, m.query(4, CRecord.ascii("ID-3"), holder));
        assertEquals(16, holder.nReturnValue);
    }

    @Test
    void streamTypeSendsDeviceAndUnitAndReadsTheTypeOnSuccess() {
        Get_Dev_StreamType_Info_t info = new Get_Dev_StreamType_Info_t();
        info.szDeviceId = CRecord.ascii("NVR");
        info.nUnitNo = 3;
        SimControl.script("ORVEX_GetDevStreamType", 0, Write.le32("pInfo", 68, 2));
        assertEquals(0, IOrvexCore.ORVEX_GetDevStreamType(4, info));
        assertArrayEquals(new CRecord(72).text(0, "NVR").i32(64, 3).bytes(),
                SimControl.last("ORVEX_GetDevStreamType").arg("pInfo").bytes);
        assertEquals(2, info.nStreamType);

        SimControl.script("ORVEX_GetDevStreamType", 6, Write.le32("pInfo", 68, 1));
        assertEquals(6, IOrvexCore.ORVEX_GetDevStreamType(4, info));
        assertEquals(2, info.nStreamType);
    }

    // ---- Logical organisation

    /** Both department reads write the nine fields at full size and leave szOrgID alone. */
    static Stream<Arguments> departmentReads() {
        ToIntFunction<Dep_Info_Ex_t> root = d -> IOrvexCore.ORVEX_GetLogicRootDepInfo(4, d);
        ToIntFunction<Dep_Info_Ex_t> sub =
                d -> IOrvexCore.ORVEX_GetLogicSubDepInfoByIndex(4, CRecord.ascii("L1"), 6, d);
        return Stream.of(Arguments.of("ORVEX_GetLogicRootDepInfo", root),
                Arguments.of("ORVEX_GetLogicSubDepInfoByIndex", sub));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("departmentReads")
    void departmentWritesNineFieldsAtFullSize(String fn, ToIntFunction<Dep_Info_Ex_t> read) {
        byte[] c = new CRecord(1936).text(0, "L1-2").text(128, "Dept").text(384, "2024-01-01")
                .text(512, "S/N").raw(768, CRecord.filled(1000, 'm')).i32(1792, 1).i32(1796, 2)
                .i32(1800, 3).i32(1804, 4).text(1808, "ORG").raw(1023, new byte[] {5}).bytes();
        SimControl.script(fn, 0, Write.bytes("pInfo", 0, c));
        Dep_Info_Ex_t d = new Dep_Info_Ex_t();
        d.szOrgID = CRecord.filled(128, 'q');

        assertEquals(0, read.applyAsInt(d));

        int[][] texts = {{0, 128}, {128, 256}, {384, 128}, {512, 256}, {768, 1024}};
        byte[][] fields = {d.szCoding, d.szDepName, d.szModifyTime, d.szSN, d.szMemo};
        for (int k = 0; k < texts.length; k++) {
            assertArrayEquals(Arrays.copyOfRange(c, texts[k][0], texts[k][0] + texts[k][1]),
                    fields[k], "text " + k);
        }
        assertArrayEquals(new int[] {1, 2, 3, 4},
                new int[] {d.nDepType, d.nDepSort, d.nChargebooth, d.nDepExtType});
        assertArrayEquals(CRecord.filled(128, 'q'), d.szOrgID);

        SimControl.script(fn, 3, Write.bytes("pInfo", 0, new byte[4]));
        assertEquals(3, read.applyAsInt(d));
        assertEquals('L', d.szCoding[0]);
    }

    @Test
    void nodeCountAndLogicIdPassTheirArgumentsThrough() {
        Return_Value_Info_t holder = new Return_Value_Info_t();
        SimControl.script("ORVEX_GetLogicDepNodeNum", 0, Write.le32("pnNum", 0, 12));
        assertEquals(0, IOrvexCore.ORVEX_GetLogicDepNodeNum(4, CRecord.ascii("L9"), 2, holder));
        RecordedCall call = SimControl.last("ORVEX_GetLogicDepNodeNum");
        assertArrayEquals(CRecord.ascii("L9\0"), call.arg("szDepCoding").bytes);
        assertEquals(2, call.arg("eNodeType").value);
        assertEquals(12, holder.nReturnValue);

        byte[] id = new CRecord(128).text(0, "CH-77").raw(127, new byte[] {1}).bytes();
        SimControl.script("ORVEX_GetLogicID", 0, Write.bytes("szCodeID", 0, id));
        Return_Value_ByteArray_t code = new Return_Value_ByteArray_t();
        Arrays.fill(code.szCodeID, (byte) 'q');
        assertEquals(0, IOrvexCore.ORVEX_GetLogicID(4, CRecord.ascii("L9"), 8, true, code));
        call = SimControl.last("ORVEX_GetLogicID");
        assertEquals(8, call.arg("nIndex").value);
        assertEquals(1, call.arg("bChannel").value);
        assertArrayEquals(id, code.szCodeID);

        SimControl.script("ORVEX_GetLogicID", 19, Write.bytes("szCodeID", 0, new byte[] {'z'}));
        assertEquals(19, IOrvexCore.ORVEX_GetLogicID(4, CRecord.ascii("L9"), 0, false, code));
        assertEquals(0, SimControl.last("ORVEX_GetLogicID").arg("bChannel").value);
        assertArrayEquals(id, code.szCodeID);
    }

    @Test
    void hasLogicOrgNeitherStoresNorReturnsTheLastResult() {
        primeLastResult(-41);
        SimControl.script("ORVEX_HasLogicOrg", 1);
        assertTrue(IOrvexCore.ORVEX_HasLogicOrg(4));
        assertFalse(IOrvexCore.ORVEX_HasLogicOrg(4));
        assertEquals(-41, IOrvexCore.ORVEX_GetChannelInfo(4, new Get_Channel_Info_t(0)));
    }

    // ---- Results the library never gave

    /** Paths that call nothing and return the previous result: the native, the skipped call. */
    static Stream<Arguments> staleResultPaths() {
        Return_Value_Info_t h = new Return_Value_Info_t();
        byte[] empty = new byte[0];
        return Stream.of(
                Arguments.of("ORVEX_GetChannelInfo", (IntSupplier) () ->
                        IOrvexCore.ORVEX_GetChannelInfo(4, new Get_Channel_Info_t(0))),
                Arguments.of("ORVEX_GetEncChannelCount",
                        (IntSupplier) () -> IOrvexCore.ORVEX_GetEncChannelCount(4, empty, h)),
                Arguments.of("ORVEX_GetChnlType",
                        (IntSupplier) () -> IOrvexCore.ORVEX_GetChnlType(4, empty, h)),
                Arguments.of("ORVEX_GetChannelInfoById", (IntSupplier) () ->
                        IOrvexCore.ORVEX_GetChannelInfoById(4, empty, new Enc_Channel_Info_Ex_t())),
                Arguments.of("ORVEX_GetLogicDepNodeNum",
                        (IntSupplier) () -> IOrvexCore.ORVEX_GetLogicDepNodeNum(4, empty, 0, h)),
                Arguments.of("ORVEX_GetLogicSubDepInfoByIndex", (IntSupplier) () ->
                        IOrvexCore.ORVEX_GetLogicSubDepInfoByIndex(
                                4, empty, 0, new Dep_Info_Ex_t())),
                Arguments.of("ORVEX_GetLogicID", (IntSupplier) () ->
                        IOrvexCore.ORVEX_GetLogicID(
                                4, empty, 0, false, new Return_Value_ByteArray_t())));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("staleResultPaths")
    void staleResultPathReturnsWhatThePreviousCallLeft(String fn, IntSupplier call) {
        for (int previous : new int[] {-41, 0, 7}) {
            primeLastResult(previous);
            assertEquals(previous, call.getAsInt());
        }
        assertEquals(0, SimControl.count(fn));
    }

    /** Input these natives have always refused with 1009 and no exception: the skipped call. */
    static Stream<Arguments> invalidWithoutException() {
        Return_Value_Info_t h = new Return_Value_Info_t();
        byte[] id = CRecord.ascii("X");
        return Stream.of(
                Arguments.of("ORVEX_GetChannelInfoEx", (IntSupplier) () ->
                        IOrvexCore.ORVEX_GetChannelInfoEx(4, new Get_Channel_Info_Ex_t(0))),
                Arguments.of("ORVEX_GetChannelInfoEx",
                        (IntSupplier) () -> IOrvexCore.ORVEX_GetChannelInfoEx(4, null)),
                Arguments.of("ORVEX_GetChannelInfo",
                        (IntSupplier) () -> IOrvexCore.ORVEX_GetChannelInfo(4, null)),
                Arguments.of("ORVEX_GetEncChannelCount",
                        (IntSupplier) () -> IOrvexCore.ORVEX_GetEncChannelCount(4, null, h)),
                Arguments.of("ORVEX_GetChnlType",
                        (IntSupplier) () -> IOrvexCore.ORVEX_GetChnlType(4, null, h)),
                Arguments.of("ORVEX_GetDevStreamType",
                        (IntSupplier) () -> IOrvexCore.ORVEX_GetDevStreamType(4, null)),
                Arguments.of("ORVEX_GetChannelInfoById",
                        (IntSupplier) () -> IOrvexCore.ORVEX_GetChannelInfoById(4, id, null)),
                Arguments.of("ORVEX_GetDeviceInfoExById", (IntSupplier) () ->
                        IOrvexCore.ORVEX_GetDeviceInfoExById(4, null, new Device_Info_Ex_t())),
                Arguments.of("ORVEX_GetLogicDepNodeNum",
                        (IntSupplier) () -> IOrvexCore.ORVEX_GetLogicDepNodeNum(4, null, 0, h)),
                Arguments.of("ORVEX_GetLogicID", (IntSupplier) () ->
                        IOrvexCore.ORVEX_GetLogicID(
                                4, null, 0, true, new Return_Value_ByteArray_t())));
    }

    @ParameterizedTest(name = "{index}: {0}")
    @MethodSource("invalidWithoutException")
    void refusedInputIsInvalidAndCallsNothing(String fn, IntSupplier call) {
        primeLastResult(-41);
        assertEquals(1009, call.getAsInt());
        assertEquals(0, SimControl.count(fn));
    }
}
