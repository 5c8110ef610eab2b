// How well a text is read on its ground.
#pragma once

#include <QImage>
#include <QPainter>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "ui/toolkit/label.h"

namespace zarvo {

// Relative luminance, 0 for black to 1 for white, and the ratio of two, as WCAG has them.
inline double Luminance(const QColor& colour) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
         0.0722 * linear(colour.blueF());
}

inline double Contrast(const QColor& one, const QColor& other) {
  const double first = Luminance(one) + 0.05;
  const double second = Luminance(other) + 0.05;
  return std::max(first, second) / std::min(first, second);
}

// A window as it is painted, enlarged, so that the strokes of its letters reach their full colour.
class EnlargedLook {
 public:
  explicit EnlargedLook(QWidget* window) : image_(window->size() * kScale, QImage::Format_RGB32) {
    image_.setDevicePixelRatio(kScale);
    window->render(&image_);
  }

  // The contrast of the text in a place of the window, in the row of pixels where it is least. The
  // left end of a row is its ground, and the ink what differs most from the one in the middle.
  [[nodiscard]] double TextContrast(const QRect& place) const {
    const QImage part = image_.copy(QRect(place.topLeft() * kScale, place.size() * kScale));
    const auto ground = [&part](int y) { return part.pixelColor(0, y); };
    const QColor middle = ground(part.height() / 2);
    QColor ink = middle;
    for (int y = 0; y < part.height(); ++y) {
      for (int x = 0; x < part.width(); ++x) {
        const QColor pixel = part.pixelColor(x, y);
        if (Contrast(pixel, middle) > Contrast(ink, middle)) ink = pixel;
      }
    }
    double least = Contrast(ink, middle);
    for (int y = 0; y < part.height(); ++y) least = std::min(least, Contrast(ink, ground(y)));
    return least;
  }

 private:
  static constexpr int kScale = 3;

  QImage image_;
};

// The captions of a window that can't be read well on their ground. What can be pressed has the
// colours of its kind.
inline std::vector<std::string> FaintCaptions(QWidget& window) {
  const EnlargedLook look(&window);
  std::vector<std::string> faint;
  for (const auto* const widget : window.findChildren<QWidget*>()) {
    const auto* const label = dynamic_cast<const Label*>(widget);
    if (label == nullptr || !label->isVisible() || label->IsPressable()) continue;
    if (label->Caption().find_first_not_of(' ') == std::string::npos) continue;
    QRect place(label->mapTo(&window, QPoint(-1, 1)), label->size() - QSize(0, 2));
    const int text = label->fontMetrics().horizontalAdvance(ToQt(label->Caption()));
    if (label->Align() == TextAlign::kRight)
      place.setLeft(std::max(place.left(), place.right() - text - 2));
    if (!window.rect().contains(place)) continue;
    if (look.TextContrast(place) < 4.5) faint.push_back(label->Caption());
  }
  return faint;
}

}  // namespace zarvo
