// What a player sets at the windows: their size, the sound, help, and questions before an event. The screen
// has 1920 by 1080 pixels, the window 400 by 322 with its menu.
#include "desktop/front_end.h"

#include <algorithm>
#include <cstdlib>
#include <memory>

#include <QAction>

#include "desktop/appearance.h"
#include "platform/keys.h"
#include "shell/help_pages.h"
#include "shell/stops.h"
#include "test_form.h"
#include "view/forms.h"

namespace {

class FrontEndTest : public testing::Test {
  protected:
    ~FrontEndTest() override {
        SetScale(SingleSize);
        ScaleFonts();
    }

    // The program starts.
    void Start(const Settings& remembered = {}) {
        settings.Change(remembered);
        front = std::make_unique<FrontEnd>(host, window, std::vector<const Form*>{&form, &dialog}, settings);
        host.PumpEvents();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        events.clear();
    }

    void Press(int key, Qt::KeyboardModifiers held = Qt::ControlModifier) {
        QTest::keyClick(&window, static_cast<Qt::Key>(key), held);
    }

    // What has reached the game; Ctrl and Shift themselves may.
    std::ptrdiff_t GivenEvents() const {
        return std::count_if(events.begin(), events.end(), [](const InputEvent& event) {
            return event.code != ControlKey && event.code != ShiftKey;
        });
    }

    QRect Inside() const { return window.WidgetOf(form)->geometry(); }

