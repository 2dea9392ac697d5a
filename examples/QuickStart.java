import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.Return_Value_Info_t;
import java.nio.charset.StandardCharsets;

/**
 * The smallest complete use of the bridge: load it, create a client instance, switch the client
 * library's log on, and shut down again, printing every result code.
 *
 * <p>Run it with the bridge named by {@code -Dorvex.jni.library=/abs/path/libOrvexCoreJni.so}
 * (or on {@code java.library.path}) and the client library, real or stand-in, on the loader's
 * search path ({@code LD_LIBRARY_PATH}).
 */
public final class QuickStart {
    /** The only instance type the client library knows (a server connection). */
    private static final int ORVEX_CORE_SDK_SERVER = 1;
    /** Fetch device information compressed. */
    private static final int ORVEX_CORE_GET_DEVINFO_BY_COMPRESSED = 1;

    private QuickStart() {}

    public static void main(String[] args) {
        String logFile = args.length > 0 ? args[0] : "orvex-quickstart.log";

        Return_Value_Info_t handle = new Return_Value_Info_t();
        report("ORVEX_Create", IOrvexCore.ORVEX_Create(ORVEX_CORE_SDK_SERVER, handle));
        int h = handle.nReturnValue;
        System.out.println("  instance handle: " + h);

        // Text crosses as the bytes of a C string; the bridge adds the terminator. ORVEX_SetLog
        // prints a trace line of its own without a line end.
        int rc = IOrvexCore.ORVEX_SetLog(h, logFile.getBytes(StandardCharsets.UTF_8));
        System.out.println();
        report("ORVEX_SetLog(" + logFile + ")", rc);
        rc = IOrvexCore.ORVEX_SetLog(h, new byte[0]);
        System.out.println();
        report("ORVEX_SetLog(empty name)", rc);
        report("ORVEX_SetCompressType",
                IOrvexCore.ORVEX_SetCompressType(h, ORVEX_CORE_GET_DEVINFO_BY_COMPRESSED));
        report("ORVEX_Destroy", IOrvexCore.ORVEX_Destroy(h));
    }

    private static void report(String what, int result) {
        String meaning = switch (result) {
            case 0 -> "success";
            case 1009 -> "invalid parameter";
            default -> "client library error";
        };
        System.out.println(what + " -> " + result + " (" + meaning + ")");
    }
}
