package com.zq.OrvexCore.client;

import java.util.Optional;

/**
 * A call to the client library that did not succeed. Carries the library's result code, its
 * message from {@link ResultCode}, and the name of the library function that returned it.
 */
public class OrvexException extends RuntimeException {
    private static final long serialVersionUID = 1L;

    private final int code;
    private final String operation;

    /**
     * @param operation the library function that failed, such as {@code "ORVEX_Login"}
     * @param code its result code (not 0)
     */
    public OrvexException(String operation, int code) {
        super(operation + " failed with " + code + ": " + ResultCode.messageOf(code));
        this.code = code;
        this.operation = operation;
    }

    /** The library's result code. */
    public int code() {
        return code;
    }

    /** The table entry of {@link #code()}, empty for a code the table does not list. */
    public Optional<ResultCode> resultCode() {
        return ResultCode.of(code);
    }

    /** The message of {@link #code()}, without the operation. */
    public String codeMessage() {
        return ResultCode.messageOf(code);
    }

    /** The library function that returned the code. */
    public String operation() {
        return operation;
    }
}
