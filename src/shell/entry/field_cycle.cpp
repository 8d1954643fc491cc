#include "shell/entry/field_cycle.hpp"

#include "core/cards/entry_check.hpp"
#include "core/cards/fixed.hpp"

#include <utility>

namespace kov {
namespace {

constexpr int HintPanel = 2;

void leaveField(Application& app, EntryFlags& flags, Control& box, const Rule& rule, const std::function<void()>& accepted) {
    app.desk.setPanel(HintPanel, "");
    if (!flags.FieldChanged) {
        return;
    }
    flags.FieldChanged = false;
    flags.FormChanged = true;
    flags.FieldText = box.text().text;
    const bool refused = checkEntry(flags.FieldText, rule, app.messages());
    // A refused integer shows the corrected number too, so that it stands there when the focus is back.
    box.setText(flags.FieldText);
    if (refused) {
        app.desk.setFocus(box);
    } else if (accepted) {
        accepted();
    }
}

} // namespace

bool checkEntry(std::string& text, const Rule& rule, MessageSink& messages) {
    switch (rule.kind) {
    case FieldKind::Real:
        return CheckReal(text, rule.low, rule.high, messages);
    case FieldKind::Integer:
        return CheckInt(text, static_cast<std::int32_t>(rule.low), static_cast<std::int32_t>(rule.high), messages);
    case FieldKind::LongInteger:
        return CheckLong(text, static_cast<std::int32_t>(rule.low), static_cast<std::int32_t>(rule.high), messages);
    default:
        return false;
    }
}

void enterField(Application& app, Control& box, std::string_view hint) {
    app.desk.setPanel(HintPanel, hint);
    box.selectText(0, static_cast<int>(trimRight(box.text().text).size()));
}

void bindField(Application& app, EntryFlags& flags, Control& box, std::string_view hint, const Rule& rule,
               std::function<void()> accepted) {
    box.on.gotFocus = [&app, &box, hint] { enterField(app, box, hint); };
    box.on.change = [&flags] { flags.FieldChanged = true; };
    box.on.lostFocus = [&app, &flags, &box, rule, done = std::move(accepted)] { leaveField(app, flags, box, rule, done); };
}

void bindHint(Application& app, Control& control, std::string_view hint) {
    control.on.gotFocus = [&app, hint] { app.desk.setPanel(HintPanel, hint); };
    control.on.lostFocus = [&app] { app.desk.setPanel(HintPanel, ""); };
}

} // namespace kov
