#include "forms/frmShowHets.h"

#include "forms/FormFixture.h"

namespace kestrel {
namespace {

using HetsTest = FormTest;

TEST_F(HetsTest, TheLinesOfAChannel) {
  const struct {
    float channel;
    const char *current, *below, *above;
  } rows[] = {
      {540, "Current frequency:  540 kHz", "", "No heterodynes of 8 kHz or lower"},
      {1230, "Current frequency:  1230 kHz", "6 kHz beat note from station on 1224 kHz",
       "3 kHz beat note from station on 1233 kHz"},
  };
  for (const auto& row : rows) {
    State.CurrentFrequency = row.channel;
    frmShowHets form(Everything);
    Use(form, [&] {
      EXPECT_EQ(Shown(form, "lblCurrentFrequency"), row.current);
      EXPECT_EQ(Shown(form, "Label1"), row.below);
      EXPECT_EQ(Shown(form, "Label2"), row.above);
      QTest::keyClick(&form, Qt::Key_Return);  // Close has the focus
    });
  }
}

}  // namespace
}  // namespace kestrel
