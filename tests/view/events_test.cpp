// The door for input: what can't happen does nothing, whatever an event says.
#include "view/events.h"

#include <limits>

#include "personal/info_form.h"
#include "personal/personal_file.h"
#include "platform/keys.h"
#include "tests/support/game_test.h"

namespace {

class EventsTest : public GameTest {
  protected:
    EventsTest() { StartGame(); }
};

TEST_F(EventsTest, NoPlaceIndexOrCodeEndsTheGame) {
    constexpr float Odd[] = {-0.3F, -1e30F, 1e30F, std::numeric_limits<float>::quiet_NaN(),
                             std::numeric_limits<float>::infinity()};
    constexpr int Codes[] = {std::numeric_limits<int>::min(), -1, 7, std::numeric_limits<int>::max()};
    const auto send = [](const Control& control, EventKind kind, float x, float y, int code) {
        const std::string name =
            control.form == &control ? control.name : control.form->name + "." + control.name;
        Dispatch({kind, name, control.index, code, 0, x, y});
        Dispatch({kind, name, code, code, 0, x, y});
    };
    for (Form* form : {static_cast<Form*>(&frmField), static_cast<Form*>(&frmInfo)}) {
        if (form == &frmInfo) LoadInfo();
        std::vector<const Control*> controls(form->controls.begin(), form->controls.end());
        controls.push_back(form);
        for (const Control* control : controls) {
            for (const EventKind kind : {EventKind::MouseMove, EventKind::MouseDown}) {
                for (const float at : Odd) {
                    send(*control, kind, at, 0, 1);
                    send(*control, kind, 0, at, 2);
                }
                send(*control, kind, static_cast<float>(control->Width) - 0.5F, 0, 1);
                send(*control, kind, 0, static_cast<float>(control->Height) - 0.5F, 1);
            }
            for (const EventKind kind : {EventKind::Scroll, EventKind::Change, EventKind::Choose})
                for (const int code : Codes)
                    send(*control, kind, 0, 0, code);
        }
    }
    EXPECT_EQ(frmField.Caption, "Sarnoth III :: Field") << "no place on the field was meant";
    EXPECT_EQ(frmField.HScrollArea.Value, 760) << "the last code was the highest";
    frmInfo.Visible = false;
    Dispatch({EventKind::MouseMove, "frmField.area", -1, 0, 0, 1519.4F, 919.4F});
    EXPECT_EQ(frmField.Caption, "Sarnoth III :: Field [75,45]");
    Dispatch({EventKind::Scroll, "frmField.VScrollArea", -1, -33});
    EXPECT_EQ(frmField.VScrollArea.Value, 0);
}

TEST_F(EventsTest, OrdersInTheComputersTurnOrWhileAChargeBlowsAreDropped) {
    for (const auto& [team, current] : {std::pair<int, int>{EnemyTeam, 0}, {SquadTeam, ChargeBase}}) {
        curTeam = team;
        curUnit = current;
        const Unit& unit = UnitTable[curUnit];
        const int time = unit.time;
        const int orders = orderCount;
        Dispatch({EventKind::Click, "frmField.imgStop"});
        Dispatch({EventKind::Click, "frmField.imgStance", Prone});
        Dispatch({EventKind::Click, "frmField.cmdNextTurn"});
        Dispatch({EventKind::KeyDown, "frmField", -1, EscapeKey});
        Dispatch({EventKind::MouseDown, "frmField.area", -1, RightButton, 0, 700, 300});
        Dispatch({EventKind::Choose, "frmField.comboMode", -1, 1});
        for (const char* opens : {"mnuInfo", "picBarWeapon"})
            Dispatch({EventKind::Click, std::string("frmField.") + opens});
        EXPECT_FALSE(fireInMotion);
        EXPECT_EQ(unit.time, time);
        EXPECT_EQ(unit.fireMode, 0);
        EXPECT_EQ(orderCount, orders);
        EXPECT_EQ(shownUnit, -1) << "no file was opened";
        Dispatch({EventKind::Change, "frmField.HScrollArea", -1, 40});
        EXPECT_EQ(frmField.HScrollArea.Value, 40) << "looking is free";
    }
}

TEST_F(EventsTest, WhatIsHiddenOrSwitchedOffGetsNothing) {
    UnitTable[curUnit].seen[2] = 1;
    const auto shown = [] {
        Dispatch({EventKind::Click, "frmField.imgEnemyCount"});
        return lastSeenEnemy == 2;
    };
    frmField.imgEnemyCount.Visible = false;
    EXPECT_FALSE(shown());
    frmField.imgEnemyCount.Visible = true;
    frmField.imgEnemyCount.Enabled = false;
    EXPECT_FALSE(shown());
    frmField.imgEnemyCount.Enabled = true;
    frmField.picSlateD.Visible = false;
    EXPECT_FALSE(shown()) << "it lies in what is hidden";
    frmField.picSlateD.Visible = true;
    EXPECT_TRUE(shown());
}

}  // namespace
