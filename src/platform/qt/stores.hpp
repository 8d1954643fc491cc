#pragma once

#include "platform/services.hpp"

namespace kov::qt {

/// The system's clipboard. Its text has characters that ours lacks: they come in as "?".
class QtClipboard final : public Clipboard {
public:
    [[nodiscard]] std::optional<std::string> text() const override;
    void setText(const std::string& text) override;
};

/// The person's settings, in the place where the system keeps such.
class QtSettings final : public Settings {
public:
    [[nodiscard]] std::string get(const std::string& key, const std::string& fallback) const override;
    void set(const std::string& key, const std::string& value) override;
};

} // namespace kov::qt
