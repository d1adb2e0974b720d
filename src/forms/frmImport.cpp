#include "forms/frmImport.h"

#include <QCheckBox>
#include <QDragEnterEvent>
#include <QFontDatabase>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTabWidget>
#include <QUrl>

#include "data/DataSwap.h"
#include "data/FileIo.h"
#include "import/Countries.h"
#include "ui/Controls.h"
#include "ui/RowsTable.h"

namespace kestrel {
namespace {

constexpr std::size_t kShownChanges =
    20;  // of a kind; the list beside the report and a saved report have all

QStringList ChangeCells(const Change& change) {
  return {Text(ChangeName(change.Kind)), QString::number(change.Channel),
          Text(change.CallSign()),       Text(change.Hours()),
          Text(change.Place()),          Text(ChangeDetail(change))};
}

QCheckBox* MakeCheckBox(const char* name, const QString& caption, const QString& tip) {
  auto* box = new QCheckBox(caption);
  box->setObjectName(name);
  box->setToolTip(tip);
  return box;
}

}  // namespace

frmImport::frmImport(const Workspace& workspace, QWidget* parent)
    : Form(workspace, parent, "frmImport", "Import station data") {
  setAcceptDrops(true);

  auto* rows = new QVBoxLayout(this);
  rows->addWidget(MakeChoices());
  progress_ = new QProgressBar;
  progress_->setObjectName("prgImport");
  progress_->setRange(0, 1000);
  rows->addWidget(progress_);
  rows->addWidget(MakeResults(), 1);

  const int em = fontMetrics().averageCharWidth();
  resize(110 * em, 44 * fontMetrics().height());
  SetRunning(false);
}

QWidget* frmImport::MakeChoices() {
  auto* choices = new QWidget;
  auto* grid = new QGridLayout(choices);
  grid->setContentsMargins(0, 0, 0, 0);
  lstFiles_ = new QListWidget;
  lstFiles_->setObjectName("lstFiles");
  lstFiles_->setAccessibleName("Files of the FCC");
  lstFiles_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  lstFiles_->setMinimumHeight(5 * fontMetrics().height());
  connect(lstFiles_, &QListWidget::itemSelectionChanged, this, [this] { UpdateCommands(); });
  auto* label = MakeLabel(
      "lblFiles",
      "&Files of the FCC, zipped or not; the last one counts most. Drop them here or add them:", lstFiles_);
  grid->addWidget(label, 0, 0);
  grid->addWidget(lstFiles_, 1, 0, 8, 1);

  int row = 1;
  const auto add = [&](QPushButton* button) { grid->addWidget(button, row++, 1); };
  QPushButton* import = MakeButton("cmdImport", "&Import", "Makes the station files anew from these files",
                                   [this] { Import(); });
  import->setDefault(true);
  add(MakeButton("cmdAdd", "&Add files...", "Chooses AM Query lists and antenna tables", [this, import] {
    AddFiles(workspace_.System.ChooseFiles(this, "Files of the FCC"));
    import->setFocus();
  }));
  add(MakeButton("cmdRemove", "&Remove", "Takes the selected files off the list", [this] {
    qDeleteAll(lstFiles_->selectedItems());
    UpdateCommands();
  }));
  add(import);
  add(MakeButton("cmdCancel", "&Cancel", "Stops reading; nothing is written", [this] { cancelled_ = true; }));
  add(MakeButton("cmdUndo", "&Undo import",
                 "Brings back the stations that the last import replaced; once more, the import",
                 [this] { Undo(); }));
  add(MakeButton("cmdSave", "Sa&ve report...", "Writes the whole report and every change to a file",
                 [this] { SaveReport(); }));
  add(MakeButton("cmdExit", "C&lose", "Back to the map", [this] { reject(); }));

  auto* options = new QHBoxLayout;
  chkSilent_ = MakeCheckBox("chkSilent", "&Silent stations too",
                            "Licensed stations that are silent for the time being");
  chkPermits_ = MakeCheckBox("chkPermits", "Construction &permits too", "US stations not yet licensed");
  chkDryRun_ =
      MakeCheckBox("chkDryRun", "&Only show what would change", "Reads and compares, and writes nothing");
  for (QCheckBox* box : {chkSilent_, chkPermits_, chkDryRun_}) options->addWidget(box);
  options->addStretch();
  grid->addLayout(options, 9, 0, 1, 2);
  grid->addLayout(MakeCountries(), 10, 0, 1, 2);
  return choices;
}

QLayout* frmImport::MakeCountries() {
  txtCountries_ = MakeBox("txtCountries", "Only the stations of these countries");
  txtCountries_->setPlaceholderText("all; or the FCC's codes, as in US,CA,MX");
  txtCountries_->setAcceptDrops(false);  // files dropped there are for the list
  auto* row = new QHBoxLayout;
  row->addWidget(MakeLabel("lblCountries", "Cou&ntries:", txtCountries_));
  row->addWidget(txtCountries_, 1);
  return row;
}

QWidget* frmImport::MakeResults() {
  txtReport_ = new QPlainTextEdit;
  txtReport_->setObjectName("txtReport");
  txtReport_->setAccessibleName("Report");
  txtReport_->setReadOnly(true);
  txtReport_->setLineWrapMode(QPlainTextEdit::NoWrap);
  txtReport_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  lstChanges_ = new RowsTable("lstChanges");
  lstChanges_->setAccessibleName("Changes");
  results_ = new QTabWidget;
  results_->setAccessibleName("Results");
  results_->addTab(txtReport_, "Report");
  results_->addTab(lstChanges_, "Changes");
  return results_;
}

void frmImport::AddFiles(const QStringList& paths) {
  for (const QString& path : paths)
    if (lstFiles_->findItems(path, Qt::MatchExactly).isEmpty()) lstFiles_->addItem(path);
  UpdateCommands();
}

void frmImport::Import() {
  const Result<std::vector<std::string>> countries = ReadCountries(txtCountries_->text().toStdString());
  if (!countries) {
    workspace_.System.ShowMessage(this, "Countries: " + Text(countries.error().text));
    txtCountries_->setFocus();
    return txtCountries_->selectAll();
  }
  ImportRequest request;
  request.Options.Countries = *countries;
  for (int i = 0; i < lstFiles_->count(); ++i) request.Files << lstFiles_->item(i)->text();
  request.Options.IncludeSilent = chkSilent_->isChecked();
  request.Options.IncludePermits = chkPermits_->isChecked();
  request.DryRun = chkDryRun_->isChecked();
  request.LeaveFewer = [this](int before, int after) {
    return workspace_.System.Confirm(
        this, QString("There are %1 stations now. The import would leave %2, less than half.\n\n"
                      "Import all the same?")
                  .arg(before)
                  .arg(after));
  };

  cancelled_ = false;
  SetRunning(true);
  const ImportOutcome outcome =
      RunImport(request, workspace_.Folder, [this](double done, std::string_view what) {
        progress_->setValue(static_cast<int>(done * 1000));
        progress_->setFormat(Text(what));
        workspace_.System.ProcessEvents();
        return !cancelled_;
      });
  SetRunning(false);
  if (!outcome.Failure && !request.DryRun) dataChanged_ = true;
  ShowOutcome(outcome, request.DryRun);
  UpdateCommands();
}

void frmImport::ShowOutcome(const ImportOutcome& outcome, bool dryRun) {
  std::string heading = "Imported: " + outcome.StationsLine;
  if (dryRun) heading = "Nothing was written: this is what would change";
  if (outcome.Failure) heading = "Nothing was written: " + outcome.Failure->Message();
  heading += "\n\n";
  txtReport_->setPlainText(Text(heading + OutcomeText(outcome, kShownChanges)));
  wholeReport_ = heading + OutcomeText(outcome, 0);
  ShowChanges(outcome.Changes);
  results_->setCurrentWidget(txtReport_);
}

void frmImport::ShowChanges(ChangeList changes) {
  changes_ = std::move(changes);
  constexpr int kWhat = 5;
  lstChanges_->SetRows(
      {{"Change", 9}, {"kHz", 5}, {"Call", 9}, {"Hours", 5}, {"Place", 40}, {"What", 18}},
      static_cast<int>(changes_.size()),
      [this](int row) { return ChangeCells(changes_[static_cast<std::size_t>(row)]); }, kWhat);
  results_->setTabText(1, "Changes (" + QString::number(changes_.size()) + ')');
}

void frmImport::SaveReport() {
  const QString path =
      workspace_.System.ChooseFileToWrite(this, "Save the report", "kestrel-import-report.txt");
  if (path.isEmpty()) return;
  if (const Result<Done> written = WriteFile(path, wholeReport_); !written)
    workspace_.System.ShowMessage(this, Text(written.error().Message()));
}

void frmImport::Undo() {
  if (const Result<Done> undone = UndoImport(workspace_.Folder); !undone)
    return workspace_.System.ShowMessage(this, Text(undone.error().Message()));
  dataChanged_ = true;
  ShowChanges({});
  wholeReport_.clear();
  UpdateCommands();
  txtReport_->setPlainText("The stations of before are back: " + Text(workspace_.Folder.StationsLine()));
}

void frmImport::SetRunning(bool running) {
  running_ = running;
  progress_->setValue(0);
  progress_->setFormat(running ? "%p %" : "");
  for (QWidget* control :
       std::initializer_list<QWidget*>{lstFiles_, chkSilent_, chkPermits_, chkDryRun_, txtCountries_})
    control->setEnabled(!running);
  UpdateCommands();
}

void frmImport::UpdateCommands() {
  const auto enable = [this](const char* name, bool enabled) {
    findChild<QPushButton*>(name)->setEnabled(enabled);
  };
  enable("cmdAdd", !running_);
  enable("cmdRemove", !running_ && !lstFiles_->selectedItems().isEmpty());
  enable("cmdImport", !running_ && lstFiles_->count() > 0);
  enable("cmdCancel", running_);
  enable("cmdUndo", !running_ && CanUndoImport(workspace_.Folder));
  enable("cmdSave", !running_ && !wholeReport_.empty());
  enable("cmdExit", !running_);
}

void frmImport::reject() {
  // While an import runs, leaving the window cancels it first.
  cancelled_ = true;
  if (!running_) QDialog::reject();
}

void frmImport::dragEnterEvent(QDragEnterEvent* event) {
  if (!running_ && event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void frmImport::dropEvent(QDropEvent* event) {
  QStringList paths;
  for (const QUrl& url : event->mimeData()->urls())
    if (url.isLocalFile()) paths << url.toLocalFile();
  AddFiles(paths);
}

}  // namespace kestrel
