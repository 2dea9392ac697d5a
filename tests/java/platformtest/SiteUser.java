package platformtest;

import static org.junit.jupiter.api.Assertions.assertEquals;

import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.Login_Info_t;
import com.zq.OrvexCore.OrvexText;
import com.zq.OrvexCore.Return_Value_Info_t;
import java.nio.charset.StandardCharsets;
import java.util.concurrent.BlockingQueue;
import java.util.concurrent.TimeUnit;

/** A client instance logged in as a user of the built-in site, as an application would do it. */
final class SiteUser implements AutoCloseable {
    final int handle;

    private SiteUser(int handle) {
        this.handle = handle;
    }

    static SiteUser login(String name, String password) {
        Return_Value_Info_t created = new Return_Value_Info_t();
        assertEquals(0, IOrvexCore.ORVEX_Create(1, created));
        Login_Info_t login = new Login_Info_t();
        OrvexText.copyInto("127.0.0.1", login.szIp, StandardCharsets.US_ASCII);
        login.nPort = 9000;
        OrvexText.copyInto(name, login.szUsername, StandardCharsets.UTF_8);
        OrvexText.copyInto(password, login.szPassword, StandardCharsets.UTF_8);
        login.nProtocol = 2;
        assertEquals(0, IOrvexCore.ORVEX_Login(created.nReturnValue, login, 5000), name);
        return new SiteUser(created.nReturnValue);
    }

    @Override
    public void close() {
        IOrvexCore.ORVEX_Logout(handle, 5000);
        IOrvexCore.ORVEX_Destroy(handle);
    }

    static byte[] ascii(String s) {
        return s.getBytes(StandardCharsets.US_ASCII);
    }

    /** A text into a fixed member, zero-filled. */
    static byte[] fixed(String s, int size) {
        return OrvexText.toFixed(s, size, StandardCharsets.UTF_8);
    }

    static String text(byte[] b) {
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

    /** Sends a CMS command and returns the answer text. */
    String cms(String json) {
        byte[] answer = new byte[4096];
        IOrvexCore.ORVEX_SendCammandToCMSByJson(handle, ascii(json), answer, 5000);
        return text(answer);
    }
}
