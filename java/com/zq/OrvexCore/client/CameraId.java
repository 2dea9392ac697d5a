package com.zq.OrvexCore.client;

import java.util.Objects;

/**
 * The identifier of a camera (encoder channel), as the streams, PTZ and alarm calls name it.
 *
 * @param value the identifier as the platform spells it; never empty
 */
public record CameraId(String value) {
    /** Refuses a null or empty identifier: the library cannot look such a one up. */
    public CameraId {
        Objects.requireNonNull(value, "CameraId must not be null");
        if (value.isEmpty()) {
            throw new IllegalArgumentException("CameraId must not be empty");
        }
    }

    /** The identifier {@code value}. */
    public static CameraId of(String value) {
        return new CameraId(value);
    }

    @Override
    public String toString() {
        return value;
    }
}
