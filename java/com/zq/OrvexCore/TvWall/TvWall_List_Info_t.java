package com.zq.OrvexCore.TvWall;

import java.util.Arrays;

/**
 * The video walls of the platform, read into a caller-sized array.
 */
public class TvWall_List_Info_t {
    /** Capacity of {@link #pTvWallInfo}; must not exceed its length. */
    public int nCount;
    /** Walls, filled in place. */
    public TvWall_Info_t[] pTvWallInfo = new TvWall_Info_t[0];

    /** Creates an empty record: numbers zero, record arrays of length 0. */
    public TvWall_List_Info_t() {
    }

    /**
     * Creates a list with room for the given number of walls.
     *
     * @param nCount number of slots of {@link #pTvWallInfo}, each holding a new {@link
     *     TvWall_Info_t}
     */
    public TvWall_List_Info_t(int nCount) {
        checkCount("nCount", nCount);
        this.nCount = nCount;
        this.pTvWallInfo = new TvWall_Info_t[nCount];
        Arrays.setAll(this.pTvWallInfo, i -> new TvWall_Info_t());
    }

    private static void checkCount(String what, int n) {
        if (n < 0) {
            throw new IllegalArgumentException(what + " must not be negative: " + n);
        }
    }
}
