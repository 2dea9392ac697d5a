package com.zq.OrvexCore;

/**
 * Filter of an alarm history query: camera, time span and alarm type.
 */
public class Alarm_Query_Info_t {
    /** Camera identifier (C string, 64 bytes). */
    public byte[] szCameraId = new byte[64];
    /** Start of the span. */
    public long uStartTime;
    /** End of the span. */
    public long uEndTime;
    /** Alarm type. */
    public int nAlarmType;

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public Alarm_Query_Info_t() {
    }
}
