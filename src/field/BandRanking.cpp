#include "field/BandRanking.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <future>
#include <optional>

#include "core/Band.h"
#include "core/Processors.h"

namespace kestrel {
namespace {

/// Does the work for 0 to count - 1, whoever is done taking the next. Returns whether it was not stopped.
bool ShareOut(std::size_t count, const std::function<void(std::size_t)>& work,
              const BandRanking::Progress& progress) {
  std::atomic<std::size_t> next = 0;
  std::atomic<std::size_t> done = 0;
  const auto takeOne = [&] {
    const std::size_t i = next++;
    if (i >= count) return false;
    work(i);
    ++done;
    return true;
  };
  std::vector<std::future<void>> helpers;
  // Where the system gives no thread, they do not begin, and the caller does it all.
  const std::size_t processors = std::min(count, static_cast<std::size_t>(ProcessorsToUse()));
  for (std::size_t i = 1; i < processors; ++i)
    helpers.push_back(std::async([&] {
      while (takeOne())
        ;
    }));
  struct Ending {  // helpers stop soon, whatever is thrown
    std::atomic<std::size_t>& Next;
    std::size_t Count;
    ~Ending() { Next = Count; }
  };
  bool stopped = false;
  {
    const Ending ending{next, count};
    while (!stopped && takeOne()) stopped = progress && !progress(done, count);
  }
  for (std::future<void>& helper : helpers)
    if (helper.wait_for(std::chrono::seconds(0)) != std::future_status::deferred) helper.get();
  return !stopped;
}

/// What one channel's file came to.
struct Prepared {
  std::optional<ChannelRanking> Records;
  std::vector<std::string> Notes;
};

Prepared Prepare(const DataFolder& folder, float channel, const Position& home, double conductivity) {
  const QString name = StationFileName(channel);
  const Result<QByteArray> bytes = folder.Read(name);
  if (!bytes) {
    if (bytes.error().kind == Error::Kind::NotFound) return {};
    return {std::nullopt, {bytes.error().Message()}};
  }
  Prepared prepared;
  prepared.Records.emplace(channel, home, conductivity);
  prepared.Notes = prepared.Records->AddFile(name.toStdString(),
                                             {bytes->constData(), static_cast<std::size_t>(bytes->size())});
  return prepared;
}

std::vector<float> AllChannels() {
  std::vector<float> channels;
  for (float channel = LowestChannel; channel <= HighestChannel; channel += ChannelStep)
    channels.push_back(channel);
  return channels;
}

}  // namespace

BandRanking::BandRanking(const DataFolder& folder, const Position& home, double conductivity,
                         const Progress& progress)
    : BandRanking(folder, AllChannels(), home, conductivity, progress) {}

BandRanking::BandRanking(const DataFolder& folder, const std::vector<float>& frequencies,
                         const Position& home, double conductivity, const Progress& progress) {
  std::vector<Prepared> prepared(frequencies.size());
  wasStopped_ = !ShareOut(
      frequencies.size(),
      [&](std::size_t i) { prepared[i] = Prepare(folder, frequencies[i], home, conductivity); }, progress);
  for (std::size_t i = 0; i < prepared.size(); ++i) {
    if (prepared[i].Records) channels_.push_back({frequencies[i], std::move(*prepared[i].Records)});
    notes_.insert(notes_.end(), prepared[i].Notes.begin(), prepared[i].Notes.end());
  }
}

std::vector<Ranking> BandRanking::Rank(Moment moment, const RankingChoices& choices) {
  std::vector<Ranking> rankings(channels_.size());
  ShareOut(channels_.size(), [&](std::size_t i) { rankings[i] = channels_[i].Records.Rank(moment, choices); },
           {});
  return rankings;
}

}  // namespace kestrel
