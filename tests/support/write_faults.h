#pragma once

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <unistd.h>

namespace quorvane {

/// Nothing is protected against root, who therefore tests as somebody else while this lives.
class OrdinaryUser {
 public:
  OrdinaryUser() { BecomeIfRoot(kNobody); }
  ~OrdinaryUser() { BecomeIfRoot(0); }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;

 private:
  static constexpr uid_t kNobody = 65534;

  static void BecomeIfRoot(uid_t user) {
    const int failed = getuid() == 0 ? seteuid(user) : 0;
    EXPECT_EQ(failed, 0);
  }
};

/// While this lives, no file may grow beyond a size. At that size writing fails, as it does on a
/// full disk, when the signal is ignored; otherwise the process ends in mid-file.
class FullDisk {
 public:
  explicit FullDisk(rlim_t largestFile, void (*atLimit)(int) = SIG_IGN)
      : before_(signal(SIGXFSZ, atLimit)) {
    getrlimit(RLIMIT_FSIZE, &old_);
    const rlimit limit = {.rlim_cur = largestFile, .rlim_max = old_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &old_);
    signal(SIGXFSZ, before_);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  void (*before_)(int);
  rlimit old_ = {};
};

}  // namespace quorvane
