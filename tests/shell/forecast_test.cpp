// Forecasts beside what the orders then come to.
#include "shell/forecast.h"

#include <memory>

#include "data/terrain.h"
#include "shell/companion.h"
#include "shell/readout_words.h"
#include "tests/support/game_test.h"
#include "tools/lab/firing_range.h"
#include "tools/player/orders.h"
#include "tools/player/scripted_player.h"
#include "view/start.h"

namespace {

constexpr int Shooter = 0;
constexpr int Comrade = 1;
constexpr int Enemy = FirstOf(EnemyTeam);

int MiddleOf(int cell) {
    return cell * CellSize + HalfCell;
}

Forecast At(int cellX, int cellY) {
    Forecast forecast = ForecastAt(MiddleOf(cellX), MiddleOf(cellY));
    CountOdds(forecast, MiddleOf(cellX), MiddleOf(cellY));
    return forecast;
}

class ForecastTest : public GameTest {
  protected:
    // A soldier on (10, 10) who looks east, with a comrade far away to whom he may hand over.
    void SetUpField() {
        ResetState();
        ClearField();
        PutUnit(Shooter, 10, 10);
        PutUnit(Comrade, 3, 40);
        curUnit = Shooter;
        squadTurns = 1;
    }

    void PutEnemy(int x, int y, bool sighted) {
        PutUnit(Enemy, x, y);
        UnitTable[Enemy].facing = West;
        UnitTable[Shooter].seen[0] = sighted ? 1 : 0;
    }
};

struct WalkCase {
    const char* name;
    void (*prepare)();
    Spot to;
};

const WalkCase WalkCases[] = {
    {"straight on", [] {}, {15, 10}},
    {"back, with turns", [] {}, {6, 7}},
    {"next cell", [] {}, {11, 10}},
    {"round a wall",
     [] {
         for (int y = 7; y < 14; ++y)
             PutTile(12, y, 0, Stone);
     },
     {15, 10}},
    {"to a wall", [] { PutTile(15, 10, 0, Stone); }, {15, 10}},
    {"to a wall beside him", [] { PutTile(11, 10, 0, Stone); }, {11, 10}},
    {"no way",
     [] {
         for (int i = 0; i < 9; ++i)
             PutTile(19 + i % 3, 9 + i / 3, 0, Stone);
     },
     {20, 10}},
    {"prone", [] { UnitTable[Shooter].stance = Prone; }, {14, 8}},
    {"running", [] { UnitTable[Shooter].stance = Run; }, {30, 12}},
    {"overloaded",
     [] {
         UnitTable[Shooter].load = 41;
         UnitTable[Shooter].stance = Run;
     },
     {16, 10}},
    {"time for a part", [] { UnitTable[Shooter].time = 18; }, {20, 12}},
    {"energy for a part", [] { UnitTable[Shooter].energy = 3; }, {16, 10}},
    {"energy for nothing", [] { UnitTable[Shooter].energy = 0; }, {13, 11}},
    {"has turned before",
     [] {
         lastClickX = 14;
         lastClickY = 6;
     },
     {14, 6}},
};

TEST_F(ForecastTest, AWalkCostsAndEndsAsForecast) {
    for (const WalkCase& row : WalkCases) {
        SCOPED_TRACE(row.name);
        SetUpField();
        row.prepare();
        const GameState before = game;
        const WalkForecast walk = At(row.to.x, row.to.y).walk;
        EXPECT_TRUE(game == before);
        EXPECT_TRUE(walk.known);
        const bool startsWithTurn = walk.turnsFirst;
        Dispatch(PressOn(row.to.x, row.to.y, 1));
        if (startsWithTurn) {
            EXPECT_EQ(before.UnitTable[Shooter].time - UnitTable[Shooter].time, walk.turnTime);
            Dispatch(PressOn(row.to.x, row.to.y, 1));
        }
        const Unit& unit = UnitTable[Shooter];
        EXPECT_EQ(int{unit.time}, walk.timeLeft);
        EXPECT_EQ(int{unit.energy}, walk.energyLeft);
        const bool whole = walk.paid == walk.steps.size();
        if (!walk.steps.empty() && whole) {
            EXPECT_EQ(before.UnitTable[Shooter].time - unit.time, walk.time);
            EXPECT_EQ(before.UnitTable[Shooter].energy - unit.energy, walk.energy);
        }
        const Spot end = walk.paid == 0 ? Spot{10, 10} : walk.steps[walk.paid - 1].cell;
        if (walk.refusal.why != Why::NoWay) {
            EXPECT_EQ((Spot{unit.cellX, unit.cellY}), end);
        }
    }
}

struct ActCase {
    const char* thing;
    const char* mode;
    int rounds;
    int time;
    Spot at;
    Spot enemy;
    int paid;  // rounds
    const char* words;
};

constexpr Spot Far = {60, 40};

// clang-format off
const ActCase ActCases[] = {
    // thing     mode      rounds time  at        enemy     paid words
    {"m4",      "Aimed",   20,    80,  {14, 10}, {14, 10},  1,  ""},
    {"m4",      "Aimed",   20,    80,  {10, 30}, Far,       1,  ""},
    {"m4",      "Aimed",   20,    28,  { 5, 10}, Far,       0,  "Needs 33 time, has 28."},
    {"m4",      "Burst",   20,    60,  {14, 12}, {14, 12},  2,  "Time for 2 of 3 rounds."},
    {"m4",      "Burst",    1,   200,  {14, 10}, {14, 10},  1,  "Loaded: 1 of 3 rounds."},
    {"m4",      "Aimed",    0,    80,  {14, 10}, {14, 10},  0,  "No rounds, costs 29 time: load (Enter)."},
    {"m4",      "Aimed",   20,    80,  {60, 10}, Far,       1,  "Out of reach: 50 cells, M4A1 reaches 38."},
    {"m4",      "Aimed",   20,    80,  {10, 10}, Far,       1,  "That is his own cell."},
    {"m67",     "Throw",    1,    80,  {14, 10}, {14, 10},  1,  ""},
    {"m67",     "Throw",    1,    80,  {30, 10}, Far,       1,  "Out of reach: 20 cells, M67 reaches 14."},
    {"knife",   "Hit",      1,    80,  {11, 10}, {11, 10},  0,  ""},
    {"knife",   "Hit",      1,    80,  {13, 10}, {13, 10},  0,  "Beyond arm's length."},
    {"knife",   "Hit",      1,    80,  {11, 11}, Far,       0,  "Nobody is there."},
    {"knife",   "Hit",      1,    80,  {10, 10}, Far,       0,  "That is his own cell."},
    {"knife",   "Hit",      1,     5,  {11, 10}, {11, 10},  0,  "Needs 12 time, has 5."},
    {"med",     "Cure",     9,    80,  {10, 10}, Far,       0,  ""},
    {"med",     "Cure",     0,    80,  {10, 10}, Far,       0,  "No rounds, costs 10 time: load (Enter)."},
    {"etool",   "Dig",      1,    80,  {10, 10}, Far,       0,  ""},
    {"etool",   "Fill",     1,    80,  {10, 10}, Far,       0,  "The ground is full."},
    {"etool",   "Dig",      1,     7,  {10, 10}, Far,       0,  "Needs 20 time, has 7."},
    {"etool",   "Fold",     1,    80,  {10, 10}, Far,       0,  ""},
};
// clang-format on

TEST_F(ForecastTest, AnActionCostsAsForecastAndItsRefusalSpeaks) {
    for (const ActCase& row : ActCases) {
        SCOPED_TRACE(std::string(row.thing) + " " + row.mode + " " + row.words);
        SetUpField();
        Hold(row.thing, row.mode, row.rounds);
        UnitTable[Shooter].time = row.time;
        PutEnemy(row.enemy.x, row.enemy.y, true);
        PutUnit(Enemy + 1, 70, 44);  // lives, whatever becomes of the other
        const ActForecast act = At(row.at.x, row.at.y).act;
        EXPECT_EQ(act.paid, row.paid);
        const int rounds = UnitTable[Shooter].handRounds;
        Guide guide;
        const InputEvent press = PressOn(row.at.x, row.at.y, 2);
        EXPECT_EQ(WordsOf(guide.Pass(press, {}, [&] { Dispatch(press); })), row.words);
        const Unit& unit = UnitTable[Shooter];
        if (act.paid == act.rounds && act.refusal.why != Why::ActTime) {
            EXPECT_EQ(row.time - unit.time, act.time);
        }
        if (act.rounds > 0 && unit.hand.name == row.thing) {
            EXPECT_EQ(rounds - unit.handRounds, act.paid);
        }
    }
}

TEST_F(ForecastTest, ArmsReachNobodyInTheFarCorner) {
    SetUpField();
    PutUnit(Shooter, 40, 10);
    PutEnemy(41, 10, true);
    Hold("knife", "Hit");
    EXPECT_EQ(WordsOf(At(41, 10).act.refusal), "Out here it does nothing: only up to column 34, row 15.");
}

// At arm's length a blow lands when 0 to 100 is at most 100 without the target's luck of 0 to 30, and hurts
// when its damage of 0 to 9 isn't 0.
TEST_F(ForecastTest, TheChanceIsTheRules) {
    SetUpField();
    PutEnemy(11, 10, true);
    Hold("hand", "Hit");
    constexpr double Lands = (101 - 15) / 101.0;
    const Odds odds = *At(11, 10).odds;
    EXPECT_NEAR(odds.hits, Lands * 9 / 10, 0.04);
    EXPECT_NEAR(odds.damage, Lands * 4.5, 0.3);
    EXPECT_EQ(odds.kills, 0);
    EXPECT_EQ(At(11, 10).odds, odds);
    UnitTable[Enemy].health = 1;
    EXPECT_EQ(At(11, 10).odds->kills, At(11, 10).odds->hits);
}

// On the lab's firing range.
TEST_F(ForecastTest, TheChanceIsTheLabs) {
    for (const Drill& drill : {Drill{.weapon = "m4"}, Drill{.weapon = "ak", .mode = 2, .east = 4},
                               Drill{.weapon = "nova", .east = 6}, Drill{.weapon = "m67", .east = 8},
                               Drill{.weapon = "m4", .east = 6, .targetStance = Prone}}) {
        FiringRange range;
        constexpr int Orders = 2000;
        const Score score = range.Fire(drill, Orders, 7);
        UnitTable[Shooter].seen[0] = 1;
        const Unit& target = range.Target();
        const Odds odds = *At(target.cellX, target.cellY).odds;
        const auto share = [](int count) { return static_cast<double>(count) / Orders; };
        EXPECT_NEAR(odds.hits, share(score.hitting), 0.07) << drill.weapon;
        EXPECT_NEAR(odds.kills, share(score.killed), 0.07) << drill.weapon;
        EXPECT_NEAR(odds.damage, share(score.damage), 0.07 * target.health) << drill.weapon;
    }
}

TEST_F(ForecastTest, StoneStopsAllAndAComradeInTheLineIsInDanger) {
    SetUpField();
    PutEnemy(16, 10, true);
    Hold("m4", "Burst");
    EXPECT_GT(At(16, 10).odds->hits, 0.1);
    for (int y = 0; y < FieldHeight; ++y)
        PutTile(14, y, 0, Stone);
    PutUnit(Comrade, 12, 10);
    const Odds odds = *At(16, 10).odds;
    EXPECT_EQ(odds.hits, 0);
    ASSERT_EQ(odds.ours.size(), 1U);
    EXPECT_EQ(odds.ours[0].unit, Comrade);
    EXPECT_GT(odds.ours[0].share, 0.5);
}

TEST_F(ForecastTest, NothingShowsAnEnemyWhomNobodyHasSighted) {
    for (const Spot enemy : {Spot{13, 10}, Spot{14, 10}, Spot{15, 10}}) {
        SetUpField();
        Hold("m4", "Burst");
        const Forecast alone = At(14, 10);
        PutEnemy(enemy.x, enemy.y, false);
        const GameState before = game;
        const Forecast hidden = At(14, 10);
        EXPECT_TRUE(game == before);
        EXPECT_EQ(LinesOf(hidden), LinesOf(alone));
        EXPECT_EQ(hidden.walk.steps, alone.walk.steps);
        EXPECT_EQ(hidden.odds, alone.odds);
        EXPECT_EQ(hidden.occupant, -1);
    }
}

struct RefusalCase {
    void (*prepare)();
    InputEvent event;
    const char* words;
};

TEST_F(ForecastTest, RefusedOrdersSayWhy) {
    const auto stance = [](int wanted) { return InputEvent{EventKind::Click, "frmField.imgStance", wanted}; };
    const RefusalCase cases[] = {
        {[] {}, Key(39), ""},
        {[] { PutTile(11, 10, 0, Stone); }, Key(39), "No step there: stone in the way."},
        {[] { PutUnit(Comrade, 11, 10); }, Key(39), "No step there: u1 in the way."},
        {[] { UnitTable[Shooter].energy = 0; }, Key(39), "A step costs 1 energy, he has 0."},
        {[] {
             UnitTable[Shooter].stance = Prone;
             UnitTable[Shooter].time = 5;
         },
         Key(39), "A step needs 8 time, he has 5. Its energy is spent all the same."},
        {[] { PutUnit(Enemy, 11, 10); }, Key(39), "No step there: something in the way."},
        {[] {}, stance(Stand), "That is his stance already."},
        {[] { UnitTable[Shooter].time = 5; }, stance(Prone), "That stance needs 8 time, he has 5."},
        {[] {}, stance(Crouch), ""},
        {[] { Hold("med", "Cure"); }, Key(219), "Medical kit has no other mode."},
        {[] { Hold("m4", "Aimed"); }, Key(219), "No further mode that way."},
        {[] { curTeam = EnemyTeam; }, Key(39), "Not now: it is the enemy's turn."},
        {[] { UnitTable[Comrade].time = 3; }, PressOn(3, 40, 1), "u1 has no time left: passed over."},
        {[] { UnitTable[Comrade].status = Wounded; }, PressOn(3, 40, 1), "u1 can't act: passed over."},
        {[] {
             lastClickX = lastClickY = 20;
             UnitTable[Shooter].time = 9;
         },
         PressOn(20, 20, 1), "u0 stops: the next step needs 4 time, 0 is left."},
        {[] {
             lastClickX = 11;
             lastClickY = 10;
             PutUnit(Enemy, 11, 10);
         },
         PressOn(11, 10, 1), "Nothing came of it."},
    };
    int number = 0;
    for (const RefusalCase& row : cases) {
        SCOPED_TRACE(std::to_string(number++) + " " + row.words);
        SetUpField();
        Hold("m4", "Aimed");
        row.prepare();
        Guide guide;
        EXPECT_EQ(WordsOf(guide.Pass(row.event, {}, [&] { Dispatch(row.event); })), row.words);
    }
}

Moment Hurrying() {
    static Moment now;
    return now += std::chrono::milliseconds(100);
}

Companion* going = nullptr;

// The pointer goes ahead of each order, and rests there.
void GiveAccompanied(const InputEvent& event) {
    InputEvent move = event;
    move.kind = EventKind::MouseMove;
    for (const InputEvent& next : {move, event}) {
        going->Pass(next, [&next] { Dispatch(next); });
        going->Look();
        going->Look();
    }
}

void PlaySixTurns(void (*door)(const InputEvent& event)) {
    SendOrdersTo(door);
    Main(3);
    PlayMission(6, HabitsNamed("sensible"));
    SendOrdersTo(nullptr);
}

TEST_F(ForecastTest, AMissionIsTheSameWithACompanion) {
    PlaySixTurns(Dispatch);
    const auto alone = std::make_unique<GameState>(game);
    Companion companion(Hurrying);
    going = &companion;
    host.atPump = [&] { companion.Look(); };
    PlaySixTurns(GiveAccompanied);
    EXPECT_TRUE(game == *alone);
    EXPECT_GT(companion.TheChronicle().Entries().size(), 0U);
}

}  // namespace
