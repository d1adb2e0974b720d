#include "data/DataSwap.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <algorithm>
#include <cstdlib>
#include <memory>
#include <optional>

#include "data/FileIo.h"
#include "data/SwapJournal.h"

namespace kestrel {
namespace {

const QString kNewSet = ".import-new";    // being written
const QString kOldSet = ".import-old";    // being replaced
const QString kKeptSet = ".import-undo";  // replaced by the last import
const QString kJournal = ".import-journal";
const QString kLock = ".import-lock";

constexpr qint64 kLockIsMade = 10;     // seconds, and more than enough
constexpr qint64 kLongestLock = 1000;  // bytes: a process, a program, two names of the machine

/// What stopped the work: a step that was not allowed, or a refusal of the system.
struct Stopped {
  bool abandoned = false;
  Error error;
};

/// The exchange in one folder. A member function that fails throws nothing and leaves its reason in stopped_;
/// those that follow then do nothing, so a chain of them ends where the first one failed.
class Exchange {
 public:
  Exchange(const QString& folder, const SwapStep& step) : dir_(folder), step_(step) {}

  /// What stands in the place of the lock file and is none: waiting for it, or reading it, could take for
  /// ever.
  bool HasForeignLock() const {
    const QFileInfo entry(dir_.filePath(kLock));
    return entry.isSymLink() || (entry.exists() && (!entry.isFile() || entry.size() > kLongestLock));
  }

  bool Lock() {
    if (HasForeignLock()) return false;
    lock_ = std::make_unique<QLockFile>(dir_.filePath(kLock));
    lock_->setStaleLockTime(0);  // a lock holds as long as its process
    return lock_->tryLock(0) || (NamesNoHolder() && lock_->removeStaleLockFile() && lock_->tryLock(0));
  }
  /// Whether it is another import that holds the lock.
  bool IsBusy() const { return lock_ && lock_->error() == QLockFile::LockFailedError; }

  bool Exists(const QString& name) const { return QFileInfo::exists(dir_.filePath(name)); }
  /// A folder of this folder; what a link leads to is not ours, whoever put the link there.
  bool IsFolder(const QString& name) const {
    const QFileInfo entry(dir_.filePath(name));
    return entry.isDir() && !entry.isSymLink();
  }
  const std::optional<Stopped>& Failure() const { return stopped_; }
  void Forgive() { stopped_.reset(); }
  Result<Done> Outcome() const {
    if (stopped_) return stopped_->error;
    return Done{};
  }

  void MakeFolder(const QString& name) {
    if (IsFolder(name)) return;
    Do(name, "the folder cannot be made", [&] { return dir_.mkdir(name); });
  }
  void RemoveFolder(const QString& name) {
    const QFileInfo entry(dir_.filePath(name));
    if (!entry.exists() && !entry.isSymLink()) return;
    Do(name, "the folder cannot be removed", [&] {
      return IsFolder(name) ? QDir(entry.filePath()).removeRecursively() : QFile::remove(entry.filePath());
    });
  }
  void RenameFolder(const QString& from, const QString& to) {
    Do(from, "the folder cannot be renamed", [&] { return dir_.rename(from, to); });
  }
  void Move(const QString& fromFolder, const QString& toFolder, const QString& name) {
    const QString from = dir_.filePath(fromFolder + name);
    Do(name, "the file cannot be moved",
       [&] { return QFileInfo(from).isFile() && QFile::rename(from, dir_.filePath(toFolder + name)); });
  }
  void Write(const QString& name, std::string_view bytes) {
    if (stopped_ || !Allowed()) return;
    if (const Result<Done> written = WriteFile(dir_.filePath(name), bytes); !written)
      stopped_ = Stopped{false, written.error()};
  }
  void RemoveFile(const QString& name) {
    Do(name, "the file cannot be removed", [&] { return QFile::remove(dir_.filePath(name)); });
  }

  void Forward(const SwapJournal& journal);
  void Back(const SwapJournal& journal);
  void ClearUp(const SwapJournal& journal);
  Result<Done> Run(SwapJournal journal);
  Result<Done> RunAnew(const SwapJournal& journal);

