package clientplatformtest;

import static clientplatformtest.Site.DAY;
import static clientplatformtest.Site.DOME;
import static clientplatformtest.Site.next;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertNotEquals;
import static org.junit.jupiter.api.Assertions.assertNull;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;
import static org.junit.jupiter.api.DynamicTest.dynamicTest;

import com.zq.OrvexCore.client.Alarms;
import com.zq.OrvexCore.client.Broadcast;
import com.zq.OrvexCore.client.Burners;
import com.zq.OrvexCore.client.CameraId;
import com.zq.OrvexCore.client.Catalogue;
import com.zq.OrvexCore.client.DepartmentNode;
import com.zq.OrvexCore.client.DeviceId;
import com.zq.OrvexCore.client.Doors;
import com.zq.OrvexCore.client.Events;
import com.zq.OrvexCore.client.LiveStream;
import com.zq.OrvexCore.client.Media;
import com.zq.OrvexCore.client.MediaFrame;
import com.zq.OrvexCore.client.OrvexClient;
import com.zq.OrvexCore.client.OrvexEvent;
import com.zq.OrvexCore.client.OrvexException;
import com.zq.OrvexCore.client.PeopleCount;
import com.zq.OrvexCore.client.Playback;
import com.zq.OrvexCore.client.Ptz;
import com.zq.OrvexCore.client.Services;
import com.zq.OrvexCore.client.Talk;
import com.zq.OrvexCore.client.Walls;
import java.awt.image.BufferedImage;
import java.io.ByteArrayInputStream;
import java.util.List;
import java.util.Map;
import java.util.concurrent.BlockingQueue;
import java.util.concurrent.ExecutorService;
import java.util.concurrent.Executors;
import java.util.concurrent.LinkedBlockingQueue;
import java.util.concurrent.TimeUnit;
import java.util.concurrent.atomic.AtomicBoolean;
import java.util.concurrent.atomic.AtomicInteger;
import java.util.function.Consumer;
import java.util.stream.Stream;
import javax.imageio.ImageIO;
import org.junit.jupiter.api.AfterAll;
import org.junit.jupiter.api.BeforeAll;
import org.junit.jupiter.api.DynamicTest;
import org.junit.jupiter.api.Tag;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.api.TestFactory;
import org.junit.jupiter.api.TestInstance;
import org.junit.jupiter.api.function.Executable;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.MethodSource;
import org.junit.jupiter.params.provider.ValueSource;

/**
 * The Java API over the simulated platform's built-in site, as an application uses it: each
 * capability once, the result codes its exceptions carry, listeners on an executor and streams
 * that stop on close. What a case changes on the site it puts back.
 */
// Registrations are held open for a try block without being named in it.
@SuppressWarnings("try")
@Tag("platform")
@TestInstance(TestInstance.Lifecycle.PER_CLASS)
class ApiOnPlatformTest {
    private static final String EXECUTOR_THREAD = "api-test-executor";

    private OrvexClient admin;
    private ExecutorService executor;

    @BeforeAll
    void connect() {
        admin = Site.admin();
        admin.catalogue().load();
        executor = Executors.newSingleThreadExecutor(r -> new Thread(r, EXECUTOR_THREAD));
    }

    @AfterAll
    void close() {
        admin.close();
        executor.shutdownNow();
    }

    @TestFactory
    Stream<DynamicTest> eachCapabilityOnce() {
        return Map.<String, Executable>ofEntries(
                Map.entry("user info", this::userInfo),
                Map.entry("tree", this::tree),
                Map.entry("device and channel look-ups", this::lookUps),
                Map.entry("live", this::live),
                Map.entry("playback", this::playback),
                Map.entry("talk", this::talk),
                Map.entry("broadcast", this::broadcast),
                Map.entry("ptz", this::ptz),
                Map.entry("alarms", this::alarms),
                Map.entry("devices", this::devices),
                Map.entry("alarm hosts", this::alarmHosts),
                Map.entry("walls", this::walls),
                Map.entry("doors", this::doors),
                Map.entry("burners", this::burners),
                Map.entry("disks", this::disks),
                Map.entry("json services", this::json),
                Map.entry("shared videos", this::share),
                Map.entry("osd", this::osd),
                Map.entry("gps and link resources", this::xmlTexts),
                Map.entry("nvr channel states", this::nvrChannels),
                Map.entry("people count", this::peopleCount))
                .entrySet().stream().sorted(Map.Entry.comparingByKey())
                .map(e -> dynamicTest(e.getKey(), e.getValue()));
    }

