package com.zq.OrvexCore.cli;

import com.zq.OrvexCore.client.CameraId;
import com.zq.OrvexCore.client.OrvexClient;
import com.zq.OrvexCore.client.Ptz;
import picocli.CommandLine.ArgGroup;
import picocli.CommandLine.Command;
import picocli.CommandLine.Option;
import picocli.CommandLine.Parameters;

/** Lists, visits, adds or deletes a camera's presets. */
@Command(name = "presets", mixinStandardHelpOptions = true,
        description = "Lists the presets of CAMERA ('preset CODE NAME'), or goes to, adds or "
                + "deletes one.")
final class PresetsCommand extends ClientCommand {
    @Parameters(paramLabel = "CAMERA", description = "The camera's identifier.")
    String camera;

    static final class Change {
        @Option(names = "--goto", paramLabel = "CODE", description = "Move the camera to a preset.")
        Integer gotoCode;

        @Option(names = "--add", paramLabel = "CODE",
                description = "Store the current position (needs --name).")
        Integer addCode;

        @Option(names = "--delete", paramLabel = "CODE", description = "Delete a preset.")
        Integer deleteCode;
    }

    @ArgGroup(exclusive = true)
    Change change;

    @Option(names = "--name", description = "Name of the preset to add.")
    String name;

    @Override
    int run(OrvexClient client) {
        Ptz ptz = client.ptz(CameraId.of(camera));
        if (change == null) {
            for (Ptz.Preset p : ptz.presets()) {
                out().printf("preset %d %s%n", p.code(), p.name());
            }
        } else if (change.gotoCode != null) {
            ptz.gotoPreset(change.gotoCode);
        } else if (change.addCode != null) {
            if (name == null) {
                throw new IllegalArgumentException("--add needs --name");
            }
            ptz.addPreset(change.addCode, name);
        } else {
            ptz.deletePreset(change.deleteCode);
        }
        return 0;
    }
}
