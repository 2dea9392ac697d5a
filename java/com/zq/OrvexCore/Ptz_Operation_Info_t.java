package com.zq.OrvexCore;

/**
 * Start or stop a zoom, focus or aperture change.
 */
public class Ptz_Operation_Info_t {
    /** Camera identifier (C string, 64 bytes). */
    public byte[] szCameraId = new byte[64];
    /** 0 zoom in, 1 focus near, 2 open aperture, 3 zoom out, 4 focus far, 5 close aperture. */
    public int nOperation;
    /** Speed step. */
    public int nStep;
    /** True stops the operation, false starts it. */
    public boolean bStop;

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public Ptz_Operation_Info_t() {
    }
}
