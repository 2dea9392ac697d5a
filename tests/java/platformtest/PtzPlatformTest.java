package platformtest;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static platformtest.Platform.TIMEOUT;
import static platformtest.Platform.fixed;
import static platformtest.Platform.string;

import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.Ptz_Direct_Info_t;
import com.zq.OrvexCore.Ptz_Extend_Command_Info_t;
import com.zq.OrvexCore.Ptz_Lock_Info_t;
import com.zq.OrvexCore.Ptz_Open_Command_Info_t;
import com.zq.OrvexCore.Ptz_Operation_Info_t;
import com.zq.OrvexCore.Ptz_Prepoint_Info_t;
import com.zq.OrvexCore.Ptz_Prepoint_Operation_Info_t;
import com.zq.OrvexCore.Ptz_Single_Prepoint_Info_t;
import com.zq.OrvexCore.Ptz_Sit_Info_t;
import java.util.ArrayList;
import java.util.List;
import org.junit.jupiter.api.Tag;
import org.junit.jupiter.api.Test;
import platformtest.Platform.User;

/**
 * Pan-tilt-zoom on the simulated platform, end to end through the bridge as an application
 * steers a dome: moves, lens, positions, switches, locks between sessions and preset points,
 * and what the platform refuses to whom.
 */
@Tag("platform")
class PtzPlatformTest extends OnPlatform {
    static final String DOME = "nvr-south-01-cam04";
    static final String FIXED = "nvr-south-01-cam05";


    static int direction(int handle, String camera, int direct, boolean stop) {
        Ptz_Direct_Info_t d = new Ptz_Direct_Info_t();
        d.szCameraId = fixed(camera, 64);
        d.nDirect = direct;
        d.nStep = 4;
        d.bStop = stop;
        return IOrvexCore.ORVEX_PtzDirection(handle, d, TIMEOUT);
    }

    static int sit(int handle, String camera, int x, int y, int z) {
        Ptz_Sit_Info_t s = new Ptz_Sit_Info_t();
        s.szCameraId = fixed(camera, 64);
        s.pointX = x;
        s.pointY = y;
        s.pointZ = z;
        return IOrvexCore.ORVEX_PtzSit(handle, s, TIMEOUT);
    }

    static int lock(int handle, String camera, int how) {
        Ptz_Lock_Info_t l = new Ptz_Lock_Info_t();
        l.szCameraId = fixed(camera, 64);
        l.nLock = how;
        return IOrvexCore.ORVEX_PtzLockCamera(handle, l, TIMEOUT);
    }

    static int preset(int handle, String camera, int cmd, int code, String name) {
        Ptz_Prepoint_Operation_Info_t op = new Ptz_Prepoint_Operation_Info_t();
        op.szCameraId = fixed(camera, 64);
        op.nCmd = cmd;
        op.pPoints.nCode = code;
        op.pPoints.szName = fixed(name, 32);
        return IOrvexCore.ORVEX_PtzPrePointOperation(handle, op, TIMEOUT);
    }

    static List<String> presets(int handle, String camera) {
        Ptz_Prepoint_Info_t list = new Ptz_Prepoint_Info_t();
        list.szCameraId = fixed(camera, 64);
        assertEquals(0, IOrvexCore.ORVEX_QueryPrePoint(handle, list, TIMEOUT));
        List<String> out = new ArrayList<>();
        for (int k = 0; k < list.nCount; k++) {
            Ptz_Single_Prepoint_Info_t p = list.pPoints[k];
            out.add(p.nCode + " " + string(p.szName));
        }
        return out;
    }

