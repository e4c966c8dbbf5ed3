// The game in its real window, by the keyboard alone.
#include <algorithm>
#include <set>
#include <utility>

#include <QAbstractButton>
#include <QAccessible>
#include <QComboBox>
#include <QFocusFrame>

#include "personal/info_form.h"
#include "view/start.h"
#include "window_game.h"

namespace {

class KeyboardTest : public WindowGame {
  protected:
    KeyboardTest() {
        host.Enter([] { Main(1); });
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&field));
        host.PumpEvents();
        BringToFront();
        events.clear();
    }

    /// To whatever has the focus, as the desktop sends it.
    void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, int times = 1) {
        for (int i = 0; i < times; ++i) {
            const QWidget* const popup = QApplication::activePopupWidget();
            const QWidget& on = popup != nullptr ? *popup : *QApplication::activeWindow();
            QTest::keyClick(on.windowHandle(), static_cast<Qt::Key>(key), modifiers);
        }
    }

    /// Opens the soldier's file, does `what` in it, and closes it; all by keys.
    void InTheFile(const std::function<void(FormWindow&)>& what) {
        QTimer::singleShot(20, &field, [this, &what] {
            FormWindow& file = host.WindowOf(frmInfo);
            EXPECT_TRUE(QTest::qWaitFor([&file] { return QApplication::activeWindow() == &file; }));
            what(file);
            Press(Qt::Key_Return);
            EXPECT_FALSE(std::exchange(frmInfo.Visible, false));
        });
        Press(Qt::Key_Return);
        BringToFront();
    }

    /// What a desktop does by itself.
    void BringToFront() {
        field.activateWindow();
        ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == &field; }));
    }

    std::size_t Count(EventKind kind) const {
        return static_cast<std::size_t>(std::count_if(
            events.begin(), events.end(), [kind](const InputEvent& e) { return e.kind == kind; }));
    }

    std::vector<InputEvent> events;
    bool deaf = false;  // the game hears nothing
    HastyHost host{frmField, OtherForms(), [this](const InputEvent& event) {
                       events.push_back(event);
                       if (!deaf) Dispatch(event);
                   }};
    FormWindow& field = host.WindowOf(frmField);
};

QRect PlaceOf(const QWidget& widget) {
    return {widget.mapToGlobal(QPoint(0, 0)), widget.size()};
}

// What a help for people without a mouse finds to be used: all that is seen and switched on.
void Collect(const QAccessibleInterface& in, std::set<QObject*>& found, QStringList& names) {
    for (int i = 0; i < in.childCount(); ++i) {
        const QAccessibleInterface& child = *in.child(i);
        if (child.state().invisible || child.state().disabled || child.role() == QAccessible::MenuBar)
            continue;
        const QAccessible::Role role = child.role();
        if (role == QAccessible::Button || role == QAccessible::ComboBox || role == QAccessible::ScrollBar ||
            role == QAccessible::Canvas) {
            EXPECT_TRUE(child.state().focusable) << child.object()->objectName().toStdString();
            found.insert(child.object());
            names += child.text(QAccessible::Name);
        }
        if (role == QAccessible::Client || role == QAccessible::Canvas || role == QAccessible::Button)
            Collect(child, found, names);
    }
}

// Where the focus goes with one round of Tab, or of Shift+Tab, from where it is.
std::vector<QObject*> Round(const FormWindow& window, const std::function<void()>& tab) {
    std::vector<QObject*> stops;
    do {
        stops.push_back(window.focusWidget());
        tab();
    } while (window.focusWidget() != stops.front() && stops.size() < 200);
    return stops;
}

