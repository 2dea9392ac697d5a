package com.zq.OrvexCore;

/**
 * An alarm raised by this client on the platform.
 */
public class Client_Alarm_Info_t {
    /** Camera the alarm concerns (C string, 64 bytes). */
    public byte[] szCameraId = new byte[64];
    /** Alarm type. */
    public int enAlarmType;
    /** 1 occurrence, 2 disappearance. */
    public int enStatus;
    /** Time of the alarm. */
    public long uAlarmTime;
    /** Message (C string, 4096 bytes). */
    public byte[] szMsg = new byte[4096];

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public Client_Alarm_Info_t() {
    }
}
