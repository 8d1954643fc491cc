#include "platform/qt/printer.hpp"

#include "platform/qt/text_codec.hpp"

#include <QFontMetricsF>
#include <QPageLayout>
#include <QPainter>
#include <QPen>
#include <QPrinter>

#include <optional>
#include <stdexcept>

namespace kov::qt {
namespace {

constexpr double TwipsPerInch = 1440, Margin = 0.25;
constexpr Twips RuleWidth{10}; // half a point: a single dot of a printer can hardly be seen

} // namespace

struct QtPrinter::Parts {
    std::optional<QPrinter> printer;
    QPainter painter;
    QFont font;

    QPrinter& device() {
        if (!printer) {
            printer.emplace(QPrinter::HighResolution);
            // A printed card file is 91 columns wide and begins at the seventh: little margin is wanted.
            printer->setPageMargins(QMarginsF(Margin, Margin, Margin, Margin), QPageLayout::Inch);
        }
        return *printer;
    }
    [[nodiscard]] double dots(Twips length) { return length.value * device().resolution() / TwipsPerInch; }
    [[nodiscard]] Twips twips(double length) { return Twips{length * TwipsPerInch / device().resolution()}; }
    [[nodiscard]] QFontMetricsF metrics() { return QFontMetricsF(font, &device()); }
};

QtPrinter::QtPrinter() : parts_(std::make_unique<Parts>()) {}
QtPrinter::~QtPrinter() { end(); }

QPrinter& QtPrinter::device() const { return parts_->device(); }

void QtPrinter::printToPdf(const std::string& path) {
    device().setOutputFormat(QPrinter::PdfFormat);
    device().setOutputFileName(toQt(path));
}

void QtPrinter::begin(const std::string& documentName) {
    device().setDocName(toQt(documentName));
    if (!parts_->painter.begin(&device())) {
        throw std::runtime_error("Printer error");
    }
    parts_->painter.setFont(parts_->font);
}

void QtPrinter::setFont(const std::string& name, double points, bool bold) {
    // A zero character ends a font's name. Liberation Mono has the widths of Courier New, and stands in where that is missing.
    parts_->font = QFont(toQt(name.substr(0, name.find('\0'))));
    auto families = parts_->font.families();
    families << QStringLiteral("Liberation Mono") << QStringLiteral("Cousine") << QStringLiteral("Nimbus Mono PS");
    parts_->font.setFamilies(families);
    parts_->font.setStyleHint(QFont::TypeWriter);
    parts_->font.setPointSizeF(points);
    parts_->font.setBold(bold);
    if (parts_->painter.isActive()) {
        parts_->painter.setFont(parts_->font);
    }
}

Twips QtPrinter::textWidth(const std::string& text) const {
    return parts_->twips(parts_->metrics().horizontalAdvance(toQt(text)));
}
Twips QtPrinter::textHeight(const std::string& /*text*/) const { return parts_->twips(parts_->metrics().height()); }
Twips QtPrinter::pageWidth() const { return parts_->twips(device().pageRect(QPrinter::DevicePixel).width()); }
Twips QtPrinter::pageHeight() const { return parts_->twips(device().pageRect(QPrinter::DevicePixel).height()); }

void QtPrinter::print(Twips x, Twips y, const std::string& text) {
    // A place is the upper left corner of the text; the painter wants its base line.
    parts_->painter.drawText(QPointF(parts_->dots(x), parts_->dots(y) + parts_->metrics().ascent()), toQt(text));
}

void QtPrinter::line(Twips x1, Twips y1, Twips x2, Twips y2) {
    parts_->painter.setPen(QPen(Qt::black, parts_->dots(RuleWidth)));
    parts_->painter.drawLine(QPointF(parts_->dots(x1), parts_->dots(y1)), QPointF(parts_->dots(x2), parts_->dots(y2)));
}

void QtPrinter::newPage() { device().newPage(); }

void QtPrinter::end() {
    if (parts_->painter.isActive()) {
        parts_->painter.end();
    }
}

} // namespace kov::qt
