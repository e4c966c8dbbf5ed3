#include "personal/award_view.h"

#include "personal/info_form.h"
#include "personal/personal_file.h"

void ShowAward(int row) {
    LoadInfo();
    frmInfo.imgAwardBorder.Left = frmInfo.imgAward[row].Left;
    frmInfo.imgAwardBorder.Top = frmInfo.imgAward[row].Top;
    frmInfo.imgAwardBorder.Visible = true;
}

void PutAwardAway() {
    constexpr int RestLeft = 530;
    constexpr int RestTop = 20;
    frmInfo.imgAwardBorder.Visible = false;
    frmInfo.imgAwardBorder.Left = RestLeft;
    frmInfo.imgAwardBorder.Top = RestTop;
    CloseInfo();
}
