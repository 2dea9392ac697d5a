package simctl;

import java.nio.ByteBuffer;
import java.nio.ByteOrder;
import java.util.Arrays;

/**
 * One recorded argument: a scalar {@code value}, or the raw bytes a pointer reached when the
 * call arrived (strings with their terminator), or a plain address in {@code value}.
 */
public final class RecordedArg {
    public final String name;
    public final boolean pointer;
    public final boolean isNull;
    public final long value;
    public final byte[] bytes;

    public RecordedArg(String name, boolean pointer, boolean isNull, long value, byte[] bytes) {
        this.name = name;
        this.pointer = pointer;
        this.isNull = isNull;
        this.value = value;
        this.bytes = bytes;
    }

    public int i32() {
        return (int) value;
    }

    private ByteBuffer le() {
        if (bytes == null) {
            throw new AssertionError(name + " carries no bytes");
        }
        return ByteBuffer.wrap(bytes).order(ByteOrder.LITTLE_ENDIAN);
    }

    public int le32(int offset) {
        return le().getInt(offset);
    }

    public long le64(int offset) {
        return le().getLong(offset);
    }

    public int u8(int offset) {
        return bytes[offset] & 0xFF;
    }

    public byte[] slice(int offset, int length) {
        return Arrays.copyOfRange(bytes, offset, offset + length);
    }

    @Override
    public String toString() {
        if (!pointer) {
            return name + "=" + value;
        }
        if (isNull) {
            return name + "=null";
        }
        return bytes == null ? name + "=@" + Long.toHexString(value)
                             : name + "=" + bytes.length + " bytes";
    }
}
