package com.zq.OrvexCore;

/**
 * Search for recordings of one camera in a time span.
 */
public class Query_Record_Info_t {
    /** Camera identifier (C string, 64 bytes). */
    public byte[] szCameraId = new byte[64];
    /** 0 checks the user's right, 1 does not. */
    public int nRight;
    /** 1 everywhere, 2 device, 3 platform. */
    public int nSource;
    /** Kind of record. */
    public int nRecordType;
    /** Start of the span. */
    public long uBeginTime;
    /** End of the span. */
    public long uEndTime;

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public Query_Record_Info_t() {
    }
}
