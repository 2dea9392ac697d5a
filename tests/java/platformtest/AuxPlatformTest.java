package platformtest;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNull;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.zq.OrvexCore.Enc_Channel_Info_t;
import com.zq.OrvexCore.GetLinkResource_Responce_t;
import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.ORVEXGeneralJsonTransportCallback;
import com.zq.OrvexCore.ORVEXGetBayCarInfoCallbackEx;
import com.zq.OrvexCore.ORVEXNVRChnlStatusCallback;
import com.zq.OrvexCore.ORVEXPecDoorStarusCallBack;
import com.zq.OrvexCore.ORVEXShareVideoCallback;
import com.zq.OrvexCore.Person_Count_Info_t;
import com.zq.OrvexCore.Return_Value_Info_t;
import com.zq.OrvexCore.Send_OSDInfo_t;
import com.zq.OrvexCore.SetDoorCmd_Request_t;
import com.zq.OrvexCore.ShareVideoInfo;
import com.zq.OrvexCore.Subscribe_Bay_Car_Info_t;
import java.util.ArrayList;
import java.util.List;
import java.util.concurrent.BlockingQueue;
import java.util.concurrent.LinkedBlockingQueue;
import org.junit.jupiter.api.Tag;
import org.junit.jupiter.api.Test;
import platformtest.Platform.User;

/**
 * JSON commands, messages, sharing, on-screen texts, doors, link resources, NVR channel states,
 * GPS, vehicle bays and people counting of the simulated platform, through the bridge.
 */
class AuxPlatformTest extends OnPlatform {
    @Test
    void jsonCommandsAreAnsweredInTheCallersArray() {
        try (User viewer = User.viewer()) {
            String ping = viewer.cms("{\"cmd\":\"ping\"}");
            assertTrue(ping.startsWith("{\"cmd\":\"ping\",\"result\":0,"), ping);

            byte[] answer = new byte[4096];
            assertEquals(0, IOrvexCore.ORVEX_SendCammandToDMSByJson(viewer.handle,
                    Platform.text("{\"cmd\":\"getChannel\"}"), Platform.text("ipc-gate-01-cam01"),
                    answer, 3000));
            String channel = Platform.string(answer);
            assertTrue(channel.contains("\"name\":\"Gate dome camera 1\""), channel);

            assertEquals(1016, IOrvexCore.ORVEX_SendCammandToCMSByJson(viewer.handle,
                    Platform.text("{\"cmd\":\"format\"}"), answer, 3000));
            assertEquals("{\"cmd\":\"format\",\"error\":\"unknown command\",\"result\":1016}",
                    Platform.string(answer));
        }
    }

    @Test
    void generalJsonRequestsAreAnsweredThroughTheListener() throws InterruptedException {
        try (User op = User.operator()) {
            BlockingQueue<String> answers = new LinkedBlockingQueue<>();
            assertEquals(0, IOrvexCore.ORVEX_SetGeneralJsonTransportCallback(op.handle,
                    (ORVEXGeneralJsonTransportCallback) (h, json) -> answers.add(new String(json))));
            assertEquals(0, IOrvexCore.ORVEX_GeneralJsonTransport(op.handle,
                    Platform.text("{\"cmd\":\"getDevice\",\"id\":\"mdvr-car-07\"}"), 1, 0, 3000));
            String answer = Platform.next(answers);
            assertTrue(answer.contains("\"name\":\"Patrol car 7\""), answer);
            assertTrue(answer.contains("\"tranType\":1"), answer);
        }
    }

    @Test
    void messagesAndOnScreenTextsStayOnThePlatform() {
        try (User op = User.operator()) {
            assertEquals(0, IOrvexCore.ORVEX_SendScsMsg(op.handle, Platform.text("330300"),
                    Platform.text("Crossing 4 blocked"), 3000));
            String listed = op.cms("{\"cmd\":\"listScsMessages\",\"group\":\"330300\"}");
            assertTrue(listed.contains("\"text\":\"Crossing 4 blocked\""), listed);

            Send_OSDInfo_t osd = new Send_OSDInfo_t();
            osd.szDevId = Platform.fixed("nvs-traffic-01-cam02", 63);
            osd.szMessage = Platform.fixed("Lane closed", 255);
            assertEquals(0, IOrvexCore.ORVEX_SendOSDInfo(op.handle, osd, 3000));
            String shown = op.cms("{\"cmd\":\"getOsd\",\"id\":\"nvs-traffic-01-cam02\"}");
            assertTrue(shown.contains("\"text\":\"Lane closed\""), shown);
        }
    }

