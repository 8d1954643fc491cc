#include "core/cards/numbers.hpp"
#include "core/cards/split_path.hpp"
#include "shell/main/main_controls.hpp"
#include "shell/main/main_window.hpp"

#include <string>
#include <string_view>

namespace kov {
namespace {

std::string numberText(double value) { return std::string(trimLeft(plainNumber(value))); }

} // namespace

void MainWindow::SaveSettings() {
    auto& settings = app_.desk.services().settings;
    settings.set("Top", numberText(window_.bounds.top.value));
    settings.set("Left", numberText(window_.bounds.left.value));
    settings.set("Width", numberText(window_.bounds.width.value));
    settings.set("Height", numberText(window_.bounds.height.value));
    settings.set("FontName", app_.UserFontName);
    settings.set("FontSize", numberText(app_.UserFontSize));
    for (std::size_t i = 1; i <= RecentFiles::Most; ++i) {
        settings.set("File" + std::to_string(i), files_.recent().at(i));
    }
}

void MainWindow::LoadSettings() {
    const auto& settings = app_.desk.services().settings;
    const auto length = [&](const std::string& key, double fallback) {
        return Twips{fieldValue(settings.get(key, numberText(fallback)))};
    };
    start_ = {length("Left", (app_.desk.screenWidth().value - DesignWidth.value) / 2),
              length("Top", (app_.desk.screenHeight().value - DesignHeight.value) / 2), length("Width", DesignWidth.value),
              length("Height", DesignHeight.value)};
    app_.UserFontName = settings.get("FontName", "");
    app_.UserFontSize = fieldInteger(settings.get("FontSize", "0"));
    for (std::size_t i = 1; i <= RecentFiles::Most; ++i) {
        files_.recent().set(i, settings.get("File" + std::to_string(i), ""));
    }
    const auto& newest = files_.recent().at(1);
    if (!trim(newest).empty()) {
        files_.setStartDir(SplitPath(newest).folder);
        app_.desk.services().files.setCurrentFolder(files_.startDir());
    }
    mruShow();
}

void MainWindow::mruShow() {
    for (std::size_t i = 1; i <= RecentFiles::Most; ++i) {
        const auto& path = files_.recent().at(i);
        if (trim(path).empty()) {
            break;
        }
        auto& entry = window_.control("MF_Files", static_cast<int>(i));
        entry.caption = "&" + std::to_string(i) + " " + path;
        entry.visible = true;
    }
}

} // namespace kov
