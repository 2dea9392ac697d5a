package com.zq.OrvexCore;

/**
 * One preset point of a camera.
 */
public class Ptz_Single_Prepoint_Info_t {
    /** Preset number. */
    public int nCode;
    /** Preset name (C string, 32 bytes). */
    public byte[] szName = new byte[32];

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public Ptz_Single_Prepoint_Info_t() {
    }
}
