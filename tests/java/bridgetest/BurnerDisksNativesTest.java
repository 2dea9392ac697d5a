package bridgetest;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertThrows;

import com.zq.OrvexCore.Control_Dev_Burner_Request_t;
import com.zq.OrvexCore.DevBurnerInfoHeader_t;
import com.zq.OrvexCore.Device_Disk_Info_t;
import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.Return_Value_Info_t;
import com.zq.OrvexCore.TrialFormAttrName_t;
import java.util.Arrays;
import java.util.stream.IntStream;
import java.util.stream.Stream;
import org.junit.jupiter.api.BeforeEach;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;
import simctl.RecordedCall;
import simctl.SimControl;
import simctl.Write;

/** Burner control, the case header and the disk natives, as the library and Java see them. */
class BurnerDisksNativesTest {
    private static final String FETCH = "ORVEX_GetDeviceDiskInfo";
    private static final String LIST = "pInfo.pDiskInfoList";

    /** Header text members: Java field, C offset, C size. */
    private static final Object[][] HEADER_TEXT = {
        {"m_deviceId", 0, 32}, {"m_password", 32, 64}, {"m_caseId", 96, 64},
        {"m_trialSeq", 160, 256}, {"m_caseUnderTaker", 416, 256}, {"m_caseDep", 672, 256},
        {"m_caseReason", 928, 256}, {"m_caseReferPerson", 1184, 256},
        {"m_caseRemark", 1440, 256}, {"m_caseRecordName", 1696, 256}, {"m_RecordNum", 1952, 64},
        {"m_recordPerson", 2016, 256},
    };
    /** The twenty labels, 32 bytes each, in member order. */
    private static final String[] LABELS = {
        "m_caseIdAttr", "m_trialSeqAttr", "m_caseUnderTakerAttr", "m_caseDepAttr",
        "m_caseReasonAttr", "m_caseReferPersonAttr", "m_caseRemarkAttr", "m_caseRecordNameAttr",
        "m_trialObjNameAttr", "m_trialObjSexAttr", "m_trialObjIDAttr", "m_trialObjNationAttr",
        "m_trialObjBirthdayAttr", "m_trialObjHomeAddrAttr", "m_trialObjWorkUnitsAttr",
        "m_trialObjTelephoneAttr", "m_CDIDAttr", "m_recordPersonAttr", "m_caseAssistantAttr",
        "m_trialObjAgeAttr",
    };

    @BeforeEach
    void resetStandIn() {
        SimControl.reset();
    }


    /** A text of {@code length} bytes that differs per field, so swapped members show. */
    private static byte[] textFor(String field, int length) {
        byte[] b = new byte[length];
        for (int i = 0; i < length; i++) {
            b[i] = (byte) ('A' + Math.floorMod(field.hashCode() + i, 26) + (i % 2) * 32);
        }
        return b;
    }

    static Stream<Arguments> burnerCommands() {
        return Stream.of(Arguments.of(1, 0x80000001, "start"), Arguments.of(5, 7, "change CD"),
                Arguments.of(99, 0, "unknown"), Arguments.of(-1, -1, "negative"));
    }

    @ParameterizedTest(name = "{2}")
    @MethodSource("burnerCommands")
    void burnerRequestReachesTheLibraryMemberByMember(int cmd, int channelMask, String what) {
        Control_Dev_Burner_Request_t rq = new Control_Dev_Burner_Request_t();
        System.arraycopy(CRecord.ascii("BURN-01"), 0, rq.deviceId, 0, 7);
        rq.cmd = cmd;
        rq.channelMask = channelMask;
        rq.burnerMask = 0x30;
        rq.emMode = 2;
        rq.emPack = -4;
        SimControl.script("ORVEX_ControlDevBurner", 77);

        assertEquals(77, IOrvexCore.ORVEX_ControlDevBurner(6, rq, 3500));

        byte[] expected = new CRecord(84).text(0, "BURN-01").i32(64, cmd).i32(68, channelMask)
                .i32(72, 0x30).i32(76, 2).i32(80, -4).bytes();
        RecordedCall call = SimControl.last("ORVEX_ControlDevBurner");
        assertArrayEquals(expected, call.arg("pInfo").bytes);
        assertEquals(6, call.arg("nHandle").value);
        assertEquals(3500, call.arg("nTimeout").value);
    }

