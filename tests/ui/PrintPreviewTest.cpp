#include "ui/PrintPreview.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrintPreviewWidget>
#include <QTest>
#include <QTimer>

#include "TestFolder.h"
#include "ui/PdfPage.h"

namespace kestrel {
namespace {

/// The preview of a page and an outline page that remember the sizes they were laid out in.
class PrintPreviewTest : public ::testing::Test {
 protected:
  PrintPreviewTest() {
    offer_.Page = {"A page", true, {1000, 1000}, {1000, 1000}, LaidOut(pageSizes_), {}};
    offer_.Outlines = PrintedPage{"Outlines", true, {1000, 1000}, {1000, 1000}, LaidOut(outlineSizes_), {}};
  }

  static std::function<std::vector<PagePane>(PageSize)> LaidOut(std::vector<PageSize>& sizes) {
    return [&sizes](PageSize size) {
      sizes.push_back(size);
      const SheetArea all = {0, 0, size.Width, size.Height};
      return std::vector<PagePane>{{all, all, [size](Canvas& canvas) {
                                      canvas.SetColor(255);
                                      canvas.FilledBox({0, 0}, {size.Width, size.Height});
                                    }}};
    };
  }

  /// Opens the preview; `story` works on it and must close it.
  std::optional<PrintOrder> Choose(const std::function<void(QDialog&)>& story) {
    QTimer::singleShot(0, [&] {
      auto* preview = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(preview, nullptr);
      ASSERT_TRUE(QTest::qWaitForWindowExposed(preview));
      story(*preview);
      EXPECT_FALSE(preview->isVisible());
      if (preview->isVisible()) preview->reject();
    });
    return ChoosePrinting(nullptr, offer_);
  }

  static void Press(QDialog& preview, const char* name) {
    auto* button = preview.findChild<QAbstractButton*>(name);
    ASSERT_NE(button, nullptr) << name;
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
  }

  /// Presses Print... and answers the print dialog.
  static void PressPrint(QDialog& preview, const std::function<void(QPrintDialog&)>& answer) {
    bool answered = false;
    QTimer::singleShot(0, &preview, [&] {
      auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      answer(*dialog);
      answered = true;
    });
    Press(preview, "cmdPrint");
    EXPECT_TRUE(answered);
  }

  /// The last size in which the page was laid out has this shape.
  static void ExpectShape(const std::vector<PageSize>& sizes, bool landscape) {
    ASSERT_FALSE(sizes.empty());
    EXPECT_EQ(sizes.back().Width > sizes.back().Height, landscape);
  }

  std::vector<PageSize> pageSizes_;
  std::vector<PageSize> outlineSizes_;
  PrintOffer offer_;
};

TEST_F(PrintPreviewTest, TheWholePageIsShownAndChoicesChangeIt) {
  const std::optional<PrintOrder> order = Choose([this](QDialog& preview) {
    auto* view = preview.findChild<QPrintPreviewWidget*>("viewPages");
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(view->pageCount(), 1);
    EXPECT_EQ(view->zoomMode(), QPrintPreviewWidget::FitInView);
    ExpectShape(pageSizes_, true);
    const QImage seen = view->grab().toImage();
    EXPECT_EQ(seen.pixelColor(seen.width() / 2, seen.height() / 2), QColor(Qt::red)) << "the page itself";

    auto* orientation = preview.findChild<QComboBox*>("cboOrientation");
    ASSERT_EQ(orientation->currentText(), "Landscape");
    QTest::keyClick(orientation, Qt::Key_Up);
    ExpectShape(pageSizes_, false);
    EXPECT_TRUE(outlineSizes_.empty());
    Press(preview, "chkOutlineMap");
    ExpectShape(outlineSizes_, false);
    const std::size_t pages = pageSizes_.size();
    QTest::keyClick(orientation, Qt::Key_Down);
    ExpectShape(outlineSizes_, true);
    EXPECT_EQ(pageSizes_.size(), pages) << "the outlines in its place";
    Press(preview, "chkOutlineMap");
    EXPECT_GT(pageSizes_.size(), pages);
    Press(preview, "cmdClose");
  });
  EXPECT_FALSE(order) << "closing prints nothing";
}

TEST_F(PrintPreviewTest, CancellingThePrintDialogLeadsBackAndAcceptingItOrders) {
  const TestFolder folder;
  const QString path = folder.Path("page.pdf");
  std::optional<PrintOrder> order = Choose([&](QDialog& preview) {
    QTest::keyClick(preview.findChild<QComboBox*>("cboOrientation"), Qt::Key_Up);
    PressPrint(preview, [](QPrintDialog& dialog) { dialog.reject(); });
    EXPECT_TRUE(preview.isVisible());
    Press(preview, "chkOutlineMap");
    PressPrint(preview, [&path](QPrintDialog& dialog) {
      EXPECT_EQ(dialog.printer()->docName(), "Outlines");
      auto* file = dialog.findChild<QLineEdit*>("filename");
      ASSERT_NE(file, nullptr);
      EXPECT_EQ(QFileInfo(file->text()).fileName(), "Outlines.pdf");
      EXPECT_TRUE(QFileInfo(file->text()).dir().exists()) << file->text().toStdString();
      dialog.printer()->setOutputFileName(path);
      static_cast<QDialog&>(dialog).done(QDialog::Accepted);
    });
  });
  ASSERT_TRUE(order);
  EXPECT_TRUE(order->OutlineMap);
  EXPECT_EQ(PrintPage(*order->Device, offer_.Page), PrintEnd::Printed);
  const PdfPage page = ReadPdf(path);
  EXPECT_EQ(page.Pages, 1);
  EXPECT_LT(page.Size.width(), page.Size.height()) << "upright, as was chosen in the preview";
}

TEST(PdfFileNameTest, HoldsWhatEveryFileSystemTakes) {
  const std::pair<std::string, QString> rows[] = {{"1510 kHz Wichita", "1510 kHz Wichita.pdf"},
                                                  {"620 kHz St. Louis", "620 kHz St. Louis.pdf"},
                                                  {"620 kHz A/B\\C: \"D\"?\n", "620 kHz A-B-C- -D---.pdf"},
                                                  {"...", "Page.pdf"},
                                                  {"  .profile. ", "profile.pdf"},
                                                  {"\xC3\x91", QString(QChar(0xD1)) + ".pdf"},
                                                  {std::string(300, 'x'), QString(100, 'x') + ".pdf"}};
  for (const auto& [document, file] : rows) EXPECT_EQ(PdfFileName(document), file) << document;
}

TEST_F(PrintPreviewTest, AStationHasNoOutlineMapBesideIt) {
  offer_.Outlines.reset();
  offer_.Page.Landscape = false;
  Choose([this](QDialog& preview) {
    EXPECT_EQ(preview.findChild<QAbstractButton*>("chkOutlineMap"), nullptr);
    ExpectShape(pageSizes_, false);
    QTest::keyClick(&preview, Qt::Key_Escape);
  });
}

}  // namespace
}  // namespace kestrel
