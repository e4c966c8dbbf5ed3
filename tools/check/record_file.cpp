#include "tools/check/record_file.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>

#include "platform/code_page.h"

namespace {

// The names of fields, in the order of the tables that say where they lie.
constexpr const char* ThingFields[] = {"name",       "count",      "durab",     "ammoMain",    "capMain",
                                       "roundsMain", "ammoSecond", "capSecond", "roundsSecond"};
constexpr const char* UnitFields[] = {
    "serialNo", "rank",     "name",    "country",    "facePrefix",   "faceGroup",  "faceNo",       "faceType",
    "vitality", "strength", "agility", "perception", "intelligence", "mood",       "marksmanship", "stealth",
    "melee",    "sidearms", "smgs",    "rifles",     "machineguns",  "explosives", "cellX",        "cellY",
    "facing",   "stance",   "time",    "health",     "energy",       "aimChance"};
static_assert(std::size(ThingFields) == std::size(ItemFields));
static_assert(std::size(UnitFields) == std::size(SoldierFields));

std::span<const char* const> NamesOf(std::span<const FieldLayout<InvItem>>) {
    return ThingFields;
}
std::span<const char* const> NamesOf(std::span<const FieldLayout<Unit>>) {
    return UnitFields;
}

template <typename RecordType>
std::size_t OffsetOf(std::span<const FieldLayout<RecordType>> fields, const std::string& field) {
    const std::span<const char* const> names = NamesOf(fields);
    const auto found = std::find(names.begin(), names.end(), field);
    if (found == names.end()) throw std::logic_error("no field is named " + field);
    return fields[static_cast<std::size_t>(found - names.begin())].offset;
}

// The first byte that no text holds; the length when all is well. A zero ends a text.
std::size_t BadCharacter(const Record& record, std::size_t at, std::size_t textLength) {
    for (std::size_t i = 0; i < textLength; ++i) {
        const int code = record.ReadByte(at + i);
        if (code == 0) return textLength;
        if (code < ' ') return i;
    }
    return textLength;
}

}  // namespace

RecordFile::RecordFile(const std::filesystem::path& path, std::size_t recordLength, Findings& collected)
    : name(path.string()), length(recordLength), findings(collected) {
    const std::size_t before = findings.size();
    content = ReadChecked(path, findings);
    there = findings.size() == before;
}

void RecordFile::CheckCount(int records, const std::string& why) {
    const std::size_t bytes = static_cast<std::size_t>(records) * length;
    if (!there || content.size() == bytes) return;
    const std::size_t place = std::min(bytes, content.size());
    Add(static_cast<int>(place / length) + 1, place % length, "its end",
        "a file of " + std::to_string(content.size()) + " bytes",
        std::to_string(bytes) + " bytes: " + std::to_string(records) + " records, " + why);
}

int RecordFile::Byte(int record, std::size_t offset) const {
    return At(record).ReadByte(offset);
}

Record RecordFile::At(int record) const {
    Record bytes(length, name);
    const std::size_t start = static_cast<std::size_t>(record - 1) * length;
    std::copy_n(content.begin() + static_cast<std::ptrdiff_t>(start), length, bytes.Bytes().begin());
    return bytes;
}

template <typename RecordType>
RecordType RecordFile::ReadAll(std::span<const FieldLayout<RecordType>> fields, int record, std::size_t base,
                               const std::string& owner) {
    const Record bytes = At(record);
    RecordType result;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const FieldLayout<RecordType>& layout = fields[i];
        const std::size_t at = base + layout.offset;
        const std::string field = owner + NamesOf(fields)[i];
        if (const auto* number = std::get_if<i16 RecordType::*>(&layout.field)) {
            result.*(*number) = bytes.ReadInt16(at);
        } else if (const auto* byte = std::get_if<u8 RecordType::*>(&layout.field)) {
            const int value = bytes.ReadByte(at);
            if (value > layout.highest)
                Add(record, at, field, std::to_string(value) + " is too much",
                    "a number up to " + std::to_string(layout.highest));
            else
                result.*(*byte) = value;
        } else {
            const std::size_t bad = BadCharacter(bytes, at, layout.textLength);
            if (bad < layout.textLength) {
                Add(record, at + bad, field, "the code " + std::to_string(bytes.ReadByte(at + bad)),
                    "a text");
                continue;
            }
            const std::string text = bytes.ReadText(at, layout.textLength);
            result.*std::get<std::string RecordType::*>(layout.field) =
                layout.trimmed ? TrimBlanks(text) : text;
        }
    }
    return result;
}

InvItem RecordFile::ReadThing(int record, std::size_t base, const std::string& owner) {
    return ReadAll(std::span<const FieldLayout<InvItem>>(ItemFields), record, base, owner);
}

Unit RecordFile::ReadSoldier(int record) {
    return ReadAll(std::span<const FieldLayout<Unit>>(SoldierFields), record, 0, "");
}

void RecordFile::Add(int record, std::size_t offset, const std::string& field, const std::string& wrong,
                     const std::string& expected, const std::string& meant) {
    Finding finding;
    finding.file = name;
    finding.record = record;
    finding.field = field;
    finding.byte = static_cast<std::size_t>(record - 1) * length + offset;
    finding.wrong = wrong;
    finding.expected = expected;
    finding.meant = meant;
    findings.push_back(finding);
}

std::size_t ThingOffset(const std::string& field) {
    return OffsetOf(std::span<const FieldLayout<InvItem>>(ItemFields), field);
}

std::size_t SoldierOffset(const std::string& field) {
    return OffsetOf(std::span<const FieldLayout<Unit>>(SoldierFields), field);
}
