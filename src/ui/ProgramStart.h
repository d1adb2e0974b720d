#pragma once

#include <QString>
#include <QStringList>
#include <functional>

namespace kestrel {

/// A program to start.
struct ProgramCall {
  QString Program;  ///< its path
  QStringList Arguments;
  bool operator==(const ProgramCall&) const = default;
};

/// Starts a program of its own, which goes on when this one ends. `failed` is called when it cannot be
/// started, or later, from the event loop, when it has ended with an error within ten seconds.
void StartProgram(const ProgramCall& call, const std::function<void()>& failed);

}  // namespace kestrel
