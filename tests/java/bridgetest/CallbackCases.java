package bridgetest;

import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.ShareVideoInfo;
import com.zq.OrvexCore.UserDataChange_t;
import java.lang.reflect.Array;
import java.lang.reflect.Field;
import java.lang.reflect.Modifier;
import java.util.ArrayList;
import java.util.HexFormat;
import java.util.LinkedHashMap;
import java.util.List;
import java.util.Map;

/**
 * One event per row: what the stand-in passes to the C callback and what the Java listener must
 * receive. The values are chosen to tell mistakes apart: distinct numbers in every position,
 * unsigned values with the high bit set, 64-bit times, empty strings, zero bytes inside binary
 * data and strings, and lengths that differ from the strings' own.
 */
final class CallbackCases {
    /**
     * JUnit tag of tests that fire bay records. The bay trampoline deletes one local reference
     * twice in a row, as it always has; harmless in a plain virtual machine, but -Xcheck:jni
     * stops the process on the second deletion. These tests run in a JVM without the check.
     */
    static final String UNCHECKED_JNI = "unchecked-jni";

    /** Instance handle the listeners are registered for. */
    static final int HANDLE = 3;
    /** Stream sequence number for media events. */
    static final int SEQ = 7;

    /**
     * @param kind listener interface name, as the stand-in's control knows it
     * @param setter the native that registers it, or null where none does
     * @param fire arguments of the C callback, without the user-data pointer
     * @param expected arguments of the Java listener's invoke
     */
    record Case(String name, String kind, String setter, Object[] fire, Object[] expected) {
        @Override
        public String toString() {
            return name;
        }
    }

    private CallbackCases() {}

    static byte[] b(String s) {
        return CRecord.ascii(s);
    }

    /** {@code n} bytes counting up from {@code seed}, every seventh one zero. */
    static byte[] binary(int n, int seed) {
        byte[] out = new byte[n];
        for (int i = 0; i < n; i++) {
            out[i] = i % 7 == 0 ? 0 : (byte) (seed + i);
        }
        return out;
    }

    static Object[] row(Object... values) {
        return values;
    }

    /** Raw bytes of one ShareVideoInfo record (96 bytes). */
    static byte[] shareRecord(byte[] cameraId, int type, int subStream, int mobile, long planId,
            long playbackTime) {
        return new CRecord(96).raw(0, cameraId).i32(64, type).i32(68, subStream).i32(72, mobile)
                .i64(80, planId).i64(88, playbackTime).bytes();
    }

    static ShareVideoInfo shareInfo(byte[] cameraId, int type, int subStream, int mobile,
            long planId, long playbackTime) {
        ShareVideoInfo v = new ShareVideoInfo();
        System.arraycopy(cameraId, 0, v.szCameraId, 0, cameraId.length);
        v.nType = type;
        v.nSubStream = subStream;
        v.nIsMobile = mobile;
        v.nPlanId = planId;
        v.nPlaybacktime = playbackTime;
        return v;
    }

    static byte[] concat(byte[]... parts) {
        int n = 0;
        for (byte[] p : parts) {
            n += p.length;
        }
        byte[] out = new byte[n];
        int at = 0;
        for (byte[] p : parts) {
            System.arraycopy(p, 0, out, at, p.length);
            at += p.length;
        }
        return out;
    }

    /** A 64-byte camera identifier: text, its NUL, and bytes after it that must arrive too. */
    static byte[] cameraId(String text) {
        byte[] id = new byte[64];
        System.arraycopy(b(text), 0, id, 0, text.length());
        id[40] = 'x';
        id[63] = (byte) 0xEE;
        return id;
    }

    /** The 51 C arguments of a bay record and the Java arguments they become. */
    static Case bayCase() {
        Object[] fire = new Object[51];
        Object[] expected = new Object[51];
        for (int i = 0; i < 51; i++) {
            fire[i] = 100 + i; // a distinct int in every position not set below
            expected[i] = 100 + i;
        }
        fire[0] = HANDLE;
        expected[0] = HANDLE;
        // (string index, its bytes as fired, the length passed, the bytes Java must get)
        Object[][] strings = {
            {1, b("dev\0x"), 5, b("dev\0x")}, // length counts past an inner zero: no strlen
            {4, b("chan-1"), 6, b("chan-1")},
            {6, b("Gate A"), 6, b("Gate A")},
            {8, b("Lane 1"), 4, b("Lane")}, // shorter length: a prefix
            {10, b("ABC123"), 0, new byte[0]}, // zero length: empty, whatever the text
            {24, b("org-9"), 5, b("org-9")},
            {26, b(""), 0, new byte[0]},
            {28, b("op"), 2, b("op")},
            {30, b("note"), 5, b("note\0")}, // a length that counts the terminator
            {32, b("/i/0"), 4, b("/i/0")},
            {34, b("/i/1"), 4, b("/i/1")},
            {36, b("/i/2"), 4, b("/i/2")},
            {38, b("/i/3"), 4, b("/i/3")},
            {40, b("/i/4"), 4, b("/i/4")},
            {42, b("/i/5"), 4, b("/i/5")},
            {44, b("/plate"), 6, b("/plate")},
        };
        for (Object[] s : strings) {
            int at = (Integer) s[0];
            fire[at] = s[1];
            fire[at + 1] = s[2];
            expected[at] = s[3];
            expected[at + 1] = s[2];
        }
        fire[20] = 1_600_000_000_000L;
        expected[20] = 1_600_000_000_000L;
        fire[21] = -2L; // unsigned long 0xFFFFFFFFFFFFFFFE
        expected[21] = -2L;
        return new Case("bay record", "ORVEXGetBayCarInfoCallbackEx",
                "ORVEX_SetORVEXGetBayCarInfoCallbackEx", fire, expected);
    }

