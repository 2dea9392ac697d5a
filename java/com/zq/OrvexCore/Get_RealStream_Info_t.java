package com.zq.OrvexCore;

/**
 * Request for a live stream of one camera.
 */
public class Get_RealStream_Info_t {
    /** Camera identifier (C string, 64 bytes). */
    public byte[] szCameraId = new byte[64];
    /** 0 checks the user's right, 1 does not. */
    public int nRight;
    /** 1 main stream, 2 sub stream. */
    public int nStreamType;
    /** 1 video, 2 audio, 3 both. */
    public int nMediaType;
    /** 0 UDP, 1 TCP. */
    public int nTransType;

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public Get_RealStream_Info_t() {
    }
}
