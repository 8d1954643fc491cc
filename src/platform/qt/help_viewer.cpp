#include "platform/qt/help_viewer.hpp"

#include "platform/qt/text_codec.hpp"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibrary>
#include <QMessageBox>

namespace kov::qt {
namespace {

/// A part of the program: beside it, or where an installed program keeps such files.
QString partOf(const QString& name, const QString& installedFolder) {
    const QDir folder(QCoreApplication::applicationDirPath());
    const auto beside = folder.filePath(name);
    return QFileInfo::exists(beside) ? beside : QDir::cleanPath(folder.filePath(installedFolder + QLatin1Char('/') + name));
}

} // namespace

QtHelpViewer::QtHelpViewer() = default;
QtHelpViewer::~QtHelpViewer() = default;

bool QtHelpViewer::load() {
    if (window_) {
        return true;
    }
    const auto library = partOf(QStringLiteral(KOV_HELP_LIBRARY), QStringLiteral(KOV_HELP_LIBRARY_FOLDER));
    // The library stays loaded: its window lives as long as the program.
    const auto make = reinterpret_cast<MakeHelpWindow>(QLibrary::resolve(library, "kovMakeHelpWindow"));
    if (make != nullptr) {
        window_.reset(make(partOf(QStringLiteral("kovin.qhc"), QStringLiteral(KOV_HELP_PAGES_FOLDER))));
    }
    return window_ != nullptr;
}

void QtHelpViewer::show(int command, int context, const std::string& key) {
    if (!load()) {
        if (beforeBox) {
            beforeBox();
        }
        QMessageBox::warning(
            nullptr, QStringLiteral("KOV Input Data"),
            QStringLiteral("The help pages are not there: kovin.qhc and its viewer belong beside the program."));
        return;
    }
    switch (command) {
    case HelpContext:
        window_->showContext(context, toQt(key));
        break;
    case HelpSearch:
        window_->showSearch(toQt(key));
        break;
    default:
        window_->showContents();
    }
}

} // namespace kov::qt
