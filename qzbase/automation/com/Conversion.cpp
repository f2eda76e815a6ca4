#include "qzbase/automation/com/Conversion.h"

#include <cstring>
#include <type_traits>
#include <utility>

#include "qzbase/automation/com/HostObject.h"
#include "qzbase/automation/com/RecordBorder.h"
#include "qzbase/automation/com/SafeArrays.h"
#include "qzbase/automation/com/TypedVariant.h"

namespace qzbase::automation::com {
namespace {

using runtime::Object;
using runtime::Raise;
using runtime::Ref;
using runtime::RuntimeError;
using runtime::Variant;

constexpr VARTYPE kReference = VT_BYREF | VT_VARIANT;

// A value that travels through the library without being looked at.
class WholeValue final : public Object {
 public:
  explicit WholeValue(const VARIANT& pVariant) { variant_.value = CopyOf(pVariant); }
  const VARIANT& Variant() const noexcept { return variant_.value; }

  static const WholeValue* In(const runtime::Variant& pValue) noexcept {
    const auto* object = pValue.If<Ref<Object>>();
    return object ? dynamic_cast<const WholeValue*>(object->get()) : nullptr;
  }

 private:
  OwnedVariant variant_;
};

// The value of a variant's own type, and where it is when the variant is a reference.
template <class Native>
const Native& Inside(const VARIANT& pVariant) {
  const void* place = (pVariant.vt & VT_BYREF) != 0 ? pVariant.byref : &pVariant.llVal;
  if (!place) throw NullPointer();
  return *static_cast<const Native*>(place);
}

template <class T>
bool TakeIf(const VARIANT& pVariant, Variant& pResult) {
  const auto* native = NativeIn<T>(pVariant);
  if (native) pResult = VariantValue<T>::To(Border<T>::From(*native));
  return native;
}

template <class... T>
bool TakeOneOf(TypeList<T...>, const VARIANT& pVariant, Variant& pResult) {
  return (TakeIf<T>(pVariant, pResult) || ...);
}

using OwnKinds = TypeList<bool, std::uint8_t, std::int16_t, std::int32_t, float, double, runtime::Date, std::u16string>;

// The variant as one of another type by the platform's rules; empty where it cannot be.
HRESULT ChangeType(OwnedVariant& pResult, const VARIANT& pVariant, VARTYPE pType) {
  OwnedVariant copy;
  copy.value = CopyOf(pVariant);
  return VariantChangeTypeEx(&pResult.value, &copy.value, LOCALE_INVARIANT, 0, pType);
}

// Whole numbers that fit become 32-bit ones, others doubles.
template <class Native>
Variant FromWhole(const VARIANT& pVariant, Digits pDigits) {
  const Native number = Inside<Native>(pVariant);
  if (std::in_range<std::int32_t>(number)) return Variant(static_cast<std::int32_t>(number));
  const auto nearest = static_cast<double>(number);
  const bool isExact = static_cast<long double>(nearest) == static_cast<long double>(number);
  if (pDigits == Digits::All && !isExact) Raise(RuntimeError::Overflow);
  return Variant(nearest);
}

Variant FromFraction(const VARIANT& pVariant, Digits pDigits) {
  OwnedVariant number;
  OwnedVariant exact;
  OwnedVariant back;
  CheckResult(ChangeType(number, pVariant, VT_R8));
  if (pDigits == Digits::All) {
    CheckResult(ChangeType(exact, pVariant, VT_DECIMAL));
    const bool isKept = SUCCEEDED(ChangeType(back, number.value, VT_DECIMAL)) &&
                        VarDecCmp(&exact.value.decVal, &back.value.decVal) == static_cast<HRESULT>(VARCMP_EQ);
    if (!isKept) Raise(RuntimeError::Overflow);
  }
  return Variant(number.value.dblVal);
}

// Numbers of the kinds that the library does not have.
Variant FromForeignNumber(const VARIANT& pVariant, Digits pDigits) {
  switch (pVariant.vt & ~VT_BYREF) {
    case VT_I1:
      return FromWhole<signed char>(pVariant, pDigits);
    case VT_UI2:
      return FromWhole<USHORT>(pVariant, pDigits);
    case VT_UI4:
    case VT_UINT:
      return FromWhole<ULONG>(pVariant, pDigits);
    case VT_I8:
      return FromWhole<LONGLONG>(pVariant, pDigits);
    case VT_UI8:
      return FromWhole<ULONGLONG>(pVariant, pDigits);
    default:
      return FromFraction(pVariant, pDigits);
  }
}

bool IsForeignNumber(const VARIANT& pVariant) noexcept {
  switch (pVariant.vt & ~VT_BYREF) {
    case VT_I1:
    case VT_UI2:
    case VT_UI4:
    case VT_UINT:
    case VT_I8:
    case VT_UI8:
    case VT_CY:
    case VT_DECIMAL:
      return true;
    default:
      return false;
  }
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

// The kinds of number that the library does not have.
VARIANT ToForeignKind(const Variant& pValue, VARTYPE pType) {
  VARIANT number{};
  Put<double>(number, VariantValue<double>::From(pValue));
  OwnedVariant result;
  CheckResult(VariantChangeTypeEx(&result.value, &number, LOCALE_INVARIANT, 0, pType));
  return result.Release();
}

// An array for a variable that holds one of a declared type; the array there may have to stay where it is.
VARIANT ForArray(SAFEARRAY* pPlace, VARTYPE pDeclared, const Variant& pValue) {
  const runtime::AnyArray* array = pValue.IfArray();
  if (!array) Raise(RuntimeError::TypeMismatch);
  const VARTYPE elements = pPlace ? ElementType(*pPlace, pDeclared) : pDeclared;
  OwnedSafeArray fresh = ToSafeArray(*array, elements);
  CheckReplaceable(pPlace, fresh.Get());
  VARIANT result{};
  result.parray = fresh.Release();
  result.vt = VT_ARRAY | elements;
  return result;
}

// What a variable of fixed type is to hold.
VARIANT ForTypedVariable(const VARIANT& pVariable, const Variant& pValue) {
  const auto type = static_cast<VARTYPE>(pVariable.vt & VT_TYPEMASK);
  const WholeValue* whole = WholeValue::In(pValue);
  if (!pVariable.byref) throw NullPointer();
  if ((pVariable.vt & VT_ARRAY) != 0)
    return ForArray(*pVariable.pparray, type, whole ? FromVariant(whole->Variant(), Digits::All) : pValue);
  if (type == VT_RECORD) {
    OwnedVariant record;
    record.value = ToVariant(pValue);
    const bool fits = record.value.vt == VT_RECORD &&
                      &CheckedServerRecord(record.value.pRecInfo) == &CheckedServerRecord(pVariable.pRecInfo);
    if (!fits) Raise(RuntimeError::TypeMismatch);
    return record.Release();
  }
  if (!whole || type == VT_DISPATCH || type == VT_UNKNOWN)
    return ToVariantOf(whole ? FromVariant(whole->Variant(), Digits::All) : pValue, type);
  OwnedVariant result;
  CheckResult(ChangeType(result, whole->Variant(), type));
  return result.Release();
}

// What a variable of any type is to hold.
VARIANT ForVariable(const VARIANT& pVariable, const Variant& pValue) {
  if ((pVariable.vt & VT_ARRAY) != 0) {
    if (pValue.IfArray()) return ForArray(pVariable.parray, static_cast<VARTYPE>(pVariable.vt & VT_TYPEMASK), pValue);
    if (IsFixed(pVariable.parray)) Raise(RuntimeError::ArrayFixed);
  }
  return ToVariant(pValue);
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

const VARIANT* SeenThrough(const VARIANT& pVariant) {
  const VARIANT* variant = &pVariant;
  while (variant->vt == kReference) {
    variant = variant->pvarVal;
    if (!variant) throw NullPointer();
  }
  return variant;
}

bool IsOmitted(const VARIANT& pVariant) noexcept {
  const VARIANT* variant = &pVariant;
  while (variant->vt == kReference && variant->pvarVal) variant = variant->pvarVal;
  return variant->vt == VT_ERROR && variant->scode == DISP_E_PARAMNOTFOUND;
}

VARIANT CopyOf(const VARIANT& pVariant) {
  OwnedVariant result;
  if ((pVariant.vt & VT_BYREF) != 0 && !pVariant.byref) throw NullPointer();
  if ((pVariant.vt & ~VT_BYREF) == VT_RECORD) return ToVariant(FromVariant(pVariant, Digits::All));
  CheckResult(VariantCopyInd(&result.value, const_cast<VARIANT*>(&pVariant)));
  return result.Release();
}

Variant FromVariant(const VARIANT& pVariant, Digits pDigits) {
  const VARIANT& variant = *SeenThrough(pVariant);
  Variant result;
  if ((variant.vt & VT_ARRAY) != 0)
    return FromSafeArray(Inside<SAFEARRAY*>(variant), static_cast<VARTYPE>(variant.vt & VT_TYPEMASK), pDigits);
  if (TakeOneOf(OwnKinds(), variant, result)) return result;
  if (IsForeignNumber(variant)) return FromForeignNumber(variant, pDigits);
  switch (variant.vt & VT_TYPEMASK) {
    case VT_EMPTY:
      return {};
    case VT_NULL:
      return Variant(runtime::Null{});
    case VT_DISPATCH:
    case VT_UNKNOWN:
      return Variant(FromDispatch(Inside<IUnknown*>(variant)));
    case VT_RECORD:
      if (!variant.pRecInfo) return Variant(nullptr);  // some systems lose records on their way between apartments
      return Variant(RecordFromVariant(variant));
    default:
      Raise(RuntimeError::TypeMismatch);
  }
}

Variant WholeVariant(const VARIANT& pVariant) {
  const auto type = static_cast<VARTYPE>(pVariant.vt & ~VT_BYREF);
  const bool isOwn = type <= VT_R8 || type == VT_DATE || type == VT_BSTR || type == VT_BOOL;
  if (isOwn) return FromVariant(pVariant, Digits::All);
  return Variant(runtime::New<WholeValue>(pVariant));
}

std::optional<std::u16string> ForeignText(const VARIANT& pVariant) {
  if (!IsForeignNumber(pVariant)) return std::nullopt;
  OwnedVariant text;
  CheckResult(ChangeType(text, pVariant, VT_BSTR));
  std::u16string result(TextIn(text.value.bstrVal));
  const std::size_t point = result.find(u'.');
  if (point != std::u16string::npos) result.replace(point, 1, runtime::ThreadLocale().decimal);
  return result;
}

void TakeHostValue(Variant& pValue, bool pIsArray) {
  const auto* object = pValue.If<Ref<Object>>();
  const auto host = object ? std::dynamic_pointer_cast<HostObject>(*object) : nullptr;
  if (host) pValue = pIsArray ? Variant(host->Elements()) : host->Get(u"");
}

VARIANT ToVariant(const Variant& pValue) {
  if (const WholeValue* whole = WholeValue::In(pValue)) return CopyOf(whole->Variant());
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

void WriteBack::Prepare(VARIANT& pVariable, const Variant& pValue) {
  const bool isTyped = (pVariable.vt & VT_BYREF) != 0;
  fresh_.value = isTyped ? ForTypedVariable(pVariable, pValue) : ForVariable(pVariable, pValue);
  target_ = &pVariable;
}

void WriteBack::Commit() noexcept {
  if (!target_) return;
  if ((target_->vt & VT_BYREF) != 0) return MoveInto(*target_, fresh_);
  if ((target_->vt & VT_ARRAY) != 0 && IsFixed(target_->parray))
    return ReplaceArray(target_->parray, fresh_.Release().parray);
  ClearVariant(*target_);
  *target_ = fresh_.Release();
}

}  // namespace qzbase::automation::com
