package com.zq.OrvexCore;

/**
 * Address of the electronic map server.
 */
public class Config_Emap_Addr_Info_t {
    /** Map server address (C string, 48 bytes). */
    public byte[] szIP = new byte[48];
    /** Map server port. */
    public int nPort;

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public Config_Emap_Addr_Info_t() {
    }
}
