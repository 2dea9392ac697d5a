package com.zq.OrvexCore;

/**
 * Buffer that receives the link-resource description (XML text).
 */
public class GetLinkResource_Responce_t {
    /** Size of {@link #pXmlData} offered to the library. */
    public int nLen;
    /** Receives the text's bytes, without terminator. */
    public byte[] pXmlData = new byte[0];

    /** Creates an empty buffer of size 0. */
    public GetLinkResource_Responce_t() {
    }

    /**
     * Creates a buffer of the given size.
     *
     * @param nLen buffer size in bytes, normally the length reported by the query
     */
    public GetLinkResource_Responce_t(int nLen) {
        if (nLen < 0) {
            throw new IllegalArgumentException("nLen must not be negative: " + nLen);
        }
        this.nLen = nLen;
        this.pXmlData = new byte[nLen];
    }
}
