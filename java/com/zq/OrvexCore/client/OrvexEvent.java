package com.zq.OrvexCore.client;

import java.nio.ByteBuffer;
import java.util.List;

/**
 * An event the platform pushes to the client. Each kind is a record; register for a kind through
 * {@link Events}. Binary payloads are read-only buffers of the event's own bytes.
 */
public sealed interface OrvexEvent {
    /**
     * The connection to the platform changed.
     *
     * @param status the library's connection status code
     */
    record ConnectionStatus(int status) implements OrvexEvent {}

    /**
     * A device was added, changed, moved or removed.
     *
     * @param changeType the kind of change, as the library numbers it
     * @param device the device
     * @param department the department it was in
     * @param newDepartment the department it is in now (empty text unless moved)
     */
    record DeviceChange(int changeType, String device, String department, String newDepartment)
            implements OrvexEvent {}

    /**
     * A device went online or offline.
     *
     * @param device the device
     * @param status 0 unknown, 1 online, 2 offline
     */
    record DeviceStatus(String device, int status) implements OrvexEvent {}

    /**
     * An alarm occurred or ended.
     *
     * @param alarmId the alarm's identifier
     * @param deviceType the type of the device that raised it
     * @param camera the camera or source it concerns
     * @param deviceName the device's name
     * @param channelName the channel's name
     * @param department the coding of the department
     * @param message the alarm's text
     * @param alarmType the alarm type (1 video lost, 2 external, 3 motion, ...)
     * @param eventType 1 occurred, 2 ended
     * @param level its level
     * @param time when, as the platform counts time
     * @param data the alarm's extra data (read-only)
     * @param picture a picture of it, empty if none (read-only)
     */
    record Alarm(String alarmId, int deviceType, String camera, String deviceName,
            String channelName, String department, String message, int alarmType, int eventType,
            int level, long time, ByteBuffer data, ByteBuffer picture) implements OrvexEvent {}

    /**
     * The device proposed audio parameters for a talk.
     *
     * @param talkType 1 device, 2 channel
     * @param audioType the audio coding
     * @param bits bits per sample
     * @param sampleRate samples per second
     * @param transport the transport mode
     */
    record TalkParameters(int talkType, int audioType, int bits, int sampleRate, int transport)
            implements OrvexEvent {}

    /**
     * A remote snapshot was stored.
     *
     * @param camera the camera
     * @param path where the picture was stored
     */
    record Snapshot(String camera, String path) implements OrvexEvent {}

    /**
     * A channel of a video alarm host changed state.
     *
     * @param device the alarm host
     * @param channel the channel number
     * @param status its new state
     */
    record VideoAlarmHostStatus(String device, int channel, int status) implements OrvexEvent {}

    /**
     * A network alarm host reports a state or the outcome of a command.
     *
     * @param device the alarm host or zone
     * @param reportType the kind of report
     * @param operation the operation reported on
     * @param status the state or outcome
     */
    record NetAlarmHostStatus(String device, int reportType, int operation, int status)
            implements OrvexEvent {}

    /**
     * A broadcast's state changed at one of its cameras.
     *
     * @param camera the camera
     * @param reportType the kind of report
     * @param time when
     * @param status the new state
     */
    record BroadcastStatus(String camera, int reportType, long time, int status)
            implements OrvexEvent {}

    /**
     * A general JSON message from a platform module.
     *
     * @param json the message
     */
    record JsonMessage(String json) implements OrvexEvent {}

    /**
     * A channel of an NVR changed state (also the answer to a state query).
     *
     * @param channel the channel
     * @param status its state
     */
    record NvrChannelStatus(String channel, int status) implements OrvexEvent {}

    /**
     * A door changed state.
     *
     * @param camera the door's channel
     * @param status its new state
     * @param time when, low 32 bits of the platform's time as the library delivers it
     */
    record DoorStatus(String camera, int status, int time) implements OrvexEvent {}

    /**
     * Another user shared videos with this one.
     *
     * @param videos the videos
     * @param message the accompanying message
     * @param fromUserId the sender's user identifier
     * @param fromUserName the sender's name
     */
    record SharedVideos(List<Services.SharedVideo> videos, String message, int fromUserId,
            String fromUserName) implements OrvexEvent {}

    /**
     * A bay camera recorded a vehicle.
     *
     * @param device the device
     * @param deviceChannel the channel number on the device
     * @param channel the channel
     * @param deviceName the device's name
     * @param channelName the channel's name
     * @param plate the number plate
     * @param plateType the plate's type
     * @param plateColour the plate's colour
     * @param speed the vehicle's speed
     * @param vehicleType the vehicle's type
     * @param vehicleColour the vehicle's colour
     * @param vehicleLength the vehicle's length
     * @param direction its direction
     * @param lane the lane
     * @param captureTime when it was captured
     * @param pictureGroup the identifier of the stored picture group
     * @param images the paths of the vehicle's pictures (up to six)
     * @param plateImage the path of the plate's picture
     * @param plateBox the plate's rectangle in the picture: left, right, top, bottom
     */
    record BayVehicle(String device, int deviceChannel, String channel, String deviceName,
            String channelName, String plate, int plateType, int plateColour, int speed,
            int vehicleType, int vehicleColour, int vehicleLength, int direction, int lane,
            long captureTime, long pictureGroup, List<String> images, String plateImage,
            List<Integer> plateBox) implements OrvexEvent {}
}
