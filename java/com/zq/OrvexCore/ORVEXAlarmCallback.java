package com.zq.OrvexCore;

/**
 * Receives alarms raised on the platform. Registered with {@link
 * IOrvexCore#ORVEX_SetORVEXAlarmCallback}.
 *
 * <p>It is called on a thread of the client library, attached to the virtual machine for that one
 * event and detached afterwards; keep the work short and hand anything lengthy to a thread of your
 * own.
 *
 * <p>Each byte array is new for the call and holds exactly the bytes of the text or data, without
 * a terminating zero; {@link OrvexText#fromBytes} decodes a text.
 */
@FunctionalInterface
public interface ORVEXAlarmCallback {
    /**
     * Handles one event.
     *
     * @param nPDLLHandle client instance handle
     * @param szAlarmId alarm identifier
     * @param nDeviceType device type (unsigned)
     * @param szCameraId camera identifier
     * @param szDeviceName device name
     * @param szChannelName channel name
     * @param szCoding group coding
     * @param szMessage alarm message
     * @param nAlarmType alarm type
     * @param nEventType 1 occurrence, 2 disappearance
     * @param nLevel alarm level
     * @param nTime time of the alarm
     * @param pAlarmData binary alarm data
     * @param nAlarmDataLen length of {@code pAlarmData}
     * @param pPicData picture data
     * @param nPicDataLen length of {@code pPicData}
     */
    void invoke(
            int nPDLLHandle,
            byte[] szAlarmId,
            int nDeviceType,
            byte[] szCameraId,
            byte[] szDeviceName,
            byte[] szChannelName,
            byte[] szCoding,
            byte[] szMessage,
            int nAlarmType,
            int nEventType,
            int nLevel,
            long nTime,
            byte[] pAlarmData,
            int nAlarmDataLen,
            byte[] pPicData,
            int nPicDataLen);
}