    static Stream<Arguments> headerFlags() {
        return Stream.of(Arguments.of(true, false, false, 0), Arguments.of(false, true, false, 9),
                Arguments.of(false, false, true, -16), Arguments.of(true, true, true, 1));
    }

    @ParameterizedTest(name = "osd={0} attach={1} multi={2} speed={3}")
    @MethodSource("headerFlags")
    void caseHeaderAndLabelsArriveAtTheirOffsets(boolean osd, boolean attach, boolean multi,
            int speed) throws Exception {
        DevBurnerInfoHeader_t header = new DevBurnerInfoHeader_t();
        CRecord expectedHeader = new CRecord(2280);
        for (Object[] t : HEADER_TEXT) {
            String field = (String) t[0];
            byte[] text = textFor(field, (Integer) t[2] - 1);  // longest that stays terminated
            DevBurnerInfoHeader_t.class.getField(field).set(header, text);
            expectedHeader.raw((Integer) t[1], text);
        }
        header.m_dataCheckOsdEn = osd;
        header.m_AttachFileEn = attach;
        header.m_multiBurnerDataCheck = multi;
        header.m_multiBurnerDataCheckSpeed = speed;
        expectedHeader.raw(2272, new byte[] {(byte) (osd ? 1 : 0), (byte) (attach ? 1 : 0),
                (byte) (multi ? 1 : 0)}).i32(2276, speed);
        TrialFormAttrName_t labels = new TrialFormAttrName_t();
        CRecord expectedLabels = new CRecord(640);
        for (int i = 0; i < LABELS.length; i++) {
            byte[] text = CRecord.ascii("label" + i);
            TrialFormAttrName_t.class.getField(LABELS[i]).set(labels, text);
            expectedLabels.raw(32 * i, text);
        }

        assertEquals(0, IOrvexCore.ORVEX_SetDevBurnerHeader(3, header, labels, 1200));

        RecordedCall call = SimControl.last("ORVEX_SetDevBurnerHeader");
        assertArrayEquals(expectedHeader.bytes(), call.arg("pHeader").bytes);
        assertArrayEquals(expectedLabels.bytes(), call.arg("pAttrName").bytes);
        assertEquals(3, call.arg("nHandle").value);
        assertEquals(1200, call.arg("nTimeout").value);
    }

    @Test
    void shortCaseNumberIsFollowedByZeros() {
        DevBurnerInfoHeader_t header = new DevBurnerInfoHeader_t();
        header.m_caseId = CRecord.ascii("2024-CASE-0000000017");  // 20 bytes
        IOrvexCore.ORVEX_SetDevBurnerHeader(1, header, new TrialFormAttrName_t(), 0);

        byte[] caseId = SimControl.last("ORVEX_SetDevBurnerHeader").arg("pHeader").slice(96, 64);
        byte[] expected = Arrays.copyOf(CRecord.ascii("2024-CASE-0000000017"), 64);
        assertArrayEquals(expected, caseId);
    }

