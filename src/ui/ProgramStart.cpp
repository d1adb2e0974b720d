#include "ui/ProgramStart.h"

#include <QElapsedTimer>
#include <QProcess>
#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace kestrel {
namespace {

constexpr qint64 kAtOnce = 10000;  // milliseconds; an error after a longer time is the program's own affair

}  // namespace

void StartProgram(const ProgramCall& call, const std::function<void()>& failed) {
  // Without a parent: deleted before the program has ended, it would kill it.
  auto* process = new QProcess;
  process->setStandardInputFile(QProcess::nullDevice());
  process->setStandardOutputFile(QProcess::nullDevice());
  process->setStandardErrorFile(QProcess::nullDevice());
#ifdef Q_OS_UNIX
  process->setChildProcessModifier([] { setsid(); });  // a Ctrl+C in our terminal is not meant for it
#endif
  QElapsedTimer since;
  since.start();
  QObject::connect(process, &QProcess::finished, process,
                   [process, failed, since](int code, QProcess::ExitStatus status) {
                     process->deleteLater();
                     const bool well = code == 0 && status == QProcess::NormalExit;
                     if (!well && since.elapsed() < kAtOnce) failed();
                   });
  QObject::connect(process, &QProcess::errorOccurred, process,
                   [process, failed](QProcess::ProcessError error) {
                     if (error != QProcess::FailedToStart) return;  // the others end it
                     process->deleteLater();
                     failed();
                   });
  process->start(call.Program, call.Arguments);
}

}  // namespace kestrel
