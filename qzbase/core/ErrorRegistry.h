// The list of registered errors: entries named by module and identifier, numbered from 1001.
//
//   registry.Register(u"App", u"NoPaper", u"Out of paper", false)   the 11th entry, number 1011
//   registry.Find(u"App", u"NoPaper")                               11
//   registry.Find(u"", u"NoPaper")                                  11: an empty module matches every module
//
// The number of an entry need not be its position plus 1000: a host may have aligned the numbers with those of another
// process or set entries of its own. Numbers are therefore always looked up, never computed.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string_view>

#include "qzbase/core/ErrorRecords.h"
#include "qzbase/runtime/Array.h"

namespace qzbase {

class ErrorRegistry {
 public:
  // Added to the position of a new entry to make its number. Numbers below it are the runtime's own.
  static constexpr std::int32_t kCodeBase = 1000;

  // The last position, and the first that look-ups begin with: 1, or the lower bound of an array that a host has set
  // if that is greater.
  std::int32_t Count() const { return errors_.UpperBound(); }
  std::int32_t First() const { return std::max(1, errors_.LowerBound()); }

  // The first entry of that module (any, if empty) and identifier; 0 if there is none. Both are compared exactly.
  std::int32_t Find(std::u16string_view pModule, std::u16string_view pID) const;

  // The first entry with that number, or null.
  const TErrDesc* FindCode(std::int32_t pCode) const;

  // The position of the new entry.
  //
  // An entry whose *module* is `pID` (or any entry, if `pID` is empty) and whose *identifier* is `pModule` counts as
  // registered already: its position is returned and nothing changes. The names are exchanged in this look-up, and
  // hosts rely on what follows: the same pair registered twice gives two entries, of which `Find` knows the first.
  //
  // Raises error 6 when the number would leave the 32-bit range, error 9 when the new position would be below 1.
  std::int32_t Register(std::u16string_view pModule, std::u16string_view pID, std::u16string_view pMsg, bool pAddInfo);

  // Raise error 9 for a position that is not there.
  const TErrDesc& Entry(std::int32_t pPosition) const { return errors_[pPosition]; }
  TErrDesc& Entry(std::int32_t pPosition) { return errors_[pPosition]; }

  // All entries. An array set is kept as it is, with its lower bound; an unallocated one raises error 9.
  const runtime::Array<TErrDesc>& Entries() const noexcept { return errors_; }
  void SetEntries(runtime::Array<TErrDesc> pErrors);

 private:
  // The position of the first entry that `pMatches` accepts; 0 if there is none.
  template <class Predicate>
  std::int32_t FindIf(Predicate pMatches) const;

  runtime::Array<TErrDesc> errors_{1, 0};
};

}  // namespace qzbase
