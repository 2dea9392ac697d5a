package bridgetest;

import static bridgetest.Fields.set;
import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
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
import java.util.function.ToIntFunction;
import java.util.stream.Stream;
import org.junit.jupiter.api.BeforeEach;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;
import org.junit.jupiter.params.provider.ValueSource;
import simctl.RecordedArg;
import simctl.RecordedCall;
import simctl.SimControl;
import simctl.Write;

/** Alarm enabling, history, schemes and reports, as raw bytes at the library and in Java. */
class AlarmNativesTest {
    private static final int ALARM_SIZE = 4512;
    private static final int SCHEME_SIZE = 780;

    @BeforeEach
    void resetStandIn() {
        SimControl.reset();
    }

    private static byte[] text(String s, int size) {
        return Arrays.copyOf(CRecord.ascii(s), size);
    }

    // --- Enabling: 76-byte sources (text[64], nVideoNo, nAlarmInput, nAlarmType).

    /** Source i of a list: its text, then nVideoNo 10+i, nAlarmInput -20-i, nAlarmType 300+i. */
    private static <T> T source(T element, int i, String textField, byte[] text) {
        return set(element, textField, text, "nVideoNo", 10 + i, "nAlarmInput", -20 - i,
                "nAlarmType", 300 + i);
    }

    private static Alarm_Enable_Info_t byChannel(int n) {
        Alarm_Enable_Info_t info = new Alarm_Enable_Info_t(n);
        for (int i = 0; i < n; i++) {
            source(info.sources[i], i, "szAlarmDevId", text("dev-" + i, 64));
        }
        return info;
    }

    private static Alarm_Enable_By_Dep_Info_t byDepartment(int n) {
        Alarm_Enable_By_Dep_Info_t info = new Alarm_Enable_By_Dep_Info_t(n);
        for (int i = 0; i < n; i++) {
            // Callers terminate department codes: nothing clears the record behind them.
            source(info.sources[i], i, "szAlarmDepartmentCode", CRecord.ascii("dep-" + i + "\0"));
        }
        return info;
    }

