#include "ui/PrintCommands.h"

#include <gtest/gtest.h>

#include <QPrinter>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "TestFolder.h"
#include "draw/Fonts.h"
#include "forms/StandInPlatform.h"
#include "map/MainMap.h"
#include "ui/PdfPage.h"

namespace kestrel {
namespace {

const QByteArray kFile =
    "1230, QABC, SPRINGFIELD             , IL  , United States, N, 34, 97, 1,-,-, 2\n"
    "0,1,90,0,0,0\n"
    "0,1,90,-90,90,0\n";

/// A printer that loses what it was given.
class FailingDevice final : public PrintDevice {
 public:
  explicit FailingDevice(std::unique_ptr<QPrinter> paper) : paper_(std::move(paper)) {}
  QPagedPaintDevice& Paper() override { return *paper_; }
  bool InColor() const override { return true; }
  bool Failed() const override { return true; }

 private:
  std::unique_ptr<QPrinter> paper_;
};

class PrintCommandsTest : public ::testing::Test {
 protected:
  PrintCommandsTest() {
    data_.Put("1230x.dat", kFile);
    data_.Put("STATES.dat", "33 263\n34 263\n");
    data_.Put("REGION2.dat", "32 263\n31 264\n");
    data_.Put("Stations.txt", "Stations of a test\n");
    state_.CurrentFrequency = 1230;
    DrawMainMap(drawing_, data_.Folder(), state_);
  }

  std::unique_ptr<QPrinter> Printer(const QString& path,
                                    QPageSize::PageSizeId paper = QPageSize::Letter) const {
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setOutputFileName(path);
    printer->setPageSize(QPageSize(paper));
    printer->setPageOrientation(QPageLayout::Landscape);
    return printer;
  }

  /// Lets the platform choose this device.
  void Choose(std::function<std::unique_ptr<PrintDevice>()> device, bool outlineMap = false) {
    system_.NextPrint = [device = std::move(device), outlineMap](const PrintOffer&) {
      PrintOrder order;
      order.Device = device();
      order.OutlineMap = outlineMap;
      return std::optional<PrintOrder>(std::move(order));
    };
  }
  void ChoosePdf(bool outlineMap = false, QPageSize::PageSizeId paper = QPageSize::Letter) {
    Choose([this, paper] { return std::make_unique<PrinterDevice>(Printer(pdf_, paper)); }, outlineMap);
  }
  void ChooseGreyPdf(bool outlineMap = false) {
    Choose(
        [this] {
          std::unique_ptr<QPrinter> printer = Printer(pdf_, QPageSize::A4);
          printer->setColorMode(QPrinter::GrayScale);
          return std::make_unique<PrinterDevice>(std::move(printer));
        },
        outlineMap);
  }
  void ChooseFailing(bool outlineMap) {
    Choose([this] { return std::make_unique<FailingDevice>(Printer(pdf_)); }, outlineMap);
  }

  void PrintTheMap() { PrintMap(system_, data_.Folder(), state_, {drawing_, {}}, nullptr); }

  /// What was said since the last look.
  QStringList Said() { return std::exchange(system_.Messages, {}); }

  /// One page of the size given, in points, drawn with lines and letters, never as a picture. Lines are seen
  /// at 600 dots per inch and stay fine; letters have 8 to 10 points.
  PdfPage ExpectVectorPage(int width, int height) const {
    const PdfPage page = ReadPdf(pdf_);
    EXPECT_NEAR(page.Size.width(), width, 1);
    EXPECT_NEAR(page.Size.height(), height, 1);
    EXPECT_EQ(page.Pages, 1);
    EXPECT_EQ(page.Pictures, 0);
    EXPECT_TRUE(page.HasLetters);
    constexpr double kDot = 72 / 600.0;
    EXPECT_FALSE(page.LineWidths.empty());
    for (const double line : page.LineWidths) EXPECT_TRUE(line > 1.5 * kDot && line < 8 * kDot) << line;
    EXPECT_FALSE(page.FontSizes.empty());
    for (const double size : page.FontSizes) EXPECT_TRUE(size > 7.9 && size < 10.1) << size;
    return page;
  }

  QString PdfText() const {
    QProcess reader;
    reader.start("pdftotext", {"-layout", pdf_, "-"});
    reader.waitForFinished();
    return QString::fromUtf8(reader.readAllStandardOutput());
  }
  static bool CanReadPdf() { return !QStandardPaths::findExecutable("pdftotext").isEmpty(); }

