#include "data/campaign_layout.h"

#include <span>
#include <type_traits>

#include "platform/code_page.h"
#include "platform/quoted.h"
#include "platform/run_time_error.h"

namespace {

template <typename RecordType>
void ReadAll(std::span<const FieldLayout<RecordType>> fields, const Record& record, std::size_t base,
             RecordType& to) {
    for (const FieldLayout<RecordType>& layout : fields) {
        const std::size_t at = base + layout.offset;
        if (const auto* number = std::get_if<i16 RecordType::*>(&layout.field)) {
            to.*(*number) = record.ReadInt16(at);
        } else if (const auto* byte = std::get_if<u8 RecordType::*>(&layout.field)) {
            const int value = record.ReadByte(at);
            if (value > layout.highest)
                record.Refuse(at, "expected a number up to " + std::to_string(layout.highest) + ", found " +
                                      std::to_string(value));
            to.*(*byte) = value;
        } else {
            const std::string text = record.ReadText(at, layout.textLength);
            to.*std::get<std::string RecordType::*>(layout.field) = layout.trimmed ? TrimBlanks(text) : text;
        }
    }
}

template <typename RecordType>
void WriteAll(std::span<const FieldLayout<RecordType>> fields, Record& record, std::size_t base,
              const RecordType& from) {
    for (const FieldLayout<RecordType>& layout : fields) {
        const std::size_t at = base + layout.offset;
        if (const auto* number = std::get_if<i16 RecordType::*>(&layout.field)) {
            record.WriteInt16(at, from.*(*number));
        } else if (const auto* byte = std::get_if<u8 RecordType::*>(&layout.field)) {
            record.WriteByte(at, from.*(*byte));
        } else {
            const std::string& text = from.*std::get<std::string RecordType::*>(layout.field);
            record.WriteText(at, layout.textLength, PadField(text, std::string(layout.textLength, ' ')));
        }
    }
}

}  // namespace

void ReadFields(const Record& record, std::size_t base, InvItem& item) {
    ReadAll(std::span<const FieldLayout<InvItem>>(ItemFields), record, base, item);
}

void ReadFields(const Record& record, std::size_t base, Unit& soldier) {
    ReadAll(std::span<const FieldLayout<Unit>>(SoldierFields), record, base, soldier);
}

void WriteFields(Record& record, std::size_t base, const InvItem& item) {
    WriteAll(std::span<const FieldLayout<InvItem>>(ItemFields), record, base, item);
}

void WriteFields(Record& record, std::size_t base, const Unit& soldier) {
    WriteAll(std::span<const FieldLayout<Unit>>(SoldierFields), record, base, soldier);
}

Record PlaceHeader(const std::string& label, int count) {
    const FieldLayout<InvItem>& name = ItemFields[0];
    Record header(PlaceLength, "the header of \"" + label + "\"");
    header.WriteText(PlaceItemsAt + name.offset, name.textLength, label);
    header.WriteByte(PlaceCountAt, count);
    return header;
}

std::string TrimBlanks(const std::string& text) {
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

std::string PadField(const std::string& text, const std::string& current) {
    constexpr std::size_t Margin = 2;
    const std::size_t length = ToCodePage(text).size();
    if (length > current.size() + Margin)
        throw RunTimeError(Fault::Overflow, Quoted(text) + " is longer than its field of " +
                                                std::to_string(current.size()) + " characters");
    return text + std::string(current.size() + Margin - length, ' ');
}
