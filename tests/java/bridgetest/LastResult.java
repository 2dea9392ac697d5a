package bridgetest;

import static org.junit.jupiter.api.Assertions.assertEquals;

import com.zq.OrvexCore.IOrvexCore;
import simctl.BridgeInternals;
import simctl.SimControl;

/** Sets up the bridge's last result, for natives that return it unchanged on some inputs. */
final class LastResult {
    private LastResult() {}

    /** Leaves {@code code} as the last result through an unrelated native. */
    static void leave(int code) {
        SimControl.script("ORVEX_SetCompressType", code);
        assertEquals(code, IOrvexCore.ORVEX_SetCompressType(1, 0));
    }

    /** The bridge's last result as it stands, for natives that threw instead of returning. */
    static int read() {
        return BridgeInternals.readInt(BridgeInternals.global("g_nLastError"));
    }
}
