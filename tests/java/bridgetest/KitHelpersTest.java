package bridgetest;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertThrows;

import java.util.Arrays;
import kitprobe.KitProbe;
import kitprobe.Probe;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.CsvSource;

/** Transfer rules of the marshalling kit, one helper at a time on real Java objects. */
class KitHelpersTest {
    private final Probe p = new Probe();

    @Test
    void scalarsKeepTheirBits() {
        KitProbe.setInt(p, "i", 0x80000001);
        KitProbe.setLong(p, "j", 0x8000000000000005L);
        KitProbe.setShort(p, "s", (short) -2);
        KitProbe.setByte(p, "b", 0xE4);
        KitProbe.setDouble(p, "d", -1.5e300);
        KitProbe.setFloat(p, "f", 3.25f);
        KitProbe.setChar(p, "c", '\uFFE4');

        assertEquals(0x80000001, p.i);
        assertEquals(0x8000000000000005L, p.j);
        assertEquals(-2, p.s);
        assertEquals((byte) 0xE4, p.b);
        assertEquals(-1.5e300, p.d);
        assertEquals(3.25f, p.f);
        assertEquals('\uFFE4', p.c);

        assertEquals(0x80000001, KitProbe.getInt(p, "i"));
        assertEquals(0x8000000000000005L, KitProbe.getLong(p, "j"));
        assertEquals(-2, KitProbe.getShort(p, "s"));
        assertEquals(-28, KitProbe.getByte(p, "b"));
        assertEquals(-1.5e300, KitProbe.getDouble(p, "d"));
        assertEquals(3.25f, KitProbe.getFloat(p, "f"));
    }

    @ParameterizedTest(name = "{0} -> {1}")
    @CsvSource({"0, false", "1, true", "2, true", "255, true", "256, false", "257, true",
            "-1, true", "-256, false"})
    void booleanStoresTheLowByteOnly(int value, boolean expected) {
        p.z = !expected;
        KitProbe.setBool(p, "z", value);
        assertEquals(expected, p.z);
        assertEquals(expected ? 1 : 0, KitProbe.getBool(p, "z"));
    }

    @Test
    void memberReaderCopiesAShorterArrayAndLeavesTheRestZero() {
        p.text = CRecord.filled(10, 'a');
        byte[] expected = new byte[16];
        Arrays.fill(expected, 0, 10, (byte) 'a');
        assertArrayEquals(expected, KitProbe.readText16(p, "text"));
    }

    @Test
    void memberReaderCopiesAnArrayOfExactlyTheMembersSize() {
        p.text = CRecord.filled(16, 0xE4);
        assertArrayEquals(CRecord.filled(16, 0xE4), KitProbe.readText16(p, "text"));
    }

    @Test
    void memberReaderCutsALongerArrayAtTheMemberAndThrows() {
        p.text = CRecord.filled(40, 'x');
        IllegalArgumentException e =
                assertThrows(IllegalArgumentException.class, () -> KitProbe.readText16(p, "text"));
        assertEquals("text: 40 bytes do not fit the C member of 16 bytes; copied 16",
                e.getMessage());
    }

    @Test
    void memberReaderRejectsNullArrayMissingFieldAndNullObject() {
        p.text = null;
        assertThrows(NullPointerException.class, () -> KitProbe.readText16(p, "text"));
        assertThrows(NoSuchFieldError.class, () -> KitProbe.readText16(p, "nosuch"));
        assertThrows(NoSuchFieldError.class, () -> KitProbe.readText16(p, "i"));
        assertThrows(NullPointerException.class, () -> KitProbe.readText16(null, "text"));
        assertThrows(NullPointerException.class, () -> KitProbe.getInt(null, "i"));
    }

    @Test
    void lengthReaderCopiesExactlyNBytes() {
        p.text = CRecord.ascii("abcdef");
        assertArrayEquals(CRecord.ascii("abcd\0\0\0\0"), KitProbe.readBytes(p, "text", 4, 8));
    }

    @Test
    void lengthReaderSkipsANullArrayAndCopiesNothingFromAShortOne() {
        p.text = null;
        assertArrayEquals(new byte[8], KitProbe.readBytes(p, "text", 4, 8));
        p.text = CRecord.ascii("ab");
        assertThrows(ArrayIndexOutOfBoundsException.class, () -> KitProbe.readBytes(p, "text", 4, 8));
    }

    @Test
    void writerCopiesNBytesIncludingThoseAfterTheTerminatorAndKeepsTheRest() {
        p.text = CRecord.filled(8, 'z');
        KitProbe.writeBytes(p, "text", CRecord.ascii("ab\0q"), 4);
        assertArrayEquals(CRecord.ascii("ab\0qzzzz"), p.text);
    }

    @Test
    void writerSkipsANullFieldSilentlyAndLeavesAShortArrayUnchanged() {
        p.text = null;
        KitProbe.writeBytes(p, "text", CRecord.ascii("abcd"), 4);
        assertEquals(null, p.text);

        p.text = CRecord.ascii("xy");
        assertThrows(ArrayIndexOutOfBoundsException.class,
                () -> KitProbe.writeBytes(p, "text", CRecord.ascii("abcd"), 4));
        assertArrayEquals(CRecord.ascii("xy"), p.text);
    }

