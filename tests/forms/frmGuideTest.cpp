#include "forms/frmGuide.h"

#include <QDir>
#include <QListWidget>
#include <QMessageBox>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextDocument>
#include <QWindow>

#include "forms/FormFixture.h"
#include "forms/GuideKeys.h"
#include "forms/GuidePages.h"
#include "forms/frmGetFrequency.h"
#include "forms/frmPlot.h"

namespace kestrel {
namespace {

const QString kDocs = KESTREL_DOCS;

class frmGuideTest : public FormTest {
 protected:
  /// The guide when it is open, otherwise nullptr.
  static QWidget* Guide() {
    for (QWidget* window : QApplication::topLevelWidgets())
      if (window->objectName() == "frmGuide" && window->isVisible()) return window;
    return nullptr;
  }
  static QTextBrowser& Page() { return *Find<QTextBrowser>(*Guide(), "txtPage"); }
  static std::string Title() { return Page().document()->begin().text().toStdString(); }
  /// The heading that the page was scrolled to.
  static std::string HeadingOnTop() {
    return Page().cursorForPosition({Page().viewport()->width() / 2, 12}).block().text().toStdString();
  }

  static void Key(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(window.focusWidget() ? window.focusWidget() : &window, key, modifiers);
  }

  /// Clicks as the window system does, which lets nothing through to a window that is blocked.
  static void Click(QWidget& at, QPoint place) {
    QWidget* window = at.window();
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, at.mapTo(window, place));
  }
  static void ClickLink(const QString& words) {
    const QTextCursor found = Page().document()->find(words);
    ASSERT_FALSE(found.isNull()) << words.toStdString();
    Page().setTextCursor(found);
    Page().ensureCursorVisible();
    Click(*Page().viewport(), Page().cursorRect(found).center() - QPoint(6, 0));
  }
  static void ClickContents(const QString& title) {
    auto* list = Find<QListWidget>(*Guide(), "lstContents");
    const QList<QListWidgetItem*> items = list->findItems(title, Qt::MatchExactly);
    ASSERT_EQ(items.size(), 1) << title.toStdString();
    Click(*list->viewport(), list->visualItemRect(items[0]).center());
  }
};

TEST_F(frmGuideTest, F1OnTheMapLinkBackFindAndClose) {
  const GuideKeys keys(System, {"/nowhere", kDocs});
  frmPlot plot(Everything);
  plot.show();
  Key(plot, Qt::Key_F1);
  ASSERT_NE(Guide(), nullptr);
  EXPECT_EQ(HeadingOnTop(), "The map");

  ClickLink("Choosing a channel");
  EXPECT_EQ(Title(), "Choosing a channel");
  Key(*Guide(), Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(HeadingOnTop(), "The map") << "where it was left";
  Key(*Guide(), Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(Title(), "Choosing a channel");
  ClickContents("Home");
  EXPECT_EQ(Title(), "Home");

  Key(*Guide(), Qt::Key_F, Qt::ControlModifier);
  Type(*Guide(), "txtFind", "HOME");
  const int first = Page().textCursor().position();
  EXPECT_GT(Page().extraSelections().size(), 5);
  Key(*Guide(), Qt::Key_F3);
  EXPECT_GT(Page().textCursor().position(), first);
  Key(*Guide(), Qt::Key_F3, Qt::ShiftModifier);
  Key(*Guide(), Qt::Key_F3, Qt::ShiftModifier);
  EXPECT_GT(Page().textCursor().position(), first) << "round to the last one";
  Type(*Guide(), "txtFind", "no such words");
  EXPECT_EQ(Shown(*Guide(), "lblFound"), "not in this page");

  Key(*Guide(), Qt::Key_Escape);
  ASSERT_NE(Guide(), nullptr) << "closes the box for words alone";
  Key(*Guide(), Qt::Key_Escape);
  EXPECT_EQ(Guide(), nullptr);
  EXPECT_TRUE(QTest::qWaitForWindowActive(&plot));

  QTest::keyClicks(&plot, "?");
  EXPECT_EQ(HeadingOnTop(), "The map");
  EXPECT_EQ(Title(), "Keys");
}

TEST_F(frmGuideTest, IsUsedWhileAModalWindowIsOpenAndGivesTheFocusBack) {
  const GuideKeys keys(System, {kDocs});
  frmGetFrequency form(Everything);
  Use(form, [&] {
    auto* box = Find<QLineEdit>(form, "txtGetFrequency");
    form.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    QTest::keyClicks(box, "?");
    EXPECT_EQ(box->text(), "?") << "typed";
    EXPECT_EQ(Guide(), nullptr);

    Key(form, Qt::Key_F1);
    ASSERT_NE(Guide(), nullptr);
    EXPECT_EQ(Title(), "Choosing a channel");
    ClickContents("Maps");
    EXPECT_EQ(Title(), "Maps");

    QMessageBox message(&form);
    QTimer::singleShot(0, &message, [&] {
      ClickContents("Distance");
      EXPECT_EQ(Title(), "Distance") << "a window that opened later blocks it";
      Key(message, Qt::Key_F1);
      EXPECT_EQ(Title(), "Choosing a channel") << "the page of the window that the message belongs to";
      message.accept();
    });
    message.exec();
    ClickContents("Options");
    EXPECT_EQ(Title(), "Options");

    Key(*Guide(), Qt::Key_Escape);
    EXPECT_EQ(Guide(), nullptr);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
    EXPECT_EQ(form.focusWidget(), box);
    Key(form, Qt::Key_F1);
    form.reject();
  });
  ClickContents("About");
  EXPECT_EQ(Title(), "About") << "it outlives the window it was called from";
}

TEST_F(frmGuideTest, AMissingGuideSaysWhereItWasLookedFor) {
  frmGuide guide(System, {"/first/place", "/second/place"});
  guide.setAttribute(Qt::WA_DeleteOnClose, false);
  guide.Open("guide/home.md", nullptr);
  const QString text = Page().toPlainText();
  for (const char* words : {"guide/home.md", "/first/place", "/second/place"})
    EXPECT_TRUE(text.contains(words)) << text.toStdString();
  ClickContents("Keys");
  EXPECT_TRUE(Page().toPlainText().contains("Page Up"));
}

TEST_F(frmGuideTest, LettersGrowAndPicturesFitAndALinkOutGoesToTheBrowser) {
  frmGuide guide(System, {kDocs});
  guide.setAttribute(Qt::WA_DeleteOnClose, false);
  guide.Open("guide/import.md", nullptr);
  for (const int width : {400, 1000}) {
    guide.resize(width, 600);
    QCoreApplication::processEvents();
    EXPECT_LE(Page().document()->idealWidth(), Page().viewport()->width()) << width;
  }
  const double before = Page().document()->defaultFont().pointSizeF();
  Key(guide, Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_NEAR(Page().document()->defaultFont().pointSizeF(), 1.1 * before, 0.01);
  Key(guide, Qt::Key_0, Qt::ControlModifier);
  EXPECT_NEAR(Page().document()->defaultFont().pointSizeF(), before, 0.01);
  ClickLink("https://www.fcc.gov/media/radio/am-query");
  EXPECT_EQ(System.Addresses, QStringList("https://www.fcc.gov/media/radio/am-query"));
}

// What the pages say of each other.

struct Links {
  QStringList Pages, Pictures;  ///< as written
  QStringList Headings;         ///< as links name them
};

Links LinksIn(const QString& markdown) {
  QTextDocument document;
  document.setMarkdown(markdown);
  Links links;
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    if (block.blockFormat().headingLevel() > 0) links.Headings << HeadingAnchor(block.text());
    for (auto it = block.begin(); !it.atEnd(); ++it) {
      const QTextCharFormat format = it.fragment().charFormat();
      if (format.isImageFormat()) links.Pictures << format.toImageFormat().name();
      if (format.isAnchor()) links.Pages << format.anchorHref();
    }
  }
  return links;
}

QString Markdown(const QString& page) {
  if (page == KeysPage) return KeysMarkdown();
  QFile file(kDocs + '/' + page);
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

TEST(GuidePagesTest, EveryLinkAndPictureResolvesAndEveryWindowHasItsPage) {
  QStringList pages = GuideContents();
  for (const QString& file : QDir(kDocs + "/guide").entryList({"*.md"}))
    EXPECT_TRUE(pages.contains("guide/" + file)) << file.toStdString() << " is not in the contents";
  int pictures = 0;
  for (int i = 0; i < pages.size(); ++i) {  // grows by the pages that are only linked to
    const QString page = pages[i];
    const QDir folder = QFileInfo(kDocs + '/' + page).dir();
    const Links links = LinksIn(Markdown(page));
    EXPECT_FALSE(links.Headings.isEmpty()) << page.toStdString();
    for (const QString& picture : links.Pictures) {
      EXPECT_FALSE(QImage(folder.filePath(picture)).isNull())
          << page.toStdString() << ' ' << picture.toStdString();
      ++pictures;
    }
    for (const QString& link : links.Pages) {
      if (link.startsWith("https:")) continue;
      const QString target = QDir(kDocs).relativeFilePath(QDir::cleanPath(
          link.startsWith('#') ? kDocs + '/' + page : folder.filePath(link.section('#', 0, 0))));
      const QStringList headings = LinksIn(Markdown(target)).Headings;
      const QString heading = link.section('#', 1);
      EXPECT_FALSE(headings.isEmpty()) << page.toStdString() << " links to " << link.toStdString();
      if (!heading.isEmpty()) {
        EXPECT_TRUE(headings.contains(heading)) << link.toStdString();
      }
      if (!pages.contains(target)) pages << target;
    }
  }
  EXPECT_GT(pictures, 15);

  QStringList windows = {"PrintPreview"};
  for (const QString& header : QDir(KESTREL_FORMS).entryList({"frm*.h"})) windows << header.chopped(2);
  for (const QString& window : windows) {
    const auto rows = GuideWindows();
    const auto row = std::find_if(rows.begin(), rows.end(),
                                  [&](const GuideWindow& each) { return window == each.Window; });
    ASSERT_NE(row, rows.end()) << window.toStdString();
    const QString page = row->Page;
    const Links links = LinksIn(Markdown(page.section('#', 0, 0)));
    if (page.contains('#')) {
      EXPECT_TRUE(links.Headings.contains(page.section('#', 1))) << page.toStdString();
    }
  }
}

}  // namespace
}  // namespace kestrel
