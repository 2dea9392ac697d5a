package bridgetest;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertNotNull;
import static org.junit.jupiter.api.Assertions.assertSame;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.zq.OrvexCore.Enc_Channel_Info_t;
import com.zq.OrvexCore.GetLinkResource_Responce_t;
import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.Person_Count_Info_t;
import com.zq.OrvexCore.Return_Value_Info_t;
import com.zq.OrvexCore.Send_OSDInfo_t;
import com.zq.OrvexCore.SetDoorCmd_Request_t;
import com.zq.OrvexCore.ShareVideoInfo;
import com.zq.OrvexCore.Subscribe_Bay_Car_Info_t;
import java.util.Arrays;
import java.util.List;
import java.util.function.IntSupplier;
import java.util.stream.Collectors;
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

/** JSON and messages, sharing and OSD, doors and links, GPS, bays and people counting. */
class AuxNativesTest {
    private static final String GPS_TEXT = "ORVEX_AskForLastGpsStatusXMLStr";

    @BeforeEach
    void resetStandIn() {
        SimControl.reset();
    }


    private static byte[] zeroPadded(String s, int size) {
        return Arrays.copyOf(CRecord.ascii(s), size);
    }

    /** One of the two JSON commands, called with a JSON text and an answer array. */
    interface JsonCommand {
        int send(byte[] json, byte[] answer);
    }

