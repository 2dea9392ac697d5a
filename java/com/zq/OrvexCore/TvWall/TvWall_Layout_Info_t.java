package com.zq.OrvexCore.TvWall;

import java.util.Arrays;

/**
 * The screens of one video wall, read into a caller-sized array.
 */
public class TvWall_Layout_Info_t {
    /** The wall to describe. */
    public int nTvWallId;
    /** Capacity of {@link #pScreenInfo}; must not exceed its length. */
    public int nCount;
    /** Screens, filled in place. */
    public TvWall_Screen_Info_t[] pScreenInfo = new TvWall_Screen_Info_t[0];

    /** Creates an empty record: numbers zero, record arrays of length 0. */
    public TvWall_Layout_Info_t() {
    }

    /**
     * Creates a layout with room for the given number of screens.
     *
     * @param nCount number of slots of {@link #pScreenInfo}, each holding a new {@link
     *     TvWall_Screen_Info_t}
     */
    public TvWall_Layout_Info_t(int nCount) {
        checkCount("nCount", nCount);
        this.nCount = nCount;
        this.pScreenInfo = new TvWall_Screen_Info_t[nCount];
        Arrays.setAll(this.pScreenInfo, i -> new TvWall_Screen_Info_t());
    }

    /**
     * Creates a layout request for one wall with room for the given number of screens.
     *
     * @param nTvWallId the wall to describe
     * @param nCount number of screen slots
     */
    public TvWall_Layout_Info_t(int nTvWallId, int nCount) {
        this(nCount);
        this.nTvWallId = nTvWallId;
    }

    private static void checkCount(String what, int n) {
        if (n < 0) {
            throw new IllegalArgumentException(what + " must not be negative: " + n);
        }
    }
}
