package platformtest;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertNotEquals;
import static org.junit.jupiter.api.Assertions.assertNotNull;
import static org.junit.jupiter.api.Assertions.assertNull;
import static org.junit.jupiter.api.Assertions.assertTrue;
import static platformtest.Platform.TIMEOUT;
import static platformtest.Platform.fixed;
import static platformtest.Platform.string;

import com.zq.OrvexCore.AlarmIn_Channel_Info_t;
import com.zq.OrvexCore.AlarmSchemeInfo_t;
import com.zq.OrvexCore.Alarm_Enable_Info_t;
import com.zq.OrvexCore.Alarm_Info_t;
import com.zq.OrvexCore.Alarm_Query_Info_t;
import com.zq.OrvexCore.Client_Alarm_Info_t;
import com.zq.OrvexCore.Get_AlarmInChannel_Info_t;
import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.ORVEXAlarmCallback;
import com.zq.OrvexCore.ORVEXNetAlarmHostStatusCallback;
import com.zq.OrvexCore.ORVEXVideoAlarmHostStatusCallback;
import com.zq.OrvexCore.Return_Value_Info_t;
import com.zq.OrvexCore.orvex_AHostDefenceStatus_t;
import java.nio.charset.StandardCharsets;
import java.util.ArrayList;
import java.util.List;
import java.util.concurrent.BlockingQueue;
import java.util.concurrent.LinkedBlockingQueue;
import java.util.concurrent.TimeUnit;
import org.junit.jupiter.api.Tag;
import org.junit.jupiter.api.Test;
import platformtest.Platform.User;

/**
 * Alarms on the simulated platform, end to end through the bridge as a monitoring application
 * uses them: enabling sources and receiving only those, reading the history back in pages,
 * alarm schemes, and arming and triggering alarm hosts.
 */
@Tag("platform")
class AlarmsPlatformTest extends OnPlatform {
    static final int MOTION = 3;
    static final int EXTERNAL = 2;

    /** Every event of the kinds it listens to, as one line each, with the thread it came on. */
    static final class Listener implements ORVEXAlarmCallback, ORVEXNetAlarmHostStatusCallback,
            ORVEXVideoAlarmHostStatusCallback {
        final BlockingQueue<String> events = new LinkedBlockingQueue<>();
        final BlockingQueue<String> threads = new LinkedBlockingQueue<>();

        @Override
        public void invoke(int h, byte[] alarmId, int deviceType, byte[] camera, byte[] deviceName,
                byte[] channelName, byte[] coding, byte[] message, int type, int event, int level,
                long time, byte[] data, int dataLen, byte[] pic, int picLen) {
            threads.add(Thread.currentThread().getName());
            events.add(String.join("|", s(camera), s(message), s(deviceName), s(channelName),
                    s(coding), type + "/" + event + "@" + time, dataLen + "+" + picLen,
                    alarmId.length > 0 ? "id" : "no id"));
        }

        @Override
        public void invoke(int h, byte[] device, int zone, int operation, int status) {
            events.add("net " + s(device) + " zone " + zone + " op " + operation + " = " + status);
        }

        @Override
        public void invoke(int h, byte[] device, int input, int status) {
            events.add("video " + s(device) + " input " + input + " = " + status);
        }

        /** Events up to and including the first that starts with {@code last}. */
        List<String> until(String last) throws InterruptedException {
            List<String> out = new ArrayList<>();
            for (;;) {
                String e = events.poll(10, TimeUnit.SECONDS);
                assertNotNull(e, "no event starting with " + last + " after " + out);
                out.add(e);
                if (e.startsWith(last)) {
                    return out;
                }
            }
        }

        static String s(byte[] b) {
            return new String(b, StandardCharsets.UTF_8);
        }
    }


    static Listener listen(User s) {
        Listener l = new Listener();
        assertEquals(0, IOrvexCore.ORVEX_SetORVEXAlarmCallback(s.handle, l));
        assertEquals(0, IOrvexCore.ORVEX_SetNetAlarmHostStatusCallback(s.handle, l));
        assertEquals(0, IOrvexCore.ORVEX_SetVideoAlarmHostStatusCallback(s.handle, l));
        return l;
    }

    static int enable(User s, String device) {
        Alarm_Enable_Info_t info = new Alarm_Enable_Info_t(1);
        info.sources[0].szAlarmDevId = fixed(device, 64);
        return IOrvexCore.ORVEX_EnableAlarm(s.handle, info, TIMEOUT);
    }

    static int send(User s, String camera, int type, String message, long time) {
        Client_Alarm_Info_t a = new Client_Alarm_Info_t();
        a.szCameraId = fixed(camera, 64);
        a.enAlarmType = type;
        a.enStatus = 1;
        a.uAlarmTime = time;
        a.szMsg = fixed(message, 4096);
        return IOrvexCore.ORVEX_SendAlarmToServer(s.handle, a, TIMEOUT);
    }

    static Alarm_Query_Info_t query(String camera, long start, long end) {
        Alarm_Query_Info_t q = new Alarm_Query_Info_t();
        q.szCameraId = fixed(camera, 64);
        q.uStartTime = start;
        q.uEndTime = end;
        return q;
    }

