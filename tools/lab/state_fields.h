// The fields of the game's records by name, for whoever shows, compares or sums them up. `visit` is called
// with a name and a value, which is a number or a text.
#pragma once

#include <string>

#include "state/state.h"

template <typename Visit>
void VisitFields(const InvItem& item, Visit visit) {
    visit("name", item.name);
    visit("count", item.count);
    visit("durab", item.durab);
    visit("ammoMain", item.ammoMain);
    visit("capMain", item.capMain);
    visit("roundsMain", item.roundsMain);
    visit("ammoSecond", item.ammoSecond);
    visit("capSecond", item.capSecond);
    visit("roundsSecond", item.roundsSecond);
}

template <typename Visit>
void VisitFields(const Cell& cell, Visit visit) {
    visit("occupant", cell.occupant);
    visit("tileX", cell.tileX);
    visit("tileY", cell.tileY);
    visit("durab", cell.durab);
    visit("extra", cell.extra);
    visit("spare", cell.spare);
    visit("block", cell.block);
}

/// A row of the weapons file. What the rules never write after it was read is told by the row's name.
template <typename Visit>
void VisitFields(const WeaponInfo& row, Visit visit) {
    visit("name", row.name);
    visit("range", row.range);
    visit("power", row.power);
    visit("accur", row.accur);
    visit("time", row.time);
    visit("durab", row.durab);
}

/// All of a unit but its things.
template <typename Visit>
void VisitFields(const Unit& unit, Visit visit) {
    const auto visitAll = [&visit](const std::string& name, const auto& array) {
        for (int i = array.Lower; i <= array.Upper; ++i)
            visit(name + "[" + std::to_string(i) + "]", array[i]);
    };
    visit("serialNo", unit.serialNo);
    visit("rank", unit.rank);
    visit("name", unit.name);
    visit("country", unit.country);
    visit("facePrefix", unit.facePrefix);
    visit("faceGroup", unit.faceGroup);
    visit("faceNo", unit.faceNo);
    visit("faceType", unit.faceType);
    visit("vitality", unit.vitality);
    visit("strength", unit.strength);
    visit("agility", unit.agility);
    visit("perception", unit.perception);
    visit("intelligence", unit.intelligence);
    visit("mood", unit.mood);
    visit("marksmanship", unit.marksmanship);
    visit("stealth", unit.stealth);
    visit("melee", unit.melee);
    visit("sidearms", unit.sidearms);
    visit("smgs", unit.smgs);
    visit("rifles", unit.rifles);
    visit("machineguns", unit.machineguns);
    visit("explosives", unit.explosives);
    visit("cellX", unit.cellX);
    visit("cellY", unit.cellY);
    visit("team", unit.team);
    visit("enemyTeam", unit.enemyTeam);
    visit("pixelX", unit.pixelX);
    visit("pixelY", unit.pixelY);
    visit("facing", unit.facing);
    visit("stance", unit.stance);
    visit("fireMode", unit.fireMode);
    visit("time", unit.time);
    visit("health", unit.health);
    visit("energy", unit.energy);
    visit("aimChance", unit.aimChance);
    visit("status", unit.status);
    visit("wasWounded", unit.wasWounded);
    visit("load", unit.load);
    VisitFields(unit.hand,
                [&visit](const std::string& name, const auto& value) { visit("hand." + name, value); });
    visit("handCap", unit.handCap);
    visit("handRounds", unit.handRounds);
    visitAll("awards", unit.awards);
    visitAll("spare", unit.spare);
    visit("aiWary", unit.aiWary);
    visit("aiReserve", unit.aiReserve);
    visitAll("seen", unit.seen);
    visit("itemCount", unit.itemCount);
}

/// The values that stand alone.
template <typename Visit>
void VisitValues(const GameState& state, Visit visit) {
    for (int team = state.teamLast.Lower; team <= state.teamLast.Upper; ++team)
        visit("teamLast[" + std::to_string(team) + "]", state.teamLast[team]);
    for (int spot = state.landingSpots.Lower; spot <= state.landingSpots.Upper; ++spot) {
        visit("landingSpots[" + std::to_string(spot) + "].x", state.landingSpots[spot].x);
        visit("landingSpots[" + std::to_string(spot) + "].y", state.landingSpots[spot].y);
    }
    visit("curTeam", state.curTeam);
    visit("curUnit", state.curUnit);
    visit("money", state.money);
    visit("voiceOn", state.voiceOn);
    visit("weaponPage", state.weaponPage);
    visit("feedStep", state.feedStep);
    visit("groundPage", state.groundPage);
    visit("lineStartX", state.lineStartX);
    visit("penX", state.penX);
    visit("penY", state.penY);
    visit("voiceCycle", state.voiceCycle);
    visit("fieldBusy", state.fieldBusy);
    visit("walkOn", state.walkOn);
    visit("lastClickX", state.lastClickX);
    visit("lastClickY", state.lastClickY);
    visit("muzzleX", state.flight.muzzleX);
    visit("muzzleY", state.flight.muzzleY);
    visit("impactX", state.flight.impactX);
    visit("impactY", state.flight.impactY);
    visit("bulletPower", state.flight.bulletPower);
    visit("bulletAccur", state.flight.bulletAccur);
    visit("bulletHorizon", state.flight.bulletHorizon);
    const auto visitModes = [&visit](const std::string& name, const ModeChoice& modes) {
        visit(name + ".weapon", modes.weapon);
        visit(name + ".chosen", modes.chosen);
        std::string offered;
        for (const std::string& mode : modes.offered)
            offered += mode + "|";
        visit(name + ".offered", offered);
    };
    visitModes("modes", state.modes);
    visitModes("selectedModes", state.selectedModes);
    visit("orders", state.orders);
    visit("operationDepth", state.operationDepth);
    visit("pumpedDepth", state.pumpedDepth);
    visit("selectedMeanwhile", state.selectedMeanwhile);
}
