package com.zq.OrvexCore;

/**
 * Receives changes of the connection status of a client instance. Registered with {@link
 * IOrvexCore#ORVEX_SetORVEXStatusCallback}.
 *
 * <p>It is called on a thread of the client library, attached to the virtual machine for that one
 * event and detached afterwards; keep the work short and hand anything lengthy to a thread of your
 * own.
 */
@FunctionalInterface
public interface ORVEXStatusCallback {
    /**
     * Handles one event.
     *
     * @param nPDLLHandle client instance handle
     * @param nStatus new connection status
     */
    void invoke(int nPDLLHandle, int nStatus);
}
