#pragma once

#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <ostream>
#include <string>
#include <string_view>

// The built companion, run from outside.

namespace kestrel::cli {

/// What a run left behind.
struct Answer {
  int Status = -1;  ///< -1: it did not end by itself
  std::string Out;
  std::string Err;

  bool operator==(const Answer&) const = default;
};

void PrintTo(const Answer& answer, std::ostream* out);

/// A data folder of a test's own, with a blank in its path, gone at the test's end.
class Folder {
 public:
  Folder();

  QString Path() const { return dir_.path(); }
  QString File(const QString& name) const { return dir_.filePath(name); }
  void Write(const QString& name, std::string_view bytes) const;
  std::string Read(const QString& name) const;

  /// Runs the companion with this folder as --data and as the current one.
  Answer Run(const QStringList& arguments) const;

 private:
  QTemporaryDir dir_;
};

/// Whether the tests run under the locale that writes numbers with a comma.
bool UnderCommaLocale();

/// The locale that the companion runs under if nothing else is said: the plainest, or that of the tests where
/// it is the one with the comma.
QString UsualLocale();

/// Runs the companion in `folder`, which is its home, too; no display. `output` takes its standard output
/// when it is not empty.
Answer RunIn(const QString& folder, const QStringList& arguments, const QString& output = {},
             const QString& locale = UsualLocale());

}  // namespace kestrel::cli
