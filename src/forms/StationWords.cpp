#include "forms/StationWords.h"

#include <QStringList>
#include <algorithm>
#include <chrono>
#include <cmath>

#include "core/Geodesy.h"
#include "core/Hours.h"
#include "core/Numbers.h"
#include "map/MapProjection.h"
#include "ui/Controls.h"

namespace kestrel {
namespace {

QString Whole(double value) {
  return QString::number(std::lround(value));
}

QString Kilohertz(float frequency) {
  return Text(NumberText(frequency));
}

QString HomeText(const SessionState& state) {
  const QString name = Text(state.HomeName).simplified();
  return name.isEmpty() ? Text(PositionText(state.Home())) : name;
}

QString PlaceText(const RecordAtHome& record) {
  return Text(record.CallSign + ' ' + record.City + (record.State == "-" ? "" : ' ' + record.State));
}

/// The strongest stations on the air that are not struck, at most three.
std::vector<const ListedStation*> Strongest(const std::vector<ListedStation>& stations) {
  std::vector<const ListedStation*> onAir;
  for (const ListedStation& station : stations)
    if (station.Now == ListedStation::Standing::OnAir) onAir.push_back(&station);
  const std::size_t most = std::min<std::size_t>(3, onAir.size());
  std::partial_sort(onAir.begin(), onAir.begin() + static_cast<std::ptrdiff_t>(most), onAir.end(),
                    [](const auto* a, const auto* b) { return a->Levels.Total > b->Levels.Total; });
  onAir.resize(most);
  return onAir;
}

}  // namespace

QString HourText(Moment moment) {
  std::string text = MomentText(std::chrono::floor<std::chrono::minutes>(moment));
  text.replace(text.find('T'), 1, " ");
  text.replace(text.find('Z'), 1, " UTC");
  return Text(text);
}

QString ChannelsText(const std::vector<float>& frequencies) {
  QStringList texts;
  for (const float frequency : frequencies) texts << Kilohertz(frequency);
  if (texts.isEmpty()) return "No channel";
  const QString last = texts.takeLast();
  return (texts.isEmpty() ? last : texts.join(", ") + " and " + last) + " kHz";
}

QString FieldText(const ListedStation& station) {
  const QString judged = Text(station.Word()) + ": " + Text(station.Reason());
  if (!station.IsOnAir()) return judged;
  return Whole(station.Levels.Total) + " dB above 1 uV/m, " + judged;
}

QString ChosenText(const ListedStation& station, int distanceUnit) {
  const RecordAtHome& record = *station.Record;
  const bool miles = distanceUnit == 1;
  const long bearing = std::lround(record.Bearing) % 360;
  const long side = (bearing + 90) % 180;
  return QString("%1 %2 kHz: %3 %4, %5 deg. To null it, turn a loop's plane to %6 or %7 deg")
      .arg(Text(record.CallSign), Kilohertz(station.Frequency),
           Whole(record.Distance * (miles ? MilesPerKilometre : 1)), miles ? "miles" : "km")
      .arg(bearing)
      .arg(side)
      .arg(side + 180);
}

QString SentenceOn(const std::vector<ListedStation>& stations, const std::vector<float>& frequencies,
                   const SessionState& state, Moment moment) {
  const auto onAir = std::count_if(stations.begin(), stations.end(),
                                   [](const ListedStation& station) { return station.IsOnAir(); });
  QString sentence = QString("%1 at %2, %3: %4 on the air")
                         .arg(ChannelsText(frequencies), HomeText(state), HourText(moment))
                         .arg(onAir);
  QStringList strongest;
  for (const ListedStation* station : Strongest(stations))
    strongest << QString("%1 %2 dB %3")
                     .arg(PlaceText(*station->Record), Whole(station->Levels.Total), Text(station->Word()));
  if (!strongest.isEmpty()) sentence += ", the strongest " + strongest.join(", ");
  return sentence + '.';
}

const ListedStation* StationOf(const std::vector<ListedStation>& stations, const StationMark& mark,
                               const SessionState& state) {
  const MapProjection projection(state.Home(), state.ScaleFactor);
  const ListedStation* best = nullptr;
  int bestAgreement = -1;
  for (const ListedStation& station : stations) {
    const RecordAtHome& record = *station.Record;
    if (static_cast<int>(station.Frequency) != mark.Channel || record.CallSign != mark.CallSign) continue;
    const bool told = station.Now != ListedStation::Standing::Hidden;
    const bool here = projection.Station(record.At) == mark.At;
    const bool same = HoursOf(mark.HoursCode) == record.OnAir;
    const int agreement = 4 * told + 2 * here + same;
    if (agreement > bestAgreement) best = &station;
    bestAgreement = std::max(bestAgreement, agreement);
  }
  return best;
}

}  // namespace kestrel
