package com.zq.OrvexCore;

import java.util.Arrays;

/**
 * Request for the encoder channels of a device, short form.
 */
public class Get_Channel_Info_t {
    /** Device identifier (C string, 64 bytes). */
    public byte[] szDeviceId = new byte[64];
    /** Capacity of {@link #pEncChannelnfo}; must not exceed its length. */
    public int nEncChannelChildCount;
    /** Channels, filled in place. */
    public Enc_Channel_Info_t[] pEncChannelnfo = new Enc_Channel_Info_t[0];

    /** Creates an empty record: numbers zero, text buffers allocated, record arrays of length 0. */
    public Get_Channel_Info_t() {
    }

    /**
     * Creates a request with room for the given number of channels.
     *
     * @param nEncChannelChildCount number of slots of {@link #pEncChannelnfo}, each holding a new
     *     {@link Enc_Channel_Info_t}
     */
    public Get_Channel_Info_t(int nEncChannelChildCount) {
        checkCount("nEncChannelChildCount", nEncChannelChildCount);
        this.nEncChannelChildCount = nEncChannelChildCount;
        this.pEncChannelnfo = new Enc_Channel_Info_t[nEncChannelChildCount];
        Arrays.setAll(this.pEncChannelnfo, i -> new Enc_Channel_Info_t());
    }

    private static void checkCount(String what, int n) {
        if (n < 0) {
            throw new IllegalArgumentException(what + " must not be negative: " + n);
        }
    }
}
