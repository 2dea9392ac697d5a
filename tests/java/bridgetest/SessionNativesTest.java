package bridgetest;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNull;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.zq.OrvexCore.Config_Emap_Addr_Info_t;
import com.zq.OrvexCore.GetUserOrgInfo;
import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.Login_Info_t;
import com.zq.OrvexCore.ORVEX_UserInfo_t;
import com.zq.OrvexCore.Return_Value_Info_t;
import java.util.Arrays;
import java.util.function.BiFunction;
import java.util.stream.Stream;
import org.junit.jupiter.api.BeforeEach;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.Arguments;
import org.junit.jupiter.params.provider.MethodSource;
import simctl.RecordedCall;
import simctl.SimControl;
import simctl.Write;

/**
 * The instance, login and user account natives, as the client library sees their calls and as
 * Java sees the results.
 */
class SessionNativesTest {
    @BeforeEach
    void resetStandIn() {
        SimControl.reset();
    }

    @Test
    void createWritesTheNewHandleOnSuccess() {
        SimControl.script("ORVEX_Create", 0, Write.le32("pnSdkHandle", 0, 0x7A11));
        Return_Value_Info_t holder = new Return_Value_Info_t();
        holder.nReturnValue = -5;

        assertEquals(0, IOrvexCore.ORVEX_Create(1, holder));

        assertEquals(0x7A11, holder.nReturnValue);
        assertEquals(1, SimControl.last("ORVEX_Create").arg("nType").value);
        assertEquals(0, SimControl.errors().length);
    }

    @Test
    void createPassesAnUnknownTypeAndKeepsTheHolderWhenRefused() {
        SimControl.script("ORVEX_Create", 31, Write.le32("pnSdkHandle", 0, 99));
        Return_Value_Info_t holder = new Return_Value_Info_t();
        holder.nReturnValue = -5;

        assertEquals(31, IOrvexCore.ORVEX_Create(77, holder));

        assertEquals(-5, holder.nReturnValue);
        assertEquals(77, SimControl.last("ORVEX_Create").arg("nType").value);
    }

    @Test
    void createWithoutHolderThrowsAndCreatesNothing() {
        assertThrows(NullPointerException.class, () -> IOrvexCore.ORVEX_Create(1, null));
        assertEquals(0, SimControl.count("ORVEX_Create"));
    }

    @Test
    void destroyAndCompressTypePassIntegersThroughAndReturnTheLibraryCode() {
        SimControl.script("ORVEX_Destroy", -3);
        assertEquals(-3, IOrvexCore.ORVEX_Destroy(0x12345678));
        assertEquals(0x12345678, SimControl.last("ORVEX_Destroy").arg("nHandle").value);

        SimControl.script("ORVEX_SetCompressType", 1002);
        assertEquals(1002, IOrvexCore.ORVEX_SetCompressType(9, -1));
        RecordedCall call = SimControl.last("ORVEX_SetCompressType");
        assertEquals(9, call.arg("nHandle").value);
        assertEquals(-1, call.arg("nCompressType").value);
    }

    @Test
    void anErrorIsReturnedUntilTheNextSuccessReplacesIt() {
        SimControl.script("ORVEX_SetCompressType", 55);
        assertEquals(55, IOrvexCore.ORVEX_SetCompressType(1, 0));
        assertEquals(1009, IOrvexCore.ORVEX_SetLog(1, null));
        assertEquals(0, IOrvexCore.ORVEX_SetCompressType(1, 0));
    }

