// Runs the picture generator in a folder of its own.
#pragma once

#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "catalogue/run.h"

class ArtRun : public testing::Test {
  protected:
    ArtRun() : folder(std::filesystem::temp_directory_path() / UniqueName()) {
        std::filesystem::create_directories(hand);
    }
    ~ArtRun() override { std::filesystem::remove_all(folder); }

    // The exit code; what was printed is in `printed`.
    int Run(const std::vector<std::string>& arguments) {
        std::ostringstream text;
        const int code = art::Run(arguments, hand.string(), text, text);
        printed = text.str();
        return code;
    }

    std::filesystem::path folder;
    std::filesystem::path hand = folder / "hand";
    std::filesystem::path out = folder / "out";
    std::string printed;

  private:
    static std::string UniqueName() {
        const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
        return std::string("sarnoth_art_") + test->test_suite_name() + test->name() +
               std::to_string(testing::UnitTest::GetInstance()->random_seed()) + std::to_string(getpid());
    }
};
