// Where a program finds the game's files, and where it keeps the player's. The programs that people start ask
// this once; tests and tools name their folders themselves.
#pragma once

#include <filesystem>

struct GameFolders {
    std::filesystem::path program;  // data, maps, pictures and sounds
    std::filesystem::path
        players;  // what the game writes; empty: the program's folder, as SetProgramFolder takes it
};

/// The folders of a program that lies in `own`. Data beside the program are taken first: a folder that runs
/// where it lies keeps the player's files too if it can be written to. Else the data are those of an
/// installation, in "../share/sarnoth", and the player's files lie in his home. Throws FileWrite when he
/// needs one and has none.
GameFolders FoldersOf(const std::filesystem::path& own);

/// The folder that the running program lies in.
std::filesystem::path OwnFolder();

/// The running program as a file, even when another one has taken its place since.
std::filesystem::path OwnProgram();
