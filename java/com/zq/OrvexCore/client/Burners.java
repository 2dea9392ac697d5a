package com.zq.OrvexCore.client;

import com.zq.OrvexCore.Control_Dev_Burner_Request_t;
import com.zq.OrvexCore.DevBurnerInfoHeader_t;
import com.zq.OrvexCore.Device_Disk_Info_t;
import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.Return_Value_Info_t;
import com.zq.OrvexCore.Single_Disk_Info_t;
import com.zq.OrvexCore.TrialFormAttrName_t;
import java.util.ArrayList;
import java.util.List;
import java.util.Locale;
import java.util.Map;

/** The disc burners of recording devices, and the disks of recorders. */
public final class Burners {
    private final OrvexClient c;

    Burners(OrvexClient client) {
        this.c = client;
    }

    /** Burner commands. */
    public enum Command {
        /** Start burning. */
        START,
        /** Pause. */
        PAUSE,
        /** Continue after a pause. */
        CONTINUE,
        /** Stop. */
        STOP,
        /** Change the disc. */
        CHANGE_DISC
    }

    /**
     * The case a recording is burnt for, written onto the disc.
     *
     * @param device the burning device (at most 31 bytes)
     * @param password the device's burn password
     * @param caseId the case number
     * @param trialSequence the trial's sequence number
     * @param undertaker who handles the case
     * @param department the handling department
     * @param reason the case's reason
     * @param referPerson the person referred to
     * @param remark a remark
     * @param recordName the recording's name
     * @param recordNumber the recording's number
     * @param recordPerson who recorded it
     * @param osdCheck whether the on-screen data check is on
     * @param attachFile whether to attach a file
     * @param multiBurnerCheck whether to check data across burners
     * @param multiBurnerCheckSpeed the speed of that check
     */
    public record CaseHeader(DeviceId device, String password, String caseId, String trialSequence,
            String undertaker, String department, String reason, String referPerson, String remark,
            String recordName, String recordNumber, String recordPerson, boolean osdCheck,
            boolean attachFile, boolean multiBurnerCheck, int multiBurnerCheckSpeed) {}

    /** The labels of the trial form printed with a recording (each at most 31 bytes). */
    public enum FormLabel {
        /** Case number. */
        CASE_ID("m_caseIdAttr"),
        /** Trial sequence. */
        TRIAL_SEQ("m_trialSeqAttr"),
        /** Undertaker. */
        CASE_UNDERTAKER("m_caseUnderTakerAttr"),
        /** Department. */
        CASE_DEP("m_caseDepAttr"),
        /** Reason. */
        CASE_REASON("m_caseReasonAttr"),
        /** Person referred to. */
        CASE_REFER_PERSON("m_caseReferPersonAttr"),
        /** Remark. */
        CASE_REMARK("m_caseRemarkAttr"),
        /** Recording name. */
        CASE_RECORD_NAME("m_caseRecordNameAttr"),
        /** Subject's name. */
        SUBJECT_NAME("m_trialObjNameAttr"),
        /** Subject's sex. */
        SUBJECT_SEX("m_trialObjSexAttr"),
        /** Subject's identity number. */
        SUBJECT_ID("m_trialObjIDAttr"),
        /** Subject's nationality. */
        SUBJECT_NATION("m_trialObjNationAttr"),
        /** Subject's birthday. */
        SUBJECT_BIRTHDAY("m_trialObjBirthdayAttr"),
        /** Subject's address. */
        SUBJECT_HOME("m_trialObjHomeAddrAttr"),
        /** Subject's employer. */
        SUBJECT_WORK("m_trialObjWorkUnitsAttr"),
        /** Subject's telephone. */
        SUBJECT_TELEPHONE("m_trialObjTelephoneAttr"),
        /** Disc number. */
        CD_ID("m_CDIDAttr"),
        /** Who recorded. */
        RECORD_PERSON("m_recordPersonAttr"),
        /** Assistant. */
        CASE_ASSISTANT("m_caseAssistantAttr"),
        /** Subject's age. */
        SUBJECT_AGE("m_trialObjAgeAttr");

        final String field;

        FormLabel(String field) {
            this.field = field;
        }
    }

    /**
     * A disk of a recorder.
     *
     * @param id its number
     * @param volume its size as the device gives it
     * @param free its free space
     * @param state its state
     * @param number its place in the device
     * @param partitions its number of partitions
     * @param signal its signal state
     */
    public record Disk(int id, long volume, long free, int state, int number, int partitions,
            int signal) {}

