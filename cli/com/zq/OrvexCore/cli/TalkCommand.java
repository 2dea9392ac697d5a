package com.zq.OrvexCore.cli;

import com.zq.OrvexCore.client.CameraId;
import com.zq.OrvexCore.client.Media;
import com.zq.OrvexCore.client.OrvexClient;
import com.zq.OrvexCore.client.Talk;
import java.io.PrintWriter;
import java.util.concurrent.atomic.AtomicLong;
import picocli.CommandLine.Command;
import picocli.CommandLine.Option;
import picocli.CommandLine.Parameters;

/** Opens a talk with a camera, sends a test tone, and counts the camera's audio. */
@Command(name = "talk", mixinStandardHelpOptions = true,
        description = "Opens a talk with CAMERA; with --tone it speaks a sine tone for --seconds, "
                + "paced in real time, and reports the audio frames the camera sends back.")
final class TalkCommand extends ClientCommand {
    @Parameters(paramLabel = "CAMERA", description = "The camera's identifier.")
    String camera;

    @Option(names = "--tone", description = "Send a test tone.")
    boolean tone;

    @Option(names = "--frequency", defaultValue = "440",
            description = "Tone frequency in Hz (default: ${DEFAULT-VALUE}).")
    double frequency;

    @Option(names = "--seconds", defaultValue = "3",
            description = "How long to talk (default: ${DEFAULT-VALUE}).")
    int seconds;

    /** One block of tone: 100 ms of a sine at {@code frequency}, continuing the phase. */
    static short[] tone(double frequency, int rate, long startSample, int samples) {
        short[] pcm = new short[samples];
        for (int i = 0; i < samples; i++) {
            double t = (startSample + i) / (double) rate;
            pcm[i] = (short) Math.round(Math.sin(2 * Math.PI * frequency * t) * 12_000);
        }
        return pcm;
    }

    @Override
    int run(OrvexClient client) throws InterruptedException {
        PrintWriter out = out();
        Media.TalkOptions options = Media.TalkOptions.DEFAULT;
        AtomicLong received = new AtomicLong();
        CameraId id = CameraId.of(camera);
        try (Talk talk = client.media().talk(id, options, null, f -> received.incrementAndGet())) {
            out.printf("talk %d with %s open%n", talk.sequence(), camera);
            out.flush();
            int block = options.sampleRate() / 10;
            long sent = 0;
            long start = System.nanoTime();
            for (int i = 0; i < seconds * 10; i++) {
                if (tone) {
                    talk.send(tone(frequency, options.sampleRate(), sent, block));
                    sent += block;
                }
                long due = start + (i + 1) * 100_000_000L;
                Thread.sleep(Math.max(0, (due - System.nanoTime()) / 1_000_000));
            }
            out.printf("sent %d samples, received %d audio frames%n", sent, received.get());
        }
        return 0;
    }
}
