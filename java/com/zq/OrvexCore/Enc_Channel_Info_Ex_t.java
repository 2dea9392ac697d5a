package com.zq.OrvexCore;

/**
 * One encoder channel (camera) of a device, extended form.
 */
public class Enc_Channel_Info_Ex_t {
    /** Camera type. */
    public int nCameraType;
    /** Channel identifier (C string, 64 bytes). */
    public byte[] szId = new byte[64];
    /** Channel name (C string, 256 bytes). */
    public byte[] szName = new byte[256];
    /** Rights bit mask of the user on the channel. */
    public long nRight;
    /** Channel type. */
    public int nChnlType;
    /** Channel status. */
    public int nStatus;
    /** Channel serial number (C string, 64 bytes). */
    public byte[] szChnlSN = new byte[64];
    /** Latitude (C string, 64 bytes). */
    public byte[] szLatitude = new byte[64];
    /** Longitude (C string, 64 bytes). */
    public byte[] szLongitude = new byte[64];
    /** Multicast address (C string, 48 bytes). */
    public byte[] szMulticastIp = new byte[48];
    /** Multicast port. */
    public int nMulticastPort;

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public Enc_Channel_Info_Ex_t() {
    }
}
