package platformtest;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertTrue;
import static platformtest.Platform.TIMEOUT;

import com.zq.OrvexCore.Dep_Info_Ex_t;
import com.zq.OrvexCore.Dep_Info_t;
import com.zq.OrvexCore.Device_Info_Ex_t;
import com.zq.OrvexCore.Enc_Channel_Info_Ex_t;
import com.zq.OrvexCore.Get_Channel_Info_t;
import com.zq.OrvexCore.Get_Dep_Count_Info_t;
import com.zq.OrvexCore.Get_Dev_StreamType_Info_t;
import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.Load_Dep_Info_t;
import com.zq.OrvexCore.Return_Value_ByteArray_t;
import com.zq.OrvexCore.Return_Value_Info_t;
import java.util.HashSet;
import java.util.List;
import java.util.Map;
import org.junit.jupiter.api.AfterAll;
import org.junit.jupiter.api.BeforeAll;
import org.junit.jupiter.api.Tag;
import org.junit.jupiter.api.Test;
import org.w3c.dom.Document;
import org.w3c.dom.Element;
import org.w3c.dom.NodeList;

/** The organisation tree, devices, channels and the logical organisation of the built-in site. */
@Tag(Platform.TAG)
class CataloguePlatformTest {
    private static int h;

    @BeforeAll
    static void openSession() {
        h = Platform.sessionWithTree();
    }

    @AfterAll
    static void closeSession() {
        Platform.end(h);
    }

    private static Document export(Load_Dep_Info_t layer) throws Exception {
        Return_Value_Info_t len = new Return_Value_Info_t();
        int rc = layer == null
                ? IOrvexCore.ORVEX_LoadDGroupInfo(h, len, TIMEOUT)
                : IOrvexCore.ORVEX_LoadDGroupInfoLayered(h, layer, len, TIMEOUT);
        assertEquals(0, rc);
        byte[] text = new byte[len.nReturnValue];
        assertEquals(0, IOrvexCore.ORVEX_GetDGroupStr(h, text, text.length, TIMEOUT));
        return Tree.xml(text, text.length);
    }

    private static Load_Dep_Info_t layer(String coding, int operation) {
        Load_Dep_Info_t info = new Load_Dep_Info_t();
        info.szCoding = Platform.fixed(coding, 128);
        info.nOperation = operation;
        return info;
    }

    @Test
    void theTextExportAndTheWalkAgreeOnEveryNode() throws Exception {
        Tree tree = Tree.walk(h);
        Document doc = export(null);
        assertEquals(tree.departments.size(), doc.getElementsByTagName("Department").getLength());
        assertEquals(tree.devices.size(), doc.getElementsByTagName("Device").getLength());
        assertEquals(tree.channels.size(), doc.getElementsByTagName("Channel").getLength());
        assertEquals(tree.alarmInputs, doc.getElementsByTagName("AlarmInput").getLength());
        NodeList devices = doc.getElementsByTagName("Device");
        for (int k = 0; k < devices.getLength(); k++) {
            String id = ((Element) devices.item(k)).getAttribute("id");
            assertTrue(tree.devices.stream().anyMatch(d -> Platform.string(d.szId).equals(id)), id);
        }
        assertEquals(tree.channels.size(), new HashSet<>(tree.channels).size());
        assertTrue(tree.departments.size() >= 3 && tree.devices.size() >= 8
                && tree.channels.size() >= 24);

        Return_Value_Info_t nodes = new Return_Value_Info_t();
        assertEquals(0, IOrvexCore.ORVEX_LoadOrgInfoByType(h, 1, nodes, TIMEOUT));
        assertEquals(tree.departments.size() + tree.devices.size() + tree.channels.size()
                + tree.alarmInputs, nodes.nReturnValue);
        assertEquals(Platform.INVALID_PARAM,
                IOrvexCore.ORVEX_LoadOrgInfoByType(h, 99, nodes, TIMEOUT));
    }

    @Test
    void layeredLoadsExportTheirLayerOnly() throws Exception {
        Document self = export(layer("330100", 0));
        assertEquals(1, self.getElementsByTagName("Department").getLength());
        assertEquals(0, self.getElementsByTagName("Device").getLength());

        Document child = export(layer("330100", 1));
        NodeList departments = child.getElementsByTagName("Department");
        assertEquals(2, departments.getLength());  // North district and North station
        Element station = (Element) departments.item(1);
        assertEquals("330101", station.getAttribute("coding"));
        assertEquals(0, station.getElementsByTagName("Device").getLength());

        Document all = export(layer("330100", -1));
        Element stationAll = (Element) all.getElementsByTagName("Department").item(1);
        assertTrue(stationAll.getElementsByTagName("Device").getLength() > 0);

        Return_Value_Info_t len = new Return_Value_Info_t();
        len.nReturnValue = -3;
        assertEquals(Platform.GROUP_NOT_FOUND,
                IOrvexCore.ORVEX_LoadDGroupInfoLayered(h, layer("nope", -1), len, TIMEOUT));
        assertEquals(-3, len.nReturnValue);
    }

