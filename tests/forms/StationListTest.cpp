#include "forms/StationList.h"

#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QMenu>
#include <QProgressBar>
#include <QSettings>
#include <QSpinBox>
#include <QTableView>
#include <algorithm>

#include "core/Numbers.h"
#include "forms/FormFixture.h"
#include "forms/StationTable.h"

namespace kestrel {
namespace {

using Texts = std::vector<std::string>;

const Moment kNight = *ReadMoment("2026-11-22T05:00Z", {});
const Moment kDay = *ReadMoment("2026-11-22T18:00Z", {});

/// A station south of home by so many degrees, of one tower or of unknown ones.
std::string Record(const std::string& call, const std::string& city, const std::string& hours, double degrees,
                   const std::string& power, bool known = true) {
  return "620, " + call + ", " + city + ", TX, United States, " + hours + ", " +
         NumberText(static_cast<float>(33.24 - degrees)) + ", 96.5," + power + ",-,-, " +
         (known ? "1" : "0") + "\r\n" + (known ? "0,1,90,0,0,0\r\n" : "");
}

class StationListTest : public FormTest {
 protected:
  StationListTest() {
    Files.Put("620x.dat",
              Record("QLOC", "NEAR \"TOWN\"", "D", 0.2, "5") +
                  Record("QLOC", "NEAR \"TOWN\"", "N", 0.2, ".5") + Record("QFAR", "ABILENE", "U", 6, "50") +
                  Record("QUNK", "BEAUMONT", "U", 6, "10", false) + Record("QDAY", "CORSICANA", "D", 1, "1"));
    State.CurrentFrequency = 620;
    Open();
  }
  ~StationListTest() override {
    list_.reset();
    QSettings().clear();
  }

  void Open() {
    list_.reset();
    list_ = std::make_unique<StationList>(Everything);
    list_->RowChosen = [this](const ListedStation* station) {
      chosen_ = station ? station->Record->CallSign + ' ' + HoursLetter(station->Record->OnAir) : "nobody";
    };
    list_->LookupAsked = [this](const std::string& call) { asked_ = "lookup of " + call; };
    list_->ChannelAsked = [this](float frequency) {
      asked_ = "channel " + std::to_string(static_cast<int>(frequency));
      State.CurrentFrequency = frequency;
      list_->Show({frequency}, kNight);
    };
    list_->resize(900, 400);
    list_->show();
    list_->Show({620}, kNight);
  }

  StationTable& Table() { return *Find<StationTable>(*list_, "Stations"); }

  /// The rows seen, of each the columns given.
  Texts Rows(std::initializer_list<int> columns = {StationListModel::Call, StationListModel::Chance}) {
    Texts rows;
    const QAbstractItemModel& model = *Table().model();
    for (int row = 0; row < model.rowCount(); ++row) {
      QStringList cells;
      for (const int column : columns) cells << model.index(row, column).data().toString();
      rows.push_back(cells.join(' ').toStdString());
    }
    return rows;
  }

  void ChooseRow(int row) { Table().setCurrentIndex(Table().model()->index(row, 0)); }
  void PressInRows(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    list_->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(list_.get()));
    Table().setFocus();
    QTest::keyClick(&Table(), key, modifiers);
  }
  void TurnBand() { Find<QCheckBox>(*list_, "chkBand")->click(); }

