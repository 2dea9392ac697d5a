package com.zq.OrvexCore;

/**
 * Extended pan-tilt command (auto-round, scan, pattern, menu keys).
 */
public class Ptz_Extend_Command_Info_t {
    /** Camera identifier (C string, 64 bytes). */
    public byte[] szCameraId = new byte[64];
    /** Command code (39 to 61). */
    public int nCmd;
    /** Parameter of the command. */
    public int nParam;

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public Ptz_Extend_Command_Info_t() {
    }
}