    @Test
    void anOperatorSteersADomeWithEveryKindOfCommand() {
        try (User op = User.operator()) {
            for (int direct = 1; direct <= 8; direct++) {
                assertEquals(0, direction(op.handle, DOME, direct, false), "start " + direct);
                assertEquals(0, direction(op.handle, DOME, direct, true), "stop " + direct);
            }
            for (int operation = 0; operation <= 5; operation++) {
                Ptz_Operation_Info_t o = new Ptz_Operation_Info_t();
                o.szCameraId = fixed(DOME, 64);
                o.nOperation = operation;
                o.nStep = 1;
                assertEquals(0, IOrvexCore.ORVEX_PtzCameraOperation(op.handle, o, TIMEOUT));
                o.bStop = true;
                assertEquals(0, IOrvexCore.ORVEX_PtzCameraOperation(op.handle, o, TIMEOUT));
            }
            assertEquals(0, sit(op.handle, DOME, 200, -30, 4));
            assertEquals(1009, sit(op.handle, DOME, 200, 95, 4), "tilt beyond the horizon");

            Ptz_Open_Command_Info_t on = new Ptz_Open_Command_Info_t();
            on.szCameraId = fixed(DOME, 64);
            on.bOpen = true;
            assertEquals(0, IOrvexCore.ORVEX_PtzLightControl(op.handle, on, TIMEOUT));
            assertEquals(0, IOrvexCore.ORVEX_PtzRainBrushControl(op.handle, on, TIMEOUT));
            assertEquals(0, IOrvexCore.ORVEX_PtzInfraredControl(op.handle, on, TIMEOUT));

            Ptz_Extend_Command_Info_t ext = new Ptz_Extend_Command_Info_t();
            ext.szCameraId = fixed(DOME, 64);
            for (int cmd : new int[] {39, 40, 41, 42, 43, 44, 54, 58, 55}) {
                ext.nCmd = cmd;
                ext.nParam = 3;
                assertEquals(0, IOrvexCore.ORVEX_PtzExtendCommand(op.handle, ext, TIMEOUT), "" + cmd);
            }
            ext.nCmd = 51; // a gap in the command numbers
            assertEquals(1016, IOrvexCore.ORVEX_PtzExtendCommand(op.handle, ext, TIMEOUT));
        }
    }

    @Test
    void thePlatformRefusesWhatAUserMayNotOrACameraCannotDo() {
        try (User op = User.operator();
                User viewer = User.viewer()) {
            assertEquals(1007, direction(viewer.handle, DOME, 1, false), "a viewer may not move");
            assertEquals(1007, preset(viewer.handle, DOME, 2, 7, "x"));
            assertEquals(2, presets(viewer.handle, DOME).size(), "but may list presets");
            assertEquals(1016, direction(op.handle, FIXED, 1, false), "a fixed camera");
            assertEquals(1014, direction(op.handle, "ipc-gate-02-cam01", 1, false), "offline");
            assertEquals(1012, direction(op.handle, "no-such-camera", 1, false));
        }
    }

    @Test
    void aLockedDomeAnswersOnlyTheSessionHoldingIt() {
        try (User holder = User.operator();
                User other = User.operator();
                User admin = User.admin()) {
            assertEquals(0, lock(holder.handle, DOME, 1));
            assertEquals(0, sit(holder.handle, DOME, 10, 10, 1));
            assertEquals(1017, sit(other.handle, DOME, 20, 20, 1));
            assertEquals(1017, lock(other.handle, DOME, 1));
            assertEquals(1007, lock(other.handle, DOME, 3), "only an administrator may force");
            assertEquals(0, lock(admin.handle, DOME, 3));
            assertEquals(0, sit(other.handle, DOME, 20, 20, 1));

            assertEquals(0, lock(holder.handle, DOME, 1));
            assertEquals(0, lock(holder.handle, DOME, 2));
            assertEquals(0, sit(other.handle, DOME, 30, 30, 1));
        }
    }

    @Test
    void presetsAreStoredUnderACodeListedRecalledAndDeleted() {
        try (User op = User.operator()) {
            List<String> before = presets(op.handle, DOME);
            assertEquals(List.of("1 Home", "2 Entrance"), before);
            assertEquals(0, sit(op.handle, DOME, 77, -12, 6));
            assertEquals(0, preset(op.handle, DOME, 2, 40, "Loading bay"));
            assertEquals(0, preset(op.handle, DOME, 2, 12, "Stairs"));
            assertEquals(List.of("1 Home", "2 Entrance", "12 Stairs", "40 Loading bay"),
                    presets(op.handle, DOME));
            assertEquals(0, preset(op.handle, DOME, 1, 40, ""));
            assertEquals(0, preset(op.handle, DOME, 3, 40, ""));
            assertEquals(0, preset(op.handle, DOME, 3, 12, ""));
            assertEquals(1018, preset(op.handle, DOME, 1, 40, ""), "a deleted preset");
            assertEquals(before, presets(op.handle, DOME));
        }
    }
}
