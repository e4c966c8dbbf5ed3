#include "platform/run_time_error.h"

#include <utility>

const char* FaultText(Fault fault) {
    switch (fault) {
        case Fault::Overflow:
            return "Overflow";
        case Fault::Subscript:
            return "Subscript out of range";
        case Fault::FileMissing:
            return "File not found";
        case Fault::BadData:
            return "Bad data";
        case Fault::FileWrite:
            return "File can't be written";
        case Fault::NoDisplay:
            return "No display";
    }
    return "Unknown error";
}

RunTimeError::RunTimeError(Fault number, std::string subject)
    : std::runtime_error("Run-time error " + std::to_string(static_cast<int>(number)) + ": " +
                         FaultText(number) + ": " + subject),
      fault(number),
      about(std::move(subject)) {}
