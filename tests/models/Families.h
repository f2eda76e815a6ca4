// Which objects live together in a sequence. Those in front are called more often.
#pragma once

#include <vector>

#include "tests/models/TableModels.h"

namespace qzbase::models {

struct Family {
  const char* name;
  std::vector<const Class*> classes;
};

template <class... M>
Family Together(const char* pName) {
  return {pName, {&M::kTable()...}};
}

inline const std::vector<Family>& Families() {
  static const std::vector<Family> families = {
      Together<Buffer, Buffer, Buffer>("Buffer"),
      Together<DblVector, DblVector, DblVector, Buffer>("DblVector"),
      Together<Vector<Long>, Vector<Long>, Vector<Long>, Buffer>("LngVector"),
      Together<Vector<Text>, Vector<Text>, Vector<Text>, Buffer>("StrVector"),
      Together<Vector<bool>, Vector<bool>, Vector<bool>, Buffer>("BoolVector"),
      Together<VarVector, VarVector, VarVector, Buffer>("Vector"),
      Together<ObjVector, ObjVector, ObjVector, Vector<Text>, Buffer, DblVector, VarDesc>("ObjVector"),
      Together<DblVectors, DblVectors, DblVector, DblVector, Buffer>("DblVectors"),
      Together<Matrix<double>, Matrix<double>, DblVector, DblVector, Buffer>("DblMatrix"),
      Together<Matrix<Variant>, Matrix<Variant>, VarVector, VarVector, Buffer>("Matrix"),
      Together<EntryDesc, EntryDesc, VarDesc, CtrlDesc, VarDesc, CtrlDesc, Buffer>("Desc"),
      Together<VarDescs, VarDescs, VarDesc, VarDesc, Buffer>("VarDescs"),
      Together<EntryDescs, EntryDescs, EntryDesc, EntryDesc, VarDesc, CtrlDesc, Buffer>("EntryDescs"),
      Together<TypedInfo, TypedInfo, EntryDesc, EntryDesc, EntryDescs, VarDesc, Buffer>("TypedInfo"),
      Together<EntryData, EntryData, VarVector, VarVector, Matrix<double>, Buffer>("EntryData"),
      Together<DescTable, DescTable, EntryDesc, EntryDesc, TypedInfo, EntryData, EntryDescs, VarVector, Buffer>(
          "Table"),
  };
  return families;
}

}  // namespace qzbase::models
