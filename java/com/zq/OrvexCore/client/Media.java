package com.zq.OrvexCore.client;

import com.zq.OrvexCore.Audio_Fun_Info_t;
import com.zq.OrvexCore.Get_ExternalRealStreamUrl_Info_t;
import com.zq.OrvexCore.Get_RealStream_Info_t;
import com.zq.OrvexCore.Get_RecordStream_File_Info_t;
import com.zq.OrvexCore.Get_RecordStream_Time_Info_t;
import com.zq.OrvexCore.Get_TalkStream_Info_t;
import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.Query_Record_Info_t;
import com.zq.OrvexCore.Record_Info_t;
import com.zq.OrvexCore.Return_Value_Info_t;
import com.zq.OrvexCore.Single_Record_Info_t;
import java.util.Arrays;
import java.util.List;
import java.util.Objects;
import java.util.concurrent.Executor;
import java.util.function.Consumer;

/**
 * Live video, record search, playback, talk and broadcast. Every stream is an {@link
 * AutoCloseable} whose frames go to a consumer on an executor (the client's event executor unless
 * one is given), never on the library's threads.
 *
 * <p>Streams are closed through their objects, by sequence number. The library's "close by
 * camera" calls are not offered: the live one never acts (it always fails), and the others would
 * leave this side's stream objects believing they were open.
 */
public final class Media {
    private final OrvexClient c;

    Media(OrvexClient client) {
        this.c = client;
    }

    /** The two streams a camera offers. */
    public enum StreamType {
        /** The main stream (full resolution). */
        MAIN(1),
        /** The sub stream (reduced resolution). */
        SUB(2);

        final int value;

        StreamType(int value) {
            this.value = value;
        }
    }

    /**
     * How to open a live stream.
     *
     * @param stream main or sub stream
     * @param mediaType 1 video, 2 audio, 3 both
     * @param tcp TCP (true) or UDP transport
     * @param checkRights whether the platform checks the user's rights on the camera
     */
    public record LiveOptions(StreamType stream, int mediaType, boolean tcp, boolean checkRights) {
        /** Main stream, video and audio, over TCP, rights checked. */
        public static final LiveOptions DEFAULT = new LiveOptions(StreamType.MAIN, 3, true, true);

        /** Requires a stream type. */
        public LiveOptions {
            Objects.requireNonNull(stream, "stream");
        }
    }

    /**
     * A recording found by {@link #searchRecords}.
     *
     * @param fileIndex its index, for {@link #playFile}
     * @param source where it is stored (2 device, 3 platform)
     * @param recordType why it was recorded (1 manual, 2 alarm, 3 motion, 6 timer, ...)
     * @param begin when it begins (platform time)
     * @param end when it ends
     * @param length its length as the platform gives it
     */
    public record RecordFile(int fileIndex, int source, int recordType, long begin, long end,
            long length) {}

    /**
     * What to search or play back.
     *
     * @param camera the camera
     * @param begin the start of the span (platform time)
     * @param end the end of the span
     * @param source 1 everywhere, 2 on the device, 3 on the platform
     * @param recordType the kind of recording, 0 for any
     * @param stream one stream type only, or null for the camera's default
     * @param checkRights whether the platform checks the user's rights on the camera
     */
    public record RecordQuery(CameraId camera, long begin, long end, int source, int recordType,
            StreamType stream, boolean checkRights) {
        /** Requires a camera. */
        public RecordQuery {
            Objects.requireNonNull(camera, "camera");
        }

        /** Any recording of {@code camera} between {@code begin} and {@code end}, anywhere. */
        public static RecordQuery of(CameraId camera, long begin, long end) {
            return new RecordQuery(camera, begin, end, 1, 0, null, true);
        }
    }

    /**
     * How to open a talk.
     *
     * @param audioType the audio coding (2 G.711 A-law, ...)
     * @param talkType 1 with the device, 2 with the channel
     * @param bits bits per sample
     * @param sampleRate samples per second
     * @param transport the transport mode
     */
    public record TalkOptions(int audioType, int talkType, int bits, int sampleRate,
            int transport) {
        /** G.711 A-law, with the channel, 16 bits at 8 kHz, over TCP. */
        public static final TalkOptions DEFAULT = new TalkOptions(2, 2, 16, 8000, 1);
    }

    @FunctionalInterface
    private interface Opener {
        int open(Return_Value_Info_t holder, FrameSink sink);
    }

    @FunctionalInterface
    private interface Made<S> {
        S make(int sequence, FrameSink sink);
    }

