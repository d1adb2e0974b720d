#pragma once

#include <QLabel>

namespace kestrel {

/// A line of words at the lower edge of a window, cut with "..." where it is too narrow for them; its tip has
/// them whole. It shows one text at rest, and another in its place for as long as there is one.
class StatusLine final : public QLabel {
 public:
  explicit StatusLine(QWidget* parent = nullptr);

  void SetRest(const QString& text);
  /// Empty: the text at rest.
  void SetPassing(const QString& text);
  /// The whole text that is shown.
  const QString& Whole() const { return passing_.isEmpty() ? rest_ : passing_; }

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Show();

  QString rest_, passing_;
};

}  // namespace kestrel
