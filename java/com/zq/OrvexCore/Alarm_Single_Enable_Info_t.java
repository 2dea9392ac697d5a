package com.zq.OrvexCore;

/**
 * One alarm source by device.
 */
public class Alarm_Single_Enable_Info_t {
    /** Device identifier of the source (C string, 64 bytes). */
    public byte[] szAlarmDevId = new byte[64];
    /** Video channel number. */
    public int nVideoNo;
    /** Alarm input number. */
    public int nAlarmInput;
    /** Alarm type. */
    public int nAlarmType;

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public Alarm_Single_Enable_Info_t() {
    }
}
