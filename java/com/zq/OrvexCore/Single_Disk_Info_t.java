package com.zq.OrvexCore;

/**
 * One disk of a recording device.
 */
public class Single_Disk_Info_t {
    /** Disk identifier. */
    public int nDiskId;
    /** Capacity (unsigned). */
    public int uVolume;
    /** Free space (unsigned). */
    public int uFreeSpace;
    /** State byte. */
    public char diskState;
    /** Disk number byte. */
    public char diskNum;
    /** Number of partitions. */
    public char subareaNum;
    /** Signal value reported by the device. */
    public char signal;

    /** Creates a record with every field zero. */
    public Single_Disk_Info_t() {
    }
}
