package com.zq.OrvexCore.client;

import com.zq.OrvexCore.MediaDataCallback;
import java.nio.ByteBuffer;
import java.util.concurrent.Executor;
import java.util.function.Consumer;

/**
 * The media listener handed to the bridge for one stream. The bridge keeps it for the rest of the
 * process, so closing the stream detaches the consumer: no frame reaches it afterwards, queued
 * ones included, and the consumer can be collected.
 */
final class FrameSink implements MediaDataCallback {
    private final Executor executor;
    private final TextCodec text;
    private volatile Consumer<? super MediaFrame> consumer;

    FrameSink(Executor executor, TextCodec text, Consumer<? super MediaFrame> consumer) {
        this.executor = executor;
        this.text = text;
        this.consumer = consumer;
    }

    @Override
    public void invoke(int handle, int seq, int mediaType, byte[] nodeId, int param, byte[] data,
            int dataLen) {
        Consumer<? super MediaFrame> c = consumer;
        if (c == null) {
            return;
        }
        byte[] b = data == null ? new byte[0] : data;
        int len = Math.max(0, Math.min(dataLen, b.length));
        MediaFrame frame = new MediaFrame(seq, mediaType, text.exact(nodeId), param,
                ByteBuffer.wrap(b, 0, len).slice().asReadOnlyBuffer());
        Events.dispatch(executor, () -> consumer != null, () -> c.accept(frame));
    }

    void detach() {
        consumer = null;
    }
}
