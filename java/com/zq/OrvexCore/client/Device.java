package com.zq.OrvexCore.client;

/**
 * A device of the organisation tree (recorder, encoder, camera, alarm host, door controller).
 *
 * @param id its identifier
 * @param name its name
 * @param type the device type (1 DVR, 2 IPC, 3 NVS, 6 NVR, 601 alarm host, 701 door)
 * @param ip the address the platform reaches it at
 * @param port the port the platform reaches it at
 * @param status 0 unknown, 1 online, 2 offline
 * @param channelCount the number of its encoder channels as the platform records it
 * @param alarmInputCount the number of its alarm inputs
 * @param serialNumber its serial number
 * @param location where it is installed
 * @param description the platform's description of it
 */
public record Device(DeviceId id, String name, int type, String ip, int port, int status,
        int channelCount, int alarmInputCount, String serialNumber, String location,
        String description) {}
