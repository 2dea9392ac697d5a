package clientplatformtest;

import static org.junit.jupiter.api.Assertions.assertNotNull;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.zq.OrvexCore.client.CameraId;
import com.zq.OrvexCore.client.OrvexClient;
import java.nio.ByteBuffer;
import java.nio.charset.StandardCharsets;
import java.util.concurrent.BlockingQueue;
import java.util.concurrent.TimeUnit;

/** The simulated platform's built-in site as the API's tests reach it. */
final class Site {
    /** The dome camera at the gate. */
    static final CameraId DOME = new CameraId("ipc-gate-01-cam01");
    /** The day the site holds recordings for (2026-01-01 UTC). */
    static final long DAY = 1767225600L;

    private Site() {}

    static OrvexClient connect(String user, String password) {
        return OrvexClient.builder().host("127.0.0.1").port(9000).user(user).password(password)
                .connect();
    }

    static OrvexClient admin() {
        return connect("admin", "admin123");
    }

    static OrvexClient operator() {
        return connect("operator", "operator123");
    }

    static OrvexClient viewer() {
        return connect("viewer", "viewer123");
    }

    /** The next element of a queue, failing after 10 s. */
    static <T> T next(BlockingQueue<T> queue) throws InterruptedException {
        T e = queue.poll(10, TimeUnit.SECONDS);
        assertNotNull(e, "nothing arrived within 10 s");
        return e;
    }

    /** A JPEG picture's bytes, or null for any other frame. */
    static byte[] picture(ByteBuffer b) {
        if (b.remaining() < 2 || (b.get(b.position()) & 0xff) != 0xff
                || (b.get(b.position() + 1) & 0xff) != 0xd8) {
            return null;
        }
        byte[] out = new byte[b.remaining()];
        b.duplicate().get(out);
        return out;
    }

    /** The time a frame of the simulated platform shows (its JPEG comment's time_ms). */
    static long timeMs(byte[] jpeg) {
        String text = new String(jpeg, 0, Math.min(jpeg.length, 512), StandardCharsets.US_ASCII);
        int at = text.indexOf("time_ms=");
        assertTrue(at > 0, "a frame without its time");
        return Long.parseLong(text.substring(at + 8, text.indexOf(' ', at)));
    }
}
