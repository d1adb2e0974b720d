#pragma once

#include <QApplication>
#include <QObject>
#include <functional>
#include <map>
#include <random>
#include <set>

#include "forms/SampleFolder.h"
#include "ui/Platform.h"

class QPrintDialog;

namespace kestrel {

/// Uses the open windows as nobody would: clicks, keys, pasted text, drags, wheel turns, drops, resizes and
/// closes, all drawn from a seed; now and then a file of the data folder is damaged or mended. It works where
/// a user could: in the menu or the modal window that is open, else in any window. The same seed does the
/// same.
class Monkey final : public QObject, public Platform {
 public:
  Monkey(unsigned seed, int commands, const SampleFolder& folder);

  /// Begins with the event loop; when the commands are used up, all windows are closed.
  void Start() { Schedule(); }

  int Done() const { return done_; }
  bool AtWork() const { return done_ < commands_; }

  /// Every form of the program that the walk worked in.
  const std::set<QString>& Forms() const { return forms_; }

  /// Every button of those forms, as "form/button", and how often it took effect.
  const std::map<QString, int>& Presses() const { return presses_; }

  /// Called after every thousandth command.
  std::function<void()> Thousand;
  /// Says every command on standard error.
  bool Speaks = false;

  // The platform answers as the monkey likes; message boxes and the print preview are real ones, used like
  // any window.
  void ShowMessage(QWidget* parent, const QString& text) override;
  bool Confirm(QWidget* parent, const QString& question) override;
  void Beep() override {}
  std::optional<ColorValue> ChooseColor(QWidget* parent, const QString& title, ColorValue current) override;
  QStringList ChooseFiles(QWidget* parent, const QString& title) override;
  QString ChooseFileToWrite(QWidget* parent, const QString& title, const QString& offered) override;
  void OpenAddress(const QString&, const std::function<void()>& failed) override { FailOrNot(failed); }
  void StartSystemInformation(const std::function<void()>& failed) override { FailOrNot(failed); }
  void Pause(double) override {}
  void ProcessEvents() override;
  std::optional<PrintOrder> OfferPrinting(QWidget* parent, const PrintOffer& offer) override;

 private:
  int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
  void FailOrNot(const std::function<void()>& failed) {
    if (Below(2) == 0) failed();
  }
  template <typename List>
  auto& OneOf(List& list) {
    return list[static_cast<typename List::size_type>(Below(static_cast<int>(list.size())))];
  }
  void Say(const QString& what) const;

  void Schedule();
  void Step();
  void Act(QWidget& window);
  void Watch(QWidget& window);
  void CountPress();
  void AnswerPrintDialog(QPrintDialog& dialog);

  void ClickButton(QWidget& window);
  void PressKey(QWidget& window);
  void PasteText(QWidget& window);
  void PickRow(QWidget& window);
  void UseMouse(QWidget& window);
  void DropFiles(QWidget& window);
  void Resize(QWidget& window);
  void ChangeFile();
  QStringList SomeFiles();

  DesktopPlatform desktop_;
  std::mt19937 random_;
  int commands_;
  int done_ = 0;
  int roundsWithoutWindow_ = 0;
  std::set<QString> forms_;
  std::map<QString, int> presses_;
  const SampleFolder& folder_;
  std::vector<std::pair<QString, std::string>> whole_;  ///< the folder's files by name, undamaged
};

}  // namespace kestrel
