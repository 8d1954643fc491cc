#include "unit/drive/playground.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <array>

namespace kov::drive::test {
namespace {

std::string after(const std::string& lines) { return play("start\n" + lines); }

struct Pair {
    const char* met;    ///< holds
    const char* missed; ///< doesn't
    const char* was;    ///< what the finding says of it
};

TEST(DriveProperties, HoldOrSayWhatIsThere) {
    constexpr std::array Pairs{
        Pair{"test.tbText text \"old\"", "test.tbText text \"old \"", "\"old\""},
        Pair{"test.cbDrop text \"first\"", "test.cbDrop text \"\"", "\"first\""},
        Pair{"test.lbOne text \"\"", "test.lbOne text \"first\"", "\"\""},
        Pair{"test.lblHint caption \"A &hint\"", "test.lblHint caption \"A hint\"", "\"A &hint\""},
        Pair{"test.MF_Open caption \"&Open...\"", "test.MF_Open caption \"\"", "\"&Open...\""},
        Pair{"test.pnOuter caption \"Outer\"", "test.pnOuter caption \"\"", "\"Outer\""},
        Pair{"test caption \"Test \"", "test caption \"Test\"", "\"Test \""},
        Pair{"test.tsPages caption 0 \"&One\"", "test.tsPages caption 1 \"One\"", "\"Two\""},
        Pair{"test.tsPages caption 2 \"Three\"", "test.tsPages caption 3 \"Four\"", "nothing there"},
        Pair{"test.gtext visible no", "test.tbText visible no", "yes"},
        Pair{"test.tbSecond visible yes", "test.tbSecond visible no", "yes"},
        Pair{"test visible yes", "test visible no", "yes"},
        Pair{"test.cmdOff enabled no", "test.cmdOff enabled yes", "no"},
        Pair{"test enabled yes", "test enabled no", "yes"},
        Pair{"test.tsPages enabled 2 no", "test.tsPages enabled 1 no", "yes"},
        Pair{"test.MF_Files(1) checked yes", "test.ckMark checked yes", "no"},
        Pair{"test.cbDrop index 0", "test.lbOne index 0", "-1"},
        Pair{"test.tsPages index 0", "test.tsPages index 1", "0"},
        Pair{"test.lbOne count 3", "test.cbDrop count 4", "3"},
        Pair{"test.lbOne entry 1 \"second \"", "test.lbOne entry 1 \"second\"", "\"second \""},
        Pair{"test.cbDrop entry 2 \"third\"", "test.cbDrop entry 3 \"\"", "nothing there"},
        Pair{"test.cbDrop selected 0 yes", "test.cbDrop selected 1 yes", "no"},
        Pair{"test.grData rows 2", "test.grData rows 3", "2"},
        Pair{"test.grData cols 3", "test.grData cols 2", "3"},
        Pair{"test.grData row 0", "test.grData row 1", "0"},
        Pair{"test.grData col 0", "test.grData col 2", "0"},
        Pair{"test.grData cell 0 1 \"b\"", "test.grData cell 1 1 \"b\"", "\"\""},
        Pair{"test.grData cell 0 2 \"\"", "test.grData cell 0 3 \"\"", "nothing there"},
        Pair{"test.grData line 0 \"a\\tb\"", "test.grData line 0 \"a\\tb\\t\"", "\"a\\tb\""},
        Pair{"test.grData line 1 \"\"", "test.grData line 2 \"\"", "nothing there"},
        Pair{"test.tbText sel 0 3", "test.tbText sel 1 2", "0 3"},
        Pair{"test.prBar value 7", "test.prBar value 8", "7"},
        Pair{"test.prBar max 50", "test.prBar max 51", "50"},
        Pair{"test left 165", "test left 166", "150"},
        Pair{"test top 285", "test top 284", "300"},
        Pair{"test width 6000", "test width 5984.5", "6000"},
        Pair{"test.lblHint height 255", "test.lblHint width 0", "900"},
        Pair{"test context 1234", "test context 0", "1234"},
    };
    for (const auto& pair : Pairs) {
        EXPECT_EQ(after(std::string("expect ") + pair.met + "\n"), Passed) << pair.met;
        const auto out = after(std::string("expect ") + pair.missed + "\n");
        EXPECT_TRUE(out.starts_with("s:2: expected test")) << out;
        EXPECT_TRUE(out.ends_with(std::string(", was ") + pair.was + "\n0 passed, 1 failed\n")) << out;
    }
}

TEST(DriveProperties, ThatAControlLacksStopTheScript) {
    constexpr std::array Lines{
        Pair{"test.grData text \"\"", "", "test.grData has no text"},
        Pair{"test text \"\"", "", "the window test has no text"},
        Pair{"test.tbText caption \"\"", "", "test.tbText has no caption"},
        Pair{"test.tbText caption 0 \"\"", "", "test.tbText has no tabs"},
        Pair{"test.tbText index 0", "", "test.tbText has no index"},
        Pair{"test.tbText count 0", "", "test.tbText has no count"},
        Pair{"test.lbOne rows 0", "", "test.lbOne has no rows"},
        Pair{"test.lbOne cell 0 0 \"\"", "", "test.lbOne has no cells"},
        Pair{"test.cbDrop sel 0 0", "", "test.cbDrop has no selection"},
        Pair{"test.tbText value 0", "", "test.tbText has no value"},
        Pair{"test checked no", "", "the window test has no check mark"},
        Pair{"other.tbOther text \"\"", "", "no window other is open"},
        Pair{"test.tbNone text \"\"", "", "no control test.tbNone"},
    };
    for (const auto& line : Lines) {
        EXPECT_EQ(after(std::string("expect ") + line.met + "\nexpect dirty yes\n"),
                  std::string("s:2: ") + line.was + "\n0 passed, 1 failed\n");
    }
}

TEST(DriveProperties, VisibleIsNoOnAHiddenPanel) {
    EXPECT_EQ(after("expect test.tbDeep visible yes\nclick test.cmdHide\nexpect test.tbDeep visible no\n"
                    "expect test.pnInner visible no\n"),
              Passed);
}

TEST(DriveSubjects, SayWhatIsThere) {
    EXPECT_EQ(
        after("expect focus test.tbNotes\nexpect window test closed\nexpect window other open\nexpect panel 2 \"x\"\n"
              "expect pointer busy\nexpect box 0 \"\" \"\"\nexpect started 1 \"x\"\nexpect help 1 2\nexpect clipboard \"x\"\n"
              "expect setting A \"\"\nexpect beep\nexpect printed 1 1 \"x\"\nexpect pages 1\nexpect failure\n"
              "expect rescued yes\n"),
        "s:2: expected focus test.tbNotes, was test.tbText\n"
        "s:3: expected window test closed, was open\n"
        "s:4: expected window other open, was closed\n"
        "s:5: expected panel 2 \"x\", was \"A text\"\n"
        "s:6: expected pointer busy, was normal\n"
        "s:7: expected box 0 \"\" \"\", was no box\n"
        "s:8: expected started 1 \"x\", was nothing started\n"
        "s:9: expected help 1 2, was no call\n"
        "s:10: expected clipboard \"x\", was \"\"\n"
        "s:11: expected setting A \"\", was never set\n"
        "s:12: expected a beep, was silence\n"
        "s:13: expected printed 1 1 \"x\", was nothing printed\n"
        "s:14: expected pages 1, was 0\n"
        "s:15: expected a failure, was none\n"
        "s:16: expected rescued yes, was no\n"
        "0 passed, 1 failed\n");
}

TEST(DriveSubjects, BoxesAreExpectedFromTheOldestOnAndInEveryPart) {
    EXPECT_EQ(after("click test.cmdTell\nanswer Yes\nclick test.cmdBox\nexpect no box\nexpect box 48 \"\" \"Told\"\n"
                    "expect box 36 \"T\" \"Well\\r\\nthen?\"\nexpect no box\n"),
              "s:5: expected no box, was box 48 \"\" \"Told\"\n"
              "s:7: expected box 36 \"T\" \"Well\\r\\nthen?\", was box 35 \"T\" \"Well\\r\\nthen?\"\n0 passed, 1 failed\n");
}

TEST(DriveSubjects, StartsAreExpectedFromTheOldestOn) {
    EXPECT_EQ(after("click test.cmdRun\nexpect started 1 \"x\"\nexpect started 4 \"x\"\n"),
              "s:3: expected started 1 \"x\", was started 4 \"/opt/kov\\\\sim.exe \\\"x\\\"\"\n"
              "s:4: expected started 4 \"x\", was nothing started\n0 passed, 1 failed\n");
}

TEST(DriveSubjects, ABeepIsHeardOnce) {
    EXPECT_EQ(after("click test.cmdBeep\nexpect beep\nexpect beep\n"),
              "s:4: expected a beep, was silence\n0 passed, 1 failed\n");
}

TEST(DriveSubjects, PointerHelpAndClipboard) {
    EXPECT_EQ(after("expect pointer normal\nclick test.cmdBusy\nexpect pointer busy\nclick test.cmdHelp\nexpect help 1 77\n"
                    "clipboard \"a\\tb\"\nexpect clipboard \"a\\tb\"\nclipboard empty\nexpect clipboard \"\"\n"),
              Passed);
}

TEST(DriveSubjects, PrintedPagesAreLinesOfText) {
    EXPECT_EQ(after("click test.cmdPrint\nexpect pages 2\nexpect printed 1 1 \"    five\"\nexpect printed 1 2 \"line two\"\n"
                    "expect printed 1 3 \"\"\nexpect printed 2 1 \"second page\"\n"),
              Passed);
    EXPECT_EQ(after("click test.cmdPrint\nexpect printed 3 1 \"\"\nexpect printed 1 1 \"five\"\n"),
              "s:3: expected printed 3 1 \"\", was no such page\ns:4: expected printed 1 1 \"five\", was \"    five\"\n"
              "0 passed, 1 failed\n");
}

/// The JSON that a script's only `show` printed.
nlohmann::json shown(const std::string& lines) {
    const auto out = after(lines);
    EXPECT_TRUE(out.ends_with(Passed)) << out;
    return nlohmann::json::parse(out.substr(0, out.find('\n')));
}

TEST(DriveShow, PrintsOneLineOfJson) {
    const auto box = shown("type \"\xE2\x82\xAC\\\"\"\nshow test.tbText\n");
    EXPECT_EQ(box.at("control"), "test.tbText");
    EXPECT_EQ(box.at("text"), "\xE2\x82\xAC\"");
    EXPECT_EQ(box.at("focus"), true);
    EXPECT_EQ(shown("show test.grData\n").at("lines"), (nlohmann::json{"a\tb", ""}));
    EXPECT_EQ(shown("show test.cbDrop\n").at("entries").size(), 3U);
    EXPECT_EQ(shown("show test.tsPages\n").at("tabs").at(2).at("enabled"), false);
    EXPECT_EQ(shown("show test.prBar\n").at("max"), 50);
    EXPECT_EQ(shown("select test.lbMany 0 2\nshow test.lbMany\n").at("selected"), (nlohmann::json{0, 2}));
    EXPECT_EQ(shown("show test\n").at("window"), "test");
    const auto boxes = shown("answer No\nclick test.cmdBox\nexpect box 35 \"T\" \"Well\\r\\nthen?\"\nshow boxes\n");
    EXPECT_EQ(boxes.at(0).at("answer"), "No");
    EXPECT_EQ(boxes.at(0).at("prompt"), "Well\r\nthen?");
}

TEST(DriveShow, ShowsEveryKindOfControl) {
    std::string lines;
    for (const auto* name : {"tbNotes", "lblHint", "cmdBox", "ckMark", "obChoice(1)", "lbOne", "cbTyped", "pnOuter", "pnInner",
                             "spSteps", "imPicture", "MF_Open", "tmClock"}) {
        lines += std::string("show test.") + name + "\n";
    }
    EXPECT_TRUE(after(lines).ends_with(Passed));
}

} // namespace
} // namespace kov::drive::test
