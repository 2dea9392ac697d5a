package com.zq.OrvexCore.TvWall;

/**
 * Put a camera's video into a window of a wall screen.
 */
public class Set_TvWall_Screen_Window_Source_t {
    /** Wall. */
    public int nTvWallId;
    /** Screen of the wall. */
    public int nScreenId;
    /** Window of the screen. */
    public int nWindowId;
    /** Camera to show (C string, 64 bytes). */
    public byte[] szCameraId = new byte[64];
    /** Dwell time of the source. */
    public long nStayTime;
    /** 1 main stream, 2 sub stream. */
    public int enStreamType;

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public Set_TvWall_Screen_Window_Source_t() {
    }
}
