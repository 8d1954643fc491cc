#include "platform/qt/text_viewer.hpp"

#include "platform/qt/look.hpp"
#include "platform/qt/text_codec.hpp"

#include <QFile>
#include <QFileInfo>
#include <QPlainTextEdit>
#include <QProcess>
#include <QStandardPaths>

namespace kov::qt {
namespace {

constexpr int Columns = 136, Lines = 50; // a page of the listing

bool desktopViews(const QString& path) {
    const auto opener = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
    const bool desktop = !qEnvironmentVariableIsEmpty("XDG_CURRENT_DESKTOP");
    return desktop && !opener.isEmpty() && QProcess::startDetached(opener, {path});
}

} // namespace

void viewText(const QString& path) {
    if (desktopViews(path)) {
        return;
    }
    auto* viewer = new QPlainTextEdit;
    viewer->setAttribute(Qt::WA_DeleteOnClose);
    viewer->setAttribute(Qt::WA_QuitOnClose, false);
    viewer->setObjectName(QStringLiteral("TextViewer"));
    viewer->setWindowTitle(QFileInfo(path).fileName());
    viewer->setReadOnly(true);
    viewer->setLineWrapMode(QPlainTextEdit::NoWrap);
    viewer->setFont(fixedFont());
    QFile file(path);
    viewer->setPlainText(file.open(QIODevice::ReadOnly) ? toQtLines(file.readAll().toStdString())
                                                        : QStringLiteral("Cannot open ") + path);
    const auto metrics = viewer->fontMetrics();
    viewer->resize(metrics.horizontalAdvance(QLatin1Char('0')) * Columns, metrics.height() * Lines);
    viewer->show();
}

} // namespace kov::qt
