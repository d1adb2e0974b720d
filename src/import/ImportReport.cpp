#include "import/ImportReport.h"

#include <algorithm>

#include "core/Text.h"

namespace kestrel {
namespace {

std::string RightAligned(int number, std::size_t width) {
  const std::string text = std::to_string(number);
  return std::string(width - std::min(width, text.size()), ' ') + text;
}

std::string Counts(const ImportReport::File& file) {
  return RightAligned(file.Rows, 9) + RightAligned(file.Taken, 9) + RightAligned(file.LeftOut, 9);
}

std::string FindingsText(const ImportReport& report, std::size_t first, std::size_t last) {
  std::string text;
  for (std::size_t i = first; i <= last; ++i) {
    const auto finding = static_cast<Finding>(i);
    const ImportReport::Count& count = report.Of(finding);
    if (count.Rows == 0) continue;
    text += RightAligned(count.Rows, 9) + "  " + std::string(FindingTitle(finding)) + '\n';
    for (const std::string& example : count.Examples) text += "             " + example + '\n';
  }
  return text;
}

}  // namespace

std::string_view FindingTitle(Finding finding) {
  switch (finding) {
    case Finding::WrongForm:
      return "rows that are damaged";
    case Finding::BadField:
      return "rows with a field that cannot be read";
    case Finding::OtherService:
      return "rows of another service than AM";
    case Finding::NotOnAir:
      return "stations not on the air";
    case Finding::NotLicensed:
      return "antenna records that are not the licensed ones";
    case Finding::OtherHours:
      return "antennas for hours that the map does not show";
    case Finding::OtherCountry:
      return "stations of other countries";
    case Finding::OffRaster:
      return "stations off the channels of 530 to 1700 kHz";
    case Finding::OutsideAmericas:
      return "stations outside the Americas";
    case Finding::Superseded:
      return "rows replaced by another of the same station and hours";
    case Finding::NoStation:
      return "antenna records without their station";
    case Finding::NotReferred:
      return "table rows of no antenna taken";
    case Finding::NoField:
      return "towers without a field";
    case Finding::NotUsed:
      return "pattern augmentations, which are not used";
    case Finding::NoRoom:
      return "rows beyond a million of their kind, the most that are held";
    case Finding::ChannelFull:
      return "stations of a channel that has 10000 stronger ones, the most that are shown";
    case Finding::TowersUnknown:
      return "directional antennas whose towers are not known";
    case Finding::TooManyTowers:
      return "arrays of more than 12 towers, taken without their pattern";
    case Finding::TowersPassedOver:
      return "non-directional antennas taken with one tower, those of the tables being incomplete";
    case Finding::TowersDisagree:
      return "antennas listed as non-directional, drawn with the towers of the tables";
    case Finding::CountryUnknown:
      return "stations with an unknown country code";
    case Finding::NameCut:
      return "names cut to the width of their column";
    case Finding::NameBlanked:
      return "names with a comma, now a blank";
    case Finding::NameEmpty:
      return "empty names, now a dash";
    case Finding::NoHome:
      return "stations not in the call-sign list, because home cannot be there";
    case Finding::IndexFull:
      return "stations not in the call-sign list, which holds 9000: the weaker ones of their towns";
  }
  return {};
}

int ImportReport::AddFile(std::string name, std::string content) {
  files_.push_back({std::move(name), std::move(content)});
  return static_cast<int>(files_.size()) - 1;
}

void ImportReport::LeaveOut(RowPlace row, Finding why, std::string_view text) {
  ++FileOf(row).LeftOut;
  Add(row, why, text);
}

void ImportReport::Add(RowPlace row, Finding finding, std::string_view text) {
  Count& count = counts_[static_cast<std::size_t>(finding)];
  ++count.Rows;
  if (count.Examples.size() < MostExamples)
    count.Examples.push_back(FileOf(row).Name + ':' + std::to_string(row.Line) + ": " + std::string(text));
}

ImportReport::File ImportReport::Total() const {
  File total{"all files", ""};
  for (const File& file : files_) {
    total.Rows += file.Rows;
    total.Taken += file.Taken;
    total.LeftOut += file.LeftOut;
  }
  return total;
}

std::string ReportText(const ImportReport& report) {
  std::size_t width = 9;
  for (const ImportReport::File& file : report.Files()) width = std::max(width, CharacterCount(file.Name));

  std::string text = PadTo("File", width) + "     rows    taken left out\n";
  for (const ImportReport::File& file : report.Files())
    text += PadTo(file.Name, width) + Counts(file) + "  " + file.Content + '\n';
  text += PadTo("all files", width) + Counts(report.Total()) + '\n';
  for (const ImportReport::Refusal& refusal : report.Refusals())
    text += refusal.File + ": " + refusal.Reason + '\n';

  constexpr auto kLastLeftOut = static_cast<std::size_t>(Finding::LastLeftOut);
  const std::string leftOut = FindingsText(report, 0, kLastLeftOut);
  if (!leftOut.empty()) text += "\nLeft out\n" + leftOut;
  const std::string remarks = FindingsText(report, kLastLeftOut + 1, FindingCount - 1);
  if (!remarks.empty()) text += "\nTaken, but\n" + remarks;
  text += "\n" + std::to_string(report.Stations) + " stations with " + std::to_string(report.Records) +
          " antennas by hours\n";
  return text;
}

}  // namespace kestrel
