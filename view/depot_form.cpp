#include "view/depot_form.h"

#include <string>

#include "view/stored_pictures.h"

DepotForm frmDepot;
MiniMapForm frmMiniMap;

DepotForm::DepotForm() {
    name = "frmDepot";
    Caption = "Sarnoth III :: Depot";
    Width = 925;
    Height = 556;
    Visible = false;
    // clang-format off
    //  control     name          in     left top width height
    Put(picScript,  "picScript",  *this,   0,   0, 450,  16);
    Put(picSprites, "picSprites", *this,   0,  16, 640, 320);
    Put(picPeople,  "picPeople",  *this,   0,  16, 640, 320);
    Put(picMap,     "picMap",     *this,   0,  16, 640, 640);
    PutArray(imgBut, "imgBut",    *this, 660,  16,  60,  19);
    // clang-format on
    for (PictureBox* sheet : {&picScript, &picSprites, &picPeople, &picMap})
        sheet->canvas = StoredPicture(sheet->name + ".bmp");
    for (ImageControl& face : imgBut)
        face.Picture = StoredImage("imgBut" + std::to_string(face.index) + ".bmp");
}

MiniMapForm::MiniMapForm() {
    name = "frmMiniMap";
    Caption = "Sarnoth III :: Mini Map";
    Width = 770;
    Height = 470;
    Visible = false;
    Put(Picture1, "Picture1", *this, 0, 0, 770, 470);
}
