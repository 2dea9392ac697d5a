package com.zq.OrvexCore;

/**
 * Command to a door of an access-control device.
 */
public class SetDoorCmd_Request_t {
    /** Identifier of the door channel (C string, 64 bytes). */
    public byte[] szCameraId = new byte[64];
    /** Command (0 program, 5 open, 6 close, 7 always open, 8 always closed, 9 to 13). */
    public int cmd;
    /** Start of the validity span. */
    public long start;
    /** End of the validity span. */
    public long end;

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public SetDoorCmd_Request_t() {
    }
}
