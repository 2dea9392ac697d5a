package bridgetest;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.zq.OrvexCore.IOrvexCore;
import java.lang.reflect.Array;
import java.lang.reflect.Field;
import java.lang.reflect.InvocationTargetException;
import java.lang.reflect.Method;
import java.lang.reflect.Modifier;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.HashMap;
import java.util.HashSet;
import java.util.LinkedHashMap;
import java.util.List;
import java.util.Map;
import java.util.Set;
import java.util.TreeMap;
import java.util.regex.Matcher;
import java.util.regex.Pattern;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.api.TestReporter;
import simctl.RecordedArg;
import simctl.RecordedCall;
import simctl.SimControl;

/**
 * Every native of IOrvexCore, found by reflection, called with bad input one argument at a time
 * while the others stay well-formed: a null in each object parameter and in each field of the
 * value objects; each array empty and one element longer than its C member; each integer -1. One
 * child JVM (with -Xcheck:jni) per family of natives, so that an abort is counted rather than
 * ending the run.
 *
 * <p>A call passes when the child JVM lives on, prints no JNI warning, and:
 *
 * <ul>
 *   <li>it returns a result code, or throws one of NullPointerException, IllegalArgumentException
 *       (a Java array longer than its C member), ArrayIndexOutOfBoundsException (the library
 *       reported more records than the Java array holds) or OutOfMemoryError (a negative count);
 *       any other throwable is a fault;
 *   <li>after a NullPointerException for a null argument, or an OutOfMemoryError for a negative
 *       integer, the library was not called (a null slot of a record array excepted: the bridge
 *       reaches it when it writes the answer back, after the call);
 *   <li>the library never received a null pointer that the well-formed call does not pass,
 *       except the null function and user pointers with which a null listener switches its kind
 *       off and the few listed in {@link #BY_DESIGN_NULLS};
 *   <li>a byte[] field one byte longer than its member reaches the library cut at the member
 *       (see {@code checkCopyBound}).
 * </ul>
 *
 * Natives that answer a null or empty argument with 1009 or the previous result, without an
 * exception and without calling the library, pass by the same rules.
 *
 * A native that the bridge does not bind under its JNI name (UnsatisfiedLinkError on the
 * well-formed call) is counted as unbound, not covered.
 */
class NativeSweepTest {
    /** Lines the child prints for the parent; anything else on its output is the bridge's. */
    private static final Pattern REPORT =
            Pattern.compile("SWEEP (covered|unbound|calls|violation|start) (.*)");
    private static final Pattern BANNER = Pattern.compile("natives: (core_jni/\\S+)");
    private static final Pattern DECLARATION = Pattern.compile("\\bnative\\b[^(]*\\b(\\w+)\\s*\\(");

    /** Natives by family: the natives file that the section banner of IOrvexCore.java names. */
    static Map<String, List<String>> families() throws Exception {
        Map<String, String> fileOf = new HashMap<>();
        String file = "(no banner)";
        for (String line :
                Files.readAllLines(Path.of(System.getProperty("orvex.core.source")))) {
            Matcher banner = BANNER.matcher(line);
            if (banner.find()) {
                file = banner.group(1);
            }
            Matcher declaration = DECLARATION.matcher(line);
            if (declaration.find()) {
                fileOf.put(declaration.group(1), file);
            }
        }
        Map<String, List<String>> out = new TreeMap<>();
        for (Method m : IOrvexCore.class.getDeclaredMethods()) {
            if (Modifier.isNative(m.getModifiers())) {
                out.computeIfAbsent(fileOf.getOrDefault(m.getName(), "(no banner)"),
                           f -> new ArrayList<>())
                        .add(m.getName());
            }
        }
        out.values().forEach(names -> names.sort(null));
        return out;
    }

