// Pictures of the player: good ones, broken ones, and ones that would eat the memory.
#include "ui/toolkit/picture.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QImageWriter>
#include <QLoggingCategory>

#include "fakes/temp_drive.h"

namespace zarvo {
namespace {

using std::string_literals::operator""s;

std::string Written(const QImage& image, const char* format) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  EXPECT_TRUE(QImageWriter(&buffer, format).write(image));
  return bytes.toStdString();
}

QImage Plain(int width, int height, Qt::GlobalColor colour = Qt::red) {
  QImage image(width, height, QImage::Format_RGB32);
  image.fill(colour);
  return image;
}

// 16 bits, low byte first.
std::string Word(int value) {
  return {static_cast<char>(value & 0xFF), static_cast<char>(value >> 8)};
}

// A GIF with red and blue: its screen, and frames of one pixel in the colour given.
std::string GifHead(int width, int height) {
  return "GIF89a" + Word(width) + Word(height) + "\x80\0\0"s + "\xFF\0\0"s + "\0\0\xFF"s;
}

std::string GifFrame(int width, int height, bool blue) {
  // One code of 3 bits for the pixel between clear (4) and end (5): clear, colour, end.
  const int codes = 4 | (blue ? 1 : 0) << 3 | 5 << 6;
  return "\x21\xF9\x04\0\x0A\0\0\0"s + "\x2C\0\0\0\0"s + Word(width) + Word(height) +
         "\0\x02\x02"s + Word(codes) + "\0"s;
}

class PictureTest : public testing::Test {
 protected:
  PictureTest() { QLoggingCategory::setFilterRules(QStringLiteral("qt.gui.imageio*=false")); }
  ~PictureTest() override { QLoggingCategory::setFilterRules({}); }

  Result<Picture> Load(const std::string& bytes, int side = 400) {
    drive.Write("a.gif", bytes);  // whatever it is
    return Picture::FromFile(drive.files(), "a.gif", side);
  }
  // Size and the colour of the first pixel, roughly.
  static std::string Look(const Result<Picture>& picture) {
    if (!picture.ok()) return "refused";
    const QSize size = picture->NaturalSize();
    const QColor colour = picture->ToPixmap(size, 1).toImage().pixelColor(0, 0);
    return std::to_string(size.width()) + "x" + std::to_string(size.height()) +
           (colour.red() > 240 ? " red" : "") + (colour.green() > 16 ? " green" : "") +
           (colour.blue() > 240 ? " blue" : "");
  }

  TempDrive drive;
};

TEST_F(PictureTest, ReadsItsThreeFormatsWhateverTheFileIsCalled) {
  const std::string frames = GifFrame(1, 1, true) + GifFrame(1, 1, false) + ";";
  EXPECT_EQ(Look(Load(GifHead(1, 1) + frames)), "1x1 blue") << "the first frame";
  EXPECT_EQ(Look(Load(Written(Plain(9, 8), "jpg"))), "9x8 red");
  EXPECT_EQ(Look(Load(Written(Plain(64, 100), "bmp"), 100)), "64x100 red");
  EXPECT_EQ(Look(Load(Written(Plain(3000, 20), "bmp"), 100)), "100x1 red") << "brought down";
}

TEST_F(PictureTest, RefusesWhatIsNoPictureAndAHugeOneByItsHeader) {
  std::string jpeg = Written(Plain(16, 16), "jpg");
  const std::size_t frame = jpeg.find("\xFF\xC0");
  ASSERT_NE(frame, std::string::npos);
  jpeg.replace(frame + 5, 4, "\x4E\x20\x4E\x20");  // height and width
  const std::vector<std::pair<const char*, std::string>> cases = {
      {"empty", ""},
      {"text", "hello"},
      {"only a mark", "GIF89a"},
      {"only a mark", "BM"},
      {"only a mark", "\xFF\xD8\xFF"},
      {"another format", Written(Plain(4, 4), "png")},
      {"another format", "<svg xmlns='http://www.w3.org/2000/svg' width='1' height='1'/>"},
      {"a GIF without a frame", GifHead(10, 10) + ";"},
      // These promise 400 million pixels, with hardly a byte behind them.
      {"a huge JPEG", jpeg},
      {"a huge GIF", GifHead(20000, 20000) + GifFrame(20000, 20000, false) + ";"},
      {"a GIF with a huge screen", GifHead(65535, 65535) + GifFrame(1, 1, false) + ";"},
      {"a huge BMP", "BM"s + std::string(8, '\0') + "\x36\0\0\0\x28\0\0\0"s + Word(20000) +
                         Word(0) + Word(20000) + Word(0) + Word(1) + Word(24) +
                         std::string(24, '\0') + std::string(100, '\xFF')},
  };
  for (const auto& [what, bytes] : cases) EXPECT_FALSE(Load(bytes).ok()) << what;
  EXPECT_FALSE(Picture::FromFile(drive.files(), "missing.gif", 400).ok());
  EXPECT_FALSE(Picture::FromFile(drive.files(), R"(C:\Emu)", 400).ok());
  const auto large_frame = Load(GifHead(2, 2) + GifFrame(30000, 30000, true) + ";");
  EXPECT_LE(large_frame.ok() ? large_frame->NaturalSize().width() : 0, 400);
}

TEST_F(PictureTest, ABmpMayRunFromTheTopDown) {
  QImage image = Plain(2, 2, Qt::blue);
  image.setPixelColor(0, 0, Qt::red);
  std::string bytes = Written(image, "bmp");
  bytes.replace(22, 4, "\xFE\xFF\xFF\xFF");  // a height of -2
  EXPECT_EQ(Look(Load(bytes)), "2x2 blue") << "the rows in the file run upwards";
}

// Cut at every byte it is a picture or a refusal, never a crash.
TEST_F(PictureTest, SurvivesACutAnywhere) {
  for (const std::string& bytes :
       {GifHead(1, 1) + GifFrame(1, 1, true) + GifFrame(1, 1, false) + ";",
        Written(Plain(2, 2), "bmp"), Written(Plain(8, 8), "jpg")}) {
    const std::size_t step = 1 + bytes.size() / 100;
    for (std::size_t size = 0; size < bytes.size(); size += step) {
      const auto picture = Load(bytes.substr(0, size));
      EXPECT_FALSE(picture.ok() && picture->IsEmpty());
    }
  }
}

TEST(PictureResources, AreDrawnAtAnySize) {
  const Picture arrow = Picture::FromResource("arrow_up");
  EXPECT_FALSE(arrow.IsEmpty());
  EXPECT_TRUE(arrow == Picture::FromResource("arrow_up"));
  EXPECT_FALSE(arrow == Picture::FromResource("arrow_down"));
  EXPECT_EQ(arrow.ToPixmap(QSize(20, 20), 1.5).size(), QSize(30, 30));
  EXPECT_TRUE(Picture().IsEmpty());
}

}  // namespace
}  // namespace zarvo
