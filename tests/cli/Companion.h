#pragma once

#include <QJsonDocument>
#include <QString>
#include <QStringList>
#include <ostream>
#include <string>

#include "TestFolder.h"

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

/// A data folder of a test's own.
class Folder : public TestFolder {
 public:
  /// Runs the companion with this folder as --data and as the current one.
  Answer Run(const QStringList& arguments) const;

  /// The same with --json; the answer must be a success without messages.
  QJsonDocument Json(const QStringList& arguments) const;
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
