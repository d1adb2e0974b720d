#include <gtest/gtest.h>

#include <QImage>
#include <QXmlStreamReader>

#include "cli/Companion.h"

namespace kestrel::cli {
namespace {

/// The ids and texts of an SVG, in document order.
struct Svg {
  QStringList Ids;
  QStringList Texts;
  bool WellFormed = false;
};

Svg ReadSvg(const std::string& bytes) {
  Svg svg;
  QXmlStreamReader xml(QByteArray::fromStdString(bytes));
  while (!xml.atEnd()) {
    xml.readNext();
    if (!xml.isStartElement()) continue;
    if (xml.attributes().hasAttribute("id")) svg.Ids += xml.attributes().value("id").toString();
    if (xml.name() == QLatin1String("text")) svg.Texts += xml.readElementText();
  }
  svg.WellFormed = !xml.hasError();
  return svg;
}

class PicturesTest : public testing::Test {
 protected:
  PicturesTest() {
    folder_.Put("REGION2.dat", "41 284\n41 286\n39 286\n-100 -100\n39 284\n38 284\n-2000\n");
    folder_.Put("620x.dat",
                "620,QAAA,Town,ST,Land,D,40.5,75,1,-,-,1\n0,1,90,0,0,0\n"
                "620,QAAA,Town,ST,Land,N,40.5,75,1,-,-,1\n0,1,90,0,0,0\n"
                "620,QAAA,Town,ST,Land,N,40.6,75,1,-,-,1\n0,1,90,0,0,0\n"
                "620,Q&B <1>\x01,Town,ST,Land,U,39.5,75,1,-,-,0\n"
                "620,QFAR,Town,ST,Land,U,-40,-75,1,-,-,1\n0,1,90,0,0,0\n");
    folder_.Put("610x.dat", "610,QLOW,Town,ST,Land,U,40,74,1,-,-,1\n0,1,90,0,0,0\n");
  }

  Answer Map(const QString& file, const QStringList& options = {}) const {
    QStringList arguments = {"map", "--scale", "1000", "-o", file};
    if (!options.contains("--home")) arguments += {"--home", "40,75"};
    return folder_.Run(arguments + options);
  }

  Svg MapSvg(const QStringList& options = {}) const {
    EXPECT_EQ(Map("map.svg", options), (Answer{0, "", ""}));
    const Svg svg = ReadSvg(folder_.Text("map.svg"));
    EXPECT_TRUE(svg.WellFormed);
    return svg;
  }

