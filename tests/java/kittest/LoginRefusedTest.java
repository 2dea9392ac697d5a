package kittest;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertThrows;

import com.zq.OrvexCore.client.OrvexClient;
import com.zq.OrvexCore.client.OrvexException;
import java.nio.charset.StandardCharsets;
import java.util.Arrays;
import org.junit.jupiter.api.AfterEach;
import org.junit.jupiter.api.Test;
import simctl.RecordedArg;
import simctl.SimControl;
import simctl.Write;

/** The test kit as README shows it to integrators: a refused login, and what the library got. */
class LoginRefusedTest {
    @AfterEach
    void forget() {
        SimControl.reset();
    }

    @Test
    void aRefusedLoginReachesTheCallerWithItsCode() {
        SimControl.script("ORVEX_Create", 0, Write.le32("pnSdkHandle", 0, 7));
        SimControl.script("ORVEX_Login", 1004);

        OrvexException refused = assertThrows(OrvexException.class, () -> OrvexClient.builder()
                .host("10.1.2.3").port(9000).user("operator").password("wrong").connect());

        assertEquals(1004, refused.code());
        RecordedArg login = SimControl.last("ORVEX_Login").arg("pInfo");
        assertEquals(7, SimControl.last("ORVEX_Login").arg("nHandle").i32());
        assertEquals("10.1.2.3", text(login.slice(0, 48)));   // szIp
        assertEquals(9000, login.le32(48));                   // nPort
        assertEquals("operator", text(login.slice(52, 64)));  // szUsername
        assertEquals("wrong", text(login.slice(116, 64)));    // szPassword
        assertEquals(1, SimControl.count("ORVEX_Destroy"));   // nothing left behind
    }

    private static String text(byte[] member) {
        int end = 0;
        while (end < member.length && member[end] != 0) {
            end++;
        }
        return new String(Arrays.copyOf(member, end), StandardCharsets.UTF_8);
    }
}
