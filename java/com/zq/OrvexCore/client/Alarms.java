package com.zq.OrvexCore.client;

import com.zq.OrvexCore.AlarmSchemeInfo_t;
import com.zq.OrvexCore.Alarm_Enable_By_Dep_Info_t;
import com.zq.OrvexCore.Alarm_Enable_Info_t;
import com.zq.OrvexCore.Alarm_Info_t;
import com.zq.OrvexCore.Alarm_Query_Info_t;
import com.zq.OrvexCore.Client_Alarm_Info_t;
import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.Single_Alarm_Info_t;
import com.zq.OrvexCore.orvex_phone_subscribe_alarm_t;
import java.util.ArrayList;
import java.util.List;
import java.util.Objects;

/**
 * Alarm reception, alarm history and alarm schemes. Live alarms arrive through {@link
 * Events#onAlarm} once reception is enabled.
 */
public final class Alarms {
    private final OrvexClient c;

    Alarms(OrvexClient client) {
        this.c = client;
    }

    /**
     * A source of alarms to receive.
     *
     * @param device the device
     * @param videoNo the video channel number on it
     * @param alarmInput the alarm input number on it
     * @param alarmType the alarm type (1 video lost, 2 external, 3 motion, ...)
     */
    public record Source(DeviceId device, int videoNo, int alarmInput, int alarmType) {}

    /**
     * A department whose alarms to receive.
     *
     * @param department the department
     * @param videoNo the video channel number
     * @param alarmInput the alarm input number
     * @param alarmType the alarm type
     */
    public record DepartmentSource(DepartmentCode department, int videoNo, int alarmInput,
            int alarmType) {}

    /**
     * Which alarms of the history to read.
     *
     * @param camera the camera or source
     * @param start the start of the span (platform time)
     * @param end its end
     * @param alarmType the alarm type, 0 for any
     */
    public record Query(CameraId camera, long start, long end, int alarmType) {}

    /**
     * An alarm of the history.
     *
     * @param alarmType its type
     * @param eventType 1 occurred, 2 ended
     * @param device the device that raised it
     * @param channel the channel number
     * @param time when (platform time)
     * @param handling how it was dealt with (1 pending, 2 resolved, 4 suggested, 8 ignored, ...)
     * @param message its text
     */
    public record Record(int alarmType, int eventType, String device, int channel, long time,
            int handling, String message) {}

    /**
     * An alarm scheme.
     *
     * @param id its identifier (0 for a new scheme)
     * @param name its name
     * @param open whether it is switched on
     * @param templateId the template it follows
     * @param description what it is for
     */
    public record Scheme(int id, String name, boolean open, int templateId, String description) {}

    /**
     * A phone to push alarms to.
     *
     * @param userId the user
     * @param phoneId the phone's push identifier
     * @param appId the application
     * @param pushType the push service
     * @param subscribe whether to subscribe (true) or cancel
     * @param language the language of the pushed texts
     * @param timeFormat the format of the pushed times
     * @param dbOperation the platform's record operation
     */
    public record PhoneSubscription(int userId, String phoneId, int appId, String pushType,
            boolean subscribe, String language, String timeFormat, int dbOperation) {}

    /** Starts receiving the alarms of these sources. */
    public void enable(List<Source> sources) {
        Alarm_Enable_Info_t in = new Alarm_Enable_Info_t(sources.size());
        for (int i = 0; i < sources.size(); i++) {
            Source s = sources.get(i);
            c.text.put(s.device().value(), in.sources[i].szAlarmDevId, "device");
            in.sources[i].nVideoNo = s.videoNo();
            in.sources[i].nAlarmInput = s.alarmInput();
            in.sources[i].nAlarmType = s.alarmType();
        }
        c.run("ORVEX_EnableAlarm", () -> IOrvexCore.ORVEX_EnableAlarm(c.handle, in, c.timeoutMs));
    }

    /** Starts receiving the alarms of these departments. */
    public void enableByDepartment(List<DepartmentSource> sources) {
        Alarm_Enable_By_Dep_Info_t in = new Alarm_Enable_By_Dep_Info_t(sources.size());
        for (int i = 0; i < sources.size(); i++) {
            DepartmentSource s = sources.get(i);
            // Zero-filled with room for the terminator, which the library relies on.
            c.text.put(s.department().value(), in.sources[i].szAlarmDepartmentCode, "department");
            in.sources[i].nVideoNo = s.videoNo();
            in.sources[i].nAlarmInput = s.alarmInput();
            in.sources[i].nAlarmType = s.alarmType();
        }
        c.run("ORVEX_EnableAlarmByDepartment",
                () -> IOrvexCore.ORVEX_EnableAlarmByDepartment(c.handle, in, c.timeoutMs));
    }

    /** Stops receiving alarms. */
    public void disable() {
        c.run("ORVEX_DisableAlarm", () -> IOrvexCore.ORVEX_DisableAlarm(c.handle, c.timeoutMs));
    }

