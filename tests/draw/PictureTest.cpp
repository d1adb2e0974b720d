#include "draw/Picture.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QTemporaryDir>

#include "draw/Fonts.h"
#include "draw/Renderer.h"

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

  static QImage Drawn(const DisplayList& drawing, QSize size) {
    QImage image(size, QImage::Format_RGB32);
    Renderer().Draw(drawing, RulesFor(QRect({0, 0}, size)), image);
    return image;
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
    EXPECT_EQ(read, Drawn(drawing_, size)) << size.width();
  }
}

TEST_F(PictureTest, APictureDrawnInBandsIsWhole) {
  DisplayList texts(measure_);  // lines are smoothed a little otherwise where the painter clips them
  for (int i = 0; i < 40; ++i)
    texts.Text({static_cast<float>(i) * 300, static_cast<float>(i) * 240}, "1230 QABC");
  const QSize size(16384, 1200);
  ASSERT_TRUE(WritePicture(texts, size, File("a.png")));
  EXPECT_EQ(QImage(File("a.png")).convertToFormat(QImage::Format_RGB32), Drawn(texts, size));
}

TEST_F(PictureTest, FilesThatCannotBeAreRefusedAndLeftAsTheyWere) {
  ASSERT_TRUE(QDir().mkdir(File("folder.png")));
  const struct {
    const char* name;
    Error::Kind kind;
  } rows[] = {{"map.jpeg", Error::Kind::Malformed},
              {"folder.png", Error::Kind::NotAFile},
              {"none/map.svg", Error::Kind::Refused}};
  for (const auto& row : rows) {
    const Result<Done> written = WritePicture(drawing_, {64, 64}, File(row.name));
    ASSERT_FALSE(written) << row.name;
    EXPECT_EQ(written.error().kind, row.kind) << row.name;
  }
  EXPECT_EQ(QDir(dir_.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList{"folder.png"});
}

}  // namespace
}  // namespace kestrel
