#include "qzbase/automation/RecordObject.h"

#include "qzbase/automation/NameIndex.h"

namespace qzbase::automation {
namespace {

using runtime::CallKind;
using runtime::Raise;
using runtime::RuntimeError;
using runtime::Variant;

std::size_t FindField(std::span<const FieldDesc> pFields, std::u16string_view pName) {
  for (std::size_t i = 0; i < pFields.size(); ++i)
    if (EqualNames(pFields[i].name, pName)) return i;
  Raise(RuntimeError::MemberNotFound);
}

void CheckCount(std::span<Variant> pArguments, std::size_t pExpected) {
  if (pArguments.size() > pExpected) Raise(RuntimeError::WrongNumberOfArguments);
  if (pArguments.size() < pExpected) Raise(RuntimeError::ArgumentNotOptional);
}

}  // namespace

Variant Record::Invoke(std::u16string_view pName, CallKind pKind, std::span<Variant> pArguments) {
  const std::size_t field = FindField(Desc().fields, pName);
  switch (pKind) {
    case CallKind::Get:
    case CallKind::MethodOrGet:
      CheckCount(pArguments, 0);
      return FieldValue(field);
    case CallKind::Let:
      CheckCount(pArguments, 1);
      LetFieldValue(field, pArguments[0]);
      return {};
    default:
      Raise(RuntimeError::MemberNotFound);
  }
}

}  // namespace qzbase::automation
