// Eyes and brows of a portrait.
#pragma once

#include "portraits/portrait_clay.h"
#include "portraits/portrait_person.h"

namespace art {

// On the face last laid.
void LayEyes(Clay& clay, const Person& person);

}  // namespace art
