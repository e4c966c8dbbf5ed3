#include "shell/recorded_event.h"

#include <sstream>

#include "platform/run_time_error.h"

std::string RecordedText(const RecordedEvent& recorded) {
    return "event " + std::to_string(recorded.number) + " " + std::to_string(recorded.pump) + " " +
           EventText(recorded.event);
}

RecordedEvent RecordedEventFromText(const std::string& line) {
    std::istringstream stream(line);
    RecordedEvent recorded;
    std::string word;
    std::string text;
    if (!(stream >> word >> recorded.number >> recorded.pump) || word != "event" ||
        !std::getline(stream >> std::ws, text))
        throw RunTimeError(Fault::BadData, "expected \"event NUMBER PUMP ...\"");
    recorded.event = EventFromText(text);
    return recorded;
}
