package bridgetest;

import static org.junit.jupiter.api.Assertions.assertEquals;

import com.zq.OrvexCore.Get_Dep_Info_t;
import com.zq.OrvexCore.IOrvexCore;
import org.junit.jupiter.api.BeforeEach;
import org.junit.jupiter.api.Test;
import simctl.SimControl;
import simctl.Write;

/**
 * A read of many records resolves each field once for the whole batch: every record must still
 * get its own bytes in every field, whatever came before it.
 */
class RecordBatchTest {
    private static final int DEVICES = 5;

    @BeforeEach
    void resetStandIn() {
        SimControl.reset();
    }

    /** The device record of DeviceRecordTest with every text starting with its own letter. */
    private static byte[] device(int k) {
        byte[] c = DeviceRecordTest.record();
        for (Object[] t : DeviceRecordTest.TEXT) {
            c[(Integer) t[1]] = (byte) ('a' + k);
        }
        return c;
    }

    @Test
    void everyDeviceOfAGroupReadGetsItsOwnFields() throws Exception {
        byte[][] devices = new byte[DEVICES][];
        Write[] writes = new Write[DEVICES];
        for (int k = 0; k < DEVICES; k++) {
            devices[k] = device(k);
            writes[k] = Write.bytes("pInfo.pDeviceInfo", 1480 * k, devices[k]);
        }
        SimControl.script("ORVEX_GetDGroupInfo", 0, writes);
        Get_Dep_Info_t info = new Get_Dep_Info_t(0, DEVICES);

        assertEquals(0, IOrvexCore.ORVEX_GetDGroupInfo(4, info));

        for (int k = 0; k < DEVICES; k++) {
            DeviceRecordTest.assertDevice(devices[k], info.pDeviceInfo[k], false, new byte[48]);
        }
    }
}
