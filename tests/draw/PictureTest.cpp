#include "draw/Picture.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "draw/Fonts.h"

namespace kestrel {
namespace {

class PictureTest : public testing::Test {
 protected:
  PictureTest() {
    drawing_.SetColor(0xCC8888);
    for (int i = 0; i < 40; ++i) {
      const auto step = static_cast<float>(i);
      drawing_.Line({step * 300, 0}, {12000 - step * 250, 9500});
      drawing_.Text({step * 300, step * 240}, "1230 QÁBC");
    }
    drawing_.SetColor(255);
    drawing_.FilledCircle({6000, 4500}, 500);
  }

  QString File(const QString& name) const { return dir_.filePath(name); }

  QTemporaryDir dir_;
  PlatformTextMeasure measure_;
  DisplayList drawing_{measure_};
};

TEST_F(PictureTest, PngHoldsTheImagePixelForPixel) {
  for (const QSize size : {QSize(64, 64), QSize(333, 222)}) {
    ASSERT_TRUE(WritePicture(drawing_, size, File("a.png")));
    const QImage read = QImage(File("a.png")).convertToFormat(QImage::Format_RGB32);
    EXPECT_EQ(read, RenderImage(drawing_, size)) << size.width();
  }
}

TEST_F(PictureTest, APictureDrawnInBandsIsWhole) {
  DisplayList texts(measure_);  // lines are smoothed a little otherwise where the painter clips them
  for (int i = 0; i < 40; ++i)
    texts.Text({static_cast<float>(i) * 300, static_cast<float>(i) * 240}, "1230 QABC");
  const QSize size(16384, 1200);
  ASSERT_TRUE(WritePicture(texts, size, File("a.png")));
  EXPECT_EQ(QImage(File("a.png")).convertToFormat(QImage::Format_RGB32), RenderImage(texts, size));
}

TEST_F(PictureTest, EmptyDrawingIsAWhitePicture) {
  const DisplayList nothing(measure_);
  QImage white(100, 80, QImage::Format_RGB32);
  white.fill(Qt::white);
  EXPECT_EQ(RenderImage(nothing, white.size()), white);
}

TEST_F(PictureTest, FilesThatCannotBeAreRefusedAndLeftAsTheyWere) {
  const Result<Done> ending = WritePicture(drawing_, {64, 64}, File("map.jpeg"));
  ASSERT_FALSE(ending);
  EXPECT_EQ(ending.error().kind, Error::Kind::Malformed);
  EXPECT_FALSE(QFile::exists(File("map.jpeg")));

  QDir(dir_.path()).mkdir("folder.png");
  const Result<Done> folder = WritePicture(drawing_, {64, 64}, File("folder.png"));
  ASSERT_FALSE(folder);
  EXPECT_EQ(folder.error().kind, Error::Kind::NotAFile);

  const Result<Done> missing = WritePicture(drawing_, {64, 64}, File("none/map.svg"));
  ASSERT_FALSE(missing);
  EXPECT_EQ(missing.error().kind, Error::Kind::Refused);
  EXPECT_EQ(QDir(dir_.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList{"folder.png"});
}

TEST_F(PictureTest, OneKindIsTheSameBytesEachTime) {
  for (const char* name : {"a.png", "a.svg"}) {
    QByteArray bytes[2];
    for (QByteArray& once : bytes) {
      ASSERT_TRUE(WritePicture(drawing_, {640, 480}, File(name)));
      QFile file(File(name));
      ASSERT_TRUE(file.open(QIODevice::ReadOnly));
      once = file.readAll();
    }
    EXPECT_EQ(bytes[0], bytes[1]) << name;
    EXPECT_FALSE(bytes[0].isEmpty());
  }
}

}  // namespace
}  // namespace kestrel
