package bridgetest;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNull;
import static org.junit.jupiter.api.Assertions.assertThrows;

import com.zq.OrvexCore.Device_Info_Ex_t;
import java.util.Arrays;
import kitprobe.KitProbe;
import org.junit.jupiter.api.Test;

/** One C device record copied into a Java Device_Info_Ex_t, checked against raw offsets. */
class DeviceRecordTest {
    /** Text members: Java field, C offset, C size. */
    static final Object[][] TEXT = {
        {"szId", 0, 64}, {"szName", 64, 256}, {"szUser", 328, 64}, {"szPassword", 392, 64},
        {"szIP", 456, 48}, {"szRegID", 516, 64}, {"szCN", 592, 64}, {"szSN", 656, 64},
        {"szDevIP", 728, 48}, {"dev_Maintainer", 780, 64}, {"dev_MaintainerPh", 844, 64},
        {"dev_Location", 908, 256}, {"desc", 1164, 256}, {"szCallNum", 1432, 48},
    };
    /** Integer members: Java field, C offset. */
    static final Object[][] INTS = {
        {"nFactory", 320}, {"szModel", 324}, {"nDevType", 504}, {"nPort", 508},
        {"szLoginType", 512}, {"nProxyPort", 580}, {"nUnitNum", 584}, {"nStatus", 588},
        {"nDevPort", 776}, {"nEncChannelChildCount", 1420}, {"iAlarmInChannelcount", 1424},
    };

    /** Every member holds a distinct value; text members carry bytes after their terminator. */
    static byte[] record() {
        CRecord r = new CRecord(1480);
        for (Object[] t : TEXT) {
            int off = (Integer) t[1];
            int size = (Integer) t[2];
            r.text(off, ((String) t[0]).substring(0, 3));
            r.raw(off + size - 2, new byte[] {(byte) 0xA5, (byte) off});
        }
        for (int k = 0; k < INTS.length; k++) {
            r.i32((Integer) INTS[k][1], 0x01000000 * (k + 1) + k);
        }
        r.i32(1428, 99);  // nSort
        r.i64(720, 0x8000000000000001L);  // nRight
        return r.bytes();
    }

    private static Object field(Device_Info_Ex_t d, String name) throws Exception {
        return Device_Info_Ex_t.class.getField(name).get(d);
    }

    /**
     * Checks every member of C record {@code c} in {@code d}; "szCallNum" only when {@code
     * callNumWritten}, otherwise it must still hold {@code oldCallNum}.
     */
    static void assertDevice(byte[] c, Device_Info_Ex_t d, boolean callNumWritten,
            byte[] oldCallNum) throws Exception {
        for (Object[] t : TEXT) {
            int off = (Integer) t[1];
            int size = (Integer) t[2];
            byte[] expected = Arrays.copyOfRange(c, off, off + size);
            if (t[0].equals("szCallNum") && !callNumWritten) {
                expected = oldCallNum;
            }
            assertArrayEquals(expected, (byte[]) field(d, (String) t[0]), (String) t[0]);
        }
        for (int k = 0; k < INTS.length; k++) {
            String name = (String) INTS[k][0];
            assertEquals(0x01000000 * (k + 1) + k, field(d, name), name);
        }
        assertEquals(0x8000000000000001L, d.nRight);
    }

    @Test
    void everyMemberArrivesWithAllItsBytes() throws Exception {
        byte[] c = record();
        Device_Info_Ex_t d = new Device_Info_Ex_t();
        d.nSort = -7;

        KitProbe.deviceInfo(d, c);

        assertDevice(c, d, true, null);
        assertEquals(-7, d.nSort);
    }

    @Test
    void aShortJavaArrayFailsOnlyItsOwnFieldAndANullOneIsSkipped() {
        Device_Info_Ex_t d = new Device_Info_Ex_t();
        d.szName = new byte[10];
        d.szUser = null;

        assertThrows(ArrayIndexOutOfBoundsException.class, () -> KitProbe.deviceInfo(d, record()));

        assertArrayEquals(new byte[10], d.szName);
        assertNull(d.szUser);
        assertEquals('s', d.szCallNum[0]);
        assertEquals(0x8000000000000001L, d.nRight);
        assertEquals(0x0B00000A, d.iAlarmInChannelcount);
    }
}