    /** Opens a stream; its sequence number is read only after success. */
    private <S extends MediaStream> S open(String operation, Executor executor,
            Consumer<? super MediaFrame> consumer, Opener opener, Made<S> made) {
        Objects.requireNonNull(consumer, "consumer");
        FrameSink sink = new FrameSink(executor == null ? c.eventExecutor() : executor, c.text,
                consumer);
        Return_Value_Info_t h = new Return_Value_Info_t();
        try {
            c.run(operation, () -> opener.open(h, sink));
        } catch (RuntimeException e) {
            sink.detach();
            throw e;
        }
        return made.make(h.nReturnValue, sink);
    }

    private Get_RealStream_Info_t live(CameraId camera, LiveOptions o) {
        Get_RealStream_Info_t in = new Get_RealStream_Info_t();
        c.text.put(camera.value(), in.szCameraId, "camera");
        in.nRight = o.checkRights() ? 0 : 1;
        in.nStreamType = o.stream().value;
        in.nMediaType = o.mediaType();
        in.nTransType = o.tcp() ? 1 : 0;
        return in;
    }

    /** Opens the live main stream of a camera; frames go to the client's event executor. */
    public LiveStream openLive(CameraId camera, Consumer<? super MediaFrame> consumer) {
        return openLive(camera, LiveOptions.DEFAULT, null, consumer);
    }

    /**
     * Opens a live stream of a camera.
     *
     * @param executor where the consumer runs; null for the client's event executor
     */
    public LiveStream openLive(CameraId camera, LiveOptions options, Executor executor,
            Consumer<? super MediaFrame> consumer) {
        Get_RealStream_Info_t in = live(camera, options);
        return open("ORVEX_GetRealStream", executor, consumer,
                (h, sink) -> IOrvexCore.ORVEX_GetRealStream(c.handle, h, in, sink, c.timeoutMs),
                (seq, sink) -> new LiveStream(c, seq, camera, sink));
    }

    /** Opens a preview stream, starting from the channel with index {@code startChannel}. */
    public LiveStream openPreview(CameraId camera, LiveOptions options, int startChannel,
            Executor executor, Consumer<? super MediaFrame> consumer) {
        Get_RealStream_Info_t in = live(camera, options);
        return open("ORVEX_GetRealStreamPreview", executor, consumer,
                (h, sink) -> IOrvexCore.ORVEX_GetRealStreamPreview(
                        c.handle, h, in, startChannel, sink, c.timeoutMs),
                (seq, sink) -> new LiveStream(c, seq, camera, sink));
    }

    /**
     * An address at which other players can fetch a camera's live stream.
     *
     * @param trackId the packaging (101 RTP, 501 PS, 901 TS, ...)
     */
    public String externalUrl(CameraId camera, LiveOptions options, int trackId) {
        Get_ExternalRealStreamUrl_Info_t in = new Get_ExternalRealStreamUrl_Info_t();
        c.text.put(camera.value(), in.szCameraId, "camera");
        in.nStreamType = options.stream().value;
        in.nMediaType = options.mediaType();
        in.nTransType = options.tcp() ? 1 : 0;
        in.nTrackId = trackId;
        c.run("ORVEX_GetExternalRealStreamUrl",
                () -> IOrvexCore.ORVEX_GetExternalRealStreamUrl(c.handle, in, c.timeoutMs));
        return c.text.get(in.szUrl);
    }

    /** Searches the recordings of a camera and reads every one found. */
    public List<RecordFile> searchRecords(RecordQuery q) {
        Query_Record_Info_t in = new Query_Record_Info_t();
        c.text.put(q.camera().value(), in.szCameraId, "camera");
        in.nRight = q.checkRights() ? 0 : 1;
        in.nSource = q.source();
        in.nRecordType = q.recordType();
        in.uBeginTime = q.begin();
        in.uEndTime = q.end();
        int n = q.stream() == null
                ? c.value("ORVEX_QueryRecord",
                        h -> IOrvexCore.ORVEX_QueryRecord(c.handle, in, h, c.timeoutMs))
                : c.value("ORVEX_QueryRecordByStreamType",
                        h -> IOrvexCore.ORVEX_QueryRecordByStreamType(
                                c.handle, in, q.stream().value, h, c.timeoutMs));
        if (n <= 0) {
            return List.of();
        }
        Record_Info_t page = new Record_Info_t(n);
        c.text.put(q.camera().value(), page.szCameraId, "camera");
        page.nBegin = 0;
        c.run("ORVEX_GetRecordInfo", () -> IOrvexCore.ORVEX_GetRecordInfo(c.handle, page));
        // Records past what the platform delivered come back zeroed.
        return Arrays.stream(page.pSingleRecord)
                .filter(r -> r.uBeginTime != 0 || r.uEndTime != 0 || r.uLength != 0)
                .map(Media::recordFile)
                .toList();
    }

