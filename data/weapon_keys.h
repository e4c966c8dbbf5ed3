// What the rules know of a thing by its key in the weapons file, besides what its row there says. The
// families of action, new things and sarnoth-check read this one table.
#pragma once

#include <optional>
#include <span>
#include <string_view>

/// The feeds of a new thing. Its second feed has no rounds yet.
struct NewFeeds {
    int main;  // capacity
    int rounds;
    int second;  // capacity
};

/// The feed that a row must have, because a rule counts on it.
enum class NeededFeed { None, Main, Second };

struct WeaponKey {
    const char* key;
    std::string_view family;           // of its actions; empty where class, mode and kind decide
    std::string_view secondary;        // the same under the mode "Secondary"
    std::optional<NewFeeds> newFeeds;  // nothing: by the row's kind
    NeededFeed needed;
    const char* why;  // the rules name it, after "the thing that"
};

/// All of them, in the order in which sarnoth-check asks for their rows.
std::span<const WeaponKey> WeaponKeys();

/// nullptr for a thing of which the rules know nothing by its key.
const WeaponKey* WeaponKeyOf(std::string_view key);
