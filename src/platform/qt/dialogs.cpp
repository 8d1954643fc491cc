#include "platform/qt/dialogs.hpp"

#include "platform/disk_files.hpp"
#include "platform/qt/printer.hpp"
#include "platform/qt/text_codec.hpp"

#include <QApplication>
#include <QFileDialog>
#include <QFontDialog>
#include <QPrintDialog>
#include <QRegularExpression>

#include <filesystem>

namespace kov::qt {
namespace {

constexpr std::uint32_t OverwritePrompt = 0x2, FileMustExist = 0x1000;

DialogResult cancelled() {
    DialogResult result;
    result.error = DialogCancelled;
    return result;
}

DialogResult showFile(const DialogRequest& request) {
    QFileDialog dialog(QApplication::activeWindow(), toQt(request.title));
    const bool save = request.kind == DialogKind::Save;
    dialog.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    const bool mustExist = !save && (request.flags & FileMustExist) != 0;
    dialog.setFileMode(mustExist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, (request.flags & OverwritePrompt) == 0);
    dialog.setNameFilters(nameFilters(request.filter));
    dialog.setDefaultSuffix(toQt(request.defaultExtension));
    if (!request.folder.empty()) {
        dialog.setDirectory(toQt(request.folder));
    }
    if (!request.fileName.empty()) {
        dialog.selectFile(toQt(request.fileName));
    }
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return cancelled();
    }
    const std::filesystem::path path(dialog.selectedFiles().constFirst().toStdU16String());
    DialogResult result;
    result.fileName = textOfPath(path);
    result.fileTitle = textOfPath(path.filename());
    return result;
}

DialogResult showFont(const DialogRequest& request) {
    QFont font = QApplication::font();
    if (!request.fontName.empty()) {
        font.setFamilies({toQt(request.fontName)});
    }
    if (request.fontSize > 0) {
        font.setPointSizeF(request.fontSize);
    }
    bool accepted = false;
    font = QFontDialog::getFont(&accepted, font, QApplication::activeWindow());
    if (!accepted) {
        return cancelled();
    }
    DialogResult result;
    result.fontName = fromQtLossy(font.family());
    result.fontSize = font.pointSizeF();
    return result;
}

} // namespace

QStringList nameFilters(const std::string& filter) {
    static const QRegularExpression patternsInName(QStringLiteral(" *\\([^)]*\\) *$"));
    QStringList filters;
    const auto parts = toQt(filter).split(QLatin1Char('|'));
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QStringList patterns;
        for (const auto& pattern : parts[i + 1].split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
            const auto trimmed = pattern.trimmed();
            patterns += trimmed == QStringLiteral("*.*") ? QStringLiteral("*") : trimmed;
            if (trimmed.toLower() != trimmed) {
                patterns += trimmed.toLower();
            }
        }
        auto name = parts[i];
        name.remove(patternsInName);
        filters += name + QStringLiteral(" (") + patterns.join(QLatin1Char(' ')) + QLatin1Char(')');
    }
    return filters;
}

DialogResult QtDialogs::showPrint() {
    QPrintDialog dialog(&printer_->device(), QApplication::activeWindow());
    return dialog.exec() == QDialog::Accepted ? DialogResult{} : cancelled();
}

DialogResult QtDialogs::show(const DialogRequest& request) {
    if (beforeDialog) {
        beforeDialog();
    }
    switch (request.kind) {
    case DialogKind::Font:
        return showFont(request);
    case DialogKind::Print:
        return showPrint();
    default:
        return showFile(request);
    }
}

} // namespace kov::qt
