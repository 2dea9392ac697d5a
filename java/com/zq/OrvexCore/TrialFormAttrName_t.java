package com.zq.OrvexCore;

/**
 * Display names of the fields of the case form.
 */
public class TrialFormAttrName_t {
    /** Label of the case number (C string, 32 bytes). */
    public byte[] m_caseIdAttr = new byte[32];
    /** Label of the trial sequence (C string, 32 bytes). */
    public byte[] m_trialSeqAttr = new byte[32];
    /** Label of the person handling the case (C string, 32 bytes). */
    public byte[] m_caseUnderTakerAttr = new byte[32];
    /** Label of the department (C string, 32 bytes). */
    public byte[] m_caseDepAttr = new byte[32];
    /** Label of the reason (C string, 32 bytes). */
    public byte[] m_caseReasonAttr = new byte[32];
    /** Label of the person referred to (C string, 32 bytes). */
    public byte[] m_caseReferPersonAttr = new byte[32];
    /** Label of the remark (C string, 32 bytes). */
    public byte[] m_caseRemarkAttr = new byte[32];
    /** Label of the recording name (C string, 32 bytes). */
    public byte[] m_caseRecordNameAttr = new byte[32];
    /** Label of the name of the person under trial (C string, 32 bytes). */
    public byte[] m_trialObjNameAttr = new byte[32];
    /** Label of the sex (C string, 32 bytes). */
    public byte[] m_trialObjSexAttr = new byte[32];
    /** Label of the identity number (C string, 32 bytes). */
    public byte[] m_trialObjIDAttr = new byte[32];
    /** Label of the nationality (C string, 32 bytes). */
    public byte[] m_trialObjNationAttr = new byte[32];
    /** Label of the birthday (C string, 32 bytes). */
    public byte[] m_trialObjBirthdayAttr = new byte[32];
    /** Label of the home address (C string, 32 bytes). */
    public byte[] m_trialObjHomeAddrAttr = new byte[32];
    /** Label of the work unit (C string, 32 bytes). */
    public byte[] m_trialObjWorkUnitsAttr = new byte[32];
    /** Label of the telephone (C string, 32 bytes). */
    public byte[] m_trialObjTelephoneAttr = new byte[32];
    /** Label of the disc identifier (C string, 32 bytes). */
    public byte[] m_CDIDAttr = new byte[32];
    /** Label of the person who records (C string, 32 bytes). */
    public byte[] m_recordPersonAttr = new byte[32];
    /** Label of the assistant (C string, 32 bytes). */
    public byte[] m_caseAssistantAttr = new byte[32];
    /** Label of the age (C string, 32 bytes). */
    public byte[] m_trialObjAgeAttr = new byte[32];

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public TrialFormAttrName_t() {
    }
}
