package com.zq.OrvexCore.client;

import com.zq.OrvexCore.Dep_Info_Ex_t;
import com.zq.OrvexCore.Dep_Info_t;
import com.zq.OrvexCore.Device_Info_Ex_t;
import com.zq.OrvexCore.Enc_Channel_Info_Ex_t;
import com.zq.OrvexCore.Enc_Channel_Info_t;
import com.zq.OrvexCore.Get_Channel_Info_Ex_t;
import com.zq.OrvexCore.Get_Channel_Info_t;
import com.zq.OrvexCore.Get_Dep_Count_Info_t;
import com.zq.OrvexCore.Get_Dep_Info_t;
import com.zq.OrvexCore.Get_Dev_StreamType_Info_t;
import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.Load_Dep_Info_t;
import com.zq.OrvexCore.Return_Value_ByteArray_t;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;
import java.util.function.Function;
import java.util.function.Predicate;

/**
 * The organisation tree: departments holding devices holding channels, and the optional logical
 * organisation. Load the tree first ({@link #load()}, or {@link #tree()}, which loads and reads it
 * whole); then read departments, devices and channels. Lists are sized from the library's counts,
 * and records the library did not fill are left out.
 */
public final class Catalogue {
    private final OrvexClient c;

    Catalogue(OrvexClient client) {
        this.c = client;
    }

    /** How much of a department {@link #loadLayer} loads. */
    public enum Scope {
        /** The department and everything below it. */
        ALL(-1),
        /** The department itself. */
        SELF(0),
        /** Its direct children. */
        CHILDREN(1);

        final int value;

        Scope(int value) {
            this.value = value;
        }
    }

    /**
     * What a department holds directly.
     *
     * @param departments the number of sub-departments
     * @param devices the number of devices
     * @param channels the number of channels
     */
    public record Counts(int departments, int devices, int channels) {}

    /**
     * The direct contents of a department.
     *
     * @param departments its sub-departments
     * @param devices its devices
     */
    public record Contents(List<Department> departments, List<Device> devices) {}

    /** Loads the whole tree into the library; returns the length of its text export in bytes. */
    public int load() {
        return c.value("ORVEX_LoadDGroupInfo",
                h -> IOrvexCore.ORVEX_LoadDGroupInfo(c.handle, h, c.timeoutMs));
    }

    /** Loads one organisation type; returns the number of nodes loaded. */
    public int loadByType(int type) {
        return c.value("ORVEX_LoadOrgInfoByType",
                h -> IOrvexCore.ORVEX_LoadOrgInfoByType(c.handle, type, h, c.timeoutMs));
    }

    /** Loads part of the tree; returns the length of its text export in bytes. */
    public int loadLayer(DepartmentCode department, Scope scope) {
        Load_Dep_Info_t in = new Load_Dep_Info_t();
        c.text.put(department.value(), in.szCoding, "department");
        in.nOperation = scope.value;
        return c.value("ORVEX_LoadDGroupInfoLayered",
                h -> IOrvexCore.ORVEX_LoadDGroupInfoLayered(c.handle, in, h, c.timeoutMs));
    }

    /** Loads the whole tree and returns its text export. */
    public String exportText() {
        return c.textOfLength(load(), "ORVEX_GetDGroupStr",
                (buf, len) -> IOrvexCore.ORVEX_GetDGroupStr(c.handle, buf, len, c.timeoutMs));
    }

    /**
     * The root department of the loaded tree.
     *
     * @throws IllegalStateException if the library names no root (no tree is loaded)
     */
    public Department root() {
        Dep_Info_t d = new Dep_Info_t();
        c.run("ORVEX_GetDGroupRootInfo", () -> IOrvexCore.ORVEX_GetDGroupRootInfo(c.handle, d));
        if (c.text.get(d.szCoding).isEmpty()) {
            throw new IllegalStateException("the platform named no root department");
        }
        return department(d);
    }

    /** The numbers of sub-departments, devices and channels directly in a department. */
    public Counts counts(DepartmentCode department) {
        Get_Dep_Count_Info_t in = new Get_Dep_Count_Info_t();
        c.text.put(department.value(), in.szCoding, "department");
        c.run("ORVEX_GetDGroupCount", () -> IOrvexCore.ORVEX_GetDGroupCount(c.handle, in));
        return new Counts(in.nDepCount, in.nDeviceCount, in.nChannelCount);
    }

    /** The sub-departments and devices directly in a department. */
    public Contents contents(DepartmentCode department) {
        Counts n = counts(department);
        if (n.departments() <= 0 && n.devices() <= 0) {
            return new Contents(List.of(), List.of());
        }
        Get_Dep_Info_t in =
                new Get_Dep_Info_t(Math.max(0, n.departments()), Math.max(0, n.devices()));
        c.text.put(department.value(), in.szCoding, "department");
        c.run("ORVEX_GetDGroupInfo", () -> IOrvexCore.ORVEX_GetDGroupInfo(c.handle, in));
        return new Contents(filled(in.pDepInfo, d -> d.szCoding, this::department),
                filled(in.pDeviceInfo, d -> d.szId, this::device));
    }

