package bridgetest;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.zq.OrvexCore.IOrvexCore;
import kitprobe.KitProbe;
import org.junit.jupiter.api.Test;
import simctl.SimControl;

/** The load entry points, called again on the loaded bridge as the virtual machine calls them. */
class LoadTest {
    private static final String BRIDGE = System.getProperty(IOrvexCore.LIBRARY_PROPERTY);

    @Test
    void loadingAsksForJni16AndUnloadingChangesNothing() throws Exception {
        Class.forName(IOrvexCore.class.getName());  // the bridge is loaded

        assertEquals(0x10006, KitProbe.callOnLoad(BRIDGE));
        assertTrue(KitProbe.callOnUnload(BRIDGE));

        SimControl.reset();
        SimControl.script("ORVEX_Destroy", 12);
        assertEquals(12, IOrvexCore.ORVEX_Destroy(3));
        assertEquals(0, IOrvexCore.ORVEX_Destroy(3));
    }
}
