package com.zq.OrvexCore.client;

import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.ORVEXAlarmCallback;
import com.zq.OrvexCore.ORVEXBroadcastReportStatusCallback;
import com.zq.OrvexCore.ORVEXDevStatusCallback;
import com.zq.OrvexCore.ORVEXDeviceChangeCallback;
import com.zq.OrvexCore.ORVEXGeneralJsonTransportCallback;
import com.zq.OrvexCore.ORVEXGetBayCarInfoCallbackEx;
import com.zq.OrvexCore.ORVEXNVRChnlStatusCallback;
import com.zq.OrvexCore.ORVEXNetAlarmHostStatusCallback;
import com.zq.OrvexCore.ORVEXPecDoorStarusCallBack;
import com.zq.OrvexCore.ORVEXRemoteDeviceSnapCallback;
import com.zq.OrvexCore.ORVEXShareVideoCallback;
import com.zq.OrvexCore.ORVEXStatusCallback;
import com.zq.OrvexCore.ORVEXTalkParamCallback;
import com.zq.OrvexCore.ORVEXVideoAlarmHostStatusCallback;
import com.zq.OrvexCore.client.OrvexEvent.Alarm;
import com.zq.OrvexCore.client.OrvexEvent.BayVehicle;
import com.zq.OrvexCore.client.OrvexEvent.BroadcastStatus;
import com.zq.OrvexCore.client.OrvexEvent.ConnectionStatus;
import com.zq.OrvexCore.client.OrvexEvent.DeviceChange;
import com.zq.OrvexCore.client.OrvexEvent.DeviceStatus;
import com.zq.OrvexCore.client.OrvexEvent.DoorStatus;
import com.zq.OrvexCore.client.OrvexEvent.JsonMessage;
import com.zq.OrvexCore.client.OrvexEvent.NetAlarmHostStatus;
import com.zq.OrvexCore.client.OrvexEvent.NvrChannelStatus;
import com.zq.OrvexCore.client.OrvexEvent.SharedVideos;
import com.zq.OrvexCore.client.OrvexEvent.Snapshot;
import com.zq.OrvexCore.client.OrvexEvent.TalkParameters;
import com.zq.OrvexCore.client.OrvexEvent.VideoAlarmHostStatus;
import java.nio.ByteBuffer;
import java.util.List;
import java.util.Map;
import java.util.Objects;
import java.util.concurrent.ConcurrentHashMap;
import java.util.concurrent.CopyOnWriteArrayList;
import java.util.concurrent.Executor;
import java.util.concurrent.RejectedExecutionException;
import java.util.function.BooleanSupplier;
import java.util.function.Consumer;
import java.util.function.Function;

/**
 * Listeners for the platform's events, one registration method per kind. A listener is a lambda
 * taking the kind's {@link OrvexEvent} record; it runs on the given executor, or on the client's
 * {@linkplain OrvexClient.Builder#eventExecutor event executor}, never on the library's own
 * threads. Any number of listeners may follow one kind; each registration ends when its returned
 * handle is closed, or with the client.
 *
 * <p>An exception thrown by a listener is logged (logger {@code com.zq.OrvexCore.client}) and
 * does not affect other listeners or later events.
 */
public final class Events {
    private static final System.Logger LOG = System.getLogger("com.zq.OrvexCore.client");

    /** A listener's registration; closing it stops further deliveries to that listener. */
    @FunctionalInterface
    public interface Registration extends AutoCloseable {
        /** Ends the registration; events still queued for the listener are dropped. */
        @Override
        void close();
    }

    /** How the library learns of one kind: its setter and the bridge listener that feeds it. */
    private record Kind<E>(String setter, Setter register,
            Function<Consumer<E>, Function<TextCodec, Object>> bridge) {}

    @FunctionalInterface
    private interface Setter {
        int set(int handle, Object listener);
    }

    /** The listeners of one kind; registered with the library once, on first use. */
    private static final class Hub<E> {
        final List<Sub<E>> subs = new CopyOnWriteArrayList<>();
        boolean registered;

