#include "ui/PlacePicker.h"

#include <QCoreApplication>
#include <QFontDatabase>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScreen>
#include <QScrollBar>
#include <QTableView>
#include <QVBoxLayout>
#include <algorithm>

#include "core/Text.h"
#include "data/PlaceLists.h"
#include "ui/Controls.h"

namespace kestrel {
namespace {

constexpr int kFewestRows = 6;
constexpr int kRowMargin = 4;    // pixels
constexpr int kBesideLists = 8;  // characters: what a window with two lists shows left, right and between

QString Trimmed(const std::string& text) {
  return QString::fromStdString(text).trimmed();
}

}  // namespace

PlaceTable::PlaceTable(const std::vector<std::string>& lines, PlaceListLook look, QObject* parent)
    : QAbstractTableModel(parent), lines_(lines), look_(std::move(look)) {}

int PlaceTable::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(lines_.size());
}

int PlaceTable::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(look_.Columns.size());
}

QVariant PlaceTable::data(const QModelIndex& index, int role) const {
  if (role == Qt::DisplayRole) return look_.Cells(lines_[index.row()]).value(index.column());
  if (role == Qt::TextAlignmentRole)
    return QVariant(look_.Columns[index.column()].Alignment | Qt::AlignVCenter);
  return {};
}

QVariant PlaceTable::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  if (role == Qt::DisplayRole) return look_.Columns[section].Header;
  if (role == Qt::TextAlignmentRole)
    return QVariant(look_.Columns[section].Alignment | Qt::AlignVCenter | Qt::AlignAbsolute);
  return {};
}

int PlaceTable::FirstRowBeginning(const QString& text) const {
  const auto found = std::find_if(lines_.begin(), lines_.end(), [&](const std::string& line) {
    const QStringList keys = look_.Keys(line);
    return std::any_of(keys.begin(), keys.end(),
                       [&](const QString& key) { return key.startsWith(text, Qt::CaseInsensitive); });
  });
  return found == lines_.end() ? -1 : static_cast<int>(found - lines_.begin());
}

PlacePicker::PlacePicker(const char* listName, const char* searchName, const QString& searchHint,
                         const std::vector<std::string>& lines, const PlaceListLook& look) {
  search_ = MakeBox(searchName, "Moves the list to the first entry that begins with this; Enter takes it");
  search_->setPlaceholderText(searchHint);
  search_->setClearButtonEnabled(true);

  list_ = new QTableView;
  list_->setObjectName(listName);
  table_ = new PlaceTable(lines, look, list_);
  list_->setModel(table_);
  list_->setLayoutDirection(Qt::LeftToRight);  // its lines are columns of English text and numbers
  list_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  list_->setSelectionBehavior(QAbstractItemView::SelectRows);
  list_->setSelectionMode(QAbstractItemView::SingleSelection);
  list_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  list_->setTabKeyNavigation(false);
  list_->setShowGrid(false);
  list_->setWordWrap(false);
  list_->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);

  // All rows of one height: thousands of them open at once.
  const QFontMetrics metrics(list_->font());
  list_->verticalHeader()->hide();
  list_->verticalHeader()->setMinimumSectionSize(metrics.height());
  list_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  list_->verticalHeader()->setDefaultSectionSize(metrics.height() + kRowMargin);

  QHeaderView* header = list_->horizontalHeader();
  header->setHighlightSections(false);
  header->setVisible(!look.Columns.front().Header.isEmpty());
  header->setSectionResizeMode(QHeaderView::Fixed);
  int totalWidth = 0;
  for (int column = 0; column < table_->columnCount(); ++column) {
    const PlaceListLook::Column& shown = look.Columns[column];
    const int width = std::max(header->fontMetrics().horizontalAdvance(shown.Header),
                               metrics.averageCharWidth() * shown.Characters) +
                      2 * metrics.averageCharWidth();
    list_->setColumnWidth(column, width);
    totalWidth += width;
  }
  // On a small screen two lists stand side by side still, and scroll sideways.
  const int wholeWidth =
      totalWidth + list_->verticalScrollBar()->sizeHint().width() + 2 * list_->frameWidth();
  const int screenWidth = screen()->availableSize().width();
  const bool twoFit = 2 * wholeWidth + kBesideLists * metrics.averageCharWidth() <= screenWidth;
  const int offeredWidth = twoFit ? wholeWidth : std::min(wholeWidth, screenWidth * 2 / 5);
  if (offeredWidth == wholeWidth) header->setSectionResizeMode(look.WideColumn, QHeaderView::Stretch);
  list_->setMinimumSize(offeredWidth, kFewestRows * (metrics.height() + kRowMargin));

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(search_);
  layout->addWidget(list_, 1);

  connect(search_, &QLineEdit::textEdited, this, [this](const QString& text) { Find(text); });
  connect(list_, &QTableView::clicked, this, [this] { TakeCurrent(); });
  search_->installEventFilter(this);
  list_->installEventFilter(this);
}

void PlacePicker::Find(const QString& text) {
  const int row = text.isEmpty() ? 0 : table_->FirstRowBeginning(text);
  MarkBox(search_, row < 0);
  if (row < 0) {
    list_->setCurrentIndex({});
    return;
  }
  const QModelIndex index = table_->index(row, 0);
  list_->setCurrentIndex(index);
  list_->scrollTo(index, QAbstractItemView::PositionAtTop);
}

void PlacePicker::TakeCurrent() {
  const QModelIndex index = list_->currentIndex();
  if (index.isValid() && Taken) Taken(index.row());
}

bool PlacePicker::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
  auto* key = static_cast<QKeyEvent*>(event);
  switch (key->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      // Kept from the form, whose default button it would press.
      TakeCurrent();
      return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
      if (watched == list_) break;
      QCoreApplication::sendEvent(list_, event);
      return true;
    default:
      if (watched == search_ || key->text().isEmpty() || !key->text()[0].isLetterOrNumber()) break;
      // Letters typed in the list are looked for, like those typed above it.
      search_->clear();
      search_->setFocus();
      QCoreApplication::sendEvent(search_, event);
      return true;
  }
  return QWidget::eventFilter(watched, event);
}

PlaceListLook CityColumns() {
  PlaceListLook look;
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
  look.Columns = {{QString(), 57}};
  look.Cells = [](const std::string& line) { return QStringList{QString::fromStdString(line)}; };
  look.Keys = CityColumns().Keys;
  return look;
}

}  // namespace kestrel
