package bridgetest;

import static bridgetest.MediaNativesTest.HANDLE;
import static bridgetest.MediaNativesTest.TIMEOUT;
import static bridgetest.MediaNativesTest.holder;
import static bridgetest.MediaNativesTest.lastResult;
import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertNotEquals;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.zq.OrvexCore.Audio_Fun_Info_t;
import com.zq.OrvexCore.Get_TalkStream_Info_t;
import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.Return_Value_Info_t;
import com.zq.OrvexCore.Send_Audio_Data_Info_t;
import java.nio.ByteBuffer;
import java.nio.ByteOrder;
import java.nio.charset.StandardCharsets;
import java.util.Arrays;
import java.util.List;
import java.util.Random;
import java.util.function.Consumer;
import java.util.function.IntSupplier;
import java.util.stream.Stream;
import org.junit.jupiter.api.BeforeEach;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;
import simctl.RecordedArg;
import simctl.RecordedCall;
import simctl.SimControl;
import simctl.Write;

/** Talk sessions, the audio send path and broadcasts, as the client library sees them. */
class TalkNativesTest {
    static final byte[] JSON =
            "{\"cameras\":[\"c-001\",\"c-002\"],\"volume\":80}".getBytes(StandardCharsets.US_ASCII);

    @BeforeEach
    void resetStandIn() {
        SimControl.reset();
    }

    // ---- talk sessions -----------------------------------------------------------------------

    static Get_TalkStream_Info_t talkRequest() {
        Get_TalkStream_Info_t r = new Get_TalkStream_Info_t();
        System.arraycopy(CRecord.ascii("talk-01"), 0, r.szCameraId, 0, 7);
        r.nAudioType = 2;
        r.nTalkType = 1;
        r.nBitsType = 16;
        r.nSampleType = 8000;
        r.nTransType = 1;
        return r;
    }

    static int openTalk(Return_Value_Info_t h, Get_TalkStream_Info_t r, Object listener) {
        return IOrvexCore.ORVEX_GetTalkStream(HANDLE, h, r, listener, TIMEOUT);
    }

    @Test
    void talkRequestArrivesAsRawBytesAndDeviceAudioReachesTheListener() {
        SimControl.script("ORVEX_GetTalkStream", 0, Write.le32("pnTalkSeq", 0, 9));
        Recorder recorder = new Recorder();
        Return_Value_Info_t h = holder(-5);

        assertEquals(0, openTalk(h, talkRequest(), recorder.listener("MediaDataCallback")));

        assertEquals(9, h.nReturnValue);
        RecordedCall call = SimControl.last("ORVEX_GetTalkStream");
        byte[] expected = new CRecord(84).text(0, "talk-01").i32(64, 2).i32(68, 1).i32(72, 16)
                .i32(76, 8000).i32(80, 1).bytes();
        assertArrayEquals(expected, call.arg("pInfo").bytes);
        assertEquals(TIMEOUT, call.arg("nTimeout").value);

        byte[] audio = {1, 2, 3, 4, 5};
        SimControl.fire("MediaDataCallback", HANDLE, 9,
                new Object[] {HANDLE, 9, 2, CRecord.ascii("talk-01"), 0, audio, audio.length});
        List<Recorder.Event> events = recorder.events();
        assertEquals(1, events.size());
        MediaNativesTest.assertFrame(events.get(0), 9, 2, "talk-01", 0, audio);
    }

    @Test
    void refusedTalkOpensLeaveTheHolderAsTheCallerSetIt() {
        Return_Value_Info_t h = holder(-5);
        assertEquals(1009, openTalk(h, talkRequest(), null));
        SimControl.script("ORVEX_GetTalkStream", 40, Write.le32("pnTalkSeq", 0, 9));
        assertEquals(40, openTalk(h, talkRequest(), new Recorder().listener("MediaDataCallback")));

        assertEquals(-5, h.nReturnValue);
        assertEquals(1, SimControl.count("ORVEX_GetTalkStream"));
    }

    @Test
    void talkReadsItsRequestBeforeTheListenerCheck() {
        Get_TalkStream_Info_t r = talkRequest();
        r.szCameraId = new byte[65];

        assertThrows(IllegalArgumentException.class, () -> openTalk(holder(0), r, null));
        assertThrows(IllegalArgumentException.class, () -> openTalk(holder(0), talkRequest(), "x"));
        assertEquals(0, SimControl.count("ORVEX_GetTalkStream"));
        assertEquals(1009, lastResult());
    }

