package com.zq.OrvexCore.client;

import com.zq.OrvexCore.OrvexText;
import java.nio.charset.Charset;
import java.util.Objects;

/** Moves this client's texts in and out of the C strings the natives carry, in one charset. */
final class TextCodec {
    private final Charset charset;

    TextCodec(Charset charset) {
        this.charset = Objects.requireNonNull(charset, "charset");
    }

    Charset charset() {
        return charset;
    }

    /**
     * The bytes of a required text argument, without terminator (the natives add it). Empty texts
     * are refused here: several natives would return a stale result for them instead of failing.
     */
    byte[] arg(String text, String what) {
        Objects.requireNonNull(text, what);
        if (text.isEmpty()) {
            throw new IllegalArgumentException(what + " must not be empty");
        }
        byte[] b = text.getBytes(charset);
        for (byte x : b) {
            if (x == 0) {
                throw new IllegalArgumentException(what + " must not contain a zero character");
            }
        }
        return b;
    }

    /** Writes {@code text} into a fixed C member, zero-filled; refuses a text that does not fit. */
    void put(String text, byte[] member, String what) {
        Objects.requireNonNull(text, what);
        try {
            OrvexText.copyInto(text, member, charset);
        } catch (IllegalArgumentException e) {
            throw new IllegalArgumentException(what + ": " + e.getMessage(), e);
        }
    }

    /** The text of a fixed C member, up to its first zero byte. */
    String get(byte[] member) {
        return member == null ? "" : OrvexText.fromFixed(member, charset);
    }

    /** The text of an event's byte array, which holds exactly the text's bytes. */
    String exact(byte[] bytes) {
        return bytes == null ? "" : OrvexText.fromFixed(bytes, charset);
    }
}
