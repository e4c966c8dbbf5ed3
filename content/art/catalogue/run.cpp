#include "catalogue/run.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <future>
#include <iomanip>
#include <ostream>
#include <thread>

#include <QImageReader>

#include "catalogue/gallery.h"
#include "catalogue/hand_files.h"
#include "catalogue/names.h"
#include "kit/fault.h"
#include "kit/picture_writer.h"

namespace art {
namespace {

constexpr int UsageCode = 2;

using Arguments = std::vector<std::string>;
using Chosen = std::vector<const Entry*>;

struct Call {
    const Arguments& values;  // what follows the option
    const std::string& handFolder;
    std::ostream& out;
};

// Writes on whatever processors there are. A fault stops all of them.
void WriteAll(const Gallery& gallery, const Chosen& chosen, const std::string& folder) {
    // The toolkit's readers must be loaded by a thread that lives to the end: they die with its data.
    QImageReader::supportedImageFormats();
    const PictureWriter writer(folder);
    std::atomic<std::size_t> next = 0;
    const auto work = [&] {
        try {
            for (std::size_t i = next++; i < chosen.size(); i = next++)
                writer.Write(chosen[i]->path, gallery.FilePicture(*chosen[i]));
        } catch (...) {
            next = chosen.size();
            throw;
        }
    };
    std::vector<std::future<void>> workers;
    for (unsigned i = 0; i < std::max(1u, std::thread::hardware_concurrency()); ++i)
        workers.push_back(std::async(std::launch::async, work));
    for (const std::future<void>& worker : workers)
        worker.wait();
    for (std::future<void>& worker : workers)
        worker.get();
}

void MakeAll(const Call& call) {
    const Gallery gallery(call.handFolder);
    Chosen all;
    for (const Entry& entry : gallery.Entries())
        all.push_back(&entry);
    WriteAll(gallery, all, call.values[0]);
}

// Whether a picture comes from a hand file that is newer than it.
bool IsEdited(const Gallery& gallery, const Entry& entry, const std::filesystem::path& folder) {
    const std::filesystem::path written = folder / entry.path;
    return gallery.IsByHand(entry) &&
           (!std::filesystem::exists(written) || std::filesystem::last_write_time(gallery.HandFile(entry)) >
                                                     std::filesystem::last_write_time(written));
}

bool IsMadeOf(const Entry& entry, const Chosen& pictures) {
    return std::ranges::any_of(entry.of, [&](const std::string& name) {
        return std::ranges::any_of(pictures,
                                   [&](const Entry* picture) { return Matches(picture->path, name); });
    });
}

void MakeEdited(const Call& call) {
    const std::string& folder = call.values[0];
    const Gallery gallery(call.handFolder);
    Chosen edited, others, both;
    for (const Entry& entry : gallery.Entries()) {
        const bool itself = IsEdited(gallery, entry, folder);
        if (!itself && (gallery.IsByHand(entry) || !IsMadeOf(entry, both))) continue;
        (itself ? edited : others).push_back(&entry);
        both.push_back(&entry);
    }
    // A run that breaks off leaves the edited ones for the next.
    WriteAll(gallery, others, folder);
    WriteAll(gallery, edited, folder);
}

void MakeOnly(const Call& call) {
    const Gallery gallery(call.handFolder);
    const Chosen chosen = Named(gallery.Entries(), call.values[0]);
    WriteAll(gallery, chosen, call.values[1]);
    for (const Entry* entry : chosen)
        call.out << call.values[1] << '/' << entry->path << '\n';
}

// What sets a picture apart from others of its routine.
std::string NoteOf(const Entry& entry) {
    std::string note = entry.note;
    for (const std::string& name : entry.of)
        note += (&name == &entry.of.front() ? " of " : " ") + name;
    return note.starts_with(' ') ? note.substr(1) : note;
}

void List(const Call& call) {
    constexpr int PathWidth = 28;
    constexpr int SourceWidth = 42;
    const Gallery gallery(call.handFolder);
    for (const Entry& entry : gallery.Entries()) {
        const bool kept = !entry.draw;
        const bool byHand = kept || gallery.IsByHand(entry);
        const std::string note = byHand && !kept ? "instead of " + entry.source : NoteOf(entry);
        call.out << std::left << std::setw(PathWidth) << entry.path << ' ';
        if (!note.empty()) call.out << std::setw(SourceWidth);
        call.out << (byHand ? "hand/" + Stem(entry.path) + ".png" : entry.source);
        call.out << (note.empty() ? "" : " ") << note << '\n';
    }
}

void Export(const Call& call) {
    const Gallery gallery(call.handFolder);
    for (const Entry* entry : Named(gallery.Entries(), call.values[0])) {
        const std::string path = gallery.HandFile(*entry).string();
        if (entry->kind == Kind::ForLooking)
            throw UsageFault(entry->path + " is made of other pictures; export those");
        if (gallery.IsByHand(*entry)) throw UsageFault(path + " is there already");
        WriteHandFile(path, *entry, gallery.Picture(entry->path));
        call.out << path << '\n';
    }
}

// The inks in the format that pixel editors share.
void PrintPalette(const Call& call) {
    call.out << "GIMP Palette\nName: Sarnoth III\nColumns: 8\n"
             << "# The first " << FieldInkCount << " are the field's inks; other pictures use all.\n";
    for (const InkRow& ink : Inks)
        call.out << qRed(ink.colour) << ' ' << qGreen(ink.colour) << ' ' << qBlue(ink.colour) << '\t'
                 << ink.name << '\n';
}

void Help(const Call& call);

struct Option {
    const char* name;
    const char* values;
    std::size_t count;
    void (*run)(const Call&);
    const char* does;
};

constexpr Option Options[] = {
    {"", "OUTDIR", 1, MakeAll, "makes every picture: stored/, pic/ and sheets/ in that folder"},
    {"--only", "NAME OUTDIR", 2, MakeOnly, "makes those of that name"},
    {"--edited", "OUTDIR", 1, MakeEdited, "makes those whose hand files are newer, and what is made of them"},
    {"--list", "", 0, List, "says of every picture which hand file it is, or which routine draws it"},
    {"--export", "NAME", 1, Export, "writes the drawn picture as a hand file, to be painted over"},
    {"--palette", "", 0, PrintPalette, "prints the inks as a palette for editors (.gpl)"},
    {"--help", "", 0, Help, "this"},
};

std::string Usage(const Option& option) {
    return std::string("sarnoth_art ") + option.name + (*option.name != '\0' && option.count > 0 ? " " : "") +
           option.values;
}

void Help(const Call& call) {
    constexpr int UsageWidth = 34;
    call.out
        << "Makes the game's pictures: from the hand file content/art/hand/<path>.png where there is one,\n"
           "by drawing otherwise.\n\n";
    for (const Option& option : Options)
        call.out << "  " << std::left << std::setw(UsageWidth) << Usage(option) << option.does << '\n';
    call.out
        << "\nNAME is a path (pic/faces/usa03.bmp), a path without its ending, or a pattern "
           "(\"pic/inv/m16*\").\n"
           "Exit codes: 0; 1 for a fault in a hand file, or what can't be written; 2 for a call that isn't\n"
           "understood.\n";
}

const Option& OptionOf(const Arguments& arguments) {
    if (arguments.empty()) throw UsageFault("a folder to write into is missing; see sarnoth_art --help");
    const std::string& first = arguments.front();
    if (!first.starts_with('-')) return Options[0];
    Arguments names;
    for (const Option& option : Options) {
        if (first == option.name) return option;
        names.emplace_back(option.name);
    }
    throw UsageFault("unknown option " + first + Meant(first, names));
}

void Act(Arguments arguments, const std::string& handFolder, std::ostream& out) {
    const Option& option = OptionOf(arguments);
    if (*option.name != '\0') arguments.erase(arguments.begin());
    if (arguments.size() != option.count) throw UsageFault("expected: " + Usage(option));
    for (const std::string& value : arguments) {
        if (value.starts_with('-')) throw UsageFault("expected: " + Usage(option) + ", not " + value);
    }
    option.run({arguments, handFolder, out});
}

}  // namespace

int Run(const std::vector<std::string>& arguments, const std::string& handFolder, std::ostream& out,
        std::ostream& errors) {
    try {
        Act(arguments, handFolder, out);
        return EXIT_SUCCESS;
    } catch (const UsageFault& fault) {
        errors << "sarnoth_art: " << fault.what() << '\n';
        return UsageCode;
    } catch (const std::exception& fault) {
        errors << "sarnoth_art: " << fault.what() << '\n';
        return EXIT_FAILURE;
    }
}

}  // namespace art
