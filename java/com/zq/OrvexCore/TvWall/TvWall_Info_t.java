package com.zq.OrvexCore.TvWall;

/**
 * One video wall.
 */
public class TvWall_Info_t {
    /** Wall identifier. */
    public int nTvWallId;
    /** Wall state as the platform reports it. */
    public int nState;
    /** Wall name (C string, 256 bytes). */
    public byte[] szName = new byte[256];

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public TvWall_Info_t() {
    }
}