    /** Library function, the native applied to a request of n sources, their text prefix. */
    static Stream<Arguments> enableVariants() {
        ToIntFunction<Integer> channel = n -> IOrvexCore.ORVEX_EnableAlarm(5, byChannel(n), 3000);
        ToIntFunction<Integer> department =
                n -> IOrvexCore.ORVEX_EnableAlarmByDepartment(5, byDepartment(n), 3000);
        return Stream.of(Arguments.of("ORVEX_EnableAlarm", channel, "dev-"),
                Arguments.of("ORVEX_EnableAlarmByDepartment", department, "dep-"));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("enableVariants")
    void sourcesReachTheLibraryAsRecords(String fn, ToIntFunction<Integer> enable, String prefix) {
        SimControl.script(fn, 71);

        assertEquals(71, enable.applyAsInt(2));

        RecordedCall call = SimControl.last(fn);
        assertEquals(5, call.arg("nHandle").value);
        assertEquals(3000, call.arg("nTimeout").value);
        assertEquals(2, call.arg("pInfo").le32(0));
        RecordedArg sources = call.arg("pInfo.pSources");
        assertEquals(2 * 76, sources.bytes.length);
        for (int i = 0; i < 2; i++) {
            byte[] code = CRecord.ascii(prefix + i + "\0");
            assertArrayEquals(code, sources.slice(76 * i, code.length), "source " + i);
            assertEquals(10 + i, sources.le32(76 * i + 64));
            assertEquals(-20 - i, sources.le32(76 * i + 68));
            assertEquals(300 + i, sources.le32(76 * i + 72));
        }

        // No sources still call, with an empty array rather than none.
        assertEquals(0, enable.applyAsInt(0));
        assertEquals(0, SimControl.last(fn).arg("pInfo").le32(0));
        assertEquals(false, SimControl.last(fn).arg("pInfo.pSources").isNull);
    }

    @Test
    void enablingByChannelClearsEachRecordPastItsText() {
        IOrvexCore.ORVEX_EnableAlarm(5, byChannel(2), 0);
        byte[] expected = new CRecord(2 * 76).text(0, "dev-0").i32(64, 10).i32(68, -20)
                .i32(72, 300).text(76, "dev-1").i32(140, 11).i32(144, -21).i32(148, 301).bytes();
        assertArrayEquals(expected,
                SimControl.last("ORVEX_EnableAlarm").arg("pInfo.pSources").bytes);
        assertEquals(1009, IOrvexCore.ORVEX_EnableAlarm(5, null, 0));
    }

    /** Source lists the library must not see, and what Java is told instead. */
    static Stream<Arguments> badSourceLists() {
        Consumer<Alarm_Enable_Info_t> shortArray = i -> i.sources = Arrays.copyOf(i.sources, 1);
        Consumer<Alarm_Enable_Info_t> nullElement = i -> i.sources[1] = null;
        Consumer<Alarm_Enable_Info_t> nullArray = i -> i.sources = null;
        Consumer<Alarm_Enable_Info_t> negative = i -> i.nCount = -1;
        return Stream.of(
                Arguments.of("array shorter than nCount", shortArray,
                        ArrayIndexOutOfBoundsException.class),
                Arguments.of("null element", nullElement, NullPointerException.class),
                Arguments.of("null array", nullArray, NullPointerException.class),
                Arguments.of("negative nCount", negative, OutOfMemoryError.class));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("badSourceLists")
    void badSourceListsAreRefusedBeforeTheLibrary(String what,
            Consumer<Alarm_Enable_Info_t> spoil, Class<? extends Throwable> thrown) {
        Alarm_Enable_Info_t info = byChannel(2);
        spoil.accept(info);

        assertThrows(thrown, () -> IOrvexCore.ORVEX_EnableAlarm(5, info, 0));

        assertEquals(0, SimControl.calls().length);
    }

    // --- Phone subscription

    /** Library result, iIs_subscribe as the library leaves it (null: as sent), holder after. */
    static Stream<Arguments> subscriptionOutcomes() {
        return Stream.of(Arguments.of(0, null, 1), Arguments.of(0, 0, 0), Arguments.of(6, 0, -1));
    }

    @ParameterizedTest(name = "result {0}, library flag {1}")
    @MethodSource("subscriptionOutcomes")
    void subscriptionReturnsTheFlagOnlyOnSuccess(int result, Integer flag, int holderAfter) {
        SimControl.script("ORVEX_PhoneSubscribeAlarm", result,
                flag == null ? new Write[0] : new Write[] {Write.le32("pInfo", 328, flag)});
        orvex_phone_subscribe_alarm_t s = set(new orvex_phone_subscribe_alarm_t(),
                "iUserId", 101, "szPhoneId", text("phone", 256), "iAppId", 202,
                "szPush_type", text("push", 64), "iIs_subscribe", 1, "szLanguage", text("en", 32),
                "szTimefmt", text("hh:mm", 32), "iDbOper", 303);
        Return_Value_Info_t holder = new Return_Value_Info_t();
        holder.nReturnValue = -1;

        assertEquals(result, IOrvexCore.ORVEX_PhoneSubscribeAlarm(7, s, holder, 50));

        assertEquals(holderAfter, holder.nReturnValue);
        assertArrayEquals(new CRecord(400).i32(0, 101).text(4, "phone").i32(260, 202)
                .text(264, "push").i32(328, 1).text(332, "en").text(364, "hh:mm").i32(396, 303)
                .bytes(), SimControl.last("ORVEX_PhoneSubscribeAlarm").arg("pInfo").bytes);
    }

    // --- Alarm history

    private static Alarm_Query_Info_t query() {
        return set(new Alarm_Query_Info_t(), "szCameraId", text("cam-hist", 64),
                "uStartTime", 0x0102030405060708L, "uEndTime", -2L, "nAlarmType", 6);
    }

    private static final byte[] QUERY_BYTES = new CRecord(88).text(0, "cam-hist")
            .i64(64, 0x0102030405060708L).i64(72, -2L).i32(80, 6).bytes();

    /** Library result, what it writes into the count output, and the count Java then holds. */
    static Stream<Arguments> countOutcomes() {
        return Stream.of(Arguments.of(0, 42, 42), Arguments.of(31, null, 0),
                Arguments.of(31, 5, 5));
    }

    private static Write[] countWrite(Integer written) {
        return written == null ? new Write[0] : new Write[] {Write.le32("pnCount", 0, written)};
    }

    @ParameterizedTest(name = "result {0}, library count {1}")
    @MethodSource("countOutcomes")
    void countsAreWrittenWhateverTheResult(int result, Integer written, int expected) {
        SimControl.script("ORVEX_QueryAlarmCount", result, countWrite(written));
        SimControl.script("ORVEX_GetAlarmSchemeCount", result, countWrite(written));
        Return_Value_Info_t alarms = new Return_Value_Info_t();
        Return_Value_Info_t schemes = new Return_Value_Info_t();
        alarms.nReturnValue = schemes.nReturnValue = -1;

        assertEquals(result, IOrvexCore.ORVEX_QueryAlarmCount(3, query(), alarms, 80));
        assertEquals(result, IOrvexCore.ORVEX_GetAlarmSchemeCount(3, schemes, 80));

        assertEquals(expected, alarms.nReturnValue);
        assertEquals(expected, schemes.nReturnValue);
        assertArrayEquals(QUERY_BYTES, SimControl.last("ORVEX_QueryAlarmCount").arg("pInfo").bytes);
    }

    /** A C alarm record: every member distinct, the three Java never sees filled too. */
    private static byte[] alarmRecord(int i, String message) {
        return new CRecord(ALARM_SIZE).i32(0, 100 + i).i32(4, 2).text(8, "dev-" + i)
                .i32(72, 0x80000000 | i).i64(80, 0x7000000000000000L + i).i32(88, 16)
                .text(92, "http://pic").text(348, "sw").text(380, "elec").text(412, message)
                .bytes();
    }

    private static void scriptPage(int result, int retCount, byte[]... records) {
        Write[] writes = new Write[records.length + 1];
        writes[0] = Write.le32("pAlarmInfo", 4, retCount);
        for (int i = 0; i < records.length; i++) {
            writes[i + 1] = Write.bytes("pAlarmInfo.pAlarmInfo", i * ALARM_SIZE, records[i]);
        }
        SimControl.script("ORVEX_QueryAlarmInfo", result, writes);
    }

    /** A page of n Java records whose messages are pre-filled, to show what is written. */
    private static Alarm_Info_t page(int n) {
        Alarm_Info_t page = new Alarm_Info_t(n);
        page.nRetCount = -1;
        for (Single_Alarm_Info_t a : page.pAlarmInfo) {
            Arrays.fill(a.szMessage, (byte) 0x55);
        }
        return page;
    }

    /** Record i as alarmRecord(i, message) left it, or untouched when message is null. */
    private static void assertAlarm(int i, String message, Single_Alarm_Info_t a) {
        byte[] m = CRecord.filled(4096, 0x55);
        if (message == null) {
            assertEquals(0, a.nAlarmType);
            assertArrayEquals(m, a.szMessage);
            return;
        }
        assertEquals(100 + i, a.nAlarmType);
        assertEquals(2, a.nEventType);
        assertArrayEquals(text("dev-" + i, 64), a.szDevId);
        assertEquals(0x80000000 | i, a.uChannel);
        assertEquals(0x7000000000000000L + i, a.uAlarmTime);
        assertEquals(16, a.nDealWith);
        System.arraycopy(CRecord.ascii(message), 0, m, 0, message.length());
        assertArrayEquals(m, a.szMessage);
    }

    /** Count and records are written whatever the library's result. */
    @ParameterizedTest(name = "result {0}")
    @ValueSource(ints = {0, 44})
    void pageWithFewerRecordsThanAskedFillsOnlyThose(int result) {
        scriptPage(result, 2, alarmRecord(0, "x"), alarmRecord(1, "door open"));
        Alarm_Info_t page = page(4);

        assertEquals(result, IOrvexCore.ORVEX_QueryAlarmInfo(3, query(), page, 20, 4, 90));

        RecordedCall call = SimControl.last("ORVEX_QueryAlarmInfo");
        assertArrayEquals(QUERY_BYTES, call.arg("pQueryInfo").bytes);
        assertEquals(4, call.arg("pAlarmInfo").le32(0));
        assertEquals(0, call.arg("pAlarmInfo").le32(4));
        assertArrayEquals(new byte[4 * ALARM_SIZE], call.arg("pAlarmInfo.pAlarmInfo").bytes);
        assertEquals(20, call.arg("nFirstNum").value);
        assertEquals(4, call.arg("nQueryCount").value);
        assertEquals(2, page.nRetCount);
        String[] messages = {"x", "door open", null, null};
        for (int i = 0; i < 4; i++) {
            assertAlarm(i, messages[i], page.pAlarmInfo[i]);
        }
    }

    /** Java slots and capacity (nCount) against a library count of 3 with 3 records. */
    @ParameterizedTest(name = "{0} Java slots, capacity {1}")
    @MethodSource("overlongCounts")
    void theLibraryCountIsTrustedOnlyAsFarAsRecordsAndArrayReach(int slots, int capacity,
            boolean reported) {
        scriptPage(0, 3, Arrays.copyOf(new byte[][] {alarmRecord(0, "a"), alarmRecord(1, "b"),
                alarmRecord(2, "c")}, capacity));
        Alarm_Info_t page = page(slots);
        page.nCount = capacity;

        if (reported) {
            assertThrows(ArrayIndexOutOfBoundsException.class,
                    () -> IOrvexCore.ORVEX_QueryAlarmInfo(3, query(), page, 0, capacity, 90));
        } else {
            assertEquals(0, IOrvexCore.ORVEX_QueryAlarmInfo(3, query(), page, 0, capacity, 90));
        }

        assertEquals(3, page.nRetCount);
        assertAlarm(1, "b", page.pAlarmInfo[1]);
        if (slots > capacity) {
            assertAlarm(2, null, page.pAlarmInfo[2]);
        }
    }

    static Stream<Arguments> overlongCounts() {
        return Stream.of(Arguments.of(2, 3, true), Arguments.of(3, 2, false));
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

    // --- Alarm schemes: status, id, schemeName[256] at 8, templateId at 264, desc[512] at 268.

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
    void schemeListFillsEverySlotKeepingExistingObjects() {
        SimControl.script("ORVEX_GetAlarmSchemeList", 0,
                Write.bytes("pInfo", 0, schemeRecord(1, 7, "night", 70, "all doors")),
                Write.bytes("pInfo", SCHEME_SIZE, schemeRecord(0, 0x80000001, "day", -3, "")));
        AlarmSchemeInfo_t existing = new AlarmSchemeInfo_t();
        Arrays.fill(existing.desc, (byte) 'Y');
        AlarmSchemeInfo_t[] list = {existing, null, null, null, null};

        assertEquals(0, IOrvexCore.ORVEX_GetAlarmSchemeList(4, list, 60));

        RecordedCall call = SimControl.last("ORVEX_GetAlarmSchemeList");
        assertEquals(5, call.arg("nCount").value);
        assertEquals(5 * SCHEME_SIZE, call.arg("pInfo").bytes.length);
        assertSame(existing, list[0]);
        byte[] desc = CRecord.filled(512, 'Y');
        System.arraycopy(CRecord.ascii("all doors"), 0, desc, 0, 9);
        assertScheme(list[0], 1, 7, text("night", 256), 70, desc);
        assertScheme(list[1], 0, 0x80000001, text("day", 256), -3, new byte[512]);
        for (int i = 2; i < 5; i++) {
            assertScheme(list[i], 0, 0, new byte[256], 0, new byte[512]);
        }
    }

    @Test
    void failedEmptyOrMissingSchemeListsTouchNoElement() {
        SimControl.script("ORVEX_GetAlarmSchemeList", 13,
                Write.bytes("pInfo", 0, schemeRecord(1, 9, "ab", 1, "cd")));
        AlarmSchemeInfo_t[] list = new AlarmSchemeInfo_t[2];
        assertEquals(13, IOrvexCore.ORVEX_GetAlarmSchemeList(4, list, 60));
        assertNull(list[0]);

        assertEquals(0, IOrvexCore.ORVEX_GetAlarmSchemeList(4, new AlarmSchemeInfo_t[0], 60));
        assertEquals(0, SimControl.last("ORVEX_GetAlarmSchemeList").arg("nCount").value);

        assertEquals(1009, IOrvexCore.ORVEX_GetAlarmSchemeList(4, null, 60));
        assertEquals(2, SimControl.count("ORVEX_GetAlarmSchemeList"));
    }

    @Test
    void savedSchemeAndRaisedAlarmReachTheLibraryAsTheirRecords() {
        AlarmSchemeInfo_t scheme = set(new AlarmSchemeInfo_t(), "status", 1, "id", 77,
                "schemeName", text("weekend", 256), "templateId", 0x10203040,
                "desc", text("garage only", 512));
        Client_Alarm_Info_t alarm = set(new Client_Alarm_Info_t(), "szCameraId", text("cam-up", 64),
                "enAlarmType", 3, "enStatus", 2, "uAlarmTime", 0x8000000000000001L,
                "szMsg", text("smoke", 4096));
        SimControl.script("ORVEX_SaveAlarmScheme", 19);

        assertEquals(19, IOrvexCore.ORVEX_SaveAlarmScheme(2, scheme, 40));
        assertEquals(0, IOrvexCore.ORVEX_SendAlarmToServer(2, alarm, 40));

        assertArrayEquals(schemeRecord(1, 77, "weekend", 0x10203040, "garage only"),
                SimControl.last("ORVEX_SaveAlarmScheme").arg("pInfo").bytes);
        assertArrayEquals(new CRecord(4176).text(0, "cam-up").i32(64, 3).i32(68, 2)
                .i64(72, 0x8000000000000001L).text(80, "smoke").bytes(),
                SimControl.last("ORVEX_SendAlarmToServer").arg("pInfo").bytes);
        assertEquals(1009, IOrvexCore.ORVEX_SaveAlarmScheme(2, null, 40));
        assertEquals(1, SimControl.count("ORVEX_SaveAlarmScheme"));
    }
}