        void publish(E event) {
            for (Sub<E> s : subs) {
                dispatch(s.executor, () -> s.active, () -> s.listener.accept(event));
            }
        }
    }

    private static final class Sub<E> {
        final Executor executor;
        final Consumer<? super E> listener;
        volatile boolean active = true;

        Sub(Executor executor, Consumer<? super E> listener) {
            this.executor = executor;
            this.listener = listener;
        }
    }

    private final OrvexClient c;
    private final Map<Kind<?>, Hub<?>> hubs = new ConcurrentHashMap<>();

    Events(OrvexClient client) {
        this.c = client;
    }

    /**
     * Hands {@code work} to {@code executor}; it runs only if {@code active} still holds then.
     * Exceptions of the work are logged, and an executor that refuses work loses the event.
     */
    static void dispatch(Executor executor, BooleanSupplier active, Runnable work) {
        try {
            executor.execute(() -> {
                if (!active.getAsBoolean()) {
                    return;
                }
                try {
                    work.run();
                } catch (RuntimeException e) {
                    LOG.log(System.Logger.Level.WARNING, "an ORVEX listener failed", e);
                }
            });
        } catch (RejectedExecutionException e) {
            LOG.log(System.Logger.Level.DEBUG, "event dropped: executor refused it", e);
        }
    }

    @SuppressWarnings("unchecked")
    private <E> Registration subscribe(Kind<E> kind, Executor executor,
            Consumer<? super E> listener) {
        Objects.requireNonNull(listener, "listener");
        c.ensureOpen();
        Executor ex = executor == null ? c.eventExecutor() : executor;
        Hub<E> hub = (Hub<E>) hubs.computeIfAbsent(kind, k -> new Hub<E>());
        Sub<E> sub = new Sub<>(ex, listener);
        synchronized (hub) {
            if (!hub.registered) {
                // The bridge keeps every listener it was given for the life of the process: hand
                // it one small forwarder per kind rather than one per subscription.
                Object forwarder = kind.bridge().apply(hub::publish).apply(c.text);
                c.run(kind.setter(), () -> kind.register().set(c.handle, forwarder));
                hub.registered = true;
            }
            hub.subs.add(sub);
        }
        return () -> {
            sub.active = false;
            hub.subs.remove(sub);
        };
    }

    /** Ends every registration (on closing the client). */
    void clear() {
        for (Hub<?> hub : hubs.values()) {
            for (Sub<?> s : hub.subs) {
                s.active = false;
            }
            hub.subs.clear();
        }
    }

    private static ByteBuffer bytes(byte[] b) {
        return ByteBuffer.wrap(b == null ? new byte[0] : b).asReadOnlyBuffer();
    }

    // ---- the kinds ---------------------------------------------------------------------

