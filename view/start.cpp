#include "view/start.h"

#include <chrono>

#include "mission/setup.h"
#include "view/field_form.h"
#include "view/forms.h"

void Main(std::uint32_t seed) {
    ResetForms();
    frmField.Visible = true;
    BeginGame(seed);
}

std::uint32_t TimerSeed() {
    const auto sinceEpoch = std::chrono::system_clock::now().time_since_epoch();
    return static_cast<std::uint32_t>(
        std::chrono::duration_cast<std::chrono::milliseconds>(sinceEpoch).count());
}
