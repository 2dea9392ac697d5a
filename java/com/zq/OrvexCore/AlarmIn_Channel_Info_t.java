package com.zq.OrvexCore;

/**
 * One alarm-input channel of a device.
 */
public class AlarmIn_Channel_Info_t {
    /** Channel identifier (C string, 64 bytes). */
    public byte[] szId = new byte[64];
    /** Channel name (C string, 256 bytes). */
    public byte[] szName = new byte[256];
    /** Rights bit mask of the user on the channel. */
    public long nRight;
    /** Channel type. */
    public int nChnlType;
    /** Channel status. */
    public int nStatus;

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public AlarmIn_Channel_Info_t() {
    }
}
