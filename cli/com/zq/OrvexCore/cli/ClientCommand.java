package com.zq.OrvexCore.cli;

import com.zq.OrvexCore.client.OrvexClient;
import java.io.PrintWriter;
import java.util.concurrent.Callable;
import picocli.CommandLine.Mixin;
import picocli.CommandLine.ParentCommand;

/** A subcommand that connects, does its work on the client, and disconnects. */
abstract class ClientCommand implements Callable<Integer> {
    @Mixin
    Connection connection;

    @ParentCommand
    Orvex tool;

    /** Where the command's results go. */
    PrintWriter out() {
        return tool.out;
    }

    /** Where the command's complaints go. */
    PrintWriter err() {
        return tool.err;
    }

    /** Checks the arguments before connecting; throws {@link IllegalArgumentException}. */
    void check() {}

    /** The work; returns the exit status. */
    abstract int run(OrvexClient client) throws InterruptedException;

    @Override
    public final Integer call() throws InterruptedException {
        check();
        try (OrvexClient client = connection.connect()) {
            return run(client);
        }
    }
}
