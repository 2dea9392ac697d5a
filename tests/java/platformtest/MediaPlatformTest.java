package platformtest;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotEquals;
import static org.junit.jupiter.api.Assertions.assertNotNull;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.zq.OrvexCore.Get_RealStream_Info_t;
import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.Login_Info_t;
import com.zq.OrvexCore.MediaDataCallback;
import com.zq.OrvexCore.Return_Value_Info_t;
import java.awt.image.BufferedImage;
import java.io.ByteArrayInputStream;
import java.io.IOException;
import java.nio.charset.StandardCharsets;
import java.util.ArrayList;
import java.util.List;
import java.util.concurrent.CountDownLatch;
import java.util.concurrent.TimeUnit;
import javax.imageio.ImageIO;
import org.junit.jupiter.api.AfterEach;
import org.junit.jupiter.api.BeforeEach;
import org.junit.jupiter.api.Test;
import simctl.SimControl;

/**
 * A live stream of the simulated platform, end to end through the bridge: logged in to the
 * built-in site, a Java listener receives JPEG pictures of the camera on library threads, and
 * nothing more once the close returned.
 */
class MediaPlatformTest {
    static final String CAMERA = "nvr-north-01-cam01";
    static final int TIMEOUT = 3000;

    int handle;

    /** Every frame a stream delivered, with the thread it came on. */
    static final class Frames implements MediaDataCallback {
        final List<byte[]> data = new ArrayList<>();
        final List<String> threads = new ArrayList<>();
        final List<String> nodes = new ArrayList<>();
        final CountDownLatch three = new CountDownLatch(3);

        @Override
        public void invoke(int nPDLLHandle, int nSeq, int nMediaType, byte[] szNodeId,
                int nParamVal, byte[] szData, int nDataLen) {
            if (nMediaType != 1 || nParamVal != 3) {
                return;
            }
            synchronized (this) {
                data.add(szData);
                threads.add(Thread.currentThread().getName());
                nodes.add(new String(szNodeId, StandardCharsets.US_ASCII));
            }
            three.countDown();
        }

        synchronized int count() {
            return data.size();
        }
    }

    static byte[] fixed(String text, int size) {
        byte[] out = new byte[size];
        byte[] b = text.getBytes(StandardCharsets.US_ASCII);
        System.arraycopy(b, 0, out, 0, b.length);
        return out;
    }

    @BeforeEach
    void logIn() {
        SimControl.reset();
        SimControl.usePlatform(true);
        Return_Value_Info_t h = new Return_Value_Info_t();
        assertEquals(0, IOrvexCore.ORVEX_Create(1, h));
        handle = h.nReturnValue;
        Login_Info_t login = new Login_Info_t();
        login.szIp = fixed("127.0.0.1", 48);
        login.nPort = 9000;
        login.szUsername = fixed("admin", 64);
        login.szPassword = fixed("admin123", 64);
        assertEquals(0, IOrvexCore.ORVEX_Login(handle, login, TIMEOUT));
    }

    @AfterEach
    void logOut() {
        IOrvexCore.ORVEX_Logout(handle, TIMEOUT);
        IOrvexCore.ORVEX_Destroy(handle);
        SimControl.usePlatform(false);
        SimControl.reset();
    }

    @Test
    void liveFramesArePicturesOfTheCameraUntilClosed() throws Exception {
        Frames frames = new Frames();
        Get_RealStream_Info_t request = new Get_RealStream_Info_t();
        request.szCameraId = fixed(CAMERA, 64);
        request.nStreamType = 1;
        request.nMediaType = 1;
        Return_Value_Info_t seq = new Return_Value_Info_t();
        seq.nReturnValue = -7;

        assertEquals(0, IOrvexCore.ORVEX_GetRealStream(handle, seq, request, frames, TIMEOUT));
        assertNotEquals(-7, seq.nReturnValue);
        assertTrue(frames.three.await(5, TimeUnit.SECONDS), "three frames within 5 s");

        byte[] first;
        synchronized (frames) {
            first = frames.data.get(0);
            assertEquals(CAMERA, frames.nodes.get(0));
            assertNotEquals(Thread.currentThread().getName(), frames.threads.get(0));
        }
        assertArrayEquals(new byte[] {(byte) 0xFF, (byte) 0xD8}, new byte[] {first[0], first[1]});
        BufferedImage picture = decode(first);
        assertNotNull(picture, "the frame is a JPEG that ImageIO can read");
        assertEquals(352, picture.getWidth());
        assertEquals(288, picture.getHeight());
        String comment = new String(first, 6, 9, StandardCharsets.US_ASCII);
        assertEquals("ORVEXSIM1", comment);

        assertEquals(0, IOrvexCore.ORVEX_CloseRealStreamBySeq(handle, seq.nReturnValue, TIMEOUT));
        int atClose = frames.count();
        Thread.sleep(400);
        assertEquals(atClose, frames.count(), "no frame after the close returned");
        assertEquals(1013,
                IOrvexCore.ORVEX_CloseRealStreamBySeq(handle, seq.nReturnValue, TIMEOUT));
    }

    static BufferedImage decode(byte[] jpeg) throws IOException {
        return ImageIO.read(new ByteArrayInputStream(jpeg));
    }
}
