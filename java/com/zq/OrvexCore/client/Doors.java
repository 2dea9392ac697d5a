package com.zq.OrvexCore.client;

import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.SetDoorCmd_Request_t;

/**
 * Doors of access control, addressed by their channel. State changes arrive through {@link
 * Events#onDoorStatus}. Every command waits up to 10 seconds for the door, whatever the client's
 * time-out.
 */
public final class Doors {
    private final OrvexClient c;

    Doors(OrvexClient client) {
        this.c = client;
    }

    /** Door commands. */
    public enum Command {
        /** Program the door. */
        PROGRAM(0),
        /** Open once. */
        OPEN(5),
        /** Close. */
        CLOSE(6),
        /** Keep open. */
        ALWAYS_OPEN(7),
        /** Keep closed. */
        ALWAYS_CLOSE(8),
        /** Holiday mode, magnet open. */
        HOLIDAY_OPEN(9),
        /** Holiday mode, magnet closed. */
        HOLIDAY_CLOSE(10),
        /** Back to normal operation. */
        RESET(11),
        /** Keep open by the host. */
        HOST_ALWAYS_OPEN(12),
        /** Keep closed by the host. */
        HOST_ALWAYS_CLOSE(13);

        final int value;

        Command(int value) {
            this.value = value;
        }
    }

    /** Sends a command that needs no time span. */
    public void command(CameraId door, Command command) {
        command(door, command, 0, 0);
    }

    /** Sends a command valid from {@code start} to {@code end} (platform time). */
    public void command(CameraId door, Command command, long start, long end) {
        SetDoorCmd_Request_t in = new SetDoorCmd_Request_t();
        c.text.put(door.value(), in.szCameraId, "door");
        in.cmd = command.value;
        in.start = start;
        in.end = end;
        c.run("ORVEX_SetDoorCmd", () -> IOrvexCore.ORVEX_SetDoorCmd(c.handle, in, c.timeoutMs));
    }
}
