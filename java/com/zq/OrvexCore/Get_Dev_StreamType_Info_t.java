package com.zq.OrvexCore;

/**
 * Stream type of one unit of a device.
 */
public class Get_Dev_StreamType_Info_t {
    /** Device identifier (C string, 64 bytes). */
    public byte[] szDeviceId = new byte[64];
    /** Unit number. */
    public int nUnitNo;
    /** Stream type (output). */
    public int nStreamType;

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public Get_Dev_StreamType_Info_t() {
    }
}
