// The host of a page: what takes time, what waits for an answer, and what a person's lines come to.
#include "browser/browser_host.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "platform/keys.h"
#include "tests/browser/written_page.h"
#include "tests/support/test_form.h"

namespace {

using std::chrono::milliseconds;
using Clock = std::chrono::steady_clock;

struct Left {};  // the page, which the host never leaves by itself

class BrowserHostTest : public testing::Test {
  protected:
    /// Says the lines, one after the other whenever nothing goes on, and then leaves.
    void RunWith(std::deque<std::string> said) {
        page.idle = [this, said]() mutable {
            if (said.empty()) throw Left();
            page.lines.push_back(said.front());
            said.pop_front();
        };
        EXPECT_THROW(host.Run([] {}), Left);
    }

    WrittenPage page;
    TestForm form;
    TestDialog dialog;
    std::string events;
    std::function<void(const InputEvent&)> answer = [](const InputEvent&) {};
    BrowserHost host{form, {&dialog}, page, [this](const InputEvent& event) {
                         events += EventText(event) + "\n";
                         answer(event);
                     }};
};

TEST_F(BrowserHostTest, ThousandsOfRefreshesAreAFewMessages) {
    const Clock::time_point begin = Clock::now();
    for (int i = 0; i < 5000; ++i) {
        form.HScroll.Value = i % 700;
        host.Refresh(form.HScroll);
    }
    const auto most = static_cast<std::size_t>((Clock::now() - begin) / milliseconds(14)) + 40;
    EXPECT_LE(page.messages.size(), most);
}

TEST_F(BrowserHostTest, ShortWaitsAddUp) {
    const Clock::time_point begin = Clock::now();
    for (int i = 0; i < 100; ++i)
        host.Wait(milliseconds(2), i % 2 == 0);
    const auto taken = Clock::now() - begin;
    EXPECT_GE(taken, milliseconds(90));
    EXPECT_LE(page.waits, 80);
}

TEST_F(BrowserHostTest, WhatWasSaidDuringAWaitEntersOnlyWhereEventsMay) {
    page.lines = {"click frmTest.cmdGo 0"};
    host.Wait(milliseconds(20), false);
    EXPECT_EQ(events, "");
    host.Wait(milliseconds(1), true);
    EXPECT_EQ(events, "Click frmTest.cmdGo -1 0 0 0 0\n");
}

TEST_F(BrowserHostTest, LinesAreEventsAndNonsenseIsNothing) {
    struct Case {
        const char* line;
        const char* events;
    };
    const Case cases[] = {
        {"click frmTest.cmdGo 0", "Click frmTest.cmdGo -1 0 0 0 0\n"},
        {"choose frmTest.comboMode 2", "Choose frmTest.comboMode -1 2 0 0 0\n"},
        {"scroll frmTest.HScroll 300", "Scroll frmTest.HScroll -1 300 0 0 0\n"},
        {"change frmTest.HScroll 300", "Change frmTest.HScroll -1 300 0 0 0\n"},
        {"mouse move frmTest.imgStance#1 0 3 4 0 0 0", "MouseMove frmTest.imgStance 1 0 0 3 4\n"},
        {"mouse down frmTest.imgStance#1 1 3 4 1 0 0", "MouseDown frmTest.imgStance 1 1 0 3 4\n"},
        {"mouse up frmTest.imgStance#1 1 3 4 0 0 0",
         "MouseUp frmTest.imgStance 1 1 0 3 4\nClick frmTest.imgStance 1 1 0 3 4\n"},
        {"key down 75 75 0 0 0 100", "KeyDown frmTest -1 75 0 0 0\n"},
        {"key up 75 75 0 0 0 180", "KeyUp frmTest -1 75 0 0 0\n"},
        {"mouse down frmTest.imgStance#1 1 3", ""},
        {"click frmTest.nothing 0", ""},
        {"click frmNone.cmdGo 0", ""},
        {"", ""},
        {"dance", ""},
    };
    for (const Case& row : cases) {
        events.clear();
        page.lines = {row.line};
        host.PumpEvents();
        EXPECT_EQ(events, row.events) << row.line;
    }
    form.cmdGo.Enabled = false;
    page.lines = {"click frmTest.cmdGo 0"};
    events.clear();
    host.PumpEvents();
    EXPECT_EQ(events, "");
}

TEST_F(BrowserHostTest, AModalWindowLastsUntilItIsHidden) {
    answer = [this](const InputEvent& event) {
        if (event.control == "frmTest.cmdGo") {
            dialog.Visible = true;
            host.ShowModal(dialog);
            events += "back\n";
        }
        if (event.control == "frmDialog.cmdOk") dialog.Visible = false;
    };
    RunWith({"click frmTest.cmdGo 0", "click frmDialog.cmdOk 0"});
    EXPECT_EQ(events, "Click frmTest.cmdGo -1 0 0 0 0\nClick frmDialog.cmdOk -1 0 0 0 0\nback\n");
}

TEST_F(BrowserHostTest, WhileABoxStandsOnlyItsAnswerCounts) {
    answer = [this](const InputEvent&) {
        const PageAnswer given = host.Ask({.title = "t",
                                           .text = "so it is",
                                           .page = "",
                                           .buttons = {"OK", "No"},
                                           .atEscape = 1,
                                           .tick = "x"});
        events += std::to_string(given.button) + (given.ticked ? " ticked\n" : "\n");
    };
    RunWith({"click frmTest.cmdGo 0", "click frmTest.cmdGo 0", "answer 1 1"});
    EXPECT_EQ(events, "Click frmTest.cmdGo -1 0 0 0 0\n1 ticked\n");
    EXPECT_TRUE(page.Says(R"("text":"so it is","page":"","buttons":["OK","No"],"atEscape":1,"tick":"x"})"));
}

TEST_F(BrowserHostTest, TimersTickWhileTheyAreOn) {
    int ticks = 0;
    form.timTick.Interval = 10;
    answer = [&](const InputEvent& event) {
        if (event.kind == EventKind::Timer && ++ticks == 3) form.timTick.Interval = 0;
    };
    RunWith({});
    EXPECT_EQ(ticks, 3);
}

TEST_F(BrowserHostTest, AKeyMayBeTakenBeforeTheGameGetsIt) {
    host.AtKey([](const KeyInput& key) { return key.code == 'M'; });
    page.lines = {"key down 77 77 2 0 0 5", "key down 75 75 0 0 0 6"};
    host.PumpEvents();
    EXPECT_EQ(events, "KeyDown frmTest -1 75 0 0 0\n");
}

TEST_F(BrowserHostTest, AnErrorIsShownAndEndsTheGame) {
    answer = [](const InputEvent&) { throw std::runtime_error("a broken map"); };
    host.AtEnd([](int exitCode) { return exitCode + 10; });
    page.lines = {"click frmTest.cmdGo 0", "answer 0 0"};
    try {
        host.Run([] {});
    } catch (const WrittenPage::Ended& ended) {
        EXPECT_EQ(ended.exitCode, 11);
    }
    EXPECT_TRUE(page.Says(R"("text":"a broken map")"));
}

}  // namespace
