package com.zq.OrvexCore;

/**
 * One encoder channel (camera) of a device, short form.
 */
public class Enc_Channel_Info_t {
    /** Camera type. */
    public int nCameraType;
    /** Channel identifier (C string, 64 bytes). */
    public byte[] szId = new byte[64];
    /** Channel name (C string, 256 bytes). */
    public byte[] szName = new byte[256];

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public Enc_Channel_Info_t() {
    }
}
