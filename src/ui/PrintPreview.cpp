#include "ui/PrintPreview.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QLocale>
#include <QPageSetupDialog>
#include <QPainter>
#include <QPrintDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPushButton>
#include <QScreen>

#include "draw/PagePainter.h"
#include "ui/Controls.h"
#include "ui/FitToScreen.h"

namespace kestrel {
namespace {

constexpr double kMarginInches = 0.4;

/// Lets a print into a file be offered under the document's name, in the folder that the dialog offers. The
/// platform's own way works on some of its displays only.
void OfferFile(QPrintDialog& dialog, const std::string& document) {
  auto* file = dialog.findChild<QLineEdit*>("filename");
  if (!file) return;
  const QString shown = file->text();
  const QString folder = QFileInfo(shown).isDir() ? shown : QFileInfo(shown).path();
  file->setText(QDir(folder).filePath(PdfFileName(document)));
}

std::unique_ptr<QPrinter> MakePrinter(const PrintedPage& page) {
  auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
  printer->setCreator("KestrelII");
  const bool letter = QLocale().measurementSystem() == QLocale::ImperialUSSystem;
  // A printer of the platform knows its paper; a file takes the paper of the country.
  if (printer->printerName().isEmpty())
    printer->setPageSize(QPageSize(letter ? QPageSize::Letter : QPageSize::A4));
  printer->setPageOrientation(page.Landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
  printer->setPageMargins(QMarginsF(kMarginInches, kMarginInches, kMarginInches, kMarginInches),
                          QPageLayout::Inch);
  return printer;
}

class PrintPreview final : public QDialog {
 public:
  PrintPreview(QWidget* parent, const PrintOffer& offer, QPrinter& printer)
      : QDialog(parent), offer_(offer), printer_(printer) {
    setObjectName("PrintPreview");
    setWindowTitle(Text(offer.Page.Name) + " - print preview");
    view_ = new QPrintPreviewWidget(&printer, this);
    view_->setObjectName("viewPages");
    for (QWidget* part : view_->findChildren<QWidget*>()) part->setAccessibleName("Page");
    view_->fitInView();
    connect(view_, &QPrintPreviewWidget::paintRequested, this, [this](QPrinter* paper) { Paint(*paper); });

    auto* rows = new QVBoxLayout(this);
    rows->addLayout(MakeChoices());
    rows->addWidget(view_, 1);
    rows->addLayout(MakeButtons());
    resize(screen()->availableSize() * 3 / 4);
  }

  bool WantsOutlines() const { return outlines_ != nullptr && outlines_->isChecked(); }

 private:
  QHBoxLayout* MakeChoices() {
    auto* row = new QHBoxLayout;
    auto* orientation = new QComboBox;
    orientation->setObjectName("cboOrientation");
    orientation->setAccessibleName("Orientation");
    orientation->addItems({"Portrait", "Landscape"});
    orientation->setCurrentIndex(printer_.pageLayout().orientation() == QPageLayout::Landscape ? 1 : 0);
    connect(orientation, &QComboBox::activated, this, [this](int index) {
      printer_.setPageOrientation(index == 1 ? QPageLayout::Landscape : QPageLayout::Portrait);
      view_->updatePreview();
    });
    QPushButton* setup =
        MakeButton("cmdPageSetup", "Page &setup...", "Paper, orientation and margins", [this, orientation] {
          QPageSetupDialog dialog(&printer_, this);
          FitToScreen(dialog);
          if (dialog.exec() != QDialog::Accepted) return;
          orientation->setCurrentIndex(printer_.pageLayout().orientation() == QPageLayout::Landscape ? 1 : 0);
          view_->updatePreview();
        });
    row->addWidget(orientation);
    row->addWidget(setup);
    if (offer_.Outlines) {
      outlines_ = new QCheckBox("Print &outline map");
      outlines_->setObjectName("chkOutlineMap");
      outlines_->setToolTip("Prints coasts and borders around home alone, without stations");
      connect(outlines_, &QCheckBox::toggled, this, [this] { view_->updatePreview(); });
      row->addWidget(outlines_);
    }
    row->addStretch();
    return row;
  }

  QHBoxLayout* MakeButtons() {
    auto* row = new QHBoxLayout;
    QPushButton* print = MakeButton("cmdPrint", "&Print...", "Chooses the printer and prints", [this] {
      const std::string& document = (WantsOutlines() ? *offer_.Outlines : offer_.Page).Name;
      printer_.setDocName(Text(document));
      QPrintDialog dialog(&printer_, this);
      OfferFile(dialog, document);
      FitToScreen(dialog);
      if (dialog.exec() == QDialog::Accepted) accept();
    });
    print->setDefault(true);
    row->addStretch();
    row->addWidget(print);
    row->addWidget(MakeButton("cmdClose", "&Close", "Prints nothing", [this] { reject(); }));
    return row;
  }

  void Paint(QPrinter& paper) {
    QPainter painter(&paper);
    const int unitsPerInch = paper.logicalDpiX();
    const QRect inside = paper.pageLayout().paintRectPixels(unitsPerInch);
    PaintPage(painter, WantsOutlines() ? *offer_.Outlines : offer_.Page, inside.size(), unitsPerInch,
              paper.colorMode() == QPrinter::Color);
  }

  const PrintOffer& offer_;
  QPrinter& printer_;
  QPrintPreviewWidget* view_ = nullptr;
  QCheckBox* outlines_ = nullptr;
};

}  // namespace

std::optional<PrintOrder> ChoosePrinting(QWidget* parent, const PrintOffer& offer) {
  std::unique_ptr<QPrinter> printer = MakePrinter(offer.Page);
  bool outlines = false;
  {
    PrintPreview preview(parent, offer, *printer);
    if (preview.exec() != QDialog::Accepted) return std::nullopt;
    outlines = preview.WantsOutlines();
  }
  PrintOrder order;
  order.Device = std::make_unique<PrinterDevice>(std::move(printer));
  order.OutlineMap = outlines;
  return order;
}

}  // namespace kestrel