    static Stream<Arguments> badHeaderInput() {
        DevBurnerInfoHeader_t tooLong = new DevBurnerInfoHeader_t();
        tooLong.m_caseId = new byte[65];
        TrialFormAttrName_t longLabel = new TrialFormAttrName_t();
        longLabel.m_trialObjAgeAttr = new byte[33];
        return Stream.of(
                Arguments.of("null header", null, new TrialFormAttrName_t(),
                        NullPointerException.class),
                Arguments.of("null labels", new DevBurnerInfoHeader_t(), null,
                        NullPointerException.class),
                Arguments.of("case number past its member", tooLong, new TrialFormAttrName_t(),
                        IllegalArgumentException.class),
                Arguments.of("last label past its member", new DevBurnerInfoHeader_t(), longLabel,
                        IllegalArgumentException.class));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("badHeaderInput")
    void badHeaderInputIsRefusedBeforeTheLibrary(String what, DevBurnerInfoHeader_t header,
            TrialFormAttrName_t labels, Class<? extends Throwable> thrown) {
        assertThrows(thrown, () -> IOrvexCore.ORVEX_SetDevBurnerHeader(1, header, labels, 0));
        assertEquals(0, SimControl.count("ORVEX_SetDevBurnerHeader"));
    }

    @Test
    void nullOrOverlongBurnerRequestIsRefusedBeforeTheLibrary() {
        assertThrows(NullPointerException.class, () -> IOrvexCore.ORVEX_ControlDevBurner(1, null, 0));
        Control_Dev_Burner_Request_t rq = new Control_Dev_Burner_Request_t();
        rq.deviceId = new byte[65];
        assertThrows(IllegalArgumentException.class, () -> IOrvexCore.ORVEX_ControlDevBurner(1, rq, 0));
        assertEquals(0, SimControl.count("ORVEX_ControlDevBurner"));
    }

    @Test
    void diskCountLandsInBothHoldersAndTheSequenceIsDropped() {
        SimControl.script("ORVEX_GetDeviceDiskInfoCount", 0, Write.le32("pnCount", 0, 3),
                Write.le32("pnSequence", 0, 17));
        Return_Value_Info_t count = new Return_Value_Info_t();
        Return_Value_Info_t sequence = new Return_Value_Info_t();

        assertEquals(0, IOrvexCore.ORVEX_GetDeviceDiskInfoCount(
                8, CRecord.ascii("NVR-9"), count, sequence, 2500));

        assertEquals(3, count.nReturnValue);
        assertEquals(3, sequence.nReturnValue);
        RecordedCall call = SimControl.last("ORVEX_GetDeviceDiskInfoCount");
        assertArrayEquals(CRecord.ascii("NVR-9\0"), call.arg("szDeviceId").bytes);
        assertEquals(0, call.arg("pnCount").le32(0));
        assertEquals(0, call.arg("pnSequence").le32(0));
        assertEquals(2500, call.arg("nTimeout").value);
    }

    @Test
    void failedDiskCountLeavesBothHolders() {
        SimControl.script("ORVEX_GetDeviceDiskInfoCount", 41, Write.le32("pnCount", 0, 3));
        Return_Value_Info_t count = new Return_Value_Info_t();
        Return_Value_Info_t sequence = new Return_Value_Info_t();
        count.nReturnValue = -1;
        sequence.nReturnValue = -2;

        assertEquals(41, IOrvexCore.ORVEX_GetDeviceDiskInfoCount(
                8, CRecord.ascii("x"), count, sequence, 0));

        assertEquals(-1, count.nReturnValue);
        assertEquals(-2, sequence.nReturnValue);
    }

    @Test
    void diskCountRefusesANullIdentifierAndReturnsTheLastResultForAnEmptyOne() {
        Return_Value_Info_t h = new Return_Value_Info_t();
        assertEquals(1009, IOrvexCore.ORVEX_GetDeviceDiskInfoCount(1, null, h, h, 0));
        LastResult.leave(4242);
        assertEquals(4242, IOrvexCore.ORVEX_GetDeviceDiskInfoCount(1, new byte[0], h, h, 0));
        assertThrows(NullPointerException.class,
                () -> IOrvexCore.ORVEX_GetDeviceDiskInfoCount(1, CRecord.ascii("x"), h, null, 0));
        assertEquals(0, SimControl.count("ORVEX_GetDeviceDiskInfoCount"));
    }

    /** One 16-byte disk record with its state, number, partitions and signal bytes. */
    private static byte[] disk(int id, int volume, int free, int... smalls) {
        CRecord r = new CRecord(16).i32(0, id).i32(4, volume).i32(8, free);
        for (int k = 0; k < 4; k++) {
            r.raw(12 + k, new byte[] {(byte) smalls[k]});
        }
        return r.bytes();
    }

    static Stream<Arguments> diskBytes() {
        return Stream.of(Arguments.of(0, 1, 2, 3), Arguments.of(127, 128, 200, 255),
                Arguments.of(255, 0, 129, 64));
    }

    @ParameterizedTest(name = "bytes {0} {1} {2} {3}")
    @MethodSource("diskBytes")
    void disksArriveWithUnsignedBytesAndRawVolumeBits(int state, int num, int parts, int signal) {
        SimControl.declareCapacity(FETCH, LIST, 3 * 16);
        SimControl.script(FETCH, 0, Write.bytes("pInfo", 0, CRecord.ascii("NVR-01\0")),
                Write.le32("pInfo", 64, 2),
                Write.bytes(LIST, 0, disk(11, 0xFFFFFFF0, 0x80000000, 1, 2, 3, 4)),
                Write.bytes(LIST, 16, disk(12, 500, 250, state, num, parts, signal)));
        Device_Disk_Info_t info = new Device_Disk_Info_t(3);
        Arrays.fill(info.szDevId, (byte) 0x55);
        info.pDiskInfoList[2].nDiskId = -9;

        assertEquals(0, IOrvexCore.ORVEX_GetDeviceDiskInfo(5, 17, 3, info));

        byte[] expectedId = CRecord.filled(64, 0x55);
        System.arraycopy(CRecord.ascii("NVR-01"), 0, expectedId, 0, 6);
        assertArrayEquals(expectedId, info.szDevId, "szDevId is written without its terminator");
        assertEquals(2, info.nDiskInfoSize);
        assertEquals(11, info.pDiskInfoList[0].nDiskId);
        assertEquals(0xFFFFFFF0, info.pDiskInfoList[0].uVolume);
        assertEquals(0x80000000, info.pDiskInfoList[0].uFreeSpace);
        assertEquals(12, info.pDiskInfoList[1].nDiskId);
        assertEquals(500, info.pDiskInfoList[1].uVolume);
        assertEquals(250, info.pDiskInfoList[1].uFreeSpace);
        assertEquals(state, info.pDiskInfoList[1].diskState);
        assertEquals(num, info.pDiskInfoList[1].diskNum);
        assertEquals(parts, info.pDiskInfoList[1].subareaNum);
        assertEquals(signal, info.pDiskInfoList[1].signal);
        assertEquals(-9, info.pDiskInfoList[2].nDiskId, "only reported disks are written");
        RecordedCall call = SimControl.last(FETCH);
        assertEquals(5, call.arg("nHandle").value);
        assertEquals(17, call.arg("nSequence").value);
        assertEquals(0, call.arg("pInfo").le32(64), "nDiskInfoSize is 0 when the library is called");
        assertEquals(3 * 16, call.arg(LIST).bytes.length);
        assertEquals(0, SimControl.errors().length, Arrays.toString(SimControl.errors()));
    }

    @Test
    void failedDiskFetchWritesNothing() {
        SimControl.script(FETCH, 12, Write.bytes("pInfo", 0, CRecord.ascii("X\0")),
                Write.le32("pInfo", 64, 1));
        Device_Disk_Info_t info = new Device_Disk_Info_t(1);
        info.nDiskInfoSize = -3;

        assertEquals(12, IOrvexCore.ORVEX_GetDeviceDiskInfo(5, 1, 1, info));

        assertEquals(-3, info.nDiskInfoSize);
        assertArrayEquals(new byte[64], info.szDevId);
    }

    @Test
    void moreDisksThanAskedForAreCutAtTheList() {
        SimControl.declareCapacity(FETCH, LIST, 2 * 16);
        SimControl.script(FETCH, 0, Write.le32("pInfo", 64, 5),
                Write.bytes(LIST, 0, disk(1, 0, 0, 0, 0, 0, 0)),
                Write.bytes(LIST, 16, disk(2, 0, 0, 0, 0, 0, 0)));
        Device_Disk_Info_t info = new Device_Disk_Info_t(4);

        assertThrows(ArrayIndexOutOfBoundsException.class,
                () -> IOrvexCore.ORVEX_GetDeviceDiskInfo(5, 1, 2, info));

        assertEquals(5, info.nDiskInfoSize);
        assertEquals(IntStream.of(1, 2, 0, 0).boxed().toList(),
                Arrays.stream(info.pDiskInfoList).map(d -> d.nDiskId).toList());
    }

    @Test
    void diskFetchRefusesANullRecordAndANegativeCount() {
        assertEquals(1009, IOrvexCore.ORVEX_GetDeviceDiskInfo(5, 1, 1, null));
        assertThrows(OutOfMemoryError.class,
                () -> IOrvexCore.ORVEX_GetDeviceDiskInfo(5, 1, -1, new Device_Disk_Info_t()));
        assertEquals(0, SimControl.count(FETCH));
    }
}
