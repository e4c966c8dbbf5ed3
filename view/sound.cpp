#include "view/sound.h"

#include <cstdlib>

#include "platform/files.h"
#include "platform/numbers.h"
#include "state/state.h"
#include "view/field_form.h"

namespace {

constexpr int LastSlot = 4;
constexpr int CentreColumn = 20;        // screen column that sounds from the middle
constexpr int PanOfColumn = 50;         // hundredths of a decibel for each column off the middle
constexpr int PlayedFrequency = 45000;  // whatever a file says

// The column on the screen of a map column or a position code.
i16 ScreenColumn(int column) {
    i16 placed = column == AtCurrentUnit ? static_cast<int>(UnitTable[curUnit].cellX) : column;
    if (placed != AtScreenCentre)
        placed = placed - frmField.HScrollArea.Value / static_cast<double>(CellSize);
    return placed;
}

}  // namespace

SoundRequest SoundAt(const std::string& name, int column) {
    SoundRequest sound;
    sound.fileName = "\\wav\\" + name + ".wav";
    sound.pan = (ScreenColumn(column) - CentreColumn) * PanOfColumn;
    sound.volume = -std::abs(sound.pan);
    sound.frequency = PlayedFrequency;
    return sound;
}

void PlaySoundAt(const std::string& name, int column) {
    if (name.starts_with("voice") && voiceOn == 0) return;
    if (!FileExists("\\wav\\" + name + ".wav")) return;
    SoundRequest sound = SoundAt(name, column);
    sound.slot = frmField.voiceCycle;
    TheHost().PlaySound(sound);
    frmField.voiceCycle = frmField.voiceCycle == LastSlot ? 1 : frmField.voiceCycle + 1;
}