    /** The history's records for a query, read in pages of two, as "device/channel message". */
    static List<String> history(User s, Alarm_Query_Info_t q) {
        Return_Value_Info_t count = new Return_Value_Info_t();
        assertEquals(0, IOrvexCore.ORVEX_QueryAlarmCount(s.handle, q, count, TIMEOUT));
        List<String> out = new ArrayList<>();
        for (int first = 0; first < count.nReturnValue; first += 2) {
            Alarm_Info_t page = new Alarm_Info_t(2);
            assertEquals(0, IOrvexCore.ORVEX_QueryAlarmInfo(s.handle, q, page, first, 2, TIMEOUT));
            for (int k = 0; k < page.nRetCount; k++) {
                out.add(Platform.string(page.pAlarmInfo[k].szDevId) + "/"
                        + page.pAlarmInfo[k].uChannel + " "
                        + Platform.string(page.pAlarmInfo[k].szMessage));
            }
        }
        assertEquals(count.nReturnValue, out.size(), "pages agree with the count");
        return out;
    }

    @Test
    void onlyEnabledSourcesAreDeliveredAndEveryAlarmIsInTheHistory() throws Exception {
        long t0 = 3_000_000_000L + System.nanoTime() % 1_000_000_000L; // this run's own span
        try (User watcher = User.admin();
                User sender = User.operator()) {
            Listener l = listen(watcher);
            assertEquals(0, enable(watcher, "nvr-south-01"));
            assertEquals(1011, enable(watcher, "no-such-device"));
            assertEquals(0, send(sender, "nvr-south-01-cam07", MOTION, "A1", t0 + 1));
            assertEquals(0, send(sender, "ipc-traffic-02-cam01", MOTION, "B1", t0 + 2));
            assertEquals(0, send(sender, "nvr-south-01-cam08", MOTION, "A2", t0 + 3));
            assertEquals(1012, send(sender, "no-such-camera", MOTION, "C1", t0 + 4));

            assertEquals(List.of(
                    "nvr-south-01-cam07|A1|South recorder|South recorder camera 7|330200|3/1@"
                            + (t0 + 1) + "|0+0|id",
                    "nvr-south-01-cam08|A2|South recorder|South recorder camera 8|330200|3/1@"
                            + (t0 + 3) + "|0+0|id"),
                    l.until("nvr-south-01-cam08"));
            assertNotEquals(Thread.currentThread().getName(), l.threads.take());

            assertEquals(List.of("nvr-south-01/7 A1", "nvr-south-01/8 A2"),
                    history(watcher, query("nvr-south-01", t0, t0 + 10)));
            assertEquals(List.of("nvr-south-01/7 A1", "ipc-traffic-02/1 B1", "nvr-south-01/8 A2"),
                    history(sender, query("", t0, t0 + 10)));

            assertEquals(0, IOrvexCore.ORVEX_DisableAlarm(watcher.handle, TIMEOUT));
            assertEquals(0, send(sender, "nvr-south-01-cam07", MOTION, "A3", t0 + 5));
            assertNull(l.events.poll(500, TimeUnit.MILLISECONDS), "nothing once disabled");
            assertEquals(3, history(watcher, query("nvr-south-01", t0, t0 + 10)).size());
        }
    }

    @Test
    void schemesAreListedAndSaved() {
        try (User op = User.operator()) {
            Return_Value_Info_t count = new Return_Value_Info_t();
            assertEquals(0, IOrvexCore.ORVEX_GetAlarmSchemeCount(op.handle, count, TIMEOUT));
            assertTrue(count.nReturnValue >= 3, "the built-in schemes");
            AlarmSchemeInfo_t added = new AlarmSchemeInfo_t();
            String name = "Added " + System.nanoTime();
            added.status = 1;
            added.schemeName = fixed(name, 256);
            added.templateId = 42;
            added.desc = fixed("from the end-to-end test", 512);
            assertEquals(0, IOrvexCore.ORVEX_SaveAlarmScheme(op.handle, added, TIMEOUT));

            Return_Value_Info_t now = new Return_Value_Info_t();
            assertEquals(0, IOrvexCore.ORVEX_GetAlarmSchemeCount(op.handle, now, TIMEOUT));
            assertEquals(count.nReturnValue + 1, now.nReturnValue);
            AlarmSchemeInfo_t[] list = new AlarmSchemeInfo_t[now.nReturnValue];
            assertEquals(0, IOrvexCore.ORVEX_GetAlarmSchemeList(op.handle, list, TIMEOUT));
            AlarmSchemeInfo_t last = list[list.length - 1];
            assertEquals(name, Platform.string(last.schemeName));
            assertEquals(42, last.templateId);
            assertEquals(1, last.status);

            last.status = 0; // close it again, under its identifier
            assertEquals(0, IOrvexCore.ORVEX_SaveAlarmScheme(op.handle, last, TIMEOUT));
            AlarmSchemeInfo_t[] again = new AlarmSchemeInfo_t[now.nReturnValue];
            assertEquals(0, IOrvexCore.ORVEX_GetAlarmSchemeList(op.handle, again, TIMEOUT));
            assertEquals(0, again[again.length - 1].status);
            assertEquals(last.id, again[again.length - 1].id);
        }
    }

