#pragma once

#include <QObject>
#include <QPointer>
#include <QStringList>

#include "ui/Platform.h"

namespace kestrel {

class frmGuide;

/// Opens the guide from every window of the program, modal ones too: F1 at the window's page, "?" where it is
/// no text at the list of keys. Windows may ask as well, by AskForGuide. It lives as long as the program.
class GuideKeys final : public QObject {
 public:
  /// `folders` may hold the guide, best first.
  GuideKeys(Platform& system, const QStringList& folders);
  ~GuideKeys() override;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Open(const QString& page, QWidget& asker);

  Platform& system_;
  QStringList folders_;
  QPointer<frmGuide> guide_;  // while it is open
};

/// Opens the guide at the page of the widget's window.
void AskForGuide(QWidget& widget);

}  // namespace kestrel
