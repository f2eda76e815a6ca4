// A record as late-bound callers see it: an object whose fields are properties, found ignoring case.
//
//   Variant desc = errors->Get(u"EDesc", 3);             // an object that holds a TErrDesc
//   (*desc.If<Ref<Object>>())->Get(u"ID");               // "InvRange"
//
// Members with a record parameter take such an object, and change the record in it where the parameter is by reference.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>
#include <utility>

#include "qzbase/automation/Records.h"
#include "qzbase/automation/VariantValue.h"
#include "qzbase/runtime/Object.h"

namespace qzbase::automation {

// What is common to all of them, whatever the record.
class Record : public runtime::Object {
 public:
  // The fields by name: 438 for another name or kind of call, 450 and 449 for arguments too many or too few.
  runtime::Variant Invoke(std::u16string_view pName, runtime::CallKind pKind,
                          std::span<runtime::Variant> pArguments) final;

  virtual const RecordDesc& Desc() const noexcept = 0;

  // By the position in `Desc().fields`.
  virtual runtime::Variant FieldValue(std::size_t pField) const = 0;
  virtual void LetFieldValue(std::size_t pField, const runtime::Variant& pValue) = 0;
};

template <RecordType R>
class RecordObject final : public Record {
  using Fields = std::remove_const_t<decltype(fields<R>)>;

 public:
  RecordObject() = default;
  explicit RecordObject(R pValue) : value(std::move(pValue)) {}

  const RecordDesc& Desc() const noexcept override { return recordDesc<R>; }

  runtime::Variant FieldValue(std::size_t pField) const override { return kGetters[pField](value); }
  void LetFieldValue(std::size_t pField, const runtime::Variant& pValue) override { kLetters[pField](value, pValue); }

  R value{};

 private:
  template <std::size_t kField>
  static auto& FieldOf(auto& pRecord) {
    return pRecord.*(Fields::template kPointer<kField>);
  }

  template <std::size_t kField>
  static runtime::Variant GetField(const R& pRecord) {
    return VariantValue<std::remove_cvref_t<decltype(FieldOf<kField>(pRecord))>>::To(FieldOf<kField>(pRecord));
  }
  template <std::size_t kField>
  static void LetField(R& pRecord, const runtime::Variant& pValue) {
    auto& target = FieldOf<kField>(pRecord);
    target = VariantValue<std::remove_cvref_t<decltype(target)>>::From(pValue);
  }

  template <std::size_t... kField>
  static constexpr auto MakeGetters(std::index_sequence<kField...>) {
    return std::array{&GetField<kField>...};
  }
  template <std::size_t... kField>
  static constexpr auto MakeLetters(std::index_sequence<kField...>) {
    return std::array{&LetField<kField>...};
  }

  static constexpr auto kGetters = MakeGetters(std::make_index_sequence<Fields::kSize>());
  static constexpr auto kLetters = MakeLetters(std::make_index_sequence<Fields::kSize>());
};

// The record in a variant, null when it is unset. Raises 13 for anything but a record of this type.
template <RecordType R>
RecordObject<R>* RecordIn(const runtime::Variant& pVariant) {
  if (pVariant.IsEmpty() || pVariant.IsNull()) return nullptr;
  const auto* object = pVariant.If<runtime::Ref<runtime::Object>>();
  auto* result = object ? dynamic_cast<RecordObject<R>*>(object->get()) : nullptr;
  if (!result && !(object && !*object)) runtime::Raise(runtime::RuntimeError::TypeMismatch);
  return result;
}

template <RecordType R>
struct VariantValue<R> {
  static const R* Peek(const runtime::Variant& pVariant) {
    const RecordObject<R>* record = RecordIn<R>(pVariant);
    return record ? &record->value : nullptr;
  }
  static R From(const runtime::Variant& pVariant) {
    const R* record = Peek(pVariant);
    if (!record) runtime::Raise(runtime::RuntimeError::ObjectNotSet);
    return *record;
  }
  static runtime::Variant To(R pValue) { return runtime::Variant(runtime::New<RecordObject<R>>(std::move(pValue))); }
};

}  // namespace qzbase::automation
