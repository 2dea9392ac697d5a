package com.zq.OrvexCore.cli;

import com.zq.OrvexCore.client.MediaFrame;
import java.io.IOException;
import java.io.PrintWriter;
import java.io.UncheckedIOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.concurrent.CountDownLatch;
import java.util.concurrent.TimeUnit;
import java.util.function.Consumer;

/**
 * Counts the frames of a stream and prints the progress once a second (frames, frames per
 * second, bit rate); optionally saves the first video frame (any frame not marked as audio) to a
 * file.
 */
final class FrameMeter implements Consumer<MediaFrame> {
    /** The media type of audio frames. */
    static final int AUDIO = 2;

    private final PrintWriter out;
    private final Path saveTo;
    private final long maxFrames;
    private final CountDownLatch done = new CountDownLatch(1);
    private final long started = System.nanoTime();
    private long frames;
    private long bytes;
    private long lastFrames;
    private long lastBytes;
    private long lastReport = started;
    private boolean saved;
    private volatile RuntimeException failure;

    /**
     * @param saveTo where to save the first video frame, or null
     * @param maxFrames stop after this many frames (0: no limit)
     */
    FrameMeter(PrintWriter out, Path saveTo, long maxFrames) {
        this.out = out;
        this.saveTo = saveTo;
        this.maxFrames = maxFrames;
    }

    @Override
    public synchronized void accept(MediaFrame f) {
        if (done.getCount() == 0) {
            return;  // finished: frames arriving until the stream closes are not counted
        }
        frames++;
        bytes += f.size();
        if (saveTo != null && !saved && f.mediaType() != AUDIO) {
            byte[] data = new byte[f.size()];
            f.data().duplicate().get(data);
            try {
                Files.write(saveTo, data);
                saved = true;
                out.printf("saved frame %d (%d bytes) to %s%n", frames, data.length, saveTo);
            } catch (IOException e) {
                failure = new UncheckedIOException("cannot save the frame to " + saveTo, e);
                done.countDown();
            }
        }
        long now = System.nanoTime();
        if (now - lastReport >= 1_000_000_000L) {
            report(now);
        }
        boolean enough = maxFrames > 0 && frames >= maxFrames;
        if (enough && (saveTo == null || saved)) {
            done.countDown();
        }
    }

    private void report(long now) {
        double seconds = (now - lastReport) / 1e9;
        out.printf("frames %d  fps %.1f  kbit/s %.0f%n", frames, (frames - lastFrames) / seconds,
                (bytes - lastBytes) * 8 / seconds / 1000);
        out.flush();
        lastFrames = frames;
        lastBytes = bytes;
        lastReport = now;
    }

    /** Waits until the frame limit is reached, or {@code seconds} passed (0: no time limit). */
    boolean await(long seconds) throws InterruptedException {
        boolean reached = seconds > 0 ? done.await(seconds, TimeUnit.SECONDS) : awaitForever();
        if (failure != null) {
            throw failure;
        }
        return reached;
    }

    private boolean awaitForever() throws InterruptedException {
        done.await();
        return true;
    }

    /** Prints the totals. */
    synchronized void summary() {
        double seconds = Math.max(1e-9, (System.nanoTime() - started) / 1e9);
        out.printf("total: frames %d in %.1f s, fps %.1f, kbit/s %.0f%n", frames, seconds,
                frames / seconds, bytes * 8 / seconds / 1000);
    }

    synchronized long frames() {
        return frames;
    }

    synchronized boolean saved() {
        return saved;
    }
}
