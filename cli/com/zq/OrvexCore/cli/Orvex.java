package com.zq.OrvexCore.cli;

import com.zq.OrvexCore.client.OrvexException;
import java.io.PrintWriter;
import picocli.CommandLine;
import picocli.CommandLine.Command;

/**
 * The {@code orvex} command: operates a platform from the shell. Each subcommand connects, does
 * its work and disconnects. Exit status 0 on success, 1 when the platform refuses (the message
 * names the library's result code) or answers what cannot be used, 2 for a usage error.
 */
@Command(name = "orvex", mixinStandardHelpOptions = true, version = "orvex 1.0",
        description = "Operates an ORVEX surveillance platform: organisation tree, live video, "
                + "playback, PTZ, presets, alarms, talk, video walls, doors and JSON commands.",
        subcommands = {TreeCommand.class, LiveCommand.class, PlaybackCommand.class,
                PtzCommand.class,
            PresetsCommand.class, AlarmsCommand.class, TalkCommand.class, WallCommand.class,
            DoorCommand.class, JsonCommand.class, CommandLine.HelpCommand.class})
public final class Orvex {
    /** Exit status when the platform refuses a call. */
    public static final int PLATFORM_ERROR = 1;

    /** Where the subcommands write their results and complaints. */
    final PrintWriter out;
    final PrintWriter err;

    private Orvex(PrintWriter out, PrintWriter err) {
        this.out = out;
        this.err = err;
    }

    /** Runs the tool and exits with its status. */
    public static void main(String[] args) {
        PrintWriter out = new PrintWriter(System.out, true);
        PrintWriter err = new PrintWriter(System.err, true);
        System.exit(run(args, out, err));
    }

    /** Runs the tool with the given output streams and returns its exit status. */
    public static int run(String[] args, PrintWriter out, PrintWriter err) {
        CommandLine cl = new CommandLine(new Orvex(out, err));
        cl.setOut(out);
        cl.setErr(err);
        cl.setExecutionExceptionHandler((e, line, parsed) -> {
            if (e instanceof OrvexException oe) {
                line.getErr().printf("orvex %s: %s failed with result code %d: %s%n",
                        line.getCommandName(), oe.operation(), oe.code(), oe.codeMessage());
                return PLATFORM_ERROR;
            }
            if (e instanceof IllegalArgumentException) {
                line.getErr().printf("orvex %s: %s%n", line.getCommandName(), e.getMessage());
                return CommandLine.ExitCode.USAGE;
            }
            if (e instanceof IllegalStateException || e instanceof java.io.UncheckedIOException) {
                line.getErr().printf("orvex %s: %s%n", line.getCommandName(), e.getMessage());
                return PLATFORM_ERROR;
            }
            throw e;
        });
        int status;
        try {
            status = cl.execute(args);
        } catch (LinkageError e) {
            // The bridge or the client library it needs could not be loaded.
            err.printf("orvex: cannot load the native bridge: %s%n", e);
            status = PLATFORM_ERROR;
        }
        out.flush();
        err.flush();
        return status;
    }
}
