package com.zq.OrvexCore;

/**
 * An alarm scheme kept on the platform.
 */
public class AlarmSchemeInfo_t {
    /** 0 closed, 1 open. */
    public int status;
    /** Scheme identifier. */
    public int id;
    /** Scheme name (C string, 256 bytes). */
    public byte[] schemeName = new byte[256];
    /** Template identifier. */
    public int templateId;
    /** Description (C string, 512 bytes). */
    public byte[] desc = new byte[512];

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public AlarmSchemeInfo_t() {
    }
}
