// Who runs the program, on which computer, and in which groups.
#pragma once

#include <string>
#include <vector>

namespace qzbase::os {

// The user whose rights the program has. Empty where the system does not know a name.
std::u16string UserName();

// The name by which the network knows this computer. Empty where it has none.
std::u16string ComputerName();

// The groups of this computer to which the user belongs, the primary one first where there is one; none where the
// system does not say. Elsewhere than on Windows they come from the database of users and groups; a group without a
// name in it is left out.
std::vector<std::u16string> LocalGroups();

}  // namespace qzbase::os
