#include "data/TowerTable.h"

#include "core/Numbers.h"
#include "core/Text.h"

namespace kestrel {

std::vector<TowerRow> TowerTable(const StationRecord& record) {
  std::vector<TowerRow> rows;
  for (std::size_t i = 1; i <= static_cast<std::size_t>(record.TowerCount); ++i)
    rows.push_back({DisplayNumberText(record.Fields[i]), DisplayNumberText(record.Heights[i]),
                    DisplayNumberText(record.Phases[i]), DisplayNumberText(record.Spacings[i]),
                    DisplayNumberText(record.Bearings[i]), record.Switch[i]});
  return rows;
}

std::string TowerTableText(const std::vector<TowerRow>& rows) {
  std::string text;
  const auto addLine = [&text](const auto& cells) {
    for (std::size_t i = 0; i < TowerColumns; ++i) {
      if (i > 0) text += '\t';
      text += Trim(cells[i]);
    }
    text += '\n';
  };
  addLine(TowerHeads);
  for (const TowerRow& row : rows) addLine(row);
  return text;
}

}  // namespace kestrel
