package bridgetest;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotNull;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.OrvexText;
import java.lang.reflect.Field;
import java.lang.reflect.Method;
import java.lang.reflect.Modifier;
import java.nio.charset.StandardCharsets;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.List;
import java.util.jar.JarFile;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.CsvSource;

/** The Java classes the bridge looks fields and methods up in, by name and JNI signature. */
class JavaSurfaceTest {
    private static List<Class<?>> apiClasses() throws Exception {
        Path jar = Path.of(IOrvexCore.class.getProtectionDomain().getCodeSource().getLocation().toURI());
        List<Class<?>> out = new ArrayList<>();
        try (JarFile f = new JarFile(jar.toFile())) {
            for (var e : (Iterable<java.util.jar.JarEntry>) f.stream()::iterator) {
                String n = e.getName();
                // The client API shares the jar but is not read by the bridge.
                if (n.endsWith(".class") && !n.contains("$") && !n.startsWith("com/zq/OrvexCore/client/")) {
                    out.add(Class.forName(n.substring(0, n.length() - 6).replace('/', '.'), false,
                            JavaSurfaceTest.class.getClassLoader()));
                }
            }
        }
        return out;
    }

    @Test
    void everyValueObjectIsWellFormedWhenDefaultConstructed() throws Exception {
        int checked = 0;
        for (Class<?> c : apiClasses()) {
            if (c.isInterface() || c == IOrvexCore.class || c == OrvexText.class) {
                continue;
            }
            Object o = c.getConstructor().newInstance();
            for (Field f : c.getFields()) {
                if (!Modifier.isStatic(f.getModifiers()) && f.getType().isArray()) {
                    assertNotNull(f.get(o), c.getSimpleName() + "." + f.getName());
                }
            }
            checked++;
        }
        assertTrue(checked >= 60, "value classes found: " + checked);
    }

    /** Arrays the bridge writes a fixed number of bytes into, at their C members' sizes. */
    @ParameterizedTest(name = "{0}.{1}")
    @CsvSource({"ShareVideoInfo, szCameraId, 64", "Ptz_Single_Prepoint_Info_t, szName, 32",
            "orvex_AHostDefenceStatus_t, szNodeID, 64", "AlarmSchemeInfo_t, schemeName, 256",
            "AlarmSchemeInfo_t, desc, 512", "Person_Count_Info_t, szRuleName, 32",
            "UserDataChange_t, szMsg1, 3072", "UserDataChange_t, szMsg2, 3072",
            "Return_Value_ByteArray_t, szCodeID, 128", "Device_Info_Ex_t, dev_Location, 256",
            "Device_Info_Ex_t, szCallNum, 48", "Dep_Info_t, szCoding, 128",
            "Dep_Info_t, szDepName, 256", "Dep_Info_Ex_t, szMemo, 1024",
            "Config_Emap_Addr_Info_t, szIP, 48", "ORVEX_UserInfo_t, szCodeName, 256",
            "Login_Info_t, szPhoneNum, 48", "TvWall.TvWall_Screen_Info_t, szDecoderId, 64"})
    void fixedArraysHaveTheirMembersSize(String cls, String field, int size) throws Exception {
        Class<?> c = Class.forName("com.zq.OrvexCore." + cls);
        byte[] b = (byte[]) c.getField(field).get(c.getConstructor().newInstance());
        assertEquals(size, b.length);
    }

    private static String descriptor(Class<?> t) {
        if (t.isArray()) {
            return "[" + descriptor(t.getComponentType());
        }
        if (t == int.class) {
            return "I";
        }
        if (t == long.class) {
            return "J";
        }
        if (t == void.class) {
            return "V";
        }
        if (t == byte.class) {
            return "B";
        }
        return "L" + t.getName().replace('.', '/') + ";";
    }

    @ParameterizedTest(name = "{0}")
    @CsvSource({"ORVEXStatusCallback, (II)V", "MediaDataCallback, (III[BI[BI)V",
            "ORVEXDeviceChangeCallback, (II[B[B[B)V", "ORVEXDevStatusCallback, (I[BI)V",
            "ORVEXAlarmCallback, (I[BI[B[B[B[B[BIIIJ[BI[BI)V",
            "ORVEXTalkParamCallback, (IIIIII)V", "ORVEXRemoteDeviceSnapCallback, (I[B[B)V",
            "ORVEXVideoAlarmHostStatusCallback, (I[BII)V",
            "ORVEXNetAlarmHostStatusCallback, (I[BIII)V",
            "ORVEXBroadcastReportStatusCallback, (I[BIJI)V",
            "ORVEXGeneralJsonTransportCallback, (I[B)V", "ORVEXNVRChnlStatusCallback, (I[BI)V",
            "ORVEXPecDoorStarusCallBack, (I[BII)V",
            "ORVEXShareVideoCallback, (I[Lcom/zq/OrvexCore/ShareVideoInfo;[BI[B)V",
            "ORVEXGetBayCarInfoCallbackEx, "
                    + "(I[BII[BI[BI[BI[BIIIIIIIIIJJII[BI[BI[BI[BI[BI[BI[BI[BI[BI[BI[BIIIIII)V",
            "ORVEXDataChangeCallback, (ILcom/zq/OrvexCore/UserDataChange_t;)V"})
    void listenersDeclareTheInvokeSignatureOfTheirKind(String name, String signature)
            throws Exception {
        Method[] methods = Class.forName("com.zq.OrvexCore." + name).getDeclaredMethods();
        assertEquals(1, methods.length);
        StringBuilder d = new StringBuilder("(");
        for (Class<?> p : methods[0].getParameterTypes()) {
            d.append(descriptor(p));
        }
        d.append(')').append(descriptor(methods[0].getReturnType()));
        assertEquals("invoke", methods[0].getName());
        assertEquals(signature, d.toString());
    }

    @Test
    void textHelpersPadTerminateAndRefuseWhatDoesNotFit() {
        byte[] fixed = OrvexText.toFixed("Zoë", 6, StandardCharsets.UTF_8);
        assertArrayEquals(new byte[] {'Z', 'o', (byte) 0xC3, (byte) 0xAB, 0, 0}, fixed);
        assertEquals("Zoë", OrvexText.fromFixed(fixed, StandardCharsets.UTF_8));
        assertThrows(IllegalArgumentException.class,
                () -> OrvexText.toFixed("Zoë", 4, StandardCharsets.UTF_8));

        byte[] dst = CRecord.ascii("old-text");
        OrvexText.copyInto("ab", dst, StandardCharsets.US_ASCII);
        assertArrayEquals(new byte[] {'a', 'b', 0, 0, 0, 0, 0, 0}, dst);
        assertThrows(IllegalArgumentException.class,
                () -> OrvexText.copyInto("12345678", dst, StandardCharsets.US_ASCII));

        assertEquals("abc", OrvexText.fromFixed(CRecord.ascii("abc"), StandardCharsets.US_ASCII));
        assertEquals("a\0b", OrvexText.fromBytes(CRecord.ascii("a\0b"), StandardCharsets.US_ASCII));
    }
}
