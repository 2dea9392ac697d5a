package platformtest;

import static org.junit.jupiter.api.Assertions.assertEquals;

import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.Login_Info_t;
import com.zq.OrvexCore.OrvexText;
import com.zq.OrvexCore.ORVEXStatusCallback;
import com.zq.OrvexCore.Return_Value_Info_t;
import java.nio.charset.StandardCharsets;
import java.util.ArrayList;
import java.util.List;
import java.util.concurrent.BlockingQueue;
import java.util.concurrent.LinkedBlockingQueue;
import java.util.concurrent.TimeUnit;

/**
 * What the platform tests share: sessions on the simulated platform's built-in site, as a Java
 * user opens them (by handle, or as a {@link User} closed by try-with-resources), and texts to and
 * from fixed byte arrays.
 */
final class Platform {
    /** JUnit tag of the tests that need the simulated platform (their own JVM, no simctl). */
    static final String TAG = "platform";
    static final int SDK_SERVER = 1;
    static final int TIMEOUT = 3000;
    static final String ADMIN = "admin";
    static final String ADMIN_PASSWORD = "admin123";

    static final int UNKNOWN_HANDLE = 1001;
    static final int NOT_LOGGED_IN = 1003;
    static final int LOGIN_FAIL = 1004;
    static final int ALREADY_LOGGED_IN = 1005;
    static final int TREE_NOT_LOADED = 1008;
    static final int INVALID_PARAM = 1009;
    static final int GROUP_NOT_FOUND = 1010;
    static final int DEVICE_NOT_FOUND = 1011;
    static final int CHANNEL_NOT_FOUND = 1012;
    static final int SCENARIO_INVALID = 1019;

    /** Connection states the status listener receives. */
    static final int CONNECTED = 1;
    static final int LOGIN_FAILED = 2;
    static final int DISCONNECTED = 3;

    private Platform() {}

    /** A text in a zero-filled array of a C member's size. */
    static byte[] fixed(String s, int size) {
        return OrvexText.toFixed(s, size, StandardCharsets.UTF_8);
    }

    /** A text argument: its bytes, without a terminator. */
    static byte[] text(String s) {
        return s.getBytes(StandardCharsets.UTF_8);
    }

    /** A fixed member or buffer as a text, up to its first zero byte. */
    static String string(byte[] b) {
        return OrvexText.fromFixed(b, StandardCharsets.UTF_8);
    }

    /** The next event a listener queued, failing after five seconds. */
    static <T> T next(BlockingQueue<T> events) throws InterruptedException {
        T e = events.poll(5, TimeUnit.SECONDS);
        if (e == null) {
            throw new AssertionError("no event within five seconds");
        }
        return e;
    }

    static int create() {
        Return_Value_Info_t holder = new Return_Value_Info_t();
        assertEquals(0, IOrvexCore.ORVEX_Create(SDK_SERVER, holder));
        return holder.nReturnValue;
    }

    static Login_Info_t loginInfo(String user, String password) {
        Login_Info_t info = new Login_Info_t();
        info.szIp = fixed("127.0.0.1", 48);
        info.nPort = 9000;
        info.szUsername = fixed(user, 64);
        info.szPassword = fixed(password, 64);
        info.nProtocol = 2;
        return info;
    }

    static int login(int handle, String user, String password) {
        return IOrvexCore.ORVEX_Login(handle, loginInfo(user, password), TIMEOUT);
    }

    /** A created instance logged in as `user`. */
    static int session(String user, String password) {
        int h = create();
        assertEquals(0, login(h, user, password), "login as " + user);
        return h;
    }

    /** A created instance logged in as the administrator. */
    static int session() {
        return session(ADMIN, ADMIN_PASSWORD);
    }

    /** A session with the organisation tree loaded. */
    static int sessionWithTree() {
        int h = session();
        assertEquals(0, IOrvexCore.ORVEX_LoadDGroupInfo(h, new Return_Value_Info_t(), TIMEOUT));
        return h;
    }

    /** Logs out and destroys the instance, checking that it was destroyed. */
    static void end(int handle) {
        IOrvexCore.ORVEX_Logout(handle, TIMEOUT);
        assertEquals(0, IOrvexCore.ORVEX_Destroy(handle));
    }

    /**
     * A client instance logged in as one of the built-in site's users, as an application does it;
     * closing it logs out and destroys the instance.
     */
    static final class User implements AutoCloseable {
        final int handle;

        private User(int handle) {
            this.handle = handle;
        }

        static User login(String name, String password) {
            return new User(session(name, password));
        }

        /** The built-in site's users: may operate devices (admin is also level 1), may watch. */
        static User admin() {
            return login(ADMIN, ADMIN_PASSWORD);
        }

        static User operator() {
            return login("operator", "operator123");
        }

        static User viewer() {
            return login("viewer", "viewer123");
        }

        /** Sends a CMS command and returns the answer text. */
        String cms(String json) {
            byte[] answer = new byte[4096];
            IOrvexCore.ORVEX_SendCammandToCMSByJson(handle, text(json), answer, 5000);
            return string(answer);
        }

        @Override
        public void close() {
            IOrvexCore.ORVEX_Logout(handle, TIMEOUT);
            IOrvexCore.ORVEX_Destroy(handle);
        }
    }

    /** A status listener that keeps each event with the name of the thread it arrived on. */
    static final class StatusEvents implements ORVEXStatusCallback {
        record Event(int handle, int status, Thread thread) {}

        private final LinkedBlockingQueue<Event> events = new LinkedBlockingQueue<>();

        @Override
        public void invoke(int nPDLLHandle, int nStatus) {
            events.add(new Event(nPDLLHandle, nStatus, Thread.currentThread()));
        }

        Event next() throws InterruptedException {
            return Platform.next(events);
        }

        List<Event> pending() {
            List<Event> out = new ArrayList<>();
            events.drainTo(out);
            return out;
        }
    }
}
