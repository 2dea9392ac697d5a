package com.zq.OrvexCore.cli;

import com.zq.OrvexCore.client.CameraId;
import com.zq.OrvexCore.client.Media;
import com.zq.OrvexCore.client.OrvexClient;
import com.zq.OrvexCore.client.Playback;
import java.io.PrintWriter;
import java.nio.file.Path;
import java.util.List;
import picocli.CommandLine.Command;
import picocli.CommandLine.Option;
import picocli.CommandLine.Parameters;

/** Lists or plays back a camera's recordings. */
@Command(name = "playback", mixinStandardHelpOptions = true,
        description = {"Lists the recordings of CAMERA between --from and --to (with --list), "
                + "or plays that span back and prints its progress like 'live'.",
            "Times are the platform's."})
final class PlaybackCommand extends ClientCommand {
    @Parameters(paramLabel = "CAMERA", description = "The camera's identifier.")
    String camera;

    @Option(names = "--from", required = true, description = "Start of the span.")
    long from;

    @Option(names = "--to", required = true, description = "End of the span.")
    long to;

    @Option(names = "--list", description = "Only list the recordings found.")
    boolean list;

    @Option(names = "--speed", defaultValue = "NORMAL",
            description = "Playback speed: ${COMPLETION-CANDIDATES} (default: ${DEFAULT-VALUE}).")
    Playback.Speed speed;

    @Option(names = "--seconds", defaultValue = "10",
            description = "How long to play (default: ${DEFAULT-VALUE}).")
    long seconds;

    @Option(names = "--save-frame", paramLabel = "FILE",
            description = "Save the first video frame to FILE.")
    Path saveFrame;

    @Override
    int run(OrvexClient client) throws InterruptedException {
        PrintWriter out = out();
        Media.RecordQuery query = Media.RecordQuery.of(CameraId.of(camera), from, to);
        if (list) {
            List<Media.RecordFile> files = client.media().searchRecords(query);
            for (Media.RecordFile f : files) {
                out.printf("record %d  %d..%d  type %d  source %d  length %d%n", f.fileIndex(),
                        f.begin(), f.end(), f.recordType(), f.source(), f.length());
            }
            out.printf("%d recordings%n", files.size());
            return 0;
        }
        FrameMeter meter = new FrameMeter(out, saveFrame, 0);
        try (Playback pb = client.media().playTime(query, null, meter)) {
            if (speed != Playback.Speed.NORMAL) {
                pb.speed(speed);
            }
            out.printf("playback %d of %s open%n", pb.sequence(), camera);
            out.flush();
            meter.await(seconds);
        }
        meter.summary();
        return 0;
    }
}
