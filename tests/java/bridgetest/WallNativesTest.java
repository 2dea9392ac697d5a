package bridgetest;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.Return_Value_Info_t;
import com.zq.OrvexCore.TvWall.Set_TvWall_Screen_Window_Source_t;
import com.zq.OrvexCore.TvWall.TvWall_Info_t;
import com.zq.OrvexCore.TvWall.TvWall_Layout_Info_t;
import com.zq.OrvexCore.TvWall.TvWall_List_Info_t;
import com.zq.OrvexCore.TvWall.TvWall_Screen_Close_Source_t;
import com.zq.OrvexCore.TvWall.TvWall_Screen_Info_t;
import com.zq.OrvexCore.TvWall.TvWall_Screen_Open_Window_t;
import com.zq.OrvexCore.TvWall.TvWall_Screen_Split_t;
import java.util.Arrays;
import java.util.function.BiFunction;
import java.util.function.IntSupplier;
import java.util.stream.Stream;
import org.junit.jupiter.api.BeforeEach;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;
import simctl.RecordedCall;
import simctl.SimControl;
import simctl.Write;

/** Video wall queries and screen control, checked against the library's raw structures. */
class WallNativesTest {
    private static final int H = 0x3C;

    @BeforeEach
    void resetStandIn() {
        SimControl.reset();
    }

    private static Return_Value_Info_t holder(int v) {
        Return_Value_Info_t h = new Return_Value_Info_t();
        h.nReturnValue = v;
        return h;
    }

    private static int f(float v) {
        return Float.floatToRawIntBits(v);
    }

    // ---- counts ------------------------------------------------------------------------------

