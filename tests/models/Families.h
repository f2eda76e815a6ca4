// Which objects live together in a sequence. Those in front are called more often; the first one gives the name.
#pragma once

#include <vector>

#include "tests/models/Model.h"

namespace qzbase::models {

using Family = std::vector<const Class*>;

const std::vector<Family>& Families();

// The classes that golden files hold, each with a buffer.
std::vector<Family> SavedClasses();

}  // namespace qzbase::models