    private static final Kind<ConnectionStatus> STATUS = new Kind<>(
            "ORVEX_SetORVEXStatusCallback", IOrvexCore::ORVEX_SetORVEXStatusCallback,
            sink -> t -> (ORVEXStatusCallback) (h, s) -> sink.accept(new ConnectionStatus(s)));
    private static final Kind<DeviceChange> DEVICE_CHANGE = new Kind<>(
            "ORVEX_SetORVEXDeviceChangeCallback", IOrvexCore::ORVEX_SetORVEXDeviceChangeCallback,
            sink -> t -> (ORVEXDeviceChangeCallback) (h, type, dev, dep, org) -> sink.accept(
                    new DeviceChange(type, t.exact(dev), t.exact(dep), t.exact(org))));
    private static final Kind<DeviceStatus> DEVICE_STATUS = new Kind<>(
            "ORVEX_SetORVEXDeviceStatusCallback", IOrvexCore::ORVEX_SetORVEXDeviceStatusCallback,
            sink -> t -> (ORVEXDevStatusCallback) (h, dev, s) -> sink.accept(
                    new DeviceStatus(t.exact(dev), s)));
    private static final Kind<Alarm> ALARM = new Kind<>(
            "ORVEX_SetORVEXAlarmCallback", IOrvexCore::ORVEX_SetORVEXAlarmCallback,
            sink -> t -> (ORVEXAlarmCallback) (h, id, devType, cam, devName, chName, coding, msg,
                    type, event, level, time, data, dataLen, pic, picLen) -> sink.accept(
                    new Alarm(t.exact(id), devType, t.exact(cam), t.exact(devName),
                            t.exact(chName), t.exact(coding), t.exact(msg), type, event, level,
                            time, bytes(data), bytes(pic))));
    private static final Kind<TalkParameters> TALK_PARAMETERS = new Kind<>(
            "ORVEX_SetORVEXTalkParamCallback", IOrvexCore::ORVEX_SetORVEXTalkParamCallback,
            sink -> t -> (ORVEXTalkParamCallback) (h, type, audio, bits, rate, mode) -> sink.accept(
                    new TalkParameters(type, audio, bits, rate, mode)));
    private static final Kind<Snapshot> SNAPSHOT = new Kind<>(
            "ORVEX_SetORVEXRemoteDeviceSnapCallback",
            IOrvexCore::ORVEX_SetORVEXRemoteDeviceSnapCallback,
            sink -> t -> (ORVEXRemoteDeviceSnapCallback) (h, cam, path) -> sink.accept(
                    new Snapshot(t.exact(cam), t.exact(path))));
    private static final Kind<VideoAlarmHostStatus> VIDEO_ALARM_HOST = new Kind<>(
            "ORVEX_SetVideoAlarmHostStatusCallback",
            IOrvexCore::ORVEX_SetVideoAlarmHostStatusCallback,
            sink -> t -> (ORVEXVideoAlarmHostStatusCallback) (h, dev, ch, s) -> sink.accept(
                    new VideoAlarmHostStatus(t.exact(dev), ch, s)));
    private static final Kind<NetAlarmHostStatus> NET_ALARM_HOST = new Kind<>(
            "ORVEX_SetNetAlarmHostStatusCallback", IOrvexCore::ORVEX_SetNetAlarmHostStatusCallback,
            sink -> t -> (ORVEXNetAlarmHostStatusCallback) (h, dev, r, op, s) -> sink.accept(
                    new NetAlarmHostStatus(t.exact(dev), r, op, s)));
    private static final Kind<BroadcastStatus> BROADCAST = new Kind<>(
            "ORVEX_SetBroadcastReportStatusCallback",
            IOrvexCore::ORVEX_SetBroadcastReportStatusCallback,
            sink -> t -> (ORVEXBroadcastReportStatusCallback) (h, cam, r, time, s) -> sink.accept(
                    new BroadcastStatus(t.exact(cam), r, time, s)));
    private static final Kind<JsonMessage> JSON = new Kind<>(
            "ORVEX_SetGeneralJsonTransportCallback",
            IOrvexCore::ORVEX_SetGeneralJsonTransportCallback,
            sink -> t -> (ORVEXGeneralJsonTransportCallback) (h, json) -> sink.accept(
                    new JsonMessage(t.exact(json))));
    private static final Kind<NvrChannelStatus> NVR_CHANNEL = new Kind<>(
            "ORVEX_SetORVEXNVRChnlStatusCallback", IOrvexCore::ORVEX_SetORVEXNVRChnlStatusCallback,
            sink -> t -> (ORVEXNVRChnlStatusCallback) (h, ch, s) -> sink.accept(
                    new NvrChannelStatus(t.exact(ch), s)));
    private static final Kind<DoorStatus> DOOR = new Kind<>(
            "ORVEX_SetPecDoorStatusCallback", IOrvexCore::ORVEX_SetPecDoorStatusCallback,
            sink -> t -> (ORVEXPecDoorStarusCallBack) (h, cam, s, time) -> sink.accept(
                    new DoorStatus(t.exact(cam), s, time)));
    private static final Kind<SharedVideos> SHARED = new Kind<>(
            "ORVEX_SetShareVideoCallback", IOrvexCore::ORVEX_SetShareVideoCallback,
            sink -> t -> (ORVEXShareVideoCallback) (h, videos, msg, from, fromName) -> sink.accept(
                    new SharedVideos(Services.sharedVideos(t, videos), t.exact(msg), from,
                            t.exact(fromName))));
    private static final Kind<BayVehicle> BAY = new Kind<>(
            "ORVEX_SetORVEXGetBayCarInfoCallbackEx",
            IOrvexCore::ORVEX_SetORVEXGetBayCarInfoCallbackEx,
            sink -> t -> (ORVEXGetBayCarInfoCallbackEx) (h, dev, devLen, devCh, ch, chLen, devName,
                    devNameLen, chName, chNameLen, plate, plateLen, plateType, plateColour, speed,
                    carType, carColour, carLen, direct, lane, capture, group, needStore, stored,
                    captureOrg, captureOrgLen, optOrg, optOrgLen, optUser, optUserLen, optNote,
                    optNoteLen, img0, l0, img1, l1, img2, l2, img3, l3, img4, l4, img5, l5,
                    plateImg, plateImgLen, logo, left, right, top, bottom) -> sink.accept(
                    new BayVehicle(t.exact(dev), devCh, t.exact(ch), t.exact(devName),
                            t.exact(chName), t.exact(plate), plateType, plateColour, speed,
                            carType, carColour, carLen, direct, lane, capture, group,
                            List.of(t.exact(img0), t.exact(img1), t.exact(img2), t.exact(img3),
                                    t.exact(img4), t.exact(img5)),
                            t.exact(plateImg), List.of(left, right, top, bottom))));

