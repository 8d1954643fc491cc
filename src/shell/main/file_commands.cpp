#include "shell/main/file_commands.hpp"

#include "core/cards/failure.hpp"
#include "core/cards/numbers.hpp"
#include "core/cards/split_path.hpp"
#include "shell/main/print_file.hpp"

#include <utility>

namespace kov {
namespace {

constexpr int PlainBox = 0, ChangedFileBox = 35;
// Overwrite prompt, no read-only box, path must exist, no read-only return, long names.
constexpr std::uint32_t SaveFlags = 0x208806;
// No selection, no page numbers, no print-to-file.
constexpr std::uint32_t PrintFlags = 0x10000C;
constexpr std::string_view Caption = "KOV Input Data";
constexpr std::string_view HostLineEnd = "\n";

void recreate(Application& app) {
    app.desk.setBusy(true);
    app.DataSet = std::make_unique<KOVDataSet>();
    app.desk.setBusy(false);
}

} // namespace

FileCommands::FileCommands(Application& app, MainWindowHooks hooks)
    : app_(app), hooks_(std::move(hooks)), channel_(app.desk.services().files) {}

std::string FileCommands::titled(const std::string& name) const { return std::string(Caption) + " - " + name; }

DialogRequest FileCommands::dialog(DialogKind kind) const {
    DialogRequest request;
    request.kind = kind;
    request.title = "KOV Input File";
    request.filter = "KOV Files (*.KOV;*.INP)|*.KOV;*.INP|All FIles (*.*)|*.*";
    request.defaultExtension = "KOV";
    request.fileName = app_.current.KOVName;
    request.folder = app_.desk.services().files.currentFolder();
    return request;
}

bool FileCommands::changesSettled() {
    if (!app_.FileDirty) {
        return true;
    }
    const auto answer = app_.messages().show(ChangedFileBox, "", "File has been changed.\r\nSave changes?");
    if (answer == Answer::Yes) {
        save();
    }
    return answer != Answer::Cancel;
}

void FileCommands::startAnew() {
    app_.DataSet.reset();
    recreate(app_);
    app_.current = {};
    channel_.close();
    hooks_.setCaption(std::string(Caption));
    hooks_.showFields();
    app_.FileDirty = false;
}

void FileCommands::newFile() {
    if (changesSettled()) {
        startAnew();
    }
}

void FileCommands::open() {
    if (!changesSettled()) {
        return;
    }
    // The old data goes before the engineer has chosen a file.
    startAnew();
    const auto result = app_.desk.services().dialogs.show(dialog(DialogKind::Open));
    if (result.error == 0) {
        app_.current = {result.fileName, result.fileTitle};
        load();
    } else if (result.error != DialogCancelled) {
        app_.messages().show(PlainBox, "", "Open Failure\rError #" + plainNumber(std::int32_t{result.error}));
    }
}

void FileCommands::openRecent(std::size_t number, const std::string& caption) {
    if (!changesSettled()) {
        return;
    }
    startAnew();
    app_.current.KOVName = recent_.at(number);
    // The caption is "&1 " and the path, so the short name of such a file is its whole path.
    app_.current.KOVShortName = caption.size() > 3 ? caption.substr(3) : std::string{};
    load();
}

void FileCommands::load() {
    PlatformError error;
    const auto content = channel_.openForInput(app_.current.KOVName, error);
    if (error) {
        app_.messages().show(PlainBox, "",
                             "Open Failure\r\nError #" + plainNumber(std::int32_t{error.number}) + "\r\n" + error.description);
        return;
    }
    CardReader reader(content);
    app_.DataSet->lineEnd = CardReader::lineEndOf(content);
    // A failed read has told of itself; what was read is shown, and the file is the current one all the same.
    static_cast<void>(app_.DataSet->ReadFile(reader, hooks_.progress(), app_.messages(), app_.current.KOVShortName));
    hooks_.showFields();
    app_.FileDirty = false;
    mruUpdate(app_.current.KOVName);
    hooks_.setCaption(titled(app_.current.KOVShortName));
}

void FileCommands::unloadEditors() {
    for (auto* window : app_.desk.windows()) {
        if (window->name() == "frmMain" || app_.desk.find(window->name()) != window) {
            continue;
        }
        if (app_.desk.leave(*window)) {
            app_.desk.unload(*window);
        }
    }
}

void FileCommands::save() {
    if (app_.current.KOVName.empty()) {
        saveAs();
        return;
    }
    unloadEditors();
    hooks_.storeFields();
    PlatformError error;
    channel_.openForOutput(app_.current.KOVName, error);
    if (error) {
        app_.messages().show(PlainBox, "", "Error Opening " + app_.current.KOVName + " for Output \r\r" + error.description);
        return;
    }
    writeAll();
    app_.FileDirty = false;
    mruUpdate(app_.current.KOVName);
}

void FileCommands::writeAll() {
    CardWriter writer(app_.DataSet->lineEnd.empty() ? HostLineEnd : app_.DataSet->lineEnd);
    PlatformError error;
    try {
        app_.DataSet->WriteFile(writer, hooks_.progress());
    } catch (...) {
        channel_.write(writer.content(), error); // what had been printed stands in the file
        throw;
    }
    channel_.write(writer.content(), error);
    if (error) {
        throw Failure(error.description);
    }
}

void FileCommands::saveAs() {
    auto request = dialog(DialogKind::Save);
    request.flags = SaveFlags;
    const auto result = app_.desk.services().dialogs.show(request);
    if (result.error != 0) {
        return;
    }
    app_.current = {result.fileName, result.fileTitle};
    hooks_.setCaption(titled(app_.current.KOVShortName));
    save();
}

void FileCommands::print() {
    DialogRequest request;
    request.kind = DialogKind::Print;
    request.printerDefault = true;
    request.flags = PrintFlags;
    if (app_.desk.services().dialogs.show(request).error == DialogCancelled) {
        return;
    }
    if (app_.FileDirty) {
        save();
    }
    PlatformError error;
    const auto content = channel_.openForInput(app_.current.KOVName, error);
    if (error) {
        throw Failure(error.description);
    }
    app_.desk.setBusy(true);
    PrintFile(app_.desk.services().printer, {content, app_.current.KOVShortName, printDate()});
    app_.desk.setBusy(false);
}

bool FileCommands::mayClose() {
    hooks_.saveSettings();
    return changesSettled();
}

void FileCommands::mruUpdate(const std::string& path) {
    if (!recent_.moveToFront(path)) {
        return;
    }
    startDir_ = SplitPath(path).folder;
    hooks_.saveSettings();
    if (!startDir_.empty()) {
        app_.desk.services().files.setCurrentFolder(startDir_);
    }
    hooks_.showRecent();
}

} // namespace kov
