package com.zq.OrvexCore.cli;

import com.zq.OrvexCore.client.CameraId;
import com.zq.OrvexCore.client.LiveStream;
import com.zq.OrvexCore.client.Media;
import com.zq.OrvexCore.client.OrvexClient;
import java.io.PrintWriter;
import java.nio.file.Path;
import picocli.CommandLine.Command;
import picocli.CommandLine.Option;
import picocli.CommandLine.Parameters;

/** Watches a camera's live stream and reports its progress. */
@Command(name = "live", mixinStandardHelpOptions = true,
        description = {"Opens the live stream of CAMERA and prints, once a second, the frames "
                + "received, frames per second and bit rate.",
            "With --save-frame it writes the first video frame to FILE and stops there, unless "
                    + "--seconds or --frames ask for more."})
final class LiveCommand extends ClientCommand {
    @Parameters(paramLabel = "CAMERA", description = "The camera's identifier.")
    String camera;

    @Option(names = "--seconds", description = "How long to watch (default: 10, or until a "
            + "frame is saved).")
    Long seconds;

    @Option(names = "--frames", description = "Stop after this many frames.")
    long frames;

    @Option(names = "--sub", description = "Watch the sub stream instead of the main stream.")
    boolean sub;

    @Option(names = "--save-frame", paramLabel = "FILE",
            description = "Save the first video frame to FILE.")
    Path saveFrame;

    @Override
    int run(OrvexClient client) throws InterruptedException {
        PrintWriter out = out();
        long limit = seconds != null ? seconds : saveFrame != null || frames > 0 ? 30 : 10;
        boolean justTheFrame = saveFrame != null && frames == 0 && seconds == null;
        FrameMeter meter = new FrameMeter(out, saveFrame, justTheFrame ? 1 : frames);
        Media.LiveOptions options = new Media.LiveOptions(
                sub ? Media.StreamType.SUB : Media.StreamType.MAIN, 3, true, true);
        try (LiveStream live = client.media().openLive(CameraId.of(camera), options, null, meter)) {
            out.printf("live stream %d of %s open%n", live.sequence(), camera);
            out.flush();
            meter.await(limit);
        }
        meter.summary();
        if (saveFrame != null && !meter.saved()) {
            err().printf("orvex live: no video frame arrived within %d s%n", limit);
            return Orvex.PLATFORM_ERROR;
        }
        return 0;
    }
}
