package com.zq.OrvexCore;

/**
 * Holder through which a native method returns one integer: a handle, a count, a length, a
 * sequence number or a state.
 */
public class Return_Value_Info_t {
    /** The value returned by the call; left unchanged when the call fails. */
    public int nReturnValue;

    /** Creates a record with every field zero. */
    public Return_Value_Info_t() {
    }
}
