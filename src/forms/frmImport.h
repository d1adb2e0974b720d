#pragma once

#include <vector>

#include "forms/Form.h"
#include "import/Import.h"

class QCheckBox;
class QLayout;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QTabWidget;

namespace kestrel {

class RowsTable;

/// Brings the FCC's files in: the files are chosen or dropped on the window, read with a progress bar, and
/// the report and the changes are shown.
class frmImport final : public Form {
 public:
  explicit frmImport(const Workspace& workspace, QWidget* parent = nullptr);

  /// Whether the folder's stations are others than at opening.
  bool DataChanged() const { return dataChanged_; }

  /// Adds files to the list, each once.
  void AddFiles(const QStringList& paths);

  void reject() override;

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  QWidget* MakeChoices();
  QLayout* MakeCountries();
  QWidget* MakeResults();
  void Import();
  void SaveReport();
  void Undo();
  void ShowOutcome(const ImportOutcome& outcome, bool dryRun);
  void ShowChanges(ChangeList changes);
  void SetRunning(bool running);
  void UpdateCommands();

  QListWidget* lstFiles_;
  QCheckBox* chkSilent_;
  QCheckBox* chkPermits_;
  QCheckBox* chkDryRun_;
  QLineEdit* txtCountries_;
  QProgressBar* progress_;
  QTabWidget* results_;
  QPlainTextEdit* txtReport_;
  RowsTable* lstChanges_;
  ChangeList changes_;
  std::string wholeReport_;
  bool running_ = false;
  bool cancelled_ = false;
  bool dataChanged_ = false;
};

}  // namespace kestrel
