package clienttest;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import bridgetest.CRecord;
import com.zq.OrvexCore.client.CameraId;
import com.zq.OrvexCore.client.DepartmentCode;
import com.zq.OrvexCore.client.OrvexClient;
import com.zq.OrvexCore.client.OrvexException;
import com.zq.OrvexCore.client.ResultCode;
import java.nio.charset.StandardCharsets;
import java.util.Arrays;
import java.util.List;
import java.util.Optional;
import java.util.function.Consumer;
import java.util.stream.Stream;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.MethodSource;
import simctl.SimControl;
import simctl.Write;

/** Connecting, logging out, and how failures and texts cross the client's surface. */
class SessionTest {
    @Test
    void loginCarriesEveryFieldInTheChosenCharset() {
        SimControl.reset();
        SimControl.script("ORVEX_Create", 0, Write.le32("pnSdkHandle", 0, 5));
        try (OrvexClient c = OrvexClient.builder().host("10.9.8.7").port(9100).user("José")
                .password("pä55").protocol(1).loginType(3).checkCode("13800")
                .charset(StandardCharsets.ISO_8859_1).logFile(java.nio.file.Path.of("/tmp/x.log"))
                .connect()) {
            byte[] login = SimControl.last("ORVEX_Login").arg("pInfo").bytes;
            assertEquals("10.9.8.7", Sim.textAt(login, 0));
            assertEquals(9100, Sim.i32At(login, 48));
            assertArrayEquals(new byte[] {'J', 'o', 's', (byte) 0xE9, 0}, Arrays.copyOfRange(login, 52, 57));
            assertArrayEquals(new byte[] {'p', (byte) 0xE4, '5', '5', 0}, Arrays.copyOfRange(login, 116, 121));
            assertEquals(1, Sim.i32At(login, 180));
            assertEquals(3, Sim.i32At(login, 184));
            assertEquals("13800", Sim.textAt(login, 188));
            assertEquals(5, SimControl.last("ORVEX_Login").arg("nHandle").i32());
            assertEquals("/tmp/x.log", Sim.textAt(SimControl.last("ORVEX_SetLog").arg("szFileName").bytes, 0));
            assertEquals(5, c.handle());
        }
    }

    @Test
    void failedLoginThrowsTheCodeWithItsMessageAndDestroysTheInstance() {
        SimControl.reset();
        SimControl.script("ORVEX_Create", 0, Write.le32("pnSdkHandle", 0, 6));
        SimControl.script("ORVEX_Login", 1004);

        OrvexException e = assertThrows(OrvexException.class,
                () -> OrvexClient.builder().host("h").user("u").password("bad").connect());

        assertEquals(1004, e.code());
        assertEquals(Optional.of(ResultCode.ORVEX_CORE_ERROR_LOGIN_FAIL), e.resultCode());
        assertEquals("ORVEX_Login", e.operation());
        assertEquals("ORVEX_Login failed with 1004: the user name or password is wrong", e.getMessage());
        assertEquals(6, SimControl.last("ORVEX_Destroy").arg("nHandle").i32());
        assertEquals(0, SimControl.count("ORVEX_Logout"));
    }

    @Test
    void closeLogsOutDestroysOnceAndRefusesLaterCalls() {
        OrvexClient c = Sim.connect();
        c.close();
        c.close();

        assertEquals(1, SimControl.count("ORVEX_Logout"));
        assertEquals(Sim.HANDLE, SimControl.last("ORVEX_Destroy").arg("nHandle").i32());
        assertEquals(1, SimControl.count("ORVEX_Destroy"));
        assertThrows(IllegalStateException.class, c::userId);
    }

    @Test
    void failedLogoutIsReportedAndTheInstanceStillDestroyed() {
        OrvexClient c = Sim.connect();
        SimControl.script("ORVEX_Logout", 1006);
        OrvexException e = assertThrows(OrvexException.class, c::close);
        assertEquals(1006, e.code());
        assertEquals(1, SimControl.count("ORVEX_Destroy"));
    }

    record Failing(String fn, Consumer<OrvexClient> call) {
        @Override
        public String toString() {
            return fn;
        }
    }

