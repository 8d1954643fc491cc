#include "platform/qt/qt_services.hpp"

#include "platform/qt/renderer.hpp"
#include "platform/qt/text_codec.hpp"

#include <QMessageBox>

namespace kov::qt {

QtServices::QtServices(const std::filesystem::path& startFolder) : files_(startFolder) {}

Services QtServices::services() { return {messages_, dialogs_, clipboard_, settings_, processes_, printer_, help_, files_}; }

void QtServices::attach(Desk& desk, Renderer& renderer) {
    messages_.beforeBox = [&renderer] { renderer.sync(); };
    dialogs_.beforeDialog = [&renderer] { renderer.sync(); };
    help_.beforeBox = [&renderer] { renderer.sync(); };
    processes_.ended = [&desk] { return desk.ended(); };
    processes_.during = [&renderer](const std::function<void()>& wait) { renderer.during(wait); };
    desk.onNotice = [](const std::string& notice) {
        QMessageBox::critical(nullptr, QStringLiteral("KOV Input Data"), toQtLines(notice));
    };
}

} // namespace kov::qt
