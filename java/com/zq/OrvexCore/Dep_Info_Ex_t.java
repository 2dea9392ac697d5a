package com.zq.OrvexCore;

/**
 * One department of the logical organisation.
 */
public class Dep_Info_Ex_t {
    /** Department coding (C string, 128 bytes). */
    public byte[] szCoding = new byte[128];
    /** Department name (C string, 256 bytes). */
    public byte[] szDepName = new byte[256];
    /** Time of the last change (C string, 128 bytes). */
    public byte[] szModifyTime = new byte[128];
    /** Serial number (C string, 256 bytes). */
    public byte[] szSN = new byte[256];
    /** Memo (C string, 1024 bytes). */
    public byte[] szMemo = new byte[1024];
    /** Department type. */
    public int nDepType;
    /** Sort order. */
    public int nDepSort;
    /** Charge booth flag. */
    public int nChargebooth;
    /** Extended department type. */
    public int nDepExtType;
    /** Organisation identifier (not filled by the bridge; C string, 128 bytes). */
    public byte[] szOrgID = new byte[128];

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public Dep_Info_Ex_t() {
    }
}
