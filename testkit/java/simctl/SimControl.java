package simctl;

import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;

/**
 * Test-side control of the stand-in client library: its call log, scripted replies and callback
 * firing. Works through a JNI library of its own, never through the bridge under test: the
 * property {@code orvex.simctl.library} names it by absolute path, else {@code libOrvexSimCtl.so}
 * is looked up on {@code java.library.path}. Loading this class switches the stand-in to
 * scripted answers only ({@link #usePlatform} switches back).
 */
public final class SimControl {
    static {
        String path = System.getProperty("orvex.simctl.library");
        if (path != null && !path.isEmpty()) {
            System.load(path);
        } else {
            System.loadLibrary("OrvexSimCtl");
        }
    }

    private SimControl() {}

    /** Forgets every call, scripted reply, registration and scripting error. */
    public static native void reset();

    /** Every call the stand-in received since the last reset, in order. */
    public static native RecordedCall[] calls();

    private static native void queueReply(String fn, int result, Write[] writes);

    /** Mistakes in scripted replies (unknown output, write past an output's end). */
    public static native String[] errors();

    /**
     * Fires one event of {@code kind} (a listener interface name) from a thread of the stand-in
     * and waits until the callback returned. Arguments: Integer/Long/Boolean for integers,
     * byte[] for strings (the terminator is added) and buffers, null for a null pointer.
     */
    public static native int fire(String kind, int handle, int seq, Object[] args);

    /**
     * Fires {@code eventsPerThread} events from each of {@code threads} stand-in threads at once
     * and returns the number delivered. When {@code stampArg} is an argument index, that integer
     * argument carries each event's own number ({@code thread * eventsPerThread + event});
     * -1 sends the same arguments every time.
     */
    public static native long fireMany(String kind, int handle, int seq, Object[] args,
            int threads, int eventsPerThread, int stampArg);

    /**
     * Fires one media event (node "node", a 3-byte frame, {@code param} as its parameter value)
     * per entry of {@code seqs}, in order, each to that stream of {@code handle}, all from one
     * stand-in thread; returns the number delivered.
     */
    public static native int fireStreams(int handle, int[] seqs, int param);

    /**
     * Puts a registration in place as the library would keep it, without a registration call:
     * function address {@code fn} (see {@link BridgeInternals#trampoline}) with a new global
     * reference to {@code listener} as user data, or null user data for a null listener. Media
     * registrations belong to stream {@code seq}.
     */
    public static native void install(String kind, int handle, int seq, long fn, Object listener);

    /** Queues the reply to the next unanswered call of {@code fn}. */
    public static void script(String fn, int result, Write... writes) {
        queueReply(fn, result, writes == null ? new Write[0] : writes);
    }

    public static List<RecordedCall> callsOf(String fn) {
        List<RecordedCall> out = new ArrayList<>();
        for (RecordedCall c : calls()) {
            if (c.fn.equals(fn)) {
                out.add(c);
            }
        }
        return out;
    }

    /** The last call of {@code fn}; fails if there was none. */
    public static RecordedCall last(String fn) {
        List<RecordedCall> all = callsOf(fn);
        if (all.isEmpty()) {
            throw new AssertionError(fn + " was not called; calls: " + Arrays.toString(calls()));
        }
        return all.get(all.size() - 1);
    }

    public static int count(String fn) {
        return callsOf(fn).size();
    }

    /**
     * Declares that the next call of {@code fn} hands the library {@code bytes} of writable
     * memory at output {@code target}, whose size the library is not told (a JSON answer buffer,
     * the disk list), so that the call records it and scripted writes may fill it. Must not
     * exceed what the bridge really allocates there.
     */
    public static native void declareCapacity(String fn, String target, int bytes);

    /**
     * Whether calls that no test scripted are answered by the simulated platform (true) or return
     * 0 with their outputs untouched (false, the default once this class is loaded). Scripted
     * replies come first and every call is recorded either way.
     */
    public static native void usePlatform(boolean on);

    /**
     * What the simulated platform's talk entry point has received in this process: blocks
     * accepted, blocks rejected (bad header, or no talk session open), samples decoded from the
     * accepted ones, and their peak magnitude. Not cleared by {@link #reset}.
     */
    public static native long[] talkReceived();
}
