package com.zq.OrvexCore.client;

import java.util.Objects;

/**
 * The identifier of a department of the organisation tree (its coding).
 *
 * @param value the identifier as the platform spells it; never empty
 */
public record DepartmentCode(String value) {
    /** Refuses a null or empty identifier: the library cannot look such a one up. */
    public DepartmentCode {
        Objects.requireNonNull(value, "DepartmentCode must not be null");
        if (value.isEmpty()) {
            throw new IllegalArgumentException("DepartmentCode must not be empty");
        }
    }

    /** The identifier {@code value}. */
    public static DepartmentCode of(String value) {
        return new DepartmentCode(value);
    }

    @Override
    public String toString() {
        return value;
    }
}
