#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

#include "core/SessionState.h"
#include "ui/Printing.h"

class QWidget;

namespace kestrel {

/// Everything that the windows ask of the platform beyond drawing. Tests put a stand-in in its place.
class Platform {
 public:
  virtual ~Platform() = default;

  /// A message with the program's title and an OK button; returns when it is answered.
  virtual void ShowMessage(QWidget* parent, const QString& text) = 0;

  /// A question with the program's title and the buttons Yes and No, No at hand; true for Yes.
  virtual bool Confirm(QWidget* parent, const QString& question) = 0;

  virtual void Beep() = 0;

  /// The common colour dialog; nothing when it is cancelled.
  virtual std::optional<ColorValue> ChooseColor(QWidget* parent, const QString& title,
                                                ColorValue current) = 0;

  /// The platform's dialog for choosing files; none when it is cancelled.
  virtual QStringList ChooseFiles(QWidget* parent, const QString& title) = 0;

  /// The platform's dialog for the name of a file to write; empty when it is cancelled.
  virtual QString ChooseFileToWrite(QWidget* parent, const QString& title, const QString& offered) = 0;

  /// Lets the platform open a web address; what an address cannot hold is encoded, the rest goes as it
  /// stands. `failed` is called, perhaps later, when no program took it.
  virtual void OpenAddress(const QString& address, const std::function<void()>& failed) = 0;

  /// Starts the system's own information tool. `failed` is called when there is none, or later when it has
  /// ended at once with an error.
  virtual void StartSystemInformation(const std::function<void()>& failed) = 0;

  /// Lets pending events be processed once, then waits.
  virtual void Pause(double seconds) = 0;

  /// Lets pending events be processed once.
  virtual void ProcessEvents() = 0;

  /// Lets the user look at what would be printed and choose printer and paper. Nothing when it is cancelled.
  virtual std::optional<PrintOrder> OfferPrinting(QWidget* parent, const PrintOffer& offer) = 0;
};

/// The platform that the program runs on.
class DesktopPlatform final : public Platform {
 public:
  void ShowMessage(QWidget* parent, const QString& text) override;
  bool Confirm(QWidget* parent, const QString& question) override;
  void Beep() override;
  std::optional<ColorValue> ChooseColor(QWidget* parent, const QString& title, ColorValue current) override;
  QStringList ChooseFiles(QWidget* parent, const QString& title) override;
  QString ChooseFileToWrite(QWidget* parent, const QString& title, const QString& offered) override;
  void OpenAddress(const QString& address, const std::function<void()>& failed) override;
  void StartSystemInformation(const std::function<void()>& failed) override;
  void Pause(double seconds) override;
  void ProcessEvents() override;
  std::optional<PrintOrder> OfferPrinting(QWidget* parent, const PrintOffer& offer) override;
};

}  // namespace kestrel
