#include "ui/PositionEntry.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

#include "ui/Controls.h"

namespace kestrel {

PositionEntry::PositionEntry(QGridLayout& grid, EntryOf place, const Caption& latitude,
                             const Caption& longitude)
    : latitude_{Axis::Latitude, place}, longitude_{Axis::Longitude, place} {
  Add(grid, 0, "txtLatitude", "lblHintLatitude", latitude, latitude_);
  Add(grid, 2, "txtLongitude", "lblHintLongitude", longitude, longitude_);
}

void PositionEntry::Add(QGridLayout& grid, int column, const char* box, const char* note,
                        const Caption& caption, Part& part) {
  part.Box = MakeBox(box, caption.Tip);
  part.Note = MakeLabel(note, {});
  grid.addWidget(MakeLabel(caption.Name, caption.Text, part.Box), 0, column);
  grid.addWidget(part.Box, 0, column + 1);
  grid.addWidget(part.Note, 1, column, 1, 2, Qt::AlignRight);
  QObject::connect(part.Box, &QLineEdit::textChanged, part.Box, [&part] { part.ShowNote(part.Read()); });
}

void PositionEntry::Show(const QString& latitude, const QString& longitude) {
  latitude_.Box->setText(latitude);
  longitude_.Box->setText(longitude);
  latitude_.ShowNote({});
  longitude_.ShowNote({});
  CountAsShown();
}

void PositionEntry::CountAsShown() {
  for (Part* part : {&latitude_, &longitude_}) part->Shown = part->Box->text();
}

bool PositionEntry::IsEmpty() const {
  return latitude_.Box->text().isEmpty() || longitude_.Box->text().isEmpty();
}

std::optional<Position> PositionEntry::Read() const {
  const CoordinateEntry latitude = latitude_.Read();
  const CoordinateEntry longitude = longitude_.Read();
  if (latitude.Refused || longitude.Refused) return std::nullopt;
  return Position{latitude.Degrees, longitude.Degrees};
}

void PositionEntry::FocusRefused() {
  Part& part = latitude_.Read().Refused ? latitude_ : longitude_;
  part.Box->setFocus();
  part.Box->selectAll();
}

bool PositionEntry::Part::Typed() const {
  return Box->text() != Shown;
}

CoordinateEntry PositionEntry::Part::Read() const {
  return ReadEntry(TypedNumber(*Box), Of, Place);
}

void PositionEntry::Part::ShowNote(const CoordinateEntry& entry) {
  Note->setText(Text(entry.Note));
  Box->setAccessibleDescription(Note->text());
  MarkBox(Box, entry.Doubtful);
}

}  // namespace kestrel
