package com.zq.OrvexCore.client;

import com.zq.OrvexCore.Enc_Channel_Info_t;
import com.zq.OrvexCore.GetLinkResource_Responce_t;
import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.Return_Value_Info_t;
import com.zq.OrvexCore.Send_OSDInfo_t;
import com.zq.OrvexCore.ShareVideoInfo;
import com.zq.OrvexCore.Subscribe_Bay_Car_Info_t;
import java.util.ArrayList;
import java.util.List;

/**
 * The platform's auxiliary services: JSON commands to its modules, short messages, video sharing,
 * on-screen text, link resources, NVR channel states, GPS, vehicle bays and people counting.
 */
public final class Services {
    /** The answer buffer of a JSON command, unless the caller gives another size. */
    public static final int DEFAULT_ANSWER_CAPACITY = 64 * 1024;

    /**
     * The least room a JSON command's answer gets, whatever the caller asks for: the library is
     * not told the size of the answer buffer and writes the whole answer (up to this many bytes
     * with its terminator), so a smaller buffer would be overrun in native memory.
     */
    public static final int MINIMUM_ANSWER_CAPACITY = 4096;

    private final OrvexClient c;

    Services(OrvexClient client) {
        this.c = client;
    }

    /**
     * A video shared between users.
     *
     * @param camera the camera
     * @param type live or playback, as the platform numbers it
     * @param subStream whether the sub stream is meant (1) or the main stream (0)
     * @param mobile whether it is meant for a mobile client (1)
     * @param planId the plan it belongs to
     * @param playbackTime where a playback starts (platform time)
     */
    public record SharedVideo(String camera, int type, int subStream, int mobile, long planId,
            long playbackTime) {}

    static List<SharedVideo> sharedVideos(TextCodec t, ShareVideoInfo[] videos) {
        List<SharedVideo> out = new ArrayList<>();
        if (videos != null) {
            for (ShareVideoInfo v : videos) {
                out.add(new SharedVideo(t.get(v.szCameraId), v.nType, v.nSubStream, v.nIsMobile,
                        v.nPlanId, v.nPlaybacktime));
            }
        }
        return List.copyOf(out);
    }

    /** Sends a JSON command to the central management module and returns its answer. */
    public String sendToCms(String json) {
        return sendToCms(json, DEFAULT_ANSWER_CAPACITY);
    }

    /**
     * Sends a JSON command to the central management module and returns its answer, which must
     * fit into {@code answerCapacity} bytes including its terminating zero (at least {@link
     * #MINIMUM_ANSWER_CAPACITY} are offered).
     */
    public String sendToCms(String json, int answerCapacity) {
        byte[] command = c.text.arg(json, "json");
        byte[] answer = new byte[answerRoom(answerCapacity)];
        c.run("ORVEX_SendCammandToCMSByJson",
                () -> IOrvexCore.ORVEX_SendCammandToCMSByJson(c.handle, command, answer,
                        c.timeoutMs));
        return c.text.get(answer);
    }

    /**
     * Sends a JSON command about one camera to the device management module; returns its answer
     * (room as for {@link #sendToCms(String, int)}).
     */
    public String sendToDms(CameraId camera, String json, int answerCapacity) {
        byte[] command = c.text.arg(json, "json");
        byte[] id = c.text.arg(camera.value(), "camera");
        byte[] answer = new byte[answerRoom(answerCapacity)];
        c.run("ORVEX_SendCammandToDMSByJson", () -> IOrvexCore.ORVEX_SendCammandToDMSByJson(
                c.handle, command, id, answer, c.timeoutMs));
        return c.text.get(answer);
    }

    private static int answerRoom(int capacity) {
        if (capacity < 1) {
            throw new IllegalArgumentException("answer capacity must be positive: " + capacity);
        }
        return Math.max(capacity, MINIMUM_ANSWER_CAPACITY);
    }

    /**
     * Sends a general JSON message to a platform module; answers arrive through {@link
     * Events#onJsonMessage}.
     *
     * @param module the module (1 CMS, 2 PCS, 3 DMS, ...)
     * @param transfer the kind of message (0 request, ...)
     */
    public void sendJson(String json, int module, int transfer) {
        byte[] message = c.text.arg(json, "json");
        c.run("ORVEX_GeneralJsonTransport", () -> IOrvexCore.ORVEX_GeneralJsonTransport(
                c.handle, message, module, transfer, c.timeoutMs));
    }

    /** Sends a text message to a group of the short-message service. */
    public void sendMessage(String group, String text) {
        byte[] g = c.text.arg(group, "group");
        byte[] t = c.text.arg(text, "text");
        c.run("ORVEX_SendScsMsg", () -> IOrvexCore.ORVEX_SendScsMsg(c.handle, g, t, c.timeoutMs));
    }

