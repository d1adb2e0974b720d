#include "ui/Platform.h"

#include <gtest/gtest.h>

#include <QDesktopServices>
#include <QTest>
#include <QTextBrowser>

#include "TestFolder.h"
#include "data/StationLookup.h"
#include "ui/ProgramStart.h"

namespace kestrel {
namespace {

/// Stands where the browser would: every web address that is opened comes here.
class Browser final : public QTextBrowser {
 public:
  Browser() {
    qputenv("PATH", "");  // without the desktop's own opener
    for (const char* scheme : kSchemes) QDesktopServices::setUrlHandler(scheme, this, "setSource");
  }
  ~Browser() override {
    qputenv("PATH", path_);
    for (const char* scheme : kSchemes) QDesktopServices::unsetUrlHandler(scheme);
  }
  std::vector<QUrl> Opened;

 protected:
  void doSetSource(const QUrl& url, QTextDocument::ResourceType) override { Opened.push_back(url); }

 private:
  const QByteArray path_ = qgetenv("PATH");
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
    const auto open = [](const std::string& address) {
      DesktopPlatform().OpenAddress(QString::fromStdString(address), [] { ADD_FAILURE() << "not taken"; });
    };
    open(WebMapAddress(selection, "en"));
    ASSERT_EQ(browser.Opened.size(), 1U) << row.callSign;
    const QUrl& opened = browser.Opened[0];
    EXPECT_EQ(opened.toEncoded().toStdString(), "http://maps.google.com/maps?hl=en&q=40.5,+-75.25+%28" +
                                                    std::string(row.pin) + "%20-%20NEW%20TOWN%29");
    open(WebMapAddress(selection, row.callSign));
    for (const QUrl& address : browser.Opened) {  // as a call sign and as a language
      EXPECT_EQ(address.host(), "maps.google.com") << row.callSign;
      EXPECT_EQ(address.path(), "/maps") << row.callSign;
    }
  }
}

TEST(PlatformTest, TheDesktopsOpenerGetsTheAddressAndIsHeardWhenItFindsNoBrowser) {
  const TestFolder folder;
  folder.Put("xdg-open", "#!/bin/sh\necho \"$1\" >\"${0%/*}/address\"\nexit 3\n");
  QFile::setPermissions(folder.Path("xdg-open"), QFile::ReadOwner | QFile::ExeOwner);
  const QByteArray path = qgetenv("PATH");
  qputenv("PATH", folder.Path().toUtf8());
  int failures = 0;
  DesktopPlatform().OpenAddress("http://host.example/a b%", [&failures] { ++failures; });
  qputenv("PATH", path);
  EXPECT_TRUE(QTest::qWaitFor([&failures] { return failures == 1; }));
  EXPECT_EQ(folder.Text("address"), "http://host.example/a%20b%25\n");

  StartProgram({folder.Path("no program"), {}}, [&failures] { ++failures; });
  EXPECT_TRUE(QTest::qWaitFor([&failures] { return failures == 2; }));
}

}  // namespace
}  // namespace kestrel
