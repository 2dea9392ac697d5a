package com.zq.OrvexCore.cli;

import com.zq.OrvexCore.client.CameraId;
import com.zq.OrvexCore.client.Media;
import com.zq.OrvexCore.client.OrvexClient;
import com.zq.OrvexCore.client.Walls;
import java.io.PrintWriter;
import picocli.CommandLine.Command;
import picocli.CommandLine.Option;

/** Lists video walls and puts cameras on their screens. */
@Command(name = "wall", mixinStandardHelpOptions = true,
        description = {"Lists the video walls and their screens, or changes one wall:",
            "  --show CAMERA --wall W --screen S [--window N]   show a camera",
            "  --split N --wall W --screen S                    split a screen into N panes",
            "  --clear --wall W [--screen S --window N]         clear a window or the wall"})
final class WallCommand extends ClientCommand {
    @Option(names = "--wall", description = "The wall.")
    Integer wall;

    @Option(names = "--screen", description = "The screen.")
    Integer screen;

    // A screen's panes are numbered from 1, and an unsplit screen has only pane 1.
    @Option(names = "--window", defaultValue = "1",
            description = "The window (default: ${DEFAULT-VALUE}, the first pane).")
    int window;

    @Option(names = "--show", paramLabel = "CAMERA", description = "Show this camera.")
    String show;

    @Option(names = "--split", paramLabel = "N",
            description = "Split the screen into 1, 4, 9 or 16 panes.")
    Integer split;

    @Option(names = "--clear",
            description = "Clear the window, or the whole wall without --screen.")
    boolean clear;

    /** The screen given, or 0, which the platform refuses as no screen. */
    private int screenOrNone() {
        return screen == null ? 0 : screen;
    }

    @Override
    void check() {
        if ((show != null || split != null || clear) && wall == null) {
            throw new IllegalArgumentException("--show, --split and --clear need --wall");
        }
    }

    @Override
    int run(OrvexClient client) {
        Walls walls = client.walls();
        if (show != null) {
            walls.show(wall, screenOrNone(), window, CameraId.of(show), 0, Media.StreamType.MAIN);
        } else if (split != null) {
            walls.split(wall, screenOrNone(), split);
        } else if (clear) {
            if (screen != null) {
                walls.clearWindow(wall, screen, window);
            } else {
                walls.clear(wall);
            }
        } else {
            PrintWriter out = out();
            for (Walls.Wall w : walls.walls()) {
                out.printf("wall %d %s state %d%n", w.id(), w.name(), w.state());
                for (Walls.Screen s : walls.screens(w.id())) {
                    out.printf("  screen %d %s decoder %s at %.2f,%.2f size %.2fx%.2f%n", s.id(),
                            s.name(), s.decoder(), s.left(), s.top(), s.width(), s.height());
                }
            }
        }
        return 0;
    }
}
