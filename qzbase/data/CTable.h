// A named table whose columns are described: a list of entry descriptors, and a grid with one column for each of them.
//
//   CTable table;
//   table.LetID(u"Elements");
//   table.AddCol(name);                    // name->ID() is "Name", its type EVTString
//   table.AddCol(density);                 // "Density", EVTDouble, output format "0.00"
//   table.AddRow();
//   table.LetValue(table.ColIndex(u"density"), 1, 7.874);
//   table.Row(1)->GetValue(u"Density");    // 7.874
//   table.GetString();                     // "Name;Density;", "~;7.87;", each with a line feed
//
// Every member keeps the two in step: as many descriptors as grid columns, column i of the type of descriptor i. What
// is changed through `DescsRef`, `DataRef`, `ColDescRef` and `ColRef` is the caller's own affair. Positions count from
// 1 and go to both as they are; DescList.h and CEntryData.h say what becomes of those outside, and of slots that hold
// nothing: `LetNrCols` makes new descriptors but no columns, so that their cells raise error 91 until `SetColDesc` or
// `LetColDesc` has given them a type.
//
// Descriptors that are copied into the table have one dimension there (`NrDims` 1); one that is stored itself keeps its
// own.
//
// Record: tag "Table#1", the ID, the record of the descriptors, the record of the grid, tag "\Table".
//
// Raises what descriptors, grid and buffer raise. What was reached before an error stays.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "qzbase/data/CEntryData.h"
#include "qzbase/desc/CEntryDescs.h"
#include "qzbase/desc/CTypedInfo.h"
#include "qzbase/persist/CBuffer.h"
#include "qzbase/runtime/Object.h"

namespace qzbase {

class CTable final : public runtime::Object {
 public:
  const std::u16string& ID() const noexcept { return id_; }
  void LetID(std::u16string_view pID) { id_ = pID; }

  // Drops columns and rows. The ID stays.
  void Clear();

  std::int32_t NrCols() const noexcept { return descs_->Size(); }
  void LetNrCols(std::int32_t pNrCols);

  // A copy. The set stores the object itself, error 91 where it is unset or cannot be copied, before anything changes;
  // the let copies its contents into the stored one. Where the type becomes another one, the column loses its values.
  runtime::Ref<TEntryDesc> ColDesc(std::int32_t pColIdx) const { return descs_->Desc(pColIdx); }
  void SetColDesc(std::int32_t pColIdx, runtime::Ref<TEntryDesc> pDesc);
  void LetColDesc(std::int32_t pColIdx, const TEntryDesc& pDesc);
  const runtime::Ref<TEntryDesc>& ColDescRef(std::int32_t pColIdx) const { return descs_->DescRef(pColIdx); }

  // Appends a column and stores the descriptor itself, as `SetColDesc` does.
  void AddCol(runtime::Ref<TEntryDesc> pDesc);
  // Gives the descriptor one dimension and inserts a copy of it; a position below 1 or past the end appends.
  void InsertCol(TEntryDesc& pDesc, std::int32_t pAtPos);
  // A column moves properly, a descriptor does not (DescList.h): callers set the descriptors anew afterwards.
  void MoveCol(std::int32_t pOldPos, std::int32_t pNewPos);
  void DeleteCol(std::int32_t pAtPos);
  // The first column with this ID, ignoring case; -1 where there is none.
  std::int32_t ColIndex(std::u16string_view pID) const { return descs_->Index(pID); }
  runtime::Ref<CVector> ColRef(std::int32_t pIndex) const { return data_->Col(pIndex); }

  std::int32_t NrRows() const noexcept { return data_->NrRows(); }
  void LetNrRows(std::int32_t pNrRows) { data_->LetNrRows(pNrRows); }
  void AddRow() { data_->AddRow(); }
  void InsertRow(std::int32_t pAtPos) { data_->InsertRow(pAtPos); }
  void DeleteRow(std::int32_t pAtPos) { data_->DeleteRow(pAtPos); }

  // A new record with copies of the descriptors and of the row's cells.
  runtime::Ref<CTypedInfo> Row(std::int32_t pRowIdx) const;

  const runtime::Ref<CEntryDescs>& DescsRef() const noexcept { return descs_; }
  const runtime::Ref<CEntryData>& DataRef() const noexcept { return data_; }

  const runtime::Variant& Value(std::int32_t pColIdx, std::int32_t pRowIdx) const {
    return data_->Value(pColIdx, pRowIdx);
  }
  void LetValue(std::int32_t pColIdx, std::int32_t pRowIdx, const runtime::Variant& pValue) {
    data_->LetValue(pColIdx, pRowIdx, pValue);
  }

  // Does nothing: it stands for programs that call it.
  void InverseRowOrder() noexcept {}
  void Sort(std::int32_t pCol, bool pAscending = true) { data_->Sort(pCol, pAscending); }

  // A line of IDs, then a line for each row, each ID and cell followed by ";", each line by a line feed. Cells have the
  // texts that users see: by the type and output format of their descriptor, "~" where there is no value or null. A
  // value that does not convert to the type is shown as what it is; objects and arrays are "". Error 7 at once for rows
  // that nobody has written and that make more than a gibibyte.
  std::u16string GetString() const;

  // Takes copies of the descriptors and has no rows afterwards. Columns that are there already with the right type are
  // the same objects.
  void SetupFrom(const CEntryDescs& pDesc);
  // The same, with one row: the values of the record.
  void CopyFromInfo(const CTypedInfo& pInfo);

  void CopyFrom(const CTable& pSource);
  runtime::Ref<CTable> GetCopy() const;
  bool IsEqual(const CTable& pCompare) const;
  // Without a buffer both do nothing.
  void SaveToBuffer(CBuffer* pBuffer, bool pAppend = false) const;
  void LoadFromBuffer(CBuffer* pBuffer, bool pAppend = false);

 private:
  void AppendRow(std::u16string& pText, std::int32_t pRow, const runtime::LocaleRules& pRules) const;
  void AppendRows(std::u16string& pText) const;

  std::u16string id_;
  runtime::Ref<CEntryDescs> descs_ = runtime::New<CEntryDescs>();
  runtime::Ref<CEntryData> data_ = runtime::New<CEntryData>();
};

}  // namespace qzbase
