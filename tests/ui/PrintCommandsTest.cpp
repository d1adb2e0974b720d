#include "ui/PrintCommands.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>

#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

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
  void ChoosePdf(bool outlineMap = false, QPageSize::PageSizeId paper = QPageSize::A4,
                 QPrinter::ColorMode colors = QPrinter::Color) {
    Choose(
        [this, paper, colors] {
          std::unique_ptr<QPrinter> printer = Printer(pdf_, paper);
          printer->setColorMode(colors);
          return std::make_unique<PrinterDevice>(std::move(printer));
        },
        outlineMap);
  }
  void ChooseFailing(bool outlineMap) {
    Choose([this] { return std::make_unique<FailingDevice>(Printer(pdf_)); }, outlineMap);
  }

  void PrintTheMap() { PrintMap(system_, data_.Folder(), state_, {drawing_, {}}, nullptr); }
  void PrintTheStation() {
    const SearchResult found = SearchStations(data_.Folder(), 1230, "QABC");
    PrintStation(system_, data_.Folder(), state_, found.Rows.at(0).Selection, nullptr);
  }

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
    for (const double line : page.LineWidths) EXPECT_TRUE(line > 1.5 * kDot && line < 10 * kDot) << line;
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
  QString pdf_ = data_.Path("page.pdf");
};

TEST_F(PrintCommandsTest, TheMapIsOnePageOfLinesAndLettersOnEveryPaper) {
  for (const QPageSize::PageSizeId paper :
       {QPageSize::A5, QPageSize::A3, QPageSize::Legal, QPageSize::Letter, QPageSize::A4}) {
    ChoosePdf(false, paper);
    PrintTheMap();
    EXPECT_EQ(Said(), QStringList("All patterns printed"));
    const QSizeF points = QPageSize(paper).size(QPageSize::Point);
    ExpectVectorPage(static_cast<int>(points.height()), static_cast<int>(points.width()));
  }
  if (!CanReadPdf()) GTEST_SKIP() << "no pdftotext to read the page's text with";
  const QString text = PdfText().simplified();
  for (const char* words : {"1230 kHz Home: Plano", "Stations of a test", "1230 QABC", "Nighttime"})
    EXPECT_TRUE(text.contains(words)) << words << "\nin\n" << text.toStdString();
  ChoosePdf(true);
  PrintTheMap();
  EXPECT_EQ(Said(), QStringList("Outline map printed"));
  EXPECT_TRUE(PdfText().contains("Region 2"));
  EXPECT_FALSE(PdfText().contains("QABC")) << "the outline map has no stations";
}

TEST_F(PrintCommandsTest, APrinterWithoutColourGetsGreysOnly) {
  for (const auto& [outlines, station] : {std::pair{true, false}, {false, false}, {false, true}}) {
    const auto print = [&](QPrinter::ColorMode colors) {
      ChoosePdf(outlines, QPageSize::A4, colors);
      station ? PrintTheStation() : PrintTheMap();
      return ExpectVectorPage(842, 595);
    };
    const PdfPage colored = print(QPrinter::Color);
    const PdfPage grey = print(QPrinter::GrayScale);
    EXPECT_FALSE(colored.IsGrey());
    EXPECT_TRUE(grey.IsGrey());
    if (station) continue;
    EXPECT_GE(grey.Colors.size(), colored.Colors.size()) << "as many greys as there were colours";
    EXPECT_GT(grey.LineWidths.size(), colored.LineWidths.size()) << "and widths";
  }
}

TEST_F(PrintCommandsTest, NothingOfTheStationPageRunsTogetherOnSmallPaper) {
  if (!CanReadPdf()) GTEST_SKIP() << "no pdftotext to read the page's text with";
  for (const QPageSize::PageSizeId paper : {QPageSize::Letter, QPageSize::A5, QPageSize::A6})
    for (const auto orientation : {QPageLayout::Landscape, QPageLayout::Portrait}) {
      Choose([&] {
        std::unique_ptr<QPrinter> printer = Printer(pdf_, paper);
        printer->setPageOrientation(orientation);
        return std::make_unique<PrinterDevice>(std::move(printer));
      });
      PrintTheStation();
      EXPECT_EQ(Said(), QStringList("Station data printed"));
      const QStringList words = PdfText().split(QRegularExpression("\\s+"));
      for (const char* word :
           {"Tower", "Fields", "Heights", "Phases", "Spacings", "Bearings", "Switch", "QABC", "SPRINGFIELD",
            "nighttime", "STATES", "96.54139", "home", "-90", "Enlarged", "330"})
        EXPECT_TRUE(words.contains(word)) << word << " on paper " << paper << ' ' << orientation << '\n'
                                          << PdfText().toStdString();
    }
}

TEST_F(PrintCommandsTest, AFileThatBreaksOffIsNotPrinted) {
  rlimit whole{};
  getrlimit(RLIMIT_FSIZE, &whole);
  const auto before = signal(SIGXFSZ, SIG_IGN);
  const rlimit little{3000, whole.rlim_max};
  setrlimit(RLIMIT_FSIZE, &little);
  ChoosePdf();
  PrintTheMap();
  setrlimit(RLIMIT_FSIZE, &whole);
  signal(SIGXFSZ, before);
  EXPECT_EQ(QFileInfo(pdf_).size(), 3000);
  EXPECT_EQ(Said(), QStringList("Printer Error"));
}

TEST_F(PrintCommandsTest, EveryFailureHasItsWords) {
  const QString states = "We had a problem sending STATES.dat to the printer";
  const QString region = "We had a problem sending REGION2.dat to the printer";
  const QString outlines = "We had a problem printing the map of Region 2";
  const auto unopened = [this] {
    return std::make_unique<PrinterDevice>(Printer(data_.Path("no such folder/page.pdf")));
  };

  PrintTheMap();
  PrintTheStation();
  EXPECT_EQ(Said(), QStringList()) << "cancelled";
  for (const bool outlineMap : {false, true}) {
    Choose(unopened, outlineMap);
    PrintTheMap();
    EXPECT_EQ(Said(), QStringList("Printer Error"));
  }
  PrintTheStation();
  EXPECT_EQ(Said(), QStringList("Printer Error"));
  ChooseFailing(false);
  PrintTheMap();
  EXPECT_EQ(Said(), QStringList("Printer Error"));
  ChooseFailing(true);
  PrintTheMap();
  EXPECT_EQ(Said(), QStringList(outlines));

  data_.Remove("STATES.dat");
  ChoosePdf();
  PrintTheMap();
  EXPECT_EQ(Said(), QStringList({states, "All patterns printed"}));
  data_.Remove("REGION2.dat");
  ChoosePdf(true);
  PrintTheMap();
  EXPECT_EQ(Said(), QStringList({states, region, outlines}));
  data_.Put("STATES.dat", "33 263\n34 263\n");
  PrintTheMap();
  EXPECT_EQ(Said(), QStringList({region, "Outline map printed"}));
}

}  // namespace
}  // namespace kestrel
