#include "qzbase/os/Users.h"

#include <array>
#include <memory>

// lm.h needs what windows.h declares.
// clang-format off
#include <windows.h>
#include <lm.h>
// clang-format on

#include "qzbase/os/windows/WideText.h"

namespace qzbase::os {
namespace {

using NameBuffer = std::array<wchar_t, 1023>;

// The server's preferred length of one answer, in bytes.
constexpr DWORD kPreferredLength = 1024;

struct FreeAnswer {
  void operator()(void* pAnswer) const noexcept { NetApiBufferFree(pAnswer); }
};

std::u16string Text(std::wstring_view pText) {
  return {pText.begin(), pText.end()};
}

// The computer as the network functions want it named; empty for this one.
std::wstring ServerName() {
  const std::wstring name = Wide(ComputerName());
  return name.empty() || name.starts_with(L"\\\\") ? name : L"\\\\" + name;
}

}  // namespace

std::u16string UserName() {
  NameBuffer name;
  DWORD length = name.size();  // with the zero at the end
  if (!GetUserNameW(name.data(), &length) || length == 0) return {};
  return Text({name.data(), length - 1});
}

std::u16string ComputerName() {
  NameBuffer name;
  DWORD length = name.size();  // without the zero
  if (!GetComputerNameW(name.data(), &length)) return {};
  return Text({name.data(), length});
}

std::vector<std::u16string> LocalGroups() {
  const std::wstring user = Wide(UserName());
  const std::wstring server = ServerName();
  LPBYTE bytes = nullptr;
  DWORD read = 0;
  DWORD total = 0;
  const NET_API_STATUS status = NetUserGetLocalGroups(server.empty() ? nullptr : server.c_str(), user.c_str(), 0, 0,
                                                      &bytes, kPreferredLength, &read, &total);
  const std::unique_ptr<BYTE, FreeAnswer> answer(bytes);
  if (!answer || (status != NERR_Success && status != ERROR_MORE_DATA)) return {};
  const auto* groups = reinterpret_cast<const LOCALGROUP_USERS_INFO_0*>(answer.get());
  std::vector<std::u16string> names;
  names.reserve(read);
  for (DWORD i = 0; i < read; ++i) names.push_back(Text(groups[i].lgrui0_name));
  return names;
}

}  // namespace qzbase::os
