// kov_help_pages INTRODUCTIONS OUT: writes the help pages and the projects that the help generator of Qt compiles.
#include "app/help/pages/pages.hpp"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace {

namespace fs = std::filesystem;

std::string introduction(const fs::path& folder, std::string_view name) {
    const auto path = folder / (std::string(name) + ".html");
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        throw std::runtime_error("no introduction " + path.string());
    }
    return {std::istreambuf_iterator<char>(file), {}};
}

void write(const fs::path& path, const std::string& content) {
    std::ofstream file(path, std::ios::binary);
    file << content;
    file.close();
    if (!file) {
        throw std::runtime_error("can't write " + path.string());
    }
}

void writeAll(const fs::path& from, const fs::path& to) {
    using namespace kov::help;
    fs::create_directories(to);
    for (const auto& page : guide()) {
        write(to / (std::string(page.name) + ".html"), guidePage(page, introduction(from, page.name)));
    }
    for (const auto& topic : topics()) {
        write(to / (topic.window + ".html"), topicPage(topic, introduction(from, topic.window)));
    }
    write(to / "help.css", styleSheet());
    write(to / "kovin.qhp", helpProject());
    write(to / "kovin.qhcp", collectionProject());
}

} // namespace

int main(int argc, char** argv) {
    try {
        if (argc != 3) {
            std::fprintf(stderr, "usage: kov_help_pages INTRODUCTIONS OUT\n");
            return 2;
        }
        writeAll(argv[1], argv[2]);
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "kov_help_pages: %s\n", error.what());
        return 1;
    }
}
