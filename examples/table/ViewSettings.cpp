#include "examples/table/ViewSettings.h"

#include "qzbase/platform/GCBase.h"

using namespace qzbase;

namespace {

void Add(CTypedInfo& pSettings, std::u16string_view pID, QZVarType pType, runtime::Variant pValue,
         std::u16string_view pFormat = {}) {
  pSettings.AddInfo(*GCBase::NewEntryDesc(pID, pType, u"", u"", ECTEdit, pFormat), std::move(pValue));
}

}  // namespace

Ref<CTypedInfo> OldSettings(std::u16string_view pSortColumn) {
  auto settings = New<CTypedInfo>();
  Add(*settings, u"SortColumn", EVTString, pSortColumn);
  Add(*settings, u"Ascending", EVTBoolean, false, u"{Yes;No}");
  Add(*settings, u"LineHeight", EVTDouble, 14.5, u"0.0");
  return settings;
}

Ref<CTypedInfo> NewSettings() {
  auto settings = New<CTypedInfo>();
  Add(*settings, u"SortColumn", EVTString, u"");
  Add(*settings, u"Ascending", EVTBoolean, true, u"{Yes;No}");
  Add(*settings, u"RowsShown", EVTLong, 4);
  Add(*settings, u"ShowUnits", EVTBoolean, true, u"{Yes;No}");
  return settings;
}
