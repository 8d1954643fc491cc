#include "shell/main/print_file.hpp"

#include "core/cards/card_io.hpp"

#include <chrono>
#include <cstddef>
#include <ctime>
#include <exception>

namespace kov {
namespace {

constexpr std::size_t HeaderColumns = 84, MarginColumns = 6;
// Tab columns, counted from 1.
constexpr double HeaderTab = 8, LineTab = 11, PageTab = 84;
constexpr double FooterLines = 5; // below the bottom limit
constexpr int EmptyLines = 2;
constexpr double FontPoints = 10;
constexpr std::string_view FontName = "Courier New";

/// The pages of one document, filled from top to bottom.
class Pages {
public:
    Pages(Printer& printer, const PrintedFile& file);

    void PrintHeader();
    void PrintFooter();
    void printLine(std::string_view text);
    /// The footer of a page that may not be full stands where the others have theirs.
    void closeLastPage();

private:
    void setFont(const std::string& name) { printer_.setFont(name, FontPoints, false); }
    void printAt(double tab, const std::string& text) { printer_.print(columnWidth_ * (tab - 1), y_, text); }
    void skip(double lines) { y_ = y_ + LineHeight_ * lines; }
    void rule() { printer_.line(LeftMargin_, y_, LeftMargin_ + HeaderWidth_, y_); }

    Printer& printer_;
    std::string PageHeader_;
    std::string date_;
    Twips columnWidth_;
    Twips LeftMargin_;
    Twips HeaderWidth_;
    Twips LineHeight_;
    Twips RuleGap_;
    Twips bottomLimit_;
    Twips y_;
    int page_ = 1;
};

Pages::Pages(Printer& printer, const PrintedFile& file)
    : printer_(printer), PageHeader_(pageHeader(file.shortName)), date_(file.date) {
    printer_.begin(file.shortName);
    // The first choice of the font carries a zero character behind the name: printers look the name up as far as that.
    setFont(std::string(FontName) + '\0');
    columnWidth_ = printer_.textWidth(" ");
    LeftMargin_ = printer_.textWidth(std::string(MarginColumns, ' '));
    HeaderWidth_ = printer_.textWidth(PageHeader_);
    LineHeight_ = printer_.textHeight(PageHeader_);
    RuleGap_ = LineHeight_ * (1.0 / 4);
    bottomLimit_ = printer_.pageHeight() - LineHeight_ * FooterLines;
}

void Pages::PrintHeader() {
    skip(EmptyLines);
    setFont(std::string(FontName));
    printAt(HeaderTab, PageHeader_);
    skip(1);
    rule();
    skip(EmptyLines);
}

void Pages::PrintFooter() {
    skip(EmptyLines);
    rule();
    y_ = y_ + RuleGap_;
    printAt(HeaderTab, date_);
    printAt(PageTab, "Pg " + std::to_string(page_));
}

void Pages::printLine(std::string_view text) {
    if (y_ > bottomLimit_) {
        PrintFooter();
        printer_.newPage();
        ++page_;
        y_ = {};
        PrintHeader();
    }
    printAt(LineTab, std::string(text));
    skip(1);
}

void Pages::closeLastPage() {
    y_ = bottomLimit_;
    PrintFooter();
}

} // namespace

std::string pageHeader(std::string_view shortName) {
    std::string header = "KOV DATA FILE";
    header.resize(HeaderColumns, ' ');
    const auto right = "File: " + std::string(shortName);
    if (right.size() < HeaderColumns) {
        const auto column = HeaderColumns - right.size(); // counted from 1
        header.replace(column - 1, right.size(), right);
    }
    return header;
}

std::string printDate() {
    const auto now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    std::tm local{};
#ifdef _WIN32
    localtime_s(&local, &now);
#else
    localtime_r(&now, &local);
#endif
    constexpr int FirstYear = 1900;
    return std::to_string(local.tm_mon + 1) + '/' + std::to_string(local.tm_mday) + '/' +
           std::to_string(local.tm_year + FirstYear);
}

void PrintFile(Printer& printer, const PrintedFile& file) {
    try {
        Pages pages(printer, file);
        pages.PrintHeader();
        CardReader lines(file.content);
        while (!lines.atEnd()) {
            pages.printLine(lines.readLine());
        }
        pages.closeLastPage();
        printer.end();
    } catch (const std::exception&) {
        // A printer that doesn't print is seen at the printer: the engineer's work goes on.
        return;
    }
}

} // namespace kov
