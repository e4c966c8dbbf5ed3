// Who fell where in a mission, in the order of the falls.
#pragma once

#include <optional>
#include <vector>

#include "state/quiet_audience.h"
#include "state/state.h"

struct Fall {
    int unit;
    Spot cell;
};

/// Notes the falls of each mission that it watches from the start.
class FallWatch : public QuietAudience {
  public:
    void MissionBegins() override { falls.clear(); }
    // Whatever kills somebody logs more than one line after it.
    void LineLogged(const std::string& line) override;

    const std::vector<Fall>& Falls() const { return falls; }

  private:
    void Note(int unit);

    std::vector<Fall> falls;
};

/// Quarters of the field, in the order of QuarterNames.
constexpr int Quarters = 4;
constexpr const char* QuarterNames[Quarters] = {"NW", "NE", "SW", "SE"};
int QuarterOf(Spot cell);