    /** Shares videos with platform users, with a message. */
    public void shareVideos(List<SharedVideo> videos, List<Integer> userIds, String message) {
        ShareVideoInfo[] in = new ShareVideoInfo[videos.size()];
        for (int i = 0; i < in.length; i++) {
            SharedVideo v = videos.get(i);
            in[i] = new ShareVideoInfo();
            c.text.put(v.camera(), in[i].szCameraId, "camera");
            in[i].nType = v.type();
            in[i].nSubStream = v.subStream();
            in[i].nIsMobile = v.mobile();
            in[i].nPlanId = v.planId();
            in[i].nPlaybacktime = v.playbackTime();
        }
        int[] users = userIds.stream().mapToInt(Integer::intValue).toArray();
        byte[] msg = c.text.arg(message, "message");
        c.run("ORVEX_ShareVideo",
                () -> IOrvexCore.ORVEX_ShareVideo(c.handle, in, users, msg, c.timeoutMs));
    }

    /** Shows a text on a device's video (at most 255 bytes). */
    public void sendOsd(DeviceId device, String text) {
        Send_OSDInfo_t in = new Send_OSDInfo_t();
        c.text.put(device.value(), in.szDevId, "device");
        c.text.put(text, in.szMessage, "text");
        c.run("ORVEX_SendOSDInfo", () -> IOrvexCore.ORVEX_SendOSDInfo(c.handle, in, c.timeoutMs));
    }

    /** The platform's link resources, as the XML text it sends. */
    public String linkResources() {
        int len = c.value("ORVEX_QueryLinkResource",
                h -> IOrvexCore.ORVEX_QueryLinkResource(c.handle, h, c.timeoutMs));
        if (len <= 0) {
            return "";
        }
        GetLinkResource_Responce_t in = new GetLinkResource_Responce_t(len);
        c.run("ORVEX_GetLinkResource", () -> IOrvexCore.ORVEX_GetLinkResource(c.handle, in));
        return c.text.get(in.pXmlData);
    }

    /**
     * Asks for the channel states of an NVR; they arrive through {@link Events#onNvrChannelStatus}.
     */
    public void queryNvrChannels(DeviceId nvr) {
        byte[] id = c.text.arg(nvr.value(), "nvr");
        c.run("ORVEX_QueryNVRChnlStatus",
                () -> IOrvexCore.ORVEX_QueryNVRChnlStatus(c.handle, id, c.timeoutMs));
    }

    /** The last GPS states the platform knows, as the XML text it sends. */
    public String lastGpsStatus() {
        int length = c.value("ORVEX_AskForLastGpsStatusXMLStrCount",
                h -> IOrvexCore.ORVEX_AskForLastGpsStatusXMLStrCount(c.handle, h, c.timeoutMs));
        return c.textOfLength(length, "ORVEX_AskForLastGpsStatusXMLStr",
                (buf, len) -> IOrvexCore.ORVEX_AskForLastGpsStatusXMLStr(c.handle, buf, len));
    }

    /**
     * Subscribes to ({@code subscribe} true) or cancels the vehicle records of bay cameras; the
     * records arrive through {@link Events#onBayVehicle}.
     */
    public void subscribeBayVehicles(List<CameraId> cameras, boolean subscribe) {
        Subscribe_Bay_Car_Info_t in = new Subscribe_Bay_Car_Info_t(cameras.size());
        in.nSubscribeFlag = subscribe ? 1 : 0;
        for (int i = 0; i < cameras.size(); i++) {
            Enc_Channel_Info_t ch = in.pEncChannelnfo[i];
            c.text.put(cameras.get(i).value(), ch.szId, "camera");
        }
        c.run("ORVEX_SubscribeBayCarInfo",
                () -> IOrvexCore.ORVEX_SubscribeBayCarInfo(c.handle, in, c.timeoutMs));
    }

    /**
     * Starts a people-counting query of a camera over a span; close the returned query to end it.
     *
     * @param start start of the span (platform time, seconds)
     * @param end end of the span
     * @param granularity the length of one row's interval, as the platform numbers it
     */
    public PeopleCount countPeople(CameraId camera, int start, int end, int granularity) {
        byte[] id = c.text.arg(camera.value(), "camera");
        Return_Value_Info_t seq = new Return_Value_Info_t();
        Return_Value_Info_t total = new Return_Value_Info_t();
        c.run("ORVEX_QueryPersonCount", () -> IOrvexCore.ORVEX_QueryPersonCount(
                c.handle, id, seq, total, start, end, granularity, c.timeoutMs));
        return new PeopleCount(c, camera, id, seq.nReturnValue, total.nReturnValue);
    }
}