    @Test
    void everyNativeTakesNullEmptyOversizedAndNegativeInputWithoutHarm(TestReporter reporter)
            throws Exception {
        Map<String, List<String>> families = families();
        int natives = families.values().stream().mapToInt(List::size).sum();
        List<String> covered = new ArrayList<>();
        List<String> unbound = new ArrayList<>();
        List<String> aborts = new ArrayList<>();
        List<String> violations = new ArrayList<>();
        long calls = 0;
        for (Map.Entry<String, List<String>> family : families.entrySet()) {
            // After an abort, a new child JVM takes up the natives the aborted one did not reach.
            List<String> remaining = family.getValue();
            while (!remaining.isEmpty()) {
                ChildJvm.Result r = ChildJvm.start(Child.class, remaining.toArray(new String[0]));
                String lastStarted = "(none)";
                for (String line : r.stdout().split("\n")) {
                    Matcher m = REPORT.matcher(line);
                    if (!m.find()) {
                        continue;
                    }
                    switch (m.group(1)) {
                        case "covered" -> covered.add(m.group(2));
                        case "unbound" -> unbound.add(m.group(2));
                        case "calls" -> calls += Long.parseLong(m.group(2).trim());
                        case "violation" -> violations.add(m.group(2));
                        default -> lastStarted = m.group(2);
                    }
                }
                if (r.jniCheckReport() != null) {
                    violations.add(family.getKey() + ": -Xcheck:jni reported \""
                            + r.jniCheckReport() + "\" (last call " + lastStarted + ")");
                }
                if (r.exitCode() == 0) {
                    break;
                }
                aborts.add(family.getKey() + ": exit " + r.exitCode() + " during " + lastStarted);
                int at = remaining.indexOf(lastStarted.split(" ")[0]);
                // A child that ended before its first call would end the same way again.
                remaining = at < 0 ? List.of() : remaining.subList(at + 1, remaining.size());
            }
        }
        List<String> refused = covered.stream().filter(c -> c.endsWith("(refused)")).toList();
        String summary = covered.size() + " of " + natives + " natives in " + families.size()
                + " families, " + calls + " calls; unbound: " + unbound
                + "; well-formed input refused before the library by: " + refused;
        reporter.publishEntry("native sweep", summary);
        System.out.println("native sweep: " + summary);

        assertTrue(aborts.isEmpty(), "child JVMs that aborted:\n" + String.join("\n", aborts));
        assertTrue(violations.isEmpty(), "broken rules:\n" + String.join("\n", violations));
        assertEquals(natives, covered.size() + unbound.size(), "every native swept");
        assertTrue(covered.size() > unbound.size(), summary);
    }

    /**
     * Null pointers that natives hand the library by their defined behaviour for some input,
     * beyond those the well-formed call already passes.
     */
    private static final Set<String> BY_DESIGN_NULLS = Set.of(
            // A channel count below 1 sends the subscription without a channel list.
            "ORVEX_SubscribeBayCarInfo.pInfo.pEncChannelnfo");

    /** What a bad argument is. */
    enum Kind { NULL, EMPTY, OVERSIZED, NEGATIVE }

    /**
     * One bad argument: {@code path} leads from the argument list to it (an Integer is an index
     * into the arguments or an array, a String a field name).
     */
    record Variant(Kind kind, List<Object> path, boolean listener) {
        /**
         * A slot of a record array: the bridge reaches it only when it writes the library's
         * answer back, so its NullPointerException comes after the call.
         */
        boolean isArrayElement() {
            return path.size() > 1 && path.get(path.size() - 1) instanceof Integer;
        }

        String describe(String nativeName) {
            StringBuilder s = new StringBuilder(nativeName).append(" arg").append(path.get(0));
            for (Object step : path.subList(1, path.size())) {
                s.append(step instanceof Integer ? "[" + step + "]" : "." + step);
            }
            return s.append(" ").append(kind).toString();
        }
    }

    /** What one call did. */
    record Outcome(Throwable thrown, RecordedCall[] calls) {
        boolean libraryCalled() {
            return calls.length > 0;
        }

        /** The null pointers the library received, as "function.argument". */
        Set<String> nullPointers() {
            Set<String> out = new HashSet<>();
            for (RecordedCall c : calls) {
                for (RecordedArg a : c.args) {
                    if (a.pointer && a.isNull) {
                        out.add(c.fn + "." + a.name);
                    }
                }
            }
            return out;
        }
    }

