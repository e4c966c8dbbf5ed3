#include "tools/check/picture_checks.h"

#include <algorithm>
#include <string_view>

#include "platform/picture_file.h"
#include "platform/run_time_error.h"

namespace fs = std::filesystem;

namespace {

std::vector<fs::path> PicturesUnder(const fs::path& folder) {
    std::vector<fs::path> pictures;
    if (!fs::is_directory(folder)) return pictures;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        const fs::path ending = entry.path().extension();
        if (ending == ".bmp" || ending == ".gif" || ending == ".jpg") pictures.push_back(entry.path());
    }
    std::sort(pictures.begin(), pictures.end());
    return pictures;
}

// From the game's message, "file: place: expected this, found that".
Finding FindingOf(const fs::path& picture, std::string_view message) {
    constexpr std::string_view Expected = "expected ", Found = ", found ";
    const std::size_t expected = message.find(Expected), found = message.rfind(Found);
    Finding finding;
    finding.file = picture.string();
    finding.wrong =
        std::string(message.substr(0, expected)) + std::string(message.substr(found + Found.size()));
    finding.expected = message.substr(expected + Expected.size(), found - expected - Expected.size());
    return finding;
}

}  // namespace

void CheckPictures(const fs::path& gameFolder, Findings& findings) {
    for (const fs::path& picture : PicturesUnder(gameFolder / "pic")) {
        const std::size_t before = findings.size();
        const std::string content = ReadChecked(picture, findings, MaxPictureFile);
        if (findings.size() > before) continue;
        try {
            DecodePicture(content, "");
        } catch (const RunTimeError& error) {
            findings.push_back(FindingOf(picture, error.About().substr(2)));  // without ": " after no name
        }
    }
}
