package com.zq.OrvexCore.TvWall;

/**
 * One screen (decoder output) of a video wall and its place on the wall.
 */
public class TvWall_Screen_Info_t {
    /** Screen identifier within the wall. */
    public int nScreenId;
    /** Screen name (C string, 256 bytes). */
    public byte[] szName = new byte[256];
    /** Identifier of the decoder that drives the screen (C string, 64 bytes). */
    public byte[] szDecoderId = new byte[64];
    /** Left edge on the wall. */
    public float fLeft;
    /** Top edge on the wall. */
    public float fTop;
    /** Width. */
    public float fWidth;
    /** Height. */
    public float fHeight;
    /** The screen is bound to a decoder output. */
    public boolean bBind;

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public TvWall_Screen_Info_t() {
    }
}