    static Stream<Arguments> jsonCommands() {
        JsonCommand cms = (json, answer) -> IOrvexCore.ORVEX_SendCammandToCMSByJson(4, json, answer, 900);
        JsonCommand dms = (json, answer) ->
                IOrvexCore.ORVEX_SendCammandToDMSByJson(4, json, CRecord.ascii("CAM-1"), answer, 900);
        return Stream.of(Arguments.of("ORVEX_SendCammandToCMSByJson", cms),
                Arguments.of("ORVEX_SendCammandToDMSByJson", dms));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("jsonCommands")
    void jsonAnswerOverwritesTheWholeArrayWhateverTheResult(String fn, JsonCommand command) {
        for (int result : new int[] {0, 33}) {
            SimControl.declareCapacity(fn, "szJsonResult", 17);
            SimControl.script(fn, result, Write.bytes("szJsonResult", 0, CRecord.ascii("{}\0")),
                    Write.bytes("szJsonResult", 4, CRecord.filled(12, 'z')));
            byte[] answer = CRecord.filled(16, 0x55);

            assertEquals(result, command.send(CRecord.ascii("{\"a\":1}"), answer));

            byte[] expected = new byte[16];
            System.arraycopy(CRecord.ascii("{}"), 0, expected, 0, 2);
            Arrays.fill(expected, 4, 16, (byte) 'z');
            assertArrayEquals(expected, answer, "byte 3 is the cleared fourth byte");
            RecordedCall call = SimControl.last(fn);
            assertArrayEquals(CRecord.ascii("{\"a\":1}\0"), call.arg("szJson").bytes);
            assertArrayEquals(new byte[4], call.arg("szJsonResult").slice(0, 4),
                    "the first four bytes of the answer buffer are cleared");
            assertEquals(900, call.arg("nTimeout").value);
        }
        assertEquals(0, SimControl.errors().length, Arrays.toString(SimControl.errors()));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("jsonCommands")
    void jsonCommandRefusesNullsAndKeepsTheLastResultForEmptyArrays(String fn, JsonCommand c) {
        assertEquals(1009, c.send(null, new byte[4]));
        assertEquals(1009, c.send(CRecord.ascii("{}"), null));
        LastResult.leave(4343);
        assertEquals(4343, c.send(new byte[0], new byte[4]));
        assertEquals(4343, c.send(CRecord.ascii("{}"), new byte[0]));
        assertEquals(0, SimControl.count(fn));
    }

    @Test
    void dmsCommandSendsAnEmptyCameraAsEmptyStringAndRefusesANullOne() {
        assertEquals(0, IOrvexCore.ORVEX_SendCammandToDMSByJson(
                1, CRecord.ascii("{}"), new byte[0], new byte[8], 0));
        assertArrayEquals(new byte[1], SimControl.last("ORVEX_SendCammandToDMSByJson")
                .arg("szCameraId").bytes);
        assertEquals(1009, IOrvexCore.ORVEX_SendCammandToDMSByJson(
                1, CRecord.ascii("{}"), null, new byte[8], 0));
        assertEquals(1, SimControl.count("ORVEX_SendCammandToDMSByJson"));
    }

    @Test
    void generalJsonPassesModuleAndKindUncheckedAndKeepsTheLastResultWhenEmpty() {
        SimControl.script("ORVEX_GeneralJsonTransport", 21);
        assertEquals(21, IOrvexCore.ORVEX_GeneralJsonTransport(2, CRecord.ascii("{x}"), 13, -1, 40));
        RecordedCall call = SimControl.last("ORVEX_GeneralJsonTransport");
        assertArrayEquals(CRecord.ascii("{x}\0"), call.arg("szJson").bytes);
        assertEquals(13, call.arg("nMdlType").value);
        assertEquals(-1, call.arg("nTranType").value);
        assertEquals(40, call.arg("nTimeout").value);

        assertEquals(21, IOrvexCore.ORVEX_GeneralJsonTransport(2, new byte[0], 1, 0, 0));
        assertEquals(1009, IOrvexCore.ORVEX_GeneralJsonTransport(2, null, 1, 0, 0));
        assertEquals(1, SimControl.count("ORVEX_GeneralJsonTransport"));
    }

    static Stream<Arguments> shortMessages() {
        return Stream.of(Arguments.of("grp", "hello"), Arguments.of("", "hello"),
                Arguments.of("grp", ""), Arguments.of("", ""));
    }

    @ParameterizedTest(name = "group \"{0}\" text \"{1}\"")
    @MethodSource("shortMessages")
    void shortMessageSendsEmptyTextsAsEmptyStrings(String group, String text) {
        assertEquals(0, IOrvexCore.ORVEX_SendScsMsg(3, CRecord.ascii(group), CRecord.ascii(text), 70));
        RecordedCall call = SimControl.last("ORVEX_SendScsMsg");
        assertArrayEquals(CRecord.ascii(group + "\0"), call.arg("szGroupId").bytes);
        assertArrayEquals(CRecord.ascii(text + "\0"), call.arg("szText").bytes);
        assertEquals(70, call.arg("nTimeout").value);
    }

    @Test
    void shortMessageRefusesNulls() {
        assertEquals(1009, IOrvexCore.ORVEX_SendScsMsg(3, null, new byte[0], 0));
        assertEquals(1009, IOrvexCore.ORVEX_SendScsMsg(3, new byte[0], null, 0));
        assertEquals(0, SimControl.count("ORVEX_SendScsMsg"));
    }

    private static ShareVideoInfo video(String camera, int type, long plan) {
        ShareVideoInfo v = new ShareVideoInfo();
        v.szCameraId = zeroPadded(camera, 64);
        v.nType = type;
        v.nSubStream = 1;
        v.nIsMobile = -1;
        v.nPlanId = plan;
        v.nPlaybacktime = 0x0102030405060708L;
        return v;
    }

    @Test
    void sharedVideosUsersAndMessageReachTheLibrary() {
        SimControl.script("ORVEX_ShareVideo", 8);
        ShareVideoInfo[] videos = {video("CAM-A", 0, -2L), video("CAM-B", 2, 1L << 40)};

        assertEquals(8, IOrvexCore.ORVEX_ShareVideo(
                9, videos, new int[] {7, -1, 0x10000}, CRecord.ascii("look"), 600));

        RecordedCall call = SimControl.last("ORVEX_ShareVideo");
        byte[] records = call.arg("pInfo").bytes;
        assertEquals(2 * 96, records.length);
        for (int i = 0; i < 2; i++) {
            CRecord expected = new CRecord(96).raw(0, videos[i].szCameraId).i32(64, videos[i].nType)
                    .i32(68, 1).i32(72, -1).i64(80, videos[i].nPlanId).i64(88, 0x0102030405060708L);
            byte[] record = Arrays.copyOfRange(records, 96 * i, 96 * (i + 1));
            // Bytes 76 to 79 are padding, never cleared.
            assertArrayEquals(Arrays.copyOf(expected.bytes(), 76), Arrays.copyOf(record, 76));
            assertArrayEquals(Arrays.copyOfRange(expected.bytes(), 80, 96),
                    Arrays.copyOfRange(record, 80, 96));
        }
        assertEquals(2, call.arg("nVideoCount").value);
        assertArrayEquals(new CRecord(12).i32(0, 7).i32(4, -1).i32(8, 0x10000).bytes(),
                call.arg("pUserIds").bytes);
        assertEquals(3, call.arg("nUserCount").value);
        assertArrayEquals(CRecord.ascii("look\0"), call.arg("szMsg").bytes);
        assertEquals(600, call.arg("nTimeout").value);
    }

    @Test
    void sharingNothingWithNobodySendsZeroCountsAndAnEmptyMessage() {
        assertEquals(0, IOrvexCore.ORVEX_ShareVideo(1, new ShareVideoInfo[0], new int[0], new byte[0], 0));
        RecordedCall call = SimControl.last("ORVEX_ShareVideo");
        assertEquals(0, call.arg("nVideoCount").value);
        assertEquals(0, call.arg("nUserCount").value);
        assertArrayEquals(new byte[1], call.arg("szMsg").bytes);
    }

    @Test
    void sharingRefusesNullArraysAndANullRecord() {
        assertEquals(1009, IOrvexCore.ORVEX_ShareVideo(1, null, new int[0], new byte[0], 0));
        assertEquals(1009, IOrvexCore.ORVEX_ShareVideo(1, new ShareVideoInfo[0], null, new byte[0], 0));
        assertEquals(1009, IOrvexCore.ORVEX_ShareVideo(1, new ShareVideoInfo[0], new int[0], null, 0));
        assertThrows(NullPointerException.class, () -> IOrvexCore.ORVEX_ShareVideo(
                1, new ShareVideoInfo[] {video("C", 0, 0), null}, new int[0], new byte[0], 0));
        assertEquals(0, SimControl.count("ORVEX_ShareVideo"));
    }

    @Test
    void osdTextArrivesAsItsStructureAndOverlongTextIsRefused() {
        Send_OSDInfo_t osd = new Send_OSDInfo_t();
        osd.szDevId = CRecord.ascii("DEV-3");
        osd.szMessage = CRecord.filled(256, 'm');  // fills the member, no terminator
        assertEquals(0, IOrvexCore.ORVEX_SendOSDInfo(2, osd, 30));
        assertArrayEquals(new CRecord(320).text(0, "DEV-3").raw(64, CRecord.filled(256, 'm')).bytes(),
                SimControl.last("ORVEX_SendOSDInfo").arg("pInfo").bytes);

        osd.szMessage = new byte[257];
        assertThrows(IllegalArgumentException.class, () -> IOrvexCore.ORVEX_SendOSDInfo(2, osd, 30));
        assertEquals(1009, IOrvexCore.ORVEX_SendOSDInfo(2, null, 30));
        assertEquals(1, SimControl.count("ORVEX_SendOSDInfo"));
    }

    @ParameterizedTest(name = "jiTimeout {0}")
    @ValueSource(ints = {500, 0, -1, 60000})
    void doorCommandAlwaysWaitsTenSeconds(int timeout) {
        SetDoorCmd_Request_t rq = new SetDoorCmd_Request_t();
        rq.szCameraId = CRecord.ascii("DOOR-4");
        rq.cmd = 13;
        rq.start = -5L;
        rq.end = 0x7FFFFFFF00000001L;

        assertEquals(0, IOrvexCore.ORVEX_SetDoorCmd(6, rq, timeout));

        RecordedCall call = SimControl.last("ORVEX_SetDoorCmd");
        assertArrayEquals(new CRecord(88).text(0, "DOOR-4").i32(64, 13).i64(72, -5L)
                .i64(80, 0x7FFFFFFF00000001L).bytes(), call.arg("pInfo").bytes);
        assertEquals(10000, call.arg("nTimeout").value);
        assertEquals(6, call.arg("nHandle").value);
    }

    @Test
    void doorCommandRefusesANullRequest() {
        assertEquals(1009, IOrvexCore.ORVEX_SetDoorCmd(6, null, 0));
        assertEquals(0, SimControl.count("ORVEX_SetDoorCmd"));
    }

    @ParameterizedTest(name = "result {0}")
    @ValueSource(ints = {0, 17})
    void linkResourceSizeIsWrittenWhateverTheResult(int result) {
        SimControl.script("ORVEX_QueryLinkResource", result, Write.le32("pnLen", 0, 300));
        Return_Value_Info_t count = new Return_Value_Info_t();
        assertEquals(result, IOrvexCore.ORVEX_QueryLinkResource(1, count, 50));
        assertEquals(300, count.nReturnValue);
        assertEquals(50, SimControl.last("ORVEX_QueryLinkResource").arg("nTimeout").value);
    }

    @Test
    void linkResourceOf300BytesChangesOnlyTheFirst300OfA1000ByteArray() {
        byte[] xml = CRecord.filled(300, 'x');
        SimControl.script("ORVEX_GetLinkResource", 0, Write.bytes("pInfo.pXmlData", 0, xml),
                Write.bytes("pInfo.pXmlData", 300, new byte[1]));
        GetLinkResource_Responce_t response = new GetLinkResource_Responce_t(1000);
        Arrays.fill(response.pXmlData, (byte) 0x55);

        assertEquals(0, IOrvexCore.ORVEX_GetLinkResource(3, response));

        byte[] expected = CRecord.filled(1000, 0x55);
        System.arraycopy(xml, 0, expected, 0, 300);
        assertArrayEquals(expected, response.pXmlData);
        assertEquals(1000, SimControl.last("ORVEX_GetLinkResource").arg("pInfo").le32(8));
        assertEquals(0, SimControl.errors().length, Arrays.toString(SimControl.errors()));
    }

    @Test
    void linkResourceFailureOrZeroLengthOrNullLeavesJavaUntouched() {
        SimControl.script("ORVEX_GetLinkResource", 5, Write.bytes("pInfo.pXmlData", 0, CRecord.ascii("a\0")));
        GetLinkResource_Responce_t response = new GetLinkResource_Responce_t(8);
        assertEquals(5, IOrvexCore.ORVEX_GetLinkResource(3, response));
        assertArrayEquals(new byte[8], response.pXmlData);

        assertEquals(1009, IOrvexCore.ORVEX_GetLinkResource(3, new GetLinkResource_Responce_t(0)));
        assertEquals(1009, IOrvexCore.ORVEX_GetLinkResource(3, null));
        assertEquals(1, SimControl.count("ORVEX_GetLinkResource"));
    }

    @Test
    void nvrStatusRequestSendsTheIdentifierAndKeepsTheLastResultWhenEmpty() {
        assertEquals(0, IOrvexCore.ORVEX_QueryNVRChnlStatus(2, CRecord.ascii("NVR-2"), 80));
        assertArrayEquals(CRecord.ascii("NVR-2\0"),
                SimControl.last("ORVEX_QueryNVRChnlStatus").arg("szDeviceId").bytes);
        LastResult.leave(606);
        assertEquals(606, IOrvexCore.ORVEX_QueryNVRChnlStatus(2, new byte[0], 80));
        assertEquals(1009, IOrvexCore.ORVEX_QueryNVRChnlStatus(2, null, 80));
        assertEquals(1, SimControl.count("ORVEX_QueryNVRChnlStatus"));
    }

    @ParameterizedTest(name = "result {0}")
    @ValueSource(ints = {0, 3})
    void gpsLengthIsWrittenOnlyOnSuccess(int result) {
        SimControl.script("ORVEX_AskForLastGpsStatusXMLStrCount", result, Write.le32("pnLen", 0, 512));
        Return_Value_Info_t len = new Return_Value_Info_t();
        len.nReturnValue = -1;
        assertEquals(result, IOrvexCore.ORVEX_AskForLastGpsStatusXMLStrCount(1, len, 10));
        assertEquals(result == 0 ? 512 : -1, len.nReturnValue);
    }

    private static List<String> traceLines() {
        return SimControl.callsOf("ORVEX_WriteORVEXLog").stream().map(c -> {
            assertEquals(4, c.arg("nLevel").value);
            assertEquals(7, c.arg("nHandle").value);
            byte[] b = c.arg("szLog").bytes;
            return new String(b, 0, b.length - 1, java.nio.charset.StandardCharsets.US_ASCII);
        }).collect(Collectors.toList());
    }

    static Stream<Arguments> gpsFetches() {
        String p = "[ORVEX_JNI] ORVEX_AskForLastGpsStatusXMLStr";
        List<String> all = List.of(p + " END", p + "()::GetByteArrayElements END", p + "()::COPY END",
                p + "()::ReleaseByteArrayElements END", p + "()::delete[] szGroupBuf END");
        return Stream.of(Arguments.of(0, all), Arguments.of(9, List.of(all.get(0), all.get(4))));
    }

    @ParameterizedTest(name = "result {0}")
    @MethodSource("gpsFetches")
    void gpsTextIsCopiedOnSuccessAndTracedInTheLibrarysLog(int result, List<String> lines) {
        SimControl.script(GPS_TEXT, result, Write.bytes("szBuffer", 0, CRecord.ascii("<gps/>")));
        byte[] buf = CRecord.filled(8, 0x55);

        assertEquals(result, IOrvexCore.ORVEX_AskForLastGpsStatusXMLStr(7, buf, 6));

        byte[] expected = CRecord.filled(8, 0x55);
        if (result == 0) {
            System.arraycopy(CRecord.ascii("<gps/>"), 0, expected, 0, 6);
        }
        assertArrayEquals(expected, buf);
        assertEquals(lines, traceLines());
        assertEquals(6, SimControl.last(GPS_TEXT).arg("nLen").value);
    }

    @Test
    void gpsTextStopsAtTheEndOfAShortArray() {
        SimControl.script(GPS_TEXT, 0, Write.bytes("szBuffer", 0, CRecord.ascii("abcdef")));
        byte[] buf = new byte[4];
        assertThrows(ArrayIndexOutOfBoundsException.class,
                () -> IOrvexCore.ORVEX_AskForLastGpsStatusXMLStr(7, buf, 6));
        assertArrayEquals(CRecord.ascii("abcd"), buf);
        assertEquals(5, traceLines().size());
    }

    @Test
    void gpsTextRefusesANullBufferAndANegativeLength() {
        assertThrows(NullPointerException.class, () -> IOrvexCore.ORVEX_AskForLastGpsStatusXMLStr(7, null, 4));
        assertThrows(OutOfMemoryError.class,
                () -> IOrvexCore.ORVEX_AskForLastGpsStatusXMLStr(7, new byte[4], -2));
        assertEquals(0, SimControl.count(GPS_TEXT));
        assertEquals(0, SimControl.count("ORVEX_WriteORVEXLog"));
    }

    private static Enc_Channel_Info_t channel(String id, String name, int type) {
        Enc_Channel_Info_t c = new Enc_Channel_Info_t();
        c.szId = CRecord.ascii(id);
        c.szName = CRecord.ascii(name);
        c.nCameraType = type;
        return c;
    }

    @Test
    void baySubscriptionSendsItsChannelsAsRecords() {
        Subscribe_Bay_Car_Info_t sub = new Subscribe_Bay_Car_Info_t();
        sub.nChnlCount = 2;
        sub.nSubscribeFlag = -3;
        sub.pEncChannelnfo = new Enc_Channel_Info_t[] {
            channel("BAY-1", "north gate", 4), channel("BAY-2", "south", 0), channel("X", "", 9)};

        assertEquals(0, IOrvexCore.ORVEX_SubscribeBayCarInfo(5, sub, 70));

        RecordedCall call = SimControl.last("ORVEX_SubscribeBayCarInfo");
        assertEquals(2, call.arg("pInfo").le32(0));
        assertEquals(-3, call.arg("pInfo").le32(16));
        byte[] expected = new byte[2 * 328];
        System.arraycopy(new CRecord(328).i32(0, 4).text(4, "BAY-1").text(68, "north gate").bytes(),
                0, expected, 0, 328);
        System.arraycopy(new CRecord(328).i32(0, 0).text(4, "BAY-2").text(68, "south").bytes(),
                0, expected, 328, 328);
        assertArrayEquals(expected, call.arg("pInfo.pEncChannelnfo").bytes);
        assertEquals(70, call.arg("nTimeout").value);
    }

    @ParameterizedTest(name = "nChnlCount {0}")
    @ValueSource(ints = {0, -4})
    void bayWithoutChannelsIsSentWithANullPointer(int count) {
        Subscribe_Bay_Car_Info_t sub = new Subscribe_Bay_Car_Info_t();
        sub.nChnlCount = count;
        sub.pEncChannelnfo = null;
        assertEquals(0, IOrvexCore.ORVEX_SubscribeBayCarInfo(5, sub, 0));
        RecordedCall call = SimControl.last("ORVEX_SubscribeBayCarInfo");
        assertEquals(count, call.arg("pInfo").le32(0));
        assertEquals(0L, call.arg("pInfo").le64(8));
        assertTrue(call.arg("pInfo.pEncChannelnfo").isNull);
    }

    @Test
    void bayRefusesANullSubscriptionAndTooFewChannels() {
        assertEquals(1009, IOrvexCore.ORVEX_SubscribeBayCarInfo(5, null, 0));
        Subscribe_Bay_Car_Info_t sub = new Subscribe_Bay_Car_Info_t(1);
        sub.nChnlCount = 2;
        assertThrows(ArrayIndexOutOfBoundsException.class,
                () -> IOrvexCore.ORVEX_SubscribeBayCarInfo(5, sub, 0));
        sub.pEncChannelnfo = null;
        assertThrows(NullPointerException.class, () -> IOrvexCore.ORVEX_SubscribeBayCarInfo(5, sub, 0));
        assertEquals(0, SimControl.count("ORVEX_SubscribeBayCarInfo"));
    }

    @ParameterizedTest(name = "result {0}")
    @ValueSource(ints = {0, 44})
    void personCountStartWritesSequenceAndTotalOnlyOnSuccess(int result) {
        SimControl.script("ORVEX_QueryPersonCount", result, Write.le32("pnQuerySeq", 0, 0x90000001),
                Write.le32("pnTotalCount", 0, 250));
        Return_Value_Info_t seq = new Return_Value_Info_t();
        Return_Value_Info_t total = new Return_Value_Info_t();

        assertEquals(result, IOrvexCore.ORVEX_QueryPersonCount(
                2, CRecord.ascii("CAM-P"), seq, total, -1, 1700000000, 3, 90));

        assertEquals(result == 0 ? 0x90000001 : 0, seq.nReturnValue);
        assertEquals(result == 0 ? 250 : 0, total.nReturnValue);
        RecordedCall call = SimControl.last("ORVEX_QueryPersonCount");
        assertArrayEquals(CRecord.ascii("CAM-P\0"), call.arg("szCameraId").bytes);
        assertEquals(0xFFFFFFFFL, call.arg("nStartTime").value, "start is passed as unsigned");
        assertEquals(1700000000L, call.arg("nEndTime").value);
        assertEquals(3, call.arg("nGranularity").value);
        assertEquals(90, call.arg("nTimeout").value);
    }

    static Stream<Arguments> personCountMethods() {
        Return_Value_Info_t h = new Return_Value_Info_t();
        return Stream.of(
                Arguments.of("ORVEX_QueryPersonCount", (java.util.function.Function<byte[], Integer>)
                        id -> IOrvexCore.ORVEX_QueryPersonCount(1, id, h, h, 0, 0, 0, 0)),
                Arguments.of("ORVEX_QueryPersonCountBypage", (java.util.function.Function<byte[], Integer>)
                        id -> IOrvexCore.ORVEX_QueryPersonCountBypage(1, id, 1, 0, 1,
                                new Person_Count_Info_t[1], 0)),
                Arguments.of("ORVEX_StopQueryPersonCount", (java.util.function.Function<byte[], Integer>)
                        id -> IOrvexCore.ORVEX_StopQueryPersonCount(1, id, 1, 0)));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("personCountMethods")
    void emptyOrNullCameraIsInvalidNotTheLastResult(String fn,
            java.util.function.Function<byte[], Integer> method) {
        LastResult.leave(777);
        assertEquals(1009, method.apply(new byte[0]));
        assertEquals(1009, method.apply(null));
        assertEquals(0, SimControl.count(fn));
    }

    /** One 60-byte people-counting row. */
    private static byte[] row(int channel, String rule, int base) {
        CRecord r = new CRecord(60).i32(0, channel).text(4, rule);
        for (int k = 0; k < 6; k++) {
            r.i32(36 + 4 * k, base + k);
        }
        return r.bytes();
    }

    @Test
    void personCountPageFillsNullSlotsWithNewObjects() {
        byte[] ruleFull = CRecord.filled(32, 'r');  // a rule name filling its member
        SimControl.script("ORVEX_QueryPersonCountBypage", 0,
                Write.bytes("pInfo", 0, row(1, "door", 100)),
                Write.bytes("pInfo", 60, row(2, "", 0xFFFFFFF0)),
                Write.bytes("pInfo", 120, new CRecord(60).i32(0, 3).raw(4, ruleFull).bytes()));
        Person_Count_Info_t kept = new Person_Count_Info_t();
        kept.szRuleName = CRecord.filled(32, 0x55);
        Person_Count_Info_t[] page = {null, kept, null, null};

        assertEquals(0, IOrvexCore.ORVEX_QueryPersonCountBypage(4, CRecord.ascii("CAM-P"), 12, 40, 3, page, 5));

        assertNotNull(page[0]);
        assertSame(kept, page[1]);
        assertEquals(null, page[3], "slots past the count stay as they were");
        assertEquals(1, page[0].nChannelID);
        assertArrayEquals(zeroPadded("door", 32), page[0].szRuleName);
        assertEquals(List.of(100, 101, 102, 103, 104, 105), List.of(page[0].nStartTime,
                page[0].nEndTime, page[0].nEnteredSubTotal, page[0].nExitedSubtotal,
                page[0].nAvgInside, page[0].nMaxInside));
        assertArrayEquals(CRecord.filled(32, 0x55), kept.szRuleName, "an empty rule writes nothing");
        assertEquals(0xFFFFFFF0, kept.nStartTime);
        assertEquals(0xFFFFFFF5, kept.nMaxInside);
        assertArrayEquals(ruleFull, page[2].szRuleName);
        RecordedCall call = SimControl.last("ORVEX_QueryPersonCountBypage");
        assertEquals(12, call.arg("nQuerySeq").value);
        assertEquals(40, call.arg("nIndex").value);
        assertEquals(3, call.arg("nCount").value);
        assertEquals(3 * 60, call.arg("pInfo").bytes.length);
        assertArrayEquals(new byte[3 * 60], call.arg("pInfo").bytes, "rows are cleared");
    }

    @Test
    void personCountPageWritesNothingOnFailureAndStopsAtTheArrayEnd() {
        SimControl.script("ORVEX_QueryPersonCountBypage", 2, Write.bytes("pInfo", 0, row(1, "a", 1)));
        Person_Count_Info_t[] page = {null};
        assertEquals(2, IOrvexCore.ORVEX_QueryPersonCountBypage(4, CRecord.ascii("C"), 1, 0, 1, page, 0));
        assertEquals(null, page[0]);

        SimControl.script("ORVEX_QueryPersonCountBypage", 0, Write.bytes("pInfo", 0, row(8, "a", 1)));
        Person_Count_Info_t[] shortPage = {null};
        assertThrows(ArrayIndexOutOfBoundsException.class, () ->
                IOrvexCore.ORVEX_QueryPersonCountBypage(4, CRecord.ascii("C"), 1, 0, 2, shortPage, 0));
        assertEquals(8, shortPage[0].nChannelID);
        IntSupplier negative = () ->
                IOrvexCore.ORVEX_QueryPersonCountBypage(4, CRecord.ascii("C"), 1, 0, -1, page, 0);
        assertThrows(OutOfMemoryError.class, negative::getAsInt);
        assertEquals(2, SimControl.count("ORVEX_QueryPersonCountBypage"));
    }

    @Test
    void personCountStopSendsIdentifierAndSequence() {
        SimControl.script("ORVEX_StopQueryPersonCount", 19);
        assertEquals(19, IOrvexCore.ORVEX_StopQueryPersonCount(4, CRecord.ascii("CAM-P"), -7, 25));
        RecordedCall call = SimControl.last("ORVEX_StopQueryPersonCount");
        assertArrayEquals(CRecord.ascii("CAM-P\0"), call.arg("szCameraId").bytes);
        assertEquals(0xFFFFFFF9L, call.arg("nQuerySeq").value);
        assertEquals(25, call.arg("nTimeout").value);
        assertFalse(call.arg("szCameraId").isNull);
    }
}
