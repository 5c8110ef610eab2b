// Twips, the unit of all geometry: 15 twips are one device-independent pixel at every scale factor.
#pragma once

namespace zarvo {

inline constexpr int kTwipsPerPixel = 15;

// A place and a size in twips.
struct TwipRect {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;

  friend bool operator==(const TwipRect&, const TwipRect&) = default;
};

// To the nearest pixel.
constexpr int ToPixels(int twips) {
  const int half = twips < 0 ? -kTwipsPerPixel / 2 : kTwipsPerPixel / 2;
  return (twips + half) / kTwipsPerPixel;
}

constexpr int ToTwips(int pixels) { return pixels * kTwipsPerPixel; }

}  // namespace zarvo
