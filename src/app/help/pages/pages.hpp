#pragma once

#include "app/help/pages/topics.hpp"

#include <string>
#include <string_view>

namespace kov::help {

/// The name that the pages of this program have within a help collection.
inline constexpr std::string_view Namespace = "kov.kovin";

/// A page in HTML: title, the written introduction, the tables.
[[nodiscard]] std::string topicPage(const HelpTopic& topic, std::string_view introduction);
[[nodiscard]] std::string guidePage(const GuidePage& page, std::string_view body);
[[nodiscard]] std::string styleSheet();
/// The help project: contents, keywords, context numbers and files of all pages.
[[nodiscard]] std::string helpProject();
/// The collection that holds it.
[[nodiscard]] std::string collectionProject();

} // namespace kov::help
