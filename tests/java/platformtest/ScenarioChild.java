package platformtest;

import com.zq.OrvexCore.Dep_Info_t;
import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.Return_Value_Info_t;

/**
 * Runs in a JVM of its own, on the scenario that ORVEX_SIM_SCENARIO names: creates an instance,
 * logs in as {@code args[0]} with password {@code args[1]}, and prints what happened. Uses no
 * test library: the child's class path holds only the tests and the bridge's jar.
 */
public final class ScenarioChild {
    private ScenarioChild() {}

    public static void main(String[] args) throws Exception {
        Return_Value_Info_t value = new Return_Value_Info_t();
        int rc = IOrvexCore.ORVEX_Create(Platform.SDK_SERVER, value);
        System.out.println("create=" + rc);
        if (rc != 0) {
            return;
        }
        int h = value.nReturnValue;
        System.out.println("login=" + Platform.login(h, args[0], args[1]));
        System.out.println("load=" + IOrvexCore.ORVEX_LoadDGroupInfo(h, value, Platform.TIMEOUT));
        Dep_Info_t root = new Dep_Info_t();
        IOrvexCore.ORVEX_GetDGroupRootInfo(h, root);
        System.out.println("root=" + Platform.string(root.szCoding));
        IOrvexCore.ORVEX_GetDeviceListLen(h, value, Platform.TIMEOUT);
        byte[] list = new byte[value.nReturnValue];
        IOrvexCore.ORVEX_GetDeviceListStr(h, list, list.length, Platform.TIMEOUT);
        System.out.println("devices="
                + Tree.xml(list, list.length).getElementsByTagName("Device").getLength());
        IOrvexCore.ORVEX_Logout(h, Platform.TIMEOUT);
        IOrvexCore.ORVEX_Destroy(h);
    }
}
