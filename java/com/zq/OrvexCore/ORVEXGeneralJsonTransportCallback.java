package com.zq.OrvexCore;

/**
 * Receives general JSON messages from the platform, such as answers to {@link
 * IOrvexCore#ORVEX_GeneralJsonTransport}. Registered with {@link
 * IOrvexCore#ORVEX_SetGeneralJsonTransportCallback}.
 *
 * <p>It is called on a thread of the client library, attached to the virtual machine for that one
 * event and detached afterwards; keep the work short and hand anything lengthy to a thread of your
 * own.
 *
 * <p>Each byte array is new for the call and holds exactly the bytes of the text or data, without
 * a terminating zero; {@link OrvexText#fromBytes} decodes a text.
 */
@FunctionalInterface
public interface ORVEXGeneralJsonTransportCallback {
    /**
     * Handles one event.
     *
     * @param nPDLLHandle client instance handle
     * @param szJson the JSON text
     */
    void invoke(int nPDLLHandle, byte[] szJson);
}