  TestFolder data_;
  SessionState state_;
  StandInPlatform system_;
  PlatformTextMeasure measure_;
  DisplayList drawing_{measure_};
  QTemporaryDir folder_;
  QString pdf_ = folder_.filePath("page.pdf");
};

TEST_F(PrintCommandsTest, TheMapIsOnePageOfLinesAndLetters) {
  ChoosePdf();
  PrintTheMap();
  EXPECT_EQ(Said(), QStringList("All patterns printed"));
  ExpectVectorPage(792, 612);
  ChoosePdf(false, QPageSize::A4);
  PrintTheMap();
  ExpectVectorPage(842, 595);
  if (!CanReadPdf()) GTEST_SKIP() << "no pdftotext to read the page's text with";
  const QString text = PdfText();
  for (const char* words : {"1230 kHz    Home: Plano", "Stations of a test", "1230 QABC", "Nighttime"})
    EXPECT_TRUE(text.simplified().contains(QString(words).simplified())) << words << "\nin\n"
                                                                         << text.toStdString();
}

TEST_F(PrintCommandsTest, TheOutlineMapHasNoStations) {
  ChoosePdf(true);
  PrintTheMap();
  EXPECT_EQ(Said(), QStringList());
  ExpectVectorPage(792, 612);
  if (!CanReadPdf()) GTEST_SKIP() << "no pdftotext to read the page's text with";
  EXPECT_TRUE(PdfText().contains("Region 2"));
  EXPECT_FALSE(PdfText().contains("QABC"));
}

TEST_F(PrintCommandsTest, TheStationPageHoldsItsDataInWords) {
  ChoosePdf(false, QPageSize::A4);
  const SearchResult found = SearchStations(data_.Folder(), 1230, "QABC");
  PrintStation(system_, data_.Folder(), state_, SelectRow(found.Rows.at(0)), nullptr);
  EXPECT_EQ(Said(), QStringList());
  ExpectVectorPage(842, 595);
  if (!CanReadPdf()) GTEST_SKIP() << "no pdftotext to read the page's text with";
  const QString text = PdfText();
  for (const char* words :
       {"QABC", "SPRINGFIELD", "1 kW", "nighttime (N)", "Spacings", "-90", "Enlarged 5x", "330"})
    EXPECT_TRUE(text.contains(words)) << words << "\nin\n" << text.toStdString();
}

TEST_F(PrintCommandsTest, APrinterWithoutColourGetsGreysOnly) {
  const auto isColored = [](const PdfPage& page) {
    return std::any_of(page.Colors.begin(), page.Colors.end(),
                       [](const PdfColor& color) { return !color.IsGrey(); });
  };
  for (const bool outlines : {false, true}) {
    ChoosePdf(outlines, QPageSize::A4);
    PrintTheMap();
    const PdfPage colored = ExpectVectorPage(842, 595);
    EXPECT_TRUE(isColored(colored));
    ChooseGreyPdf(outlines);
    PrintTheMap();
    const PdfPage grey = ExpectVectorPage(842, 595);
    EXPECT_FALSE(isColored(grey));
    EXPECT_GE(grey.Colors.size(), colored.Colors.size()) << "as many greys as there were colours";
    EXPECT_GT(grey.LineWidths.size(), colored.LineWidths.size()) << "and widths";
  }
  const StationSelection selection = SelectRow(SearchStations(data_.Folder(), 1230, "QABC").Rows.at(0));
  ChoosePdf(false, QPageSize::A4);
  PrintStation(system_, data_.Folder(), state_, selection, nullptr);
  EXPECT_TRUE(isColored(ExpectVectorPage(842, 595)));
  ChooseGreyPdf();
  PrintStation(system_, data_.Folder(), state_, selection, nullptr);
  EXPECT_FALSE(isColored(ExpectVectorPage(842, 595)));
}

TEST_F(PrintCommandsTest, SmallPaperKeepsLettersLegible) {
  for (const QPageSize::PageSizeId paper : {QPageSize::A5, QPageSize::A3, QPageSize::Legal}) {
    ChoosePdf(false, paper);
    PrintTheMap();
    const QSizeF points = QPageSize(paper).size(QPageSize::Point);
    ExpectVectorPage(static_cast<int>(points.height()), static_cast<int>(points.width()));
  }
}

TEST_F(PrintCommandsTest, ACancelledDialogPrintsNothingAndSaysNothing) {
  PrintTheMap();
  PrintStation(system_, data_.Folder(), state_, {}, nullptr);
  EXPECT_EQ(Said(), QStringList());
}

TEST_F(PrintCommandsTest, EveryFailureHasItsWords) {
  const QString states = "We had a problem sending STATES.dat to the printer";
  const QString region = "We had a problem sending REGION2.dat to the printer";
  const QString outlines = "We had a problem printing the map of Region 2";
  const auto unopened = [this] {
    return std::make_unique<PrinterDevice>(Printer(folder_.filePath("no such folder/page.pdf")));
  };

  Choose(unopened);
  PrintTheMap();
  EXPECT_EQ(Said(), QStringList("Printer Error"));
  Choose(unopened, true);
  PrintTheMap();
  EXPECT_EQ(Said(), QStringList("Printer Error"));
  Choose(unopened);
  PrintStation(system_, data_.Folder(), state_, {}, nullptr);
  EXPECT_EQ(Said(), QStringList("Printer Error"));
  ChooseFailing(false);
  PrintTheMap();
  EXPECT_EQ(Said(), QStringList("Printer Error"));
  ChooseFailing(true);
  PrintTheMap();
  EXPECT_EQ(Said(), QStringList(outlines));

  ASSERT_TRUE(QFile::remove(data_.Folder().Path() + "/STATES.dat"));
  ChoosePdf();
  PrintTheMap();
  EXPECT_EQ(Said(), QStringList({states, "All patterns printed"}));
  ASSERT_TRUE(QFile::remove(data_.Folder().Path() + "/REGION2.dat"));
  ChoosePdf(true);
  PrintTheMap();
  EXPECT_EQ(Said(), QStringList({states, region, outlines}));
  data_.Put("STATES.dat", "33 263\n34 263\n");
  PrintTheMap();
  EXPECT_EQ(Said(), QStringList(region));
}

}  // namespace
}  // namespace kestrel
