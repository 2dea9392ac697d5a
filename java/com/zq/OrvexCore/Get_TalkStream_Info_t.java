package com.zq.OrvexCore;

/**
 * Request to open a two-way talk session.
 */
public class Get_TalkStream_Info_t {
    /** Channel or device identifier (C string, 64 bytes). */
    public byte[] szCameraId = new byte[64];
    /** Audio coding. */
    public int nAudioType;
    /** 1 talk with a device, 2 with a channel. */
    public int nTalkType;
    /** Bits per sample (8 or 16). */
    public int nBitsType;
    /** Sample rate (8000, 16000, 8192 or 48000). */
    public int nSampleType;
    /** 0 UDP, 1 TCP. */
    public int nTransType;

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public Get_TalkStream_Info_t() {
    }
}
