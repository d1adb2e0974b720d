#include "forms/frmGetFrequency.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "forms/SampleFolder.h"
#include "forms/StandInPlatform.h"

namespace kestrel {
namespace {

using Plot = frmGetFrequency::Plot;

struct Outcome {
  float Frequency;
  QString Message;
  Plot Choice;
};

/// Opens the window on a channel, types an entry when there is one, and presses a button.
Outcome Use(float channel, const char* entry, const char* button, std::int16_t adjacents = 0) {
  SampleFolder folder;
  const DataFolder data = folder.Folder();
  StandInPlatform platform;
  SessionState state;
  state.CurrentFrequency = channel;
  state.AdjacentsShown = adjacents;
  frmGetFrequency form({state, data, platform});
  auto* box = form.findChild<QLineEdit*>("txtGetFrequency");
  if (entry) {
    box->selectAll();
    QTest::keyClick(box, Qt::Key_Delete);
    QTest::keyClicks(box, entry);
  }
  QTest::mouseClick(form.findChild<QPushButton*>(button), Qt::LeftButton);
  EXPECT_EQ(state.AdjacentsShown, QString(button) == "cmdAdd1st" ? 1 : 0);
  return {state.CurrentFrequency, platform.Messages.join('|'), form.Choice()};
}

TEST(frmGetFrequencyTest, TakesAnEntryOrSaysWhatItDidInstead) {
  const struct {
    float before;
    const char* entry;
    const char* button;
    float after;
    const char* message;
    Plot choice;
  } rows[] = {
      {620, "1230", "cmdExit", 1230, "", Plot::OnTop},
      {620, "1230", "cmdErasePlot", 1230, "", Plot::AfterErase},
      {620, "1.1k", "cmdExit", 1100, "", Plot::OnTop},
      {620, "1,1k", "cmdErasePlot", 1100, "", Plot::AfterErase},
      {620, "1235", "cmdErasePlot", 1235, "", Plot::AfterErase},
      {620, "1800", "cmdExit", 1700, "Entry reset to 1700", Plot::OnTop},
      {620, "1800", "cmdErasePlot", 1700, "Entry over 1700 reset to 1700", Plot::AfterErase},
      {620, "500", "cmdExit", 620, "Entry reset to 620", Plot::OnTop},
      {620, "", "cmdErasePlot", 620, "Entry reset to 620", Plot::AfterErase},
      {620, "letters", "cmdErasePlot", 620, "Entry reset to 620", Plot::AfterErase},
      {0, "", "cmdExit", 1020, "Entry reset to 1020", Plot::OnTop},
      {620, nullptr, "cmdUpOne", 630, "", Plot::AfterErase},
      {620, nullptr, "cmdDownOne", 610, "", Plot::AfterErase},
      {1700, nullptr, "cmdUpOne", 1700, "Frequency over 1700 reset to 1700", Plot::AfterErase},
      {530, nullptr, "cmdDownOne", 530, "Frequency under 530 reset to 530", Plot::AfterErase},
      {620, nullptr, "cmdAdd1st", 620, "", Plot::OnTop},
  };
  for (const auto& row : rows) {
    const Outcome outcome = Use(row.before, row.entry, row.button, 1);
    SCOPED_TRACE(std::string(row.button) + ' ' + (row.entry ? row.entry : "(untouched)"));
    EXPECT_EQ(outcome.Frequency, row.after);
    EXPECT_EQ(outcome.Message, row.message);
    EXPECT_EQ(outcome.Choice, row.choice);
  }
}

TEST(frmGetFrequencyTest, OffersTheChannelAndEscapeChangesNothing) {
  SampleFolder folder;
  const DataFolder data = folder.Folder();
  StandInPlatform platform;
  SessionState state;
  state.AdjacentsShown = 1;
  const struct {
    float current, previous;
    const char* offered;
  } rows[] = {{620, 0, "620"}, {1705, 900, "1705"}, {0, 900, "900"}, {520, 900, "520"}};
  for (const auto& row : rows) {
    state.CurrentFrequency = row.current;
    state.PreviousFrequency = row.previous;
    frmGetFrequency form({state, data, platform});
    EXPECT_EQ(form.findChild<QLineEdit*>("txtGetFrequency")->text(), row.offered);
    form.show();
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(form.Choice(), Plot::Nothing);
    EXPECT_EQ(state.CurrentFrequency, row.current);
    EXPECT_EQ(state.AdjacentsShown, 1);
  }
}

}  // namespace
}  // namespace kestrel
