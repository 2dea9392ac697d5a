package clientplatformtest;

import static org.junit.jupiter.api.Assertions.assertEquals;

import com.zq.OrvexCore.client.CameraId;
import com.zq.OrvexCore.client.Events;
import com.zq.OrvexCore.client.OrvexClient;
import com.zq.OrvexCore.client.OrvexEvent;
import java.util.List;
import java.util.concurrent.BlockingQueue;
import java.util.concurrent.LinkedBlockingQueue;
import org.junit.jupiter.api.Tag;
import org.junit.jupiter.api.Test;

/** Vehicle records of a bay camera through the API; they need a JVM without -Xcheck:jni. */
@Tag("platform")
@Tag("unchecked-jni")
@SuppressWarnings("try")
class BayOnPlatformTest {
    @Test
    void aSubscribedBayCameraReportsAVehicle() throws Exception {
        List<CameraId> bay = List.of(new CameraId("ipc-traffic-02-cam01"));
        BlockingQueue<OrvexEvent.BayVehicle> vehicles = new LinkedBlockingQueue<>();
        try (OrvexClient op = Site.operator();
                Events.Registration on = op.events().onBayVehicle(vehicles::add)) {
            op.services().subscribeBayVehicles(bay, true);
            try {
                OrvexEvent.BayVehicle v = Site.next(vehicles);
                assertEquals("ipc-traffic-02-cam01", v.channel());
                assertEquals("ZJ-A1234", v.plate());
            } finally {
                op.services().subscribeBayVehicles(bay, false);
            }
        }
    }
}
