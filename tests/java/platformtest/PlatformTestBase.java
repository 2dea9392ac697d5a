package platformtest;

import org.junit.jupiter.api.AfterEach;
import org.junit.jupiter.api.BeforeEach;
import simctl.SimControl;

/**
 * End-to-end tests of the simulated platform run in the same JVM as the bridge tests, which load
 * the test control library and so switch the stand-in to scripted answers: each test switches
 * the platform on, and back off for the tests that follow.
 */
abstract class PlatformTestBase {
    @BeforeEach
    void platformOn() {
        SimControl.usePlatform(true);
    }

    @AfterEach
    void platformOff() {
        SimControl.usePlatform(false);
    }
}
