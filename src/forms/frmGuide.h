#pragma once

#include <QPointer>
#include <QWidget>

#include "ui/Platform.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QSplitter;
class QToolBar;

namespace kestrel {

class AddressNotice;
class GuideBrowser;

/// The guide: a page, the contents beside it, the way back and forward, words to be found, letters of any
/// size. It is a window beside all others and can be used while a modal window is open; once closed, the
/// window that was worked in has the focus again.
class frmGuide final : public QWidget {
 public:
  /// `folders` may hold the guide, best first.
  frmGuide(Platform& system, const QStringList& folders);

  /// Shows the page, brings the guide to the front, and remembers who asked.
  void Open(const QString& page, QWidget* asker);

  /// Keeps the guide out of the reach of modality: makes it a window of the modal one that is open now.
  void StayUsable();

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  QToolBar* MakeTools();
  QWidget* MakeFindBar();
  QAction* MakeAction(const char* name, const QString& caption, std::function<void()> action);
  void FillContents();
  void TakeUp(const QString& page);
  void ChangeSize(int step);

  void ShowFindBar();
  void MarkFound();
  void FindNext(bool backward);
  void CloseBarOrWindow();

  Platform& system_;
  GuideBrowser* browser_;
  QListWidget* contents_;
  QSplitter* parts_;
  QWidget* findBar_;
  AddressNotice* notice_;
  QLineEdit* txtFind_ = nullptr;
  QLabel* lblFound_ = nullptr;
  QPointer<QWidget> asker_;
};

}  // namespace kestrel
