#pragma once

#include "core/cards/failure.hpp"

#include <stdexcept>

namespace kov {

/// Runs the steps of a reading routine that promises a flag: their own answer, or false when anything fails on the way.
template <typename Steps> [[nodiscard]] bool allRead(const Steps& steps) {
    try {
        return steps();
    } catch (const Failure&) {
        return false;
    } catch (const std::out_of_range&) {
        return false;
    }
}

} // namespace kov
