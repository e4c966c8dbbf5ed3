// The one exception of the game: something that can't go on. The rules throw it and never catch it; the
// program around them shows it and ends with exit code 1.
#pragma once

#include <stdexcept>
#include <string>

/// What went wrong, by kind. The number is shown with the text.
enum class Fault {
    Overflow = 1,     // a value doesn't fit the number that stores it
    Subscript = 2,    // an index outside its array's bounds
    FileMissing = 3,  // a file that must be there isn't, or can't be opened
    BadData = 4,      // a file's content isn't what its format says
    FileWrite = 5,    // a file can't be written
    NoDisplay = 6,    // there is nowhere to show a window
};

class RunTimeError : public std::runtime_error {
  public:
    /// `subject` names what it was about: a file with line and column or record and what was expected there,
    /// or a value.
    RunTimeError(Fault number, std::string subject);

    Fault Number() const { return fault; }
    const std::string& About() const { return about; }

  private:
    Fault fault;
    std::string about;
};

/// The fixed text of a fault, as "Overflow".
const char* FaultText(Fault fault);
