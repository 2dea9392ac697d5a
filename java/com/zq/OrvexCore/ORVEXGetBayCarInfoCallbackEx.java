package com.zq.OrvexCore;

/**
 * Receives vehicle records captured at checkpoint (bay) cameras, for the channels subscribed with
 * {@link IOrvexCore#ORVEX_SubscribeBayCarInfo}. Registered with {@link
 * IOrvexCore#ORVEX_SetORVEXGetBayCarInfoCallbackEx}. Each text arrives as an array of the length
 * given by the parameter that follows it.
 *
 * <p>It is called on a thread of the client library, attached to the virtual machine for that one
 * event and detached afterwards; keep the work short and hand anything lengthy to a thread of your
 * own.
 *
 * <p>Each byte array is new for the call and holds exactly the bytes of the text or data, without
 * a terminating zero; {@link OrvexText#fromBytes} decodes a text.
 */
@FunctionalInterface
public interface ORVEXGetBayCarInfoCallbackEx {
    /**
     * Handles one event.
     *
     * @param nPDLLHandle client instance handle
     * @param szDeviceId device identifier
     * @param nDeviceIdLen length of {@code szDeviceId}
     * @param nDevChnId channel number on the device
     * @param szChannelId channel identifier
     * @param nChannelIdLen length of {@code szChannelId}
     * @param szDeviceName device name
     * @param nDeviceNameLen length of {@code szDeviceName}
     * @param szDeviceChnName channel name
     * @param nChanNameLen length of {@code szDeviceChnName}
     * @param szCarNum plate number
     * @param nCarNumLen length of {@code szCarNum}
     * @param nCarNumType plate type
     * @param nCarNumColor plate colour
     * @param nCarSpeed speed
     * @param nCarType vehicle type
     * @param nCarColor vehicle colour
     * @param nCarLen vehicle length
     * @param nCarDirect direction of travel
     * @param nWayId lane
     * @param lCaptureTime capture time
     * @param lPicGroupStoreID storage identifier of the picture group
     * @param nIsNeedStore whether the record needs storing
     * @param nIsStoraged whether the record is stored
     * @param szCaptureOrg capturing organisation
     * @param nCaptureOrgLen length of {@code szCaptureOrg}
     * @param szOptOrg operating organisation
     * @param nOptOrgLen length of {@code szOptOrg}
     * @param szOptUser operating user
     * @param nOptUserLen length of {@code szOptUser}
     * @param szOptNote operator's note
     * @param nOptNoteLen length of {@code szOptNote}
     * @param szImg0Path path of picture 0
     * @param nImg0PathLen length of {@code szImg0Path}
     * @param szImg1Path path of picture 1
     * @param nImg1PathLen length of {@code szImg1Path}
     * @param szImg2Path path of picture 2
     * @param nImg2PathLen length of {@code szImg2Path}
     * @param szImg3Path path of picture 3
     * @param nImg3PathLen length of {@code szImg3Path}
     * @param szImg4Path path of picture 4
     * @param nImg4PathLen length of {@code szImg4Path}
     * @param szImg5Path path of picture 5
     * @param nImg5PathLen length of {@code szImg5Path}
     * @param szImgPlatePath path of the plate picture
     * @param nImgPlatePathLen length of {@code szImgPlatePath}
     * @param icarLog vehicle logo code
     * @param iPlateLeft left edge of the plate in the picture
     * @param iPlateRight right edge of the plate
     * @param iPlateTop top edge of the plate
     * @param iPlateBottom bottom edge of the plate
     */
    void invoke(
            int nPDLLHandle,
            byte[] szDeviceId,
            int nDeviceIdLen,
            int nDevChnId,
            byte[] szChannelId,
            int nChannelIdLen,
            byte[] szDeviceName,
            int nDeviceNameLen,
            byte[] szDeviceChnName,
            int nChanNameLen,
            byte[] szCarNum,
            int nCarNumLen,
            int nCarNumType,
            int nCarNumColor,
            int nCarSpeed,
            int nCarType,
            int nCarColor,
            int nCarLen,
            int nCarDirect,
            int nWayId,
            long lCaptureTime,
            long lPicGroupStoreID,
            int nIsNeedStore,
            int nIsStoraged,
            byte[] szCaptureOrg,
            int nCaptureOrgLen,
            byte[] szOptOrg,
            int nOptOrgLen,
            byte[] szOptUser,
            int nOptUserLen,
            byte[] szOptNote,
            int nOptNoteLen,
            byte[] szImg0Path,
            int nImg0PathLen,
            byte[] szImg1Path,
            int nImg1PathLen,
            byte[] szImg2Path,
            int nImg2PathLen,
            byte[] szImg3Path,
            int nImg3PathLen,
            byte[] szImg4Path,
            int nImg4PathLen,
            byte[] szImg5Path,
            int nImg5PathLen,
            byte[] szImgPlatePath,
            int nImgPlatePathLen,
            int icarLog,
            int iPlateLeft,
            int iPlateRight,
            int iPlateTop,
            int iPlateBottom);
}
