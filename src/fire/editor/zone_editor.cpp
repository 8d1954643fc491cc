#include "fire/editor/zone_editor.hpp"

#include "core/cards/numbers.hpp"
#include "shell/entry/menus.hpp"

#include <array>
#include <string>

namespace kov {
namespace {

constexpr std::array Fields{
    Field{"tbAMDB", "Dry-bulb", "Deg F", real(40, 100), "Morning rush hour dry bulb temperature: 40 to 100 Deg F", nullptr,
          "Form 11, columns 21-30"},
    Field{"tbAMWB", "Wet-bulb", "Deg F", real(40, 100), "Morning rush hour wet bulb temperature: 40 to dry bulb Deg F", nullptr,
          "Form 11, columns 31-40"},
    // The two evening hints stand crossed over, as engineers know them.
    Field{"tbPMDB", "Dry-bulb", "Deg F", real(40, 100), "Evening rush hour wet bulb temperature: 40 to dry bulb Deg F", nullptr,
          "Form 11, columns 41-50"},
    Field{"tbPMWB", "Wet-bulb", "Deg F", real(40, 100), "Evening rush hour dry bulb temperature: 40 to 100 Deg F", nullptr,
          "Form 11, columns 51-60"},
};

constexpr EntryWindowTraits Traits{"Environmental Control Zones", "Form 11", 1360, {}, {}};
constexpr int Controlled = 1, VentShafts = 3, WarningStyle = 48;

bool anySelected(const ItemList& list) {
    for (int i = 0; i < list.count(); ++i) {
        if (list.selected(i)) {
            return true;
        }
    }
    return false;
}

} // namespace

std::span<const Field> ZoneEditor::fields() { return Fields; }

ZoneEditor::ZoneEditor(Application& app, Window& window) : app_(app), window_(window), entry_(app, window, Traits) {
    build();
    bind();
    entry_.assign = [this] { saveZone(); };
    entry_.closing = [this] { closing(); };
    entry_.loadStep();
    load();
}

void ZoneEditor::bind() {
    const auto onClick = [this](std::string_view name, void (ZoneEditor::*handler)()) {
        window_.control(name).on.click = [this, handler] { (this->*handler)(); };
    };
    for (const auto& field : Fields) {
        bindField(app_, entry_.flags, window_.control(field.control), field.hint, field.rule);
    }
    onClick("cbZoneType", &ZoneEditor::onZoneType);
    onClick("cmdAdd", &ZoneEditor::onAdd);
    onClick("cmdDelItem", &ZoneEditor::onTakeOut);
    onClick("cmdInsert", &ZoneEditor::onInsert);
    onClick("cmdDelete", &ZoneEditor::onDelete);
    auto& spin = window_.control("Spin1");
    spin.on.spinUp = [this] { onNext(); };
    spin.on.spinDown = [this] { onPrevious(); };
    window_.control("tbZoneNo").on.keyDown = [this](int& code, int) {
        if (code == keys::Up) {
            onNext();
        } else if (code == keys::Down) {
            onPrevious();
        }
    };
    window_.control("cmdDone").on.click = [this] { app_.desk.unload(window_); };
    entry_.bindStandardControls();
}

void ZoneEditor::load() {
    auto& data = *app_.DataSet;
    ZSects = {};
    data.Sections.SegZList(ZSects);
    data.Vents.VentZList(ZSects);
    for (std::int16_t zone = 1; zone <= data.ECZones.Count(); ++zone) {
        data.ECZones.Zone(Position{zone})->ZSectStrip(ZSects);
    }
    if (data.ECZones.Count() == 0) {
        data.ECZones.Add(Position{0});
    }
    CurZone = 1;
    showZone();
}

void ZoneEditor::showZone() {
    const auto number = plainNumber(CurZone);
    window_.control("tbZoneNo").setText(number);
    window_.control("lblECZone").caption = "Zone " + number;
    ThisZone = app_.DataSet->ECZones.Zone(Position{CurZone});
    const auto& values = ThisZone->getZone();
    ZoneType = values.type;
    auto& types = window_.control("cbZoneType").items();
    types.setIndex(ZoneType >= 1 && ZoneType <= types.count() ? ZoneType - 1 : -1);
    window_.control("sspnlECTemps").visible = ZoneType == Controlled;
    if (ZoneType == Controlled) {
        window_.control("tbAMDB").setText(values.morningDryBulb.view());
        window_.control("tbAMWB").setText(values.morningWetBulb.view());
        window_.control("tbPMDB").setText(values.eveningDryBulb.view());
        window_.control("tbPMWB").setText(values.eveningWetBulb.view());
    }
    fillPickList();
    ThisZone->ZSectList(zoneList(), ZSects);
}

void ZoneEditor::fillPickList() {
    // A controlled zone takes line segments only, a zone of vent shafts those only, an uncontrolled one both.
    pickList().clear();
    for (const auto& record : ZSects) {
        const bool offered = record->vent ? ZoneType != Controlled : ZoneType != VentShafts;
        if (!record->used && offered) {
            pickList().addItem(record->sid);
        }
    }
}

bool ZoneEditor::holdsItsZone() const {
    const auto& zones = app_.DataSet->ECZones;
    return CurZone <= zones.Count() && zones.Zone(Position{CurZone}) == ThisZone;
}

void ZoneEditor::saveZone() {
    if (entry_.flags.FormChanged) {
        entry_.flags.FormChanged = false;
        app_.FileDirty = true;
    }
    ZoneValues values;
    values.type = static_cast<std::int16_t>(window_.control("cbZoneType").items().index() + 1);
    if (values.type == Controlled) {
        values.morningDryBulb = window_.control("tbAMDB").text().text;
        values.morningWetBulb = window_.control("tbAMWB").text().text;
        values.eveningDryBulb = window_.control("tbPMDB").text().text;
        values.eveningWetBulb = window_.control("tbPMWB").text().text;
    }
    ThisZone->setZone(values);
    ThisZone->ZSectSave(zoneList());
}

Zsect& ZoneEditor::recordOf(const std::string& entry) { return ZSects.at(plainNumber(fieldValue(entry))); }

// What a person does.

void ZoneEditor::onZoneType() {
    const int index = window_.control("cbZoneType").items().index();
    window_.control("sspnlECTemps").visible = index == 0;
    entry_.flags.FormChanged = true;
    if (index + 1 != ZoneType) {
        ZoneType = index + 1;
        fillPickList();
    }
}

void ZoneEditor::onAdd() {
    if (!anySelected(pickList())) {
        app_.messages().show(0, "", "No Items are Selected in the Pick From List");
        return;
    }
    entry_.flags.FormChanged = true;
    for (int i = 0; i < pickList().count();) {
        if (!pickList().selected(i)) {
            ++i;
            continue;
        }
        const std::string entry = pickList().item(i);
        zoneList().addItem(entry);
        pickList().removeItem(i);
        recordOf(entry).used = true;
    }
}

void ZoneEditor::onTakeOut() {
    entry_.flags.FormChanged = true;
    if (!anySelected(zoneList())) {
        app_.messages().show(0, "", "No Items are Selected in the Route List");
        return;
    }
    for (int i = zoneList().count() - 1; i >= 0; --i) {
        if (zoneList().selected(i)) {
            recordOf(zoneList().item(i)).used = false;
            zoneList().removeItem(i);
        }
    }
    fillPickList();
}

void ZoneEditor::onNext() {
    saveZone();
    if (!holdsItsZone()) {
        load();
        return;
    }
    auto& zones = app_.DataSet->ECZones;
    if (CurZone < zones.Count()) {
        ++CurZone;
    } else if (zoneList().count() > 0) {
        zones.Add(Position{0});
        ++CurZone;
    } else {
        app_.messages().show(WarningStyle, "", "Zone segments must be entered before another zone can be created.");
    }
    showZone();
}

void ZoneEditor::onPrevious() {
    saveZone();
    if (!holdsItsZone()) {
        load();
        return;
    }
    if (CurZone > 1) {
        --CurZone;
    }
    showZone();
}

void ZoneEditor::onInsert() {
    saveZone();
    if (!holdsItsZone()) {
        load();
        return;
    }
    app_.DataSet->ECZones.Add(Position{CurZone});
    showZone();
    entry_.flags.FormChanged = true;
}

void ZoneEditor::onDelete() {
    if (!holdsItsZone()) {
        load();
        return;
    }
    for (int i = 0; i < zoneList().count(); ++i) {
        recordOf(zoneList().item(i)).used = false;
    }
    auto& zones = app_.DataSet->ECZones;
    zones.Delete(Position{CurZone});
    if (zones.Count() < CurZone) {
        if (CurZone != 1) {
            --CurZone;
        } else {
            zones.Add(Position{0});
        }
    }
    showZone();
    entry_.flags.FormChanged = true;
}

void ZoneEditor::closing() {
    if (entry_.flags.FormChanged) {
        app_.FileDirty = true;
    }
    auto& zones = app_.DataSet->ECZones;
    const Position last{zones.Count()};
    if (zones.Count() >= 2 && zones.Zone(last)->NSegs() == 0) {
        zones.Delete(last);
    }
}

} // namespace kov
