#include "qzbase/automation/Members.h"

#include "qzbase/automation/Arguments.h"

namespace qzbase::automation {

bool MemberTable::Has(MemberId pId) const noexcept {
  if (pId < 0 || static_cast<std::size_t>(pId) >= rowsOfId.size()) return false;
  for (const std::int16_t row : rowsOfId[static_cast<std::size_t>(pId)])
    if (row >= 0) return true;
  return false;
}

MemberId MemberTable::Find(std::u16string_view pName) const noexcept {
  const std::int32_t row = FindName(buckets, pName, [this](std::size_t pRow) { return rows[pRow].name; });
  return row < 0 ? kNoMember : rows[static_cast<std::size_t>(row)].id;
}

std::int32_t MemberTable::FindParameter(MemberId pId, std::u16string_view pName) const noexcept {
  if (!Has(pId)) return -1;
  for (const std::int16_t row : rowsOfId[static_cast<std::size_t>(pId)]) {
    if (row < 0) continue;
    const MemberDesc& member = rows[static_cast<std::size_t>(row)];
    const auto named = Parameters(member).first(member.parameterCount - (member.IsPut() ? 1U : 0U));
    for (std::size_t i = 0; i < named.size(); ++i)
      if (EqualNames(named[i].name, pName)) return static_cast<std::int32_t>(i);
  }
  return -1;
}

runtime::Variant DefaultOf(const ParameterDesc& pParameter) {
  const DefaultValue& value = pParameter.defaultValue;
  switch (value.kind) {
    case DefaultValue::Kind::Boolean:
      return runtime::Variant(value.number != 0);
    case DefaultValue::Kind::Long:
      return runtime::Variant(value.number);
    case DefaultValue::Kind::Double:
      return runtime::Variant(value.real);
    case DefaultValue::Kind::Text:
      return runtime::Variant(value.text);
    default:
      return {};
  }
}

}  // namespace qzbase::automation
