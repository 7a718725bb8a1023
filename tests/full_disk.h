#pragma once

#include <sys/resource.h>

#include <csignal>

namespace numerello {

/// While it lives no file may become longer than so many bytes, as on a disk that is full.
class FullDisk {
  public:
    explicit FullDisk(rlim_t most) {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit limit{most, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &before);
        std::signal(SIGXFSZ, SIG_DFL);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

  private:
    rlimit before{};
};

}  // namespace numerello
