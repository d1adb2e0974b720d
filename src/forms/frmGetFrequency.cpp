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
    : Form(workspace, parent, "frmGetFrequency", "Get frequency"), shown_(workspace.State.CurrentFrequency) {
  txtGetFrequency_ = MakeBox("txtGetFrequency", "A channel from 530 to 1700 kHz; 1.1k is 1100");
  txtGetFrequency_->setText(Text(NumberText(OfferChannel(workspace_.State))));
  QPushButton* erase = MakeButton("cmdErasePlot", "&Erase and plot", "Draws the map anew with this channel",
                                  [this] { ErasePlot(); });
  erase->setDefault(true);

  auto* layout = new QGridLayout(this);
  layout->addWidget(MakeLabel("lblGetChannel", "&Plot which frequency (kHz): ", txtGetFrequency_), 0, 0);
  layout->addWidget(txtGetFrequency_, 0, 1);
  layout->addWidget(erase, 1, 0);
  layout->addWidget(
      MakeButton("cmdExit", "&Add plot", "Adds this channel to what the map shows", [this] { AddPlot(); }), 1,
      1);
  layout->addWidget(MakeButton("cmdUpOne", "&Up one channel and replot", "10 kHz higher (Page Up on the map)",
                               [this] { Step(StepUp); }),
                    2, 0);
  layout->addWidget(MakeButton("cmdDownOne", "&Down one channel and replot",
                               "10 kHz lower (Page Down on the map)", [this] { Step(StepDown); }),
                    2, 1);
  layout->addWidget(
      MakeButton("cmdAdd1st", "Add adja&cents", "Adds the channels 10 kHz above and below the present one",
                 [this] { AddAdjacents(); }),
      3, 0);
  txtGetFrequency_->setFocus();
  txtGetFrequency_->selectAll();
}

void frmGetFrequency::AddPlot() {
  constexpr float kUnsetChannel = 1020;
  if (workspace_.State.CurrentFrequency == 0) workspace_.State.CurrentFrequency = kUnsetChannel;
  Enter(Plot::OnTop, "Entry reset to 1700");
}

void frmGetFrequency::ErasePlot() {
  Enter(Plot::AfterErase, "Entry over 1700 reset to 1700");
}

void frmGetFrequency::Enter(Plot choice, const char* overLimitMessage) {
  const auto message = EnterChannel(workspace_.State, TypedNumber(*txtGetFrequency_), overLimitMessage);
  // A wrong entry that leads back to the channel shown leaves the map as it is.
  const bool same = message && workspace_.State.CurrentFrequency == shown_;
  CloseWith(same ? Plot::Nothing : choice, message);
}

void frmGetFrequency::AddAdjacents() {
  workspace_.State.AdjacentsShown = 1;
  CloseWith(Plot::OnTop, std::nullopt);
}

void frmGetFrequency::Step(std::optional<std::string> (*step)(SessionState&)) {
  const std::optional<std::string> message = step(workspace_.State);
  txtGetFrequency_->setText(Text(NumberText(workspace_.State.CurrentFrequency)));
  CloseWith(Plot::AfterErase, message);
}

void frmGetFrequency::CloseWith(Plot choice, const std::optional<std::string>& message) {
  if (message) workspace_.System.ShowMessage(this, Text(*message));
  choice_ = choice;
  accept();
}

}  // namespace kestrel
