package com.zq.OrvexCore;

/**
 * Full description of one device (encoder, recorder, camera host, decoder and so on).
 */
public class Device_Info_Ex_t {
    /** Device identifier (C string, 64 bytes). */
    public byte[] szId = new byte[64];
    /** Device name (C string, 256 bytes). */
    public byte[] szName = new byte[256];
    /** Manufacturer code. */
    public int nFactory;
    /** Device model code (an integer despite its name). */
    public int szModel;
    /** User name for the device (C string, 64 bytes). */
    public byte[] szUser = new byte[64];
    /** Password for the device (C string, 64 bytes). */
    public byte[] szPassword = new byte[64];
    /** Address by which the platform reaches the device (C string, 48 bytes). */
    public byte[] szIP = new byte[48];
    /** Device type (DVR 1, IPC 2, NVS 3, NVR 6 and so on). */
    public int nDevType;
    /** Port. */
    public int nPort;
    /** Login type code (an integer despite its name). */
    public int szLoginType;
    /** Registration identifier (C string, 64 bytes). */
    public byte[] szRegID = new byte[64];
    /** Proxy port. */
    public int nProxyPort;
    /** Number of units of the device. */
    public int nUnitNum;
    /** 0 unknown, 1 online, 2 offline. */
    public int nStatus;
    /** CN text (C string, 64 bytes). */
    public byte[] szCN = new byte[64];
    /** Serial number (C string, 64 bytes). */
    public byte[] szSN = new byte[64];
    /** Rights bit mask of the logged-in user on this device. */
    public long nRight;
    /** The device's own address (C string, 48 bytes). */
    public byte[] szDevIP = new byte[48];
    /** The device's own port. */
    public int nDevPort;
    /** Maintainer's name (C string, 64 bytes). */
    public byte[] dev_Maintainer = new byte[64];
    /** Maintainer's telephone (C string, 64 bytes). */
    public byte[] dev_MaintainerPh = new byte[64];
    /** Location (C string, 256 bytes). */
    public byte[] dev_Location = new byte[256];
    /** Description (C string, 256 bytes). */
    public byte[] desc = new byte[256];
    /** Number of encoder channels. */
    public int nEncChannelChildCount;
    /** Number of alarm-input channels. */
    public int iAlarmInChannelcount;
    /** Sort order (not filled by the bridge). */
    public int nSort;
    /** Call number (C string, 48 bytes). */
    public byte[] szCallNum = new byte[48];

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public Device_Info_Ex_t() {
    }
}
