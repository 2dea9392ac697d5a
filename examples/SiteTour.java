import com.zq.OrvexCore.client.Alarms;
import com.zq.OrvexCore.client.CameraId;
import com.zq.OrvexCore.client.Channel;
import com.zq.OrvexCore.client.DepartmentNode;
import com.zq.OrvexCore.client.DeviceNode;
import com.zq.OrvexCore.client.Doors;
import com.zq.OrvexCore.client.Events;
import com.zq.OrvexCore.client.LiveStream;
import com.zq.OrvexCore.client.Media;
import com.zq.OrvexCore.client.MediaFrame;
import com.zq.OrvexCore.client.OrvexClient;
import com.zq.OrvexCore.client.OrvexEvent;
import com.zq.OrvexCore.client.Playback;
import com.zq.OrvexCore.client.Ptz;
import com.zq.OrvexCore.client.Talk;
import com.zq.OrvexCore.client.Walls;
import java.nio.ByteBuffer;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.time.Instant;
import java.util.List;
import java.util.concurrent.BlockingQueue;
import java.util.concurrent.LinkedBlockingQueue;
import java.util.concurrent.TimeUnit;
import java.util.concurrent.atomic.AtomicInteger;
import java.util.concurrent.atomic.AtomicLong;
import java.util.concurrent.atomic.AtomicReference;

/**
 * A tour of a whole site through the bridge: log in, walk the organisation tree, watch a camera
 * live and keep one picture, search and play back recordings, steer a dome camera, talk to it,
 * receive alarms, put the camera on a video wall and open a door. It prints a transcript.
 *
 * <p>Written for the simulated platform of the stand-in client library (its built-in site), but
 * it uses nothing the real client library lacks: pass another camera, user and password with
 * {@code --camera}, {@code --user}, {@code --password}, {@code --host}, {@code --port}.
 *
 * <p>Arguments: {@code [options] [picture-file]}; the picture defaults to {@code orvex-frame.jpg}.
 */
// Streams and registrations are held open for the scope of a try block without being named in it.
@SuppressWarnings("try")
public final class SiteTour {
    /** The day the built-in site holds recordings for (2026-01-01 UTC, seconds). */
    private static final long RECORDING_DAY = 1767225600L;
    private static final int ALARM_TYPE_CLIENT = 3;
    private static final int ALARM_EVENT_OCCUR = 1;
    /** The door states as the platform numbers them. */
    private static final String[] DOOR_STATES = {"closed", "open", "disconnected"};

    private final OrvexClient client;
    private final CameraId camera;

    private SiteTour(OrvexClient client, CameraId camera) {
        this.client = client;
        this.camera = camera;
    }

    public static void main(String[] args) throws Exception {
        String host = "127.0.0.1";
        int port = 9000;
        String user = "admin";
        String password = "admin123";
        String cameraId = "ipc-gate-01-cam01";
        Path picture = Path.of("orvex-frame.jpg");
        for (int i = 0; i < args.length; i++) {
            switch (args[i]) {
                case "--host" -> host = args[++i];
                case "--port" -> port = Integer.parseInt(args[++i]);
                case "--user" -> user = args[++i];
                case "--password" -> password = args[++i];
                case "--camera" -> cameraId = args[++i];
                default -> picture = Path.of(args[i]);
            }
        }
        long started = System.nanoTime();
        // Loading the bridge prints a trace line of its own, without a line end.
        Class.forName("com.zq.OrvexCore.IOrvexCore");
        System.out.println();
        step("Log in as " + user + " at " + host + ":" + port);
        try (OrvexClient client = OrvexClient.builder().host(host).port(port).user(user)
                .password(password).connect()) {
            OrvexClient.UserInfo me = client.userInfo();
            say("user id %d, level %d, may operate devices: %s", me.id(), me.level(),
                    me.mayOperate());
            SiteTour tour = new SiteTour(client, new CameraId(cameraId));
            tour.tree();
            tour.live(picture);
            tour.playback();
            tour.ptz();
            tour.talk();
            tour.alarms();
            tour.wall();
            tour.door();
            step("Log out");
        }
        say("done in %.1f s", (System.nanoTime() - started) / 1e9);
        System.out.println();
        System.out.println("The saved picture is " + picture.toAbsolutePath());
    }

    private void tree() {
        step("Organisation tree");
        client.catalogue().load();
        DepartmentNode root = client.catalogue().tree();
        print(root, "  ");
        say("%d departments, %d devices, %d cameras", root.departments().count(),
                root.allDevices().count(), root.channels().count());
    }

    private static void print(DepartmentNode node, String indent) {
        System.out.println(indent + node.department().name() + " [" + node.department().code().value()
                + "]");
        for (DeviceNode device : node.devices()) {
            System.out.println(indent + "  - " + device.device().name() + " ("
                    + device.device().id().value() + "): " + device.channels().size()
                    + " camera(s)" + (device.device().status() == 1 ? "" : ", offline"));
        }
        for (DepartmentNode child : node.children()) {
            print(child, indent + "  ");
        }
    }

