#include "combat/trail.h"

#include "state/audience.h"
#include "state/pace.h"

void BulletTrail(std::string_view mode) {
    if (mode == "finalize")
        DelayThen(1, [] { TheAudience().TrailChanged("finalize"); });
    else
        TheAudience().TrailChanged(mode);
}
