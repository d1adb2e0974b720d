#include "import/read/AmqList.h"

#include <gtest/gtest.h>

#include "ImportTesting.h"
#include "import/Countries.h"

namespace kestrel {
namespace {

TextImport ImportRows(const std::string& text, const ImportOptions& options = {}) {
  return ImportTexts({{"amq.txt", text}}, options);
}

TEST(AmqList, TakesAStation) {
  const TextImport import = ImportRows(AmqRow{.Power = "0.118  kW"}.Text());
  ASSERT_EQ(import.stations.size(), 1U);
  EXPECT_EQ(import.stations.front().Facility, 900001U);
  EXPECT_EQ(import.files.at("1230x.dat"),
            "1230, QAAA, SPRINGFIELD             , IL  , United States, U, 39.7817, 89.6501, 0.118,-,-, 1\r\n"
            "0,1,90,0,0,0\r\n");
}

TEST(AmqList, EveryKindOfBadRowIsNamed) {
  const struct {
    AmqRow row;
    Finding finding;
    const char* message;
  } cases[] = {
      {{.Service = "FM"}, Finding::OtherService, "service \"FM\""},
      {{.Hours = "Always"}, Finding::BadField, "hours \"Always\""},
      {{.Status = "LICENSED"}, Finding::BadField, "status \"LICENSED\""},
      {{.Frequency = "1230"}, Finding::BadField, "frequency \"1230\""},
      {{.Frequency = "1235   kHz"}, Finding::OffRaster, "QAAA, 1235 kHz"},
      {{.Frequency = "1710 kHz"}, Finding::OffRaster, "QAAA, 1710 kHz"},
      {{.Frequency = "567 kHz"}, Finding::OffRaster, "QAAA, 567 kHz"},
      {{.Power = ""}, Finding::BadField, "power \"\""},
      {{.Power = "1.0 W"}, Finding::BadField, "power \"1.0 W\""},
      {{.Power = "0.0    kW"}, Finding::BadField, "QAAA, a power of 0 kW"},
      {{.Directional = "Maybe"}, Finding::BadField, "antenna \"Maybe\""},
      {{.Latitude = "N|90|0|0.1"}, Finding::BadField, "latitude: degrees \"90\""},
      {{.Latitude = "N|39.5|0|0"}, Finding::BadField, "latitude: degrees \"39.5\""},
      {{.Latitude = "N|39|60|0.0"}, Finding::BadField, "latitude: minutes \"60\""},
      {{.Latitude = "N|39|-1|0.0"}, Finding::BadField, "latitude: minutes \"-1\""},
      {{.Latitude = "N|39|1|60.1"}, Finding::BadField, "latitude: seconds \"60.1\""},
      {{.Latitude = "X|39|1|0"}, Finding::BadField, "latitude: direction \"X\""},
      {{.Longitude = "|89|1|0"}, Finding::BadField, "longitude: direction \"\""},
      {{.Longitude = "W||1|0"}, Finding::BadField, "longitude: degrees \"\""},
      {{.Longitude = "W|181|1|0"}, Finding::BadField, "longitude: degrees \"181\""},
      {{.Longitude = "E|144|45|42.3"}, Finding::OutsideAmericas, "QAAA, SPRINGFIELD"},
      {{.Longitude = "W|3|0|0"}, Finding::OutsideAmericas, "QAAA, SPRINGFIELD"},
  };
  for (const auto& [row, finding, message] : cases) {
    // A good row behind the bad one is taken all the same.
    const TextImport import = ImportRows(row.Text() + AmqRow{}.Text());
    EXPECT_EQ(import.Examples(finding), "amq.txt:1: " + std::string(message) + '\n') << row.Text();
    EXPECT_EQ(import.stations.size(), 1U) << row.Text();
  }
}

TEST(AmqList, NumbersAreTakenUpToTheirLimits) {
  const struct {
    AmqRow row;
    bool taken;
  } cases[] = {
      {{.Power = "0.0001 kW"}, true},       {{.Power = "0.00009 kW"}, false},
      {{.Power = "10000 kW"}, true},        {{.Power = "10000.1 kW"}, false},
      {{.Power = "+1.0 kW"}, true},         {{.Power = "-0 kW"}, false},
      {{.Frequency = "1.23e3 kHz"}, true},  {{.Frequency = "-0 kHz"}, false},
      {{.Facility = "4294967295"}, true},   {{.Facility = "4294967296"}, false},
      {{.Latitude = "N|90|0|0"}, true},     {{.Latitude = "N|-0|0|0"}, true},
      {{.Longitude = "W|180|0|0"}, true},   {{.Longitude = "W|180|0|1"}, false},
      {{.Longitude = "W|20|0|0"}, true},    {{.Longitude = "W|19|59|59"}, false},
      {{.Longitude = "W|90|1|inf"}, false}, {{.Frequency = "1e400 kHz"}, false},
  };
  for (const auto& [row, taken] : cases)
    EXPECT_EQ(ImportRows(row.Text()).report.Total().Taken, taken ? 1 : 0) << row.Text();
}

TEST(AmqList, RowsOfTheWrongFormAreNamed) {
  std::string noEnd = AmqRow{}.Text();
  noEnd.erase(noEnd.size() - 2, 1);
  const std::string tooMany = "|" + AmqRow{}.Text();
  const std::string endless = "|" + std::string(70'000, 'x') + "\n";
  const TextImport import = ImportRows(AmqRow{}.Text() + noEnd + tooMany + "|a|b|\n" + endless + "|\n");
  EXPECT_EQ(import.Examples(Finding::WrongForm),
            "amq.txt:2: the row does not end with a bar\n"
            "amq.txt:3: 34 fields, 31 to 33 expected\n"
            "amq.txt:4: 2 fields, 31 to 33 expected\n"
            "amq.txt:5: the row is longer than 64 KB\n"
            "amq.txt:6: 0 fields, 31 to 33 expected\n");
  EXPECT_EQ(import.report.Files().front().Taken, 1);
}

TEST(AmqList, RowsLieAcrossThePiecesThatAreRead) {
  std::string text;
  for (int i = 1; i <= 3000; ++i) {
    text += AmqRow{.Facility = std::to_string(i)}.Text();
    if (i == 1500) text += "| " + std::string(600'000, 'x') + "\n";
  }
  const TextImport import = ImportRows(text);
  EXPECT_EQ(import.stations.size(), 3000U);
  EXPECT_EQ(import.Examples(Finding::WrongForm), "amq.txt:1501: the row is longer than 64 KB\n");
  EXPECT_EQ(import.stations.back().Row.Line, 3001);
  EXPECT_EQ(import.report.Files().front().Rows, 3001);
}

TEST(AmqList, WhoIsOnTheAir) {
  const struct {
    const char* call;
    const char* country;
    const char* status;
    bool byDefault;
    bool withPermits;
  } cases[] = {
      {"QAAA", "US", "LIC", true, true},   {"QAAA", "US", "STA", true, true},
      {"QAAA", "US", "CP", false, true},   {"QAAA", "US", "MOD", false, true},
      {"QAAA", "US", "APP", false, false}, {"QAAA", "US", "EXT", false, false},
      {"QAAA", "US", "CNL", false, false}, {"QAAA", "US", "NCECP", false, false},
      {"QAAA", "CA", "LIC", true, true},   {"QAAA", "MX", "CP", true, true},
      {"QAAA", "MX", "STA", false, false}, {"QAAA", "BR", "DEL", false, false},
      {"NEW", "US", "LIC", false, false},  {"-", "MX", "CP", false, false},
      {"", "CA", "CP", false, false},      {"new", "US", "LIC", false, false},
      {"HRLP 23", "HN", "CP", true, true},
  };
  for (const auto& [call, country, status, byDefault, withPermits] : cases) {
    const std::string text = AmqRow{.Call = call, .Status = status, .Country = country}.Text();
    EXPECT_EQ(ImportRows(text).stations.size(), byDefault ? 1U : 0U) << text;
    EXPECT_EQ(ImportRows(text, {.IncludePermits = true}).stations.size(), withPermits ? 1U : 0U) << text;
  }
  EXPECT_EQ(ImportRows(AmqRow{.Status = "CNL"}.Text()).Examples(Finding::NotOnAir),
            "amq.txt:1: QAAA, status CNL\n");
}

TEST(AmqList, OlderRowsPreambleAndLineEndsDoNotMatter) {
  const std::string plain = AmqRow{.Hours = "Critical Hours", .Directional = "-", .Older = true}.Text();
  const std::string newer = AmqRow{.Hours = "Critical Hours"}.Text();
  std::string crlf = newer;
  crlf.insert(crlf.size() - 1, "\r");
  const StationSet expected = ImportRows(newer).files;
  EXPECT_NE(expected.at("1230x.dat"), "");
  for (const std::string& text :
       {plain, crlf, "\xEF\xBB\xBF" + newer, "AM Query\n<pre>\n" + newer + "\n</pre> 1 record\n",
        newer.substr(0, newer.size() - 1)}) {
    const TextImport import = ImportRows(text);
    EXPECT_EQ(import.files, expected) << text;
    EXPECT_EQ(import.report.Files().front().Rows, 1);
  }
}

TEST(AmqList, NamesComeOutWhole) {
  const struct {
    const char* given;
    const char* city;
  } cases[] = {
      {"ESPA\xD1OL", "ESPAÑOL"},              // Latin-1
      {"ESPAÑOL", "ESPAÑOL"},                 // UTF-8
      {"ESPA\xC3\x83\xC2\x91OL", "ESPAÑOL"},  // UTF-8 of UTF-8
      {"SÃO PAULO", "SÃO PAULO"},             // nothing to mend
      {"A\tB  C", "A B C"},
  };
  for (const auto& [given, city] : cases) {
    const TextImport import = ImportRows(AmqRow{.City = given}.Text());
    ASSERT_EQ(import.stations.size(), 1U);
    EXPECT_EQ(import.stations.front().Names.City(), city);
  }
}

TEST(AmqList, CountriesAreChosenByTheListsCodes) {
  const std::string text = AmqRow{.Facility = "1"}.Text() +
                           AmqRow{.Status = "CP", .Country = "ME", .Facility = "2"}.Text() +
                           AmqRow{.Status = "CP", .Country = "QQ", .Facility = "0"}.Text();
  const TextImport all = ImportRows(text);
  EXPECT_EQ(all.stations.size(), 3U);
  EXPECT_NE(all.files.at("1230x.dat").find(", Mexico       ,"), std::string::npos);
  EXPECT_NE(all.files.at("1230x.dat").find(", QQ           ,"), std::string::npos);
  EXPECT_EQ(all.Examples(Finding::CountryUnknown), "amq.txt:3: QAAA, \"QQ\"\n");
  const TextImport mexico = ImportRows(text, {.Countries = {"MX", "CA"}});
  EXPECT_EQ(mexico.stations.size(), 1U);
  EXPECT_EQ(mexico.report.Of(Finding::OtherCountry).Rows, 2);
}

TEST(AmqList, ARowBehindSomethingElseIsNotLostUnseen) {
  const TextImport import =
      ImportRows("<pre>" + AmqRow{}.Text() + "Call | Frequency | Service\n" + AmqRow{.Facility = "2"}.Text());
  EXPECT_EQ(import.stations.size(), 1U);
  EXPECT_EQ(import.report.Total().Rows, 2);
  EXPECT_EQ(import.Examples(Finding::WrongForm), "amq.txt:1: something stands before the first bar\n");
}

TEST(Countries, AListIsReadAsPeopleTypeIt) {
  EXPECT_EQ(*ReadCountries(" us, Mx,ME,"), (std::vector<std::string>{"US", "MX", "MX"}));
  EXPECT_TRUE(ReadCountries("  ")->empty());
  for (const char* list : {"US,,CA", "US CA", "UK", ","}) EXPECT_FALSE(ReadCountries(list)) << list;
  EXPECT_EQ(ReadCountries("US,uk").error().text,
            "\"UK\" is no country of the FCC's lists, as US, CA and MX are");
}

}  // namespace
}  // namespace kestrel
