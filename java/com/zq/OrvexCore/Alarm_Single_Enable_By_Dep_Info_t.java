package com.zq.OrvexCore;

/**
 * One alarm source by department.
 */
public class Alarm_Single_Enable_By_Dep_Info_t {
    /** Department code; must contain its terminating zero byte (C string, 64 bytes). */
    public byte[] szAlarmDepartmentCode = new byte[64];
    /** Video channel number. */
    public int nVideoNo;
    /** Alarm input number. */
    public int nAlarmInput;
    /** Alarm type. */
    public int nAlarmType;

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public Alarm_Single_Enable_By_Dep_Info_t() {
    }
}
