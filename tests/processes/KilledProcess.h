#pragma once

#include <functional>

namespace tessivo {

/// Runs `work` in a process of its own and kills it as it enters the `calls`-th of its system calls that
/// write (open, write, truncate, sync, unlink, rename), counted from 1. True if `work` came to its end before
/// that; work that fails calls `_exit(1)`, which fails the test.
[[nodiscard]] bool runUntilWrite(int calls, const std::function<void()>& work);

} // namespace tessivo
