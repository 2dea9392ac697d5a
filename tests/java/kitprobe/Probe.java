package kitprobe;

/** A value object with one field of every kind the kit moves. */
public class Probe {
    public int i;
    public long j;
    public short s;
    public byte b;
    public char c;
    public boolean z;
    public double d;
    public float f;
    public byte[] text;
    public int[] ints;
    public char[] chars;
}
