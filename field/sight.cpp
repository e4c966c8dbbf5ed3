#include "field/sight.h"

#include <array>
#include <cmath>
#include <vector>

#include "field/geometry.h"
#include "state/state.h"

namespace {

// The fan's own constants, in single precision as they stand; they are not the exact mathematical ones.
constexpr float AngleOfStep = 0.785398F;  // radians of 45 degrees
constexpr float RadiansOfDegree = 0.017453F;
constexpr float RayStep = 0.1F;
constexpr float FirstReach = 0.2F;
constexpr float ReachStep = 0.1F;
constexpr float Perception = SightPerception;
constexpr float Scale = 150.0F;  // pixels for a reach of 1

struct Sample {
    float alongX;  // pixels from the looker's centre
    float alongY;
    bool startsRay;
};

std::vector<Sample> SamplesOf(int facing) {
    const float centre = static_cast<float>(WayOf(facing).angleStep) * AngleOfStep;
    const float half = (Perception / 2 - 0.15F) * RadiansOfDegree;
    const float farthest = Perception / 60 + 1;
    std::vector<Sample> samples;
    for (float angle = centre - half; angle <= centre + half; angle += RayStep) {
        bool startsRay = true;
        for (float reach = FirstReach; reach <= farthest; reach += ReachStep) {
            samples.push_back({reach * std::cos(angle) * Scale, reach * std::sin(angle) * Scale, startsRay});
            startsRay = false;
        }
    }
    return samples;
}

// The cells of all samples along one axis, relative to the looker's cell.
using Offsets = std::vector<std::int8_t>;

Offsets OffsetsFrom(int cell, const std::vector<Sample>& samples, float Sample::*along) {
    const auto centre = static_cast<float>(cell * CellSize + HalfCell);
    Offsets offsets;
    for (const Sample& sample : samples) {
        const float pixel = centre + sample.*along;
        offsets.push_back(static_cast<std::int8_t>(std::floor(pixel / static_cast<float>(CellSize)) -
                                                   static_cast<float>(cell)));
    }
    return offsets;
}

// Single precision may round a sum differently in one column than in another; columns that agree share their
// offsets.
template <std::size_t Cells>
struct Axis {
    std::vector<Offsets> variants;
    std::array<std::size_t, Cells> variantOf{};

    Axis(const std::vector<Sample>& samples, float Sample::*along) {
        for (std::size_t cell = 0; cell < Cells; ++cell)
            variantOf[cell] = Share(OffsetsFrom(static_cast<int>(cell), samples, along));
    }

    std::size_t Share(Offsets offsets) {
        for (std::size_t i = 0; i < variants.size(); ++i)
            if (variants[i] == offsets) return i;
        variants.push_back(std::move(offsets));
        return variants.size() - 1;
    }
};

// One fan: the steps of all its rays, and the rays as parts of them. A copy's rays would be parts of another
// fan, so it can only be moved, which leaves the steps where they are.
struct Fan {
    std::vector<FanStep> steps;
    std::vector<Ray> rays;

    Fan(const std::vector<Sample>& samples, const Offsets& dx, const Offsets& dy) {
        std::vector<std::size_t> starts;
        for (std::size_t i = 0; i < samples.size(); ++i) {
            if (samples[i].startsRay) starts.push_back(steps.size());
            const bool sameCell = !steps.empty() && steps.back().dx == dx[i] && steps.back().dy == dy[i];
            if (samples[i].startsRay || !sameCell) steps.push_back({dx[i], dy[i]});
        }
        starts.push_back(steps.size());
        for (std::size_t ray = 0; ray + 1 < starts.size(); ++ray)
            rays.emplace_back(steps.data() + starts[ray], starts[ray + 1] - starts[ray]);
    }
    Fan(const Fan&) = delete;
    Fan& operator=(const Fan&) = delete;
    Fan(Fan&&) = default;
    Fan& operator=(Fan&&) = default;
    ~Fan() = default;
};

// All fans of one facing: the trigonometry is worked out once.
class FacingFans {
  public:
    explicit FacingFans(int facing)
        : samples(SamplesOf(facing)), columns(samples, &Sample::alongX), rows(samples, &Sample::alongY) {
        for (const Offsets& dx : columns.variants)
            for (const Offsets& dy : rows.variants)
                fans.emplace_back(samples, dx, dy);
    }

    std::span<const Ray> From(int x, int y) const {
        const std::size_t column = columns.variantOf.at(static_cast<std::size_t>(x));
        const std::size_t row = rows.variantOf.at(static_cast<std::size_t>(y));
        return fans[column * rows.variants.size() + row].rays;
    }

  private:
    std::vector<Sample> samples;
    Axis<FieldWidth> columns;
    Axis<FieldHeight> rows;
    std::vector<Fan> fans;
};

}  // namespace

std::span<const Ray> SightFan(int facing, int x, int y) {
    static const std::array<FacingFans, FacingCount> AllFans = {FacingFans(0), FacingFans(1), FacingFans(2),
                                                                FacingFans(3), FacingFans(4), FacingFans(5),
                                                                FacingFans(6), FacingFans(7)};
    return AllFans.at(static_cast<std::size_t>(facing)).From(x, y);
}
