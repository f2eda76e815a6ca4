#include "qzbase/os/Logon.h"

#include <string>

#include <windows.h>

namespace qzbase::os {
namespace {

std::wstring Wide(std::u16string_view pText) {
  return {pText.begin(), pText.end()};
}

}  // namespace

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