    @Test
    void talkClosesPassTheirArgumentsAndRefuseAnEmptyCamera() {
        SimControl.script("ORVEX_CloseTalkStreamBySeq", 17);
        assertEquals(17, IOrvexCore.ORVEX_CloseTalkStreamBySeq(HANDLE, 9, TIMEOUT));
        RecordedCall bySeq = SimControl.last("ORVEX_CloseTalkStreamBySeq");
        assertEquals(List.of(7L, 9L, 3000L), List.of(bySeq.arg("nHandle").value,
                bySeq.arg("nTalkSeq").value, bySeq.arg("nTimeout").value));

        MediaNativesTest.assertClosesByCamera("ORVEX_CloseTalkStreamByCameralId",
                id -> IOrvexCore.ORVEX_CloseTalkStreamByCameralId(HANDLE, id, TIMEOUT));
    }

    // ---- the audio entry point and the send path ---------------------------------------------

    static Audio_Fun_Info_t entryPoint() {
        Audio_Fun_Info_t fun = new Audio_Fun_Info_t();
        assertEquals(0, IOrvexCore.ORVEX_GetSdkAudioCallbackInfo(HANDLE, fun));
        return fun;
    }

    @Test
    void entryPointIsWrittenOnlyOnSuccess() {
        Audio_Fun_Info_t fun = entryPoint();
        assertNotEquals(0L, fun.pCallBackFun);
        assertNotEquals(0L, fun.pUserParam);
        assertEquals(HANDLE, SimControl.last("ORVEX_GetSdkAudioCallbackInfo").arg("nHandle").value);

        SimControl.script("ORVEX_GetSdkAudioCallbackInfo", 4);
        Audio_Fun_Info_t untouched = new Audio_Fun_Info_t();
        untouched.pCallBackFun = 5;
        untouched.pUserParam = 6;
        assertEquals(4, IOrvexCore.ORVEX_GetSdkAudioCallbackInfo(HANDLE, untouched));
        assertEquals(List.of(5L, 6L), List.of(untouched.pCallBackFun, untouched.pUserParam));
    }

    /** G.711 A-law from the segment definitions; the bridge's codec is table-driven. */
    static int refAlaw(int x) {
        int magnitude = Math.min(Math.abs(x) >> 3, 4095);
        int seg = 0;
        int step = magnitude >> 1;
        if (magnitude >= 32) {
            seg = 1;
            while (magnitude >= (32 << seg)) {
                seg++;
            }
            step = (magnitude - (16 << seg)) >> seg;
        }
        int sign = x < 0 ? 0x00 : 0x80;
        return (sign | seg << 4 | step) ^ 0x55;
    }

    /** Random little-endian PCM, without -32768 (whose code is a table artefact of its own). */
    static byte[] randomPcm(int bytes, long seed) {
        Random random = new Random(seed);
        ByteBuffer b = ByteBuffer.allocate(bytes).order(ByteOrder.LITTLE_ENDIAN);
        for (int i = 0; i + 1 < bytes; i += 2) {
            b.putShort(i, (short) (random.nextInt(65535) - 32767));
        }
        if (bytes % 2 == 1) {
            b.put(bytes - 1, (byte) 0x7E);
        }
        return b.array();
    }

    static Send_Audio_Data_Info_t block(Audio_Fun_Info_t fun, byte[] pcm, int audioType) {
        Send_Audio_Data_Info_t s = new Send_Audio_Data_Info_t(fun, pcm);
        s.nAudioType = audioType;
        s.nTalkBits = 8;
        s.nSampleRate = 48000;
        return s;
    }

    /** PCM length, declared audio type (always sent as A-law), expected frame length. */
    static Stream<Arguments> frames() {
        return Stream.of(Arguments.of(640, 2, 328), Arguments.of(641, 2, 328),
                Arguments.of(640, 4, 328), Arguments.of(2, 0, 9),
                Arguments.of(131056, 2, 65536), Arguments.of(131057, 1, 65536));
    }

