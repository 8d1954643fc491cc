#pragma once

#include "platform/services.hpp"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace kov {

/// A clipboard of our own.
class HeadlessClipboard final : public Clipboard {
public:
    [[nodiscard]] std::optional<std::string> text() const override { return text_; }
    void setText(const std::string& text) override { text_ = text; }
    void clear() { text_.reset(); }

private:
    std::optional<std::string> text_;
};

/// Settings that live as long as the script.
class HeadlessSettings final : public Settings {
public:
    [[nodiscard]] std::string get(const std::string& key, const std::string& fallback) const override {
        return find(key).value_or(fallback);
    }
    void set(const std::string& key, const std::string& value) override { values_[key] = value; }
    [[nodiscard]] std::optional<std::string> find(const std::string& key) const {
        const auto found = values_.find(key);
        return found == values_.end() ? std::nullopt : std::optional(found->second);
    }

private:
    std::map<std::string, std::string> values_;
};

/// Calls of help, written down.
class HeadlessHelp final : public HelpViewer {
public:
    struct Call {
        int command = 0;
        int context = 0;
        std::string key;
    };
    void show(int command, int context, const std::string& key) override { calls_.push_back({command, context, key}); }
    /// The oldest first.
    [[nodiscard]] const std::vector<Call>& calls() const { return calls_; }

private:
    std::vector<Call> calls_;
};

} // namespace kov
