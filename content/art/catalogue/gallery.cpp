#include "catalogue/gallery.h"

#include <mutex>
#include <utility>

#include "catalogue/hand_files.h"
#include "catalogue/pictures.h"
#include "catalogue/sheets.h"
#include "kit/canvas.h"
#include "kit/fault.h"

namespace art {

struct Gallery::Made {
    std::mutex busy;
    QImage picture;
};

Gallery::Gallery(std::filesystem::path handFolder) : folder(std::move(handFolder)), entries(GamePictures()) {
    std::vector<Entry> sheets = SheetsOf(entries);
    entries.insert(entries.end(), std::make_move_iterator(sheets.begin()),
                   std::make_move_iterator(sheets.end()));
    for (std::size_t i = 0; i < entries.size(); ++i)
        places.emplace(entries[i].path, i);
    made = std::make_unique<Made[]>(entries.size());
    CheckHandNames(folder, entries);
}

Gallery::~Gallery() = default;

std::filesystem::path Gallery::HandFile(const Entry& entry) const {
    return HandPath(folder, entry);
}

bool Gallery::IsByHand(const Entry& entry) const {
    return entry.kind != Kind::ForLooking && std::filesystem::exists(HandFile(entry));
}

QImage Gallery::Make(const Entry& entry) const {
    if (IsByHand(entry)) return ReadHandFile(HandFile(entry), entry);
    if (!entry.draw) throw Fault(HandFile(entry).string() + ": missing; " + entry.path + " is made of it");
    QImage picture = entry.draw([this](const std::string& path) { return Picture(path); });
    if (entry.kind != Kind::ForLooking && picture.size() != entry.size)
        throw Fault(entry.source + " doesn't draw " + entry.path + " in the size of the catalogue");
    return picture;
}

QImage Gallery::Picture(const std::string& path) const {
    const std::size_t place = places.at(path);
    Made& here = made[place];
    const std::scoped_lock lock(here.busy);
    if (here.picture.isNull()) here.picture = Make(entries[place]);
    return here.picture;
}

QImage Gallery::FilePicture(const Entry& entry) const {
    QImage picture = Picture(entry.path);
    switch (entry.kind) {
        case Kind::Indexed:
            return Indexed(picture);
        case Kind::MasksBelow:
        case Kind::MasksAbove: {
            const Masked masked = MaskOut(picture);
            const bool below = entry.kind == Kind::MasksBelow;
            QImage both = Sheet(picture.width(), 2 * picture.height());
            Place(both, 0, 0, below ? masked.picture : masked.mask);
            Place(both, 0, picture.height(), below ? masked.mask : masked.picture);
            return both;
        }
        default:
            return picture;
    }
}

}  // namespace art
