package orvexbench;

/** Baselines and the library-thread driver of the benchmark library ({@code libOrvexBench}). */
final class Natives {
    static {
        System.load(System.getProperty("orvex.bench.library"));
    }

    private Natives() {}

    /**
     * Calls the stand-in's ORVEX_CloseRealStreamBySeq {@code n} times from C: its own share of
     * a scalar native.
     */
    static native int standIn(int n);

    /** A native that does nothing: the cost of any JNI call. */
    static native int empty(int a, int b, int c);

    /**
     * Plays {@code threads} library threads, each delivering {@code events} media events of
     * {@code dataLen} bytes to the C function {@code fn} with user data {@code user}; stores the
     * elapsed nanoseconds and the processor nanoseconds the threads used in
     * {@code wallAndCpu}.
     */
    static native void drive(long fn, long user, int events, int dataLen, int threads,
            long[] wallAndCpu);

    /** The media callback the stand-in keeps for a stream: {function, user data}. */
    static native long[] streamCallback(int handle, int seq);

    /**
     * A baseline media callback for {@code listener}: {function, user data}. The floor attaches,
     * looks up, calls and detaches per event; the attached-once limit keeps its thread attached
     * and knows the method.
     */
    static native long[] baseline(boolean attachedOnce, Object listener);
}