    private Alarm_Query_Info_t query(Query q) {
        Alarm_Query_Info_t in = new Alarm_Query_Info_t();
        c.text.put(q.camera().value(), in.szCameraId, "camera");
        in.uStartTime = q.start();
        in.uEndTime = q.end();
        in.nAlarmType = q.alarmType();
        return in;
    }

    /** The number of alarms of the history that match. */
    public int count(Query q) {
        Alarm_Query_Info_t in = query(q);
        return c.value("ORVEX_QueryAlarmCount",
                h -> IOrvexCore.ORVEX_QueryAlarmCount(c.handle, in, h, c.timeoutMs));
    }

    /**
     * One page of the matching alarms.
     *
     * @param first the position of the first alarm wanted (from 0)
     * @param size how many at most
     */
    public List<Record> page(Query q, int first, int size) {
        Calls.nonNegative(first, "first");
        if (Calls.nonNegative(size, "size") == 0) {
            return List.of();
        }
        Alarm_Query_Info_t in = query(q);
        Alarm_Info_t out = new Alarm_Info_t(size);
        c.run("ORVEX_QueryAlarmInfo",
                () -> IOrvexCore.ORVEX_QueryAlarmInfo(c.handle, in, out, first, size, c.timeoutMs));
        int n = Math.max(0, Math.min(out.nRetCount, size));
        List<Record> page = new ArrayList<>(n);
        for (int i = 0; i < n; i++) {
            Single_Alarm_Info_t a = out.pAlarmInfo[i];
            page.add(new Record(a.nAlarmType, a.nEventType, c.text.get(a.szDevId), a.uChannel,
                    a.uAlarmTime, a.nDealWith, c.text.get(a.szMessage)));
        }
        return List.copyOf(page);
    }

    /** Every alarm scheme. */
    public List<Scheme> schemes() {
        int n = c.value("ORVEX_GetAlarmSchemeCount",
                h -> IOrvexCore.ORVEX_GetAlarmSchemeCount(c.handle, h, c.timeoutMs));
        if (n <= 0) {
            return List.of();
        }
        AlarmSchemeInfo_t[] list = new AlarmSchemeInfo_t[n];
        c.run("ORVEX_GetAlarmSchemeList",
                () -> IOrvexCore.ORVEX_GetAlarmSchemeList(c.handle, list, c.timeoutMs));
        List<Scheme> out = new ArrayList<>(n);
        for (AlarmSchemeInfo_t s : list) {
            out.add(new Scheme(s.id, c.text.get(s.schemeName), s.status == 1, s.templateId,
                    c.text.get(s.desc)));
        }
        return List.copyOf(out);
    }

    /** Saves a new (id 0) or changed alarm scheme. */
    public void saveScheme(Scheme scheme) {
        AlarmSchemeInfo_t in = new AlarmSchemeInfo_t();
        in.id = scheme.id();
        in.status = scheme.open() ? 1 : 0;
        c.text.put(scheme.name(), in.schemeName, "name");
        in.templateId = scheme.templateId();
        c.text.put(scheme.description(), in.desc, "description");
        c.run("ORVEX_SaveAlarmScheme",
                () -> IOrvexCore.ORVEX_SaveAlarmScheme(c.handle, in, c.timeoutMs));
    }

    /**
     * Raises an alarm of this client on the platform.
     *
     * @param status the alarm's state as the platform numbers it
     * @param time when (platform time)
     */
    public void raise(CameraId camera, int alarmType, int status, long time, String message) {
        Client_Alarm_Info_t in = new Client_Alarm_Info_t();
        c.text.put(camera.value(), in.szCameraId, "camera");
        in.enAlarmType = alarmType;
        in.enStatus = status;
        in.uAlarmTime = time;
        c.text.put(Objects.requireNonNull(message, "message"), in.szMsg, "message");
        c.run("ORVEX_SendAlarmToServer",
                () -> IOrvexCore.ORVEX_SendAlarmToServer(c.handle, in, c.timeoutMs));
    }

    /** Registers or cancels a phone for pushed alarms; returns the platform's subscription flag. */
    public int subscribePhone(PhoneSubscription p) {
        orvex_phone_subscribe_alarm_t in = new orvex_phone_subscribe_alarm_t();
        in.iUserId = p.userId();
        c.text.put(p.phoneId(), in.szPhoneId, "phoneId");
        in.iAppId = p.appId();
        c.text.put(p.pushType(), in.szPush_type, "pushType");
        in.iIs_subscribe = p.subscribe() ? 1 : 0;
        c.text.put(p.language(), in.szLanguage, "language");
        c.text.put(p.timeFormat(), in.szTimefmt, "timeFormat");
        in.iDbOper = p.dbOperation();
        return c.value("ORVEX_PhoneSubscribeAlarm",
                h -> IOrvexCore.ORVEX_PhoneSubscribeAlarm(c.handle, in, h, c.timeoutMs));
    }
}