    /** Runs in the child JVM: sweeps the natives named in its arguments. */
    public static final class Child {
        private static long calls;

        public static void main(String[] names) throws Exception {
            Map<String, Method> natives = new LinkedHashMap<>();
            for (Method m : IOrvexCore.class.getDeclaredMethods()) {
                natives.put(m.getName(), m);
            }
            for (String name : names) {
                sweep(natives.get(name));
            }
            System.out.println("SWEEP calls " + calls);
        }

        private static void sweep(Method m) throws Exception {
            String name = m.getName();
            System.out.println("SWEEP start " + name + " well-formed");
            Outcome base = call(m, WellFormed.args(m));
            if (base.thrown() instanceof UnsatisfiedLinkError) {
                System.out.println("SWEEP unbound " + name);
                return;
            }
            check(name + " well-formed", base, null, Set.of());
            Set<String> allowedNulls = base.nullPointers();
            for (Variant v : variants(m)) {
                String what = v.describe(name);
                System.out.println("SWEEP start " + what);
                Object[] args = WellFormed.args(m);
                apply(args, v);
                Outcome o = call(m, args);
                check(what, o, v, allowedNulls);
                if (v.kind() == Kind.OVERSIZED && v.path().size() > 1) {
                    checkCopyBound(what, o, args, v);
                }
            }
            System.out.println(
                    "SWEEP covered " + name + (base.libraryCalled() ? "" : " (refused)"));
        }

        private static Outcome call(Method m, Object[] args) throws Exception {
            SimControl.reset();
            calls++;
            Throwable thrown = null;
            try {
                m.invoke(null, args);
            } catch (InvocationTargetException e) {
                thrown = e.getCause();
            }
            return new Outcome(thrown, SimControl.calls());
        }

        private static void check(String what, Outcome o, Variant v, Set<String> allowedNulls) {
            Throwable t = o.thrown();
            if (t != null && !(t instanceof NullPointerException
                        || t instanceof IllegalArgumentException
                        || t instanceof ArrayIndexOutOfBoundsException
                        || t instanceof OutOfMemoryError)) {
                violation(what, "threw " + t);
            }
            if (t instanceof NullPointerException && v != null && v.kind() == Kind.NULL
                    && o.libraryCalled() && !v.isArrayElement()) {
                violation(what, "NullPointerException, yet the library was called: "
                                + Arrays.toString(o.calls()));
            }
            if (t instanceof OutOfMemoryError && o.libraryCalled()) {
                violation(what, "OutOfMemoryError, yet the library was called: "
                                + Arrays.toString(o.calls()));
            }
            if (v == null) {
                return; // the well-formed call defines which null pointers are by design
            }
            Set<String> nulls = o.nullPointers();
            nulls.removeAll(allowedNulls);
            nulls.removeAll(BY_DESIGN_NULLS);
            if (v.listener()) {
                // A null listener switches its kind off with null function and user pointers.
                nulls.removeIf(n -> n.endsWith(".pfnCallback") || n.endsWith(".pUserParam"));
            }
            if (!nulls.isEmpty()) {
                violation(what, "the library received null " + nulls + ": "
                                + Arrays.toString(o.calls()));
            }
        }

        /**
         * A byte[] field one byte longer than its member, all 'x': no run of 'x' in what the
         * library received may be longer than the member (the copy would have run into the
         * next member, which no sanitizer sees inside a structure), and where the member was
         * filled the call must say so with IllegalArgumentException. Members of a few bytes
         * are left out: a pointer's bytes can hold a short run by chance.
         */
        private static void checkCopyBound(String what, Outcome o, Object[] args, Variant v)
                throws ReflectiveOperationException {
            if (!(resolve(args, v.path()) instanceof byte[] bytes) || bytes.length <= 8) {
                return;
            }
            int member = bytes.length - 1;
            int longest = 0;
            for (RecordedCall c : o.calls()) {
                for (RecordedArg a : c.args) {
                    int run = 0;
                    for (byte b : a.bytes == null ? new byte[0] : a.bytes) {
                        run = b == 'x' ? run + 1 : 0;
                        longest = Math.max(longest, run);
                    }
                }
            }
            if (longest > member) {
                violation(what, longest + " bytes of the array reached the library, the member "
                                + "holds " + member + ": " + Arrays.toString(o.calls()));
            } else if (longest == member && !(o.thrown() instanceof IllegalArgumentException)) {
                violation(what, "cut at the member without IllegalArgumentException, threw "
                                + o.thrown());
            }
        }

