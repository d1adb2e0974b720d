#include "forms/frmImport.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDragEnterEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QUrl>

#include "forms/SampleFolder.h"
#include "forms/StandInPlatform.h"

namespace kestrel {
namespace {

/// A row of the FCC's list: one station on 620 kHz in Texas, licensed, by day and night.
std::string Row(const std::string& call, const std::string& power, const std::string& facility) {
  return "|" + call + "|620   kHz|AM ||UNL|Unlimited|B|B|LIC|PLANO|TX|US|BL-1|" + power + "    kW||||" +
         facility + "|N|33|1|11.28|W|96|41|56.04|OWNER, INC|0.0 km|0.0 mi|0.0 deg|1|0a|7|\n";
}

class frmImportTest : public ::testing::Test {
 protected:
  void SetUp() override { folder_.Put("amq.txt", Row("KAAA", "5.0", "11") + Row("KBBB", "1.0", "12")); }

  void Press(frmImport& form, const char* name) {
    QTest::mouseClick(form.findChild<QPushButton*>(name), Qt::LeftButton);
  }
  bool Enabled(frmImport& form, const char* name) { return form.findChild<QPushButton*>(name)->isEnabled(); }
  QString Report(frmImport& form) { return form.findChild<QPlainTextEdit*>("txtReport")->toPlainText(); }

