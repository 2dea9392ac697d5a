package platformtest;

import static org.junit.jupiter.api.Assertions.assertEquals;

import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.Login_Info_t;
import com.zq.OrvexCore.OrvexText;
import com.zq.OrvexCore.Return_Value_Info_t;
import java.nio.charset.StandardCharsets;

/**
 * A client instance logged in to the simulated platform's built-in site as one of its users, as
 * an application does it; closing it logs out and destroys the instance.
 */
final class PlatformSession implements AutoCloseable {
    static final int TIMEOUT = 3000;

    final int handle;

    PlatformSession(String user, String password) {
        Return_Value_Info_t h = new Return_Value_Info_t();
        assertEquals(0, IOrvexCore.ORVEX_Create(1, h));
        handle = h.nReturnValue;
        Login_Info_t login = new Login_Info_t();
        login.szIp = text("127.0.0.1", 48);
        login.nPort = 9000;
        login.szUsername = text(user, 64);
        login.szPassword = text(password, 64);
        assertEquals(0, IOrvexCore.ORVEX_Login(handle, login, TIMEOUT), "login as " + user);
    }

    /** The built-in site's users: may operate devices (admin is also level 1), may only watch. */
    static PlatformSession admin() {
        return new PlatformSession("admin", "admin123");
    }

    static PlatformSession operator() {
        return new PlatformSession("operator", "operator123");
    }

    static PlatformSession viewer() {
        return new PlatformSession("viewer", "viewer123");
    }

    /** A text in a zero-filled array of a C member's size. */
    static byte[] text(String s, int size) {
        return OrvexText.toFixed(s, size, StandardCharsets.UTF_8);
    }

    static String text(byte[] b) {
        return OrvexText.fromFixed(b, StandardCharsets.UTF_8);
    }

    @Override
    public void close() {
        IOrvexCore.ORVEX_Logout(handle, TIMEOUT);
        IOrvexCore.ORVEX_Destroy(handle);
    }
}
