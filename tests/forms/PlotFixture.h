#pragma once

#include <QHelpEvent>
#include <QToolTip>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "forms/FormFixture.h"
#include "forms/frmPlot.h"
#include "ui/MapSurface.h"

namespace kestrel {

using Names = std::set<std::string>;
using Channels = std::set<int>;

class frmPlotTest : public FormTest {
 protected:
  void Open() {
    plot_ = std::make_unique<frmPlot>(Everything);
    plot_->show();
  }

  QPushButton* Button(const char* name) { return Find<QPushButton>(*plot_, name); }
  void Press(const char* name) { kestrel::Press(*plot_, name); }
  void PressKey(Qt::Key key, Qt::KeyboardModifiers with = {}) {
    plot_->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(plot_.get()));  // shortcuts work in the active window
    QTest::keyClick(plot_.get(), key, with);
  }

  /// Presses a command that opens a modal window, and in that window buttons.
  void PressInForm(const char* command, const std::vector<const char*>& buttons, const QString& entry = {}) {
    QTimer::singleShot(0, [buttons, entry] {
      QWidget* form = QApplication::activeModalWidget();
      ASSERT_NE(form, nullptr);
      if (!entry.isEmpty()) form->findChild<QLineEdit*>()->setText(entry);
      for (const char* button : buttons) kestrel::Press(*form, button);
    });
    Press(command);
  }
  void AddChannel(const char* channel) { PressInForm("cmdFreq", {"cmdExit"}, channel); }
  void ScanTheBand() { PressInForm("cmdAll", {"cmdAlterNo"}); }

  const std::vector<StationMark>& Marks() { return plot_->Surface().Drawing().Stations(); }

  /// "QDN620 D" for every record drawn.
  Names Drawn() {
    Names drawn;
    for (const StationMark& mark : Marks()) drawn.insert(mark.CallSign + ' ' + mark.HoursCode);
    return drawn;
  }

  Channels ChannelsDrawn() {
    Channels channels;
    for (const StationMark& mark : Marks()) channels.insert(mark.Channel);
    return channels;
  }

  /// Where the mark of a station lies on the map, in pixels.
  QPoint PixelOf(const std::string& callSign) {
    for (const StationMark& mark : Marks())
      if (mark.CallSign == callSign) return plot_->Surface().FromSheet(mark.At).toPoint();
    ADD_FAILURE() << callSign << " is not on the map";
    return {};
  }

  /// The first line of the tip that is shown; nothing when there is none.
  static std::string TipShown() {
    return QToolTip::isVisible() ? QToolTip::text().section('\n', 0, 0).toStdString() : "";
  }
  static void ForgetTip() {
    for (QWidget* window : QApplication::topLevelWidgets())
      if (window->inherits("QTipLabel")) delete window;
  }

  /// The tip when the mouse rests there.
  std::string RestAt(QPoint pixel) {
    ForgetTip();
    MapSurface& map = plot_->Surface();
    QTest::mouseMove(&map, pixel);
    QHelpEvent rest(QEvent::ToolTip, pixel, map.mapToGlobal(pixel));
    QApplication::sendEvent(&map, &rest);
    return TipShown();
  }

  /// Clicks on the map. Returns what the lookup has found, "QABC: 2 records", if it opens.
  std::string ClickAt(QPoint pixel, Qt::MouseButton button = Qt::LeftButton) {
    ForgetTip();
    std::string found;
    QTimer look;
    look.setSingleShot(true);
    look.callOnTimeout([&found] {
      auto* lookup = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(lookup, nullptr);
      found = Shown(*lookup, "txtGetData") + ": " +
              std::to_string(Find<QAbstractItemView>(*lookup, "lstGetData")->model()->rowCount()) +
              " records";
      lookup->reject();
    });
    look.start(0);
    QTest::mouseClick(&plot_->Surface(), button, {}, pixel);
    return found;
  }

  std::unique_ptr<frmPlot> plot_;
};

}  // namespace kestrel
