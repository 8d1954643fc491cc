#include "core/cards/entry_check.hpp"

#include "core/cards/fixed.hpp"
#include "core/cards/numbers.hpp"

#include <cmath>
#include <limits>

namespace kov {
namespace {

constexpr int OkBox = 48;    // exclamation icon, OK
constexpr int YesNoBox = 52; // exclamation icon, Yes and No

/// Tells that the text isn't a number.
void refuseText(const std::string& text, MessageSink& messages) {
    messages.show(OkBox, "Invalid entry", text + "\nis not numeric");
}

/// Asks whether the person wants to correct the value; No keeps it although it is out of range.
bool wantsAnotherTry(const std::string& low, const std::string& high, MessageSink& messages) {
    return messages.show(YesNoBox, "Invalid Entry", "Allowable Range:\n" + low + " to" + high + "\nTry again?") == Answer::Yes;
}

/// Single precision; what is too large for it is infinite.
float single(double value) {
    if (std::abs(value) > static_cast<double>(std::numeric_limits<float>::max())) {
        return std::copysign(std::numeric_limits<float>::infinity(), value < 0 ? -1.0F : 1.0F);
    }
    return static_cast<float>(value);
}

/// `round` decides how many bits the number may have.
bool checkWhole(std::string& text, std::int32_t low, std::int32_t high, MessageSink& messages, std::int32_t (*round)(double)) {
    if (trim(text).empty()) {
        return false;
    }
    if (!isNumeric(text)) {
        refuseText(text, messages);
        return true;
    }
    const double entered = fieldValue(text);
    const std::int32_t rounded = round(entered);
    bool refused = false;
    if (rounded < low || rounded > high) {
        refused = wantsAnotherTry(plainNumber(low), plainNumber(high), messages);
    } else if (entered != rounded) {
        messages.show(OkBox, "Invalid Entry", "Integer Value Required");
        refused = true;
    }
    text = bareNumber(rounded);
    return refused;
}

} // namespace

bool CheckReal(std::string& text, double low, double high, MessageSink& messages) {
    if (trim(text).empty()) {
        return false;
    }
    if (!isNumeric(text)) {
        refuseText(text, messages);
        return true;
    }
    const float value = single(fieldValue(text));
    if (value < single(low) || value > single(high)) {
        return wantsAnotherTry(plainNumber(low), plainNumber(high), messages);
    }
    if (text.find('.') == std::string::npos) {
        text.resize(trimRight(text).size());
        text += '.';
    }
    return false;
}

bool CheckInt(std::string& text, std::int32_t low, std::int32_t high, MessageSink& messages) {
    return checkWhole(text, low, high, messages, [](double value) { return std::int32_t{toInt16(value)}; });
}

bool CheckLong(std::string& text, std::int32_t low, std::int32_t high, MessageSink& messages) {
    return checkWhole(text, low, high, messages, toInt32);
}

} // namespace kov
