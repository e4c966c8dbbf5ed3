#include "field/sightings.h"

#include "state/state.h"
#include "view/field_form.h"

void MarkCurrentUnit() {
    frmField.imgMarkH.Left = frmField.area.Left + UnitTable[curUnit].pixelX;
    frmField.imgMarkV.Top = frmField.area.Top + UnitTable[curUnit].pixelY;
}
