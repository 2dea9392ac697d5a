package platformtest;

import static org.junit.jupiter.api.Assertions.assertEquals;

import com.zq.OrvexCore.Dep_Info_t;
import com.zq.OrvexCore.Device_Info_Ex_t;
import com.zq.OrvexCore.Get_Channel_Info_Ex_t;
import com.zq.OrvexCore.Get_Dep_Count_Info_t;
import com.zq.OrvexCore.Get_Dep_Info_t;
import com.zq.OrvexCore.IOrvexCore;
import java.io.ByteArrayInputStream;
import java.util.ArrayList;
import java.util.List;
import javax.xml.parsers.DocumentBuilderFactory;
import org.w3c.dom.Document;

/**
 * The organisation tree as a user reads it: from the root, count first, then fetch each group's
 * child groups and devices, and each device's channels; every count checked against what the
 * fetch delivered.
 */
final class Tree {
    final List<String> departments = new ArrayList<>();
    final List<Device_Info_Ex_t> devices = new ArrayList<>();
    final List<String> channels = new ArrayList<>();
    int alarmInputs;

    static Tree walk(int handle) {
        Dep_Info_t root = new Dep_Info_t();
        assertEquals(0, IOrvexCore.ORVEX_GetDGroupRootInfo(handle, root));
        Tree tree = new Tree();
        tree.visit(handle, Platform.string(root.szCoding));
        return tree;
    }

    private void visit(int handle, String coding) {
        departments.add(coding);
        Get_Dep_Count_Info_t count = new Get_Dep_Count_Info_t();
        count.szCoding = Platform.fixed(coding, 128);
        assertEquals(0, IOrvexCore.ORVEX_GetDGroupCount(handle, count));
        Get_Dep_Info_t group = new Get_Dep_Info_t(count.nDepCount, count.nDeviceCount);
        group.szCoding = Platform.fixed(coding, 128);
        assertEquals(0, IOrvexCore.ORVEX_GetDGroupInfo(handle, group));
        int groupChannels = 0;
        for (Device_Info_Ex_t device : group.pDeviceInfo) {
            String id = Platform.string(device.szId);
            assertEquals(device.nEncChannelChildCount, channelsOf(handle, id).size(), id);
            groupChannels += device.nEncChannelChildCount;
            alarmInputs += device.iAlarmInChannelcount;
            channels.addAll(channelsOf(handle, id));
            devices.add(device);
        }
        assertEquals(count.nChannelCount, groupChannels, coding);
        for (Dep_Info_t child : group.pDepInfo) {
            visit(handle, Platform.string(child.szCoding));
        }
    }

    static List<String> channelsOf(int handle, String deviceId) {
        com.zq.OrvexCore.Return_Value_Info_t n = new com.zq.OrvexCore.Return_Value_Info_t();
        assertEquals(0, IOrvexCore.ORVEX_GetEncChannelCount(handle, Platform.text(deviceId), n));
        List<String> ids = new ArrayList<>();
        if (n.nReturnValue == 0) {
            return ids;
        }
        Get_Channel_Info_Ex_t list = new Get_Channel_Info_Ex_t(n.nReturnValue);
        list.szDeviceId = Platform.fixed(deviceId, 64);
        assertEquals(0, IOrvexCore.ORVEX_GetChannelInfoEx(handle, list));
        for (var c : list.pEncChannelnfo) {
            ids.add(Platform.string(c.szId));
        }
        return ids;
    }

    /** Parses one of the platform's XML texts. */
    static Document xml(byte[] text, int length) throws Exception {
        return DocumentBuilderFactory.newInstance().newDocumentBuilder()
                .parse(new ByteArrayInputStream(text, 0, length));
    }
}