    /** ORVEX_SetLog and ORVEX_StartMonitor hand the library a file name the same way. */
    static Stream<Arguments> fileNameMethods() {
        BiFunction<Integer, byte[], Integer> setLog = IOrvexCore::ORVEX_SetLog;
        BiFunction<Integer, byte[], Integer> monitor = IOrvexCore::ORVEX_StartMonitor;
        return Stream.of(Arguments.of("ORVEX_SetLog", setLog),
                Arguments.of("ORVEX_StartMonitor", monitor));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("fileNameMethods")
    void fileNameReachesTheLibraryTerminated(String fn, BiFunction<Integer, byte[], Integer> m) {
        assertEquals(0, m.apply(4, CRecord.ascii("orvex.log1")));

        RecordedCall call = SimControl.last(fn);
        assertEquals(4, call.arg("nHandle").value);
        assertArrayEquals(CRecord.ascii("orvex.log1\0"), call.arg("szFileName").bytes);
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("fileNameMethods")
    void aZeroByteInsideTheNameEndsTheString(String fn, BiFunction<Integer, byte[], Integer> m) {
        assertEquals(0, m.apply(4, CRecord.ascii("abcd\0efgh")));
        assertArrayEquals(CRecord.ascii("abcd\0"), SimControl.last(fn).arg("szFileName").bytes);
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("fileNameMethods")
    void emptyOrMissingNameIsRejectedWithoutCallingTheLibrary(
            String fn, BiFunction<Integer, byte[], Integer> m) {
        assertEquals(1009, m.apply(4, new byte[0]));
        assertEquals(1009, m.apply(4, null));
        assertEquals(0, SimControl.count(fn));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("fileNameMethods")
    void libraryErrorsPassThrough(String fn, BiFunction<Integer, byte[], Integer> m) {
        SimControl.script(fn, -77);
        assertEquals(-77, m.apply(4, CRecord.ascii("x")));
    }

    @Test
    void setLogAsksForDebugLevelAndZeroReserved() {
        IOrvexCore.ORVEX_SetLog(4, CRecord.ascii("a"));
        RecordedCall call = SimControl.last("ORVEX_SetLog");
        assertEquals(2, call.arg("nLevel").value);
        assertEquals(0, call.arg("nReserved1").value);
        assertEquals(0, call.arg("nReserved2").value);
        assertTrue(call.args.length == 5, call.toString());
    }

    // ---- Login and user account

    @Test
    void loginSendsEveryMemberAtItsOffsetAndPhoneNumAsCheckBit() {
        Login_Info_t in = new Login_Info_t();
        in.szIp = CRecord.ascii("10.1.2.3");
        in.nPort = 0x9C40;
        in.szUsername = CRecord.ascii("admin");
        in.szPassword = CRecord.filled(64, 'p');  // a full member: no terminator of its own
        in.nProtocol = 2;
        in.iType = -1;
        in.szPhoneNum = CRecord.ascii("13579");

        assertEquals(0, IOrvexCore.ORVEX_Login(6, in, 3500));

        byte[] expected = new CRecord(332).text(0, "10.1.2.3").i32(48, 0x9C40).text(52, "admin")
                .raw(116, CRecord.filled(64, 'p')).i32(180, 2).i32(184, -1).text(188, "13579")
                .bytes();  // szIMEINo (236) and szPhonetype (284) stay zero
        RecordedCall call = SimControl.last("ORVEX_Login");
        assertArrayEquals(expected, call.arg("pInfo").bytes);
        assertEquals(6, call.arg("nHandle").value);
        assertEquals(3500, call.arg("nTimeout").value);
    }

    @Test
    void loginRefusesANullObjectAndATextLongerThanItsMember() {
        assertThrows(NullPointerException.class, () -> IOrvexCore.ORVEX_Login(6, null, 1));
        Login_Info_t in = new Login_Info_t();
        in.szPhoneNum = new byte[49];
        assertThrows(IllegalArgumentException.class, () -> IOrvexCore.ORVEX_Login(6, in, 1));
        assertEquals(0, SimControl.count("ORVEX_Login"));
    }

    /** Natives returning one integer: the library's out argument, read into the holder. */
    static Stream<Arguments> userIntegers() {
        BiFunction<Integer, Return_Value_Info_t, Integer> id = IOrvexCore::ORVEX_GetUserID;
        BiFunction<Integer, Return_Value_Info_t, Integer> level = IOrvexCore::ORVEX_GetUserLevel;
        return Stream.of(Arguments.of("ORVEX_GetUserID", "pnUserId", id),
                Arguments.of("ORVEX_GetUserLevel", "pnUserLevel", level));
    }

    @ParameterizedTest(name = "{0}")
    @MethodSource("userIntegers")
    void userIntegerReachesTheHolderOnlyOnSuccess(
            String fn, String out, BiFunction<Integer, Return_Value_Info_t, Integer> m) {
        Return_Value_Info_t holder = new Return_Value_Info_t();
        SimControl.script(fn, 0, Write.le32(out, 0, 0x80000007));
        assertEquals(0, m.apply(3, holder));
        assertEquals(0x80000007, holder.nReturnValue);

        SimControl.script(fn, 12, Write.le32(out, 0, 5));
        assertEquals(12, m.apply(3, holder));
        assertEquals(0x80000007, holder.nReturnValue);

        assertThrows(NullPointerException.class, () -> m.apply(3, null));
        assertEquals(2, SimControl.count(fn));
    }

    @Test
    void passwordsArriveTerminatedAndEmptyOnesAsEmptyStrings() {
        assertEquals(0, IOrvexCore.ORVEX_ChangeUserPassword(2, CRecord.ascii("old1"),
                CRecord.ascii("newer2"), 700));
        RecordedCall call = SimControl.last("ORVEX_ChangeUserPassword");
        assertArrayEquals(CRecord.ascii("old1\0"), call.arg("szOldPsw").bytes);
        assertArrayEquals(CRecord.ascii("newer2\0"), call.arg("szNewPsw").bytes);
        assertEquals(700, call.arg("nTimeout").value);

        SimControl.script("ORVEX_ChangeUserPassword", 21);
        assertEquals(21, IOrvexCore.ORVEX_ChangeUserPassword(2, new byte[0], new byte[0], 1));
        call = SimControl.last("ORVEX_ChangeUserPassword");
        assertArrayEquals(new byte[1], call.arg("szOldPsw").bytes);
        assertArrayEquals(new byte[1], call.arg("szNewPsw").bytes);
    }

    @Test
    void aMissingPasswordIsInvalidWithoutAnException() {
        assertEquals(1009, IOrvexCore.ORVEX_ChangeUserPassword(2, null, new byte[1], 1));
        assertEquals(1009, IOrvexCore.ORVEX_ChangeUserPassword(2, new byte[1], null, 1));
        assertEquals(0, SimControl.count("ORVEX_ChangeUserPassword"));
    }

    /** The map address is written on failure too: a failed call leaves the cleared record. */
    static Stream<Arguments> mapAddressResults() {
        return Stream.of(Arguments.of(0, "192.168.9.9", 8080), Arguments.of(77, "", 0));
    }

    @ParameterizedTest(name = "result {0}")
    @MethodSource("mapAddressResults")
    void mapAddressIsWrittenWhateverTheResult(int result, String ip, int port) {
        if (result == 0) {
            SimControl.script("ORVEX_GetMapAddrInfo", 0, Write.bytes("pInfo", 0, CRecord.ascii(ip)),
                    Write.le32("pInfo", 48, port), Write.bytes("pInfo", 47, new byte[] {'#'}));
        } else {
            SimControl.script("ORVEX_GetMapAddrInfo", result);
        }
        Config_Emap_Addr_Info_t info = new Config_Emap_Addr_Info_t();
        Arrays.fill(info.szIP, (byte) 'x');
        info.nPort = -1;

        assertEquals(result, IOrvexCore.ORVEX_GetMapAddrInfo(5, info, 900));

        CRecord expected = new CRecord(48).text(0, ip);
        if (result == 0) {
            expected.text(47, "#");  // all 48 bytes cross, past the terminator too
        }
        assertArrayEquals(expected.bytes(), info.szIP);
        assertEquals(port, info.nPort);
        assertEquals(900, SimControl.last("ORVEX_GetMapAddrInfo").arg("nTimeout").value);
    }

    @Test
    void userInfoTextsCrossAtTheirLengthAndKeepTheOldBytesAfter() {
        SimControl.script("ORVEX_GetUserInfo", 0, Write.bytes("pInfo", 0,
                new CRecord(396).i32(0, 41).i32(4, 3).raw(8, new byte[] {1}).text(9, "AB")
                        .text(137, "Group").bytes()));
        ORVEX_UserInfo_t info = new ORVEX_UserInfo_t();
        Arrays.fill(info.szCoding, (byte) 'z');
        Arrays.fill(info.szCodeName, (byte) 'z');

        assertEquals(0, IOrvexCore.ORVEX_GetUserInfo(5, info, 400));

        assertEquals(41, info.iUserId);
        assertEquals(3, info.iUserLevel);
        assertTrue(info.iUserOperFlag);
        assertArrayEquals(CRecord.ascii("ABzz"), Arrays.copyOf(info.szCoding, 4));
        assertArrayEquals(CRecord.ascii("Groupzz"), Arrays.copyOf(info.szCodeName, 7));
        assertEquals(400, SimControl.last("ORVEX_GetUserInfo").arg("nTimeout").value);
    }

    @Test
    void userInfoIsUntouchedOnFailureAndMissingIsInvalid() {
        SimControl.script("ORVEX_GetUserInfo", 8, Write.le32("pInfo", 0, 41));
        ORVEX_UserInfo_t info = new ORVEX_UserInfo_t();
        info.iUserId = -2;
        assertEquals(8, IOrvexCore.ORVEX_GetUserInfo(5, info, 1));
        assertEquals(-2, info.iUserId);

        assertEquals(1009, IOrvexCore.ORVEX_GetUserInfo(5, null, 1));
        assertEquals(1, SimControl.count("ORVEX_GetUserInfo"));
    }

    /** Length call result, length, second call result, expected field. */
    static Stream<Arguments> orgInfoCases() {
        return Stream.of(Arguments.of(0, 12, 0, "org:{a,b}"), Arguments.of(0, 12, 9, "kept"),
                Arguments.of(0, 0, 0, ""), Arguments.of(4, 12, 0, "kept"));
    }

    @ParameterizedTest(name = "len call {0}, length {1}, text call {2}")
    @MethodSource("orgInfoCases")
    void orgInfoAsksForTheLengthThenReadsTheTextWithTenSeconds(
            int lenResult, int length, int textResult, String expected) {
        SimControl.script("ORVEX_GetUserOrgInfoLen", lenResult, Write.le32("pnLen", 0, length));
        SimControl.script("ORVEX_GetUserOrgInfo", textResult,
                length == 0 ? new Write[0]
                            : new Write[] {Write.bytes("szBuffer", 0, CRecord.ascii("org:{a,b}"))});
        GetUserOrgInfo org = new GetUserOrgInfo();
        org.strUserOrgInfo = "kept";

        int expectedResult = lenResult != 0 ? lenResult : textResult;
        assertEquals(expectedResult, IOrvexCore.ORVEX_GetUserOrgInfo(7, org, 250));

        assertEquals(expected, org.strUserOrgInfo);
        assertEquals(250, SimControl.last("ORVEX_GetUserOrgInfoLen").arg("nTimeout").value);
        if (lenResult != 0) {
            assertEquals(0, SimControl.count("ORVEX_GetUserOrgInfo"));
            return;
        }
        RecordedCall text = SimControl.last("ORVEX_GetUserOrgInfo");
        assertEquals(length, text.arg("nLen").value);
        assertEquals(10000, text.arg("nTimeout").value);
        assertArrayEquals(new byte[length], text.arg("szBuffer").bytes);
    }

    @Test
    void orgInfoRefusesANullObjectAndANegativeLength() {
        assertEquals(1009, IOrvexCore.ORVEX_GetUserOrgInfo(7, null, 1));
        assertEquals(0, SimControl.count("ORVEX_GetUserOrgInfoLen"));

        SimControl.script("ORVEX_GetUserOrgInfoLen", 0, Write.le32("pnLen", 0, -5));
        GetUserOrgInfo org = new GetUserOrgInfo();
        assertThrows(OutOfMemoryError.class, () -> IOrvexCore.ORVEX_GetUserOrgInfo(7, org, 1));
        assertNull(org.strUserOrgInfo);
        assertEquals(0, SimControl.count("ORVEX_GetUserOrgInfo"));
    }

    @Test
    void logoutPassesHandleAndTimeOut() {
        SimControl.script("ORVEX_Logout", 3);
        assertEquals(3, IOrvexCore.ORVEX_Logout(11, 1500));
        RecordedCall call = SimControl.last("ORVEX_Logout");
        assertEquals(11, call.arg("nHandle").value);
        assertEquals(1500, call.arg("nTimeout").value);
    }
}
