#include "forms/frmGetFrequency.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "core/ChannelChoice.h"
#include "core/Numbers.h"
#include "ui/Controls.h"

namespace kestrel {

frmGetFrequency::frmGetFrequency(const Workspace& workspace, QWidget* parent)
    : QDialog(parent), workspace_(workspace) {
  setObjectName("frmGetFrequency");
  setWindowTitle("KestrelII - Get frequency");

  auto* label = new QLabel("&Plot which frequency (kHz): ");
  label->setObjectName("lblGetChannel");
  txtGetFrequency_ = new QLineEdit(QString::fromStdString(NumberText(OfferChannel(workspace_.State))));
  txtGetFrequency_->setObjectName("txtGetFrequency");
  txtGetFrequency_->setToolTip("A channel from 530 to 1700 kHz; 1.1k is 1100");
  label->setBuddy(txtGetFrequency_);

  auto* layout = new QGridLayout(this);
  layout->addWidget(label, 0, 0);
  layout->addWidget(txtGetFrequency_, 0, 1);
  const auto addButton = [&](const char* name, const QString& caption, const QString& tip, int row,
                             int column, auto action) {
    auto* button = new QPushButton(caption);
    button->setObjectName(name);
    button->setToolTip(tip);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, action);
    layout->addWidget(button, row, column);
    return button;
  };
  QPushButton* erase = addButton("cmdErasePlot", "&Erase and plot", "Draws the map anew with this channel", 1,
                                 0, [this] { ErasePlot(); });
  addButton("cmdExit", "&Add plot", "Adds this channel to what the map shows", 1, 1, [this] { AddPlot(); });
  addButton("cmdUpOne", "&Up one channel and replot", "10 kHz higher (Page Up on the map)", 2, 0,
            [this] { Step(StepUp); });
  addButton("cmdDownOne", "&Down one channel and replot", "10 kHz lower (Page Down on the map)", 2, 1,
            [this] { Step(StepDown); });
  addButton("cmdAdd1st", "Add adja&cents", "Adds the channels 10 kHz above and below the present one", 3, 0,
            [this] {
              workspace_.State.AdjacentsShown = 1;
              CloseWith(Plot::OnTop, std::nullopt);
            });
  erase->setDefault(true);
  txtGetFrequency_->setFocus();
  txtGetFrequency_->selectAll();
}

void frmGetFrequency::AddPlot() {
  constexpr float kUnsetChannel = 1020;
  if (workspace_.State.CurrentFrequency == 0) workspace_.State.CurrentFrequency = kUnsetChannel;
  CloseWith(Plot::OnTop,
            EnterChannel(workspace_.State, TypedNumber(*txtGetFrequency_), "Entry reset to 1700"));
}

void frmGetFrequency::ErasePlot() {
  CloseWith(Plot::AfterErase,
            EnterChannel(workspace_.State, TypedNumber(*txtGetFrequency_), "Entry over 1700 reset to 1700"));
}

void frmGetFrequency::Step(std::optional<std::string> (*step)(SessionState&)) {
  const std::optional<std::string> message = step(workspace_.State);
  txtGetFrequency_->setText(QString::fromStdString(NumberText(workspace_.State.CurrentFrequency)));
  CloseWith(Plot::AfterErase, message);
}

void frmGetFrequency::CloseWith(Plot choice, const std::optional<std::string>& message) {
  if (message) workspace_.System.ShowMessage(this, QString::fromStdString(*message));
  choice_ = choice;
  accept();
}

}  // namespace kestrel
