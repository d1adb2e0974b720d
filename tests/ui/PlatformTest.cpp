#include "ui/Platform.h"

#include <gtest/gtest.h>

#include <QDesktopServices>
#include <QTextBrowser>

#include "data/StationLookup.h"

namespace kestrel {
namespace {

/// Stands where the browser would: every web address that is opened comes here.
class Browser final : public QTextBrowser {
 public:
  Browser() {
    for (const char* scheme : kSchemes) QDesktopServices::setUrlHandler(scheme, this, "setSource");
  }
  ~Browser() override {
    for (const char* scheme : kSchemes) QDesktopServices::unsetUrlHandler(scheme);
  }
  std::vector<QUrl> Opened;

 protected:
  void doSetSource(const QUrl& url, QTextDocument::ResourceType) override { Opened.push_back(url); }

 private:
  static constexpr const char* kSchemes[] = {"http", "https", "file", "mailto", "javascript"};
};

TEST(PlatformTest, TheBrowserGetsTheStationsAddressWhateverItsNameHolds) {
  const struct {
    const char *callSign, *pin;  // as the data hold it and as the browser gets it
  } rows[] = {{"QABC", "QABC"},
              {"Q A  B", "Q%20A%20%20B"},
              {"\"Q\" 'A'", "%22Q%22%20'A'"},
              {"Q&hl=fr", "Q&hl=fr"},
              {"Q#A", "Q#A"},
              {"Q#A#B", "Q#A%23B"},
              {"50%", "50%25"},
              {"%41%2F%zz%", "A%2F%25zz%25"},
              {"<Q>\\^`{|}", "%3CQ%3E%5C%5E%60%7B%7C%7D"},
              {"\xC3\x91"
               "and\xC3\xBA",
               "%C3%91and%C3%BA"},
              {"\t\n\x01", "%09%0A%01"},
              {"@host.example/x", "@host.example/x"},
              {"http://host.example:1/", "http://host.example:1/"},
              {"..//..?q=1", "..//..?q=1"},
              {"\xFF", "%EF%BF%BD"}};
  for (const auto& row : rows) {
    Browser browser;
    StationSelection selection;
    selection.SelectedCallSign = row.callSign;
    selection.City = "NEW TOWN";
    selection.Latitude = 40.5F;
    selection.Longitude = 75.25F;
    DesktopPlatform().OpenAddress(QString::fromStdString(WebMapAddress(selection, "en")));
    ASSERT_EQ(browser.Opened.size(), 1U) << row.callSign;
    const QUrl& opened = browser.Opened[0];
    EXPECT_EQ(opened.toEncoded().toStdString(), "http://maps.google.com/maps?hl=en&q=40.5,+-75.25+%28" +
                                                    std::string(row.pin) + "%20-%20NEW%20TOWN%29");
    DesktopPlatform().OpenAddress(QString::fromStdString(WebMapAddress(selection, row.callSign)));
    for (const QUrl& address : browser.Opened) {  // as a call sign and as a language
      EXPECT_EQ(address.host(), "maps.google.com") << row.callSign;
      EXPECT_EQ(address.path(), "/maps") << row.callSign;
    }
  }
}

}  // namespace
}  // namespace kestrel
