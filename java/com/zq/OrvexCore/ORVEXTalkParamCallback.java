package com.zq.OrvexCore;

/**
 * Receives the audio parameters negotiated for a talk session. Registered with {@link
 * IOrvexCore#ORVEX_SetORVEXTalkParamCallback}.
 *
 * <p>It is called on a thread of the client library, attached to the virtual machine for that one
 * event and detached afterwards; keep the work short and hand anything lengthy to a thread of your
 * own.
 */
@FunctionalInterface
public interface ORVEXTalkParamCallback {
    /**
     * Handles one event.
     *
     * @param nPDLLHandle client instance handle
     * @param nTalkType 1 device, 2 channel
     * @param nAudioType audio coding
     * @param nAudioBit bits per sample
     * @param nSampleRate sample rate in hertz
     * @param nTransMode transport mode
     */
    void invoke(
            int nPDLLHandle,
            int nTalkType,
            int nAudioType,
            int nAudioBit,
            int nSampleRate,
            int nTransMode);
}
