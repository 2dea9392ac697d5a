package com.zq.OrvexCore.TvWall;

/**
 * Close the source of a window of a wall screen.
 */
public class TvWall_Screen_Close_Source_t {
    /** Wall. */
    public int nTvWallId;
    /** Screen of the wall. */
    public int nScreenId;
    /** Window of the screen. */
    public int nWindowId;

    /** Creates a record with every field zero. */
    public TvWall_Screen_Close_Source_t() {
    }
}
