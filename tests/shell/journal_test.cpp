// Journals as text, whole, cut and spoilt.
#include "shell/journal.h"

#include <algorithm>

#include "tests/support/game_test.h"

namespace {

const JournalHead Head = {"00000000000000aa", "00000000000000bb", "00000000000000cc", 4294967295U};

std::string Line(int number, int pump) {
    return RecordedText({number, pump, {EventKind::MouseDown, "frmField.area", -1, 2, 1, 150.25F, 90}}) +
           "\n";
}

TEST(JournalTest, CutAtAnyByteItHoldsItsWholeLines) {
    const std::string head = HeadText(Head);
    const std::string whole = head + Line(1, 0) + Line(2, 17) + PlayingLine + Line(3, 0);
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        const std::string cut = whole.substr(0, length);
        const Journal journal = ReadJournal(cut, "x");
        const std::size_t lines = static_cast<std::size_t>(std::ranges::count(cut, '\n'));
        const std::size_t events[] = {0, 0, 0, 0, 0, 0, 1, 2, 2, 3};
        ASSERT_EQ(journal.events.size(), events[lines]) << cut;
        ASSERT_EQ(journal.length, cut.rfind('\n') + 1) << "what follows is to be cut away";
        ASSERT_EQ(journal.head == Head, lines >= 5);
    }
    for (const std::string& spoilt :
         {std::string("event 4 0 Cli\n"), std::string(40, '\0'), std::string("\n")}) {
        const Journal journal = ReadJournal(whole + spoilt, "x");
        EXPECT_EQ(journal.events.size(), 3U);
        EXPECT_EQ(journal.length, whole.size());
    }
}

TEST(JournalTest, WhatIsNoJournalIsRefusedByItsLine) {
    const std::string head = HeadText(Head);
    for (const auto& [text, where] : {std::pair<std::string, const char*>("my poems\n", "x:1: expected"),
                                      {"sarnoth journal 1\nseed 4\n", "x:2: expected"},
                                      {head.substr(0, head.size() - 1) + "0\n", "x:5: expected"},
                                      {head + "nonsense\n" + Line(1, 0), "x:6: expected"}})
        EXPECT_NE(ErrorOf([&journal = text] { ReadJournal(journal, "x"); }).find(where), std::string::npos)
            << text;
}

TEST(JournalTest, AnOrderThatEndsTheGameEachTimeIsDropped) {
    const std::string before = HeadText(Head) + Line(1, 0) + Line(2, 0);
    const std::string order = before + Line(3, 0) + Line(4, 9);
    struct Case {
        const char* marks;
        bool isStuck;
    };
    for (const auto& [marks, isStuck] : {Case{"", false},
                                         {"trying\n", false},
                                         {"trying\nplaying\ntrying\n", false},
                                         {"trying\ntrying\n", true},
                                         {"failed\n", true}}) {
        Journal journal = ReadJournal(order + marks, "x");
        EXPECT_EQ(journal.isStuck, isStuck) << marks;
        DropLastOrder(journal);
        EXPECT_EQ(journal.events.size(), 2U);
        EXPECT_EQ(journal.length, before.size());
        EXPECT_FALSE(journal.isStuck);
    }
}

}  // namespace
