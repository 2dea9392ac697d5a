package bridgetest;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertNotNull;
import static org.junit.jupiter.api.Assertions.assertNull;
import static org.junit.jupiter.api.Assertions.assertSame;
import static org.junit.jupiter.api.Assertions.assertThrows;

import com.zq.OrvexCore.AlarmSchemeInfo_t;
import com.zq.OrvexCore.Alarm_Enable_By_Dep_Info_t;
import com.zq.OrvexCore.Alarm_Enable_Info_t;
import com.zq.OrvexCore.Alarm_Info_t;
import com.zq.OrvexCore.Alarm_Query_Info_t;
import com.zq.OrvexCore.Client_Alarm_Info_t;
import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.Return_Value_Info_t;
import com.zq.OrvexCore.Single_Alarm_Info_t;
import com.zq.OrvexCore.orvex_phone_subscribe_alarm_t;
import java.util.Arrays;
import java.util.function.Consumer;
import java.util.function.Function;
import java.util.stream.Stream;
import org.junit.jupiter.api.BeforeEach;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;
import simctl.RecordedArg;
import simctl.RecordedCall;
import simctl.SimControl;
import simctl.Write;

/** Alarm enabling, history, schemes and reports, as raw bytes at the library and in Java. */
class AlarmNativesTest {
    private static final int SOURCE_SIZE = 76;
    private static final int ALARM_SIZE = 4512;
    private static final int SCHEME_SIZE = 780;

    @BeforeEach
    void resetStandIn() {
        SimControl.reset();
    }

    private static byte[] text(String s, int size) {
        return Arrays.copyOf(CRecord.ascii(s), size);
    }

    // --- Enabling

    /** Builds a request of n sources (text, video, input, type per source) for one variant. */
    interface SourceRequest {
        Object build(int nCount, int slots);
    }

    static Object byChannel(int nCount, int slots) {
        Alarm_Enable_Info_t info = new Alarm_Enable_Info_t(slots);
        info.nCount = nCount;
        for (int i = 0; i < slots; i++) {
            info.sources[i].szAlarmDevId = text("dev-" + i, 64);
            info.sources[i].nVideoNo = 10 + i;
            info.sources[i].nAlarmInput = -20 - i;
            info.sources[i].nAlarmType = 300 + i;
        }
        return info;
    }

    static Object byDepartment(int nCount, int slots) {
        Alarm_Enable_By_Dep_Info_t info = new Alarm_Enable_By_Dep_Info_t(slots);
        info.nCount = nCount;
        for (int i = 0; i < slots; i++) {
            // Department codes are terminated by the caller: nothing clears the record.
            info.sources[i].szAlarmDepartmentCode = CRecord.ascii("dep-" + i + "\0");
            info.sources[i].nVideoNo = 10 + i;
            info.sources[i].nAlarmInput = -20 - i;
            info.sources[i].nAlarmType = 300 + i;
        }
        return info;
    }

    static Object[] sourcesOf(Object info) {
        return info instanceof Alarm_Enable_Info_t ? ((Alarm_Enable_Info_t) info).sources
                                                    : ((Alarm_Enable_By_Dep_Info_t) info).sources;
    }

    static void setSources(Object info, int length) {
        if (info instanceof Alarm_Enable_Info_t) {
            Alarm_Enable_Info_t i = (Alarm_Enable_Info_t) info;
            i.sources = Arrays.copyOf(i.sources, length);
        } else {
            Alarm_Enable_By_Dep_Info_t i = (Alarm_Enable_By_Dep_Info_t) info;
            i.sources = Arrays.copyOf(i.sources, length);
        }
    }

