package com.zq.OrvexCore;

/**
 * Receives channel states of network video recorders, as requested with {@link
 * IOrvexCore#ORVEX_QueryNVRChnlStatus}. Registered with {@link
 * IOrvexCore#ORVEX_SetORVEXNVRChnlStatusCallback}.
 *
 * <p>It is called on a thread of the client library, attached to the virtual machine for that one
 * event and detached afterwards; keep the work short and hand anything lengthy to a thread of your
 * own.
 *
 * <p>Each byte array is new for the call and holds exactly the bytes of the text or data, without
 * a terminating zero; {@link OrvexText#fromBytes} decodes a text.
 */
@FunctionalInterface
public interface ORVEXNVRChnlStatusCallback {
    /**
     * Handles one event.
     *
     * @param nPDLLHandle client instance handle
     * @param szChnlId channel identifier
     * @param nStatus channel status
     */
    void invoke(int nPDLLHandle, byte[] szChnlId, int nStatus);
}
