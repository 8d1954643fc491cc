#pragma once

#include "platform/desk.hpp"
#include "platform/disk_files.hpp"
#include "platform/qt/dialogs.hpp"
#include "platform/qt/help_viewer.hpp"
#include "platform/qt/messages.hpp"
#include "platform/qt/printer.hpp"
#include "platform/qt/processes.hpp"
#include "platform/qt/stores.hpp"

namespace kov::qt {

class Renderer;

/// The surroundings of the real program.
class QtServices {
public:
    explicit QtServices(const std::filesystem::path& startFolder);
    [[nodiscard]] Services services();
    /// From now on boxes and waits work together with the windows of that renderer.
    void attach(Desk& desk, Renderer& renderer);
    [[nodiscard]] DiskFiles& files() { return files_; }

private:
    DiskFiles files_;
    QtMessages messages_;
    QtPrinter printer_;
    QtDialogs dialogs_{printer_};
    QtClipboard clipboard_;
    QtSettings settings_;
    QtProcesses processes_{files_};
    QtHelpViewer help_;
};

} // namespace kov::qt
