// What system this is, who uses it, and whether a password is right.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "qzbase/data/CStrVector.h"
#include "qzbase/os/SystemVersion.h"
#include "qzbase/runtime/Object.h"

namespace qzbase::ModBase {

// 0 Win32s, 1 Windows 95 and 98, 2 Windows NT and all that came of it, 4 Linux; -1 where the system does not say.
std::int32_t OperatingSystem();

// The family ("Win32s", "Win95", "Win98", "WinNT", else "undefined"), the version ("5.01" for 5.1; of the last three
// families) and the text of the service pack (of the last one). The first form asks the system.
void FullOSInfo(std::u16string& OSId, std::u16string& Version, std::u16string& Service);
void FullOSInfo(const std::optional<os::SystemVersion>& pSystem, std::u16string& OSId, std::u16string& Version,
                std::u16string& Service);

// The names of the current user's groups on this computer; none where the system does not say.
runtime::Ref<CStrVector> WindowsLocalGroups();

// 0 when the system's accounts accept the user with that password, else the number of the error System.InvWinPasswd
// (os/Logon.h). The user is looked for without a domain, whatever is given as one.
std::int32_t WindowsCheckUser(std::u16string_view Domain, std::u16string_view UserName, std::u16string_view Password);

}  // namespace qzbase::ModBase
