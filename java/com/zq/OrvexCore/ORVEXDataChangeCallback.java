package com.zq.OrvexCore;

/**
 * Receives changes of organisation data, each as a new {@link UserDataChange_t}. The bridge offers
 * no setter for this kind at present.
 *
 * <p>It is called on a thread of the client library, attached to the virtual machine for that one
 * event and detached afterwards; keep the work short and hand anything lengthy to a thread of your
 * own.
 */
@FunctionalInterface
public interface ORVEXDataChangeCallback {
    /**
     * Handles one event.
     *
     * @param nPDLLHandle client instance handle
     * @param pDataChangeInfo the change
     */
    void invoke(int nPDLLHandle, UserDataChange_t pDataChangeInfo);
}
