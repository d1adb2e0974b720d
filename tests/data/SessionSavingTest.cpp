#include <gtest/gtest.h>
#include <signal.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <cerrno>
#include <functional>

#include "TestFolder.h"
#include "WithoutRights.h"
#include "core/SessionFile.h"
#include "data/DataFolder.h"

// The last-session file when its saving is cut short: it is the old one or the new one, whole.

namespace kestrel {
namespace {

class SessionSavingTest : public testing::Test, protected TestFolder {
 protected:
  static SessionState State(float frequency) {
    SessionState state;
    state.CurrentFrequency = frequency;
    state.HomeName = std::string(100, 'x') + "  TX";
    return state;
  }

  /// Status of a process that saves: 0 when it could.
  int Save(float frequency) const {
    SessionState state = State(frequency);
    return SaveSession(folder_, state) ? 0 : 1;
  }

  /// The channel of the file on the disk; 0: there is none, -1: it is neither the one nor the other, whole.
  float Saved() const {
    const Result<QByteArray> bytes = folder_.Read("Kestrel.CFG");
    if (!bytes) return bytes.error().kind == Error::Kind::NotFound ? 0 : -1;
    SessionState read;
    ReadSession(bytes->toStdString(), read);
    SessionState state = State(read.CurrentFrequency);
    const std::string date =
        bytes->mid(0, bytes->indexOf("\r\n\r\n")).split('*').last().trimmed().toStdString();
    return bytes->toStdString() == WriteSession(state, date) ? read.CurrentFrequency : -1;
  }

  QStringList Names() const {
    return QDir(folder_.Path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
  }

  const DataFolder& folder_ = Folder();
};

constexpr int kUntraced = 99;  // the status where the system lets nobody watch a process

/// Runs `work` in a process of its own, killed as it enters or leaves the system for the `stop`th time,
/// counted from 0. Returns its status, or nothing when it was killed.
std::optional<int> RunKilledAt(int stop, const std::function<int()>& work) {
  const pid_t child = fork();
  if (child == 0) {
    if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) _exit(kUntraced);
    raise(SIGSTOP);
    _exit(work());
  }
  int status = 0;
  waitpid(child, &status, 0);
  ptrace(PTRACE_SETOPTIONS, child, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
  for (int calls = 0; WIFSTOPPED(status); ++calls) {
    const bool atCall = calls == 0 || WSTOPSIG(status) == (SIGTRAP | 0x80);
    EXPECT_TRUE(atCall) << "stopped by signal " << WSTOPSIG(status);
    if (calls == stop || !atCall)
      kill(child, SIGKILL);
    else
      ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
    waitpid(child, &status, 0);
  }
  return WIFEXITED(status) ? std::optional(WEXITSTATUS(status)) : std::nullopt;
}

TEST_F(SessionSavingTest, KilledAnywhereItLeavesTheOldFileOrTheNewOne) {
  for (const float old : {0.0F, 700.0F}) {
    int kept = 0;
    int replaced = 0;
    for (int stop = 0;; ++stop) {
      for (const QString& name : Names()) Remove(name);
      if (old != 0) {
        ASSERT_EQ(Save(old), 0);
      }
      const std::optional<int> status = RunKilledAt(stop, [this] { return Save(1230); });
      if (status == kUntraced) GTEST_SKIP() << "the system lets no process be watched";
      const float saved = Saved();
      if (status) {
        EXPECT_EQ(*status, 0);
        EXPECT_EQ(saved, 1230);
        break;
      }
      ASSERT_TRUE(saved == old || saved == 1230) << "killed at call " << stop << ": " << saved;
      ++(saved == 1230 ? replaced : kept);
      for (const QString& name : Names()) EXPECT_TRUE(name.startsWith("Kestrel.CFG")) << name.toStdString();
      ASSERT_EQ(Save(540), 0) << "what a killed process leaves is in nobody's way";
      ASSERT_EQ(Saved(), 540);
    }
    EXPECT_GT(kept, 5);
    EXPECT_GT(replaced, 0);
    RecordProperty(old == 0 ? "kills_first" : "kills_replacing", kept + replaced);
  }
}

TEST_F(SessionSavingTest, WithoutRoomOnTheDiskTheOldFileStays) {
  ASSERT_EQ(Save(700), 0);
  const auto length = static_cast<rlim_t>(folder_.Read("Kestrel.CFG")->size());
  rlimit whole{};
  getrlimit(RLIMIT_FSIZE, &whole);
  const auto before = signal(SIGXFSZ, SIG_IGN);
  for (const rlim_t room : {rlim_t{0}, rlim_t{1}, length / 2, length}) {
    const rlimit little{room, whole.rlim_max};
    setrlimit(RLIMIT_FSIZE, &little);
    SessionState state = State(1230);
    const Result<Done> saved = SaveSession(folder_, state);
    setrlimit(RLIMIT_FSIZE, &whole);
    ASSERT_FALSE(saved) << room;
    EXPECT_EQ(saved.error().Message(), "Kestrel.CFG: " + qt_error_string(EFBIG).toStdString());
    EXPECT_EQ(Saved(), 700) << room;
    EXPECT_EQ(Names(), QStringList("Kestrel.CFG")) << room;
  }
  signal(SIGXFSZ, before);
}

TEST_F(SessionSavingTest, WhereNothingCanBeWrittenItSaysSo) {
  ASSERT_EQ(Save(700), 0);
  const QByteArray path = QFile::encodeName(folder_.Path());
  ASSERT_EQ(chmod(path.constData(), 0555), 0);
  EXPECT_TRUE(HoldsWithoutRights([&] {
    SessionState state = State(1230);
    const Result<Done> saved = SaveSession(folder_, state);
    return !saved && saved.error().Message() == "Kestrel.CFG: Permission denied";
  }));
  ASSERT_EQ(chmod(path.constData(), 0755), 0);
  EXPECT_EQ(Saved(), 700);
  EXPECT_EQ(Names(), QStringList("Kestrel.CFG"));
  QDir(folder_.Path()).removeRecursively();
  SessionState state = State(1230);
  EXPECT_EQ(SaveSession(folder_, state).error().Message(), "Kestrel.CFG: No such file or directory");
  EXPECT_FALSE(QDir(folder_.Path()).exists());
}

}  // namespace
}  // namespace kestrel
