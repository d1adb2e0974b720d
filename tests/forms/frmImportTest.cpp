#include "forms/frmImport.h"

#include <QDragEnterEvent>
#include <QListWidget>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTableView>
#include <QUrl>

#include "forms/FormFixture.h"

namespace kestrel {
namespace {

class frmImportTest : public FormTest {
 protected:
  frmImportTest() {
    Files.Put("amq.txt", FccRow("KAAA", "620", "5.0", "11") + FccRow("KBBB", "620", "1.0", "12"));
    System.NextConfirmation = true;
    form_.show();
    form_.AddFiles({Files.Path("amq.txt")});
  }

  void Press(const char* name) { kestrel::Press(form_, name); }
  bool Enabled(const char* name) { return Find<QPushButton>(form_, name)->isEnabled(); }
  QListWidget* List() { return Find<QListWidget>(form_, "lstFiles"); }
  std::string Report() { return Find<QPlainTextEdit>(form_, "txtReport")->toPlainText().toStdString(); }
  const QAbstractItemModel* Changes() { return Find<QTableView>(form_, "lstChanges")->model(); }
  bool OnChannel(const char* call) { return Files.Text("620x.dat").find(call) != std::string::npos; }

  frmImport form_{Everything};
};

TEST_F(frmImportTest, ImportsShowsWhatChangedAndUndoes) {
  const std::string before = Files.Text("620x.dat");
  System.NextFiles = {Files.Path("amq.txt")};
  Press("cmdAdd");
  EXPECT_EQ(List()->count(), 1) << "each file once";
  EXPECT_FALSE(Enabled("cmdUndo")) << "there was no import";
  System.NextConfirmation = false;
  Press("cmdImport");
  EXPECT_EQ(System.Messages, QStringList("There are 6 stations now. The import would leave 2, less than half."
                                         "\n\nImport all the same?"));
  EXPECT_TRUE(Report().starts_with("Nothing was written: 2 stations would be left where there are 6"));
  EXPECT_EQ(Files.Text("620x.dat"), before);
  EXPECT_FALSE(form_.DataChanged());
  EXPECT_FALSE(Enabled("cmdUndo"));
  System.Messages.clear();

  System.NextConfirmation = true;
  Press("cmdImport");
  EXPECT_TRUE(form_.DataChanged());
  EXPECT_TRUE(OnChannel("KAAA")) << Report();
  EXPECT_EQ(Files.Text("1230x.dat"), "") << "no station of the list is on 1230 kHz";
  ASSERT_EQ(Changes()->rowCount(), 2 + 9) << "two are new, the test's nine records are gone";
  EXPECT_EQ(Changes()->index(0, 0).data().toString(), "new");
  EXPECT_EQ(Changes()->index(0, 2).data().toString(), "KAAA");

  System.NextFileToWrite = Files.Path("report.txt");
  Press("cmdSave");
  EXPECT_NE(Files.Text("report.txt").find("KBBB"), std::string::npos);
  Press("cmdUndo");
  EXPECT_EQ(Files.Text("620x.dat"), before);
  EXPECT_EQ(System.Messages.size(), 1) << "the question alone";
}

TEST_F(frmImportTest, DryRunCancelAndRefusedFilesWriteNothing) {
  const std::string before = Files.Text("620x.dat");
  Press("chkDryRun");
  Press("cmdImport");
  EXPECT_EQ(Files.Text("620x.dat"), before);
  EXPECT_EQ(Changes()->rowCount(), 11);

  Press("chkDryRun");
  List()->selectAll();
  System.OnEvents = [&](int) {
    EXPECT_TRUE(Enabled("cmdCancel"));
    for (const char* name : {"cmdAdd", "cmdRemove", "cmdImport", "cmdUndo", "cmdSave", "cmdExit"})
      EXPECT_FALSE(Enabled(name)) << name;
    form_.reject();
    EXPECT_TRUE(form_.isVisible()) << "stays until the reading has ended";
  };
  Press("cmdImport");
  EXPECT_TRUE(Report().starts_with("Nothing was written")) << Report();
  EXPECT_EQ(Files.Text("620x.dat"), before);

  System.OnEvents = {};
  List()->selectAll();
  Press("cmdRemove");
  EXPECT_FALSE(Enabled("cmdImport"));
  Files.Put("letter.txt", "Dear listener,\n");
  form_.AddFiles({Files.Path("letter.txt"), Files.Path("not there.txt")});
  Press("cmdImport");
  EXPECT_NE(Report().find("letter.txt"), std::string::npos) << Report();
  EXPECT_TRUE(Report().starts_with("Nothing was written"));
  EXPECT_FALSE(form_.DataChanged());
  EXPECT_TRUE(System.Messages.isEmpty());
}

TEST_F(frmImportTest, CancelAtAnyMomentAndTheWindowKnowsWhatTheFolderHolds) {
  const std::string before = Files.Text("620x.dat");
  bool imported = false;
  for (int cancelAt = 1; !imported; ++cancelAt) {
    ASSERT_LT(cancelAt, 50);
    EXPECT_FALSE(form_.DataChanged());
    int rounds = 0;
    System.OnEvents = [&](int) {
      if (++rounds == cancelAt) Press("cmdCancel");
    };
    Press("cmdImport");
    imported = Files.Text("620x.dat") != before;
    EXPECT_GE(rounds, cancelAt) << "it was cancelled at the last moment at the latest";
    EXPECT_EQ(form_.DataChanged(), imported) << cancelAt;
    EXPECT_TRUE(Report().starts_with(imported ? "Imported" : "Nothing was written: cancelled")) << cancelAt;
  }
}

TEST_F(frmImportTest, OnlyTheStationsOfTheCountriesWanted) {
  Files.Put(
      "amq.txt",
      FccRow("KAAA", "620", "5.0", "11") +
          AmqRow{.Call = "XEAA", .Frequency = "620 kHz", .Status = "CP", .Country = "MX", .Facility = "21"}
              .Text());
  Type(form_, "txtCountries", "us, uk");
  Press("cmdImport");
  ASSERT_EQ(System.Messages.size(), 1);
  EXPECT_TRUE(System.Messages[0].startsWith("Countries: \"UK\" is no country"));
  EXPECT_EQ(Report(), "");

  Type(form_, "txtCountries", "mx");
  Press("cmdImport");
  EXPECT_FALSE(OnChannel("KAAA"));
  EXPECT_TRUE(OnChannel("XEAA")) << Report();
  Type(form_, "txtCountries", "");
  Press("cmdImport");
  EXPECT_TRUE(OnChannel("KAAA"));
}

TEST_F(frmImportTest, FilesMayBeDropped) {
  List()->clear();
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(Files.Path("amq.txt")), QUrl("https://example.org/x")});
  // Over the text boxes too, which do not take them for a text.
  for (QWidget* target : {static_cast<QWidget*>(&form_), Find<QWidget>(form_, "txtCountries"),
                          Find<QWidget>(form_, "txtReport")}) {
    QDragEnterEvent over({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    over.ignore();
    QApplication::sendEvent(target, &over);
    EXPECT_TRUE(over.isAccepted()) << target->objectName().toStdString();
  }
  EXPECT_EQ(Shown(form_, "txtCountries"), "");
  QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&form_, &drop);
  ASSERT_EQ(List()->count(), 1);
  EXPECT_EQ(List()->item(0)->text(), Files.Path("amq.txt"));
}

}  // namespace
}  // namespace kestrel
