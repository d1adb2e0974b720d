#pragma once

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kestrel {

/// Lets everybody into the folder, as others must be to try its files.
inline bool OpenToAll(const char* folder) {
  return chmod(folder, 0755) == 0;
}

/// What `check` answers in a child process that has no rights of its own, so that modes of files hold for it
/// even where the tests run as root.
template <typename Check>
bool HoldsWithoutRights(Check check) {
  const pid_t child = fork();
  if (child == 0) {
    constexpr uid_t kNobody = 65534;
    if (geteuid() == 0 && (setegid(kNobody) != 0 || seteuid(kNobody) != 0)) _exit(2);
    _exit(check() ? 0 : 1);
  }
  int status = 0;
  return child > 0 && waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

}  // namespace kestrel
