#include "core/cards/card_io.hpp"

#include "core/cards/failure.hpp"
#include "core/cards/numbers.hpp"

#include <algorithm>
#include <array>
#include <charconv>

namespace kov {
namespace {

constexpr std::size_t FieldWidth = 10;
/// How much of a file stands in memory when it is read or written piece by piece.
constexpr std::size_t BlockSize = std::size_t{1} << 15U;

/// A field of blanks with the number written into it, as plain number text.
template <typename Integer> Fixed<10> numberField(Integer value, std::string_view behind) {
    std::array<char, 16> buffer{};
    buffer[0] = ' ';
    auto* first = value < 0 ? buffer.data() : buffer.data() + 1;
    auto* end = std::to_chars(first, buffer.data() + buffer.size() - 1, value).ptr;
    for (const char c : behind) {
        *end++ = c;
    }
    return {std::string_view(buffer.data(), static_cast<std::size_t>(end - buffer.data()))};
}

void requireField(std::size_t number, std::size_t highest) {
    if (number < 1 || number > highest) {
        throw Failure("Subscript out of range");
    }
}

} // namespace

Fixed<10> CardInt(std::int16_t value) { return numberField(value, ""); }
Fixed<10> CardReal(std::int32_t value) { return numberField(value, "."); }

std::string_view CardReader::readLine() {
    auto end = text_.find('\n', next_);
    while (end == std::string_view::npos && refill()) {
        end = text_.find('\n', next_);
    }
    if (next_ >= text_.size()) {
        throw Failure("Input past end of file");
    }
    auto line = text_.substr(next_, end == std::string_view::npos ? end : end - next_);
    next_ = end == std::string_view::npos ? text_.size() : end + 1;
    if (!line.empty() && line.back() == '\r') {
        line.remove_suffix(1);
    }
    return line;
}

bool CardReader::atEnd() {
    while (next_ >= text_.size() && refill()) {
    }
    return next_ >= text_.size();
}

bool CardReader::refill() {
    if (!source_) {
        return false;
    }
    block_.erase(0, next_);
    const std::size_t kept = text_.size() - next_;
    block_.resize(std::max(BlockSize, 2 * kept)); // an endless line is still read in a number of steps that its length allows
    const auto more = source_(std::span(block_).subspan(kept));
    text_ = std::string_view(block_).substr(0, kept + more);
    next_ = 0;
    if (more == 0) {
        source_ = nullptr;
    }
    return more > 0;
}

std::string_view CardReader::lineEnd() {
    while (text_.find('\n') == std::string_view::npos && refill()) {
    }
    return lineEndOf(text_);
}

std::string_view CardReader::lineEndOf(std::string_view text) {
    const auto end = text.find('\n');
    if (end == std::string_view::npos) {
        return {};
    }
    return end > 0 && text[end - 1] == '\r' ? "\r\n" : "\n";
}

std::string_view columns(std::string_view line, std::size_t first, std::size_t last) {
    return first > line.size() ? std::string_view{} : line.substr(first - 1, last - first + 1);
}

std::string_view Card8::field(std::size_t number) const {
    requireField(number, 8);
    return trimLeft(columns_.view().substr((number - 1) * FieldWidth, FieldWidth));
}

std::string_view Card4::field(std::size_t number) const {
    requireField(number, 4);
    return trimLeft(columns({columns_.data(), length_}, (number - 1) * FieldWidth + 1, number * FieldWidth));
}

bool ReadCard8(CardReader& reader, Card8& card) {
    try {
        card.assign(reader.readLine());
    } catch (const Failure&) {
        return false;
    }
    return true;
}

bool ReadCard4(CardReader& reader, Card4& card) {
    try {
        card.assign(reader.readLine());
    } catch (const Failure&) {
        return false;
    }
    return true;
}

CardWriter& CardWriter::integer(std::int16_t value) { return field(CardInt(value)); }

CardWriter& CardWriter::tabTo(std::size_t column) {
    const auto width = out_.size() - lineStart_;
    if (width + 1 < column) {
        out_.append(column - 1 - width, ' ');
    }
    return *this;
}

void CardWriter::endCard() {
    out_.append(lineEnd_);
    if (sink_ && out_.size() >= BlockSize) {
        flush();
    }
    lineStart_ = out_.size();
}

void CardWriter::flush() {
    if (sink_) {
        sink_(out_);
        out_.clear();
        lineStart_ = 0;
    }
}

void CardWriter::endBrokenCard() {
    if (out_.size() != lineStart_) {
        endCard();
    }
}

} // namespace kov
