// Pictures: drawings that belong to the program, and picture files of the player.
#pragma once

#include <QImage>
#include <QPainter>
#include <QString>
#include <memory>
#include <string>

#include "core/platform/dos_files.h"
#include "core/platform/result.h"

class QSvgRenderer;

namespace zarvo {

// A picture that can be drawn at any size. Copies share their content.
class Picture {
 public:
  Picture() = default;  // empty

  // A drawing among the program's resources: FromResource("arrow_up") is ":/pictures/arrow_up.svg".
  static Picture FromResource(const char* name);

  // A GIF, JPEG or BMP file, its first frame. Fails for what isn't such a picture, and for one of
  // more than 64 million pixels. Large pictures are brought down while they are read, to at most
  // `longest_side` pixels, so that they neither stall nor bloat the program.
  static Result<Picture> FromFile(const DosFiles& files, const DosPath& path, int longest_side);

  [[nodiscard]] bool IsEmpty() const { return !drawing_ && image_.isNull(); }
  // In pixels: what the drawing was made for, or the size of the image.
  [[nodiscard]] QSize NaturalSize() const;
  // Stretched to the whole of `target`, smooth at every scale factor.
  void Draw(QPainter& painter, const QRectF& target) const;
  // As pixels: an image in any thread, a pixmap for cursors and icons in the main one.
  [[nodiscard]] QImage ToImage(QSize size, qreal device_pixel_ratio) const;
  [[nodiscard]] QPixmap ToPixmap(QSize size, qreal device_pixel_ratio) const;

  friend bool operator==(const Picture& left, const Picture& right) {
    return left.drawing_ == right.drawing_ && left.image_ == right.image_;
  }

 private:
  std::shared_ptr<QSvgRenderer> drawing_;
  QImage image_;
};

}  // namespace zarvo
