#include "vent/editor/node_details.hpp"

#include "core/cards/numbers.hpp"
#include "shell/entry/field_cycle.hpp"
#include "vent/editor/node_controls.hpp"
#include "vent/editor/window_tools.hpp"

namespace kov {
namespace {

constexpr EntryWindowTraits Traits{"Node Details", "Form 6", 1230, {}, {}};

Control& buildControls(Window& window) {
    buildNodeControls(window);
    return window.control("Grid1");
}

} // namespace

std::span<const Field> NodeDetails::fields() { return nodeFields(); }
std::span<const Column> NodeDetails::columns() { return nodeColumns(); }

NodeDetails::NodeDetails(Application& app, Window& window)
    : app_(app), window_(window), data_(app.DataSet), nodes_(data_->Nodes), entry_(app, window, Traits),
      grid_(buildControls(window)), rows_(app, window, entry_.flags, grid_) {
    wireGrid();
    wireFields();
    wireTypes();
    wireCommands();
    entry_.assign = [this] { SaveData(); };
    entry_.closing = [this] { onClosing(); };
    entry_.loadStep();
    nodes_.NodeList(grid());
    putGridOn(grid(), 0, 0);
    ShowData();
}

void NodeDetails::wireGrid() {
    OverlayRules rules;
    rules.opensOnSelect = false;
    rules.blankRowBelow = false;
    rules.accepted = [this](int row, int, std::string& text) { onNumber(row, text); };
    rules.moved = [this] { onMoved(); };
    rules.insertRow = [this] { onInsert(); };
    rules.deleteRow = [this] { onDelete(); };
    overlay_.emplace(app_, entry_.flags, grid_, window_.control("gtext"), nodeColumns(), std::move(rules));
    overlay_->bindDummy(window_.control("Dummy"));
    grid_.on.rightClick = [this](int) { window_.control("MEdit").menu().popup = true; };
}

void NodeDetails::wireFields() {
    for (const auto& field : nodeFields()) {
        // The fourth and fifth box are wired anew whenever they come to mean something else.
        if (field.control == "ttb3") {
            for (int i = 0; i < 4; ++i) {
                bindField(app_, entry_.flags, window_.control(field.control, i), field.hint, field.rule);
            }
        } else if (field.control != "tb4" && field.control != "tb5") {
            bindField(app_, entry_.flags, window_.control(field.control), field.hint, field.rule);
        }
    }
}

void NodeDetails::wireTypes() {
    window_.control("cbAeroType").on.click = [this] {
        entry_.flags.FormChanged = true;
        onAeroType();
    };
    auto& thermo = window_.control("cbThermoType");
    thermo.on.click = [this] {
        entry_.flags.FormChanged = true;
        onThermoType();
    };
    thermo.on.gotFocus = [this] { app_.desk.setPanel(2, thermoHint()); };
    thermo.on.lostFocus = [this] { app_.desk.setPanel(2, ""); };
}

void NodeDetails::wireCommands() {
    const auto close = [this] { app_.desk.unload(window_); };
    window_.control("cmdDone").on.click = close;
    // A menu doesn't move the focus: the field that is being typed in is left here, as a click on the button leaves it.
    window_.control("ME_Exit").on.click = [this, close] {
        if (app_.desk.leave(window_)) {
            close();
        }
    };
    window_.control("ME_Cut").on.click = [this] { rows_.cut([this](Position position) { nodes_.Cut(position); }); };
    window_.control("ME_Copy").on.click = [this] { rows_.copy([this](Position position) { nodes_.Copy(position); }); };
    window_.control("ME_Paste").on.click = [this] { rows_.paste([this](const std::string&) { onPaste(); }); };
    window_.control("ME_Insert").on.click = [this] { onInsert(); };
    window_.control("ME_Delete").on.click = [this] {
        if (rows_.gridIsActive()) {
            onDelete();
        }
    };
    window_.control("ME_Default").on.click = [this] { nodes_.SetDefault(rows_.current()); };
    window_.control("M_Update").on.click = [this] { onUpdate(); };
    entry_.bindStandardControls();
}

void NodeDetails::onMoved() {
    SaveData();
    CurNode_ = grid().row() + 1;
    ShowData();
}

void NodeDetails::onNumber(int row, const std::string& text) {
    if (row >= nodes_.Count()) {
        nodes_.Add(Position{0});
        grid().addItem(text, row);
    }
    const auto& node = nodes_.Nodes.at(Position{row + 1});
    node->setId(fieldInteger(text));
    window_.control("lblNode").caption = "Node " + plainNumber(node->id());
}

void NodeDetails::onInsert() {
    nodes_.Add(rows_.current());
    grid().addItem("0", grid().row());
    ShowData();
    entry_.flags.FormChanged = true;
}

void NodeDetails::onDelete() {
    rows_.remove([this](Position position) { nodes_.Delete(position); });
    ShowData();
}

void NodeDetails::onPaste() {
    const auto position = rows_.current();
    grid().addItem("0", grid().row());
    nodes_.Paste(position);
    ShowData();
}

void NodeDetails::onUpdate() {
    data_->BuildNodes();
    // The shown node stays on view until the person moves on.
    nodes_.NodeList(grid());
    app_.FileDirty = true;
}

void NodeDetails::onClosing() {
    // The blank node that is shown while there is none goes again, unless it was given a number.
    if (const auto last = nodes_.Node(Position{nodes_.Count()}); last && last->id() == 0) {
        nodes_.Delete(Position{nodes_.Count()});
    }
}

} // namespace kov
