#pragma once

#include "core/cards/failure.hpp"

#include <stdexcept>

namespace kov {

/// Runs the steps of a reading routine; whatever fails inside them becomes the routine's flag "not read".
template <typename Steps> [[nodiscard]] bool readWithFlag(Steps steps) {
    try {
        return steps();
    } catch (const Failure&) {
        return false;
    } catch (const std::out_of_range&) {
        return false;
    }
}

} // namespace kov
