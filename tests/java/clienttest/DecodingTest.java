package clienttest;

import static org.junit.jupiter.api.Assertions.assertEquals;

import bridgetest.CRecord;
import com.zq.OrvexCore.client.Alarms;
import com.zq.OrvexCore.client.Burners;
import com.zq.OrvexCore.client.CameraId;
import com.zq.OrvexCore.client.Catalogue;
import com.zq.OrvexCore.client.DeviceId;
import com.zq.OrvexCore.client.Devices;
import com.zq.OrvexCore.client.LiveStream;
import com.zq.OrvexCore.client.Media;
import com.zq.OrvexCore.client.OrvexClient;
import com.zq.OrvexCore.client.PeopleCount;
import com.zq.OrvexCore.client.Ptz;
import com.zq.OrvexCore.client.Walls;
import java.util.List;
import org.junit.jupiter.api.AfterAll;
import org.junit.jupiter.api.BeforeAll;
import org.junit.jupiter.api.BeforeEach;
import org.junit.jupiter.api.Test;
import simctl.RecordedCall;
import simctl.SimControl;
import simctl.Write;

/** Lists and texts come back as records and Strings, sized from the library's counts. */
class DecodingTest {
    static final CameraId CAM = CameraId.of("cam-3");
    static OrvexClient c;

    @BeforeAll
    static void connect() {
        c = Sim.connect();
    }

    @AfterAll
    static void close() {
        c.close();
    }

    @BeforeEach
    void reset() {
        SimControl.reset();
    }

    @Test
    void presets() {
        SimControl.script("ORVEX_QueryPrePoint", 0, Write.le32("pInfo", 64, 2),
                Write.bytes("pInfo", 68, Sim.concat(new CRecord(36).i32(0, 3).text(4, "Gate"),
                        new CRecord(36).i32(0, 7).text(4, "Yard"))));
        assertEquals(List.of(new Ptz.Preset(3, "Gate"), new Ptz.Preset(7, "Yard")), c.ptz(CAM).presets());
        assertEquals(300, SimControl.last("ORVEX_QueryPrePoint").arg("pInfo").le32(64), "the capacity offered");
    }

    @Test
    void alarmPagesHoldWhatTheLibraryDelivered() {
        SimControl.script("ORVEX_QueryAlarmInfo", 0, Write.le32("pAlarmInfo", 4, 1),
                Write.bytes("pAlarmInfo.pAlarmInfo", 0, new CRecord(4512).i32(0, 3).i32(4, 1)
                        .text(8, "dev-1").i32(72, 2).i64(80, 1_700_000_000L).i32(88, 4).text(412, "motion").bytes()));
        List<Alarms.Record> page = c.alarms().page(new Alarms.Query(CAM, 10, 20, 0), 40, 5);
        assertEquals(List.of(new Alarms.Record(3, 1, "dev-1", 2, 1_700_000_000L, 4, "motion")), page);
        RecordedCall call = SimControl.last("ORVEX_QueryAlarmInfo");
        assertEquals(40, call.arg("nFirstNum").i32());
        assertEquals(5, call.arg("nQueryCount").i32());
        assertEquals(5, Sim.i32At(call.arg("pAlarmInfo").bytes, 0));
    }

    @Test
    void alarmSchemes() {
        SimControl.script("ORVEX_GetAlarmSchemeCount", 0, Write.le32("pnCount", 0, 2));
        SimControl.script("ORVEX_GetAlarmSchemeList", 0, Write.bytes("pInfo", 0, Sim.concat(
                new CRecord(780).i32(0, 1).i32(4, 11).text(8, "night").i32(264, 2).text(268, "after hours"),
                new CRecord(780).i32(0, 0).i32(4, 12).text(8, "day"))));
        assertEquals(List.of(new Alarms.Scheme(11, "night", true, 2, "after hours"),
                new Alarms.Scheme(12, "day", false, 0, "")), c.alarms().schemes());
    }

