#include "unit/drive/playground.hpp"

#include <gtest/gtest.h>

#include <array>
#include <sstream>

namespace kov::drive::test {
namespace {

const Places SomePlaces{"/home/me", "/opt/kov"};

std::vector<std::string> texts(std::string_view line) {
    std::vector<std::string> result;
    for (const auto& word : wordsOf(line, SomePlaces)) {
        result.push_back(word.text);
    }
    return result;
}

using Texts = std::vector<std::string>;

TEST(DriveWords, ArePartedByBlanksAndQuotesHoldBlanksTogether) {
    EXPECT_EQ(texts("  press   w \"a  b\" "), (Texts{"press", "w", "a  b"}));
}

TEST(DriveWords, HaveFiveEscapes) { EXPECT_EQ(texts(R"(type "\n\r\t\"\\")"), (Texts{"type", "\n\r\t\"\\"})); }

TEST(DriveWords, KnowTheFoldersInQuotesOnly) {
    EXPECT_EQ(texts(R"(x "${dir}/a" "${app}\\b" ${dir} "$ {dir} ${else}")"),
              (Texts{"x", "/home/me/a", "/opt/kov\\b", "${dir}", "$ {dir} ${else}"}));
}

TEST(DriveWords, AreNoneOnBlankLinesAndComments) {
    EXPECT_TRUE(texts("").empty());
    EXPECT_TRUE(texts(" \t ").empty());
    EXPECT_TRUE(texts("# \"open \xE2\x82").empty());
}

TEST(DriveWords, ComeOutAsWindows1252) { EXPECT_EQ(texts("type \"\xE2\x82\xAC \xC3\xA9\"").at(1), "\x80 \xE9"); }

TEST(DriveWords, RefuseWhatCantBeRead) {
    for (const auto* line : {"type \"open", "type \"open\\", R"(type "\q")", R"(type "a"b)", R"(type a"b")",
                             "type \"\xE4\xBD\xA0\"", "type \"\xFF\"", "type \"\xF0\x9F\x98\x80\""}) {
        EXPECT_THROW(static_cast<void>(wordsOf(line, SomePlaces)), SyntaxError) << line;
    }
}

TEST(DriveWords, AreShownAsTheyWouldBeWritten) { EXPECT_EQ(inQuotes("a\"\\\r\n\t\x80"), "\"a\\\"\\\\\\r\\n\\t\xE2\x82\xAC\""); }

struct Unreadable {
    const char* line;
    const char* finding;
};

TEST(DriveScript, NamesEveryLineThatCantBeParsed) {
    constexpr std::array Lines{
        Unreadable{"jump", "unknown command \"jump\""},
        Unreadable{"\"start\"", "expected a command, was \"start\""},
        Unreadable{"start now", "expected the command line in double quotes, was now"},
        Unreadable{"click", "expected a control or window, was the line's end"},
        Unreadable{"click test", "expected WINDOW.CONTROL, was test"},
        Unreadable{"click test.", "expected WINDOW.CONTROL, was test."},
        Unreadable{"click .x", "expected WINDOW or WINDOW.CONTROL, was .x"},
        Unreadable{"click test.x(a)", "expected WINDOW.CONTROL(i), was test.x(a)"},
        Unreadable{"click test.x(1", "expected WINDOW.CONTROL(i), was test.x(1"},
        Unreadable{"click test.x y", "expected the line's end, was y"},
        Unreadable{"close test.x", "expected a window, was test.x"},
        Unreadable{"press test Ok", "expected the button's caption in double quotes, was Ok"},
        Unreadable{"key F9", "unknown key \"F9\""},
        Unreadable{"cell test.g 1", "expected a whole number (the column), was the line's end"},
        Unreadable{"cell test.g -1 0", "expected 0 or more (the row), was -1"},
        Unreadable{"spin test.s left", "expected up or down, was left"},
        Unreadable{"pass 1.5", "expected a whole number (milliseconds), was 1.5"},
        Unreadable{"resize test 10", "expected a number (the height), was the line's end"},
        Unreadable{"resize test -10 5", "a width or height below 0"},
        Unreadable{"answer Maybe", "expected OK, Cancel, Yes or No"},
        Unreadable{"dialog error 0", "error number 0 is no error"},
        Unreadable{"dialog path", "expected a path in double quotes, cancel, error, font or print"},
        Unreadable{"process error 1", "expected the error's description in double quotes, was the line's end"},
        Unreadable{"clipboard full", "expected a text in double quotes, was full"},
        Unreadable{"expect test.x colour 1", "unknown property \"colour\""},
        Unreadable{"expect test.x visible maybe", "expected yes or no, was maybe"},
        Unreadable{"expect test.x enabled maybe", "expected a whole number (the tab), was maybe"},
        Unreadable{"expect test.x text 5", "expected the text in double quotes, was 5"},
        Unreadable{"expect test.x context 5", "only a window has a help context"},
        Unreadable{"expect no answer", "expected box behind no"},
        Unreadable{"expect panel 3 \"\"", "the status panels are 1 and 2"},
        Unreadable{"expect window w", "expected open or closed, was the line's end"},
        Unreadable{"expect printed 0 1 \"\"", "expected 1 or more (the page), was 0"},
        Unreadable{"expect file \"x\" 0 \"\"", "expected 1 or more (the line), was 0"},
    };
    std::string script;
    std::string findings;
    for (std::size_t i = 0; i < Lines.size(); ++i) {
        script += std::string(Lines.at(i).line) + "\n";
        findings += "s:" + std::to_string(i + 1) + ": " + Lines.at(i).finding + "\n";
    }
    EXPECT_EQ(play(script), findings + "0 passed, 1 failed\n");
}