    /**
     * Calls whose natives write their outputs even on failure, or count first, among others: the
     * failure must surface, never the zeros written.
     */
    static Stream<Failing> failing() {
        CameraId cam = CameraId.of("cam-1");
        return Stream.of(
                new Failing("ORVEX_GetUserID", OrvexClient::userId),
                new Failing("ORVEX_GetUserInfo", OrvexClient::userInfo),
                new Failing("ORVEX_GetMapAddrInfo", OrvexClient::mapServer),
                new Failing("ORVEX_GetDGroupRootInfo", c -> c.catalogue().root()),
                new Failing("ORVEX_GetDGroupCount", c -> c.catalogue().counts(DepartmentCode.of("01"))),
                new Failing("ORVEX_LoadDGroupInfo", c -> c.catalogue().tree()),
                new Failing("ORVEX_QueryAlarmCount",
                        c -> c.alarms().count(new com.zq.OrvexCore.client.Alarms.Query(cam, 0, 1, 0))),
                new Failing("ORVEX_GetAlarmSchemeCount", c -> c.alarms().schemes()),
                new Failing("ORVEX_GetTvWallListCount", c -> c.walls().walls()),
                new Failing("ORVEX_QueryPrePoint", c -> c.ptz(cam).presets()),
                new Failing("ORVEX_SetDoorCmd", c -> c.doors().command(cam,
                        com.zq.OrvexCore.client.Doors.Command.OPEN)),
                new Failing("ORVEX_QueryLinkResource", c -> c.services().linkResources()));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("failing")
    void everyFailureCarriesItsCodeAndMessage(Failing f) {
        try (OrvexClient c = Sim.connect()) {
            for (int code : new int[] {1012, 4242}) {
                SimControl.script(f.fn(), code);
                OrvexException e = assertThrows(OrvexException.class, () -> f.call().accept(c));
                assertEquals(code, e.code());
                assertEquals(f.fn(), e.operation());
                assertEquals(ResultCode.messageOf(code), e.codeMessage());
                assertTrue(e.getMessage().contains(e.codeMessage()), e.getMessage());
            }
        }
        assertEquals("unknown result code", ResultCode.messageOf(4242));
    }

    @Test
    void accountDataIsDecodedFromTheLibrarysRecords() {
        try (OrvexClient c = Sim.connect()) {
            SimControl.script("ORVEX_GetUserID", 0, Write.le32("pnUserId", 0, 77));
            SimControl.script("ORVEX_GetUserLevel", 0, Write.le32("pnUserLevel", 0, 3));
            SimControl.script("ORVEX_GetUserInfo", 0, Write.bytes("pInfo", 0, new CRecord(396)
                    .i32(0, 12).i32(4, 2).i32(8, 1).text(9, "0101").text(137, "Zentrale").bytes()));
            SimControl.script("ORVEX_GetMapAddrInfo", 0, Write.bytes("pInfo", 0,
                    new CRecord(52).text(0, "192.168.0.9").i32(48, 8088).bytes()));
            SimControl.script("ORVEX_GetUserOrgInfoLen", 0, Write.le32("pnLen", 0, 16));
            SimControl.script("ORVEX_GetUserOrgInfo", 0, Write.bytes("szBuffer", 0, Sim.utf8("<org id='1'/>")));

            assertEquals(77, c.userId());
            assertEquals(3, c.userLevel());
            assertEquals(new OrvexClient.UserInfo(12, 2, true, "0101", "Zentrale"), c.userInfo());
            assertEquals(new OrvexClient.MapServer("192.168.0.9", 8088), c.mapServer());
            assertEquals("<org id='1'/>", c.userOrganisation());
        }
    }

    @Test
    void emptyOrBrokenTextsAreRefusedBeforeTheLibraryIsCalled() {
        try (OrvexClient c = Sim.connect()) {
            SimControl.reset();
            List<Runnable> refused = List.of(
                    () -> c.changePassword("", "new"),
                    () -> c.changePassword("old", "a\0b"),
                    () -> c.services().sendToCms(""),
                    () -> c.services().sendJson("", 1, 0),
                    () -> c.media().broadcast(""),
                    () -> c.walls().clear(1, ""),
                    () -> c.ptz(CameraId.of("x".repeat(64))).light(true),
                    () -> c.ptz(CameraId.of("cam")).addPreset(1, "n".repeat(32)));
            for (Runnable r : refused) {
                assertThrows(IllegalArgumentException.class, r::run);
            }
            assertEquals(0, SimControl.calls().length, Arrays.toString(SimControl.calls()));
            assertThrows(IllegalArgumentException.class, () -> CameraId.of(""));
        }
    }
}
