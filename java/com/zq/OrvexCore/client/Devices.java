package com.zq.OrvexCore.client;

import com.zq.OrvexCore.Get_AlarmInChannel_Info_t;
import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.orvex_AHostDefenceStatus_t;
import java.util.ArrayList;
import java.util.List;

/**
 * Device lists and states, and alarm hosts (video alarm hosts and network alarm hosts with their
 * zones). Their state changes arrive through {@link Events#onDeviceStatus}, {@link
 * Events#onVideoAlarmHostStatus} and {@link Events#onNetAlarmHostStatus}.
 *
 * <p>The devices' information text is not offered: its length query is not reachable through the
 * bridge, and the text cannot be read safely without it.
 */
public final class Devices {
    private final OrvexClient c;

    Devices(OrvexClient client) {
        this.c = client;
    }

    /**
     * An alarm input of a device.
     *
     * @param id its identifier
     * @param name its name
     * @param rights the user's rights on it, as a bit set
     * @param channelType its channel type
     * @param status its state
     */
    public record AlarmInput(String id, String name, long rights, int channelType, int status) {}

    /**
     * A zone of a network alarm host.
     *
     * @param node the zone's identifier
     * @param alarm its alarm state
     * @param undefendedAlarm its alarm state while disarmed
     * @param bypassed whether it is bypassed
     * @param armed whether it is armed
     */
    public record Zone(String node, int alarm, int undefendedAlarm, boolean bypassed,
            boolean armed) {}

    /** The platform's device list, as the text it sends. */
    public String deviceList() {
        int length = c.value("ORVEX_GetDeviceListLen",
                h -> IOrvexCore.ORVEX_GetDeviceListLen(c.handle, h, c.timeoutMs));
        return c.textOfLength(length, "ORVEX_GetDeviceListStr",
                (buf, len) -> IOrvexCore.ORVEX_GetDeviceListStr(c.handle, buf, len, c.timeoutMs));
    }

    /** The state of a channel: 0 unknown, 1 online, 2 offline. */
    public int channelStatus(CameraId camera) {
        byte[] id = c.text.arg(camera.value(), "camera");
        return c.value("ORVEX_GetChannelStatus",
                h -> IOrvexCore.ORVEX_GetChannelStatus(c.handle, id, h));
    }

    /** The type of a device (1 DVR, 2 IPC, 3 NVS, 6 NVR, 601 alarm host, 701 door). */
    public int deviceType(DeviceId device) {
        byte[] id = c.text.arg(device.value(), "device");
        return c.value("ORVEX_GetDeviceTypeByDevId",
                h -> IOrvexCore.ORVEX_GetDeviceTypeByDevId(c.handle, id, h));
    }

    /** The alarm inputs of a device (as many as its record in the catalogue gives). */
    public List<AlarmInput> alarmInputs(DeviceId device) {
        int n = c.catalogue().device(device).alarmInputCount();
        if (n <= 0) {
            return List.of();
        }
        Get_AlarmInChannel_Info_t in = new Get_AlarmInChannel_Info_t(n);
        c.text.put(device.value(), in.szDeviceId, "device");
        c.run("ORVEX_GetAlarmInChannelInfo",
                () -> IOrvexCore.ORVEX_GetAlarmInChannelInfo(c.handle, in));
        return Catalogue.filled(in.pAlarmInChannelnfo, a -> a.szId, a -> new AlarmInput(
                c.text.get(a.szId), c.text.get(a.szName), a.nRight, a.nChnlType, a.nStatus));
    }

    /** Sends a control command to a channel of a video alarm host. */
    public void controlVideoAlarmHost(DeviceId device, int channel, int command) {
        byte[] id = c.text.arg(device.value(), "device");
        c.run("ORVEX_ControlVideoAlarmHost", () -> IOrvexCore.ORVEX_ControlVideoAlarmHost(
                c.handle, id, channel, command, c.timeoutMs));
    }

    /**
     * Sends a command to a network alarm host or one of its zones.
     *
     * @param target the host's or the zone's identifier
     * @param operation what to operate on, as the platform numbers it
     * @param command arm, disarm, bypass, ... as the platform numbers it
     * @param start start of the span the command covers (platform time)
     * @param end end of that span
     */
    public void controlNetAlarmHost(String target, int operation, int command, long start,
            long end) {
        byte[] id = c.text.arg(target, "target");
        c.run("ORVEX_ControlNetAlarmHostCmd", () -> IOrvexCore.ORVEX_ControlNetAlarmHostCmd(
                c.handle, id, operation, command, start, end, c.timeoutMs));
    }

    /** The number of zones of a network alarm host. */
    public int zoneCount(DeviceId host) {
        byte[] id = c.text.arg(host.value(), "host");
        return c.value("ORVEX_QueryNetAlarmHostChannelCount",
                h -> IOrvexCore.ORVEX_QueryNetAlarmHostChannelCount(c.handle, id, h, c.timeoutMs));
    }

    /** Asks the platform for the states of every zone of a network alarm host. */
    public List<Zone> zones(DeviceId host) {
        int n = zoneCount(host);
        if (n <= 0) {
            return List.of();
        }
        byte[] id = c.text.arg(host.value(), "host");
        orvex_AHostDefenceStatus_t[] out = new orvex_AHostDefenceStatus_t[n];
        c.run("ORVEX_QueryNetAlarmHostStatus",
                () -> IOrvexCore.ORVEX_QueryNetAlarmHostStatus(c.handle, id, n, out, c.timeoutMs));
        return zones(out);
    }

    /** The zone states the library last received, for the first {@code count} zones. */
    public List<Zone> knownZones(int count) {
        if (Calls.nonNegative(count, "count") == 0) {
            return List.of();
        }
        orvex_AHostDefenceStatus_t[] out = new orvex_AHostDefenceStatus_t[count];
        for (int i = 0; i < count; i++) {
            out[i] = new orvex_AHostDefenceStatus_t();
        }
        c.run("ORVEX_GetNetAlarmHostStatus",
                () -> IOrvexCore.ORVEX_GetNetAlarmHostStatus(c.handle, count, out));
        return zones(out);
    }

    private List<Zone> zones(orvex_AHostDefenceStatus_t[] states) {
        List<Zone> out = new ArrayList<>(states.length);
        for (orvex_AHostDefenceStatus_t s : states) {
            if (s != null) {
                out.add(new Zone(c.text.get(s.szNodeID), s.nAlarm, s.nUndefendAlarm, s.bByPass,
                        s.bDefend));
            }
        }
        return List.copyOf(out);
    }
}
