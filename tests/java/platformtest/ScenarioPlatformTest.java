package platformtest;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.zq.OrvexCore.IOrvexCore;
import java.io.File;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.List;
import java.util.concurrent.TimeUnit;
import org.junit.jupiter.api.Tag;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.api.io.TempDir;

/** Scenario files, each read by a JVM of its own (the site is read once per process). */
@Tag(Platform.TAG)
class ScenarioPlatformTest {
    record Outcome(String out, String err) {}

    private static Outcome runChild(Path scenario, String user, String password) throws Exception {
        String java = System.getProperty("java.home") + "/bin/java";
        ProcessBuilder pb = new ProcessBuilder(List.of(java, "-Xcheck:jni",
                "-D" + IOrvexCore.LIBRARY_PROPERTY + "="
                        + System.getProperty(IOrvexCore.LIBRARY_PROPERTY),
                "-cp", System.getProperty("orvex.test.classpath"), ScenarioChild.class.getName(),
                user, password));
        pb.environment().put("ORVEX_SIM_SCENARIO", scenario.toString());
        pb.environment().remove("ORVEX_SIM_MODE");
        File err = Files.createTempFile("scenario-child", ".err").toFile();
        pb.redirectError(err);
        Process p = pb.start();
        String out = new String(p.getInputStream().readAllBytes(), StandardCharsets.UTF_8);
        if (!p.waitFor(60, TimeUnit.SECONDS)) {
            p.destroyForcibly();
            throw new AssertionError("the child JVM did not finish");
        }
        String errText = Files.readString(err.toPath(), StandardCharsets.UTF_8);
        Files.delete(err.toPath());
        assertEquals(0, p.exitValue(), out + errText);
        assertFalse(out.contains("WARNING in native method"), out);
        return new Outcome(out, errText);
    }

    @Test
    void malformedScenariosAreNamedOnStandardErrorAndRefuseCreate(@TempDir Path dir)
            throws Exception {
        String[][] cases = {
            {"{\"departments\": [{\"coding\": \"r\"}], \"devices\": [{\"id\": \"d\", "
                    + "\"department\": \"x\"}]}",
             "at /devices/0/department: no department with coding \"x\""},
            {"{\"users\": [\n  {\"id\": 1,}\n]}", "at line 2, column 12: malformed JSON"},
            {"{\"departments\": [{\"coding\": \"r\", \"sort\": \"first\"}]}",
             "at /departments/0/sort: expected an integer, found string"},
        };
        for (int k = 0; k < cases.length; k++) {
            Path scenario = dir.resolve("bad" + k + ".json");
            Files.writeString(scenario, cases[k][0], StandardCharsets.UTF_8);
            Outcome o = runChild(scenario, "u", "p");
            assertTrue(o.out().contains("create=" + Platform.SCENARIO_INVALID), o.out());
            String expected = "ORVEX stand-in: scenario \"" + scenario + "\": " + cases[k][1];
            assertTrue(o.err().contains(expected), o.err());
        }
    }

    @Test
    void aMissingScenarioFileIsNamed(@TempDir Path dir) throws Exception {
        Path scenario = dir.resolve("absent.json");
        Outcome o = runChild(scenario, "u", "p");
        assertTrue(o.out().contains("create=" + Platform.SCENARIO_INVALID), o.out());
        assertTrue(o.err().contains("scenario \"" + scenario + "\": at /: cannot be read"),
                o.err());
    }

    @Test
    void theExampleScenarioIsServed() throws Exception {
        Path example = Path.of(System.getProperty("orvex.example.scenario"));
        Outcome o = runChild(example, "guard", "night-shift");
        // The bridge's "g_jvm = vm" (no line end) comes first.
        assertTrue(o.out().endsWith("create=0\nlogin=0\nload=0\nroot=100\ndevices=5\n"),
                o.out() + o.err());
    }
}
