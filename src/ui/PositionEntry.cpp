#include "ui/PositionEntry.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

#include "core/EntryHints.h"
#include "ui/Controls.h"

namespace kestrel {

PositionEntry::PositionEntry(QGridLayout& grid, const Caption& latitude, const Caption& longitude)
    : latitude_(AddPart(grid, 0, "txtLatitude", "lblHintLatitude", latitude)),
      longitude_(AddPart(grid, 2, "txtLongitude", "lblHintLongitude", longitude)) {
  Watch(latitude_);
  Watch(longitude_);
}

PositionEntry::Part PositionEntry::AddPart(QGridLayout& grid, int column, const char* box, const char* hint,
                                           const Caption& caption) {
  const Part part{MakeBox(box, caption.Tip), MakeLabel(hint, {}), {}};
  grid.addWidget(MakeLabel(caption.Name, caption.Text, part.Box), 0, column);
  grid.addWidget(part.Box, 0, column + 1);
  grid.addWidget(part.Hint, 1, column, 1, 2, Qt::AlignRight);
  return part;
}

void PositionEntry::Watch(Part& part) {
  QObject::connect(part.Box, &QLineEdit::textChanged, part.Box, [this, &part] {
    part.SetHint({});
    if (Edited) Edited();
  });
}

void PositionEntry::Show(const QString& latitude, const QString& longitude) {
  latitude_.Box->setText(latitude);
  longitude_.Box->setText(longitude);
  latitude_.SetHint({});
  longitude_.SetHint({});
  CountAsShown();
}

void PositionEntry::CountAsShown() {
  for (Part* part : {&latitude_, &longitude_}) part->Shown = part->Box->text();
}

std::string PositionEntry::Latitude() const {
  return TypedNumber(*latitude_.Box);
}

std::string PositionEntry::Longitude() const {
  return TypedNumber(*longitude_.Box);
}

void PositionEntry::ShowHints(EmptyBox empty) {
  const auto text = [empty](const std::string& typed) {
    return typed.empty() && empty == EmptyBox::IsNoNumber ? std::string(" ") : typed;
  };
  latitude_.SetHint(LatitudeHint(text(Latitude())));
  longitude_.SetHint(LongitudeHint(text(Longitude())));
}

bool PositionEntry::Part::Typed() const {
  return Box->text() != Shown;
}

void PositionEntry::Part::SetHint(std::string_view hint) {
  Hint->setText(Text(hint));
  MarkBox(Box, !hint.empty());
}

}  // namespace kestrel
