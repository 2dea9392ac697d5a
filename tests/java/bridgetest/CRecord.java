package bridgetest;

import java.nio.ByteBuffer;
import java.nio.ByteOrder;
import java.nio.charset.StandardCharsets;

/** Builds the raw little-endian bytes of a C record, member by member at stated offsets. */
public final class CRecord {
    private final ByteBuffer buf;

    public CRecord(int size) {
        buf = ByteBuffer.allocate(size).order(ByteOrder.LITTLE_ENDIAN);
    }

    public CRecord i32(int offset, int v) {
        buf.putInt(offset, v);
        return this;
    }

    public CRecord i64(int offset, long v) {
        buf.putLong(offset, v);
        return this;
    }

    public CRecord f32(int offset, float v) {
        buf.putFloat(offset, v);
        return this;
    }

    /** ASCII text without terminator (the record is zero-filled). */
    public CRecord text(int offset, String s) {
        return raw(offset, s.getBytes(StandardCharsets.US_ASCII));
    }

    public CRecord raw(int offset, byte[] bytes) {
        buf.put(offset, bytes);
        return this;
    }

    public byte[] bytes() {
        return buf.array();
    }

    public static byte[] ascii(String s) {
        return s.getBytes(StandardCharsets.US_ASCII);
    }

    /** {@code n} bytes of {@code fill}. */
    public static byte[] filled(int n, int fill) {
        byte[] b = new byte[n];
        java.util.Arrays.fill(b, (byte) fill);
        return b;
    }
}
