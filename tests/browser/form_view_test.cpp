// What the page is sent of records: everything once, and then what differs.
#include "browser/form_view.h"

#include <gtest/gtest.h>

#include "browser/json.h"
#include "tests/browser/written_page.h"
#include "tests/support/test_form.h"

namespace {

class FormViewTest : public testing::Test {
  protected:
    std::vector<std::string> NewsOfSync() {
        view.Sync();
        return page.News();
    }

    WrittenPage page;
    TestForm form;
    FormView view{form, page};
};

TEST_F(FormViewTest, EveryControlIsSentOnceWithItsKindAndPlace) {
    view.Sync();
    for (const char* part :
         {R"({"is":"form","id":"frmTest","within":"","caption":"Test")",
          R"("id":"frmTest.imgStance#1","kind":"image","form":"frmTest","parent":"frmTest.picSlate")",
          R"("kind":"combo")", R"("kind":"list")", R"("kind":"line")", R"("kind":"menu")",
          R"("left":0,"top":0,"width":200,"height":17,"visible":true,"enabled":true)",
          R"("value":0,"least":0,"most":760,"small":20,"large":760)", "pixels frmTest.picBoard 0,0 300x240"})
        EXPECT_TRUE(page.Says(part)) << part;
    EXPECT_FALSE(page.Says("timTick"));
    page.News();
    EXPECT_TRUE(NewsOfSync().empty());
}

TEST_F(FormViewTest, AChangeIsSentAlone) {
    view.Sync();
    page.News();
    struct Case {
        void (*change)(TestForm&);
        const char* id;
        const char* part;
    };
    const Case cases[] = {
        {[](TestForm& f) { f.picBoard.Left = -70; }, "frmTest.picBoard", R"("left":-70,)"},
        {[](TestForm& f) { f.imgMark.Visible = false; }, "frmTest.imgMark", R"("visible":false)"},
        {[](TestForm& f) { f.cmdGo.Enabled = false; }, "frmTest.cmdGo", R"("enabled":false)"},
        {[](TestForm& f) { f.VScroll.Value = 40; }, "frmTest.VScroll", R"("value":40)"},
        {[](TestForm& f) { f.shpFrame.BorderColor = Rgb(1, 2, 3); }, "frmTest.shpFrame",
         R"("fore":"#010203")"},
        {[](TestForm& f) { f.lblNote.Caption = "a\r\"b\""; }, "frmTest.lblNote",
         R"("caption":"a\u000d\"b\"")"},
    };
    for (const Case& row : cases) {
        row.change(form);
        const std::vector<std::string> news = NewsOfSync();
        ASSERT_EQ(news.size(), 1U) << row.id;
        EXPECT_NE(news[0].find(std::string("\"id\":\"") + row.id + "\""), std::string::npos) << news[0];
        EXPECT_NE(news[0].find(row.part), std::string::npos) << news[0];
    }
}

TEST_F(FormViewTest, OfAListThatGrowsTheNewEntriesAreSent) {
    form.cmbLog.List = {"one", "two"};
    view.Sync();
    page.News();
    form.cmbLog.List.emplace_back("three");
    EXPECT_EQ(NewsOfSync(), std::vector<std::string>{
                                R"({"is":"entries","id":"frmTest.cmbLog","from":2,"entries":["three"]})"});
    form.cmbLog.List = {"one", "other"};
    EXPECT_EQ(NewsOfSync(), std::vector<std::string>{
                                R"({"is":"entries","id":"frmTest.cmbLog","from":1,"entries":["other"]})"});
    form.cmbLog.List.pop_back();
    EXPECT_EQ(NewsOfSync(),
              std::vector<std::string>{R"({"is":"entries","id":"frmTest.cmbLog","from":1,"entries":[]})"});
}

TEST_F(FormViewTest, OfACanvasTheChangedRectangleIsSent) {
    view.Sync();
    page.News();
    form.picBoard.canvas.SetPixel(7, 5, Rgb(1, 2, 3));
    form.picBoard.canvas.MarkChanged({6, 5, 2, 1});
    EXPECT_EQ(NewsOfSync(), std::vector<std::string>{"pixels frmTest.picBoard 6,5 2x1"});
    EXPECT_EQ(page.lastBytes, (std::vector<std::uint8_t>{10, 20, 30, 255, 1, 2, 3, 255}));
}

TEST_F(FormViewTest, APictureIsSentWithItsHolesAndClearedWhenItGoes) {
    auto picture = std::make_shared<Picture>(2, 1);
    picture->SetPixel(0, 0, Rgb(9, 8, 7));
    picture->SetPixel(1, 0, 0);
    form.imgMark.Picture = picture;
    view.Sync();
    EXPECT_TRUE(page.Says("pixels frmTest.imgMark 0,0 2x1"));
    page.News();
    form.imgMark.Picture = nullptr;
    EXPECT_EQ(NewsOfSync(), std::vector<std::string>{R"({"is":"cleared","id":"frmTest.imgMark"})"});
}

TEST_F(FormViewTest, AFilmStandsInThePlaceOfTheCanvas) {
    view.Sync();
    EXPECT_TRUE(view.IsInPlace(form.picBoard));
    Picture film(4, 4);
    page.News();
    view.ShowInstead(form.picBoard, &film, 1, 2);
    view.Sync();
    EXPECT_TRUE(page.Says(R"("left":1,"top":2)"));
    EXPECT_TRUE(page.Says("pixels frmTest.picBoard 0,0 4x4"));
    EXPECT_FALSE(view.IsInPlace(form.picBoard));
    page.News();
    view.ShowInstead(form.picBoard, nullptr, 0, 0);
    view.Sync();
    EXPECT_TRUE(page.Says(R"("left":-50,"top":-40)"));
    EXPECT_TRUE(page.Says("pixels frmTest.picBoard 0,0 300x240"));
}

TEST(JsonTest, TextsAreQuotedAndNumbersShort) {
    JsonObject object;
    object.Add("a\"b", "\\\n\xC3\xA9").Add("share", 0.25).Add("whole", 12.0).Add("no", false);
    EXPECT_EQ(object.Text(), "{\"a\\\"b\":\"\\\\\\u000a\xC3\xA9\",\"share\":0.25,\"whole\":12,\"no\":false}");
}

}  // namespace
