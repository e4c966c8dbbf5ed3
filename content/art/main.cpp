// Makes every picture of the game: stored/ is built into the program, pic/ stands beside it, sheets/ is for
// looking.
#include <iostream>

#include "catalogue/run.h"

int main(int argc, char** argv) {
    return art::Run({argv + 1, argv + argc}, HAND_FOLDER, std::cout, std::cerr);
}