    // ---- registration, one pair per kind --------------------------------------------------

    /** Follows the connection status, on the client's event executor. */
    public Registration onConnectionStatus(Consumer<? super ConnectionStatus> listener) {
        return subscribe(STATUS, null, listener);
    }

    /** Follows the connection status, on {@code executor}. */
    public Registration onConnectionStatus(Executor executor,
            Consumer<? super ConnectionStatus> listener) {
        return subscribe(STATUS, Objects.requireNonNull(executor, "executor"), listener);
    }

    /** Follows changes of devices, on the client's event executor. */
    public Registration onDeviceChange(Consumer<? super DeviceChange> listener) {
        return subscribe(DEVICE_CHANGE, null, listener);
    }

    /** Follows changes of devices, on {@code executor}. */
    public Registration onDeviceChange(Executor executor, Consumer<? super DeviceChange> listener) {
        return subscribe(DEVICE_CHANGE, Objects.requireNonNull(executor, "executor"), listener);
    }

    /** Follows devices going online and offline, on the client's event executor. */
    public Registration onDeviceStatus(Consumer<? super DeviceStatus> listener) {
        return subscribe(DEVICE_STATUS, null, listener);
    }

    /** Follows devices going online and offline, on {@code executor}. */
    public Registration onDeviceStatus(Executor executor, Consumer<? super DeviceStatus> listener) {
        return subscribe(DEVICE_STATUS, Objects.requireNonNull(executor, "executor"), listener);
    }

    /**
     * Follows alarms, on the client's event executor. Alarms arrive only while reception is
     * enabled ({@link Alarms#enable}).
     */
    public Registration onAlarm(Consumer<? super Alarm> listener) {
        return subscribe(ALARM, null, listener);
    }

    /** Follows alarms, on {@code executor}. */
    public Registration onAlarm(Executor executor, Consumer<? super Alarm> listener) {
        return subscribe(ALARM, Objects.requireNonNull(executor, "executor"), listener);
    }

    /** Follows the audio parameters devices propose for talks, on the client's event executor. */
    public Registration onTalkParameters(Consumer<? super TalkParameters> listener) {
        return subscribe(TALK_PARAMETERS, null, listener);
    }

    /** Follows the audio parameters devices propose for talks, on {@code executor}. */
    public Registration onTalkParameters(Executor executor,
            Consumer<? super TalkParameters> listener) {
        return subscribe(TALK_PARAMETERS, Objects.requireNonNull(executor, "executor"), listener);
    }

    /** Follows stored remote snapshots, on the client's event executor. */
    public Registration onSnapshot(Consumer<? super Snapshot> listener) {
        return subscribe(SNAPSHOT, null, listener);
    }