    @Test
    void aDeviceReadAloneCarriesItsWholeRecord() {
        Device_Info_Ex_t d = new Device_Info_Ex_t();
        assertEquals(0, IOrvexCore.ORVEX_GetDeviceInfoExById(h, Platform.text("nvr-north-01"), d));
        assertEquals("nvr-north-01", Platform.string(d.szId));
        assertEquals(6, d.nDevType);
        assertEquals(1, d.nStatus);
        assertEquals(12, d.nEncChannelChildCount);
        assertEquals(2, d.iAlarmInChannelcount);
        assertEquals("8101", Platform.string(d.szCallNum));
        assertFalse(Platform.string(d.szSN).isEmpty());

        Device_Info_Ex_t offline = new Device_Info_Ex_t();
        assertEquals(0, IOrvexCore.ORVEX_GetDeviceInfoExById(h, Platform.text("ipc-gate-02"),
                offline));
        assertEquals(2, offline.nStatus);
    }

    @Test
    void channelsReadByDeviceAndByIdentifierAgree() {
        Get_Channel_Info_t shortList = new Get_Channel_Info_t(20);  // more room than needed
        shortList.szDeviceId = Platform.fixed("dvr-station-01", 64);
        assertEquals(0, IOrvexCore.ORVEX_GetChannelInfo(h, shortList));
        List<String> ids = Tree.channelsOf(h, "dvr-station-01");
        assertEquals(4, ids.size());
        for (int k = 0; k < ids.size(); k++) {
            assertEquals(ids.get(k), Platform.string(shortList.pEncChannelnfo[k].szId));
            Enc_Channel_Info_Ex_t one = new Enc_Channel_Info_Ex_t();
            assertEquals(0, IOrvexCore.ORVEX_GetChannelInfoById(h, Platform.text(ids.get(k)), one));
            assertEquals(shortList.pEncChannelnfo[k].nCameraType, one.nCameraType);
            assertEquals(Platform.string(shortList.pEncChannelnfo[k].szName),
                    Platform.string(one.szName));
            Return_Value_Info_t type = new Return_Value_Info_t();
            assertEquals(0, IOrvexCore.ORVEX_GetChnlType(h, Platform.text(ids.get(k)), type));
            assertEquals(one.nChnlType, type.nReturnValue);
        }
        assertEquals(0, Platform.string(shortList.pEncChannelnfo[4].szId).length());

        Get_Dev_StreamType_Info_t stream = new Get_Dev_StreamType_Info_t();
        stream.szDeviceId = Platform.fixed("dvr-station-01", 64);
        assertEquals(0, IOrvexCore.ORVEX_GetDevStreamType(h, stream));
        assertEquals(1, stream.nStreamType);
    }

    @Test
    void unknownIdentifiersGiveTheirCodesAndWriteNothing() {
        byte[] nope = Platform.text("nope");
        Return_Value_Info_t holder = new Return_Value_Info_t();
        holder.nReturnValue = 77;
        Get_Dep_Count_Info_t count = new Get_Dep_Count_Info_t();
        count.szCoding = Platform.fixed("nope", 128);
        Get_Channel_Info_t channels = new Get_Channel_Info_t(2);
        channels.szDeviceId = Platform.fixed("nope", 64);
        Get_Dev_StreamType_Info_t stream = new Get_Dev_StreamType_Info_t();
        stream.szDeviceId = Platform.fixed("nope", 64);
        Map<String, Integer> results = Map.of(
                "GetDGroupCount", IOrvexCore.ORVEX_GetDGroupCount(h, count),
                "GetDeviceInfoExById",
                IOrvexCore.ORVEX_GetDeviceInfoExById(h, nope, new Device_Info_Ex_t()),
                "GetEncChannelCount", IOrvexCore.ORVEX_GetEncChannelCount(h, nope, holder),
                "GetChannelInfo", IOrvexCore.ORVEX_GetChannelInfo(h, channels),
                "GetDevStreamType", IOrvexCore.ORVEX_GetDevStreamType(h, stream),
                "GetChannelInfoById",
                IOrvexCore.ORVEX_GetChannelInfoById(h, nope, new Enc_Channel_Info_Ex_t()),
                "GetChnlType", IOrvexCore.ORVEX_GetChnlType(h, nope, holder),
                "GetLogicDepNodeNum", IOrvexCore.ORVEX_GetLogicDepNodeNum(h, nope, 0, holder));
        Map<String, Integer> expected = Map.of(
                "GetDGroupCount", Platform.GROUP_NOT_FOUND,
                "GetDeviceInfoExById", Platform.DEVICE_NOT_FOUND,
                "GetEncChannelCount", Platform.DEVICE_NOT_FOUND,
                "GetChannelInfo", Platform.DEVICE_NOT_FOUND,
                "GetDevStreamType", Platform.DEVICE_NOT_FOUND,
                "GetChannelInfoById", Platform.CHANNEL_NOT_FOUND,
                "GetChnlType", Platform.CHANNEL_NOT_FOUND,
                "GetLogicDepNodeNum", Platform.GROUP_NOT_FOUND);
        assertEquals(expected, results);
        assertEquals(77, holder.nReturnValue);
        assertEquals(0, Platform.string(channels.pEncChannelnfo[0].szId).length());
    }

