#include "line/editor/segment_editing.hpp"

#include <utility>

namespace kov {

void SegmentEditing::bind(Control& box, const Field& field) {
    box.on.gotFocus = [this, &box, hint = field.hint] { enterField(app, box, hint); };
    box.on.change = [this] { flags.FieldChanged = true; };
    box.on.lostFocus = [this, &box, rule = field.rule] { leave(box, rule); };
}

void SegmentEditing::leave(Control& box, const Rule& rule, bool showsNormalised) {
    app.desk.setPanel(2, "");
    if (!std::exchange(flags.FieldChanged, false)) {
        return;
    }
    flags.FieldText = box.text().text;
    if (checkEntry(flags.FieldText, rule, app.messages())) {
        app.desk.setFocus(box);
        return;
    }
    if (showsNormalised) {
        box.setText(flags.FieldText);
    }
    dataChanged = true;
}

} // namespace kov
