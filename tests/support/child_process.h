#pragma once

#include <functional>

#include <sys/types.h>

namespace fabula::test {

/// Starts `work` in a child process that ends with its result, or with 99 when it throws.
pid_t StartChild(const std::function<int()>& work);

/// Runs `work` in a child process, so that limits and rights may be changed for it alone; its result.
int RunInChild(const std::function<int()>& work);

/// In a child: no file may grow beyond `bytes` from here on; writing on fails as on a full disk.
void LimitFileSize(long bytes);

/// In a child: from here on without the rights of the administrator, should the test program have them.
void DropRights();

}  // namespace fabula::test
