package com.zq.OrvexCore.cli;

import com.zq.OrvexCore.client.CameraId;
import com.zq.OrvexCore.client.OrvexClient;
import com.zq.OrvexCore.client.Services;
import picocli.CommandLine.Command;
import picocli.CommandLine.Option;
import picocli.CommandLine.Parameters;

/** Sends a JSON command to a platform module and prints the answer. */
@Command(name = "json", mixinStandardHelpOptions = true,
        description = "Sends the JSON text to the central management module and prints its answer; "
                + "with --camera, to the device management module about that camera.")
final class JsonCommand extends ClientCommand {
    @Parameters(paramLabel = "JSON", description = "The command.")
    String json;

    @Option(names = "--camera",
            description = "Send to the device management module about this camera.")
    String camera;

    @Option(names = "--answer-size", defaultValue = "" + Services.DEFAULT_ANSWER_CAPACITY,
            description = "Room for the answer in bytes (default: ${DEFAULT-VALUE}).")
    int answerSize;

    @Override
    int run(OrvexClient client) {
        String answer = camera == null
                ? client.services().sendToCms(json, answerSize)
                : client.services().sendToDms(CameraId.of(camera), json, answerSize);
        out().println(answer);
        return 0;
    }
}
