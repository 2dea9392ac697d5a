package com.zq.OrvexCore.client;

/**
 * An encoder channel of a device: a camera, addressed by streams, PTZ and alarms.
 *
 * @param id its identifier
 * @param name its name
 * @param cameraType the camera type (1 normal, 2 speed dome, 3 half dome, 4 evidence, ...)
 * @param rights the user's rights on it, as a bit set
 * @param channelType the channel type
 * @param status 0 unknown, 1 online, 2 offline
 * @param serialNumber its serial number
 * @param latitude its latitude as the platform writes it
 * @param longitude its longitude as the platform writes it
 * @param multicastIp its multicast address, empty if none
 * @param multicastPort its multicast port
 */
public record Channel(CameraId id, String name, int cameraType, long rights, int channelType,
        int status, String serialNumber, String latitude, String longitude, String multicastIp,
        int multicastPort) {}
