#include "state/audience.h"

#include <cassert>

namespace {

Audience* installed = nullptr;

}  // namespace

Audience& TheAudience() {
    assert(installed != nullptr);
    return *installed;
}

void InstallAudience(Audience* audience) {
    installed = audience;
}