    @Test
    void sharedVideoReachesTheOtherUserButNotTheSender() throws InterruptedException {
        try (User admin = User.admin();
                User op = User.operator()) {
            BlockingQueue<Object[]> atAdmin = new LinkedBlockingQueue<>();
            BlockingQueue<Object[]> atOp = new LinkedBlockingQueue<>();
            for (Object[] at : new Object[][] {{admin, atAdmin}, {op, atOp}}) {
                @SuppressWarnings("unchecked")
                BlockingQueue<Object[]> q = (BlockingQueue<Object[]>) at[1];
                assertEquals(0, IOrvexCore.ORVEX_SetShareVideoCallback(((User) at[0]).handle,
                        (ORVEXShareVideoCallback) (h, videos, msg, src, name) ->
                                q.add(new Object[] {videos, new String(msg), src, new String(name)})));
            }
            ShareVideoInfo video = new ShareVideoInfo();
            video.szCameraId = Platform.fixed("dvr-station-01-cam03", 64);
            video.nType = 2;
            video.nPlaybacktime = 1767240000L;
            assertEquals(0, IOrvexCore.ORVEX_ShareVideo(admin.handle, new ShareVideoInfo[] {video},
                    new int[] {1, 2}, Platform.text("Check the platform"), 3000));

            Object[] shared = Platform.next(atOp);
            ShareVideoInfo[] videos = (ShareVideoInfo[]) shared[0];
            assertEquals(1, videos.length);
            assertArrayEquals(video.szCameraId, videos[0].szCameraId);
            assertEquals(2, videos[0].nType);
            assertEquals(1767240000L, videos[0].nPlaybacktime);
            assertEquals("Check the platform", shared[1]);
            assertEquals(1, shared[2]);
            assertEquals("admin", shared[3]);
            // A session's events arrive in order: once the admin hears a later door report, a
            // share to the admin would have come first.
            BlockingQueue<String> doors = new LinkedBlockingQueue<>();
            assertEquals(0, IOrvexCore.ORVEX_SetPecDoorStatusCallback(admin.handle,
                    (ORVEXPecDoorStarusCallBack) (h, id, status, time) -> doors.add("door")));
            SetDoorCmd_Request_t door = new SetDoorCmd_Request_t();
            door.szCameraId = Platform.fixed("door-02", 63);
            assertEquals(0, IOrvexCore.ORVEX_SetDoorCmd(admin.handle, door, 500));
            Platform.next(doors);
            assertNull(atAdmin.poll());
        }
    }

    @Test
    void doorCommandsAreReportedToEverySession() throws InterruptedException {
        try (User op = User.operator();
                User viewer = User.viewer()) {
            BlockingQueue<String> atViewer = new LinkedBlockingQueue<>();
            assertEquals(0, IOrvexCore.ORVEX_SetPecDoorStatusCallback(viewer.handle,
                    (ORVEXPecDoorStarusCallBack) (h, id, status, time) ->
                            atViewer.add(new String(id) + "=" + status)));
            SetDoorCmd_Request_t open = new SetDoorCmd_Request_t();
            open.szCameraId = Platform.fixed("door-01", 63);
            open.cmd = 5;
            assertEquals(0, IOrvexCore.ORVEX_SetDoorCmd(op.handle, open, 500));
            assertEquals("door-01=1", Platform.next(atViewer));
            open.cmd = 6;
            assertEquals(0, IOrvexCore.ORVEX_SetDoorCmd(op.handle, open, 500));
            assertEquals("door-01=0", Platform.next(atViewer));
            assertEquals(1007, IOrvexCore.ORVEX_SetDoorCmd(viewer.handle, open, 500));
        }
    }

    @Test
    void linkResourcesAndGpsPositionsAreXmlOfTheAnnouncedLength() {
        try (User viewer = User.viewer()) {
            Return_Value_Info_t length = new Return_Value_Info_t();
            assertEquals(0, IOrvexCore.ORVEX_QueryLinkResource(viewer.handle, length, 3000));
            GetLinkResource_Responce_t links = new GetLinkResource_Responce_t(length.nReturnValue);
            assertEquals(0, IOrvexCore.ORVEX_GetLinkResource(viewer.handle, links));
            String xml = Platform.string(links.pXmlData);
            assertEquals(length.nReturnValue, xml.length() + 1);
            assertTrue(xml.contains("<Camera id=\"ipc-traffic-02-cam01\""), xml);

            assertEquals(0, IOrvexCore.ORVEX_AskForLastGpsStatusXMLStrCount(
                    viewer.handle, length, 3000));
            byte[] gps = new byte[length.nReturnValue];
            assertEquals(0, IOrvexCore.ORVEX_AskForLastGpsStatusXMLStr(
                    viewer.handle, gps, gps.length));
            xml = Platform.string(gps);
            assertEquals(gps.length, xml.length() + 1);
            assertTrue(xml.contains("deviceId=\"mdvr-car-07\""), xml);
            assertTrue(xml.contains("speed=\"42.5\""), xml);
        }
    }

