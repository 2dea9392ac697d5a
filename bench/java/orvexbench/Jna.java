package orvexbench;

import com.sun.jna.Callback;
import com.sun.jna.CallbackThreadInitializer;
import com.sun.jna.Library;
import com.sun.jna.Native;
import com.sun.jna.Pointer;
import com.sun.jna.Structure;
import com.zq.OrvexCore.MediaDataCallback;

/** The same client-library functions bound the way Java teams bind C libraries with JNA. */
final class Jna {
    private Jna() {}

    /** Direct mapping: JNA registers these natives against the stand-in's functions. */
    static final class Direct {
        static {
            Native.register("ORVEX_Core");
        }

        private Direct() {}

        static native int ORVEX_CloseRealStreamBySeq(int handle, int seq, int timeout);
    }

    /** Interface mapping of the same functions. */
    interface Core extends Library {
        Core INSTANCE = Native.load("ORVEX_Core", Core.class);

        int ORVEX_CloseRealStreamBySeq(int handle, int seq, int timeout);

        int ORVEX_PtzDirection(int handle, PtzDirect info, int timeout);

        int ORVEX_GetDGroupInfo(int handle, GetDepInfo info);
    }

    /** Ptz_Direct_Info_t, passed by reference. */
    @Structure.FieldOrder({"szCameraId", "nDirect", "nStep", "bStop"})
    public static class PtzDirect extends Structure {
        public byte[] szCameraId = new byte[64];
        public int nDirect;
        public int nStep;
        public byte bStop;
    }

    /** Get_Dep_Info_t with its record arrays as pointers. */
    @Structure.FieldOrder({"szCoding", "nDepCount", "pDepInfo", "nDeviceCount", "pDeviceInfo"})
    public static class GetDepInfo extends Structure {
        public byte[] szCoding = new byte[128];
        public int nDepCount;
        public Pointer pDepInfo;
        public int nDeviceCount;
        public Pointer pDeviceInfo;
    }

    /** Device_Info_Ex_t. */
    @Structure.FieldOrder({"szId", "szName", "nFactory", "szModel", "szUser", "szPassword",
        "szIP", "nDevType", "nPort", "szLoginType", "szRegID", "nProxyPort", "nUnitNum",
        "nStatus", "szCN", "szSN", "nRight", "szDevIP", "nDevPort", "dev_Maintainer",
        "dev_MaintainerPh", "dev_Location", "desc", "nEncChannelChildCount",
        "iAlarmInChannelcount", "nSort", "szCallNum"})
    public static class DeviceInfoEx extends Structure {
        public byte[] szId = new byte[64];
        public byte[] szName = new byte[256];
        public int nFactory;
        public int szModel;
        public byte[] szUser = new byte[64];
        public byte[] szPassword = new byte[64];
        public byte[] szIP = new byte[48];
        public int nDevType;
        public int nPort;
        public int szLoginType;
        public byte[] szRegID = new byte[64];
        public int nProxyPort;
        public int nUnitNum;
        public int nStatus;
        public byte[] szCN = new byte[64];
        public byte[] szSN = new byte[64];
        public long nRight;
        public byte[] szDevIP = new byte[48];
        public int nDevPort;
        public byte[] dev_Maintainer = new byte[64];
        public byte[] dev_MaintainerPh = new byte[64];
        public byte[] dev_Location = new byte[256];
        public byte[] desc = new byte[256];
        public int nEncChannelChildCount;
        public int iAlarmInChannelcount;
        public int nSort;
        public byte[] szCallNum = new byte[48];
    }

    /** The media callback as JNA delivers it: pointers, which Java copies into arrays. */
    public interface MediaCallbackC extends Callback {
        int invoke(int handle, int seq, int mediaType, Pointer nodeId, int paramVal, Pointer data,
                int dataLen, Pointer user);
    }

    /** The driver of the benchmark library, called through JNA with a JNA callback. */
    interface Driver extends Library {
        long orvexbench_drive(Callback fn, Pointer user, int events, int dataLen, int threads,
                long[] cpuNanos);
    }

    /**
     * A JNA callback that hands each event to {@code listener} with the same arrays the bridge
     * makes; with {@code keptAttached}, its threads stay attached between events.
     */
    static MediaCallbackC media(MediaDataCallback listener, boolean keptAttached) {
        MediaCallbackC callback = (h, seq, type, node, param, data, len, user) -> {
            byte[] nodeId = node.getByteArray(0, (int) node.indexOf(0, (byte) 0));
            listener.invoke(h, seq, type, nodeId, param, data.getByteArray(0, len), len);
            return 0;
        };
        if (keptAttached) {
            Native.setCallbackThreadInitializer(callback,
                    new CallbackThreadInitializer(true, false, "jna-kept"));
        }
        return callback;
    }
}
