// Uniform, headgear, glasses and headsets of a portrait.
#pragma once

#include "portraits/portrait_clay.h"
#include "portraits/portrait_person.h"

namespace art {

void LayUniform(Clay& clay, const Person& person);  // after the neck, before the head
void LayGear(Clay& clay, const Person& person);     // last

}  // namespace art
