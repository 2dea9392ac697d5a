package com.zq.OrvexCore;

/**
 * One recording found by a record search.
 */
public class Single_Record_Info_t {
    /** Index of the record file, for playback by file. */
    public int nFileIndex;
    /** Where the record is stored. */
    public int nSource;
    /** Kind of record. */
    public int nRecordType;
    /** Start time. */
    public long uBeginTime;
    /** End time. */
    public long uEndTime;
    /** Size of the record. */
    public long uLength;

    /** Creates a record with every field zero. */
    public Single_Record_Info_t() {
    }
}
