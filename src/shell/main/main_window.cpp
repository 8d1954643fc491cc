#include "shell/main/main_window.hpp"

#include "core/cards/numbers.hpp"
#include "core/cards/split_path.hpp"
#include "shell/entry/scale_form.hpp"
#include "shell/main/main_controls.hpp"

#include <utility>

namespace kov {
namespace {

constexpr int PlainBox = 0;
constexpr std::int16_t VerifyOnly = -1;

} // namespace

MainWindow::MainWindow(Application& app, Window& window, const std::string& commandLine)
    : app_(app), window_(window), progress_(app, window),
      files_(app, {.showFields = [this] { Showflds(); },
                   .storeFields = [this] { storeFields(); },
                   .setCaption = [this](const std::string& caption) { window_.caption = caption; },
                   .showRecent = [this] { mruShow(); },
                   .saveSettings = [this] { SaveSettings(); },
                   .progress = [this]() -> ProgressSink& { return progress_; }}),
      run_(app) {
    window_.caption = "KOV Input Data";
    window_.bounds = {Twips{}, Twips{}, DesignWidth, DesignHeight};
    window_.oldW = DesignWidth;
    window_.oldH = DesignHeight;
    buildMainControls(window_);
    bindFields();
    bindCommands();
    bindNavigation();
    window_.on.resize = [this] { ScaleForm(app_, window_); };
    window_.on.queryUnload = [this](bool& cancel) { cancel = !files_.mayClose(); };
    window_.on.unload = [this] {
        files_.channel().close();
        app_.DataSet.reset();
        app_.desk.end();
    };
    load(commandLine);
}

void MainWindow::load(const std::string& commandLine) {
    LoadSettings();
    window_.bounds = start_;
    ScaleForm(app_, window_); // also at the design size: the chosen font comes with it
    if (!commandLine.empty()) {
        app_.current = {commandLine, SplitPath(commandLine).name};
        files_.load();
    }
    Showflds();
}

void MainWindow::Showflds() {
    flags_.FieldChanged = false; // what was being typed is gone
    const auto& data = *app_.DataSet;
    window_.control("tbSysID").setText(data.Sysid.trimmed());
    window_.control("tbTitle").setText(trimRight(data.Title()));
    window_.control("ckInputVer").checked = data.InErr == VerifyOnly;
    for (const auto& field : MainFields) {
        if (field.member != nullptr) {
            window_.control(field.control).setText((data.*field.member).trimmed());
        }
    }
    for (const auto& destination : Destinations) {
        if (destination.needs != Needs::TrainOption && destination.needs != Needs::ZoneOption) {
            continue;
        }
        const bool on = (destination.needs == Needs::TrainOption ? data.TPOpt : data.ECLOpt) >= 1;
        window_.control("Command1", destination.button).enabled = on;
        window_.control(destination.entry).enabled = on;
    }
}

void MainWindow::storeFields() {
    auto& data = *app_.DataSet;
    data.Sysid = boxText("tbSysID");
    data.setTitle(boxText("tbTitle"));
    for (const auto& field : MainFields) {
        if (field.member != nullptr) {
            data.*field.member = boxText(field.control);
        }
    }
}

void MainWindow::bindFields() {
    for (const auto& field : MainFields) {
        auto& box = window_.control(field.control);
        if (field.member != nullptr) {
            bindField(app_, flags_, box, field.hint, field.rule, [this, &box, member = field.member] {
                (*app_.DataSet).*member = box.text().text;
                app_.FileDirty = true;
            });
        } else {
            bindHint(app_, box, field.hint);
        }
    }
    auto& identification = window_.control("tbSysID");
    identification.on.gotFocus = [this, &identification] { enterField(app_, identification, MainFields[0].hint); };
    identification.on.change = [this] { app_.FileDirty = true; };
    identification.on.lostFocus = [this, &identification] {
        app_.desk.setPanel(2, "");
        app_.DataSet->Sysid = identification.text().text;
    };
    auto& description = window_.control("tbTitle");
    description.on.change = [this] { app_.FileDirty = true; };
    description.on.lostFocus = [this, &description] {
        app_.desk.setPanel(2, "");
        app_.DataSet->setTitle(description.text().text);
        // Read back, so that the engineer sees where the lines were wrapped.
        description.setText(app_.DataSet->Title());
    };
    window_.control("ckInputVer").on.click = [this] { onInputVerification(); };
}

void MainWindow::onInputVerification() {
    app_.FileDirty = true;
    auto& errors = app_.DataSet->InErr;
    if (window_.control("ckInputVer").checked) {
        errors = VerifyOnly;
    } else if (errors == VerifyOnly) {
        errors = 0;
    }
}

void MainWindow::onMenu(std::string_view entry, std::function<void()> command) {
    window_.control(entry).on.click = std::move(command);
}

void MainWindow::bindCommands() {
    onMenu("MF_New", [this] { files_.newFile(); });
    onMenu("MF_Open", [this] { files_.open(); });
    onMenu("MF_Save", [this] { files_.save(); });
    onMenu("MF_SaveAs", [this] { files_.saveAs(); });
    onMenu("MF_Print", [this] { files_.print(); });
    onMenu("MF_Exit", [this] {
        if (app_.desk.leave(window_)) {
            app_.desk.unload(window_);
        }
    });
    for (int i = 1; i <= static_cast<int>(RecentFiles::Most); ++i) {
        auto& entry = window_.control("MF_Files", i);
        entry.on.click = [this, &entry, i] { files_.openRecent(static_cast<std::size_t>(i), entry.caption); };
    }
    onMenu("MO_Font", [this] { onFont(); });
    onMenu("MV_Reset", [this] { onReset(); });
    onMenu("MR_Curr", [this] { onRun(); });
    onMenu("MR_Batch", [this] { run_.startBatch(); });
    onMenu("MH_Contents", [this] { app_.desk.services().help.show(HelpContents, 0, ""); });
    onMenu("MH_Search", [this] { app_.desk.services().help.show(HelpSearch, 0, ""); });
    onMenu("MH_About", [this] { onAbout(); });
}

void MainWindow::bindNavigation() {
    for (const auto& destination : Destinations) {
        if (destination.entryConnected) {
            onMenu(destination.entry, [this, &destination] { go(destination); });
        }
        if (destination.button >= 0) {
            window_.control("Command1", destination.button).on.click = [this, &destination] { go(destination); };
        }
    }
}

bool MainWindow::refused(Needs needs) const {
    const auto& data = *app_.DataSet;
    std::string reason;
    if (needs == Needs::LineSections && data.Sections.Count() < 1) {
        reason = "Line Sections must be defined before segments.";
    } else if (needs == Needs::VentSections && data.Vents.Count() < 1) {
        reason = "Vent Sections must be defined before shafts.";
    } else if (needs == Needs::Fans && data.Fans.Count() < 1) {
        reason = "There are no fans defined yet.";
    }
    if (!reason.empty()) {
        app_.messages().show(PlainBox, "", reason);
    }
    return !reason.empty();
}

void MainWindow::go(const Destination& destination) {
    if (!refused(destination.needs)) {
        app_.desk.show(std::string(destination.window));
    }
}

void MainWindow::onRun() {
    files_.save();
    files_.channel().close();
    run_.run();
}

void MainWindow::onFont() {
    DialogRequest request;
    request.kind = DialogKind::Font;
    request.flags = 1; // screen fonts
    request.fontName = app_.UserFontName;
    request.fontSize = app_.UserFontSize;
    const auto result = app_.desk.services().dialogs.show(request);
    if (result.error == 0) { // after a cancel or an error the dialog holds what it was given
        app_.UserFontName = result.fontName;
        app_.UserFontSize = toInt16(result.fontSize);
    }
}

void MainWindow::onReset() {
    // The top is computed on the screen's width too, unlike the place of a first start.
    const auto width = app_.desk.screenWidth().value;
    app_.UserFontName.clear();
    app_.UserFontSize = 0;
    window_.moveTo(
        {Twips{(width - DesignWidth.value) / 2}, Twips{(width - DesignHeight.value) / 2}, DesignWidth, DesignHeight});
}

void MainWindow::onAbout() {
    if (auto* about = app_.desk.show("About")) {
        about->control("Timer1").timer().on = false; // the splash stays too, when it is still there
    }
}

void MainWindow::Progress::setBusy(bool busy) { app_.desk.setBusy(busy); }
void MainWindow::Progress::setVisible(bool visible) {
    window_.control("ProgressBar1").visible = visible;
    app_.desk.repaint();
}
void MainWindow::Progress::setMax(std::int32_t max) { window_.control("ProgressBar1").progress().max = max; }
void MainWindow::Progress::setValue(std::int32_t value) {
    window_.control("ProgressBar1").progress().value = value;
    app_.desk.repaint();
}

} // namespace kov