    @Test
    void readsNeedALoadedTree() {
        int other = Platform.session();
        Dep_Info_t root = new Dep_Info_t();
        assertEquals(Platform.TREE_NOT_LOADED, IOrvexCore.ORVEX_GetDGroupRootInfo(other, root));
        assertEquals(Platform.TREE_NOT_LOADED, IOrvexCore.ORVEX_GetDeviceInfoExById(
                other, Platform.text("nvr-north-01"), new Device_Info_Ex_t()));
        assertFalse(IOrvexCore.ORVEX_HasLogicOrg(other));
        Platform.end(other);
        int fresh = Platform.create();
        assertEquals(Platform.NOT_LOGGED_IN,
                IOrvexCore.ORVEX_LoadDGroupInfo(fresh, new Return_Value_Info_t(), TIMEOUT));
        assertEquals(0, IOrvexCore.ORVEX_Destroy(fresh));
    }

    @Test
    void theLogicalOrganisationResolvesToTreeNodes() {
        assertTrue(IOrvexCore.ORVEX_HasLogicOrg(h));
        Dep_Info_Ex_t root = new Dep_Info_Ex_t();
        assertEquals(0, IOrvexCore.ORVEX_GetLogicRootDepInfo(h, root));
        String rootCoding = Platform.string(root.szCoding);
        Return_Value_Info_t subs = new Return_Value_Info_t();
        assertEquals(0, IOrvexCore.ORVEX_GetLogicDepNodeNum(h, Platform.text(rootCoding), 0, subs));
        assertTrue(subs.nReturnValue >= 2);
        int resolved = 0;
        for (int k = 0; k < subs.nReturnValue; k++) {
            Dep_Info_Ex_t sub = new Dep_Info_Ex_t();
            assertEquals(0, IOrvexCore.ORVEX_GetLogicSubDepInfoByIndex(
                    h, Platform.text(rootCoding), k, sub));
            byte[] coding = Platform.text(Platform.string(sub.szCoding));
            for (boolean channel : new boolean[] {false, true}) {
                Return_Value_Info_t n = new Return_Value_Info_t();
                assertEquals(0, IOrvexCore.ORVEX_GetLogicDepNodeNum(h, coding, channel ? 2 : 1, n));
                for (int i = 0; i < n.nReturnValue; i++) {
                    Return_Value_ByteArray_t id = new Return_Value_ByteArray_t();
                    assertEquals(0, IOrvexCore.ORVEX_GetLogicID(h, coding, i, channel, id));
                    byte[] idText = Platform.text(Platform.string(id.szCodeID));
                    assertEquals(0, channel
                            ? IOrvexCore.ORVEX_GetChannelInfoById(h, idText,
                                    new Enc_Channel_Info_Ex_t())
                            : IOrvexCore.ORVEX_GetDeviceInfoExById(h, idText,
                                    new Device_Info_Ex_t()));
                    resolved++;
                }
                assertEquals(channel ? Platform.CHANNEL_NOT_FOUND : Platform.DEVICE_NOT_FOUND,
                        IOrvexCore.ORVEX_GetLogicID(h, coding, n.nReturnValue, channel,
                                new Return_Value_ByteArray_t()));
            }
        }
        assertTrue(resolved > 0);
        assertEquals(Platform.GROUP_NOT_FOUND, IOrvexCore.ORVEX_GetLogicSubDepInfoByIndex(
                h, Platform.text(rootCoding), subs.nReturnValue, new Dep_Info_Ex_t()));
    }
}
