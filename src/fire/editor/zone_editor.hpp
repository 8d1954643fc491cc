#pragma once

#include "core/cards/network.hpp"
#include "fire/model/zone.hpp"
#include "shell/entry/entry_window.hpp"
#include "shell/entry/field.hpp"

#include <memory>
#include <span>

namespace kov {

/// "Environmental Control Zones", `ECZones`: one zone of Form 11 at a time, and the line segments and vent shafts that no zone
/// has taken yet.
class ZoneEditor {
public:
    ZoneEditor(Application& app, Window& window);
    ZoneEditor(const ZoneEditor&) = delete;
    ZoneEditor& operator=(const ZoneEditor&) = delete;

    /// The design temperatures, morning then evening, dry bulb then wet bulb.
    [[nodiscard]] static std::span<const Field> fields();

private:
    void build();
    void bind();
    void load();
    void showZone();
    void saveZone();
    /// False when another data set has come since the zone was shown: the window then begins anew with what is there.
    [[nodiscard]] bool holdsItsZone() const;
    void fillPickList();
    void onZoneType();
    void onAdd();
    void onTakeOut();
    void onNext();
    void onPrevious();
    void onInsert();
    void onDelete();
    void closing();
    [[nodiscard]] ItemList& pickList() { return window_.control("PickList").items(); }
    [[nodiscard]] ItemList& zoneList() { return window_.control("ZList").items(); }
    [[nodiscard]] Zsect& recordOf(const std::string& entry);

    Application& app_;
    Window& window_;
    EntryWindow entry_;
    ZsectList ZSects;
    std::int16_t CurZone = 1; // counted from 1
    std::shared_ptr<cECZone> ThisZone;
    int ZoneType = 1;
};

} // namespace kov
