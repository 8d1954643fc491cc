#pragma once

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <cstdio>

namespace kov::screen {

/// The offscreen platform remarks on every window that comes to the front that it can't do that; nobody wants to read it.
inline void hideOffscreenRemarks() {
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& message) {
        if (!message.startsWith(QLatin1String("This plugin does not support"))) {
            std::fprintf(stderr, "%s\n", qPrintable(message));
        }
    });
}

} // namespace kov::screen
