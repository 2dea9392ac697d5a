package com.zq.OrvexCore.TvWall;

/**
 * Split a wall screen into panes.
 */
public class TvWall_Screen_Split_t {
    /** Wall. */
    public int nTvWallId;
    /** Screen of the wall. */
    public int nScreenId;
    /** Number of panes: 1, 4, 9 or 16. */
    public int enSplitNum;

    /** Creates a record with every field zero. */
    public TvWall_Screen_Split_t() {
    }
}