    private void userInfo() {
        OrvexClient.UserInfo me = admin.userInfo();
        assertEquals(1, me.level());
        assertTrue(me.mayOperate());
        assertEquals(me.id(), admin.userId());
    }

    private void tree() {
        Catalogue cat = admin.catalogue();
        DepartmentNode root = cat.tree();
        assertEquals(cat.root(), root.department());
        // What each department counts agrees with what the walk found in it.
        root.departments().forEach(d -> {
            Catalogue.Counts n = cat.counts(d.department().code());
            assertEquals(d.children().size(), n.departments(), d.department().name());
            assertEquals(d.devices().size(), n.devices(), d.department().name());
        });
        assertTrue(root.findChannel(DOME).isPresent());
        assertTrue(root.allDevices().count() >= 5 && root.channels().count() > root.allDevices()
                .count());
    }

    private void lookUps() {
        Catalogue cat = admin.catalogue();
        DeviceId gate = new DeviceId("ipc-gate-01");
        assertEquals(gate, cat.device(gate).id());
        assertEquals(cat.channelCount(gate), cat.channels(gate).size());
        assertEquals("Gate dome camera 1", cat.channel(DOME).name());
        assertEquals(DOME, cat.channelSummaries(gate).get(0).id());
    }

    private void live() throws Exception {
        BlockingQueue<byte[]> pictures = new LinkedBlockingQueue<>();
        try (LiveStream live = admin.media().openLive(DOME, pictures(pictures))) {
            BufferedImage image = ImageIO.read(new ByteArrayInputStream(next(pictures)));
            assertEquals(352, image.getWidth());
            assertEquals(288, image.getHeight());
            assertEquals(DOME, live.camera());
        }
    }

    private void playback() throws Exception {
        List<Media.RecordFile> files =
                admin.media().searchRecords(Media.RecordQuery.of(DOME, DAY, DAY + 86400));
        assertFalse(files.isEmpty());
        Media.RecordFile file = files.get(0);
        // Each picture carries the recording's time (ms), which tells speed and seeks apart.
        BlockingQueue<Long> times = new LinkedBlockingQueue<>();
        try (Playback play = admin.media().playFile(DOME, file, false, null, f -> {
            byte[] jpeg = Site.picture(f.data());
            if (jpeg != null) {
                times.add(Site.timeMs(jpeg));
            }
        })) {
            long first = next(times);
            assertTrue(first >= file.begin() * 1000 && first < file.end() * 1000, "" + first);
            play.pause();
            Thread.sleep(300);
            times.clear();
            assertNull(times.poll(400, TimeUnit.MILLISECONDS), "a frame while paused");
            play.resume();
            play.speed(Playback.Speed.FAST2);
            next(times);  // may still be at normal speed
            long a = next(times);
            assertEquals(200, next(times) - a, "frames 200 ms apart at double speed");
            long middle = file.begin() + (file.end() - file.begin()) / 2;
            play.seek(middle, file.end());
            times.clear();
            next(times);  // may be from before the seek
            long after = next(times);
            assertTrue(after >= middle * 1000 && after < middle * 1000 + 2000, "" + after);
        }
    }

    private void talk() throws Exception {
        BlockingQueue<MediaFrame> heard = new LinkedBlockingQueue<>();
        try (Talk talk = admin.media().talk(DOME, Media.TalkOptions.DEFAULT, null, heard::add)) {
            talk.send(new short[800]);
            assertTrue(next(heard).size() > 0);
        }
    }

    private void broadcast() {
        Broadcast b = admin.media().broadcast("{\"cameras\":[\"ipc-gate-01-cam01\"]}");
        assertTrue(b.isOpen());
        b.close();
        assertFalse(b.isOpen());
    }

