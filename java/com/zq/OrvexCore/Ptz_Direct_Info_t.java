package com.zq.OrvexCore;

/**
 * Start or stop a pan-tilt movement in one of eight directions.
 */
public class Ptz_Direct_Info_t {
    /** Camera identifier (C string, 64 bytes). */
    public byte[] szCameraId = new byte[64];
    /**
     * Direction: 1 up, 2 down, 3 left, 4 right, 5 left-up, 6 left-down, 7 right-up, 8 right-down.
     */
    public int nDirect;
    /** Speed step. */
    public int nStep;
    /** True stops the movement, false starts it. */
    public boolean bStop;

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public Ptz_Direct_Info_t() {
    }
}
