// Hair and beards of a portrait.
#pragma once

#include "portraits/portrait_clay.h"
#include "portraits/portrait_person.h"

namespace art {

// What hangs behind neck and head; laid before them.
void LayBackHair(Clay& clay, const Person& person);

void LayBeard(Clay& clay, const Person& person);

// What grows on the skull, up to the hairline; laid after the head.
void LayHair(Clay& clay, const Person& person);

}  // namespace art
