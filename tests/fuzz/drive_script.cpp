// Drive scripts of any content: they may fail, but never crash, hang or touch a file outside their folder.
#include "drive/runner.hpp"

#include <array>
#include <cctype>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <string>
#include <string_view>
#include <system_error>

namespace {

namespace fs = std::filesystem;

constexpr std::size_t LongestNumber = 4, LongestScript = 4096;

/// A large number is only a long wait: of simulated time, or for a program that goes on running.
bool hasLargeNumber(std::string_view script) {
    std::size_t digits = 0;
    for (const char c : script) {
        digits = std::isdigit(static_cast<unsigned char>(c)) != 0 ? digits + 1 : 0;
        if (digits > LongestNumber) {
            return true;
        }
    }
    return false;
}

/// The one folder that scripts may write in; emptied before each, gone at the end.
class Folder {
public:
    Folder() {
        std::string name = (fs::temp_directory_path() / "kovin-fuzz-XXXXXX").string();
        path_ = fs::canonical(mkdtemp(name.data()));
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    ~Folder() { empty(true); }

    const fs::path& empty(bool wholly = false) const {
        std::error_code ignored;
        for (const auto& entry : fs::directory_iterator(path_, ignored)) {
            fs::remove_all(entry.path(), ignored);
        }
        if (wholly) {
            fs::remove(path_, ignored);
        }
        return path_;
    }

private:
    fs::path path_;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Folder folder;
    const std::string script(reinterpret_cast<const char*>(data), size);
    if (size > LongestScript || hasLargeNumber(script)) {
        return -1;
    }
    kov::drive::RunOptions options;
    options.factory = kov::drive::headlessProgram;
    options.startFolder = folder.empty();
    options.appPath = "/opt/kov";
    options.confined = true;
    std::ostringstream out;
    const std::array scripts{kov::drive::ScriptText{"fuzz", script}};
    kov::drive::runScripts(scripts, options, out);
    return 0;
}