    @ParameterizedTest(name = "{0} bytes, type {1}")
    @MethodSource("frames")
    void frameCarriesTheHeaderTheLittleEndianLengthAndTheCodecsCodes(
            int pcmBytes, int audioType, int frameLength) {
        Audio_Fun_Info_t fun = entryPoint();
        byte[] pcm = randomPcm(pcmBytes, pcmBytes * 31L + audioType);

        assertEquals(0, IOrvexCore.ORVEX_SendAudioData(HANDLE, block(fun, pcm, audioType)));

        RecordedCall call = SimControl.last("AudioEntryPoint");
        RecordedArg frame = call.arg("pFrame");
        assertEquals(frameLength, call.arg("nFrameLen").value);
        assertEquals(frameLength, frame.bytes.length);
        int payload = frameLength - 8;
        byte[] header = {0x00, 0x00, 0x01, (byte) 0xF0, 0x0E, 0x02, (byte) payload,
            (byte) (payload >> 8)};
        assertArrayEquals(header, frame.slice(0, 8));
        ByteBuffer samples = ByteBuffer.wrap(pcm).order(ByteOrder.LITTLE_ENDIAN);
        for (int k = 0; k < payload; k++) {
            assertEquals(refAlaw(samples.getShort(2 * k)), frame.u8(8 + k), "code " + k);
        }
        assertEquals(fun.pUserParam, call.arg("nUserParam").value);
    }

