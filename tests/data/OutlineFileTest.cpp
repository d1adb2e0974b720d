#include "data/OutlineFile.h"

#include <gtest/gtest.h>

#include <string>

#include "WholeOutline.h"
#include "core/Numbers.h"

namespace kestrel {
namespace {

/// Vertices as "lat,lon" with "/" where the pen is lifted.
std::string Strokes(std::string_view bytes, CommentLines comments = CommentLines::Read) {
  const Outline outline = WholeOutline(bytes, comments);
  EXPECT_EQ(outline.Latitude.size(), outline.Longitude.size());
  std::string text;
  auto penUp = outline.PenUpBefore.begin();
  for (std::size_t i = 0; i <= outline.Latitude.size(); ++i) {
    for (; penUp != outline.PenUpBefore.end() && *penUp == i; ++penUp) text += "/ ";
    if (i == outline.Latitude.size()) break;
    text += NumberText(outline.Latitude[i]) + ',' + NumberText(outline.Longitude[i]) + ' ';
  }
  EXPECT_EQ(penUp, outline.PenUpBefore.end()) << "pen-up marks ascend";
  return text;
}

// Only a whole -2000 ends the file, only a blank separates, and longitudes stay as they stand.
TEST(OutlineFileTest, CutsStrokesFromLines) {
  const struct {
    std::string_view bytes, strokes;
  } rows[] = {{"", ""},
              {"-100 -100\r\n45.5 266.25\r\n-45 267 extra\r\n", "/ 45.5,266.25 -45,267 "},
              {"1 2\n\n   \n3 4\n-100 -100\n-100 -100\n5 6\n-100 -100", "1,2 3,4 / / 5,6 / "},
              {"  1   2  \n", "1,2 "},
              {"1 2\n-2000\n3 4\n", "1,2 "},
              {"1 2\n-2000.0 the end\nsource and licence\n", "1,2 "},
              {"1 2\n -2000 -2000\n3 4", "1,2 "},
              {"1 2\n2000\n-200\n", "1,2 2000,0 -200,0 "},
              {"-100 100\n-100.5 -100\n-100 -100 x\n-1e2 -100.0\n", "-100,100 -100.5,-100 / / "},
              {"45\n", "45,0 "},
              {"a b\n1x 2y\n.5. 1e2\n", "0,0 1,2 .5,100 "},
              {"45.2\t-93.1\n", "45.2,0 "},
              {"1 -190\n1 361.5\n", "1,-190 1,361.5 "},
              {"> 5 6\n1 2\n", "0,5 1,2 "}};
  for (const auto& row : rows) EXPECT_EQ(Strokes(row.bytes), row.strokes) << row.bytes;
}

TEST(OutlineFileTest, CommentLinesArePassedOverOnRequest) {
  const std::string bytes = ">a\n<a\n!a\n*a\n'a\n/a\n\\a\n  ! 1 2\n#3 4\n1 2 ! 3\n";
  EXPECT_EQ(Strokes(bytes, CommentLines::Skip), "0,4 1,2 ");
  EXPECT_EQ(WholeOutline(bytes).Latitude.size(), 10U);
}

TEST(OutlineFileTest, ReadingEndsAtMaxVertices) {
  std::string bytes;
  for (std::size_t i = 0; i < MaxVertices - 1; ++i) bytes += "1 2\n";
  bytes += "-100 -100\n3 4\n";
  const Outline outline = WholeOutline(bytes);
  EXPECT_EQ(outline.Latitude.size(), MaxVertices - 1);
  EXPECT_EQ(outline.PenUpBefore.size(), 1U);
}

}  // namespace
}  // namespace kestrel
