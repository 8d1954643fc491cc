#pragma once

#include "rail/editor/route_sections.hpp"
#include "rail/editor/route_tables.hpp"
#include "rail/model/route.hpp"
#include "shell/entry/entry_window.hpp"
#include "shell/entry/grid_overlay.hpp"

#include <array>
#include <memory>
#include <span>

namespace kov {

/// "Route Descriptions", `Route1`: all routes of Form 8, one at a time. The route on screen is copied out of the model when it
/// is shown and written back when it is left.
class RouteEditor {
public:
    RouteEditor(Application& app, Window& window);
    RouteEditor(const RouteEditor&) = delete;
    RouteEditor& operator=(const RouteEditor&) = delete;

    [[nodiscard]] static std::span<const RouteField> fields() { return routeFields(); }
    [[nodiscard]] static std::span<const RouteGrid> grids() { return routeGrids(); }

private:
    void bindFields();
    void bindGrid(int index);
    void bindCommands();
    void bindEditMenu();
    void switchOff();
    void LoadRoute();
    /// True when the route may be left.
    [[nodiscard]] bool SaveRoute();
    void storeRoute();
    void onNext();
    void onPrevious();
    void onInsert();
    void onCopy();
    void onCut();
    void onPaste();
    void onDelete();
    void afterRemoval();
    void onTab();
    void onGridFocus(int index);
    void onDeleteRow(int index);
    void onMenuCut();
    void closing();
    /// Draws the profile anew from what the window shows now.
    void redraw();

    [[nodiscard]] Control& gridControl(int index) { return window_.control("Grid1", index); }
    [[nodiscard]] Grid& grid(int index) { return gridControl(index).grid(); }
    [[nodiscard]] TabPart& tabs() { return window_.control("SSTab1").tabs(); }
    [[nodiscard]] const std::string& box(std::string_view name) { return window_.control(name).text().text; }
    [[nodiscard]] cRoutes& routes() { return data_->Routes; }

    Application& app_;
    Window& window_;
    std::shared_ptr<KOVDataSet> data_; ///< what the window shows stays alive as long as it shows it
    EntryWindow entry_;
    std::array<std::unique_ptr<GridOverlay>, 4> overlays_;
    std::unique_ptr<RouteSections> sections_;
    std::int16_t RtIndex = 1; // counted from 1
    std::shared_ptr<cRoute> route_;
};

/// Makes the controls of the route window and places them.
void buildRouteControls(Window& window);

} // namespace kov