  Folder folder_;
};

TEST_F(PicturesTest, SvgHoldsAGroupForEachRecordInsideAndItsTextAsText) {
  const Svg svg = MapSvg({"--home-name", "Here & <there>\x02"});
  EXPECT_EQ(svg.Ids, (QStringList{"QAAA-620-D", "QAAA-620-N", "QAAA-620-N-2", "QB1-620-U"}));
  EXPECT_TRUE(svg.Texts.contains("620 QAAA"));
  EXPECT_TRUE(svg.Texts.contains("620 Q&B <1> "));
  EXPECT_TRUE(svg.Texts.contains("Home:  Here & <there> "));
  EXPECT_TRUE(svg.Texts.contains("Home Lat: 40    Home Lon: 75"));
  EXPECT_FALSE(svg.Texts.contains("620 QFAR"));
}

TEST_F(PicturesTest, OptionsChooseWhatIsDrawn) {
  EXPECT_EQ(MapSvg({"--hours", "day"}).Ids, (QStringList{"QAAA-620-D", "QB1-620-U"}));
  EXPECT_EQ(MapSvg({"--hours", "all"}).Ids, MapSvg().Ids);
  EXPECT_TRUE(MapSvg({"--hours", "night"}).Texts.contains("    Night, critical & unlimited only"));
  EXPECT_TRUE(MapSvg({"--adjacents"}).Ids.contains("QLOW-610-U"));
  EXPECT_FALSE(MapSvg().Texts.contains("350"));
  EXPECT_TRUE(MapSvg({"--compass"}).Texts.contains("350"));
  EXPECT_TRUE(MapSvg({"--home", "33.24278,96.54139"}).Texts.contains("Home:  "));
  EXPECT_TRUE(MapSvg({"--home", "-90,180"}).Texts.contains("Home Lat: -90    Home Lon: 180"));
  EXPECT_TRUE(MapSvg({"--pattern-size", ".25"}).Texts.contains("Pattern:1  all"));
}

TEST_F(PicturesTest, AMomentChoosesTheRecordsOrShadesTheNightAlone) {
  const QString midnight = "2026-06-21T05:00Z";
  const Svg map = MapSvg({"--time", midnight});
  EXPECT_EQ(map.Ids, (QStringList{"twilight", "night", "QAAA-620-N", "QAAA-620-N-2", "QB1-620-U"}));
  EXPECT_TRUE(map.Texts.contains("Pattern:2  " + midnight));
  EXPECT_EQ(MapSvg({"--time", midnight, "--shade", "--hours", "day"}).Ids,
            (QStringList{"twilight", "night", "QAAA-620-D", "QB1-620-U"}));
}

TEST_F(PicturesTest, AChannelWithoutAFileIsAPictureWithItsNotice) {
  EXPECT_EQ(Map("map.svg", {"--frequency", "1230"}),
            (Answer{0, "", "kestrel-cli: 1230x.dat: there is no such file\n"}));
  EXPECT_TRUE(ReadSvg(folder_.Text("map.svg")).Texts.contains("    No station file for 1230 kHz"));
}

// Where the tests run under the locale with a comma, the bytes are compared with those under the plainest.
TEST_F(PicturesTest, SizesKindsAndBytesAreTheSameEverywhere) {
  for (const QSize size : {QSize(64, 64), QSize(1600, 1200), QSize(90, 16384)}) {
    const QString text = QString("%1x%2").arg(size.width()).arg(size.height());
    EXPECT_EQ(Map("map.png", {"--size", text}), (Answer{0, "", ""}));
    EXPECT_EQ(QImage(folder_.Path("map.png")).size(), size);
  }
  for (const QString name : {"map.png", "map.SVG"}) {
    ASSERT_EQ(Map(name).Status, 0);
    const std::string first = folder_.Text(name);
    const Answer again = RunIn(
        folder_.Path(), {"--data", ".", "map", "--home", "40,75", "--scale", "1000", "-o", name}, {}, "C");
    EXPECT_EQ(again, (Answer{0, "", ""}));
    EXPECT_TRUE(folder_.Text(name) == first) << name.toStdString();
  }
}

TEST_F(PicturesTest, PdfIsOneVectorPageOfTheSizeWithItsFonts) {
  ASSERT_EQ(Map("map.pdf", {"--size", "960x480"}), (Answer{0, "", ""}));
  const std::string pdf = folder_.Text("map.pdf");
  EXPECT_EQ(pdf.substr(0, 5), "%PDF-");
  EXPECT_NE(pdf.find("/Count 1\n"), std::string::npos);
  EXPECT_NE(pdf.find("/MediaBox [0 0 720.000000 360.000000]"), std::string::npos);
  EXPECT_NE(pdf.find("/FontFile2"), std::string::npos);
  EXPECT_NE(pdf.find("/ToUnicode"), std::string::npos);
  EXPECT_EQ(pdf.find("/Subtype /Image"), std::string::npos);
}

TEST_F(PicturesTest, AFailedPictureIsStatusOneAndLeavesTheOldOne) {
  EXPECT_EQ(
      Map("no/such/map.png"),
      (Answer{1, "",
              "kestrel-cli: no/such/map.png: No such file or directory; the picture was not written\n"}));
  ASSERT_EQ(Map("map.png").Status, 0);
  const std::string before = folder_.Text("map.png");
  EXPECT_EQ(Map("map.png", {"--scale", "1"}).Status, 2);
  EXPECT_TRUE(folder_.Text("map.png") == before);
}

TEST_F(PicturesTest, ScanShowsEveryChannelAndIsSilentWithoutATerminal) {
  EXPECT_EQ(folder_.Run({"scan", "--home", "40,75", "--scale", "1000", "-o", "scan.svg"}),
            (Answer{0, "", ""}));
  const Svg svg = ReadSvg(folder_.Text("scan.svg"));
  EXPECT_TRUE(svg.WellFormed);
  EXPECT_EQ(svg.Ids, (QStringList{"QLOW-610-U", "QAAA-620-D", "QAAA-620-N", "QAAA-620-N-2", "QB1-620-U"}));
  EXPECT_EQ(svg.Texts, (QStringList{"610", "620", "620", "100 km"}));
  const auto texts = [&](const char* labels) {
    EXPECT_EQ(folder_
                  .Run({"scan", "--home", "40,75", "--scale", "1000", "--labels", labels, "--no-scale-bar",
                        "-o", "l.svg"})
                  .Status,
              0);
    return ReadSvg(folder_.Text("l.svg")).Texts;
  };
  EXPECT_EQ(texts("all"), (QStringList{"610", "620", "620", "620"}));  // once for each place
  EXPECT_EQ(texts("none"), QStringList());

  const Folder empty;
  EXPECT_EQ(empty.Run({"scan", "-o", "scan.png"}).Status, 0);
  EXPECT_FALSE(QImage(empty.Path("scan.png")).isNull());
}

}  // namespace
}  // namespace kestrel::cli
