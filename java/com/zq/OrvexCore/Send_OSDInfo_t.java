package com.zq.OrvexCore;

/**
 * On-screen text to show on a device.
 */
public class Send_OSDInfo_t {
    /** Target device or channel identifier (C string, 64 bytes). */
    public byte[] szDevId = new byte[64];
    /** Text to show (C string, 256 bytes). */
    public byte[] szMessage = new byte[256];

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public Send_OSDInfo_t() {
    }
}