  std::unique_ptr<StationList> list_;
  std::string chosen_, asked_;
};

TEST_F(StationListTest, WhoItCanBeFollowsTheHour) {
  const QAbstractItemModelTester tester(Table().model());
  EXPECT_EQ(Rows(), (Texts{"QLOC likely", "QFAR unlikely", "QUNK unlikely", "QDAY silent"}));
  EXPECT_EQ(Rows({StationListModel::Call, StationListModel::OnAirHours, StationListModel::Reason}).back(),
            "QDAY  day only");
  EXPECT_TRUE(Rows({StationListModel::Field})[2].ends_with(" ?"));
  EXPECT_EQ(Shown(*list_, "lblNow"), "620 kHz, 2026-11-22 05:00 UTC: 3 on the air, 1 silent");
  EXPECT_NE(
      list_->Sentence().indexOf("620 kHz at Plano TX, 2026-11-22 05:00 UTC: 3 on the air, the strongest "
                                "QLOC NEAR \"TOWN\" TX "),
      -1)
      << list_->Sentence().toStdString();

  // By day it sends with its other record, and stays the one chosen.
  ChooseRow(0);
  EXPECT_EQ(chosen_, "QLOC N");
  list_->Rerank(kDay);
  EXPECT_EQ(chosen_, "QLOC D");
  ASSERT_NE(list_->Chosen(), nullptr);
  EXPECT_EQ(list_->Chosen()->Record->Line, 1);
  EXPECT_EQ(Rows().size(), 4U);
  EXPECT_EQ(Shown(*list_, "lblNow"), "620 kHz, 2026-11-22 18:00 UTC: 4 on the air, 0 silent");

  // A click on the night's record means the station.
  list_->Choose(StationMark{{}, 620, "QLOC", "N", 0.5F});
  EXPECT_EQ(list_->Chosen()->Record->OnAir, Hours::Daytime);
  list_->Show({1230}, kDay);
  EXPECT_EQ(chosen_, "nobody");
  list_->Show({1500}, kDay);
  EXPECT_EQ(Shown(*list_, "lblNow"), "1500 kHz: no station data");
}

TEST_F(StationListTest, AStruckStationIsAtTheEndInEveryOrder) {
  ChooseRow(0);
  EXPECT_EQ(Shown(*list_, "lblChosen"),
            "QLOC 620 kHz: 23 km, 170 deg. To null it, turn a loop's plane to 80 or 260 deg");
  PressInRows(Qt::Key_Delete);
  EXPECT_EQ(Rows(), (Texts{"QFAR likely", "QUNK possible", "QLOC struck", "QDAY silent"}));
  for (const int column : {StationListModel::Distance, StationListModel::Call, StationListModel::Reason})
    for (const Qt::SortOrder order : {Qt::AscendingOrder, Qt::DescendingOrder}) {
      Table().sortByColumn(column, order);
      EXPECT_EQ(Rows()[2], "QLOC struck") << column;
      EXPECT_EQ(Rows()[3], "QDAY silent") << column;
    }
  EXPECT_EQ(list_->Chosen()->Record->CallSign, "QLOC");
  PressInRows(Qt::Key_Delete);
  Table().sortByColumn(StationListModel::Distance, Qt::AscendingOrder);
  EXPECT_EQ(Rows({StationListModel::Call, StationListModel::Distance})[0], "QLOC 23");
}

TEST_F(StationListTest, RowsAreCopiedAndSaved) {
  System.NextFileToWrite = Files.Folder().Path() + "/list.csv";
  Press(*list_, "cmdSave");
  const std::string whole = Files.Text("list.csv");
  EXPECT_TRUE(
      whole.starts_with("call,frequency,city,state,country,hours,power_kw,distance_km,bearing_deg,"
                        "field_dbu,word,reason\r\nQLOC,620,\"NEAR \"\"TOWN\"\"\",TX,United States,N,"
                        "0.5,23,170,"))
      << whole;
  EXPECT_NE(whole.find("\r\nQDAY,620,CORSICANA,TX,United States,,,112,178,,silent,day only\r\n"),
            std::string::npos)
      << whole;
  EXPECT_EQ(std::count(whole.begin(), whole.end(), '\n'), 5);
  ChooseRow(1);
  PressInRows(Qt::Key_C, Qt::ControlModifier);
  const QString copied = QGuiApplication::clipboard()->text();
  EXPECT_TRUE(copied.startsWith("Call\tdBu\tChance\tCity\t"))
      << copied.toStdString();  // one channel has no column
  EXPECT_EQ(copied.count('\n'), 2);
  PressInRows(Qt::Key_Down, Qt::ShiftModifier);  // which draws smaller patterns elsewhere
  PressInRows(Qt::Key_S, Qt::ControlModifier);
  const std::string two = Files.Text("list.csv");
  EXPECT_EQ(std::count(two.begin(), two.end(), '\n'), 3);
  System.NextFileToWrite = Files.Folder().Path() + "/none/list.csv";
  Press(*list_, "cmdSave");
  EXPECT_EQ(System.Messages.size(), 1);
}

TEST_F(StationListTest, AStationIsFoundOnItsChannelAndInTheBand) {
  Type(*list_, "txtFind", "tx be");
  EXPECT_EQ(Rows(), Texts{"QUNK unlikely"});
  QTest::keyClick(Find<QLineEdit>(*list_, "txtFind"), Qt::Key_Return);
  EXPECT_EQ(chosen_, "QUNK U");
  PressInRows(Qt::Key_Return);
  EXPECT_EQ(asked_, "lookup of QUNK");

  Type(*list_, "txtFind", "");
  TurnBand();
  EXPECT_EQ(Rows({StationListModel::Channel, StationListModel::Call}),
            (Texts{"620 QLOC", "630 QDN630", "1230 QDN1230"}));
  Type(*list_, "txtFind", "qu1");
  EXPECT_EQ(Rows({StationListModel::Channel, StationListModel::Call}), Texts{"1230 QU1230"});
  QTest::keyClick(Find<QLineEdit>(*list_, "txtFind"), Qt::Key_Return);
  EXPECT_EQ(asked_, "channel 1230");
  EXPECT_EQ(chosen_, "QU1230 U");
  EXPECT_FALSE(list_->IsWholeBand());
  EXPECT_EQ(Rows({StationListModel::Call}), (Texts{"QDN1230", "QU1230"}));

  list_->Find("QFAR");
  EXPECT_TRUE(list_->IsWholeBand());
  EXPECT_EQ(Rows({StationListModel::Channel, StationListModel::Call}), Texts{"620 QFAR"});
  list_->Rerank(kDay);
  EXPECT_EQ(Rows({StationListModel::Channel, StationListModel::Call}), Texts{"620 QFAR"});
}

TEST_F(StationListTest, TheBandCanBeStoppedAndAskedForAgainMeanwhile) {
  System.OnEvents = [this](int round) {
    if (round != 1) return;
    EXPECT_TRUE(Find<QProgressBar>(*list_, "prgBand")->isVisible());
    Press(*list_, "cmdStopBand");
  };
  TurnBand();
  EXPECT_FALSE(list_->IsWholeBand());
  EXPECT_EQ(Rows().size(), 4U);
  EXPECT_FALSE(Find<QProgressBar>(*list_, "prgBand")->isVisible());

  System.EventRounds = 0;
  System.OnEvents = [this](int round) {
    if (round == 1) list_->Show({1230}, kNight);  // home may be another one
    if (round == 3) TurnBand(), TurnBand();
  };
  TurnBand();
  System.OnEvents = {};
  EXPECT_TRUE(list_->IsWholeBand());
  EXPECT_EQ(Rows().size(), 3U);
}

TEST_F(StationListTest, TheListenersChoicesAreKept) {
  auto* ground = Find<QComboBox>(*list_, "cmbGround");
  const std::string before = Rows({StationListModel::Call, StationListModel::Field})[0];
  ground->setCurrentIndex(ground->findData(5000.0));
  EXPECT_NE(Rows({StationListModel::Call, StationListModel::Field})[0], before);
  Find<QSpinBox>(*list_, "spnNeeded")->setValue(100);
  EXPECT_EQ(Rows()[0], "QLOC unlikely");
  QMenu menu;
  Table().FillColumnMenu(menu);
  menu.actions()[2]->trigger();  // of the columns without the channel's
  EXPECT_TRUE(Table().isColumnHidden(StationListModel::State));
  QHeaderView* header = Table().horizontalHeader();
  header->moveSection(header->visualIndex(StationListModel::Field), 0);
  Open();
  EXPECT_EQ(Rows()[0], "QLOC unlikely");
  EXPECT_EQ(Find<QComboBox>(*list_, "cmbGround")->currentData(), 5000.0);
  EXPECT_TRUE(Table().isColumnHidden(StationListModel::State));
  EXPECT_EQ(Table().horizontalHeader()->visualIndex(StationListModel::Field), 0);
  list_->Show({620, 630}, kNight);
  EXPECT_FALSE(Table().isColumnHidden(StationListModel::Channel));
  EXPECT_TRUE(Table().isColumnHidden(StationListModel::State));
}

}  // namespace
}  // namespace kestrel
