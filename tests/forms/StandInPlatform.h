#pragma once

#include <QStringList>
#include <functional>
#include <vector>

#include "ui/Platform.h"

namespace kestrel {

/// A platform that answers at once and remembers what it was asked.
class StandInPlatform final : public Platform {
 public:
  struct ColorQuestion {
    QString Title;
    ColorValue Current;
  };

  // What it answers.
  std::optional<ColorValue> NextColor;  ///< nothing: the colour dialog is cancelled
  bool NextConfirmation = false;
  bool HasSystemInformation = false;
  bool HasBrowser = true;
  QStringList NextFiles;    ///< what the dialog for files gives; none: it is cancelled
  QString NextFileToWrite;  ///< likewise
  std::function<std::optional<PrintOrder>(const PrintOffer&)> NextPrint;  ///< none: printing is cancelled

  // What it was asked.
  QStringList Messages;
  QStringList Addresses;
  std::vector<ColorQuestion> ColorQuestions;
  int Beeps = 0;
  int SystemInformationStarts = 0;
  double PausedSeconds = 0;

  void ShowMessage(QWidget*, const QString& text) override { Messages << text; }
  bool Confirm(QWidget*, const QString& question) override {
    Messages << question;
    return NextConfirmation;
  }
  void Beep() override { ++Beeps; }
  std::optional<ColorValue> ChooseColor(QWidget*, const QString& title, ColorValue current) override {
    ColorQuestions.push_back({title, current});
    return NextColor;
  }
  QStringList ChooseFiles(QWidget*, const QString&) override { return NextFiles; }
  QString ChooseFileToWrite(QWidget*, const QString&, const QString&) override { return NextFileToWrite; }
  void OpenAddress(const QString& address, const std::function<void()>& failed) override {
    Addresses << address;
    if (!HasBrowser) failed();
  }
  void StartSystemInformation(const std::function<void()>& failed) override {
    HasSystemInformation ? void(++SystemInformationStarts) : failed();
  }
  void Pause(double seconds) override { PausedSeconds += seconds; }
  std::optional<PrintOrder> OfferPrinting(QWidget*, const PrintOffer& offer) override {
    return NextPrint ? NextPrint(offer) : std::nullopt;
  }
  void ProcessEvents() override {
    ++EventRounds;
    if (OnEvents) OnEvents(EventRounds);
  }

  int EventRounds = 0;
  std::function<void(int)> OnEvents;  ///< what happens in an event round, with its number from 1
};

}  // namespace kestrel
