package com.zq.OrvexCore.cli;

import com.zq.OrvexCore.client.OrvexClient;
import java.nio.charset.Charset;
import java.nio.file.Path;
import java.time.Duration;
import picocli.CommandLine.Option;

/**
 * How every subcommand reaches the platform. Defaults come from the environment ({@code
 * ORVEX_HOST}, {@code ORVEX_PORT}, {@code ORVEX_USER}, {@code ORVEX_PASSWORD}), else the local
 * simulated site's.
 */
final class Connection {
    @Option(names = "--host", defaultValue = "${env:ORVEX_HOST:-127.0.0.1}",
            description = "Platform server address (default: ${DEFAULT-VALUE}).")
    String host;

    @Option(names = "--port", defaultValue = "${env:ORVEX_PORT:-9000}",
            description = "Platform server port (default: ${DEFAULT-VALUE}).")
    int port;

    @Option(names = {"-u", "--user"}, defaultValue = "${env:ORVEX_USER:-admin}",
            description = "User name (default: ${DEFAULT-VALUE}).")
    String user;

    @Option(names = {"-p", "--password"}, defaultValue = "${env:ORVEX_PASSWORD:-admin123}",
            description = "Password (default: $$ORVEX_PASSWORD, else admin123, the simulated "
                    + "site's).",
            arity = "0..1",
            interactive = true)
    String password;

    @Option(names = "--timeout", defaultValue = "5000",
            description = "Time-out of each call in milliseconds (default: ${DEFAULT-VALUE}).")
    int timeoutMs;

    @Option(names = "--charset", defaultValue = "UTF-8",
            description = "Charset of the platform's texts (default: ${DEFAULT-VALUE}).")
    Charset charset;

    @Option(names = "--log", description = "Write the client library's debug log to this file.")
    Path log;

    /** Connects and logs in. */
    OrvexClient connect() {
        OrvexClient.Builder b = OrvexClient.builder().host(host).port(port).user(user)
                .password(password == null ? "" : password).charset(charset)
                .timeout(Duration.ofMillis(timeoutMs));
        if (log != null) {
            b.logFile(log);
        }
        return b.connect();
    }
}
