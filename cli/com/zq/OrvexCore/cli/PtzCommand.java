package com.zq.OrvexCore.cli;

import com.zq.OrvexCore.client.CameraId;
import com.zq.OrvexCore.client.OrvexClient;
import com.zq.OrvexCore.client.Ptz;
import java.util.Locale;
import picocli.CommandLine.Command;
import picocli.CommandLine.Option;
import picocli.CommandLine.Parameters;

/** Moves a camera, changes its lens, or switches its light or wiper. */
@Command(name = "ptz", mixinStandardHelpOptions = true,
        description = {"Controls CAMERA. ACTION is one of:",
            "  up, down, left, right, left-up, left-down, right-up, right-down",
            "    (moves for --for milliseconds)",
            "  zoom-in, zoom-out, focus-far, focus-near, aperture-open, aperture-close (likewise)",
            "  point X Y Z, light-on, light-off, wiper-on, wiper-off, lock, unlock, unlock-all"})
final class PtzCommand extends ClientCommand {
    @Parameters(index = "0", paramLabel = "CAMERA", description = "The camera's identifier.")
    String camera;

    @Parameters(index = "1", paramLabel = "ACTION", description = "What to do (see above).")
    String action;

    @Parameters(index = "2..*", paramLabel = "ARG", description = "The action's arguments.")
    int[] args = new int[0];

    @Option(names = "--speed", defaultValue = "5",
            description = "Speed of a movement (default: ${DEFAULT-VALUE}).")
    int speed;

    @Option(names = "--for", defaultValue = "500", paramLabel = "MS",
            description = "How long a movement lasts, in milliseconds (default: ${DEFAULT-VALUE}).")
    long forMillis;

    @Override
    int run(OrvexClient client) throws InterruptedException {
        String name = action.toUpperCase(Locale.ROOT).replace('-', '_');
        Ptz ptz = client.ptz(CameraId.of(camera));
        switch (name) {
            case "POINT" -> {
                if (args.length != 3) {
                    throw new IllegalArgumentException("point takes X Y Z");
                }
                ptz.pointAt(args[0], args[1], args[2]);
            }
            case "LIGHT_ON", "LIGHT_OFF" -> ptz.light(name.endsWith("ON"));
            case "WIPER_ON", "WIPER_OFF" -> ptz.rainBrush(name.endsWith("ON"));
            case "LOCK" -> ptz.lock(Ptz.Lock.LOCK);
            case "UNLOCK" -> ptz.lock(Ptz.Lock.UNLOCK);
            case "UNLOCK_ALL" -> ptz.lock(Ptz.Lock.UNLOCK_ALL);
            default -> timed(ptz, name);
        }
        out().printf("ptz %s %s done%n", camera, action);
        return 0;
    }

    private void timed(Ptz ptz, String name) throws InterruptedException {
        for (Ptz.Direction d : Ptz.Direction.values()) {
            if (d.name().equals(name)) {
                ptz.move(d, speed);
                Thread.sleep(forMillis);
                ptz.stop(d);
                return;
            }
        }
        for (Ptz.Lens l : Ptz.Lens.values()) {
            if (l.name().equals(name)) {
                ptz.lens(l, speed, false);
                Thread.sleep(forMillis);
                ptz.lens(l, speed, true);
                return;
            }
        }
        throw new IllegalArgumentException("unknown action: " + action);
    }
}
