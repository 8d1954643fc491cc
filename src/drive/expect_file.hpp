#pragma once

#include "drive/arguments.hpp"
#include "drive/script.hpp"

namespace kov::drive {

/// `expect file "PATH" LINE "TEXT"`, `lines N`, `same "OTHER"`, behind `file`.
[[nodiscard]] Act parseExpectFile(Arguments& arguments);

} // namespace kov::drive
