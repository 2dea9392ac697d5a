package clitest;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertTrue;

import clienttest.SimSite;
import com.zq.OrvexCore.cli.Orvex;
import java.io.PrintWriter;
import java.io.StringWriter;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.concurrent.CompletableFuture;
import java.util.concurrent.TimeUnit;
import org.junit.jupiter.api.BeforeEach;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.api.io.TempDir;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.ValueSource;
import simctl.SimControl;
import simctl.Write;

/** The tool's argument handling, output and exit status, run in this JVM on the scripted stand-in. */
class OrvexCommandTest {
    record Run(int status, String out, String err) {}

    static Run run(String... args) {
        StringWriter out = new StringWriter();
        StringWriter err = new StringWriter();
        int status = Orvex.run(args, new PrintWriter(out), new PrintWriter(err));
        return new Run(status, out.toString(), err.toString());
    }

    @BeforeEach
    void reset() {
        SimControl.reset();
        SimControl.script("ORVEX_Create", 0, Write.le32("pnSdkHandle", 0, 21));
    }

    @ParameterizedTest
    @ValueSource(strings = {"tree", "live", "playback", "ptz", "presets", "alarms", "talk", "wall",
        "door", "json"})
    void everySubcommandExplainsItself(String name) {
        Run r = run(name, "--help");
        assertEquals(0, r.status(), r.err());
        assertTrue(r.out().startsWith("Usage: orvex " + name), r.out());
        assertTrue(r.out().contains("--host"), r.out());
        assertEquals(0, SimControl.count("ORVEX_Create"), "help must not connect");
    }

    @Test
    void theToolListsItsSubcommands() {
        Run r = run("--help");
        assertEquals(0, r.status());
        for (String name : new String[] {"tree", "live", "playback", "ptz", "presets", "alarms", "talk",
            "wall", "door", "json"}) {
            assertTrue(r.out().contains("\n  " + name + " "), name + " missing from\n" + r.out());
        }
    }

    @Test
    void usageErrorsExitWithTwo() {
        Run unknown = run("tree", "--no-such-option");
        assertEquals(2, unknown.status());
        assertTrue(unknown.err().contains("Unknown option"), unknown.err());
        assertEquals(2, run("live").status(), "CAMERA is required");
        assertEquals(2, run("door", "cam-1", "SMASH").status());
        Run modes = run("alarms");
        assertEquals(2, modes.status());
        assertTrue(modes.err().contains("exactly one of --follow, --camera, --schemes"), modes.err());
    }

    @Test
    void aFailingLoginNamesTheResultCodeAndItsMessage() {
        SimControl.script("ORVEX_Login", 1004);
        Run r = run("tree", "--user", "op", "--password", "wrong");
        assertEquals(Orvex.PLATFORM_ERROR, r.status());
        assertEquals("orvex tree: ORVEX_Login failed with result code 1004: "
                + "the user name or password is wrong", r.err().strip());
        assertEquals("op", new String(SimControl.last("ORVEX_Login").arg("pInfo").bytes, 52, 2));
    }

    @Test
    void anUnknownCameraNamesTheResultCodeAndSavesNothing(@TempDir Path dir) {
        SimControl.script("ORVEX_GetRealStream", 1012);
        Path file = dir.resolve("frame.jpg");
        Run r = run("live", "cam-404", "--save-frame", file.toString());
        assertEquals(Orvex.PLATFORM_ERROR, r.status());
        assertTrue(r.err().contains("ORVEX_GetRealStream failed with result code 1012: "
                + "no channel or camera has this identifier"), r.err());
        assertFalse(Files.exists(file));
        assertEquals(1, SimControl.count("ORVEX_Destroy"), "the session still ends");
    }

    @Test
    void treePrintsDepartmentsDevicesAndCameras() {
        SimSite.script();
        Run r = run("tree");
        assertEquals(0, r.status(), r.err());
        assertEquals(String.join("\n", "department 01 HQ", "  device dev-1 NVR online",
                "    camera cam-1 Door online", "    camera cam-2 Yard offline", "  department 0101 Gate", ""),
                r.out().replace(System.lineSeparator(), "\n"));
    }

