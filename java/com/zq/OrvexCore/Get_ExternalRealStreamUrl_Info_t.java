package com.zq.OrvexCore;

/**
 * Request for an external playable address of a camera's live stream.
 */
public class Get_ExternalRealStreamUrl_Info_t {
    /** Camera identifier (C string, 64 bytes). */
    public byte[] szCameraId = new byte[64];
    /** 1 main stream, 2 sub stream. */
    public int nStreamType;
    /** 1 video, 2 audio, 3 both. */
    public int nMediaType;
    /** 0 UDP, 1 TCP. */
    public int nTransType;
    /** Packaging of the stream (101 RTP, 501 PS, 601 original, 701, 801, 901 TS). */
    public int nTrackId;
    /** 1 to transcode through the video conversion service; any other value does not. */
    public int bUsedVCS;
    /** Codec of the transcoded stream. */
    public int nVcsVideocodec;
    /** Resolution of the transcoded stream. */
    public int nVcsResolution;
    /** Frame rate of the transcoded stream. */
    public int nVcsfps;
    /** Bit rate of the transcoded stream. */
    public int nVcsbps;
    /** The address (output, 1024 bytes); only the text's bytes are written, without terminator. */
    public byte[] szUrl = new byte[1024];

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public Get_ExternalRealStreamUrl_Info_t() {
    }
}
