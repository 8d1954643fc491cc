#include "line/editor/segment_general.hpp"

#include "core/cards/numbers.hpp"
#include "line/editor/segment_types.hpp"

#include <array>
#include <string>

namespace kov {
namespace {

constexpr int GeneralPage = 0, WallTypeCount = WallTypes::Highest, NoIcon = 0;
constexpr std::int32_t FireFocusColor = 16776960, FireColor = 12632256;

constexpr std::array Fields{
    Field{"tbsegtitle", "Title", "", text(), "Segment Description", nullptr, "Form 3, 21-70"},
    Field{"tbsegtype", "Type", "", integer(1, 16), "Segment Type: 1 - 16; (9-14 for impulse fans ... see Help)", nullptr,
          "Form 3, 11-20"},
    Field{"cbfire", "Fire Segment", "", checkBox(), "Check this box if this segment is included in fire analysis", nullptr,
          "Form 3, card 2, 31-40"},
    Field{"tbSLen", "Segment Length ", "ft", real(10, 100000), "Length:  10. to 100,000 ft", nullptr, "Form 3, card 2, 1-10"},
    // Its limits are the length in the box beside it, to both sides.
    Field{"tbHeight", "Stack Height ", "ft", real(0, 0), "Stack Height:  < Segment Length (ft)", nullptr,
          "Form 3, card 2, 21-30"},
    Field{"tbXArea", "Cross-Sect Area ", "sqft", real(75, 10000), "Area of Cross-section: 75 to 10,000 SqFt", nullptr,
          "Form 3, card 2, 11-20"},
    Field{"tbWWS", "Wetted Surface ", "%", real(0, 100), "Percent of Wall Surface constantly Wet: 0 to 100%", nullptr,
          "Form 3C, 41-50"},
    Field{"tbPerim", "Perimeter (ft)", "ft", real(0.05, 1000),
          "Segment Perimeter (portion):  < 1000. Ft  (Total of all segments must be > 30 Ft)", nullptr, "Form 3B, line 1"},
    Field{"tbrough", "Roughness (ft)", "ft", real(0, 5), "Segment Roughness (portion):  0. to 5. Ft", nullptr,
          "Form 3B, line 2"},
    Field{"tbHLFP", "Positive Flow", "", real(0, 1000), "Segment Head Loss for Positive Flow at Forward Limit: 0. to 1000.",
          nullptr, "Form 3C, 1-10"},
    Field{"tbHLFN", "Reverse Flow", "", real(0, 1000), "Segment Head Loss for Negative Flow at Forward Limit: 0. to 1000.",
          nullptr, "Form 3C, 11-20"},
    Field{"tbHLBP", "Positive Flow", "", real(0, 1000), "Segment Head Loss for Positive Flow at Backward Limit: 0. to 1000.",
          nullptr, "Form 3C, 21-30"},
    Field{"tbHLBN", "Reverse Flow", "", real(0, 1000), "Segment Head Loss for Negative Flow at Backward Limit: 0. to 1000.",
          nullptr, "Form 3C, 31-40"},
};

struct Kept {
    std::string_view control;
    Fixed<10> cSegment::*member;
};
constexpr std::array Reals{Kept{"tbSLen", &cSegment::sLen},   Kept{"tbHeight", &cSegment::Height},
                           Kept{"tbXArea", &cSegment::XArea}, Kept{"tbWWS", &cSegment::WWS},
                           Kept{"tbHLFP", &cSegment::HLFP},   Kept{"tbHLFN", &cSegment::HLFN},
                           Kept{"tbHLBP", &cSegment::HLBP},   Kept{"tbHLBN", &cSegment::HLBN}};

const Field& fieldOf(std::string_view control) {
    for (const auto& field : Fields) {
        if (field.control == control) {
            return field;
        }
    }
    throw std::out_of_range("no field " + std::string(control));
}

} // namespace

std::span<const Field> SegmentGeneral::fields() { return Fields; }

SegmentGeneral::SegmentGeneral(Window& window, SegmentEditing& editing)
    : window_(window), editing_(editing), type_(window.control("tbsegtype")) {
    editing_.bind(box("tbsegtitle"), fieldOf("tbsegtitle"));
    for (const auto& real : Reals) {
        editing_.bind(box(real.control), fieldOf(real.control));
    }
    box("tbHeight").on.lostFocus = [this] {
        const double length = fieldValue(box("tbSLen").text().text);
        editing_.leave(box("tbHeight"), real(-length, length));
    };
    wireType(fieldOf("tbsegtype"));
    wireFire(fieldOf("cbfire"));
    wirePerimeters(fieldOf("tbPerim"));
    for (int i = 0; i < WallTypeCount; ++i) {
        editing_.bind(window_.control("tbrough", i), fieldOf("tbrough"));
    }
}

void SegmentGeneral::wireType(const Field& field) {
    for (const auto item : SegmentTypes) {
        type_.items().addItem(item);
    }
    bindHint(editing_.app, type_, field.hint);
    // What is typed is no entry of the list, even where it reads like one; an entry that was chosen has its own text.
    type_.on.change = [this] {
        const int chosen = type_.items().index();
        if (chosen >= 0 && type_.items().item(chosen) != type_.text().text) {
            type_.items().setIndex(-1);
        }
    };
    type_.on.lostFocus = [this] {
        editing_.app.desk.setPanel(2, "");
        editing_.dataChanged = true;
    };
}

void SegmentGeneral::wireFire(const Field& field) {
    auto& fire = box("cbfire");
    fire.backColor = FireColor;
    fire.on.gotFocus = [this, &fire, hint = field.hint] {
        editing_.app.desk.setPanel(2, hint);
        fire.backColor = FireFocusColor;
    };
    fire.on.lostFocus = [this, &fire] {
        editing_.app.desk.setPanel(2, "");
        fire.backColor = FireColor;
    };
    fire.on.click = [this] { editing_.dataChanged = true; };
}

void SegmentGeneral::wirePerimeters(const Field& field) {
    for (int i = 0; i < WallTypeCount; ++i) {
        auto& perimeter = window_.control("tbPerim", i);
        editing_.bind(perimeter, field);
        perimeter.on.lostFocus = [this, &perimeter, rule = field.rule] {
            const bool lastPairReached = !editing_.flags.FieldChanged && trim(perimeter.text().text).empty();
            editing_.leave(perimeter, rule);
            if (lastPairReached) {
                editing_.app.desk.setFocus(box("tbHLFP"));
            }
        };
    }
}

// Between the controls and the segment.

void SegmentGeneral::show(const cSegment& segment) {
    window_.control("lblsegid").caption = plainNumber(segment.id);
    box("tbsegtitle").setText(segment.Title.trimmed());
    for (const auto& real : Reals) {
        box(real.control).setText((segment.*real.member).trimmed());
    }
    for (int i = 0; i < WallTypeCount; ++i) {
        window_.control("tbPerim", i).setText(segment.Perim[i + 1].trimmed());
        window_.control("tbrough", i).setText(segment.Rough[i + 1].trimmed());
    }
    showType(segment.sType);
    box("cbfire").checked = segment.Fire != 0;
}

void SegmentGeneral::showType(int type) {
    const int entry = entryOfType(type);
    type_.items().setIndex(entry);
    type_.setText(entry >= 0 ? std::string(type_.items().item(entry)) : plainNumber(type) + " Undefined Tunnel Segment");
    type_.tag = plainNumber(type); // the last good type
}

void SegmentGeneral::rememberType() {
    const int entry = type_.items().index();
    const double type = entry >= 0 ? typeOfEntry(entry) : fieldValue(type_.text().text);
    if (type >= 1 && type <= HighestSegmentType) {
        type_.tag = plainNumber(type);
        return;
    }
    editing_.app.messages().show(NoIcon, "", "Invalid Segment Type\rSelect from the list\ror enter a number between 1 and 16");
    window_.control("SSTab1").tabs().current = GeneralPage;
    editing_.app.desk.setFocus(type_);
}

void SegmentGeneral::save(cSegment& segment) {
    rememberType();
    segment.sType = fieldInteger(type_.tag);
    segment.Title = box("tbsegtitle").text().text;
    for (const auto& real : Reals) {
        segment.*real.member = box(real.control).text().text;
    }
    segment.Fire = box("cbfire").checked ? 1 : 0;
    for (int i = 0; i < WallTypeCount; ++i) {
        segment.Perim[i + 1] = window_.control("tbPerim", i).text().text;
        segment.Rough[i + 1] = window_.control("tbrough", i).text().text;
    }
}

} // namespace kov
