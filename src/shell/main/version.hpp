#pragma once

namespace kov {

/// The version record of the program.
struct Version {
    int major;
    int minor;
    int revision;
};

inline constexpr Version ProgramVersion{1, 0, 0};

} // namespace kov
