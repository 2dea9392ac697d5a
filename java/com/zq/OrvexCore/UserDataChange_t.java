package com.zq.OrvexCore;

/**
 * Organisation data change delivered to a data-change listener.
 */
public class UserDataChange_t {
    /** First parameter of the change. */
    public long nParam1;
    /** Second parameter of the change. */
    public long nParam2;
    /** First message; a delivered object holds exactly the message's bytes, without terminator. */
    public byte[] szMsg1 = new byte[3072];
    /** Second message; a delivered object holds exactly the message's bytes, without terminator. */
    public byte[] szMsg2 = new byte[3072];

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public UserDataChange_t() {
    }
}
