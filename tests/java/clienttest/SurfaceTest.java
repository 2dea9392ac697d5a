package clienttest;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.zq.OrvexCore.client.OrvexClient;
import java.io.IOException;
import java.lang.reflect.Constructor;
import java.lang.reflect.Executable;
import java.lang.reflect.Field;
import java.lang.reflect.Method;
import java.lang.reflect.Modifier;
import java.lang.reflect.RecordComponent;
import java.lang.reflect.Type;
import java.net.URISyntaxException;
import java.nio.file.FileSystem;
import java.nio.file.FileSystems;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.List;
import java.util.stream.Stream;
import org.junit.jupiter.api.Test;

/**
 * The client's public surface speaks Strings, records and Java types only: no byte arrays, and
 * none of the low-level value classes or holders of {@code com.zq.OrvexCore}.
 */
class SurfaceTest {
    static final String PACKAGE = "com.zq.OrvexCore.client";

    /** Every class of the client package, read from the jar or directory it was loaded from. */
    static List<Class<?>> clientClasses() throws IOException, URISyntaxException, ClassNotFoundException {
        Path origin = Path.of(OrvexClient.class.getProtectionDomain().getCodeSource().getLocation().toURI());
        List<Class<?>> out = new ArrayList<>();
        try (FileSystem fs = Files.isDirectory(origin) ? null : FileSystems.newFileSystem(origin);
                Stream<Path> files = Files.walk((fs == null ? origin : fs.getPath("/"))
                        .resolve(PACKAGE.replace('.', '/')))) {
            for (Path p : files.filter(f -> f.toString().endsWith(".class")).toList()) {
                String name = p.getFileName().toString();
                String binary = PACKAGE + "." + name.substring(0, name.length() - ".class".length());
                if (!binary.endsWith("package-info")) {
                    out.add(Class.forName(binary, false, OrvexClient.class.getClassLoader()));
                }
            }
        }
        return out;
    }

    /** Why {@code t} may not appear in a public signature, or null if it may. */
    static String offence(Type t) {
        String name = t.getTypeName();
        if (name.contains("byte[]")) {
            return "byte[]";
        }
        for (String part : name.split("[<>,\\s\\[\\]?]+")) {
            if (part.startsWith("com.zq.OrvexCore.") && !part.startsWith(PACKAGE + ".")) {
                return part;
            }
        }
        return null;
    }

    static boolean visible(Class<?> c) {
        for (Class<?> k = c; k != null; k = k.getEnclosingClass()) {
            if (!Modifier.isPublic(k.getModifiers())) {
                return false;
            }
        }
        return true;
    }

    @Test
    void noByteArraysOrLowLevelClassesInPublicSignatures() throws Exception {
        List<Class<?>> classes = clientClasses();
        assertTrue(classes.size() > 30, "client classes found: " + classes);
        List<String> problems = new ArrayList<>();
        int checked = 0;
        for (Class<?> c : classes) {
            if (!visible(c)) {
                continue;
            }
            List<Executable> members = new ArrayList<>();
            for (Method m : c.getDeclaredMethods()) {
                if (Modifier.isPublic(m.getModifiers()) || Modifier.isProtected(m.getModifiers())) {
                    members.add(m);
                }
            }
            for (Constructor<?> k : c.getDeclaredConstructors()) {
                if (Modifier.isPublic(k.getModifiers()) || Modifier.isProtected(k.getModifiers())) {
                    members.add(k);
                }
            }
            for (Executable e : members) {
                List<Type> types = new ArrayList<>(List.of(e.getGenericParameterTypes()));
                if (e instanceof Method m) {
                    types.add(m.getGenericReturnType());
                }
                for (Type t : types) {
                    checked++;
                    String why = offence(t);
                    if (why != null) {
                        problems.add(c.getName() + "." + e.getName() + ": " + why);
                    }
                }
            }
            for (Field f : c.getDeclaredFields()) {
                if (Modifier.isPublic(f.getModifiers()) && offence(f.getGenericType()) != null) {
                    problems.add(c.getName() + "." + f.getName() + ": " + offence(f.getGenericType()));
                }
            }
            if (c.isRecord()) {
                for (RecordComponent rc : c.getRecordComponents()) {
                    checked++;
                    if (offence(rc.getGenericType()) != null) {
                        problems.add(c.getName() + "." + rc.getName() + ": " + offence(rc.getGenericType()));
                    }
                }
            }
        }
        assertTrue(checked > 200, "signatures checked: " + checked);
        assertEquals(List.of(), problems);
    }

    @Test
    void theCheckRecognisesWhatItForbids() throws Exception {
        assertEquals("byte[]", offence(SurfaceTest.class.getDeclaredMethod("sample", byte[].class)
                .getGenericParameterTypes()[0]));
        assertEquals("com.zq.OrvexCore.Return_Value_Info_t", offence(SurfaceTest.class
                .getDeclaredMethod("holders", List.class).getGenericParameterTypes()[0]));
        assertEquals(null, offence(String.class));
    }

    @SuppressWarnings("unused")
    private static void sample(byte[] b) {}

    @SuppressWarnings("unused")
    private static void holders(List<com.zq.OrvexCore.Return_Value_Info_t> h) {}
}
