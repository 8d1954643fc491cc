#pragma once

#include "platform/services.hpp"

#include <string>
#include <vector>

namespace kov {

/// A printer whose paper is lines of text: whatever the font, a character is 120 twips wide and 240 high, so a page of 8.5 by
/// 11 inches has 66 lines of 102 columns. A text that lies between two lines or columns goes to the nearest.
class HeadlessPrinter final : public Printer {
public:
    static constexpr double CharacterWidth = 120, LineHeight = 240;

    struct Rule {
        Twips x1, y1, x2, y2;
    };
    struct Page {
        std::vector<std::string> lines; ///< without trailing blanks
        std::vector<Rule> rules;
    };
    struct Document {
        std::string name;
        std::vector<Page> pages;
    };

    void begin(const std::string& documentName) override;
    void setFont(const std::string& name, double points, bool bold) override;
    [[nodiscard]] Twips textWidth(const std::string& text) const override;
    [[nodiscard]] Twips textHeight(const std::string& text) const override;
    [[nodiscard]] Twips pageWidth() const override { return Twips{12240}; }
    [[nodiscard]] Twips pageHeight() const override { return Twips{15840}; }
    void print(Twips x, Twips y, const std::string& text) override;
    void line(Twips x1, Twips y1, Twips x2, Twips y2) override;
    void newPage() override;
    void end() override;

    /// The documents that were printed to their end, the oldest first.
    [[nodiscard]] const std::vector<Document>& documents() const { return documents_; }
    [[nodiscard]] const std::string& fontName() const { return fontName_; }
    [[nodiscard]] double fontPoints() const { return fontPoints_; }

private:
    [[nodiscard]] Page& page();

    Document current_;
    std::vector<Document> documents_;
    std::string fontName_;
    double fontPoints_ = 0;
};

} // namespace kov