    /** Blocks that must not reach any entry point: name, what to change, result. */
    static Stream<Arguments> unsendable() {
        return Stream.of(
                Arguments.of("no entry point, pData not even read",
                        (Consumer<Send_Audio_Data_Info_t>) s -> {
                            s.pCallBackFun = 0;
                            s.pData = null;
                        }, -1),
                Arguments.of("entry point one byte off",
                        (Consumer<Send_Audio_Data_Info_t>) s -> s.pCallBackFun += 1, -1),
                Arguments.of("entry point never handed out",
                        (Consumer<Send_Audio_Data_Info_t>) s -> s.pCallBackFun = 0x7F00DEADBEEFL,
                        -1),
                Arguments.of("zero length", (Consumer<Send_Audio_Data_Info_t>) s -> s.nLen = 0,
                        0));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("unsendable")
    void blocksWithoutAKnownEntryPointOrDataSendNothing(
            String what, Consumer<Send_Audio_Data_Info_t> change, int result) {
        Send_Audio_Data_Info_t s = block(entryPoint(), randomPcm(64, 1), 2);
        change.accept(s);
        // A stale error must not become the result of a send.
        SimControl.script("ORVEX_SetRecordStreamSpeed", 77);
        IOrvexCore.ORVEX_SetRecordStreamSpeed(HANDLE, 1, 8, 1);

        assertEquals(result, IOrvexCore.ORVEX_SendAudioData(HANDLE, s));

        assertEquals(0, SimControl.count("AudioEntryPoint"));
    }

    /** Lengths that disagree with the data or the frame: name, pData size, nLen, exception. */
    static Stream<Arguments> badLengths() {
        return Stream.of(
                Arguments.of("nLen longer than pData", 4, 10, ArrayIndexOutOfBoundsException.class),
                Arguments.of("negative nLen", 4, -2, IllegalArgumentException.class),
                Arguments.of("more codes than a frame holds", 131058, 131058,
                        IllegalArgumentException.class));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("badLengths")
    void lengthsThatDoNotFitSendNothing(
            String what, int pcmBytes, int nLen, Class<? extends Throwable> thrown) {
        Send_Audio_Data_Info_t s = block(entryPoint(), randomPcm(pcmBytes, 2), 2);
        s.nLen = nLen;

        assertThrows(thrown, () -> IOrvexCore.ORVEX_SendAudioData(HANDLE, s));

        assertEquals(-1, lastResult());
        assertEquals(0, SimControl.count("AudioEntryPoint"));
    }

    @Test
    void pcmLongerThanItsLengthIsCutToTheLengthAndStillSent() {
        Send_Audio_Data_Info_t s = block(entryPoint(), randomPcm(10, 3), 2);
        s.nLen = 6;

        assertThrows(IllegalArgumentException.class,
                () -> IOrvexCore.ORVEX_SendAudioData(HANDLE, s));

        assertEquals(11, SimControl.last("AudioEntryPoint").arg("nFrameLen").value);
    }

    @Test
    void nullBlockOrDataIsRefused() {
        assertThrows(NullPointerException.class, () -> IOrvexCore.ORVEX_SendAudioData(HANDLE, null));
        Send_Audio_Data_Info_t s = block(entryPoint(), new byte[4], 2);
        s.pData = null;
        assertThrows(NullPointerException.class, () -> IOrvexCore.ORVEX_SendAudioData(HANDLE, s));
        assertEquals(1009, lastResult());
        assertEquals(0, SimControl.count("AudioEntryPoint"));
    }

    // ---- broadcasts --------------------------------------------------------------------------

    static Stream<Arguments> broadcasts() {
        return Stream.of(
                Arguments.of("ORVEX_StartBroadcast", (IntSupplier) () -> IOrvexCore
                        .ORVEX_StartBroadcast(HANDLE, holder(0), JSON, new Object(), TIMEOUT)),
                Arguments.of("ORVEX_CloseBroadcastStream", (IntSupplier) () -> IOrvexCore
                        .ORVEX_CloseBroadcastStream(HANDLE, 12, JSON, TIMEOUT)));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("broadcasts")
    void theLibraryDoesNotReceiveTheJsonText(String fn, IntSupplier call) {
        assertEquals(0, call.getAsInt());

        byte[] received = SimControl.last(fn).arg("szJson").bytes;
        byte[] text = Arrays.copyOf(JSON, JSON.length + 1);
        assertFalse(Arrays.equals(text, received));
        assertFalse(new String(received, StandardCharsets.ISO_8859_1).contains("cameras"));
    }

    @Test
    void startBroadcastReturnsItsSequenceWithoutAListener() {
        SimControl.script("ORVEX_StartBroadcast", 0, Write.le32("pnTalkSeq", 0, 12));
        Return_Value_Info_t h = holder(-5);

        assertEquals(0, IOrvexCore.ORVEX_StartBroadcast(HANDLE, h, JSON, new Object(), TIMEOUT));

        assertEquals(12, h.nReturnValue);
        RecordedCall call = SimControl.last("ORVEX_StartBroadcast");
        assertTrue(call.arg("pfnCallback").isNull);
        assertTrue(call.arg("pUserParam").isNull);
        assertEquals(TIMEOUT, call.arg("nTimeout").value);

        SimControl.script("ORVEX_StartBroadcast", 3, Write.le32("pnTalkSeq", 0, 13));
        assertEquals(3, IOrvexCore.ORVEX_StartBroadcast(HANDLE, h, JSON, null, TIMEOUT));
        assertEquals(12, h.nReturnValue);
    }

    @Test
    void closeBroadcastPassesItsSequence() {
        SimControl.script("ORVEX_CloseBroadcastStream", 21);
        assertEquals(21, IOrvexCore.ORVEX_CloseBroadcastStream(HANDLE, 12, JSON, TIMEOUT));
        RecordedCall call = SimControl.last("ORVEX_CloseBroadcastStream");
        assertEquals(12, call.arg("nTalkSeq").value);
        assertEquals(TIMEOUT, call.arg("nTimeout").value);
    }

    @Test
    void emptyJsonReturnsThePreviousResultAndNullIsRefused() {
        assertEquals(1009, IOrvexCore.ORVEX_CloseTalkStreamByCameralId(HANDLE, new byte[0], 1));
        assertEquals(1009, IOrvexCore.ORVEX_StartBroadcast(HANDLE, holder(0), new byte[0], null, 1));
        SimControl.script("ORVEX_CloseTalkStreamBySeq", 66);
        IOrvexCore.ORVEX_CloseTalkStreamBySeq(HANDLE, 1, 1);
        assertEquals(66, IOrvexCore.ORVEX_CloseBroadcastStream(HANDLE, 1, new byte[0], 1));

        assertThrows(NullPointerException.class,
                () -> IOrvexCore.ORVEX_StartBroadcast(HANDLE, holder(0), null, null, 1));
        assertThrows(NullPointerException.class,
                () -> IOrvexCore.ORVEX_StartBroadcast(HANDLE, null, JSON, null, 1));
        assertThrows(NullPointerException.class,
                () -> IOrvexCore.ORVEX_CloseBroadcastStream(HANDLE, 1, null, 1));
        assertEquals(0, SimControl.count("ORVEX_StartBroadcast"));
        assertEquals(0, SimControl.count("ORVEX_CloseBroadcastStream"));
    }
}