    @Test
    void intArraysFollowTheSameRules() {
        p.ints = new int[] {9, 9, 9};
        KitProbe.writeInts(p, "ints", new int[] {-1, 2}, 2);
        assertArrayEquals(new int[] {-1, 2, 9}, p.ints);
        assertArrayEquals(new int[] {-1, 2, 0, 0}, KitProbe.readInts(p, "ints", 2, 4));

        p.ints = null;
        KitProbe.writeInts(p, "ints", new int[] {1}, 1);
        assertArrayEquals(new int[] {0, 0}, KitProbe.readInts(p, "ints", 1, 2));

        p.ints = new int[1];
        assertThrows(ArrayIndexOutOfBoundsException.class,
                () -> KitProbe.writeInts(p, "ints", new int[] {1, 2}, 2));
    }

    @Test
    void charArraysWidenSignExtendedAndNarrowToTheLowByte() {
        p.chars = new char[4];
        KitProbe.writeChars(p, "chars", new byte[] {(byte) 0x80, (byte) 0xE4, 0x41, 0x7F}, 4);
        assertArrayEquals(new char[] {'\uFF80', '\uFFE4', 'A', '\u007F'}, p.chars);

        p.chars = new char[] {'\u1234', '\u00FF', 'b'};
        assertArrayEquals(new byte[] {0x34, (byte) 0xFF, 'b', 0},
                KitProbe.readChars(p, "chars", 3, 4));
    }

    @Test
    void charArraysNeverReachPastTheJavaArray() {
        p.chars = new char[] {'x', 'y'};
        assertThrows(ArrayIndexOutOfBoundsException.class,
                () -> KitProbe.writeChars(p, "chars", CRecord.ascii("abcd"), 4));
        assertArrayEquals(new char[] {'a', 'b'}, p.chars);
        assertThrows(ArrayIndexOutOfBoundsException.class,
                () -> KitProbe.readChars(p, "chars", 4, 4));

        p.chars = null;
        assertThrows(NullPointerException.class,
                () -> KitProbe.writeChars(p, "chars", CRecord.ascii("a"), 1));
    }

    @Test
    void bareArraysDoNothingWithoutBothArraysOrWithACountBelowOne() {
        byte[] j = CRecord.ascii("keep");
        KitProbe.setJByteArray(j, CRecord.ascii("new!"), 0);
        KitProbe.setJByteArray(j, CRecord.ascii("new!"), -1);
        KitProbe.setJByteArray(j, null, 4);
        KitProbe.setJByteArray(null, CRecord.ascii("new!"), 4);
        assertArrayEquals(CRecord.ascii("keep"), j);
        assertArrayEquals(new byte[4], KitProbe.getJByteArray(j, 0, 4));
    }

    @Test
    void bareArraysCopyAndConvert() {
        byte[] j = CRecord.ascii("keep");
        KitProbe.setJByteArray(j, CRecord.ascii("ne"), 2);
        assertArrayEquals(CRecord.ascii("neep"), j);
        assertArrayEquals(CRecord.ascii("nee\0"), KitProbe.getJByteArray(j, 3, 4));

        char[] c = new char[3];
        KitProbe.setJCharArray(c, new byte[] {(byte) 0xE4, 'q'}, 2);
        assertArrayEquals(new char[] {'\uFFE4', 'q', 0}, c);
        assertArrayEquals(new byte[] {(byte) 0xE4, 'q', 0}, KitProbe.getJCharArray(c, 3, 3));

        assertThrows(ArrayIndexOutOfBoundsException.class,
                () -> KitProbe.setJByteArray(new byte[2], CRecord.ascii("abc"), 3));
    }

    @Test
    void boxesReceiveTheirValue() {
        Integer i = Integer.valueOf(1_000_001);
        KitProbe.setIntBox(i, 77);
        assertEquals(77, i.intValue());
        assertEquals(77, KitProbe.getIntBox(i));

        Double d = Double.valueOf(1.0);
        KitProbe.setDoubleBox(d, 2.5);
        assertEquals(2.5, d.doubleValue());

        Boolean b = new Probe().z ? Boolean.FALSE : Boolean.valueOf("TRUE");
        assertThrows(NullPointerException.class, () -> KitProbe.setIntBox(null, 1));
        assertEquals(true, b);
    }

    /** A wrong test argument fails its own test instead of ending the checked JVM. */
    @Test
    void probeRefusesArgumentsThatWouldEndTheJvm() {
        Probe p = new Probe();
        java.util.List<org.junit.jupiter.api.function.Executable> calls = java.util.List.of(
                () -> KitProbe.getInt(p, null),
                () -> KitProbe.readBytes(p, "text", 1, -1),
                () -> KitProbe.readInts(p, "ints", 1, -1),
                () -> KitProbe.readChars(p, "chars", 1, -1),
                () -> KitProbe.getJByteArray(new byte[1], 1, -1),
                () -> KitProbe.writeInts(p, "ints", null, 1));
        for (org.junit.jupiter.api.function.Executable call : calls) {
            assertThrows(IllegalArgumentException.class, call);
        }
    }
}