        private static void violation(String what, String why) {
            System.out.println("SWEEP violation " + what + ": " + why);
        }
    }

    /** Every bad argument for {@code m}, found on a well-formed argument list. */
    static List<Variant> variants(Method m) throws IllegalAccessException {
        List<Variant> out = new ArrayList<>();
        Object[] args = WellFormed.args(m);
        Class<?>[] types = m.getParameterTypes();
        for (int i = 0; i < args.length; i++) {
            walk(args[i], types[i], new ArrayList<>(List.of(i)), types[i] == Object.class, out);
        }
        return out;
    }

    private static void walk(Object value, Class<?> type, List<Object> path, boolean listener,
            List<Variant> out) throws IllegalAccessException {
        if (type.isPrimitive()) {
            if (type == int.class) {
                out.add(new Variant(Kind.NEGATIVE, path, false));
            }
            return;
        }
        out.add(new Variant(Kind.NULL, path, listener));
        if (type.isArray()) {
            out.add(new Variant(Kind.EMPTY, path, false));
            out.add(new Variant(Kind.OVERSIZED, path, false));
            if (WellFormed.isValueClass(type.getComponentType()) && Array.getLength(value) > 0) {
                walk(Array.get(value, 0), type.getComponentType(), extend(path, 0), false, out);
            }
        } else if (WellFormed.isValueClass(type)) {
            for (Field f : WellFormed.fields(type)) {
                walk(f.get(value), f.getType(), extend(path, f.getName()), false, out);
            }
        }
    }

    private static List<Object> extend(List<Object> path, Object step) {
        List<Object> out = new ArrayList<>(path);
        out.add(step);
        return out;
    }

    /** Puts the variant's bad value in place in a fresh well-formed argument list. */
    static void apply(Object[] args, Variant v) throws ReflectiveOperationException {
        Object container = args;
        List<Object> path = v.path();
        for (int i = 0; i < path.size() - 1; i++) {
            container = step(container, path.get(i));
        }
        Object last = path.get(path.size() - 1);
        Object current = step(container, last);
        Object bad = switch (v.kind()) {
            case NULL -> null;
            case NEGATIVE -> -1;
            case EMPTY -> Array.newInstance(current.getClass().getComponentType(), 0);
            case OVERSIZED -> oversized(current);
        };
        if (last instanceof Integer index) {
            Array.set(container, index, bad);
        } else {
            container.getClass().getField((String) last).set(container, bad);
        }
    }

    /** The value {@code path} leads to in an argument list. */
    static Object resolve(Object[] args, List<Object> path) throws ReflectiveOperationException {
        Object value = args;
        for (Object s : path) {
            value = step(value, s);
        }
        return value;
    }

    private static Object step(Object container, Object step) throws IllegalAccessException {
        if (step instanceof Integer index) {
            return Array.get(container, index);
        }
        try {
            return container.getClass().getField((String) step).get(container);
        } catch (NoSuchFieldException e) {
            throw new AssertionError(e);
        }
    }

    /**
     * One element longer than the well-formed array: byte arrays filled with non-zero bytes
     * throughout (so that no terminator stops a copy early), record arrays with one more
     * well-formed element.
     */
    private static Object oversized(Object array) {
        Class<?> component = array.getClass().getComponentType();
        int length = Array.getLength(array) + 1;
        if (component == byte.class) {
            byte[] bytes = new byte[length];
            Arrays.fill(bytes, (byte) 'x');
            return bytes;
        }
        Object out = Array.newInstance(component, length);
        for (int i = 0; i < length; i++) {
            Array.set(out, i, WellFormed.of(component));
        }
        return out;
    }
}
