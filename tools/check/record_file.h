// A file of records under check: its fields by name, and faults with the byte where they are.
#pragma once

#include <filesystem>
#include <span>
#include <string>

#include "data/campaign_layout.h"
#include "tools/check/findings.h"

class RecordFile {
  public:
    RecordFile(const std::filesystem::path& path, std::size_t recordLength, Findings& collected);

    /// Records that are whole.
    int Count() const { return static_cast<int>(content.size() / length); }

    /// A fault when there are more or fewer bytes than `records` take.
    void CheckCount(int records, const std::string& why);

    int Byte(int record, std::size_t offset) const;

    /// The fields of a thing or soldier that begins at `base`. What can't be read is a fault and stays at its
    /// start. `owner` comes before the fields' names, as "items[3].".
    InvItem ReadThing(int record, std::size_t base, const std::string& owner);
    Unit ReadSoldier(int record);

    /// `field` begins at `offset` of the record.
    void Add(int record, std::size_t offset, const std::string& field, const std::string& wrong,
             const std::string& expected, const std::string& meant = "");

  private:
    Record At(int record) const;
    template <typename RecordType>
    RecordType ReadAll(std::span<const FieldLayout<RecordType>> fields, int record, std::size_t base,
                       const std::string& owner);

    std::string name;
    bool there = false;  // otherwise the fault is told
    std::string content;
    std::size_t length;
    Findings& findings;
};

/// Where a field of a thing or a soldier lies, by its name in the record. Throws std::logic_error for a name
/// that no field has.
std::size_t ThingOffset(const std::string& field);
std::size_t SoldierOffset(const std::string& field);
