package com.zq.OrvexCore.cli;

import com.zq.OrvexCore.client.Channel;
import com.zq.OrvexCore.client.DepartmentNode;
import com.zq.OrvexCore.client.DeviceNode;
import com.zq.OrvexCore.client.OrvexClient;
import java.io.PrintWriter;
import picocli.CommandLine.Command;

/** Prints the organisation tree: departments, their devices, the devices' cameras. */
@Command(name = "tree", mixinStandardHelpOptions = true,
        description = {"Loads and prints the organisation tree.",
            "Lines: 'department CODE NAME', 'device ID NAME STATE', 'camera ID NAME STATE', "
                    + "indented by depth."})
final class TreeCommand extends ClientCommand {
    static String state(int status) {
        return switch (status) {
            case 1 -> "online";
            case 2 -> "offline";
            default -> "unknown";
        };
    }

    @Override
    int run(OrvexClient client) {
        print(out(), client.catalogue().tree(), 0);
        return 0;
    }

    private static void print(PrintWriter out, DepartmentNode node, int depth) {
        String pad = "  ".repeat(depth);
        out.printf("%sdepartment %s %s%n", pad, node.department().code(), node.department().name());
        for (DeviceNode d : node.devices()) {
            out.printf("%s  device %s %s %s%n", pad, d.device().id(), d.device().name(),
                    state(d.device().status()));
            for (Channel c : d.channels()) {
                out.printf("%s    camera %s %s %s%n", pad, c.id(), c.name(), state(c.status()));
            }
        }
        for (DepartmentNode child : node.children()) {
            print(out, child, depth + 1);
        }
    }
}
