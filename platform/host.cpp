#include "platform/host.h"

#include <cassert>

namespace {

Host* installed = nullptr;

}  // namespace

Host& TheHost() {
    assert(installed != nullptr);
    return *installed;
}

void InstallHost(Host* host) {
    installed = host;
}
