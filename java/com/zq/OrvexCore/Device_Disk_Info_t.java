package com.zq.OrvexCore;

import java.util.Arrays;

/**
 * The disks of a recording device, read into a caller-sized array.
 */
public class Device_Disk_Info_t {
    /** Device identifier (output; C string, 64 bytes). */
    public byte[] szDevId = new byte[64];
    /** Number of disks filled (output). */
    public int nDiskInfoSize;
    /** Disks, filled in place. */
    public Single_Disk_Info_t[] pDiskInfoList = new Single_Disk_Info_t[0];

    /** Creates an empty record: numbers zero, text buffers allocated, record arrays of length 0. */
    public Device_Disk_Info_t() {
    }

    /**
     * Creates a record with room for the given number of disks; pass the same number as the
     * capacity of the fetch.
     *
     * @param nCapacity number of slots of {@link #pDiskInfoList}, each holding a new {@link
     *     Single_Disk_Info_t}
     */
    public Device_Disk_Info_t(int nCapacity) {
        checkCount("nCapacity", nCapacity);
        this.pDiskInfoList = new Single_Disk_Info_t[nCapacity];
        Arrays.setAll(this.pDiskInfoList, i -> new Single_Disk_Info_t());
    }

    private static void checkCount(String what, int n) {
        if (n < 0) {
            throw new IllegalArgumentException(what + " must not be negative: " + n);
        }
    }
}