    /** One device by its identifier. */
    public Device device(DeviceId id) {
        byte[] arg = c.text.arg(id.value(), "device");
        Device_Info_Ex_t d = new Device_Info_Ex_t();
        c.run("ORVEX_GetDeviceInfoExById",
                () -> IOrvexCore.ORVEX_GetDeviceInfoExById(c.handle, arg, d));
        keepId(d.szId, id.value());
        return device(d);
    }

    /** The number of encoder channels of a device. */
    public int channelCount(DeviceId device) {
        byte[] arg = c.text.arg(device.value(), "device");
        return c.value("ORVEX_GetEncChannelCount",
                h -> IOrvexCore.ORVEX_GetEncChannelCount(c.handle, arg, h));
    }

    /** The encoder channels of a device, with all their details. */
    public List<Channel> channels(DeviceId device) {
        int n = channelCount(device);
        if (n <= 0) {
            return List.of();
        }
        Get_Channel_Info_Ex_t in = new Get_Channel_Info_Ex_t(n);
        c.text.put(device.value(), in.szDeviceId, "device");
        c.run("ORVEX_GetChannelInfoEx", () -> IOrvexCore.ORVEX_GetChannelInfoEx(c.handle, in));
        return filled(in.pEncChannelnfo, ch -> ch.szId, this::channel);
    }

    /**
     * A channel in short form.
     *
     * @param id its identifier
     * @param name its name
     * @param cameraType its camera type
     */
    public record ChannelSummary(CameraId id, String name, int cameraType) {}

    /** The encoder channels of a device in short form (identifier, name, camera type). */
    public List<ChannelSummary> channelSummaries(DeviceId device) {
        int n = channelCount(device);
        if (n <= 0) {
            return List.of();
        }
        Get_Channel_Info_t in = new Get_Channel_Info_t(n);
        c.text.put(device.value(), in.szDeviceId, "device");
        c.run("ORVEX_GetChannelInfo", () -> IOrvexCore.ORVEX_GetChannelInfo(c.handle, in));
        return filled(in.pEncChannelnfo, ch -> ch.szId, this::summary);
    }

    /** One channel by its identifier. */
    public Channel channel(CameraId id) {
        byte[] arg = c.text.arg(id.value(), "camera");
        Enc_Channel_Info_Ex_t ch = new Enc_Channel_Info_Ex_t();
        c.run("ORVEX_GetChannelInfoById",
                () -> IOrvexCore.ORVEX_GetChannelInfoById(c.handle, arg, ch));
        keepId(ch.szId, id.value());
        return channel(ch);
    }

    /** The type of a channel. */
    public int channelType(CameraId id) {
        byte[] arg = c.text.arg(id.value(), "camera");
        return c.value("ORVEX_GetChnlType", h -> IOrvexCore.ORVEX_GetChnlType(c.handle, arg, h));
    }

    /** The stream type (1 main, 2 sub) of one unit of a device. */
    public int streamType(DeviceId device, int unit) {
        Get_Dev_StreamType_Info_t in = new Get_Dev_StreamType_Info_t();
        c.text.put(device.value(), in.szDeviceId, "device");
        in.nUnitNo = unit;
        c.run("ORVEX_GetDevStreamType", () -> IOrvexCore.ORVEX_GetDevStreamType(c.handle, in));
        return in.nStreamType;
    }

    /**
     * Loads the whole tree and reads it: every department from the root down, every device and
     * every channel. One call per department and per device; a large site takes a while.
     */
    public DepartmentNode tree() {
        load();
        return node(root());
    }

    private DepartmentNode node(Department d) {
        Contents in = contents(d.code());
        List<DepartmentNode> children = new ArrayList<>();
        for (Department child : in.departments()) {
            children.add(node(child));
        }
        List<DeviceNode> devices = new ArrayList<>();
        for (Device dev : in.devices()) {
            devices.add(new DeviceNode(dev, channels(dev.id())));
        }
        return new DepartmentNode(d, children, devices);
    }

    // ---- logical organisation ----------------------------------------------------------

    /** The kinds of node of the logical organisation. */
    public enum NodeKind {
        /** Departments. */
        DEPARTMENT,
        /** Devices. */
        DEVICE,
        /** Channels. */
        CHANNEL
    }

