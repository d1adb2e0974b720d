#include <gtest/gtest.h>
#include <malloc.h>

#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QPixmapCache>
#include <QScreen>
#include <QStyle>
#include <algorithm>
#include <iostream>

#include "AddressSanitizer.h"
#include "core/SessionFile.h"
#include "forms/GuideKeys.h"
#include "forms/GuidePages.h"
#include "forms/Monkey.h"
#include "forms/frmOpening.h"
#include "forms/frmPlot.h"

#ifdef KESTREL_ADDRESS_SANITIZER
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace kestrel {
namespace {

// KESTREL_MONKEY_SEED and KESTREL_MONKEY_COMMANDS ask for another walk, KESTREL_MONKEY_TRACE tells its steps.
constexpr int kSeed = 1;
constexpr int kCommands = 4000;  // enough for every form

int Asked(const char* variable, int otherwise) {
  return qEnvironmentVariableIsSet(variable) ? qEnvironmentVariableIntValue(variable) : otherwise;
}

/// Bytes that the process holds and has not given back.
std::size_t BytesHeld() {
#ifdef KESTREL_ADDRESS_SANITIZER
  return __sanitizer_get_current_allocated_bytes();
#else
  const struct mallinfo2 heap = mallinfo2();
  return heap.uordblks + heap.hblkhd;
#endif
}

/// One life of the program, from the opening screen until its last window is closed.
class Life final : public QObject {
 public:
  Life(const DataFolder& folder, Platform& platform)
      : workspace_{state_, folder, platform}, guide_(platform, GuideFolders()) {
    qApp->installEventFilter(this);
    opening_ = std::make_unique<frmOpening>(workspace_);
    opening_->Started = [this] {
      plot_ = std::make_unique<frmPlot>(workspace_);
      plot_->show();
      OpenedSize = plot_->size();
    };
    opening_->FirstPainted = [this] { opening_->Load(); };
    opening_->show();
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Close && watched == plot_.get() && plot_->isVisible()) {
      Held = state_;
      ClosedSize = plot_->size();
    }
    return false;
  }

  std::optional<SessionState> Held;  ///< the settings when the main window was closed
  QSize OpenedSize, ClosedSize;      ///< of the main window

 private:
  SessionState state_;
  Workspace workspace_;
  GuideKeys guide_;
  std::unique_ptr<frmOpening> opening_;
  std::unique_ptr<frmPlot> plot_;
};

/// A window comes back in the size in which it was closed; one that with its title bar filled the screen or
/// more, Qt opens smaller.
void ExpectSameSize(QSize opened, QSize closed) {
  const int titleBar = QApplication::style()->pixelMetric(QStyle::PM_TitleBarHeight);
  const QSize screen = QApplication::primaryScreen()->availableSize();
  if (closed.width() < screen.width() && closed.height() + titleBar < screen.height()) {
    EXPECT_EQ(opened, closed);
  } else {
    EXPECT_EQ(opened, opened.boundedTo(closed));
  }
}

/// The settings read back are those held as far as a file can hold them, compared as their seventeen lines.
void ExpectKept(const DataFolder& folder, SessionState held) {
  SessionState kept;
  ReadSession(WriteSession(held, ""), kept);
  SessionState read;
  LoadSession(folder, read);
  EXPECT_EQ(WriteSession(read, ""), WriteSession(kept, ""));
}

/// The folder of the form tests with more to find: on every channel one array of twelve towers, on one of
/// them rows that are damaged; odd places.
void FillFolder(const SampleFolder& folder) {
  std::string towers;
  for (int i = 0; i < 12; ++i)
    towers += "1," + std::to_string(90 * i) + ",90," + std::to_string(30 * i) + ",80,0\r\n";
  for (int kilohertz = 530; kilohertz <= 1700; kilohertz += 10) {
    const std::string channel = std::to_string(kilohertz);
    std::string file =
        channel + ", QARR, \xc3\x96RT, KS, United States, N, 33.5, 96.5, 5,-,-, 12\r\n" + towers;
    if (kilohertz % 50 == 30) file += SampleFolder::Channel(channel);
    if (kilohertz == 630)
      file +=
          "630, QCUT, TOWN, KS\r\n630, QARR, TOWN, KS, United States, U, 33, 97, 0,-,-, "
          "1\r\n0,1,90,0,0,0\r\n";
    folder.Put(QString::fromStdString(channel) + "x.dat", file);
  }
  folder.Put("Kestrel.lst",
             "           Plano  TX                  33.0198   96.6989\r\n"
             "    12,345 Quotes \"and\", commas: KS    37.1     97.3\r\n"
             "        1                              0         0\r\n");
}

/// Every form was worked in, and says which buttons never took effect.
void ExpectEveryForm(const Monkey& monkey) {
  QStringList forms = QDir(KESTREL_FORMS).entryList({"frm*.h"});
  EXPECT_GT(forms.size(), 10);
  forms.replaceInStrings(".h", "");
  for (const QString& form : forms << "PrintPreview")
    EXPECT_TRUE(monkey.Forms().count(form)) << form.toStdString() << " was never opened";
  std::cout << monkey.Presses().size() << " buttons; without effect:";
  for (const auto& [button, presses] : monkey.Presses())
    if (presses == 0) std::cout << ' ' << button.toStdString();
  std::cout << std::endl;
}

TEST(Monkey, BreaksNothingLosesNothingAndLeavesNothing) {
  const unsigned seed = static_cast<unsigned>(Asked("KESTREL_MONKEY_SEED", kSeed));
  const int commands = Asked("KESTREL_MONKEY_COMMANDS", kCommands);
  std::cout << "KESTREL_MONKEY_SEED=" << seed << " KESTREL_MONKEY_COMMANDS=" << commands << std::endl;
  QApplication::setKeyboardInputInterval(0);  // each key for itself, however fast they come

  const SampleFolder files;
  FillFolder(files);
  const DataFolder folder = files.Folder();
  Monkey monkey(seed, commands, files);
  monkey.Speaks = qEnvironmentVariableIsSet("KESTREL_MONKEY_TRACE");
  int lives = 0;
  int saved = 0;
  monkey.Thousand = [&] {
    std::cout << monkey.Done() << " commands, " << lives << " lives, " << QApplication::allWidgets().size()
              << " widgets, " << BytesHeld() / 1024 << " KB held\n";
  };
  monkey.Start();

  QSize lastSize;
  std::vector<std::size_t> held;  // with no window open, at the end of each life
  while (monkey.AtWork() && !::testing::Test::HasFailure()) {
    {
      Life life(folder, monkey);
      QApplication::exec();
      SCOPED_TRACE("at command " + std::to_string(monkey.Done()));
      if (lastSize.isValid() && life.OpenedSize.isValid()) ExpectSameSize(life.OpenedSize, lastSize);
      if (life.Held) {
        ExpectKept(folder, *life.Held);
        lastSize = life.ClosedSize;
        ++saved;
      }
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ++lives;
    for (const QWidget* widget : QApplication::allWidgets())
      EXPECT_EQ(widget->windowType(), Qt::ToolTip) << widget->objectName().toStdString() << " is left over";
    QPixmapCache::clear();
    held.push_back(BytesHeld());
  }
  EXPECT_GT(saved, commands / 500) << "the walk hardly left the opening screen";
  if (commands >= kCommands) ExpectEveryForm(monkey);

  // What is held after the first lives are fonts and the like; each size of the map brings letters of its
  // own, which Qt keeps: 400 to 650 KB of them in the second half of a walk.
  const std::size_t first = held[held.size() / 2];
  constexpr std::size_t kAllowance = 1024 * 1024;
  EXPECT_LT(held.back(), first + kAllowance) << lives << " lives";
  std::cout << lives << " lives, " << saved << " saved; " << first / 1024 << " KB held after half of them, "
            << held.back() / 1024 << " KB at the end" << std::endl;
}

}  // namespace
}  // namespace kestrel
