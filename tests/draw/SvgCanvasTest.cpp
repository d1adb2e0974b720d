#include "draw/SvgCanvas.h"

#include <gtest/gtest.h>

#include <QXmlStreamReader>
#include <array>

namespace kestrel {
namespace {

class SvgCanvasTest : public testing::Test {
 protected:
  void Station(const std::string& call, const std::string& hours, Point at) {
    canvas_.BeginStation({at, 1230, call, hours});
    canvas_.FilledCircle(at, 30);
    canvas_.Text({at.x - 60, at.y - 210}, "1230 " + call);
    canvas_.EndStation();
  }

  /// The attribute's value of every element that has it. Fails on anything that is not well-formed.
  QStringList Attributes(const QString& name) {
    QStringList values;
    QXmlStreamReader xml(canvas_.Finish());
    while (!xml.atEnd())
      if (xml.readNext() == QXmlStreamReader::StartElement && xml.attributes().hasAttribute(name))
        values += xml.attributes().value(name).toString();
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return values;
  }

  SvgCanvas canvas_{QSizeF(1200, 950), RulesFor({0, 0, 1200, 950})};
};

TEST_F(SvgCanvasTest, IdsAreUniqueAndPlainWhateverTheData) {
  const Point at{6000, 4500};
  Station("QABC", "D", at);
  Station("QABC", "D", at);
  Station("QABC", "D-2", at);  // what a third one would be called
  Station("QABC", "D", at);
  Station("", "", at);
  Station("4\"<Ñ>&.-", "\x01", at);
  Station("QOUT", "N", {-5000, 4500});  // beside the picture: no trace
  EXPECT_EQ(Attributes("id"), (QStringList{"QABC-1230-D", "QABC-1230-D-2", "QABC-1230-D-2-2", "QABC-1230-D-3",
                                           "s-1230-", "s4.--1230-"}));
}

TEST_F(SvgCanvasTest, AShapeTooSmallForAPixelIsADotAndNotNothing) {
  std::array<Point, 180> outline;
  outline.fill({6000, 4500});
  canvas_.Polygon(outline);
  EXPECT_EQ(Attributes("points"), QStringList{"600,450 600,450"});
  SvgCanvas again(QSizeF(1200, 950), RulesFor({0, 0, 1200, 950}));
  again.Polygon(outline);
  EXPECT_TRUE(again.Finish().contains("stroke-linecap=\"round\""));
}

}  // namespace
}  // namespace kestrel
