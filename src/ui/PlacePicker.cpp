#include "ui/PlacePicker.h"

#include <QCoreApplication>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

#include "data/PlaceLists.h"
#include "ui/Controls.h"
#include "ui/Keys.h"

namespace kestrel {
namespace {

constexpr int kFewestRows = 6;
constexpr int kBesideLists = 8;  // characters: what a window with two lists shows left, right and between

QString Trimmed(const std::string& text) {
  return Text(text).trimmed();
}

/// What is typed and what it is compared with, runs of blanks being one blank.
QString Joined(const QString& text) {
  const QString joined = text.simplified();
  return !joined.isEmpty() && text.back().isSpace() ? joined + ' ' : joined;
}

}  // namespace

PlacePicker::PlacePicker(QWidget& window, const char* listName, const char* searchName,
                         const QString& searchHint, const std::vector<std::string>& lines,
                         const PlaceListLook& look)
    : lines_(lines), look_(look) {
  search_ = MakeBox(searchName, "Moves the list to the first entry that begins with this; Enter takes it");
  search_->setPlaceholderText(searchHint);
  search_->setAccessibleName(searchHint);
  search_->setClearButtonEnabled(true);

  list_ = new RowsTable(listName, QFontDatabase::systemFont(QFontDatabase::FixedFont));
  list_->setAccessibleName(look.Name);
  list_->setSelectionMode(QAbstractItemView::SingleSelection);
  list_->SetRows(
      look.Columns, static_cast<int>(lines.size()),
      [this](int row) { return look_.Cells(lines_[static_cast<std::size_t>(row)]); }, look.WideColumn);
  // On a small screen two lists stand side by side still, and scroll sideways.
  const int wholeWidth = list_->WholeWidth();
  const int screenWidth = screen()->availableSize().width();
  const int besideLists = kBesideLists * list_->fontMetrics().averageCharWidth();
  const bool twoFit = 2 * wholeWidth + besideLists <= screenWidth;
  list_->setMinimumSize(twoFit ? wholeWidth : std::min(wholeWidth, screenWidth * 2 / 5),
                        kFewestRows * list_->RowHeight());

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(search_);
  layout->addWidget(list_, 1);

  connect(search_, &QLineEdit::textEdited, this, [this](const QString& text) { Find(text); });
  connect(list_, &QTableView::clicked, this, [this] { TakeCurrent(); });
  connect(list_->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
    highlighted_ = list_->selectionModel()->hasSelection();
    if (highlighted_ && Highlighted) Highlighted();
  });
  list_->installEventFilter(this);
  AddKeys(window);
}

void PlacePicker::AddKeys(QWidget& window) {
  const QByteArray list = list_->objectName().toLatin1();
  const QByteArray search = search_->objectName().toLatin1();
  // Enter is kept from the form, whose default button it would press.
  for (QWidget* where : {static_cast<QWidget*>(search_), static_cast<QWidget*>(list_)})
    AddShortcuts(
        window, list.constData(), [this] { TakeCurrent(); }, where);
  const auto move = [this](const QKeySequence& keys) { list_->MoveCurrent(keys[0].key()); };
  AddShortcuts(window, search.constData(), move, search_);
}

int PlacePicker::FirstRowBeginning(const QString& text) const {
  const auto begins = [sought = Joined(text)](const QString& key) {
    return Joined(key + ' ').startsWith(sought, Qt::CaseInsensitive);
  };
  const auto found = std::find_if(lines_.begin(), lines_.end(), [&](const std::string& line) {
    const QStringList keys = look_.Keys(line);
    return std::any_of(keys.begin(), keys.end(), begins);
  });
  return found == lines_.end() ? -1 : static_cast<int>(found - lines_.begin());
}

void PlacePicker::Find(const QString& text) {
  const bool searches = !text.trimmed().isEmpty();
  const int row = searches ? FirstRowBeginning(text) : -1;
  MarkBox(search_, searches && row < 0);
  const QModelIndex index = list_->model()->index(row, 0);
  list_->setCurrentIndex(index);
  if (index.isValid())
    list_->scrollTo(index, QAbstractItemView::PositionAtTop);
  else
    list_->clearSelection();
  if (!searches) list_->scrollToTop();
}

void PlacePicker::TakeCurrent() {
  // The row that the list makes current when it gets the focus is not one that anybody chose.
  const QModelIndexList chosen = list_->selectionModel()->selectedRows();
  if (chosen.isEmpty()) return;
  highlighted_ = false;
  MarkBox(search_, false);
  if (Taken) Taken(chosen.front().row());
}

void PlacePicker::TakeHighlighted() {
  if (highlighted_) TakeCurrent();
}

bool PlacePicker::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
  const QString text = static_cast<QKeyEvent*>(event)->text();
  if (text.isEmpty() || !text[0].isLetterOrNumber()) return QWidget::eventFilter(watched, event);
  // Letters typed in the list are looked for, like those typed above it.
  search_->clear();
  search_->setFocus();
  QCoreApplication::sendEvent(search_, event);
  return true;
}

PlaceListLook CityColumns() {
  PlaceListLook look;
  look.Name = "Cities";
  look.Columns = {{"City", 25},
                  {"State or country", 12},
                  {"Latitude", 9, Qt::AlignRight},
                  {"Longitude", 9, Qt::AlignRight}};
  look.Cells = [](const std::string& line) {
    const Place place = CutCity(line);
    const auto [city, state] = SplitPlaceName(place.Name);
    return QStringList{Trimmed(city), Trimmed(state), Trimmed(place.LatitudeText),
                       Trimmed(place.LongitudeText)};
  };
  look.Keys = [](const std::string& line) { return QStringList{Trimmed(CutCity(line).Name)}; };
  return look;
}

PlaceListLook CallColumns() {
  PlaceListLook look;
  look.Name = "Stations";
  look.Columns = {
      {"Call", 8}, {"Place", 25}, {"Latitude", 9, Qt::AlignRight}, {"Longitude", 9, Qt::AlignRight}};
  look.WideColumn = 1;
  look.Cells = [](const std::string& line) {
    const Place place = CutCall(line);
    return QStringList{Trimmed(place.CallSign), Trimmed(place.Name), Trimmed(place.LatitudeText),
                       Trimmed(place.LongitudeText)};
  };
  look.Keys = [](const std::string& line) {
    const Place place = CutCall(line);
    return QStringList{Trimmed(place.CallSign), Trimmed(place.Name)};
  };
  return look;
}

PlaceListLook WholeCityLines() {
  PlaceListLook look;
  look.Name = "Cities";
  look.Columns = {{QString(), 57}};
  look.Cells = [](const std::string& line) { return QStringList{Text(line)}; };
  look.Keys = CityColumns().Keys;
  return look;
}

}  // namespace kestrel
