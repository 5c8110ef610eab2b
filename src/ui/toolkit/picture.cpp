#include "ui/toolkit/picture.h"

#include <QBuffer>
#include <QHash>
#include <QImageReader>
#include <QPixmap>
#include <QSvgRenderer>
#include <algorithm>
#include <array>
#include <cstdlib>

namespace zarvo {
namespace {

constexpr qint64 kMostPixels = 64'000'000;
constexpr std::size_t kLargestFile = 64U << 20U;

// What the content says it is; the file's name matters for PNG alone. "" for anything else.
QByteArray FormatOf(const std::string& bytes, const DosPath& path) {
  if (bytes.starts_with("GIF87a") || bytes.starts_with("GIF89a")) return "gif";
  if (bytes.starts_with("\xFF\xD8\xFF")) return "jpeg";
  if (bytes.starts_with("BM")) return "bmp";
  if (bytes.starts_with("\x89PNG") && path.Name().ends_with(".png")) return "png";
  return {};
}

Result<std::string> ReadPictureFile(const DosFiles& files, const DosPath& path) {
  auto source = files.Open(path);
  if (!source.ok()) return source.error();
  std::string bytes;
  std::array<char, 65536> block{};
  while (const std::size_t size = (*source)->Read(block.data(), block.size())) {
    bytes.append(block.data(), size);
    if (bytes.size() > kLargestFile) return Error{"The picture is too large."};
  }
  return bytes;
}

}  // namespace

Picture Picture::FromResource(const char* name) {
  static QHash<QByteArray, std::shared_ptr<QSvgRenderer>> drawings;
  std::shared_ptr<QSvgRenderer>& drawing = drawings[name];
  if (!drawing) {
    drawing = std::make_shared<QSvgRenderer>(
        QStringLiteral(":/pictures/%1.svg").arg(QLatin1String(name)));
    drawing->setAspectRatioMode(Qt::IgnoreAspectRatio);
  }
  Picture picture;
  picture.drawing_ = drawing;
  return picture;
}

Result<Picture> Picture::FromFile(const DosFiles& files, const DosPath& path, int longest_side) {
  auto bytes = ReadPictureFile(files, path);
  if (!bytes.ok()) return bytes.error();
  QByteArray content =
      QByteArray::fromRawData(bytes->data(), static_cast<qsizetype>(bytes->size()));
  QBuffer buffer(&content);
  buffer.open(QIODevice::ReadOnly);
  QImageReader reader(&buffer, FormatOf(*bytes, path));
  reader.setAutoDetectImageFormat(false);
  // A BMP whose rows run from the top down tells its height as a negative number.
  const QSize size(reader.size().width(), std::abs(reader.size().height()));
  if (reader.format().isEmpty() || !reader.canRead() || size.isEmpty() ||
      qint64{size.width()} * size.height() > kMostPixels) {
    return Error{"This is no picture that can be shown."};
  }
  const QSize smaller =
      size.scaled(longest_side, longest_side, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
  const auto is_large = [&](const QSize& each) {
    return std::max(each.width(), each.height()) > longest_side;
  };
  if (is_large(size)) reader.setScaledSize(smaller);
  Picture picture;
  picture.image_ = reader.read();
  if (picture.image_.isNull()) return Error{"The picture is broken."};
  // Not every format minds what the reader was told.
  if (is_large(picture.image_.size())) picture.image_ = picture.image_.scaled(smaller);
  return picture;
}

QSize Picture::NaturalSize() const { return drawing_ ? drawing_->defaultSize() : image_.size(); }

void Picture::Draw(QPainter& painter, const QRectF& target) const {
  if (drawing_) {
    painter.setRenderHint(QPainter::Antialiasing);
    drawing_->render(&painter, target);
  } else if (!image_.isNull()) {
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(target, image_);
  }
}

QImage Picture::ToImage(QSize size, qreal device_pixel_ratio) const {
  QImage image((QSizeF(size) * device_pixel_ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(device_pixel_ratio);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  Draw(painter, QRectF(QPointF(), QSizeF(size)));
  return image;
}

QPixmap Picture::ToPixmap(QSize size, qreal device_pixel_ratio) const {
  return QPixmap::fromImage(ToImage(size, device_pixel_ratio));
}

}  // namespace zarvo
