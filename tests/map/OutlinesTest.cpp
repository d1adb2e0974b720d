#include "map/Outlines.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "RecordingCanvas.h"
#include "TestFolder.h"
#include "WholeOutline.h"
#include "map/OverviewMap.h"

namespace kestrel {
namespace {

/// An outline drawn around 0 N, 75 W at 1114.4 twips to a degree, so that vertices read easily.
std::string Draw(std::string_view bytes) {
  RecordingCanvas canvas;
  DrawOutline(canvas, bytes, PenFor(MapProjection({0, 75}, 750)));
  return canvas.Readable();
}

TEST(OutlinesTest, StrokesBreakWhereTheyShould) {
  const struct {
    const char *what, *vertices, *drawn;
  } rows[] = {
      {"joined, and nothing drawn to the first vertex", "0 285\n1 285\n0 286\n",
       "Polyline 000000 (6000,4500) (6000,3386) (7114,4500)\n"},
      {"the pen lifted", "0 285\n1 285\n-100 -100\n0 286\n1 286\n",
       "Polyline 000000 (6000,4500) (6000,3386)\nPolyline 000000 (7114,4500) (7114,3386)\n"},
      {"the pen lifted twice, at the front and at the end", "-100 -100\n-100 -100\n0 285\n1 285\n-100 -100\n",
       "Polyline 000000 (6000,4500) (6000,3386)\n"},
      {"a lone vertex draws nothing", "0 285\n-100 -100\n0 286\n1 286\n",
       "Polyline 000000 (7114,4500) (7114,3386)\n"},
      {"a long step in y", "0 285\n2 285\n3 285\n", "Polyline 000000 (6000,2271) (6000,1157)\n"},
      {"a long step in x", "0 285\n0 287\n0 288\n", "Polyline 000000 (8229,4500) (9343,4500)\n"},
      {"1.7 degrees in both are no long step", "0 285\n1.7 286.7\n",
       "Polyline 000000 (6000,4500) (7894,2605)\n"},
      {"-2000 ends the drawing", "0 285\n1 285\n-2000\n0 285\n", "Polyline 000000 (6000,4500) (6000,3386)\n"},
      {"drawn up to the limit and along it", "0 306\n0 307\n.5 307\n",
       "Polyline 000000 (29402,4500) (30000,4500) (30000,3929)\n"},
      {"beyond the limit by more than a long step", "0 307\n0 308.5\n0 309\n", ""}};
  for (const auto& row : rows) EXPECT_EQ(Draw(row.vertices), row.drawn) << row.what;
}

TEST(OutlinesTest, AVertexWithoutAPositionLiftsThePen) {
  RecordingCanvas canvas;
  VertexJoiner joiner(OutlinePen().LongestStep,
                      [&canvas](std::span<const Point> stroke) { canvas.Polyline(stroke); });
  const float none = std::numeric_limits<float>::quiet_NaN();
  std::vector<Point> points = {{0, 0}, {0, 9}, {none, none}, {5, 0}, {5, 9}};
  joiner.Add({}, points);
  joiner.End();
  EXPECT_EQ(canvas.Readable(), "Polyline 000000 (0,0) (0,9)\nPolyline 000000 (5,0) (5,9)\n");
}

/// The strokes of vertices that come in pieces of some lengths, pen-up marks before some vertices.
std::string Joined(const std::vector<std::size_t>& lengths, const std::vector<std::size_t>& penUps) {
  RecordingCanvas canvas;
  VertexJoiner joiner(OutlinePen().LongestStep,
                      [&canvas](std::span<const Point> stroke) { canvas.Polyline(stroke); });
  std::size_t begin = 0;
  for (const std::size_t length : lengths) {
    Outline piece;
    std::vector<Point> points;
    for (std::size_t i = begin; i < begin + length; ++i) points.push_back({static_cast<float>(i), 0});
    for (const std::size_t penUp : penUps)
      if (penUp > begin && penUp <= begin + length) piece.PenUpBefore.push_back(penUp - begin);
    joiner.Add(piece, points);
    begin += length;
  }
  joiner.End();
  return canvas.Readable();
}

TEST(OutlinesTest, StrokesGoOnFromPieceToPiece) {
  for (const std::vector<std::size_t>& penUps :
       std::vector<std::vector<std::size_t>>{{}, {1}, {4}, {3, 5}, {2, 4, 8}, {9}}) {
    const std::string whole = Joined({9}, penUps);
    for (const auto& lengths :
         std::vector<std::vector<std::size_t>>{{4, 5}, {1, 8}, {3, 1, 0, 5}, {2, 2, 2, 2, 1}, {8, 1}})
      EXPECT_EQ(Joined(lengths, penUps), whole) << lengths.size() << ' ' << penUps.size();
  }
  // A stroke of very many vertices is drawn in several that hang together.
  const std::string line = Joined(std::vector<std::size_t>(10, 1000), {});
  EXPECT_EQ(std::count(line.begin(), line.end(), '\n'), 2) << line;
  EXPECT_NE(line.find("(4999,0)\nPolyline 000000 (4999,0)"), std::string::npos);
}

/// A long file is read in two halves.
TEST(OutlinesTest, ALongFileIsDrawnAsItsVerticesAre) {
  const MapProjection projection({0, 75}, 750);
  const auto strokes = [](int count, const char* lift) {
    std::string bytes;
    for (int i = 0; i < count; ++i)
      bytes += std::to_string(i % 7) + ".25 " + std::to_string(280 + i % 11) + (i % 5 == 0 ? lift : "\n");
    return bytes;
  };
  const std::string end = "\n-2000\n1 285\n2 285\n-100 -100\n3 285\n3 286\n";
  const struct {
    const char* what;
    std::string bytes;
  } rows[] = {{"pen-up marks", strokes(60000, "\n-100 -100\n")},
              {"with CR LF", strokes(60000, "\r\n-100 -100\r\n")},
              {"none that is found", strokes(60000, "\n -100 -100 \n")},
              {"numbers that only begin like one", strokes(60000, "\n-100 -1005\n")},
              {"the end mark in the first half", strokes(9, "\n") + end + strokes(60000, "\n-100 -100\n")},
              {"and in the second", strokes(60000, "\n-100 -100\n") + end}};
  for (const auto& row : rows) {
    ASSERT_GT(row.bytes.size(), 256U * 1024);
    RecordingCanvas fromFile, fromVertices;
    DrawOutline(fromFile, row.bytes, PenFor(projection));
    Outline outline = WholeOutline(row.bytes);
    std::vector<Point> points(outline.Latitude.size());
    projection.Vertices(outline.Latitude, outline.Longitude, points);
    VertexJoiner joiner(OutlinePen().LongestStep,
                        [&](std::span<const Point> stroke) { fromVertices.Polyline(stroke); });
    joiner.Add(outline, points);
    joiner.End();
    EXPECT_EQ(fromFile.Readable(), fromVertices.Readable()) << row.what;
    EXPECT_FALSE(fromFile.Readable().empty()) << row.what;
  }
}

TEST(OutlinesTest, FilesInTheirColoursWithTheHomeMarkBetween) {
  const TestFolder files;
  files.Put("states.DAT", "0 285\n1 285\n-2000\n");
  files.Put("REGION2.dat", "0 285\n0 286\n");
  RecordingCanvas canvas;
  EXPECT_TRUE(DrawOutlineFiles(canvas, files.Folder(), MapProjection({0, 75}, 750)).empty());
  const std::string home =
      "Circle 0000FF (6000,4500) r50\n"
      "Line 0000FF (5950,4500) (6050,4500)\n"
      "Line 0000FF (6000,4450) (6000,4550)\n";
  EXPECT_EQ(canvas.Readable(),
            "Polyline DD9999 (6000,4500) (6000,3386)\n" + home + "Polyline CC8888 (6000,4500) (7114,4500)\n");

  const TestFolder empty;
  canvas.Clear();
  EXPECT_TRUE(DrawOutlineFiles(canvas, empty.Folder(), MapProjection({0, 75}, 750)).empty());
  EXPECT_EQ(canvas.Readable(), home);
  QDir(empty.Folder().Path()).mkdir("region2.dat");
  EXPECT_EQ(DrawOutlineFiles(canvas, empty.Folder(), MapProjection({0, 75}, 750)),
            std::vector<std::string>{"region2.dat: is a folder or a device, not a file"});
}

TEST(OutlinesTest, TheOpeningMapHasCoastsStatesAndTheLocalStations) {
  const TestFolder files;
  files.Put("REGION2.dat", "39 263\n40 263\n");
  files.Put("STATES.dat", "39 263\n39 264\n");
  files.Put("1490x.dat", "1490,A,c,s,u,U,39,97,1,-,-,0\n");
  files.Put("1500x.dat", "1500,A,c,s,u,U,39,97,1,-,-,0\n");
  RecordingCanvas canvas;
  DrawOverviewMap(canvas, files.Folder());
  EXPECT_EQ(canvas.Readable(),
            "Polyline E8B890 (6000,4500) (6000,4262)\n"
            "Polyline A06848 (6000,4500) (6185,4499)\n"
            "FilledCircle FF9911 (6000,4500) r7\n");
}

}  // namespace
}  // namespace kestrel
