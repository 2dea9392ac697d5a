package com.zq.OrvexCore;

/**
 * Receives the frames of one live, playback or talk stream. Passed with each stream request
 * ({@link IOrvexCore#ORVEX_GetRealStream}, {@link IOrvexCore#ORVEX_GetRealStreamPreview}, {@link
 * IOrvexCore#ORVEX_GetRecordStreamByFile}, {@link IOrvexCore#ORVEX_GetRecordStreamByTime}, {@link
 * IOrvexCore#ORVEX_GetRecordStreamByStreamType}, {@link IOrvexCore#ORVEX_GetTalkStream}); the
 * bridge keeps the listener reachable for the rest of the process.
 *
 * <p>It is called on a thread of the client library, attached to the virtual machine for that one
 * event and detached afterwards; keep the work short and hand anything lengthy to a thread of your
 * own.
 *
 * <p>Each byte array is new for the call and holds exactly the bytes of the text or data, without
 * a terminating zero; {@link OrvexText#fromBytes} decodes a text.
 */
@FunctionalInterface
public interface MediaDataCallback {
    /**
     * Handles one event.
     *
     * @param nPDLLHandle client instance handle
     * @param nSeq sequence number of the stream, as returned when it was opened
     * @param nMediaType media type of the data
     * @param szNodeId identifier of the source, without terminator
     * @param nParamVal parameter value accompanying the frame
     * @param szData the frame, a new array per call
     * @param nDataLen length of {@code szData}
     */
    void invoke(
            int nPDLLHandle,
            int nSeq,
            int nMediaType,
            byte[] szNodeId,
            int nParamVal,
            byte[] szData,
            int nDataLen);
}
