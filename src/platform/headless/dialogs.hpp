#pragma once

#include "platform/services.hpp"

#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace kov {

/// Common dialogs that a queue serves: each takes the first entry that fits its kind. A dialog that nothing is queued for is a
/// complaint and is cancelled.
class HeadlessDialogs final : public Dialogs {
public:
    DialogResult show(const DialogRequest& request) override;

    /// For the next open or save dialog. The path is a full one.
    void queueFile(const std::string& path);
    void queueFont(const std::string& name, double size);
    void queuePrint();
    /// For the next dialog of any kind; `DialogCancelled` is a cancel.
    void queueError(int number);

    /// What the program asked for, the oldest first.
    [[nodiscard]] const std::vector<DialogRequest>& requests() const { return requests_; }
    [[nodiscard]] std::vector<std::string> takeComplaints();

private:
    enum class Serves : std::uint8_t { Files, Font, Print, Any };
    struct Entry {
        Serves serves = Serves::Any;
        DialogResult result;
    };
    [[nodiscard]] static bool fits(Serves serves, DialogKind kind);

    std::deque<Entry> queue_;
    std::vector<DialogRequest> requests_;
    std::vector<std::string> complaints_;
};

} // namespace kov
