package platformtest;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotEquals;
import static org.junit.jupiter.api.Assertions.assertNotSame;
import static org.junit.jupiter.api.Assertions.assertTrue;
import static platformtest.Platform.ADMIN;
import static platformtest.Platform.ADMIN_PASSWORD;
import static platformtest.Platform.TIMEOUT;

import com.zq.OrvexCore.Config_Emap_Addr_Info_t;
import com.zq.OrvexCore.GetUserOrgInfo;
import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.ORVEX_UserInfo_t;
import com.zq.OrvexCore.Return_Value_Info_t;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.HashSet;
import java.util.List;
import java.util.Set;
import java.util.concurrent.ExecutorService;
import java.util.concurrent.Executors;
import java.util.concurrent.Future;
import java.util.concurrent.TimeUnit;
import java.util.function.IntUnaryOperator;
import org.junit.jupiter.api.Tag;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.api.io.TempDir;

/** Instances, login and the user's account on the simulated platform, as a Java user sees them. */
@Tag(Platform.TAG)
class SessionPlatformTest {
    @Test
    void handlesAreDistinctAndPositiveAndEndWithDestroy() {
        Set<Integer> handles = new HashSet<>();
        for (int k = 0; k < 5; k++) {
            int h = Platform.create();
            assertTrue(h > 0, "handle " + h);
            assertTrue(handles.add(h), "handle reused: " + h);
        }
        for (int h : handles) {
            assertEquals(0, IOrvexCore.ORVEX_Destroy(h));
            assertEquals(Platform.UNKNOWN_HANDLE, IOrvexCore.ORVEX_Destroy(h));
            assertEquals(Platform.UNKNOWN_HANDLE, Platform.login(h, ADMIN, ADMIN_PASSWORD));
        }
    }

    @Test
    void anUnknownInstanceTypeIsRefusedAndTheHolderKept() {
        Return_Value_Info_t holder = new Return_Value_Info_t();
        holder.nReturnValue = -5;
        assertEquals(Platform.INVALID_PARAM, IOrvexCore.ORVEX_Create(7, holder));
        assertEquals(-5, holder.nReturnValue);
    }

    @Test
    void loginChecksUserAndPasswordAndReportsEachOutcomeFromAPlatformThread()
            throws InterruptedException {
        int h = Platform.create();
        Platform.StatusEvents events = new Platform.StatusEvents();
        assertEquals(0, IOrvexCore.ORVEX_SetORVEXStatusCallback(h, events));

        assertEquals(Platform.LOGIN_FAIL, Platform.login(h, ADMIN, "wrong"));
        assertEquals(Platform.LOGIN_FAIL, Platform.login(h, "nobody", ADMIN_PASSWORD));
        assertEquals(0, Platform.login(h, ADMIN, ADMIN_PASSWORD));
        assertEquals(Platform.ALREADY_LOGGED_IN, Platform.login(h, ADMIN, ADMIN_PASSWORD));
        assertEquals(0, IOrvexCore.ORVEX_Logout(h, TIMEOUT));
        assertEquals(Platform.NOT_LOGGED_IN, IOrvexCore.ORVEX_Logout(h, TIMEOUT));

        int[] expected = {
            Platform.LOGIN_FAILED, Platform.LOGIN_FAILED, Platform.CONNECTED, Platform.DISCONNECTED
        };
        for (int status : expected) {
            Platform.StatusEvents.Event e = events.next();
            assertEquals(h, e.handle());
            assertEquals(status, e.status());
            assertNotSame(Thread.currentThread(), e.thread());
        }
        assertEquals(0, IOrvexCore.ORVEX_Destroy(h));
        assertEquals(List.of(), events.pending());
    }

    @Test
    void accountQueriesNeedALoginAndAKnownInstance() {
        int h = Platform.create();
        List<IntUnaryOperator> queries = List.of(
                handle -> IOrvexCore.ORVEX_GetUserID(handle, new Return_Value_Info_t()),
                handle -> IOrvexCore.ORVEX_GetUserLevel(handle, new Return_Value_Info_t()),
                handle -> IOrvexCore.ORVEX_GetUserInfo(handle, new ORVEX_UserInfo_t(), TIMEOUT),
                handle -> IOrvexCore.ORVEX_GetUserOrgInfo(handle, new GetUserOrgInfo(), TIMEOUT),
                handle -> IOrvexCore.ORVEX_GetMapAddrInfo(
                        handle, new Config_Emap_Addr_Info_t(), TIMEOUT),
                handle -> IOrvexCore.ORVEX_ChangeUserPassword(
                        handle, Platform.text("a"), Platform.text("b"), TIMEOUT));
        for (IntUnaryOperator query : queries) {
            assertEquals(Platform.NOT_LOGGED_IN, query.applyAsInt(h));
            assertEquals(Platform.UNKNOWN_HANDLE, query.applyAsInt(987654));
        }
        assertEquals(0, IOrvexCore.ORVEX_Destroy(h));
    }

