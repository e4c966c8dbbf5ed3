#include "personal/awards_page.h"

#include <string>

#include "personal/info_form.h"
#include "state/state.h"
#include "view/overlays.h"

void ShowAwards() {
    const auto& awards = UnitTable[curUnit].awards;
    for (int i = awards.Lower; i <= awards.Upper; ++i)
        if (awards[i] > 0)
            LoadPicture(frmInfo.imgAward[i],
                        "\\pic\\awards\\" + TwoDigits(i) + TwoDigits(awards[i]) + ".bmp");
}

void imgAward_MouseMove(int place) {
    const int count = UnitTable[curUnit].awards[place];
    const std::string& title = awardTable[place].title;
    frmInfo.imgAward[place].ToolTipText = count > 1 ? title + ": " + std::to_string(count) : title;
}