    @Test
    void wallsScreensAndWindows() {
        SimControl.script("ORVEX_GetTvWallListCount", 0, Write.le32("pnCount", 0, 1));
        SimControl.script("ORVEX_GetTvWallList", 0, Write.bytes("pInfo.pTvWallInfo", 0,
                new CRecord(264).i32(0, 4).i32(4, 1).text(8, "Lobby").bytes()));
        SimControl.script("ORVEX_GetTvWallLayoutCount", 0, Write.le32("pnCount", 0, 1));
        SimControl.script("ORVEX_GetTvWallLayout", 0, Write.bytes("pInfo.pScreenInfo", 0,
                new CRecord(344).i32(0, 9).text(4, "Left").text(260, "dec-1").f32(324, 0.5f)
                        .f32(328, 0.25f).f32(332, 1f).f32(336, 2f).bytes()));
        SimControl.script("ORVEX_TvWallScreenOpenWindow", 0, Write.le32("pInfo", 24, 17), Write.le32("pInfo", 28, 2));

        assertEquals(List.of(new Walls.Wall(4, 1, "Lobby")), c.walls().walls());
        assertEquals(List.of(new Walls.Screen(9, "Left", "dec-1", 0.5f, 0.25f, 1f, 2f)), c.walls().screens(4));
        assertEquals(4, Sim.i32At(SimControl.last("ORVEX_GetTvWallLayout").arg("pInfo").bytes, 0));
        assertEquals(new Walls.Window(17, 2), c.walls().openWindow(4, 9, 0, 0, 0.5f, 0.5f));
    }

    @Test
    void textsOfServicesAndDevices() {
        SimControl.declareCapacity("ORVEX_SendCammandToCMSByJson", "szJsonResult", 64);
        SimControl.script("ORVEX_SendCammandToCMSByJson", 0, Write.bytes("szJsonResult", 0, Sim.utf8("{\"ok\":1}\0")));
        SimControl.script("ORVEX_QueryLinkResource", 0, Write.le32("pnLen", 0, 20));
        SimControl.script("ORVEX_GetLinkResource", 0, Write.bytes("pInfo.pXmlData", 0, Sim.utf8("<links/>")));
        SimControl.script("ORVEX_AskForLastGpsStatusXMLStrCount", 0, Write.le32("pnLen", 0, 6));
        SimControl.script("ORVEX_AskForLastGpsStatusXMLStr", 0, Write.bytes("szBuffer", 0, Sim.utf8("<gps/>")));
        SimControl.script("ORVEX_GetDeviceListLen", 0, Write.le32("pnLen", 0, 9));
        SimControl.script("ORVEX_GetDeviceListStr", 0, Write.bytes("szDevList", 0, Sim.utf8("dev-1;d-2")));

        assertEquals("{\"ok\":1}", c.services().sendToCms("{\"cmd\":1}", 64));
        assertEquals("<links/>", c.services().linkResources());
        assertEquals("<gps/>", c.services().lastGpsStatus());
        assertEquals("dev-1;d-2", c.devices().deviceList());
    }

    @Test
    void peopleCountingPagesAndEnds() {
        SimControl.script("ORVEX_QueryPersonCount", 0, Write.le32("pnQuerySeq", 0, 5), Write.le32("pnTotalCount", 0, 2));
        SimControl.script("ORVEX_QueryPersonCountBypage", 0, Write.bytes("pInfo", 0, Sim.concat(
                new CRecord(60).i32(0, 1).text(4, "door").i32(36, 100).i32(40, 200).i32(44, 7)
                        .i32(48, 5).i32(52, 2).i32(56, 4),
                new CRecord(60).i32(0, 1).text(4, "door").i32(36, 200).i32(40, 300))));
        try (PeopleCount q = c.services().countPeople(CAM, 100, 300, 1)) {
            assertEquals(2, q.total());
            assertEquals(List.of(new PeopleCount.Row(1, "door", 100, 200, 7, 5, 2, 4),
                    new PeopleCount.Row(1, "door", 200, 300, 0, 0, 0, 0)), q.page(0, 10));
            assertEquals(2, SimControl.last("ORVEX_QueryPersonCountBypage").arg("nCount").i32());
        }
        assertEquals(5, SimControl.last("ORVEX_StopQueryPersonCount").arg("nQuerySeq").i32());
    }

