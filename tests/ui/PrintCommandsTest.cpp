#include <gtest/gtest.h>

#include <QDir>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "draw/Fonts.h"
#include "forms/StandInPlatform.h"
#include "map/MainMap.h"
#include "TestFolder.h"
#include "ui/PrintCommands.h"

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
  void ChooseFailing(bool outlineMap) {
    Choose([this] { return std::make_unique<FailingDevice>(Printer(pdf_)); }, outlineMap);
  }

  void PrintTheMap() { PrintMap(system_, data_.Folder(), state_, drawing_, nullptr); }

  /// What was said since the last look.
  QStringList Said() { return std::exchange(system_.Messages, {}); }

  QByteArray Pdf() const {
    QFile file(pdf_);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  /// One page of the size given, in points, drawn with lines and letters, never as a picture.
  void ExpectVectorPage(int width, int height) const {
    const QString pdf = QString::fromLatin1(Pdf());
    const auto box = QRegularExpression("/MediaBox \\[0 0 ([0-9.]+) ([0-9.]+)").match(pdf);
    ASSERT_TRUE(box.hasMatch());
    EXPECT_NEAR(box.captured(1).toDouble(), width, 1);
    EXPECT_NEAR(box.captured(2).toDouble(), height, 1);
    EXPECT_EQ(pdf.count(QRegularExpression("/Type /Page\\b")), 1);
    EXPECT_EQ(pdf.count(QRegularExpression("/Subtype ?/Image")), 0);
    EXPECT_GT(pdf.count("/FontFile2"), 0);
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
