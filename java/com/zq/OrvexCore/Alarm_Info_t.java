package com.zq.OrvexCore;

import java.util.Arrays;

/**
 * A page of alarm history records, read into a caller-sized array.
 */
public class Alarm_Info_t {
    /** Capacity of {@link #pAlarmInfo}; must not exceed its length. */
    public int nCount;
    /** Number of records delivered (output). */
    public int nRetCount;
    /** Records, filled in place. */
    public Single_Alarm_Info_t[] pAlarmInfo = new Single_Alarm_Info_t[0];

    /** Creates an empty record: numbers zero, record arrays of length 0. */
    public Alarm_Info_t() {
    }

    /**
     * Creates a page with room for the given number of records.
     *
     * @param nCount number of slots of {@link #pAlarmInfo}, each holding a new {@link
     *     Single_Alarm_Info_t}
     */
    public Alarm_Info_t(int nCount) {
        checkCount("nCount", nCount);
        this.nCount = nCount;
        this.pAlarmInfo = new Single_Alarm_Info_t[nCount];
        Arrays.setAll(this.pAlarmInfo, i -> new Single_Alarm_Info_t());
    }

    private static void checkCount(String what, int n) {
        if (n < 0) {
            throw new IllegalArgumentException(what + " must not be negative: " + n);
        }
    }
}
