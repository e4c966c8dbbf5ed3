#include "view/field_audience.h"

#include "personal/award_view.h"
#include "platform/host.h"
#include "state/state.h"
#include "view/field_form.h"
#include "view/field_view.h"
#include "view/map_painting.h"
#include "view/mini_map.h"
#include "view/overlays.h"
#include "view/painting.h"
#include "view/panel.h"
#include "view/slots.h"
#include "view/sound.h"
#include "view/trail.h"
#include "view/unit_painting.h"

// The field stays hidden until everybody has landed.
void FieldAudience::MissionBegins() {
    TheHost().Refresh(frmField);
    frmField.area.canvas.Fill(frmField.area.BackColor);
    TheHost().Refresh(frmField.area);
    frmField.area.Visible = false;
}

void FieldAudience::MapRead() {
    PaintMap();
}

void FieldAudience::MissionReady() {
    frmField.area.Visible = true;
    RefreshMiniMapWindow();
}

void FieldAudience::MissionEnds() {
    frmField.Visible = false;
}

void FieldAudience::LineLogged(const std::string& line) {
    AddToList(line);
}

void FieldAudience::CellChanged(int x, int y) {
    PaintCell(x, y, frmField.area.canvas);
}

void FieldAudience::ShowNow() {
    TheHost().Refresh(frmField.area);
}

void FieldAudience::UnitLanded() {
    SaveBackground(curUnit);
}

void FieldAudience::UnitChanged(bool seen) {
    PaintStanding(seen);
}

void FieldAudience::StepBegins(int toX, int toY) {
    BeginStep(toX, toY);
}

void FieldAudience::UnitMoved(int dx, int dy) {
    PaintPixelOfStep(dx, dy);
}

void FieldAudience::StepEnds(int fromX, int fromY) {
    EndStep(fromX, fromY);
}

void FieldAudience::UnitMovedUnseen(int dx, int dy) {
    MoveUnseen(dx, dy);
}

// The log and the bars show it.
void FieldAudience::UnitHurt(int /*by*/, int /*damage*/) {}

void FieldAudience::UnitSighted(int x, int y) {
    PaintUnitAtCell(x, y);
}

void FieldAudience::EnemiesCounted() {
    ShowEnemyCount();
}

void FieldAudience::FiguresChanged(std::string_view what) {
    ShowFigures(what);
}

void FieldAudience::StanceChanged(int stance) {
    ShowStance(stance);
}

void FieldAudience::FiringSwitched() {
    ShowFiring();
}

void FieldAudience::ModesChanged() {
    ShowModes();
}

void FieldAudience::RoundsChanged() {
    ShowWeaponBox(UnitTable[curUnit].handRounds);
}

void FieldAudience::HandChanged() {
    ShowSlot(0, frmField);
}

void FieldAudience::MakerChanged(const WeaponInfo& hand) {
    ShowMakersFlag(hand);
}

void FieldAudience::PanelChanged() {
    RedrawPanel();
}

void FieldAudience::SoundPlayed(const std::string& name, int column) {
    PlaySoundAt(name, column);
}

void FieldAudience::OverlayBegins(Overlay overlay, int x, int y) {
    PutOverlay(overlay, x, y);
}

void FieldAudience::OverlayFrame(Overlay overlay, int frame) {
    ShowOverlayFrame(overlay, frame);
}

void FieldAudience::OverlayEnds(Overlay overlay) {
    RestOverlay(overlay);
}

void FieldAudience::TrailChanged(std::string_view mode) {
    ChangeTrail(mode);
}

void FieldAudience::TrailDrawn(int pixelX, int pixelY) {
    DrawTrail(pixelX, pixelY);
}

void FieldAudience::UnitBroughtIntoView(int unit) {
    BringIntoView(unit);
}

void FieldAudience::SelectionFlashed(int unit, bool shown) {
    frmField.shpSelect.Visible = shown && SelectionFrames(UnitTable[unit]);
}

void FieldAudience::AwardShown(int row) {
    ShowAward(row);
}

void FieldAudience::AwardPutAway() {
    PutAwardAway();
}
