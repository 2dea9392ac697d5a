package platformtest;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertTrue;
import static platformtest.Platform.TIMEOUT;

import com.zq.OrvexCore.Device_Info_Ex_t;
import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.Return_Value_Info_t;
import java.util.ArrayList;
import java.util.List;
import org.junit.jupiter.api.AfterAll;
import org.junit.jupiter.api.BeforeAll;
import org.junit.jupiter.api.Tag;
import org.junit.jupiter.api.Test;
import org.w3c.dom.Document;
import org.w3c.dom.Element;
import org.w3c.dom.NodeList;

/** Device lists as text, device types and channel states of the built-in site. */
@Tag(Platform.TAG)
class DeviceStatusPlatformTest {
    private static int h;
    private static Tree tree;

    @BeforeAll
    static void openSession() {
        h = Platform.sessionWithTree();
        tree = Tree.walk(h);
    }

    @AfterAll
    static void closeSession() {
        Platform.end(h);
    }

    private static List<String> ids(Document doc, String tag) {
        NodeList nodes = doc.getElementsByTagName(tag);
        List<String> out = new ArrayList<>();
        for (int k = 0; k < nodes.getLength(); k++) {
            out.add(((Element) nodes.item(k)).getAttribute("id"));
        }
        return out;
    }

    private static List<String> treeDeviceIds() {
        List<String> out = new ArrayList<>();
        for (Device_Info_Ex_t d : tree.devices) {
            out.add(Platform.string(d.szId));
        }
        out.sort(null);
        return out;
    }

    @Test
    void theDeviceListHoldsEveryDeviceOfTheTree() throws Exception {
        Return_Value_Info_t len = new Return_Value_Info_t();
        assertEquals(0, IOrvexCore.ORVEX_GetDeviceListLen(h, len, TIMEOUT));
        byte[] text = new byte[len.nReturnValue];
        assertEquals(0, IOrvexCore.ORVEX_GetDeviceListStr(h, text, text.length, TIMEOUT));
        List<String> listed = ids(Tree.xml(text, text.length), "Device");
        listed.sort(null);
        assertEquals(treeDeviceIds(), listed);
    }

    @Test
    void theDevicesInformationCarriesChannelsToo() throws Exception {
        // Its length call is not bound in the bridge: fetch into a generous buffer instead and
        // read up to the terminator.
        byte[] text = new byte[1 << 17];
        assertEquals(0, IOrvexCore.ORVEX_GetDevicesInfoStr(h, text, text.length, TIMEOUT));
        int end = 0;
        while (text[end] != 0) {
            end++;
        }
        Document doc = Tree.xml(text, end);
        List<String> listed = ids(doc, "Device");
        listed.sort(null);
        assertEquals(treeDeviceIds(), listed);
        assertEquals(tree.channels.size(), doc.getElementsByTagName("Channel").getLength());
    }

    @Test
    void typesAndStatesAgreeWithTheDeviceRecords() {
        for (Device_Info_Ex_t d : tree.devices) {
            byte[] id = Platform.text(Platform.string(d.szId));
            Return_Value_Info_t type = new Return_Value_Info_t();
            assertEquals(0, IOrvexCore.ORVEX_GetDeviceTypeByDevId(h, id, type));
            assertEquals(d.nDevType, type.nReturnValue);
            for (String channel : Tree.channelsOf(h, Platform.string(d.szId))) {
                Return_Value_Info_t status = new Return_Value_Info_t();
                assertEquals(0, IOrvexCore.ORVEX_GetChannelStatus(h, Platform.text(channel),
                        status));
                if (d.nStatus == 2) {
                    assertEquals(2, status.nReturnValue, channel);  // offline with its device
                } else {
                    assertTrue(status.nReturnValue == 1 || status.nReturnValue == 2, channel);
                }
            }
        }
        Return_Value_Info_t untouched = new Return_Value_Info_t();
        untouched.nReturnValue = 42;
        assertEquals(Platform.CHANNEL_NOT_FOUND,
                IOrvexCore.ORVEX_GetChannelStatus(h, Platform.text("nope"), untouched));
        assertEquals(Platform.DEVICE_NOT_FOUND,
                IOrvexCore.ORVEX_GetDeviceTypeByDevId(h, Platform.text("nope"), untouched));
        assertEquals(42, untouched.nReturnValue);
    }

    @Test
    void listsNeedALogin() {
        int fresh = Platform.create();
        assertEquals(Platform.NOT_LOGGED_IN,
                IOrvexCore.ORVEX_GetDeviceListLen(fresh, new Return_Value_Info_t(), TIMEOUT));
        assertEquals(Platform.NOT_LOGGED_IN, IOrvexCore.ORVEX_GetChannelStatus(
                fresh, Platform.text("nvr-north-01-cam01"), new Return_Value_Info_t()));
        assertEquals(0, IOrvexCore.ORVEX_Destroy(fresh));
    }
}