    @Test
    void nvrChannelStatesArriveForEachChannel() throws InterruptedException {
        try (User viewer = User.viewer()) {
            BlockingQueue<String> states = new LinkedBlockingQueue<>();
            assertEquals(0, IOrvexCore.ORVEX_SetORVEXNVRChnlStatusCallback(viewer.handle,
                    (ORVEXNVRChnlStatusCallback) (h, id, status) ->
                            states.add(new String(id) + "=" + status)));
            assertEquals(0, IOrvexCore.ORVEX_QueryNVRChnlStatus(
                    viewer.handle, Platform.text("dvr-station-01"), 3000));
            List<String> heard = new ArrayList<>();
            for (int k = 0; k < 4; k++) {
                heard.add(Platform.next(states));
            }
            assertEquals(List.of("dvr-station-01-cam01=1", "dvr-station-01-cam02=1",
                    "dvr-station-01-cam03=1", "dvr-station-01-cam04=1"), heard);
        }
    }

    @Test
    void peopleCountsArePagedFromTheQuery() {
        try (User viewer = User.viewer()) {
            byte[] camera = Platform.text("ipc-gate-01-cam01");
            Return_Value_Info_t seq = new Return_Value_Info_t();
            Return_Value_Info_t total = new Return_Value_Info_t();
            assertEquals(0, IOrvexCore.ORVEX_QueryPersonCount(viewer.handle, camera, seq, total,
                    1767225600, 1767312000, 0, 3000));
            assertEquals(4, total.nReturnValue);
            Person_Count_Info_t[] rows = new Person_Count_Info_t[3];
            assertEquals(0, IOrvexCore.ORVEX_QueryPersonCountBypage(
                    viewer.handle, camera, seq.nReturnValue, 2, 3, rows, 3000));
            assertEquals(1767225600 + 10 * 3600, rows[0].nStartTime);
            assertEquals(90, rows[0].nEnteredSubTotal);
            assertEquals("Gate flow", Platform.string(rows[0].szRuleName));
            assertEquals(95, rows[1].nEnteredSubTotal);
            assertEquals(0, rows[2].nEnteredSubTotal);  // past the last row
            assertEquals(0, IOrvexCore.ORVEX_StopQueryPersonCount(
                    viewer.handle, camera, seq.nReturnValue, 3000));
            assertEquals(1013, IOrvexCore.ORVEX_StopQueryPersonCount(
                    viewer.handle, camera, seq.nReturnValue, 3000));
        }
    }

    /** Bay records need a JVM without -Xcheck:jni (see README, "How the tests run"). */
    @Test
    @Tag("unchecked-jni")
    void baySubscriptionDeliversVehicleRecords() throws InterruptedException {
        try (User op = User.operator()) {
            BlockingQueue<String> records = new LinkedBlockingQueue<>();
            assertEquals(0, IOrvexCore.ORVEX_SetORVEXGetBayCarInfoCallbackEx(op.handle,
                    (ORVEXGetBayCarInfoCallbackEx) (h, dev, devLen, chnNo, chn, chnLen, devName,
                            devNameLen, chnName, chnNameLen, plate, plateLen, plateType,
                            plateColour, speed, carType, carColour, carLen, direction, lane,
                            captured, pictures, needStore, stored, org, orgLen, optOrg, optOrgLen,
                            user, userLen, note, noteLen, img0, img0Len, img1, img1Len, img2,
                            img2Len, img3, img3Len, img4, img4Len, img5, img5Len, imgPlate,
                            imgPlateLen, logo, left, right, top, bottom) ->
                            records.add(new String(chn) + " " + new String(plate) + " "
                                    + new String(user) + " " + plateLen)));
            Subscribe_Bay_Car_Info_t subscribe = new Subscribe_Bay_Car_Info_t(1);
            subscribe.nSubscribeFlag = 1;
            Enc_Channel_Info_t channel = subscribe.pEncChannelnfo[0];
            channel.szId = Platform.fixed("ipc-traffic-02-cam01", 63);
            assertEquals(0, IOrvexCore.ORVEX_SubscribeBayCarInfo(op.handle, subscribe, 3000));
            assertEquals("ipc-traffic-02-cam01 ZJ-A1234 operator 8", Platform.next(records));
            subscribe.nSubscribeFlag = 0;
            assertEquals(0, IOrvexCore.ORVEX_SubscribeBayCarInfo(op.handle, subscribe, 3000));
        }
    }
}
