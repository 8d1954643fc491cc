#pragma once

#include <stdexcept>
#include <string>

namespace kov {

/// A condition that a routine can't go on from: an overflow of a card integer, a position outside a collection, the end of
/// the file. A reading routine that promises a flag turns it into false; where nobody does, the desk ends the program.
class Failure : public std::runtime_error {
public:
    explicit Failure(const std::string& what) : std::runtime_error(what) {}
};

} // namespace kov
