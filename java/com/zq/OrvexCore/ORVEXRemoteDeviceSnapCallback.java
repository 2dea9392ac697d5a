package com.zq.OrvexCore;

/**
 * Receives notice of snapshots taken on a device. Registered with {@link
 * IOrvexCore#ORVEX_SetORVEXRemoteDeviceSnapCallback}.
 *
 * <p>It is called on a thread of the client library, attached to the virtual machine for that one
 * event and detached afterwards; keep the work short and hand anything lengthy to a thread of your
 * own.
 *
 * <p>Each byte array is new for the call and holds exactly the bytes of the text or data, without
 * a terminating zero; {@link OrvexText#fromBytes} decodes a text.
 */
@FunctionalInterface
public interface ORVEXRemoteDeviceSnapCallback {
    /**
     * Handles one event.
     *
     * @param nPDLLHandle client instance handle
     * @param szCameraId camera identifier
     * @param szFullPath path of the picture
     */
    void invoke(int nPDLLHandle, byte[] szCameraId, byte[] szFullPath);
}
