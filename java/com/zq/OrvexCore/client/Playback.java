package com.zq.OrvexCore.client;

import com.zq.OrvexCore.IOrvexCore;

/** An open playback of recorded video; see {@link Media#playFile} and {@link Media#playTime}. */
public final class Playback extends MediaStream {
    /** Playback speeds; {@link #NORMAL} is real time, each step doubles or halves it. */
    public enum Speed {
        /** One eighth. */
        SLOW8(1),
        /** One quarter. */
        SLOW4(2),
        /** Half. */
        SLOW2(4),
        /** Real time. */
        NORMAL(8),
        /** Twice. */
        FAST2(16),
        /** Four times. */
        FAST4(32),
        /** Eight times. */
        FAST8(64),
        /** Sixteen times. */
        FAST16(128);

        final int value;

        Speed(int value) {
            this.value = value;
        }
    }

    Playback(OrvexClient client, int sequence, CameraId camera, FrameSink sink) {
        super(client, sequence, camera, sink);
    }

    /** Pauses the playback. */
    public void pause() {
        ensureOpen();
        client.run("ORVEX_PauseRecordStreamBySeq",
                () -> IOrvexCore.ORVEX_PauseRecordStreamBySeq(client.handle, sequence(),
                        client.timeoutMs));
    }

    /** Resumes a paused playback. */
    public void resume() {
        ensureOpen();
        client.run("ORVEX_ResumeRecordStreamBySeq",
                () -> IOrvexCore.ORVEX_ResumeRecordStreamBySeq(client.handle, sequence(),
                        client.timeoutMs));
    }

    /** Sets the playback speed. */
    public void speed(Speed speed) {
        ensureOpen();
        client.run("ORVEX_SetRecordStreamSpeed", () -> IOrvexCore.ORVEX_SetRecordStreamSpeed(
                client.handle, sequence(), speed.value, client.timeoutMs));
    }

    /** Moves the playback to the span from {@code begin} to {@code end} (platform time). */
    public void seek(long begin, long end) {
        ensureOpen();
        client.run("ORVEX_SeekRecordStreamBySeq", () -> IOrvexCore.ORVEX_SeekRecordStreamBySeq(
                client.handle, sequence(), begin, end, client.timeoutMs));
    }

    @Override
    void end() {
        client.run("ORVEX_CloseRecordStreamBySeq",
                () -> IOrvexCore.ORVEX_CloseRecordStreamBySeq(client.handle, sequence(),
                        client.timeoutMs));
    }
}
