#pragma once

#include "core/cards/card_io.hpp"
#include "core/cards/fixed.hpp"
#include "core/cards/network.hpp"
#include "core/cards/sinks.hpp"
#include "core/dataset/print_group.hpp"
#include "core/dataset/title.hpp"
#include "fire/model/fires.hpp"
#include "fire/model/zones.hpp"
#include "line/model/sections.hpp"
#include "rail/model/initial_trains.hpp"
#include "rail/model/routes.hpp"
#include "rail/model/trains.hpp"
#include "vent/model/fans.hpp"
#include "vent/model/nodes.hpp"
#include "vent/model/vents.hpp"

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace kov {

class FileProgress;

/// The counts of Forms 1D and 1E as they stood on the cards, or as the writer last computed them. The reader goes by them; once
/// the engineer edits the network they may be stale, and the collections are the truth.
struct CardCounts {
    std::int16_t NLS = 0;         ///< Form 1D field 1: line segments
    std::int16_t NSections = 1;   ///< Form 1D field 2: line and vent sections together
    std::int16_t NVSec = 0;       ///< Form 1D field 3: vent sections
    std::int16_t NNodes = 2;      ///< Form 1D field 4: nodes
    std::int16_t NBrNodes = 0;    ///< Form 1D field 5: branch nodes
    std::int16_t NFires = 0;      ///< Form 1D field 7: fires
    std::int16_t NFans = 0;       ///< Form 1D field 8: fan types
    std::int16_t NLSections = 0;  ///< line sections: `NSections` less `NVSec`
    std::int16_t NRoutes = 0;     ///< Form 1E field 1: routes
    std::int16_t NTrainTypes = 0; ///< Form 1E field 2: train types
    std::int16_t NZones = 0;      ///< Form 1E field 3: environmental control zones
    std::int16_t NITrains = 0;    ///< Form 1E field 5: initial trains
    std::int16_t NIFans = 0;      ///< Form 1E field 6: impulse fans
    friend bool operator==(const CardCounts&, const CardCounts&) = default;
};

/// How many of each thing the data set holds now; those of an option that is switched off count as none.
struct DataCounts {
    std::int32_t segments = 0;
    std::int16_t sections = 0;
    std::int16_t vents = 0;
    std::int16_t nodes = 0;
    std::int16_t fires = 0;
    std::int16_t fans = 0;
    std::int16_t impulseFans = 0;
    std::int16_t routes = 0;        ///< 0 unless `TPOpt` is at least 1
    std::int16_t trains = 0;        ///< 0 unless `TPOpt` is at least 1
    std::int16_t zones = 0;         ///< 0 unless `ECLOpt` is at least 1
    std::int16_t initialTrains = 0; ///< 0 unless `TPOpt` is at least 1
};

/// Everything that one input file holds: the general data of Forms 1A to 1G, 12 and 13, the print control groups and the nine
/// collections of the network. Reals are the ten columns that the card or the engineer wrote.
class KOVDataSet {
public:
    static constexpr std::int32_t MostPGroups = 25;

    // Form 1A
    Fixed<80> Sysid; ///< line 1: system identification

    // Form 1B
    Fixed<10> DgnHr = "12.";   ///< field 1: design hour, minutes as fraction
    Fixed<10> DgnMon = "7.";   ///< field 2: design month
    Fixed<10> DgnYr = "1997."; ///< field 3: design year

    // Form 1C
    std::int16_t TPOpt = 0;  ///< field 1: train performance option; 0 leaves out routes, trains and initial trains
    std::int16_t THOpt = 0;  ///< field 2: temperature/humidity option
    std::int16_t HDOpt = 1;  ///< field 3: humidity display option
    std::int16_t ECLOpt = 0; ///< field 4: environmental control load option; 0 leaves out Form 11
    std::int16_t HSOpt = 0;  ///< field 5: heat sink summary option
    std::int16_t SupOpt = 0; ///< field 6: supplemental output option
    std::int16_t SimErr = 0; ///< field 7: allowable simulation errors
    std::int16_t InErr = 0;  ///< field 8: allowable input errors; -1 means input verification only

    // Form 1E
    std::int16_t FanOpt = 2;   ///< field 4: fan option
    std::int16_t RstWrite = 0; ///< field 7: restart output type
    std::int16_t RstRead = 0;  ///< field 8: restart input type; above 0 the restart file's name stands behind Form 13

    // Form 1F
    Fixed<10> TDBAmb = "0.";  ///< field 1: design hour ambient dry bulb, Deg F
    Fixed<10> TWBAmb = "0.";  ///< field 2: design hour ambient wet bulb, Deg F
    Fixed<10> PAmb = "0.";    ///< field 3: barometric pressure, in. Hg
    Fixed<10> TAmbA = "0.";   ///< field 4: morning ambient dry bulb, Deg F
    Fixed<10> TWAmbA = "0.";  ///< field 5: morning ambient wet bulb, Deg F
    Fixed<10> TAmbM = "0.";   ///< field 6: evening ambient dry bulb, Deg F
    Fixed<10> TWAmbE = "0.";  ///< field 7: evening ambient wet bulb, Deg F
    Fixed<10> TAnnAmp = "0."; ///< field 8: amplitude of annual temperature fluctuation, F Deg

    // Form 1G
    Fixed<10> PatWht = "100."; ///< field 1: average weight of a passenger, lb
    Fixed<10> EFSux = "0.";    ///< field 2: stopped-train auxiliaries and passengers heat captured by the exhaust system, %
    Fixed<10> EFMux = "0.";    ///< field 3: moving-train auxiliaries and passengers heat captured, %
    Fixed<10> EFASux = "0.";   ///< field 4: stopped-train propulsion and braking heat captured, %
    Fixed<10> EFAMux = "0.";   ///< field 5: moving-train propulsion and braking heat captured, %
    Fixed<10> UMaxUx = "0.";   ///< field 6: maximum train speed at which the trackway exhaust system operates, MPH
    std::int16_t FireOpt = 0;  ///< field 7: fire simulation option
    Fixed<10> EECPG = "0.";    ///< field 8: effective emissivity used by fires

    // Form 12
    Fixed<10> TempTabInc = "10."; ///< field 1: temperature tabulation increment, Deg F

    // Form 13
    Fixed<10> DeltaT = "10."; ///< field 1: time increment, 1/100ths of a second
    Fixed<10> TMax = "120.";  ///< field 2: length of simulation, seconds
    std::int16_t NCTrain = 5; ///< field 3: cycles per complete train evaluation
    std::int16_t NCWall = 5;  ///< field 4: thermodynamic cycles per complete wall evaluation
    Fixed<260> RstFileName;   ///< the line behind the card: name of the restart input file

    cSections Sections;     ///< line sections and segments, Forms 2A and 3
    cVents Vents;           ///< vent sections and shafts, Forms 2B and 5
    cFires Fires;           ///< fires, Form 4
    cNodes Nodes;           ///< nodes, Form 6
    cFans Fans;             ///< fan types and impulse fans, Form 7
    cRoutes Routes;         ///< routes, Form 8
    cTrains Trains;         ///< train types, Form 9
    cInitTrains InitTrains; ///< trains present at the start, Form 10
    cECZones ECZones;       ///< environmental control zones, Form 11

    /// The name of the Form being read or last read: "Form 3".
    std::string CurForm;
    /// The line end of the file that was read, "\n" or "\r\n"; empty when nothing was read or no line had an end.
    std::string lineEnd;

    /// The run description as one text with CR LF between its lines (see `splitTitle` and `joinTitle`).
    [[nodiscard]] std::string Title() const { return joinTitle(title_); }
    void setTitle(std::string_view text) { title_ = splitTitle(text); }
    [[nodiscard]] const TitleLines& titleLines() const { return title_; }

    [[nodiscard]] std::int16_t NLS() const { return counts_.NLS; }
    [[nodiscard]] std::int16_t NVSec() const { return counts_.NVSec; }
    [[nodiscard]] std::int16_t NFans() const { return counts_.NFans; }
    [[nodiscard]] std::int16_t NPGroups() const { return npGroups_; }
    /// The line sections that there are, whatever the cards said.
    [[nodiscard]] std::int16_t NLSec() const;
    [[nodiscard]] const CardCounts& cardCounts() const { return counts_; }
    [[nodiscard]] DataCounts getCounts() const;
    /// What the models need to know of this data set when they read, write or fill a list.
    [[nodiscard]] DataOptions options() const;

    /// The print group at 1 to `NPGroups`; none above it, or where a failed read left none. Below 0 or above 25 is a Failure.
    [[nodiscard]] std::shared_ptr<cPGroup> PGroup(std::int32_t index) const;
    /// Appends a print group; a 26th is a Failure.
    void AddPGroup(std::shared_ptr<cPGroup> group);
    /// Removes all print groups.
    void ClrPGroup();

    /// Which line and vent sections meet at each node, line sections first.
    [[nodiscard]] NodeTable buildNodeTable() const;
    /// Makes the nodes fit the sections. A node number or a sixth branch beyond the node table is a Failure.
    void BuildNodes();

    /// Reads a card file into this data set, as far as it can be read. A failure is told once, in a message box that names
    /// the Form and the file (`shortName`); what was read until then stays. True when all was read.
    [[nodiscard]] bool ReadFile(CardReader& reader, ProgressSink& progress, MessageSink& messages, std::string_view shortName);
    /// Writes the data set as a card file, after recomputing all counts from the collections. What can't be written (a print
    /// group that isn't there, a segment without subsegments) is a Failure.
    void WriteFile(CardWriter& writer, ProgressSink& progress);
    /// Writes what can be written, for a copy that is kept when the program fails: what fails is left out, and the next Form
    /// goes on. Form 12 counts the print groups that there are.
    void WriteRescue(CardWriter& writer);

private:
    void readForms(CardReader& reader, FileProgress& bar);
    void readTitle(CardReader& reader);
    void readOptions(CardReader& reader);
    void readCounts(CardReader& reader);
    void readWeather(CardReader& reader);
    void readNetwork(CardReader& reader, FileProgress& bar);
    void readPrintGroups(CardReader& reader);
    void readTimes(CardReader& reader);

    void recount();
    void writeGeneral(CardWriter& writer) const;
    void writeCounts(CardWriter& writer) const;
    void writeWeather(CardWriter& writer) const;
    void writeNetwork(CardWriter& writer, FileProgress& bar) const;
    void writePrintGroups(CardWriter& writer) const;
    void rescueNetwork(CardWriter& writer) const;
    void rescuePrintGroups(CardWriter& writer) const;
    void writeTimes(CardWriter& writer) const;

    [[nodiscard]] std::int32_t progressMax() const;
    [[nodiscard]] std::shared_ptr<cPGroup>& groupSlot(std::int32_t index);

    TitleLines title_;
    CardCounts counts_;
    std::int16_t npGroups_ = 0;
    std::array<std::shared_ptr<cPGroup>, MostPGroups + 1> groups_; // index 0 is not used
};

} // namespace kov
