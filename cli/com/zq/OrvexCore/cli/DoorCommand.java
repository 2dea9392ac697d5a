package com.zq.OrvexCore.cli;

import com.zq.OrvexCore.client.CameraId;
import com.zq.OrvexCore.client.Doors;
import com.zq.OrvexCore.client.OrvexClient;
import picocli.CommandLine.Command;
import picocli.CommandLine.Option;
import picocli.CommandLine.Parameters;

/** Sends a command to a door. */
@Command(name = "door", mixinStandardHelpOptions = true,
        description = "Sends COMMAND to the door DOOR (its channel). The platform waits up to "
                + "10 s for the door.")
final class DoorCommand extends ClientCommand {
    @Parameters(index = "0", paramLabel = "DOOR", description = "The door's channel identifier.")
    String door;

    @Parameters(index = "1", paramLabel = "COMMAND",
            description = "One of: ${COMPLETION-CANDIDATES}.")
    Doors.Command command;

    @Option(names = "--from", defaultValue = "0", description = "Start of the command's validity.")
    long from;

    @Option(names = "--to", defaultValue = "0", description = "End of the command's validity.")
    long to;

    @Override
    int run(OrvexClient client) {
        client.doors().command(CameraId.of(door), command, from, to);
        out().printf("door %s %s done%n", door, command);
        return 0;
    }
}
