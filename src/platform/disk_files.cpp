#include "platform/disk_files.hpp"

#include "platform/windows1252.hpp"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <memory>
#include <system_error>
#include <vector>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace kov {
namespace {

namespace fs = std::filesystem;

const PlatformError FileNotFound{53, "File not found"};
const PlatformError DeviceError{57, "Device I/O error"};
const PlatformError DiskFull{61, "Disk full"};
const PlatformError PermissionDenied{70, "Permission denied"};
const PlatformError AccessError{75, "Path/File access error"};
const PlatformError PathNotFound{76, "Path not found"};

constexpr std::size_t MostRescues = 20;

struct CloseFile {
    void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
};
using OpenFile = std::unique_ptr<std::FILE, CloseFile>;

OpenFile open(const fs::path& path, bool forOutput) {
#ifdef _WIN32
    return OpenFile(_wfopen(path.c_str(), forOutput ? L"wb" : L"rb"));
#else
    return OpenFile(std::fopen(path.c_str(), forOutput ? "wb" : "rb"));
#endif
}

bool sync(std::FILE* file) {
#ifdef _WIN32
    return std::fflush(file) == 0 && _commit(_fileno(file)) == 0;
#else
    // A pipe or a device has nothing to sync, and says so.
    return std::fflush(file) == 0 && (::fsync(::fileno(file)) == 0 || errno == EINVAL || errno == ENOTSUP);
#endif
}

fs::path pathOfUtf8(const std::string& utf8) { return {std::u8string(utf8.begin(), utf8.end())}; }

bool isFolder(const fs::path& path) {
    std::error_code ignored;
    return fs::is_directory(path, ignored);
}

bool isThere(const fs::path& path) {
    std::error_code ignored;
    return fs::exists(path, ignored);
}

PlatformError missing(const fs::path& file) { return isFolder(file.parent_path()) ? FileNotFound : PathNotFound; }

std::optional<std::string> contentOf(const fs::path& path) {
    const auto file = open(path, false);
    if (!file) {
        return std::nullopt;
    }
    std::string content;
    std::error_code unknown;
    if (const auto size = fs::file_size(path, unknown); !unknown) {
        content.reserve(static_cast<std::size_t>(size));
    }
    std::string block(std::size_t{1} << 16U, '\0');
    for (std::size_t got = block.size(); got == block.size();) {
        got = std::fread(block.data(), 1, block.size(), file.get());
        content.append(block, 0, got);
    }
    return std::ferror(file.get()) == 0 ? std::optional(std::move(content)) : std::nullopt;
}

PlatformError store(const fs::path& path, std::string_view content) {
    auto file = open(path, true);
    if (!file) {
        return isFolder(path.parent_path()) ? AccessError : PathNotFound;
    }
    errno = 0;
    // An empty view may have no data at all, which fwrite must not be given.
    const bool taken = content.empty() || std::fwrite(content.data(), 1, content.size(), file.get()) == content.size();
    bool written = taken && sync(file.get());
    const int reason = errno;
    written = std::fclose(file.release()) == 0 && written;
    if (written) {
        return {};
    }
    return reason == ENOSPC ? DiskFull : DeviceError;
}

bool isRescue(const fs::path& file) {
    const auto name = file.filename().string();
    return name.size() > 9 && name[8] == 'T' &&
           std::all_of(name.begin(), name.begin() + 8, [](char c) { return c >= '0' && c <= '9'; });
}

/// "20261121T144330.123Z": sorts by time.
std::string timeStamp() {
    const auto now = std::chrono::system_clock::now();
    const auto seconds = std::chrono::system_clock::to_time_t(now);
    const auto milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(now.time_since_epoch()).count() % 1000;
    std::tm utc{};
#ifdef _WIN32
    gmtime_s(&utc, &seconds);
#else
    gmtime_r(&seconds, &utc);
#endif
    std::array<char, 40> stamp{};
    const auto length = std::strftime(stamp.data(), stamp.size(), "%Y%m%dT%H%M%S", &utc);
    std::string text(stamp.data(), length);
    std::string fraction = std::to_string(milliseconds);
    return text + "." + std::string(3 - fraction.size(), '0') + fraction + "Z";
}

} // namespace

std::string textOfPath(const fs::path& path) {
    const auto utf8 = path.u8string();
    const std::string bytes(utf8.begin(), utf8.end());
    return textOfUtf8(bytes).value_or(bytes);
}

DiskFiles::DiskFiles(const fs::path& startFolder)
    : start_(startFolder.lexically_normal()), current_(start_), rescueFolder_(userStateFolder()) {}

fs::path DiskFiles::userStateFolder() {
#ifdef _WIN32
    const wchar_t* local = _wgetenv(L"LOCALAPPDATA");
    return local == nullptr ? fs::path{} : fs::path(local) / "KOVIN";
#else
    const char* state = std::getenv("XDG_STATE_HOME");
    if (state != nullptr && *state == '/') {
        return fs::path(state) / "kovin";
    }
    const char* home = std::getenv("HOME");
    return home == nullptr ? fs::path{} : fs::path(home) / ".local" / "state" / "kovin";
#endif
}

