package bridgetest;

import static org.junit.jupiter.api.Assertions.assertEquals;

import bridgetest.CallbackCases.Case;
import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.ORVEXTalkParamCallback;
import org.junit.jupiter.api.Test;
import simctl.BridgeInternals;

/**
 * Which setters fill the bridge's virtual-machine pointer when it is still null: every one but
 * the talk-parameter setter. Runs in a JVM of its own because it clears the pointer.
 */
class GlobalJvmTest {
    private static final String TALK_SETTER = "ORVEX_SetORVEXTalkParamCallback";

    /** Runs in the child JVM. */
    public static final class Child {
        public static void main(String[] args) throws Exception {
            long gJvm = BridgeInternals.global("g_jvm");
            long vm = BridgeInternals.javaVm();
            System.out.print("after load: " + (BridgeInternals.readPointer(gJvm) == vm) + "\n");

            BridgeInternals.writePointer(gJvm, 0);
            IOrvexCore.ORVEX_SetORVEXTalkParamCallback(
                    3, (ORVEXTalkParamCallback) (h, t, a, b, s, m) -> {});
            IOrvexCore.ORVEX_SetORVEXTalkParamCallback(3, null);
            System.out.print(TALK_SETTER + ": " + BridgeInternals.readPointer(gJvm) + "\n");

            for (Case c : CallbackCases.setterKinds()) {
                if (c.setter().equals(TALK_SETTER)) {
                    continue;
                }
                BridgeInternals.writePointer(gJvm, 0);
                // The unregister path fills it too: that happens before the listener is looked at.
                CallbackCases.set(c, 3, null);
                System.out.print(
                        c.setter() + ": " + (BridgeInternals.readPointer(gJvm) == vm) + "\n");
            }
        }
    }

    @Test
    void everySetterButTheTalkParameterOneFillsTheVirtualMachinePointer() throws Exception {
        StringBuilder expected = new StringBuilder("g_jvm = vm\nafter load: true\n");
        expected.append(TALK_SETTER).append(": 0\n");
        for (Case c : CallbackCases.setterKinds()) {
            if (!c.setter().equals(TALK_SETTER)) {
                expected.append(c.setter()).append(": true\n");
            }
        }

        assertEquals(expected.toString(), ChildJvm.run(Child.class));
    }
}
