package com.zq.OrvexCore.client;

import java.util.Arrays;
import java.util.Map;
import java.util.Optional;
import java.util.function.Function;
import java.util.stream.Collectors;

/**
 * The result codes of the client library and of the bridge, each with its message. This is the
 * Java side's one copy of the table in {@code ORVEX_Core_Error.h}; a test compares the two.
 */
public enum ResultCode {
    /** 0: the call succeeded. */
    ORVEX_RET_SUCCESS(0, "the call succeeded"),
    /** 1001: no client instance has this handle. */
    ORVEX_CORE_ERROR_UNKNOWN_HANDLE(1001, "no client instance has this handle"),
    /** 1002: a memory allocation failed. */
    ORVEX_CORE_ERROR_GET_MEMORY_FAIL(1002, "a memory allocation failed"),
    /** 1003: the instance is not logged in. */
    ORVEX_CORE_ERROR_NOT_LOGGED_IN(1003, "the instance is not logged in"),
    /** 1004: the user name or password is wrong. */
    ORVEX_CORE_ERROR_LOGIN_FAIL(1004, "the user name or password is wrong"),
    /** 1005: the instance is already logged in. */
    ORVEX_CORE_ERROR_ALREADY_LOGGED_IN(1005, "the instance is already logged in"),
    /** 1006: the platform did not answer in time. */
    ORVEX_CORE_ERROR_TIMEOUT(1006, "the platform did not answer in time"),
    /** 1007: the user's level does not allow this. */
    ORVEX_CORE_ERROR_NO_PERMISSION(1007, "the user's level does not allow this"),
    /** 1008: the organisation tree is not loaded. */
    ORVEX_CORE_ERROR_TREE_NOT_LOADED(1008, "the organisation tree is not loaded"),
    /** 1009: a required argument is missing or invalid. */
    ORVEX_CORE_ERROR_INVALID_PARAM(1009, "a required argument is missing or invalid"),
    /** 1010: no department has this coding or index. */
    ORVEX_CORE_ERROR_GROUP_NOT_FOUND(1010, "no department has this coding or index"),
    /** 1011: no device has this identifier. */
    ORVEX_CORE_ERROR_DEVICE_NOT_FOUND(1011, "no device has this identifier"),
    /** 1012: no channel or camera has this identifier. */
    ORVEX_CORE_ERROR_CHANNEL_NOT_FOUND(1012, "no channel or camera has this identifier"),
    /** 1013: no open stream or query has this number. */
    ORVEX_CORE_ERROR_SEQ_NOT_FOUND(1013, "no open stream or query has this number"),
    /** 1014: the device is offline. */
    ORVEX_CORE_ERROR_DEVICE_OFFLINE(1014, "the device is offline"),
    /** 1015: the answer does not fit the given buffer. */
    ORVEX_CORE_ERROR_BUFFER_TOO_SMALL(1015, "the answer does not fit the given buffer"),
    /** 1016: the device does not support this operation. */
    ORVEX_CORE_ERROR_NOT_SUPPORTED(1016, "the device does not support this operation"),
    /** 1017: the resource is in use by another session. */
    ORVEX_CORE_ERROR_BUSY(1017, "the resource is in use by another session"),
    /** 1018: no such record, preset, wall, door or item. */
    ORVEX_CORE_ERROR_NOT_FOUND(1018, "no such record, preset, wall, door or item"),
    /** 1019: the simulated site's scenario is malformed. */
    ORVEX_CORE_ERROR_SCENARIO_INVALID(1019, "the simulated site's scenario is malformed"),
    /** 1999: a Java reference could not be created. */
    ORVEX_CORE_ERROR_CREATE_JNI_ERROR(1999, "a Java reference could not be created");

    /** The message given for a code that the table does not list. */
    public static final String UNKNOWN_MESSAGE = "unknown result code";

    private static final Map<Integer, ResultCode> BY_VALUE = Arrays.stream(values())
            .collect(Collectors.toUnmodifiableMap(ResultCode::value, Function.identity()));

    private final int value;
    private final String message;

    ResultCode(int value, String message) {
        this.value = value;
        this.message = message;
    }

    /** The integer the library returns for this result. */
    public int value() {
        return value;
    }

    /** What the result means, in a few words. */
    public String message() {
        return message;
    }

    /** The entry for {@code value}, empty for a code the table does not list. */
    public static Optional<ResultCode> of(int value) {
        return Optional.ofNullable(BY_VALUE.get(value));
    }

    /** The message of {@code value}, or {@value #UNKNOWN_MESSAGE}. */
    public static String messageOf(int value) {
        ResultCode c = BY_VALUE.get(value);
        return c == null ? UNKNOWN_MESSAGE : c.message;
    }
}
