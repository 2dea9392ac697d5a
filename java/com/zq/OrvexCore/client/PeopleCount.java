package com.zq.OrvexCore.client;

import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.Person_Count_Info_t;
import java.util.ArrayList;
import java.util.List;
import java.util.concurrent.atomic.AtomicBoolean;

/** A running people-counting query; see {@link Services#countPeople}. */
public final class PeopleCount implements AutoCloseable {
    /**
     * One interval of the count.
     *
     * @param channel the channel number
     * @param rule the counting rule's name
     * @param start start of the interval
     * @param end end of the interval
     * @param entered people who entered
     * @param exited people who left
     * @param averageInside the average number inside
     * @param maximumInside the most inside at once
     */
    public record Row(int channel, String rule, int start, int end, int entered, int exited,
            int averageInside, int maximumInside) {}

    private final OrvexClient c;
    private final CameraId camera;
    private final byte[] id;
    private final int sequence;
    private final int total;
    private final AtomicBoolean open = new AtomicBoolean(true);

    PeopleCount(OrvexClient client, CameraId camera, byte[] id, int sequence, int total) {
        this.c = client;
        this.camera = camera;
        this.id = id;
        this.sequence = sequence;
        this.total = total;
        client.track(this);
    }

    /** The camera counted. */
    public CameraId camera() {
        return camera;
    }

    /** The number of rows the query found. */
    public int total() {
        return total;
    }

    /** The rows from {@code first} on, at most {@code size} of them. */
    public List<Row> page(int first, int size) {
        if (!open.get()) {
            throw new IllegalStateException("the query is closed");
        }
        Calls.nonNegative(first, "first");
        int n = Math.min(Calls.nonNegative(size, "size"), Math.max(0, total - first));
        if (n == 0) {
            return List.of();
        }
        Person_Count_Info_t[] rows = new Person_Count_Info_t[n];
        c.run("ORVEX_QueryPersonCountBypage", () -> IOrvexCore.ORVEX_QueryPersonCountBypage(
                c.handle, id, sequence, first, n, rows, c.timeoutMs));
        List<Row> out = new ArrayList<>(n);
        for (Person_Count_Info_t r : rows) {
            out.add(new Row(r.nChannelID, c.text.get(r.szRuleName), r.nStartTime, r.nEndTime,
                    r.nEnteredSubTotal, r.nExitedSubtotal, r.nAvgInside, r.nMaxInside));
        }
        return List.copyOf(out);
    }

    /** Ends the query on the platform; closing again does nothing. */
    @Override
    public void close() {
        if (open.compareAndSet(true, false)) {
            c.untrack(this);
            c.run("ORVEX_StopQueryPersonCount",
                    () -> IOrvexCore.ORVEX_StopQueryPersonCount(c.handle, id, sequence,
                            c.timeoutMs));
        }
    }
}
