package com.zq.OrvexCore;

/**
 * Counts of child groups, devices and channels under one group.
 */
public class Get_Dep_Count_Info_t {
    /** Coding of the group (input; C string, 128 bytes). */
    public byte[] szCoding = new byte[128];
    /** Number of child groups. */
    public int nDepCount;
    /** Number of devices. */
    public int nDeviceCount;
    /** Number of channels. */
    public int nChannelCount;

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public Get_Dep_Count_Info_t() {
    }
}
