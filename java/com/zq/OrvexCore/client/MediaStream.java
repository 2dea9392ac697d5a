package com.zq.OrvexCore.client;

import java.util.concurrent.atomic.AtomicBoolean;

/**
 * An open stream of the platform (live video, playback, talk, broadcast), named by the sequence
 * number the library gave it. Closing it stops the delivery of its frames at once, also of frames
 * already queued on the executor, and ends it on the platform; closing again does nothing. The
 * client closes streams still open when it is closed.
 */
public abstract class MediaStream implements AutoCloseable {
    final OrvexClient client;
    private final int sequence;
    private final CameraId camera;
    private final FrameSink sink;
    private final AtomicBoolean open = new AtomicBoolean(true);

    MediaStream(OrvexClient client, int sequence, CameraId camera, FrameSink sink) {
        this.client = client;
        this.sequence = sequence;
        this.camera = camera;
        this.sink = sink;
        client.track(this);
    }

    /** The sequence number the library gave the stream. */
    public int sequence() {
        return sequence;
    }

    /** The camera the stream is of, or null for a broadcast. */
    public CameraId camera() {
        return camera;
    }

    /** Whether the stream is still open. */
    public boolean isOpen() {
        return open.get();
    }

    /** Throws unless the stream is open. */
    void ensureOpen() {
        if (!open.get()) {
            throw new IllegalStateException("the stream is closed");
        }
    }

    /** Ends the stream on the platform. */
    abstract void end();

    /**
     * Stops the delivery of frames and ends the stream.
     *
     * @throws OrvexException if the platform refuses to end it (frames stay stopped)
     */
    @Override
    public void close() {
        if (!open.compareAndSet(true, false)) {
            return;
        }
        if (sink != null) {
            sink.detach();
        }
        client.untrack(this);
        end();
    }
}
