#pragma once

#include "core/cards/sinks.hpp"

#include <deque>
#include <string>
#include <vector>

namespace kov {

/// Message boxes that a queue of answers serves. A box with only an OK button needs no answer; one with several buttons and no
/// answer, or an answer that it doesn't offer, is a complaint and is answered Cancel where that is offered, else No.
class HeadlessMessages final : public MessageSink {
public:
    struct Box {
        int style = 0;
        std::string title;
        std::string prompt;
        Answer answer = Answer::Ok;
    };

    /// A box that the queue didn't serve, and why.
    struct Complaint {
        std::string reason;
        Box box;
    };

    Answer show(int style, const std::string& title, const std::string& prompt) override;

    void queue(Answer answer) { answers_.push_back(answer); }
    /// All boxes so far, the oldest first.
    [[nodiscard]] const std::vector<Box>& boxes() const { return boxes_; }
    /// What was wrong with the queue since this was asked the last time.
    [[nodiscard]] std::vector<Complaint> takeComplaints();

private:
    [[nodiscard]] Answer answerTo(const Box& box);

    std::deque<Answer> answers_;
    std::vector<Box> boxes_;
    std::vector<Complaint> complaints_;
};

} // namespace kov
