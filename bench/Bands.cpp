#include "Bands.h"

#include <QDir>
#include <QTemporaryDir>
#include <cmath>

#include "core/Band.h"
#include "core/Numbers.h"
#include "straight/Reading.h"

namespace kestrel::bench {

namespace {

/// The real band has no outlines of its own; this folder shows both together.
std::string WithOutlines(const QString& band) {
  static const QTemporaryDir folder;
  for (const QString& name : QDir(band).entryList(QDir::Files))
    QFile::link(QDir(band).filePath(name), folder.filePath(name));
  for (const char* name : {"REGION2.dat", "STATES.dat"})
    QFile::link(QDir(KESTREL_SHARE_DIR).filePath(name), folder.filePath(name));
  return folder.path().toStdString();
}

}  // namespace

std::vector<Band> Bands() {
  std::vector<Band> bands = {{"demonstration band", KESTREL_SHARE_DIR}};
  if (const QString real = KESTREL_REAL_BAND; !real.isEmpty())
    bands.push_back({"real band", WithOutlines(real)});
  return bands;
}

std::vector<float> Channels() {
  std::vector<float> channels;
  for (float channel = LowestChannel; channel <= HighestChannel; channel += ChannelStep)
    channels.push_back(channel);
  return channels;
}

std::string StationPath(const Band& band, float channel) {
  return band.Folder + '/' + NumberText(channel) + "x.dat";
}

std::vector<StationRecord> ReadChannel(const Band& band, float channel) {
  std::vector<StationRecord> records;
  straight::StationReader reader(StationPath(band, channel));
  while (const StationRecord* record = reader.Next()) records.push_back(*record);
  return records;
}

float ChannelOf(const Band& band, std::size_t records, bool adjacents) {
  const auto count = [&](float channel) { return static_cast<double>(ReadChannel(band, channel).size()); };
  float best = LowestChannel;
  double bestDistance = 1e9;
  for (const float channel : Channels()) {
    double total = count(channel);
    if (adjacents) total += count(channel - ChannelStep) + count(channel + ChannelStep);
    const double distance = std::abs(total - static_cast<double>(records));
    if (distance < bestDistance) {
      best = channel;
      bestDistance = distance;
    }
  }
  return best;
}

}  // namespace kestrel::bench
