// Head, neck and features of a portrait.
#pragma once

#include <QPainterPath>

#include "portraits/portrait_clay.h"
#include "portraits/portrait_person.h"

namespace art {

// Where things are on a head, in pixels of the portrait.
namespace head {
constexpr double Middle = 70;
constexpr double Crown = 19;
constexpr double Eyes = 61;
constexpr double NoseTip = 76;
}  // namespace head

// Half the head's width at a height, without hair; 0 above the crown and below the chin.
double HeadWidth(const Person& person, double y);

// The chin's lowest point.
double ChinOf(const Person& person);

// Where a feature stands that is `across` from the face's middle and stands out by `depth`, when the head is
// turned.
double Turned(const Person& person, double across, double depth);

QPainterPath HeadOutline(const Person& person, double wider = 0);

void LayNeck(Clay& clay, const Person& person);
void LayHead(Clay& clay, const Person& person);

}  // namespace art