 private:
  /// Whether the lock file does not say whose it is, as after a loss of power; one just being made does not
  /// say so yet. One that a process holds open is not removed in any case.
  bool NamesNoHolder() const {
    qint64 process = 0;
    QString machine;
    QString program;
    if (!IsBusy() || lock_->getLockInfo(&process, &machine, &program)) return false;
    const QDateTime made = QFileInfo(dir_.filePath(kLock)).lastModified();
    return std::abs(made.secsTo(QDateTime::currentDateTime())) > kLockIsMade;
  }

  bool Allowed() {
    if (!step_ || step_()) return true;
    stopped_ = Stopped{true, {Error::Kind::Refused, "", 0, "the import was interrupted"}};
    return false;
  }

  template <typename Action>
  void Do(const QString& name, const char* problem, Action action) {
    if (stopped_ || !Allowed() || action()) return;
    stopped_ = Stopped{false, {Error::Kind::Refused, name.toStdString(), 0, problem}};
  }

  QDir dir_;
  const SwapStep& step_;
  std::unique_ptr<QLockFile> lock_;
  std::optional<Stopped> stopped_;
  bool moved_ = false;  // by this run, all of them
};

/// Whichever of the moves have been made already, makes the others.
void Exchange::Forward(const SwapJournal& journal) {
  MakeFolder(kOldSet);
  for (const QString& name : journal.OldFiles)
    if (!Exists(kOldSet + '/' + name)) Move("", kOldSet + '/', name);
  for (const QString& name : journal.NewFiles)
    if (Exists(journal.Source + '/' + name)) Move(journal.Source + '/', "", name);
}

/// Whichever of the moves have been made, takes them back.
void Exchange::Back(const SwapJournal& journal) {
  for (const QString& name : journal.NewFiles)
    if (!Exists(journal.Source + '/' + name)) Move("", journal.Source + '/', name);
  for (const QString& name : journal.OldFiles)
    if (Exists(kOldSet + '/' + name)) Move(kOldSet + '/', "", name);
  RemoveFile(kJournal);  // before the folders: without them it would read as nothing moved yet
  RemoveFolder(kOldSet);
  if (journal.Source == kNewSet) RemoveFolder(kNewSet);
}

/// Keeps the replaced set. The old set is still under its first name as long as the kept one has to go.
void Exchange::ClearUp(const SwapJournal& journal) {
  if (Exists(kOldSet)) {
    RemoveFolder(kKeptSet);
    RenameFolder(kOldSet, kKeptSet);
  }
  if (journal.Source == kNewSet) RemoveFolder(kNewSet);
  RemoveFile(kJournal);
}

Result<Done> Exchange::Run(SwapJournal journal) {
  if (!journal.Moved) {
    Forward(journal);
    if (stopped_ && !stopped_->abandoned) {
      const Error why = stopped_->error;
      Forgive();
      Back(journal);
      return why;
    }
    moved_ = !stopped_;
    journal.Moved = true;
    Write(kJournal, JournalText(journal));
  }
  ClearUp(journal);
  return Outcome();
}

/// Run for a journal just written. Once all files have moved the work is done: clearing up that is refused is
/// left to the next recovery.
Result<Done> Exchange::RunAnew(const SwapJournal& journal) {
  const Result<Done> outcome = Run(journal);
  if (!outcome && moved_ && !stopped_->abandoned) return Done{};
  return outcome;
}

bool IsOfTheSet(const QString& file) {
  const std::vector<std::string>& names = StationSetNames();
  return std::any_of(names.begin(), names.end(), [&](const std::string& name) {
    return file.compare(QString::fromStdString(name), Qt::CaseInsensitive) == 0;
  });
}

/// The files of the folder that belong to the set, by the names they have there.
QStringList PresentFiles(const QString& folder) {
  QStringList present;
  for (const QString& file : QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::Name))
    if (IsOfTheSet(file)) present << file;
  return present;
}

/// Whether the journal could be our own. A folder that came from elsewhere may bring one that moves other
/// files about.
bool IsOurs(const SwapJournal& journal) {
  const QStringList files = journal.OldFiles + journal.NewFiles;
  return (journal.Source == kNewSet || journal.Source == kKeptSet) &&
         std::all_of(files.begin(), files.end(), IsOfTheSet);
}

Error NotLocked(const Exchange& exchange, const DataFolder& folder) {
  if (exchange.HasForeignLock())
    return {Error::Kind::NotAFile, kLock.toStdString(), 0,
            "is not the lock file of an import; remove it to go on"};
  return {Error::Kind::Refused, folder.Path().toStdString(), 0,
          exchange.IsBusy() ? "another import is at work in it (if none is, remove .import-lock there)"
                            : "cannot be written to"};
}

/// With the folder locked: what an interrupted run left is finished or taken back.
Result<Done> Recover(Exchange& exchange, const QString& folder) {
  if (!exchange.Exists(kJournal)) {
    exchange.RemoveFolder(kNewSet);
    exchange.RemoveFolder(kOldSet);
    return exchange.Outcome();
  }
  const Result<QByteArray> bytes = ReadFile(folder + '/' + kJournal);
  if (!bytes) return bytes.error();
  const auto journal = ReadJournal({bytes->constData(), static_cast<std::size_t>(bytes->size())});
  if (!journal || !IsOurs(*journal))
    return Error{Error::Kind::Malformed, kJournal.toStdString(), 0,
                 "is damaged; remove it to go on with the files as they are"};
  return exchange.Run(*journal);
}

}  // namespace

