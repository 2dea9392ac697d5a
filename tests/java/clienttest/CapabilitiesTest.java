package clienttest;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertThrows;

import com.zq.OrvexCore.client.Alarms;
import com.zq.OrvexCore.client.Burners;
import com.zq.OrvexCore.client.CameraId;
import com.zq.OrvexCore.client.Catalogue;
import com.zq.OrvexCore.client.DepartmentCode;
import com.zq.OrvexCore.client.DeviceId;
import com.zq.OrvexCore.client.Doors;
import com.zq.OrvexCore.client.Media;
import com.zq.OrvexCore.client.OrvexClient;
import com.zq.OrvexCore.client.OrvexException;
import com.zq.OrvexCore.client.Ptz;
import com.zq.OrvexCore.client.Services;
import java.util.List;
import java.util.Map;
import java.util.function.Consumer;
import java.util.stream.Stream;
import org.junit.jupiter.api.AfterAll;
import org.junit.jupiter.api.BeforeAll;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.MethodSource;
import simctl.SimControl;

/**
 * Every capability once: each reaches its native, with the camera or device where the native
 * expects it, and each one's failure surfaces with its code.
 */
class CapabilitiesTest {
    static final CameraId CAM = CameraId.of("cam-7");
    static final DeviceId DEV = DeviceId.of("dev-7");
    static OrvexClient client;

    @BeforeAll
    static void connect() {
        client = Sim.connect();
    }

    @AfterAll
    static void close() {
        client.close();
    }

    /**
     * @param fn the native that must be called
     * @param target where the identifier must arrive: a recorded argument, "arg@offset" in a
     *     record, or null where the call carries none
     * @param id the identifier expected there
     */
    record Capability(String fn, String target, String id, Consumer<OrvexClient> call) {
        @Override
        public String toString() {
            return fn;
        }
    }

    static Capability cam(String fn, String target, Consumer<OrvexClient> call) {
        return new Capability(fn, target, CAM.value(), call);
    }

    static Capability dev(String fn, String target, Consumer<OrvexClient> call) {
        return new Capability(fn, target, DEV.value(), call);
    }

    static Capability none(String fn, Consumer<OrvexClient> call) {
        return new Capability(fn, null, null, call);
    }

