#pragma once

#include "platform/services.hpp"

#include <memory>

class QPrinter;

namespace kov::qt {

/// A printer of the system, or a PDF file. It is looked for when it is first asked for something: that takes time.
class QtPrinter final : public Printer {
public:
    QtPrinter();
    ~QtPrinter() override;
    QtPrinter(const QtPrinter&) = delete;
    QtPrinter& operator=(const QtPrinter&) = delete;

    void begin(const std::string& documentName) override;
    void setFont(const std::string& name, double points, bool bold) override;
    [[nodiscard]] Twips textWidth(const std::string& text) const override;
    [[nodiscard]] Twips textHeight(const std::string& text) const override;
    [[nodiscard]] Twips pageWidth() const override;
    [[nodiscard]] Twips pageHeight() const override;
    void print(Twips x, Twips y, const std::string& text) override;
    void line(Twips x1, Twips y1, Twips x2, Twips y2) override;
    void newPage() override;
    void end() override;

    /// What the print dialog sets up.
    [[nodiscard]] QPrinter& device() const;
    /// Documents go to that file instead of a printer.
    void printToPdf(const std::string& path);

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

} // namespace kov::qt
