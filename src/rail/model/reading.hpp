#pragma once

#include "core/cards/card_io.hpp"
#include "core/cards/collection.hpp"
#include "core/cards/failure.hpp"

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <utility>

namespace kov {

/// Runs a reading routine that promises a flag: whatever it can't go on from becomes false, what it has stored stays.
template <typename Read> [[nodiscard]] bool readsWell(Read&& read) {
    try {
        return std::forward<Read>(read)();
    } catch (const Failure&) {
        return false;
    } catch (const std::out_of_range&) {
        return false;
    }
}

/// Reads as many objects as declared and appends each; stops with false at the first that fails. The declared count is only
/// believed card by card: a negative one reads none, one too high ends with the file.
template <typename Object, typename... Options>
[[nodiscard]] bool readObjects(CardReader& reader, std::int32_t count, Collection<Object>& list, const Options&... options) {
    for (std::int32_t i = 0; i < count; ++i) {
        auto object = std::make_shared<Object>();
        if (!object->ReadData(reader, options...)) {
            return false;
        }
        list.append(std::move(object));
    }
    return true;
}

} // namespace kov
