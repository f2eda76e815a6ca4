// The calls of hosts, made from the description of a member: late bound by its identifier, early bound by its slot.
#pragma once

#include "tests/automation/CallValues.h"

// The tables stand before the system's headers.
#include "qzbase/automation/com/OuterFace.h"

namespace qzbase::tests {

// A member of a fresh object, whose variables are passed by reference where the table says so. The pointer at a
// position, of an argument or behind them of the result, is null.
CallOutcome CallLate(automation::com::OuterFace& pFace, const MemberCall& pCall);
CallOutcome CallEarly(automation::com::OuterFace& pFace, const MemberCall& pCall,
                      std::size_t pNullAt = ~std::size_t{0});

// The platform's type of a value of a declared type.
VARTYPE TypeOf(const automation::TypeDesc& pType);

// The text of what an early-bound call has answered, which is freed.
std::string ShowResult(const automation::TypeDesc& pType, std::byte* pNative);

// The object behind a fresh face; the reference is the caller's.
automation::com::OuterFace* NewFace(const automation::ClassEntry& pEntry);

}  // namespace qzbase::tests