    static Stream<Arguments> enableVariants() {
        Function<Object, Integer> channel =
                r -> IOrvexCore.ORVEX_EnableAlarm(5, (Alarm_Enable_Info_t) r, 3000);
        Function<Object, Integer> department = r -> IOrvexCore.ORVEX_EnableAlarmByDepartment(
                5, (Alarm_Enable_By_Dep_Info_t) r, 3000);
        return Stream.of(
                Arguments.of("ORVEX_EnableAlarm", channel,
                        (SourceRequest) AlarmNativesTest::byChannel, "dev-"),
                Arguments.of("ORVEX_EnableAlarmByDepartment", department,
                        (SourceRequest) AlarmNativesTest::byDepartment, "dep-"));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("enableVariants")
    void sourcesReachTheLibraryAsRecords(String fn, Function<Object, Integer> enable,
            SourceRequest request, String prefix) {
        SimControl.script(fn, 71);

        assertEquals(71, enable.apply(request.build(2, 2)));

        RecordedCall call = SimControl.last(fn);
        assertEquals(5, call.arg("nHandle").value);
        assertEquals(3000, call.arg("nTimeout").value);
        assertEquals(2, call.arg("pInfo").le32(0));
        RecordedArg sources = call.arg("pInfo.pSources");
        assertEquals(2 * SOURCE_SIZE, sources.bytes.length);
        for (int i = 0; i < 2; i++) {
            int at = i * SOURCE_SIZE;
            byte[] code = CRecord.ascii(prefix + i + "\0");
            assertArrayEquals(code, sources.slice(at, code.length), "text of source " + i);
            assertEquals(10 + i, sources.le32(at + 64));
            assertEquals(-20 - i, sources.le32(at + 68));
            assertEquals(300 + i, sources.le32(at + 72));
        }
    }

    @Test
    void enablingByChannelClearsEachRecordPastItsText() {
        IOrvexCore.ORVEX_EnableAlarm(5, (Alarm_Enable_Info_t) byChannel(2, 2), 0);
        byte[] expected = new CRecord(2 * SOURCE_SIZE)
                .text(0, "dev-0").i32(64, 10).i32(68, -20).i32(72, 300)
                .text(76, "dev-1").i32(140, 11).i32(144, -21).i32(148, 301).bytes();
        assertArrayEquals(
                expected, SimControl.last("ORVEX_EnableAlarm").arg("pInfo.pSources").bytes);
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("enableVariants")
    void noSourcesStillCallsWithAnEmptyArray(String fn, Function<Object, Integer> enable,
            SourceRequest request, String prefix) {
        assertEquals(0, enable.apply(request.build(0, 0)));

        RecordedCall call = SimControl.last(fn);
        assertEquals(0, call.arg("pInfo").le32(0));
        assertFalse(call.arg("pInfo.pSources").isNull);
        assertEquals(0, call.arg("pInfo.pSources").bytes.length);
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("enableVariants")
    void nullRequestReturns1009(String fn, Function<Object, Integer> enable,
            SourceRequest request, String prefix) {
        assertEquals(1009, enable.apply(null));
        assertEquals(0, SimControl.calls().length);
    }

    /** Bad source lists: how the request is spoiled, and what Java is told. */
    static Stream<Arguments> badSourceLists() {
        Consumer<Object> shortArray = info -> setSources(info, 1);
        Consumer<Object> nullElement = info -> sourcesOf(info)[1] = null;
        Consumer<Object> emptyArray = info -> setSources(info, 0);
        return enableVariants().flatMap(v -> Stream.of(
                Arguments.of(v.get()[0], v.get()[1], v.get()[2], "array shorter than nCount",
                        shortArray, ArrayIndexOutOfBoundsException.class),
                Arguments.of(v.get()[0], v.get()[1], v.get()[2], "null element", nullElement,
                        NullPointerException.class),
                Arguments.of(v.get()[0], v.get()[1], v.get()[2], "empty array",
                        emptyArray, ArrayIndexOutOfBoundsException.class)));
    }

    @ParameterizedTest(name = "{0}: {3}")
    @MethodSource("badSourceLists")
    void badSourceListsAreRefusedBeforeTheLibrary(String fn, Function<Object, Integer> enable,
            SourceRequest request, String what, Consumer<Object> spoil,
            Class<? extends Throwable> thrown) {
        Object info = request.build(2, 2);
        spoil.accept(info);

        assertThrows(thrown, () -> enable.apply(info));

        assertEquals(0, SimControl.calls().length);
    }

    @Test
    void impossibleCountsAndMissingArraysAreRefused() {
        assertThrows(OutOfMemoryError.class,
                () -> IOrvexCore.ORVEX_EnableAlarm(5, (Alarm_Enable_Info_t) byChannel(-1, 1), 0));
        Alarm_Enable_Info_t nullSources = (Alarm_Enable_Info_t) byChannel(1, 1);
        nullSources.sources = null;
        assertThrows(NullPointerException.class,
                () -> IOrvexCore.ORVEX_EnableAlarm(5, nullSources, 0));
        assertEquals(0, SimControl.calls().length);
    }

    @Test
    void disableAlarmPassesHandleAndTimeout() {
        SimControl.script("ORVEX_DisableAlarm", -9);
        assertEquals(-9, IOrvexCore.ORVEX_DisableAlarm(12, 345));
        RecordedCall call = SimControl.last("ORVEX_DisableAlarm");
        assertEquals(12, call.arg("nHandle").value);
        assertEquals(345, call.arg("nTimeout").value);
    }

    // --- Phone subscription

    private static orvex_phone_subscribe_alarm_t subscription() {
        orvex_phone_subscribe_alarm_t s = new orvex_phone_subscribe_alarm_t();
        s.iUserId = 101;
        s.szPhoneId = text("phone", 256);
        s.iAppId = 202;
        s.szPush_type = text("push", 64);
        s.iIs_subscribe = 1;
        s.szLanguage = text("en", 32);
        s.szTimefmt = text("hh:mm", 32);
        s.iDbOper = 303;
        return s;
    }

    /** Library result, iIs_subscribe as the library leaves it (null: untouched), holder after. */
    static Stream<Arguments> subscriptionOutcomes() {
        return Stream.of(Arguments.of(0, null, 1), Arguments.of(0, 0, 0),
                Arguments.of(6, 0, -1));
    }

    @ParameterizedTest(name = "result {0}, library flag {1}")
    @MethodSource("subscriptionOutcomes")
    void subscriptionReturnsTheFlagOnlyOnSuccess(int result, Integer libraryFlag, int holderAfter) {
        Write[] writes = libraryFlag == null ? new Write[0]
                                             : new Write[] {Write.le32("pInfo", 328, libraryFlag)};
        SimControl.script("ORVEX_PhoneSubscribeAlarm", result, writes);
        Return_Value_Info_t holder = new Return_Value_Info_t();
        holder.nReturnValue = -1;

        assertEquals(result, IOrvexCore.ORVEX_PhoneSubscribeAlarm(7, subscription(), holder, 50));

        assertEquals(holderAfter, holder.nReturnValue);
        byte[] expected = new CRecord(400).i32(0, 101).text(4, "phone").i32(260, 202)
                .text(264, "push").i32(328, 1).text(332, "en").text(364, "hh:mm").i32(396, 303)
                .bytes();
        assertArrayEquals(
                expected, SimControl.last("ORVEX_PhoneSubscribeAlarm").arg("pInfo").bytes);
    }

    @Test
    void subscriptionWithoutParametersReturns1009() {
        assertEquals(1009,
                IOrvexCore.ORVEX_PhoneSubscribeAlarm(7, null, new Return_Value_Info_t(), 50));
        assertThrows(NullPointerException.class,
                () -> IOrvexCore.ORVEX_PhoneSubscribeAlarm(7, subscription(), null, 50));
        assertEquals(0, SimControl.calls().length);
    }

    // --- Alarm history

    private static Alarm_Query_Info_t query() {
        Alarm_Query_Info_t q = new Alarm_Query_Info_t();
        q.szCameraId = text("cam-hist", 64);
        q.uStartTime = 0x0102030405060708L;
        q.uEndTime = -2L;
        q.nAlarmType = 6;
        return q;
    }

    private static final byte[] QUERY_BYTES = new CRecord(88).text(0, "cam-hist")
            .i64(64, 0x0102030405060708L).i64(72, -2L).i32(80, 6).bytes();

    /** Library result, what it writes into the count, and the count Java then holds. */
    static Stream<Arguments> countOutcomes() {
        return Stream.of(Arguments.of(0, 42, 42), Arguments.of(31, null, 0),
                Arguments.of(31, 5, 5));
    }

    /** The library's write into a count output, if it makes one. */
    private static Write[] countWrite(Integer written) {
        return written == null ? new Write[0] : new Write[] {Write.le32("pnCount", 0, written)};
    }

    @ParameterizedTest(name = "result {0}, library count {1}")
    @MethodSource("countOutcomes")
    void alarmCountIsWrittenWhateverTheResult(int result, Integer written, int expected) {
        SimControl.script("ORVEX_QueryAlarmCount", result, countWrite(written));
        Return_Value_Info_t count = new Return_Value_Info_t();
        count.nReturnValue = -1;

        assertEquals(result, IOrvexCore.ORVEX_QueryAlarmCount(3, query(), count, 80));

        assertEquals(expected, count.nReturnValue);
        assertArrayEquals(QUERY_BYTES, SimControl.last("ORVEX_QueryAlarmCount").arg("pInfo").bytes);
    }

    @Test
    void alarmCountWithoutQueryReturns1009() {
        Return_Value_Info_t count = new Return_Value_Info_t();
        count.nReturnValue = -1;
        assertEquals(1009, IOrvexCore.ORVEX_QueryAlarmCount(3, null, count, 80));
        assertEquals(-1, count.nReturnValue);
        assertEquals(0, SimControl.calls().length);
    }

    /** One C alarm record: every member distinct, the three members Java never sees filled. */
    private static byte[] alarmRecord(int i, String message) {
        return new CRecord(ALARM_SIZE).i32(0, 100 + i).i32(4, 2).text(8, "dev-" + i)
                .i32(72, 0x80000000 | i).i64(80, 0x7000000000000000L + i).i32(88, 16)
                .text(92, "http://pic").text(348, "sw").text(380, "elec").text(412, message)
                .bytes();
    }

    private static Write[] alarmPage(int retCount, byte[]... records) {
        Write[] writes = new Write[records.length + 1];
        writes[0] = Write.le32("pAlarmInfo", 4, retCount);
        for (int i = 0; i < records.length; i++) {
            writes[i + 1] = Write.bytes("pAlarmInfo.pAlarmInfo", i * ALARM_SIZE, records[i]);
        }
        return writes;
    }

    private static Alarm_Info_t page(int nCount) {
        Alarm_Info_t page = new Alarm_Info_t(nCount);
        page.nRetCount = -1;
        for (Single_Alarm_Info_t a : page.pAlarmInfo) {
            Arrays.fill(a.szMessage, (byte) 0x55);
        }
        return page;
    }

    private static void assertAlarm(int i, String message, Single_Alarm_Info_t a) {
        assertEquals(100 + i, a.nAlarmType);
        assertEquals(2, a.nEventType);
        assertArrayEquals(text("dev-" + i, 64), a.szDevId);
        assertEquals(0x80000000 | i, a.uChannel);
        assertEquals(0x7000000000000000L + i, a.uAlarmTime);
        assertEquals(16, a.nDealWith);
        byte[] m = CRecord.filled(4096, 0x55);
        System.arraycopy(CRecord.ascii(message), 0, m, 0, message.length());
        assertArrayEquals(m, a.szMessage);
    }

    private static void assertUntouched(Single_Alarm_Info_t a) {
        assertEquals(0, a.nAlarmType);
        assertEquals(0, a.uAlarmTime);
        assertArrayEquals(CRecord.filled(4096, 0x55), a.szMessage);
    }

    @Test
    void pageWithFewerRecordsThanAskedFillsOnlyThose() {
        SimControl.script("ORVEX_QueryAlarmInfo", 0,
                alarmPage(2, alarmRecord(0, "x"), alarmRecord(1, "door open")));
        Alarm_Info_t page = page(4);

        assertEquals(0, IOrvexCore.ORVEX_QueryAlarmInfo(3, query(), page, 20, 4, 90));

        RecordedCall call = SimControl.last("ORVEX_QueryAlarmInfo");
        assertArrayEquals(QUERY_BYTES, call.arg("pQueryInfo").bytes);
        assertEquals(4, call.arg("pAlarmInfo").le32(0));
        assertEquals(0, call.arg("pAlarmInfo").le32(4));
        assertArrayEquals(new byte[4 * ALARM_SIZE], call.arg("pAlarmInfo.pAlarmInfo").bytes);
        assertEquals(20, call.arg("nFirstNum").value);
        assertEquals(4, call.arg("nQueryCount").value);
        assertEquals(90, call.arg("nTimeout").value);
        assertEquals(2, page.nRetCount);
        assertAlarm(0, "x", page.pAlarmInfo[0]);
        assertAlarm(1, "door open", page.pAlarmInfo[1]);
        assertUntouched(page.pAlarmInfo[2]);
        assertUntouched(page.pAlarmInfo[3]);
    }

    @Test
    void failedPageStillWritesTheCountAndItsRecords() {
        SimControl.script("ORVEX_QueryAlarmInfo", 44, alarmPage(1, alarmRecord(0, "late")));
        Alarm_Info_t page = page(3);

        assertEquals(44, IOrvexCore.ORVEX_QueryAlarmInfo(3, query(), page, 0, 3, 90));

        assertEquals(1, page.nRetCount);
        assertAlarm(0, "late", page.pAlarmInfo[0]);
        assertUntouched(page.pAlarmInfo[1]);
    }

    @Test
    void aCountBeyondTheAllocatedRecordsReadsNoFurther() {
        SimControl.script(
                "ORVEX_QueryAlarmInfo", 0, alarmPage(5, alarmRecord(0, "a"), alarmRecord(1, "b")));
        Alarm_Info_t page = page(2);
        page.pAlarmInfo = Arrays.copyOf(page.pAlarmInfo, 5);
        page.pAlarmInfo[2] = new Single_Alarm_Info_t();

        assertEquals(0, IOrvexCore.ORVEX_QueryAlarmInfo(3, query(), page, 0, 2, 90));

        assertEquals(5, page.nRetCount);
        assertAlarm(1, "b", page.pAlarmInfo[1]);
        assertEquals(0, page.pAlarmInfo[2].nAlarmType);
    }

    @Test
    void aJavaArrayShorterThanTheCountIsFilledToItsEndAndReported() {
        SimControl.script("ORVEX_QueryAlarmInfo", 0,
                alarmPage(3, alarmRecord(0, "a"), alarmRecord(1, "b"), alarmRecord(2, "c")));
        Alarm_Info_t page = page(3);
        page.pAlarmInfo = Arrays.copyOf(page.pAlarmInfo, 2);

        assertThrows(ArrayIndexOutOfBoundsException.class,
                () -> IOrvexCore.ORVEX_QueryAlarmInfo(3, query(), page, 0, 3, 90));

        assertEquals(3, page.nRetCount);
        assertAlarm(0, "a", page.pAlarmInfo[0]);
        assertAlarm(1, "b", page.pAlarmInfo[1]);
    }

    /** The ways a page query is refused with 1009 before anything is read or called. */
    static Stream<Arguments> refusedPages() {
        return Stream.of(Arguments.of("null query", false, true, 4, 2),
                Arguments.of("null alarm info", true, false, 4, 2),
                Arguments.of("query count 0", true, true, 0, 2),
                Arguments.of("negative query count", true, true, -1, 2),
                Arguments.of("capacity 0", true, true, 4, 0));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("refusedPages")
    void refusedPagesReturn1009AndTouchNothing(String what, boolean withQuery, boolean withPage,
            int queryCount, int capacity) {
        Alarm_Info_t page = page(capacity);

        assertEquals(1009, IOrvexCore.ORVEX_QueryAlarmInfo(
                3, withQuery ? query() : null, withPage ? page : null, 0, queryCount, 90));

        assertEquals(-1, page.nRetCount);
        assertEquals(0, SimControl.calls().length);
    }

    // --- Alarm schemes

    @ParameterizedTest(name = "result {0}, library count {1}")
    @MethodSource("countOutcomes")
    void schemeCountIsWrittenWhateverTheResult(int result, Integer written, int expected) {
        SimControl.script("ORVEX_GetAlarmSchemeCount", result, countWrite(written));
        Return_Value_Info_t count = new Return_Value_Info_t();
        count.nReturnValue = -1;

        assertEquals(result, IOrvexCore.ORVEX_GetAlarmSchemeCount(3, count, 80));

        assertEquals(expected, count.nReturnValue);
        assertEquals(80, SimControl.last("ORVEX_GetAlarmSchemeCount").arg("nTimeout").value);
    }

    private static byte[] schemeRecord(int status, int id, String name, int template, String desc) {
        return new CRecord(SCHEME_SIZE).i32(0, status).i32(4, id).text(8, name)
                .i32(264, template).text(268, desc).bytes();
    }

    private static void assertScheme(AlarmSchemeInfo_t s, int status, int id, byte[] name,
            int template, byte[] desc) {
        assertEquals(status, s.status);
        assertEquals(id, s.id);
        assertArrayEquals(name, s.schemeName);
        assertEquals(template, s.templateId);
        assertArrayEquals(desc, s.desc);
    }

    @Test
    void schemeListFillsNullSlotsWithNewObjects() {
        SimControl.script("ORVEX_GetAlarmSchemeList", 0,
                Write.bytes("pInfo", 0, schemeRecord(1, 7, "night", 70, "all doors")),
                Write.bytes("pInfo", SCHEME_SIZE, schemeRecord(0, 0x80000001, "day", -3, "")));
        AlarmSchemeInfo_t[] list = new AlarmSchemeInfo_t[5];

        assertEquals(0, IOrvexCore.ORVEX_GetAlarmSchemeList(4, list, 60));

        RecordedCall call = SimControl.last("ORVEX_GetAlarmSchemeList");
        assertEquals(5, call.arg("nCount").value);
        assertEquals(5 * SCHEME_SIZE, call.arg("pInfo").bytes.length);
        assertScheme(list[0], 1, 7, text("night", 256), 70, text("all doors", 512));
        assertScheme(list[1], 0, 0x80000001, text("day", 256), -3, new byte[512]);
        for (int i = 2; i < 5; i++) {
            assertNotNull(list[i]);
            assertScheme(list[i], 0, 0, new byte[256], 0, new byte[512]);
        }
    }

    @Test
    void schemeListKeepsExistingObjectsAndTheirBytesPastEachText() {
        SimControl.script("ORVEX_GetAlarmSchemeList", 0,
                Write.bytes("pInfo", 0, schemeRecord(1, 9, "ab", 1, "cd")));
        AlarmSchemeInfo_t existing = new AlarmSchemeInfo_t();
        Arrays.fill(existing.schemeName, (byte) 'Z');
        Arrays.fill(existing.desc, (byte) 'Y');
        AlarmSchemeInfo_t[] list = {existing};

        assertEquals(0, IOrvexCore.ORVEX_GetAlarmSchemeList(4, list, 60));

        assertSame(existing, list[0]);
        byte[] name = CRecord.filled(256, 'Z');
        name[0] = 'a';
        name[1] = 'b';
        byte[] desc = CRecord.filled(512, 'Y');
        desc[0] = 'c';
        desc[1] = 'd';
        assertScheme(existing, 1, 9, name, 1, desc);
    }

    @Test
    void failedOrEmptySchemeListsTouchNoElement() {
        SimControl.script("ORVEX_GetAlarmSchemeList", 13,
                Write.bytes("pInfo", 0, schemeRecord(1, 9, "ab", 1, "cd")));
        AlarmSchemeInfo_t[] list = new AlarmSchemeInfo_t[2];
        assertEquals(13, IOrvexCore.ORVEX_GetAlarmSchemeList(4, list, 60));
        assertNull(list[0]);

        assertEquals(0, IOrvexCore.ORVEX_GetAlarmSchemeList(4, new AlarmSchemeInfo_t[0], 60));
        RecordedCall empty = SimControl.last("ORVEX_GetAlarmSchemeList");
        assertEquals(0, empty.arg("nCount").value);
        assertEquals(0, empty.arg("pInfo").bytes.length);

        assertEquals(1009, IOrvexCore.ORVEX_GetAlarmSchemeList(4, null, 60));
        assertEquals(2, SimControl.count("ORVEX_GetAlarmSchemeList"));
    }

    @Test
    void saveSendsTheSchemeAsItsRecord() {
        AlarmSchemeInfo_t scheme = new AlarmSchemeInfo_t();
        scheme.status = 1;
        scheme.id = 77;
        scheme.schemeName = text("weekend", 256);
        scheme.templateId = 0x10203040;
        scheme.desc = text("garage only", 512);
        SimControl.script("ORVEX_SaveAlarmScheme", 19);

        assertEquals(19, IOrvexCore.ORVEX_SaveAlarmScheme(2, scheme, 40));

        assertArrayEquals(schemeRecord(1, 77, "weekend", 0x10203040, "garage only"),
                SimControl.last("ORVEX_SaveAlarmScheme").arg("pInfo").bytes);
        assertEquals(1009, IOrvexCore.ORVEX_SaveAlarmScheme(2, null, 40));
        assertEquals(1, SimControl.count("ORVEX_SaveAlarmScheme"));
    }

    @Test
    void alarmToServerKeepsTheTimeExactly() {
        Client_Alarm_Info_t alarm = new Client_Alarm_Info_t();
        alarm.szCameraId = text("cam-up", 64);
        alarm.enAlarmType = 3;
        alarm.enStatus = 2;
        alarm.uAlarmTime = 0x8000000000000001L;
        alarm.szMsg = text("smoke", 4096);

        assertEquals(0, IOrvexCore.ORVEX_SendAlarmToServer(2, alarm, 40));

        assertArrayEquals(new CRecord(4176).text(0, "cam-up").i32(64, 3).i32(68, 2)
                .i64(72, 0x8000000000000001L).text(80, "smoke").bytes(),
                SimControl.last("ORVEX_SendAlarmToServer").arg("pInfo").bytes);
        assertThrows(NullPointerException.class,
                () -> IOrvexCore.ORVEX_SendAlarmToServer(2, null, 40));
        assertEquals(1, SimControl.count("ORVEX_SendAlarmToServer"));
    }
}
