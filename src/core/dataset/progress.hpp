#pragma once

#include "core/cards/sinks.hpp"

#include <cstdint>

namespace kov {

/// A progress display that nobody sees, for tools and tests.
class NoProgress final : public ProgressSink {
public:
    void setBusy(bool /*busy*/) override {}
    void setVisible(bool /*visible*/) override {}
    void setMax(std::int32_t /*max*/) override {}
    void setValue(std::int32_t /*value*/) override {}
};

/// The busy pointer and the progress bar while a card file passes: the bar starts at 10 and grows by what each Form weighs.
class FileProgress {
public:
    explicit FileProgress(ProgressSink& sink) : sink_(sink) {}
    void setBusy(bool busy) { sink_.setBusy(busy); }
    void show() {
        sink_.setVisible(true);
        sink_.setValue(value_);
    }
    void hide() { sink_.setVisible(false); }
    void setMax(std::int32_t max) { sink_.setMax(max); }
    void grow(std::int32_t weight) {
        value_ += weight;
        sink_.setValue(value_);
    }

private:
    ProgressSink& sink_;
    std::int32_t value_ = 10;
};

} // namespace kov
