package com.zq.OrvexCore.client;

import java.util.List;
import java.util.Optional;
import java.util.stream.Stream;

/**
 * A department in a loaded tree, with its sub-departments and its devices. Walk it through the
 * components, or stream it flat.
 *
 * @param department the department
 * @param children its sub-departments (unmodifiable)
 * @param devices its devices (unmodifiable)
 */
public record DepartmentNode(Department department, List<DepartmentNode> children,
        List<DeviceNode> devices) {
    /** Copies the lists, so that the node cannot change. */
    public DepartmentNode {
        children = List.copyOf(children);
        devices = List.copyOf(devices);
    }

    /** This department and every department below it, depth first. */
    public Stream<DepartmentNode> departments() {
        return Stream.concat(Stream.of(this),
                children.stream().flatMap(DepartmentNode::departments));
    }

    /** Every device of this department and of those below it. */
    public Stream<DeviceNode> allDevices() {
        return departments().flatMap(d -> d.devices().stream());
    }

    /** Every channel of every device of this department and of those below it. */
    public Stream<Channel> channels() {
        return allDevices().flatMap(d -> d.channels().stream());
    }

    /** The channel with this identifier anywhere below this department. */
    public Optional<Channel> findChannel(CameraId id) {
        return channels().filter(c -> c.id().equals(id)).findFirst();
    }
}