    static Stream<Capability> capabilities() {
        Burners.CaseHeader header = new Burners.CaseHeader(DEV, "pw", "case-1", "t-1", "u", "d",
                "r", "p", "m", "n", "9", "w", true, false, true, 2);
        Alarms.Query q = new Alarms.Query(CAM, 1, 2, 0);
        return Stream.of(
                cam("ORVEX_PtzDirection", "pInfo@0", c -> c.ptz(CAM).move(Ptz.Direction.RIGHT_UP, 4)),
                cam("ORVEX_PtzCameraOperation", "pInfo@0", c -> c.ptz(CAM).lens(Ptz.Lens.ZOOM_IN, 2, true)),
                cam("ORVEX_PtzSit", "pInfo@0", c -> c.ptz(CAM).pointAt(10, 20, 3)),
                cam("ORVEX_PtzLockCamera", "pInfo@0", c -> c.ptz(CAM).lock(Ptz.Lock.UNLOCK_ALL)),
                cam("ORVEX_PtzLightControl", "pInfo@0", c -> c.ptz(CAM).light(true)),
                cam("ORVEX_PtzRainBrushControl", "pInfo@0", c -> c.ptz(CAM).rainBrush(false)),
                cam("ORVEX_PtzExtendCommand", "pInfo@0", c -> c.ptz(CAM).extended(43, 1)),
                cam("ORVEX_PtzPrePointOperation", "pInfo@0", c -> c.ptz(CAM).addPreset(3, "Gate")),
                cam("ORVEX_QueryPrePoint", "pInfo@0", c -> c.ptz(CAM).presets()),
                cam("ORVEX_GetExternalRealStreamUrl", "pInfo@0",
                        c -> c.media().externalUrl(CAM, Media.LiveOptions.DEFAULT, 101)),
                cam("ORVEX_GetChannelInfoById", "szCameraId", c -> c.catalogue().channel(CAM)),
                cam("ORVEX_GetChnlType", "szCameraId", c -> c.catalogue().channelType(CAM)),
                cam("ORVEX_GetChannelStatus", "szCameraId", c -> c.devices().channelStatus(CAM)),
                cam("ORVEX_QueryAlarmCount", "pInfo@0", c -> c.alarms().count(q)),
                cam("ORVEX_SendAlarmToServer", "pInfo@0", c -> c.alarms().raise(CAM, 2, 1, 99, "help")),
                cam("ORVEX_SetTvWallScreenWindowSource", "pInfo@12",
                        c -> c.walls().show(1, 2, 3, CAM, 0, Media.StreamType.SUB)),
                cam("ORVEX_SetDoorCmd", "pInfo@0", c -> c.doors().command(CAM, Doors.Command.ALWAYS_OPEN, 5, 6)),
                cam("ORVEX_SendCammandToDMSByJson", "szCameraId", c -> c.services().sendToDms(CAM, "{}", 64)),
                dev("ORVEX_GetDeviceInfoExById", "szDeviceId", c -> c.catalogue().device(DEV)),
                dev("ORVEX_GetDevStreamType", "pInfo@0", c -> c.catalogue().streamType(DEV, 1)),
                dev("ORVEX_GetDeviceTypeByDevId", "szDeviceId", c -> c.devices().deviceType(DEV)),
                dev("ORVEX_ControlVideoAlarmHost", "szDeviceId", c -> c.devices().controlVideoAlarmHost(DEV, 1, 2)),
                dev("ORVEX_ControlNetAlarmHostCmd", "szId",
                        c -> c.devices().controlNetAlarmHost(DEV.value(), 1, 2, 3, 4)),
                dev("ORVEX_QueryNetAlarmHostChannelCount", "szDeviceId", c -> c.devices().zoneCount(DEV)),
                dev("ORVEX_ControlDevBurner", "pInfo@0",
                        c -> c.burners().control(DEV, Burners.Command.START, 1, 1, 0, 0)),
                dev("ORVEX_SetDevBurnerHeader", "pHeader@0", c -> c.burners().setCaseHeader(header,
                        Map.of(Burners.FormLabel.SUBJECT_AGE, "Alter"))),
                dev("ORVEX_GetDeviceDiskInfoCount", "szDeviceId", c -> c.burners().diskCount(DEV)),
                dev("ORVEX_SendOSDInfo", "pInfo@0", c -> c.services().sendOsd(DEV, "hello")),
                dev("ORVEX_QueryNVRChnlStatus", "szDeviceId", c -> c.services().queryNvrChannels(DEV)),
                new Capability("ORVEX_LoadDGroupInfoLayered", "pInfo@0", "01",
                        c -> c.catalogue().loadLayer(DepartmentCode.of("01"), Catalogue.Scope.CHILDREN)),
                new Capability("ORVEX_GetLogicSubDepInfoByIndex", "szDepCoding", "01",
                        c -> c.catalogue().logicalSubDepartment(DepartmentCode.of("01"), 2)),
                new Capability("ORVEX_EnableAlarmByDepartment", "pInfo.pSources@0", "01",
                        c -> c.alarms().enableByDepartment(List.of(
                                new Alarms.DepartmentSource(DepartmentCode.of("01"), 1, 2, 3)))),
                dev("ORVEX_EnableAlarm", "pInfo.pSources@0",
                        c -> c.alarms().enable(List.of(new Alarms.Source(DEV, 1, 2, 3)))),
                new Capability("ORVEX_ClearTvWallScreenByDecodeId", "szDecodeId", "dec-1",
                        c -> c.walls().clear(4, "dec-1")),
                new Capability("ORVEX_SendScsMsg", "szGroupId", "grp", c -> c.services().sendMessage("grp", "hi")),
                none("ORVEX_LoadOrgInfoByType", c -> c.catalogue().loadByType(2)),
                none("ORVEX_DisableAlarm", c -> c.alarms().disable()),
                none("ORVEX_SaveAlarmScheme",
                        c -> c.alarms().saveScheme(new Alarms.Scheme(0, "night", true, 1, "after hours"))),
                none("ORVEX_PhoneSubscribeAlarm", c -> c.alarms().subscribePhone(new Alarms.PhoneSubscription(
                        1, "phone", 2, "push", true, "de", "yyyy", 0))),
                none("ORVEX_CloseTvWallScreenWindowSource", c -> c.walls().clearWindow(1, 2, 3)),
                none("ORVEX_SetTvWallScreenSplit", c -> c.walls().split(1, 2, 9)),
                none("ORVEX_ClearTvWallScreen", c -> c.walls().clear(4)),
                none("ORVEX_GeneralJsonTransport", c -> c.services().sendJson("{\"a\":1}", 1, 0)),
                none("ORVEX_ShareVideo", c -> c.services().shareVideos(
                        List.of(new Services.SharedVideo("cam-7", 1, 0, 0, 5, 6)), List.of(3, 4), "look")),
                none("ORVEX_SubscribeBayCarInfo", c -> c.services().subscribeBayVehicles(List.of(CAM), true)),
                none("ORVEX_ChangeUserPassword", c -> c.changePassword("old", "new")),
                none("ORVEX_SetCompressType", c -> c.compressDeviceInfo(true)),
                none("ORVEX_StartMonitor", c -> c.startMonitor("monitor.log")),
                none("ORVEX_StartBroadcast", c -> c.media().broadcast("{\"cams\":[]}")));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("capabilities")
    void reachesItsNativeAndReportsItsFailure(Capability cap) {
        SimControl.reset();
        cap.call().accept(client);
        assertEquals(1, SimControl.count(cap.fn()), cap.fn() + " not called once");
        if (cap.target() != null) {
            String[] where = cap.target().split("@");
            byte[] bytes = SimControl.last(cap.fn()).arg(where[0]).bytes;
            int offset = where.length > 1 ? Integer.parseInt(where[1]) : 0;
            assertEquals(cap.id(), Sim.textAt(bytes, offset));
        }
        SimControl.script(cap.fn(), 1017);
        OrvexException e = assertThrows(OrvexException.class, () -> cap.call().accept(client));
        assertEquals(1017, e.code());
        assertEquals(cap.fn(), e.operation());
    }

    @Test
    void ptzRequestsCarryTheirCommand() {
        SimControl.reset();
        client.ptz(CAM).move(Ptz.Direction.RIGHT_UP, 4);
        client.ptz(CAM).stop(Ptz.Direction.LEFT);
        client.ptz(CAM).gotoPreset(12);
        List<byte[]> moves = SimControl.callsOf("ORVEX_PtzDirection").stream().map(c -> c.arg("pInfo").bytes).toList();
        assertEquals(List.of(7, 4), List.of(Sim.i32At(moves.get(0), 64), Sim.i32At(moves.get(0), 68)));
        assertEquals(0, moves.get(0)[72], "a move is no stop");
        assertEquals(3, Sim.i32At(moves.get(1), 64));
        assertEquals(1, moves.get(1)[72]);
        byte[] preset = SimControl.last("ORVEX_PtzPrePointOperation").arg("pInfo").bytes;
        assertEquals(List.of(1, 12), List.of(Sim.i32At(preset, 64), Sim.i32At(preset, 68)));
    }
}
