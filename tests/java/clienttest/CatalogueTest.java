package clienttest;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertTrue;

import bridgetest.CRecord;
import com.zq.OrvexCore.client.CameraId;
import com.zq.OrvexCore.client.Catalogue;
import com.zq.OrvexCore.client.Channel;
import com.zq.OrvexCore.client.DepartmentCode;
import com.zq.OrvexCore.client.DepartmentNode;
import com.zq.OrvexCore.client.Device;
import com.zq.OrvexCore.client.DeviceId;
import com.zq.OrvexCore.client.OrvexClient;
import java.util.List;
import org.junit.jupiter.api.Test;
import simctl.RecordedCall;
import simctl.SimControl;
import simctl.Write;

/** The organisation tree read through counts first, then records sized from them. */
class CatalogueTest {
    @Test
    void treeIsReadWholeAndCanBeWalkedAndStreamed() {
        try (OrvexClient c = Sim.connect()) {
            SimSite.script();

            DepartmentNode root = c.catalogue().tree();

            assertEquals(DepartmentCode.of("01"), root.department().code());
            assertEquals("HQ", root.department().name());
            assertEquals(List.of("01", "0101"),
                    root.departments().map(d -> d.department().code().value()).toList());
            Device nvr = root.devices().get(0).device();
            assertEquals(new Device(DeviceId.of("dev-1"), "NVR", 6, "10.0.0.7", 8000, 1, 2, 4, "SN-77",
                    "Hall", ""), nvr);
            assertEquals(1, root.devices().size(), "the slot the library left empty is dropped");
            assertEquals(List.of("cam-1", "cam-2"), root.channels().map(ch -> ch.id().value()).toList());
            Channel yard = root.findChannel(CameraId.of("cam-2")).orElseThrow();
            assertEquals(new Channel(CameraId.of("cam-2"), "Yard", 5, 0x8000_0000_0000_0001L, 0, 2, "",
                    "48.1", "11.5", "", 0), yard);
            assertFalse(root.findChannel(CameraId.of("cam-9")).isPresent());

            // The group read asked for exactly the counted records of the root.
            RecordedCall read = SimControl.last("ORVEX_GetDGroupInfo");
            assertEquals("01", Sim.textAt(read.arg("pInfo").bytes, 0));
            assertEquals(1, Sim.i32At(read.arg("pInfo").bytes, 128));
            assertEquals(2, Sim.i32At(read.arg("pInfo").bytes, 144));
            assertEquals("0101", Sim.textAt(SimControl.callsOf("ORVEX_GetDGroupCount").get(1)
                    .arg("pInfo").bytes, 0));
            assertEquals(1, SimControl.count("ORVEX_GetDGroupInfo"), "an empty department is not read");
            assertEquals("dev-1", Sim.textAt(SimControl.last("ORVEX_GetChannelInfoEx").arg("pInfo").bytes, 0));
        }
    }

    @Test
    void aDeviceWithoutChannelsIsNotAskedForThem() {
        try (OrvexClient c = Sim.connect()) {
            SimControl.script("ORVEX_GetEncChannelCount", 0, Write.le32("pnCount", 0, 0));
            assertEquals(List.of(), c.catalogue().channels(DeviceId.of("dev-1")));
            assertEquals(0, SimControl.count("ORVEX_GetChannelInfoEx"));
        }
    }

    @Test
    void exportAndLogicalOrganisation() {
        try (OrvexClient c = Sim.connect()) {
            SimControl.script("ORVEX_LoadDGroupInfo", 0, Write.le32("pnGroupLen", 0, 7));
            SimControl.script("ORVEX_GetDGroupStr", 0, Write.bytes("szGroupBuf", 0, Sim.utf8("<tree/>")));
            SimControl.script("ORVEX_GetLogicDepNodeNum", 0, Write.le32("pnNum", 0, 3));
            SimControl.script("ORVEX_GetLogicID", 0, Write.bytes("szCodeID", 0, Sim.utf8("cam-42")));
            SimControl.script("ORVEX_GetLogicRootDepInfo", 0, Write.bytes("pInfo", 0,
                    new CRecord(1936).text(0, "L1").text(128, "Logic").text(768, "memo").i32(1792, 4).bytes()));

            assertEquals("<tree/>", c.catalogue().exportText());
            assertEquals(7, SimControl.last("ORVEX_GetDGroupStr").arg("nGroupLen").i32());
            assertEquals(3, c.catalogue().logicalCount(DepartmentCode.of("L1"), Catalogue.NodeKind.CHANNEL));
            assertEquals(2, SimControl.last("ORVEX_GetLogicDepNodeNum").arg("eNodeType").i32());
            assertEquals("cam-42", c.catalogue().logicalId(DepartmentCode.of("L1"), 0, true));
            Catalogue.LogicalDepartment root = c.catalogue().logicalRoot();
            assertEquals("Logic", root.name());
            assertEquals("memo", root.memo());
            assertEquals(4, root.type());
            SimControl.script("ORVEX_HasLogicOrg", 1);
            assertTrue(c.catalogue().hasLogicalOrganisation());
            assertFalse(c.catalogue().hasLogicalOrganisation());
        }
    }
}