TEST_F(KeyboardTest, AllThatDoesSomethingHasANameAndIsReachedByTabBothWays) {
    const auto check = [this](FormWindow& window) {
        std::set<QObject*> found;
        QStringList names;
        Collect(*QAccessible::queryAccessibleInterface(&window), found, names);
        EXPECT_FALSE(names.contains(QString()));
        EXPECT_EQ(names.removeDuplicates(), 0) << names.join(", ").toStdString();
        Press(Qt::Key_Tab);
        std::vector<QObject*> forward = Round(window, [this] { Press(Qt::Key_Tab); });
        const std::vector<QObject*> back = Round(window, [this] { Press(Qt::Key_Tab, Qt::ShiftModifier); });
        EXPECT_EQ(std::set<QObject*>(forward.begin(), forward.end()), found);
        std::reverse(forward.begin() + 1, forward.end());
        EXPECT_EQ(forward, back);
        return found;
    };
    const std::set<QObject*> onField = check(field);
    for (const Control* control : std::initializer_list<Control*>{
             &frmField.area, &frmField.cmbLog, &frmField.VScrollArea, &frmField.cmdNextTurn,
             &frmField.picAreaMapCover, &frmField.imgStance[3], &frmField.imgStop, &frmField.imgInv[0]})
        EXPECT_TRUE(onField.contains(field.WidgetOf(*control))) << control->name;
    InTheFile([&](FormWindow& file) {
        const std::set<QObject*> inFile = check(file);
        for (const Control* control :
             std::initializer_list<Control*>{&frmInfo.imgInv[0], &frmInfo.imgInv[39], &frmInfo.imgAward[24],
                                             &frmInfo.picB1, &frmInfo.cmdNext, &frmInfo.cmdGndPage[2]})
            EXPECT_TRUE(inFile.contains(file.WidgetOf(*control))) << control->name;
        EXPECT_FALSE(inFile.contains(file.WidgetOf(frmInfo.cmdGndPage[0]))) << "it is switched off";
    });
}

TEST_F(KeyboardTest, NoStopKeepsAKeyOfTheFieldAndEachWearsTheFrame) {
    const auto& frame = *field.findChild<QFocusFrame*>();
    EXPECT_FALSE(frame.isVisible());
    Press(Qt::Key_Tab);
    deaf = true;
    const std::vector<QObject*> stops = Round(field, [this] { Press(Qt::Key_Tab); });
    for (std::size_t i = 0; i < stops.size(); ++i) {
        Press(Qt::Key_Tab);
        const QWidget& at = *field.focusWidget();
        const QPoint middle =
            &at == field.WidgetOf(frmField.area)
                ? at.mapToGlobal(QPoint(UnitTable[curUnit].cellX, UnitTable[curUnit].cellY) * 20 +
                                 QPoint(10, 10))
                : PlaceOf(at).center();
        ASSERT_TRUE(frame.isVisible()) << at.objectName().toStdString();
        if (&at != field.WidgetOf(frmField.picAreaMap)) {  // there it is the soldier's place
            EXPECT_LE((PlaceOf(frame).center() - middle).manhattanLength(), 3)
                << at.objectName().toStdString();
        }
        for (const int key : {Qt::Key_Left, Qt::Key_PageDown, Qt::Key_Space, Qt::Key_Return, Qt::Key_Escape,
                              Qt::Key_BracketLeft, Qt::Key_M, Qt::Key_Home}) {
            events.clear();
            Press(key);
            ASSERT_EQ(events.size(), 2U) << at.objectName().toStdString() << key;
            EXPECT_EQ(events[0].kind, EventKind::KeyDown);
            EXPECT_EQ(events[1].kind, EventKind::KeyUp);
            EXPECT_EQ(events[0].control, "frmField");
        }
    }
    QTest::mouseClick(field.windowHandle(), Qt::LeftButton, Qt::NoModifier, {300, 600});
    EXPECT_FALSE(frame.isVisible()) << "the mouse has taken over";
}

using KeyboardDeathTest = KeyboardTest;

