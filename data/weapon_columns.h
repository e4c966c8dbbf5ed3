// The columns of the weapons file.
#pragma once

#include <cstddef>

enum WeaponColumn : std::size_t {
    GroupColumn,
    KindColumn,
    KeyColumn,
    SoundColumn,
    PowerColumn,  // the first of five figures
    AccurColumn,
    TimeColumn,
    RangeColumn,
    DurabColumn,
    Param9Column,  // read by no rule, as are the other params
    ModesColumn,
    ClassColumn,
    SecondColumn,
    Param13Column,
    Param14Column,
    LongColumn,
    Param16Column,
    CountryColumn,
    TitleColumn,
    FullNameColumn,
    WeaponColumns
};
