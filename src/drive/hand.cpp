#include "drive/hand.hpp"

namespace kov::drive {

Hand handOf(Desk& desk) {
    return {
        .click = [&desk](Control& control) { return desk.click(control); },
        .doubleClick = [&desk](Control& control) { return desk.doubleClick(control); },
        .rightClick = [&desk](Control& grid, int row) { return desk.rightClick(grid, row); },
        .cell = [&desk](Control& grid, int row, int col) { return desk.cell(grid, row, col); },
        .select = [&desk](Control& list, std::span<const int> entries) { return desk.select(list, entries); },
        .tab = [&desk](Control& strip, int tab) { return desk.chooseTab(strip, tab); },
        .spin = [&desk](Control& button, bool up) { return desk.spin(button, up); },
        .menu = [&desk](Control& entry) { return desk.menu(entry); },
        .focus = [&desk](Control& control) { return desk.focusOn(control); },
        .type = [&desk](std::string_view text) { return desk.type(text); },
        .key = [&desk](Key key) { return desk.key(key); },
        .close = [&desk](Window& window) { return desk.close(window); },
        .resize = [&desk](Window& window, Twips width, Twips height) { return desk.resize(window, width, height); },
        .minimize = [&desk](Window& window) { return desk.minimize(window); },
        .pass = [&desk](int milliseconds) { desk.pass(milliseconds); },
    };
}

} // namespace kov::drive
