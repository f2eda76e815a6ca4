#include "qzbase/os/Logon.h"

#include <string>

#include <windows.h>

#include "qzbase/os/windows/WideText.h"

namespace qzbase::os {
bool IsLogonValid(std::u16string_view pUserName, std::u16string_view pPassword) {
  // The system would read them as far as the zero.
  if (pUserName.find(u'\0') != pUserName.npos || pPassword.find(u'\0') != pPassword.npos) return false;
  HANDLE token = nullptr;
  if (!LogonUserW(Wide(pUserName).c_str(), nullptr, Wide(pPassword).c_str(), LOGON32_LOGON_NETWORK,
                  LOGON32_PROVIDER_DEFAULT, &token))
    return false;
  CloseHandle(token);
  return true;
}

}  // namespace qzbase::os
