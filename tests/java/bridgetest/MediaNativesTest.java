package bridgetest;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.zq.OrvexCore.Get_ExternalRealStreamUrl_Info_t;
import com.zq.OrvexCore.Get_RealStream_Info_t;
import com.zq.OrvexCore.Get_RecordStream_File_Info_t;
import com.zq.OrvexCore.Get_RecordStream_Time_Info_t;
import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.Query_Record_Info_t;
import com.zq.OrvexCore.Record_Info_t;
import com.zq.OrvexCore.Return_Value_Info_t;
import com.zq.OrvexCore.Single_Record_Info_t;
import java.util.Arrays;
import java.util.List;
import java.util.Map;
import java.util.function.IntSupplier;
import java.util.function.Supplier;
import java.util.function.ToIntFunction;
import java.util.stream.Stream;
import org.junit.jupiter.api.BeforeEach;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;
import org.junit.jupiter.params.provider.ValueSource;
import simctl.BridgeInternals;
import simctl.RecordedCall;
import simctl.SimControl;
import simctl.Write;

/** Live streams, record search and playback, checked against the raw C bytes the library gets. */
class MediaNativesTest {
    static final int HANDLE = 7;
    static final int TIMEOUT = 3000;

    @BeforeEach
    void resetStandIn() {
        SimControl.reset();
    }

    static Return_Value_Info_t holder(int value) {
        Return_Value_Info_t h = new Return_Value_Info_t();
        h.nReturnValue = value;
        return h;
    }

    static int lastResult() {
        return LastResult.read();
    }

    // ---- the five openers --------------------------------------------------------------------

    interface Open {
        int open(Return_Value_Info_t holder, Object request, Object listener);
    }

    record Opener(String fn, String seqArg, Supplier<Object> request, byte[] info, Open open,
            Map<String, Long> extra) {
        @Override
        public String toString() {
            return fn;
        }
    }

    static Get_RealStream_Info_t realRequest() {
        Get_RealStream_Info_t r = new Get_RealStream_Info_t();
        System.arraycopy(CRecord.ascii("cam-0001"), 0, r.szCameraId, 0, 8);
        r.nRight = 1;
        r.nStreamType = 2;
        r.nMediaType = 3;
        r.nTransType = 1;
        return r;
    }

    static final byte[] REAL_INFO =
            new CRecord(80).text(0, "cam-0001").i32(64, 1).i32(68, 2).i32(72, 3).i32(76, 1).bytes();

    static Get_RecordStream_File_Info_t fileRequest() {
        Get_RecordStream_File_Info_t r = new Get_RecordStream_File_Info_t();
        System.arraycopy(CRecord.ascii("pb-file"), 0, r.szCameraId, 0, 7);
        r.nRight = 1;
        r.nMode = 2;
        r.nFileIndex = 0x80000001;
        r.uBeginTime = 0x1122334455667788L;
        r.uEndTime = -2L;
        return r;
    }

    static final byte[] FILE_INFO = new CRecord(96).text(0, "pb-file").i32(64, 1).i32(68, 2)
            .i32(72, 0x80000001).i64(80, 0x1122334455667788L).i64(88, -2L).bytes();

    static Get_RecordStream_Time_Info_t timeRequest() {
        Get_RecordStream_Time_Info_t r = new Get_RecordStream_Time_Info_t();
        System.arraycopy(CRecord.ascii("pb-time"), 0, r.szCameraId, 0, 7);
        r.nRight = 1;
        r.nMode = 2;
        r.nSource = 3;
        r.uBeginTime = 1_700_000_000_000L;
        r.uEndTime = Long.MIN_VALUE + 5;
        return r;
    }

    static final byte[] TIME_INFO = new CRecord(96).text(0, "pb-time").i32(64, 1).i32(68, 2)
            .i32(72, 3).i64(80, 1_700_000_000_000L).i64(88, Long.MIN_VALUE + 5).bytes();

