#include "platform/qt/text_codec.hpp"

#include "platform/windows1252.hpp"

namespace kov::qt {
namespace {

bool lineEndAt(std::string_view text, std::size_t place) { return text.substr(place, 2) == "\r\n"; }

} // namespace

QString toQt(std::string_view text) { return QString::fromStdString(utf8OfText(text)); }

std::optional<std::string> fromQt(QStringView text) { return textOfUtf8(text.toUtf8().toStdString()); }

std::string fromQtLossy(QStringView text) {
    if (auto whole = fromQt(text)) {
        return *std::move(whole);
    }
    std::string result;
    for (const QChar character : text) {
        if (!character.isLowSurrogate()) {
            result += fromQt(QStringView(&character, 1)).value_or("?");
        }
    }
    return result;
}

QString toQtLines(std::string_view text) { return toQt(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n")); }

std::optional<std::string> fromQtLines(QStringView text) {
    return fromQt(text.toString().replace(QLatin1Char('\n'), QStringLiteral("\r\n")));
}

int toQtPlace(std::string_view text, int place) {
    int result = 0;
    for (std::size_t i = 0; i < text.size() && i < static_cast<std::size_t>(place); ++i) {
        i += lineEndAt(text, i) ? 1 : 0;
        ++result;
    }
    return result;
}

int fromQtPlace(std::string_view text, int place) {
    std::size_t i = 0;
    for (int step = 0; step < place && i < text.size(); ++step) {
        i += lineEndAt(text, i) ? 2 : 1;
    }
    return static_cast<int>(i);
}

} // namespace kov::qt
