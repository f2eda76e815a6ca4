// Records as hosts hold them: fields one behind the other, each at its natural alignment, as compilers lay them out.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <type_traits>
#include <utility>

#include "qzbase/automation/com/Border.h"
#include "qzbase/automation/com/Guid.h"
#include "qzbase/automation/com/ServerClasses.h"

namespace qzbase::automation::com {

namespace detail {

template <class R>
struct RecordLayout {
  using Fields = std::remove_const_t<decltype(fields<R>)>;
  static constexpr std::size_t kCount = Fields::kSize;

  template <std::size_t kField>
  using Value = typename FieldType<std::remove_const_t<decltype(Fields::template kPointer<kField>)>>::Type;
  template <std::size_t kField>
  using Native = typename Border<Value<kField>>::Native;

  std::array<std::size_t, kCount> offsets{};
  std::size_t size = 0;
  std::size_t alignment = 1;

  template <std::size_t... kField>
  static constexpr RecordLayout Make(std::index_sequence<kField...>) {
    RecordLayout layout;
    const auto add = [&](std::size_t pField, std::size_t pSize, std::size_t pAlignment) {
      layout.offsets[pField] = (layout.size + pAlignment - 1) / pAlignment * pAlignment;
      layout.size = layout.offsets[pField] + pSize;
      layout.alignment = std::max(layout.alignment, pAlignment);
    };
    (add(kField, sizeof(Native<kField>), alignof(Native<kField>)), ...);
    layout.size = (layout.size + layout.alignment - 1) / layout.alignment * layout.alignment;
    return layout;
  }
};

template <class R>
inline constexpr RecordLayout<R> recordLayout =
    RecordLayout<R>::Make(std::make_index_sequence<RecordLayout<R>::kCount>());

}  // namespace detail

template <RecordType R>
struct Border<R> {
  using Layout = detail::RecordLayout<R>;
  static constexpr const Layout& kLayout = detail::recordLayout<R>;
  static constexpr VARTYPE kVarType = VT_RECORD;

  struct alignas(kLayout.alignment) Native {
    std::byte bytes[kLayout.size];
  };

  static R From(const Native& pNative) {
    R record{};
    ForEachField([&]<std::size_t kField>(std::integral_constant<std::size_t, kField>) {
      FieldOf<kField>(record) = Border<typename Layout::template Value<kField>>::From(At<kField>(pNative));
    });
    return record;
  }

  static Native To(const R& pRecord) {
    OwnedRecord result;
    ForEachField([&]<std::size_t kField>(std::integral_constant<std::size_t, kField>) {
      At<kField>(result.native) = Border<typename Layout::template Value<kField>>::To(FieldOf<kField>(pRecord));
    });
    return std::exchange(result.native, Native{});
  }

  static void Clear(Native& pNative) noexcept {
    ForEachField([&]<std::size_t kField>(std::integral_constant<std::size_t, kField>) {
      Border<typename Layout::template Value<kField>>::Clear(At<kField>(pNative));
    });
  }

 private:
  struct OwnedRecord {
    Native native{};
    ~OwnedRecord() { Clear(native); }
  };

  template <std::size_t kField>
  static auto& FieldOf(auto& pRecord) noexcept {
    return pRecord.*(Layout::Fields::template kPointer<kField>);
  }
  template <std::size_t kField>
  static auto& At(Native& pNative) noexcept {
    return *reinterpret_cast<typename Layout::template Native<kField>*>(pNative.bytes + kLayout.offsets[kField]);
  }
  template <std::size_t kField>
  static const auto& At(const Native& pNative) noexcept {
    return *reinterpret_cast<const typename Layout::template Native<kField>*>(pNative.bytes + kLayout.offsets[kField]);
  }
  template <class Visitor>
  static void ForEachField(Visitor pVisitor) {
    [&]<std::size_t... kField>(std::index_sequence<kField...>) {
      (pVisitor(std::integral_constant<std::size_t, kField>()), ...);
    }
    (std::make_index_sequence<Layout::kCount>());
  }
};

template <RecordType R>
inline constexpr ServerRecord serverRecord = {
    &recordDesc<R>, ParseGuid(identity<R>.guid), sizeof(typename Border<R>::Native),
    [](const void* pNative) {
      return runtime::Ref<Record>(
          runtime::New<RecordObject<R>>(Border<R>::From(*static_cast<const typename Border<R>::Native*>(pNative))));
    },
    [](const Record& pRecord, void* pNative) {
      *static_cast<typename Border<R>::Native*>(pNative) =
          Border<R>::To(static_cast<const RecordObject<R>&>(pRecord).value);
    }};

// The platform's description of a record, from the type library.
ComRef<IRecordInfo> RecordInfoOf(const ServerRecord& pClass);

// A VT_RECORD. Error 13 for a record that hosts do not know.
VARIANT RecordToVariant(const Record& pRecord);
runtime::Ref<Record> RecordFromVariant(const VARIANT& pVariant);

// Stores a record into the memory of another variable of its type (13 for one of another type).
const ServerRecord& CheckedServerRecord(IRecordInfo* pInfo);

// Error 13 for an array of other records.
void CheckRecordArray(SAFEARRAY& pArray, const ServerRecord& pClass);

}  // namespace qzbase::automation::com
