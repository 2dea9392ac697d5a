package simctl;

import com.zq.OrvexCore.IOrvexCore;

/**
 * Test-only access to what the bridge keeps hidden: the address of a trampoline (to install it
 * in the stand-in for kinds no native registers) and its globals. Symbols come from the bridge
 * file's symbol table, so the bridge must be built unstripped, as the build does.
 */
public final class BridgeInternals {
    static {
        try {
            // Loads the bridge first: its symbols are looked up in the loaded image.
            Class.forName(IOrvexCore.class.getName(), true, BridgeInternals.class.getClassLoader());
        } catch (ClassNotFoundException e) {
            throw new ExceptionInInitializerError(e);
        }
        System.load(System.getProperty("orvex.simctl.library"));
    }

    private BridgeInternals() {}

    private static native long address(String library, String name, boolean prefix);

    /** The bridge's virtual-machine pointer as it is loaded in this process. */
    public static native long javaVm();

    public static native long readPointer(long address);

    public static native void writePointer(long address, long value);

    /** A 32-bit global of the bridge, such as {@code g_nLastError}. */
    public static native int readInt(long address);

    private static String bridge() {
        return System.getProperty(IOrvexCore.LIBRARY_PROPERTY);
    }

    /** Address of a global of the bridge, such as {@code g_jvm}. */
    public static long global(String name) {
        return address(bridge(), name, false);
    }

    /**
     * Address of the trampoline for {@code kind} (a listener interface name, as in
     * {@link SimControl#fire}): {@code CSDKCB::f<kind>}, whatever its parameter types.
     */
    public static long trampoline(String kind) {
        String member = "f" + kind;
        return address(bridge(), "_ZN6CSDKCB" + member.length() + member + "E", true);
    }
}
