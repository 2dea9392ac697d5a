package clienttest;

import bridgetest.CRecord;
import com.zq.OrvexCore.client.OrvexClient;
import java.nio.ByteBuffer;
import java.nio.ByteOrder;
import java.nio.charset.StandardCharsets;
import java.util.ArrayDeque;
import java.util.Arrays;
import java.util.Deque;
import java.util.concurrent.Executor;
import java.util.concurrent.ExecutorService;
import java.util.concurrent.Executors;
import simctl.SimControl;
import simctl.Write;

/** Connects clients to the scripted stand-in and builds the raw C bytes that tests script. */
final class Sim {
    static final int HANDLE = 42;

    private Sim() {}

    /** A client logged in on a fresh stand-in, whose listeners run on {@code events}. */
    static OrvexClient connect(Executor events) {
        SimControl.reset();
        SimControl.script("ORVEX_Create", 0, Write.le32("pnSdkHandle", 0, HANDLE));
        OrvexClient.Builder b = OrvexClient.builder().host("10.1.2.3").port(9100).user("op")
                .password("secret");
        if (events != null) {
            b.eventExecutor(events);
        }
        return b.connect();
    }

    static OrvexClient connect() {
        return connect(null);
    }

    /** A single-thread executor whose thread carries {@code name}. */
    static ExecutorService named(String name) {
        return Executors.newSingleThreadExecutor(r -> {
            Thread t = new Thread(r, name);
            t.setDaemon(true);
            return t;
        });
    }

    /** An executor that keeps tasks until the test runs them. */
    static final class Held implements Executor {
        final Deque<Runnable> tasks = new ArrayDeque<>();

        @Override
        public synchronized void execute(Runnable r) {
            tasks.add(r);
        }

        synchronized int runAll() {
            int n = 0;
            while (!tasks.isEmpty()) {
                tasks.poll().run();
                n++;
            }
            return n;
        }
    }

    /** The raw bytes of C records laid one after another, as in a record array. */
    static byte[] concat(CRecord... records) {
        ByteBuffer out = ByteBuffer.allocate(Arrays.stream(records).mapToInt(r -> r.bytes().length).sum());
        for (CRecord r : records) {
            out.put(r.bytes());
        }
        return out.array();
    }

    /** The text at {@code offset} of a recorded C record, up to its terminator. */
    static String textAt(byte[] record, int offset) {
        int end = offset;
        while (end < record.length && record[end] != 0) {
            end++;
        }
        return new String(record, offset, end - offset, StandardCharsets.UTF_8);
    }

    static int i32At(byte[] record, int offset) {
        return ByteBuffer.wrap(record).order(ByteOrder.LITTLE_ENDIAN).getInt(offset);
    }

    static byte[] utf8(String s) {
        return s.getBytes(StandardCharsets.UTF_8);
    }
}
