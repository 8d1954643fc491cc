#pragma once

#include "shell/entry/application.hpp"

namespace kov {

/// The About box, which is also the splash at the start: then its timer is on, and it goes by itself after five seconds.
class About {
public:
    About(Application& app, Window& window);
    About(const About&) = delete;
    About& operator=(const About&) = delete;

private:
    void onOkay();

    Application& app_;
    Window& window_;
};

} // namespace kov
