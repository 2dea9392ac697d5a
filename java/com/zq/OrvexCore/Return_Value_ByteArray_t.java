package com.zq.OrvexCore;

/**
 * Holder through which a native method returns one byte string, such as a logical node identifier.
 */
public class Return_Value_ByteArray_t {
    /** The returned text as C-string bytes (C string, 128 bytes). */
    public byte[] szCodeID = new byte[128];

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public Return_Value_ByteArray_t() {
    }
}
