#include "tool/store_whole.hpp"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <optional>
#include <system_error>
#include <utility>

#ifdef _WIN32
#include <io.h>
#include <process.h>
#else
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace kov::tool {
namespace {

namespace fs = std::filesystem;

struct CloseFile {
    void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

#ifdef _WIN32
int ownProcess() { return _getpid(); }
bool sync(std::FILE* file) { return std::fflush(file) == 0 && _commit(_fileno(file)) == 0; }
#else
int ownProcess() { return static_cast<int>(::getpid()); }
// A pipe or a device has nothing to sync, and says so.
bool sync(std::FILE* file) {
    return std::fflush(file) == 0 && (::fsync(::fileno(file)) == 0 || errno == EINVAL || errno == ENOTSUP);
}
#endif

bool writeTo(File file, const Content& content) {
    bool taken = true;
    content([&](std::string_view piece) {
        taken = taken && (piece.empty() || std::fwrite(piece.data(), 1, piece.size(), file.get()) == piece.size());
    });
    const bool written = taken && sync(file.get());
    return std::fclose(file.release()) == 0 && written;
}

File openForOutput(const fs::path& path, const char* mode) { return File(std::fopen(path.string().c_str(), mode)); }

/// The file that a path means behind its links; the path itself where there is none.
fs::path behindLinks(const fs::path& path) {
    std::error_code none;
    auto file = fs::canonical(path, none);
    return none ? path : file;
}

/// A file of that name may be replaced: it is a plain file that may be written to, or nothing yet. What stands below /dev is
/// open elsewhere too, and is written to.
bool mayBeReplaced(const std::string& path, const fs::path& file) {
    if (path.starts_with("/dev/") || path.starts_with("/proc/")) {
        return false;
    }
    std::error_code ignored;
    const auto status = fs::symlink_status(file, ignored);
    return status.type() == fs::file_type::not_found ||
           (status.type() == fs::file_type::regular && openForOutput(file, "r+b") != nullptr);
}

/// Owner and permissions of the old file, as far as they can be given away.
void takeOver(const fs::path& beside, const fs::path& file) {
    std::error_code ignored;
    const auto old = fs::status(file, ignored);
    if (old.type() != fs::file_type::regular) {
        return;
    }
#ifndef _WIN32
    struct ::stat owned {};
    if (::stat(file.c_str(), &owned) == 0 && ::chown(beside.c_str(), owned.st_uid, owned.st_gid) != 0) {
        // The new file is ours then.
    }
#endif
    fs::permissions(beside, old.permissions(), ignored);
}

/// The content under another name, which then takes the file's place; none when there can't be another name beside it.
std::optional<bool> replace(const fs::path& file, const Content& content) {
    const fs::path beside = file.string() + "." + std::to_string(ownProcess()) + ".new";
    auto opened = openForOutput(beside, "wbx");
    if (!opened) {
        return std::nullopt;
    }
    std::error_code failed;
    if (writeTo(std::move(opened), content)) {
        takeOver(beside, file);
        fs::rename(beside, file, failed);
        if (!failed) {
            return true;
        }
    }
    fs::remove(beside, failed);
    return false;
}

} // namespace

bool storeWhole(const std::string& path, const Content& content) {
    const auto file = behindLinks(path);
    if (mayBeReplaced(path, file)) {
        if (const auto replaced = replace(file, content)) {
            return *replaced;
        }
    }
    auto opened = openForOutput(path, "wb");
    return opened != nullptr && writeTo(std::move(opened), content);
}

} // namespace kov::tool
