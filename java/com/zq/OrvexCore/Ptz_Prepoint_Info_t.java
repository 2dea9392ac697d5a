package com.zq.OrvexCore;

import java.util.Arrays;

/**
 * The preset points of a camera, listed into a fixed array of 300 slots.
 */
public class Ptz_Prepoint_Info_t {
    /** Number of preset slots. */
    public static final int MAX_POINTS = 300;

    /** Camera identifier (C string, 64 bytes). */
    public byte[] szCameraId = new byte[64];
    /** Number of presets; passed in, and set to the number listed. */
    public int nCount;
    /** Presets; the first {@link #nCount} slots are replaced with new objects. */
    public Ptz_Single_Prepoint_Info_t[] pPoints = newPoints();

    /** Creates a request with a zero-filled camera identifier and 300 empty preset slots. */
    public Ptz_Prepoint_Info_t() {
    }

    private static Ptz_Single_Prepoint_Info_t[] newPoints() {
        Ptz_Single_Prepoint_Info_t[] a = new Ptz_Single_Prepoint_Info_t[MAX_POINTS];
        Arrays.setAll(a, i -> new Ptz_Single_Prepoint_Info_t());
        return a;
    }
}
