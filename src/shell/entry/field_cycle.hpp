#pragma once

#include "shell/entry/application.hpp"
#include "shell/entry/field.hpp"

#include <functional>
#include <string>
#include <string_view>

namespace kov {

/// What a window knows of the editing under way.
struct EntryFlags {
    bool FormChanged = false;  ///< some field of the window was changed; set when a changed field is left
    bool FieldChanged = false; ///< the field that has the focus was edited since it got it
    bool Cancelled = false;    ///< the person left by Cancel
    std::string FieldText;     ///< the text of the field being checked
};

/// Runs the check of a rule on a text; true when the field must be corrected. Text and check boxes are always fine.
[[nodiscard]] bool checkEntry(std::string& text, const Rule& rule, MessageSink& messages);

/// Wires the cycle of a text box: hint and selection on focus, the changed mark while typing, check and normalised text on
/// leaving. `accepted` runs when a changed text has passed its check; a refused one takes the focus back and nothing else.
void bindField(Application& app, EntryFlags& flags, Control& box, std::string_view hint, const Rule& rule,
               std::function<void()> accepted = {});

/// The hint part of the cycle alone: check boxes, option buttons, lists.
void bindHint(Application& app, Control& control, std::string_view hint);

/// Puts the hint into panel 2 and selects the whole text but its trailing blanks.
void enterField(Application& app, Control& box, std::string_view hint);

} // namespace kov
