#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>

#include "cli/Companion.h"

// The manual page and the shell's completion, held against what --help says.

namespace kestrel::cli {
namespace {

QString Page(const QString& name) {
  QFile file(QString(KESTREL_PAGES) + '/' + name);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
  return QString::fromUtf8(file.readAll());
}

/// The manual page's text without its fonts.
QString Manual() {
  return Page("kestrel-cli.1").remove(QRegularExpression("\\\\f[BIR]")).replace("\\-", "-");
}

QString Help(const QStringList& command) {
  const Folder folder;
  return QString::fromStdString(RunIn(folder.Path(), command + QStringList{"--help"}).Out);
}

/// What the expression captures, wherever it matches.
QStringList Captured(const QString& text, const QString& expression) {
  QStringList all;
  auto matches = QRegularExpression(expression, QRegularExpression::MultilineOption).globalMatch(text);
  while (matches.hasNext()) all << matches.next().captured(1);
  return all;
}

QStringList Commands() {
  const QString help = Help({});
  return Captured(help.mid(help.indexOf("Subcommands:")), "^  ([a-z]+) ");
}

/// "-h", "--help", "-o", ... of a help text.
QStringList Options(const QString& help) {
  QStringList options;
  for (const QString& names : Captured(help, "^  (-[^ ]+)")) options += names.split(',');
  return options;
}

/// What the shell offers for the last of the words.
QStringList Offered(const QStringList& words, const QString& folder) {
  QProcess shell;
  shell.setWorkingDirectory(folder);
  shell.start("bash",
              QStringList{"--norc", "-c",
                          "source \"$0\"; COMP_WORDS=(kestrel-cli \"$@\"); COMP_CWORD=$#; _kestrel_cli; "
                          "printf '%s\\n' \"${COMPREPLY[@]}\"",
                          QString(KESTREL_PAGES) + "/kestrel-cli"} +
                  words);
  EXPECT_TRUE(shell.waitForFinished());
  EXPECT_EQ(shell.readAllStandardError().toStdString(), "");
  QStringList offered = QString::fromUtf8(shell.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
  offered.sort();
  return offered;
}

TEST(PagesTest, EveryCommandAndOptionOfTheHelpIsInTheManualAndOffered) {
  const Folder folder;
  const QString manual = Manual();
  const QStringList common = Options(Help({}));
  const QStringList commands = Commands();
  EXPECT_EQ(Captured(manual, "^\\.SS (.*)$"), commands);
  EXPECT_GE(commands.size(), 8);
  for (const QString& option : common)
    EXPECT_TRUE(manual.contains(QRegularExpression("\\n(-h, )?" + option + "[ ,\\n]")))
        << option.toStdString();
  for (const QString& command : commands) {
    const QString section = manual.section(".SS " + command + '\n', 1).section("\n.S", 0, 0);
    const QStringList options = Options(Help({command}));
    EXPECT_GE(options.size(), 2) << command.toStdString();
    for (const QString& option : options)
      EXPECT_TRUE(common.contains(option) || section.contains(QRegularExpression("\\n" + option + "[ \\n]")))
          << command.toStdString() << ' ' << option.toStdString();
    const QStringList offered = Offered({command, "-"}, folder.Path());
    const QStringList all = common + options;
    EXPECT_EQ(QSet<QString>(offered.begin(), offered.end()), QSet<QString>(all.begin(), all.end()))
        << command.toStdString();
  }
}

TEST(PagesTest, TheExamplesOfTheManualAreRightUse) {
  const Folder folder;
  const QStringList examples = Captured(Manual(), "^\\.EX\\nkestrel-cli (.*)$");
  EXPECT_GE(examples.size(), 4);
  for (const QString& example : examples)
    EXPECT_NE(folder.Run(example.split(' ')).Status, 2) << example.toStdString();
}

TEST(PagesTest, TheShellOffersWhatAValueCanBe) {
  const Folder folder;
  folder.Put("a list.txt", "");
  folder.Put("map.svg", "");
  const struct {
    QStringList words;
    QStringList offered;
  } rows[] = {
      {{"ma"}, {"map"}},
      {{"--data", "/nowhere", "hets", "--fr"}, {"--frequency"}},
      {{"map", "--hours", ""}, {"all", "day", "night"}},
      {{"map", "--hours", "=", "n"}, {"night"}},
      {{"map", "--frequency", ""}, {}},
      {{"map", "-o", "m"}, {"map.svg"}},
      {{"map", "--compass", "x"}, {}},
      {{"import", "a"}, {"a list.txt"}},
      {{"import", "--countries", "x"}, {}},
      {{"--data", folder.Path("..") + "/nothing of that name"}, {}},
      {{"--data", "/us"}, {"/usr"}},
      {{"nonsense", ""}, {}},
  };
  for (const auto& row : rows)
    EXPECT_EQ(Offered(row.words, folder.Path()), row.offered) << row.words.join(' ').toStdString();
}

}  // namespace
}  // namespace kestrel::cli
