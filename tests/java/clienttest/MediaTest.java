package clienttest;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertNotNull;
import static org.junit.jupiter.api.Assertions.assertThrows;

import bridgetest.CRecord;
import com.zq.OrvexCore.client.CameraId;
import com.zq.OrvexCore.client.LiveStream;
import com.zq.OrvexCore.client.Media;
import com.zq.OrvexCore.client.MediaFrame;
import com.zq.OrvexCore.client.OrvexClient;
import com.zq.OrvexCore.client.OrvexException;
import com.zq.OrvexCore.client.Playback;
import com.zq.OrvexCore.client.Talk;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;
import java.util.concurrent.BlockingQueue;
import java.util.concurrent.ExecutorService;
import java.util.concurrent.LinkedBlockingQueue;
import java.util.concurrent.TimeUnit;
import java.util.function.Consumer;
import org.junit.jupiter.api.Test;
import simctl.RecordedCall;
import simctl.SimControl;
import simctl.Write;

/** Live streams, record search, playback and talk as closeable objects delivering frames. */
class MediaTest {
    static final CameraId CAM = CameraId.of("cam-1");

    record Seen(MediaFrame frame, String thread) {}

    static void fireFrame(int seq, byte[] data) {
        SimControl.fire("MediaDataCallback", Sim.HANDLE, seq,
                new Object[] {Sim.HANDLE, seq, 1, Sim.utf8("cam-1"), 5, data, data.length});
    }

    static byte[] bytes(MediaFrame f) {
        byte[] b = new byte[f.size()];
        f.data().duplicate().get(b);
        return b;
    }

    @Test
    void liveFramesRunOnTheGivenExecutorAndStopWithTheStream() throws Exception {
        ExecutorService frames = Sim.named("test-frames");
        BlockingQueue<Seen> seen = new LinkedBlockingQueue<>();
        try (OrvexClient c = Sim.connect()) {
            SimControl.script("ORVEX_GetRealStream", 0, Write.le32("pnRealSeq", 0, 77));
            LiveStream live = c.media().openLive(CAM, Media.LiveOptions.DEFAULT, frames,
                    f -> seen.add(new Seen(f, Thread.currentThread().getName())));
            assertEquals(77, live.sequence());
            byte[] request = SimControl.last("ORVEX_GetRealStream").arg("pInfo").bytes;
            assertEquals("cam-1", Sim.textAt(request, 0));
            assertEquals(List.of(0, 1, 3, 1), List.of(Sim.i32At(request, 64), Sim.i32At(request, 68),
                    Sim.i32At(request, 72), Sim.i32At(request, 76)));

            byte[] data = {(byte) 0xFF, (byte) 0xD8, 0, 7};
            fireFrame(77, data);
            Seen s = seen.poll(5, TimeUnit.SECONDS);
            assertNotNull(s, "no frame arrived");
            assertEquals("test-frames", s.thread());
            assertEquals(77, s.frame().sequence());
            assertEquals(1, s.frame().mediaType());
            assertEquals("cam-1", s.frame().nodeId());
            assertEquals(5, s.frame().param());
            assertArrayEquals(data, bytes(s.frame()));
            assertThrows(java.nio.ReadOnlyBufferException.class, () -> s.frame().data().put(0, (byte) 1));

            live.close();
            assertFalse(live.isOpen());
            assertEquals(77, SimControl.last("ORVEX_CloseRealStreamBySeq").arg("nRealSeq").i32());
            fireFrame(77, data);
            frames.submit(() -> { }).get(5, TimeUnit.SECONDS);
            assertEquals(0, seen.size(), "a frame arrived after close");
            live.close();
            assertEquals(1, SimControl.count("ORVEX_CloseRealStreamBySeq"));
        } finally {
            frames.shutdownNow();
        }
    }

    @Test
    void framesQueuedWhenTheStreamClosesAreDropped() {
        Sim.Held held = new Sim.Held();
        List<MediaFrame> got = new ArrayList<>();
        try (OrvexClient c = Sim.connect()) {
            SimControl.script("ORVEX_GetRealStream", 0, Write.le32("pnRealSeq", 0, 8));
            LiveStream live = c.media().openLive(CAM, Media.LiveOptions.DEFAULT, held, got::add);
            fireFrame(8, new byte[] {1});
            fireFrame(8, new byte[] {2});
            live.close();
            assertEquals(2, held.runAll());
            assertEquals(List.of(), got);
        }
    }

    @Test
    void aRefusedStreamThrowsAndIsNotClosedLater() {
        try (OrvexClient c = Sim.connect()) {
            SimControl.script("ORVEX_GetRealStream", 1014, Write.le32("pnRealSeq", 0, 3));
            OrvexException e = assertThrows(OrvexException.class, () -> c.media().openLive(CAM, f -> { }));
            assertEquals(1014, e.code());
        }
        assertEquals(0, SimControl.count("ORVEX_CloseRealStreamBySeq"));
    }

    @Test
    void closingTheClientClosesWhatIsStillOpenBeforeLoggingOut() {
        OrvexClient c = Sim.connect();
        SimControl.script("ORVEX_GetRealStream", 0, Write.le32("pnRealSeq", 0, 5));
        SimControl.script("ORVEX_GetRecordStreamByTime", 0, Write.le32("pnPlaybackSeq", 0, 6));
        LiveStream live = c.media().openLive(CAM, f -> { });
        Playback pb = c.media().playTime(Media.RecordQuery.of(CAM, 100, 200), null, f -> { });

        c.close();

        assertFalse(live.isOpen());
        assertFalse(pb.isOpen());
        List<String> order = Arrays.stream(SimControl.calls()).map(call -> call.fn)
                .filter(fn -> fn.startsWith("ORVEX_Close") || fn.equals("ORVEX_Logout")).toList();
        assertEquals("ORVEX_Logout", order.get(order.size() - 1));
        assertEquals(5, SimControl.last("ORVEX_CloseRealStreamBySeq").arg("nRealSeq").i32());
        assertEquals(6, SimControl.last("ORVEX_CloseRecordStreamBySeq").arg("nPlaybackSeq").i32());
    }

