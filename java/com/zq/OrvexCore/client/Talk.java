package com.zq.OrvexCore.client;

import com.zq.OrvexCore.Audio_Fun_Info_t;
import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.Send_Audio_Data_Info_t;
import java.util.Objects;

/**
 * An open two-way audio session with a camera or device; see {@link Media#talk}. The device's
 * audio arrives as frames at the consumer given when opening; {@link #send(short[])} speaks.
 */
public final class Talk extends MediaStream {
    /** The most samples one block carries; longer input is sent in several blocks. */
    static final int MAX_SAMPLES_PER_BLOCK = 65_528;

    private final Audio_Fun_Info_t entry;
    private final Media.TalkOptions options;

    Talk(OrvexClient client, int sequence, CameraId camera, FrameSink sink, Audio_Fun_Info_t entry,
            Media.TalkOptions options) {
        super(client, sequence, camera, sink);
        this.entry = entry;
        this.options = options;
    }

    /**
     * Sends 16-bit linear PCM (host samples, mono, at the session's sample rate) to the device.
     * The library receives it as G.711 A-law, whatever audio type the session was opened with.
     */
    public void send(short[] pcm) {
        Objects.requireNonNull(pcm, "pcm");
        ensureOpen();
        for (int off = 0; off < pcm.length; off += MAX_SAMPLES_PER_BLOCK) {
            int n = Math.min(MAX_SAMPLES_PER_BLOCK, pcm.length - off);
            byte[] block = new byte[2 * n];
            for (int i = 0; i < n; i++) {
                short s = pcm[off + i];
                block[2 * i] = (byte) s;
                block[2 * i + 1] = (byte) (s >> 8);
            }
            Send_Audio_Data_Info_t d = new Send_Audio_Data_Info_t(entry, block);
            d.nAudioType = options.audioType();
            d.nTalkBits = options.bits();
            d.nSampleRate = options.sampleRate();
            client.run("ORVEX_SendAudioData",
                    () -> IOrvexCore.ORVEX_SendAudioData(client.handle, d));
        }
    }

    @Override
    void end() {
        client.run("ORVEX_CloseTalkStreamBySeq",
                () -> IOrvexCore.ORVEX_CloseTalkStreamBySeq(client.handle, sequence(),
                        client.timeoutMs));
    }
}
