#include "qzbase/platform/SystemInfo.h"

#include "qzbase/core/ModError.h"
#include "qzbase/os/Logon.h"
#include "qzbase/os/Users.h"
#include "qzbase/runtime/Format.h"
#include "qzbase/runtime/NumberText.h"

namespace qzbase::ModBase {
namespace {

std::u16string VersionText(const os::SystemVersion& pSystem) {
  return runtime::NumberText(pSystem.major) + u'.' + runtime::Format(pSystem.minor, u"00");
}

}  // namespace

std::int32_t OperatingSystem() {
  const std::optional<os::SystemVersion> system = os::CurrentSystem();
  return system ? static_cast<std::int32_t>(system->platform) : -1;
}

void FullOSInfo(std::u16string& OSId, std::u16string& Version, std::u16string& Service) {
  FullOSInfo(os::CurrentSystem(), OSId, Version, Service);
}

void FullOSInfo(const std::optional<os::SystemVersion>& pSystem, std::u16string& OSId, std::u16string& Version,
                std::u16string& Service) {
  OSId = u"undefined";
  Version.clear();
  Service.clear();
  if (!pSystem) return;
  switch (pSystem->platform) {
    case os::Platform::Win32s:
      OSId = u"Win32s";
      break;
    case os::Platform::Windows95:
      OSId = pSystem->minor == 0 ? u"Win95" : u"Win98";
      Version = VersionText(*pSystem);
      break;
    case os::Platform::WindowsNt:
      OSId = u"WinNT";
      Version = VersionText(*pSystem);
      Service = pSystem->servicePack;
      break;
    case os::Platform::Linux:
      break;
  }
}

runtime::Ref<CStrVector> WindowsLocalGroups() {
  auto groups = runtime::New<CStrVector>();
  for (const std::u16string& name : os::LocalGroups()) groups->AddValue(name);
  return groups;
}

std::int32_t WindowsCheckUser(std::u16string_view, std::u16string_view UserName, std::u16string_view Password) {
  return os::IsLogonValid(UserName, Password) ? 0 : ModError::StatusOf(BuiltInError::InvWinPasswd);
}

}  // namespace qzbase::ModBase
