#pragma once

#include "platform/desk.hpp"

#include <string>
#include <vector>

namespace kov::screen {

/// What the controls of the window have heard, one word an event: "change tbName".
using Heard = std::vector<std::string>;

/// A window with a control of every kind, named "Everything". `heard` must outlive the desk.
void registerEverything(Desk& desk, Heard& heard);

} // namespace kov::screen
