// Every member of every class, and values to call it with, made from what its table says. It names no member but those
// that wait, show boxes or change the file system.
#pragma once

#include <string>
#include <vector>

#include "qzbase/automation/ClassTable.h"
#include "qzbase/runtime/Variant.h"

namespace qzbase::tests {

// One argument: the value of the caller's variable, unless it is left out.
struct CallArgument {
  runtime::Variant value;
  bool isOmitted = false;
};

struct MemberCall {
  const automation::ClassEntry* entry;
  std::size_t row;
  std::vector<CallArgument> arguments{};

  const automation::MemberDesc& Member() const { return entry->members->rows[row]; }
  const automation::ParameterDesc& Parameter(std::size_t pAt) const {
    return entry->members->Parameters(Member())[pAt];
  }
  runtime::CallKind Kind() const;
  std::string Name() const;
};

// What a call answered: the text of its result or its error, and of the arguments afterwards.
struct CallOutcome {
  std::string answer;
  std::vector<std::string> arguments{};
  bool operator==(const CallOutcome&) const = default;
};

std::vector<MemberCall> MembersOf(const automation::ClassEntry& pEntry);
std::vector<MemberCall> AllMembers();

// With arguments of the parameters' own types.
MemberCall WithRightArguments(MemberCall pCall);
runtime::Variant RightValue(const automation::TypeDesc& pType);

// Of another kind than a parameter takes; and all of any kind at all.
runtime::Variant WrongValue(const automation::TypeDesc& pType);
MemberCall WithRandomArguments(MemberCall pCall, unsigned pSeed);

// The same for the same value, whatever object it is in.
std::string Show(const runtime::Variant& pValue);

// The call natively by name.
CallOutcome CallNatively(runtime::Object& pObject, const MemberCall& pCall);

}  // namespace qzbase::tests
