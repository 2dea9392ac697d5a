package com.zq.OrvexCore;

/**
 * Case header that a recording device writes with a burned recording.
 */
public class DevBurnerInfoHeader_t {
    /** Device identifier (C string, 32 bytes). */
    public byte[] m_deviceId = new byte[32];
    /** Password of the recording (C string, 64 bytes). */
    public byte[] m_password = new byte[64];
    /** Case number (C string, 64 bytes). */
    public byte[] m_caseId = new byte[64];
    /** Trial sequence (C string, 256 bytes). */
    public byte[] m_trialSeq = new byte[256];
    /** Person handling the case (C string, 256 bytes). */
    public byte[] m_caseUnderTaker = new byte[256];
    /** Department (C string, 256 bytes). */
    public byte[] m_caseDep = new byte[256];
    /** Reason of the case (C string, 256 bytes). */
    public byte[] m_caseReason = new byte[256];
    /** Person referred to (C string, 256 bytes). */
    public byte[] m_caseReferPerson = new byte[256];
    /** Remark (C string, 256 bytes). */
    public byte[] m_caseRemark = new byte[256];
    /** Name of the recording (C string, 256 bytes). */
    public byte[] m_caseRecordName = new byte[256];
    /** Recording number (C string, 64 bytes). */
    public byte[] m_RecordNum = new byte[64];
    /** Person who records (C string, 256 bytes). */
    public byte[] m_recordPerson = new byte[256];
    /** Overlay the data-check text on the video. */
    public boolean m_dataCheckOsdEn;
    /** Burn attached files too. */
    public boolean m_AttachFileEn;
    /** Verify data across several burners. */
    public boolean m_multiBurnerDataCheck;
    /** Speed of that verification. */
    public int m_multiBurnerDataCheckSpeed;

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public DevBurnerInfoHeader_t() {
    }
}
