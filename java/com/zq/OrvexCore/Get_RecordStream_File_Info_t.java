package com.zq.OrvexCore;

/**
 * Request to play back one record file.
 */
public class Get_RecordStream_File_Info_t {
    /** Camera identifier (C string, 64 bytes). */
    public byte[] szCameraId = new byte[64];
    /** 0 checks the user's right, 1 does not. */
    public int nRight;
    /** 1 normal playback, 2 download. */
    public int nMode;
    /** Record file index from the search. */
    public int nFileIndex;
    /** Start time. */
    public long uBeginTime;
    /** End time. */
    public long uEndTime;

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public Get_RecordStream_File_Info_t() {
    }
}
