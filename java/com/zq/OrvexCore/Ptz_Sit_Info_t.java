package com.zq.OrvexCore;

/**
 * Point a camera at a position.
 */
public class Ptz_Sit_Info_t {
    /** Camera identifier (C string, 64 bytes). */
    public byte[] szCameraId = new byte[64];
    /** Horizontal coordinate. */
    public int pointX;
    /** Vertical coordinate. */
    public int pointY;
    /** Zoom coordinate. */
    public int pointZ;

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public Ptz_Sit_Info_t() {
    }
}