    static List<Case> all() {
        byte[] frame = binary(4000, 3);
        byte[] picture = binary(200_000, 11);
        byte[] dataChange = new CRecord(6160).i64(0, 0x8000_0000_0000_0001L).i64(8, 42)
                .text(16, "abc").bytes();
        UserDataChange_t change = new UserDataChange_t();
        change.nParam1 = 0x8000_0000_0000_0001L;
        change.nParam2 = 42;
        change.szMsg1 = b("abc");
        change.szMsg2 = new byte[0];
        byte[] idA = cameraId("cam-A");
        byte[] idB = cameraId("cam-B");
        List<Case> cases = new ArrayList<>(List.of(
                new Case("status", "ORVEXStatusCallback", "ORVEX_SetORVEXStatusCallback",
                        row(HANDLE, 1), row(HANDLE, 1)),
                new Case("media frame", "MediaDataCallback", null,
                        row(HANDLE, SEQ, 2, b("CAM0123456789"), 42, frame, 4000),
                        row(HANDLE, SEQ, 2, b("CAM0123456789"), 42, frame, 4000)),
                new Case("media, empty node and frame", "MediaDataCallback", null,
                        row(HANDLE, SEQ, 1, b(""), -9, new byte[0], 0),
                        row(HANDLE, SEQ, 1, new byte[0], -9, new byte[0], 0)),
                new Case("device change", "ORVEXDeviceChangeCallback",
                        "ORVEX_SetORVEXDeviceChangeCallback",
                        row(HANDLE, 0x8000_0003L, b("dev-1"), b("dep\0hidden"), b("org-22")),
                        row(HANDLE, 0x8000_0003, b("dev-1"), b("dep"), b("org-22"))),
                new Case("device change, empty strings", "ORVEXDeviceChangeCallback",
                        "ORVEX_SetORVEXDeviceChangeCallback", row(HANDLE, 3, b(""), b(""), b("")),
                        row(HANDLE, 3, new byte[0], new byte[0], new byte[0])),
                new Case("device status", "ORVEXDevStatusCallback",
                        "ORVEX_SetORVEXDeviceStatusCallback", row(HANDLE, b("dev-9"), 2),
                        row(HANDLE, b("dev-9"), 2)),
                new Case("alarm with data and picture", "ORVEXAlarmCallback",
                        "ORVEX_SetORVEXAlarmCallback",
                        row(HANDLE, b("AL-1"), 0x8000_0001L, b("cam-1"), b("Gate"), b("Chan 2"),
                                b("0101"), b("intrusion"), 0xFFFF_FFFFL, 2, 7,
                                1_500_000_000_123L, b("\0\1\0\2"), 4, picture, 200_000),
                        row(HANDLE, b("AL-1"), -2147483647, b("cam-1"), b("Gate"), b("Chan 2"),
                                b("0101"), b("intrusion"), -1, 2, 7, 1_500_000_000_123L,
                                b("\0\1\0\2"), 4, picture, 200_000)),
                new Case("alarm without data", "ORVEXAlarmCallback",
                        "ORVEX_SetORVEXAlarmCallback",
                        row(HANDLE, b(""), 1, b(""), b(""), b(""), b(""), b(""), 9, 1, 0, -1L,
                                new byte[0], 0, new byte[0], 0),
                        row(HANDLE, new byte[0], 1, new byte[0], new byte[0], new byte[0],
                                new byte[0], new byte[0], 9, 1, 0, -1L, new byte[0], 0,
                                new byte[0], 0)),
                new Case("talk parameters", "ORVEXTalkParamCallback",
                        "ORVEX_SetORVEXTalkParamCallback", row(1, 2, 3, 16, 8000, 1),
                        row(1, 2, 3, 16, 8000, 1)),
                new Case("remote snapshot", "ORVEXRemoteDeviceSnapCallback",
                        "ORVEX_SetORVEXRemoteDeviceSnapCallback",
                        row(HANDLE, b("cam-7"), b("/snap/cam-7/0001.jpg")),
                        row(HANDLE, b("cam-7"), b("/snap/cam-7/0001.jpg"))),
                new Case("video alarm host", "ORVEXVideoAlarmHostStatusCallback",
                        "ORVEX_SetVideoAlarmHostStatusCallback", row(HANDLE, b("vah-1"), 4, 1),
                        row(HANDLE, b("vah-1"), 4, 1)),
                new Case("net alarm host", "ORVEXNetAlarmHostStatusCallback",
                        "ORVEX_SetNetAlarmHostStatusCallback", row(HANDLE, b("nah-1"), 1, 2, 3),
                        row(HANDLE, b("nah-1"), 1, 2, 3)),
                new Case("broadcast report", "ORVEXBroadcastReportStatusCallback",
                        "ORVEX_SetBroadcastReportStatusCallback",
                        row(HANDLE, b("cam-5"), 5, 1_500_000_000_000L, 1),
                        row(HANDLE, b("cam-5"), 5, 1_500_000_000_000L, 1)),
                new Case("general json", "ORVEXGeneralJsonTransportCallback",
                        "ORVEX_SetGeneralJsonTransportCallback", row(HANDLE, b("{\"k\":\"v\"}")),
                        row(HANDLE, b("{\"k\":\"v\"}"))),
                new Case("nvr channel", "ORVEXNVRChnlStatusCallback",
                        "ORVEX_SetORVEXNVRChnlStatusCallback", row(HANDLE, b("chn-1"), 0),
                        row(HANDLE, b("chn-1"), 0)),
                new Case("door, time past 32 bits", "ORVEXPecDoorStarusCallBack",
                        "ORVEX_SetPecDoorStatusCallback",
                        row(HANDLE, b("door-1"), 2, 4_294_967_301L), row(HANDLE, b("door-1"), 2, 5)),
                new Case("door, time with bit 31 set", "ORVEXPecDoorStarusCallBack",
                        "ORVEX_SetPecDoorStatusCallback",
                        row(HANDLE, b("door-2"), 1, 0x1_8000_0001L),
                        row(HANDLE, b("door-2"), 1, 0x8000_0001)),
                new Case("shared videos", "ORVEXShareVideoCallback", "ORVEX_SetShareVideoCallback",
                        row(HANDLE,
                                concat(shareRecord(idA, 1, 0, 1, 0x8000_0000_0000_0001L,
                                               1_600_000_000_000L),
                                        shareRecord(idB, 2, 1, 0, 9, -1L)),
                                2, b("look"), 77, b("operator")),
                        row(HANDLE,
                                new ShareVideoInfo[] {
                                    shareInfo(idA, 1, 0, 1, 0x8000_0000_0000_0001L,
                                            1_600_000_000_000L),
                                    shareInfo(idB, 2, 1, 0, 9, -1L)},
                                b("look"), 77, b("operator"))),
                new Case("no shared videos", "ORVEXShareVideoCallback",
                        "ORVEX_SetShareVideoCallback", row(HANDLE, new byte[0], 0, b(""), -4, b("")),
                        row(HANDLE, new ShareVideoInfo[0], new byte[0], -4, new byte[0])),
                bayCase(),
                new Case("organisation data change", "ORVEXDataChangeCallback", null,
                        row(HANDLE, dataChange), row(HANDLE, change))));
        return cases;
    }