  SampleFolder folder_;
  const DataFolder data_ = folder_.Folder();
  SessionState state_;
  StandInPlatform platform_;
  const Workspace workspace_{state_, data_, platform_};
};

TEST_F(frmImportTest, ImportsShowsWhatChangedAndUndoes) {
  const std::string before = folder_.Text("620x.dat");
  frmImport form(workspace_);
  form.show();
  EXPECT_FALSE(Enabled(form, "cmdImport"));
  platform_.NextFiles = {folder_.Path("amq.txt")};
  Press(form, "cmdAdd");
  Press(form, "cmdAdd");
  EXPECT_EQ(form.findChild<QListWidget*>("lstFiles")->count(), 1) << "each file once";

  Press(form, "cmdImport");
  EXPECT_TRUE(form.DataChanged());
  EXPECT_NE(folder_.Text("620x.dat").find("KAAA"), std::string::npos) << Report(form).toStdString();
  EXPECT_EQ(folder_.Text("1230x.dat"), "") << "no station of the list is on 1230 kHz";
  auto* changes = form.findChild<QTableView*>("lstChanges")->model();
  ASSERT_EQ(changes->rowCount(), 2 + 9) << "two are new, the test's nine records are gone";
  EXPECT_EQ(changes->index(0, 0).data().toString(), "new");
  EXPECT_EQ(changes->index(0, 2).data().toString(), "KAAA");

  platform_.NextFileToWrite = folder_.Path("report.txt");
  Press(form, "cmdSave");
  EXPECT_NE(folder_.Text("report.txt").find("KBBB"), std::string::npos);

  Press(form, "cmdUndo");
  EXPECT_EQ(folder_.Text("620x.dat"), before);
  EXPECT_TRUE(platform_.Messages.isEmpty());
}

TEST_F(frmImportTest, DryRunCancelAndRefusedFilesWriteNothing) {
  const std::string before = folder_.Text("620x.dat");
  frmImport form(workspace_);
  form.show();
  form.AddFiles({folder_.Path("amq.txt")});
  form.findChild<QAbstractButton*>("chkDryRun")->click();
  Press(form, "cmdImport");
  EXPECT_EQ(folder_.Text("620x.dat"), before);
  EXPECT_EQ(form.findChild<QTableView*>("lstChanges")->model()->rowCount(), 11);

  form.findChild<QAbstractButton*>("chkDryRun")->click();
  platform_.OnEvents = [&](int) {
    EXPECT_TRUE(Enabled(form, "cmdCancel"));
    EXPECT_FALSE(Enabled(form, "cmdExit"));
    form.reject();
    EXPECT_TRUE(form.isVisible()) << "stays until the reading has ended";
  };
  Press(form, "cmdImport");
  EXPECT_TRUE(Report(form).startsWith("Nothing was written")) << Report(form).toStdString();
  EXPECT_EQ(folder_.Text("620x.dat"), before);

  platform_.OnEvents = {};
  form.findChild<QListWidget*>("lstFiles")->selectAll();
  Press(form, "cmdRemove");
  folder_.Put("letter.txt", "Dear listener,\n");
  form.AddFiles({folder_.Path("letter.txt"), folder_.Path("not there.txt")});
  Press(form, "cmdImport");
  EXPECT_TRUE(Report(form).contains("letter.txt")) << Report(form).toStdString();
  EXPECT_TRUE(Report(form).startsWith("Nothing was written"));
  EXPECT_FALSE(form.DataChanged());
  Press(form, "cmdUndo");
  EXPECT_EQ(platform_.Messages.size(), 1) << "nothing to undo";
}

TEST_F(frmImportTest, CancelAtAnyMomentAndTheWindowKnowsWhatTheFolderHolds) {
  const std::string before = folder_.Text("620x.dat");
  bool imported = false;
  for (int cancelAt = 1; !imported; ++cancelAt) {
    ASSERT_LT(cancelAt, 50);
    frmImport form(workspace_);
    form.show();
    form.AddFiles({folder_.Path("amq.txt")});
    int rounds = 0;
    platform_.OnEvents = [&](int) {
      if (++rounds == cancelAt) Press(form, "cmdCancel");
    };
    Press(form, "cmdImport");
    imported = folder_.Text("620x.dat") != before;
    EXPECT_GE(rounds, cancelAt) << "it was cancelled at the last moment at the latest";
    EXPECT_EQ(form.DataChanged(), imported) << cancelAt;
    EXPECT_TRUE(Report(form).startsWith(imported ? "Imported" : "Nothing was written: cancelled"))
        << cancelAt;
  }
}

TEST_F(frmImportTest, OnlyTheStationsOfTheCountriesWanted) {
  std::string mexican = Row("XEAA", "1.0", "21");
  mexican.replace(mexican.find("|LIC|PLANO|TX|US|"), 17, "|CP|SALTILLO|CI|MX|");
  folder_.Put("amq.txt", Row("KAAA", "5.0", "11") + mexican);
  frmImport form(workspace_);
  form.show();
  form.AddFiles({folder_.Path("amq.txt")});
  auto* countries = form.findChild<QLineEdit*>("txtCountries");
  countries->setText("us, uk");
  Press(form, "cmdImport");
  ASSERT_EQ(platform_.Messages.size(), 1);
  EXPECT_EQ(platform_.Messages[0],
            "Countries: \"UK\" is no country of the FCC's lists, as US, CA and MX are");
  EXPECT_EQ(Report(form), "");
  EXPECT_FALSE(form.DataChanged());

  countries->setText("mx");
  Press(form, "cmdImport");
  EXPECT_EQ(folder_.Text("620x.dat").find("KAAA"), std::string::npos);
  EXPECT_NE(folder_.Text("620x.dat").find("XEAA"), std::string::npos) << Report(form).toStdString();
  countries->clear();
  Press(form, "cmdImport");
  EXPECT_NE(folder_.Text("620x.dat").find("KAAA"), std::string::npos);
}

TEST_F(frmImportTest, TheHintInItsBoxCanBeReadInADarkTheme) {
  const QPalette before = QApplication::palette("QLineEdit");
  QPalette dark = before;
  dark.setColor(QPalette::Base, Qt::black);
  dark.setColor(QPalette::Text, Qt::white);
  dark.setColor(QPalette::PlaceholderText, Qt::black);
  QApplication::setPalette(dark, "QLineEdit");
  {
    frmImport form(workspace_);
    const auto* box = form.findChild<QLineEdit*>("txtCountries");
    EXPECT_EQ(box->palette().color(QPalette::PlaceholderText).lightness(), 255);
  }
  QApplication::setPalette(before, "QLineEdit");
}

TEST_F(frmImportTest, FilesMayBeDropped) {
  frmImport form(workspace_);
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(folder_.Path("amq.txt")), QUrl("https://example.org/x")});
  QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&form, &enter);
  EXPECT_TRUE(enter.isAccepted());
  // Over the text boxes too, which do not take them for a text.
  for (const char* box : {"txtCountries", "txtReport"}) {
    QDragEnterEvent over({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    over.ignore();
    QApplication::sendEvent(form.findChild<QWidget*>(box), &over);
    EXPECT_TRUE(over.isAccepted()) << box;
  }
  EXPECT_EQ(form.findChild<QLineEdit*>("txtCountries")->text(), "");
  QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&form, &drop);
  ASSERT_EQ(form.findChild<QListWidget*>("lstFiles")->count(), 1);
  EXPECT_EQ(form.findChild<QListWidget*>("lstFiles")->item(0)->text(), folder_.Path("amq.txt"));
}

}  // namespace
}  // namespace kestrel
