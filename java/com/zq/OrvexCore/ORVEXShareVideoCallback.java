package com.zq.OrvexCore;

/**
 * Receives videos that another user shares with this one. Registered with {@link
 * IOrvexCore#ORVEX_SetShareVideoCallback}.
 *
 * <p>It is called on a thread of the client library, attached to the virtual machine for that one
 * event and detached afterwards; keep the work short and hand anything lengthy to a thread of your
 * own.
 *
 * <p>Each byte array is new for the call and holds exactly the bytes of the text or data, without
 * a terminating zero; {@link OrvexText#fromBytes} decodes a text.
 */
@FunctionalInterface
public interface ORVEXShareVideoCallback {
    /**
     * Handles one event.
     *
     * @param nPDLLHandle client instance handle
     * @param pVideoInfo the shared videos, new objects
     * @param szMsg message of the sender
     * @param nSrcUserId identifier of the sender
     * @param szSrcUserName name of the sender
     */
    void invoke(
            int nPDLLHandle,
            ShareVideoInfo[] pVideoInfo,
            byte[] szMsg,
            int nSrcUserId,
            byte[] szSrcUserName);
}
