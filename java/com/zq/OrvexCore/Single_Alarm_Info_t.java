package com.zq.OrvexCore;

/**
 * One alarm of the alarm history.
 */
public class Single_Alarm_Info_t {
    /** Alarm type. */
    public int nAlarmType;
    /** 1 occurrence, 2 disappearance. */
    public int nEventType;
    /** Device identifier (C string, 64 bytes). */
    public byte[] szDevId = new byte[64];
    /** Channel number. */
    public int uChannel;
    /** Time of the alarm. */
    public long uAlarmTime;
    /** Handling state (1, 2, 4, 8 or 16). */
    public int nDealWith;
    /** Alarm message (C string, 4096 bytes). */
    public byte[] szMessage = new byte[4096];

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public Single_Alarm_Info_t() {
    }
}
