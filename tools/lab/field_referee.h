// Compares the field's picture with what the state says that it should show, cell by cell: each whose state
// or picture has changed since it last looked.
#pragma once

#include <string>
#include <vector>

#include "platform/picture.h"

class FieldReferee {
  public:
    /// The first cell that looks as its state doesn't allow, or whose unit would leave such a look behind;
    /// empty for none. `changed` is the rectangle of the field that was painted on since the last call.
    std::string Look(const Rectangle& changed);

  private:
    std::vector<int> known;  // the cells' keys when they were last looked at
};