    private void ptz() throws Exception {
        Ptz ptz = admin.ptz(DOME);
        int[] home = position();
        try {
            ptz.move(Ptz.Direction.RIGHT, 5);
            Thread.sleep(500);
            ptz.stop(Ptz.Direction.RIGHT);
            assertNotEquals(home[0], position()[0], "panned");
            ptz.pointAt(200, -30, 4);
            assertEquals(List.of(200, -30, 4), List.of(position()[0], position()[1], position()[2]));
            ptz.addPreset(33, "Api test");
            assertTrue(ptz.presets().contains(new Ptz.Preset(33, "Api test")));
            ptz.gotoPreset(1);
            ptz.deletePreset(33);
            assertFalse(ptz.presets().stream().anyMatch(p -> p.code() == 33));
        } finally {
            ptz.pointAt(home[0], home[1], home[2]);
        }
    }

    /** The dome's pan, tilt and zoom as the platform reports them. */
    private int[] position() {
        String channel = admin.services().sendToDms(DOME, "{\"cmd\":\"getChannel\"}", 4096);
        return Stream.of("pan", "tilt", "zoom").mapToInt(k -> number(channel, k)).toArray();
    }

    private static int number(String json, String key) {
        int at = json.indexOf("\"" + key + "\":") + key.length() + 3;
        int end = at;
        while (end < json.length() && "-0123456789".indexOf(json.charAt(end)) >= 0) {
            end++;
        }
        return Integer.parseInt(json.substring(at, end));
    }

    private void alarms() throws Exception {
        BlockingQueue<String> received = new LinkedBlockingQueue<>();
        long t0 = System.currentTimeMillis() / 1000;
        Alarms alarms = admin.alarms();
        try (Events.Registration on = admin.events().onAlarm(executor,
                a -> received.add(Thread.currentThread().getName() + " " + a.message()))) {
            alarms.enableByDepartment(List.of(new Alarms.DepartmentSource(
                    admin.catalogue().root().code(), 0, 0, 0)));
            alarms.raise(DOME, 3, 1, t0, "api test");
            assertEquals(EXECUTOR_THREAD + " api test", next(received));
        } finally {
            alarms.disable();
        }
        Alarms.Query q = new Alarms.Query(DOME, t0 - 1, t0 + 1, 0);
        int count = alarms.count(q);
        assertTrue(count >= 1);
        List<Alarms.Record> page = alarms.page(q, 0, count + 2);
        assertEquals(count, page.size());
        assertTrue(page.stream().anyMatch(r -> r.message().equals("api test")), page::toString);
        assertTrue(alarms.schemes().size() >= 3);
    }

    private void devices() {
        assertTrue(admin.devices().deviceList().contains("nvr-north-01"));
        assertEquals(1, admin.devices().channelStatus(DOME));
        assertEquals(2, admin.devices().deviceType(new DeviceId("ipc-gate-01")));
    }

    private void alarmHosts() {
        DeviceId host = new DeviceId("alarmhost-01");
        assertEquals(4, admin.devices().zoneCount(host));
        assertEquals(4, admin.devices().zones(host).size());
    }

    private void walls() {
        Walls walls = admin.walls();
        assertEquals(List.of(1, 2), walls.walls().stream().map(Walls.Wall::id).toList());
        Walls.Screen screen = walls.screens(2).get(0);
        try {
            walls.split(2, screen.id(), 4);
            walls.show(2, screen.id(), 1, DOME, 0, Media.StreamType.MAIN);
            assertTrue(wall(2).contains("\"camera\":\"" + DOME.value() + "\""));
        } finally {
            walls.clear(2);
        }
        assertFalse(wall(2).contains(DOME.value()));
        walls.split(2, screen.id(), 1);  // as the site starts
    }

    private String wall(int id) {
        return admin.services().sendToCms("{\"cmd\":\"getWall\",\"id\":" + id + "}", 8192);
    }

    private void doors() throws Exception {
        BlockingQueue<String> states = new LinkedBlockingQueue<>();
        CameraId door = new CameraId("door-02");
        try (Events.Registration on = admin.events().onDoorStatus(
                s -> states.add(s.camera() + "=" + s.status()))) {
            admin.doors().command(door, Doors.Command.OPEN);
            assertEquals("door-02=1", next(states));
            admin.doors().command(door, Doors.Command.CLOSE);
            assertEquals("door-02=0", next(states));
        }
    }

