#include <proj.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <random>
#include <utility>

#include "Rows.h"
#include "Table.h"
#include "core/Geodesy.h"
#include "levels/Levels.h"
#include "straight/Formulas.h"
#include "straight/Reading.h"

namespace kestrel::bench {
namespace {

constexpr float kHomeLatitude = 33.24278F;
constexpr float kHomeLongitude = 96.54139F;
constexpr float kScale = 200;

StationRecord TwelveTowers() {
  std::mt19937 random(12);
  std::uniform_real_distribution<float> share(0, 1);
  StationRecord record;
  record.HoursCode = "N";
  record.PowerKW = 5;
  record.TowerCount = MaxTowers;
  for (std::size_t i = 1; i <= MaxTowers; ++i) {
    record.Switch[i] = "0";
    record.Fields[i] = 0.2F + share(random);
    record.Phases[i] = 360 * share(random) - 180;
    record.Spacings[i] = 600 * share(random);
    record.Bearings[i] = 360 * share(random);
  }
  return record;
}

/// The sweep rewrites its record, so both ways work on a copy.
template <typename Compute>
auto Sweeping(std::vector<StationRecord> records, Compute compute) {
  return [records = std::move(records), compute] {
    PatternValues values;
    for (const StationRecord& original : records) {
      StationRecord record = original;
      compute(record, values);
      Keep(&values);
    }
  };
}

void AddSweepRow(const std::string& work, const std::vector<StationRecord>& records) {
  AddRow("pattern sweep, " + work, "scalar formula", {12, 0}, Sweeping(records, kestrel::ComputePattern),
         Sweeping(records, straight::ComputePattern));
}

/// All vertices through PROJ's azimuthal equidistant projection on a sphere.
class ProjPlot {
 public:
  explicit ProjPlot(const Outline& outline) : outline_(outline), coordinates_(outline.Latitude.size()) {
    const std::string text = "+proj=aeqd +lat_0=" + std::to_string(kHomeLatitude) +
                             " +lon_0=" + std::to_string(-kHomeLongitude) + " +R=1";
    projection_ = proj_create(nullptr, text.c_str());
  }

  /// In the program's twips, its sphere having 111.44 km to the degree.
  std::vector<Point> Places() {
    Run();
    const double radius = KilometresPerDegree * DegreesPerRadian * kScale / 75;
    std::vector<Point> places;
    for (const PJ_COORD& place : coordinates_)
      places.push_back({static_cast<float>(HomeOnSheet.x + place.xy.x * radius),
                        static_cast<float>(HomeOnSheet.y - place.xy.y * radius)});
    return places;
  }

  void Run() {
    for (std::size_t i = 0; i < coordinates_.size(); ++i)
      coordinates_[i] = proj_coord(proj_torad(LongitudeInRange(outline_.Longitude[i])),
                                   proj_torad(outline_.Latitude[i]), 0, 0);
    proj_trans_array(projection_, PJ_FWD, coordinates_.size(), coordinates_.data());
    Keep(coordinates_.data());
  }

 private:
  const Outline& outline_;
  std::vector<PJ_COORD> coordinates_;
  PJ* projection_;
};

const Outline& Region2() {
  static const Outline outline = straight::ReadOutline(std::string(KESTREL_SHARE_DIR) + "/REGION2.dat");
  return outline;
}

/// Rows of `place(outline, points)` against GreatCircle and PROJ; `asked`: as AVX2 is asked for.
template <typename Place>
void AddProjectionRows(const std::string& work, bool asked, Place place) {
  static std::vector<Point> points(Region2().Latitude.size());
  static ProjPlot proj(Region2());
  const auto fast = [place] {
    place(Region2(), points);
    Keep(points.data());
  };
  AddRow(work, "GreatCircle for each vertex", {asked ? 14.0 : 0, 0}, fast, [] {
    straight::PlaceByGreatCircle(kHomeLatitude, kHomeLongitude, kScale, Region2().Latitude,
                                 Region2().Longitude, points);
    Keep(points.data());
  });
  AddRow(work, "PROJ aeqd on a sphere", {asked ? 8.0 : 0, 0}, fast, [] { proj.Run(); });
}

/// Home as the kernel takes it.
ProjectionCenter Center() {
  const auto [sine, cosine] = SineAndCosine(kHomeLatitude);
  return {sine, cosine, -double{kHomeLongitude}, KilometresPerDegree * DegreesPerRadian * kScale / 75};
}

void AddDistanceNote(const std::vector<Point>& places, const std::vector<Point>& others) {
  double farthest = 0;
  for (std::size_t i = 0; i < places.size(); ++i)
    farthest = std::max<double>(
        {farthest, std::abs(places[i].x - others[i].x), std::abs(places[i].y - others[i].y)});
  std::array<char, 100> text;
  std::snprintf(text.data(), text.size(),
                "Places of REGION2.dat and PROJ's on the same sphere: at most %.4f twip apart (asked: 0.01).",
                farthest);
  AddNote(text.data());
}

}  // namespace

void AddSweepRow() {
  AddSweepRow("one 12-tower record", {TwelveTowers()});
}

void AddSweepRow(const Band& band) {
  AddSweepRow("400-record channel, " + band.Name, ReadChannel(band, ChannelOf(band, 400, false)));
}

void AddProjectionRows() {
  const auto place = [](const Outline& outline, std::vector<Point>& points) {
    MapProjection({kHomeLatitude, kHomeLongitude}, kScale)
        .Vertices(outline.Latitude, outline.Longitude, points);
  };
  AddProjectionRows("projection of REGION2.dat", true, place);
  const Outline& outline = Region2();
  std::vector<Point> points(outline.Latitude.size());
  place(outline, points);
  AddDistanceNote(points, ProjPlot(outline).Places());
}

void AddLevelRows() {
  static const StationRecord record = TwelveTowers();
  static std::vector<SweepTower> towers;
  for (std::size_t i = 1; i <= MaxTowers; ++i)
    towers.push_back({record.Fields[i], record.Spacings[i] / DegreesPerRadian,
                      record.Bearings[i] / DegreesPerRadian, record.Phases[i] / DegreesPerRadian});
  for (const Level& level : LevelsHere()) {
    const std::string_view name = level.Name;
    AddRow(
        "kernel of the sweep, 12 towers, " + std::string(name), "scalar formula",
        {name == "x86-64" ? 5.0 : 12.0, 0},
        [level] {
          std::array<float, PatternAzimuths> magnitudes;
          static_cast<void>(level.Sweep(towers.data(), MaxTowers, magnitudes.data()));
          Keep(magnitudes.data());
        },
        Sweeping({record}, straight::ComputePattern));
    AddProjectionRows("kernel of the projection, REGION2.dat, " + std::string(name), name == "x86-64-v3",
                      [level](const Outline& outline, std::vector<Point>& points) {
                        level.Place(Center(), outline.Latitude.data(), outline.Longitude.data(), &points[0].x,
                                    points.size());
                      });
  }
}

}  // namespace kestrel::bench
