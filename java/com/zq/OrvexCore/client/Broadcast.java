package com.zq.OrvexCore.client;

import com.zq.OrvexCore.IOrvexCore;

/**
 * An audio broadcast; see {@link Media#broadcast}. Its state at each camera arrives through
 * {@link Events#onBroadcastStatus}.
 */
public final class Broadcast extends MediaStream {
    private final byte[] description;

    Broadcast(OrvexClient client, int sequence, byte[] description) {
        super(client, sequence, null, null);
        this.description = description;
    }

    @Override
    void end() {
        client.run("ORVEX_CloseBroadcastStream", () -> IOrvexCore.ORVEX_CloseBroadcastStream(
                client.handle, sequence(), description, client.timeoutMs));
    }
}
