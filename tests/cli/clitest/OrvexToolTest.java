package clitest;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertTrue;

import java.io.IOException;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.List;
import java.util.concurrent.TimeUnit;
import org.junit.jupiter.api.Tag;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.api.io.TempDir;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.CsvSource;

/**
 * The tool as an operator runs it: through {@code scripts/orvex}, in a process of its own, on the
 * simulated platform. Needs the simulated site (its users and cameras), hence the tag.
 */
@Tag("platform")
class OrvexToolTest {
    /** The user the simulated site lets in; the tool's defaults name it too. */
    static final String USER = System.getProperty("orvex.site.user", "admin");
    static final String PASSWORD = System.getProperty("orvex.site.password", "admin123");

    record Result(int status, String out, String err) {}

    static Result orvex(String... args) throws IOException, InterruptedException {
        List<String> command = new ArrayList<>();
        command.add(System.getProperty("orvex.tool"));
        command.addAll(List.of(args));
        // The tool inherits this JVM's environment: the client library's directory, and on a
        // sanitizer build the runtime its libraries need.
        ProcessBuilder pb = new ProcessBuilder(command);
        Path out = Files.createTempFile("orvex-out", ".txt");
        Path err = Files.createTempFile("orvex-err", ".txt");
        pb.redirectOutput(out.toFile()).redirectError(err.toFile());
        Process p = pb.start();
        if (!p.waitFor(120, TimeUnit.SECONDS)) {
            p.destroyForcibly();
            throw new AssertionError("orvex " + String.join(" ", args) + " did not finish");
        }
        Result r = new Result(p.exitValue(), Files.readString(out, StandardCharsets.UTF_8),
                Files.readString(err, StandardCharsets.UTF_8));
        Files.delete(out);
        Files.delete(err);
        return r;
    }

    static String firstCamera(String tree) {
        for (String line : tree.split("\n")) {
            String t = line.strip();
            if (t.startsWith("camera ")) {
                return t.split(" ")[1];
            }
        }
        throw new AssertionError("no camera in the tree:\n" + tree);
    }

    @Test
    void treeListsTheSite() throws Exception {
        Result r = orvex("tree", "--user", USER, "--password", PASSWORD);
        assertEquals(0, r.status(), r.err());
        assertTrue(r.out().contains("department "), r.out());
        assertTrue(r.out().contains("  device "), r.out());
        firstCamera(r.out());
    }

    @Test
    void liveSavesAJpegFrame(@TempDir Path dir) throws Exception {
        String camera = firstCamera(orvex("tree", "--user", USER, "--password", PASSWORD).out());
        Path frame = dir.resolve("frame.jpg");
        Result r = orvex("live", camera, "--save-frame", frame.toString(), "--user", USER,
                "--password", PASSWORD);
        assertEquals(0, r.status(), r.out() + r.err());
        byte[] jpeg = Files.readAllBytes(frame);
        assertTrue(jpeg.length > 4 && (jpeg[0] & 0xFF) == 0xFF && (jpeg[1] & 0xFF) == 0xD8,
                "not a JPEG: " + jpeg.length + " bytes");
        assertTrue(r.out().contains("saved frame"), r.out());
    }

    @Test
    void aWrongPasswordFailsWithTheLoginCode() throws Exception {
        Result r = orvex("tree", "--user", USER, "--password", "not-" + PASSWORD);
        assertEquals(1, r.status(), r.out());
        assertTrue(r.err().contains("ORVEX_Login failed with result code 1004: "
                + "the user name or password is wrong"), r.err());
    }

    /** Commands on the site's dome and walls: arguments, exit status, a line of the output. */
    @ParameterizedTest(name = "{0}")
    @CsvSource(delimiter = '|', textBlock = """
            wall --show ipc-gate-01-cam01 --wall 1 --screen 1 | 0 |
            wall --clear --wall 1 --screen 1                  | 0 |
            live nvr-north-01-cam01 --frames 3                | 0 | total: frames 3 in
            ptz ipc-gate-01-cam01 up --user viewer --password=viewer123 | 1 | result code 1007
            json --answer-size 16 {"cmd":"listDevices"}       | 0 | "result":0}
            """)
    void siteCommandsEndAsTheySay(String args, int status, String line) throws Exception {
        List<String> all = new ArrayList<>(List.of(args.split(" ")));
        if (!all.contains("--user")) {
            all.addAll(List.of("--user", USER, "--password", PASSWORD));
        }
        Result r = orvex(all.toArray(String[]::new));
        assertEquals(status, r.status(), r.out() + r.err());
        assertTrue(line == null || (r.out() + r.err()).contains(line), r.out() + r.err());
    }
}