    private void live(Path picture) throws Exception {
        Channel channel = client.catalogue().channel(camera);
        step("Live video of " + channel.name() + " (" + camera.value() + ")");
        AtomicInteger frames = new AtomicInteger();
        AtomicLong bytes = new AtomicLong();
        AtomicReference<byte[]> kept = new AtomicReference<>();
        long begin = System.nanoTime();
        try (LiveStream live = client.media().openLive(camera, frame -> {
            if (!isPicture(frame)) {
                return;
            }
            frames.incrementAndGet();
            bytes.addAndGet(frame.size());
            kept.compareAndSet(null, copy(frame.data()));
        })) {
            for (int second = 1; second <= 3; second++) {
                Thread.sleep(1000);
                double elapsed = (System.nanoTime() - begin) / 1e9;
                say("%d s: %d frames, %.1f frames/s, %.0f kbit/s", second, frames.get(),
                        frames.get() / elapsed, bytes.get() * 8 / elapsed / 1000);
            }
        }
        byte[] jpeg = kept.get();
        if (jpeg == null) {
            throw new IllegalStateException("the live stream delivered no picture");
        }
        Files.write(picture, jpeg);
        say("stream closed; one frame (%d bytes, %s) saved as %s", jpeg.length, facts(jpeg),
                picture);
    }

    private void playback() throws Exception {
        step("Recordings of " + camera.value() + " on " + Instant.ofEpochSecond(RECORDING_DAY)
                .toString().substring(0, 10));
        List<Media.RecordFile> found = client.media().searchRecords(
                Media.RecordQuery.of(camera, RECORDING_DAY, RECORDING_DAY + 86400));
        say("%d recordings found", found.size());
        found.stream().limit(3).forEach(r -> say("  file %d: %s .. %s, type %d", r.fileIndex(),
                time(r.begin()), time(r.end()), r.recordType()));
        if (found.isEmpty()) {
            return;
        }
        Media.RecordFile file = found.get(0);
        AtomicReference<String> lastFacts = new AtomicReference<>("");
        AtomicInteger frames = new AtomicInteger();
        try (Playback play = client.media().playFile(camera, file, false, null, frame -> {
            if (isPicture(frame)) {
                frames.incrementAndGet();
                lastFacts.set(facts(copy(frame.data())));
            }
        })) {
            Thread.sleep(1000);
            say("playing file %d: %d frames, at %s", file.fileIndex(), frames.get(),
                    lastFacts.get());
            play.speed(Playback.Speed.FAST2);
            Thread.sleep(1000);
            say("at double speed: %d frames, at %s", frames.get(), lastFacts.get());
            long middle = file.begin() + (file.end() - file.begin()) / 2;
            play.seek(middle, file.end());
            Thread.sleep(700);
            say("after a seek to %s: at %s", time(middle), lastFacts.get());
        }
    }

    private void ptz() throws Exception {
        step("PTZ of " + camera.value());
        Ptz ptz = client.ptz(camera);
        say("before: %s", facts(grab()));
        ptz.move(Ptz.Direction.RIGHT, 5);
        Thread.sleep(1000);
        ptz.stop(Ptz.Direction.RIGHT);
        say("after moving right for 1 s: %s", facts(grab()));
        ptz.addPreset(9, "Tour stop");
        List<Ptz.Preset> presets = ptz.presets();
        say("presets now: %s", String.join(", ",
                presets.stream().map(p -> p.code() + " " + p.name()).toList()));
        ptz.gotoPreset(presets.get(0).code());
        say("back at preset %d (%s): %s", presets.get(0).code(), presets.get(0).name(),
                facts(grab()));
    }

    private void talk() throws Exception {
        step("Talk with " + camera.value());
        AtomicInteger heard = new AtomicInteger();
        try (Talk talk = client.media().talk(camera, Media.TalkOptions.DEFAULT, null,
                frame -> heard.incrementAndGet())) {
            short[] tone = new short[8000];
            for (int i = 0; i < tone.length; i++) {
                tone[i] = (short) (6000 * Math.sin(2 * Math.PI * 440 * i / 8000.0));
            }
            for (int block = 0; block < tone.length; block += 800) {
                short[] part = new short[800];
                System.arraycopy(tone, block, part, 0, part.length);
                talk.send(part);
                Thread.sleep(100);
            }
            say("sent one second of a 440 Hz tone; heard %d audio blocks from the device",
                    heard.get());
        }
    }