    @Test
    void liveSavesTheFirstVideoFrameAndStops(@TempDir Path dir) throws Exception {
        SimControl.script("ORVEX_GetRealStream", 0, Write.le32("pnRealSeq", 0, 61));
        Path file = dir.resolve("frame.jpg");
        CompletableFuture<Run> running = CompletableFuture.supplyAsync(
                () -> run("live", "cam-1", "--save-frame", file.toString()));
        long deadline = System.nanoTime() + TimeUnit.SECONDS.toNanos(10);
        while (SimControl.count("ORVEX_GetRealStream") == 0 && System.nanoTime() < deadline) {
            Thread.sleep(10);
        }
        byte[] audio = {9, 9};
        byte[] jpeg = {(byte) 0xFF, (byte) 0xD8, (byte) 0xFF, (byte) 0xE0, 1, 2, (byte) 0xFF, (byte) 0xD9};
        // The stand-in knows the stream once the open returned; offer frames until the tool is done.
        while (!running.isDone() && System.nanoTime() < deadline) {
            try {
                SimControl.fire("MediaDataCallback", 21, 61, new Object[] {21, 61, 2, "cam-1".getBytes(), 0, audio, 2});
                SimControl.fire("MediaDataCallback", 21, 61, new Object[] {21, 61, 1, "cam-1".getBytes(), 0, jpeg, 8});
            } catch (RuntimeException | AssertionError notYetOpen) {
                // The stream is not registered yet.
            }
            Thread.sleep(20);
        }
        Run r = running.get(10, TimeUnit.SECONDS);
        assertEquals(0, r.status(), r.err());
        assertArrayEquals(jpeg, Files.readAllBytes(file));
        assertTrue(r.out().contains("live stream 61 of cam-1 open"), r.out());
        assertTrue(r.out().contains("(8 bytes) to " + file), r.out());
        assertEquals(61, SimControl.last("ORVEX_CloseRealStreamBySeq").arg("nRealSeq").i32());
    }

    @Test
    void commandsReachTheirNatives() {
        SimControl.script("ORVEX_QueryPrePoint", 0, Write.le32("pInfo", 64, 1),
                Write.bytes("pInfo", 68, new byte[] {4, 0, 0, 0, 'G', 'a', 't', 'e'}));
        Run presets = run("presets", "cam-1");
        assertEquals(0, presets.status(), presets.err());
        assertTrue(presets.out().contains("preset 4 Gate"), presets.out());

        assertEquals(0, run("door", "door-1", "OPEN").status());
        assertEquals(5, SimControl.last("ORVEX_SetDoorCmd").arg("pInfo").le32(64));

        assertEquals(0, run("ptz", "cam-1", "wiper-on").status());
        assertEquals(1, SimControl.count("ORVEX_PtzRainBrushControl"));
        assertEquals(0, run("ptz", "cam-1", "left", "--for", "1").status());
        assertEquals(2, SimControl.count("ORVEX_PtzDirection"), "a move and its stop");

        assertEquals(0, run("wall", "--wall", "3", "--screen", "1", "--show", "cam-1").status());
        assertEquals(3, SimControl.last("ORVEX_SetTvWallScreenWindowSource").arg("pInfo").le32(0));

        SimControl.declareCapacity("ORVEX_SendCammandToCMSByJson", "szJsonResult", 64);
        SimControl.script("ORVEX_SendCammandToCMSByJson", 0,
                Write.bytes("szJsonResult", 0, "{\"ok\":true}\0".getBytes()));
        Run json = run("json", "--answer-size", "64", "{\"cmd\":\"ping\"}");
        assertEquals(0, json.status(), json.err());
        assertEquals("{\"ok\":true}", json.out().strip());
    }
}
