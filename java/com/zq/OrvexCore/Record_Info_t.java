package com.zq.OrvexCore;

import java.util.Arrays;

/**
 * A window of the result of the last record search, read into a caller-sized array.
 */
public class Record_Info_t {
    /** Camera identifier of the search (C string, 64 bytes). */
    public byte[] szCameraId = new byte[64];
    /** Index of the first record wanted. */
    public int nBegin;
    /** Number of records wanted; must not exceed the length of {@link #pSingleRecord}. */
    public int nCount;
    /** Records, filled in place. */
    public Single_Record_Info_t[] pSingleRecord = new Single_Record_Info_t[0];

    /** Creates an empty record: numbers zero, text buffers allocated, record arrays of length 0. */
    public Record_Info_t() {
    }

    /**
     * Creates a request for the given number of records, with that many slots.
     *
     * @param nCount number of slots of {@link #pSingleRecord}, each holding a new {@link
     *     Single_Record_Info_t}
     */
    public Record_Info_t(int nCount) {
        checkCount("nCount", nCount);
        this.nCount = nCount;
        this.pSingleRecord = new Single_Record_Info_t[nCount];
        Arrays.setAll(this.pSingleRecord, i -> new Single_Record_Info_t());
    }

    private static void checkCount(String what, int n) {
        if (n < 0) {
            throw new IllegalArgumentException(what + " must not be negative: " + n);
        }
    }
}
