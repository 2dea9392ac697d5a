package clienttest;

import bridgetest.CRecord;
import simctl.SimControl;
import simctl.Write;

/**
 * A small site scripted into the stand-in, as the library answers a full tree read: root "01"
 * (HQ) with the empty sub-department "0101" (Gate) and the NVR "dev-1", which has the cameras
 * "cam-1" (Door, online) and "cam-2" (Yard, offline). Two device slots are counted, one filled.
 */
public final class SimSite {
    private SimSite() {}

    private static byte[] counts(int deps, int devices, int channels) {
        return new CRecord(12).i32(0, deps).i32(4, devices).i32(8, channels).bytes();
    }

    private static CRecord device(String id, String name) {
        return new CRecord(1480).text(0, id).text(64, name).text(456, "10.0.0.7").i32(504, 6)
                .i32(508, 8000).i32(588, 1).text(656, "SN-77").text(908, "Hall").i32(1420, 2)
                .i32(1424, 4);
    }

    private static CRecord channel(String id, String name, int status) {
        return new CRecord(592).i32(0, 5).text(4, id).text(68, name).i64(328, 0x8000_0000_0000_0001L)
                .i32(340, status).text(408, "48.1").text(472, "11.5");
    }

    /** Queues the site's answers for one {@code Catalogue.tree()} read. */
    public static void script() {
        SimControl.script("ORVEX_LoadDGroupInfo", 0, Write.le32("pnGroupLen", 0, 99));
        SimControl.script("ORVEX_GetDGroupRootInfo", 0,
                Write.bytes("pInfo", 0, new CRecord(516).text(0, "01").text(128, "HQ").bytes()));
        SimControl.script("ORVEX_GetDGroupCount", 0, Write.bytes("pInfo", 128, counts(1, 2, 0)));
        SimControl.script("ORVEX_GetDGroupInfo", 0,
                Write.bytes("pInfo.pDepInfo", 0, new CRecord(516).text(0, "0101").text(128, "Gate").bytes()),
                Write.bytes("pInfo.pDeviceInfo", 0, device("dev-1", "NVR").bytes()));
        // The sub-department is empty: its counts stay zero.
        SimControl.script("ORVEX_GetDGroupCount", 0);
        SimControl.script("ORVEX_GetEncChannelCount", 0, Write.le32("pnCount", 0, 2));
        SimControl.script("ORVEX_GetChannelInfoEx", 0, Write.bytes("pInfo.pEncChannelnfo", 0,
                Sim.concat(channel("cam-1", "Door", 1), channel("cam-2", "Yard", 2))));
    }
}
