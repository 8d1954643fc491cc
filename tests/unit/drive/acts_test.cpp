#include "unit/drive/playground.hpp"

#include <gtest/gtest.h>

namespace kov::drive::test {
namespace {

/// Plays lines behind a start.
std::string after(const std::string& lines, const Folder& folder = Folder{}) { return play("start\n" + lines, folder); }

std::string stopped(const std::string& why) { return "s:2: " + why + "\n0 passed, 1 failed\n"; }

TEST(DriveActs, StartTakesTheWholeCommandLine) {
    EXPECT_EQ(play("start \"a b.kov\"\nexpect test caption \"Test a b.kov\"\n"), Passed);
}

TEST(DriveActs, ClickMovesTheFocusFirst) {
    EXPECT_EQ(after("expect focus test.tbText\nclick test.ckMark\nexpect focus test.ckMark\nexpect test.ckMark checked yes\n"
                    "click test.ckMark\nexpect test.ckMark checked no\nclick test.obChoice(1)\n"
                    "expect test.obChoice(0) checked no\nexpect test.obChoice(1) checked yes\n"),
              Passed);
}

TEST(DriveActs, ClickDoesNotTakePlaceWhenACheckGivesTheFocusBack) {
    EXPECT_EQ(after("type \"bad\"\nclick test.ckMark\nexpect box 48 \"\" \"Bad\"\nexpect focus test.tbText\n"
                    "expect test.ckMark checked no\n"),
              Passed);
}

TEST(DriveActs, ClickOnWhatAPersonCantReachStops) {
    EXPECT_EQ(after("click test.cmdOff\n"), stopped("test.cmdOff is disabled"));
    EXPECT_EQ(after("click test.gtext\n"), stopped("test.gtext is hidden"));
    EXPECT_EQ(after("click test.cmdSecond\n"), stopped("test.cmdSecond stands on another page"));
    EXPECT_EQ(after("click test.MF_Open\n"), stopped("test.MF_Open is nothing to click on"));
    EXPECT_EQ(after("click lost.cmdOff\n"), stopped("no window lost is open"));
    EXPECT_EQ(after("click test.obChoice(7)\n"), stopped("no control test.obChoice(7)"));
    EXPECT_EQ(play("start\nclick test.cmdModal\nclick test.ckMark\n"),
              "s:3: a modal window stands before test.ckMark\n0 passed, 1 failed\n");
}

TEST(DriveActs, PressFindsTheButtonByItsCaptionWithoutAmpersand) {
    EXPECT_EQ(after("answer Yes\npress test \"Box\"\nexpect box 35 \"T\" \"Well\\r\\nthen?\"\nanswer No\npress test \"B&ox\"\n"
                    "expect box 35 \"T\" \"Well\\r\\nthen?\"\nexpect panel 1 \"no\"\n"),
              Passed);
    EXPECT_EQ(after("press test \"Nothing\"\n"), stopped("no button \"Nothing\" in test"));
    EXPECT_EQ(after("press test \"Mark\"\n"), stopped("no button \"Mark\" in test"));
}

TEST(DriveActs, MenuLeavesTheFocusAlone) {
    EXPECT_EQ(after("menu test.MF_Open\nexpect panel 1 \"menu\"\nexpect focus test.tbText\n"), Passed);
    EXPECT_EQ(after("menu test.MF_Off\n"), stopped("test.MF_Off is disabled"));
    EXPECT_EQ(after("menu test.MC_Entry\n"), stopped("the menu MClosed around test.MC_Entry is disabled"));
    EXPECT_EQ(after("menu test.ckMark\n"), stopped("test.ckMark is no menu entry"));
}

TEST(DriveActs, FocusIsHeardByBothControls) {
    EXPECT_EQ(after("expect panel 2 \"A text\"\nfocus test.tbNotes\nexpect panel 2 \"\"\nexpect focus test.tbNotes\n"), Passed);
    EXPECT_EQ(after("focus test.lblHint\n"), stopped("test.lblHint can't be used so"));
}

TEST(DriveActs, TypeReplacesTheSelectionCharacterByCharacter) {
    EXPECT_EQ(after("expect test.tbText sel 0 3\ntype \"n\xC3\xA9\"\nexpect test.tbText text \"n\xC3\xA9\"\n"
                    "expect test.tbText sel 2 0\nexpect dirty yes\n"),
              Passed);
}

TEST(DriveActs, TypedLineEndsAreEnterAndATabMovesOn) {
    EXPECT_EQ(after("focus test.tbNotes\ntype \"a\\nb\\r\\nc\"\nexpect test.tbNotes text \"a\\r\\nb\\r\\nc\"\ntype \"\\t\"\n"
                    "expect focus test.lbOne\n"),
              Passed);
}

TEST(DriveActs, TypeAndKeyNeedAFocus) {
    EXPECT_EQ(play("start\nclick test.cmdEnd\ntype \"a\"\n"), "s:3: no control has the focus\n0 passed, 1 failed\n");
    EXPECT_EQ(play("start\nclick test.cmdEnd\nkey Tab\n"), "s:3: no control has the focus\n0 passed, 1 failed\n");
}

TEST(DriveActs, KeysEditAndMove) {
    EXPECT_EQ(
        after("type \"abc\"\nkey Home\nkey Right\nkey Delete\nexpect test.tbText text \"ac\"\nkey End\nkey Left\n"
              "key Backspace\nexpect test.tbText text \"c\"\nkey Tab\nexpect focus test.tbNotes\nkey ShiftTab\n"
              "expect focus test.tbText\nkey CtrlC\nexpect clipboard \"c\"\nkey CtrlX\nexpect test.tbText text \"\"\n"
              "key CtrlV\nkey CtrlV\nexpect test.tbText text \"cc\"\nfocus test.tbNotes\nkey Enter\n"
              "expect test.tbNotes text \"\\r\\n\"\nkey Escape\nkey Insert\nkey F2\nfocus test.lbOne\nkey Down\nkey Down\n"
              "key Up\nexpect test.lbOne index 0\n"),
        Passed);
}

TEST(DriveActs, CellMovesTheCurrentCellAndClicks) {
    EXPECT_EQ(after("cell test.grData 1 2\nexpect focus test.grData\nexpect test.grData row 1\nexpect test.grData col 2\n"
                    "expect panel 1 \"grid clicked\"\n"),
              Passed);
    EXPECT_EQ(after("cell test.grData 2 0\n"), stopped("test.grData has no row 2"));
    EXPECT_EQ(after("cell test.grData 0 3\n"), stopped("test.grData has no column 3"));
    EXPECT_EQ(after("cell test.lbOne 0 0\n"), stopped("test.lbOne is no grid"));
}

TEST(DriveActs, DoubleClickOpensTheOverlayWhichCommitsWhenLeft) {
    EXPECT_EQ(after("cell test.grData 0 1\ndblclick test.grData\nexpect focus test.gtext\nexpect test.gtext text \"b\"\n"
                    "type \"x\"\nfocus test.tbNotes\nexpect test.grData cell 0 1 \"xb\"\nexpect test.gtext visible no\n"),
              Passed);
    EXPECT_EQ(after("dblclick test.lbOne\nexpect panel 1 \"list double clicked\"\n"), Passed);
}

TEST(DriveActs, RightClickIsOverTheCurrentRowUnlessOneIsNamed) {
    EXPECT_EQ(after("cell test.grData 1 0\nrightclick test.grData\nexpect panel 1 \"right on 1\"\nrightclick test.grData 0\n"
                    "expect panel 1 \"right on 0\"\n"),
              Passed);
    EXPECT_EQ(after("rightclick test.grData 9\n"), stopped("test.grData has no row 9"));
    EXPECT_EQ(after("rightclick test.tbText\n"), stopped("test.tbText is no grid"));
}

TEST(DriveActs, SelectChoosesExactlyThese) {
    EXPECT_EQ(after("select test.lbMany 0 2\nexpect test.lbMany selected 0 yes\nexpect test.lbMany selected 1 no\n"
                    "expect test.lbMany selected 2 yes\nselect test.lbMany 1\nexpect test.lbMany selected 0 no\n"
                    "expect test.lbMany selected 1 yes\nselect test.lbMany\nexpect test.lbMany selected 1 no\n"
                    "select test.cbTyped 1\nexpect test.cbTyped text \"second \"\nselect test.lbOne 2\n"
                    "expect test.lbOne selected 2 yes\nexpect test.lbOne selected 0 no\n"),
              Passed);
    EXPECT_EQ(after("select test.lbOne 0 1\n"), stopped("one entry of test.lbOne can be selected"));
    EXPECT_EQ(after("select test.cbDrop 3\n"), stopped("test.cbDrop has no entry 3"));
    EXPECT_EQ(after("select test.tbText 0\n"), stopped("test.tbText is no list"));
}

TEST(DriveActs, ACombinationListThatGetsTheFocusIsSelectedWhole) {
    EXPECT_EQ(after("focus test.cbTyped\ntype \"abc\"\nfocus test.tbNotes\nfocus test.cbTyped\nexpect test.cbTyped sel 0 3\n"),
              Passed);
}

TEST(DriveActs, TabChoosesAPage) {
    EXPECT_EQ(after("tab test.tsPages 1\nexpect test.tsPages index 1\nfocus test.tbSecond\nclick test.cmdSecond\n"), Passed);
    EXPECT_EQ(after("tab test.tsPages 2\n"), stopped("tab 2 of test.tsPages is unavailable"));
    EXPECT_EQ(after("tab test.tsPages 3\n"), stopped("tab 3 of test.tsPages is unavailable"));
    EXPECT_EQ(after("tab test.tbText 0\n"), stopped("test.tbText is no tab strip"));
}

TEST(DriveActs, SpinTakesTheFocusAndSteps) {
    EXPECT_EQ(after("spin test.spSteps up\nexpect focus test.spSteps\nexpect test.tbText text \"up\"\nspin test.spSteps down\n"
                    "expect test.tbText text \"down\"\n"),
              Passed);
    EXPECT_EQ(after("spin test.ckMark up\n"), stopped("test.ckMark is no spin button"));
}

TEST(DriveActs, CloseResizeAndMinimizeAWindow) {
    EXPECT_EQ(after("click test.cmdOther\nexpect window other open\nclose other\nexpect window other closed\n"
                    "resize test 7000 5000\nexpect panel 1 \"resized\"\nexpect test width 7000\nminimize test\n"),
              Passed);
    EXPECT_EQ(after("close other\n"), stopped("no window other is open"));
    EXPECT_EQ(play("start\nclick test.cmdModal\nclose test\n"), "s:3: a modal window stands before test\n0 passed, 1 failed\n");
}

TEST(DriveActs, PassLetsTimersFire) {
    EXPECT_EQ(after("pass 999\nexpect panel 1 \"\"\npass 1\nexpect panel 1 \"1\"\npass 2500\nexpect panel 1 \"3\"\n"), Passed);
}

TEST(DriveAnswers, ServeBoxesWithSeveralButtonsOnly) {
    EXPECT_EQ(after("answer Cancel\nclick test.cmdTell\nexpect box 48 \"\" \"Told\"\nclick test.cmdBox\n"
                    "expect box 35 \"T\" \"Well\\r\\nthen?\"\nexpect panel 1 \"cancel\"\nexpect no box\n"),
              Passed);
}

TEST(DriveAnswers, AreMissedByABoxThatThenIsCancelled) {
    EXPECT_EQ(after("click test.cmdBox\nexpect box 35 \"T\" \"Well\\r\\nthen?\"\nexpect panel 1 \"cancel\"\n"),
              stopped("no answer is queued for box 35 \"T\" \"Well\\r\\nthen?\""));
}

TEST(DriveAnswers, ThatABoxDoesNotOfferAreErrors) {
    EXPECT_EQ(play("start\nanswer OK\nclick test.cmdBox\nexpect box 35 \"T\" \"Well\\r\\nthen?\"\nexpect panel 1 \"cancel\"\n"),
              "s:3: the queued answer OK is not offered by box 35 \"T\" \"Well\\r\\nthen?\"\n0 passed, 1 failed\n");
}

TEST(DriveDialogs, AreServedByTheFirstEntryOfTheirKind) {
    EXPECT_EQ(after("dialog font \"Courier\" 8.5\ndialog print\ndialog \"sub/a.kov\"\nclick test.cmdOpen\n"
                    "expect panel 1 \"0 ${dir}/sub/a.kov a.kov 0\"\nclick test.cmdPrintSetup\nexpect panel 1 \"0  0\"\n"
                    "click test.cmdFont\nexpect panel 1 \"0 Courier 8.5\"\n"),
              Passed);
}

TEST(DriveDialogs, AreCancelledOrFailWhateverTheirKind) {
    EXPECT_EQ(after("dialog cancel\nclick test.cmdFont\nexpect panel 1 \"32755  0\"\ndialog error 20476\nclick test.cmdOpen\n"
                    "expect panel 1 \"20476   0\"\n"),
              Passed);
}

TEST(DriveDialogs, ThatNothingIsQueuedForAreErrors) {
    EXPECT_EQ(after("click test.cmdOpen\nexpect panel 1 \"32755   0\"\n"), stopped("nothing is queued for the open dialog"));
}

TEST(DriveProcesses, EndAsQueued) {
    EXPECT_EQ(
        after("process 14 2\nclick test.cmdRun\nexpect panel 1 \"14 after 3\"\n"
              "expect started 4 \"${app}\\\\sim.exe \\\"x\\\"\"\nprocess -9\nclick test.cmdRun\nexpect panel 1 \"-9 after 1\"\n"
              "click test.cmdRun\nexpect panel 1 \"0 after 1\"\nprocess error 53 \"File not found\"\nclick test.cmdRun\n"
              "expect panel 1 \"53File not found\"\n"),
        Passed);
}

TEST(DriveProcesses, LetTimersFireWhileTheyAreWaitedFor) {
    EXPECT_EQ(after("click test.cmdTell\nexpect box 48 \"\" \"Told\"\nprocess 1 25\nclick test.cmdRun\npass 399\n"
                    "expect panel 1 \"1 after 26\"\npass 1\nexpect panel 1 \"3\"\n"),
              Passed);
}

TEST(DriveFiles, AreTakenFromTheStartFolderAlsoAfterTheProgramWentElsewhere) {
    const Folder folder;
    EXPECT_EQ(after("click test.cmdSave\nexpect panel 1 \"0\"\nexpect file \"saved.txt\" 1 \"one\"\n"
                    "expect file \"${dir}/saved.txt\" 2 \"two  \"\nexpect file \"saved.txt\" lines 2\n",
                    folder),
              Passed);
    EXPECT_EQ(folder.read("saved.txt"), "one  \r\ntwo\r\n");
}

TEST(DriveFiles, ThatAreLockedCantBeOpened) {
    const Folder folder;
    folder.write("saved.txt", "before");
    EXPECT_EQ(
        after("locked \"saved.txt\"\nclick test.cmdSave\nexpect panel 1 \"70Permission denied\"\n"
              "expect file \"saved.txt\" 1 \"before\"\nunlocked \"saved.txt\"\nclick test.cmdSave\nexpect panel 1 \"0\"\n",
              folder),
        Passed);
}

TEST(DriveFiles, AreComparedLineByLineWhateverTheirLineEnds) {
    const Folder folder;
    folder.write("a", "1\r\n2 \r\n");
    folder.write("b", "1\n2 ");
    folder.write("c", "1\n2\n");
    folder.write("d", "1\n");
    EXPECT_EQ(play("expect file \"a\" same \"b\"\nexpect file \"a\" lines 2\nexpect file \"b\" lines 2\n", folder), Passed);
    EXPECT_EQ(
        play(
            "expect file \"a\" same \"c\"\nexpect file \"a\" same \"d\"\nexpect file \"a\" 3 \"x\"\nexpect file \"e\" 1 \"\"\n",
            folder),
        "s:1: expected file \"a\" same \"c\", line 2 \"2\", was \"2 \"\n"
        "s:2: expected file \"a\" same \"d\", lines 1, was 2\n"
        "s:3: expected file \"a\" 3 \"x\", was 2 lines\n"
        "s:4: expected a file \"e\", was nothing there\n0 passed, 1 failed\n");
}

} // namespace
} // namespace kov::drive::test