TEST(DriveScript, RunsNothingWhenALineCantBeParsed) {
    EXPECT_EQ(play("start\nshow test.tbText\njump\n"), "s:3: unknown command \"jump\"\n0 passed, 1 failed\n");
}

TEST(DriveScript, TakesCrLfLinesAMissingLastEndAndAByteOrderMark) {
    EXPECT_EQ(play("\xEF\xBB\xBFstart\r\nexpect test.tbText text \"old\""), Passed);
}

TEST(DriveRunner, GoesOnAfterAFailedExpectation) {
    EXPECT_EQ(play("start\nexpect test.tbText text \"a\"\nexpect dirty yes\nexpect test.tbText text \"old\"\n"),
              "s:2: expected test.tbText text \"a\", was \"old\"\ns:3: expected dirty yes, was no\n0 passed, 1 failed\n");
}

TEST(DriveRunner, StopsAtALineThatCantBeCarriedOut) {
    EXPECT_EQ(play("start\nclick test.nothing\nexpect dirty yes\n"), "s:2: no control test.nothing\n0 passed, 1 failed\n");
}

TEST(DriveRunner, TracesEveryLineBeforeItRuns) {
    EXPECT_EQ(play("# note\nstart\n\nexpect dirty yes\n", Folder{}, true),
              "s:2: start\ns:4: expect dirty yes\ns:4: expected dirty yes, was no\n0 passed, 1 failed\n");
}

TEST(DriveRunner, GivesEachScriptAFreshProgramAndCountsScripts) {
    const Folder folder;
    RunOptions options{.factory = playground, .startFolder = folder.path(), .appPath = "/opt/kov"};
    const std::array scripts{ScriptText{"a", "setting Last \"x\"\nstart\nexpect setting Last \"x\"\n"},
                             ScriptText{"b", "start\nexpect setting Last \"x\"\n"}, ScriptText{"c", "what"},
                             ScriptText{"d", "start\n"}};
    std::ostringstream out;
    const auto result = runScripts(scripts, options, out);
    EXPECT_EQ(out.str(),
              "b:2: expected setting Last \"x\", was never set\nc:1: unknown command \"what\"\n2 passed, 2 failed\n");
    EXPECT_TRUE(result.misread);
    EXPECT_EQ(result.passed, 2);
    EXPECT_EQ(result.failed, 2);
}

TEST(DriveRunner, FailsAScriptWhoseBoxNothingExpectedAndNamesTheLine) {
    EXPECT_EQ(play("start\nclick test.cmdTell\nexpect dirty no\n"),
              "s:2: expected no box, was box 48 \"\" \"Told\"\n0 passed, 1 failed\n");
}

TEST(DriveRunner, FailsAScriptWhoseFailureNothingExpected) {
    EXPECT_EQ(play("start\nclick test.cmdFail\n"),
              "s:2: expected no failure, the program ended: overflow\n0 passed, 1 failed\n");
}

TEST(DriveRunner, TellsOfTheFailureAlsoWhenTheNextLineStops) {
    EXPECT_EQ(play("start\nclick test.cmdFail\nclick test.cmdTell\n"),
              "s:3: no window test is open\ns:2: expected no failure, the program ended: overflow\n0 passed, 1 failed\n");
}

TEST(DriveRunner, StartsAgainAfterAnExpectedFailure) {
    EXPECT_EQ(play("start\nclick test.cmdFail\nexpect failure\nexpect rescued yes\nexpect rescued no\nexpect no box\n"
                   "expect window test closed\nstart\nexpect window test open\n"),
              Passed);
}

TEST(DriveRunner, KeepsSettingsForAProgramThatIsStartedAgain) {
    EXPECT_EQ(play("start\nclick test.cmdSetting\nclick test.cmdEnd\nstart\nclick test.cmdSetting\n"
                   "expect setting Last \"none++\"\n"),
              Passed);
}

TEST(DriveRunner, StartsAfreshWhileAProgramStillRuns) {
    EXPECT_EQ(play("start\ntype \"new\"\nclick test.cmdSetting\nexpect dirty yes\nstart \"b\"\nexpect dirty no\n"
                   "expect test.tbText text \"old\"\nexpect test caption \"Test b\"\nexpect setting Last \"none+\"\n"),
              Passed);
}

TEST(DriveRunner, TakesASettingsKeyInQuotesToo) {
    EXPECT_EQ(play("setting \"Last\" \"x\"\nexpect setting Last \"x\"\nexpect setting \"Last\" \"x\"\n"), Passed);
}

TEST(DriveRunner, CantWorkAProgramThatWasNotStarted) {
    EXPECT_EQ(play("key Tab\n"), "s:1: the program has not been started\n0 passed, 1 failed\n");
    EXPECT_EQ(play("expect window test closed\nexpect no box\n"), Passed);
}

TEST(DriveRunner, ExpectsNoFailureWhereNoneWas) {
    EXPECT_EQ(play("start\nexpect failure\n"), "s:2: expected a failure, was none\n0 passed, 1 failed\n");
}

} // namespace
} // namespace kov::drive::test