    @Test
    void alarmHostZones() {
        SimControl.script("ORVEX_QueryNetAlarmHostChannelCount", 0, Write.le32("pnCount", 0, 2));
        SimControl.script("ORVEX_QueryNetAlarmHostStatus", 0, Write.bytes("pInfo", 0, Sim.concat(
                new CRecord(76).text(0, "zone-1").i32(64, 1).i32(68, 0).i32(72, 0x0100),
                new CRecord(76).text(0, "zone-2").i32(72, 0x0001))));
        assertEquals(List.of(new Devices.Zone("zone-1", 1, 0, false, true),
                new Devices.Zone("zone-2", 0, 0, true, false)), c.devices().zones(DeviceId.of("host-1")));
    }

    @Test
    void channelSummariesAlarmInputsDisksAndKnownZones() {
        SimControl.script("ORVEX_GetEncChannelCount", 0, Write.le32("pnCount", 0, 1));
        SimControl.script("ORVEX_GetChannelInfo", 0, Write.bytes("pInfo.pEncChannelnfo", 0,
                new CRecord(328).i32(0, 2).text(4, "cam-3").text(68, "Dome").bytes()));
        assertEquals(List.of(new Catalogue.ChannelSummary(CAM, "Dome", 2)),
                c.catalogue().channelSummaries(DeviceId.of("dev-3")));

        SimControl.script("ORVEX_GetDeviceInfoExById", 0,
                Write.bytes("pInfo", 0, new CRecord(1480).text(0, "dev-3").i32(1424, 1).bytes()));
        SimControl.script("ORVEX_GetAlarmInChannelInfo", 0, Write.bytes("pInfo.pAlarmInChannelnfo", 0,
                new CRecord(336).text(0, "in-1").text(64, "Fence").i64(320, 5).i32(328, 3).i32(332, 1).bytes()));
        assertEquals(List.of(new Devices.AlarmInput("in-1", "Fence", 5, 3, 1)),
                c.devices().alarmInputs(DeviceId.of("dev-3")));

        SimControl.declareCapacity("ORVEX_GetDeviceDiskInfo", "pInfo.pDiskInfoList", 32);
        SimControl.script("ORVEX_GetDeviceDiskInfo", 0, Write.le32("pInfo", 64, 1), Write.bytes(
                "pInfo.pDiskInfoList", 0, new CRecord(16).i32(0, 1).i32(4, 0xFFFF_FFF0).i32(8, 1000)
                        .raw(12, new byte[] {2, 3, 4, 5}).bytes()));
        assertEquals(List.of(new Burners.Disk(1, 0xFFFF_FFF0L, 1000, 2, 3, 4, 5)), c.burners().disks(8, 2));
        assertEquals(8, SimControl.last("ORVEX_GetDeviceDiskInfo").arg("nSequence").i32());

        SimControl.script("ORVEX_GetNetAlarmHostStatus", 0, Write.bytes("pInfo", 76,
                new CRecord(76).text(0, "zone-2").i32(64, 1).i32(72, 0x0101).bytes()));
        assertEquals(List.of(new Devices.Zone("", 0, 0, false, false), new Devices.Zone("zone-2", 1, 0, true, true)),
                c.devices().knownZones(2));
    }

    @Test
    void previewStreamsStartFromTheirChannel() {
        SimControl.script("ORVEX_GetRealStreamPreview", 0, Write.le32("pnRealSeq", 0, 14));
        try (LiveStream s = c.media().openPreview(CAM, Media.LiveOptions.DEFAULT, 3, null, f -> { })) {
            assertEquals(14, s.sequence());
            assertEquals(3, SimControl.last("ORVEX_GetRealStreamPreview").arg("nStartChannelIndex").i32());
        }
        assertEquals(14, SimControl.last("ORVEX_CloseRealStreamBySeq").arg("nRealSeq").i32());
    }
}