    static Stream<Opener> openers() {
        return Stream.of(
                new Opener("ORVEX_GetRealStream", "pnRealSeq", MediaNativesTest::realRequest,
                        REAL_INFO,
                        (h, r, l) -> IOrvexCore.ORVEX_GetRealStream(
                                HANDLE, h, (Get_RealStream_Info_t) r, l, TIMEOUT),
                        Map.of()),
                new Opener("ORVEX_GetRealStreamPreview", "pnRealSeq",
                        MediaNativesTest::realRequest, REAL_INFO,
                        (h, r, l) -> IOrvexCore.ORVEX_GetRealStreamPreview(
                                HANDLE, h, (Get_RealStream_Info_t) r, 5, l, TIMEOUT),
                        Map.of("nStartChannelIndex", 5L)),
                new Opener("ORVEX_GetRecordStreamByFile", "pnPlaybackSeq",
                        MediaNativesTest::fileRequest, FILE_INFO,
                        (h, r, l) -> IOrvexCore.ORVEX_GetRecordStreamByFile(
                                HANDLE, h, (Get_RecordStream_File_Info_t) r, l, TIMEOUT),
                        Map.of()),
                new Opener("ORVEX_GetRecordStreamByTime", "pnPlaybackSeq",
                        MediaNativesTest::timeRequest, TIME_INFO,
                        (h, r, l) -> IOrvexCore.ORVEX_GetRecordStreamByTime(
                                HANDLE, h, (Get_RecordStream_Time_Info_t) r, l, TIMEOUT),
                        Map.of()),
                new Opener("ORVEX_GetRecordStreamByStreamType", "pnPlaybackSeq",
                        MediaNativesTest::timeRequest, TIME_INFO,
                        (h, r, l) -> IOrvexCore.ORVEX_GetRecordStreamByStreamType(
                                HANDLE, h, (Get_RecordStream_Time_Info_t) r, 2, l, TIMEOUT),
                        Map.of("nStreamType", 2L, "nParam1", 1L, "nParam2", 0L)));
    }