    @Test
    void theAccountIsTheLoggedInUsers() {
        int h = Platform.create();
        assertEquals(0, Platform.login(h, "operator", "operator123"));
        Return_Value_Info_t id = new Return_Value_Info_t();
        Return_Value_Info_t level = new Return_Value_Info_t();
        assertEquals(0, IOrvexCore.ORVEX_GetUserID(h, id));
        assertEquals(0, IOrvexCore.ORVEX_GetUserLevel(h, level));
        ORVEX_UserInfo_t info = new ORVEX_UserInfo_t();
        assertEquals(0, IOrvexCore.ORVEX_GetUserInfo(h, info, TIMEOUT));
        assertEquals(id.nReturnValue, info.iUserId);
        assertEquals(level.nReturnValue, info.iUserLevel);
        assertEquals(2, info.iUserLevel);
        assertTrue(info.iUserOperFlag);
        assertEquals("330100", Platform.string(info.szCoding));
        assertEquals("North district", Platform.string(info.szCodeName));

        GetUserOrgInfo org = new GetUserOrgInfo();
        assertEquals(0, IOrvexCore.ORVEX_GetUserOrgInfo(h, org, TIMEOUT));
        assertTrue(org.strUserOrgInfo.startsWith("<?xml"), org.strUserOrgInfo);
        assertTrue(org.strUserOrgInfo.contains("user=\"operator\""), org.strUserOrgInfo);
        assertTrue(org.strUserOrgInfo.contains("coding=\"330101\""), org.strUserOrgInfo);

        Config_Emap_Addr_Info_t map = new Config_Emap_Addr_Info_t();
        assertEquals(0, IOrvexCore.ORVEX_GetMapAddrInfo(h, map, TIMEOUT));
        assertEquals("127.0.0.1", Platform.string(map.szIP));
        assertEquals(9080, map.nPort);
        Platform.end(h);
    }

    @Test
    void aChangedPasswordHoldsForEveryInstance() {
        int a = Platform.create();
        int b = Platform.create();
        assertEquals(0, Platform.login(a, "viewer", "viewer123"));
        assertEquals(Platform.LOGIN_FAIL, IOrvexCore.ORVEX_ChangeUserPassword(
                a, Platform.text("not-it"), Platform.text("viewer456"), TIMEOUT));
        assertEquals(Platform.INVALID_PARAM, IOrvexCore.ORVEX_ChangeUserPassword(
                a, Platform.text("viewer123"), new byte[0], TIMEOUT));
        assertEquals(0, IOrvexCore.ORVEX_ChangeUserPassword(
                a, Platform.text("viewer123"), Platform.text("viewer456"), TIMEOUT));
        try {
            assertEquals(Platform.LOGIN_FAIL, Platform.login(b, "viewer", "viewer123"));
            assertEquals(0, Platform.login(b, "viewer", "viewer456"));
        } finally {
            assertEquals(0, IOrvexCore.ORVEX_ChangeUserPassword(
                    a, Platform.text("viewer456"), Platform.text("viewer123"), TIMEOUT));
        }
        Platform.end(a);
        Platform.end(b);
    }

    @Test
    void theLogAndTheMonitorRecordTheSession(@TempDir Path dir) throws Exception {
        int h = Platform.create();
        Path log = dir.resolve("orvex.log");
        Path monitor = dir.resolve("monitor.txt");
        assertEquals(0, IOrvexCore.ORVEX_SetLog(h, Platform.text(log.toString())));
        assertEquals(0, IOrvexCore.ORVEX_StartMonitor(h, Platform.text(monitor.toString())));
        assertEquals(Platform.INVALID_PARAM,
                IOrvexCore.ORVEX_SetLog(h, Platform.text(dir.resolve("no/such/dir.log").toString())));
        assertEquals(0, Platform.login(h, ADMIN, ADMIN_PASSWORD));
        assertEquals(0, IOrvexCore.ORVEX_Logout(h, TIMEOUT));
        assertEquals(0, IOrvexCore.ORVEX_Destroy(h));

        String logText = Files.readString(log, StandardCharsets.UTF_8);
        assertTrue(logText.contains("[INFO] logged in as admin"), logText);
        assertTrue(logText.contains("[INFO] logged out"), logText);
        String monitorText = Files.readString(monitor, StandardCharsets.UTF_8);
        assertTrue(monitorText.contains("instance " + h + ": monitor started"), monitorText);
        assertTrue(monitorText.contains("instance " + h + ": logged in as admin"), monitorText);
    }

    @Test
    void manyThreadsRunSessionsAtOnceAndSeeTheSameSite() throws Exception {
        int reference = Platform.sessionWithTree();
        Tree expected = Tree.walk(reference);
        Platform.end(reference);
        ExecutorService pool = Executors.newFixedThreadPool(4);
        try {
            List<Future<Tree>> walks = new ArrayList<>();
            for (int k = 0; k < 12; k++) {
                walks.add(pool.submit(() -> {
                    int h = Platform.sessionWithTree();
                    Tree tree = Tree.walk(h);
                    Platform.end(h);
                    return tree;
                }));
            }
            for (Future<Tree> walk : walks) {
                Tree tree = walk.get(60, TimeUnit.SECONDS);
                assertEquals(expected.departments, tree.departments);
                assertEquals(expected.channels, tree.channels);
            }
        } finally {
            pool.shutdownNow();
        }
    }

    @Test
    void compressionIsOneOfTheTwoKnownTypes() {
        int h = Platform.create();
        assertEquals(0, IOrvexCore.ORVEX_SetCompressType(h, 1));
        assertEquals(0, IOrvexCore.ORVEX_SetCompressType(h, 0));
        assertEquals(Platform.INVALID_PARAM, IOrvexCore.ORVEX_SetCompressType(h, 2));
        assertEquals(0, IOrvexCore.ORVEX_Destroy(h));
        assertNotEquals(0, IOrvexCore.ORVEX_SetCompressType(h, 0));
    }
}
