#include "qzbase/automation/Catalog.h"

#include <array>

#include "qzbase/automation/Identities.h"
#include "qzbase/automation/members/Core.h"
#include "qzbase/automation/members/Data.h"
#include "qzbase/automation/members/Desc.h"
#include "qzbase/automation/members/Layout.h"
#include "qzbase/automation/members/Locale.h"
#include "qzbase/automation/members/Persist.h"
#include "qzbase/automation/members/Platform.h"
#include "qzbase/automation/members/Text.h"

namespace qzbase::automation {
namespace {

template <class... C>
constexpr std::array<ClassDesc, sizeof...(C)> DescribeClasses(TypeList<C...>) {
  return {ClassDesc{&identity<C>, &memberTable<C>}...};
}

template <class... R>
constexpr std::array<RecordDesc, sizeof...(R)> DescribeRecords(TypeList<R...>) {
  return {recordDesc<R>...};
}

template <class... E>
constexpr std::array<EnumDesc, sizeof...(E)> DescribeEnumerations(TypeList<E...>) {
  return {enumDesc<E>...};
}

constexpr auto kClasses = DescribeClasses(AllClasses());
constexpr auto kRecords = DescribeRecords(AllRecords());
constexpr auto kEnumerations = DescribeEnumerations(AllEnumerations());

constexpr Catalog kCatalog = {kClasses, kRecords, kEnumerations};

}  // namespace

const Catalog& LibraryCatalog() {
  return kCatalog;
}

}  // namespace qzbase::automation