    static Object mediaListener(Recorder recorder) {
        return recorder.listener("MediaDataCallback");
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("openers")
    void requestArrivesAsRawBytesAndTheSequenceReachesTheHolder(Opener o) {
        SimControl.script(o.fn(), 0, Write.le32(o.seqArg(), 0, 77));
        Return_Value_Info_t h = holder(-5);

        assertEquals(0, o.open().open(h, o.request().get(), mediaListener(new Recorder())));

        assertEquals(77, h.nReturnValue);
        RecordedCall call = SimControl.last(o.fn());
        assertArrayEquals(o.info(), call.arg("pInfo").bytes);
        assertEquals(HANDLE, call.arg("nHandle").value);
        assertEquals(TIMEOUT, call.arg("nTimeout").value);
        assertFalse(call.arg("pfnCallback").isNull);
        assertFalse(call.arg("pUserParam").isNull);
        o.extra().forEach((name, v) -> assertEquals(v, call.arg(name).value, name));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("openers")
    void failedOpenLeavesTheHolderAsTheCallerSetIt(Opener o) {
        SimControl.script(o.fn(), 31, Write.le32(o.seqArg(), 0, 5));
        Return_Value_Info_t h = holder(-5);

        assertEquals(31, o.open().open(h, o.request().get(), mediaListener(new Recorder())));

        assertEquals(-5, h.nReturnValue);
        assertEquals(31, lastResult());
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("openers")
    void nullListenerIsRefusedBeforeAnythingIsRead(Opener o) {
        // A camera identifier too long for its member would raise if it were read.
        Object request = withLongCameraId(o.request().get());
        Return_Value_Info_t h = holder(-5);

        assertEquals(1009, o.open().open(h, request, null));

        assertEquals(-5, h.nReturnValue);
        assertEquals(0, SimControl.count(o.fn()));
    }

    static Object withLongCameraId(Object request) {
        try {
            request.getClass().getField("szCameraId").set(request, new byte[65]);
        } catch (ReflectiveOperationException e) {
            throw new AssertionError(e);
        }
        return request;
    }

    /** Inputs the bridge refuses with an exception before the library is called. */
    static Stream<Arguments> refusedOpens() {
        return openers().flatMap(o -> Stream.of(
                Arguments.of(o, "listener without the media invoke", IllegalArgumentException.class,
                        (Supplier<Integer>) () -> o.open().open(holder(1), o.request().get(),
                                new Object())),
                Arguments.of(o, "listener of another kind", IllegalArgumentException.class,
                        (Supplier<Integer>) () -> o.open().open(holder(1), o.request().get(),
                                new Recorder().listener("ORVEXStatusCallback"))),
                Arguments.of(o, "null request", NullPointerException.class,
                        (Supplier<Integer>) () -> o.open().open(
                                holder(1), null, mediaListener(new Recorder()))),
                Arguments.of(o, "null holder", NullPointerException.class,
                        (Supplier<Integer>) () -> o.open().open(
                                null, o.request().get(), mediaListener(new Recorder()))),
                Arguments.of(o, "camera id longer than its member", IllegalArgumentException.class,
                        (Supplier<Integer>) () -> o.open().open(holder(1),
                                withLongCameraId(o.request().get()),
                                mediaListener(new Recorder())))));
    }

    @ParameterizedTest(name = "{0}: {1}")
    @MethodSource("refusedOpens")
    void badInputIsRefusedWithoutCallingTheLibrary(
            Opener o, String what, Class<? extends Throwable> thrown, Supplier<Integer> call) {
        assertThrows(thrown, call::get);
        assertEquals(0, SimControl.count(o.fn()));
        assertEquals(1009, lastResult());
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("openers")
    void framesReachTheListenerTellingTwoStreamsApartBySequence(Opener o) {
        Recorder recorder = new Recorder();
        Object listener = mediaListener(recorder);
        SimControl.script(o.fn(), 0, Write.le32(o.seqArg(), 0, 41));
        SimControl.script(o.fn(), 0, Write.le32(o.seqArg(), 0, 42));
        assertEquals(0, o.open().open(holder(0), o.request().get(), listener));
        assertEquals(0, o.open().open(holder(0), o.request().get(), listener));
        byte[] first = CRecord.filled(4000, 0x5A);
        byte[] second = {0, 1, 2, (byte) 0xFF};

        SimControl.fire("MediaDataCallback", HANDLE, 42, new Object[] {
            HANDLE, 42, 2, CRecord.ascii("node-42"), 9, second, second.length});
        SimControl.fire("MediaDataCallback", HANDLE, 41, new Object[] {
            HANDLE, 41, 1, CRecord.ascii("cam-0001-main"), 3, first, first.length});

        List<Recorder.Event> events = recorder.events();
        assertEquals(2, events.size());
        assertFrame(events.get(0), 42, 2, "node-42", 9, second);
        assertFrame(events.get(1), 41, 1, "cam-0001-main", 3, first);
        assertTrue(events.stream().noneMatch(e -> e.thread() == Thread.currentThread()));
    }

    static void assertFrame(Recorder.Event e, int seq, int mediaType, String node, int param,
            byte[] data) {
        Object[] a = e.args();
        assertEquals(HANDLE, a[0]);
        assertEquals(seq, a[1]);
        assertEquals(mediaType, a[2]);
        assertArrayEquals(CRecord.ascii(node), (byte[]) a[3]);
        assertEquals(param, a[4]);
        assertArrayEquals(data, (byte[]) a[5]);
        assertEquals(data.length, a[6]);
    }

    // ---- external URL and the close-by-camera stub -------------------------------------------

    static Get_ExternalRealStreamUrl_Info_t urlRequest(int bUsedVCS) {
        Get_ExternalRealStreamUrl_Info_t r = new Get_ExternalRealStreamUrl_Info_t();
        System.arraycopy(CRecord.ascii("cam-url"), 0, r.szCameraId, 0, 7);
        r.nStreamType = 1;
        r.nMediaType = 3;
        r.nTransType = 1;
        r.nTrackId = 901;
        r.bUsedVCS = bUsedVCS;
        r.nVcsVideocodec = 2;
        r.nVcsResolution = 7;
        r.nVcsfps = 25;
        r.nVcsbps = 0x80000000;
        return r;
    }

    @ParameterizedTest(name = "bUsedVCS {0}")
    @ValueSource(ints = {1, 0, 2, -1, 257})
    void externalUrlRequestArrivesAsRawBytesWithTheFlagTrueOnlyForOne(int bUsedVCS) {
        assertEquals(0, IOrvexCore.ORVEX_GetExternalRealStreamUrl(
                HANDLE, urlRequest(bUsedVCS), TIMEOUT));

        byte[] expected = new CRecord(1124).text(0, "cam-url").i32(64, 1).i32(68, 3).i32(72, 1)
                .i32(76, 901).i32(80, bUsedVCS == 1 ? 1 : 0).i32(84, 2).i32(88, 7).i32(92, 25)
                .i32(96, 0x80000000).bytes();
        RecordedCall call = SimControl.last("ORVEX_GetExternalRealStreamUrl");
        assertArrayEquals(expected, call.arg("pInfo").bytes);
        assertEquals(TIMEOUT, call.arg("nTimeout").value);
    }

    @ParameterizedTest(name = "result {0}")
    @ValueSource(ints = {0, 12})
    void externalUrlWritesOnlyTheTextBytesAndOnlyOnSuccess(int result) {
        SimControl.script("ORVEX_GetExternalRealStreamUrl", result,
                Write.bytes("pInfo", 100, CRecord.ascii("abc")));
        Get_ExternalRealStreamUrl_Info_t r = urlRequest(0);
        Arrays.fill(r.szUrl, (byte) 'x');

        assertEquals(result, IOrvexCore.ORVEX_GetExternalRealStreamUrl(HANDLE, r, TIMEOUT));

        byte[] expected = CRecord.filled(1024, 'x');
        if (result == 0) {
            System.arraycopy(CRecord.ascii("abc"), 0, expected, 0, 3);
        }
        assertArrayEquals(expected, r.szUrl);
    }

    @Test
    void closeLiveStreamByCameraIsAStubThatKeepsTheLastResult() {
        SimControl.script("ORVEX_CloseRealStreamBySeq", 55);
        assertEquals(55, IOrvexCore.ORVEX_CloseRealStreamBySeq(HANDLE, 3, TIMEOUT));

        for (byte[] id : new byte[][] {CRecord.ascii("cam"), new byte[0], null}) {
            assertEquals(-1, IOrvexCore.ORVEX_CloseRealStreamByCameraId(HANDLE, id, TIMEOUT));
        }

        assertEquals(55, lastResult());
        assertEquals(1, SimControl.calls().length);
    }

    // ---- record search -----------------------------------------------------------------------

    interface Search {
        int search(Query_Record_Info_t query, Return_Value_Info_t holder);
    }

    static Stream<Arguments> searches() {
        Search plain = (q, h) -> IOrvexCore.ORVEX_QueryRecord(HANDLE, q, h, TIMEOUT);
        Search byType = (q, h) -> IOrvexCore.ORVEX_QueryRecordByStreamType(HANDLE, q, 2, h, TIMEOUT);
        return Stream.of(Arguments.of("ORVEX_QueryRecord", plain, Map.of()),
                Arguments.of("ORVEX_QueryRecordByStreamType", byType, Map.of("nStreamType", 2L)));
    }

    static Query_Record_Info_t query() {
        Query_Record_Info_t q = new Query_Record_Info_t();
        System.arraycopy(CRecord.ascii("cam-q"), 0, q.szCameraId, 0, 5);
        q.nRight = 1;
        q.nSource = 2;
        q.nRecordType = 6;
        q.uBeginTime = 0x0102030405060708L;
        q.uEndTime = -1L;
        return q;
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("searches")
    void searchSendsTheQueryAsRawBytesAndReturnsTheCount(
            String fn, Search search, Map<String, Long> extra) {
        SimControl.script(fn, 0, Write.le32("pnRecordCount", 0, 12));
        Return_Value_Info_t h = holder(-3);

        assertEquals(0, search.search(query(), h));

        assertEquals(12, h.nReturnValue);
        RecordedCall call = SimControl.last(fn);
        byte[] expected = new CRecord(96).text(0, "cam-q").i32(64, 1).i32(68, 2).i32(72, 6)
                .i64(80, 0x0102030405060708L).i64(88, -1L).bytes();
        assertArrayEquals(expected, call.arg("pInfo").bytes);
        assertEquals(TIMEOUT, call.arg("nTimeout").value);
        extra.forEach((name, v) -> assertEquals(v, call.arg(name).value, name));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("searches")
    void searchThatFindsNothingReportsZeroAndAFailureLeavesTheHolder(
            String fn, Search search, Map<String, Long> extra) {
        Return_Value_Info_t h = holder(-3);
        assertEquals(0, search.search(query(), h));
        assertEquals(0, h.nReturnValue);

        SimControl.script(fn, 8, Write.le32("pnRecordCount", 0, 12));
        h.nReturnValue = -3;
        assertEquals(8, search.search(query(), h));
        assertEquals(-3, h.nReturnValue);
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("searches")
    void searchWithoutQueryOrHolderIsRefused(String fn, Search search, Map<String, Long> extra) {
        assertThrows(NullPointerException.class, () -> search.search(null, holder(0)));
        assertThrows(NullPointerException.class, () -> search.search(query(), null));
        assertEquals(0, SimControl.count(fn));
    }

    static byte[] singleRecord(int k) {
        return new CRecord(40).i32(0, 0x80000000 + k).i32(4, 2).i32(8, 6)
                .i64(16, 1000L * k + 1).i64(24, -(1000L * k + 2)).i64(32, 0x7000000000L + k)
                .bytes();
    }

    static void assertRecord(Single_Record_Info_t r, int k) {
        assertEquals(0x80000000 + k, r.nFileIndex);
        assertEquals(2, r.nSource);
        assertEquals(6, r.nRecordType);
        assertEquals(1000L * k + 1, r.uBeginTime);
        assertEquals(-(1000L * k + 2), r.uEndTime);
        assertEquals(0x7000000000L + k, r.uLength);
    }

    static void assertZero(Single_Record_Info_t r) {
        assertEquals(List.of(0, 0, 0, 0L, 0L, 0L), List.of(r.nFileIndex, r.nSource, r.nRecordType,
                r.uBeginTime, r.uEndTime, r.uLength));
    }

    static Record_Info_t window(int count) {
        Record_Info_t info = new Record_Info_t(count);
        System.arraycopy(CRecord.ascii("cam-r"), 0, info.szCameraId, 0, 5);
        info.nBegin = 10;
        for (Single_Record_Info_t r : info.pSingleRecord) {
            r.nFileIndex = 99;
            r.uLength = 99;
        }
        return info;
    }

    @Test
    void recordWindowFillsTheRequestedCountWithZerosBeyondWhatWasDelivered() {
        SimControl.script("ORVEX_GetRecordInfo", 0,
                Write.bytes("pInfo.pSingleRecord", 0, singleRecord(0)),
                Write.bytes("pInfo.pSingleRecord", 40, singleRecord(1)),
                Write.bytes("pInfo.pSingleRecord", 80, singleRecord(2)),
                Write.le32("pInfo", 72, 3));
        Record_Info_t info = window(5);

        assertEquals(0, IOrvexCore.ORVEX_GetRecordInfo(HANDLE, info));

        RecordedCall call = SimControl.last("ORVEX_GetRecordInfo");
        byte[] sent = call.arg("pInfo").bytes;
        assertArrayEquals(new CRecord(64).text(0, "cam-r").bytes(), Arrays.copyOf(sent, 64));
        assertEquals(10, call.arg("pInfo").le32(64));
        assertEquals(5, call.arg("pInfo").le32(68));
        assertArrayEquals(new byte[200], call.arg("pInfo.pSingleRecord").bytes);
        for (int k = 0; k < 3; k++) {
            assertRecord(info.pSingleRecord[k], k);
        }
        assertZero(info.pSingleRecord[3]);
        assertZero(info.pSingleRecord[4]);
        assertEquals(5, info.nCount);
    }

    @Test
    void failedReadLeavesEveryElementAsItWas() {
        SimControl.script("ORVEX_GetRecordInfo", 9,
                Write.bytes("pInfo.pSingleRecord", 0, singleRecord(0)));
        Record_Info_t info = window(2);

        assertEquals(9, IOrvexCore.ORVEX_GetRecordInfo(HANDLE, info));

        for (Single_Record_Info_t r : info.pSingleRecord) {
            assertEquals(99, r.nFileIndex);
            assertEquals(99, r.uLength);
        }
    }

    @Test
    void zeroCountSendsANullRecordPointerAndWritesNothing() {
        Record_Info_t info = window(2);
        info.nCount = 0;

        assertEquals(0, IOrvexCore.ORVEX_GetRecordInfo(HANDLE, info));

        assertTrue(SimControl.last("ORVEX_GetRecordInfo").arg("pInfo.pSingleRecord").isNull);
        assertEquals(99, info.pSingleRecord[0].nFileIndex);
    }

    /** Counts that do not fit the records or the array: nothing is written past either. */
    static Stream<Arguments> oversizedCounts() {
        return Stream.of(
                Arguments.of("requested count beyond the array", 4, null,
                        ArrayIndexOutOfBoundsException.class),
                Arguments.of("library raises the count", 2, Write.le32("pInfo", 68, 1000),
                        ArrayIndexOutOfBoundsException.class));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("oversizedCounts")
    void oversizedCountsWriteOnlyWhatBothSidesHold(
            String what, int nCount, Write raise, Class<? extends Throwable> thrown) {
        Write[] writes = raise == null
                ? new Write[] {Write.bytes("pInfo.pSingleRecord", 40, singleRecord(1))}
                : new Write[] {Write.bytes("pInfo.pSingleRecord", 40, singleRecord(1)), raise};
        SimControl.script("ORVEX_GetRecordInfo", 0, writes);
        Record_Info_t info = window(2);
        info.nCount = nCount;

        assertThrows(thrown, () -> IOrvexCore.ORVEX_GetRecordInfo(HANDLE, info));

        assertZero(info.pSingleRecord[0]);
        assertRecord(info.pSingleRecord[1], 1);
        assertEquals(nCount * 40, SimControl.last("ORVEX_GetRecordInfo")
                .arg("pInfo.pSingleRecord").bytes.length);
    }

    @Test
    void recordReadRefusesNullAndNegativeCounts() {
        assertEquals(1009, IOrvexCore.ORVEX_GetRecordInfo(HANDLE, null));
        Record_Info_t info = window(1);
        info.nCount = -1;
        assertThrows(OutOfMemoryError.class, () -> IOrvexCore.ORVEX_GetRecordInfo(HANDLE, info));
        info.nCount = 1;
        info.pSingleRecord = null;
        assertThrows(NullPointerException.class, () -> IOrvexCore.ORVEX_GetRecordInfo(HANDLE, info));
        assertEquals(0, SimControl.count("ORVEX_GetRecordInfo"));
    }

    // ---- stream controls ---------------------------------------------------------------------

    static Stream<Arguments> controls() {
        return Stream.of(
                Arguments.of("ORVEX_CloseRealStreamBySeq",
                        (IntSupplier) () -> IOrvexCore.ORVEX_CloseRealStreamBySeq(HANDLE, 41, TIMEOUT),
                        Map.of("nRealSeq", 41L)),
                Arguments.of("ORVEX_PauseRecordStreamBySeq",
                        (IntSupplier) () -> IOrvexCore.ORVEX_PauseRecordStreamBySeq(HANDLE, 41, TIMEOUT),
                        Map.of("nPlaybackSeq", 41L)),
                Arguments.of("ORVEX_ResumeRecordStreamBySeq",
                        (IntSupplier) () -> IOrvexCore.ORVEX_ResumeRecordStreamBySeq(HANDLE, 41, TIMEOUT),
                        Map.of("nPlaybackSeq", 41L)),
                Arguments.of("ORVEX_SetRecordStreamSpeed",
                        (IntSupplier) () -> IOrvexCore.ORVEX_SetRecordStreamSpeed(HANDLE, 41, 64, TIMEOUT),
                        Map.of("nPlaybackSeq", 41L, "nSpeed", 64L)),
                Arguments.of("ORVEX_SeekRecordStreamBySeq",
                        (IntSupplier) () -> IOrvexCore.ORVEX_SeekRecordStreamBySeq(
                                HANDLE, 41, -5L, Long.MIN_VALUE + 3, TIMEOUT),
                        Map.of("nPlaybackSeq", 41L, "uSeekBegin", -5L,
                                "uSeekEnd", Long.MIN_VALUE + 3)),
                Arguments.of("ORVEX_CloseRecordStreamBySeq",
                        (IntSupplier) () -> IOrvexCore.ORVEX_CloseRecordStreamBySeq(HANDLE, 41, TIMEOUT),
                        Map.of("nPlaybackSeq", 41L)));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("controls")
    void controlsPassTheirArgumentsThroughAndReturnTheLibraryCode(
            String fn, IntSupplier call, Map<String, Long> args) {
        SimControl.script(fn, 23);

        assertEquals(23, call.getAsInt());

        RecordedCall recorded = SimControl.last(fn);
        assertEquals(HANDLE, recorded.arg("nHandle").value);
        assertEquals(TIMEOUT, recorded.arg("nTimeout").value);
        args.forEach((name, v) -> assertEquals(v, recorded.arg(name).value, name));
    }

    /** A close by camera identifier: the id arrives terminated; empty is 1009, null throws. */
    static void assertClosesByCamera(String fn, ToIntFunction<byte[]> close) {
        assertEquals(0, close.applyAsInt(CRecord.ascii("abc")));
        RecordedCall call = SimControl.last(fn);
        assertArrayEquals(CRecord.ascii("abc\0"), call.arg("szCameraId").bytes);
        assertEquals(TIMEOUT, call.arg("nTimeout").value);

        assertEquals(1009, close.applyAsInt(new byte[0]));
        assertThrows(NullPointerException.class, () -> close.applyAsInt(null));
        assertEquals(1, SimControl.count(fn));
    }

    @Test
    void closePlaybackByCameraSendsTheTerminatedIdAndRefusesEmptyOrNull() {
        assertClosesByCamera("ORVEX_CloseRecordStreamByCameraId",
                id -> IOrvexCore.ORVEX_CloseRecordStreamByCameraId(HANDLE, id, TIMEOUT));
    }
}
