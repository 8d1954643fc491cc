#pragma once

#include "drive/hand.hpp"
#include "platform/qt/renderer.hpp"

namespace kov::screen {

/// A person's acts as key and mouse events to the real widgets, which are found by their names. After every act `onDone` is
/// called. Desk and renderer outlive the hand.
[[nodiscard]] drive::Hand screenHand(Desk& desk, qt::Renderer& renderer, std::function<void()> onDone);

} // namespace kov::screen
