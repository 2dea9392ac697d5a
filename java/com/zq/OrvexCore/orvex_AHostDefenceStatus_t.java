package com.zq.OrvexCore;

/**
 * Defence state of one zone of a network alarm host.
 */
public class orvex_AHostDefenceStatus_t {
    /** Zone (channel) identifier (C string, 64 bytes). */
    public byte[] szNodeID = new byte[64];
    /** Alarm state. */
    public int nAlarm;
    /** Alarm state while disarmed. */
    public int nUndefendAlarm;
    /** Zone bypassed. */
    public boolean bByPass;
    /** Zone armed. */
    public boolean bDefend;

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public orvex_AHostDefenceStatus_t() {
    }
}
