package com.zq.OrvexCore.client;

import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.TvWall.Set_TvWall_Screen_Window_Source_t;
import com.zq.OrvexCore.TvWall.TvWall_Info_t;
import com.zq.OrvexCore.TvWall.TvWall_Layout_Info_t;
import com.zq.OrvexCore.TvWall.TvWall_List_Info_t;
import com.zq.OrvexCore.TvWall.TvWall_Screen_Close_Source_t;
import com.zq.OrvexCore.TvWall.TvWall_Screen_Info_t;
import com.zq.OrvexCore.TvWall.TvWall_Screen_Open_Window_t;
import com.zq.OrvexCore.TvWall.TvWall_Screen_Split_t;
import java.util.ArrayList;
import java.util.List;

/** Video walls: their screens, and what the screens' windows show. */
public final class Walls {
    private final OrvexClient c;

    Walls(OrvexClient client) {
        this.c = client;
    }

    /**
     * A video wall.
     *
     * @param id its identifier
     * @param state its state
     * @param name its name
     */
    public record Wall(int id, int state, String name) {}

    /**
     * A screen of a wall, placed in the wall's coordinates.
     *
     * @param id its identifier
     * @param name its name
     * @param decoder the decoder that drives it
     * @param left its left edge
     * @param top its top edge
     * @param width its width
     * @param height its height
     */
    public record Screen(int id, String name, String decoder, float left, float top, float width,
            float height) {}

    /**
     * A window opened on a screen.
     *
     * @param id its identifier
     * @param zOrder its stacking order
     */
    public record Window(int id, int zOrder) {}

    /** Every video wall. */
    public List<Wall> walls() {
        int n = c.value("ORVEX_GetTvWallListCount",
                h -> IOrvexCore.ORVEX_GetTvWallListCount(c.handle, h, c.timeoutMs));
        if (n <= 0) {
            return List.of();
        }
        TvWall_List_Info_t in = new TvWall_List_Info_t(n);
        c.run("ORVEX_GetTvWallList", () -> IOrvexCore.ORVEX_GetTvWallList(c.handle, in));
        List<Wall> out = new ArrayList<>(n);
        for (TvWall_Info_t w : in.pTvWallInfo) {
            out.add(new Wall(w.nTvWallId, w.nState, c.text.get(w.szName)));
        }
        return List.copyOf(out);
    }

    /** The screens of a wall. */
    public List<Screen> screens(int wall) {
        int n = c.value("ORVEX_GetTvWallLayoutCount",
                h -> IOrvexCore.ORVEX_GetTvWallLayoutCount(c.handle, wall, h, c.timeoutMs));
        if (n <= 0) {
            return List.of();
        }
        TvWall_Layout_Info_t in = new TvWall_Layout_Info_t(wall, n);
        c.run("ORVEX_GetTvWallLayout", () -> IOrvexCore.ORVEX_GetTvWallLayout(c.handle, in));
        List<Screen> out = new ArrayList<>(n);
        for (TvWall_Screen_Info_t s : in.pScreenInfo) {
            out.add(new Screen(s.nScreenId, c.text.get(s.szName), c.text.get(s.szDecoderId),
                    s.fLeft, s.fTop, s.fWidth, s.fHeight));
        }
        return List.copyOf(out);
    }

    /**
     * Shows a camera in a window of a screen.
     *
     * @param stayTime how long it stays, as the platform counts it (0 for good)
     * @param stream the camera's stream to show
     */
    public void show(int wall, int screen, int window, CameraId camera, long stayTime,
            Media.StreamType stream) {
        Set_TvWall_Screen_Window_Source_t in = new Set_TvWall_Screen_Window_Source_t();
        in.nTvWallId = wall;
        in.nScreenId = screen;
        in.nWindowId = window;
        c.text.put(camera.value(), in.szCameraId, "camera");
        in.nStayTime = stayTime;
        in.enStreamType = stream.value;
        c.run("ORVEX_SetTvWallScreenWindowSource",
                () -> IOrvexCore.ORVEX_SetTvWallScreenWindowSource(c.handle, in, c.timeoutMs));
    }

    /** Ends what a window of a screen shows. */
    public void clearWindow(int wall, int screen, int window) {
        TvWall_Screen_Close_Source_t in = new TvWall_Screen_Close_Source_t();
        in.nTvWallId = wall;
        in.nScreenId = screen;
        in.nWindowId = window;
        c.run("ORVEX_CloseTvWallScreenWindowSource",
                () -> IOrvexCore.ORVEX_CloseTvWallScreenWindowSource(c.handle, in, c.timeoutMs));
    }

    /** Splits a screen into 1, 4, 9 or 16 panes. */
    public void split(int wall, int screen, int panes) {
        if (panes != 1 && panes != 4 && panes != 9 && panes != 16) {
            throw new IllegalArgumentException("panes must be 1, 4, 9 or 16: " + panes);
        }
        TvWall_Screen_Split_t in = new TvWall_Screen_Split_t();
        in.nTvWallId = wall;
        in.nScreenId = screen;
        in.enSplitNum = panes;
        c.run("ORVEX_SetTvWallScreenSplit",
                () -> IOrvexCore.ORVEX_SetTvWallScreenSplit(c.handle, in, c.timeoutMs));
    }

    /** Opens a free window on a screen, placed in the screen's coordinates. */
    public Window openWindow(int wall, int screen, float left, float top, float width,
            float height) {
        TvWall_Screen_Open_Window_t in = new TvWall_Screen_Open_Window_t();
        in.nTvWallId = wall;
        in.nScreenId = screen;
        in.fLeft = left;
        in.fTop = top;
        in.fWidth = width;
        in.fHeight = height;
        c.run("ORVEX_TvWallScreenOpenWindow",
                () -> IOrvexCore.ORVEX_TvWallScreenOpenWindow(c.handle, in, c.timeoutMs));
        return new Window(in.nWindowId, in.nZorder);
    }

    /** Clears every screen of a wall. */
    public void clear(int wall) {
        c.run("ORVEX_ClearTvWallScreen",
                () -> IOrvexCore.ORVEX_ClearTvWallScreen(c.handle, wall, c.timeoutMs));
    }

    /** Clears the screens of a wall that one decoder drives. */
    public void clear(int wall, String decoder) {
        byte[] id = c.text.arg(decoder, "decoder");
        c.run("ORVEX_ClearTvWallScreenByDecodeId",
                () -> IOrvexCore.ORVEX_ClearTvWallScreenByDecodeId(c.handle, wall, id,
                        c.timeoutMs));
    }
}
