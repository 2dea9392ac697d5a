package platformtest;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.Return_Value_Info_t;
import com.zq.OrvexCore.TvWall.Set_TvWall_Screen_Window_Source_t;
import com.zq.OrvexCore.TvWall.TvWall_Layout_Info_t;
import com.zq.OrvexCore.TvWall.TvWall_List_Info_t;
import com.zq.OrvexCore.TvWall.TvWall_Screen_Close_Source_t;
import com.zq.OrvexCore.TvWall.TvWall_Screen_Info_t;
import com.zq.OrvexCore.TvWall.TvWall_Screen_Open_Window_t;
import com.zq.OrvexCore.TvWall.TvWall_Screen_Split_t;
import org.junit.jupiter.api.Test;
import platformtest.Platform.User;

/** Video walls of the simulated platform, used through the bridge as an application would. */
class WallPlatformTest extends OnPlatform {
    static TvWall_Screen_Split_t split(int wall, int screen, int windows) {
        TvWall_Screen_Split_t split = new TvWall_Screen_Split_t();
        split.nTvWallId = wall;
        split.nScreenId = screen;
        split.enSplitNum = windows;
        return split;
    }

    static Set_TvWall_Screen_Window_Source_t source(
            int wall, int screen, int window, String camera, int stream) {
        Set_TvWall_Screen_Window_Source_t source = new Set_TvWall_Screen_Window_Source_t();
        source.nTvWallId = wall;
        source.nScreenId = screen;
        source.nWindowId = window;
        source.szCameraId = Platform.fixed(camera, 63);
        source.enStreamType = stream;
        return source;
    }

    @Test
    void listsTheWallsAndTheScreensOfAWall() {
        try (User admin = User.admin()) {
            Return_Value_Info_t count = new Return_Value_Info_t();
            assertEquals(0, IOrvexCore.ORVEX_GetTvWallListCount(admin.handle, count, 3000));
            assertEquals(2, count.nReturnValue);
            TvWall_List_Info_t walls = new TvWall_List_Info_t(count.nReturnValue);
            assertEquals(0, IOrvexCore.ORVEX_GetTvWallList(admin.handle, walls));
            assertEquals("Control room", Platform.string(walls.pTvWallInfo[0].szName));
            assertEquals(2, walls.pTvWallInfo[1].nTvWallId);

            assertEquals(0, IOrvexCore.ORVEX_GetTvWallLayoutCount(admin.handle, 1, count, 3000));
            assertEquals(4, count.nReturnValue);
            TvWall_Layout_Info_t layout = new TvWall_Layout_Info_t(1, count.nReturnValue);
            assertEquals(0, IOrvexCore.ORVEX_GetTvWallLayout(admin.handle, layout));
            TvWall_Screen_Info_t last = layout.pScreenInfo[3];
            assertEquals(4, last.nScreenId);
            assertEquals("decoder-01", Platform.string(last.szDecoderId));
            assertEquals(0.5f, last.fLeft);
            assertEquals(0.5f, last.fTop);
            assertTrue(last.bBind);

            assertEquals(1018, IOrvexCore.ORVEX_GetTvWallLayoutCount(admin.handle, 7, count, 3000));
        }
    }

    @Test
    void camerasSplitsAndWindowsShowInTheWallsState() {
        try (User op = User.operator()) {
            assertEquals(0, IOrvexCore.ORVEX_ClearTvWallScreen(op.handle, 1, 3000));
            assertEquals(0, IOrvexCore.ORVEX_SetTvWallScreenSplit(op.handle, split(1, 2, 4), 3000));

            Set_TvWall_Screen_Window_Source_t source = source(1, 2, 3, "nvr-north-01-cam02", 2);
            source.nStayTime = 60;
            assertEquals(0, IOrvexCore.ORVEX_SetTvWallScreenWindowSource(op.handle, source, 3000));

            TvWall_Screen_Open_Window_t open = new TvWall_Screen_Open_Window_t();
            open.nTvWallId = 1;
            open.nScreenId = 2;
            open.fLeft = 0.25f;
            open.fTop = 0.25f;
            open.fWidth = 0.5f;
            open.fHeight = 0.5f;
            assertEquals(0, IOrvexCore.ORVEX_TvWallScreenOpenWindow(op.handle, open, 3000));
            assertEquals(101, open.nWindowId);
            assertEquals(1, open.nZorder);
            source.nWindowId = open.nWindowId;
            source.szCameraId = Platform.fixed("ipc-gate-01-cam01", 63);
            source.enStreamType = 1;
            assertEquals(0, IOrvexCore.ORVEX_SetTvWallScreenWindowSource(op.handle, source, 3000));

            String wall = op.cms("{\"cmd\":\"getWall\",\"id\":1}");
            assertTrue(wall.contains("{\"decoder\":\"decoder-01\",\"id\":2,\"split\":4,\"windows\":["
                    + "{\"camera\":\"\",\"id\":1,\"stream\":0},{\"camera\":\"\",\"id\":2,\"stream\":0},"
                    + "{\"camera\":\"nvr-north-01-cam02\",\"id\":3,\"stream\":2},"
                    + "{\"camera\":\"\",\"id\":4,\"stream\":0},"
                    + "{\"camera\":\"ipc-gate-01-cam01\",\"id\":101,\"rect\":[0.25,0.25,0.5,0.5],"
                    + "\"stream\":1,\"zorder\":1}]}"), wall);

            TvWall_Screen_Close_Source_t close = new TvWall_Screen_Close_Source_t();
            close.nTvWallId = 1;
            close.nScreenId = 2;
            close.nWindowId = 3;
            assertEquals(0, IOrvexCore.ORVEX_CloseTvWallScreenWindowSource(op.handle, close, 3000));
            wall = op.cms("{\"cmd\":\"getWall\",\"id\":1}");
            assertTrue(wall.contains("{\"camera\":\"\",\"id\":3,\"stream\":0}"), wall);
            assertTrue(wall.contains("\"id\":101"), wall);

            assertEquals(0, IOrvexCore.ORVEX_ClearTvWallScreenByDecodeId(
                    op.handle, 1, Platform.text("decoder-01"), 3000));
            wall = op.cms("{\"cmd\":\"getWall\",\"id\":1}");
            assertTrue(!wall.contains("\"id\":101") && !wall.contains("-cam"), wall);
        }
    }

    @Test
    void refusesWhatTheUserOrTheScreenDoesNotAllow() {
        Set_TvWall_Screen_Window_Source_t source = source(2, 1, 1, "nvr-north-01-cam01", 1);
        try (User viewer = User.viewer()) {
            assertEquals(1007,
                    IOrvexCore.ORVEX_SetTvWallScreenWindowSource(viewer.handle, source, 3000));
        }
        try (User admin = User.admin()) {
            source.nWindowId = 2;
            assertEquals(1018,
                    IOrvexCore.ORVEX_SetTvWallScreenWindowSource(admin.handle, source, 3000));
            assertEquals(1009,
                    IOrvexCore.ORVEX_SetTvWallScreenSplit(admin.handle, split(2, 1, 2), 3000));
            assertEquals(1011, IOrvexCore.ORVEX_ClearTvWallScreenByDecodeId(
                    admin.handle, 2, Platform.text("decoder-77"), 3000));
        }
    }
}
