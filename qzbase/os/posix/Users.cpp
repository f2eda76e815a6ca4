#include "qzbase/os/Users.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

#include <grp.h>
#include <pwd.h>
#include <unistd.h>

#include "qzbase/os/Utf8.h"

namespace qzbase::os {
namespace {

// Calls one of the databases' look-ups with as much room as it asks for; `pUse` gets the entry if there is one.
template <class Entry, class LookUp, class Use>
void WithEntry(LookUp pLookUp, Use pUse) {
  constexpr std::size_t kMostRoom = 1 << 24;
  Entry entry{};
  Entry* found = nullptr;
  std::vector<char> room(1024);
  while (pLookUp(&entry, room.data(), room.size(), &found) == ERANGE && room.size() < kMostRoom)
    room.resize(4 * room.size());
  if (found != nullptr) pUse(std::as_const(*found));
}

template <class Use>
void WithUser(Use pUse) {
  WithEntry<passwd>([](auto... pRoom) { return getpwuid_r(geteuid(), pRoom...); }, pUse);
}

std::vector<gid_t> GroupIds(const passwd& pUser) {
  std::vector<gid_t> ids(32);
  auto count = static_cast<int>(ids.size());
  while (getgrouplist(pUser.pw_name, pUser.pw_gid, ids.data(), &count) < 0) {
    ids.resize(std::max(static_cast<std::size_t>(count), 2 * ids.size()));
    count = static_cast<int>(ids.size());
  }
  ids.resize(static_cast<std::size_t>(count));
  return ids;
}

}  // namespace

std::u16string UserName() {
  std::u16string name;
  WithUser([&](const passwd& pUser) { name = FromUtf8(pUser.pw_name); });
  return name;
}

std::u16string ComputerName() {
  std::array<char, 1024> name{};
  if (gethostname(name.data(), name.size() - 1) != 0) return {};
  return FromUtf8(name.data());
}

std::vector<std::u16string> LocalGroups() {
  std::vector<gid_t> ids;
  WithUser([&](const passwd& pUser) { ids = GroupIds(pUser); });
  std::vector<std::u16string> names;
  names.reserve(ids.size());
  for (const gid_t id : ids)
    WithEntry<group>([id](auto... pRoom) { return getgrgid_r(id, pRoom...); },
                     [&](const group& pGroup) { names.push_back(FromUtf8(pGroup.gr_name)); });
  return names;
}

}  // namespace qzbase::os
