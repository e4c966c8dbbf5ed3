// Several takes of the sounds that are heard often: the same thing done again, a little higher or lower,
// sooner or later, in other noise.
#pragma once

#include <string>

#include "sounds.h"

/// How many takes a sound has, itself among them.
int TakeCount(const std::string& name);

/// A take of `sound` from the second on. Its name has the number behind it, as "bump/step1-2".
Sound TakeOf(const Sound& sound, int number);

/// Makes `take` as loud as `first` where the ear is struck most.
void MatchLoudness(Signal& take, const Signal& first);
