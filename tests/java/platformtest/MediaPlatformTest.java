package platformtest;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertNotEquals;
import static org.junit.jupiter.api.Assertions.assertNotNull;
import static org.junit.jupiter.api.Assertions.assertTrue;
import static platformtest.Platform.TIMEOUT;
import static platformtest.Platform.fixed;

import com.zq.OrvexCore.Audio_Fun_Info_t;
import com.zq.OrvexCore.Get_RealStream_Info_t;
import com.zq.OrvexCore.Get_TalkStream_Info_t;
import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.MediaDataCallback;
import com.zq.OrvexCore.Return_Value_Info_t;
import com.zq.OrvexCore.Send_Audio_Data_Info_t;
import java.awt.image.BufferedImage;
import java.io.ByteArrayInputStream;
import java.io.IOException;
import java.nio.charset.StandardCharsets;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;
import java.util.concurrent.CountDownLatch;
import java.util.concurrent.TimeUnit;
import javax.imageio.ImageIO;
import org.junit.jupiter.api.AfterEach;
import org.junit.jupiter.api.BeforeEach;
import org.junit.jupiter.api.Tag;
import org.junit.jupiter.api.Test;
import platformtest.Platform.User;
import simctl.SimControl;

/**
 * Media of the simulated platform, end to end through the bridge, logged in to the built-in
 * site: a Java listener receives JPEG pictures of a camera on library threads and nothing more
 * once the close returned; a talk session sends the device's audio and takes Java's.
 *
 * <p>It runs with the other platform tests. It uses the test control library only to read what
 * the talk entry point received; loading that library selects scripted answers, so the platform
 * is switched back on at once and left on, and nothing is reset.
 */
@Tag("platform")
class MediaPlatformTest {
    static final String CAMERA = "nvr-north-01-cam01";

    User admin;
    int handle;

    /** Every frame of one media type and parameter a stream delivered, with its thread. */
    static final class Frames implements MediaDataCallback {
        final int mediaType;
        final int param;
        final List<byte[]> data = new ArrayList<>();
        final List<String> threads = new ArrayList<>();
        final List<String> nodes = new ArrayList<>();
        final CountDownLatch three = new CountDownLatch(3);

        Frames(int mediaType, int param) {
            this.mediaType = mediaType;
            this.param = param;
        }

