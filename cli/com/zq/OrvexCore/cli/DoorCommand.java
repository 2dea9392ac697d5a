package com.zq.OrvexCore.cli;

import com.zq.OrvexCore.client.CameraId;
import com.zq.OrvexCore.client.Doors;
import com.zq.OrvexCore.client.OrvexClient;
import java.io.PrintWriter;
import java.util.concurrent.Callable;
import picocli.CommandLine.Command;
import picocli.CommandLine.Mixin;
import picocli.CommandLine.Model.CommandSpec;
import picocli.CommandLine.Option;
import picocli.CommandLine.Parameters;
import picocli.CommandLine.Spec;

/** Sends a command to a door. */
@Command(name = "door", mixinStandardHelpOptions = true,
        description = "Sends COMMAND to the door DOOR (its channel). The platform waits up to "
                + "10 s for the door.")
final class DoorCommand implements Callable<Integer> {
    @Mixin
    Connection connection;

    @Spec
    CommandSpec spec;

    @Parameters(index = "0", paramLabel = "DOOR", description = "The door's channel identifier.")
    String door;

    @Parameters(index = "1", paramLabel = "COMMAND", description = "One of: ${COMPLETION-CANDIDATES}.")
    Doors.Command command;

    @Option(names = "--from", defaultValue = "0", description = "Start of the command's validity.")
    long from;

    @Option(names = "--to", defaultValue = "0", description = "End of the command's validity.")
    long to;

    @Override
    public Integer call() {
        PrintWriter out = spec.commandLine().getOut();
        try (OrvexClient client = connection.connect()) {
            client.doors().command(CameraId.of(door), command, from, to);
        }
        out.printf("door %s %s done%n", door, command);
        return 0;
    }
}
