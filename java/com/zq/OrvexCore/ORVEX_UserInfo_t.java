package com.zq.OrvexCore;

/**
 * Account data of the logged-in user.
 */
public class ORVEX_UserInfo_t {
    /** User identifier. */
    public int iUserId;
    /** User level. */
    public int iUserLevel;
    /** Operation flag of the user. */
    public boolean iUserOperFlag;
    /** Coding of the user's group (C string, 128 bytes). */
    public byte[] szCoding = new byte[128];
    /** Name of the user's group (C string, 256 bytes). */
    public byte[] szCodeName = new byte[256];

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public ORVEX_UserInfo_t() {
    }
}