    TestForm form;
    TestDialog dialog;
    std::vector<InputEvent> events;
    DesktopHost host{form, {&dialog}, [this](const InputEvent& event) { events.push_back(event); }};
    FormWindow& window = host.WindowOf(form);
    SettingsFile settings;
    std::unique_ptr<FrontEnd> front;
};

TEST_F(FrontEndTest, ItOpensAsLargeAsFitsOrAsItWasWhereThatFits) {
    struct Case {
        Halves remembered;
        Halves shown;
        QSize size;
    };
    const Case cases[] = {{0, 6, {1200, 966}}, {3, 3, {600, 483}}, {8, 6, {1200, 966}}};
    for (const Case& row : cases) {
        form.Visible = false;
        host.PumpEvents();
        form.Visible = true;
        Start({.halves = row.remembered});
        EXPECT_EQ(Scale(), row.shown) << row.remembered;
        EXPECT_EQ(window.size(), row.size) << row.remembered;
        EXPECT_EQ(settings.Now().halves, row.remembered);
        front.reset();
    }
}

TEST_F(FrontEndTest, KeysOfTheWindowChangeItsSizeAndNeverReachTheGame) {
    Start();
    Press(Qt::Key_Minus);
    EXPECT_EQ(Scale(), 5);
    EXPECT_EQ(window.size(), QSize(1000, 805));
    EXPECT_EQ(settings.Now().halves, 5);
    EXPECT_EQ(window.WidgetOf(form.cmdGo)->geometry(), QRect(0, 175, 250, 63))
        << "0, 70, 100, 25 in the slate";
    QCoreApplication::processEvents();
    EXPECT_EQ(window.font().pixelSize(), 30);
    dialog.Visible = true;
    host.PumpEvents();
    QTest::keyClick(&host.WindowOf(dialog), Qt::Key_Plus, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Scale(), 6) << "on every window";
    EXPECT_EQ(host.WindowOf(dialog).size(), QSize(300, 300));
    dialog.Visible = false;
    host.PumpEvents();
    Press(Qt::Key_Equal);
    EXPECT_EQ(Scale(), 6) << "no more fits";
    for (int i = 0; i < 9; ++i)
        Press(Qt::Key_Minus);
    EXPECT_EQ(Scale(), SingleSize);
    Press(Qt::Key_0);
    EXPECT_EQ(Scale(), 6);
    EXPECT_EQ(settings.Now().halves, 0);
    EXPECT_EQ(GivenEvents(), 0);
}

TEST_F(FrontEndTest, AnotherSizeOfTheWindowShowsWhatFitsInItsMiddle) {
    Start();
    window.resize(850, 700);
    EXPECT_EQ(Scale(), 4);
    QCoreApplication::processEvents();
    EXPECT_EQ(Inside(), QRect(25, 72, 800, 600)) << "the menu takes 44";
    EXPECT_EQ(Grab(window).pixel(10, 400), Rgb(0, 0, 0));
    EXPECT_EQ(settings.Now().halves, 4);
    Press(Qt::Key_F11, Qt::NoModifier);
    QCoreApplication::processEvents();
    EXPECT_TRUE(window.isFullScreen());
    EXPECT_EQ(Scale(), 6);
    EXPECT_EQ(Inside(), QRect(360, 123, 1200, 900));
    EXPECT_TRUE(settings.Now().fullScreen);
    EXPECT_EQ(settings.Now().halves, 4) << "the full screen isn't a choice of size";
    Press(Qt::Key_F11, Qt::NoModifier);
    EXPECT_FALSE(window.isFullScreen() || settings.Now().fullScreen);
    EXPECT_EQ(Scale(), 4);
    EXPECT_EQ(window.size(), QSize(800, 644));
    EXPECT_TRUE(events.empty());
}

TEST_F(FrontEndTest, HelpStandsUntilEscWhichIsItsOwn) {
    Start();
    Press(Qt::Key_F1, Qt::NoModifier);
    ASSERT_EQ(window.findChildren<HelpWindow*>().size(), 1);
    auto* const help = window.findChild<HelpWindow*>();
    ASSERT_TRUE(QTest::qWaitForWindowActive(help));
    EXPECT_TRUE(window.screen()->availableGeometry().contains(help->frameGeometry()));
    QTest::keyPress(help, Qt::Key_Escape);
    EXPECT_FALSE(help->isVisible());
    QTest::keyRelease(&window, Qt::Key_Escape);
    EXPECT_TRUE(events.empty()) << "nor its release";
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_EQ(events.size(), 2U) << "the next one is the game's";
}

TEST_F(FrontEndTest, TheCardComesOnceInALife) {
    for (const bool first : {true, false}) {
        Start(settings.Now());
        front->ShowFirstCard();
        EXPECT_EQ(window.findChild<HelpWindow*>() != nullptr, first);
        front.reset();
        delete window.findChild<HelpWindow*>();
    }
}

TEST_F(FrontEndTest, TheSoundIsSetByKeysAndRemembered) {
    Start({.volume = 95});
    const auto press = [this](int key, Qt::KeyboardModifiers held) {
        Press(key, held);
        return std::pair(settings.Now().volume, settings.Now().muted);
    };
    constexpr Qt::KeyboardModifiers Both = Qt::ControlModifier | Qt::ShiftModifier;
    EXPECT_EQ(press(Qt::Key_Up, Both), std::pair(100, false));
    EXPECT_EQ(press(Qt::Key_Down, Both), std::pair(90, false));
    EXPECT_EQ(press(Qt::Key_M, Qt::ControlModifier), std::pair(90, true));
    EXPECT_EQ(press(Qt::Key_Down, Both), std::pair(80, true));
    EXPECT_EQ(press(Qt::Key_M, Qt::ControlModifier), std::pair(80, false));
    EXPECT_EQ(GivenEvents(), 0);
    press(Qt::Key_M, Qt::NoModifier);
    EXPECT_EQ(GivenEvents(), 2) << "without Ctrl it is the game's";
}

TEST_F(FrontEndTest, TheValleyIsSilencedInTheMenuAndStaysSo) {
    setenv("SDL_AUDIODRIVER", "dummy", 1);
    Start({.ambience = false});
    host.Sounds().SetAmbience({1});
    EXPECT_FALSE(host.Sounds().IsOpen());
    for (QAction* const action : window.findChildren<QAction*>())
        if (action->text().contains(QStringLiteral("birds"))) action->trigger();
    EXPECT_TRUE(settings.Now().ambience);
    EXPECT_TRUE(host.Sounds().IsOpen());
    unsetenv("SDL_AUDIODRIVER");
}

TEST_F(FrontEndTest, WhileAQuestionStandsNothingEntersTheGame) {
    Start();
    int asked = 0;
    bool answer = false;
    host.AskBefore([&](const InputEvent&) {
        ++asked;
        window.close();
        QTest::mouseClick(window.WidgetOf(form.cmdGo), Qt::LeftButton);
        return answer;
    });
    Press(Qt::Key_K, Qt::NoModifier);
    EXPECT_EQ(asked, 2) << "the key's press and its release";
    EXPECT_TRUE(events.empty());
    answer = true;
    Press(Qt::Key_K, Qt::NoModifier);
    EXPECT_EQ(events.size(), 2U);
}

TEST(HelpPagesTest, EveryLetterWithAltIsOnThePageOfKeys) {
    const std::string page = KeysPage();
    for (const char* form : {"frmField", "frmInfo"}) {
        for (const Control* control : FormByName(form)->controls) {
            const char letter = ShortcutLetter(*control);
            if (letter == '\0') continue;
            EXPECT_NE(page.find(std::string("Alt+") + letter), std::string::npos) << control->name << letter;
        }
    }
}

TEST(HelpPagesTest, TipsAreForControlsThatAreThereAndLeaveTheirRecordsAlone) {
    ResetForms();
    int tips = 0;
    DesktopHost host(*FormByName("frmField"), {}, [](const InputEvent&) {});
    FormWindow& window = host.WindowOf(*FormByName("frmField"));
    window.Sync();
    for (Control* control : FormByName("frmField")->controls) {
        if (HelpTip("frmField." + control->name).empty()) continue;
        ++tips;
        EXPECT_FALSE(window.WidgetOf(*control)->toolTip().isEmpty()) << control->name;
        EXPECT_EQ(control->ToolTipText, "");
        control->ToolTipText = "its own";
        window.Sync();
        EXPECT_EQ(window.WidgetOf(*control)->toolTip(), "its own");
    }
    EXPECT_EQ(tips, 5);
    ResetForms();
}

}  // namespace
