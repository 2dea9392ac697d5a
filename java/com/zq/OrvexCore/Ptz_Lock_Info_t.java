package com.zq.OrvexCore;

/**
 * Lock or unlock a camera's pan-tilt control against other users.
 */
public class Ptz_Lock_Info_t {
    /** Camera identifier (C string, 64 bytes). */
    public byte[] szCameraId = new byte[64];
    /** 1 lock, 2 unlock one, 3 unlock all. */
    public int nLock;

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public Ptz_Lock_Info_t() {
    }
}