    private void alarms() throws Exception {
        step("Alarms");
        BlockingQueue<OrvexEvent.Alarm> received = new LinkedBlockingQueue<>();
        try (Events.Registration on = client.events().onAlarm(received::add)) {
            DepartmentNode root = client.catalogue().tree();
            client.alarms().enableByDepartment(List.of(
                    new Alarms.DepartmentSource(root.department().code(), 0, 0, 0)));
            say("alarms of every department enabled");
            client.alarms().raise(camera, ALARM_TYPE_CLIENT, ALARM_EVENT_OCCUR,
                    System.currentTimeMillis() / 1000, "Raised by the site tour");
            OrvexEvent.Alarm first = received.poll(10, TimeUnit.SECONDS);
            if (first == null) {
                say("no alarm arrived within 10 s");
                return;
            }
            say("alarm: \"%s\" from %s (type %d)", first.message(), first.camera(),
                    first.alarmType());
            OrvexEvent.Alarm next = received.poll(8, TimeUnit.SECONDS);
            if (next != null) {
                say("alarm: \"%s\" from %s (type %d)", next.message(), next.camera(),
                        next.alarmType());
            }
            client.alarms().disable();
        }
    }

    private void wall() {
        step("Video wall");
        List<Walls.Wall> walls = client.walls().walls();
        walls.forEach(w -> say("wall %d: %s", w.id(), w.name()));
        Walls.Wall wall = walls.get(0);
        List<Walls.Screen> screens = client.walls().screens(wall.id());
        Walls.Screen screen = screens.get(0);
        client.walls().show(wall.id(), screen.id(), 1, camera, 0, Media.StreamType.MAIN);
        say("%s now shows %s on %s (%d screens on the wall)", wall.name(), camera.value(),
                screen.name(), screens.size());
    }

    private void door() throws Exception {
        step("Door");
        BlockingQueue<OrvexEvent.DoorStatus> states = new LinkedBlockingQueue<>();
        try (Events.Registration on = client.events().onDoorStatus(states::add)) {
            CameraId door = new CameraId("door-01");
            client.doors().command(door, Doors.Command.OPEN);
            OrvexEvent.DoorStatus state = states.poll(10, TimeUnit.SECONDS);
            say("opened %s; the door reports %s", door.value(),
                    state == null ? "nothing" : DOOR_STATES[Math.floorMod(state.status(), 3)]);
        }
    }

    /** One picture of the camera, as it looks now. */
    private byte[] grab() throws Exception {
        BlockingQueue<byte[]> pictures = new LinkedBlockingQueue<>();
        try (LiveStream live = client.media().openLive(camera, frame -> {
            if (isPicture(frame)) {
                pictures.add(copy(frame.data()));
            }
        })) {
            byte[] jpeg = pictures.poll(5, TimeUnit.SECONDS);
            if (jpeg == null) {
                throw new IllegalStateException("no picture within 5 s");
            }
            return jpeg;
        }
    }

    private static boolean isPicture(MediaFrame frame) {
        ByteBuffer b = frame.data();
        return b.remaining() > 2 && (b.get(b.position()) & 0xff) == 0xff
                && (b.get(b.position() + 1) & 0xff) == 0xd8;
    }

    private static byte[] copy(ByteBuffer data) {
        byte[] out = new byte[data.remaining()];
        data.duplicate().get(out);
        return out;
    }

    /**
     * What the simulated platform writes into a frame's JPEG comment (time and camera position);
     * a real camera's frame has none.
     */
    private static String facts(byte[] jpeg) {
        for (int i = 2; i + 4 < jpeg.length; i++) {
            if ((jpeg[i] & 0xff) == 0xff && (jpeg[i + 1] & 0xff) == 0xfe) {
                int len = ((jpeg[i + 2] & 0xff) << 8) | (jpeg[i + 3] & 0xff);
                String text = new String(jpeg, i + 4, Math.min(len - 2, jpeg.length - i - 4),
                        StandardCharsets.US_ASCII);
                return summary(text);
            }
        }
        return "a JPEG picture";
    }

    private static String summary(String comment) {
        String timeMs = field(comment, "time_ms");
        String when = timeMs.isEmpty() ? "?" : time(Long.parseLong(timeMs) / 1000);
        return "time " + when + ", pan " + field(comment, "pan") + ", tilt "
                + field(comment, "tilt") + ", zoom " + field(comment, "zoom");
    }

    private static String field(String comment, String name) {
        for (String part : comment.split(" ")) {
            if (part.startsWith(name + "=")) {
                return part.substring(name.length() + 1);
            }
        }
        return "";
    }

    private static String time(long seconds) {
        return Instant.ofEpochSecond(seconds).toString().replace('T', ' ').replace("Z", "");
    }

    private static void step(String title) {
        System.out.println();
        System.out.println("== " + title);
    }

    private static void say(String format, Object... args) {
        System.out.println("   " + String.format(format, args));
    }

}
