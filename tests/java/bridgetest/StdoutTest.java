package bridgetest;

import static org.junit.jupiter.api.Assertions.assertEquals;

import com.zq.OrvexCore.IOrvexCore;
import org.junit.jupiter.api.Test;

/**
 * The bridge's standard-output lines, read from a JVM of its own so that nothing else writes
 * there (under -Xcheck:jni, any JNI warning would show up in the same stream and fail the test).
 */
class StdoutTest {
    /** Runs in the child JVM. */
    public static final class Child {
        public static void main(String[] args) {
            IOrvexCore.ORVEX_SetLog(1, CRecord.ascii("abc"));
            IOrvexCore.ORVEX_SetLog(1, new byte[0]);
            IOrvexCore.ORVEX_SetLog(1, null);
            IOrvexCore.ORVEX_StartMonitor(1, CRecord.ascii("m1"));
            IOrvexCore.ORVEX_StartMonitor(1, new byte[0]);
            IOrvexCore.ORVEX_StartMonitor(1, null);
        }
    }

    @Test
    void loadAndFileNameLinesAreExactlyTheseAndNothingElse() throws Exception {
        assertEquals("g_jvm = vm\n"
                        + "###### ddd: ORVEX_SetLog(abc)"
                        + "###### ddd: ORVEX_SetLog env->GetArrayLength(jbFileName) <= 0"
                        + "###### ddd: ORVEX_StartMonitor(m1)"
                        + "###### ddd: ORVEX_StartMonitor env->GetArrayLength(jbFileName) <= 0",
                ChildJvm.run(Child.class));
    }
}
