#include "state/higher_rules.h"

#include <cassert>

namespace {

HigherRules installed = {};

}  // namespace

const HigherRules& TheHigherRules() {
    assert(installed.selectNextUnit != nullptr);
    return installed;
}

void InstallHigherRules(const HigherRules& rules) {
    installed = rules;
}
