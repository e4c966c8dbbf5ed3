// The read-out within a window.
#include "desktop/embedded_form.h"

#include <QLabel>

#include "desktop/scale.h"
#include "shell/readout.h"
#include "test_form.h"

namespace {

class EmbeddedFormTest : public DesktopTest, public testing::WithParamInterface<Halves> {
  protected:
    EmbeddedFormTest() {
        SetScale(GetParam());
        readout.Left = 20;
        readout.Top = 10;
    }
    ~EmbeddedFormTest() override { SetScale(2); }

    ReadoutForm readout;
};

// The longest that each of the read-out's lines may say.
TEST_P(EmbeddedFormTest, ItsLinesFitAndTheMouseFallsThroughThem) {
    EmbeddedForm embedded(readout, *window.WidgetOf(form));
    std::vector<std::string> texts = {
        "Walk 48 cells: 199 time, 144 energy", "Hits 62 %, disables 44 %, kills 41 %",
        "About 119 health, 38 of 38 cells", "In the blast: Fournier 82 %, Solberg 73 %"};
    for (int why = 0; why <= static_cast<int>(Why::Nothing); ++why)
        texts.push_back(WordsOf({static_cast<Why>(why), 28, 28, "Remington 870 Mk1"}));
    for (const std::string& text : texts) {
        FillReadout(readout, -1, Wrapped(text, Tone::Plain));
        embedded.Sync();
        for (const Label& label : readout.lblLine) {
            const auto* const widget = embedded.findChildren<QLabel*>(QStringLiteral("lblLine"))[label.index];
            if (!label.Visible) continue;
            EXPECT_EQ(widget->accessibleName().toStdString(), label.Caption);
            EXPECT_LE(widget->fontMetrics().horizontalAdvance(widget->text()) + ToScreen(3), widget->width())
                << label.Caption;
        }
    }
    const QPoint place = ToScreen(QRect(60, 60, 1, 1)).topLeft();
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {},
                      window.WidgetOf(form)->mapTo(&window, place));
    EXPECT_NE(EventsOf("frmTest.picBoard"), "");
}

INSTANTIATE_TEST_SUITE_P(Scales, EmbeddedFormTest, testing::Values(2, 3, 4));

}  // namespace
