package platformtest;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.zq.OrvexCore.Control_Dev_Burner_Request_t;
import com.zq.OrvexCore.DevBurnerInfoHeader_t;
import com.zq.OrvexCore.Device_Disk_Info_t;
import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.Return_Value_Info_t;
import com.zq.OrvexCore.TrialFormAttrName_t;
import org.junit.jupiter.api.Test;
import platformtest.Platform.User;

/** The evidence burner and recorder disks of the simulated platform, through the bridge. */
class BurnerDisksPlatformTest extends OnPlatform {
    private static int burner(User user, int cmd) {
        Control_Dev_Burner_Request_t r = new Control_Dev_Burner_Request_t();
        r.deviceId = Platform.fixed("dvr-station-01", 63);
        r.cmd = cmd;
        r.channelMask = 0b101;
        r.burnerMask = 0b11;
        return IOrvexCore.ORVEX_ControlDevBurner(user.handle, r, 3000);
    }

    @Test
    void aBurnRunsWithTheCaseHeaderSetBeforeIt() {
        try (User op = User.operator()) {
            DevBurnerInfoHeader_t header = new DevBurnerInfoHeader_t();
            header.m_deviceId = Platform.fixed("dvr-station-01", 31);
            header.m_caseId = Platform.fixed("CASE-88", 63);
            header.m_caseRecordName = Platform.fixed("Hearing", 255);
            TrialFormAttrName_t labels = new TrialFormAttrName_t();
            labels.m_caseIdAttr = Platform.fixed("Case no.", 31);
            assertEquals(0, IOrvexCore.ORVEX_SetDevBurnerHeader(op.handle, header, labels, 3000));

            assertEquals(0, burner(op, 1));  // start
            assertEquals(1017, burner(op, 1));
            assertEquals(1017, IOrvexCore.ORVEX_SetDevBurnerHeader(op.handle, header, labels, 3000));
            String state = op.cms("{\"cmd\":\"getBurner\",\"device\":\"dvr-station-01\"}");
            assertTrue(state.contains("\"state\":1"), state);
            assertTrue(state.contains("\"channelMask\":5"), state);
            assertTrue(state.contains("\"caseId\":\"CASE-88\""), state);
            assertTrue(state.contains("\"caseIdLabel\":\"Case no.\""), state);
            assertEquals(0, burner(op, 2));  // pause
            assertEquals(0, burner(op, 5));  // change disc
            assertEquals(0, burner(op, 4));  // stop
            state = op.cms("{\"cmd\":\"getBurner\",\"device\":\"dvr-station-01\"}");
            assertTrue(state.contains("\"state\":0"), state);
        }
        try (User viewer = User.viewer()) {
            assertEquals(1007, burner(viewer, 1));
        }
    }

    @Test
    void disksOfARecorderAreFetchedWithWhatTheCountReturned() {
        try (User viewer = User.viewer()) {
            Return_Value_Info_t count = new Return_Value_Info_t();
            Return_Value_Info_t sequence = new Return_Value_Info_t();
            assertEquals(0, IOrvexCore.ORVEX_GetDeviceDiskInfoCount(viewer.handle,
                    Platform.text("nvr-south-01"), count, sequence, 3000));
            assertEquals(4, count.nReturnValue);
            assertEquals(4, sequence.nReturnValue);  // the bridge hands out the count twice

            Device_Disk_Info_t disks = new Device_Disk_Info_t(count.nReturnValue);
            assertEquals(0, IOrvexCore.ORVEX_GetDeviceDiskInfo(
                    viewer.handle, sequence.nReturnValue, count.nReturnValue, disks));
            assertEquals("nvr-south-01", Platform.string(disks.szDevId));
            assertEquals(4, disks.nDiskInfoSize);
            assertEquals(4, disks.pDiskInfoList[3].nDiskId);
            assertEquals(4000000, disks.pDiskInfoList[3].uVolume);
            assertEquals(4000000, disks.pDiskInfoList[3].uFreeSpace);
            assertEquals((char) 4, disks.pDiskInfoList[3].diskNum);

            assertEquals(1014, IOrvexCore.ORVEX_GetDeviceDiskInfoCount(viewer.handle,
                    Platform.text("ipc-gate-02"), count, sequence, 3000));
        }
    }
}
