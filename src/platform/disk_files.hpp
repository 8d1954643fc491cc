#pragma once

#include "platform/services.hpp"

#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace kov {

/// Files on the host's disc. Paths come as the logic writes them: Windows-1252, with backslashes; where such a path is not
/// found as it is, its backslashes stand for the host's separator. Error numbers: 53 file not found, 57 device I/O error, 61
/// disk full, 70 permission denied (a locked file), 75 path/file access error, 76 path not found.
class DiskFiles final : public Files {
public:
    /// Relative paths are taken from `startFolder` until the program changes its current folder.
    explicit DiskFiles(const std::filesystem::path& startFolder);

    std::string read(const std::string& path, PlatformError& error) override;
    void truncate(const std::string& path, PlatformError& error) override;
    void write(const std::string& path, std::string_view content, PlatformError& error) override;
    [[nodiscard]] bool canOpen(const std::string& path) override;
    [[nodiscard]] std::string currentFolder() const override;
    void setCurrentFolder(const std::string& folder) override;
    [[nodiscard]] std::string absolute(const std::string& path) const override;
    std::string rescue(const std::string& name, std::string_view content) override;

    /// Where rescue copies go; else it is the user's state folder.
    void setRescueFolder(const std::filesystem::path& folder) { rescueFolder_ = folder; }
    [[nodiscard]] static std::filesystem::path userStateFolder();
    /// Rescue copies written so far.
    [[nodiscard]] int rescues() const { return rescues_; }

    /// Opening that file fails from now on, as if another program held it.
    void lock(const std::string& path) { locked_.insert(place(path)); }
    void unlock(const std::string& path) { locked_.erase(place(path)); }
    /// The content whatever is locked; none when there is no such file.
    [[nodiscard]] std::optional<std::string> peek(const std::string& path) const;
    /// From now on nothing outside that folder is opened.
    void confineTo(const std::filesystem::path& folder);

    /// The file that a path of the logic means.
    [[nodiscard]] std::filesystem::path place(const std::string& path) const;

private:
    [[nodiscard]] PlatformError refusal(const std::string& path, const std::filesystem::path& file) const;
    void dropOldRescues() const;

    std::filesystem::path start_;
    std::filesystem::path current_;
    std::filesystem::path rescueFolder_;
    std::filesystem::path confined_;
    std::set<std::filesystem::path> locked_;
    int rescues_ = 0;
};

/// A host's path as text of the logic: as it is, where it has characters that Windows-1252 lacks.
[[nodiscard]] std::string textOfPath(const std::filesystem::path& path);

} // namespace kov
