package bridgetest;

import static org.junit.jupiter.api.Assertions.assertEquals;

import com.zq.OrvexCore.IOrvexCore;
import java.io.ByteArrayOutputStream;
import java.io.InputStream;
import java.nio.charset.StandardCharsets;
import java.util.ArrayList;
import java.util.List;
import java.util.Map;
import java.util.concurrent.TimeUnit;

/**
 * Runs a main class in a JVM of its own, with -Xcheck:jni and the libraries of this one, and
 * returns its standard output (the bridge's printf lines and any JNI warning land there).
 */
final class ChildJvm {
    private ChildJvm() {}

    /** How a child JVM ended: its exit code (non-zero after an abort) and standard output. */
    record Result(int exitCode, String stdout) {
        /** The first report of -Xcheck:jni in the output (warning or fatal error), or null. */
        String jniCheckReport() {
            for (String report : List.of("WARNING in native method", "WARNING: JNI local refs",
                         "FATAL ERROR in native method")) {
                if (stdout.contains(report)) {
                    return report;
                }
            }
            return null;
        }
    }

    static String run(Class<?> main) throws Exception {
        Result r = start(main);
        assertEquals(0, r.exitCode(), r.stdout());
        return r.stdout();
    }

    /**
     * Runs {@code main} with {@code args} and returns however it ended, so that a caller can
     * count an abort rather than stop at it.
     */
    static Result start(Class<?> main, String... args) throws Exception {
        return start(main, List.of("-Xcheck:jni"), Map.of(), args);
    }

    /**
     * As {@link #start(Class, String...)}, with {@code jvmOptions} in place of -Xcheck:jni and
     * {@code environment} added to this JVM's environment.
     */
    static Result start(Class<?> main, List<String> jvmOptions, Map<String, String> environment,
            String... args) throws Exception {
        String java = System.getProperty("java.home") + "/bin/java";
        List<String> command = new ArrayList<>(List.of(java));
        command.addAll(jvmOptions);
        command.addAll(List.of(property(IOrvexCore.LIBRARY_PROPERTY),
                property("orvex.simctl.library"), "-cp", System.getProperty("orvex.test.classpath"),
                main.getName()));
        command.addAll(List.of(args));
        ProcessBuilder builder =
                new ProcessBuilder(command).redirectError(ProcessBuilder.Redirect.INHERIT);
        builder.environment().putAll(environment);
        Process p = builder.start();
        ByteArrayOutputStream out = new ByteArrayOutputStream();
        try (InputStream in = p.getInputStream()) {
            in.transferTo(out);
        }
        if (!p.waitFor(60, TimeUnit.SECONDS)) {
            p.destroyForcibly();
            throw new AssertionError(main.getName() + " did not finish");
        }
        return new Result(p.exitValue(), out.toString(StandardCharsets.UTF_8));
    }

    private static String property(String name) {
        return "-D" + name + "=" + System.getProperty(name);
    }
}