fs::path DiskFiles::place(const std::string& path) const {
    std::string translated = path;
    std::replace(translated.begin(), translated.end(), '\\', static_cast<char>(fs::path::preferred_separator));
    const std::array<fs::path, 4> readings{pathOfUtf8(utf8OfText(path)),
                                           fs::path(path), // as it is; some folders have names that aren't Windows-1252
                                           pathOfUtf8(utf8OfText(translated)), fs::path(translated)};
    for (const auto& reading : readings) {
        if (const auto file = current_ / reading; isThere(file)) {
            return file.lexically_normal();
        }
    }
    // A file that is about to be made: by the first reading whose folder is there.
    const auto raw = current_ / readings[3];
    const auto file = current_ / readings[2];
    return (!isFolder(file.parent_path()) && isFolder(raw.parent_path()) ? raw : file).lexically_normal();
}

PlatformError DiskFiles::refusal(const std::string& path, const fs::path& file) const {
    if (path.empty() || path.find('\0') != std::string::npos || isFolder(file)) {
        return AccessError;
    }
    if (!confined_.empty()) {
        std::error_code unknown;
        const auto real = fs::weakly_canonical(file, unknown);
        const auto end = std::mismatch(confined_.begin(), confined_.end(), real.begin(), real.end()).first;
        if (unknown || end != confined_.end()) {
            return AccessError;
        }
    }
    return locked_.contains(file) ? PermissionDenied : PlatformError{};
}

std::string DiskFiles::read(const std::string& path, PlatformError& error) {
    const auto file = place(path);
    error = refusal(path, file);
    if (error) {
        return {};
    }
    auto content = contentOf(file);
    if (!content) {
        error = isThere(file) ? AccessError : missing(file);
    }
    return std::move(content).value_or(std::string{});
}

void DiskFiles::truncate(const std::string& path, PlatformError& error) {
    const auto file = place(path);
    error = refusal(path, file);
    if (!error) {
        error = store(file, {});
    }
}

void DiskFiles::write(const std::string& path, std::string_view content, PlatformError& error) {
    const auto file = place(path);
    error = refusal(path, file);
    if (!error) {
        error = store(file, content);
    }
}

bool DiskFiles::canOpen(const std::string& path) {
    const auto file = place(path);
    return !refusal(path, file) && open(file, false) != nullptr;
}

std::optional<std::string> DiskFiles::peek(const std::string& path) const {
    const auto file = place(path);
    const auto error = refusal(path, file);
    return error && error.number != PermissionDenied.number ? std::nullopt : contentOf(file);
}

std::string DiskFiles::currentFolder() const { return textOfPath(current_); }

void DiskFiles::setCurrentFolder(const std::string& folder) {
    auto file = place(folder);
    if (!file.has_filename()) {
        file = file.parent_path(); // a separator at the end
    }
    if (!folder.empty() && isFolder(file)) {
        current_ = file;
    }
}

std::string DiskFiles::absolute(const std::string& path) const {
    if (path.empty() || path.front() == '/' || path.front() == '\\' || fs::path(path).is_absolute()) {
        return path;
    }
    const auto start = textOfPath(start_);
    // Steps like ".." are walked here, in the bytes of the text, so that nothing is converted twice.
    return (fs::path(start) / fs::path(path)).lexically_normal().string();
}

void DiskFiles::confineTo(const fs::path& folder) { confined_ = fs::weakly_canonical(folder); }

std::string DiskFiles::rescue(const std::string& name, std::string_view content) {
    std::error_code failed;
    if (rescueFolder_.empty()) {
        return {};
    }
    fs::create_directories(rescueFolder_, failed);
    const auto begin = name.find_last_of("/\\");
    const auto plain = name.substr(begin == std::string::npos ? 0 : begin + 1);
    const auto stamp = timeStamp();
    auto copy = rescueFolder_ / pathOfUtf8(stamp + " " + utf8OfText(plain));
    for (int twin = 2; isThere(copy); ++twin) {
        copy = rescueFolder_ / pathOfUtf8(stamp + "-" + std::to_string(twin) + " " + utf8OfText(plain));
    }
    if (plain.find('\0') != std::string::npos || store(copy, content)) {
        return {};
    }
    ++rescues_;
    dropOldRescues();
    return textOfPath(copy);
}

void DiskFiles::dropOldRescues() const {
    std::error_code failed;
    std::vector<fs::path> copies;
    for (auto entry = fs::directory_iterator(rescueFolder_, failed); !failed && entry != fs::directory_iterator{};
         entry.increment(failed)) {
        if (isRescue(entry->path())) {
            copies.push_back(entry->path());
        }
    }
    std::sort(copies.begin(), copies.end());
    for (std::size_t i = 0; i + MostRescues < copies.size(); ++i) {
        fs::remove(copies[i], failed);
    }
}

} // namespace kov
