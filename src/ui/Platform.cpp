#include "ui/Platform.h"

#include <QApplication>
#include <QColorDialog>
#include <QDesktopServices>
#include <QFileDialog>
#include <QGridLayout>
#include <QMessageBox>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QThread>
#include <QUrl>
#include <chrono>

#include "draw/PainterCanvas.h"
#include "ui/PrintPreview.h"
#include "ui/ProgramStart.h"
#include "ui/SystemInformation.h"

namespace kestrel {
namespace {

constexpr int kTitleCharacters = 36;  // with the buttons of the window's frame

}  // namespace

namespace {

int Answer(QMessageBox& box) {
  box.setTextFormat(Qt::PlainText);
  // Wide enough for its title, however short the text.
  if (auto* grid = qobject_cast<QGridLayout*>(box.layout()))
    grid->addItem(new QSpacerItem(box.fontMetrics().averageCharWidth() * kTitleCharacters, 0),
                  grid->rowCount(), 0, 1, grid->columnCount());
  return box.exec();
}

}  // namespace

void DesktopPlatform::ShowMessage(QWidget* parent, const QString& text) {
  QMessageBox box(QMessageBox::NoIcon, "KestrelII", text, QMessageBox::Ok, parent);
  Answer(box);
}

bool DesktopPlatform::Confirm(QWidget* parent, const QString& question) {
  QMessageBox box(QMessageBox::NoIcon, "KestrelII", question, QMessageBox::Yes | QMessageBox::No, parent);
  box.setDefaultButton(QMessageBox::No);
  box.setEscapeButton(QMessageBox::No);
  return Answer(box) == QMessageBox::Yes;
}

void DesktopPlatform::Beep() {
  QApplication::beep();
}

std::optional<ColorValue> DesktopPlatform::ChooseColor(QWidget* parent, const QString& title,
                                                       ColorValue current) {
  const QColor color = QColorDialog::getColor(PlatformColor(current), parent, title);
  if (!color.isValid()) return std::nullopt;
  return color.red() | color.green() << 8 | color.blue() << 16;
}

QStringList DesktopPlatform::ChooseFiles(QWidget* parent, const QString& title) {
  return QFileDialog::getOpenFileNames(parent, title);
}

QString DesktopPlatform::ChooseFileToWrite(QWidget* parent, const QString& title, const QString& offered) {
  return QFileDialog::getSaveFileName(parent, title, offered);
}

void DesktopPlatform::OpenAddress(const QString& address, const std::function<void()>& failed) {
  // One percent sign that begins no code makes QUrl encode them all, those of true codes too.
  static const QRegularExpression kLonePercent("%(?![0-9A-Fa-f]{2})");
  QString tidy = address;
  tidy.replace(kLonePercent, "%25");
  const QUrl url(tidy, QUrl::TolerantMode);
  // Qt starts the desktop's opener too, but does not hear that it found no browser.
  const QString opener = QStandardPaths::findExecutable("xdg-open");
  if (!opener.isEmpty()) return StartProgram({opener, {QString::fromLatin1(url.toEncoded())}}, failed);
  if (!QDesktopServices::openUrl(url)) failed();
}

void DesktopPlatform::StartSystemInformation(const std::function<void()>& failed) {
  const std::optional<ProgramCall> tool = FindSystemInformation();
  tool ? StartProgram(*tool, failed) : failed();
}

void DesktopPlatform::Pause(double seconds) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::duration<double>(seconds);
  ProcessEvents();
  const auto left =
      std::chrono::duration_cast<std::chrono::milliseconds>(end - std::chrono::steady_clock::now());
  if (left.count() > 0) QThread::msleep(static_cast<unsigned long>(left.count()));
}

void DesktopPlatform::ProcessEvents() {
  QApplication::processEvents();
}

std::optional<PrintOrder> DesktopPlatform::OfferPrinting(QWidget* parent, const PrintOffer& offer) {
  return ChoosePrinting(parent, offer);
}

}  // namespace kestrel
