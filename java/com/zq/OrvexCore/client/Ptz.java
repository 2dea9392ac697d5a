package com.zq.OrvexCore.client;

import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.Ptz_Direct_Info_t;
import com.zq.OrvexCore.Ptz_Extend_Command_Info_t;
import com.zq.OrvexCore.Ptz_Lock_Info_t;
import com.zq.OrvexCore.Ptz_Open_Command_Info_t;
import com.zq.OrvexCore.Ptz_Operation_Info_t;
import com.zq.OrvexCore.Ptz_Prepoint_Info_t;
import com.zq.OrvexCore.Ptz_Prepoint_Operation_Info_t;
import com.zq.OrvexCore.Ptz_Single_Prepoint_Info_t;
import com.zq.OrvexCore.Ptz_Sit_Info_t;
import java.util.ArrayList;
import java.util.List;
import java.util.Objects;

/**
 * Pan, tilt, zoom, switches and presets of one camera. Movements run until stopped: call {@link
 * #move} and then {@link #stop}, or {@link #lens} with {@code stop} true.
 *
 * <p>There is no infrared switch here: the library's infrared call has always operated the rain
 * brush instead, so it would do what {@link #rainBrush(boolean)} does.
 */
public final class Ptz {
    private final OrvexClient c;
    private final CameraId camera;

    Ptz(OrvexClient client, CameraId camera) {
        this.c = client;
        this.camera = Objects.requireNonNull(camera, "camera");
    }

    /** Directions of movement. */
    public enum Direction {
        /** Up. */
        UP,
        /** Down. */
        DOWN,
        /** Left. */
        LEFT,
        /** Right. */
        RIGHT,
        /** Up and left. */
        LEFT_UP,
        /** Down and left. */
        LEFT_DOWN,
        /** Up and right. */
        RIGHT_UP,
        /** Down and right. */
        RIGHT_DOWN;

        int value() {
            return ordinal() + 1;
        }
    }

    /** Lens changes. */
    public enum Lens {
        /** Zoom in. */
        ZOOM_IN,
        /** Focus far. */
        FOCUS_FAR,
        /** Open the aperture. */
        APERTURE_OPEN,
        /** Zoom out. */
        ZOOM_OUT,
        /** Focus near. */
        FOCUS_NEAR,
        /** Close the aperture. */
        APERTURE_CLOSE
    }

    /** Lock commands. */
    public enum Lock {
        /** Lock the control for this user. */
        LOCK,
        /** Release this user's lock. */
        UNLOCK,
        /** Release every lock. */
        UNLOCK_ALL;

        int value() {
            return ordinal() + 1;
        }
    }

    /**
     * A preset position.
     *
     * @param code its number
     * @param name its name
     */
    public record Preset(int code, String name) {}

    /** The camera this controls. */
    public CameraId camera() {
        return camera;
    }

    private void direction(Direction d, int speed, boolean stop) {
        Ptz_Direct_Info_t in = new Ptz_Direct_Info_t();
        c.text.put(camera.value(), in.szCameraId, "camera");
        in.nDirect = d.value();
        in.nStep = speed;
        in.bStop = stop;
        c.run("ORVEX_PtzDirection", () -> IOrvexCore.ORVEX_PtzDirection(c.handle, in, c.timeoutMs));
    }

    /** Starts moving in a direction at a speed (the camera's steps, typically 1 to 10). */
    public void move(Direction direction, int speed) {
        direction(direction, speed, false);
    }

    /** Stops a movement started with {@link #move}. */
    public void stop(Direction direction) {
        direction(direction, 0, true);
    }

    /** Starts ({@code stop} false) or stops a lens change at a speed. */
    public void lens(Lens change, int speed, boolean stop) {
        Ptz_Operation_Info_t in = new Ptz_Operation_Info_t();
        c.text.put(camera.value(), in.szCameraId, "camera");
        in.nOperation = change.ordinal();
        in.nStep = speed;
        in.bStop = stop;
        c.run("ORVEX_PtzCameraOperation",
                () -> IOrvexCore.ORVEX_PtzCameraOperation(c.handle, in, c.timeoutMs));
    }

