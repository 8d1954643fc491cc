// A stand-in for the simulation: it reads the input file with the program's own reader, writes the two output files and exits
// as the simulation does. It computes nothing.
//
// KOV_STANDIN="CODE MILLISECONDS" makes it exit with that code after that delay.

#include "core/dataset/dataset.hpp"
#include "core/dataset/progress.hpp"

#include <charconv>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>
#include <string>
#include <thread>

namespace {

constexpr int VerificationOnly = 99, Completed = 100, NoInputFile = 101, NoTemporaryFile = 102, NoListing = 106,
              WrongUsage = 200;

/// Tells what the reader could not read, instead of asking anybody.
class Findings final : public kov::MessageSink {
public:
    kov::Answer show(int, const std::string&, const std::string& prompt) override {
        text += prompt + "\n";
        return kov::Answer::Ok;
    }
    std::string text;
};

/// "Form 2A" is 2.
int formNumber(const std::string& form) {
    int number = 0;
    const auto digits = form.find_first_of("0123456789");
    if (digits != std::string::npos) {
        std::from_chars(form.data() + digits, form.data() + form.size(), number);
    }
    return number;
}

/// P with its three-letter extension replaced, or with the extension added.
std::string outputName(const std::string& input, const std::string& extension) {
    const bool threeLetters = input.size() >= 4 && input[input.size() - 4] == '.';
    return (threeLetters ? input.substr(0, input.size() - 4) : input) + extension;
}

std::string report(const kov::KOVDataSet& data, const Findings& findings, bool readable) {
    const auto counts = data.getCounts();
    std::ostringstream text;
    text << "Stand-in for the simulation: nothing was computed.\n\n"
         << data.Sysid.trimmed() << "\n"
         << data.Title() << "\n\n"
         << "Line sections   " << counts.sections << "\nLine segments   " << counts.segments << "\nVent sections   "
         << counts.vents << "\nNodes           " << counts.nodes << "\nFires           " << counts.fires << "\nFans            "
         << counts.fans << "\nImpulse fans    " << counts.impulseFans << "\nRoutes          " << counts.routes
         << "\nTrain types     " << counts.trains << "\nInitial trains  " << counts.initialTrains << "\nEC zones        "
         << counts.zones << "\n\n"
         << (readable ? "Input verification successful\n" : findings.text);
    return text.str();
}

/// The exit code that the surroundings ask for, after its delay.
bool forced(int& code) {
    const char* wish = std::getenv("KOV_STANDIN");
    int milliseconds = 0;
    if (wish == nullptr || !(std::istringstream(wish) >> code)) {
        return false;
    }
    std::istringstream words(wish);
    words >> code >> milliseconds;
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
    return true;
}

int simulate(const std::string& input) {
    std::ifstream file(input, std::ios::binary);
    if (!file) {
        return NoInputFile;
    }
    const std::string content((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    kov::KOVDataSet data;
    kov::CardReader reader(content);
    kov::NoProgress silent;
    Findings findings;
    const bool readable = data.ReadFile(reader, silent, findings, input);
    const auto text = report(data, findings, readable);
    std::ofstream temporary(outputName(input, ".tmp"), std::ios::binary);
    if (!(temporary << text)) {
        return NoTemporaryFile;
    }
    std::ofstream listing(outputName(input, ".prn"), std::ios::binary);
    if (!(listing << text)) {
        return NoListing;
    }
    int code = 0;
    if (forced(code)) {
        return code;
    }
    if (!readable) {
        return formNumber(data.CurForm);
    }
    return data.InErr == -1 ? VerificationOnly : Completed;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: kov41 INPUT\nA stand-in for the simulation, for tests.\n";
        return WrongUsage;
    }
    return simulate(argv[1]);
}