    /** Sends a command to the burner of a recording device. */
    public void control(DeviceId device, Command command, int channelMask, int burnerMask, int mode,
            int pack) {
        Control_Dev_Burner_Request_t in = new Control_Dev_Burner_Request_t();
        c.text.put(device.value(), in.deviceId, "device");
        in.cmd = command.ordinal() + 1;
        in.channelMask = channelMask;
        in.burnerMask = burnerMask;
        in.emMode = mode;
        in.emPack = pack;
        c.run("ORVEX_ControlDevBurner",
                () -> IOrvexCore.ORVEX_ControlDevBurner(c.handle, in, c.timeoutMs));
    }

    /** Sets the case header and the form labels a device burns with its recordings. */
    public void setCaseHeader(CaseHeader h, Map<FormLabel, String> labels) {
        DevBurnerInfoHeader_t in = new DevBurnerInfoHeader_t();
        c.text.put(h.device().value(), in.m_deviceId, "device");
        c.text.put(h.password(), in.m_password, "password");
        c.text.put(h.caseId(), in.m_caseId, "caseId");
        c.text.put(h.trialSequence(), in.m_trialSeq, "trialSequence");
        c.text.put(h.undertaker(), in.m_caseUnderTaker, "undertaker");
        c.text.put(h.department(), in.m_caseDep, "department");
        c.text.put(h.reason(), in.m_caseReason, "reason");
        c.text.put(h.referPerson(), in.m_caseReferPerson, "referPerson");
        c.text.put(h.remark(), in.m_caseRemark, "remark");
        c.text.put(h.recordName(), in.m_caseRecordName, "recordName");
        c.text.put(h.recordNumber(), in.m_RecordNum, "recordNumber");
        c.text.put(h.recordPerson(), in.m_recordPerson, "recordPerson");
        in.m_dataCheckOsdEn = h.osdCheck();
        in.m_AttachFileEn = h.attachFile();
        in.m_multiBurnerDataCheck = h.multiBurnerCheck();
        in.m_multiBurnerDataCheckSpeed = h.multiBurnerCheckSpeed();
        TrialFormAttrName_t form = new TrialFormAttrName_t();
        labels.forEach((label, text) -> {
            try {
                byte[] member = (byte[]) TrialFormAttrName_t.class.getField(label.field).get(form);
                c.text.put(text, member, label.name().toLowerCase(Locale.ROOT));
            } catch (ReflectiveOperationException e) {
                throw new IllegalStateException("form label " + label.field + " is missing", e);
            }
        });
        c.run("ORVEX_SetDevBurnerHeader",
                () -> IOrvexCore.ORVEX_SetDevBurnerHeader(c.handle, in, form, c.timeoutMs));
    }

    /** Asks a device for its disks; returns the number of disk records it has. */
    public int diskCount(DeviceId device) {
        byte[] id = c.text.arg(device.value(), "device");
        Return_Value_Info_t count = new Return_Value_Info_t();
        Return_Value_Info_t sequence = new Return_Value_Info_t();
        c.run("ORVEX_GetDeviceDiskInfoCount", () -> IOrvexCore.ORVEX_GetDeviceDiskInfoCount(
                c.handle, id, count, sequence, c.timeoutMs));
        return count.nReturnValue;
    }

    /**
     * Reads the disk records the library keeps under a query sequence. The bridge reports the
     * record count where the count query's sequence belongs, so the sequence must come from the
     * platform's own numbering; {@link #diskCount} gives the count.
     */
    public List<Disk> disks(int sequence, int count) {
        if (Calls.nonNegative(count, "count") == 0) {
            return List.of();
        }
        Device_Disk_Info_t in = new Device_Disk_Info_t(count);
        c.run("ORVEX_GetDeviceDiskInfo",
                () -> IOrvexCore.ORVEX_GetDeviceDiskInfo(c.handle, sequence, count, in));
        int n = Math.max(0, Math.min(in.nDiskInfoSize, count));
        List<Disk> out = new ArrayList<>(n);
        for (int i = 0; i < n; i++) {
            Single_Disk_Info_t d = in.pDiskInfoList[i];
            out.add(new Disk(d.nDiskId, Integer.toUnsignedLong(d.uVolume),
                    Integer.toUnsignedLong(d.uFreeSpace), d.diskState, d.diskNum, d.subareaNum,
                    d.signal));
        }
        return List.copyOf(out);
    }
}
