#include "cli/Companion.h"

#include <gtest/gtest.h>

#include <QProcess>

namespace kestrel::cli {

void PrintTo(const Answer& answer, std::ostream* out) {
  *out << "status " << answer.Status << "\n--- out\n" << answer.Out << "--- err\n" << answer.Err << "---";
}

Answer Folder::Run(const QStringList& arguments) const {
  return RunIn(Path(), QStringList{"--data", Path()} + arguments);
}

QJsonDocument Folder::Json(const QStringList& arguments) const {
  const Answer answer = Run(arguments + QStringList{"--json"});
  EXPECT_EQ(answer.Status, 0) << answer.Err;
  EXPECT_EQ(answer.Err, "");
  return QJsonDocument::fromJson(QByteArray::fromStdString(answer.Out));
}

bool UnderCommaLocale() {
  return qEnvironmentVariableIsSet("KESTREL_COMMA_LOCALE");
}

QString UsualLocale() {
  return UnderCommaLocale() ? qEnvironmentVariable("LC_ALL") : QString("C");
}

Answer RunIn(const QString& folder, const QStringList& arguments, const QString& output,
             const QString& locale) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "XDG_RUNTIME_DIR", "QT_QPA_PLATFORM", "LANG"})
    environment.remove(name);
  environment.insert("HOME", folder);
  environment.insert("XDG_DATA_HOME", folder + "/share");
  environment.insert("LC_ALL", locale);
  environment.insert("QT_QPA_PLATFORMTHEME", "gtk3");
  environment.insert("QT_FONT_DPI", "200");

  QProcess process;
  process.setProcessEnvironment(environment);
  process.setWorkingDirectory(folder);
  if (!output.isEmpty()) process.setStandardOutputFile(output);
  process.start(KESTREL_CLI, arguments);
  constexpr int kMilliseconds = 60000;
  Answer answer;
  if (process.waitForFinished(kMilliseconds) && process.exitStatus() == QProcess::NormalExit)
    answer.Status = process.exitCode();
  answer.Out = process.readAllStandardOutput().toStdString();
  answer.Err = process.readAllStandardError().toStdString();
  return answer;
}

}  // namespace kestrel::cli
