// What is seen of a control when others lie over it.
#include "shell/seen_part.h"

#include <gtest/gtest.h>

namespace {

struct LayeredForm : Form {
    LayeredForm() {
        Width = 100;
        Height = 80;
        Put(picBoard, "picBoard", *this, -10, 10, 60, 40);
        Put(imgMark, "imgMark", picBoard, 50, 0, 20, 20);
        Put(picCard, "picCard", picBoard, 20, 20, 10, 10);
        Put(picOver, "picOver", *this, 20, 0, 50, 25);
    }

    PictureBox picBoard;
    ImageControl imgMark;
    PictureBox picCard;
    PictureBox picOver;
};

TEST(SeenPartTest, ItEndsWhereItsParentEndsAndWhereOthersStandInFront) {
    LayeredForm form;
    EXPECT_EQ(SeenPart(form.picBoard), (Rectangle{0, 10, 50, 40})) << "around all that is left of it";
    EXPECT_EQ(SeenPart(form.imgMark), (Rectangle{40, 25, 10, 5}))
        << "its upper part is hidden, its right cut";
    form.picOver.Height = 60;
    EXPECT_EQ(SeenPart(form.picBoard), (Rectangle{0, 10, 20, 40}));
    EXPECT_TRUE(SeenPart(form.imgMark).Empty());
    form.picOver.Visible = false;
    EXPECT_EQ(SeenPart(form.imgMark), (Rectangle{40, 10, 10, 20}));
    form.picCard.Left = form.picCard.Top = 0;
    form.picCard.Width = 60;
    form.picCard.Height = 35;
    EXPECT_EQ(SeenPart(form.picBoard), (Rectangle{0, 45, 50, 5})) << "what lies in it hides it too";
    EXPECT_TRUE(SeenPart(form.imgMark).Empty()) << "the card was put later";
    form.picBoard.Visible = false;
    EXPECT_TRUE(SeenPart(form.picCard).Empty());
    form.picBoard.Visible = true;
    form.Visible = false;
    EXPECT_TRUE(SeenPart(form.picCard).Empty());
}

}  // namespace
