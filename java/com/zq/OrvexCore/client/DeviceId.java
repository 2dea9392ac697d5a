package com.zq.OrvexCore.client;

import java.util.Objects;

/**
 * The identifier of a device (recorder, encoder, alarm host, door controller).
 *
 * @param value the identifier as the platform spells it; never empty
 */
public record DeviceId(String value) {
    /** Refuses a null or empty identifier: the library cannot look such a one up. */
    public DeviceId {
        Objects.requireNonNull(value, "DeviceId must not be null");
        if (value.isEmpty()) {
            throw new IllegalArgumentException("DeviceId must not be empty");
        }
    }

    /** The identifier {@code value}. */
    public static DeviceId of(String value) {
        return new DeviceId(value);
    }

    @Override
    public String toString() {
        return value;
    }
}
