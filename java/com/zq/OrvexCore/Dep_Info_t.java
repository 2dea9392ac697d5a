package com.zq.OrvexCore;

/**
 * One group (department) of the organisation tree.
 */
public class Dep_Info_t {
    /** Group coding (C string, 128 bytes). */
    public byte[] szCoding = new byte[128];
    /** Group name (C string, 256 bytes). */
    public byte[] szDepName = new byte[256];

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public Dep_Info_t() {
    }
}
