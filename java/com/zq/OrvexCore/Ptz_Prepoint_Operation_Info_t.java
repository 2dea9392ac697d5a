package com.zq.OrvexCore;

/**
 * Go to, add or delete one preset point.
 */
public class Ptz_Prepoint_Operation_Info_t {
    /** Camera identifier (C string, 64 bytes). */
    public byte[] szCameraId = new byte[64];
    /** 1 go to the preset, 2 add it, 3 delete it. */
    public int nCmd;
    /** The preset concerned. */
    public Ptz_Single_Prepoint_Info_t pPoints = new Ptz_Single_Prepoint_Info_t();

    /** Creates a request with a zero-filled camera identifier and an empty preset. */
    public Ptz_Prepoint_Operation_Info_t() {
    }
}
