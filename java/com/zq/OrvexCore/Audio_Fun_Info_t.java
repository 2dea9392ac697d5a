package com.zq.OrvexCore;

/**
 * The client library's audio entry point and its user data, as opaque numbers.
 */
public class Audio_Fun_Info_t {
    /** Address of the entry point. */
    public long pCallBackFun;
    /** User data of the entry point. */
    public long pUserParam;

    /** Creates a record with every field zero. */
    public Audio_Fun_Info_t() {
    }
}
