#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace kov {

/// The list of segment types as the engineer sees it. Types 5 to 8, 15 and 16 have no entry of their own when a segment is
/// shown; the last entry stores type 15.
inline constexpr std::array<std::string_view, 11> SegmentTypes{"Tunnel Segment",
                                                               "Station TES w/  power & passengers",
                                                               "Station TES w/ power only",
                                                               "Station TES w/ passengers only",
                                                               "Impulse Fan Type 1",
                                                               "Impulse Fan Type 2",
                                                               "Impulse Fan Type 3",
                                                               "Impulse Fan Type 4",
                                                               "Impulse Fan Type 5",
                                                               "Impulse Fan Type 6",
                                                               "Undefined!"};
inline constexpr int HighestSegmentType = 16;

/// The entry that shows a type, -1 when none does.
[[nodiscard]] constexpr int entryOfType(int type) {
    if (type >= 1 && type <= 4) {
        return type - 1;
    }
    return type >= 9 && type <= 14 ? type - 5 : -1;
}

/// The type that an entry stores.
[[nodiscard]] constexpr int typeOfEntry(int entry) { return entry <= 3 ? entry + 1 : entry + 5; }

} // namespace kov
