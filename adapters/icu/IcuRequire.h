#pragma once

#include <unicode/utypes.h>

#include <cstdio>
#include <cstdlib>

namespace tessivo::icu_adapter {

/// Ends the program where ICU cannot give even its simplest service: its data are missing or memory is gone,
/// and no date could be shown or read.
inline void require(UErrorCode status, const char* service) {
    if (U_SUCCESS(status))
        return;
    std::fprintf(stderr, "ICU cannot make its %s: %s\n", service, u_errorName(status));
    std::abort();
}

} // namespace tessivo::icu_adapter
