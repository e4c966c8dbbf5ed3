// What events do in the middle of an order, and what the order goes on with.
#include "combat/actions.h"
#include "combat/explosions.h"
#include "combat/things.h"
#include "data/weapons_file.h"
#include "field/sightings.h"
#include "field/walking.h"
#include "mission/turns.h"
#include "personal/info_form.h"
#include "platform/keys.h"
#include "state/operation.h"
#include "tests/support/game_test.h"

namespace {

constexpr int FlashPumps = 10;  // five passes, two waits each

class OrdersWithinOrders : public GameTest {
  protected:
    OrdersWithinOrders() {
        ClearField();
        for (int i : {0, 1, 2}) {
            PutUnit(i, 10, 10 + 2 * i);
            UnitTable[i].time = 200;
        }
    }

    // The current unit and its weapon are those of soldier `index`.
    static Unit& Arm(int index, const std::string& weapon, const std::string& mode) {
        curUnit = index;
        Hold(weapon, mode);
        return UnitTable[index];
    }

    void AtPump(int pump, const InputEvent& event) { host.Queue(event, host.pumps + pump); }
};

TEST_F(OrdersWithinOrders, WhoShootsAComradeGoesOnWithHisOwnModesAndFeed) {
    Arm(1, "ak", "Burst");
    Unit& shooter = Arm(0, "xm8lss", "Secondary");
    UnitTable[1].cellX = 11;
    UnitTable[1].cellY = 10;
    cellGrid[10][11].occupant = 1;
    UnitTable[1].health = 1;
    UnitTable[1].stance = Stand;
    ActOnTarget(230, 210);
    ASSERT_EQ(UnitTable[1].status, Dead) << "thirty pellets at arm's length";
    EXPECT_EQ(fireModes.Text(), "Secondary");
    EXPECT_EQ(frmField.comboMode.Text, "Secondary");
    EXPECT_EQ(frmField.imgInv[0].PictureName, "\\pic\\inv\\xm8lss0.gif") << "the panel shows his own weapon";
    EXPECT_EQ(shooter.items[0].roundsMain, 20);
    EXPECT_EQ(shooter.items[0].roundsSecond, 19);
    EXPECT_EQ(shooter.fireMode, 4);
}

// Fire, next soldier, fire.
TEST_F(OrdersWithinOrders, TheSoldierWhoIsSelectedMeanwhileFiresWithHisOwnAndStaysSelected) {
    Unit& second = Arm(1, "xm8lss", "Secondary");
    Unit& first = Arm(0, "ak", "Burst");
    AtPump(1, Key(SpaceKey));
    AtPump(2 + FlashPumps, PressOn(10, 30, RightButton));
    ActOnTarget(900, 210);
    EXPECT_EQ(first.items[0].roundsMain, 17) << "all three rounds";
    EXPECT_EQ(first.facing, East);
    EXPECT_EQ(second.items[0].roundsMain, 20);
    EXPECT_EQ(second.items[0].roundsSecond, 19);
    EXPECT_EQ(second.facing, South) << "the click was for him";
    EXPECT_EQ(curUnit, 1);
    EXPECT_EQ(fireModes.weapon, "xm8lss");
    EXPECT_EQ(frmField.comboMode.Text, "Secondary");
    EXPECT_EQ(frmField.imgBar[0].Width, second.time);
}

TEST_F(OrdersWithinOrders, WhoFallsWhileHeIsSelectedHandsOverAndTakesNoMoreOrders) {
    Arm(0, "ak", "Burst");
    const InputEvent order = PressOn(10, 40, RightButton);
    RunOperation([&order] {
        PumpKeepingOrder([] { SelectNextUnit(); });
        UnitTable[1].status = Dead;
        PumpKeepingOrder([&order] { Dispatch(order); });
    });
    EXPECT_EQ(UnitTable[1].facing, East);
    EXPECT_EQ(UnitTable[2].facing, South) << "the next one got the order";
    EXPECT_EQ(curUnit, 2);
}

TEST_F(OrdersWithinOrders, AModeChosenInTheMiddleOfABurstIsForTheNextOrder) {
    Unit& unit = Arm(0, "m4m203", "Burst");
    AtPump(1, {EventKind::Choose, "frmField.comboMode", -1, 4});
    ActOnTarget(900, 210);
    EXPECT_EQ(unit.items[0].roundsMain, 17);
    EXPECT_EQ(unit.items[0].roundsSecond, 20);
    EXPECT_EQ(frmField.comboMode.Text, "Secondary");
    EXPECT_EQ(unit.handRounds, 20) << "the second feed's";
    EXPECT_EQ(unit.fireMode, 4);
}

TEST_F(OrdersWithinOrders, ABurstEndsWithTheWeaponThatWasTakenFromTheHand) {
    StartGame();
    Unit& unit = Arm(0, "ak", "Full auto");
    unit.time = 200;
    AtPump(2, {EventKind::Click, "frmField.picBarWeapon"});
    AtPump(2, {EventKind::KeyDown, "frmInfo", -1, DownKey});  // the catalogue puts something else there
    ActOnTarget(900, 210);
    EXPECT_NE(unit.items[0].name, "ak");
    EXPECT_EQ(unit.time, 200 - 2 * WeaponInfoByName("ak").time) << "two rounds were fired before";
    EXPECT_EQ(fireModes.weapon, unit.hand.name);
}

TEST_F(OrdersWithinOrders, OrdersAreDroppedWhileAChargeBlows) {
    curUnit = 0;
    ChargeAdd(30, 30);
    UnitTable[ChargeBase].time = 10;
    for (const InputEvent& order :
         {Key(SpaceKey), PressOn(40, 40, RightButton), InputEvent{EventKind::Click, "frmField.picBarWeapon"},
          InputEvent{EventKind::Click, "frmField.cmdNextTurn"}})
        AtPump(1, order);
    NewTurn();
    const std::string log = Log();
    EXPECT_EQ(log.find("New turn"), log.rfind("New turn"));
    EXPECT_FALSE(frmInfo.Visible);
    EXPECT_EQ(curUnit, 0);
}

TEST_F(OrdersWithinOrders, OnlyOrdersEndAWalk) {
    struct Case {
        InputEvent event;
        bool ends;
    };
    const Case cases[] = {{Key(ShiftKey), false},
                          {Key(Pad5Key), false},
                          {Key('W'), false},
                          {Key('M'), false},  // the map
                          {PressOn(1, 1, MiddleButton), false},
                          {Key(SpaceKey), true},
                          {Key(UpKey), true},
                          {Key(CloseBracketKey), true},
                          {PressOn(60, 10, RightButton), true},
                          {{EventKind::Click, "frmField.cmdNextTurn"}, true}};
    for (const Case& c : cases) {
        PutUnit(0, 10, 10);
        curUnit = 0;
        RefreshHand();
        AtPump(8, c.event);  // after six waves of the search, between two steps
        walkOn = 1;
        WalkTo(16, 10, 100);
        EXPECT_EQ(UnitTable[0].cellX == 16, !c.ends) << EventText(c.event);
        cellGrid[10][UnitTable[0].cellX].occupant = -1;
        frmField.bigMapShown = false;
    }
}

TEST_F(OrdersWithinOrders, ANewSelectionEndsTheFlashBeforeIt) {
    host.pumps = 0;
    AtPump(1, Key(SpaceKey));
    ScrollToUnit(0);
    EXPECT_EQ(host.pumps, 1 + FlashPumps);
    EXPECT_FALSE(frmField.shpSelect.Visible);
}

TEST_F(OrdersWithinOrders, TheFrameIsHiddenWhereTheSoldierHasLeft) {
    int shown = 0;
    host.atPump = [&shown] { shown += frmField.shpSelect.Visible ? 1 : 0; };
    curUnit = 0;
    RefreshHand();
    host.pumps = 0;
    AtPump(4, Key(RightKey));  // one step east in the second pass, while it is shown
    ScrollToUnit(0);
    EXPECT_EQ(shown, 1);
    EXPECT_EQ(host.pumps, FlashPumps) << "the passes stay";
}

TEST_F(OrdersWithinOrders, AFoldedToolIsRememberedByItsNewName) {
    Arm(1, "etool", "Dig");
    Arm(0, "etool", "Fold");
    ActOnTarget(210, 210);
    EXPECT_EQ(fireModes.weapon, "etoolfold");
    SelectNextUnit();
    ASSERT_EQ(curUnit, 1);
    EXPECT_EQ(fireModes.offered, (std::vector<std::string>{"Hit", "Dig", "Fill", "Fold"}));
}

TEST_F(OrdersWithinOrders, ASquadInWhichNobodyCanEverActEndsWithAMessage) {
    for (int i : {0, 1, 2})
        UnitTable[i].agility = 1;
    EXPECT_NE(ErrorOf(NewTurn).find("agility 2"), std::string::npos);
}

}  // namespace
