#include "tools/check/soldier_pictures.h"

#include "platform/quoted.h"

namespace fs = std::filesystem;

namespace {

bool Lacks(const fs::path& folder, const std::string& file) {
    return fs::is_directory(folder) && !fs::exists(folder / file);
}

}  // namespace

std::vector<Flaw> SoldierPictureFlaws(const Unit& soldier, const fs::path& gameFolder) {
    std::vector<Flaw> flaws;
    const std::string face = FacePicture(soldier);
    if (face.empty())
        flaws.push_back({"faceType", Quoted(soldier.faceType) + " is no picture type", "b, j or g", ""});
    else if (Lacks(gameFolder / "pic/faces", face))
        flaws.push_back({"faceNo", "there is no picture pic/faces/" + face, "the soldier's face", ""});
    const std::string flag = soldier.country + ".gif";
    if (CountryFlaws(soldier.country).empty() && Lacks(gameFolder / "pic/flags", flag))
        flaws.push_back({"country", "there is no picture pic/flags/" + flag, "the country's flag", ""});
    return flaws;
}
