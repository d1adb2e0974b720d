#include "forms/frmGetFrequency.h"

#include "forms/FormFixture.h"

namespace kestrel {
namespace {

using frmGetFrequencyTest = FormTest;
using Plot = frmGetFrequency::Plot;

TEST_F(frmGetFrequencyTest, TakesAnEntryOrSaysWhatItDidInstead) {
  const struct {
    float before;
    const char* entry;
    const char* button;
    float after;
    QString message;
    Plot choice;
  } rows[] = {
      {620, "1.1k", "cmdExit", 1100, "", Plot::OnTop},
      {620, "1,1k", "cmdErasePlot", 1100, "", Plot::AfterErase},
      {620, "1800", "cmdExit", 1700, "Entry reset to 1700", Plot::OnTop},
      {620, "1800", "cmdErasePlot", 1700, "Entry over 1700 reset to 1700", Plot::AfterErase},
      {620, "500", "cmdExit", 620, "Entry reset to 620", Plot::Nothing},
      {620, "", "cmdErasePlot", 620, "Entry reset to 620", Plot::Nothing},
      {1700, "1800", "cmdErasePlot", 1700, "Entry over 1700 reset to 1700", Plot::Nothing},
      {0, "", "cmdExit", 1020, "Entry reset to 1020", Plot::OnTop},
      {620, nullptr, "cmdUpOne", 630, "", Plot::AfterErase},
      {620, nullptr, "cmdDownOne", 610, "", Plot::AfterErase},
      {1700, nullptr, "cmdUpOne", 1700, "Frequency over 1700 reset to 1700", Plot::AfterErase},
      {530, nullptr, "cmdDownOne", 530, "Frequency under 530 reset to 530", Plot::AfterErase},
      {620, nullptr, "cmdAdd1st", 620, "", Plot::OnTop},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(std::string(row.button) + ' ' + (row.entry ? row.entry : "(untouched)"));
    State.CurrentFrequency = row.before;
    State.AdjacentsShown = 1;
    System.Messages.clear();
    frmGetFrequency form(Everything);
    if (row.entry) Type(form, "txtGetFrequency", row.entry);
    Press(form, row.button);
    EXPECT_EQ(State.CurrentFrequency, row.after);
    EXPECT_EQ(State.AdjacentsShown, QString(row.button) == "cmdAdd1st" ? 1 : 0);
    EXPECT_EQ(System.Messages.join('|'), row.message);
    EXPECT_EQ(form.Choice(), row.choice);
  }
}

TEST_F(frmGetFrequencyTest, OffersTheChannelAndEscapeChangesNothing) {
  State.AdjacentsShown = 1;
  const struct {
    float current, previous;
    const char* offered;
  } rows[] = {{620, 0, "620"}, {1705, 900, "1705"}, {0, 900, "900"}, {520, 900, "520"}, {510, 900, "510"}};
  for (const auto& row : rows) {
    State.CurrentFrequency = row.current;
    State.PreviousFrequency = row.previous;
    frmGetFrequency form(Everything);
    EXPECT_EQ(Shown(form, "txtGetFrequency"), row.offered);
    form.show();
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(form.Choice(), Plot::Nothing);
    EXPECT_EQ(State.CurrentFrequency, row.current);
    EXPECT_EQ(State.AdjacentsShown, 1);
  }
}

}  // namespace
}  // namespace kestrel
