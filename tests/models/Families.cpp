#include "tests/models/Families.h"

#include "tests/models/TableModels.h"

namespace qzbase::models {
namespace {

template <class... M>
Family Together() {
  return {&M::kTable()...};
}

}  // namespace

const std::vector<Family>& Families() {
  using Longs = Vector<Long>;
  using Texts = Vector<Text>;
  using Booleans = Vector<bool>;
  static const std::vector<Family> families = {
      Together<Buffer, Buffer, Buffer>(),
      Together<DblVector, DblVector, DblVector, Buffer>(),
      Together<Longs, Longs, Longs, Buffer>(),
      Together<Texts, Texts, Texts, Buffer>(),
      Together<Booleans, Booleans, Booleans, Buffer>(),
      Together<VarVector, VarVector, VarVector, Buffer>(),
      Together<ObjVector, ObjVector, ObjVector, Texts, Buffer, DblVector, VarDesc>(),
      Together<DblVectors, DblVectors, DblVector, DblVector, Buffer>(),
      Together<Matrix<double>, Matrix<double>, DblVector, DblVector, Buffer>(),
      Together<Matrix<Variant>, Matrix<Variant>, VarVector, VarVector, Buffer>(),
      Together<EntryDesc, EntryDesc, VarDesc, CtrlDesc, VarDesc, CtrlDesc, Buffer>(),
      Together<VarDescs, VarDescs, VarDesc, VarDesc, Buffer>(),
      Together<EntryDescs, EntryDescs, EntryDesc, EntryDesc, VarDesc, CtrlDesc, Buffer>(),
      Together<TypedInfo, TypedInfo, EntryDesc, EntryDesc, EntryDescs, VarDesc, Buffer>(),
      Together<EntryData, EntryData, VarVector, VarVector, Matrix<double>, Buffer>(),
      Together<DescTable, DescTable, EntryDesc, EntryDesc, TypedInfo, EntryData, EntryDescs, VarVector, Buffer>(),
  };
  return families;
}

std::vector<Family> SavedClasses() {
  std::vector<Family> classes;
  for (const Class* each :
       Together<DblVector, Vector<Long>, Vector<Text>, Vector<bool>, DblVectors, Matrix<double>, VarDesc, CtrlDesc,
                EntryDesc, VarDescs, EntryDescs, TypedInfo, EntryData, DescTable>())
    classes.push_back({each, &Buffer::kTable()});
  return classes;
}

}  // namespace qzbase::models
