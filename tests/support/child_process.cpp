#include "support/child_process.h"

#include <cstdio>
#include <exception>
#include <stdexcept>

#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fabula::test {
namespace {

constexpr int kThrown = 99;
constexpr uid_t kNobody = 65534;

int ResultOf(const std::function<int()>& work) {
    try {
        return work();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "in the child: %s\n", error.what());
        return kThrown;
    }
}

}  // namespace

pid_t StartChild(const std::function<int()>& work) {
    const pid_t child = fork();
    if (child < 0) throw std::runtime_error("could not start a child process");
    // _exit, so that the child does not run what the test program does at its end.
    if (child == 0) _exit(ResultOf(work));
    return child;
}

int RunInChild(const std::function<int()>& work) {
    int status = 0;
    if (waitpid(StartChild(work), &status, 0) < 0) throw std::runtime_error("a child process was lost");
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

void LimitFileSize(long bytes) {
    signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{static_cast<rlim_t>(bytes), static_cast<rlim_t>(bytes)};
    if (setrlimit(RLIMIT_FSIZE, &limit) != 0) throw std::runtime_error("could not limit the size of files");
}

void DropRights() {
    if (geteuid() != 0) return;
    if (setegid(kNobody) != 0 || seteuid(kNobody) != 0) throw std::runtime_error("could not drop rights");
}

}  // namespace fabula::test
