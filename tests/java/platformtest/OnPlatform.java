package platformtest;

import org.junit.jupiter.api.AfterAll;
import org.junit.jupiter.api.BeforeAll;
import simctl.SimControl;

/**
 * Tests of the simulated platform: unscripted calls are answered by the site while they run, and
 * by nobody again afterwards, as the other tests of the JVM expect.
 */
abstract class OnPlatform {
    @BeforeAll
    static void platform() {
        SimControl.usePlatform(true);
    }

    @AfterAll
    static void scriptedAgain() {
        SimControl.usePlatform(false);
    }
}
