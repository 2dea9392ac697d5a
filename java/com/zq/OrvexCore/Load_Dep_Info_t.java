package com.zq.OrvexCore;

/**
 * Request to load one group of the organisation tree.
 */
public class Load_Dep_Info_t {
    /** Coding of the group to load (C string, 128 bytes). */
    public byte[] szCoding = new byte[128];
    /** -1 the group and everything below it, 0 the group itself, 1 its direct children. */
    public int nOperation;

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public Load_Dep_Info_t() {
    }
}