    private static RecordFile recordFile(Single_Record_Info_t r) {
        return new RecordFile(r.nFileIndex, r.nSource, r.nRecordType, r.uBeginTime, r.uEndTime,
                r.uLength);
    }

    /**
     * Plays back one recording found by {@link #searchRecords}.
     *
     * @param download true to fetch it as fast as possible rather than in real time
     * @param executor where the consumer runs; null for the client's event executor
     */
    public Playback playFile(CameraId camera, RecordFile file, boolean download, Executor executor,
            Consumer<? super MediaFrame> consumer) {
        Get_RecordStream_File_Info_t in = new Get_RecordStream_File_Info_t();
        c.text.put(camera.value(), in.szCameraId, "camera");
        in.nMode = download ? 2 : 1;
        in.nFileIndex = file.fileIndex();
        in.uBeginTime = file.begin();
        in.uEndTime = file.end();
        return open("ORVEX_GetRecordStreamByFile", executor, consumer,
                (h, sink) -> IOrvexCore.ORVEX_GetRecordStreamByFile(c.handle, h, in, sink,
                        c.timeoutMs),
                (seq, sink) -> new Playback(c, seq, camera, sink));
    }

    /**
     * Plays back a span of a camera's recordings, as {@code query} describes it (its record type
     * is not used).
     *
     * @param executor where the consumer runs; null for the client's event executor
     */
    public Playback playTime(RecordQuery query, Executor executor,
            Consumer<? super MediaFrame> consumer) {
        Get_RecordStream_Time_Info_t in = new Get_RecordStream_Time_Info_t();
        c.text.put(query.camera().value(), in.szCameraId, "camera");
        in.nRight = query.checkRights() ? 0 : 1;
        in.nMode = 1;
        in.nSource = query.source();
        in.uBeginTime = query.begin();
        in.uEndTime = query.end();
        Opener opener = query.stream() == null
                ? (h, sink) -> IOrvexCore.ORVEX_GetRecordStreamByTime(
                        c.handle, h, in, sink, c.timeoutMs)
                : (h, sink) -> IOrvexCore.ORVEX_GetRecordStreamByStreamType(
                        c.handle, h, in, query.stream().value, sink, c.timeoutMs);
        String operation = query.stream() == null
                ? "ORVEX_GetRecordStreamByTime" : "ORVEX_GetRecordStreamByStreamType";
        return open(operation, executor, consumer, opener,
                (seq, sink) -> new Playback(c, seq, query.camera(), sink));
    }

    /**
     * Opens a talk with a camera. The device's audio goes to {@code consumer}; speak with {@link
     * Talk#send(short[])}.
     *
     * @param executor where the consumer runs; null for the client's event executor
     */
    public Talk talk(CameraId camera, TalkOptions options, Executor executor,
            Consumer<? super MediaFrame> consumer) {
        Get_TalkStream_Info_t in = new Get_TalkStream_Info_t();
        c.text.put(camera.value(), in.szCameraId, "camera");
        in.nAudioType = options.audioType();
        in.nTalkType = options.talkType();
        in.nBitsType = options.bits();
        in.nSampleType = options.sampleRate();
        in.nTransType = options.transport();
        Audio_Fun_Info_t entry = new Audio_Fun_Info_t();
        return open("ORVEX_GetTalkStream", executor, consumer,
                (h, sink) -> IOrvexCore.ORVEX_GetTalkStream(c.handle, h, in, sink, c.timeoutMs),
                (seq, sink) -> {
                    Talk t = new Talk(c, seq, camera, sink, entry, options);
                    try {
                        c.run("ORVEX_GetSdkAudioCallbackInfo",
                                () -> IOrvexCore.ORVEX_GetSdkAudioCallbackInfo(c.handle, entry));
                    } catch (RuntimeException e) {
                        try {
                            t.close();
                        } catch (RuntimeException suppressed) {
                            e.addSuppressed(suppressed);
                        }
                        throw e;
                    }
                    return t;
                });
    }

    /**
     * Starts an audio broadcast described by {@code json} and returns it; its state arrives
     * through {@link Events#onBroadcastStatus}. Note that the bridge has never passed the
     * description's text on to the platform (the library receives other bytes in its place), so
     * the platform decides what the broadcast covers.
     */
    public Broadcast broadcast(String json) {
        byte[] description = c.text.arg(json, "json");
        int seq = c.value("ORVEX_StartBroadcast",
                h -> IOrvexCore.ORVEX_StartBroadcast(c.handle, h, description, null, c.timeoutMs));
        return new Broadcast(c, seq, description);
    }
}
