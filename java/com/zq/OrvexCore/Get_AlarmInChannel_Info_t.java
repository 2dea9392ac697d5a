package com.zq.OrvexCore;

import java.util.Arrays;

/**
 * Request for the alarm-input channels of a device, read into a caller-sized array.
 */
public class Get_AlarmInChannel_Info_t {
    /** Device identifier (C string, 64 bytes). */
    public byte[] szDeviceId = new byte[64];
    /** Capacity of {@link #pAlarmInChannelnfo}; must not exceed its length. */
    public int nAlarmInChannelCount;
    /** Channels, filled in place. */
    public AlarmIn_Channel_Info_t[] pAlarmInChannelnfo = new AlarmIn_Channel_Info_t[0];

    /** Creates an empty record: numbers zero, text buffers allocated, record arrays of length 0. */
    public Get_AlarmInChannel_Info_t() {
    }

    /**
     * Creates a request with room for the given number of channels.
     *
     * @param nAlarmInChannelCount number of slots of {@link #pAlarmInChannelnfo}, each holding a
     *     new {@link AlarmIn_Channel_Info_t}
     */
    public Get_AlarmInChannel_Info_t(int nAlarmInChannelCount) {
        checkCount("nAlarmInChannelCount", nAlarmInChannelCount);
        this.nAlarmInChannelCount = nAlarmInChannelCount;
        this.pAlarmInChannelnfo = new AlarmIn_Channel_Info_t[nAlarmInChannelCount];
        Arrays.setAll(this.pAlarmInChannelnfo, i -> new AlarmIn_Channel_Info_t());
    }

    private static void checkCount(String what, int n) {
        if (n < 0) {
            throw new IllegalArgumentException(what + " must not be negative: " + n);
        }
    }
}
