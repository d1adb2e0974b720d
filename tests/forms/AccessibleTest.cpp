#include "ui/Accessible.h"

#include <QAccessible>
#include <QTableView>
#include <QTextBrowser>

#include "forms/EveryForm.h"
#include "ui/MapSurface.h"

namespace kestrel {
namespace {

QAccessibleInterface& Of(QObject* object) {
  return *QAccessible::queryAccessibleInterface(object);
}

std::string Told(QWidget* widget, QAccessible::Text text) {
  return Of(widget).text(text).toStdString();
}

class AccessibleTest : public FormTest {
 protected:
  static void SetUpTestSuite() { InstallAccessibility(); }

  /// Everything that can have the focus, and every drawing, has a name; tables have cells.
  static void Look(QWidget& window) {
    const std::string form = window.objectName().toStdString();
    const QAccessible::Role role = Of(&window).role();
    EXPECT_TRUE(role == QAccessible::Window || role == QAccessible::Dialog) << form << " is a " << role;
    EXPECT_NE(Told(&window, QAccessible::Name), "") << form;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
      const std::string what =
          form + ": " + widget->objectName().toStdString() + ' ' + widget->metaObject()->className();
      const bool surface = dynamic_cast<MapSurface*>(widget) != nullptr;
      const bool ofQt = widget->objectName().startsWith("qt_") || qobject_cast<QTextBrowser*>(widget);
      if (surface || (!ofQt && (widget->focusPolicy() & Qt::TabFocus) != 0)) {
        EXPECT_NE(Told(widget, QAccessible::Name), "") << what;
      }
      if (surface) {
        EXPECT_EQ(Of(widget).role(), QAccessible::Graphic) << what;
        EXPECT_NE(Told(widget, QAccessible::Description), "") << what;
      }
      if (auto* view = qobject_cast<QTableView*>(widget); view && view->model()) {
        QAccessibleTableInterface* table = Of(view).tableInterface();
        ASSERT_NE(table, nullptr) << what;
        EXPECT_EQ(Of(view).role(), QAccessible::Table) << what;
        EXPECT_EQ(table->rowCount(), view->model()->rowCount()) << what;
        if (table->rowCount() > 0) {
          EXPECT_EQ(table->cellAt(0, 0)->text(QAccessible::Name), view->model()->index(0, 0).data()) << what;
        }
      }
    }
  }
};

TEST_F(AccessibleTest, EveryWindowTellsWhatItShows) {
  State.CityList = {CityLine("Abilene  TX", "32.4487", "99.7331")};
  ForEveryForm(Everything, Look);
}

TEST_F(AccessibleTest, DrawingsAreToldInWords) {
  frmGetStationData data(Everything, nullptr, "QDN620");
  EXPECT_EQ(Told(Find<QWidget>(data, "Plot"), QAccessible::Description),
            "QDN620 daytime, 1 tower: the same in all directions");
  frmPlot plot(Everything);
  const std::string map = Told(Find<QWidget>(plot, "Map"), QAccessible::Description);
  EXPECT_TRUE(
      map.starts_with("620 kHz, 2 stations, all hours; around home, Plano   TX, at 33.243 N, 96.541 W; "))
      << map;
  frmGetHome home(Everything);
  Type(home, "txtLatitude", "42 21 N");
  EXPECT_EQ(Told(Find<QWidget>(home, "txtLatitude"), QAccessible::Description), "= 42.35 N");
}

}  // namespace
}  // namespace kestrel
