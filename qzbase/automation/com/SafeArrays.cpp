#include "qzbase/automation/com/SafeArrays.h"

#include <cstring>
#include <type_traits>
#include <variant>

namespace qzbase::automation::com {
namespace {

using runtime::AnyArray;
using runtime::Array;
using runtime::Object;
using runtime::Raise;
using runtime::Ref;
using runtime::RuntimeError;
using runtime::Variant;

constexpr USHORT kFixedFeatures = FADF_AUTO | FADF_STATIC | FADF_EMBEDDED | FADF_FIXEDSIZE;

SAFEARRAYBOUND Bounds(std::int32_t pLower, std::size_t pCount) {
  return {static_cast<ULONG>(pCount), pLower};
}

OwnedSafeArray CheckMade(SAFEARRAY* pArray) {
  if (!pArray) Raise(RuntimeError::OutOfMemory);
  return OwnedSafeArray(pArray);
}

// Elements that hold one of the library's own types.
template <class E>
bool ReadTyped(SAFEARRAY* pArray, VARTYPE pType, Variant& pResult) {
  if (pType != Border<E>::kVarType) return false;
  pResult = Variant(TypedFromSafeArray<E>(pArray));
  return true;
}

template <class... E>
bool ReadOneOf(TypeList<E...>, SAFEARRAY* pArray, VARTYPE pType, Variant& pResult) {
  return (ReadTyped<E>(pArray, pType, pResult) || ...);
}

using OwnElements = TypeList<Variant, std::uint8_t, std::int16_t, std::int32_t, float, double, runtime::Date,
                             std::u16string, bool, Ref<Object>>;

Array<Ref<Object>> ReadRecords(SAFEARRAY& pArray) {
  ComRef<IRecordInfo> info;
  CheckResult(SafeArrayGetRecordInfo(&pArray, info.Put()));
  const ServerRecord& served = CheckedServerRecord(info.Get());
  const ArrayAccess access(pArray);
  std::vector<Ref<Object>> elements;
  elements.reserve(access.Count());
  for (std::size_t i = 0; i < access.Count(); ++i) elements.push_back(served.load(access.At(i)));
  return {access.LowerBound(), std::move(elements)};
}

// Any other elements one by one, each seen through a variant of its type, which owns nothing.
Array<Variant> ReadSingly(SAFEARRAY& pArray, VARTYPE pType, Digits pDigits) {
  const ArrayAccess access(pArray);
  std::vector<Variant> elements;
  elements.reserve(access.Count());
  for (std::size_t i = 0; i < access.Count(); ++i) {
    VARIANT element{};
    element.vt = static_cast<VARTYPE>(pType | VT_BYREF);
    element.byref = access.At(i);
    elements.push_back(FromVariant(element, pDigits));
  }
  return {access.LowerBound(), std::move(elements)};
}

// Moves an element into its zeroed place in an array.
void PlaceElement(const ArrayAccess& pAccess, std::size_t pAt, VARTYPE pType, std::size_t pSize, VARIANT pElement) {
  std::byte* place = pAccess.At(pAt);
  if (pType == VT_VARIANT || pType == VT_DECIMAL)
    std::memcpy(place, &pElement, pSize);
  else
    std::memcpy(place, &pElement.llVal, pSize);
}

template <class E>
OwnedSafeArray WriteSingly(const Array<E>& pArray, VARTYPE pType) {
  OwnedSafeArray result = NewSafeArray(pType, pArray.LowerBound(), pArray.Elements().size());
  const ArrayAccess access(*result.Get());
  std::size_t at = 0;
  for (const auto& element : pArray.Elements()) {
    if constexpr (std::is_same_v<E, Variant>)
      PlaceElement(access, at++, pType, result.Get()->cbElements, ToVariantOf(element, pType));
    else
      PlaceElement(access, at++, pType, result.Get()->cbElements, ToVariantOf(VariantValue<E>::To(element), pType));
  }
  return result;
}

const Record* FirstRecord(const Array<Ref<Object>>& pArray) {
  for (const Ref<Object>& element : pArray)
    if (element) return dynamic_cast<const Record*>(element.get());
  return nullptr;
}

// Unset elements stay zero.
OwnedSafeArray WriteRecords(const Array<Ref<Object>>& pArray) {
  const Record* first = FirstRecord(pArray);
  const ServerRecord* served = first ? FindServerRecord(*first) : nullptr;
  if (!served) Raise(RuntimeError::TypeMismatch);
  OwnedSafeArray result = NewRecordArray(*served, pArray.LowerBound(), pArray.Elements().size());
  const ArrayAccess access(*result.Get());
  std::size_t at = 0;
  for (const Ref<Object>& element : pArray) {
    const auto* record = dynamic_cast<const Record*>(element.get());
    if (element && (!record || FindServerRecord(*record) != served)) Raise(RuntimeError::TypeMismatch);
    if (record) served->store(*record, access.At(at));
    ++at;
  }
  return result;
}

}  // namespace

ArrayAccess::ArrayAccess(SAFEARRAY& pArray) : array_(pArray) {
  LONG upper = 0;
  LONG lower = 0;
  if (SafeArrayGetDim(&pArray) != 1) Raise(RuntimeError::TypeMismatch);
  CheckResult(SafeArrayGetLBound(&pArray, 1, &lower));
  CheckResult(SafeArrayGetUBound(&pArray, 1, &upper));
  void* data = nullptr;
  CheckResult(SafeArrayAccessData(&pArray, &data));
  data_ = static_cast<std::byte*>(data);
  lower_ = lower;
  count_ = static_cast<std::size_t>(std::int64_t{upper} - lower + 1);
}

ArrayAccess::~ArrayAccess() {
  SafeArrayUnaccessData(&array_);
}

VARTYPE ElementType(SAFEARRAY& pArray, VARTYPE pDeclared) {
  VARTYPE type = VT_EMPTY;
  if (FAILED(SafeArrayGetVartype(&pArray, &type)) || type == VT_EMPTY) type = pDeclared;
  if (type == VT_INT) return VT_I4;
  return type == VT_UNKNOWN ? VARTYPE{VT_DISPATCH} : type;
}

OwnedSafeArray NewSafeArray(VARTYPE pType, std::int32_t pLower, std::size_t pCount) {
  SAFEARRAYBOUND bounds = Bounds(pLower, pCount);
  return CheckMade(SafeArrayCreate(pType, 1, &bounds));
}

OwnedSafeArray NewRecordArray(const ServerRecord& pClass, std::int32_t pLower, std::size_t pCount) {
  SAFEARRAYBOUND bounds = Bounds(pLower, pCount);
  return CheckMade(SafeArrayCreateEx(VT_RECORD, 1, &bounds, RecordInfoOf(pClass).Get()));
}

Variant FromSafeArray(SAFEARRAY* pArray, VARTYPE pDeclared, Digits pDigits) {
  const VARTYPE type = pArray ? ElementType(*pArray, pDeclared) : pDeclared;
  Variant result;
  if (ReadOneOf(OwnElements(), pArray, type, result)) return result;
  if (!pArray) return Variant(Array<Variant>());
  if (type == VT_RECORD) return Variant(ReadRecords(*pArray));
  return Variant(ReadSingly(*pArray, type, pDigits));
}

VARTYPE ElementType(const AnyArray& pArray) {
  return std::visit(
      []<class E>(const Array<E>& pTyped) -> VARTYPE {
        if constexpr (std::is_same_v<E, Ref<Object>>)
          if (FirstRecord(pTyped)) return VT_RECORD;
        return Border<E>::kVarType;
      },
      pArray);
}

OwnedSafeArray ToSafeArray(const AnyArray& pArray, VARTYPE pType) {
  return std::visit(
      [&]<class E>(const Array<E>& pTyped) {
        if (!pTyped.IsAllocated()) return OwnedSafeArray();
        if constexpr (std::is_same_v<E, Ref<Object>>)
          if (pType == VT_RECORD) return WriteRecords(pTyped);
        if (pType == Border<E>::kVarType) return TypedToSafeArray(pTyped);
        return WriteSingly(pTyped, pType);
      },
      pArray);
}

bool IsFixed(const SAFEARRAY* pArray) noexcept {
  return pArray && ((pArray->fFeatures & kFixedFeatures) != 0 || pArray->cLocks != 0);
}

void CheckReplaceable(SAFEARRAY* pArray, SAFEARRAY* pFresh) {
  if (!IsFixed(pArray)) return;
  const bool canBeFilled = pArray->cLocks == 0 && pFresh && pArray->cDims == 1 &&
                           pArray->cbElements == pFresh->cbElements &&
                           pArray->rgsabound[0].cElements == pFresh->rgsabound[0].cElements;
  if (!canBeFilled) Raise(RuntimeError::ArrayFixed);
}

void ReplaceArray(SAFEARRAY*& pArray, SAFEARRAY* pFresh) noexcept {
  OwnedSafeArray fresh(pFresh);
  if (IsFixed(pArray)) {  // the elements change places, which cannot fail; the old ones go with the fresh array
    auto* first = static_cast<std::byte*>(pArray->pvData);
    std::swap_ranges(first, first + std::size_t{pArray->cbElements} * pArray->rgsabound[0].cElements,
                     static_cast<std::byte*>(pFresh->pvData));
    return;
  }
  const OwnedSafeArray last(pArray);
  pArray = fresh.Release();
}

}  // namespace qzbase::automation::com
