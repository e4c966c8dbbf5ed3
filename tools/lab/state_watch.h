// Watches the whole state of the game: which fields have changed since it last looked, and one number for all
// of them, the same on every machine.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

class StateWatch {
  public:
    /// Takes the state as it is now.
    StateWatch();
    ~StateWatch();
    StateWatch(const StateWatch&) = delete;
    StateWatch& operator=(const StateWatch&) = delete;

    /// What has changed since it last looked, a field a line as "UnitTable[3].time 80 -> 76", in a fixed
    /// order, after the lines that the log has told since.
    std::vector<std::string> Look();

    /// Of the state when it last looked.
    std::uint64_t Hash() const { return hash; }

  private:
    struct Seen;
    std::unique_ptr<Seen> seen;
    std::uint64_t hash = 0;
};
