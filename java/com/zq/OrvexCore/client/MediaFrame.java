package com.zq.OrvexCore.client;

import java.nio.ByteBuffer;

/**
 * One frame of a live, playback or talk stream.
 *
 * @param sequence the sequence number of the stream it belongs to
 * @param mediaType its type as the library numbers it (1 video, 2 audio, ...)
 * @param nodeId the node (camera, channel) that sent it
 * @param param the library's per-frame parameter (a format or frame flag)
 * @param data the frame's bytes (read-only; copy them to keep them past the consumer call)
 */
public record MediaFrame(int sequence, int mediaType, String nodeId, int param, ByteBuffer data) {
    /** The number of bytes of the frame. */
    public int size() {
        return data.remaining();
    }
}
