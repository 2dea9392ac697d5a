package com.zq.OrvexCore;

/**
 * Receives online status changes of devices. Registered with {@link
 * IOrvexCore#ORVEX_SetORVEXDeviceStatusCallback}.
 *
 * <p>It is called on a thread of the client library, attached to the virtual machine for that one
 * event and detached afterwards; keep the work short and hand anything lengthy to a thread of your
 * own.
 *
 * <p>Each byte array is new for the call and holds exactly the bytes of the text or data, without
 * a terminating zero; {@link OrvexText#fromBytes} decodes a text.
 */
@FunctionalInterface
public interface ORVEXDevStatusCallback {
    /**
     * Handles one event.
     *
     * @param nPDLLHandle client instance handle
     * @param szDeviceId device identifier
     * @param nStatus 0 unknown, 1 online, 2 offline
     */
    void invoke(int nPDLLHandle, byte[] szDeviceId, int nStatus);
}
