// Uniform, headgear, glasses and headsets of a portrait.
#pragma once

#include "portrait_clay.h"
#include "portrait_person.h"

namespace art {

void LayUniform(Clay& clay, const Person& person);  // after the neck, before the head
void LayGear(Clay& clay, const Person& person);     // last

}  // namespace art