    private void burners() {
        DeviceId dvr = new DeviceId("dvr-station-01");
        Burners burners = admin.burners();
        burners.setCaseHeader(new Burners.CaseHeader(dvr, "", "CASE-API", "", "", "", "", "",
                "", "Api hearing", "", "", false, false, false, 0),
                Map.of(Burners.FormLabel.values()[0], "Case no."));
        burners.control(dvr, Burners.Command.START, 1, 1, 0, 0);
        try {
            String state = admin.services().sendToCms(
                    "{\"cmd\":\"getBurner\",\"device\":\"dvr-station-01\"}", 4096);
            assertTrue(state.contains("\"caseId\":\"CASE-API\"") && state.contains("\"state\":1"),
                    state);
        } finally {
            burners.control(dvr, Burners.Command.STOP, 1, 1, 0, 0);
            burners.setCaseHeader(new Burners.CaseHeader(dvr, "", "", "", "", "", "", "", "", "",
                    "", "", false, false, false, 0), Map.of());
        }
    }

    private void disks() {
        Burners burners = admin.burners();
        int n = burners.diskCount(new DeviceId("nvr-south-01"));
        assertEquals(4, n);
        assertEquals(List.of(1, 2, 3, 4),
                burners.disks(n, n).stream().map(Burners.Disk::id).toList());
    }

    private void json() throws Exception {
        Services services = admin.services();
        assertTrue(services.sendToCms("{\"cmd\":\"ping\"}").contains("\"result\":0"));
        // The library writes whole answers: a small room asked for must not be overrun.
        assertTrue(services.sendToCms("{\"cmd\":\"listDevices\"}", 16).endsWith("\"result\":0}"));
        BlockingQueue<String> answers = new LinkedBlockingQueue<>();
        try (Events.Registration on = admin.events().onJsonMessage(m -> answers.add(m.json()))) {
            services.sendJson("{\"cmd\":\"getDevice\",\"id\":\"mdvr-car-07\"}", 1, 0);
            assertTrue(next(answers).contains("\"name\":\"Patrol car 7\""));
        }
    }

    private void share() throws Exception {
        BlockingQueue<OrvexEvent.SharedVideos> shared = new LinkedBlockingQueue<>();
        try (OrvexClient op = Site.operator();
                Events.Registration on = op.events().onSharedVideos(shared::add)) {
            Services.SharedVideo video =
                    new Services.SharedVideo("dvr-station-01-cam03", 2, 0, 0, 0, DAY + 3600);
            admin.services().shareVideos(List.of(video), List.of(op.userId()), "look");
            OrvexEvent.SharedVideos got = next(shared);
            assertEquals(List.of(video), got.videos());
            assertEquals("look", got.message());
            assertEquals(admin.userId(), got.fromUserId());
            assertEquals("admin", got.fromUserName());
        }
    }

    private void osd() {
        DeviceId encoder = new DeviceId("nvs-traffic-01-cam02");
        String query = "{\"cmd\":\"getOsd\",\"id\":\"nvs-traffic-01-cam02\"}";
        admin.services().sendOsd(encoder, "Api text");
        assertTrue(admin.services().sendToCms(query).contains("\"text\":\"Api text\""));
        admin.services().sendOsd(encoder, "");
        assertTrue(admin.services().sendToCms(query).contains("\"text\":\"\""));
    }

    private void xmlTexts() {
        assertTrue(admin.services().lastGpsStatus().contains("deviceId=\"mdvr-car-07\""));
        assertTrue(admin.services().linkResources().contains("<Camera id=\"ipc-traffic-02-cam01\""));
    }

    private void nvrChannels() throws Exception {
        BlockingQueue<String> states = new LinkedBlockingQueue<>();
        try (Events.Registration on = admin.events().onNvrChannelStatus(
                s -> states.add(s.channel() + "=" + s.status()))) {
            admin.services().queryNvrChannels(new DeviceId("dvr-station-01"));
            assertEquals("dvr-station-01-cam01=1", next(states));
        }
    }

