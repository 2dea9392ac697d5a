package com.zq.OrvexCore;

/**
 * Receives changes of the device catalogue. Registered with {@link
 * IOrvexCore#ORVEX_SetORVEXDeviceChangeCallback}.
 *
 * <p>It is called on a thread of the client library, attached to the virtual machine for that one
 * event and detached afterwards; keep the work short and hand anything lengthy to a thread of your
 * own.
 *
 * <p>Each byte array is new for the call and holds exactly the bytes of the text or data, without
 * a terminating zero; {@link OrvexText#fromBytes} decodes a text.
 */
@FunctionalInterface
public interface ORVEXDeviceChangeCallback {
    /**
     * Handles one event.
     *
     * @param nPDLLHandle client instance handle
     * @param nChangeType kind of change (unsigned, bits unchanged)
     * @param szDeviceId device identifier
     * @param szDepCode group coding
     * @param szNewOrgCode new organisation coding
     */
    void invoke(
            int nPDLLHandle,
            int nChangeType,
            byte[] szDeviceId,
            byte[] szDepCode,
            byte[] szNewOrgCode);
}