    static int net(User s, String id, int operation) {
        return IOrvexCore.ORVEX_ControlNetAlarmHostCmd(
                s.handle, id.getBytes(StandardCharsets.US_ASCII), operation, 0, 0L, 0L, TIMEOUT);
    }

    @Test
    void anArmedZoneRaisesAnAlarmAndReportsItsState() throws Exception {
        String host = "alarmhost-01";
        byte[] hostId = host.getBytes(StandardCharsets.US_ASCII);
        try (User watcher = User.admin();
                User op = User.operator();
                User viewer = User.viewer()) {
            Listener l = listen(watcher);
            assertEquals(0, enable(watcher, host));
            assertEquals(1007, net(viewer, host, 1));
            for (int reset : new int[] {6, 4, 2}) { // clear, unbypass, disarm every zone
                assertEquals(0, net(op, host, reset));
            }
            l.until("net alarmhost-01 zone 4 op 2");

            assertEquals(0, net(op, "alarmhost-01-in02", 1)); // arm
            assertEquals(0, net(op, "alarmhost-01-in02", 5)); // alarm
            List<String> events = l.until("net alarmhost-01 zone 2 op 5");
            assertEquals(List.of("net alarmhost-01 zone 2 op 1 = 1",
                    "alarmhost-01-in02|Perimeter alarm host input 2: alarm|Perimeter alarm host"
                            + "|Perimeter alarm host input 2|330000|" + EXTERNAL + "/1@"
                            + events.get(1).replaceAll(".*@(\\d+)\\|.*", "$1") + "|0+0|id",
                    "net alarmhost-01 zone 2 op 5 = 5"), events);

            Return_Value_Info_t zones = new Return_Value_Info_t();
            assertEquals(0,
                    IOrvexCore.ORVEX_QueryNetAlarmHostChannelCount(op.handle, hostId, zones, TIMEOUT));
            assertEquals(4, zones.nReturnValue);
            orvex_AHostDefenceStatus_t[] queried = new orvex_AHostDefenceStatus_t[4];
            assertEquals(0, IOrvexCore.ORVEX_QueryNetAlarmHostStatus(op.handle, hostId, 4, queried,
                    TIMEOUT));
            orvex_AHostDefenceStatus_t[] held = new orvex_AHostDefenceStatus_t[4];
            for (int k = 0; k < 4; k++) {
                held[k] = new orvex_AHostDefenceStatus_t();
            }
            assertEquals(0, IOrvexCore.ORVEX_GetNetAlarmHostStatus(op.handle, 4, held));
            for (int k = 0; k < 4; k++) {
                assertEquals("alarmhost-01-in0" + (k + 1), Platform.string(queried[k].szNodeID));
                assertEquals(k == 1, queried[k].bDefend, "zone " + (k + 1));
                assertEquals(k == 1 ? 1 : 0, queried[k].nAlarm);
                assertEquals(queried[k].bDefend, held[k].bDefend);
                assertEquals(queried[k].nAlarm, held[k].nAlarm);
            }

            assertEquals(0, net(op, "alarmhost-01-in02", 6)); // clear: the alarm disappears
            assertTrue(l.until("net alarmhost-01 zone 2 op 6").get(0)
                    .startsWith("alarmhost-01-in02|Perimeter alarm host input 2: alarm cleared"));
        }
    }

    @Test
    void aRecordersAlarmInputsAreListedAndArmed() throws Exception {
        byte[] dvr = "dvr-station-01".getBytes(StandardCharsets.US_ASCII);
        try (User op = User.operator()) {
            Listener l = listen(op);
            Get_AlarmInChannel_Info_t inputs = new Get_AlarmInChannel_Info_t(6);
            inputs.szDeviceId = fixed("dvr-station-01", 64);
            assertEquals(0, IOrvexCore.ORVEX_GetAlarmInChannelInfo(op.handle, inputs));
            AlarmIn_Channel_Info_t second = inputs.pAlarmInChannelnfo[1];
            assertEquals("dvr-station-01-in02", Platform.string(second.szId));
            assertEquals("Station recorder input 2", Platform.string(second.szName));
            assertEquals(1, second.nStatus);
            assertFalse(Platform.string(inputs.pAlarmInChannelnfo[4].szId).length() > 0,
                    "the recorder has four inputs");

            assertEquals(0, IOrvexCore.ORVEX_ControlVideoAlarmHost(op.handle, dvr, 2, 0, TIMEOUT));
            assertEquals(0, IOrvexCore.ORVEX_ControlVideoAlarmHost(op.handle, dvr, 2, 1, TIMEOUT));
            assertEquals(List.of("video dvr-station-01 input 2 = 0",
                    "video dvr-station-01 input 2 = 1"), l.until("video dvr-station-01 input 2 = 1"));
            assertEquals(1012, IOrvexCore.ORVEX_ControlVideoAlarmHost(op.handle, dvr, 5, 1, TIMEOUT));
        }
    }
}
