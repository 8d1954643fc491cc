#include "rail/editor/route_editor.hpp"

#include "core/cards/numbers.hpp"
#include "rail/editor/route_profile.hpp"
#include "rail/editor/segment_window.hpp"
#include "shell/entry/menus.hpp"
#include "shell/entry/scale_form.hpp"

#include <string>

namespace kov {
namespace {

constexpr EntryWindowTraits Traits{"Route Descriptions", "Form 8", 1410, {}, {}};
constexpr int QuestionStyle = 36, WarningStyle = 48;
constexpr std::string_view CoastHint = "Mode of train operation upon reaching minimum speed.";

} // namespace

RouteEditor::RouteEditor(Application& app, Window& window)
    : app_(app), window_(window), data_(app.DataSet), entry_(app, window, Traits) {
    buildRouteControls(window_);
    bindFields();
    for (int index = 0; index < static_cast<int>(overlays_.size()); ++index) {
        bindGrid(index);
    }
    sections_ = std::make_unique<RouteSections>(app_, window_, entry_.flags);
    bindCommands();
    bindEditMenu();
    entry_.bindStandardControls();
    window_.on.resize = [this] {
        ScaleForm(app_, window_);
        redraw();
    };
    window_.on.queryUnload = [this](bool& cancel) {
        cancel = entry_.flags.FormChanged && !entry_.flags.Cancelled && !SaveRoute();
    };
    entry_.closing = [this] { closing(); };
    entry_.loadStep();
    if (routes().Count() == 0) {
        routes().Add(Position{0});
    }
    switchOff();
    LoadRoute();
}

void RouteEditor::bindFields() {
    for (const auto& entry : routeFields()) {
        auto& control = window_.control(entry.field.control);
        bindField(app_, entry_.flags, control, entry.field.hint, entry.field.rule, [this] { redraw(); });
        if (entry.brings < 0) {
            continue;
        }
        control.turnsPage = true;
        control.on.gotFocus = [this, &control, &entry] {
            tabs().current = entry.brings;
            enterField(app_, control, entry.field.hint);
        };
    }
    for (int option = 0; option < 2; ++option) {
        bindHint(app_, window_.control("rbCoastOpt", option), CoastHint);
    }
}

void RouteEditor::bindGrid(int index) {
    const auto& table = routeGrids()[static_cast<std::size_t>(index)];
    auto& control = gridControl(index);
    OverlayRules rules;
    rules.opensOnSelect = false;
    rules.rightWhenStill = true;
    rules.editedOnly = true;
    rules.blankRow = " ";
    rules.newRow = " ";
    rules.deleteRow = [this, index] { onDeleteRow(index); };
    rules.closed = [this] { redraw(); };
    auto& overlay = overlays_.at(static_cast<std::size_t>(index));
    overlay = std::make_unique<GridOverlay>(app_, entry_.flags, control, window_.control("gtext", index), table.columns, rules);
    overlay->bindDummy(window_.control("Dummy1", index));
    control.turnsPage = true;
    control.on.gotFocus = [this, index] { onGridFocus(index); };
}

void RouteEditor::bindCommands() {
    const auto onClick = [this](std::string_view name, void (RouteEditor::*handler)()) {
        window_.control(name).on.click = [this, handler] { (this->*handler)(); };
    };
    onClick("cmdInsert", &RouteEditor::onInsert);
    onClick("cmdCut", &RouteEditor::onCut);
    onClick("cmdCopy", &RouteEditor::onCopy);
    onClick("cmdPaste", &RouteEditor::onPaste);
    onClick("cmdDelete", &RouteEditor::onDelete);
    onClick("SSTab1", &RouteEditor::onTab);
    window_.control("SSTab1").on.lostFocus = [this] {
        window_.control("ME_Order").enabled = false;
        window_.control("ME_Reverse").enabled = false;
    };
    auto& spin = window_.control("Spin1");
    spin.on.spinUp = [this] { onNext(); };
    spin.on.spinDown = [this] { onPrevious(); };
    window_.control("tbRtNo").on.keyDown = [this](int& code, int) {
        if (code == keys::Up) {
            onNext();
        } else if (code == keys::Down) {
            onPrevious();
        }
    };
    window_.control("cmdOkay").on.click = [this] { app_.desk.unload(window_); };
}

void RouteEditor::bindEditMenu() {
    std::vector<EditedGrid> edited;
    edited.reserve(overlays_.size());
    for (int index = 0; index < static_cast<int>(overlays_.size()); ++index) {
        edited.push_back({gridControl(index), window_.control("gtext", index), *overlays_.at(static_cast<std::size_t>(index))});
    }
    bindGridCommands(app_, window_, entry_.flags, std::move(edited));
    window_.control("ME_Cut").on.click = [this] { onMenuCut(); };
    auto& paste = window_.control("ME_Paste");
    paste.on.click = [this, pasted = paste.on.click] {
        if (app_.desk.services().clipboard.text()) {
            entry_.flags.FormChanged = true;
        }
        pasted();
        redraw();
    };
    window_.control("ME_Order").enabled = false;
    window_.control("ME_Reverse").enabled = false;
    window_.control("cmdPaste").enabled = false;
}

void RouteEditor::switchOff() {
    // What the train performance option has no cards for.
    const auto off = [this](RoutePage page, int index) {
        tabs().tabs.at(static_cast<std::size_t>(page)).enabled = false;
        gridControl(index).enabled = false;
    };
    const auto option = data_->TPOpt;
    if (option == 1) {
        off(RoutePage::Performance, PerformanceGrid);
    }
    if (option == 3) {
        off(RoutePage::Alignment, TrackGrid);
    }
    if (option == 2 || option == 3) {
        off(RoutePage::Stops, StopGrid);
        window_.control("tbNpax0").enabled = false;
    }
}

// The route on screen.

void RouteEditor::LoadRoute() {
    app_.desk.setBusy(true);
    const auto show = [this](std::string_view name, std::string_view value) { window_.control(name).setText(value); };
    route_ = routes().Route(Position{RtIndex});
    show("tbRtNo", plainNumber(RtIndex));
    const auto values = route_->GetRoute();
    show("tbRouteID", values.RouteID.trimmed());
    show("tbRtOrigin", values.RtOrigin.trimmed());
    show("tbDelay", values.Delay.trimmed());
    show("tbVcMin", values.VcMin.trimmed());
    show("tbDist0", values.Dist0.trimmed());
    show("tbTType1", plainNumber(values.TType1));
    show("tbNpax0", plainNumber(values.Npax0));
    window_.control("rbCoastOpt", 0).checked = values.CoastOpt == 0;
    window_.control("rbCoastOpt", 1).checked = values.CoastOpt == 1;
    show("tbPatWht", data_->PatWht.trimmed());
    route_->TGroupList(grid(GroupGrid));
    route_->TStopList(grid(StopGrid));
    route_->TPerfList(grid(PerformanceGrid));
    route_->TrackList(grid(TrackGrid));
    auto& chosen = window_.control("RtList").items();
    route_->TSectList(chosen);
    data_->Sections.SectShortList(window_.control("PickList").items(), chosen);
    redraw();
    app_.desk.setBusy(false);
}

bool RouteEditor::SaveRoute() {
    if (trim(box("tbRouteID")).empty()) {
        const auto answer = app_.messages().show(QuestionStyle, "Route Definition",
                                                 "This route has no ID and will be deleted.\r\nOkay to delete the route?");
        if (answer == Answer::No) {
            app_.desk.setFocus(window_.control("tbRouteID"));
            return false;
        }
    }
    if (entry_.flags.FormChanged) {
        entry_.flags.FormChanged = false;
        app_.FileDirty = true;
    }
    app_.desk.setBusy(true);
    storeRoute();
    app_.desk.setBusy(false);
    return true;
}

void RouteEditor::storeRoute() {
    data_->PatWht = trimLeft(plainNumber(fieldValue(box("tbPatWht"))));
    cRoute::Values values;
    values.RouteID = box("tbRouteID");
    values.RtOrigin = box("tbRtOrigin");
    values.Delay = box("tbDelay");
    values.VcMin = box("tbVcMin");
    values.Dist0 = box("tbDist0");
    values.TType1 = fieldInteger(box("tbTType1"));
    values.CoastOpt = window_.control("rbCoastOpt", 0).checked ? 0 : 1;
    values.Npax0 = fieldInteger(box("tbNpax0"));
    route_->SetRoute(values);
    route_->TGroupSave(grid(GroupGrid));
    route_->TStopSave(grid(StopGrid));
    route_->TPerfSave(grid(PerformanceGrid));
    route_->TrackSave(grid(TrackGrid));
    route_->TSectSave(window_.control("RtList").items());
}

void RouteEditor::closing() {
    const Position last{routes().Count()};
    if (routes().Count() > 0 && routes().Route(last)->id().blank()) {
        routes().Delete(last);
    }
}

// From route to route.

void RouteEditor::onPrevious() {
    if (SaveRoute() && RtIndex > 1) {
        --RtIndex;
        LoadRoute();
    }
}

void RouteEditor::onNext() {
    if (!SaveRoute()) {
        return;
    }
    if (RtIndex < routes().Count()) {
        ++RtIndex;
    } else if (!trim(box("tbRouteID")).empty()) {
        routes().Add(Position{0});
        ++RtIndex;
    } else {
        app_.messages().show(WarningStyle, "", "Route ID must be entered before another Route can be created.");
    }
    LoadRoute();
}

void RouteEditor::onInsert() {
    if (SaveRoute()) {
        routes().Add(Position{RtIndex});
        LoadRoute();
        entry_.flags.FormChanged = true;
    }
}

void RouteEditor::onCopy() {
    if (SaveRoute()) {
        routes().Copy(Position{RtIndex});
        window_.control("cmdPaste").enabled = true;
    }
}

void RouteEditor::onCut() {
    if (SaveRoute()) {
        routes().Cut(Position{RtIndex});
        window_.control("cmdPaste").enabled = true;
        afterRemoval();
    }
}

void RouteEditor::onPaste() {
    routes().Paste(Position{RtIndex});
    LoadRoute();
    entry_.flags.FormChanged = true;
}

void RouteEditor::onDelete() {
    routes().Delete(Position{RtIndex});
    afterRemoval();
}

void RouteEditor::afterRemoval() {
    if (routes().Count() < RtIndex) {
        if (RtIndex != 1) {
            --RtIndex;
        } else {
            routes().Add(Position{0});
        }
    }
    LoadRoute();
    entry_.flags.FormChanged = true;
}

// Pages and grids.

void RouteEditor::onTab() {
    static constexpr std::array<std::string_view, 6> First{"tbRtOrigin", "Grid1", "Grid1", "tbNpax0", "Grid1", "tbDist0"};
    static constexpr std::array Index{-1, GroupGrid, TrackGrid, -1, PerformanceGrid, -1};
    const auto page = static_cast<std::size_t>(tabs().current);
    const auto index = Index.at(page);
    app_.desk.setFocus(index < 0 ? window_.control(First.at(page)) : gridControl(index));
    // Leaving the tab strip has switched both entries off already.
    const bool onSections = tabs().current == static_cast<int>(RoutePage::Sections);
    window_.control("ME_Order").enabled = onSections;
    window_.control("ME_Reverse").enabled = onSections;
}

void RouteEditor::onGridFocus(int index) {
    const auto& table = routeGrids()[static_cast<std::size_t>(index)];
    tabs().current = table.page;
    app_.desk.setPanel(1, table.form);
    overlays_.at(static_cast<std::size_t>(index))->showHint();
}

void RouteEditor::onDeleteRow(int index) {
    auto& rows = grid(index);
    if (rows.row() + 1 < rows.rows()) {
        rows.removeItem(rows.row());
        entry_.flags.FormChanged = true;
        redraw();
    }
}

void RouteEditor::onMenuCut() {
    entry_.flags.FormChanged = true;
    if (!segmentGridActive(app_.desk)) {
        app_.desk.sendKeys("^X");
        return;
    }
    for (int index = 0; index < static_cast<int>(overlays_.size()); ++index) {
        if (&gridControl(index) == app_.desk.focus()) {
            app_.desk.services().clipboard.setText(GridRowText(grid(index)));
            grid(index).removeItem(grid(index).row());
            redraw();
        }
    }
}

void RouteEditor::redraw() {
    static const Grid none;
    auto& picture = window_.control("Profile");
    // Stops that the train performance option has no cards for are no part of the route.
    const auto& stops = gridControl(StopGrid).enabled ? grid(StopGrid) : none;
    const auto profile = routeProfileOf(grid(TrackGrid), stops, chartValue(box("tbRtOrigin")));
    showDrawing(picture, drawRouteProfile(profile, picture.bounds.width, picture.bounds.height));
}

} // namespace kov