    /**
     * A department of the logical organisation.
     *
     * @param code its coding (pass it on as {@code DepartmentCode.of(code)})
     * @param name its name
     * @param modified when it was last changed, as the platform writes it
     * @param serialNumber its serial number
     * @param memo the platform's note on it
     * @param type its type
     * @param sort its place among its siblings
     * @param chargeBooth whether it is a charge booth (platform-specific)
     * @param extendedType its extended type
     */
    public record LogicalDepartment(String code, String name, String modified,
            String serialNumber, String memo, int type, int sort, int chargeBooth,
            int extendedType) {}

    /**
     * Whether the platform keeps a logical organisation. The library answers with a plain yes or
     * no, so a failure of the call itself reads as "no".
     */
    public boolean hasLogicalOrganisation() {
        boolean[] has = new boolean[1];
        c.run("ORVEX_HasLogicOrg", () -> {
            has[0] = IOrvexCore.ORVEX_HasLogicOrg(c.handle);
            return 0;
        });
        return has[0];
    }

    /** The root of the logical organisation. */
    public LogicalDepartment logicalRoot() {
        Dep_Info_Ex_t d = new Dep_Info_Ex_t();
        c.run("ORVEX_GetLogicRootDepInfo", () -> IOrvexCore.ORVEX_GetLogicRootDepInfo(c.handle, d));
        return logical(d);
    }

    /** The number of nodes of one kind under a logical department. */
    public int logicalCount(DepartmentCode department, NodeKind kind) {
        byte[] arg = c.text.arg(department.value(), "department");
        return c.value("ORVEX_GetLogicDepNodeNum",
                h -> IOrvexCore.ORVEX_GetLogicDepNodeNum(c.handle, arg, kind.ordinal(), h));
    }

    /** The sub-department with this index of a logical department. */
    public LogicalDepartment logicalSubDepartment(DepartmentCode department, int index) {
        byte[] arg = c.text.arg(department.value(), "department");
        Dep_Info_Ex_t d = new Dep_Info_Ex_t();
        c.run("ORVEX_GetLogicSubDepInfoByIndex",
                () -> IOrvexCore.ORVEX_GetLogicSubDepInfoByIndex(c.handle, arg, index, d));
        return logical(d);
    }

    /** The identifier of the n-th device ({@code channel} false) or channel node. */
    public String logicalId(DepartmentCode department, int index, boolean channel) {
        byte[] arg = c.text.arg(department.value(), "department");
        Return_Value_ByteArray_t out = new Return_Value_ByteArray_t();
        c.run("ORVEX_GetLogicID",
                () -> IOrvexCore.ORVEX_GetLogicID(c.handle, arg, index, channel, out));
        return c.text.get(out.szCodeID);
    }

    // ---- conversions ------------------------------------------------------------------

    /**
     * The records the library filled, converted: the natives do not report how many they wrote,
     * and an element it left alone still has an empty identifier.
     */
    static <T, R> List<R> filled(T[] elements, Function<T, byte[]> id, Function<T, R> convert) {
        Predicate<T> written = e -> e != null && id.apply(e).length > 0 && id.apply(e)[0] != 0;
        return Arrays.stream(elements).filter(written).map(convert).toList();
    }

    /** A record read by its identifier names it by that identifier if the library left it out. */
    private void keepId(byte[] member, String id) {
        if (c.text.get(member).isEmpty()) {
            c.text.put(id, member, "identifier");
        }
    }

    private Department department(Dep_Info_t d) {
        return new Department(new DepartmentCode(c.text.get(d.szCoding)), c.text.get(d.szDepName));
    }

    Device device(Device_Info_Ex_t d) {
        return new Device(new DeviceId(c.text.get(d.szId)), c.text.get(d.szName), d.nDevType,
                c.text.get(d.szIP), d.nPort, d.nStatus, d.nEncChannelChildCount,
                d.iAlarmInChannelcount, c.text.get(d.szSN), c.text.get(d.dev_Location),
                c.text.get(d.desc));
    }

    private Channel channel(Enc_Channel_Info_Ex_t ch) {
        return new Channel(new CameraId(c.text.get(ch.szId)), c.text.get(ch.szName),
                ch.nCameraType, ch.nRight, ch.nChnlType, ch.nStatus, c.text.get(ch.szChnlSN),
                c.text.get(ch.szLatitude), c.text.get(ch.szLongitude),
                c.text.get(ch.szMulticastIp), ch.nMulticastPort);
    }

    private ChannelSummary summary(Enc_Channel_Info_t ch) {
        return new ChannelSummary(new CameraId(c.text.get(ch.szId)), c.text.get(ch.szName),
                ch.nCameraType);
    }

    private LogicalDepartment logical(Dep_Info_Ex_t d) {
        return new LogicalDepartment(c.text.get(d.szCoding),
                c.text.get(d.szDepName), c.text.get(d.szModifyTime), c.text.get(d.szSN),
                c.text.get(d.szMemo), d.nDepType, d.nDepSort, d.nChargebooth, d.nDepExtType);
    }
}