    /** Follows stored remote snapshots, on {@code executor}. */
    public Registration onSnapshot(Executor executor, Consumer<? super Snapshot> listener) {
        return subscribe(SNAPSHOT, Objects.requireNonNull(executor, "executor"), listener);
    }

    /** Follows video alarm hosts, on the client's event executor. */
    public Registration onVideoAlarmHostStatus(Consumer<? super VideoAlarmHostStatus> listener) {
        return subscribe(VIDEO_ALARM_HOST, null, listener);
    }

    /** Follows video alarm hosts, on {@code executor}. */
    public Registration onVideoAlarmHostStatus(Executor executor,
            Consumer<? super VideoAlarmHostStatus> listener) {
        return subscribe(VIDEO_ALARM_HOST, Objects.requireNonNull(executor, "executor"), listener);
    }

    /** Follows network alarm hosts, on the client's event executor. */
    public Registration onNetAlarmHostStatus(Consumer<? super NetAlarmHostStatus> listener) {
        return subscribe(NET_ALARM_HOST, null, listener);
    }

    /** Follows network alarm hosts, on {@code executor}. */
    public Registration onNetAlarmHostStatus(Executor executor,
            Consumer<? super NetAlarmHostStatus> listener) {
        return subscribe(NET_ALARM_HOST, Objects.requireNonNull(executor, "executor"), listener);
    }

    /** Follows broadcasts, on the client's event executor. */
    public Registration onBroadcastStatus(Consumer<? super BroadcastStatus> listener) {
        return subscribe(BROADCAST, null, listener);
    }

    /** Follows broadcasts, on {@code executor}. */
    public Registration onBroadcastStatus(Executor executor,
            Consumer<? super BroadcastStatus> listener) {
        return subscribe(BROADCAST, Objects.requireNonNull(executor, "executor"), listener);
    }

    /** Follows general JSON messages, on the client's event executor. */
    public Registration onJsonMessage(Consumer<? super JsonMessage> listener) {
        return subscribe(JSON, null, listener);
    }

    /** Follows general JSON messages, on {@code executor}. */
    public Registration onJsonMessage(Executor executor, Consumer<? super JsonMessage> listener) {
        return subscribe(JSON, Objects.requireNonNull(executor, "executor"), listener);
    }

    /** Follows NVR channel states, on the client's event executor. */
    public Registration onNvrChannelStatus(Consumer<? super NvrChannelStatus> listener) {
        return subscribe(NVR_CHANNEL, null, listener);
    }

    /** Follows NVR channel states, on {@code executor}. */
    public Registration onNvrChannelStatus(Executor executor,
            Consumer<? super NvrChannelStatus> listener) {
        return subscribe(NVR_CHANNEL, Objects.requireNonNull(executor, "executor"), listener);
    }

    /** Follows doors, on the client's event executor. */
    public Registration onDoorStatus(Consumer<? super DoorStatus> listener) {
        return subscribe(DOOR, null, listener);
    }

    /** Follows doors, on {@code executor}. */
    public Registration onDoorStatus(Executor executor, Consumer<? super DoorStatus> listener) {
        return subscribe(DOOR, Objects.requireNonNull(executor, "executor"), listener);
    }

    /** Follows videos shared with this user, on the client's event executor. */
    public Registration onSharedVideos(Consumer<? super SharedVideos> listener) {
        return subscribe(SHARED, null, listener);
    }

    /** Follows videos shared with this user, on {@code executor}. */
    public Registration onSharedVideos(Executor executor, Consumer<? super SharedVideos> listener) {
        return subscribe(SHARED, Objects.requireNonNull(executor, "executor"), listener);
    }

    /**
     * Follows vehicles at bay cameras, on the client's event executor. Records arrive for the
     * channels subscribed with {@link Services#subscribeBayVehicles}.
     */
    public Registration onBayVehicle(Consumer<? super BayVehicle> listener) {
        return subscribe(BAY, null, listener);
    }

    /** Follows vehicles at bay cameras, on {@code executor}. */
    public Registration onBayVehicle(Executor executor, Consumer<? super BayVehicle> listener) {
        return subscribe(BAY, Objects.requireNonNull(executor, "executor"), listener);
    }
}
