// An RGB drawing surface for the simulated cameras' pictures, with a small bitmap font so that
// names, clocks and positions can be read in the frames themselves.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace orvexsim::platform {

struct Rgb {
    uint8_t r = 0;
    uint8_t g = 0;
    uint8_t b = 0;
};

class Canvas {
  public:
    Canvas(int width, int height);

    int width() const { return width_; }
    int height() const { return height_; }
    // Packed rows of R, G, B bytes, top row first.
    const uint8_t* pixels() const { return rgb_.data(); }
    uint8_t* row(int y) { return rgb_.data() + static_cast<std::size_t>(y) * width_ * 3; }

    // Clipped to the canvas.
    void fill(int x, int y, int w, int h, Rgb colour);

    // Draws `text` with the 5x7 font, each font dot `scale` pixels wide, on a background box so
    // that it stays legible over any picture. Lower-case letters are drawn as capitals, anything
    // the font lacks as '?'. Returns the width drawn.
    int text(int x, int y, const std::string& text, int scale, Rgb ink, Rgb paper);

    // Width and height in pixels of one character cell, spacing included.
    static int cellWidth(int scale) { return 6 * scale; }
    static int cellHeight(int scale) { return 9 * scale; }

  private:
    int width_;
    int height_;
    std::vector<uint8_t> rgb_;
};

}  // namespace orvexsim::platform
