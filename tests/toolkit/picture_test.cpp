// Pictures of the player: good ones, broken ones, and ones that would eat the memory.
#include "toolkit/picture.h"

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
  Result<Picture> Load(const std::string& bytes, const char* name = "a.gif", int side = 400) {
    drive.Write(name, bytes);
    return Picture::FromFile(drive.files(), name, side);
  }
  static QColor ColourOf(const Picture& picture) {
    return picture.ToPixmap(QSize(1, 1), 1).toImage().pixelColor(0, 0);
  }

  PictureTest() { QLoggingCategory::setFilterRules(QStringLiteral("qt.gui.imageio*=false")); }
  ~PictureTest() override { QLoggingCategory::setFilterRules({}); }

  TempDrive drive;
};

TEST_F(PictureTest, ReadsItsThreeFormatsWhateverTheFileIsCalled) {
  const std::string gif = GifHead(1, 1) + GifFrame(1, 1, false) + ";";
  for (const char* name : {"a.gif", "a.jpg", "a.bmp", "noext"}) {
    for (const std::string& bytes :
         {gif, Written(Plain(3, 2), "bmp"), Written(Plain(9, 9), "jpg")}) {
      const auto picture = Load(bytes, name);
      ASSERT_TRUE(picture.ok()) << name;
      EXPECT_GT(ColourOf(*picture).red(), 240);
      EXPECT_LT(ColourOf(*picture).blue(), 16);
    }
  }
}

TEST_F(PictureTest, ShowsTheFirstFrameOfAnAnimation) {
  const auto picture = Load(GifHead(1, 1) + GifFrame(1, 1, true) + GifFrame(1, 1, false) + ";");
  ASSERT_TRUE(picture.ok());
  EXPECT_EQ(ColourOf(*picture), QColor(Qt::blue));
}

TEST_F(PictureTest, RefusesWhatIsNoPicture) {
  const std::vector<std::pair<const char*, std::string>> cases = {
      {"empty", ""},
      {"text", "hello"},
      {"only a mark", "GIF89a"},
      {"only a mark", "BM"},
      {"only a mark", "\xFF\xD8\xFF"},
      {"another format", Written(Plain(4, 4), "png")},
      {"another format", "<svg xmlns='http://www.w3.org/2000/svg' width='1' height='1'/>"},
      {"a GIF without a frame", GifHead(10, 10) + ";"},
  };
  for (const auto& [what, bytes] : cases) EXPECT_FALSE(Load(bytes).ok()) << what;
  EXPECT_FALSE(Picture::FromFile(drive.files(), "missing.gif", 400).ok());
  EXPECT_FALSE(Picture::FromFile(drive.files(), "C:\\Emu", 400).ok());
}

// Headers that promise 400 million pixels, with hardly a byte behind them.
TEST_F(PictureTest, RefusesAHugePictureByItsHeader) {
  const std::string bmp = "BM"s + std::string(8, '\0') + "\x36\0\0\0\x28\0\0\0"s + Word(20000) +
                          Word(0) + Word(20000) + Word(0) + Word(1) + Word(24) +
                          std::string(24, '\0') + std::string(100, '\xFF');
  EXPECT_FALSE(Load(bmp).ok());
  EXPECT_FALSE(Load(GifHead(20000, 20000) + GifFrame(20000, 20000, false) + ";").ok());
  EXPECT_FALSE(Load(GifHead(65535, 65535) + GifFrame(1, 1, false) + ";").ok());
  std::string jpeg = Written(Plain(16, 16), "jpg");
  const std::size_t frame = jpeg.find("\xFF\xC0");
  ASSERT_NE(frame, std::string::npos);
  jpeg.replace(frame + 5, 4, "\x4E\x20\x4E\x20");  // height and width
  EXPECT_FALSE(Load(jpeg).ok());
}

TEST_F(PictureTest, AFrameLargerThanItsScreenDoesNoHarm) {
  const auto picture = Load(GifHead(2, 2) + GifFrame(30000, 30000, true) + ";");
  EXPECT_LE(picture.ok() ? picture->NaturalSize().width() : 0, 400);
}

TEST_F(PictureTest, LargePicturesAreBroughtDown) {
  const auto wide = Load(Written(Plain(3000, 20), "bmp"), "a.bmp", 100);
  ASSERT_TRUE(wide.ok());
  EXPECT_EQ(wide->NaturalSize(), QSize(100, 1));
  const auto small = Load(Written(Plain(64, 100), "bmp"), "a.bmp", 100);
  ASSERT_TRUE(small.ok());
  EXPECT_EQ(small->NaturalSize(), QSize(64, 100));
}

TEST_F(PictureTest, ABmpMayRunFromTheTopDown) {
  QImage image = Plain(2, 2, Qt::blue);
  image.setPixelColor(0, 0, Qt::red);
  image.setPixelColor(1, 0, Qt::red);
  std::string bytes = Written(image, "bmp");
  bytes.replace(22, 4, "\xFE\xFF\xFF\xFF");  // a height of -2
  const auto picture = Load(bytes, "a.bmp");
  ASSERT_TRUE(picture.ok());
  EXPECT_EQ(picture->NaturalSize(), QSize(2, 2));
  const QImage shown = picture->ToPixmap(QSize(2, 2), 1).toImage();
  EXPECT_EQ(shown.pixelColor(0, 0), QColor(Qt::blue)) << "the rows in the file run upwards";
}

// Cut at every byte it is a picture or a refusal, never a crash.
TEST_F(PictureTest, SurvivesACutAnywhere) {
  const std::vector<std::string> files = {
      GifHead(1, 1) + GifFrame(1, 1, true) + GifFrame(1, 1, false) + ";",
      Written(Plain(2, 2), "bmp"), Written(Plain(8, 8), "jpg")};
  for (const std::string& bytes : files) {
    const std::size_t step = 1 + bytes.size() / 100;
    for (std::size_t size = 0; size < bytes.size(); size += step) {
      const auto picture = Load(bytes.substr(0, size));
      EXPECT_EQ(picture.ok(), picture.ok() && !picture->IsEmpty());
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
