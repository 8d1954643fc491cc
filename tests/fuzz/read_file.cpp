// Any bytes at all are read as a card file. What comes of it may fail, but in no other way than it promises; a file that was
// read whole, and that can be written and read again, is a fixed point from then on.

#include "core/cards/failure.hpp"
#include "core/dataset/dataset.hpp"
#include "core/dataset/progress.hpp"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>

namespace {

class NoMessages final : public kov::MessageSink {
public:
    kov::Answer show(int /*style*/, const std::string& /*title*/, const std::string& /*prompt*/) override {
        ++shown;
        return kov::Answer::Ok;
    }
    int shown = 0;
};

/// The text as the program writes it back; none when it can't be read whole or not be written.
std::optional<std::string> rewritten(std::string_view text) {
    kov::KOVDataSet data;
    kov::NoProgress progress;
    NoMessages messages;
    kov::CardReader reader(text);
    const bool done = data.ReadFile(reader, progress, messages, "FUZZ.KOV");
    if (done != (messages.shown == 0)) {
        std::abort(); // a failure is told once, a success never
    }
    kov::CardWriter writer;
    try {
        data.WriteFile(writer, progress);
    } catch (const kov::Failure&) {
        return std::nullopt;
    }
    return done ? std::optional(writer.take()) : std::nullopt;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(bytes), size);
    // The first rewrite may change how many cards there are (a route without a name, a title that closes up), so the second
    // may read wrongly; whatever is read is then held to nothing but the promise above.
    if (const auto once = rewritten(text)) {
        static_cast<void>(rewritten(*once));
    }
    return 0;
}
