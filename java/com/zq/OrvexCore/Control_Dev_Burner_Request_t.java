package com.zq.OrvexCore;

/**
 * Command to the disc burner of a recording device.
 */
public class Control_Dev_Burner_Request_t {
    /** Device identifier (C string, 64 bytes). */
    public byte[] deviceId = new byte[64];
    /** 1 start, 2 pause, 3 continue, 4 stop burning, 5 change disc. */
    public int cmd;
    /** Bit mask of the channels to burn. */
    public int channelMask;
    /** Bit mask of the burners to use. */
    public int burnerMask;
    /** Burning mode. */
    public int emMode;
    /** Packing mode. */
    public int emPack;

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public Control_Dev_Burner_Request_t() {
    }
}
