#include "qzbase/automation/com/Conversion.h"

#include <cstring>
#include <limits>
#include <type_traits>

#include "qzbase/automation/com/Border.h"
#include "qzbase/automation/com/ErrorBorder.h"
#include "qzbase/automation/com/RecordBorder.h"
#include "qzbase/automation/com/SafeArrays.h"

namespace qzbase::automation::com {
namespace {

using runtime::Object;
using runtime::Raise;
using runtime::Ref;
using runtime::RuntimeError;
using runtime::Variant;

constexpr VARTYPE kReference = VT_BYREF | VT_VARIANT;

// The value of a variant's own type, and where it is when the variant is a reference.
template <class Native>
const Native& NativeIn(const VARIANT& pVariant) {
  const void* place = (pVariant.vt & VT_BYREF) != 0 ? pVariant.byref : &pVariant.llVal;
  if (!place) throw NullPointer();
  return *static_cast<const Native*>(place);
}

template <class T>
Variant FromOwnKind(const VARIANT& pVariant) {
  return Variant(Border<T>::From(NativeIn<typename Border<T>::Native>(pVariant)));
}

// Whole numbers that fit become 32-bit ones, others doubles.
template <class Native>
Variant FromWhole(const VARIANT& pVariant) {
  const Native number = NativeIn<Native>(pVariant);
  if (std::in_range<std::int32_t>(number)) return Variant(static_cast<std::int32_t>(number));
  return Variant(static_cast<double>(number));
}

template <class Native>
Variant FromSmall(const VARIANT& pVariant) {
  return Variant(static_cast<std::int16_t>(NativeIn<Native>(pVariant)));
}

Variant FromCurrency(const VARIANT& pVariant) {
  double number = 0;
  CheckResult(VarR8FromCy(NativeIn<CY>(pVariant), &number));
  return Variant(number);
}

// A decimal lies across the whole variant, and not behind its type.
Variant FromDecimal(const VARIANT& pVariant) {
  double number = 0;
  if ((pVariant.vt & VT_BYREF) != 0 && !pVariant.pdecVal) throw NullPointer();
  DECIMAL decimal = (pVariant.vt & VT_BYREF) != 0 ? *pVariant.pdecVal : pVariant.decVal;
  CheckResult(VarR8FromDec(&decimal, &number));
  return Variant(number);
}

Variant FromObject(const VARIANT& pVariant) {
  return Variant(FromDispatch(NativeIn<IUnknown*>(pVariant)));
}

Variant FromScalar(const VARIANT& pVariant) {
  switch (pVariant.vt & VT_TYPEMASK) {
    case VT_EMPTY:
      return {};
    case VT_NULL:
      return Variant(runtime::Null{});
    case VT_BOOL:
      return FromOwnKind<bool>(pVariant);
    case VT_I1:
      return FromSmall<signed char>(pVariant);
    case VT_UI1:
      return FromSmall<BYTE>(pVariant);
    case VT_I2:
      return FromOwnKind<std::int16_t>(pVariant);
    case VT_UI2:
      return FromWhole<USHORT>(pVariant);
    case VT_I4:
    case VT_INT:
      return FromOwnKind<std::int32_t>(pVariant);
    case VT_UI4:
    case VT_UINT:
      return FromWhole<ULONG>(pVariant);
    case VT_I8:
      return FromWhole<LONGLONG>(pVariant);
    case VT_UI8:
      return FromWhole<ULONGLONG>(pVariant);
    case VT_R4:
      return FromOwnKind<float>(pVariant);
    case VT_R8:
      return FromOwnKind<double>(pVariant);
    case VT_DATE:
      return FromOwnKind<runtime::Date>(pVariant);
    case VT_CY:
      return FromCurrency(pVariant);
    case VT_DECIMAL:
      return FromDecimal(pVariant);
    case VT_BSTR:
      return FromOwnKind<std::u16string>(pVariant);
    case VT_DISPATCH:
    case VT_UNKNOWN:
      return FromObject(pVariant);
    case VT_RECORD:
      if (!pVariant.pRecInfo) return Variant(nullptr);  // some systems lose records on their way between apartments
      return Variant(RecordFromVariant(pVariant));
    default:
      Raise(RuntimeError::TypeMismatch);
  }
}

template <class T>
void Put(VARIANT& pVariant, typename Border<T>::Native pNative) noexcept {
  static_assert(sizeof pNative <= sizeof pVariant.llVal);
  std::memcpy(&pVariant.llVal, &pNative, sizeof pNative);
  pVariant.vt = Border<T>::kVarType;
}

VARIANT ToObject(const Ref<Object>& pObject) {
  if (const auto* record = dynamic_cast<const Record*>(pObject.get())) return RecordToVariant(*record);
  VARIANT result{};
  Put<Ref<Object>>(result, ToDispatch(pObject));
  return result;
}

VARIANT ToArray(const runtime::AnyArray& pArray) {
  const VARTYPE type = ElementType(pArray);
  VARIANT result{};
  result.parray = ToSafeArray(pArray, type).Release();
  result.vt = VT_ARRAY | type;
  return result;
}

// One attempt of `ToVariantOf`.
template <class T>
bool PutAs(const Variant& pValue, VARTYPE pType, VARIANT& pResult) {
  if (pType != Border<T>::kVarType) return false;
  Put<T>(pResult, Border<T>::To(VariantValue<T>::From(pValue)));
  return true;
}

template <class... T>
bool PutAsOneOf(TypeList<T...>, const Variant& pValue, VARTYPE pType, VARIANT& pResult) {
  return (PutAs<T>(pValue, pType, pResult) || ...);
}

using OwnKinds = TypeList<bool, std::uint8_t, std::int16_t, std::int32_t, float, double, runtime::Date, std::u16string>;

// The kinds of number that the library does not have.
VARIANT ToForeignKind(const Variant& pValue, VARTYPE pType) {
  VARIANT number{};
  Put<double>(number, VariantValue<double>::From(pValue));
  OwnedVariant result;
  CheckResult(VariantChangeTypeEx(&result.value, &number, LOCALE_INVARIANT, 0, pType));
  return result.Release();
}

// The variable behind an argument that is a reference, else null.
VARIANT* Variable(VARIANT& pArgument) noexcept {
  VARIANT* target = &pArgument;
  while (target->vt == kReference && target->pvarVal) target = target->pvarVal;
  return target != &pArgument || (target->vt & VT_BYREF) != 0 ? target : nullptr;
}

// What a variable of fixed type is to hold; the record or array in it may have to stay where it is.
VARIANT ForTypedVariable(const VARIANT& pVariable, const Variant& pValue) {
  const auto type = static_cast<VARTYPE>(pVariable.vt & VT_TYPEMASK);
  if ((pVariable.vt & VT_ARRAY) != 0) {
    const runtime::AnyArray* array = pValue.IfArray();
    if (!array || !pVariable.pparray) Raise(RuntimeError::TypeMismatch);
    const VARTYPE elements = *pVariable.pparray ? ElementType(**pVariable.pparray, type) : type;
    OwnedSafeArray fresh = ToSafeArray(*array, elements);
    CheckReplaceable(*pVariable.pparray, fresh.Get());
    VARIANT result{};
    result.parray = fresh.Release();
    result.vt = VT_ARRAY | elements;
    return result;
  }
  if (type == VT_RECORD) {
    const auto* object = pValue.If<Ref<Object>>();
    const auto* record = object ? dynamic_cast<const Record*>(object->get()) : nullptr;
    if (!record || FindRecordFace(*record) != &CheckedRecordFace(pVariable.pRecInfo)) Raise(RuntimeError::TypeMismatch);
    return RecordToVariant(*record);
  }
  if (!pVariable.byref) throw NullPointer();
  return ToVariantOf(pValue, type);
}

// What a variable of any type is to hold.
VARIANT ForVariable(const VARIANT& pVariable, const Variant& pValue) {
  const runtime::AnyArray* array = pValue.IfArray();
  if ((pVariable.vt & VT_ARRAY) == 0 || !array || !pVariable.parray) return ToVariant(pValue);
  const VARTYPE elements = ElementType(*pVariable.parray, static_cast<VARTYPE>(pVariable.vt & VT_TYPEMASK));
  OwnedSafeArray fresh = ToSafeArray(*array, elements);
  CheckReplaceable(pVariable.parray, fresh.Get());
  VARIANT result{};
  result.parray = fresh.Release();
  result.vt = VT_ARRAY | elements;
  return result;
}

std::size_t SizeOfType(VARTYPE pType) noexcept {
  switch (pType) {
    case VT_I1:
    case VT_UI1:
      return 1;
    case VT_I2:
    case VT_UI2:
    case VT_BOOL:
      return 2;
    case VT_I4:
    case VT_UI4:
    case VT_INT:
    case VT_UINT:
    case VT_R4:
    case VT_ERROR:
      return 4;
    case VT_BSTR:
    case VT_DISPATCH:
    case VT_UNKNOWN:
      return sizeof(void*);
    default:
      return 8;
  }
}

// Clears the variable's old value and moves the new one in.
void MoveInto(VARIANT& pVariable, OwnedVariant& pFresh) noexcept {
  const VARIANT fresh = pFresh.Release();
  const auto type = static_cast<VARTYPE>(pVariable.vt & VT_TYPEMASK);
  if ((pVariable.vt & VT_ARRAY) != 0) return ReplaceArray(*pVariable.pparray, fresh.parray);
  if (type == VT_RECORD) {
    pVariable.pRecInfo->RecordCopy(fresh.pvRecord, pVariable.pvRecord);
    VARIANT used = fresh;
    ClearVariant(used);
    return;
  }
  if (type == VT_DECIMAL) {
    *pVariable.pdecVal = fresh.decVal;
    pVariable.pdecVal->wReserved = 0;
    return;
  }
  if (type == VT_BSTR) SysFreeString(*pVariable.pbstrVal);
  if ((type == VT_DISPATCH || type == VT_UNKNOWN) && *pVariable.ppunkVal) (*pVariable.ppunkVal)->Release();
  std::memcpy(pVariable.byref, &fresh.llVal, SizeOfType(type));
}

}  // namespace

bool IsOmitted(const VARIANT& pVariant) noexcept {
  const VARIANT* variant = &pVariant;
  while (variant->vt == kReference && variant->pvarVal) variant = variant->pvarVal;
  return variant->vt == VT_ERROR && variant->scode == DISP_E_PARAMNOTFOUND;
}

Variant FromVariant(const VARIANT& pVariant) {
  const VARIANT* variant = &pVariant;
  while (variant->vt == kReference) {
    variant = variant->pvarVal;
    if (!variant) throw NullPointer();
  }
  if (IsOmitted(*variant)) return {};
  if ((variant->vt & VT_ARRAY) != 0)
    return FromSafeArray(NativeIn<SAFEARRAY*>(*variant), static_cast<VARTYPE>(variant->vt & VT_TYPEMASK));
  return FromScalar(*variant);
}

VARIANT ToVariant(const Variant& pValue) {
  return pValue.Visit([]<class T>(const T& pInside) {
    VARIANT result{};
    if constexpr (std::is_same_v<T, runtime::Null>)
      result.vt = VT_NULL;
    else if constexpr (std::is_same_v<T, Ref<Object>>)
      result = ToObject(pInside);
    else if constexpr (std::is_same_v<T, runtime::ArrayBox>)
      result = ToArray(*pInside);
    else if constexpr (!std::is_same_v<T, std::monostate>)
      Put<T>(result, Border<T>::To(pInside));
    return result;
  });
}

VARIANT ToVariantOf(const Variant& pValue, VARTYPE pType) {
  VARIANT result{};
  if (pType == VT_VARIANT) return ToVariant(pValue);
  if (pType == VT_DISPATCH || pType == VT_UNKNOWN) {
    Put<Ref<Object>>(result, ToDispatch(VariantValue<Ref<Object>>::From(pValue)));
    return result;
  }
  if (pType == VT_RECORD) {
    result = ToVariant(pValue);
    if (result.vt == VT_RECORD) return result;
    ClearVariant(result);
    Raise(RuntimeError::TypeMismatch);
  }
  if (PutAsOneOf(OwnKinds(), pValue, pType == VT_INT ? VARTYPE{VT_I4} : pType, result)) return result;
  return ToForeignKind(pValue, pType);
}

void WriteBack::Prepare(VARIANT& pArgument, const Variant& pValue) {
  VARIANT* variable = Variable(pArgument);
  if (!variable) return;
  fresh_.value = (variable->vt & VT_BYREF) != 0 ? ForTypedVariable(*variable, pValue) : ForVariable(*variable, pValue);
  target_ = variable;
}

void WriteBack::Commit() noexcept {
  if (!target_) return;
  if ((target_->vt & VT_BYREF) != 0) return MoveInto(*target_, fresh_);
  if ((target_->vt & VT_ARRAY) != 0 && (fresh_.value.vt & VT_ARRAY) != 0)
    return ReplaceArray(target_->parray, fresh_.Release().parray);
  ClearVariant(*target_);
  *target_ = fresh_.Release();
}

}  // namespace qzbase::automation::com
