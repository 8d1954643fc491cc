#pragma once

#include "core/cards/fixed.hpp"

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace kov {

/// An integer as a card field: plain number text, ten columns.
[[nodiscard]] Fixed<10> CardInt(std::int16_t value);
/// A whole number as a card field with a decimal point: " 2000.    ".
[[nodiscard]] Fixed<10> CardReal(std::int32_t value);

/// File number 1 open for input: the lines of a card file, one after the other. Lines end with LF or CR LF, the last one may
/// lack its end. A line is good until the next one is read.
class CardReader {
public:
    /// Fills the bytes with what comes next in the file, as far as there is anything, and tells how many they are.
    using Source = std::function<std::size_t(std::span<char>)>;

    /// Reads a text that stands in memory and outlives the reader.
    explicit CardReader(std::string_view text) : text_(text) {}
    /// Reads a file piece by piece, so that a large one never stands in memory beside its model.
    explicit CardReader(Source source) : source_(std::move(source)) {}
    CardReader(const CardReader&) = delete;
    CardReader& operator=(const CardReader&) = delete;
    ~CardReader() = default;

    [[nodiscard]] bool atEnd();
    /// The next line without its end. End of file is a Failure.
    [[nodiscard]] std::string_view readLine();
    /// The line end that the file uses, judged by its first line; empty when no line ends. To be asked ahead of the first line.
    [[nodiscard]] std::string_view lineEnd();
    [[nodiscard]] static std::string_view lineEndOf(std::string_view text);

private:
    /// Brings more of the file behind what hasn't been read of `text_`; false when there is no more.
    [[nodiscard]] bool refill();

    std::string_view text_;
    std::size_t next_ = 0;
    Source source_;
    std::string block_; // what `text_` looks into when the file comes piece by piece
};

/// The columns `first` to `last` of a line, counted from 1; what is missing is empty. Nothing is trimmed.
[[nodiscard]] std::string_view columns(std::string_view line, std::size_t first, std::size_t last);

/// A full card: 80 columns, cut or padded, in eight fields of ten.
class Card8 {
public:
    /// Field 1 to 8 without its leading blanks; a blank field is empty.
    [[nodiscard]] std::string_view field(std::size_t number) const;
    void assign(std::string_view line) { columns_.assign(line); }

private:
    Fixed<80> columns_;
};

/// A short card: four fields taken straight from the line, so that a field of a short line is short or empty.
class Card4 {
public:
    /// Field 1 to 4 without its leading blanks.
    [[nodiscard]] std::string_view field(std::size_t number) const;
    void assign(std::string_view line) { length_ = line.copy(columns_.data(), columns_.size()); }

private:
    std::array<char, 40> columns_{};
    std::size_t length_ = 0;
};

/// Reads one card; false when no line is left (the card then stays as it was).
[[nodiscard]] bool ReadCard8(CardReader& reader, Card8& card);
[[nodiscard]] bool ReadCard4(CardReader& reader, Card4& card);

/// File number 1 open for output: cards are put together field by field and ended line by line.
class CardWriter {
public:
    /// Takes what has been written.
    using Sink = std::function<void(std::string_view)>;

    /// Keeps all cards in memory, for `content` or `take`.
    explicit CardWriter(std::string_view lineEnd = "\n") : lineEnd_(lineEnd) {}
    /// Hands the cards on piece by piece; `flush` hands on the last ones.
    CardWriter(std::string_view lineEnd, Sink sink) : lineEnd_(lineEnd), sink_(std::move(sink)) {}

    /// Text as it stands.
    CardWriter& text(std::string_view text) {
        out_.append(text);
        return *this;
    }
    /// All columns of a fixed text.
    template <std::size_t N> CardWriter& field(const Fixed<N>& value) { return text(value.view()); }
    /// An integer through `CardInt`.
    CardWriter& integer(std::int16_t value);
    /// Blanks up to, not including, the column counted from 1 ("a tab to column 41").
    CardWriter& tabTo(std::size_t column);
    /// Ends the line.
    void endCard();
    /// Hands on what the sink hasn't had yet.
    void flush();
    /// Ends the line where one was begun.
    void endBrokenCard();

    void reserve(std::size_t bytes) { out_.reserve(bytes); }
    [[nodiscard]] const std::string& content() const { return out_; }
    [[nodiscard]] std::string take() { return std::move(out_); }

private:
    std::string out_;
    std::string lineEnd_;
    Sink sink_;
    std::size_t lineStart_ = 0;
};

} // namespace kov
