package com.zq.OrvexCore.TvWall;

/**
 * Open a free window at a position of a wall screen.
 */
public class TvWall_Screen_Open_Window_t {
    /** Wall. */
    public int nTvWallId;
    /** Screen of the wall. */
    public int nScreenId;
    /** Left edge of the window. */
    public float fLeft;
    /** Top edge of the window. */
    public float fTop;
    /** Width of the window. */
    public float fWidth;
    /** Height of the window. */
    public float fHeight;
    /** Identifier of the new window (output). */
    public int nWindowId;
    /** Stacking order of the new window (output). */
    public int nZorder;

    /** Creates a record with every field zero. */
    public TvWall_Screen_Open_Window_t() {
    }
}
