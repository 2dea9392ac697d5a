package com.zq.OrvexCore;

/**
 * Receives status changes of video alarm hosts. Registered with {@link
 * IOrvexCore#ORVEX_SetVideoAlarmHostStatusCallback}.
 *
 * <p>It is called on a thread of the client library, attached to the virtual machine for that one
 * event and detached afterwards; keep the work short and hand anything lengthy to a thread of your
 * own.
 *
 * <p>Each byte array is new for the call and holds exactly the bytes of the text or data, without
 * a terminating zero; {@link OrvexText#fromBytes} decodes a text.
 */
@FunctionalInterface
public interface ORVEXVideoAlarmHostStatusCallback {
    /**
     * Handles one event.
     *
     * @param nPDLLHandle client instance handle
     * @param szDeviceId device identifier
     * @param nChannelNO channel number
     * @param nStatus status
     */
    void invoke(int nPDLLHandle, byte[] szDeviceId, int nChannelNO, int nStatus);
}
