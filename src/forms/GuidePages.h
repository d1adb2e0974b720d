#pragma once

#include <QString>
#include <QStringList>
#include <span>

class QWidget;

// Which pages the guide has, where they lie, and which window has which. A page is named as its file in the
// guide's folder: "guide.md", "guide/home.md".

namespace kestrel {

/// The list of keys, which is no file but made of the table of keys.
inline constexpr const char* KeysPage = "guide/keys.md";

/// A window and the page on it, "guide.md#the-map": a heading of the page may stand after it.
struct GuideWindow {
  const char* Window;  ///< object name
  const char* Name;    ///< in words
  const char* Page;
};

std::span<const GuideWindow> GuideWindows();

/// The pages in the order of the contents.
QStringList GuideContents();

/// The page of the window that the widget is in, or of the one that opened it; the first page where neither
/// has one.
QString PageOf(const QWidget& widget);

/// The page of keys, at those of the window that the widget is in where it has some.
QString KeysPageOf(const QWidget& widget);

/// The folders that the guide may lie in, best first: beside an installed program, in the source tree.
QStringList GuideFolders();

/// Every key of every window, as a page.
QString KeysMarkdown();

/// A page that cannot be shown, as a page: what, and where it was looked for.
QString MissingMarkdown(const QString& page, const QStringList& folders);

/// The first heading of a page; empty where there is none.
QString TitleOf(const QString& markdown);

/// A heading as links name it: "The map" is "the-map".
QString HeadingAnchor(const QString& heading);

}  // namespace kestrel
