#include "forms/frmGuide.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScreen>
#include <QSettings>
#include <QSplitter>
#include <QTextDocument>
#include <QToolBar>
#include <QWindow>
#include <algorithm>

#include "forms/GuideBrowser.h"
#include "forms/GuidePages.h"
#include "ui/AddressNotice.h"
#include "ui/Controls.h"
#include "ui/Keys.h"

namespace kestrel {
namespace {

const QString kPlaceSetting = "frmGuide/place";
const QString kPartsSetting = "frmGuide/parts";
const QString kSizeSetting = "frmGuide/textStep";

constexpr int kPageRole = Qt::UserRole;

}  // namespace

frmGuide::frmGuide(Platform& system, const QStringList& folders) : system_(system) {
  setObjectName("frmGuide");
  setWindowTitle("KestrelII - Guide");
  setAttribute(Qt::WA_DeleteOnClose);
  setAttribute(Qt::WA_QuitOnClose, false);

  browser_ = new GuideBrowser(folders, this);
  browser_->setObjectName("txtPage");
  browser_->setAccessibleName("Page");
  browser_->PageShown = [this](const QString& page) { TakeUp(page); };
  browser_->AddressClicked = [this](const QString& address) { notice_->Open(system_, address); };
  browser_->SizeWheelTurned = [this](int turn) { ChangeSize(browser_->TextStep() + turn); };
  contents_ = new QListWidget;
  contents_->setObjectName("lstContents");
  contents_->setAccessibleName("Contents");
  FillContents();
  parts_ = new QSplitter;
  parts_->setObjectName("Parts");
  parts_->addWidget(contents_);
  parts_->addWidget(browser_);
  parts_->setStretchFactor(1, 1);
  const int contentsWidth = contents_->sizeHintForColumn(0) + 4 * fontMetrics().averageCharWidth();
  parts_->setSizes({contentsWidth, 4 * contentsWidth});
  findBar_ = MakeFindBar();
  notice_ = new AddressNotice;

  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(0);
  rows->addWidget(MakeTools());
  rows->addWidget(parts_, 1);
  rows->addWidget(notice_);
  rows->addWidget(findBar_);
  findBar_->hide();

  const QSize room = screen()->availableSize();
  resize(QSize(fontMetrics().averageCharWidth() * 120, fontMetrics().height() * 48).boundedTo(room * 0.85));
  const QSettings settings;
  restoreGeometry(settings.value(kPlaceSetting).toByteArray());
  parts_->restoreState(settings.value(kPartsSetting).toByteArray());
  browser_->SetTextStep(settings.value(kSizeSetting).toInt());
  browser_->setFocus();
}

QAction* frmGuide::MakeAction(const char* name, const QString& caption, std::function<void()> action) {
  auto* made = new QAction(caption, this);
  made->setObjectName(name);
  TakeKeys(*this, *made);
  connect(made, &QAction::triggered, this, std::move(action));
  addAction(made);
  return made;
}

QToolBar* frmGuide::MakeTools() {
  auto* tools = new QToolBar;
  QAction* back = MakeAction("actBack", "&Back", [this] { browser_->backward(); });
  QAction* forward = MakeAction("actForward", "For&ward", [this] { browser_->forward(); });
  for (QAction* action : {back, forward}) action->setEnabled(false);
  connect(browser_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
  connect(browser_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
  tools->addActions({back, forward});
  tools->addSeparator();
  tools->addAction(MakeAction("actSmaller", "&Smaller", [this] { ChangeSize(browser_->TextStep() - 1); }));
  tools->addAction(MakeAction("actLarger", "&Larger", [this] { ChangeSize(browser_->TextStep() + 1); }));
  MakeAction("actUsual", "Usual size", [this] { ChangeSize(0); });
  tools->addSeparator();
  tools->addAction(MakeAction("actFind", "&Find", [this] { ShowFindBar(); }));
  tools->addSeparator();
  tools->addAction(MakeAction("actClose", "&Close", [this] { CloseBarOrWindow(); }));
  return tools;
}

QWidget* frmGuide::MakeFindBar() {
  auto* bar = new QWidget;
  txtFind_ = MakeBox("txtFind", "Words to find in the page");
  txtFind_->setClearButtonEnabled(true);
  lblFound_ = MakeLabel("lblFound", {});
  connect(txtFind_, &QLineEdit::textChanged, this, [this] {
    browser_->moveCursor(QTextCursor::Start);
    MarkFound();
    FindNext(false);
  });
  AddShortcuts(
      *this, "txtFind", [this] { FindNext(false); }, txtFind_);
  auto* row = new QHBoxLayout(bar);
  row->addWidget(MakeLabel("lblFind", "Find in page:", txtFind_));
  row->addWidget(txtFind_, 1);
  auto* tools = new QToolBar;
  tools->addAction(MakeAction("actPrevious", "&Previous", [this] { FindNext(true); }));
  tools->addAction(MakeAction("actNext", "&Next", [this] { FindNext(false); }));
  row->addWidget(tools);
  row->addWidget(lblFound_);
  lblFound_->setMinimumWidth(lblFound_->fontMetrics().horizontalAdvance("not in this page  "));
  return bar;
}

void frmGuide::FillContents() {
  contents_->setSpacing(2);
  for (const QString& page : GuideContents()) {
    auto* item = new QListWidgetItem(browser_->Title(page), contents_);
    item->setData(kPageRole, page);
  }
  connect(contents_, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* item) {
    if (item) browser_->ShowPage(item->data(kPageRole).toString());
  });
}

void frmGuide::Open(const QString& page, QWidget* asker) {
  if (asker != this) asker_ = asker;
  winId();  // makes the window that StayUsable works on
  StayUsable();
  if (isMinimized()) showNormal();
  show();
  raise();
  activateWindow();
  browser_->ShowPage(page);  // which finds its heading only in the size that the window has
}

void frmGuide::StayUsable() {
  if (windowHandle()) windowHandle()->setTransientParent(QGuiApplication::modalWindow());
}

bool frmGuide::event(QEvent* event) {
  if (event->type() == QEvent::WindowBlocked) StayUsable();
  return QWidget::event(event);
}

void frmGuide::TakeUp(const QString& page) {
  const QSignalBlocker quiet(contents_);
  contents_->setCurrentItem(nullptr);
  for (int row = 0; row < contents_->count(); ++row)
    if (contents_->item(row)->data(kPageRole).toString() == page) contents_->setCurrentRow(row);
  if (findBar_->isVisible()) MarkFound();
  notice_->hide();
}

void frmGuide::ChangeSize(int step) {
  browser_->SetTextStep(step);
  QSettings().setValue(kSizeSetting, browser_->TextStep());
}

void frmGuide::ShowFindBar() {
  findBar_->show();
  txtFind_->setFocus();
  txtFind_->selectAll();
  MarkFound();
}

void frmGuide::MarkFound() {
  QList<QTextEdit::ExtraSelection> marks;
  const QString words = findBar_->isHidden() ? QString() : txtFind_->text();
  QTextEdit::ExtraSelection mark;
  mark.format.setBackground(QColor(0xFF, 0xE0, 0x66));
  mark.format.setForeground(Qt::black);
  for (mark.cursor = browser_->document()->find(words); !mark.cursor.isNull();
       mark.cursor = browser_->document()->find(words, mark.cursor))
    marks << mark;
  browser_->setExtraSelections(marks);
  const bool missed = !words.isEmpty() && marks.isEmpty();
  MarkBox(txtFind_, missed);
  lblFound_->setText(missed            ? "not in this page"
                     : marks.isEmpty() ? ""
                                       : QString("%1 times").arg(marks.size()));
}

void frmGuide::FindNext(bool backward) {
  if (findBar_->isHidden()) return ShowFindBar();
  const QTextDocument::FindFlags way = backward ? QTextDocument::FindBackward : QTextDocument::FindFlags();
  if (txtFind_->text().isEmpty() || browser_->find(txtFind_->text(), way)) return;
  browser_->moveCursor(backward ? QTextCursor::End : QTextCursor::Start);
  browser_->find(txtFind_->text(), way);
}

void frmGuide::CloseBarOrWindow() {
  if (findBar_->isHidden()) return void(close());
  findBar_->hide();
  MarkFound();
  browser_->setFocus();
}

void frmGuide::closeEvent(QCloseEvent* event) {
  QSettings settings;
  settings.setValue(kPlaceSetting, saveGeometry());
  settings.setValue(kPartsSetting, parts_->saveState());
  event->accept();
  QWidget* next = QApplication::activeModalWidget();
  if (!next) next = asker_;
  if (next && next->isVisible()) next->activateWindow();
}

}  // namespace kestrel