        @Override
        public void invoke(int nPDLLHandle, int nSeq, int nMediaType, byte[] szNodeId,
                int nParamVal, byte[] szData, int nDataLen) {
            if (nMediaType != mediaType || nParamVal != param) {
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

    @BeforeEach
    void logIn() {
        SimControl.usePlatform(true);
        admin = User.admin();
        handle = admin.handle;
    }

    @AfterEach
    void logOut() {
        admin.close();
    }

    /** A request for the main stream's video of `camera`. */
    static Get_RealStream_Info_t liveVideo(String camera) {
        Get_RealStream_Info_t request = new Get_RealStream_Info_t();
        request.szCameraId = fixed(camera, 64);
        request.nStreamType = 1;
        request.nMediaType = 1;
        return request;
    }

    @Test
    void liveFramesArePicturesOfTheCameraUntilClosed() throws Exception {
        Frames frames = new Frames(1, 3); // video, JPEG
        Get_RealStream_Info_t request = liveVideo(CAMERA);
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

    /** The camera's pattern, away from the texts, the cross-hair and the seconds bar. */
    static int[] pattern(byte[] jpeg) throws IOException {
        return decode(jpeg).getRGB(16, 40, 120, 100, null, 0, 120);
    }

    /** The next JPEG frame the stream delivers after this call. */
    static byte[] nextFrame(Frames frames) throws InterruptedException {
        int seen = frames.count();
        long deadline = System.nanoTime() + TimeUnit.SECONDS.toNanos(5);
        while (frames.count() == seen) {
            assertTrue(System.nanoTime() < deadline, "a frame within 5 s");
            Thread.sleep(10);
        }
        synchronized (frames) {
            return frames.data.get(frames.data.size() - 1);
        }
    }

    @Test
    void framesChangeOverTimeAndFollowThePtz() throws Exception {
        String dome = "ipc-gate-01-cam01";
        Frames frames = new Frames(1, 3);
        Get_RealStream_Info_t request = liveVideo(dome);
        Return_Value_Info_t seq = new Return_Value_Info_t();
        assertEquals(0, IOrvexCore.ORVEX_GetRealStream(handle, seq, request, frames, TIMEOUT));
        try {
            byte[] before = nextFrame(frames);
            byte[] later = nextFrame(frames);
            assertFalse(Arrays.equals(before, later), "each frame shows its own time");
            assertArrayEquals(pattern(before), pattern(later), "a still camera keeps its view");

            assertEquals(0, PtzPlatformTest.sit(handle, dome, 200, 10, 2));
            nextFrame(frames);
            byte[] moved = nextFrame(frames);
            assertFalse(Arrays.equals(pattern(later), pattern(moved)), "the view follows the move");
            String facts = new String(moved, 6, 200, StandardCharsets.US_ASCII);
            assertTrue(facts.contains(" pan=200 tilt=10 zoom=2 "), facts);
        } finally {
            // The site is the JVM's: put the dome back where the built-in site has it.
            PtzPlatformTest.sit(handle, dome, 45, 0, 1);
            assertEquals(0, IOrvexCore.ORVEX_CloseRealStreamBySeq(handle, seq.nReturnValue, TIMEOUT));
        }
    }

    @Test
    void talkSendsTheDevicesSoundAndTakesJavas() throws Exception {
        Frames sound = new Frames(2, 2); // audio, G.711 A-law
        Get_TalkStream_Info_t request = new Get_TalkStream_Info_t();
        request.szCameraId = fixed(CAMERA, 64);
        request.nAudioType = 2;
        request.nTalkType = 2;
        request.nBitsType = 16;
        request.nSampleType = 8000;
        Return_Value_Info_t seq = new Return_Value_Info_t();
        assertEquals(0, IOrvexCore.ORVEX_GetTalkStream(handle, seq, request, sound, TIMEOUT));
        assertTrue(sound.three.await(5, TimeUnit.SECONDS), "three audio blocks within 5 s");
        byte[] block;
        synchronized (sound) {
            block = sound.data.get(0);
        }
        assertEquals(8 + 320, block.length);
        assertArrayEquals(new byte[] {0, 0, 1, (byte) 0xF0, 0x0E, 2, 0x40, 0x01},
                Arrays.copyOf(block, 8));

        Audio_Fun_Info_t entry = new Audio_Fun_Info_t();
        assertEquals(0, IOrvexCore.ORVEX_GetSdkAudioCallbackInfo(handle, entry));
        byte[] pcm = sine(320, 500, 10000);
        long[] before = SimControl.talkReceived();
        assertEquals(0, IOrvexCore.ORVEX_SendAudioData(handle,
                new Send_Audio_Data_Info_t(entry, pcm)));
        long[] after = SimControl.talkReceived();
        assertEquals(before[0] + 1, after[0], "accepted");
        assertEquals(before[2] + 320, after[2], "samples");
        assertTrue(Math.abs(after[3] - 10000) < 500, "peak " + after[3]);

        assertEquals(0, IOrvexCore.ORVEX_CloseTalkStreamBySeq(handle, seq.nReturnValue, TIMEOUT));
        assertEquals(0, IOrvexCore.ORVEX_SendAudioData(handle,
                new Send_Audio_Data_Info_t(entry, pcm)));
        assertEquals(after[1] + 1, SimControl.talkReceived()[1], "rejected without a session");
    }

    /** Little-endian 16-bit samples of a sine at 8 kHz. */
    static byte[] sine(int samples, int hz, int amplitude) {
        byte[] out = new byte[samples * 2];
        for (int i = 0; i < samples; i++) {
            int v = (int) Math.round(amplitude * Math.sin(2 * Math.PI * hz * i / 8000.0));
            out[2 * i] = (byte) v;
            out[2 * i + 1] = (byte) (v >> 8);
        }
        return out;
    }

    static BufferedImage decode(byte[] jpeg) throws IOException {
        return ImageIO.read(new ByteArrayInputStream(jpeg));
    }
}
