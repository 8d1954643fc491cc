#pragma once

#include "core/cards/sinks.hpp"
#include "platform/units.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kov {

/// An error of the surroundings: number and description as the platform gives them. Number 0 is none.
struct PlatformError {
    int number = 0;
    std::string description;
    [[nodiscard]] explicit operator bool() const { return number != 0; }
};

/// The error number of a common dialog that the person cancelled.
inline constexpr int DialogCancelled = 32755;

enum class DialogKind : std::uint8_t { Open, Save, Font, Print };

/// What a common dialog is asked for.
struct DialogRequest {
    DialogKind kind = DialogKind::Open;
    std::string title;
    std::string filter;           ///< "Name|*.A;*.B|Name|*.*"
    std::string defaultExtension; ///< without the point
    std::string fileName;
    std::string folder; ///< where it starts
    std::uint32_t flags = 0;
    bool printerDefault = false; ///< what a print dialog sets up holds for everything printed from then on
    std::string fontName;
    double fontSize = 0;
};

/// What came of it. `error` 0 is success, `DialogCancelled` a cancel.
struct DialogResult {
    int error = 0;
    std::string fileName;  ///< full path
    std::string fileTitle; ///< without the folder
    std::string fontName;
    double fontSize = 0;
};

class Dialogs {
public:
    Dialogs() = default;
    Dialogs(const Dialogs&) = delete;
    Dialogs& operator=(const Dialogs&) = delete;
    virtual ~Dialogs() = default;
    virtual DialogResult show(const DialogRequest& request) = 0;
};

class Clipboard {
public:
    Clipboard() = default;
    Clipboard(const Clipboard&) = delete;
    Clipboard& operator=(const Clipboard&) = delete;
    virtual ~Clipboard() = default;
    /// None when it holds no text.
    [[nodiscard]] virtual std::optional<std::string> text() const = 0;
    virtual void setText(const std::string& text) = 0;
};

/// Named texts that outlive the program, of application "KOVIN", section "Settings".
class Settings {
public:
    Settings() = default;
    Settings(const Settings&) = delete;
    Settings& operator=(const Settings&) = delete;
    virtual ~Settings() = default;
    [[nodiscard]] virtual std::string get(const std::string& key, const std::string& fallback) const = 0;
    virtual void set(const std::string& key, const std::string& value) = 0;
};

/// The exit code of a program that is still running.
inline constexpr std::int32_t StillActive = 259;

/// Programs that we start. Command lines are put together in the logic with backslashes; the service translates them.
class Processes {
public:
    Processes() = default;
    Processes(const Processes&) = delete;
    Processes& operator=(const Processes&) = delete;
    virtual ~Processes() = default;
    /// Starts a program; style 1 is a normal window with the focus, 4 one without. A failed start gives 0 and sets `error`.
    virtual std::int32_t start(const std::string& commandLine, int style, PlatformError& error) = 0;
    /// The exit code of a started program, `StillActive` while it runs; minus the signal's number when a signal ended it.
    virtual std::int32_t exitCode(std::int32_t process) = 0;
    virtual void close(std::int32_t process) = 0;
    /// Lets that much time go by while the windows stay alive.
    virtual void wait(int milliseconds) = 0;
};

/// A printer, or a document in its place. Places and sizes are twips from the page's upper left printable corner.
class Printer {
public:
    Printer() = default;
    Printer(const Printer&) = delete;
    Printer& operator=(const Printer&) = delete;
    virtual ~Printer() = default;
    virtual void begin(const std::string& documentName) = 0;
    virtual void setFont(const std::string& name, double points, bool bold) = 0;
    [[nodiscard]] virtual Twips textWidth(const std::string& text) const = 0;
    [[nodiscard]] virtual Twips textHeight(const std::string& text) const = 0;
    [[nodiscard]] virtual Twips pageWidth() const = 0;
    [[nodiscard]] virtual Twips pageHeight() const = 0;
    virtual void print(Twips x, Twips y, const std::string& text) = 0;
    virtual void line(Twips x1, Twips y1, Twips x2, Twips y2) = 0;
    virtual void newPage() = 0;
    virtual void end() = 0;
};

/// Help commands of the viewer.
inline constexpr int HelpContext = 1, HelpContents = 3, HelpSearch = 257;

class HelpViewer {
public:
    HelpViewer() = default;
    HelpViewer(const HelpViewer&) = delete;
    HelpViewer& operator=(const HelpViewer&) = delete;
    virtual ~HelpViewer() = default;
    /// For `HelpSearch` the key is a keyword, for `HelpContext` the control that the person asks about, or empty.
    virtual void show(int command, int context, const std::string& key) = 0;
};

/// Files on disc and the program's own current folder (the process's is never changed).
class Files {
public:
    Files() = default;
    Files(const Files&) = delete;
    Files& operator=(const Files&) = delete;
    virtual ~Files() = default;
    /// The whole content; an error leaves it empty.
    virtual std::string read(const std::string& path, PlatformError& error) = 0;
    /// Opens for output: the old content is gone from this moment.
    virtual void truncate(const std::string& path, PlatformError& error) = 0;
    /// Writes the content and syncs it to the disc.
    virtual void write(const std::string& path, std::string_view content, PlatformError& error) = 0;
    [[nodiscard]] virtual bool canOpen(const std::string& path) = 0;
    [[nodiscard]] virtual std::string currentFolder() const = 0;
    /// A folder that isn't there is not taken over.
    virtual void setCurrentFolder(const std::string& folder) = 0;
    /// A relative path against the folder that the program was started in.
    [[nodiscard]] virtual std::string absolute(const std::string& path) const = 0;
    /// Keeps a copy in the user's state folder (the last 20 are kept); gives the copy's path, empty when it failed.
    virtual std::string rescue(const std::string& name, std::string_view content) = 0;
};

/// Everything that the program needs of its surroundings.
struct Services {
    MessageSink& messages;
    Dialogs& dialogs;
    Clipboard& clipboard;
    Settings& settings;
    Processes& processes;
    Printer& printer;
    HelpViewer& help;
    Files& files;
};

} // namespace kov
