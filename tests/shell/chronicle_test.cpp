// The log for people: what happened, in words and figures, and which of it is shown.
#include "shell/chronicle.h"

#include "shell/log_filter.h"
#include "tests/support/game_test.h"

namespace {

constexpr int FirstEnemy = 20;

class ChronicleTest : public GameTest {
  protected:
    ChronicleTest() {
        StartGame();
        Turn(SquadTeam);
    }

    void Turn(int team) {
        curTeam = team;
        chronicle.Note({.kind = HappeningKind::TurnBegins, .unit = team});
    }
    void Act(HappeningKind kind, int unit, int by, int amount, const std::string& weapon,
             const std::string& mode = "Snap shot") {
        chronicle.Note({.kind = kind,
                        .unit = unit,
                        .by = by,
                        .amount = amount,
                        .x = 45 * CellSize,
                        .y = 9 * CellSize,
                        .text = weapon,
                        .mode = mode});
    }
    std::string Texts() const {
        std::string texts;
        for (const ChronicleEntry& entry : chronicle.Entries())
            texts += entry.text + "\n";
        return texts;
    }

    Chronicle chronicle;
};

TEST_F(ChronicleTest, SaysInWordsWhatHitWhom) {
    struct Case {
        HappeningKind kind;
        int unit;
        int by;
        int amount;
        const char* weapon;
        const char* mode;
        const char* text;
    };
    using enum HappeningKind;
    static const Case cases[] = {
        // clang-format off
        {Hit,      0,          FirstEnemy, 12, "ak",       "Snap shot", "Marcus Hale hit by AK fire, -12 health"},
        {Hit,      0,          FirstEnemy,  0, "ak",       "Snap shot", "Marcus Hale grazed by AK fire"},
        {Hit,      FirstEnemy, 1,          -3, "m4",       "Burst [3]", "Enemy 1 hit by M4A1 fire of Ingrid Solberg, +3 health"},
        {Hit,      1,          1,           9, "m67",      "Throw",     "Ingrid Solberg hit by a grenade of their own, -9 health"},
        {Hit,      1,          ChargeBase,  9, "",         "",          "Ingrid Solberg hit by a charge, -9 health"},
        {Death,    22,         1,           0, "m203",     "Aimed shot", "Enemy 3 killed by a launched grenade of Ingrid Solberg"},
        {Death,    22,         1,           0, "m4m203",   "Secondary", "Enemy 3 killed by a launched grenade of Ingrid Solberg"},
        {Death,    22,         1,           0, "m4m203",   "Snap shot", "Enemy 3 killed by M4A1 / M203 fire of Ingrid Solberg"},
        {Death,    22,         1,           0, "spas",     "Snap shot", "Enemy 3 killed by shotgun fire of Ingrid Solberg"},
        {Death,    22,         1,           0, "knife",    "Hit",       "Enemy 3 killed by a blow with the battle knife of Ingrid Solberg"},
        {Death,    22,         1,           0, "kukri",    "Throw",     "Enemy 3 killed by a thrown kukri of Ingrid Solberg"},
        {Death,    22,         1,           0, "shaken",   "Throw",     "Enemy 3 killed by a throwing star of Ingrid Solberg"},
        {Death,    22,         1,           0, "hand",     "Hit",       "Enemy 3 killed by a punch of Ingrid Solberg"},
        {Death,    1,          ChargeBase,  0, "",         "",          "Ingrid Solberg killed by a charge"},
        {Death,    1,          -1,          0, "",         "",          "Ingrid Solberg died of wounds"},
        {Sighting, 22,         1,           0, "",         "",          "Ingrid Solberg sights Enemy 3"},
        // clang-format on
    };
    for (const Case& row : cases) {
        chronicle.Clear();
        Act(row.kind, row.unit, row.by, row.amount, row.weapon, row.mode);
        EXPECT_EQ(Texts(), row.text + std::string(", [45,9]\n"));
    }
}

TEST_F(ChronicleTest, ABurstIsOneEntryAndSoIsWhoDiesOfIt) {
    using enum HappeningKind;
    Act(Hit, 0, FirstEnemy, 12, "ak");
    Act(Hit, 0, FirstEnemy, 20, "ak");
    Act(Hit, 0, FirstEnemy, 0, "ak");
    Act(Hit, 1, FirstEnemy, 5, "ak");
    Act(Hit, 1, FirstEnemy + 1, 7, "ak");
    Act(Death, 1, FirstEnemy + 1, 0, "ak");
    Turn(EnemyTeam);
    Act(Hit, 0, FirstEnemy, 1, "ak");
    EXPECT_EQ(Texts(),
              "Turn 1\n"
              "Marcus Hale hit 3 times by AK fire, -32 health, [45,9]\n"
              "Ingrid Solberg hit by AK fire, -5 health, [45,9]\n"
              "Ingrid Solberg killed by AK fire, [45,9]\n"
              "Enemy's turn\n"
              "Marcus Hale hit by AK fire, -1 health, [45,9]\n");
}

// A hit of an earlier order stays, though the same man dies of the same weapon later.
TEST_F(ChronicleTest, AnotherOrderIsAnotherEntry) {
    using enum HappeningKind;
    Act(Hit, FirstEnemy, 1, 9, "m4");
    ++orderCount;
    Act(Hit, FirstEnemy, 1, 33, "m4");
    Act(Death, FirstEnemy, 1, 0, "m4");
    EXPECT_EQ(Texts(),
              "Turn 1\n"
              "Enemy 1 hit by M4A1 fire of Ingrid Solberg, -9 health, [45,9]\n"
              "Enemy 1 killed by M4A1 fire of Ingrid Solberg, [45,9]\n");
}

// Each soldier who is selected looks around anew.
TEST_F(ChronicleTest, WhoIsSeenAgainWhereHeWasIsNoNews) {
    const auto sight = [this](int by, int x) {
        chronicle.Note({.kind = HappeningKind::Sighting, .unit = FirstEnemy, .by = by, .x = x * CellSize});
    };
    const auto entries = [this] { return chronicle.Entries().size(); };
    sight(0, 3);
    const std::size_t first = entries();
    sight(1, 3);
    Turn(SquadTeam);
    sight(0, 3);
    EXPECT_EQ(entries(), first + 1) << "the turn";
    sight(0, 4);
    EXPECT_EQ(entries(), first + 2) << "elsewhere";
    Turn(SquadTeam);
    Turn(SquadTeam);
    sight(0, 4);
    EXPECT_EQ(entries(), first + 5) << "after a turn unseen";
}

TEST_F(ChronicleTest, CountsRoundsAndWhomTheyHurt) {
    using enum HappeningKind;
    const auto fire = [this](const std::string& weapon, int flights) {
        for (int i = 0; i < flights; ++i)
            Act(Shot, 1, -1, 0, weapon);
    };
    fire("spas", 30);  // the pellets of one round
    Act(Hit, FirstEnemy, 1, 2, "spas");
    Act(Hit, FirstEnemy, 1, 3, "spas");
    fire("m4", 2);
    Act(Hit, FirstEnemy, 1, 10, "m4");
    Act(Hit, FirstEnemy, 1, 0, "m4");
    Act(Hit, 2, 1, 8, "m4");  // one of ours
    Act(Hit, FirstEnemy, 1, 4, "knife", "Hit");
    Act(Hit, FirstEnemy, 1, 4, "knife", "Hit");
    Act(Death, FirstEnemy, 1, 0, "knife", "Hit");
    EXPECT_EQ(chronicle.TallyOf(1), (Tally{.shots = 3, .hits = 4, .kills = 1, .damage = 23}));
    EXPECT_EQ(chronicle.TallyOf(2), (Tally{.wounds = 1}));
}

TEST_F(ChronicleTest, AFilterShowsWhatIsWanted) {
    using enum HappeningKind;
    Turn(EnemyTeam);
    Turn(SquadTeam);
    Act(Sighting, FirstEnemy, 0, 0, "");
    chronicle.NoteRefusal("Too far");
    chronicle.NoteRefusal("Too far");
    Turn(EnemyTeam);
    Act(Hit, 0, FirstEnemy, 1, "ak");
    Act(Death, 1, FirstEnemy, 0, "ak");
    const auto shown = [this](const LogFilter& filter) {
        std::string kinds;
        for (const std::size_t place : Filtered(chronicle.Entries(), filter))
            kinds += "TSHDR"[static_cast<std::size_t>(chronicle.Entries()[place].kind)];
        return kinds;
    };
    struct Case {
        LogFilter filter;
        const char* kinds;
    };
    for (const auto& [filter, kinds] :
         {Case{{}, "TTSRTHD"}, Case{{.hits = false}, "TTSR"}, Case{{.sightings = false}, "TTRTHD"},
          Case{{.refusals = false}, "TTSTHD"}})
        EXPECT_EQ(shown(filter), kinds);
}

}  // namespace
