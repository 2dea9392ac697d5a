package simctl;

import java.nio.ByteBuffer;
import java.nio.ByteOrder;

/** Raw bytes a scripted reply writes into one output of the call, at a byte offset. */
public final class Write {
    public final String target;
    public final int offset;
    public final byte[] bytes;

    public Write(String target, int offset, byte[] bytes) {
        this.target = target;
        this.offset = offset;
        this.bytes = bytes;
    }

    public static Write bytes(String target, int offset, byte[] bytes) {
        return new Write(target, offset, bytes);
    }

    public static Write le32(String target, int offset, int value) {
        return new Write(target, offset,
                ByteBuffer.allocate(4).order(ByteOrder.LITTLE_ENDIAN).putInt(value).array());
    }

    public static Write le64(String target, int offset, long value) {
        return new Write(target, offset,
                ByteBuffer.allocate(8).order(ByteOrder.LITTLE_ENDIAN).putLong(value).array());
    }
}
