package com.zq.OrvexCore;

/**
 * Switch a camera's light, rain brush or infrared on or off.
 */
public class Ptz_Open_Command_Info_t {
    /** Camera identifier (C string, 64 bytes). */
    public byte[] szCameraId = new byte[64];
    /** True switches on, false switches off. */
    public boolean bOpen;

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public Ptz_Open_Command_Info_t() {
    }
}