    static boolean firesBayRecords(Case c) {
        return c.kind().equals("ORVEXGetBayCarInfoCallbackEx");
    }

    /** Calls the kind's listener setter for {@code handle}; returns its result. */
    static int set(Case c, int handle, Object listener) throws Exception {
        return (Integer) IOrvexCore.class.getMethod(c.setter(), int.class, Object.class)
                .invoke(null, handle, listener);
    }

    /** One case per kind that a setter registers (all but media and data change). */
    static List<Case> setterKinds() {
        List<Case> out = new ArrayList<>();
        for (Case c : onePerKind()) {
            if (c.setter() != null) {
                out.add(c);
            }
        }
        return out;
    }

    /** The first case of each kind: one event every kind can take. */
    static List<Case> onePerKind() {
        Map<String, Case> first = new LinkedHashMap<>();
        for (Case c : all()) {
            first.putIfAbsent(c.kind(), c);
        }
        return new ArrayList<>(first.values());
    }

    /**
     * A comparable description of a delivered value: byte arrays as hex with their length,
     * arrays element by element, value objects field by field; boxed numbers keep their type,
     * so an int where a long belongs does not compare equal.
     */
    static Object describe(Object v) {
        if (v instanceof byte[] bytes) {
            return "byte[" + bytes.length + "]" + HexFormat.of().formatHex(bytes);
        }
        if (v != null && v.getClass().isArray()) {
            List<Object> out = new ArrayList<>();
            out.add(v.getClass().getComponentType().getSimpleName() + "[]");
            for (int i = 0; i < Array.getLength(v); i++) {
                out.add(describe(Array.get(v, i)));
            }
            return out;
        }
        if (v != null && v.getClass().getPackageName().startsWith("com.zq.OrvexCore")) {
            Map<String, Object> out = new LinkedHashMap<>();
            out.put("class", v.getClass().getSimpleName());
            for (Field f : v.getClass().getFields()) {
                if (!Modifier.isStatic(f.getModifiers())) {
                    try {
                        out.put(f.getName(), describe(f.get(v)));
                    } catch (IllegalAccessException e) {
                        throw new AssertionError(e);
                    }
                }
            }
            return out;
        }
        return v;
    }
}
