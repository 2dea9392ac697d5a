package com.zq.OrvexCore;

/**
 * One shared video: sent with a share request and received by the share-video listener.
 */
public class ShareVideoInfo {
    /** Channel identifier (C string, 64 bytes). */
    public byte[] szCameraId = new byte[64];
    /** Kind of video (live or playback). */
    public int nType;
    /** Stream to use (main or sub). */
    public int nSubStream;
    /** Non-zero when the source is a mobile device. */
    public int nIsMobile;
    /** Plan identifier. */
    public long nPlanId;
    /** Playback time for recorded video. */
    public long nPlaybacktime;

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public ShareVideoInfo() {
    }
}
