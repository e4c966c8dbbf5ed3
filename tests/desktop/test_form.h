// The desktop host around a small window with a control of every kind: events are kept, and answered by
// whatever the test wants.
#pragma once

#include <string>
#include <vector>

#include <QtTest>

#include <gtest/gtest.h>

#include "desktop/desktop_host.h"
#include "tests/support/test_form.h"

inline QImage Grab(QWidget& widget) {
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

class DesktopTest : public testing::Test {
  protected:
    void SetUp() override {
        host.PumpEvents();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        events.clear();
    }

    template <typename Kind>
    Kind& WidgetOf(const Control& control) {
        return dynamic_cast<Kind&>(*window.WidgetOf(control));
    }

    /// What is on the screen of the window's inside: as it was painted, piece by piece.
    QImage Screen() const {
        const QWidget& inside = *window.WidgetOf(form);
        const QPixmap all = window.screen()->grabWindow(window.winId());
        return all.toImage().convertToFormat(QImage::Format_RGB32).copy(inside.geometry());
    }

    /// The events of one control, one a line.
    std::string EventsOf(const std::string& control) const {
        std::string lines;
        for (const InputEvent& event : events)
            if (event.control == control) lines += EventText(event) + "\n";
        return lines;
    }

    TestForm form;
    TestDialog dialog;
    std::vector<InputEvent> events;
    std::function<void(const InputEvent&)> answer = [](const InputEvent&) {};
    DesktopHost host{form, {&dialog}, [this](const InputEvent& event) {
                         events.push_back(event);
                         answer(event);
                     }};
    FormWindow& window = host.WindowOf(form);
};
