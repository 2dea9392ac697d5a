package kitprobe;

/**
 * Calls the bridge's marshalling kit one helper at a time through a test-only JNI library
 * (property {@code orvex.kitprobe.library}, an absolute path). A null object makes the helper
 * look its field up on {@link Probe}.
 */
public final class KitProbe {
    static {
        System.load(System.getProperty("orvex.kitprobe.library"));
    }

    private KitProbe() {}

    public static native void setInt(Object o, String field, int v);
    public static native int getInt(Object o, String field);
    public static native void setLong(Object o, String field, long v);
    public static native long getLong(Object o, String field);
    public static native void setShort(Object o, String field, short v);
    public static native short getShort(Object o, String field);
    /** The helper takes an unsigned char: only the low 8 bits of {@code v} reach it. */
    public static native void setByte(Object o, String field, int v);
    public static native int getByte(Object o, String field);
    public static native void setBool(Object o, String field, int v);
    public static native int getBool(Object o, String field);
    public static native void setDouble(Object o, String field, double v);
    public static native double getDouble(Object o, String field);
    public static native void setFloat(Object o, String field, float v);
    public static native float getFloat(Object o, String field);
    public static native void setChar(Object o, String field, char v);

    /** The member-bounded reader into a zero-filled 16-byte member; returns the member. */
    public static native byte[] readText16(Object o, String field);
    /** The n-byte reader into a zero-filled buffer of {@code bufSize}; returns the buffer. */
    public static native byte[] readBytes(Object o, String field, int n, int bufSize);
    public static native void writeBytes(Object o, String field, byte[] c, int n);
    public static native void writeInts(Object o, String field, int[] c, int n);
    public static native int[] readInts(Object o, String field, int n, int bufSize);
    public static native void writeChars(Object o, String field, byte[] c, int n);
    public static native byte[] readChars(Object o, String field, int n, int bufSize);

    public static native void setJByteArray(byte[] j, byte[] c, int n);
    public static native byte[] getJByteArray(byte[] j, int n, int bufSize);
    public static native void setJCharArray(char[] j, byte[] c, int n);
    public static native byte[] getJCharArray(char[] j, int n, int bufSize);

    public static native void setIntBox(Integer box, int v);
    public static native int getIntBox(Integer box);
    public static native void setDoubleBox(Double box, double v);
    public static native void setBoolBox(Boolean box, int v);

    /** Calls the already loaded bridge's JNI_OnLoad directly; returns the version it asks for. */
    public static native int callOnLoad(String bridgePath);

    /** Calls the already loaded bridge's JNI_OnUnload directly; false if it is not exported. */
    public static native boolean callOnUnload(String bridgePath);

    /** Copies a raw 1480-byte C device record into {@code o}. */
    public static native void deviceInfo(Object o, byte[] record);
}
