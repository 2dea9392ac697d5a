package com.zq.OrvexCore.client;

import java.util.List;

/**
 * A device in a loaded tree, with its channels.
 *
 * @param device the device
 * @param channels its encoder channels (unmodifiable)
 */
public record DeviceNode(Device device, List<Channel> channels) {
    /** Copies the list, so that the node cannot change. */
    public DeviceNode {
        channels = List.copyOf(channels);
    }
}