Result<Done> SwapInStations(const DataFolder& folder, const FileSource& source, const SwapStep& step) {
  Exchange exchange(folder.Path(), step);
  if (!exchange.Lock()) return NotLocked(exchange, folder);
  if (const Result<Done> recovered = Recover(exchange, folder.Path()); !recovered) return recovered;

  SwapJournal journal{false, kNewSet, PresentFiles(folder.Path()), {}};
  exchange.MakeFolder(kNewSet);
  source([&](const std::string& name, const std::string& bytes) {
    exchange.Write(kNewSet + '/' + QString::fromStdString(name), bytes);
    journal.NewFiles << QString::fromStdString(name);
  });
  exchange.Write(kJournal, JournalText(journal));
  if (const auto failure = exchange.Failure()) {
    exchange.Forgive();
    if (!failure->abandoned) exchange.RemoveFolder(kNewSet);
    return failure->error;
  }
  return exchange.RunAnew(journal);
}

Result<Done> UndoImport(const DataFolder& folder, const SwapStep& step) {
  Exchange exchange(folder.Path(), step);
  if (!exchange.Lock()) return NotLocked(exchange, folder);
  if (const Result<Done> recovered = Recover(exchange, folder.Path()); !recovered) return recovered;
  if (!exchange.IsFolder(kKeptSet))
    return Error{Error::Kind::NotFound, folder.Path().toStdString(), 0,
                 "holds no station files that an import replaced"};
  const SwapJournal journal{false, kKeptSet, PresentFiles(folder.Path()),
                            PresentFiles(folder.Path() + '/' + kKeptSet)};
  exchange.Write(kJournal, JournalText(journal));
  if (exchange.Failure()) return exchange.Outcome();
  return exchange.RunAnew(journal);
}

bool CanUndoImport(const DataFolder& folder) {
  return Exchange(folder.Path(), {}).IsFolder(kKeptSet);
}

Result<Done> RecoverImport(const DataFolder& folder, const SwapStep& step) {
  Exchange exchange(folder.Path(), step);
  if (!exchange.Exists(kJournal) && !exchange.Exists(kNewSet) && !exchange.Exists(kOldSet)) return Done{};
  if (!exchange.Lock()) {
    if (exchange.HasForeignLock()) return NotLocked(exchange, folder);
    return Done{};
  }
  return Recover(exchange, folder.Path());
}

}  // namespace kestrel
