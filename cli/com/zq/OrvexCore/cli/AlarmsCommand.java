package com.zq.OrvexCore.cli;

import com.zq.OrvexCore.client.Alarms;
import com.zq.OrvexCore.client.CameraId;
import com.zq.OrvexCore.client.DeviceId;
import com.zq.OrvexCore.client.Events;
import com.zq.OrvexCore.client.OrvexClient;
import com.zq.OrvexCore.client.OrvexEvent;
import java.io.PrintWriter;
import java.util.ArrayList;
import java.util.List;
import picocli.CommandLine.Command;
import picocli.CommandLine.Option;

/** Follows live alarms, or reads the alarm history or the alarm schemes. */
@Command(name = "alarms", mixinStandardHelpOptions = true,
        description = {"With --follow: prints alarms as they arrive ('alarm TIME TYPE EVENT CAMERA "
                + "MESSAGE'), after enabling the --enable sources.",
            "With --camera: prints the alarm history of a camera between --from and --to.",
            "With --schemes: prints the alarm schemes."})
final class AlarmsCommand extends ClientCommand {
    @Option(names = "--follow", description = "Print live alarms.")
    boolean follow;

    @Option(names = "--enable", paramLabel = "DEVICE[:VIDEO:INPUT:TYPE]",
            description = "Alarm source to enable while following (repeatable).")
    List<String> enable = new ArrayList<>();

    @Option(names = "--seconds", defaultValue = "0",
            description = "Stop following after this many seconds (0: until interrupted).")
    long seconds;

    @Option(names = "--camera", description = "Camera whose history to read.")
    String camera;

    @Option(names = "--from", defaultValue = "0", description = "Start of the history span.")
    long from;

    @Option(names = "--to", defaultValue = "" + Long.MAX_VALUE,
            description = "End of the history span.")
    long to;

    @Option(names = "--type", defaultValue = "0", description = "Alarm type, 0 for any.")
    int type;

    @Option(names = "--first", defaultValue = "0", description = "First alarm of the page.")
    int first;

    @Option(names = "--size", defaultValue = "50",
            description = "Alarms per page (default: ${DEFAULT-VALUE}).")
    int size;

    @Option(names = "--schemes", description = "Print the alarm schemes.")
    boolean schemes;

    @Override
    void check() {
        if ((follow ? 1 : 0) + (camera != null ? 1 : 0) + (schemes ? 1 : 0) != 1) {
            throw new IllegalArgumentException("give exactly one of --follow, --camera, --schemes");
        }
    }

    @Override
    int run(OrvexClient client) throws InterruptedException {
        PrintWriter out = out();
        if (follow) {
            follow(client, out);
        } else if (schemes) {
            for (Alarms.Scheme s : client.alarms().schemes()) {
                out.printf("scheme %d %s %s template %d  %s%n", s.id(), s.name(),
                        s.open() ? "open" : "closed", s.templateId(), s.description());
            }
        } else {
            Alarms.Query q = new Alarms.Query(CameraId.of(camera), from, to, type);
            out.printf("%d alarms%n", client.alarms().count(q));
            for (Alarms.Record r : client.alarms().page(q, first, size)) {
                out.printf("alarm %d type %d event %d device %s channel %d  %s%n", r.time(),
                        r.alarmType(), r.eventType(), r.device(), r.channel(), r.message());
            }
        }
        return 0;
    }

    private void follow(OrvexClient client, PrintWriter out) throws InterruptedException {
        Events.Registration registration = client.events().onAlarm(a -> print(out, a));
        try {
            if (!enable.isEmpty()) {
                List<Alarms.Source> sources = new ArrayList<>();
                for (String e : enable) {
                    String[] p = e.split(":");
                    sources.add(new Alarms.Source(DeviceId.of(p[0]), field(p, 1), field(p, 2),
                            field(p, 3)));
                }
                client.alarms().enable(sources);
            }
            out.println("following alarms");
            out.flush();
            if (seconds > 0) {
                Thread.sleep(seconds * 1000);
            } else {
                Thread.currentThread().join();
            }
        } finally {
            registration.close();
        }
    }

    /** Field {@code i} of a colon-separated source, 0 if it is left out. */
    private static int field(String[] parts, int i) {
        return parts.length > i ? Integer.parseInt(parts[i]) : 0;
    }

    private static void print(PrintWriter out, OrvexEvent.Alarm a) {
        out.printf("alarm %d type %d event %d camera %s  %s%n", a.time(), a.alarmType(),
                a.eventType(), a.camera(), a.message());
        out.flush();
    }
}
