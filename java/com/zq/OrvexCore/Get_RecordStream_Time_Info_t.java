package com.zq.OrvexCore;

/**
 * Request to play back a time span of recordings.
 */
public class Get_RecordStream_Time_Info_t {
    /** Camera identifier (C string, 64 bytes). */
    public byte[] szCameraId = new byte[64];
    /** 0 checks the user's right, 1 does not. */
    public int nRight;
    /** 1 normal playback, 2 download. */
    public int nMode;
    /** 1 everywhere, 2 device, 3 platform. */
    public int nSource;
    /** Start of the span. */
    public long uBeginTime;
    /** End of the span. */
    public long uEndTime;

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public Get_RecordStream_Time_Info_t() {
    }
}