    private void peopleCount() {
        try (PeopleCount count = admin.services().countPeople(DOME, (int) DAY,
                (int) DAY + 86400, 0)) {
            assertEquals(4, count.total());
            List<PeopleCount.Row> rows = count.page(2, 2);
            assertEquals(List.of(90, 95), rows.stream().map(PeopleCount.Row::entered).toList());
            assertEquals("Gate flow", rows.get(0).rule());
        }
    }

    /** What each refusal of the platform carries: the operation's name and the result code. */
    static Stream<Object[]> refusals() {
        return Stream.<Object[]>of(
                new Object[] {"wrong password", 1004,
                        (Consumer<OrvexClient>) c -> Site.connect("admin", "wrong").close()},
                new Object[] {"unknown camera", 1012,
                        (Consumer<OrvexClient>) c -> c.media().openLive(
                                new CameraId("no-such-camera"), f -> {})},
                new Object[] {"unknown device", 1011,
                        (Consumer<OrvexClient>) c -> c.alarms().enable(List.of(
                                new Alarms.Source(new DeviceId("no-such-device"), 0, 0, 0)))},
                new Object[] {"viewer may not operate", 1007,
                        (Consumer<OrvexClient>) c -> c.ptz(DOME).move(Ptz.Direction.UP, 1)},
                new Object[] {"tree not loaded", 1008,
                        (Consumer<OrvexClient>) c -> c.catalogue().channel(DOME)},
                new Object[] {"unknown wall", 1018,
                        (Consumer<OrvexClient>) c -> c.walls().screens(7)});
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("refusals")
    void exceptionsCarryTheResultCode(String what, int code, Consumer<OrvexClient> call) {
        try (OrvexClient viewer = Site.viewer()) {
            OrvexException e = assertThrows(OrvexException.class, () -> call.accept(viewer));
            assertEquals(code, e.code(), e.getMessage());
        }
    }

    @Test
    void listenersRunOnTheGivenExecutor() throws Exception {
        BlockingQueue<String> threads = new LinkedBlockingQueue<>();
        Consumer<Object> where = x -> threads.add(Thread.currentThread().getName());
        try (Events.Registration on = admin.events().onDoorStatus(executor, where::accept)) {
            try (LiveStream live = admin.media().openLive(DOME, Media.LiveOptions.DEFAULT,
                    executor, where::accept)) {
                assertEquals(EXECUTOR_THREAD, next(threads));
            }
            threads.clear();
            admin.doors().command(new CameraId("door-01"), Doors.Command.CLOSE);
            assertEquals(EXECUTOR_THREAD, next(threads));
        }
    }

    @ParameterizedTest(name = "on an executor: {0}")
    @ValueSource(booleans = {false, true})
    void closingAStreamStopsItsFramesBeforeCloseReturns(boolean onExecutor) throws Exception {
        AtomicBoolean closed = new AtomicBoolean();
        AtomicInteger frames = new AtomicInteger();
        AtomicInteger late = new AtomicInteger();
        // A consumer slower than the frames come, so that frames are waiting when it closes.
        LiveStream live = admin.media().openLive(DOME, Media.LiveOptions.DEFAULT,
                onExecutor ? executor : null, f -> {
                    if (closed.get()) {
                        late.incrementAndGet();
                    }
                    frames.incrementAndGet();
                    sleep(150);
                });
        awaitMore(frames);
        awaitMore(frames);
        live.close();
        closed.set(true);
        Thread.sleep(500);
        assertEquals(0, late.get(), "frames delivered after close returned");
        assertNull(executor.submit(() -> null).get(5, TimeUnit.SECONDS));
    }

    private static Consumer<MediaFrame> pictures(BlockingQueue<byte[]> out) {
        return f -> {
            byte[] jpeg = Site.picture(f.data());
            if (jpeg != null) {
                out.add(jpeg);
            }
        };
    }

    /** Waits until the counter grows. */
    private static void awaitMore(AtomicInteger counter) throws InterruptedException {
        int before = counter.get();
        for (int i = 0; i < 100 && counter.get() == before; i++) {
            Thread.sleep(50);
        }
        assertTrue(counter.get() > before, "no new frames within 5 s");
    }

    private static void sleep(long ms) {
        try {
            Thread.sleep(ms);
        } catch (InterruptedException e) {
            Thread.currentThread().interrupt();
        }
    }
}
