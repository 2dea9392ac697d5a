package com.zq.OrvexCore;

import java.util.Arrays;

/**
 * Alarm sources to receive, by device and channel.
 */
public class Alarm_Enable_Info_t {
    /** Number of sources; must not exceed the length of {@link #sources}. */
    public int nCount;
    /** The sources. */
    public Alarm_Single_Enable_Info_t[] sources = new Alarm_Single_Enable_Info_t[0];

    /** Creates an empty record: numbers zero, record arrays of length 0. */
    public Alarm_Enable_Info_t() {
    }

    /**
     * Creates a request with the given number of source slots.
     *
     * @param nCount number of slots of {@link #sources}, each holding a new {@link
     *     Alarm_Single_Enable_Info_t}
     */
    public Alarm_Enable_Info_t(int nCount) {
        checkCount("nCount", nCount);
        this.nCount = nCount;
        this.sources = new Alarm_Single_Enable_Info_t[nCount];
        Arrays.setAll(this.sources, i -> new Alarm_Single_Enable_Info_t());
    }

    private static void checkCount(String what, int n) {
        if (n < 0) {
            throw new IllegalArgumentException(what + " must not be negative: " + n);
        }
    }
}
