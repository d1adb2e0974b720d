#pragma once

#include <QHash>
#include <QImage>
#include <QStringList>
#include <QTextBrowser>
#include <functional>

namespace kestrel {

/// Shows the guide's pages: Markdown with pictures, in a column that stays readable in a wide window and in
/// the colours of a light or a dark desktop. Links lead from page to page; the way is kept for going back.
class GuideBrowser final : public QTextBrowser {
 public:
  /// `folders` may hold the guide, best first.
  explicit GuideBrowser(const QStringList& folders, QWidget* parent = nullptr);

  /// Shows a page as GuidePages.h names it; one that cannot be read is a page that says so.
  void ShowPage(const QString& page);

  /// The page shown, without a heading.
  QString Page() const;

  /// The contents' name of a page: its first heading, or its file where it cannot be read.
  QString Title(const QString& page) const;

  /// How large the letters are, in steps of a tenth from the desktop's own size, -4 to 12.
  int TextStep() const { return step_; }
  void SetTextStep(int step);

  std::function<void(const QString& page)> PageShown;
  /// A link that leads out of the guide.
  std::function<void(const QString& address)> AddressClicked;
  /// The wheel was turned while Ctrl was held: 1 or -1.
  std::function<void(int)> SizeWheelTurned;

  QVariant loadResource(int type, const QUrl& name) override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  QUrl UrlOf(const QString& page) const;
  QString Markdown(const QUrl& url) const;
  void Follow(const QUrl& link);
  void TakeUp(const QUrl& shown);
  void Restyle();
  void FitColumn();
  void FitPictures(int room);
  void ScrollToHeading(const QString& anchor);
  void ScrollTo(int position);
  /// What changes the page's size, with the text at the top left where it was.
  void KeepPlace(const std::function<void()>& change);

  QStringList folders_;
  QString folder_;
  int step_ = 0;
  QUrl url_;                         // of the page shown, with its heading
  QUrl file_;                        // of the page that was read last
  bool plain_ = false;               // it has no looks yet
  QHash<QString, QImage> pictures_;  // of that page, in their own size
};

}  // namespace kestrel
