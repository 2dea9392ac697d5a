package com.zq.OrvexCore;

import java.nio.charset.Charset;
import java.util.Arrays;
import java.util.Objects;

/**
 * Conversions between Java strings and the raw C-string bytes in which text crosses to and from
 * the client library.
 *
 * <p>Text fields of the value objects are fixed-size {@code byte[]} buffers that the bridge copies
 * whole into C {@code char[N]} members, so a text must leave room for its terminating zero byte.
 * Texts delivered to listeners are arrays of exactly the text's length, without terminator. The
 * character set is the caller's choice: it must be the one the platform uses.
 */
public final class OrvexText {
    private OrvexText() {
    }

    /**
     * Encodes a text into a new zero-padded buffer of a fixed size.
     *
     * @param s the text
     * @param size size of the buffer, normally the size of the C member it fills
     * @param cs character set of the platform
     * @return a new array of {@code size} bytes: the encoded text followed by zeros
     * @throws IllegalArgumentException if the encoded text plus its terminating zero does not fit
     */
    public static byte[] toFixed(String s, int size, Charset cs) {
        Objects.requireNonNull(s, "text must not be null");
        Objects.requireNonNull(cs, "charset must not be null");
        if (size < 0) {
            throw new IllegalArgumentException("size must not be negative: " + size);
        }
        byte[] encoded = s.getBytes(cs);
        checkFits(encoded.length, size);
        return Arrays.copyOf(encoded, size);
    }

    /**
     * Clears a buffer and writes an encoded text into it from index 0.
     *
     * @param s the text
     * @param dst the buffer, normally a text field of a value object
     * @param cs character set of the platform
     * @throws IllegalArgumentException if the encoded text plus its terminating zero does not fit;
     *     the buffer is then left unchanged
     */
    public static void copyInto(String s, byte[] dst, Charset cs) {
        Objects.requireNonNull(s, "text must not be null");
        Objects.requireNonNull(dst, "destination buffer must not be null");
        Objects.requireNonNull(cs, "charset must not be null");
        byte[] encoded = s.getBytes(cs);
        checkFits(encoded.length, dst.length);
        Arrays.fill(dst, (byte) 0);
        System.arraycopy(encoded, 0, dst, 0, encoded.length);
    }

    /**
     * Decodes the text of a fixed-size buffer: the bytes up to the first zero byte, or all of them
     * when there is none.
     *
     * @param b the buffer
     * @param cs character set of the platform
     * @return the decoded text
     */
    public static String fromFixed(byte[] b, Charset cs) {
        Objects.requireNonNull(b, "buffer must not be null");
        Objects.requireNonNull(cs, "charset must not be null");
        int len = 0;
        while (len < b.length && b[len] != 0) {
            len++;
        }
        return new String(b, 0, len, cs);
    }

    /**
     * Decodes an array that holds exactly one text, as listeners receive them.
     *
     * @param b the text's bytes
     * @param cs character set of the platform
     * @return the decoded text
     */
    public static String fromBytes(byte[] b, Charset cs) {
        Objects.requireNonNull(b, "bytes must not be null");
        Objects.requireNonNull(cs, "charset must not be null");
        return new String(b, cs);
    }

    private static void checkFits(int encodedLength, int size) {
        if (encodedLength + 1 > size) {
            throw new IllegalArgumentException("text of " + encodedLength
                    + " bytes does not fit with its terminating zero into " + size + " bytes");
        }
    }
}
