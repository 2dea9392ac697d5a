package com.zq.OrvexCore.client;

/** The result convention: 0 is success, anything else becomes an {@link OrvexException}. */
final class Calls {
    private Calls() {}

    static void check(String operation, int rc) {
        if (rc != 0) {
            throw new OrvexException(operation, rc);
        }
    }

    /** Refuses a negative count, index or size before it reaches the library. */
    static int nonNegative(int n, String what) {
        if (n < 0) {
            throw new IllegalArgumentException(what + " must not be negative: " + n);
        }
        return n;
    }
}