    static CRecord record(int index, long begin, long end) {
        return new CRecord(40).i32(0, index).i32(4, 3).i32(8, 6).i64(16, begin).i64(24, end).i64(32, 4096);
    }

    @Test
    void recordsAreSearchedThenPlayedAndControlled() {
        try (OrvexClient c = Sim.connect()) {
            SimControl.script("ORVEX_QueryRecord", 0, Write.le32("pnRecordCount", 0, 3));
            // Three were counted, two delivered: the third comes back zeroed and is left out.
            SimControl.script("ORVEX_GetRecordInfo", 0, Write.bytes("pInfo.pSingleRecord", 0,
                    Sim.concat(record(4, 1000, 2000), record(5, 2000, 3000))));
            List<Media.RecordFile> files = c.media().searchRecords(Media.RecordQuery.of(CAM, 900, 3100));
            assertEquals(List.of(new Media.RecordFile(4, 3, 6, 1000, 2000, 4096),
                    new Media.RecordFile(5, 3, 6, 2000, 3000, 4096)), files);
            assertEquals(3, Sim.i32At(SimControl.last("ORVEX_GetRecordInfo").arg("pInfo").bytes, 68));

            SimControl.script("ORVEX_GetRecordStreamByFile", 0, Write.le32("pnPlaybackSeq", 0, 31));
            try (Playback pb = c.media().playFile(CAM, files.get(1), false, null, f -> { })) {
                byte[] req = SimControl.last("ORVEX_GetRecordStreamByFile").arg("pInfo").bytes;
                assertEquals(5, Sim.i32At(req, 72));
                pb.pause();
                pb.resume();
                pb.speed(Playback.Speed.FAST4);
                pb.seek(2500, 3000);
                assertEquals(31, SimControl.last("ORVEX_PauseRecordStreamBySeq").arg("nPlaybackSeq").i32());
                assertEquals(31, SimControl.last("ORVEX_ResumeRecordStreamBySeq").arg("nPlaybackSeq").i32());
                assertEquals(32, SimControl.last("ORVEX_SetRecordStreamSpeed").arg("nSpeed").i32());
                assertEquals(2500, SimControl.last("ORVEX_SeekRecordStreamBySeq").arg("uSeekBegin").value);
            }
            assertEquals(31, SimControl.last("ORVEX_CloseRecordStreamBySeq").arg("nPlaybackSeq").i32());

            SimControl.script("ORVEX_GetRecordStreamByStreamType", 0, Write.le32("pnPlaybackSeq", 0, 32));
            Media.RecordQuery sub = new Media.RecordQuery(CAM, 1, 2, 3, 0, Media.StreamType.SUB, true);
            try (Playback pb = c.media().playTime(sub, null, f -> { })) {
                assertEquals(32, pb.sequence());
                assertEquals(2, SimControl.last("ORVEX_GetRecordStreamByStreamType").arg("nStreamType").i32());
            }
        }
    }

    @Test
    void talkSendsPcmAsAlawFramesInBlocksTheEncoderTakes() {
        try (OrvexClient c = Sim.connect()) {
            SimControl.script("ORVEX_GetTalkStream", 0, Write.le32("pnTalkSeq", 0, 9));
            Consumer<MediaFrame> ignore = f -> { };
            try (Talk talk = c.media().talk(CAM, Media.TalkOptions.DEFAULT, null, ignore)) {
                short[] pcm = new short[65_528 + 3];
                talk.send(pcm);

                List<RecordedCall> frames = SimControl.callsOf("AudioEntryPoint");
                assertEquals(2, frames.size());
                byte[] first = frames.get(0).arg("pFrame").bytes;
                assertEquals(8 + 65_528, first.length);
                assertArrayEquals(new byte[] {0, 0, 1, (byte) 0xF0, 0x0E, 2, (byte) 0xF8, (byte) 0xFF},
                        Arrays.copyOf(first, 8));
                assertEquals((byte) 0xD5, first[8], "silence in A-law");
                assertEquals(8 + 3, frames.get(1).arg("pFrame").bytes.length);
                byte[] talkRequest = SimControl.last("ORVEX_GetTalkStream").arg("pInfo").bytes;
                assertEquals(List.of(2, 2, 16, 8000, 1), List.of(Sim.i32At(talkRequest, 64),
                        Sim.i32At(talkRequest, 68), Sim.i32At(talkRequest, 72), Sim.i32At(talkRequest, 76),
                        Sim.i32At(talkRequest, 80)));
            }
            assertEquals(9, SimControl.last("ORVEX_CloseTalkStreamBySeq").arg("nTalkSeq").i32());
        }
    }

    @Test
    void aTalkWithoutAudioEntryPointIsClosedAgain() {
        try (OrvexClient c = Sim.connect()) {
            SimControl.script("ORVEX_GetTalkStream", 0, Write.le32("pnTalkSeq", 0, 4));
            SimControl.script("ORVEX_GetSdkAudioCallbackInfo", 1016);
            OrvexException e = assertThrows(OrvexException.class,
                    () -> c.media().talk(CAM, Media.TalkOptions.DEFAULT, null, f -> { }));
            assertEquals(1016, e.code());
            assertEquals(4, SimControl.last("ORVEX_CloseTalkStreamBySeq").arg("nTalkSeq").i32());
        }
    }
}
