package com.zq.OrvexCore;

/**
 * Receives status changes of network alarm hosts. Registered with {@link
 * IOrvexCore#ORVEX_SetNetAlarmHostStatusCallback}.
 *
 * <p>It is called on a thread of the client library, attached to the virtual machine for that one
 * event and detached afterwards; keep the work short and hand anything lengthy to a thread of your
 * own.
 *
 * <p>Each byte array is new for the call and holds exactly the bytes of the text or data, without
 * a terminating zero; {@link OrvexText#fromBytes} decodes a text.
 */
@FunctionalInterface
public interface ORVEXNetAlarmHostStatusCallback {
    /**
     * Handles one event.
     *
     * @param nPDLLHandle client instance handle
     * @param szDeviceId device identifier
     * @param nRType report type
     * @param nOperType operation type
     * @param nStatus status
     */
    void invoke(
            int nPDLLHandle,
            byte[] szDeviceId,
            int nRType,
            int nOperType,
            int nStatus);
}
