package com.zq.OrvexCore;

/**
 * Receives status changes of access-control doors. Registered with {@link
 * IOrvexCore#ORVEX_SetPecDoorStatusCallback}.
 *
 * <p>It is called on a thread of the client library, attached to the virtual machine for that one
 * event and detached afterwards; keep the work short and hand anything lengthy to a thread of your
 * own.
 *
 * <p>Each byte array is new for the call and holds exactly the bytes of the text or data, without
 * a terminating zero; {@link OrvexText#fromBytes} decodes a text.
 */
@FunctionalInterface
public interface ORVEXPecDoorStarusCallBack {
    /**
     * Handles one event.
     *
     * @param nPDLLHandle client instance handle
     * @param szCamearId door channel identifier
     * @param nStatus 0 closed, 1 open, 2 disconnected
     * @param nTime time of the change, low 32 bits only
     */
    void invoke(int nPDLLHandle, byte[] szCamearId, int nStatus, int nTime);
}
