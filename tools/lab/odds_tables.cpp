#include "tools/lab/odds_tables.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iomanip>
#include <sstream>

#include "data/mode_words.h"
#include "data/weapons_file.h"

namespace {

const std::vector<int> Distances = {1, 2, 5, 10, 15, 20, 26, 35};
constexpr int MiddleDistance = 10;
constexpr int FacingDistance = 15;  // from eleven cells on stance and facing count in full

constexpr std::array<const char*, 4> StanceNames = {"prone", "crouch", "stand", "run"};
struct LookedAt {
    const char* where;
    Facing facing;
};

// The shooter fires to the east.
constexpr LookedAt Looks[] = {
    {"at the shooter", West}, {"away from him", East}, {"across", North}, {"aslant", NorthEast}};

using Row = std::vector<std::string>;

std::string Number(double value, int decimals) {
    std::ostringstream text;
    text << std::fixed << std::setprecision(decimals) << value;
    return text.str();
}

std::string HitPercent(const Score& score) {
    return Number(PercentOf(score.hitting, score), 0);
}

std::string MeanDamage(const Score& score) {
    return Number(MeanOf(score.damage, score), 1);
}

std::string TableRow(const Row& cells) {
    std::string row = "|";
    for (const std::string& cell : cells)
        row += " " + cell + " |";
    return row + "\n";
}

// The first columns are text, the others figures.
std::string Table(const std::string& title, const std::string& note, std::size_t textColumns, const Row& head,
                  const std::vector<Row>& rows) {
    std::string table = "\n## " + title + "\n\n" + note + "\n\n" + TableRow(head) + "|";
    for (std::size_t column = 0; column < head.size(); ++column)
        table += column < textColumns ? "---|" : "--:|";
    table += "\n";
    for (const Row& row : rows)
        table += TableRow(row);
    return table;
}

std::vector<ToldOrder> AllOrders(const OddsPlan& plan, OddsStudy& study) {
    std::vector<ToldOrder> all;
    for (const std::string& weapon : plan.weapons)
        for (const ToldOrder& order : study.OrdersOf(weapon, Distances))
            all.push_back(order);
    return all;
}

using Figure = std::string (*)(const Score&);

std::string ByDistance(const std::string& title, const std::string& note, Figure figure, const OddsPlan& plan,
                       OddsStudy& study) {
    Row head = {"weapon", "order"};
    for (const int distance : Distances)
        head.push_back(std::to_string(distance));
    std::vector<Row> rows;
    for (const ToldOrder& order : AllOrders(plan, study)) {
        Row row = {WeaponTitle(order.weapon), order.modes};
        for (const int distance : Distances)
            row.push_back(figure(study.Of({.weapon = order.weapon, .mode = order.mode, .east = distance})));
        rows.push_back(row);
    }
    return Table(title, note, 2, head, rows);
}

// A blow reaches the next cell; anything else is fired over ten, or as far as it reaches.
int FairDistance(const ToldOrder& order) {
    if (order.modes == HitMode) return 1;
    return std::min(MiddleDistance, static_cast<int>(WeaponInfoByName(order.weapon).range));
}

std::string Orders(const OddsPlan& plan, OddsStudy& study) {
    std::vector<Row> rows;
    for (const ToldOrder& order : AllOrders(plan, study)) {
        const int distance = FairDistance(order);
        const Score& score = study.Of({.weapon = order.weapon, .mode = order.mode, .east = distance});
        const double time = MeanOf(score.time, score);
        rows.push_back(
            {WeaponTitle(order.weapon), order.modes, std::to_string(distance), Number(time, 0),
             Number(MeanOf(score.energy, score), 0), HitPercent(score), Number(MeanOf(score.hits, score), 2),
             MeanDamage(score), Number(time > 0 ? MeanOf(score.damage, score) * 10 / time : 0, 1),
             Number(PercentOf(score.disabled, score), 0), Number(PercentOf(score.killed, score), 0)});
    }
    return Table("What one order costs and does",
                 "At the distance named, in cells. \"Damage for 10\" is for each ten points of time; "
                 "\"disabled\" are the immobile and the dead. Full auto fires up to 20 rounds, as far as the "
                 "time goes.",
                 2,
                 {"weapon", "order", "cells", "time", "energy", "hits %", "mean hits", "mean damage",
                  "damage for 10", "disabled %", "killed %"},
                 rows);
}

std::string Stances(const OddsPlan& plan, OddsStudy& study) {
    std::vector<Row> rows;
    for (int own = Prone; own <= Run; ++own) {
        Row row = {StanceNames.at(static_cast<std::size_t>(own))};
        for (int other = Prone; other <= Run; ++other)
            row.push_back(
                HitPercent(study.Of({.weapon = plan.studied, .shooterStance = own, .targetStance = other})));
        rows.push_back(row);
    }
    return Table("Stances",
                 "Chance in percent that an order of the " + WeaponTitle(plan.studied) +
                     " hits over ten cells: a row for each stance of the shooter, a column for each of the "
                     "target, who looks at him.",
                 1, {"shooter", "prone", "crouch", "stand", "run"}, rows);
}

std::string Facings(const OddsPlan& plan, OddsStudy& study) {
    std::vector<Row> rows;
    for (const LookedAt& look : Looks) {
        Row row = {look.where};
        for (int stance = Prone; stance <= Run; ++stance)
            row.push_back(HitPercent(study.Of({.weapon = plan.studied,
                                               .east = FacingDistance,
                                               .targetStance = stance,
                                               .targetFacing = look.facing})));
        rows.push_back(row);
    }
    return Table(
        "Where the target looks",
        "Chance in percent that an order of the " + WeaponTitle(plan.studied) + " hits over fifteen cells.",
        1, {"target looks", "prone", "crouch", "stand", "run"}, rows);
}

std::string Directions(const OddsPlan& plan, OddsStudy& study) {
    struct Direction {
        const char* name;
        double east;  // of a cell's distance
        double south;
    };
    static constexpr Direction Directions[] = {{"straight, east", 1, 0},
                                               {"between, two east and one south", 0.894427, 0.447214},
                                               {"diagonal, south-east", 0.707107, 0.707107}};
    Row head = {"fired"};
    for (const int distance : Distances)
        head.push_back(std::to_string(distance));
    std::vector<Row> rows;
    for (const Direction& direction : Directions) {
        Row row = {direction.name};
        for (const int distance : Distances)
            row.push_back(
                HitPercent(study.Of({.weapon = plan.studied,
                                     .east = static_cast<int>(std::lround(direction.east * distance)),
                                     .south = static_cast<int>(std::lround(direction.south * distance))})));
        rows.push_back(row);
    }
    return Table("Straight and slanting",
                 "Chance in percent that an order of the " + WeaponTitle(plan.studied) +
                     " hits, by distance to the nearest cell. The target looks west.",
                 1, head, rows);
}

std::string Screens(const OddsPlan& plan, OddsStudy& study) {
    static const std::vector<Screen> Between = {
        {},
        {"the target stands in a dense wood", Trees, 0, 0, 0},
        {"one cell of wood before him", Trees, 0, 1, 1},
        {"three cells of wood before him", Trees, 0, 1, 3},
        {"six cells of wood before him", Trees, 0, 1, 6},
        {"a bush before him", Trees, 1, 1, 1},
        {"a window before him", Wooden, 12, 1, 1},
        {"crates before him", Wooden, 18, 1, 1},
        {"a plank wall before him", Wooden, 1, 1, 1},
        {"a loose stone wall before him", Stone, 14, 1, 1},
        {"a masonry wall before him", Stone, 1, 1, 1},
        {"a masonry wall of two cells before him", Stone, 1, 1, 2},
        {"a concrete wall before him", Concrete, 1, 1, 1},
        {"a low concrete barrier before him", Concrete, 17, 1, 1},
        {"a fence before him", Fence, 1, 1, 1},
        {"barbed wire before him", Prickles, 1, 1, 1},
        {"the target stands in a full trench", Trenches, 16, 0, 0},
    };
    std::vector<Row> rows;
    for (const Screen& screen : Between) {
        const Score& score = study.Of({.weapon = plan.studied, .screen = screen});
        rows.push_back({screen.name, HitPercent(score), Number(MeanOf(score.hits, score), 2),
                        MeanDamage(score), Number(PercentOf(score.disabled, score), 0)});
    }
    return Table("What stands between",
                 "An order of the " + WeaponTitle(plan.studied) +
                     " over ten cells; \"before him\" is the cell next to the target.",
                 1, {"ground", "hits %", "mean hits", "mean damage", "disabled %"}, rows);
}

std::string Head(const OddsStudy& study) {
    const Unit& shooter = study.Range().Shooter();
    const Unit& target = study.Range().Target();
    const double doubt = 100 / std::sqrt(study.Orders());  // two standard deviations of an even chance
    std::ostringstream head;
    head << "# The odds\n\nFired by the game's own rules and counted, by `sarnoth-lab odds --trials "
         << study.Orders() << " --seed " << study.Seed()
         << "`: so many orders for each\nfigure. The shooter is " << shooter.name
         << ", the squad's middle marksman (marksmanship " << int{shooter.marksmanship} << ", "
         << int{shooter.time} << " points of time\na turn), with a new and fully loaded weapon. "
         << "The target is one of the enemy's soldiers with " << int{target.health}
         << " points of health,\nwho stands on open ground and looks at the shooter unless a table says"
         << " otherwise. Modes that share a row came to\nthe same in every order. A chance is good to within "
         << std::ceil(doubt) << " in a hundred.\n";
    return head.str();
}

}  // namespace

const OddsPlan& WholePlan() {
    static const OddsPlan plan = {
        {"hand", "knife", "thronives", "etool", "m67", "m203", "rem870m", "crossbow", "anslgw", "anschutz",
         "p226", "mp5", "m4", "m4m203", "l96", "m249"},
        "m4"};
    return plan;
}

std::string WeaponTitle(const std::string& weapon) {
    return WeaponInfoByName(weapon).title;
}

std::string OddsMarkdown(const OddsPlan& plan, OddsStudy& study) {
    std::string text =
        Head(study) +
        ByDistance("Chance to hit",
                   "Chance in percent that an order costs the target any health, by distance in cells.",
                   HitPercent, plan, study) +
        ByDistance("Damage", "Mean health that an order takes from the target, by distance in cells.",
                   MeanDamage, plan, study);
    for (const auto& table : {Orders, Stances, Facings, Directions, Screens})
        text += table(plan, study);
    return text;
}
