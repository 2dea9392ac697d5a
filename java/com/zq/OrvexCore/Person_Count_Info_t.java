package com.zq.OrvexCore;

/**
 * One row of people-counting statistics.
 */
public class Person_Count_Info_t {
    /** Channel number. */
    public int nChannelID;
    /** Name of the counting rule (C string, 32 bytes). */
    public byte[] szRuleName = new byte[32];
    /** Start of the interval. */
    public int nStartTime;
    /** End of the interval. */
    public int nEndTime;
    /** People entered. */
    public int nEnteredSubTotal;
    /** People left. */
    public int nExitedSubtotal;
    /** Average inside. */
    public int nAvgInside;
    /** Maximum inside. */
    public int nMaxInside;

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public Person_Count_Info_t() {
    }
}
