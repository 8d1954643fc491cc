#include "platform/qt/stores.hpp"

#include "platform/qt/text_codec.hpp"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QSettings>

namespace kov::qt {
namespace {

/// Our own copies come back byte for byte, whatever the system makes of line ends.
QString ownFormat() { return QStringLiteral("application/x-kovin-text"); }

QSettings settings() { return QSettings(QStringLiteral("KOVIN"), QStringLiteral("Settings")); }

} // namespace

std::optional<std::string> QtClipboard::text() const {
    const auto* data = QGuiApplication::clipboard()->mimeData();
    if (data == nullptr) {
        return std::nullopt;
    }
    if (data->hasFormat(ownFormat())) {
        return data->data(ownFormat()).toStdString();
    }
    if (!data->hasText()) {
        return std::nullopt;
    }
    auto text = data->text();
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(QLatin1Char('\n'), QStringLiteral("\r\n"));
    return fromQtLossy(text);
}

void QtClipboard::setText(const std::string& text) {
    auto* data = new QMimeData;
    data->setText(toQtLines(text));
    data->setData(ownFormat(), QByteArray::fromStdString(text));
    QGuiApplication::clipboard()->setMimeData(data);
}

std::string QtSettings::get(const std::string& key, const std::string& fallback) const {
    return fromQtLossy(settings().value(toQt(key), toQt(fallback)).toString());
}

void QtSettings::set(const std::string& key, const std::string& value) { settings().setValue(toQt(key), toQt(value)); }

} // namespace kov::qt
