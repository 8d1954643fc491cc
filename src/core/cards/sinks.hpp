#pragma once

#include <cstdint>
#include <string>

namespace kov {

/// What a person answers to a message box.
enum class Answer : std::uint8_t { Ok, Cancel, Yes, No };

/// Where a routine that needs a person's decision, or has something to tell, puts its message box.
class MessageSink {
public:
    MessageSink() = default;
    MessageSink(const MessageSink&) = delete;
    MessageSink& operator=(const MessageSink&) = delete;
    virtual ~MessageSink() = default;
    /// Style numbers: buttons 0 OK, 3 Yes No Cancel, 4 Yes No; icons 16 stop, 32 question, 48 exclamation, 64 information.
    /// The title is empty where a box has none. Texts are Windows-1252.
    virtual Answer show(int style, const std::string& title, const std::string& prompt) = 0;
};

/// Where the drivers of the card file show how far they are.
class ProgressSink {
public:
    ProgressSink() = default;
    ProgressSink(const ProgressSink&) = delete;
    ProgressSink& operator=(const ProgressSink&) = delete;
    virtual ~ProgressSink() = default;
    /// The busy pointer on or off.
    virtual void setBusy(bool busy) = 0;
    /// The bar becomes visible and comes to the front, or is hidden.
    virtual void setVisible(bool visible) = 0;
    virtual void setMax(std::int32_t max) = 0;
    virtual void setValue(std::int32_t value) = 0;
};

} // namespace kov
