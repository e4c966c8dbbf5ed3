// Saves the vehicle store over and over, with one of two contents by turns, until it is killed; or checks
// that the store in a folder is wholly one of the two. The script beside it does the killing.
#include <cstdio>
#include <cstring>
#include <string>

#include "data/campaign_files.h"
#include "data/tables.h"
#include "platform/files.h"
#include "platform/run_time_error.h"
#include "state/state.h"

namespace {

constexpr int Contents[] = {111, 222};

void Fill(int content) {
    for (InvItem& item : storeItems) {
        item.name = content == Contents[0] ? "ak" : "med";
        item.durab = content;
    }
}

bool HoldsOneContent() {
    LoadStore();
    const int first = storeItems[0].durab;
    for (const InvItem& item : storeItems)
        if (item.durab != first) return false;
    return first == Contents[0] || first == Contents[1];
}

}  // namespace

int main(int argc, char** argv) try {
    if (argc != 3) return 2;
    SetProgramFolder(argv[1]);
    InitTables();
    if (std::strcmp(argv[2], "check") == 0) return HoldsOneContent() ? 0 : 1;
    for (int turn = 0;; turn = 1 - turn) {
        Fill(Contents[turn]);
        SaveStore();
    }
} catch (const RunTimeError& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
}
