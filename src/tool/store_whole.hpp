#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace kov::tool {

/// Tells a content from its start to its end, by handing piece after piece to what it is given.
using Content = std::function<void(const std::function<void(std::string_view)>&)>;

/// Gives a file a new content, wholly or not at all: the content is written and synced beside it under another name, which then
/// takes its place with the old one's permissions. A link stays one. A pipe or a device is written to as it is, and so is a
/// file in a folder that takes no new one. False when the file could not be written.
[[nodiscard]] bool storeWhole(const std::string& path, const Content& content);

} // namespace kov::tool
