#include "view/stored_pictures.h"

#include <map>
#include <string>

#include "platform/picture_file.h"
#include "platform/run_time_error.h"
#include "view/embedded_files.h"

PictureRef StoredImage(std::string_view name) {
    static std::map<std::string, PictureRef, std::less<>> decoded;
    const auto known = decoded.find(name);
    if (known != decoded.end()) return known->second;
    for (const EmbeddedFile& file : EmbeddedFiles()) {
        if (file.name != name) continue;
        auto picture = std::make_shared<Picture>(DecodePicture(file.content, name));
        return decoded.emplace(name, std::move(picture)).first->second;
    }
    throw RunTimeError(Fault::FileMissing, "stored picture " + std::string(name));
}

const Picture& StoredPicture(std::string_view name) {
    return *StoredImage(name);
}
