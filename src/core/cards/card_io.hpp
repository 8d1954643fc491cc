#pragma once

#include "core/cards/fixed.hpp"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace kov {

/// An integer as a card field: plain number text, ten columns.
[[nodiscard]] Fixed<10> CardInt(std::int16_t value);
/// A whole number as a card field with a decimal point: " 2000.    ".
[[nodiscard]] Fixed<10> CardReal(std::int32_t value);

/// File number 1 open for input: the lines of a card file, one after the other. Lines end with LF or CR LF, the last one may
/// lack its end. The text must outlive the reader and every card that still looks into it.
class CardReader {
public:
    explicit CardReader(std::string_view text) : text_(text) {}

    [[nodiscard]] bool atEnd() const { return next_ >= text_.size(); }
    /// The next line without its end. End of file is a Failure.
    [[nodiscard]] std::string_view readLine();
    /// The line end that the file uses, judged by its first line; empty when no line has ended yet.
    [[nodiscard]] static std::string_view lineEndOf(std::string_view text);
    [[nodiscard]] std::string_view lineEnd() const { return lineEndOf(text_); }

private:
    std::string_view text_;
    std::size_t next_ = 0;
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
    void assign(std::string_view line) { line_ = line; }

private:
    std::string_view line_;
};

/// Reads one card; false when no line is left (the card then stays as it was).
[[nodiscard]] bool ReadCard8(CardReader& reader, Card8& card);
[[nodiscard]] bool ReadCard4(CardReader& reader, Card4& card);

/// File number 1 open for output: cards are put together field by field and ended line by line.
class CardWriter {
public:
    explicit CardWriter(std::string_view lineEnd = "\n") : lineEnd_(lineEnd) {}

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
    /// Ends the line where one was begun.
    void endBrokenCard();

    void reserve(std::size_t bytes) { out_.reserve(bytes); }
    [[nodiscard]] const std::string& content() const { return out_; }
    [[nodiscard]] std::string take() { return std::move(out_); }

private:
    std::string out_;
    std::string lineEnd_;
    std::size_t lineStart_ = 0;
};

} // namespace kov
