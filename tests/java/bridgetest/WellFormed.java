package bridgetest;

import com.zq.OrvexCore.IOrvexCore;
import java.lang.reflect.Array;
import java.lang.reflect.Field;
import java.lang.reflect.Method;
import java.lang.reflect.Modifier;
import java.lang.reflect.Proxy;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.Enumeration;
import java.util.List;
import java.util.jar.JarEntry;
import java.util.jar.JarFile;

/**
 * Well-formed arguments for any native, built from its parameter types alone: value objects from
 * their no-arg constructors (which size every byte[] at its C member), integers 1, one element
 * in every record array, and for listener parameters one object that fits every listener kind.
 */
final class WellFormed {
    private static final String PACKAGE = "com.zq.OrvexCore";
    private static final Object LISTENER = anyKindListener();

    private WellFormed() {}

    /** A fresh argument list for {@code m}. */
    static Object[] args(Method m) {
        Class<?>[] types = m.getParameterTypes();
        Object[] args = new Object[types.length];
        for (int i = 0; i < types.length; i++) {
            args[i] = of(types[i]);
        }
        return args;
    }

    /** Classes of the value objects that cross into C. */
    static boolean isValueClass(Class<?> c) {
        return c.getPackageName().startsWith(PACKAGE) && !c.isInterface() && !c.isArray()
                && c != IOrvexCore.class;
    }

    /** The instance fields that carry a C member. */
    static List<Field> fields(Class<?> valueClass) {
        List<Field> out = new ArrayList<>();
        for (Field f : valueClass.getFields()) {
            if (!Modifier.isStatic(f.getModifiers()) && !Modifier.isFinal(f.getModifiers())) {
                out.add(f);
            }
        }
        return out;
    }

    /** A well-formed value of {@code type}; {@code Object} stands for a listener. */
    static Object of(Class<?> type) {
        if (type.isPrimitive()) {
            return primitiveOne(type);
        }
        if (type == Object.class) {
            return LISTENER;
        }
        if (type == String.class) {
            return "1";
        }
        if (type == byte[].class) {
            return CRecord.ascii("1"); // a one-byte C text, or a one-byte buffer for length 1
        }
        if (type.isArray()) {
            Object array = Array.newInstance(type.getComponentType(), 1);
            if (!type.getComponentType().isPrimitive()) {
                Array.set(array, 0, of(type.getComponentType()));
            } else {
                Array.set(array, 0, primitiveOne(type.getComponentType()));
            }
            return array;
        }
        if (isValueClass(type)) {
            try {
                Object value = type.getConstructor().newInstance();
                fill(value);
                return value;
            } catch (ReflectiveOperationException e) {
                throw new AssertionError(type + " has no public no-arg constructor", e);
            }
        }
        throw new AssertionError("no well-formed value for " + type);
    }

    /**
     * Integers become 1; record arrays the constructor left empty get one well-formed element,
     * so that counts of 1 match them; nested objects are built or filled the same way.
     */
    private static void fill(Object value) throws IllegalAccessException {
        for (Field f : fields(value.getClass())) {
            Class<?> t = f.getType();
            Object current = f.get(value);
            if (t.isPrimitive()) {
                if (t != boolean.class && t != float.class && t != double.class) {
                    f.set(value, primitiveOne(t));
                }
            } else if (t.isArray() && isValueClass(t.getComponentType())) {
                f.set(value, of(t));
            } else if (isValueClass(t)) {
                f.set(value, of(t));
            } else if (current == null) {
                f.set(value, of(t));
            }
        }
    }

    private static Object primitiveOne(Class<?> t) {
        if (t == int.class) {
            return 1;
        }
        if (t == long.class) {
            return 1L;
        }
        if (t == short.class) {
            return (short) 1;
        }
        if (t == byte.class) {
            return (byte) 1;
        }
        if (t == char.class) {
            return '1';
        }
        if (t == boolean.class) {
            return true;
        }
        if (t == float.class) {
            return 1f;
        }
        return 1d;
    }

    /** Every listener interface of the package: those with a single method named invoke. */
    static List<Class<?>> listenerInterfaces() {
        List<Class<?>> out = new ArrayList<>();
        try {
            Path jar = Path.of(IOrvexCore.class.getProtectionDomain().getCodeSource().getLocation()
                                       .toURI());
            try (JarFile file = new JarFile(jar.toFile())) {
                for (Enumeration<JarEntry> e = file.entries(); e.hasMoreElements();) {
                    String name = e.nextElement().getName();
                    if (!name.endsWith(".class") || name.contains("$")) {
                        continue;
                    }
                    Class<?> c = Class.forName(
                            name.substring(0, name.length() - 6).replace('/', '.'));
                    Method[] methods = c.getDeclaredMethods();
                    if (c.isInterface() && methods.length == 1
                            && methods[0].getName().equals("invoke")) {
                        out.add(c);
                    }
                }
            }
        } catch (Exception e) {
            throw new AssertionError("cannot list the listener interfaces", e);
        }
        return out;
    }

    /** One proxy implementing every listener interface: it fits whatever kind a native takes. */
    private static Object anyKindListener() {
        List<Class<?>> kinds = listenerInterfaces();
        if (kinds.isEmpty()) {
            throw new AssertionError("no listener interfaces found");
        }
        return Proxy.newProxyInstance(WellFormed.class.getClassLoader(),
                kinds.toArray(new Class<?>[0]), (proxy, method, a) -> {
                    switch (method.getName()) {
                        case "hashCode":
                            return System.identityHashCode(proxy);
                        case "equals":
                            return proxy == a[0];
                        case "toString":
                            return "any-kind listener";
                        default:
                            return null;
                    }
                });
    }
}