    /** Points the camera at a position (pan, tilt, zoom in the camera's units). */
    public void pointAt(int x, int y, int z) {
        Ptz_Sit_Info_t in = new Ptz_Sit_Info_t();
        c.text.put(camera.value(), in.szCameraId, "camera");
        in.pointX = x;
        in.pointY = y;
        in.pointZ = z;
        c.run("ORVEX_PtzSit", () -> IOrvexCore.ORVEX_PtzSit(c.handle, in, c.timeoutMs));
    }

    /** Locks or unlocks the camera's control. */
    public void lock(Lock command) {
        Ptz_Lock_Info_t in = new Ptz_Lock_Info_t();
        c.text.put(camera.value(), in.szCameraId, "camera");
        in.nLock = command.value();
        c.run("ORVEX_PtzLockCamera",
                () -> IOrvexCore.ORVEX_PtzLockCamera(c.handle, in, c.timeoutMs));
    }

    private Ptz_Open_Command_Info_t onOff(boolean on) {
        Ptz_Open_Command_Info_t in = new Ptz_Open_Command_Info_t();
        c.text.put(camera.value(), in.szCameraId, "camera");
        in.bOpen = on;
        return in;
    }

    /** Switches the camera's light. */
    public void light(boolean on) {
        Ptz_Open_Command_Info_t in = onOff(on);
        c.run("ORVEX_PtzLightControl",
                () -> IOrvexCore.ORVEX_PtzLightControl(c.handle, in, c.timeoutMs));
    }

    /** Switches the camera's rain brush (wiper). */
    public void rainBrush(boolean on) {
        Ptz_Open_Command_Info_t in = onOff(on);
        c.run("ORVEX_PtzRainBrushControl",
                () -> IOrvexCore.ORVEX_PtzRainBrushControl(c.handle, in, c.timeoutMs));
    }

    /**
     * Sends an extended command (39 start auto-round, 40 stop it, 43 start scan, 44 stop it, 54
     * open the camera's menu, ...) with its parameter.
     */
    public void extended(int command, int parameter) {
        Ptz_Extend_Command_Info_t in = new Ptz_Extend_Command_Info_t();
        c.text.put(camera.value(), in.szCameraId, "camera");
        in.nCmd = command;
        in.nParam = parameter;
        c.run("ORVEX_PtzExtendCommand",
                () -> IOrvexCore.ORVEX_PtzExtendCommand(c.handle, in, c.timeoutMs));
    }

    /** The camera's presets (at most {@value Ptz_Prepoint_Info_t#MAX_POINTS}). */
    public List<Preset> presets() {
        Ptz_Prepoint_Info_t in = new Ptz_Prepoint_Info_t();
        c.text.put(camera.value(), in.szCameraId, "camera");
        // Offered as the capacity, for a library that reads it: the structure holds this many.
        in.nCount = Ptz_Prepoint_Info_t.MAX_POINTS;
        c.run("ORVEX_QueryPrePoint",
                () -> IOrvexCore.ORVEX_QueryPrePoint(c.handle, in, c.timeoutMs));
        int n = Math.max(0, Math.min(in.nCount, in.pPoints.length));
        List<Preset> out = new ArrayList<>(n);
        for (int i = 0; i < n; i++) {
            out.add(new Preset(in.pPoints[i].nCode, c.text.get(in.pPoints[i].szName)));
        }
        return List.copyOf(out);
    }

    private void preset(int command, int code, String name) {
        Ptz_Prepoint_Operation_Info_t in = new Ptz_Prepoint_Operation_Info_t();
        c.text.put(camera.value(), in.szCameraId, "camera");
        in.nCmd = command;
        in.pPoints = new Ptz_Single_Prepoint_Info_t();
        in.pPoints.nCode = code;
        c.text.put(name, in.pPoints.szName, "name");
        c.run("ORVEX_PtzPrePointOperation",
                () -> IOrvexCore.ORVEX_PtzPrePointOperation(c.handle, in, c.timeoutMs));
    }

    /** Moves the camera to a preset. */
    public void gotoPreset(int code) {
        preset(1, code, "");
    }

    /** Stores the camera's current position as a preset (name: at most 31 bytes). */
    public void addPreset(int code, String name) {
        preset(2, code, name);
    }

    /** Deletes a preset. */
    public void deletePreset(int code) {
        preset(3, code, "");
    }
}
