package com.zq.OrvexCore;

import java.util.Arrays;

/**
 * Subscription to the vehicle records of checkpoint (bay) cameras.
 */
public class Subscribe_Bay_Car_Info_t {
    /** Number of channels; must not exceed the length of {@link #pEncChannelnfo}. */
    public int nChnlCount;
    /** Subscribe or cancel, as the platform defines. */
    public int nSubscribeFlag;
    /** The channels. */
    public Enc_Channel_Info_t[] pEncChannelnfo = new Enc_Channel_Info_t[0];

    /** Creates an empty record: numbers zero, record arrays of length 0. */
    public Subscribe_Bay_Car_Info_t() {
    }

    /**
     * Creates a subscription with the given number of channel slots.
     *
     * @param nChnlCount number of slots of {@link #pEncChannelnfo}, each holding a new {@link
     *     Enc_Channel_Info_t}
     */
    public Subscribe_Bay_Car_Info_t(int nChnlCount) {
        checkCount("nChnlCount", nChnlCount);
        this.nChnlCount = nChnlCount;
        this.pEncChannelnfo = new Enc_Channel_Info_t[nChnlCount];
        Arrays.setAll(this.pEncChannelnfo, i -> new Enc_Channel_Info_t());
    }

    private static void checkCount(String what, int n) {
        if (n < 0) {
            throw new IllegalArgumentException(what + " must not be negative: " + n);
        }
    }
}
