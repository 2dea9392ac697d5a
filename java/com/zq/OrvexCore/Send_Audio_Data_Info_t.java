package com.zq.OrvexCore;

/**
 * One block of 16-bit PCM to send in a talk session; always sent as G.711 A-law.
 */
public class Send_Audio_Data_Info_t {
    /** Entry point from {@link Audio_Fun_Info_t#pCallBackFun}. */
    public long pCallBackFun;
    /** User data from {@link Audio_Fun_Info_t#pUserParam}. */
    public long pUserParam;
    /** Audio coding (not used: the audio is always encoded as A-law). */
    public int nAudioType;
    /** Bits per sample (not used: 16-bit samples are assumed). */
    public int nTalkBits;
    /** Sample rate (not used). */
    public int nSampleRate;
    /** Number of bytes in {@link #pData}; must equal its length and be at most 131056. */
    public int nLen;
    /** Little-endian 16-bit PCM samples. */
    public byte[] pData = new byte[0];

    /** Creates an empty block: no entry point, no data. */
    public Send_Audio_Data_Info_t() {
    }

    /**
     * Creates a block for the given entry point and PCM data.
     *
     * @param fun the entry point obtained for the talk session
     * @param pcm the samples; {@link #nLen} is set to its length
     */
    public Send_Audio_Data_Info_t(Audio_Fun_Info_t fun, byte[] pcm) {
        this.pCallBackFun = fun.pCallBackFun;
        this.pUserParam = fun.pUserParam;
        this.pData = pcm;
        this.nLen = pcm.length;
    }
}
