#include "forms/GuideBrowser.h"

#include <QDir>
#include <QFileInfo>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextFrame>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "data/FileIo.h"
#include "forms/GuidePages.h"
#include "forms/GuideStyle.h"

namespace kestrel {
namespace {

constexpr int kSmallestStep = -4;
constexpr int kLargestStep = 12;
constexpr double kStep = 1.1;
constexpr int kColumnCharacters = 92;  // a wider column tires the eye
constexpr int kMargin = 14;            // pixels
constexpr int kTop = 6;                // pixels above the line that was gone to

}  // namespace

GuideBrowser::GuideBrowser(const QStringList& folders, QWidget* parent)
    : QTextBrowser(parent), folders_(folders), folder_(folders.value(0)) {
  for (const QString& folder : folders) {
    if (!QFileInfo::exists(folder + "/guide.md")) continue;
    folder_ = folder;
    break;
  }
  setOpenLinks(false);
  setUndoRedoEnabled(false);
  connect(this, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) { Follow(link); });
  connect(this, &QTextBrowser::sourceChanged, this, [this](const QUrl& shown) { TakeUp(shown); });
}

QUrl GuideBrowser::UrlOf(const QString& page) const {
  QUrl url = QUrl::fromLocalFile(folder_ + '/' + page.section('#', 0, 0));
  if (page.contains('#')) url.setFragment(page.section('#', 1));
  return url;
}

void GuideBrowser::ShowPage(const QString& page) {
  const QUrl url = UrlOf(page);
  if (url == url_) return;
  setSource(url, QTextDocument::MarkdownResource);
}

QString GuideBrowser::Page() const {
  return QDir(folder_).relativeFilePath(file_.toLocalFile());
}

QString GuideBrowser::Title(const QString& page) const {
  const QString title = TitleOf(page == KeysPage ? KeysMarkdown() : Markdown(UrlOf(page)));
  return title.isEmpty() ? page : title;
}

QString GuideBrowser::Markdown(const QUrl& url) const {
  const QString path = url.toLocalFile();
  const QString page = QDir(folder_).relativeFilePath(path);
  if (page == KeysPage) return KeysMarkdown();
  const Result<QByteArray> bytes = ReadFile(path);
  return bytes ? QString::fromUtf8(*bytes) : MissingMarkdown(page, folders_);
}

QVariant GuideBrowser::loadResource(int type, const QUrl& name) {
  // FitPictures has put the pictures of the page in; one that is not among them cannot be read.
  if (type == QTextDocument::ImageResource) return {};
  file_ = name.adjusted(QUrl::RemoveFragment);
  pictures_.clear();
  plain_ = true;
  return Markdown(file_);
}

void GuideBrowser::Follow(const QUrl& link) {
  if (link.isLocalFile()) return setSource(link, QTextDocument::MarkdownResource);
  if (AddressClicked) AddressClicked(link.toString());
}

void GuideBrowser::TakeUp(const QUrl& shown) {
  url_ = shown;
  if (std::exchange(plain_, false)) Restyle();
  if (shown.hasFragment()) ScrollToHeading(shown.fragment());
  if (PageShown) PageShown(Page());
}

void GuideBrowser::ScrollToHeading(const QString& anchor) {
  for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
    if (block.blockFormat().headingLevel() == 0 || HeadingAnchor(block.text()) != anchor) continue;
    setTextCursor(QTextCursor(block));
    return ScrollTo(block.position());
  }
}

void GuideBrowser::ScrollTo(int position) {
  QTextCursor cursor(document());
  cursor.setPosition(position);
  verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect(cursor).top() - kTop);
}

void GuideBrowser::KeepPlace(const std::function<void()>& change) {
  const bool atTop = verticalScrollBar()->value() == 0;
  const int first = cursorForPosition({viewport()->width() / 2, kTop + 1}).position();
  change();
  if (!atTop) ScrollTo(first);
}

void GuideBrowser::SetTextStep(int step) {
  step_ = std::clamp(step, kSmallestStep, kLargestStep);
  QFont font = parentWidget() ? parentWidget()->font() : QFont();
  font.setPointSizeF(font.pointSizeF() * std::pow(kStep, step_));
  KeepPlace([&] {
    setFont(font);
    Restyle();
  });
}

void GuideBrowser::Restyle() {
  StyleGuidePage(*document(), palette());
  FitColumn();
}

void GuideBrowser::FitColumn() {
  const int widest = fontMetrics().averageCharWidth() * kColumnCharacters;
  const int side = std::max(kMargin, (viewport()->width() - widest) / 2);
  QTextFrameFormat column = document()->rootFrame()->frameFormat();
  column.setLeftMargin(side);
  column.setRightMargin(side);
  document()->rootFrame()->setFrameFormat(column);

  FitPictures(std::max(1, viewport()->width() - 2 * side - kMargin));
}

void GuideBrowser::FitPictures(int room) {
  struct Placed {
    int Position;
    QTextImageFormat Format;
  };
  std::vector<Placed> placed;
  for (QTextBlock block = document()->begin(); block.isValid(); block = block.next())
    for (auto it = block.begin(); !it.atEnd(); ++it)
      if (it.fragment().charFormat().isImageFormat())
        placed.push_back({it.fragment().position(), it.fragment().charFormat().toImageFormat()});
  QTextCursor cursor(document());
  for (auto& [position, format] : placed) {
    const QString path = file_.resolved(QUrl(format.name())).toLocalFile();
    auto picture = pictures_.find(path);
    if (picture == pictures_.end()) picture = pictures_.insert(path, QImage(path));
    if (picture->isNull()) continue;
    const QSize size =
        picture->width() > room
            ? QSize(room, std::max(1, qRound(1.0 * picture->height() * room / picture->width())))
            : picture->size();
    QPixmap shown = QPixmap::fromImage(
        picture->scaled(size * devicePixelRatio(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    shown.setDevicePixelRatio(devicePixelRatio());
    document()->addResource(QTextDocument::ImageResource, document()->baseUrl().resolved(QUrl(format.name())),
                            shown);
    format.setWidth(size.width());
    format.setHeight(size.height());
    cursor.setPosition(position);
    cursor.setPosition(position + 1, QTextCursor::KeepAnchor);
    cursor.setCharFormat(format);
  }
}

void GuideBrowser::resizeEvent(QResizeEvent* event) {
  KeepPlace([&] {
    QTextBrowser::resizeEvent(event);
    FitColumn();
  });
}

void GuideBrowser::changeEvent(QEvent* event) {
  QTextBrowser::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) Restyle();
}

void GuideBrowser::wheelEvent(QWheelEvent* event) {
  if (!(event->modifiers() & Qt::ControlModifier)) return QTextBrowser::wheelEvent(event);
  const int turn = event->angleDelta().y();
  if (turn != 0 && SizeWheelTurned) SizeWheelTurned(turn > 0 ? 1 : -1);
  event->accept();
}

}  // namespace kestrel
