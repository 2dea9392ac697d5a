package platformtest;

import org.junit.jupiter.api.BeforeAll;
import org.junit.jupiter.api.Tag;
import simctl.SimControl;

/**
 * Tests of the simulated platform that also use the test control library (to read what the
 * stand-in received, or to fire events): loading it switches the stand-in to scripted answers,
 * so the platform is switched back on. The platform's tests have a JVM of their own, where
 * nothing needs scripted answers.
 */
@Tag(Platform.TAG)
abstract class OnPlatform {
    @BeforeAll
    static void platform() {
        SimControl.usePlatform(true);
    }
}
