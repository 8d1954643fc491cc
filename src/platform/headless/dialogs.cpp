#include "platform/headless/dialogs.hpp"

#include <algorithm>
#include <utility>

namespace kov {
namespace {

std::string nameOf(DialogKind kind) {
    switch (kind) {
    case DialogKind::Open:
        return "open";
    case DialogKind::Save:
        return "save";
    case DialogKind::Font:
        return "font";
    case DialogKind::Print:
        break;
    }
    return "print";
}

} // namespace

bool HeadlessDialogs::fits(Serves serves, DialogKind kind) {
    switch (serves) {
    case Serves::Files:
        return kind == DialogKind::Open || kind == DialogKind::Save;
    case Serves::Font:
        return kind == DialogKind::Font;
    case Serves::Print:
        return kind == DialogKind::Print;
    case Serves::Any:
        break;
    }
    return true;
}

DialogResult HeadlessDialogs::show(const DialogRequest& request) {
    requests_.push_back(request);
    const auto entry =
        std::find_if(queue_.begin(), queue_.end(), [&](const Entry& queued) { return fits(queued.serves, request.kind); });
    if (entry == queue_.end()) {
        complaints_.push_back("nothing is queued for the " + nameOf(request.kind) + " dialog");
        DialogResult cancelled;
        cancelled.error = DialogCancelled;
        return cancelled;
    }
    auto result = std::move(entry->result);
    queue_.erase(entry);
    return result;
}

void HeadlessDialogs::queueFile(const std::string& path) {
    DialogResult result;
    result.fileName = path;
    const auto separator = path.find_last_of("/\\");
    result.fileTitle = path.substr(separator == std::string::npos ? 0 : separator + 1);
    queue_.push_back({Serves::Files, std::move(result)});
}

void HeadlessDialogs::queueFont(const std::string& name, double size) {
    DialogResult result;
    result.fontName = name;
    result.fontSize = size;
    queue_.push_back({Serves::Font, std::move(result)});
}

void HeadlessDialogs::queuePrint() { queue_.push_back({Serves::Print, {}}); }

void HeadlessDialogs::queueError(int number) {
    DialogResult result;
    result.error = number;
    queue_.push_back({Serves::Any, std::move(result)});
}

std::vector<std::string> HeadlessDialogs::takeComplaints() { return std::exchange(complaints_, {}); }

} // namespace kov
