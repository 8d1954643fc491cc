#include "platform/headless/messages.hpp"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>
#include <utility>

namespace kov {
namespace {

constexpr int ButtonBits = 7;

/// The buttons of a style. Abort, Retry and Ignore are no answers of ours.
std::span<const Answer> buttonsOf(int style) {
    static constexpr std::array Ok{Answer::Ok};
    static constexpr std::array OkCancel{Answer::Ok, Answer::Cancel};
    static constexpr std::array YesNoCancel{Answer::Yes, Answer::No, Answer::Cancel};
    static constexpr std::array YesNo{Answer::Yes, Answer::No};
    switch (style & ButtonBits) {
    case 0:
        return Ok;
    case 1:
        return OkCancel;
    case 3:
        return YesNoCancel;
    default:
        return YesNo;
    }
}

bool offers(int style, Answer answer) {
    const auto buttons = buttonsOf(style);
    return std::find(buttons.begin(), buttons.end(), answer) != buttons.end();
}

std::string_view nameOf(Answer answer) {
    switch (answer) {
    case Answer::Ok:
        return "OK";
    case Answer::Cancel:
        return "Cancel";
    case Answer::Yes:
        return "Yes";
    case Answer::No:
        break;
    }
    return "No";
}

} // namespace

Answer HeadlessMessages::answerTo(const Box& box) {
    if ((box.style & ButtonBits) == 0) {
        return Answer::Ok;
    }
    const auto fallback = offers(box.style, Answer::Cancel) ? Answer::Cancel : Answer::No;
    if (answers_.empty()) {
        complaints_.push_back({"no answer is queued for", box});
        return fallback;
    }
    const auto answer = answers_.front();
    answers_.pop_front();
    if (!offers(box.style, answer)) {
        complaints_.push_back({"the queued answer " + std::string(nameOf(answer)) + " is not offered by", box});
        return fallback;
    }
    return answer;
}

Answer HeadlessMessages::show(int style, const std::string& title, const std::string& prompt) {
    Box box{style, title, prompt};
    box.answer = answerTo(box);
    boxes_.push_back(box);
    return box.answer;
}

std::vector<HeadlessMessages::Complaint> HeadlessMessages::takeComplaints() { return std::exchange(complaints_, {}); }

} // namespace kov