TEST_F(KeyboardDeathTest, AWholeTurnIsPlayedByKeysAlone) {
    do {
        Press(Qt::Key_Space);
    } while (frmField.comboMode.List.size() < 2);
    ASSERT_NE(curUnit, 0);
    Unit& soldier = UnitTable[curUnit];
    const int column = soldier.cellX;
    Press(Qt::Key_Right);
    EXPECT_EQ(soldier.cellX, column + 1);

    const int mode = frmField.comboMode.ListIndex;
    Press(Qt::Key_M, Qt::AltModifier);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    Press(Qt::Key_Down);
    Press(Qt::Key_Return);
    EXPECT_EQ(frmField.comboMode.ListIndex, mode + 1);
    Press(Qt::Key_2, Qt::AltModifier);
    EXPECT_EQ(soldier.stance, Crouch);

    const int time = soldier.time;
    const int rounds = soldier.handRounds;
    Press(Qt::Key_D, Qt::ShiftModifier);
    Press(Qt::Key_Delete);
    EXPECT_LT(soldier.time, time);
    EXPECT_LT(soldier.handRounds, rounds);

    const std::string held = soldier.hand.name;
    ASSERT_TRUE(soldier.items[2].name.empty());
    InTheFile([this](FormWindow&) {
        Press(Qt::Key_S);  // the frame comes up on the hand
        Press(Qt::Key_Insert);
        Press(Qt::Key_S);
        EXPECT_NE(frmInfo.imgDrag.Picture, nullptr);
        EXPECT_EQ(frmInfo.imgDrag.Top, 268) << "what is carried lies over the place below";
        Press(Qt::Key_Insert);
    });
    EXPECT_EQ(soldier.items[2].name, held);
    EXPECT_EQ(soldier.items[0].name, "");

    const int left = soldier.time;
    auto& button = dynamic_cast<QAbstractButton&>(*field.WidgetOf(frmField.cmdNextTurn));
    QTest::simulateEvent(&field, true, Qt::Key_E, Qt::AltModifier, QString(), true);
    EXPECT_FALSE(button.isDown()) << "a held key ends one turn, not many";
    Press(Qt::Key_E, Qt::AltModifier);
    EXPECT_TRUE(button.isDown());
    EXPECT_TRUE(QTest::qWaitFor([&] { return soldier.time > left; }))
        << "the button is seen going down first";
    EXPECT_EQ(curTeam, SquadTeam);
    host.AtEnd([this](int exitCode) {  // nothing else in that process takes it away
        folder.RemoveAll();
        return exitCode;
    });
    EXPECT_EXIT(Press(Qt::Key_X, Qt::AltModifier), testing::ExitedWithCode(0), "");
}

TEST_F(KeyboardTest, APressActsOnlyWhereTheFrameIsSeen) {
    for (const int key : {Qt::Key_Insert, Qt::Key_Delete}) {
        QTest::mouseClick(field.windowHandle(), Qt::LeftButton, Qt::NoModifier, {300, 600});
        events.clear();
        Press(key);
        EXPECT_EQ(Count(EventKind::MouseDown), 0U) << "it only shows where";
        EXPECT_EQ(Count(EventKind::MouseMove), 1U);
    }
    Press(Qt::Key_M);
    const int value = frmField.HScrollArea.Value;
    events.clear();
    Press(Qt::Key_Delete);
    EXPECT_FALSE(frmField.bigMapShown);
    EXPECT_EQ(Count(EventKind::MouseDown), 0U) << "a key that takes the whole map away does nothing else";
    Press(Qt::Key_D, Qt::ShiftModifier, 10);
    EXPECT_GT(frmField.HScrollArea.Value, value) << "the view comes along";
    Press(Qt::Key_D, Qt::ShiftModifier, 10);
    EXPECT_EQ(frmField.HScrollArea.Value, 760);
    EXPECT_TRUE(frmField.Caption.ends_with("[75," + std::to_string(int{UnitTable[curUnit].cellY}) + "]"))
        << frmField.Caption;
    frmField.HScrollArea.Value = 0;
    frmField.area.Left = 20;
    events.clear();
    Press(Qt::Key_Delete);
    EXPECT_EQ(Count(EventKind::MouseDown), 0U) << "the place was scrolled away";
}

TEST_F(KeyboardTest, TheNextSightedEnemyIsAimedAt) {
    const Unit& enemy = UnitTable[FirstOf(UnitTable[curUnit].enemyTeam) + 2];
    UnitTable[curUnit].seen[2] = 1;
    frmField.imgEnemyCount.Visible = true;
    host.PumpEvents();
    Press(Qt::Key_N, Qt::AltModifier);
    const std::string cell =
        "[" + std::to_string(int{enemy.cellX}) + "," + std::to_string(int{enemy.cellY}) + "]";
    EXPECT_TRUE(frmField.Caption.ends_with(cell)) << frmField.Caption;
    EXPECT_EQ(field.focusWidget(), field.WidgetOf(frmField.area));
    events.clear();
    Press(Qt::Key_Delete);
    ASSERT_GE(Count(EventKind::MouseDown), 1U);
    EXPECT_EQ(events[1].x, static_cast<float>(enemy.cellX * 20 + 10));
}

}  // namespace
