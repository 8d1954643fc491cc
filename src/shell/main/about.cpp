#include "shell/main/about.hpp"

#include "shell/main/version.hpp"

#include <string>

namespace kov {
namespace {

constexpr int SplashMilliseconds = 5000;
constexpr double Width = 5400, Height = 3600, Margin = 240;

void place(Control& control, double left, double top, double width, double height) {
    control.bounds = {Twips{left}, Twips{top}, Twips{width}, Twips{height}};
}

} // namespace

About::About(Application& app, Window& window) : app_(app), window_(window) {
    window_.caption = "About KOV Input Manager";
    window_.topmost = true;
    window_.resizable = false;
    window_.bounds = {Twips{(app.desk.screenWidth().value - Width) / 2}, Twips{(app.desk.screenHeight().value - Height) / 2},
                      Twips{Width}, Twips{Height}};
    auto& timer = window_.add(ControlKind::Timer, "Timer1");
    timer.timer().interval = SplashMilliseconds;
    timer.on.tick = [this] { onOkay(); };
    place(window_.add(ControlKind::Panel, "SSPanel1", "  KOV Input Manager"), Margin, Margin, Width - 2 * Margin, 600);
    auto& picture = window_.add(ControlKind::Image, "Image1");
    std::get<ImagePart>(picture.part).path = "about-tunnel.svg";
    place(picture, Margin, 1050, 1500, 1500);
    const std::string version =
        "Version " + std::to_string(ProgramVersion.major) + "." + std::to_string(ProgramVersion.revision);
    place(window_.add(ControlKind::Label, "lblVersion", version), 2040, 1050, 3120, 285);
    place(window_.add(ControlKind::Label, "lblCredit", "Input data manager of the KOV simulation", 0), 2040, 1440, 3120, 285);
    place(window_.add(ControlKind::Label, "lblCredit", "Air, heat, trains and fires in rail tunnels", 1), 2040, 1740, 3120,
          285);
    auto& okay = window_.add(ControlKind::Button, "cmdOkay", "OK");
    place(okay, (Width - 1200) / 2, 2760, 1200, 405);
    okay.on.click = [this] { onOkay(); };
}

void About::onOkay() {
    auto& timer = window_.control("Timer1").timer();
    if (timer.on) {
        timer.on = false;
        app_.desk.show("frmMain");
    }
    app_.desk.unload(window_);
}

} // namespace kov
