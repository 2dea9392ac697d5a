package clienttest;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotNull;
import static org.junit.jupiter.api.Assertions.assertNull;
import static org.junit.jupiter.api.Assertions.assertThrows;

import com.zq.OrvexCore.client.Events;
import com.zq.OrvexCore.client.OrvexClient;
import com.zq.OrvexCore.client.OrvexEvent;
import com.zq.OrvexCore.client.OrvexException;
import java.util.List;
import java.util.concurrent.BlockingQueue;
import java.util.concurrent.ExecutorService;
import java.util.concurrent.LinkedBlockingQueue;
import java.util.concurrent.TimeUnit;
import org.junit.jupiter.api.Test;
import simctl.SimControl;

/** Listeners as lambdas: decoded events, delivered on executors, ended by their handles. */
class EventsTest {
    record Seen(Object event, String thread) {}

    static byte[] b(String s) {
        return Sim.utf8(s);
    }

    static Seen next(BlockingQueue<Seen> q) throws InterruptedException {
        Seen s = q.poll(5, TimeUnit.SECONDS);
        assertNotNull(s, "no event arrived");
        return s;
    }

    static void drain(ExecutorService ex) throws Exception {
        ex.submit(() -> { }).get(5, TimeUnit.SECONDS);
    }

    @Test
    void alarmsAreDecodedAndRunOnTheListenersExecutor() throws Exception {
        ExecutorService ex = Sim.named("test-alarms");
        BlockingQueue<Seen> q = new LinkedBlockingQueue<>();
        try (OrvexClient c = Sim.connect()) {
            c.events().onAlarm(ex, a -> q.add(new Seen(a, Thread.currentThread().getName())));
            SimControl.fire("ORVEXAlarmCallback", Sim.HANDLE, 0, new Object[] {Sim.HANDLE, b("AL-1"),
                    0x8000_0001L, b("cam-1"), b("Gate"), b("Chan 2"), b("0101"), b("Einbruch ü"),
                    3L, 1, 7, 1_500_000_000_123L, new byte[] {0, 1, 0, 2}, 4, new byte[0], 0});

            Seen s = next(q);
            assertEquals("test-alarms", s.thread());
            OrvexEvent.Alarm a = (OrvexEvent.Alarm) s.event();
            assertEquals("AL-1", a.alarmId());
            assertEquals(0x8000_0001, a.deviceType());
            assertEquals("cam-1", a.camera());
            assertEquals("Gate", a.deviceName());
            assertEquals("Chan 2", a.channelName());
            assertEquals("0101", a.department());
            assertEquals("Einbruch ü", a.message());
            assertEquals(List.of(3, 1, 7), List.of(a.alarmType(), a.eventType(), a.level()));
            assertEquals(1_500_000_000_123L, a.time());
            byte[] data = new byte[a.data().remaining()];
            a.data().duplicate().get(data);
            assertArrayEquals(new byte[] {0, 1, 0, 2}, data);
            assertEquals(0, a.picture().remaining());
            assertEquals(1, SimControl.count("ORVEX_SetORVEXAlarmCallback"));
        } finally {
            ex.shutdownNow();
        }
    }

    @Test
    void severalListenersShareOneRegistrationAndEachEndsAlone() throws Exception {
        ExecutorService ex = Sim.named("test-status");
        BlockingQueue<Seen> first = new LinkedBlockingQueue<>();
        BlockingQueue<Seen> second = new LinkedBlockingQueue<>();
        try (OrvexClient c = Sim.connect()) {
            Events.Registration r1 = c.events().onDeviceStatus(ex, e -> first.add(new Seen(e, "")));
            c.events().onDeviceStatus(ex, e -> {
                throw new IllegalStateException("a broken listener");
            });
            c.events().onDeviceStatus(ex, e -> second.add(new Seen(e, "")));
            assertEquals(1, SimControl.count("ORVEX_SetORVEXDeviceStatusCallback"));

            SimControl.fire("ORVEXDevStatusCallback", Sim.HANDLE, 0, new Object[] {Sim.HANDLE, b("dev-9"), 2});
            assertEquals(new OrvexEvent.DeviceStatus("dev-9", 2), next(first).event());
            assertEquals(new OrvexEvent.DeviceStatus("dev-9", 2), next(second).event());

            r1.close();
            SimControl.fire("ORVEXDevStatusCallback", Sim.HANDLE, 0, new Object[] {Sim.HANDLE, b("dev-9"), 1});
            assertEquals(new OrvexEvent.DeviceStatus("dev-9", 1), next(second).event());
            drain(ex);
            assertNull(first.poll());
        } finally {
            ex.shutdownNow();
        }
    }

    @Test
    void withoutAnExecutorListenersRunOnTheClientsOwnThread() throws Exception {
        BlockingQueue<Seen> q = new LinkedBlockingQueue<>();
        try (OrvexClient c = Sim.connect()) {
            c.events().onConnectionStatus(e -> q.add(new Seen(e, Thread.currentThread().getName())));
            SimControl.fire("ORVEXStatusCallback", Sim.HANDLE, 0, new Object[] {Sim.HANDLE, 3});
            Seen s = next(q);
            assertEquals(new OrvexEvent.ConnectionStatus(3), s.event());
            assertEquals("orvex-events-" + Sim.HANDLE, s.thread());
        }
    }

    @Test
    void aRefusedRegistrationThrowsAndIsTriedAgainNextTime() throws Exception {
        ExecutorService ex = Sim.named("test-door");
        BlockingQueue<Seen> q = new LinkedBlockingQueue<>();
        try (OrvexClient c = Sim.connect()) {
            SimControl.script("ORVEX_SetPecDoorStatusCallback", 1016);
            OrvexException e = assertThrows(OrvexException.class, () -> c.events().onDoorStatus(ex, d -> { }));
            assertEquals(1016, e.code());

            c.events().onDoorStatus(ex, d -> q.add(new Seen(d, "")));
            assertEquals(2, SimControl.count("ORVEX_SetPecDoorStatusCallback"));
            SimControl.fire("ORVEXPecDoorStarusCallBack", Sim.HANDLE, 0,
                    new Object[] {Sim.HANDLE, b("door-1"), 5, 0x1_0000_0007L});
            assertEquals(new OrvexEvent.DoorStatus("door-1", 5, 7), next(q).event());
        } finally {
            ex.shutdownNow();
        }
    }

    @Test
    void closingTheClientEndsEveryRegistration() throws Exception {
        ExecutorService ex = Sim.named("test-json");
        BlockingQueue<Seen> q = new LinkedBlockingQueue<>();
        OrvexClient c = Sim.connect();
        c.events().onJsonMessage(ex, m -> q.add(new Seen(m, "")));
        c.close();
        SimControl.fire("ORVEXGeneralJsonTransportCallback", Sim.HANDLE, 0, new Object[] {Sim.HANDLE, b("{}")});
        drain(ex);
        assertNull(q.poll());
        assertThrows(IllegalStateException.class, () -> c.events().onJsonMessage(ex, m -> { }));
        ex.shutdownNow();
    }
}
