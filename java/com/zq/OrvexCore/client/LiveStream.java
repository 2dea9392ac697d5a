package com.zq.OrvexCore.client;

import com.zq.OrvexCore.IOrvexCore;

/** An open live (or preview) stream of a camera; see {@link Media#openLive}. */
public final class LiveStream extends MediaStream {
    LiveStream(OrvexClient client, int sequence, CameraId camera, FrameSink sink) {
        super(client, sequence, camera, sink);
    }

    @Override
    void end() {
        client.run("ORVEX_CloseRealStreamBySeq",
                () -> IOrvexCore.ORVEX_CloseRealStreamBySeq(client.handle, sequence(),
                        client.timeoutMs));
    }
}
