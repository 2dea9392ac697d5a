package com.zq.OrvexCore;

import java.util.Arrays;

/**
 * Contents of one group: its child groups and its devices, read into caller-sized arrays.
 */
public class Get_Dep_Info_t {
    /** Coding of the group to read (C string, 128 bytes). */
    public byte[] szCoding = new byte[128];
    /** Capacity of {@link #pDepInfo}; must not exceed its length. */
    public int nDepCount;
    /** Capacity of {@link #pDeviceInfo}; must not exceed its length. */
    public int nDeviceCount;
    /** Child groups, filled in place. */
    public Dep_Info_t[] pDepInfo = new Dep_Info_t[0];
    /** Devices, filled in place. */
    public Device_Info_Ex_t[] pDeviceInfo = new Device_Info_Ex_t[0];

    /** Creates an empty record: numbers zero, text buffers allocated, record arrays of length 0. */
    public Get_Dep_Info_t() {
    }

    /**
     * Creates a request with room for the given numbers of child groups and devices.
     *
     * @param nDepCount number of slots of {@link #pDepInfo}, each holding a new {@link Dep_Info_t}
     * @param nDeviceCount number of slots of {@link #pDeviceInfo}, each holding a new {@link
     *     Device_Info_Ex_t}
     */
    public Get_Dep_Info_t(int nDepCount, int nDeviceCount) {
        checkCount("nDepCount", nDepCount);
        checkCount("nDeviceCount", nDeviceCount);
        this.nDepCount = nDepCount;
        this.pDepInfo = new Dep_Info_t[nDepCount];
        Arrays.setAll(this.pDepInfo, i -> new Dep_Info_t());
        this.nDeviceCount = nDeviceCount;
        this.pDeviceInfo = new Device_Info_Ex_t[nDeviceCount];
        Arrays.setAll(this.pDeviceInfo, i -> new Device_Info_Ex_t());
    }

    private static void checkCount(String what, int n) {
        if (n < 0) {
            throw new IllegalArgumentException(what + " must not be negative: " + n);
        }
    }
}
