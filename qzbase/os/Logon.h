// Whether a user and a password belong together, as the operating system's own accounts say.
#pragma once

#include <string_view>

namespace qzbase::os {

// True when the user could log on with that password now: the account exists, the password is right, and the account is
// neither locked nor expired. Nobody is logged on. A refusal may take some seconds, where the system delays guessing.
//
// Windows: a network logon without a domain; a user of another domain is named in a form that the system takes for one.
// Elsewhere: PAM, by the rules of the service "qzbase" where the system has such, else of "login". A program without
// the right to read the passwords can usually check its own user only.
bool IsLogonValid(std::u16string_view pUserName, std::u16string_view pPassword);

}  // namespace qzbase::os
