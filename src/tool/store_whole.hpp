#pragma once

#include <string>
#include <string_view>

namespace kov::tool {

/// Gives a file a new content, wholly or not at all: the content is written and synced beside it under another name, which then
/// takes its place with the old one's permissions. A link stays one. A pipe or a device is written to as it is, and so is a
/// file in a folder that takes no new one. False when the file could not be written.
[[nodiscard]] bool storeWhole(const std::string& path, std::string_view content);

} // namespace kov::tool
