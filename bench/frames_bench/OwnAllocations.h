#pragma once

namespace tessivo {

/// How often the program's own code has taken memory on this thread since `countOwnAllocations`, by itself or
/// through a function of the C++ library or of Qt Core that it called. What Qt takes for itself does not
/// count.
[[nodiscard]] long ownAllocations();

/// Begins to count on this thread. Slow: where counts are taken, times are not.
void countOwnAllocations();

} // namespace tessivo