    static Stream<Arguments> counts() {
        BiFunction<Integer, Return_Value_Info_t, Integer> walls =
                (t, h) -> IOrvexCore.ORVEX_GetTvWallListCount(H, h, t);
        BiFunction<Integer, Return_Value_Info_t, Integer> screens =
                (t, h) -> IOrvexCore.ORVEX_GetTvWallLayoutCount(H, -2, h, t);
        return Stream.of(Arguments.of("ORVEX_GetTvWallListCount", walls),
                Arguments.of("ORVEX_GetTvWallLayoutCount", screens));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("counts")
    void countIsWrittenWhateverTheResult(String fn, BiFunction<Integer, Return_Value_Info_t, Integer> m) {
        Return_Value_Info_t h = holder(-1);
        SimControl.script(fn, 0, Write.le32("pnCount", 0, 4));
        assertEquals(0, m.apply(1200, h));
        assertEquals(4, h.nReturnValue);
        RecordedCall call = SimControl.last(fn);
        assertEquals(1200, call.arg("nTimeout").value);
        assertArrayEquals(new byte[4], call.arg("pnCount").bytes, "the count starts at 0");
        if (fn.equals("ORVEX_GetTvWallLayoutCount")) {
            assertEquals(0xFFFFFFFEL, call.arg("nTvWallId").value);
        }

        SimControl.script(fn, 17, Write.le32("pnCount", 0, 3));
        assertEquals(17, m.apply(0, h));
        assertEquals(3, h.nReturnValue, "what the library left before failing");

        assertThrows(NullPointerException.class, () -> m.apply(0, null));
        assertEquals(2, SimControl.count(fn));
    }

    // ---- wall list and layout ------------------------------------------------------------------

    private static byte[] wall(int id, int state, String name) {
        return new CRecord(264).i32(0, id).i32(4, state).text(8, name).bytes();
    }

    private static TvWall_List_Info_t walls(int n) {
        TvWall_List_Info_t list = new TvWall_List_Info_t(n);
        for (TvWall_Info_t w : list.pTvWallInfo) {
            w.nTvWallId = -1;
            w.nState = -1;
            w.szName = CRecord.filled(256, 0x55);
        }
        return list;
    }

    @Test
    void wallsAreWrittenUpToTheCountTheLibraryLeaves() {
        TvWall_List_Info_t list = walls(3);
        SimControl.script("ORVEX_GetTvWallList", 0, Write.le32("pInfo", 0, 2),
                Write.bytes("pInfo.pTvWallInfo", 0, wall(11, 1, "Hall wall")),
                Write.bytes("pInfo.pTvWallInfo", 264, wall(0x80000001, 2, "Ten bytes!")),
                Write.bytes("pInfo.pTvWallInfo", 528, wall(33, 3, "third")));

        assertEquals(0, IOrvexCore.ORVEX_GetTvWallList(H, list));

        RecordedCall call = SimControl.last("ORVEX_GetTvWallList");
        assertEquals(3, call.arg("pInfo").le32(0));
        assertArrayEquals(new byte[3 * 264], call.arg("pInfo.pTvWallInfo").bytes);
        TvWall_Info_t[] w = list.pTvWallInfo;
        assertEquals(11, w[0].nTvWallId);
        assertEquals(1, w[0].nState);
        assertEquals(0x80000001, w[1].nTvWallId);
        byte[] name = CRecord.filled(256, 0x55);
        System.arraycopy(CRecord.ascii("Ten bytes!"), 0, name, 0, 10);
        assertArrayEquals(name, w[1].szName, "only the name's ten bytes change");
        assertEquals(-1, w[2].nTvWallId);
        assertEquals(-1, w[2].nState);
        assertArrayEquals(CRecord.filled(256, 0x55), w[2].szName);
    }

    private static byte[] screen(int id, String name, String decoder, float[] rect, int bind,
            int combine) {
        CRecord r = new CRecord(344).i32(0, id).text(4, name).text(260, decoder);
        for (int k = 0; k < 4; k++) {
            r.i32(324 + 4 * k, f(rect[k]));
        }
        return r.raw(340, new byte[] {(byte) bind, (byte) combine}).bytes();
    }

    private static TvWall_Layout_Info_t screens(int wallId, int n) {
        TvWall_Layout_Info_t layout = new TvWall_Layout_Info_t(wallId, n);
        for (TvWall_Screen_Info_t s : layout.pScreenInfo) {
            s.nScreenId = -1;
            s.szName = CRecord.filled(256, 0x55);
            s.szDecoderId = CRecord.filled(64, 0x55);
            s.fLeft = s.fTop = s.fWidth = s.fHeight = -1f;
            s.bBind = true;
        }
        return layout;
    }

    @Test
    void screensCarryFloatsAndBindButNotCombine() {
        TvWall_Layout_Info_t layout = screens(77, 2);
        SimControl.script("ORVEX_GetTvWallLayout", 0,
                Write.bytes("pInfo.pScreenInfo", 0,
                        screen(5, "left", "dec-1", new float[] {0f, 0.5f, 0.25f, 1e-3f}, 1, 0)),
                Write.bytes("pInfo.pScreenInfo", 344,
                        screen(6, "right", "dec-22", new float[] {-2.5f, 3f, 1f, 1f}, 0, 1)));

        assertEquals(0, IOrvexCore.ORVEX_GetTvWallLayout(H, layout));

        RecordedCall call = SimControl.last("ORVEX_GetTvWallLayout");
        assertEquals(77, call.arg("pInfo").le32(0));
        assertEquals(2, call.arg("pInfo").le32(4));
        TvWall_Screen_Info_t a = layout.pScreenInfo[0];
        TvWall_Screen_Info_t b = layout.pScreenInfo[1];
        assertEquals(5, a.nScreenId);
        assertArrayEquals(CRecord.ascii("left"), Arrays.copyOf(a.szName, 4));
        assertEquals(0x55, a.szName[4]);
        assertArrayEquals(CRecord.ascii("dec-1"), Arrays.copyOf(a.szDecoderId, 5));
        assertEquals(0x55, a.szDecoderId[5]);
        assertEquals(Rect.of(0f, 0.5f, 0.25f, 1e-3f), Rect.of(a.fLeft, a.fTop, a.fWidth, a.fHeight));
        assertTrue(a.bBind);
        assertEquals(Rect.of(-2.5f, 3f, 1f, 1f), Rect.of(b.fLeft, b.fTop, b.fWidth, b.fHeight));
        assertFalse(b.bBind, "bCombine set, bBind clear");
        assertArrayEquals(CRecord.ascii("dec-22"), Arrays.copyOf(b.szDecoderId, 6));
    }

    /** Four floats compared bit for bit. */
    private record Rect(int a, int b, int c, int d) {
        static Rect of(float a, float b, float c, float d) {
            return new Rect(f(a), f(b), f(c), f(d));
        }
    }

    @Test
    void afterAFailedFetchEveryElementGetsTheZeroedRecord() {
        TvWall_List_Info_t list = walls(2);
        SimControl.script("ORVEX_GetTvWallList", 9);
        assertEquals(9, IOrvexCore.ORVEX_GetTvWallList(H, list));
        for (TvWall_Info_t w : list.pTvWallInfo) {
            assertEquals(0, w.nTvWallId);
            assertEquals(0, w.nState);
            assertArrayEquals(CRecord.filled(256, 0x55), w.szName, "a name of length 0 is copied");
        }
    }

    static Stream<Arguments> fetches() {
        BiFunction<Integer, Boolean, Integer> list = (n, nullRequest) -> IOrvexCore.ORVEX_GetTvWallList(
                H, nullRequest ? null : withCount(new TvWall_List_Info_t(1), n));
        BiFunction<Integer, Boolean, Integer> layout = (n, nullRequest) -> IOrvexCore.ORVEX_GetTvWallLayout(
                H, nullRequest ? null : withCount(new TvWall_Layout_Info_t(1), n));
        return Stream.of(Arguments.of("ORVEX_GetTvWallList", list),
                Arguments.of("ORVEX_GetTvWallLayout", layout));
    }

    private static TvWall_List_Info_t withCount(TvWall_List_Info_t l, int n) {
        l.nCount = n;
        return l;
    }

    private static TvWall_Layout_Info_t withCount(TvWall_Layout_Info_t l, int n) {
        l.nCount = n;
        return l;
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("fetches")
    void fetchesThatCannotBeSentAreNot(String fn, BiFunction<Integer, Boolean, Integer> m) {
        assertEquals(1009, m.apply(1, true));
        assertEquals(1009, m.apply(0, false));
        assertThrows(OutOfMemoryError.class, () -> m.apply(-1, false));
        assertEquals(0, SimControl.count(fn));
    }

    // ---- screen commands -----------------------------------------------------------------------

    static Stream<Arguments> screenCommands() {
        Set_TvWall_Screen_Window_Source_t src = new Set_TvWall_Screen_Window_Source_t();
        src.nTvWallId = 1;
        src.nScreenId = 2;
        src.nWindowId = -3;
        src.szCameraId = CRecord.ascii("cam-0042");
        src.nStayTime = 0x0102030405060708L;
        src.enStreamType = 2;
        TvWall_Screen_Close_Source_t close = new TvWall_Screen_Close_Source_t();
        close.nTvWallId = 4;
        close.nScreenId = 5;
        close.nWindowId = 6;
        TvWall_Screen_Split_t split = new TvWall_Screen_Split_t();
        split.nTvWallId = 7;
        split.nScreenId = 8;
        split.enSplitNum = 2;
        TvWall_Screen_Open_Window_t open = new TvWall_Screen_Open_Window_t();
        open.nTvWallId = 9;
        open.nScreenId = 10;
        open.fLeft = 0.125f;
        open.fTop = -0.5f;
        open.fWidth = 0.75f;
        open.fHeight = Float.MIN_VALUE;
        open.nWindowId = 111;
        open.nZorder = 222;
        return Stream.of(
                Arguments.of("ORVEX_SetTvWallScreenWindowSource",
                        (IntSupplier) () -> IOrvexCore.ORVEX_SetTvWallScreenWindowSource(H, src, 501),
                        (IntSupplier) () -> IOrvexCore.ORVEX_SetTvWallScreenWindowSource(H, null, 0),
                        new CRecord(88).i32(0, 1).i32(4, 2).i32(8, -3).text(12, "cam-0042")
                                .i32(76, 2).i64(80, 0x0102030405060708L).bytes()),
                Arguments.of("ORVEX_CloseTvWallScreenWindowSource",
                        (IntSupplier) () -> IOrvexCore.ORVEX_CloseTvWallScreenWindowSource(H, close, 501),
                        (IntSupplier) () -> IOrvexCore.ORVEX_CloseTvWallScreenWindowSource(H, null, 0),
                        new CRecord(12).i32(0, 4).i32(4, 5).i32(8, 6).bytes()),
                Arguments.of("ORVEX_SetTvWallScreenSplit",
                        (IntSupplier) () -> IOrvexCore.ORVEX_SetTvWallScreenSplit(H, split, 501),
                        (IntSupplier) () -> IOrvexCore.ORVEX_SetTvWallScreenSplit(H, null, 0),
                        new CRecord(12).i32(0, 7).i32(4, 8).i32(8, 2).bytes()),
                Arguments.of("ORVEX_TvWallScreenOpenWindow",
                        (IntSupplier) () -> IOrvexCore.ORVEX_TvWallScreenOpenWindow(H, open, 501),
                        (IntSupplier) () -> IOrvexCore.ORVEX_TvWallScreenOpenWindow(H, null, 0),
                        new CRecord(32).i32(0, 9).i32(4, 10).i32(8, f(0.125f)).i32(12, f(-0.5f))
                                .i32(16, f(0.75f)).i32(20, f(Float.MIN_VALUE)).bytes()));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("screenCommands")
    void screenRequestArrivesAsTheLibrarysBytes(
            String fn, IntSupplier send, IntSupplier sendNull, byte[] expected) {
        SimControl.script(fn, 23);
        assertEquals(23, send.getAsInt());
        RecordedCall call = SimControl.last(fn);
        assertEquals(H, call.arg("nHandle").value);
        assertArrayEquals(expected, call.arg("pInfo").bytes);
        assertEquals(501, call.arg("nTimeout").value);

        assertEquals(1009, sendNull.getAsInt());
        assertEquals(1, SimControl.count(fn));
    }

    @Test
    void openWindowWritesTheNewWindowBackOnlyOnSuccess() {
        TvWall_Screen_Open_Window_t open = new TvWall_Screen_Open_Window_t();
        open.nWindowId = 111;
        open.nZorder = 222;
        SimControl.script("ORVEX_TvWallScreenOpenWindow", 4, Write.le32("pInfo", 24, 1),
                Write.le32("pInfo", 28, 2));
        assertEquals(4, IOrvexCore.ORVEX_TvWallScreenOpenWindow(H, open, 0));
        assertEquals(111, open.nWindowId);
        assertEquals(222, open.nZorder);

        SimControl.script("ORVEX_TvWallScreenOpenWindow", 0, Write.le32("pInfo", 24, 0x90000003),
                Write.le32("pInfo", 28, 7));
        assertEquals(0, IOrvexCore.ORVEX_TvWallScreenOpenWindow(H, open, 0));
        assertEquals(0x90000003, open.nWindowId);
        assertEquals(7, open.nZorder);
    }

    @Test
    void clearingPassesTheWallAndTheExactDecoderId() {
        SimControl.script("ORVEX_ClearTvWallScreen", 61);
        assertEquals(61, IOrvexCore.ORVEX_ClearTvWallScreen(H, -1, 250));
        RecordedCall clear = SimControl.last("ORVEX_ClearTvWallScreen");
        assertEquals(0xFFFFFFFFL, clear.arg("nTvWallId").value);
        assertEquals(250, clear.arg("nTimeout").value);

        assertEquals(0, IOrvexCore.ORVEX_ClearTvWallScreenByDecodeId(H, 3, CRecord.ascii("dec-5"), 260));
        RecordedCall byDecoder = SimControl.last("ORVEX_ClearTvWallScreenByDecodeId");
        assertEquals(3, byDecoder.arg("nTvWallId").value);
        assertArrayEquals(CRecord.ascii("dec-5\0"), byDecoder.arg("szDecodeId").bytes);
        assertEquals(260, byDecoder.arg("nTimeout").value);

        assertEquals(1009, IOrvexCore.ORVEX_ClearTvWallScreenByDecodeId(H, 3, null, 0));
        assertEquals(1009, IOrvexCore.ORVEX_ClearTvWallScreenByDecodeId(H, 3, new byte[0], 0));
        assertEquals(1, SimControl.count("ORVEX_ClearTvWallScreenByDecodeId"));
    }
}
