#pragma once

#include <cstddef>
#include <string>

namespace meridane {

/// Why a text that a user typed can't be taken: a message of one or two sentences in plain words, and the place in the
/// text that it is about, in bytes from its beginning.
struct QueryError {
    std::string message; ///< one or two sentences, without the position
    std::size_t position = 0; ///< in bytes from the beginning of the text
};

} // namespace meridane
